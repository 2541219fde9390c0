// The vessel picture's window: the caption and the texts of its logic in the drawing, the filling's
// colours below and above the level at two sizes, the error case without a filling, and the place
// of the window kept for its next opening; the vessel calculation of the frame hands its state on
// once the result page shows it.
#include "dienste/skript_oberflaeche.h"
#include "gui/process/kessel_fenster.h"
#include "gui_hilfe.h"
#include "programm_hilfe.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QSvgGenerator>

namespace quor::ui {
namespace {

using prozess::frmKessel;
using prozess::QBFarbe;

ProjectState Methan() {
  ProjectState s;
  s.Stoff.TKrit = 190.56;
  s.Stoff.pKrit = 4599;
  s.Modell.KonzeptGlobal = s.Modell.RechnungGlobal = true;
  return s;
}

// Two phases at 150 K whose liquid fills `prozent` of the volume: (1 - y) vL / v = prozent / 100.
BehaelterZustand Zweiphasig(double prozent) {
  BehaelterZustand z;
  z.T = 150;
  z.p = 1041.5;
  z.vL = 0.05;
  z.vV = 1.0;
  const double f = prozent / 100;
  z.y = (1 - f) * z.vL / ((1 - f) * z.vL + f * z.vV);
  z.v = (1 - z.y) * z.vL + z.y * z.vV;
  z.HatL = z.HatV = true;
  return z;
}

// The texts drawn into the picture, from its SVG form.
QString GezeichneteTexte(QWidget* bild) {
  QBuffer puffer;
  puffer.open(QIODevice::WriteOnly);
  QSvgGenerator svg;
  svg.setOutputDevice(&puffer);
  svg.setSize(bild->size());
  QPainter p(&svg);
  bild->render(&p);
  p.end();
  return QString::fromUtf8(puffer.data());
}

QColor QB(int qb) {
  const RGBFarbe f = QBFarbe(qb);
  return {f.R, f.G, f.B};
}

TEST(KesselFenster, DrawsTheLogicsTextsAndTheFillingAtAnySize) {
  test::App();
  ProjectState s = Methan();
  SkriptOberflaeche ui;
  for (const double prozent : {30.0, 80.0}) {
    KesselFenster w(s, ui, Zweiphasig(prozent));
    w.resize(660, 520);
    w.show();
    EXPECT_EQ(w.windowTitle(), "Behälter-Berechnung (GLOBAL-Methode)");
    const QString texte = GezeichneteTexte(w.Bild());
    for (const char* text :
         {"1041.5 kPa", "  V-Phase", "  L-Phase", "  überkritisch", "zylinderförmiger Behälter"})
      EXPECT_TRUE(texte.contains(QString::fromUtf8(text))) << text;
    EXPECT_TRUE(texte.contains(QString::fromStdString(w.Logik().lblFuellstand)));
    EXPECT_TRUE(
        texte.contains(prozent == 30 ? "Füllstand 30.0 % (Vol.-anteil)" : "Füllstand 80.0 % (Vol.-anteil)"));
    EXPECT_TRUE(test::Bild(&w, prozent == 30 ? "kessel_30.png" : "kessel_80.png"));

    // Liquid just below the level and vapour just above it, in a small and a large window.
    for (const QSize groesse : {QSize(360, 280), QSize(1200, 760)}) {
      w.resize(groesse);
      if (prozent == 30 && groesse.width() < 400) {
        EXPECT_TRUE(test::Bild(&w, "kessel_30_klein.png"));
      }
      const QImage bild = w.Bild()->grab().toImage();
      const double spiegel = w.Logik().SpiegelY() / 100 * bild.height();
      const int x = bild.width() * 40 / 100;
      EXPECT_EQ(bild.pixelColor(x, static_cast<int>(spiegel + 0.04 * bild.height())), QB(11)) << prozent;
      EXPECT_EQ(bild.pixelColor(x, static_cast<int>(spiegel - 0.04 * bild.height())), QB(1)) << prozent;
    }
  }
}

TEST(KesselFenster, ErrorShowsNoFillingAndThePlaceIsKept) {
  test::App();
  ProjectState s = Methan();
  SkriptOberflaeche ui;
  BehaelterZustand z;
  z.T = 150;
  z.Fehler = true;
  z.Status = "ERROR1";
  {
    KesselFenster w(s, ui, z);
    w.show();
    const QString texte = GezeichneteTexte(w.Bild());
    EXPECT_TRUE(texte.contains(" Error: v &lt; b") || texte.contains(" Error: v < b"));
    EXPECT_FALSE(texte.contains("Füllstand"));
    EXPECT_TRUE(test::Bild(&w, "kessel_fehler.png"));
    const QImage bild = w.Bild()->grab().toImage();
    EXPECT_EQ(bild.pixelColor(bild.width() * 40 / 100, bild.height() / 2), QColor(Qt::white));
    w.move(120, 90);
    w.resize(500, 400);
    w.findChild<QPushButton*>("cmdHilfe")->click();
    EXPECT_EQ(ui.hilfeThemen, std::vector<int>{prozess::HilfeKessel});
    w.close();
  }
  EXPECT_TRUE(s.Rechnung.Kessel.gesetzt);
  EXPECT_EQ(s.Rechnung.Kessel.breite, 500);
  KesselFenster wieder(s, ui, Zweiphasig(50));
  EXPECT_EQ(wieder.size(), QSize(500, 400));
  EXPECT_EQ(wieder.pos(), QPoint(s.Rechnung.Kessel.x, s.Rechnung.Kessel.y));
}

// GLOBAL from the toolbar, then PARTIAL through the concept dialog, whose page opens with the first
// values: each calculation hands its state on once, with the page on show; an error too.
TEST(KesselFenster, TheVesselCalculationHandsItsStateOnAfterThePage) {
  test::RechnungsRahmen a;
  std::vector<BehaelterZustand> gezeigt;
  bool seiteSichtbar = false;
  a.R().BehaelterZeigen = [&](const BehaelterZustand& z) {
    gezeigt.push_back(z);
    seiteSichtbar = a.Seite() && a.Seite()->isVisible();
  };
  a.fenster->Knopf(15)->trigger();
  a.Eingeben({"1", "100", "", "150"}); // V, m, n, T
  ASSERT_EQ(gezeigt.size(), 1u);
  EXPECT_TRUE(seiteSichtbar);
  EXPECT_TRUE(gezeigt[0].HatL && gezeigt[0].HatV);
  EXPECT_EQ(gezeigt[0].T, 150);
  a.Eingeben({"1", "2000", "", "150"});
  ASSERT_EQ(gezeigt.size(), 2u);
  EXPECT_EQ(gezeigt[1].Status, "ERROR1");

  ASSERT_TRUE(a.Menue("mnuCalc", 16));
  ASSERT_NE(a.R().CalcIn(), nullptr);
  a.R().CalcIn()->OK()->click();
  QApplication::processEvents();
  a.Eingeben({"1", "100", "", "150"});
  ASSERT_EQ(gezeigt.size(), 3u);
  EXPECT_TRUE(seiteSichtbar);
  EXPECT_FALSE(gezeigt[2].Fehler);
}

} // namespace
} // namespace quor::ui
