// Temperature derivatives of a, b, c, d and of a/(R*T) against central differences of EOSbeiT.
#include "engine/eos_auswertung.h"
#include "stoffe.h"

#include <cmath>
#include <gtest/gtest.h>

namespace quor {
namespace {

using namespace quor::test;

// Central differences with h = 1e-4*T: truncation about 1e-8 relative, rounding far below. A
// derivative is compared within 1e-6 of the larger of its value and the scale of the quantity
// over T (or T^2): the derivatives of a constant are 0, where a pure relative test means nothing.
void PruefeAbleitungen(ProjectState& s, double T) {
  const double h = 1e-4 * T;
  std::array<std::array<double, 5>, 3> w{}; // a, b, c, d, a/(R*T) at T - h, T, T + h
  for (int i = 0; i < 3; ++i) {
    const double t = T + (i - 1) * h;
    EOSbeiT(s, t);
    w[i] = {s.EOS.aT, s.EOS.bT, s.EOS.cT, s.EOS.dT, s.EOS.aT / (RGas * t)};
  }
  EOSbeiT(s, T); // the derivatives read aT..dT of the same T
  EOSAbleitungen abl;
  int16_t err = 0;
  EOSAbleitungenT(s, T, abl, err);
  ASSERT_EQ(err, 0);
  const double erste[] = {abl.da, abl.db, abl.dc, abl.dd, abl.A1};
  const double zweite[] = {abl.d2a, abl.d2b, abl.d2c, abl.d2d, abl.A2};
  for (int k = 0; k < 5; ++k) {
    const double d1 = (w[2][k] - w[0][k]) / (2 * h), d2 = (w[2][k] - 2 * w[1][k] + w[0][k]) / (h * h);
    EXPECT_NEAR(erste[k], d1, 1e-6 * std::max(std::fabs(d1), std::fabs(w[1][k]) / T)) << "first " << k;
    EXPECT_NEAR(zweite[k], d2, 1e-6 * std::max(std::fabs(d2), std::fabs(w[1][k]) / (T * T)))
        << "second " << k;
  }
}

TEST(EOSAbleitungenT, MatchCentralDifferencesForEveryCubicRow) {
  for (const StoffDaten& stoff : {Methan, Wasser}) {
    for (int16_t index : KubischeZeilen) {
      ProjectState s = ZustandMit(stoff, index);
      // Below and above Tc: the Varnik/Ji alpha changes its form there.
      for (double Tr : {0.45, 0.8, 1.3, 2.5}) {
        SCOPED_TRACE(std::string(stoff.name) + " " + std::to_string(index) + " " + std::to_string(Tr));
        PruefeAbleitungen(s, Tr * stoff.TKrit);
      }
    }
  }
}

// The general power law of b, c, d (used by no predefined row, but kept for other constants).
TEST(EOSAbleitungenT, PowerLawsOfTheCoVolumeTerms) {
  ProjectState s = ZustandMit(Methan, 4);
  s.EOS.bExp = 0.3;
  s.EOS.cExp = -1.2;
  s.EOS.c0 = 0.01;
  s.EOS.dExp = 2;
  PruefeAbleitungen(s, 150);
}

} // namespace
} // namespace quor
