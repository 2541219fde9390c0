// Projections of the two-phase region of the EOS: the coexistence curve in p-v with its adaptive
// step in T, over p in rho-p and pv-p, in T-v and T-rho, both saturated densities over T and their
// straight diameter. A line between the boiling and the dew line takes the volume
// vL + (vV - vL) * Isohygre.
#include "diagrams/diagramm_codes.h"
#include "diagrams/kurven_hilfen.h"
#include "engine/saettigung.h"

#include <algorithm>
#include <cmath>

namespace quor::kurven {

namespace {

double Volumen(const Lauf& l, const Koexistenz& k) {
  return k.vL + (k.vV - k.vL) * l.s.Diagramm.Isohygre;
}

bool HatKritischesVolumen(const Lauf& l) {
  return l.s.EOS.vKritEOS > 1e-6;
}

// The curve ends below the smallest temperature, and below the triple point when the option
// restricts curves to it.
bool UnterGrenze(const Lauf& l, double T) {
  return T < 1e-6 || (l.s.Optionen.KurveTpBeschraenkt && T < l.s.Stoff.TTripel);
}

// --- p over v (code 6) ---

// The first temperature of the curve: the saturation at the top of the pressure axis (T(cr) when
// it lies above it), walked down in 0.05 K until the EOS gives a loop around v(cr).
double StartKoexistenzPV(Lauf& l) {
  ProjectState& s = l.s;
  const double Tc = s.Stoff.TKrit, vc = s.EOS.vKritEOS;
  double imbalance = 0, A = 0, B = 0, start = 0;
  int16_t err = 0;
  double T = TLVbeiP(s, l.a.Ymax / l.PF(), imbalance, A, B, start, err);
  if (err != 0 || !std::isfinite(T) || T > Tc || T <= 0) T = Tc;
  for (; !UnterGrenze(l, T); T -= 0.05) {
    Koexistenz k;
    if (KoexistenzBeiT(s, T, k) && k.vL < vc && vc < k.vV) return T;
  }
  return 0;
}

// The step in T: from the logarithm of the pressure span, never zero or negative.
double AnfangsSchrittPV(const Lauf& l) {
  const double dT = std::log(l.a.Ymax / l.PF() - l.a.Ymin / l.PF()) / 1000;
  return std::isfinite(dT) && dT > 1e-4 ? dT : 1e-4;
}

// The curve from the critical point down: a step that changes p and vL by less than 1/800 of
// their axes is doubled and the point left out, so that the steep part near the critical point
// gets points and the flat tail few.
void KoexistenzPVSchritte(Lauf& l, double T) {
  const ProjectState& s = l.s;
  const double pc = s.Stoff.pKrit, vc = s.EOS.vKritEOS;
  const double dpKlein = (l.a.Ymax - l.a.Ymin) / (l.PF() * 800);
  const double dvKlein = (l.a.Xmax - l.a.Xmin) / (l.VF() * 800);
  const double vEnde = 1.5 * l.a.Xmin - 0.5 * l.a.Xmax;
  double dT = AnfangsSchrittPV(l), pLetzt = 5 * pc, vLetzt = 1000;
  for (long n = 0; n < 200000; ++n) {
    T -= dT;
    if (UnterGrenze(l, T)) return;
    Koexistenz k;
    if (!KoexistenzBeiT(l.s, T, k)) continue;
    if (std::fabs(pLetzt - k.p) <= dpKlein && std::fabs(vLetzt - k.vL) <= dvKlein) {
      dT *= 2;
      T -= dT;
      if (UnterGrenze(l, T)) return;
      continue;
    }
    if (k.p >= pc || k.vL >= vc || k.vV <= vc) continue;
    l.Punkt(k.vV * l.VF(), k.p * l.PF(), T);
    l.Punkt(k.vL * l.VF(), k.p * l.PF(), T);
    pLetzt = k.p;
    vLetzt = k.vL;
    if (k.vL * l.VF() < vEnde) return;
  }
}

// --- over p (codes 27 and 106) ---

double OrdinateKoexUeberP(const Lauf& l, double p, double v) {
  return l.a.Code == code::KoexRhoP ? l.s.Stoff.MolMasse / v : p * v * l.PF() * l.VF();
}

// --- T over v or rho (codes 7 and 12) ---

double AbszisseKoexTv(const Lauf& l, double v) {
  return l.a.Code == code::KoexTRho ? l.s.Stoff.MolMasse / v : v * l.VF();
}

// A saturated root that can be drawn as a density: above the co-volume and above 1e-6.
bool DichteWurzel(const Lauf& l, double v) {
  return v > l.s.EOS.bT && v >= 1e-6;
}

} // namespace

void KoexistenzPV(Lauf& l) {
  if (HatKritischesVolumen(l)) {
    const double T = StartKoexistenzPV(l);
    if (T > 0) {
      const ProjectState& s = l.s;
      l.Punkt(s.EOS.vKritEOS * l.VF(), s.Stoff.pKrit * l.PF(), s.Stoff.TKrit);
      KoexistenzPVSchritte(l, T);
      SortiereKurve(l.Punkte());
    }
  }
  l.Kopf(kopf::MitParameter);
}

void KoexistenzUeberP(Lauf& l) {
  ProjectState& s = l.s;
  const double pc = s.Stoff.pKrit;
  double TStart = 0;
  Schritte(l.a.Xmin, (pc - 5) * l.PF(), 0.75 * l.dx, 0, [&](double x) {
    const double p = std::max(x / l.PF(), 0.1);
    if (s.Optionen.KurveTpBeschraenkt && p < s.Stoff.pTripel) return true;
    Koexistenz k;
    if (!KoexistenzBeiP(s, p, TStart, k)) return true;
    l.Punkt(p * l.PF(), OrdinateKoexUeberP(l, p, Volumen(l, k)), k.T);
    return true;
  });
  if (HatKritischesVolumen(l)) l.Punkt(pc * l.PF(), OrdinateKoexUeberP(l, pc, s.EOS.vKritEOS), s.Stoff.TKrit);
  l.Kopf(kopf::MitParameter);
}

void KoexistenzTv(Lauf& l) {
  ProjectState& s = l.s;
  const double Tc = s.Stoff.TKrit;
  const double d = s.Diagramm.Isohygre < 0.5 ? 2 * l.dy / 4 : 2 * l.dy;
  if (HatKritischesVolumen(l)) l.Punkt(AbszisseKoexTv(l, s.EOS.vKritEOS), Tc * l.TF(), Tc);
  Schritte(Tc * l.TF() - d, l.a.Ymin, -d, 0.9, [&](double y) {
    const double T = y / l.TF();
    Koexistenz k;
    if (T > 1e-6 && KoexistenzBeiT(s, T, k)) l.Punkt(AbszisseKoexTv(l, Volumen(l, k)), y, T);
    return true;
  });
  l.Kopf(kopf::ZweiZweige);
}

void KoexistenzRhoT(Lauf& l) {
  if (!HatKritischesVolumen(l)) {
    l.ergebnis = kurve::KeinKritischesVolumen;
    return;
  }
  const double M = l.s.Stoff.MolMasse;
  Schritte(l.s.Stoff.TKrit * l.TF(), l.a.Xmin, -l.dx, 0.9, [&](double x) {
    const double T = x / l.TF();
    Koexistenz k;
    if (!(T > 1e-6) || !KoexistenzBeiT(l.s, T, k)) return true;
    if (DichteWurzel(l, k.vL)) l.Punkt(x, M / k.vL, T);
    if (DichteWurzel(l, k.vV)) l.Punkt(x, M / k.vV, T);
    return true;
  });
  SortiereKurve2(l.Punkte());
  l.Kopf(kopf::ZweiZweige);
}

void Durchmesser(Lauf& l) {
  const ProjectState& s = l.s;
  const double Tc = s.Stoff.TKrit, M = s.Stoff.MolMasse, schritt = 3 * l.dx;
  if (s.EOS.rhoKritEOS > 0) l.Punkt(Tc * l.TF(), s.EOS.rhoKritEOS, Tc);
  Schritte(Tc * l.TF() - schritt, l.a.Xmin, -schritt, 0.9, [&](double x) {
    const double T = x / l.TF();
    Koexistenz k;
    if (!(T > 1e-6) || !KoexistenzBeiT(l.s, T, k)) return true;
    if (k.vL * k.vV < 0.0001) return false;
    l.Punkt(x, (M / k.vL + M / k.vV) / 2, T);
    return true;
  });
  l.Kopf(kopf::ZweiZweige);
}

} // namespace quor::kurven
