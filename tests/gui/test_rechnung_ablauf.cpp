// Calculations through the frame, from the menu to the result page: the value dialog over the page
// with the further blocks and the page's companions (the picture of the supercritical regions, the
// diagnostics) that come and go with it, and the concept dialog before the equilibrium.
#include "gui/calc/ceos_diagnose_fenster.h"
#include "gui/calc/isotherm_bilder.h"
#include "gui/calc/superkrit_bild.h"
#include "programm_hilfe.h"

#include <QScrollBar>

namespace quor::ui {
namespace {

using test::RechnungsRahmen;
using test::ZeigtLogik;

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

TEST(RechnungAblauf, FromTheMenuThroughTheValueDialogToThePageAndItsCompanions) {
  RechnungsRahmen a;
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
  EXPECT_EQ(a.Seite()->parentWidget()->pos(), QPoint(30, 20));
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
  EXPECT_TRUE(test::Bild(calcIn, "calc_in.png"));
  calcIn->OK()->click();
  QApplication::processEvents();
  EXPECT_FALSE(a.s.Modell.RechnungGlobal);
  EXPECT_NE(a.Seite(), nullptr);
}

} // namespace
} // namespace quor::ui
