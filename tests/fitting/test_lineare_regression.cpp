// The linear fits against certified values of the NIST Statistical Reference Datasets, and the
// linear models' handling of switched-off terms and of x <= 0.
#include "diagrams/xy_datei.h"
#include "fit_testhilfe.h"
#include "fitting/lineare_regression.h"
#include "support/relativ.h"

#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace quor {
namespace {

std::vector<FitPunkt> Referenz(const std::string& name) {
  std::ifstream f(std::string(QUOR_REFERENZDATEN) + "/" + name, std::ios::binary);
  std::stringstream text;
  text << f.rdbuf();
  const XYDatei d = LeseXYText(text.str(), ';');
  std::vector<FitPunkt> p;
  for (std::size_t i = 0; i < d.X.size(); ++i)
    p.push_back({d.X[i], d.Y[i], FlagAktiv});
  return p;
}

// The polynomial with the terms from `frei` on switched off.
FitZustand PolynomFit(const std::vector<FitPunkt>& p, int frei) {
  FitZustand z = test::Zustand(p, fitmodell::Polynom);
  for (int i = frei; i < 6; ++i)
    z.FixFeld[i] = true;
  ProjectState s;
  EXPECT_TRUE(FitStarten(s, z));
  return z;
}

// The fit stores its points in single precision, so the data are not those the certified values
// belong to. With the rounded data the elimination reaches the certified values to the digits written
// at each assertion (5 to 8); against the exact solution of the normal equations of the rounded
// data (an independent computation in rational arithmetic) it reaches 11 digits or more.
TEST(LineareRegression, NorrisStraightLineMatchesTheCertifiedValues) {
  const std::vector<FitPunkt> p = Referenz("nist-strd-norris.xy");
  ASSERT_EQ(p.size(), 36u);
  const FitZustand z = PolynomFit(p, 2);
  EXPECT_REL(z.FitPar[0], -0.262323073774029, 1e-5);
  EXPECT_REL(z.FitPar[1], 1.00211681802045, 1e-7);
  EXPECT_REL(z.FQS, 26.6173985294224, 1e-5);
  // Exact solution for the single-precision data.
  EXPECT_REL(z.FitPar[0], -0.2623255459827986, 1e-11);
  EXPECT_REL(z.FitPar[1], 1.0021168285920892, 1e-11);
  // s(R) divides by N minus all six parameters of the polynomial, the switched-off ones included.
  EXPECT_REL(z.sR, std::sqrt(26.6173985294224 / (36 - 6)), 1e-5);
  EXPECT_EQ(z.FitPar[2], 0);
  EXPECT_EQ(z.FitPar[5], 0);
}

TEST(LineareRegression, PontiusQuadraticMatchesTheCertifiedValues) {
  const std::vector<FitPunkt> p = Referenz("nist-strd-pontius.xy");
  ASSERT_EQ(p.size(), 40u);
  const FitZustand z = PolynomFit(p, 3);
  EXPECT_REL(z.FitPar[0], 0.673565789473684E-03, 1e-6);
  EXPECT_REL(z.FitPar[1], 0.732059160401003E-06, 1e-8);
  EXPECT_REL(z.FitPar[2], -0.316081871345029E-14, 1e-6);
  EXPECT_REL(z.FQS, 0.155761768796992E-05, 1e-4);
  EXPECT_REL(z.FitPar[0], 0.0006735663991748241, 1e-11);
  EXPECT_REL(z.FitPar[1], 7.320591552578988e-07, 1e-11);
  EXPECT_REL(z.FitPar[2], -3.160817272732347e-15, 1e-11);
  EXPECT_REL(z.FQS, 1.5576364548328178e-06, 1e-9);
}

TEST(LineareRegression, TheCombinedExpressionNeedsPositiveXForItsInverseAndLogTerms) {
  // y = 2 + 0.5 x + 3/x - 1.5 ln x at x = 1 .. 10, recovered exactly but for rounding.
  const std::vector<FitPunkt> p =
      test::Punkte([](double x) { return 2 + 0.5 * x + 3 / x - 1.5 * std::log(x); }, 1, 10, 12);
  FitZustand z = test::Zustand(p, fitmodell::Kombi);
  z.FixFeld = {false, false, true, true, false, true, false};
  ProjectState s;
  ASSERT_TRUE(FitStarten(s, z));
  const FitParameter soll{2, 0.5, 0, 0, 3, 0, -1.5};
  for (int i = 0; i < 7; ++i)
    EXPECT_NEAR(z.FitPar[i], soll[i], 1e-4) << i;

  std::vector<FitPunkt> mitNull = p;
  mitNull[0].x = 0;
  FitZustand n = test::Zustand(mitNull, fitmodell::Kombi);
  EXPECT_FALSE(FitStarten(s, n));
  ASSERT_EQ(n.Meldungen.size(), 1u);
  EXPECT_EQ(n.Meldungen[0].Text, "Für dieses Fitting-Modell müssen alle aktiven x-Werte größer Null sein.");
  EXPECT_EQ(n.Meldungen[0].Titel, "Ausführung nicht möglich");
  // Without the three terms the expression is a cubic, defined at x = 0.
  n.FixFeld = {false, false, false, false, true, true, true};
  EXPECT_TRUE(FitStarten(s, n));
  int16_t fehler = 0;
  EXPECT_EQ(FitFunktionswert(s, n, 0, fehler), n.FitPar[0]);
  EXPECT_EQ(fehler, 0);
}

} // namespace
} // namespace quor
