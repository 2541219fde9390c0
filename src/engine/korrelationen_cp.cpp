// Heat capacities of the ideal gas, the liquid and the solid: polynomial and sinh/cosh forms.
#include "engine/korrelationen.h"

#include <cmath>
#include <string_view>

namespace quor {

namespace {

// The value, or 0 when it isn't finite.
double Endlich(double x) {
  return std::isfinite(x) ? x : 0;
}

// C0 + C1 T + C2 T^2 + C3 T^3 with C4 T^4 or, for |C4| at the switch or above, C4/T^2; without C0
// the form C1 + C2 T + C3 T^2 + C4/T^2.
double Polynom(const std::array<float, 5>& c, double T, double c4Schalter) {
  const double C0 = c[0], C1 = c[1], C2 = c[2], C3 = c[3], C4 = c[4];
  if (std::fabs(C0) >= 1e-8) {
    const double r = C0 + T * (C1 + T * (C2 + T * C3));
    return std::fabs(C4) < c4Schalter ? r + C4 * T * T * T * T : r + C4 / (T * T);
  }
  return C1 + C2 * T + C3 * T * T + C4 / (T * T);
}

double SinhAusExp(double x) {
  return (std::exp(x) - std::exp(-x)) / 2;
}
double CoshAusExp(double x) {
  return (std::exp(x) + std::exp(-x)) / 2;
}

// C0 + C1 ((C2/T)/sinh(C2/T))^2 + C3 ((C4/T)/cosh(C4/T))^2.
double SinhCosh(const std::array<float, 5>& c, double T) {
  const double x = c[2] / T, y = c[4] / T;
  const double a = x / SinhAusExp(x), b = y / CoshAusExp(y);
  return c[0] + c[1] * a * a + c[3] * b * b;
}

// Liquid and solid: the polynomial up to a limit on C2, the sinh/cosh form above it. Helium-4
// has a larger limit for its polynomial.
double CpKondensiert(const StoffGruppe& st, const std::array<float, 5>& c, double T) {
  const double grenze = std::string_view(st.CASRN) == "7440-59-7" ? 500 : 100;
  if (std::fabs(c[2]) < grenze) return Endlich(Polynom(c, T, 10));
  return Endlich(SinhCosh(c, T));
}

} // namespace

double CpIdG(ProjectState& s, double T, int kind) {
  if (kind == CpPolynom) return Endlich(Polynom(s.Stoff.CpPoly, T, 1));
  if (kind == CpSinhCosh) return Endlich(SinhCosh(s.Stoff.CpSinh, T));
  return 0;
}

double CpL(ProjectState& s, double T) {
  return CpKondensiert(s.Stoff, s.Stoff.CpL, T);
}

double CpS(ProjectState& s, double T) {
  return CpKondensiert(s.Stoff, s.Stoff.CpS, T);
}

} // namespace quor
