// Calculations through the frame, from the menu to the result page: the value dialog over the page
// with the further blocks and the page's companions (the picture of the supercritical regions, the
// diagnostics) that come and go with it, and the concept dialog before the equilibrium. Then the
// further windows: the vessel's page by GLOBAL and PARTIAL from the toolbar, a page over the batch
// data with its paging and its report file, the reference-state dialog, and the isotherm pictures.
#include "gui/calc/ceos_diagnose_fenster.h"
#include "gui/calc/isotherm_bilder.h"
#include "gui/calc/superkrit_bild.h"
#include "programm_hilfe.h"

#include <QFile>
#include <QMdiArea>
#include <QScrollBar>
#include <QTemporaryDir>

namespace quor::ui {
namespace {

using test::RechnungsRahmen;
using test::ZeigtLogik;

// The page lies inside the frame's work area with its closing button in sight, and its text block
// does not scroll sideways.
void PasstAufDenSchirm(ErgebnisFenster* seite) {
  QApplication::processEvents();
  QWidget* fenster = seite->parentWidget();
  EXPECT_TRUE(fenster->parentWidget()->rect().contains(fenster->geometry())) << fenster->geometry().height();
  const QPushButton* ok = seite->Knopf("cmdCalc_OK");
  EXPECT_TRUE(seite->rect().contains(QRect(ok->mapTo(seite, QPoint(0, 0)), ok->size())));
  EXPECT_FALSE(seite->Liste()->horizontalScrollBar()->isVisible())
      << seite->Liste()->horizontalScrollBar()->maximum();
}

TEST(RechnungAblauf, FromTheMenuThroughTheValueDialogToThePageAndItsCompanions) {
  RechnungsRahmen a;
  a.fenster->resize(1180, 740); // its first size on a screen of 1280 x 800
  ASSERT_TRUE(a.Menue("mnuCalc", 2)); // the question on the equilibrium, answered by its default
  ErgebnisFenster* seite = a.Seite();
  ParinputFenster* eingabe = a.R().Parinput();
  ASSERT_TRUE(seite && eingabe);
  EXPECT_TRUE(eingabe->isVisible());
  ZeigtLogik(eingabe);

  // The field takes only what a number needs: a letter among the digits is dropped.
  a.Eingeben({"15x0", "2000"});
  EXPECT_EQ(eingabe->Feld(0)->text(), "150");
  EXPECT_TRUE(seite->Par(1)->text().contains("150")) << seite->Par(1)->text().toStdString();
  ZeigtLogik(seite);
  EXPECT_TRUE(eingabe->isVisible()); // ready for the next input
  PasstAufDenSchirm(seite);
  EXPECT_TRUE(test::Bild(seite->parentWidget(), "ergebnis_art3.png"));
  // A supercritical state shows other labels, and the next state hides them again.
  for (const auto& werte : {std::vector<QString>{"250", "5000"}, std::vector<QString>{"150", "2000"}}) {
    a.Eingeben(werte);
    ZeigtLogik(seite);
  }
  EXPECT_TRUE(a.ui.Meldungen().empty());

  // The further blocks reach the logic and are shown at once.
  const int zeilen = seite->Liste()->document()->blockCount();
  seite->ResPlus(0)->click();
  seite->ResPlus(1)->click();
  EXPECT_TRUE(seite->Logik().ResPlus[0] && seite->Logik().ResPlus[1]);
  EXPECT_GT(seite->Liste()->document()->blockCount(), zeilen);
  ZeigtLogik(seite);
  PasstAufDenSchirm(seite);

  // The picture of the supercritical regions comes and goes with its button, drawn at any size.
  seite->Knopf("cmdInfoSuperCrit")->click();
  SuperKritFenster* bild = a.R().SuperKrit();
  ASSERT_NE(bild, nullptr);
  bild->resize(900, 700);
  QApplication::processEvents();
  EXPECT_GT(bild->Bild()->width(), 800);
  seite->Knopf("cmdInfoSuperCrit")->click();
  EXPECT_EQ(a.R().SuperKrit(), nullptr);

  seite->Knopf("cmdCEOSDiagnose")->click();
  CEOSDiagnoseFenster* diagnose = a.R().Diagnose();
  ASSERT_TRUE(diagnose && diagnose->isVisible());
  EXPECT_EQ(diagnose->Bild()->Fall(), diagnose->Logik().pctEOS);
  QApplication::processEvents();
  EXPECT_TRUE(test::Bild(diagnose, "diagnose.png"));

  // Closing the page closes its companions and keeps its place for the next page.
  seite->parentWidget()->move(30, 20);
  seite->Knopf("cmdCalc_OK")->click();
  QApplication::processEvents();
  EXPECT_EQ(a.Seite(), nullptr);
  EXPECT_EQ(a.R().Parinput(), nullptr);
  EXPECT_EQ(a.R().Diagnose(), nullptr);
  ASSERT_TRUE(a.Menue("mnuCalc", 2));
  EXPECT_EQ(a.Seite()->parentWidget()->pos(), QPoint(30, 0)); // as far down as the work area allows
  PasstAufDenSchirm(a.Seite());
}

TEST(RechnungAblauf, EquilibriumThroughTheConceptDialogByGlobalAndPartial) {
  RechnungsRahmen a;
  ASSERT_TRUE(a.Menue("mnuCalc", 5));
  CalcInFenster* calcIn = a.R().CalcIn();
  ASSERT_TRUE(calcIn && calcIn->isVisible());
  EXPECT_EQ(a.Seite(), nullptr); // the page waits for the concept
  ZeigtLogik(calcIn);
  calcIn->OK()->click();
  QApplication::processEvents();
  ASSERT_NE(a.Seite(), nullptr);
  a.Eingeben({"150"});
  ZeigtLogik(a.Seite());
  PasstAufDenSchirm(a.Seite());
  EXPECT_TRUE(test::Bild(a.Seite()->parentWidget(), "ergebnis_art4.png"));

  // The options of the dialog reach its logic, and the dialog shows what follows from them.
  ASSERT_TRUE(a.Menue("mnuCalc", 5));
  calcIn = a.R().CalcIn();
  ASSERT_NE(calcIn, nullptr);
  calcIn->Glob(1)->click();
  EXPECT_EQ(calcIn->Logik().opt_glob, 1);
  calcIn->Ref(1)->click();
  EXPECT_EQ(calcIn->Logik().Ref_opt, 1);
  ZeigtLogik(calcIn);
  EXPECT_TRUE(calcIn->Partial()->isVisible());
  QApplication::processEvents();
  EXPECT_LE(calcIn->width(), 1280);
  EXPECT_LE(calcIn->height(), 740); // the reference point's part shown too
  EXPECT_TRUE(test::Bild(calcIn, "calc_in.png"));
  calcIn->OK()->click();
  QApplication::processEvents();
  EXPECT_FALSE(a.s.Modell.RechnungGlobal);
  EXPECT_NE(a.Seite(), nullptr);
}

TEST(RechnungFenster, TheVesselFromTheToolbarByEitherConcept) {
  RechnungsRahmen a;
  a.fenster->Knopf(15)->trigger(); // the project's concept is GLOBAL
  ASSERT_TRUE(a.Seite() && a.R().Parinput());
  ZeigtLogik(a.R().Parinput());
  a.Eingeben({"1", "100", "", "150"});
  EXPECT_TRUE(a.ui.Meldungen().empty());
  ZeigtLogik(a.Seite());

  // PARTIAL: the reference point first, then the value dialog; the page comes with the first values
  // and in front of the others.
  ASSERT_TRUE(a.Menue("mnuCalc", 16));
  ASSERT_NE(a.R().CalcIn(), nullptr);
  a.R().CalcIn()->OK()->click();
  QApplication::processEvents();
  EXPECT_EQ(a.Seite(), nullptr);
  ASSERT_NE(a.R().Parinput(), nullptr);
  a.Eingeben({"1", "100", "", "150"});
  ASSERT_NE(a.Seite(), nullptr);
  EXPECT_EQ(a.fenster->Arbeitsflaeche()->activeSubWindow(), a.R().SeitenFenster());

  // Above the critical temperature PARTIAL refuses: the page closes and the value dialog stays.
  a.Eingeben({"1", "100", "", "250"});
  EXPECT_EQ(a.ui.Meldungen().size(), 1u);
  EXPECT_EQ(a.Seite(), nullptr);
  EXPECT_NE(a.R().Parinput(), nullptr);
}

// Another substance closes the page with its value dialog and rebuilds the models; another database
// hides the models until a substance is chosen. The status bar names what is loaded throughout.
TEST(RechnungFenster, AnotherSubstanceOrDatabaseLeavesNoWindowOfTheFormerOne) {
  RechnungsRahmen a;
  ASSERT_TRUE(a.Menue("mnuCalc", 2));
  ASSERT_TRUE(a.Seite() && a.R().Parinput());
  a.fenster->StoffWahlZeigen();
  QListWidget* liste = a.fenster->StoffWahl()->Liste();
  liste->setCurrentRow(1);
  test::Taste(liste, Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_NE(a.s.Stoff.StoffName, "Methan");
  EXPECT_EQ(a.Seite(), nullptr);
  EXPECT_EQ(a.R().Parinput(), nullptr);
  ASSERT_TRUE(a.fenster->Modelle()->isVisible());
  ZeigtLogik(a.fenster->Modelle());
  EXPECT_EQ(a.fenster->StatusText(2).toStdString(), a.s.Stoff.StoffName);
  EXPECT_EQ(a.fenster->StatusText(1), "Datenbank: QUOR.Q07");

  a.DatenbankOeffnen()->close();
  EXPECT_FALSE(a.fenster->Modelle()->isVisible());
  EXPECT_EQ(a.fenster->StatusText(1), "Datenbank: QUOR.Q07");
  EXPECT_EQ(a.fenster->StatusText(2), "");
}

TEST(RechnungFenster, BatchPageWalksThePointsAndWritesTheReport) {
  RechnungsRahmen a;
  QTemporaryDir ordner;
  MessdatenGruppe& m = a.s.Mess;
  m.ExpAnzahl = 3;
  for (int i = 1; i <= 3; ++i) {
    ExpZeile(m, i).T = 130 + 10 * i;
    ExpZeile(m, i).p = 500;
  }
  a.s.Rechnung.StapelModus = true;
  ASSERT_TRUE(a.Menue("mnuCalc", 2));
  EXPECT_EQ(a.R().Parinput(), nullptr);
  ErgebnisFenster* seite = a.Seite();
  ASSERT_NE(seite, nullptr);
  seite->Knopf("cmdVor")->click();
  EXPECT_EQ(seite->Logik().AktuellerPunkt, 2);
  ZeigtLogik(seite);

  // The report into a .LST file, chosen on the page and written on closing.
  seite->Ausgabe(2)->click();
  const QString datei = ordner.filePath("bericht.LST");
  a.ui.dateien.push_back(datei.toStdString());
  seite->Knopf("cmdCalc_OK")->click();
  QApplication::processEvents();
  EXPECT_EQ(a.Seite(), nullptr);
  EXPECT_GT(QFile(datei).size(), 0);
}

TEST(RechnungFenster, ReferenceStateFromTheToolbar) {
  RechnungsRahmen a;
  a.fenster->Knopf(11)->trigger();
  auto* referenz = a.fenster->findChild<ReferenzFenster*>("frmReferenz");
  ASSERT_TRUE(referenz && referenz->isVisible());
  ZeigtLogik(referenz);
  // Methane's formation data allow the conventional normalisation: the dialog shows what it fixes.
  ASSERT_TRUE(referenz->Option(1)->isEnabled());
  referenz->Option(1)->click();
  ZeigtLogik(referenz);
  EXPECT_TRUE(test::Bild(referenz, "referenz.png"));
  referenz->Feld(4)->setText("280,5"); // the environment's temperature, with a decimal comma
  referenz->OK();
  EXPECT_FALSE(referenz->isVisible());
  EXPECT_EQ(a.s.Referenz.RefArt, 10);
  EXPECT_EQ(a.s.Referenz.TUmgebung, 280.5);
}

} // namespace
} // namespace quor::ui
