#include "polytrope_rechner.h"

#include "engine/kalorik.h"
#include "engine/zustand.h"
#include "process/prozess_linie.h"

#include <cmath>
#include <functional>

namespace quor::merlon {

namespace {

using prozess::PexAuftrag;

// Searches f = 0 around x0 > 0: the bracket widens by the factor 1.25 on both sides until the sign
// changes (skipping points where f is not defined), then bisection in ln x to the last digits.
bool Wurzel(const std::function<double(double)>& f, double x0, double& x) {
  constexpr double q = 1.25;
  const double f0 = f(x0);
  if (f0 == 0) {
    x = x0;
    return true;
  }
  double lo = 0, hi = 0, fLo = 0;
  double innenU = x0, fInnenU = f0, innenO = x0, fInnenO = f0;
  bool gefunden = false;
  for (int k = 1; k <= 120 && !gefunden; ++k) {
    const double a = x0 / std::pow(q, k), b = x0 * std::pow(q, k);
    const double fa = f(a), fb = f(b);
    if (std::isfinite(fa)) {
      if (std::isfinite(fInnenU) && (fa < 0) != (fInnenU < 0)) {
        lo = a, hi = innenU, fLo = fa, gefunden = true;
        break;
      }
      innenU = a, fInnenU = fa;
    }
    if (std::isfinite(fb)) {
      if (std::isfinite(fInnenO) && (fb < 0) != (fInnenO < 0)) {
        lo = innenO, hi = b, fLo = fInnenO, gefunden = true;
        break;
      }
      innenO = b, fInnenO = fb;
    }
  }
  if (!gefunden) return false;
  for (int i = 0; i < 200 && hi / lo - 1 > 1e-15; ++i) {
    const double m = std::sqrt(lo * hi), fm = f(m);
    if (!std::isfinite(fm)) return false;
    if ((fm < 0) == (fLo < 0))
      lo = m, fLo = fm;
    else
      hi = m;
  }
  x = std::sqrt(lo * hi);
  return true;
}

// p(T, v) of the EOS; NaN where it is not defined.
double DruckEOS(ProjectState& s, double T, double v) {
  int16_t err = 0;
  const double p = PzuTV(s, T, v, err);
  return err == 0 && std::isfinite(p) ? p : NAN;
}

// The start volume: the liquid root where there is a liquid, else the vapour root.
bool StartVolumen(ProjectState& s, double T, double p, double& v) {
  bool istL = false, istV = false;
  double rhoV = 0, rhoL = 0, vV = 0, vL = 0, imbalance = 0, A = 0, B = 0;
  int16_t nRoots = 0, err = 0;
  std::string meldung;
  VzuTP(s, T, p, s.EOS.Gebiet, istL, istV, rhoV, rhoL, vV, vL, nRoots, imbalance, A, B, meldung, err);
  if (err != 0 || !(istL || istV)) return false;
  v = istL ? vL : vV;
  return v > 0 && std::isfinite(v);
}

kurven::Phasenzustand EOSZustand(ProjectState& s, double T, double p, double v) {
  return kurven::PhaseBei(s, T, p, v, kurven::ZeileVon(s, v));
}

// The ideal gas with constant cp = kappa R / (kappa - 1), h and s tied to the program's ideal-gas
// functions at the start, exergies against the environment of the same gas.
struct Idealgas {
  double T1, p1, h1 = 0, s1 = 0, cp, M;
  const ReferenzGruppe& r;
  Idealgas(ProjectState& s, const PexAuftrag& a)
      : T1(a.T1), p1(a.p1), cp(a.kappa * RGas / (a.kappa - 1)), M(s.Stoff.MolMasse), r(s.Referenz) {
    double cp1 = 0;
    int16_t err = 0;
    IdealgasFunktionen(s, T1, p1, h1, s1, cp1, err);
    if (err != 0) h1 = s1 = 0;
  }
  KalorischeWerte Werte(double T, double p) const {
    KalorischeWerte w;
    w.h = h1 + cp * (T - T1);
    w.s = s1 + cp * std::log(T / T1) - RGas * std::log(p / p1);
    w.u = w.h - RGas * T;
    w.g = w.h - T * w.s;
    w.a = w.u - T * w.s;
    w.cp = w.cpIdG = cp;
    w.cv = cp - RGas;
    w.w = M > 0 ? std::sqrt(cp / w.cv * RGas * T / M * 1000) : 0;
    return w;
  }
  kurven::Phasenzustand Zustand(double T, double p) const {
    kurven::Phasenzustand z;
    z.T = T, z.p = p, z.v = RGas * T / p;
    z.w = Werte(T, p);
    const double Tu = r.TUmgebung, pu = r.pUmgebung;
    const KalorischeWerte u = Werte(Tu, pu);
    z.w.eh = z.w.h - u.h - Tu * (z.w.s - u.s);
    z.w.eu = z.w.u - u.u + pu * (z.v - RGas * Tu / pu) - Tu * (z.w.s - u.s);
    return z; // the residual block stays 0
  }
};

std::string PruefeAuftrag(const PexAuftrag& a) {
  if (!(a.T1 > 0 && a.p1 > 0 && a.Ende > 0)) return "T- und p-Vorgabe müssen größer Null sein";
  if (!std::isfinite(a.n)) return "Polytropenexponent ungültig";
  if (a.Bereich == prozess::BereichT && a.n == 1)
    return "Bedingung Polytropen-Exp. n = 1 (=> isotherm) ist im Widerspruch zur Angabe eines T-Bereichs.";
  if (a.Bereich != prozess::BereichT && a.n == 0) return "n = 0 (isobar) verlangt einen T-Bereich";
  if (a.Modus == prozess::PolytropeIdealgas && !(a.kappa > 1)) return "noch kein gültiges kappa vorhanden";
  return {};
}

bool IdealgasLinie(ProjectState& s, const PexAuftrag& a, PolytropenLinie& l) {
  const Idealgas g(s, a);
  const double n = a.n;
  const bool laufT = a.Bereich == prozess::BereichT;
  for (double x : prozess::Laufwerte(laufT ? a.T1 : a.p1, a.Ende, Schritte(a.Punkte))) {
    // p v^n = const with v = R T / p: T2/T1 = (p2/p1)^((n-1)/n).
    const double T = laufT ? x : a.T1 * std::pow(x / a.p1, (n - 1) / n);
    const double p = laufT ? a.p1 * std::pow(x / a.T1, n / (n - 1)) : x;
    if (!(T > 0 && p > 0 && std::isfinite(T) && std::isfinite(p))) return false;
    l.zustaende.push_back(g.Zustand(T, p));
  }
  return true;
}

bool EOSLinie(ProjectState& s, const PexAuftrag& a, PolytropenLinie& l, std::string& grund) {
  double v1 = 0;
  if (!StartVolumen(s, a.T1, a.p1, v1)) {
    grund = "Anfangszustand nicht berechenbar";
    return false;
  }
  const double n = a.n, C = a.p1 * std::pow(v1, n);
  const bool laufT = a.Bereich == prozess::BereichT;
  for (double x : prozess::Laufwerte(laufT ? a.T1 : a.p1, a.Ende, Schritte(a.Punkte))) {
    double T = x, p = x, v = v1;
    bool ok = false;
    if (x == (laufT ? a.T1 : a.p1)) {
      T = a.T1, p = a.p1, ok = true;
    } else if (laufT) {
      ok = VAufPolytrope(s, T, n, C, v1 * std::pow(a.T1 / T, 1 / (n - 1)), v);
      p = C / std::pow(v, n);
    } else {
      v = v1 * std::pow(a.p1 / p, 1 / n);
      ok = TAufEOS(s, p, v, a.T1 * p * v / (a.p1 * v1), T);
    }
    if (!ok || !std::isfinite(p) || !(p > 0)) {
      grund = "kein Zustand der EOS auf der Polytrope bei " + std::string(laufT ? "T = " : "p = ") +
              std::to_string(x);
      return false;
    }
    l.zustaende.push_back(EOSZustand(s, T, p, v));
  }
  return true;
}

// Volume work on the substance and technical work along p v^n = const, kJ/kmol.
void Arbeiten(double n, const kurven::Phasenzustand& z1, const kurven::Phasenzustand& z2, double& w,
              double& wt) {
  const double pv1 = z1.p * z1.v, pv2 = z2.p * z2.v;
  if (n == 1) {
    w = -pv1 * std::log(z2.v / z1.v);
    wt = pv1 * std::log(z2.p / z1.p);
  } else {
    w = (pv2 - pv1) / (n - 1);
    wt = n * (pv2 - pv1) / (n - 1);
  }
}

void Kopf(const PexAuftrag& a, PolytropenLinie& l) {
  const kurven::Phasenzustand &z1 = l.zustaende.front(), &z2 = l.zustaende.back();
  double w = 0, wt = 0;
  Arbeiten(a.n, z1, z2, w, wt);
  using namespace prozess;
  auto& k = l.kopf;
  k[KopfT1] = z1.T, k[KopfP1] = z1.p, k[KopfV1] = z1.v;
  k[KopfT2] = z2.T, k[KopfP2] = z2.p, k[KopfV2] = z2.v;
  k[KopfN] = a.n, k[KopfKappa] = a.kappa;
  k[KopfArbeit] = w;
  k[KopfDeltaU] = z2.w.u - z1.w.u;
  k[KopfWaerme] = k[KopfDeltaU] - w;
  k[KopfDeltaH] = z2.w.h - z1.w.h;
  k[KopfDeltaS] = z2.w.s - z1.w.s;
  k[KopfTechArbeit] = wt;
  k[KopfH1] = z1.w.h, k[KopfS1] = z1.w.s, k[KopfU1] = z1.w.u;
  k[KopfH2] = z2.w.h, k[KopfS2] = z2.w.s, k[KopfU2] = z2.w.u;
  k[KopfModus] = a.Modus;
  k[KopfPunkte] = static_cast<double>(l.zustaende.size());
}

} // namespace

int Schritte(int punkte) {
  return punkte > 2 ? punkte - 1 : 1;
}

bool TAufEOS(ProjectState& s, double p, double v, double TSchaetzung, double& T) {
  return Wurzel([&](double t) { return DruckEOS(s, t, v) - p; }, TSchaetzung, T);
}

bool VAufPolytrope(ProjectState& s, double T, double n, double C, double vSchaetzung, double& v) {
  return Wurzel([&](double x) { return DruckEOS(s, T, x) * std::pow(x, n) - C; }, vSchaetzung, v);
}

bool PolytropeBerechnen(ProjectState& s, const PexAuftrag& a, PolytropenLinie& l, std::string& grund) {
  l = PolytropenLinie{};
  grund = PruefeAuftrag(a);
  if (!grund.empty()) return false;
  const bool ok = a.Modus == prozess::PolytropeIdealgas ? IdealgasLinie(s, a, l) : EOSLinie(s, a, l, grund);
  if (!ok || l.zustaende.empty()) {
    if (grund.empty()) grund = "Polytrope nicht berechenbar";
    return false;
  }
  Kopf(a, l);
  return true;
}

} // namespace quor::merlon
