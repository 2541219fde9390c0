// The chart adapters draw what the pictures say: a 2D series reaches the QCustomPlot with the ranges
// of its axes; a 3D surface reaches the Q3DSurface grid and is drawn when an OpenGL context can be had.
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

#include <cmath>
#include <cstdlib>

namespace quor::ui {
namespace {

// Pixels of the picture in the colour of the curve or surface: mostly red with little green.
int Pixel(const QImage& bild, int rot, int blau) {
  int n = 0;
  for (int y = 0; y < bild.height(); ++y)
    for (int x = 0; x < bild.width(); ++x) {
      const QColor c = bild.pixelColor(x, y);
      n += c.red() > rot && c.green() < 80 && (blau < 0 ? c.blue() < 80 : c.blue() > blau);
    }
  return n;
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
  return f;
}

// The surface test comes first: on a display (xvfb-run) it asks for the X11 platform before the
// application is made, since the 3D chart cannot draw on the offscreen one.
TEST(DiagrammAdapter, SurfaceReachesTheThreeDimensionalChart) {
  if (!QCoreApplication::instance() && std::getenv("DISPLAY")) setenv("QT_QPA_PLATFORM", "xcb", 1);
  test::App();
  Diagramm3DFlaeche w;
  w.resize(480, 360);
  ASSERT_TRUE(w.Zeige(Sattel()));
  QSurfaceDataProxy* daten = w.Daten();
  ASSERT_EQ(daten->rowCount(), 4);
  ASSERT_EQ(daten->columnCount(), 5);
  // Row j lies at depth Y[j], column i at X[i]; the height is the vertical coordinate.
  EXPECT_REL(daten->itemAt(2, 3)->x(), 0.75, 1e-7);
  EXPECT_REL(daten->itemAt(2, 3)->z(), 4.0 / 3, 1e-7);
  EXPECT_REL(daten->itemAt(2, 3)->y(), 1.0, 1e-7);
  EXPECT_EQ(daten->itemAt(0, 4)->y(), 0.0f); // the cell without a value: its left neighbour's height
  w.show();                                  // without a way to draw, the widget shows empty
  QApplication::processEvents();
  if (!w.KannZeichnen())
    GTEST_SKIP() << "the 3D chart cannot draw here (no OpenGL context, or offscreen): run under xvfb-run";
  const QImage bild = w.Graph()->renderToImage(0, QSize(480, 360));
  EXPECT_GT(Pixel(bild, 100, 100), 500); // the magenta surface
}

Diagramm2D Parabel() {
  Diagramm2D d;
  Reihe2D r;
  for (int k = 0; k <= 10; ++k) {
    r.X.push_back(k);
    r.Y.push_back(k * k);
  }
  r.Farbe = {230, 0, 0};
  r.Breite = 3;
  d.Reihen.push_back(r);
  d.AchseX = {0, 10, "x", "0.000", true, false};
  d.AchseY = {1, 100, "y", "", false, true};
  return d;
}

TEST(DiagrammAdapter, TwoDimensionalPictureReachesThePlot) {
  test::App();
  Diagramm2DFlaeche w;
  w.resize(640, 480);
  w.Zeige(Parabel());
  EXPECT_GT(Pixel(w.grab().toImage(), 180, -1), 200); // the red curve
  QCustomPlot* p = w.Plot();
  auto* kurve = qobject_cast<QCPCurve*>(p->plottable(0));
  ASSERT_NE(kurve, nullptr);
  EXPECT_EQ(kurve->dataCount(), 11);
  EXPECT_EQ(p->xAxis->range().lower, 0.0);
  EXPECT_REL(p->xAxis->range().upper, 10, 1e-15);
  EXPECT_EQ(p->yAxis->scaleType(), QCPAxis::stLogarithmic);
  EXPECT_REL(p->yAxis->range().upper, 100, 1e-15);
}

// A curve that leaves the plot area over its upper edge and comes back is broken where it runs
// beyond that edge, so that no line shows along the rim; the legend takes the one corner that no
// curve crosses.
TEST(DiagrammAdapter, CurvesBeyondAnEdgeBreakAndTheLegendTakesAFreeCorner) {
  test::App();
  Diagramm2DFlaeche w;
  w.resize(640, 480);
  Diagramm2D d;
  d.AchseX = {0, 10, "x", "", false, false};
  d.AchseY = {0, 10, "y", "", false, false};
  Reihe2D diagonale;
  diagonale.Name = "Diagonale";
  for (int k = 0; k <= 10; ++k) {
    diagonale.X.push_back(k);
    diagonale.Y.push_back(k);
  }
  Reihe2D ausflug;
  ausflug.Name = "Ausflug";
  ausflug.X = {1, 2, 3, 4, 5};
  ausflug.Y = {5, 1e6, 2e6, 1e6, 5};
  d.Reihen = {diagonale, ausflug};
  w.Zeige(d);
  const auto* kurve = qobject_cast<QCPCurve*>(w.Plot()->plottable(1));
  ASSERT_NE(kurve, nullptr);
  ASSERT_EQ(kurve->dataCount(), 7); // gaps between the second and third, third and fourth point
  EXPECT_TRUE(std::isnan((kurve->data()->constBegin() + 2)->value));
  EXPECT_TRUE(std::isnan((kurve->data()->constBegin() + 4)->value));
  const Qt::Alignment ecke = w.Plot()->axisRect()->insetLayout()->insetAlignment(0);
  EXPECT_EQ(ecke, Qt::AlignBottom | Qt::AlignRight);
}

} // namespace
} // namespace quor::ui
