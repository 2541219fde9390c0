// Sections of the p-v-T surface at a fixed parameter: the isotherm in p-v, in pv-p and in rho-p, the
// isobar in T-v and T-rho, the isochor in p-T. Below the critical point a branch finds the saturation
// of the EOS first and treats the two-phase region in its own way.
#include "diagrams/diagramm_codes.h"
#include "diagrams/kurven_hilfen.h"
#include "engine/virial.h"
#include "engine/zustand.h"

#include <algorithm>
#include <cmath>

namespace quor::kurven {

namespace {

bool Unterkritisch(const Lauf& l, double T) {
  return !l.Virial() && T < l.s.Stoff.TKrit;
}

// --- isotherm over v (code 1) ---

// p(T,v) at each v of the axis; inside the two-phase region only on the S-loop.
void IsothermeUeberV(Lauf& l, const Koexistenz* k) {
  const bool sKurve = l.s.Optionen.SKurveOhneKonnode;
  Schritte(l.a.Xmin, l.a.Xmax, l.dx, 0.9, [&](double x) {
    const double v = x / l.VF();
    if (k && !sKurve && v > k->vL && v < k->vV) return true;
    int16_t err = 0;
    const double p = PzuTV(l.s, l.T, v, err);
    if (err != 0) return true;
    if (l.Virial() && p < 0) return false;
    l.Punkt(x, p * l.PF(), l.T);
    return true;
  });
}

// --- isotherm over p (codes 2 and 26) ---

// The ordinate of codes 2 and 26: p*v or the density.
double OrdinateUeberP(const Lauf& l, double p, double v) {
  return l.a.Code == code::RhoP ? l.s.Stoff.MolMasse / v : p * v * l.PF() * l.VF();
}

void VirialUeberP(Lauf& l) {
  const double B = BvonT(l.s, l.s.Modell.EOSIndex, l.T);
  Schritte(l.a.Xmin, l.a.Xmax, l.dx, 0.9, [&](double x) {
    const double p = std::max(x / l.PF(), 0.01);
    const double v = RGas * l.T / p + B;
    if (l.a.Code == code::RhoP) {
      if (v > 0) l.Punkt(p * l.PF(), l.s.Stoff.MolMasse / v, l.T);
    } else {
      l.Punkt(p * l.PF(), (RGas * l.T + B * p) * l.VF(), l.T);
    }
    return true;
  });
}

void UeberkritischUeberP(Lauf& l) {
  Schritte(l.a.Xmin, l.a.Xmax, l.dx, 0.9, [&](double x) {
    const double p = std::max(x / l.PF(), 1e-10);
    double v = 0;
    if (StabilesVolumen(l.s, l.T, p, v) && v > l.s.EOS.bT) l.Punkt(p * l.PF(), OrdinateUeberP(l, p, v), l.T);
    return true;
  });
}

// The jump at p(LV): the saturated vapour, with the S-option the loop of the isotherm from vV to vL
// (a point kept once p has moved by half a step of the axis), then the saturated liquid.
void SprungBeiPLV(Lauf& l, const Koexistenz& k) {
  l.Punkt(k.p * l.PF(), OrdinateUeberP(l, k.p, k.vV), l.T);
  if (l.s.Optionen.SKurveOhneKonnode) {
    const int n = l.a.Code == code::RhoP ? 200 : 20000;
    const double dv = (k.vV - k.vL) / n;
    double pLetzt = k.p;
    for (int i = 1; i < n; ++i) {
      const double v = k.vV - i * dv;
      int16_t err = 0;
      const double p = PzuTV(l.s, l.T, v, err);
      if (err != 0 || std::fabs(p - pLetzt) * l.PF() < 0.5 * std::fabs(l.dx)) continue;
      l.Punkt(p * l.PF(), OrdinateUeberP(l, p, v), l.T);
      pLetzt = p;
    }
  }
  l.Punkt(k.p * l.PF(), OrdinateUeberP(l, k.p, k.vL), l.T);
}

// The root of a subcritical isotherm at p: the only one, or the vapour up to p(LV) and the liquid
// above it.
bool RootUnterkritisch(Lauf& l, const Koexistenz* k, double p, double& v) {
  int16_t n = 0;
  if (!k) return StabilesVolumen(l.s, l.T, p, v);
  if (!Wurzeln(l.s, l.T, p, n)) return false;
  const auto& r = l.s.EOS.VRoots;
  v = n == 1 ? r[0] : p <= k->p ? r[2] : r[0];
  return v > l.s.EOS.bT;
}

void UnterkritischUeberP(Lauf& l, const Koexistenz* k) {
  double pVorher = -1;
  Schritte(l.a.Xmin, l.a.Xmax, l.dx, 0.9, [&](double x) {
    const double p = std::max(x / l.PF(), 0.01);
    if (k && pVorher > 0 && pVorher <= k->p && p > k->p) SprungBeiPLV(l, *k);
    pVorher = p;
    double v = 0;
    if (RootUnterkritisch(l, k, p, v)) l.Punkt(p * l.PF(), OrdinateUeberP(l, p, v), l.T);
    return true;
  });
}

// --- isobar (codes 3 and 4) ---

double AbszisseTv(const Lauf& l, double v) {
  return l.a.Code == code::TRho ? l.s.Stoff.MolMasse / v : v * l.VF();
}

// The root of an isobar at T: the liquid up to T(LV), the vapour above; without a saturation the
// state solver decides; above p(cr) the first root.
bool RootIsobare(Lauf& l, const Koexistenz* k, double T, double& v) {
  const double p = l.p;
  if (l.Virial()) {
    v = RGas * T / p + BvonT(l.s, l.s.Modell.EOSIndex, T);
    return v > 0;
  }
  if (p < l.s.Stoff.pKrit && !k) return StabilesVolumen(l.s, T, p, v) && v > l.s.EOS.bT;
  int16_t n = 0;
  if (!Wurzeln(l.s, T, p, n)) return false;
  const auto& r = l.s.EOS.VRoots;
  v = k && T > k->T && n == 3 ? r[2] : r[0];
  return v > l.s.EOS.bT;
}

// --- isochor (code 5) ---

// True when the isochor at T has reached the coexistence curve: on the liquid side p(T,v) has
// fallen to p(LV), on the vapour side risen to it; the critical isochor meets it at T(cr).
bool KoexistenzErreicht(const Lauf& l, const Koexistenz& k, double p) {
  const double vc = l.s.EOS.vKritEOS;
  if (std::fabs(l.v - vc) < vc / 1000) return true;
  return l.v < vc ? p <= k.p : p >= k.p;
}

} // namespace

void IsothermePV(Lauf& l) {
  if (!(l.T > 1e-6)) return;
  Koexistenz k;
  const bool zweiphasig = Unterkritisch(l, l.T) && KoexistenzBeiT(l.s, l.T, k);
  IsothermeUeberV(l, zweiphasig ? &k : nullptr);
  if (zweiphasig) {
    l.Punkt(k.vL * l.VF(), k.p * l.PF(), l.T);
    l.Punkt(k.vV * l.VF(), k.p * l.PF(), l.T);
    SortiereKurve(l.Punkte());
  }
  l.Kopf(kopf::MitParameter);
}

void IsothermePvProdukt(Lauf& l) {
  if (!(l.T > 1e-6)) return;
  if (l.Virial()) {
    VirialUeberP(l);
  } else if (l.T >= l.s.Stoff.TKrit) {
    UeberkritischUeberP(l);
  } else {
    Koexistenz k;
    const bool vle = KoexistenzBeiT(l.s, l.T, k);
    UnterkritischUeberP(l, vle ? &k : nullptr);
  }
  l.Kopf(kopf::MitParameter);
}

void IsobareTv(Lauf& l) {
  if (!(l.p > 0)) return;
  Koexistenz k;
  double start = 0;
  const bool vle = !l.Virial() && l.p < l.s.Stoff.pKrit && KoexistenzBeiP(l.s, l.p, start, k);
  double TVorher = -1;
  Schritte(l.a.Ymin, l.a.Ymax, l.dy, 0.9, [&](double y) {
    const double T = y / l.TF();
    if (!(T > 1e-6)) return true;
    if (vle && TVorher > 0 && TVorher <= k.T && T > k.T) {
      l.Punkt(AbszisseTv(l, k.vL), k.T * l.TF(), l.p);
      l.Punkt(AbszisseTv(l, k.vV), k.T * l.TF(), l.p);
    }
    TVorher = T;
    double v = 0;
    if (RootIsobare(l, vle ? &k : nullptr, T, v)) l.Punkt(AbszisseTv(l, v), y, l.p);
    return true;
  });
  l.Kopf(kopf::ZweiZweige);
}

void IsochorePT(Lauf& l) {
  if (!(l.v > 0)) return;
  Schritte(l.a.Xmax, l.a.Xmin, -l.dx, 0.8, [&](double x) {
    const double T = x / l.TF();
    if (!(T > 1e-6)) return true;
    Koexistenz k;
    const bool vle = Unterkritisch(l, T) && KoexistenzBeiT(l.s, T, k);
    int16_t err = 0;
    const double p = PzuTV(l.s, T, l.v, err);
    if (err != 0) return true;
    if (vle && KoexistenzErreicht(l, k, p)) {
      l.koexistenzErreicht = true;
      return false;
    }
    if (p > 1e-6) l.Punkt(x, p * l.PF(), l.v);
    return true;
  });
  l.Kopf(kopf::ZweiZweige);
}

} // namespace quor::kurven
