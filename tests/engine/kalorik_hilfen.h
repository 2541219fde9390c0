// Shared by the caloric tests: a cp function, p(T, v), polished roots, quadrature, short calls.
#pragma once

#include "engine/kalorik.h"
#include "stoffe.h"

#include <array>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>

namespace quor::test {

// Ideal-gas cp of methane, cp/R = 4.568 - 8.975e-3 T + 3.631e-5 T^2 - 3.407e-8 T^3 + 1.091e-11 T^4
// (Poling/Prausnitz/O'Connell, appendix A), here in kJ/(kmol K).
inline const std::array<float, 5> CpMethan{37.980f, -0.074622f, 3.0190e-4f, -2.8327e-7f, 9.0711e-11f};

inline ProjectState MitCp(const StoffDaten& d, int16_t index) {
  ProjectState s = ZustandMit(d, index);
  s.Stoff.CpPoly = CpMethan;
  s.Modell.CpIndex = 1;
  return s;
}

inline double Druck(ProjectState& s, double T, double v) {
  int16_t err = 0;
  EOSbeiT(s, T); // PzuTV tests v against the b of the last evaluation
  const double p = PzuTV(s, T, v, err);
  EXPECT_EQ(err, 0);
  return p;
}

// The root of the phase asked for at (T, p), polished by Newton on p(T, v).
inline double Volumen(ProjectState& s, double T, double p, bool dampf) {
  const Loesung l = Loese(s, T, p);
  EXPECT_EQ(l.err, 0);
  double v = dampf ? l.vV : l.vL;
  for (int i = 0; i < 4; ++i) {
    const double h = 1e-7 * v;
    v -= (Druck(s, T, v) - p) / ((Druck(s, T, v + h) - Druck(s, T, v - h)) / (2 * h));
  }
  return v;
}

// Composite five-point Gauss-Legendre rule on [a, b]; the end points are never evaluated.
inline double Integral(const std::function<double(double)>& f, double a, double b, int felder = 200) {
  static const double x[] = {0.0, 0.5384693101056831, -0.5384693101056831, 0.9061798459386640,
                             -0.9061798459386640};
  static const double w[] = {0.5688888888888889, 0.4786286704993665, 0.4786286704993665, 0.2369268850561891,
                             0.2369268850561891};
  const double breite = (b - a) / felder;
  double summe = 0;
  for (int k = 0; k < felder; ++k)
    for (int i = 0; i < 5; ++i)
      summe += w[i] * f(a + (k + 0.5 + x[i] / 2) * breite);
  return summe * breite / 2;
}

// |ist - soll| within tol of the larger of |soll| and a scale (for derivatives passing close to 0).
inline ::testing::AssertionResult Nahe(double ist, double soll, double tol, double skala) {
  if (std::fabs(ist - soll) <= tol * std::max(std::fabs(soll), skala)) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << ist << " vs " << soll << " (scale " << skala << ")";
}

// PhiFunktionen into fresh tables; the row of the phase is `row`.
struct PhiErgebnis {
  KalorikTabellen tab;
  int16_t err = -1;
  const std::array<double, 11>& r(int row = PhaseV) const { return tab.ResFunk[row]; }
};
inline PhiErgebnis Phi(ProjectState& s, double T, double p, double v, int row = PhaseV) {
  PhiErgebnis e;
  PhiFunktionen(s, row, T, p, v, e.tab.Abl1, e.tab.Abl2, e.tab.ResFunk, e.err);
  return e;
}

inline KalorischeWerte Thermo(ProjectState& s, double T, double p, double v, int row = PhaseV) {
  KalorischeWerte w;
  int16_t err = -1;
  ThermoFunktionen(s, T, p, v, row, w, err);
  EXPECT_EQ(err, 0);
  return w;
}

} // namespace quor::test
