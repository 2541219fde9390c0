#include "core/festtext.h"
#include "core/project_state.h"
#include "dienste/skript_oberflaeche.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quor {
namespace {

// Methane's critical data, as a substance would bring them.
void Methan(ProjectState& s) {
  s.Stoff.MolMasse = 16.0425f;
  s.Stoff.TKrit = 190.56;
  s.Stoff.pKrit = 4599;
}

// A used state goes back to what a fresh one holds, except the substance: the presets take its
// critical values (a fresh state without a substance keeps them at 0).
TEST(ProjectStateInit, ResetsAUsedStateButKeepsTheSubstance) {
  ProjectState frisch;
  InitProjectState(frisch);
  EXPECT_EQ(frisch.Einheiten.TVorgabe, 0.0f);
  ProjectState s;
  Methan(s);
  s.EOS.a0 = 1.5;
  s.EOS.dExp = 2;
  s.Modell.EOSIndex = 6;
  s.Modell.BensonDichte = false;
  s.Referenz.RefArt = 10;
  s.Optionen.CsvTrenner = ',';
  InitProjectState(s);
  EXPECT_EQ(std::tie(s.EOS.a0, s.EOS.dExp), std::tuple(0.0, 0.0));
  EXPECT_EQ(std::tie(s.Modell.EOSIndex, s.Modell.BensonDichte, s.Referenz.RefArt, s.Optionen.CsvTrenner),
            std::tie(frisch.Modell.EOSIndex, frisch.Modell.BensonDichte, frisch.Referenz.RefArt,
                     frisch.Optionen.CsvTrenner));
  EXPECT_EQ(std::tie(s.Einheiten.TVorgabe, s.Einheiten.pVorgabe), std::tuple(190.56f, 4599.0f));
}

// A stand-in for the EOS set-up: gives the critical volume of a van der Waals fluid, 3 b.
void VanDerWaalsVolumen(ProjectState& s) {
  s.EOS.vKritEOS = 3 * RGas * s.Stoff.TKrit / (8 * s.Stoff.pKrit);
}

TEST(ProjectStateInit, RunsTheEOSSetUpForTheVolumePreset) {
  ProjectState s;
  Methan(s);
  InitProjectState(s, VanDerWaalsVolumen);
  EXPECT_REL(s.Einheiten.vVorgabe, 3 * 8.31451 * 190.56 / (8 * 4599), 1e-6);
  // A preset already set is kept.
  ProjectState t;
  Methan(t);
  t.Einheiten.vVorgabe = 0.5f;
  t.Einheiten.TVorgabe = 300;
  InitProjectState(t, VanDerWaalsVolumen);
  EXPECT_EQ(std::tie(t.Einheiten.vVorgabe, t.Einheiten.TVorgabe), std::tuple(0.5f, 300.0f));
}

class Einheiten : public ::testing::Test {
protected:
  void SetUp() override {
    InitProjectState(s);
    Methan(s);
  }
  ProjectState s;
  ui::SkriptOberflaeche ui;
};

TEST_F(Einheiten, SpecificVolumeWithoutAMolarMassStaysFinite) {
  s.Einheiten.VolumenMode = 1;
  s.Stoff.MolMasse = 0;
  SetzeEinheiten(s, ui);
  EXPECT_EQ(s.Einheiten.VolumenFaktor, 1.0);
  EXPECT_TRUE(ui.protokoll.empty());
}

// Reduced mode puts the pressure text into the temperature unit, or the temperature text without a
// critical pressure; back in molar units the factors of T and p return to 1.
TEST_F(Einheiten, ReducedMode) {
  s.EOS.vKritEOS = 0.0986;
  s.Einheiten.VolumenMode = 2;
  SetzeEinheiten(s, ui);
  EXPECT_REL(s.Einheiten.VolumenFaktor, 1 / 0.0986, 1e-12);
  EXPECT_EQ(s.Einheiten.vEinheit, " V(red)");
  EXPECT_REL(s.Einheiten.TFaktor, 1 / 190.56, 1e-6);
  EXPECT_REL(s.Einheiten.pFaktor, 1 / 4599.0, 1e-6);
  EXPECT_EQ(s.Einheiten.TEinheit, " p(red)");
  s.Einheiten.VolumenMode = 0;
  SetzeEinheiten(s, ui);
  EXPECT_EQ(std::tie(s.Einheiten.TFaktor, s.Einheiten.pFaktor), std::tuple(1.0f, 1.0f));
  EXPECT_EQ(s.Einheiten.TEinheit + s.Einheiten.vEinheit, " K m^3/kmol");

  s.Stoff.pKrit = 0;
  s.Einheiten.VolumenMode = 2;
  SetzeEinheiten(s, ui);
  EXPECT_EQ(s.Einheiten.TEinheit, " T(red)");
  EXPECT_TRUE(ui.protokoll.empty());
}

TEST_F(Einheiten, ReducedModeWithoutCriticalVolumeFallsBack) {
  s.EOS.vKritEOS = 0; // a virial model has none
  s.Einheiten.VolumenMode = 2;
  SetzeEinheiten(s, ui);
  EXPECT_EQ(std::tie(s.Einheiten.VolumenMode, s.Einheiten.VolumenFaktor), std::tuple(0, 1.0));
  EXPECT_EQ(ui.Meldungen().size(), 1u);       // its text is checked with the model choice
  EXPECT_EQ(s.Einheiten.TEinheit, " p(red)"); // T and p are still reduced after the fall-back
}

TEST(FesteTexte, WidthsCountCharactersNotBytes) {
  EXPECT_EQ(Utf8Laenge("d2V/dT²"), 7u);
  EXPECT_EQ(FestText("Größe", 7), "Größe  ");
  EXPECT_EQ(FestText("Wärmekapazität", 5), "Wärme");
  EXPECT_EQ(RechtsBuendig("ä1", 4), "  ä1");
  EXPECT_EQ(Trim("  a b \t"), "a b");
}

} // namespace
} // namespace quor
