// Pixels and data coordinates of a plot area: both directions on linear and logarithmic axes, the
// zoom rectangle, and ranges and areas that would divide by zero.
#include "diagrams/koordinaten.h"
#include "support/relativ.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace quor {
namespace {

// A plot area of 400 x 300 pixels whose top-left corner is at (50, 20).
Zeichenflaeche Flaeche(AchsenBereich x, AchsenBereich y) {
  return {{50, 20, 400, 300}, x, y};
}

void ErwarteEndlich(Punkt2D p) {
  EXPECT_TRUE(std::isfinite(p.X)) << p.X;
  EXPECT_TRUE(std::isfinite(p.Y)) << p.Y;
}

TEST(Koordinaten, PixelAndDataMapBothWaysOnLinearAndLogarithmicAxes) {
  for (const bool log : {false, true}) {
    const Zeichenflaeche f = Flaeche({0.1, 1000, log}, {200, 600, log});
    for (const Punkt2D pixel : {Punkt2D{50, 320}, Punkt2D{177, 33}, Punkt2D{450, 20}, Punkt2D{-30, 500}}) {
      const Punkt2D zurueck = DatenZuPixel(f, PixelZuDaten(f, pixel));
      EXPECT_REL(zurueck.X, pixel.X, 1e-12) << "log " << log;
      EXPECT_REL(zurueck.Y, pixel.Y, 1e-12) << "log " << log;
    }
    // Bottom left gives the lower ends; the centre the arithmetic (linear) or geometric (log) mean.
    const Punkt2D ecke = PixelZuDaten(f, {50, 320});
    EXPECT_REL(ecke.X, 0.1, 1e-14);
    EXPECT_REL(ecke.Y, 200, 1e-14);
    const Punkt2D mitte = PixelZuDaten(f, {250, 170});
    EXPECT_REL(mitte.X, log ? std::sqrt(0.1 * 1000) : 500.05, 1e-12);
    EXPECT_REL(mitte.Y, log ? std::sqrt(200.0 * 600) : 400, 1e-12);
  }
}

TEST(Koordinaten, ZoomRectangleDraggedInAnyDirectionGivesTheSameRanges) {
  // Linear: x runs 0 .. 100 over pixels 50 .. 450, y runs 0 .. 30 over pixels 320 .. 20, so pixel
  // (150, 270) is (25, 5) and (350, 70) is (75, 25).
  const Zeichenflaeche f = Flaeche({0, 100}, {0, 30});
  const Punkt2D a{150, 270}, b{350, 70};
  for (const auto& [e1, e2] :
       {std::pair{a, b}, std::pair{b, a}, std::pair{Punkt2D{a.X, b.Y}, Punkt2D{b.X, a.Y}},
        std::pair{Punkt2D{b.X, a.Y}, Punkt2D{a.X, b.Y}}}) {
    const auto z = ZoomRechteck(f, e1, e2);
    ASSERT_TRUE(z.has_value());
    EXPECT_REL(z->X.Min, 25, 1e-14);
    EXPECT_REL(z->X.Max, 75, 1e-14);
    EXPECT_REL(z->Y.Min, 5, 1e-14);
    EXPECT_REL(z->Y.Max, 25, 1e-14);
  }
  // Corners beyond the plot area are cut to it; a logarithmic axis stays logarithmic, and a quarter
  // of its pixels span a quarter of its decades (1 .. 1e4: the first decade).
  const auto z = ZoomRechteck(Flaeche({1, 1e4, true}, {0, 30}), {-500, 1000}, {150, 170});
  ASSERT_TRUE(z.has_value());
  EXPECT_TRUE(z->X.Logarithmisch);
  EXPECT_REL(z->X.Min, 1, 1e-14);
  EXPECT_REL(z->X.Max, 10, 1e-12);
  EXPECT_NEAR(z->Y.Min, 0, 1e-12); // the bottom edge
  EXPECT_REL(z->Y.Max, 15, 1e-14);

  // A click, a thin rectangle, or one whose part in the plot area is a sliver, is no zoom.
  const Zeichenflaeche g = Flaeche({0, 100}, {0, 30});
  for (const auto& [e1, e2] : {std::pair<Punkt2D, Punkt2D>{{200, 100}, {200, 100}},
                               {{200, 100}, {203, 250}},
                               {{0, 100}, {52, 250}},
                               {{200, 100}, {std::nan(""), 250}}})
    EXPECT_FALSE(ZoomRechteck(g, e1, e2).has_value()) << e2.X;
}

TEST(Koordinaten, DegenerateRangesAndAreasGiveFiniteNumbers) {
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  constexpr double inf = std::numeric_limits<double>::infinity();
  const AchsenBereich gleich{5, 5}, null{0, 0}, logNull{0, 100, true}, logNegativ{-3, -1, true},
      umgekehrt{10, 2}, offen{0, inf};
  for (const AchsenBereich& a : {gleich, null, logNull, logNegativ, umgekehrt, offen}) {
    const AchsenBereich b = Anzeigbar(a);
    EXPECT_LT(b.Min, b.Max);
    EXPECT_TRUE(std::isfinite(b.Min) && std::isfinite(b.Max));
    if (b.Logarithmisch) {
      EXPECT_GT(b.Min, 0);
    }
    const Zeichenflaeche f = Flaeche(a, a);
    for (const double wert : {-1e308, -1.0, 0.0, 5.0, 1e308, nan, inf})
      ErwarteEndlich(DatenZuPixel(f, {wert, wert}));
    for (const double pixel : {-1e308, 0.0, 170.0, 1e308})
      ErwarteEndlich(PixelZuDaten(f, {pixel, pixel}));
    // Within the shown range the round trip holds.
    const Punkt2D p = PixelZuDaten(f, {123, 45});
    EXPECT_REL(DatenZuPixel(f, p).X, 123, 1e-9);
  }

  // A plot area without width or height maps every pixel to the lower ends.
  const Zeichenflaeche leer{{50, 20, 0, 0}, {0, 100}, {1, 10, true}};
  const Punkt2D d = PixelZuDaten(leer, {70, 10});
  EXPECT_NEAR(d.X, 0, 1e-12);
  EXPECT_REL(d.Y, 1, 1e-14);
  ErwarteEndlich(DatenZuPixel(leer, {30, 3}));
  EXPECT_FALSE(ZoomRechteck(leer, {0, 0}, {500, 500}).has_value());
}

} // namespace
} // namespace quor
