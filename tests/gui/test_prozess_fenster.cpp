// The process dialog in the frame: a water cycle of four lines in the T-s diagram, each starting
// where the former ended, drawn by the page's button; the polytrope of the calculator in the p-v
// diagram; the curve parameter of the h-s diagram; the polytropic process of the calculation menu
// on its result page; and the pictures of the first two.
#include "dienste/kind_prozess.h"
#include "gui/diagrams/graph2d_steuerung.h"
#include "gui/fitting/daten_editor_steuerung.h"
#include "gui/process/prozess_fenster.h"
#include "gui/process/prozess_steuerung.h"
#include "programm_hilfe.h"
#include "support/relativ.h"

#include <QCheckBox>
#include <QDir>
#include <QPainter>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <cmath>

namespace quor::ui {
namespace {

using namespace prozess;

struct Prozesse : test::Programm {
  explicit Prozesse(const char* stoff) {
    StoffWaehlen(stoff);
    // The polytrope's calculator really runs.
    ui.prozessAusfuehren = [](const ProzessAuftrag& auftrag) { return StarteKindProzess(auftrag); };
  }

  // The frame with the dialog beside it, as a picture (when pictures are asked for).
  void Bild(const char* name) {
    QApplication::processEvents();
    const char* verzeichnis = std::getenv("QUOR_BILDER_VERZEICHNIS");
    if (!verzeichnis) return;
    const QPixmap rahmen = fenster->grab();
    const QPixmap dialog = Dialog()->grab();
    QPixmap bild(rahmen.width() + dialog.width() + 6, std::max(rahmen.height(), dialog.height()));
    bild.fill(Qt::darkGray);
    QPainter maler(&bild);
    maler.drawPixmap(0, 0, rahmen);
    maler.drawPixmap(rahmen.width() + 6, 0, dialog);
    maler.end();
    EXPECT_TRUE(bild.save(QDir(verzeichnis).filePath(name)));
  }

  Graph2DFenster* Seite() { return fenster->Graf2D()->Seite(); }
  ProzessFenster* Dialog() { return fenster->Prozess()->Fenster(); }

  Graph2DFenster* Menue(const char* name, int index = -1) {
    QAction* a = fenster->Befehl(name, index);
    EXPECT_TRUE(a && a->isEnabled()) << name << " " << index;
    if (!a || !a->isEnabled()) return nullptr;
    a->trigger();
    QApplication::processEvents();
    return Seite();
  }

  void Setze(const char* feld, const QString& text) {
    QLineEdit* f = Dialog()->Feld(feld);
    ASSERT_TRUE(f) << feld;
    f->clear();
    test::Tippen(f, text);
  }
  void Waehle(const char* option) {
    auto* o = Dialog()->findChild<QRadioButton*>(option);
    ASSERT_TRUE(o) << option;
    o->click();
  }

  // A line of the insert menu: its fields, the dialog's button, then the page's draw button.
  int Linie(int art, const std::vector<std::pair<const char*, QString>>& felder, bool fortsetzen) {
    Menue("mnuProzessLinie", art);
    EXPECT_TRUE(Dialog() && Dialog()->isVisible());
    if (fortsetzen) Dialog()->findChild<QCheckBox*>("chkEndToBegin")->setChecked(true);
    for (const auto& [name, wert] : felder) {
      if (QString(name).startsWith("opt"))
        Waehle(name);
      else
        Setze(name, wert);
    }
    Dialog()->Knopf("cmdDrawPL")->click();
    EXPECT_EQ(Seite()->Statuszeile()->text(), QString::fromUtf8(frmInputProzessLinien::ZeichnenHinweis));
    const int vorher = Seite()->Logik().KurvenAnzahl();
    Seite()->Knopf("cmdDraw")->click();
    EXPECT_EQ(Seite()->Logik().KurvenAnzahl(), vorher + 1);
    return vorher; // the new curve's slot when the slots fill in order
  }
};

TEST(ProzessFenster, AWaterCycleInTheTsDiagramRunsLineAfterLine) {
  Prozesse a("Wasser");
  Graph2DFenster* seite = a.Menue("mnuGraf_sub_FuT", 6); // s over T, isobars
  ASSERT_TRUE(seite);
  a.Menue("mnuMarkKoex");
  const int koex = seite->Logik().KurvenAnzahl();
  // Heating at 10 MPa, expansion to 1.5 MPa, cooling at 1.5 MPa, back to 10 MPa at constant h.
  a.Linie(2, {{"optPhase1", ""}, {"txtT1", "400"}, {"txtP1", "10000"}, {"txtEnde", "800"}}, false);
  a.Linie(4, {{"optPhase0", ""}, {"optTp1", ""}, {"txtEnde", "1500"}}, true);
  a.Linie(2, {{"txtEnde", "400"}}, true);
  a.Linie(5, {{"optPhase1", ""}, {"optTp1", ""}, {"txtEnde", "10000"}}, true);
  ASSERT_EQ(seite->Logik().KurvenAnzahl(), koex + 4);
  // Each line starts at the end of the former, on the page's axes.
  for (int i = koex + 1; i < koex + 4; ++i) {
    const Kurvenpunkte& vorher = seite->Logik().Kurve(i - 1).Punkte;
    const Kurvenpunkte& k = seite->Logik().Kurve(i).Punkte;
    ASSERT_GT(Anzahl(k), 10u);
    EXPECT_REL(k[1].X, vorher.back().X, 1e-5);
    EXPECT_REL(k[1].Y, vorher.back().Y, 1e-4);
  }
  EXPECT_EQ(seite->Logik().Kurve(koex + 1).Legende.rfind("Isentrope s = ", 0), 0u);
  // The classical picture: T upwards over s.
  a.ui.antworten.push_back(Antwort::Ja);
  seite->Logik().cmdChangeXY();
  seite->Zeige();
  EXPECT_TRUE(a.Dialog()->isVisible());
  a.Bild("prozess_kreislauf_ts.png");
}

TEST(ProzessFenster, ThePolytropeOfTheCalculatorComesIntoThePvDiagramAtOnce) {
  Prozesse a("Methan");
  Graph2DFenster* seite = a.Menue("mnuGraf_sub_cut", 1); // p over v, isotherms
  ASSERT_TRUE(seite);
  test::Tippen(seite->ParameterFeld(), "250");
  seite->Knopf("cmdDraw")->click();
  a.Menue("mnuProzessLinie", Polytrope);
  ProzessFenster* d = a.Dialog();
  EXPECT_EQ(d->findChild<QLabel*>("lblArt")->text(),
            QString::fromUtf8("Einfügen Polytrope (Zusatz-Information => \"Berechnung\")"));
  a.Setze("txtT1", "250");
  a.Setze("txtP1", "2500");
  a.Waehle("optTp1");
  a.Setze("txtEnde", "9000");
  a.Setze("txtN", "1.25");
  a.Waehle("optIdealEOS0");
  // The box offers kappa from T1 and from the reference temperature.
  auto* kappa = d->findChild<QComboBox*>("cmbKappa");
  kappa->showPopup();
  ASSERT_EQ(kappa->count(), 2);
  kappa->hidePopup();
  kappa->setCurrentIndex(0);
  emit kappa->activated(0);
  const int vorher = seite->Logik().KurvenAnzahl();
  d->Knopf("cmdDrawPL")->click();
  ASSERT_EQ(seite->Logik().KurvenAnzahl(), vorher + 1) << a.ui.Letzte().text;
  const Graph2DKurve& k = seite->Logik().Kurve(vorher);
  EXPECT_EQ(k.Legende.rfind("Polytrope n = 1.25", 0), 0u);
  ASSERT_GT(Anzahl(k.Punkte), 50u);
  // X is v, Y is p: the line rises from the start to the end pressure.
  EXPECT_NEAR(k.Punkte[1].Y, 2500, 1e-2);
  EXPECT_NEAR(k.Punkte.back().Y, 9000, 1e-1);
  EXPECT_LT(k.Punkte.back().X, k.Punkte[1].X);
  // The calculator's report stands in the dialog.
  EXPECT_TRUE(d->findChild<QPlainTextEdit*>("txtBericht")->toPlainText().contains("Polytrop"));
  a.Bild("prozess_polytrope_pv.png");
}

TEST(ProzessFenster, TheHsDiagramTakesItsPressureThroughTheDialog) {
  Prozesse a("Methan");
  Graph2DFenster* seite = a.Menue("mnuGraf_sub_HS", 2); // h over s, isobars
  ASSERT_TRUE(seite && a.Dialog());
  EXPECT_EQ(a.Dialog()->Knopf("cmdDrawPL")->text(), QString::fromUtf8("übernehmen und schließen"));
  a.Setze("txtParameter", "2000");
  a.Dialog()->Knopf("cmdDrawPL")->click();
  QApplication::processEvents();
  ASSERT_EQ(seite->Logik().KurvenAnzahl(), 1);
  EXPECT_EQ(seite->Logik().Kurve(0).p, 2000);
  EXPECT_FALSE(a.Dialog() && a.Dialog()->isVisible());
}

TEST(ProzessFenster, ThePolytropicProcessOfTheCalculationMenuEndsOnTheResultPage) {
  Prozesse a("Methan");
  a.Menue("mnuCalc", 13);
  ProzessFenster* d = a.Dialog();
  ASSERT_TRUE(d && d->isVisible());
  EXPECT_EQ(d->findChild<QLabel*>("lblArt")->text(), "Berechnung Polytropen-Prozess");
  a.Setze("txtT1", "300");
  a.Setze("txtP1", "500");
  a.Waehle("optTp1");
  a.Setze("txtEnde", "2000");
  a.Setze("cmbKappa", "1.3");
  a.Setze("txtN", "1.3");
  d->Knopf("cmdDrawPL")->click();
  QApplication::processEvents();
  ErgebnisFenster* seite = a.fenster->Rechnung()->Seite();
  ASSERT_TRUE(seite) << a.ui.Letzte().text;
  EXPECT_EQ(a.s.RechenArt, 12);
  const std::string text = seite->Logik().Kontext.ProzessText;
  EXPECT_NE(text.find("Polytrop"), std::string::npos);
}

TEST(ProzessFenster, TheResultPagesIsoCalculatorOpensWithItsStateAndClosesWithTheSubstance) {
  test::RechnungsRahmen a;
  ASSERT_TRUE(a.Menue("mnuCalc", 2));
  a.Eingeben({"150", "2000"});
  ErgebnisFenster* seite = a.Seite();
  ASSERT_TRUE(seite && seite->Knopf("cmdIsoCalc")->isEnabled());
  seite->Knopf("cmdIsoCalc")->click();
  IsoRechnerFenster* iso = a.fenster->Prozess()->IsoRechner();
  ASSERT_TRUE(iso && iso->isVisible());
  EXPECT_EQ(iso->TpVorgabe()->text().toDouble(), 150);
  // Its X-Y editor button reaches the frame's editor.
  iso->Knopf("cmdShowManuInput")->click();
  EXPECT_TRUE(a.fenster->Editoren()->XYEditor());
  a.fenster->StoffFensterSchliessen();
  QApplication::processEvents();
  EXPECT_FALSE(a.fenster->Prozess()->IsoRechner());
}

TEST(ProzessFenster, TheVesselFromTheToolbarShowsItsPictureAfterThePage) {
  test::RechnungsRahmen a;
  a.fenster->Knopf(15)->trigger();
  a.Eingeben({"1", "100", "", "150"}); // V, m, n, T
  KesselFenster* kessel = a.fenster->Prozess()->Kessel();
  ASSERT_TRUE(kessel && kessel->isVisible());
  EXPECT_TRUE(a.Seite() && a.Seite()->isVisible());
  a.fenster->StoffFensterSchliessen();
  QApplication::processEvents();
  EXPECT_FALSE(a.fenster->Prozess()->Kessel() && a.fenster->Prozess()->Kessel()->isVisible());
}

} // namespace
} // namespace quor::ui
