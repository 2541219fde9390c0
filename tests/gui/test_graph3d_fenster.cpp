// The 3D diagram page in the frame: from an entry of the 3D menu to a page whose chart holds the
// logic's surface, with the display options, the critical point, the iso-lines, the hint of the cp
// surface, the mouse modes and the range dialog reaching the picture; and the pictures of the propane
// p(v, T) surface with its two-phase plane and of the water h(p, T) surface with isobars. The drawing
// itself needs OpenGL (xvfb-run); on the offscreen platform those checks are skipped.
#include "diagrams/diagramm3d_art.h"
#include "gui/diagrams/diagramm3d_flaeche.h"
#include "gui/diagrams/graph3d_dialog.h"
#include "gui/diagrams/graph3d_steuerung.h"
#include "programm_hilfe.h"
#include "support/relativ.h"

#include <Q3DCamera>
#include <Q3DScene>
#include <Q3DSurface>
#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QMdiArea>
#include <QPainter>
#include <QProcess>
#include <QRadioButton>
#include <QSpinBox>
#include <QStandardPaths>
#include <QSurface3DSeries>
#include <QSurfaceDataProxy>
#include <QTemporaryDir>
#include <QTimer>
#include <QValue3DAxis>

#include <cstdlib>

namespace quor::ui {
namespace {

// The frame with a substance of the database chosen by its name. On a display (xvfb-run) the chart
// needs the X11 platform, which must be asked for before the application is made.
struct Flaechen : test::Programm {
  static const char* Plattform() {
    if (!QCoreApplication::instance() && std::getenv("DISPLAY")) setenv("QT_QPA_PLATFORM", "xcb", 1);
    return QUOR_PROGRAMM_VERZEICHNIS;
  }

  explicit Flaechen(const char* stoff) : test::Programm(Plattform()) { StoffWaehlen(stoff); }

  Graph3DFenster* Seite() { return fenster->Graf3D()->Seite(); }

  Graph3DFenster* Menue(int index) {
    QAction* a = fenster->Befehl("mnu3DSub", index);
    EXPECT_TRUE(a && a->isEnabled()) << index;
    if (!a || !a->isEnabled()) return nullptr;
    a->trigger();
    QApplication::processEvents();
    return Seite();
  }

  // The frame's picture with the chart drawn into its place (a window's grab leaves the OpenGL
  // surface out); written only when QUOR_BILDER_VERZEICHNIS is set.
  bool Bild(const char* name) {
    QApplication::processEvents();
    const char* verzeichnis = std::getenv("QUOR_BILDER_VERZEICHNIS");
    if (!verzeichnis) return true;
    QPixmap bild = fenster->grab();
    Diagramm3DFlaeche* chart = Seite()->Flaeche();
    QPainter maler(&bild);
    maler.drawImage(chart->mapTo(fenster.get(), QPoint(0, 0)), chart->Bild(chart->size()));
    maler.end();
    return bild.save(QDir(verzeichnis).filePath(name));
  }
};

// The chart holds the logic's picture: the grid with its heights, one series per iso-line, the
// axes with their texts when it can draw.
void ZeigtBild(Graph3DFenster* seite) {
  const Flaeche3D b = seite->Logik().Bild();
  Diagramm3DFlaeche* chart = seite->Flaeche();
  const QSurfaceDataProxy* daten = chart->Daten();
  ASSERT_EQ(daten->rowCount(), static_cast<int>(b.Y.size()));
  ASSERT_EQ(daten->columnCount(), static_cast<int>(b.X.size()));
  const std::size_t j = b.Y.size() / 2, i = b.X.size() / 3;
  if (b.Gueltig.empty() || b.Gueltig[ZellIndex(b, j, i)]) {
    EXPECT_REL(daten->itemAt(static_cast<int>(j), static_cast<int>(i))->y(), b.Z[ZellIndex(b, j, i)], 1e-6);
  }
  std::size_t linien = 0;
  for (const Linie3D& l : b.Linien)
    linien += l.Punkte.size() >= 2;
  EXPECT_EQ(chart->Linien().size(), linien);
  if (!chart->KannZeichnen()) return;
  EXPECT_EQ(chart->Graph()->axisX()->title().toStdString(), b.AchseX.Titel);
  EXPECT_EQ(chart->Graph()->axisZ()->title().toStdString(), b.AchseY.Titel);
  EXPECT_EQ(chart->Graph()->axisY()->title().toStdString(), b.AchseZ.Titel);
  EXPECT_EQ(chart->Graph()->seriesList().size(), static_cast<int>(1 + linien));
}

// The middle of the coloured pixels of the chart's picture: where the surface stands in the view.
QPointF Schwerpunkt(const Diagramm3DFlaeche* chart) {
  const QImage bild = chart->Bild(QSize(600, 400));
  double x = 0, y = 0, n = 0;
  for (int j = 0; j < bild.height(); ++j)
    for (int i = 0; i < bild.width(); ++i)
      if (bild.pixelColor(i, j).saturation() > 80) {
        x += i;
        y += j;
        ++n;
      }
  return n > 0 ? QPointF(x / n, y / n) : QPointF();
}

QMouseEvent Maus(QEvent::Type art, const QPoint& ort) {
  const Qt::MouseButtons gedrueckt = art == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
  return QMouseEvent(art, QPointF(ort), QPointF(ort), Qt::LeftButton, gedrueckt, Qt::NoModifier);
}

// A drag with the left button from `von` to `bis` on the chart's input.
void Ziehen(Q3DSurface* graph, const QPoint& von, const QPoint& bis) {
  QAbstract3DInputHandler* h = graph->activeInputHandler();
  QMouseEvent druck = Maus(QEvent::MouseButtonPress, von);
  h->mousePressEvent(&druck, von);
  QMouseEvent zug = Maus(QEvent::MouseMove, bis);
  h->mouseMoveEvent(&zug, bis);
  QMouseEvent los = Maus(QEvent::MouseButtonRelease, bis);
  h->mouseReleaseEvent(&los, bis);
}

TEST(Graph3DFenster, FromTheMenuToASurfaceWhoseOptionsReachTheChart) {
  Flaechen a("Methan");
  for (int index : {0, 1, 2, 4, 5, 6, 7, 8, 9, 10})
    EXPECT_TRUE(a.fenster->Befehl("mnu3DSub", index)->isEnabled()) << index;

  Graph3DFenster* seite = a.Menue(6); // H(p, T)
  ASSERT_NE(seite, nullptr);
  EXPECT_EQ(seite->Logik().Art(), art3d::H);
  EXPECT_FALSE(seite->Logik().Gitter().Z.empty());
  EXPECT_TRUE(a.ui.Meldungen().empty()) << a.ui.Letzte().text;
  const QMdiArea* flaeche = a.fenster->Arbeitsflaeche();
  EXPECT_TRUE(flaeche->viewport()->rect().contains(a.fenster->Graf3D()->SeitenFenster()->geometry()));
  EXPECT_TRUE(seite->windowTitle().contains("Enthalpie"));
  EXPECT_FALSE(seite->Hinweis()->isVisibleTo(seite));
  ZeigtBild(seite);

  // The display options reach the logic and the chart's series.
  QSurface3DSeries* reihe = seite->Flaeche()->Reihe();
  seite->Option("chkMesh")->setChecked(true);
  seite->Option("chkSolid")->setChecked(false);
  EXPECT_TRUE(seite->Logik().Anzeige.Netz);
  EXPECT_EQ(reihe->drawMode(), QSurface3DSeries::DrawFlags(QSurface3DSeries::DrawWireframe));
  seite->Option("chkSolid")->setChecked(true);
  EXPECT_EQ(reihe->drawMode(), QSurface3DSeries::DrawSurfaceAndWireframe);
  seite->Option("chkShaded")->setChecked(false);
  EXPECT_TRUE(reihe->isFlatShadingEnabled());
  const int hell = reihe->baseColor().lightness();
  seite->Option("chkTransparent")->setChecked(true);
  EXPECT_GT(reihe->baseColor().lightness(), hell + 40);
  seite->Option("chkZoned")->setChecked(false);
  EXPECT_EQ(reihe->colorStyle(), Q3DTheme::ColorStyleUniform);
  seite->Option("chkContoured")->setChecked(true);
  EXPECT_EQ(reihe->colorStyle(), Q3DTheme::ColorStyleRangeGradient);
  seite->Option("chkGrid")->setChecked(false);
  EXPECT_FALSE(seite->Logik().Anzeige.Gitterebenen);
  if (seite->Flaeche()->KannZeichnen()) {
    EXPECT_FALSE(seite->Flaeche()->Graph()->activeTheme()->isGridEnabled());
  }

  // The critical point and the iso-lines: isobars and isotherms, the latter halved.
  seite->Option("mnuAddCritPoint")->setChecked(true);
  ASSERT_EQ(seite->Logik().Bild().Punkte.size(), 1u);
  EXPECT_EQ(seite->Logik().Bild().Punkte[0].Text, "CrP");
  EXPECT_EQ(seite->findChild<QLabel*>("lblIsoV")->text(), "Isobaren");
  seite->Anzahl("UpDown1_IsoV")->setValue(5);
  seite->Anzahl("UpDown1_IsoT")->setValue(4);
  seite->Knopf("mnuAddIsobars")->click();
  const std::size_t alle = seite->Logik().Bild().Linien.size();
  EXPECT_GE(alle, 9u);
  seite->Option("chkIsothermenHalbe")->setChecked(true);
  seite->Knopf("mnuAddIsobars")->click();
  EXPECT_LT(seite->Logik().Bild().Linien.size(), alle);
  ZeigtBild(seite);
  seite->Knopf("mnuDelIsolinien")->click();
  EXPECT_TRUE(seite->Logik().Bild().Linien.empty());
  EXPECT_TRUE(seite->Flaeche()->Linien().empty());

  // The cp surface on the same page shows why its spike is there; another surface hides it again.
  EXPECT_EQ(a.Menue(4), seite);
  EXPECT_TRUE(seite->Hinweis()->isVisibleTo(seite));
  EXPECT_EQ(seite->Hinweis()->text(), "am kritischen Punkt cp => unendlich");
  ZeigtBild(seite);
  // p(v, T) with the cubic model asks about the real behaviour.
  a.ui.antworten = {Antwort::Ja};
  EXPECT_EQ(a.Menue(0), seite);
  EXPECT_EQ(a.ui.Letzte().titel, "nur für kubische EOS");
  EXPECT_TRUE(seite->Logik().Reales());
  EXPECT_FALSE(seite->Hinweis()->isVisibleTo(seite));
  EXPECT_EQ(seite->findChild<QLabel*>("lblIsoV")->text(), "Isochoren");
  ZeigtBild(seite);

  // Another substance closes the page.
  a.fenster->StoffFensterSchliessen();
  QApplication::processEvents();
  EXPECT_EQ(a.Seite(), nullptr);
}

// A surface saved as .oc3 comes back with its options and counts on the panel after they were changed.
TEST(Graph3DFenster, ASavedSurfaceComesBackWithItsPanel) {
  Flaechen a("Methan");
  Graph3DFenster* seite = a.Menue(6);
  ASSERT_NE(seite, nullptr);
  seite->Option("chkMesh")->setChecked(true);
  seite->Option("mnuAddCritPoint")->setChecked(true);
  seite->Anzahl("UpDown1_IsoT")->setValue(3);
  seite->Knopf("mnuAddIsobars")->click();
  QTemporaryDir ordner;
  const std::string pfad = ordner.filePath("h.oc3").toStdString();
  a.ui.dateien = {pfad};
  seite->Knopf("cmdSave3D")->click();
  const Flaeche3D vorher = seite->Logik().Bild();

  seite->Option("chkMesh")->setChecked(false);
  seite->Option("mnuAddCritPoint")->setChecked(false);
  seite->Anzahl("UpDown1_IsoT")->setValue(0);
  a.ui.antworten = {Antwort::Ja};
  a.Menue(0); // another surface
  a.ui.dateien = {pfad};
  seite->Knopf("cmdLoad3D")->click();
  EXPECT_EQ(seite->Logik().Art(), art3d::H);
  EXPECT_TRUE(seite->Option("chkMesh")->isChecked());
  EXPECT_TRUE(seite->Option("mnuAddCritPoint")->isChecked());
  EXPECT_EQ(seite->Anzahl("UpDown1_IsoT")->value(), 3);
  EXPECT_EQ(seite->findChild<QLabel*>("lblIsoV")->text(), "Isobaren");
  EXPECT_EQ(seite->Logik().Bild().Z, vorher.Z);
  EXPECT_EQ(seite->Logik().Bild().Linien.size(), vorher.Linien.size());
  ZeigtBild(seite);
}

TEST(Graph3DFenster, MouseModesMoveSpinAndScaleTheScene) {
  Flaechen a("Methan");
  Graph3DFenster* seite = a.Menue(5);
  ASSERT_NE(seite, nullptr);
  seite->Maus("OptionScale")->click();
  EXPECT_EQ(seite->Flaeche()->Modus(), MausModus::Skalieren);
  seite->Maus("OptionMove")->click();
  EXPECT_EQ(seite->Flaeche()->Modus(), MausModus::Verschieben);
  if (!seite->Flaeche()->KannZeichnen())
    GTEST_SKIP() << "the 3D chart cannot draw here (no OpenGL context, or offscreen): run under xvfb-run";
  Q3DCamera* kamera = seite->Flaeche()->Graph()->scene()->activeCamera();
  // Moving: the scene follows the mouse from every side (within what perspective and the chart's edge
  // do to the middle of the coloured pixels).
  for (const float drehung : {30.0f, 120.0f, -100.0f}) {
    kamera->setXRotation(drehung);
    kamera->setTarget(QVector3D());
    const QPointF vorher = Schwerpunkt(seite->Flaeche());
    Ziehen(seite->Flaeche()->Graph(), {200, 200}, {260, 200});
    const QPointF rechts = Schwerpunkt(seite->Flaeche()) - vorher;
    EXPECT_GT(rechts.x(), 10) << drehung;
    EXPECT_LT(std::abs(rechts.y()), rechts.x() / 2) << drehung;
    kamera->setTarget(QVector3D());
    Ziehen(seite->Flaeche()->Graph(), {200, 200}, {200, 260});
    const QPointF runter = Schwerpunkt(seite->Flaeche()) - vorher;
    EXPECT_GT(runter.y(), 10) << drehung;
    EXPECT_LT(std::abs(runter.x()), runter.y() / 2) << drehung;
  }
  kamera->setXRotation(30);
  EXPECT_GT(kamera->target().length(), 0.05f);
  // An option keeps the camera where the user left it; the view's reset brings it back.
  const float zoom = kamera->zoomLevel();
  seite->Maus("OptionScale")->click();
  Ziehen(seite->Flaeche()->Graph(), {200, 200}, {200, 120}); // upwards enlarges
  EXPECT_GT(kamera->zoomLevel(), zoom * 1.3f);
  seite->Maus("OptionSpin")->click();
  const float drehung = kamera->xRotation();
  Ziehen(seite->Flaeche()->Graph(), {200, 200}, {300, 200});
  EXPECT_NE(kamera->xRotation(), drehung);
  const Ansicht3D gedreht = seite->Flaeche()->Ansicht();
  seite->Option("chkMesh")->setChecked(true);
  EXPECT_EQ(kamera->xRotation(), static_cast<float>(gedreht.Horizontal));
  EXPECT_GT(kamera->target().length(), 0.05f);
  seite->Knopf("cmdAnsicht")->click();
  EXPECT_EQ(kamera->target(), QVector3D());
  EXPECT_REL(kamera->xRotation(), seite->Logik().Bild().Ansicht.Horizontal, 1e-6);
}

// Fills the open range dialog, presses OK and tells whether it closed.
bool Eingeben(const std::array<QString, 6>& werte) {
  auto* d = qobject_cast<Bereich3DDialog*>(QApplication::activeModalWidget());
  if (!d) return false;
  for (int i = 0; i < 6; ++i)
    d->Feld(i)->setText(werte[static_cast<std::size_t>(i)]);
  d->accept();
  return !d->isVisible();
}

TEST(Graph3DFenster, RangeDialogRefusesWithTheLogicsMessagesAndRecomputes) {
  Flaechen a("Methan");
  Graph3DFenster* seite = a.Menue(6);
  ASSERT_NE(seite, nullptr);
  const Bereich3D vorher = seite->Logik().Bereich();
  std::vector<bool> geschlossen;
  QTimer::singleShot(0, [&] {
    geschlossen.push_back(Eingeben({"1000", "1000", "150", "250", "-0.01111", "0.01111"}));
    geschlossen.push_back(Eingeben({"1000", "abc", "150", "250", "-0.01111", "0.01111"}));
    geschlossen.push_back(Eingeben({"500", "3000", "150", "250", "-0.01111", "0.01111"}));
    if (auto* d = QApplication::activeModalWidget()) d->close(); // a dialog left open ends the test
  });
  seite->Knopf("cmdCoord3")->click();
  ASSERT_EQ(geschlossen, (std::vector<bool>{false, false, true}));
  const auto meldungen = a.ui.Meldungen();
  ASSERT_EQ(meldungen.size(), 2u);
  EXPECT_EQ(meldungen[0].text, "Untere Grenzen müssen kleiner als obere Grenzen sein!");
  EXPECT_EQ(meldungen[1].text, "Es wurde ein unzulässiger Wert eingegeben.");
  EXPECT_EQ(meldungen[1].titel, "EINGABE-FEHLER");
  const Bereich3D& b = seite->Logik().Bereich();
  EXPECT_EQ(b.xMin, 500);
  EXPECT_EQ(b.yMax, 250);
  EXPECT_NE(b.xMax, vorher.xMax);
  const Flaeche3D bild = seite->Logik().Bild();
  EXPECT_REL(bild.X.front(), 500, 1e-9);
  EXPECT_REL(bild.Y.back(), 250, 1e-9);
  ZeigtBild(seite);
}

// The pictures of the documentation, and what leaves the page as a picture: the clipboard and a PDF.
TEST(Graph3DFenster, PropanePressureSurfaceWithItsTwoPhasePlane) {
  Flaechen a("Propan");
  a.ui.antworten = {Antwort::Ja};
  Graph3DFenster* seite = a.Menue(0);
  ASSERT_NE(seite, nullptr);
  ASSERT_TRUE(seite->Logik().Reales());
  // Down to 290 K, where the two-phase region is wide; the liquid's steep rise is cut at 6000 kPa.
  ASSERT_TRUE(seite->Logik().cmdCoord3({"0", "2", "290", "450", "0", "6000"}));
  seite->Option("mnuAddCritPoint")->setChecked(true);
  seite->Anzahl("UpDown1_IsoT")->setValue(12);
  seite->Knopf("mnuAddIsobars")->click();
  ZeigtBild(seite);
  // A row below the critical temperature holds the saturation pressure across the two-phase region.
  const Flaeche3D b = seite->Logik().Bild();
  const double tKrit = a.s.Stoff.TKrit * a.s.Einheiten.TFaktor;
  std::size_t j = 0;
  while (j + 1 < b.Y.size() && b.Y[j + 1] < 0.97 * tKrit)
    ++j;
  int gleich = 0;
  for (std::size_t i = 1; i < b.X.size(); ++i)
    gleich += b.Z[ZellIndex(b, j, i)] == b.Z[ZellIndex(b, j, i - 1)];
  EXPECT_GE(gleich, 2) << "T = " << b.Y[j];
  if (!seite->Flaeche()->KannZeichnen())
    GTEST_SKIP() << "the 3D chart cannot draw here (no OpenGL context, or offscreen): run under xvfb-run";
  // Seen from the vapour side, the isotherms run flat across the two-phase region.
  seite->Flaeche()->Graph()->scene()->activeCamera()->setCameraPosition(-50, 25, 85);
  EXPECT_TRUE(a.Bild("graph3d_propan_pvt.png"));
  ASSERT_TRUE(seite->BildKopieren());
  EXPECT_EQ(QGuiApplication::clipboard()->image().size(), seite->Flaeche()->size());
  QTemporaryDir ordner;
  const QString pdf = ordner.filePath("propan.pdf");
  ASSERT_TRUE(seite->Drucken(pdf));
  EXPECT_GT(QFile(pdf).size(), 10000); // the picture
  const QString text = QStandardPaths::findExecutable("pdftotext");
  if (!text.isEmpty()) {
    QProcess p;
    p.start(text, {pdf, "-"});
    p.waitForFinished(30000);
    EXPECT_TRUE(QString::fromUtf8(p.readAllStandardOutput()).contains("Druck p(v, T)"));
  }
}

TEST(Graph3DFenster, WaterEnthalpySurfaceWithIsobars) {
  Flaechen a("Wasser");
  Graph3DFenster* seite = a.Menue(6);
  ASSERT_NE(seite, nullptr);
  seite->Anzahl("UpDown1_IsoV")->setValue(8);
  seite->Knopf("mnuAddIsobars")->click();
  EXPECT_GE(seite->Logik().Bild().Linien.size(), 8u);
  ZeigtBild(seite);
  if (!seite->Flaeche()->KannZeichnen())
    GTEST_SKIP() << "the 3D chart cannot draw here (no OpenGL context, or offscreen): run under xvfb-run";
  EXPECT_TRUE(a.Bild("graph3d_wasser_h_isobaren.png"));
}

} // namespace
} // namespace quor::ui
