// Second virial coefficients: the low-pressure limit of the cubic models and the temperature laws.
// (dB/dT and d2B/dT2 are checked through cp and the derivatives of p(T, v).)
#include "engine/virial.h"
#include "stoffe.h"
#include "support/relativ.h"

#include <cmath>
#include <gtest/gtest.h>

namespace quor {
namespace {

using namespace quor::test;

// B of a cubic model is the limit of v - R*T/p as p -> 0 of the full cubic EOS; at 0.01 kPa the
// next term (of order p*B^2/(R*T)) is far below the tolerance.
TEST(BvonT, IsTheLowPressureLimitOfTheCubic) {
  const std::pair<int16_t, int16_t> paare[] = {{2, 11}, {3, 12}, {4, 13}, {5, 14}, {6, 15}, {7, 7}, {8, 8}};
  for (const auto& [kubisch, virial] : paare) {
    ProjectState s = ZustandMit(Wasser, kubisch);
    for (double T : {400.0, 900.0}) {
      const Loesung l = Loese(s, T, 0.01);
      ASSERT_EQ(l.err, 0);
      EXPECT_REL(BvonT(s, virial, T), l.vV - RGas * T / 0.01, 1e-5) << kubisch << " " << T;
    }
  }
}

TEST(BvonT, TemperatureLawsAndRowsWithoutAVirialForm) {
  // Hand input: B = b0 - b1/T^b2.
  ProjectState s = ZustandMit(Methan, 10);
  s.EOS.b0 = 0.05;
  s.EOS.bExp = 300;
  s.EOS.BExpHand = 1.5;
  EXPECT_REL(BvonT(s, 10, 400), 0.05 - 300 / std::pow(400.0, 1.5), 1e-14);
  // Its derivatives come from b(T) = b0*T^bExp like the cubic quantities, not from the form above;
  // the caloric results of such models rest on that.
  s.EOS.bExp = 2;
  double dB = 0, d2B = 0;
  int16_t err = 0;
  VirialAbleitungenT(s, 10, 400, dB, d2B, err);
  EXPECT_REL(dB, 2 * 0.05 * 400, 1e-14);
  EXPECT_REL(d2B, 2 * 0.05, 1e-14);
  // The ideal gas, the cubic rows and T = 0 give 0.
  for (int16_t index : {0, 2, 3, 4, 5, 6})
    EXPECT_EQ(BvonT(s, index, 300), 0.0);
  EXPECT_EQ(BvonT(s, 10, 0), 0.0);
  // Pitzer/Curl at Tr = 1 with omega = 0: B*pc/(R*Tc) = 0.1445 - 0.33 - 0.1385 - 0.0121.
  s = ZustandMit(OhneOmega, 16);
  EXPECT_REL(BvonT(s, 16, OhneOmega.TKrit) * OhneOmega.pKrit / (RGas * OhneOmega.TKrit), -0.3361, 1e-12);
}

} // namespace
} // namespace quor
