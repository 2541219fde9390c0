// Calculations through the frame: the example of the first steps (T, p => rho for methane, with and
// without T and p at equilibrium), the equilibrium T => p(LV) by GLOBAL and PARTIAL, the functions at
// T, p with every further block, a database function and a refusal. Each walk checks the texts of
// the result page.
#include "rechnung_hilfe.h"
#include "gui/calc/isotherm_bilder.h"
#include "gui/substance/modell_fenster.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QMdiSubWindow>
#include <QRadioButton>
#include <QScrollBar>

namespace quor::ui {
namespace {

using test::RechnungsRahmen;

// The page is as wide as its text block needs and no wider than the screen of 1280 x 1024; the text
// block does not scroll sideways.
void PasstAufDenSchirm(ErgebnisFenster* seite) {
  QApplication::processEvents();
  QWidget* fenster = seite->parentWidget();
  EXPECT_LE(fenster->width(), 1260);
  EXPECT_LE(fenster->height(), 960);
  EXPECT_FALSE(seite->Liste()->horizontalScrollBar()->isVisible())
      << seite->Liste()->horizontalScrollBar()->maximum();
}

TEST(RechnungAblauf, TpToRhoAsInTheFirstSteps) {
  RechnungsRahmen a;
  ASSERT_TRUE(a.Menue("mnuCalc", 2));
  ASSERT_EQ(a.ui.protokoll.size(), 1u); // the question on the equilibrium, answered "Nein"
  EXPECT_EQ(a.ui.Letzte().titel, "T-p-Vorgabe");
  ErgebnisFenster* seite = a.Seite();
  ASSERT_NE(seite, nullptr);
  EXPECT_EQ(seite->windowTitle(), "Ergebnis der Berechnung  T, p => rho");
  EXPECT_EQ(seite->Rahmen("fraBatchVorgabe")->title(), " Vorgabewert(e) Direkteingabe ");
  EXPECT_EQ(seite->Knopf("cmdCalc_OK")->text(), "Schließen");
  EXPECT_FALSE(seite->Knopf("cmdVor")->isEnabled());
  ParinputFenster* eingabe = a.R().Parinput();
  ASSERT_NE(eingabe, nullptr);
  EXPECT_TRUE(eingabe->isVisible());
  EXPECT_EQ(eingabe->windowTitle(), "Eingabe Direktberechnung");
  EXPECT_EQ(eingabe->OK()->text(), "&Berechnen");

  // A letter among the digits is dropped by the field.
  a.Eingeben({"15x0", "2000"});
  EXPECT_EQ(eingabe->Feld(0)->text(), "150");
  EXPECT_TRUE(a.ui.Meldungen().empty());
  EXPECT_EQ(seite->Par(1)->text(), "T = 150.000 K");
  EXPECT_EQ(seite->Par(2)->text(), "p = 2000.000 kPa");
  // 2000 kPa lie above methane's vapour pressure at 150 K (about 1040 kPa): a liquid.
  EXPECT_TRUE(seite->Phase(0)->isVisible());
  EXPECT_EQ(seite->Phase(0)->text(), "L-Phase");
  EXPECT_FALSE(seite->Phase(1)->isVisible());
  EXPECT_TRUE(a.Liste().contains("Dichte           rho/ (kg/m^3)  = ")) << a.Liste().toStdString();
  EXPECT_TRUE(seite->Knopf("cmdCEOSDiagnose")->isEnabled());
  EXPECT_TRUE(eingabe->isVisible()); // ready for the next input
  PasstAufDenSchirm(seite);
  EXPECT_TRUE(test::Bild(seite->parentWidget(), "ergebnis_art3.png"));

  // Above the critical point the region label points at the one phase that both have become.
  a.Eingeben({"250", "5000"});
  EXPECT_TRUE(seite->Gleich()->isVisible());
  EXPECT_EQ(seite->Gleich()->text(), "überkritische Phase (L) = (V) (T > T(cr), p > p(cr))   > > > > >");
  EXPECT_EQ(seite->Identisch()->text(), "identisch");
  EXPECT_EQ(seite->Gleich()->toolTip(), " kein 2-Phasen-Zustand! ");
  a.Eingeben({"150", "2000"});
  EXPECT_FALSE(seite->Gleich()->isVisible());

  // An empty field is refused and the page keeps its result.
  eingabe->Feld(1)->clear();
  eingabe->OK()->click();
  ASSERT_EQ(a.ui.Meldungen().size(), 1u);
  EXPECT_EQ(a.ui.Letzte().text, "keine gültige Eingabe");
  EXPECT_EQ(seite->Par(2)->text(), "p = 2000.000 kPa");

  // The diagnostics of the cubic equation for this state.
  seite->Knopf("cmdCEOSDiagnose")->click();
  CEOSDiagnoseFenster* diagnose = a.R().Diagnose();
  ASSERT_NE(diagnose, nullptr);
  EXPECT_EQ(diagnose->windowTitle(), "   Kubische Zustandsgleichung");
  EXPECT_TRUE(diagnose->Wurzeln()->text().startsWith("v(1) = ")) << diagnose->Wurzeln()->text().toStdString();
  EXPECT_NE(diagnose->Bild()->Fall(), frmCEOSDiagnose::Bild::Keins);
  QApplication::processEvents();
  EXPECT_TRUE(test::Bild(diagnose, "diagnose.png"));

  // Closing the page closes its companions and keeps its place for the next page.
  a.Seite()->parentWidget()->move(30, 20);
  seite->Knopf("cmdCalc_OK")->click();
  QApplication::processEvents();
  EXPECT_EQ(a.Seite(), nullptr);
  EXPECT_EQ(a.R().Parinput(), nullptr);
  EXPECT_EQ(a.R().Diagnose(), nullptr);
  EXPECT_TRUE(a.s.Rechnung.ErgebnisSeite.gesetzt);
  EXPECT_EQ(a.s.Rechnung.ErgebnisSeite.x, 30);
  ASSERT_TRUE(a.Menue("mnuCalc", 2));
  EXPECT_EQ(a.Seite()->parentWidget()->pos(), QPoint(30, 20));
}

TEST(RechnungAblauf, TpAtEquilibriumGoesThroughTheConceptDialog) {
  RechnungsRahmen a;
  a.ui.antworten.push_back(Antwort::Ja);
  ASSERT_TRUE(a.Menue("mnuCalc", 2));
  EXPECT_EQ(a.Seite(), nullptr);
  CalcInFenster* calcIn = a.R().CalcIn();
  ASSERT_NE(calcIn, nullptr);
  EXPECT_TRUE(calcIn->isVisible());
  EXPECT_EQ(calcIn->windowTitle(), "Wahl GLOBAL- oder PARTIAL-Berechnung für Phasengleichgewicht V-L");
  EXPECT_TRUE(calcIn->Situation()->text().startsWith(
      "Annahme, dass die Vorgabewerte exakt das Phasengleichgewicht beschreiben.\n"));
  EXPECT_TRUE(calcIn->Glob(1)->isChecked());
  EXPECT_FALSE(calcIn->Glob(0)->isEnabled());
  EXPECT_TRUE(calcIn->Partial()->isVisible());
  EXPECT_TRUE(calcIn->Ref(0)->isChecked());
  EXPECT_TRUE(calcIn->Vorschlag()->text().startsWith(" T(ref)/K           = 111.66 (Normalsiede-T)\n"));
  QApplication::processEvents();
  EXPECT_LE(calcIn->width(), 1280);
  EXPECT_TRUE(test::Bild(calcIn, "calc_in.png"));

  calcIn->OK()->click();
  QApplication::processEvents();
  ASSERT_NE(a.Seite(), nullptr);
  EXPECT_TRUE(a.s.Referenz.BezugGueltig);
  a.Eingeben({"150", "1040"});
  // Both phases: the vapour from the EOS, the liquid by Benson's method through the reference point.
  EXPECT_TRUE(a.Seite()->Phase(0)->isVisible());
  EXPECT_TRUE(a.Seite()->Phase(1)->isVisible());
  EXPECT_TRUE(a.Liste().contains("nach BENSON-Methode:")) << a.Liste().toStdString();
}

TEST(RechnungAblauf, EquilibriumByGlobalAndPartial) {
  RechnungsRahmen a;
  ASSERT_TRUE(a.Menue("mnuCalc", 5));
  CalcInFenster* calcIn = a.R().CalcIn();
  ASSERT_NE(calcIn, nullptr);
  EXPECT_TRUE(calcIn->Glob(0)->isChecked());
  EXPECT_FALSE(calcIn->Partial()->isVisible());
  calcIn->OK()->click();
  QApplication::processEvents();
  ErgebnisFenster* seite = a.Seite();
  ASSERT_NE(seite, nullptr);
  EXPECT_EQ(seite->windowTitle(), "Ergebnis der Berechnung  T => p(LV) (GLOBAL-Berechnung)");
  a.Eingeben({"150"});
  EXPECT_EQ(seite->Co1()->text(), "p(LV) aus CEOS Peng / Robinson");
  EXPECT_TRUE(seite->Txtco2()->text().startsWith(" p(LV) = ")) << seite->Txtco2()->text().toStdString();
  EXPECT_TRUE(a.Liste().contains("aus kubischer EOS:"));
  // GLOBAL shows the functions of both phases from the start.
  EXPECT_TRUE(seite->UHS()->isChecked());
  EXPECT_TRUE(a.Liste().contains("thermodynamische Funktionen"));
  EXPECT_TRUE(seite->ResPlus(0)->isEnabled());
  PasstAufDenSchirm(seite);
  EXPECT_TRUE(test::Bild(seite->parentWidget(), "ergebnis_art4.png"));

  ASSERT_TRUE(a.Menue("mnuCalc", 5));
  calcIn = a.R().CalcIn();
  ASSERT_NE(calcIn, nullptr);
  calcIn->Glob(1)->click();
  EXPECT_TRUE(calcIn->Partial()->isVisible());
  EXPECT_TRUE(calcIn->GlobalSit()->text().startsWith("PARTIAL-Berechnung: L-Dichte mittels BENSON-Methode"));
  calcIn->Ref(1)->click();
  EXPECT_TRUE(calcIn->Vorschlag()->text().contains("(BENSON-Näherung)"));
  calcIn->OK()->click();
  QApplication::processEvents();
  seite = a.Seite();
  ASSERT_NE(seite, nullptr);
  EXPECT_EQ(seite->windowTitle(), "Ergebnis der Berechnung  T => p(LV) (PARTIAL-Berechnung)");
  a.Eingeben({"150"});
  EXPECT_TRUE(seite->Co1()->text().startsWith("p(LV) aus aktueller Dampfdruckgleichung "))
      << seite->Co1()->text().toStdString();
  EXPECT_TRUE(a.Liste().contains("nach BENSON-Methode:"));
  // The further blocks and the diagnostics are not offered for PARTIAL.
  EXPECT_FALSE(seite->ResPlus(0)->isEnabled());
  EXPECT_FALSE(seite->Knopf("cmdCEOSDiagnose")->isEnabled());
}

TEST(RechnungAblauf, FunctionsWithEveryFurtherBlock) {
  RechnungsRahmen a;
  ASSERT_TRUE(a.Menue("mnuCalc", 11));
  ErgebnisFenster* seite = a.Seite();
  ASSERT_NE(seite, nullptr);
  EXPECT_EQ(seite->windowTitle(),
            "Ergebnis der Berechnung  thermodynamische Funktionen F(T, p) (GLOBAL-Berechnung)");
  a.Eingeben({"150", "500"});
  seite->ResPlus(0)->click();
  seite->ResPlus(1)->click();
  const QString liste = a.Liste();
  EXPECT_TRUE(liste.contains("Enthalpie        h/ (kJ/kmol)   = ")) << liste.toStdString();
  EXPECT_TRUE(liste.contains("mechanische Koeffizienten"));
  EXPECT_TRUE(liste.contains("Ableitungen nach T, p, V(molar)"));
  EXPECT_TRUE(liste.contains("Residualfunktionen:"));
  // 500 kPa at 150 K: vapour only.
  EXPECT_FALSE(seite->Phase(0)->isVisible());
  EXPECT_EQ(seite->Phase(1)->text(), "V-Phase");
  // The functions are this kind's own result; the tick belongs to the other kinds.
  EXPECT_FALSE(seite->UHS()->isEnabled());
  PasstAufDenSchirm(seite);
  EXPECT_TRUE(test::Bild(seite->parentWidget(), "ergebnis_art8.png"));

  // The picture of the supercritical regions comes and goes with its button, drawn at any size.
  seite->Knopf("cmdInfoSuperCrit")->click();
  SuperKritFenster* bild = a.R().SuperKrit();
  ASSERT_NE(bild, nullptr);
  bild->resize(900, 700);
  QApplication::processEvents();
  EXPECT_GT(bild->Bild()->width(), 800);
  seite->Knopf("cmdInfoSuperCrit")->click();
  EXPECT_EQ(a.R().SuperKrit(), nullptr);
}

TEST(RechnungAblauf, DatabaseFunctionAndRefusal) {
  RechnungsRahmen a;
  ASSERT_TRUE(a.Menue("mnuCalc_sub_database", 1));
  ErgebnisFenster* seite = a.Seite();
  ASSERT_NE(seite, nullptr);
  EXPECT_EQ(seite->windowTitle(), "Ergebnis der Berechnung  Datenbankfunktion L-Dichte");
  EXPECT_FALSE(seite->Rahmen("fraCalcErweitert")->isVisible());
  EXPECT_FALSE(seite->Rahmen("fraResultOutput")->isVisible());
  a.Eingeben({"120"});
  EXPECT_TRUE(seite->Txtco2()->text().startsWith(" rho(L) = ")) << seite->Txtco2()->text().toStdString();
  EXPECT_TRUE(seite->Co1()->text().startsWith(" Berechnung aus der Datenbankfunktion "));
  EXPECT_TRUE(a.Liste().contains(" Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:"));

  // With a virial model kind 2 is refused before any window opens.
  ModellFenster* modelle = a.fenster->Modelle();
  const auto treffer = modelle->EOSListe()->findItems("VIRIAL-EOS Redlich / Kwong", Qt::MatchStartsWith);
  ASSERT_EQ(treffer.size(), 1);
  modelle->EOSListe()->setCurrentItem(treffer[0]);
  a.ui.protokoll.clear();
  ASSERT_TRUE(a.Menue("mnuCalc", 1));
  ASSERT_EQ(a.ui.Meldungen().size(), 1u);
  EXPECT_EQ(a.ui.Letzte().text, "nur möglich mit einer kubischen EOS");
  EXPECT_EQ(a.Seite(), nullptr);
  EXPECT_EQ(a.R().Parinput(), nullptr);
  EXPECT_EQ(a.s.RechenArt, 0);
}

} // namespace
} // namespace quor::ui
