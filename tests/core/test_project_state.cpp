#include "core/festtext.h"
#include "core/project_state.h"
#include "dienste/skript_oberflaeche.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

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
  EXPECT_EQ(s.EOS.a0, 0.0);
  EXPECT_EQ(s.EOS.dExp, 0.0);
  EXPECT_EQ(s.Modell.EOSIndex, frisch.Modell.EOSIndex);
  EXPECT_EQ(s.Modell.BensonDichte, frisch.Modell.BensonDichte);
  EXPECT_EQ(s.Referenz.RefArt, frisch.Referenz.RefArt);
  EXPECT_EQ(s.Optionen.CsvTrenner, frisch.Optionen.CsvTrenner);
  EXPECT_EQ(s.Stoff.TKrit, 190.56);
  EXPECT_EQ(s.Einheiten.TVorgabe, 190.56f);
  EXPECT_EQ(s.Einheiten.pVorgabe, 4599.0f);
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
  EXPECT_EQ(t.Einheiten.vVorgabe, 0.5f);
  EXPECT_EQ(t.Einheiten.TVorgabe, 300.0f);
}

// The name lists are padded to the width of their columns, counted in characters.
TEST(NameTables, RowsHaveTheWidthOfTheirColumn) {
  ProjectState s;
  InitProjectState(s);
  const Tabellen& t = s.Tab;
  const auto breite = [](const auto& tabelle, std::size_t n) {
    for (const auto& r : tabelle)
      EXPECT_EQ(Utf8Laenge(r), n) << r;
  };
  breite(t.EOSNamen, 35);
  breite(t.DampfdruckNamen, 35);
  breite(t.HLVNamen, 35);
  breite(t.CpNamen, 35);
  breite(t.AbleitungsLabels, 14);
  EXPECT_EQ(DampfdruckTagVon(9), "000"); // beyond the table: none
  EXPECT_EQ(DampfdruckTagVon(-1), "000");
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

TEST_F(Einheiten, MolarAndSpecificVolume) {
  s.Einheiten.VolumenMode = 1;
  SetzeEinheiten(s, ui);
  EXPECT_REL(s.Einheiten.VolumenFaktor, 1 / 16.0425, 1e-6);
  EXPECT_EQ(s.Einheiten.vEinheit, " m^3/kg  ");
  s.Einheiten.VolumenMode = 0;
  SetzeEinheiten(s, ui);
  EXPECT_EQ(s.Einheiten.VolumenFaktor, 1.0);
  EXPECT_EQ(s.Einheiten.vEinheit, " m^3/kmol");
  EXPECT_EQ(s.Einheiten.TEinheit, " K");
  EXPECT_EQ(s.Einheiten.pEinheit, " kPa");
  EXPECT_TRUE(ui.protokoll.empty());
}

TEST_F(Einheiten, ReducedModePutsThePressureTextIntoTheTemperatureUnit) {
  s.EOS.vKritEOS = 0.0986;
  s.Einheiten.VolumenMode = 2;
  SetzeEinheiten(s, ui);
  EXPECT_REL(s.Einheiten.VolumenFaktor, 1 / 0.0986, 1e-12);
  EXPECT_EQ(s.Einheiten.vEinheit, " V(red)");
  EXPECT_REL(s.Einheiten.TFaktor, 1 / 190.56, 1e-6);
  EXPECT_REL(s.Einheiten.pFaktor, 1 / 4599.0, 1e-6);
  EXPECT_EQ(s.Einheiten.TEinheit, " p(red)");
  EXPECT_EQ(s.Einheiten.pEinheit, " kPa");
  EXPECT_TRUE(ui.protokoll.empty());
  // Back to molar units: the factors of T and p return to 1.
  s.Einheiten.VolumenMode = 0;
  SetzeEinheiten(s, ui);
  EXPECT_EQ(s.Einheiten.TFaktor, 1.0f);
  EXPECT_EQ(s.Einheiten.pFaktor, 1.0f);
  EXPECT_EQ(s.Einheiten.TEinheit, " K");
}

TEST_F(Einheiten, ReducedModeWithoutCriticalPressureKeepsTheTemperatureText) {
  s.EOS.vKritEOS = 0.0986;
  s.Stoff.pKrit = 0;
  s.Einheiten.VolumenMode = 2;
  SetzeEinheiten(s, ui);
  EXPECT_EQ(s.Einheiten.TEinheit, " T(red)");
  EXPECT_EQ(s.Einheiten.pFaktor, 1.0f);
}

TEST_F(Einheiten, ReducedModeWithoutCriticalVolumeFallsBackWithItsMessage) {
  s.EOS.vKritEOS = 0; // a virial model has none
  s.Einheiten.VolumenMode = 2;
  SetzeEinheiten(s, ui);
  EXPECT_EQ(s.Einheiten.VolumenMode, 0);
  EXPECT_EQ(s.Einheiten.VolumenFaktor, 1.0);
  EXPECT_EQ(s.Einheiten.vEinheit, " m^3/kmol");
  ASSERT_EQ(ui.Meldungen().size(), 1u);
  EXPECT_EQ(ui.Meldungen()[0].text,
            "Die gewählte EOS stellt kein V(cr) (kritisches mol. Volumen) zur Verfügung.\r\n"
            "Die gewünschte Option \"reduzierte Größen für T, p, v\" ist damit nicht möglich.");
  EXPECT_EQ(ui.Meldungen()[0].titel, "Ausführung nicht möglich");
  // T and p are still reduced after the fall-back.
  EXPECT_EQ(s.Einheiten.TEinheit, " p(red)");
  EXPECT_REL(s.Einheiten.TFaktor, 1 / 190.56, 1e-6);
}

TEST_F(Einheiten, SpecificVolumeWithoutMolarMassStaysFinite) {
  s.Stoff.MolMasse = 0;
  s.Einheiten.VolumenMode = 1;
  SetzeEinheiten(s, ui);
  EXPECT_EQ(s.Einheiten.VolumenFaktor, 1.0);
}

TEST(FesteTexte, WidthsCountCharactersNotBytes) {
  EXPECT_EQ(Utf8Laenge("d2V/dT²"), 7u);
  EXPECT_EQ(FestText("Größe", 7), "Größe  ");
  EXPECT_EQ(FestText("Wärmekapazität", 5), "Wärme");
  EXPECT_EQ(FestText("", 3), "   ");
  EXPECT_EQ(RechtsBuendig("ä1", 4), "  ä1");
  EXPECT_EQ(RechtsBuendig("12345", 3), "12345");
  EXPECT_EQ(Trim("  a b \t"), "a b");
  EXPECT_EQ(Trim("   "), "");
}

} // namespace
} // namespace quor
