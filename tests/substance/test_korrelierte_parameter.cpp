// The correlated vapour-pressure sets: through the critical point and the normal boiling point,
// and nothing without the data.
#include "engine/korrelationen.h"
#include "substance/korrelierte_parameter.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

// Nitrogen: Tc 126.2 K, pc 3390 kPa, Tb 77.35 K.
constexpr double Tc = 126.2, pc = 3390, Tb = 77.35;

TEST(KorrelierteParameter, EachSetReproducesBothFixedPointsWithItsFixedParts) {
  ProjectState s;
  s.Stoff.TKrit = Tc;
  s.Stoff.pKrit = pc;
  s.Stoff.TSiede = static_cast<float>(Tb);
  for (int index : {5, 6, 7, 8}) {
    SCOPED_TRACE(index);
    KorrelierteParameter(s, index, Tc, pc, Tb);
    int16_t failed = -1;
    // Up to the single precision of the stored coefficients.
    EXPECT_REL(pLV(s, Tc, index, false, failed), pc, 2e-5);
    EXPECT_REL(pLV(s, Tb, index, false, failed), pNormal, 2e-5);
    EXPECT_REL(TLV(s, pNormal, index, false, failed), Tb, 1e-5);
    EXPECT_EQ(failed, 0);
  }

  // E = k Tc^n / pc: 0.183218*126.2^2/3390 = 0.860770, 0.185652*126.2^2.5/3390 = 9.798246.
  EXPECT_REL(s.Stoff.KFW[4], 0.860770, 1e-6);
  EXPECT_REL(s.Stoff.KFR[4], 9.798246, 1e-6);
  EXPECT_EQ(s.Stoff.KFR[5], 2.5f);
  // D = 1.8 B/Tc + 2.67.
  EXPECT_REL(s.Stoff.KFW[3], 1.8 * s.Stoff.KFW[1] / Tc + 2.67, 1e-6);
  // Thompson's C in kelvins: 18 - 0.19*77.35 + 273.15 = 276.4535.
  EXPECT_REL(s.Stoff.THO[2], 276.4535, 1e-7);
}

TEST(KorrelierteParameter, NothingWithoutBoilingPointOrBelowIndexFive) {
  ProjectState s;
  for (int index : {5, 6, 7, 8})
    KorrelierteParameter(s, index, Tc, pc, 0);
  KorrelierteParameter(s, 8, 0, pc, Tb);
  KorrelierteParameter(s, 4, Tc, pc, Tb);
  // With the boiling point equal to the critical temperature there is no finite set to store.
  KorrelierteParameter(s, 6, Tc, pc, Tc);
  const StoffGruppe leer;
  EXPECT_EQ(std::tie(s.Stoff.KFW, s.Stoff.KFR, s.Stoff.THO, s.Stoff.AugustA),
            std::tie(leer.KFW, leer.KFR, leer.THO, leer.AugustA));
}

} // namespace
} // namespace quor
