// The model functions: vapour pressure (3 to 8), liquid density (9 to 11), enthalpy of vaporization
// (14, 15), heat capacity (16 to 18) and the two linear forms (0, 1).
#include "fitting/fit_modelle.h"

#include <cmath>

namespace quor {

namespace {

// Watches the steps of a formula: a step that is not a finite number is one that Basic would have
// stopped with a run-time error.
struct Rechnung {
  bool ok = true;
  double operator()(double v) {
    if (!std::isfinite(v)) ok = false;
    return v;
  }
};

ModellStatus Ergebnis(const Rechnung& R, double wert, double& y) {
  if (!R.ok || !std::isfinite(wert)) {
    y = 0;
    return ModellStatus::Laufzeitfehler;
  }
  y = wert;
  return ModellStatus::Gut;
}

ModellStatus Fehlschlag(double& y) {
  y = 0;
  return ModellStatus::Fehlschlag;
}

// --- vapour pressure --------------------------------------------------------------------------

ModellStatus August(const FitParameter& P, double c, double T, double& y) {
  Rechnung R;
  const double lnT = R(std::log(T));
  const double BT = R(c * P[1] / T);
  return Ergebnis(R, R(std::exp(c * P[0] - BT + P[2] * lnT)), y);
}

ModellStatus Antoine(const FitParameter& P, double c, double T, double& y) {
  Rechnung R;
  const double BT = R(c * P[1] / (T + P[2] - 273.15));
  return Ergebnis(R, R(std::exp(c * P[0] - BT)), y);
}

ModellStatus DipprDampfdruck(const FitParameter& P, double c, double T, double& y) {
  Rechnung R;
  const double lnT = R(std::log(T));
  const double BT = R(c * P[1] / T);
  const double HT = R(c * P[3] * R(std::pow(T, P[4])));
  return Ergebnis(R, R(std::exp(c * P[0] + BT + P[2] * lnT + HT)), y);
}

ModellStatus Wagner(const FitParameter& P, double Tcr, double pcr, double T, double& y) {
  if (T < 1e-6 || T >= Tcr) return Fehlschlag(y);
  const double X = 1 - T / Tcr;
  if (X < 1e-6) return Fehlschlag(y);
  const double S = P[0] * X + P[1] * std::pow(X, 1.5) + P[2] * X * X * X + P[3] * std::pow(X, 6);
  if (!(std::fabs(S) <= 50)) return Fehlschlag(y);
  const double p = pcr * std::exp(S * Tcr / T);
  if (!std::isfinite(p)) return Ergebnis(Rechnung{false}, p, y);
  if (p < 1e-35) return Fehlschlag(y);
  y = p;
  return ModellStatus::Gut;
}

// --- liquid density, enthalpy of vaporization, heat capacity ----------------------------------

double Kubik(const FitParameter& P, double T) {
  return P[0] + P[1] * T + P[2] * T * T + P[3] * T * T * T;
}

ModellStatus Rackett(const FitParameter& P, double Tcr, double T, double& y) {
  Rechnung R;
  const double X = R(1 - R(T / Tcr));
  const double nenner = R(std::pow(P[1], 1 + R(std::pow(X, P[2]))));
  return Ergebnis(R, R(P[0] / nenner), y);
}

ModellStatus Leuna(const FitParameter& P, double Tcr, double T, double& y) {
  Rechnung R;
  const double X = R(1 - R(T / Tcr));
  const double wurzel = R(std::pow(X, 1.0 / 3.0));
  return Ergebnis(R, Kubik(P, T) + P[4] * wurzel, y);
}

// Tr stays 0 without a critical temperature.
double Reduziert(double T, double Tcr) {
  return Tcr > 0 ? T / Tcr : 0;
}

ModellStatus Majer(const FitParameter& P, double Tcr, double T, double& y) {
  Rechnung R;
  const double Tr = Reduziert(T, Tcr);
  const double potenz = R(std::pow(1 - Tr, P[2]));
  return Ergebnis(R, P[0] * R(std::exp(-P[1] * Tr)) * potenz, y);
}

ModellStatus DipprHLV(const FitParameter& P, double Tcr, double T, double& y) {
  Rechnung R;
  const double Tr = Reduziert(T, Tcr);
  const double exponent = P[1] + P[2] * Tr + P[3] * Tr * Tr + P[4] * Tr * Tr * Tr;
  return Ergebnis(R, P[0] * R(std::pow(1 - Tr, exponent)), y);
}

ModellStatus Shomate(const FitParameter& P, double T, double& y) {
  if (T <= 0) {
    y = 0;
    return ModellStatus::Gut;
  }
  return Ergebnis(Rechnung{}, Kubik(P, T) + P[4] / (T * T), y);
}

// sinh and cosh from exponentials, 0 from an argument of 709.78 on.
double SinusH(Rechnung& R, double t) {
  return t >= 709.78 ? 0 : (R(std::exp(t)) - R(std::exp(-t))) / 2;
}
double KosinusH(Rechnung& R, double t) {
  return t >= 709.78 ? 0 : (R(std::exp(t)) + R(std::exp(-t))) / 2;
}

ModellStatus DipprCp(EOSGruppe& eos, const FitParameter& P, double T, double& y) {
  // A is held in the EOS constant c0 while the function runs, and stays there.
  eos.c0 = P[0];
  if (std::fabs(P[1] * P[2] * P[3] * P[4]) < 1e-35) {
    y = eos.c0;
    return ModellStatus::Gut;
  }
  Rechnung R;
  const double t1 = R(P[2] / T), t2 = R(P[4] / T);
  const double q1 = R(t1 / SinusH(R, t1));
  const double q2 = R(t2 / KosinusH(R, t2));
  return Ergebnis(R, eos.c0 + P[1] * q1 * q1 + P[3] * q2 * q2, y);
}

// --- the linear forms -------------------------------------------------------------------------

ModellStatus Polynom(const FitParameter& P, double x, double& y) {
  double summe = 0, potenz = 1;
  for (int i = 0; i < 6; ++i, potenz *= x)
    summe += P[i] * potenz;
  return Ergebnis(Rechnung{}, summe, y);
}

// A term switched off by the regression has the coefficient 0 and is left out, so that without
// the terms in 1/x, 1/x^2 and ln x the expression is defined for x <= 0 too.
ModellStatus Kombi(const FitParameter& P, double x, double& y) {
  Rechnung R;
  double summe = P[0] + P[1] * x + P[2] * x * x + P[3] * x * x * x;
  if (P[4] != 0) summe += R(P[4] / x);
  if (P[5] != 0) summe += R(P[5] / (x * x));
  if (P[6] != 0) summe += P[6] * R(std::log(x));
  return Ergebnis(R, summe, y);
}

} // namespace

ModellStatus FrostKalkwarfDruck(double A, double B, double C, double D, double E, double c, double T,
                                double& p) {
  Rechnung R;
  const double lnT = R(std::log(T));
  const double BT = R(B / (T + C - 273.15));
  const double T2 = T * T;
  double q = R(std::exp(c * A + c * BT + D * lnT));
  for (int runde = 0; runde < 900 && R.ok; ++runde) {
    if (std::fabs(q) < 1e-120) return Fehlschlag(p);
    const double F = A + BT + D * lnT / c + E * q / T2 - R(std::log(q)) / c;
    const double F1 = E / T2 - 1 / (q * c);
    if (!R.ok) break;
    if (std::fabs(F1) < 1e-50) return Fehlschlag(p);
    const double dp = -F / F1;
    q = R(q + dp);
    if (std::fabs(R(dp / q)) < 1e-7) break;
  }
  if (!R.ok) return Ergebnis(R, q, p);
  if (q < 1e-120) return Fehlschlag(p);
  p = q;
  return ModellStatus::Gut;
}

double FrostKalkwarfThodosD(double B, double Tcr, bool lg) {
  return lg ? 1.8 * B / Tcr + 2.67 : 1.8 * B / (LnTen * Tcr) + 2.67;
}

double LogFaktor(int16_t modell, bool lg) {
  return (modell >= fitmodell::August && modell <= fitmodell::DipprDampfdruck && lg) ? LnTen : 1.0;
}

ModellStatus ModellWert(EOSGruppe& eos, const ModellKonstanten& k, const FitParameter& P, double x,
                        double& y) {
  namespace fm = fitmodell;
  y = 0;
  switch (k.Modell) {
  case fm::Polynom:
    return Polynom(P, x, y);
  case fm::Kombi:
    return Kombi(P, x, y);
  case fm::August:
    return August(P, k.c, x, y);
  case fm::Antoine:
    return Antoine(P, k.c, x, y);
  case fm::FrostKalkwarf:
    return FrostKalkwarfDruck(P[0], P[1], P[2], P[3], P[4], k.c, x, y);
  case fm::FrostKalkwarfThodos: {
    const double D = FrostKalkwarfThodosD(P[1], k.Tcr, k.c == LnTen);
    return FrostKalkwarfDruck(P[0], P[1], P[2], D, P[3], k.c, x, y);
  }
  case fm::DipprDampfdruck:
    return DipprDampfdruck(P, k.c, x, y);
  case fm::Wagner:
    return Wagner(P, k.Tcr, k.pcr, x, y);
  case fm::Rackett:
    return Rackett(P, k.Tcr, x, y);
  case fm::Leuna:
    return Leuna(P, k.Tcr, x, y);
  case fm::PolynomDichte:
  case fm::PolynomCp: // its fifth parameter takes no part
    return Ergebnis(Rechnung{}, Kubik(P, x), y);
  case fm::Majer:
    return Majer(P, k.Tcr, x, y);
  case fm::DipprHLV:
    return DipprHLV(P, k.Tcr, x, y);
  case fm::Shomate:
    return Shomate(P, x, y);
  case fm::DipprCp:
    return DipprCp(eos, P, x, y);
  default: // the reserved codes and the spline have no formula here
    return Fehlschlag(y);
  }
}

} // namespace quor
