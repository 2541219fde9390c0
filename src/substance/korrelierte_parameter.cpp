#include "substance/korrelierte_parameter.h"

#include "engine/korrelationen.h"

#include <cmath>
#include <limits>

namespace quor {

namespace {

// Single precision of x; NaN when x doesn't fit, so that the set is refused as a whole.
float F(double x) {
  if (!(std::fabs(x) <= 3.4028234663852886e38)) return std::numeric_limits<float>::quiet_NaN();
  return static_cast<float>(x);
}

// Thompson: C from the boiling point (in kelvins, with the 273.15 that the equation takes away),
// then A and B through the critical point and the normal boiling point.
void Thompson(std::array<float, 3>& k, double Tc, double pc, double Tb) {
  const double C = 18 - 0.19 * Tb + 273.15;
  const double a = 1 / (C + Tc - 273.15);
  const double b = 1 / (C + Tb - 273.15);
  const double B = -(std::log(pc / pNormal) / LnTen) / (a - b);
  const double A = std::log(pc) / LnTen + B * a;
  k = {F(A), F(B), F(C)};
}

// Frost/Kalkwarf with the term E p/T^n, E = kE Tc^n/pc, through both fixed points.
void FrostKalkwarf(std::array<float, 9>& k, double Tc, double pc, double Tb, double kE, double n) {
  const double E = kE * std::pow(Tc, n) / pc;
  const double lnr = std::log(Tb / Tc);
  const double t = (pNormal / pc) / std::pow(Tb / Tc, n) - 1;
  const double d = (Tc / Tb - 1) + 1.8 * lnr / LnTen;
  const double B = Tc * (std::log(pNormal / pc) / LnTen - 2.67 * lnr / LnTen - kE * t) / d;
  const double D = 1.8 * B / Tc + 2.67;
  const double A = std::log(pc) / LnTen - B / Tc - D * std::log(Tc) / LnTen - E * pc / std::pow(Tc, n);
  k = {F(A), F(B), 0.0f, F(D), F(E), F(n), 0.0f, 0.0f, 0.0f};
}

// Leaves the set as it was when a value is not finite in single precision.
template <std::size_t N> void Uebernehmen(std::array<float, N>& ziel, const std::array<float, N>& neu) {
  for (float x : neu) {
    if (!std::isfinite(x)) return;
  }
  ziel = neu;
}

} // namespace

void KorrelierteParameter(ProjectState& s, int index, double Tc, double pc, double Tb) {
  if (!(Tc > 1e-6 && Tb > 1e-6) || index < AugustKorreliert) return;
  StoffGruppe& st = s.Stoff;
  switch (index) {
  case AugustKorreliert: {
    double A = 0, B = 0;
    if (!AugustParameter(Tc, pc, Tb, A, B)) return;
    const float Bf = F(B);
    const float Af = F(std::log(pc) - Bf / Tc);
    if (std::isfinite(Af) && std::isfinite(Bf)) {
      st.AugustA = Af;
      st.AugustB = Bf;
    }
    break;
  }
  case FrostKalkwarfVdW: {
    std::array<float, 9> k{};
    FrostKalkwarf(k, Tc, pc, Tb, 0.183218, 2);
    Uebernehmen(st.KFW, k);
    break;
  }
  case FrostKalkwarfRK: {
    std::array<float, 9> k{};
    FrostKalkwarf(k, Tc, pc, Tb, 0.185652, 2.5);
    Uebernehmen(st.KFR, k);
    break;
  }
  case AntoineThompson: {
    std::array<float, 3> k{};
    Thompson(k, Tc, pc, Tb);
    Uebernehmen(st.THO, k);
    break;
  }
  default:
    break;
  }
}

} // namespace quor
