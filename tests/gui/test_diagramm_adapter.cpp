// The chart adapters draw what the pictures say: a 2D series reaches the QCustomPlot with its axes,
// marks, texts and tick patterns, and mouse pixels map as the plot maps them; a 3D surface reaches
// the Q3DSurface grid and is drawn in its colours when an OpenGL context can be had.
#include "gui/diagrams/diagramm2d_flaeche.h"
#include "gui/diagrams/diagramm3d_flaeche.h"
#include "gui_hilfe.h"
#include "support/relativ.h"

#include <Q3DSurface>
#include <QImage>
#include <QSurface3DSeries>
#include <QSurfaceDataProxy>
#include <gtest/gtest.h>
#include <qcustomplot.h>

#include <cstdlib>
#include <functional>

namespace quor::ui {
namespace {

using test::App;

int Pixel(const QImage& bild, const std::function<bool(const QColor&)>& passt) {
  int n = 0;
  for (int y = 0; y < bild.height(); ++y)
    for (int x = 0; x < bild.width(); ++x)
      n += passt(bild.pixelColor(x, y));
  return n;
}

bool Rot(const QColor& c) {
  return c.red() > 180 && c.green() < 80 && c.blue() < 80;
}

// z = x * y over 0 .. 1 x 0 .. 2 on 5 x 4 points; the cell at x = 1, y = 0 could not be computed.
Flaeche3D Sattel() {
  Flaeche3D f;
  f.X = {0, 0.25, 0.5, 0.75, 1};
  f.Y = {0, 2.0 / 3, 4.0 / 3, 2};
  for (double y : f.Y)
    for (double x : f.X)
      f.Z.push_back(x * y);
  f.Gueltig.assign(f.Z.size(), true);
  f.Gueltig[ZellIndex(f, 0, 4)] = false;
  f.AchseX = {0, 1, "x"};
  f.AchseY = {0, 2, "y"};
  f.AchseZ = {0, 2, "z"};
  f.Farbe = {200, 0, 200};
  f.Anzeige.Zonen = false;
  f.Punkte.push_back({"CrP", {0.5, 1, 0.5}, {0, 0, 0}});
  return f;
}

// The surface test comes first: on a display (xvfb-run) it asks for the X11 platform before the
// application is made, since the 3D chart cannot draw on the offscreen one.
TEST(DiagrammAdapter, SurfaceReachesTheThreeDimensionalChart) {
  if (!QCoreApplication::instance() && std::getenv("DISPLAY")) setenv("QT_QPA_PLATFORM", "xcb", 1);
  App();
  Diagramm3DFlaeche w;
  w.resize(480, 360);
  EXPECT_FALSE(w.Zeige(Flaeche3D{})); // an empty grid is refused
  EXPECT_EQ(w.Daten()->rowCount(), 0);

  const Flaeche3D f = Sattel();
  ASSERT_TRUE(w.Zeige(f));
  QSurfaceDataProxy* daten = w.Daten();
  ASSERT_EQ(daten->rowCount(), 4);
  ASSERT_EQ(daten->columnCount(), 5);
  // Row j lies at depth Y[j], column i at X[i]; the height is the vertical coordinate.
  EXPECT_REL(daten->itemAt(2, 3)->x(), 0.75, 1e-7);
  EXPECT_REL(daten->itemAt(2, 3)->z(), 4.0 / 3, 1e-7);
  EXPECT_REL(daten->itemAt(2, 3)->y(), 1.0, 1e-7);
  EXPECT_EQ(daten->itemAt(0, 4)->y(), 0.0f); // its left neighbour's height
  EXPECT_EQ(w.Reihe()->colorStyle(), Q3DTheme::ColorStyleUniform);
  EXPECT_TRUE(w.Reihe()->drawMode().testFlag(QSurface3DSeries::DrawSurface));

  w.show(); // without a way to draw, the widget shows empty
  QApplication::processEvents();
  if (!w.KannZeichnen())
    GTEST_SKIP() << "the 3D chart cannot draw here (no OpenGL context, or offscreen): run under xvfb-run";
  const QImage einfarbig = w.Graph()->renderToImage(0, QSize(480, 360));
  EXPECT_GT(
      Pixel(einfarbig, [](const QColor& c) { return c.red() > c.green() + 60 && c.blue() > c.green() + 60; }),
      500);

  // Zoned, the low part of the saddle is blue and the high part warm (yellow to red).
  Flaeche3D zonen = f;
  zonen.Anzeige.Zonen = true;
  ASSERT_TRUE(w.Zeige(zonen));
  const QImage bunt = w.Graph()->renderToImage(0, QSize(480, 360));
  EXPECT_GT(Pixel(bunt, [](const QColor& c) { return c.blue() > c.red() + 80 && c.blue() > c.green(); }),
            100);
  EXPECT_GT(Pixel(bunt, [](const QColor& c) { return c.red() > 150 && c.blue() < 80; }), 100);
}

Diagramm2D Parabel() {
  Diagramm2D d;
  Reihe2D r;
  r.Name = "y = x^2";
  for (int k = 0; k <= 10; ++k) {
    r.X.push_back(k);
    r.Y.push_back(k * k);
  }
  r.Farbe = {230, 0, 0};
  r.Breite = 3;
  d.Reihen.push_back(r);
  d.AchseX = {0, 10, "x", "0.000", true, false};
  d.AchseY = {1, 100, "y", "", false, true};
  d.Marken.push_back({"CrP", 5, 25, PunktSymbol::Kreis, 9, {0, 0, 200}});
  d.Texte.push_back({"T = 300 K", 2, 50, {0, 0, 0}});
  d.Kopf = "Parabel";
  return d;
}

TEST(DiagrammAdapter, TwoDimensionalPictureReachesThePlot) {
  App();
  Diagramm2DFlaeche w;
  w.resize(640, 480);
  Diagramm2D leer = Parabel();
  leer.Reihen.clear();
  w.Zeige(leer);
  EXPECT_EQ(Pixel(w.grab().toImage(), Rot), 0); // nothing red without the series

  w.Zeige(Parabel());
  EXPECT_GT(Pixel(w.grab().toImage(), Rot), 200);
  QCustomPlot* p = w.Plot();
  ASSERT_EQ(p->plottableCount(), 2); // the series and the mark
  auto* kurve = qobject_cast<QCPCurve*>(p->plottable(0));
  ASSERT_NE(kurve, nullptr);
  EXPECT_EQ(kurve->dataCount(), 11);
  EXPECT_EQ(kurve->name(), "y = x^2");
  EXPECT_EQ(p->legend->itemCount(), 1);          // marks stay out of the legend
  EXPECT_EQ(p->itemCount(), 2);                  // the mark's label and the text
  EXPECT_EQ(p->plotLayout()->elementCount(), 2); // header over the plot area
  EXPECT_EQ(p->xAxis->range().lower, 0.0);
  EXPECT_REL(p->xAxis->range().upper, 10, 1e-15);
  EXPECT_EQ(p->yAxis->scaleType(), QCPAxis::stLogarithmic);
  EXPECT_REL(p->yAxis->range().upper, 100, 1e-15);

  // Tick labels follow the X axis' pattern.
  QVector<double> ticks;
  QVector<QString> texte;
  p->xAxis->ticker()->generate(p->xAxis->range(), QLocale::c(), 'g', 6, ticks, nullptr, &texte);
  ASSERT_FALSE(texte.isEmpty());
  EXPECT_EQ(texte.first(), "0.000");

  // The adapter's mapping is the plot's own.
  const Zeichenflaeche f = w.Flaeche();
  for (const Punkt2D d : {Punkt2D{0, 1}, Punkt2D{3.7, 12}, Punkt2D{10, 100}}) {
    const Punkt2D px = DatenZuPixel(f, d);
    EXPECT_NEAR(px.X, p->xAxis->coordToPixel(d.X), 1e-9);
    EXPECT_NEAR(px.Y, p->yAxis->coordToPixel(d.Y), 1e-9);
  }
  const QPoint maus(200, 150);
  EXPECT_REL(w.DatenBei(maus).X, p->xAxis->pixelToCoord(maus.x()), 1e-12);
  EXPECT_REL(w.DatenBei(maus).Y, p->yAxis->pixelToCoord(maus.y()), 1e-12);

  // A click does not zoom; a drag makes the data at its corners the new axis ends.
  EXPECT_FALSE(w.ZoomeAuf(maus, maus + QPoint(2, 2)));
  EXPECT_REL(p->xAxis->range().upper, 10, 1e-15);
  const QPoint ecke(300, 100);
  const Punkt2D a = w.DatenBei(maus), b = w.DatenBei(ecke);
  ASSERT_TRUE(w.ZoomeAuf(ecke, maus));
  EXPECT_REL(p->xAxis->range().lower, a.X, 1e-12);
  EXPECT_REL(p->xAxis->range().upper, b.X, 1e-12);
  EXPECT_REL(p->yAxis->range().lower, a.Y, 1e-12);
  EXPECT_REL(p->yAxis->range().upper, b.Y, 1e-12);

  // Shown again without header the layout keeps only the plot area (and the legend inside it).
  Diagramm2D ohneKopf = Parabel();
  ohneKopf.Kopf.clear();
  w.Zeige(ohneKopf);
  EXPECT_EQ(p->plotLayout()->elementCount(), 1);
}

} // namespace
} // namespace quor::ui
