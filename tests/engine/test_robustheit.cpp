// Every solver over a wide grid of states, models and substances returns finite numbers or fails.
#include "stoffe.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <iterator>
#include <vector>

namespace quor {
namespace {

using namespace quor::test;

std::vector<double> LogGitter(double von, double bis, int punkte) {
  std::vector<double> gitter;
  for (int i = 0; i < punkte; ++i)
    gitter.push_back(von * std::pow(bis / von, i / (punkte - 1.0)));
  return gitter;
}

bool Endlich(const Loesung& l) {
  const double werte[] = {l.rhoV, l.rhoL, l.vV, l.vL, l.Imbalance, l.A, l.B};
  return std::all_of(std::begin(werte), std::end(werte), [](double x) { return std::isfinite(x); });
}

void PruefeModell(const StoffDaten& stoff, int16_t index) {
  ProjectState s = ZustandMit(stoff, index);
  const auto temperaturen = LogGitter(0.3 * stoff.TKrit, 3 * stoff.TKrit, 13);
  const auto druecke = LogGitter(1e-3, 10 * stoff.pKrit, 13);
  double imb = 0, A = 0, B = 0;
  int16_t err = 0;
  for (double T : temperaturen) {
    const double p = pLVbeiT(s, T, imb, A, B, err);
    EXPECT_TRUE(std::isfinite(p) && std::isfinite(imb) && std::isfinite(A) && std::isfinite(B)) << T;
    for (double pDruck : druecke) {
      const Loesung l = Loese(s, T, pDruck);
      EXPECT_TRUE(Endlich(l)) << T << " " << pDruck;
      if (l.err != 0) continue;
      for (double rho : {l.rhoV, l.rhoL}) {
        if (rho <= 0) continue;
        const double TZurueck = TzuPRho(s, pDruck, rho, false, err);
        EXPECT_TRUE(std::isfinite(TZurueck)) << T << " " << pDruck << " " << rho;
      }
    }
  }
  for (double p : druecke) {
    double ohneStart = 0;
    const double T = TLVbeiP(s, p, imb, A, B, ohneStart, err);
    EXPECT_TRUE(std::isfinite(T) && std::isfinite(imb) && (err != 0 || T >= 0)) << p;
  }
}

TEST(Robustheit, EverySolverStaysFiniteOverTheWholeGrid) {
  for (const StoffDaten& stoff : AlleStoffe) {
    for (int16_t index : AlleZeilen) {
      SCOPED_TRACE(std::string(stoff.name) + ", EOSIndex " + std::to_string(index));
      PruefeModell(stoff, index);
    }
  }
}

} // namespace
} // namespace quor
