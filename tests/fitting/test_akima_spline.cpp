// The Akima spline: interpolation, continuity at the knots, the straight continuation, the
// smoothing, the refusals with their messages, and the coefficient list.
#include "fit_testhilfe.h"
#include "fitting/akima_spline.h"
#include "support/relativ.h"

#include <cmath>
#include <gtest/gtest.h>
#include <tuple>

namespace quor {
namespace {

AkimaSpline Spline(std::vector<double> x, std::vector<double> y, double Sm = 0) {
  const int n = static_cast<int>(x.size());
  EXPECT_TRUE(SplinePruefen(x, y, n));
  AkimaSpline sp;
  EXPECT_TRUE(SplineBerechnen(Sm, n, x, y, sp));
  return sp;
}

// Uneven, wavy data: y = sin x at irregular abscissae, given unsorted.
const std::vector<double> WellenX{0.3, 0.0, 1.1, 0.7, 2.0, 1.6, 2.9, 2.4, 3.5, 4.4};
std::vector<double> WellenY() {
  std::vector<double> y;
  for (double x : WellenX)
    y.push_back(std::sin(x));
  return y;
}

TEST(AkimaSpline, PassesThroughItsSortedPointsAndIsSmoothAtTheKnots) {
  const AkimaSpline sp = Spline(WellenX, WellenY());
  ASSERT_EQ(sp.SplineN, 10);
  int k = 0;
  for (int i = 0; i < sp.SplineN; ++i) {
    if (i > 0) {
      EXPECT_LT(sp.SplineX[i - 1], sp.SplineX[i]);
    }
    EXPECT_NEAR(SplineWert(0, k, sp.SplineX[i], sp), std::sin(sp.SplineX[i]), 1e-15);
  }
  // Value and slope of piece i-1 at its right end against those of piece i at its left end.
  for (int i = 1; i + 1 < sp.SplineN; ++i) {
    const double h = sp.SplineX[i] - sp.SplineX[i - 1];
    const double B = sp.SplineB[i - 1], C = sp.SplineC[i - 1], D = sp.SplineD[i - 1];
    EXPECT_NEAR(sp.SplineY[i - 1] + ((D * h + C) * h + B) * h, sp.SplineY[i], 1e-14) << i;
    EXPECT_NEAR((3 * D * h + 2 * C) * h + B, sp.SplineB[i], 1e-13) << i;
    int kl = 0, kr = 0;
    EXPECT_NEAR(SplineWert(1, kl, sp.SplineX[i] - 1e-9, sp), SplineWert(1, kr, sp.SplineX[i], sp), 1e-7);
  }
  // Between the points it follows the sine closely.
  EXPECT_NEAR(SplineWert(0, k, 1.3, sp), std::sin(1.3), 2e-3);
}

// Outside its points the spline is the line through the end point with the end slope, for the
// value (art 0) and, as the value again, for art 1; at the last point the line gives the value, and
// the last cubic piece ends there with the same one. Points on a line give that line everywhere.
TEST(AkimaSpline, OutsideItsPointsAndAtTheLastPointTheSplineIsALine) {
  const AkimaSpline sp = Spline(WellenX, WellenY());
  const int n = sp.SplineN;
  int k = 0;
  const double xn = sp.SplineX[n - 1], yn = sp.SplineY[n - 1], Bn = sp.SplineB[n - 1];
  EXPECT_EQ(SplineWert(0, k, xn, sp), yn);
  EXPECT_EQ(SplineWert(0, k, xn + 2, sp), yn + 2 * Bn);
  EXPECT_EQ(SplineWert(1, k, xn + 2, sp), yn + 2 * Bn);
  EXPECT_EQ(SplineWert(1, k, sp.SplineX[0] - 1, sp), sp.SplineY[0] - sp.SplineB[0]);
  const double h = xn - sp.SplineX[n - 2];
  const double ende =
      sp.SplineY[n - 2] + ((sp.SplineD[n - 2] * h + sp.SplineC[n - 2]) * h + sp.SplineB[n - 2]) * h;
  EXPECT_NEAR(ende, yn, 1e-14);

  const AkimaSpline gerade = Spline({1, 2, 4, 7}, {3, 5, 9, 15}); // y = 2x + 1
  for (double x : {-3.0, 1.0, 1.5, 3.3, 6.9, 7.0, 12.0})
    EXPECT_NEAR(SplineWert(0, k, x, gerade), 2 * x + 1, 1e-13) << x;
}

TEST(AkimaSpline, EqualOrdinatesGiveAFlatPiece) {
  const AkimaSpline sp = Spline({0, 1, 2, 3, 4, 5}, {0, 1, 1, 1, 1, 3});
  // The pieces 1-2 and 2-3 lie between equal ordinates with equal neighbours.
  for (int i : {1, 2})
    EXPECT_EQ(std::make_tuple(sp.SplineB[i], sp.SplineC[i], sp.SplineD[i]), std::make_tuple(0.0, 0.0, 0.0))
        << i;
}

TEST(AkimaSpline, TheKeptPieceIndexGivesTheSameValuesInAnyOrder) {
  const AkimaSpline sp = Spline(WellenX, WellenY());
  int k = 0;
  for (double x : {4.0, 0.1, 2.5, 2.45, 0.05, 3.9, 1.0}) {
    int frisch = 0;
    EXPECT_EQ(SplineWert(0, k, x, sp), SplineWert(0, frisch, x, sp)) << x;
  }
}

TEST(AkimaSpline, StrongSmoothingOfEvenlySpacedPointsTakesTheMeanOfFive) {
  // y = (-1)^i at x = 0..8. With a large Sm the weights at one and two spacings are 1 and at
  // three spacings 1 - 1^Sm = 0: an inner point takes the mean of itself and two on each side.
  std::vector<double> x, y;
  for (int i = 0; i < 9; ++i) {
    x.push_back(i);
    y.push_back(i % 2 ? -1 : 1);
  }
  const AkimaSpline sp = Spline(x, y, 1000);
  EXPECT_EQ(sp.SplineGlaettung, 1000);
  EXPECT_NEAR(sp.SplineY[4], 1.0 / 5, 1e-12);
  EXPECT_NEAR(sp.SplineY[5], -1.0 / 5, 1e-12);
  // Three points are enough, smoothed or not.
  EXPECT_EQ(Spline({0, 1, 2}, {1, 4, 2}, 5).SplineN, 3);
}

TEST(AkimaSpline, RefusesDuplicateAbscissaeAndMoreThanItsArraysHold) {
  std::vector<double> x{1, 3, 2, 3}, y{1, 2, 3, 4};
  EXPECT_FALSE(SplinePruefen(x, y, 4));
  std::vector<double> viele(SplineMaxPunkte + 1), werte(SplineMaxPunkte + 1, 1.0);
  for (std::size_t i = 0; i < viele.size(); ++i)
    viele[i] = static_cast<double>(i);
  AkimaSpline sp;
  EXPECT_TRUE(SplineBerechnen(0, SplineMaxPunkte, viele, werte, sp));
  EXPECT_FALSE(SplineBerechnen(0, SplineMaxPunkte + 1, viele, werte, sp));
  EXPECT_EQ(sp.SplineN, 0);
}

TEST(AkimaSpline, TheListShowsEachPieceInFieldsOfSevenCharacters) {
  const AkimaSpline sp = Spline({0, 1, 2}, {1, 3, 5}); // y = 2x + 1
  const std::string t = SplineListe(sp);
  const std::string regel = "------------------------------------------------";
  // Number, 4 blanks, then each value padded to 7 with 5 blanks between: "1" + 6 + "1" + 11 ...
  auto zeile = [](const char* no, const char* a) {
    return std::string(no) + std::string(6, ' ') + a + std::string(11, ' ') + "2" + std::string(11, ' ') +
           "0" + std::string(11, ' ') + "0" + std::string(6, ' ') + "\r\n";
  };
  EXPECT_EQ(t,
            "Kubischer Spline\r\nfür jedes Funktionsstück zwischen den Stützpunkten gilt\r\n"
            "y(No) = A + B x + C x^2 + D x^3\r\n(No = Nummer des Funktionsstücks zwischen den Punkten)\r\n" +
                regel + "\r\nNo.      Par.A      Par.B      Par.C      Par. D \r\n" + regel + "\r\n" +
                zeile("1", "1") + zeile("2", "3") + regel);
}

// The spline as model 19 of a run: its FQS and messages.
TEST(SplineFit, WithoutSmoothingTheSumOfSquaresIsZeroWithItPositive) {
  std::vector<FitPunkt> p;
  for (std::size_t i = 0; i < WellenX.size(); ++i)
    p.push_back({static_cast<float>(WellenX[i]), static_cast<float>(std::sin(WellenX[i])), FlagAktiv});
  FitZustand z = test::Zustand(p, fitmodell::AkimaSpline);
  ProjectState s;
  ASSERT_TRUE(FitStarten(s, z));
  EXPECT_EQ(z.FitNPar, 4 * 9);
  EXPECT_LT(z.FQS, 1e-28);
  int16_t fehler = 0;
  EXPECT_NEAR(FitFunktionswert(s, z, 1.3, fehler), std::sin(1.3), 2e-3);
  z.SplineGlaettung = 2;
  ASSERT_TRUE(FitStarten(s, z));
  EXPECT_GT(z.FQS, 1e-6);
}

TEST(SplineFit, TooFewPointsAndDuplicatesReportTheirMessages) {
  ProjectState s;
  // Fewer than 3 active points: the hint names the other editor.
  FitZustand z = test::Zustand({{1, 1, 0}, {2, 2, 0}}, fitmodell::AkimaSpline);
  EXPECT_FALSE(FitStarten(s, z));
  EXPECT_EQ(z.Meldungen.at(0).Text, "für Spline mindestens 3 aktive Punkte!\r\n\r\nGehen Sie zum Editor für "
                                    "experimentelle Daten (Icon 8).");
  EXPECT_EQ(z.Meldungen.at(0).Titel, "Ausführung nicht möglich");
  z.FitEditorCode = QuelleTpRhoEditor;
  EXPECT_FALSE(FitStarten(s, z));
  EXPECT_EQ(z.Meldungen.at(0).Text,
            "für Spline mindestens 3 aktive Punkte!\r\n\r\nGehen Sie zum XY-Editor (Icon 9).");

  FitZustand d = test::Zustand({{1, 1, 0}, {2, 2, 0}, {1, 3, 0}}, fitmodell::AkimaSpline);
  EXPECT_FALSE(FitStarten(s, d));
  EXPECT_EQ(d.Meldungen.at(0).Text, "Für diese Spline-Anwendung sind keine Mehrfach-x-Werte erlaubt.\r\n\r\n"
                                    "Gehen Sie zum XY-Editor (Icon 9)\r\n\r\n und löschen Sie die mehrfachen "
                                    "x-Werte.\r\nLassen Sie jeweils nur EINEN x-Wert stehen.");
  EXPECT_EQ(d.Meldungen.at(0).Titel, "Test auf Spline-Anwendbarkeit der exper. Daten");
  EXPECT_FALSE(d.Ergebnis);
}

} // namespace
} // namespace quor
