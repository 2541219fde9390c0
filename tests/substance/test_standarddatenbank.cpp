// The default database as the build puts it into the program directory: it opens, and its
// vapour-pressure equations pass the normal boiling point.
#include "engine/korrelationen.h"
#include "substance/datenbank.h"
#include "substance/stoff_laden.h"
#include "support/stoff_fixture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace quor {
namespace {

using namespace quor::test;

// Relative deviation of equation `index` from p at T; infinite on failure.
double Abweichung(ProjectState& s, int index, double T, double p) {
  int16_t failed = 0;
  const double ist = pLV(s, T, index, false, failed);
  return failed != 0 ? INFINITY : std::fabs(ist / p - 1);
}

// Every record loads with a unique system number. Some stored curves miss 1 atm at the stored
// boiling point by more than 3 %: the source's curve and boiling point disagree (long alkanes, acids
// and nitro compounds that decompose, substances that sublime, curves cut where they drift). The data
// are kept as they are; their number stays bounded.
TEST(Standarddatenbank, OpensAndTheDefaultEquationsPassTheNormalBoilingPoint) {
  ProjectState s = MitStandardDatenbank();
  ASSERT_EQ(s.Datenbank.StoffAnzahl, 430);
  std::set<int> nummern;
  int mitSiedepunkt = 0, daneben = 0;
  for (int k = 1; k <= s.Datenbank.StoffAnzahl; ++k) {
    int16_t failed = 0;
    LadeStoff(s, k, failed);
    EXPECT_EQ(failed, 0) << s.Stoff.StoffName;
    nummern.insert(s.Stoff.MDBNr);
    if (s.Stoff.TSiede <= 1e-6f) continue;
    ++mitSiedepunkt;
    if (!(Abweichung(s, DampfdruckIndexVon(s.Modell.DampfdruckTag), s.Stoff.TSiede, pNormal) <= 0.03))
      ++daneben;
  }
  EXPECT_EQ(nummern.size(), 430u);
  EXPECT_EQ(mitSiedepunkt, 429);
  EXPECT_LE(daneben, 47);
}

// The stored equations; August and the correlated ones pass the normal boiling point by
// construction (see their own tests).
TEST(Standarddatenbank, WaterBoilsAt373KelvinWithEveryEquationItHas) {
  ProjectState s = StoffAusStandardDatenbank(CasWasser);
  for (int index : {AntoineNiederdruck, AntoineHochdruck, FrostKalkwarfDB, WagnerDB}) {
    // The high-pressure Antoine set is fitted from 374 K upwards and misses 1 atm by 0.69 %.
    const double toleranz = index == AntoineHochdruck ? 7e-3 : 5e-3;
    EXPECT_LT(Abweichung(s, index, 373.15, pNormal), toleranz) << "equation " << index;
  }
}

} // namespace
} // namespace quor
