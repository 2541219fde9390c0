// The 2D diagram page in the frame: from a menu entry to a drawn curve, the chart showing what the
// page's logic holds through zoom, reset, swapped axes and deletes, the question when the axes don't
// fit, the insert menu while a page is open; and the pictures of typical diagrams.
#include "diagrams/diagramm_befehle.h"
#include "diagrams/diagramm_datei_befehle.h"
#include "gui/diagrams/diagramm2d_flaeche.h"
#include "gui/diagrams/graph2d_steuerung.h"
#include "programm_hilfe.h"
#include "support/relativ.h"

#include <QClipboard>
#include <QFile>
#include <QMdiArea>
#include <QTemporaryDir>
#include <QMouseEvent>
#include <qcustomplot.h>

#include <cmath>

namespace quor::ui {
namespace {

// The frame with a substance of the database chosen by its name, with its default models.
struct Diagramme : test::Programm {
  explicit Diagramme(const char* stoff) { StoffWaehlen(stoff); }

  Graph2DFenster* Seite() { return fenster->Graf2D()->Seite(); }

  // A menu entry; the page afterwards (null when the entry is disabled or no page opened).
  Graph2DFenster* Menue(const char* name, int index = -1) {
    QAction* a = fenster->Befehl(name, index);
    EXPECT_TRUE(a && a->isEnabled()) << name << " " << index;
    if (!a || !a->isEnabled()) return nullptr;
    a->trigger();
    QApplication::processEvents();
    return Seite();
  }

  // The parameter typed into the page's field and Enter pressed.
  void Kurve(const QString& wert) {
    QLineEdit* feld = Seite()->ParameterFeld();
    feld->clear();
    test::Tippen(feld, wert);
    test::Taste(feld, Qt::Key_Return);
  }

  bool Bild(const char* name) {
    QApplication::processEvents();
    return test::Bild(fenster.get(), name);
  }
};

// The points a chart's curve draws: its gaps left out.
int Punkte(const QCPCurve* kurve) {
  int n = 0;
  for (auto it = kurve->data()->constBegin(); it != kurve->data()->constEnd(); ++it)
    n += !std::isnan(it->key) && !std::isnan(it->value);
  return n;
}

// The chart shows the logic's picture: a plottable per curve and point mark with the curve's
// points, the axes with their texts and ranges, the legend as the logic has it.
void ZeigtBild(Graph2DFenster* seite) {
  const Diagramm2D b = seite->Logik().Bild();
  QCustomPlot* plot = seite->Flaeche()->Plot();
  ASSERT_EQ(plot->plottableCount(), static_cast<int>(b.Reihen.size() + b.Marken.size()));
  for (std::size_t i = 0; i < b.Reihen.size(); ++i) {
    const auto* kurve = qobject_cast<QCPCurve*>(plot->plottable(static_cast<int>(i)));
    ASSERT_NE(kurve, nullptr);
    EXPECT_EQ(Punkte(kurve), static_cast<int>(b.Reihen[i].X.size())) << b.Reihen[i].Name;
  }
  const std::pair<QCPAxis*, const Achse2D*> achsen[] = {{plot->xAxis, &b.AchseX}, {plot->yAxis, &b.AchseY}};
  for (const auto& [achse, soll] : achsen) {
    EXPECT_EQ(achse->label().toStdString(), soll->Titel);
    EXPECT_REL(achse->range().lower, soll->Min, 1e-9);
    EXPECT_REL(achse->range().upper, soll->Max, 1e-9);
  }
  EXPECT_EQ(plot->legend->visible(), b.LegendeSichtbar);
}

void Maus(QWidget* ziel, QEvent::Type art, const QPoint& ort, Qt::MouseButton knopf) {
  const Qt::MouseButtons gedrueckt =
      art == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(knopf);
  QMouseEvent e(art, QPointF(ort), ziel->mapToGlobal(QPointF(ort)), knopf, gedrueckt, Qt::NoModifier);
  QApplication::sendEvent(ziel, &e);
}

QAction* Eintrag(QMenu* menue, const char* name, int index) {
  for (QAction* a : menue->findChildren<QAction*>(name))
    if (a->property("index").toInt() == index) return a;
  return nullptr;
}

TEST(Graph2DFenster, FromTheMenuToCurvesThatTheChartShowsThroughZoomSwapAndDelete) {
  Diagramme a("Methan");
  // Every diagram of the 2D menu is there for a substance with its models.
  for (const BefehlsZeile& z : a.fenster->Logik().Befehle.Zeilen()) {
    if (CodeVonMenue(z.name, z.index) == 0) continue;
    EXPECT_TRUE(a.fenster->Befehl(QString::fromStdString(z.name), z.index)->isEnabled()) << z.Schluessel();
  }
  EXPECT_FALSE(a.fenster->Befehl("mnuMarkKoex")->isEnabled()); // no page yet
  Graph2DFenster* seite = a.Menue("mnuGraf_sub_cut", 1);
  ASSERT_NE(seite, nullptr);
  const QMdiArea* flaeche = a.fenster->Arbeitsflaeche();
  EXPECT_TRUE(flaeche->viewport()->rect().contains(a.fenster->Graf2D()->SeitenFenster()->geometry()));
  EXPECT_EQ(seite->ParameterLabel()->text(), "T / K =");
  EXPECT_TRUE(a.fenster->Befehl("mnuMarkKoex")->isEnabled());

  a.Kurve("150");
  seite->ParameterFeld()->setText("170");
  seite->Knopf("cmdDraw")->click();
  EXPECT_EQ(seite->Logik().KurvenAnzahl(), 2);
  EXPECT_TRUE(a.ui.Meldungen().empty()) << a.ui.Letzte().text;
  ZeigtBild(seite);

  // A rectangle dragged inside the plot area narrows both axes; the status line follows the mouse.
  QCustomPlot* plot = seite->Flaeche()->Plot();
  const QRect r = plot->axisRect()->rect();
  const QPoint von = r.topLeft() + QPoint(r.width() / 4, r.height() / 4);
  const QPoint bis = r.topLeft() + QPoint(r.width() / 2, 3 * r.height() / 4);
  Maus(plot, QEvent::MouseButtonPress, von, Qt::LeftButton);
  Maus(plot, QEvent::MouseMove, bis, Qt::LeftButton);
  const Punkt2D unter = seite->Flaeche()->DatenBei(bis);
  const std::string ort = seite->Logik().Maus(unter.X, unter.Y, 0, 0).Koordinaten;
  EXPECT_FALSE(ort.empty());
  EXPECT_TRUE(seite->Statuszeile()->text().startsWith(QString::fromStdString(ort)))
      << seite->Statuszeile()->text().toStdString();
  Maus(plot, QEvent::MouseButtonRelease, bis, Qt::LeftButton);
  const auto ganz = seite->Logik().LetzteEinstellung();
  const auto eng = seite->Logik().Bereich();
  EXPECT_GT(eng[0], ganz[0]);
  EXPECT_LT(eng[1], ganz[1]);
  EXPECT_GT(eng[2], ganz[2]);
  EXPECT_LT(eng[3], ganz[3]);
  ZeigtBild(seite);
  seite->Knopf("cmdZoomReset")->click();
  EXPECT_EQ(seite->Logik().Bereich(), ganz);
  ZeigtBild(seite);

  // Swapped axes: the texts change places with the curves.
  const QString yText = plot->yAxis->label();
  a.ui.antworten = {Antwort::Ja};
  seite->Knopf("cmdChangeXY")->click();
  EXPECT_TRUE(seite->Logik().Gekippt());
  EXPECT_EQ(plot->xAxis->label(), yText);
  ZeigtBild(seite);
  seite->Knopf("cmdChangeXY")->click();
  EXPECT_FALSE(seite->Logik().Gekippt());

  // The page's menu: a curve to the clipboard, another deleted, the legend hidden.
  std::unique_ptr<QMenu> menue = seite->HauptMenue(-1);
  ASSERT_NE(Eintrag(menue.get(), "mnuKurveKopieren", 1), nullptr);
  Eintrag(menue.get(), "mnuKurveKopieren", 1)->trigger();
  EXPECT_EQ(a.ui.zwischenablage, seite->Logik().KurveAlsText(1));
  Eintrag(menue.get(), "mnuSubDelKurv", 0)->trigger();
  Eintrag(menue.get(), "mnuDelLegend", -1)->trigger();
  EXPECT_EQ(seite->Logik().KurvenAnzahl(), 1);
  EXPECT_FALSE(seite->Knopf("cmdLegende")->isChecked());
  ZeigtBild(seite);

  // Other axes: No keeps the diagram; a projection on the same axes joins it at once.
  a.ui.antworten = {Antwort::Nein};
  EXPECT_EQ(a.Menue("mnuGraf_sub_proj", 8), seite);
  EXPECT_EQ(a.ui.Letzte().titel, "Warnung");
  EXPECT_EQ(seite->Logik().KurvenAnzahl(), 1);
  a.Menue("mnuGraf_sub_proj", 0);
  EXPECT_EQ(seite->Logik().KurvenAnzahl(), 2);
  a.Menue("mnuMarkCritPointEx");
  EXPECT_EQ(seite->Logik().Marken().size(), 1u);
  ZeigtBild(seite);

  // Another substance closes the page, and the insert menu waits for the next one.
  a.fenster->StoffFensterSchliessen();
  QApplication::processEvents();
  EXPECT_EQ(a.Seite(), nullptr);
  a.fenster->Aktualisieren();
  EXPECT_FALSE(a.fenster->Befehl("mnuMarkKoex")->isEnabled());
}

// The page's file menu: a diagram saved, cleared and loaded back; its point sets and curves into .XY
// files; the picture as SVG file, on the clipboard and printed after the question for a black sheet.
TEST(Graph2DFenster, TheFileMenuKeepsTheDiagramAndSendsItsPicture) {
  Diagramme a("Propan");
  Graph2DFenster* seite = a.Menue("mnuGraf_sub_cut", 1);
  ASSERT_NE(seite, nullptr);
  a.Kurve("330");
  a.Kurve("360");
  seite->Einfuegen("mnuMarkKoex", -1);
  ASSERT_TRUE(seite->Logik().cmdExternPoints({0.5}, {1000}, PunktQuelle::XYEditor, "Punkt"));
  QTemporaryDir ordner;
  const auto pfad = [&ordner](const char* name) { return ordner.filePath(name).toStdString(); };

  QMenu* menue = seite->Knopf("cmdDatei")->menu();
  ASSERT_NE(menue, nullptr);
  emit menue->aboutToShow();
  for (const char* name : {"mnuSaveOC2", "mnuLoadOC2", "mnuAddPunkte", "mnuBildDrucken", "mnuSchwarzesBlatt"})
    EXPECT_NE(Eintrag(menue, name, -1), nullptr) << name;
  EXPECT_NE(Eintrag(menue, "mnuSaveKurve", 2), nullptr);   // the coexistence curve
  EXPECT_NE(Eintrag(menue, "mnuSavePunktSatz", 0), nullptr);

  a.ui.dateien = {pfad("propan.oc2")};
  Eintrag(menue, "mnuSaveOC2", -1)->trigger();
  const Diagramm2D vorher = seite->Logik().Bild();
  seite->Logik().mnuDelTotal();
  a.ui.dateien = {pfad("propan.oc2")};
  ASSERT_TRUE(seite->DiagrammLaden());
  EXPECT_EQ(seite->Logik().KurvenAnzahl(), 3);
  EXPECT_EQ(seite->Logik().Bild().Reihen.size(), vorher.Reihen.size());
  ZeigtBild(seite);
  a.ui.dateien = {pfad("koex.XY")};
  Eintrag(menue, "mnuSaveKurve", 2)->trigger();
  EXPECT_TRUE(QFile::exists(QString::fromStdString(pfad("koex.XY"))));

  a.ui.dateien = {pfad("bild.svg")};
  ASSERT_TRUE(seite->BildSchreiben(true));
  QFile svg(QString::fromStdString(pfad("bild.svg")));
  ASSERT_TRUE(svg.open(QIODevice::ReadOnly));
  const QByteArray inhalt = svg.readAll();
  EXPECT_TRUE(inhalt.contains("<polyline") || inhalt.contains("<path"));
  ASSERT_TRUE(seite->BildKopieren(false));
  EXPECT_FALSE(QGuiApplication::clipboard()->image().isNull());
  EXPECT_TRUE(seite->Statuszeile()->text().endsWith(ZwischenablageRat));

  // A black sheet: No prints nothing, Yes prints.
  emit menue->aboutToShow();
  Eintrag(menue, "mnuSchwarzesBlatt", -1)->trigger();
  EXPECT_EQ(seite->Logik().Bild().Seitenfarbe, (RGBFarbe{0, 0, 0}));
  const QString pdf = ordner.filePath("druck.pdf");
  a.ui.antworten = {Antwort::Nein};
  EXPECT_FALSE(seite->BildDrucken(pdf));
  EXPECT_FALSE(QFile::exists(pdf));
  EXPECT_EQ(a.ui.Letzte().titel, "WARNUNG");
  a.ui.antworten = {Antwort::Ja};
  EXPECT_TRUE(seite->BildDrucken(pdf));
  EXPECT_GT(QFile(pdf).size(), 1000);
}

TEST(Graph2DFenster, PropaneIsothermsWithTheCoexistenceCurveTieLineAndCriticalPoint) {
  Diagramme a("Propan");
  Graph2DFenster* seite = a.Menue("mnuGraf_sub_cut", 1);
  ASSERT_NE(seite, nullptr);
  const RGBFarbe farben[] = {{200, 0, 0}, {230, 120, 0}, {0, 140, 0}, {0, 0, 220}, {120, 0, 160}};
  const char* temperaturen[] = {"420", "370", "350", "330", "300"};
  for (int i = 0; i < 5; ++i) {
    seite->FarbeVorwaehlen(farben[i]);
    a.Kurve(temperaturen[i]);
  }
  seite->FarbeVorwaehlen({0, 0, 0});
  for (const char* eintrag : {"mnuMarkKoex", "mnuMarkKonnode", "mnuMarkCritPointEx"})
    seite->Einfuegen(eintrag, -1);
  EXPECT_EQ(seite->Logik().KurvenAnzahl(), 7);
  EXPECT_EQ(seite->Logik().Marken().size(), 1u);
  ZeigtBild(seite);
  EXPECT_TRUE(a.Bild("graph2d_propan_pv.png"));
}

TEST(Graph2DFenster, WaterVapourPressureDrawsAtOnceWithItsLegend) {
  Diagramme a("Wasser");
  Graph2DFenster* seite = a.Menue("mnuGraf_sub_proj", 8);
  ASSERT_NE(seite, nullptr);
  EXPECT_EQ(seite->Logik().KurvenAnzahl(), 1);
  EXPECT_FALSE(seite->ParameterFeld()->isVisibleTo(seite)); // a projection takes no parameter
  EXPECT_TRUE(seite->Flaeche()->Plot()->legend->visible());
  ZeigtBild(seite);
  EXPECT_TRUE(a.Bild("graph2d_wasser_lnp.png"));
}

TEST(Graph2DFenster, MethaneEnthalpyIsobarAndDensitiesWithTheStraightDiameter) {
  Diagramme a("Methan");
  Graph2DFenster* seite = a.Menue("mnuGraf_sub_FuT", 5);
  ASSERT_NE(seite, nullptr);
  EXPECT_EQ(seite->ParameterLabel()->text(), "p / kPa =");
  a.Kurve("2000");
  EXPECT_EQ(seite->Logik().KurvenAnzahl(), 1);
  ZeigtBild(seite);
  EXPECT_TRUE(a.Bild("graph2d_methan_h_isobare.png"));

  a.ui.antworten = {Antwort::Ja}; // other axes: the diagram goes
  seite = a.Menue("mnuGraf_sub_proj", 4);
  ASSERT_NE(seite, nullptr);
  seite->FarbeVorwaehlen({200, 0, 0});
  a.Menue("mnuMarkHalbierende");
  EXPECT_EQ(seite->Logik().KurvenAnzahl(), 2);
  ZeigtBild(seite);
  EXPECT_TRUE(a.Bild("graph2d_methan_rho_t.png"));
}

} // namespace
} // namespace quor::ui
