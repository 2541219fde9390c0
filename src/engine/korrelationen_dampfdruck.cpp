// Vapour pressure, its inverse and the slope of the vapour-pressure curve for the Antoine,
// Frost/Kalkwarf, Wagner and August equations.
#include "engine/korrelationen.h"
#include "engine/korrelationen_intern.h"

#include <cmath>

namespace quor {

using namespace korrelation;

namespace {

const char* const DampfdruckTitel = "Warnung zur Dampfdruckgleichung";
const char* const DampfdruckHinweis = "(vgl. unter Daten/Parameter Dampfdruckgleichung)";

// Antoine: log10 p = A - B/(C + T - 273.15).
double AntoineP(const std::array<float, 3>& k, double T) {
  const double log10p = k[0] - k[1] / (k[2] + T - 273.15);
  return std::exp(LnTen * log10p);
}

double AntoineT(const std::array<float, 3>& k, double p) {
  return 273.15 - k[2] + k[1] / (k[0] - std::log(p) / LnTen);
}

// Frost/Kalkwarf coefficients as used: the database set stores C with 273.15 and F less 2, the
// correlated sets are used as they stand.
struct FKSatz {
  double A, B, C, D, E, F, G, H, I;
};

FKSatz FKVon(const std::array<float, 9>& k, bool datenbank) {
  FKSatz f{k[0], k[1], k[2], k[3], k[4], k[5], k[6], k[7], k[8]};
  if (datenbank) {
    f.C = f.C - 273.15;
    f.F = f.F + 2.0;
  }
  return f;
}

// log10 p of the equation at T and p, the E term included when `mitE`.
double FKLog10p(const FKSatz& k, double T, double p, bool mitE) {
  double L = k.A + k.B / (k.C + T) + k.D * std::log(T) / LnTen + k.G * T + k.H * std::pow(T, k.I);
  if (mitE) L += k.E * p / std::pow(T, k.F);
  return L;
}

// Explicit when E vanishes, else Newton in p from the explicit start.
bool FKDruck(const FKSatz& k, double T, double& p) {
  p = std::exp(LnTen * FKLog10p(k, T, 0, false));
  if (std::fabs(k.E) < 1e-35) return std::isfinite(p);
  const double ETf = k.E / std::pow(T, k.F);
  for (int n = 0; n < MaxSchritte; ++n) {
    if (!(p >= 1e-120)) return false;
    const double f = FKLog10p(k, T, p, true) - std::log(p) / LnTen;
    const double df = ETf - 1.0 / (p * LnTen);
    if (!(std::fabs(df) >= 1e-50)) return false;
    const double dp = -f / df;
    p += dp;
    if (!(std::fabs(dp / p) >= 1e-4)) return std::isfinite(p);
  }
  return false;
}

// Newton in T on log10 p(T) - log10 p, started from the Antoine-like form of the equation.
bool FKTemperatur(const FKSatz& k, double p, double& T) {
  const double log10p = std::log(p) / LnTen;
  T = k.B / (log10p - k.A) - k.C;
  for (int n = 0; n < MaxSchritte; ++n) {
    if (!(T > 0) || !std::isfinite(T)) return false;
    const double g = FKLog10p(k, T, p, true) - log10p;
    const double dg = -k.B / ((k.C + T) * (k.C + T)) + k.D / (T * LnTen) -
                      k.F * k.E * p / std::pow(T, k.F + 1) + k.G + k.H * k.I * std::pow(T, k.I - 1);
    if (!(std::fabs(dg) >= 1e-35)) return false;
    const double dT = -g / dg;
    T += dT;
    if (std::fabs(dT / T) < 1e-4) return std::isfinite(T);
  }
  return false;
}

// Wagner sum S(X) and its derivative dS/dX.
struct WagnerSumme {
  double S, dS;
};

WagnerSumme Wagner(const std::array<float, 10>& w, double X) {
  const double A1 = w[0], A2 = w[1], A3 = w[2], n3 = w[3], A4 = w[4], n4 = w[5], A5 = w[6], n5 = w[7];
  WagnerSumme r;
  r.S = A1 * X + A2 * std::pow(X, 1.5) + A3 * std::pow(X, n3) + A4 * std::pow(X, n4) + A5 * std::pow(X, n5);
  r.dS = A1 + 1.5 * A2 * std::sqrt(X) + n3 * A3 * std::pow(X, n3 - 1) + n4 * A4 * std::pow(X, n4 - 1) +
         n5 * A5 * std::pow(X, n5 - 1);
  return r;
}

bool WagnerDruck(const std::array<float, 10>& w, double T, double& p) {
  const double Tc = w[8], pc = w[9];
  const double X = 1 - T / Tc;
  if (!(X >= 1e-6)) return false;
  const double S = Wagner(w, X).S;
  if (!(std::fabs(S) <= 50)) return false;
  p = pc * std::exp(S * Tc / T);
  return true;
}

// Newton in T on ln(p/pcrit) - (Tcrit/T) S(X), from the August temperature or 0.8 Tcrit.
bool WagnerTemperatur(const ProjectState& s, double p, double& T) {
  const std::array<float, 10>& w = s.Stoff.Wagner;
  const double Tc = w[8], pc = w[9];
  T = 0;
  if (s.Stoff.TSiede > 0.0001) {
    double A = 0, B = 0;
    AugustParameter(s.Stoff.TKrit, s.Stoff.pKrit, s.Stoff.TSiede, A, B);
    T = B / (std::log(p) - A);
  }
  if (!(T > 0 && T < Tc)) T = 0.8 * Tc;
  const double lnpr = std::log(p / pc);
  for (int n = 0; n < MaxSchritte; ++n) {
    const double X = 1 - T / Tc;
    if (!(X >= 1e-6)) return false;
    const WagnerSumme W = Wagner(w, X);
    const double f = lnpr - Tc / T * W.S;
    const double df = Tc / (T * T) * W.S + W.dS / T;
    if (!(std::fabs(df) >= 1e-35)) return false;
    const double dT = -f / df;
    T += dT;
    if (std::fabs(dT / T) < 1e-4) return std::isfinite(T);
  }
  return false;
}

} // namespace

bool AugustParameter(double Tc, double pc, double Tb, double& A, double& B) {
  B = Tb * Tc * std::log(pc / pNormal) / (Tb - Tc);
  A = std::log(pc) - B / Tc;
  if (std::isfinite(A) && std::isfinite(B)) return true;
  A = B = 0;
  return false;
}

double pLV(ProjectState& s, double T, int index, bool warn, int16_t& failed, ui::Oberflaeche* ui) {
  failed = 0;
  if (!(T >= 1e-6)) return Fehlschlag(failed);
  const StoffGruppe& st = s.Stoff;
  int dev = 0;
  double p = 0;
  bool ok = true;
  switch (index) {
  case AntoineNiederdruck:
    p = AntoineP(st.AntoineNd, T);
    dev = Abweichung(T, st.AntoineNdGrenzen.TLo, st.AntoineNdGrenzen.THi);
    break;
  case AntoineHochdruck:
    p = AntoineP(st.AntoineHd, T);
    dev = Abweichung(T, st.AntoineHdGrenzen.TLo, st.AntoineHdGrenzen.THi);
    break;
  case AntoineThompson:
    p = AntoineP(st.THO, T);
    break;
  case FrostKalkwarfDB:
    ok = FKDruck(FKVon(st.FrostKalkwarf, true), T, p);
    dev = AbweichungWennBegrenzt(T, st.FrostKalkwarfGrenzen);
    break;
  case FrostKalkwarfVdW:
    ok = FKDruck(FKVon(st.KFW, false), T, p);
    break;
  case FrostKalkwarfRK:
    ok = FKDruck(FKVon(st.KFR, false), T, p);
    break;
  case WagnerDB:
    ok = WagnerDruck(st.Wagner, T, p);
    dev = AbweichungWennBegrenzt(T, st.WagnerGrenzen);
    break;
  case AugustKorreliert:
    if (T < st.TSiede) dev = GanzeKelvin(T - st.TSiede);
    p = std::exp(static_cast<double>(st.AugustA) + st.AugustB / T);
    break;
  default:
    ok = false;
  }
  if (!ok) return Fehlschlag(failed);
  if (Warnen(warn, ui, dev, 10)) Warne(ui, AusserhalbText(" ", dev, DampfdruckHinweis), DampfdruckTitel);
  if (!(p >= 1e-35)) return Fehlschlag(failed);
  return Endwert(p, failed);
}

double TLV(ProjectState& s, double p, int index, bool warn, int16_t& failed, ui::Oberflaeche* ui) {
  failed = 0;
  if (!(p >= 1e-6)) return Fehlschlag(failed);
  const StoffGruppe& st = s.Stoff;
  int dev = 0;
  double T = 0;
  bool ok = true;
  switch (index) {
  case AntoineNiederdruck:
    T = AntoineT(st.AntoineNd, p);
    dev = Abweichung(T, st.AntoineNdGrenzen.TLo, st.AntoineNdGrenzen.THi);
    break;
  case AntoineHochdruck:
    T = AntoineT(st.AntoineHd, p);
    dev = Abweichung(T, st.AntoineHdGrenzen.TLo, st.AntoineHdGrenzen.THi);
    break;
  case AntoineThompson:
    T = AntoineT(st.THO, p);
    break;
  case AugustKorreliert: {
    double A = 0, B = 0;
    ok = AugustParameter(st.TKrit, st.pKrit, st.TSiede, A, B);
    T = B / (std::log(p) - A);
    if (T < st.TSiede) dev = GanzeKelvin(T - st.TSiede);
    break;
  }
  case WagnerDB:
    ok = WagnerTemperatur(s, p, T);
    dev = AbweichungWennBegrenzt(T, st.WagnerGrenzen);
    break;
  case FrostKalkwarfDB:
    ok = FKTemperatur(FKVon(st.FrostKalkwarf, true), p, T);
    dev = AbweichungWennBegrenzt(T, st.FrostKalkwarfGrenzen);
    break;
  case FrostKalkwarfVdW:
    ok = FKTemperatur(FKVon(st.KFW, false), p, T);
    break;
  case FrostKalkwarfRK:
    ok = FKTemperatur(FKVon(st.KFR, false), p, T);
    break;
  default:
    ok = false;
  }
  if (!ok || !std::isfinite(T)) return Fehlschlag(failed);
  if (Warnen(warn, ui, dev, 5)) Warne(ui, AusserhalbText("", dev, DampfdruckHinweis), DampfdruckTitel);
  if (!(T >= 1e-6)) return Fehlschlag(failed);
  return T;
}

float DLnpDInvT(ProjectState& s, double T, int index, int16_t& failed) {
  failed = 0;
  const StoffGruppe& st = s.Stoff;
  double r = 0;
  switch (index) {
  case AntoineNiederdruck:
  case AntoineHochdruck:
  case AntoineThompson: {
    const std::array<float, 3>& k = index == AntoineNiederdruck ? st.AntoineNd
                                    : index == AntoineHochdruck ? st.AntoineHd
                                                                : st.THO;
    const double n = k[2] - 273.15 + T;
    r = -T * T * LnTen * k[1] / (n * n);
    break;
  }
  case FrostKalkwarfDB:
  case FrostKalkwarfVdW:
  case FrostKalkwarfRK: {
    const FKSatz k = FKVon(index == FrostKalkwarfDB    ? st.FrostKalkwarf
                           : index == FrostKalkwarfVdW ? st.KFW
                                                       : st.KFR,
                           index == FrostKalkwarfDB);
    int16_t pFehler = 0;
    const double p = pLV(s, T, index, false, pFehler);
    if (pFehler != 0) return static_cast<float>(Fehlschlag(failed));
    // (C' - T) here, where the equation itself has (C' + T).
    const double Q =
        -LnTen * k.B / ((k.C - T) * (k.C - T)) + LnTen * k.G + LnTen * k.H * k.I * std::pow(T, k.I - 1);
    const double TF = std::pow(T, k.F);
    const double Y = (Q * T + k.D) * TF - k.F * k.E * LnTen * p;
    const double W = TF - k.E * LnTen * p;
    r = -T * Y / W;
    break;
  }
  case WagnerDB: {
    const double Tc = st.Wagner[8];
    const double X = 1 - T / Tc;
    if (!(X >= 1e-6)) return static_cast<float>(Fehlschlag(failed));
    const WagnerSumme W = Wagner(st.Wagner, X);
    r = -T * T * ((Tc / T) * (-1 / Tc) * W.dS + W.S * (-Tc / (T * T)));
    break;
  }
  case AugustKorreliert:
    r = st.TKrit * st.TSiede * std::log(st.pKrit / pNormal) / (st.TSiede - st.TKrit);
    break;
  default:
    return 0;
  }
  return EndwertFloat(r, failed);
}

} // namespace quor
