// The calculation menu in the registry: the kind behind each entry and back, what the entries need,
// and the caption of the virial entry.
#include "calc/rechen_befehle.h"
#include "core/rechen_art.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

TEST(RechenBefehle, EveryKindHasOneEntryAndSeparatorsStartNothing) {
  for (int16_t a = art::TRhoV; a <= art::DbRhoS; ++a) {
    std::string name;
    int index = -1;
    const bool daHat = MenueVonArt(a, name, index);
    EXPECT_EQ(daHat, a != art::OhneZweig) << a;
    if (daHat) {
      EXPECT_EQ(ArtVonMenue(name, index), a) << name << index;
    }
  }
  // Entries where the index and the kind part ways.
  EXPECT_EQ(ArtVonMenue("mnuCalc", 3), art::pRho);
  EXPECT_EQ(ArtVonMenue("mnuCalc", 13), art::Polytrope);
  EXPECT_EQ(ArtVonMenue("mnuCalc_sub_database", 2), art::DbRhoS);
  EXPECT_EQ(ArtVonMenue("mnuCalc_sub_sub_database", 3), 22);
  for (int leer : {4, 7, 10, 19})
    EXPECT_EQ(ArtVonMenue("mnuCalc", leer), art::Keine) << leer;
  EXPECT_EQ(ArtVonMenue("mnuCalc_sub_sub_database", 4), art::Keine);
}

class RechenZeilen : public ::testing::Test {
protected:
  void SetUp() override {
    RegistriereRechenBefehle(r);
    RechenHandlerSetzen(r,
                        [this](const std::string& name, int index) { start = name + std::to_string(index); });
    s.Datenbank.DatenbankGeladen = true;
    s.Stoff.TKrit = 190.56;
    s.Stoff.pKrit = 4599;
    s.Stoff.HLVGrenzen = {91, 190};
    s.Stoff.FrostKalkwarfGrenzen = {91, 190};
    MenueFreigaben& f = s.Projekt.Freigaben;
    f.Stoff = f.KritischerPunkt = f.Modell = f.Saettigung = true;
    s.Modell.EOSIndex = 6;
  }
  ProjectState s;
  BefehlsRegister r;
  std::string start;
};

TEST_F(RechenZeilen, CriticalPointSaturationAndDatabaseFunctionsGateTheirEntries) {
  EXPECT_TRUE(r.Freigegeben(s, "mnuCalc", 15));
  s.Projekt.Freigaben.Saettigung = false; // a virial model: no saturation from the EOS
  EXPECT_FALSE(r.Freigegeben(s, "mnuCalc", 15));
  EXPECT_TRUE(r.Freigegeben(s, "mnuCalc", 16));

  EXPECT_FALSE(r.Freigegeben(s, "mnuCalc_sub_database", 1)); // no rho(L) limits
  EXPECT_TRUE(r.Freigegeben(s, "mnuCalc_sub_database", 3));
  EXPECT_TRUE(r.Freigegeben(s, "mnuCalc_sub_sub_database", 0));
  EXPECT_FALSE(r.Freigegeben(s, "mnuCalc_sub_sub_database", 1)); // no Wagner limits
  s.Stoff.RhoLGrenzen = {0, 180};
  EXPECT_TRUE(r.Freigegeben(s, "mnuCalc_sub_database", 1));

  s.Stoff.pKrit = 0;
  EXPECT_FALSE(r.Freigegeben(s, "mnuCalc", 2));
  EXPECT_TRUE(r.Freigegeben(s, "mnuCalc_sub_database", 3)); // database functions need no critical point
}

TEST_F(RechenZeilen, EveryKindIsBuiltAndStartsItsEntry) {
  EXPECT_TRUE(r.Ausfuehren(s, "mnuCalc", 2));
  EXPECT_EQ(start, "mnuCalc2");
  EXPECT_TRUE(r.Ausfuehren(s, "mnuCalc", 13)); // the polytropic process opens the process dialog
  EXPECT_EQ(start, "mnuCalc13");
  EXPECT_FALSE(r.Gebaut("mnuCalc", 4));           // a separator
  EXPECT_TRUE(r.Finde("frmReferenz")->versteckt); // the reference dialog: a button's target, no entry
}

TEST_F(RechenZeilen, VirialEntryNamesWhatTheChosenModelGives) {
  const BefehlsZeile* z = r.Finde("mnuCalc", 18);
  ASSERT_TRUE(z && z->textVon);
  EXPECT_EQ(z->textVon(s), "T => Virialkoeffizienten B, Parameter der CEOS");
  s.Modell.EOSIndex = 11;
  s.Modell.VirialFlag = true;
  EXPECT_EQ(z->textVon(s), "T => Virialkoeffizienten B");
  s.Modell.EOSIndex = -1;
  EXPECT_EQ(z->textVon(s), "T => 2. Virialkoeffizienten B");
}

} // namespace
} // namespace quor
