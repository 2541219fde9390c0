// The options dialog: the units, the refusal of reduced values without a critical temperature, the
// diagram's clearing, the calculation mode and the separators with their comma warnings.
#include "core/optionen.h"
#include "dienste/skript_oberflaeche.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quor {
namespace {

struct Optionen {
  ProjectState s;
  ui::SkriptOberflaeche ui;
  std::unique_ptr<frmQOptions> dlg;

  // Methane with a cubic model set up: critical point and critical volume known.
  Optionen() {
    InitProjectState(s);
    s.Stoff.StoffName = "Methan";
    s.Stoff.MolMasse = 16.043f;
    s.Stoff.TKrit = 190.56;
    s.Stoff.pKrit = 4599;
    s.EOS.vKritEOS = 0.1234;
    s.Optionen.DezimalKomma = false;
    Oeffnen();
  }
  void Oeffnen() {
    dlg = std::make_unique<frmQOptions>(s, ui);
    dlg->Form_Load();
  }
};

TEST(Optionen, UnitChoiceSetsModesAndFactors) {
  Optionen o;
  o.dlg->optMolarSpez = 1;
  o.dlg->cmdOK();
  const EinheitenGruppe& e = o.s.Einheiten;
  EXPECT_EQ(std::tie(e.EnergieMode, e.VolumenMode), std::tuple(3, 1)); // factors are the units' own tests
  EXPECT_REL(e.EnergieFaktor, 1 / 16.043, 1e-6); // per kg: the reciprocal molar mass of methane
  o.Oeffnen();
  EXPECT_EQ(o.dlg->optMolarSpez, 1); // the dialog shows what is set

  o.dlg->chkReduziert = true;
  o.dlg->cmdOK();
  EXPECT_EQ(e.VolumenMode, 2);
  EXPECT_EQ(e.TVorgabe, static_cast<float>(190.56)); // an empty preset takes the critical temperature
  EXPECT_TRUE(o.ui.protokoll.empty());
}

TEST(Optionen, ReducedValuesWithoutCriticalTemperatureAreRefusedAndUnitsStay) {
  Optionen o;
  o.s.Stoff.TKrit = 0;
  o.s.Einheiten.TVorgabe = 0;
  o.dlg->chkReduziert = true;
  o.dlg->cmdOK();
  ASSERT_EQ(o.ui.Meldungen().size(), 1u);
  EXPECT_EQ(o.ui.Letzte().text, "Für diesen Stoff fehlt die kritische Temperatur.");
  EXPECT_EQ(o.ui.Letzte().titel, "Ausführung nicht möglich");
  const EinheitenGruppe& e = o.s.Einheiten;
  EXPECT_EQ(std::tie(e.VolumenMode, e.TFaktor, e.TVorgabe), std::tuple(0, 1.0f, 0.0f));
  EXPECT_FALSE(o.dlg->chkReduziert);
}

// Changed factors clear the 2D diagram only with its box, a 3D surface in the old units always.
TEST(Optionen, ChangedFactorsClearTheDiagramOnlyWithItsBox) {
  Optionen o;
  const OptionenAktionen gleich = o.dlg->cmdOK(); // nothing changed
  EXPECT_FALSE(gleich.Graph2DLoeschen || gleich.EinheitenGeaendert);
  o.dlg->optMolarSpez = 1;
  EXPECT_TRUE(o.dlg->cmdOK().Graph2DLoeschen);
  o.dlg->optMolarSpez = 0;
  o.dlg->chkUnloadGraph2D = false;
  const OptionenAktionen zurueck = o.dlg->cmdOK();
  EXPECT_FALSE(zurueck.Graph2DLoeschen);
  EXPECT_TRUE(zurueck.EinheitenGeaendert);
}

TEST(Optionen, CalculationModeRenamesTheFirstCalculationEntries) {
  Optionen o;
  o.dlg->OptCalcMode = 0;
  const OptionenAktionen liste = o.dlg->cmdOK();
  ASSERT_EQ(liste.CalcMenueTexte.size(), 4u);
  EXPECT_EQ(liste.CalcMenueTexte[3].second, "Spalten p, rho(V) => T, Zustand L/V     + thermod. Fu.");
  o.dlg->OptCalcMode = 1;
  const OptionenAktionen direkt = o.dlg->cmdOK();
  EXPECT_FALSE(o.s.Rechnung.StapelModus);
  EXPECT_EQ(direkt.CalcMenueTexte[1].second, "p, rho      => T, Zustand L/V     + thermod. Fu.");
}

TEST(Optionen, ACommaSeparatorIsQuestionedWhenTheSystemWritesDecimalCommas) {
  Optionen o;
  o.dlg->cmbSepCSV = 1;
  o.dlg->cmbSepXY = 1;
  o.dlg->cmdOK();
  EXPECT_TRUE(o.ui.protokoll.empty()); // a point as decimal mark: the comma is fine
  EXPECT_EQ(o.s.Optionen.CsvTrenner, ',');

  o.s.Optionen.DezimalKomma = true;
  o.ui.antworten = {ui::Antwort::Ja, ui::Antwort::Nein};
  o.dlg->cmdOK();
  ASSERT_EQ(o.ui.protokoll.size(), 2u);
  EXPECT_EQ(o.ui.protokoll[0].text, "Bei Computereinstellung \"Deutschland\" (Dezimalzeichen = Komma)\r\n"
                                    "ist das Komma als Dateitrennzeichen nicht sinnvoll.\r\n"
                                    "Semikolon wählen?");
  EXPECT_EQ(o.ui.protokoll[0].titel, "Warnung für CSV-File");
  EXPECT_EQ(o.ui.protokoll[1].text, "Bei Computereinstellung \"Deutschland\" (Dezimalzeichen = Komma)\r\n"
                                    "ist das Komma als Dateitrennzeichen nicht sinnvoll;\r\n"
                                    "Clipboard-Inhalt und XY-Datei sind nicht mehr Excel-kompatibel.\r\n"
                                    "unbedingte Empfehlung: Semikolon");
  EXPECT_EQ(o.ui.protokoll[1].titel, "Warnung für XY-File");
  EXPECT_EQ(o.s.Optionen.CsvTrenner, ';'); // "Ja" takes the semicolon
  EXPECT_EQ(o.s.Optionen.XYTrenner, ',');  // "Nein" keeps the comma
}

} // namespace
} // namespace quor
