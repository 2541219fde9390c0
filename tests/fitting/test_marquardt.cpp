// The Marquardt fit through the run of the dialog: parameters recovered from data generated with
// each model, starting from the model's proposals; noisy data; the standard deviations against the
// closed form of a straight line; bounds, fixed parameters, inactive points and the limits.
#include "fit_testhilfe.h"
#include "fitting/marquardt.h"
#include "support/relativ.h"

#include <cmath>
#include <gtest/gtest.h>

namespace quor {
namespace {

namespace fm = fitmodell;

// One model with a generating parameter set and its range. Vapour pressures are fitted on ln p,
// as the measured-data editor sends them.
struct Fall {
  const char* Name;
  int16_t Modell;
  bool Lg;
  double Tcr, pcr;
  FitParameter Wahr;
  double Von, Bis;
  bool Log;
  double Toleranz;         // relative, for every parameter
  std::array<bool, 7> Fix; // fixed at the generating value
};

// Generating sets: water-like vapour pressures (Tcr 647.1 K, pcr 22064 kPa), propane-like liquid
// density and enthalpy of vaporization (Tcr 369.8 K), propane-like ideal-gas heat capacities.
// clang-format off
const Fall Faelle[] = {
  {"August", fm::August, false, 0, 0, {25, 5000, -1.5}, 250, 400, true, 1e-4, {}},
  {"Antoine", fm::Antoine, false, 0, 0, {16.3872, 3885.70, 230.17}, 290, 440, true, 1e-5, {}},
  {"FrostKalkwarf", fm::FrostKalkwarf, false, 0, 0, {54.6, -6500, 260, -5.5, 4}, 290, 440, true, 1e-3, {}},
  {"FrostKalkwarfLg", fm::FrostKalkwarf, true, 0, 0, {23.7, -2800, 260, -5.5, 1.7}, 290, 440, true, 1e-3, {}},
  {"FrostKalkwarfThodos", fm::FrostKalkwarfThodos, false, 647.1, 0, {53.3, -6500, 260, 4}, 290, 440, true,
   1e-3, {}},
  {"FrostKalkwarfThodosLg", fm::FrostKalkwarfThodos, true, 647.1, 0, {23.15, -2823, 260, 1.737}, 290, 440,
   true, 1e-3, {}},
  {"DipprFesterExponent", fm::DipprDampfdruck, false, 0, 0, {66.741, -7258.2, -7.3037, 4.1653e-6, 2}, 280,
   600, true, 1e-4, {false, false, false, false, true}},
  {"Wagner", fm::Wagner, false, 647.1, 22064, {-7.77, 1.456, -2.77, -1.233}, 280, 640, true, 1e-4, {}},
  {"Rackett", fm::Rackett, false, 369.8, 0, {60.7, 0.2745, 0.2936}, 90, 360, false, 1e-5, {}},
  {"Leuna", fm::Leuna, false, 369.8, 0, {300, -1, 0.002, -3e-6, 200}, 90, 360, false, 1e-4, {}},
  {"PolynomDichte", fm::PolynomDichte, false, 0, 0, {800, -1.2, 0.002, -3e-6}, 90, 360, false, 1e-4, {}},
  {"Majer", fm::Majer, false, 369.8, 0, {40000, 0.3, 0.4}, 90, 360, false, 1e-5, {}},
  {"DipprHLV", fm::DipprHLV, false, 369.8, 0, {29000, 0.38, 0.1, -0.05, 0.02}, 90, 360, false, 1e-3, {}},
  {"PolynomCp", fm::PolynomCp, false, 0, 0, {25, 0.2, -1e-4, 2e-8, 0}, 200, 1000, false, 1e-4,
   {false, false, false, false, true}},
  {"Shomate", fm::Shomate, false, 0, 0, {28, 0.18, -8e-5, 1.5e-8, -2e5}, 200, 1000, false, 1e-4, {}},
  {"DipprCp", fm::DipprCp, false, 0, 0, {51.92, 192.45, 1626.5, 116.8, 723.6}, 200, 1000, false, 1e-5, {}},
};
// clang-format on

std::vector<FitPunkt> Daten(const Fall& f, int n) {
  EOSGruppe eos;
  const ModellKonstanten k{f.Modell, LogFaktor(f.Modell, f.Lg), f.Tcr, f.pcr};
  return test::Punkte(
      [&](double T) {
        double y = 0;
        EXPECT_EQ(ModellWert(eos, k, f.Wahr, T, y), ModellStatus::Gut) << f.Name << " " << T;
        return y;
      },
      f.Von, f.Bis, n);
}

// The state as the dialog leaves it: the model chosen, Tcr and pcr in their fields, the log
// option, the fixed parameters typed in.
FitZustand Vorbereitet(const Fall& f, const std::vector<FitPunkt>& p) {
  FitZustand z = test::Zustand(p, f.Modell, f.Lg, f.Tcr, f.pcr);
  z.FitLog = f.Log;
  for (int i = 0; i < z.FitNPar; ++i)
    if (f.Fix[i]) {
      z.FixFeld[i] = true;
      z.StartFeld[i] = f.Wahr[i];
    }
  return z;
}

class ModellFit : public testing::TestWithParam<Fall> {};

TEST_P(ModellFit, RecoversTheGeneratingParametersFromTheProposedStart) {
  const Fall& f = GetParam();
  FitZustand z = Vorbereitet(f, Daten(f, 30));
  ProjectState s;
  ASSERT_TRUE(FitStarten(s, z));
  EXPECT_EQ(z.fehler, 0);
  for (int i = 0; i < z.FitNPar; ++i)
    EXPECT_REL(z.FitPar[i], f.Wahr[i], f.Toleranz) << "parameter " << i;
  if (f.Modell == fm::DipprCp) {
    EXPECT_EQ(s.EOS.c0, z.FitPar[0]) << "the DIPPR cp fit leaves its A in the EOS constant c0";
  }
}

TEST_P(ModellFit, WithNoiseTheSumOfSquaresIsNotAboveThatOfTheGeneratingParameters) {
  const Fall& f = GetParam();
  std::vector<FitPunkt> p = Daten(f, 30);
  test::Rauschen(p, 0.005, 4711);
  FitZustand z = Vorbereitet(f, p);
  ProjectState s;
  ASSERT_TRUE(FitStarten(s, z));
  EXPECT_LE(z.FQS, test::Quadratsumme(z, f.Wahr));
  EXPECT_GT(z.FQS, 0);
  EXPECT_REL(z.sR, std::sqrt(z.FQS / (30 - z.FitNPar)), 1e-15);
}

INSTANTIATE_TEST_SUITE_P(Modelle, ModellFit, testing::ValuesIn(Faelle),
                         [](const testing::TestParamInfo<Fall>& i) { return std::string(i.param.Name); });

// rho = A + B T with C and D fixed at 0: the standard deviations of a straight line by the closed
// form, s(B)^2 = s^2 / Sxx and s(A)^2 = s^2 (1/N + xm^2 / Sxx), s^2 = S / (N - 2).
TEST(MarquardtFit, StandardDeviationsOfAStraightLineMatchTheClosedForm) {
  std::vector<FitPunkt> p = test::Punkte([](double T) { return 1000 - 2 * T; }, 100, 300, 21);
  test::Rauschen(p, 0.01, 17);
  FitZustand z = test::Zustand(p, fm::PolynomDichte);
  z.FixFeld[2] = z.FixFeld[3] = true;
  z.StartFeld[2] = z.StartFeld[3] = 0;
  ProjectState s;
  ASSERT_TRUE(FitStarten(s, z));
  double xm = 0;
  for (const FitPunkt& q : p)
    xm += q.x / 21.0;
  double Sxx = 0;
  for (const FitPunkt& q : p)
    Sxx += (q.x - xm) * (q.x - xm);
  const double s2 = test::Quadratsumme(z, z.FitPar) / (21 - 2);
  EXPECT_REL(z.FitStDev[1], std::sqrt(s2 / Sxx), 1e-4);
  EXPECT_REL(z.FitStDev[0], std::sqrt(s2 * (1.0 / 21 + xm * xm / Sxx)), 1e-4);
  EXPECT_EQ(z.FitStDev[2], 0);
}

TEST(MarquardtFit, AParameterFixedBeyondItsBoundIsTakenAsItStands) {
  // Antoine with C = 2100, above the bound 2000 of the third parameter.
  const Fall f{"", fm::Antoine, false, 0, 0, {10, 20000, 2100}, 250, 400, true, 0, {false, false, true}};
  FitZustand z = Vorbereitet(f, Daten(f, 20));
  ProjectState s;
  ASSERT_TRUE(FitStarten(s, z));
  EXPECT_EQ(z.FitPar[2], 2100);
  EXPECT_REL(z.FitPar[0], 10, 1e-5);
  EXPECT_REL(z.FitPar[1], 20000, 1e-5);
}

TEST(MarquardtFit, WithAllParametersFixedTheRunEndsWithTheStartValues) {
  const Fall& f = Faelle[1]; // Antoine
  FitZustand z = Vorbereitet(f, Daten(f, 20));
  z.FixFeld = {true, true, true};
  ProjectState s;
  ASSERT_TRUE(FitStarten(s, z));
  EXPECT_EQ(z.FitPar[0], 10);
  EXPECT_EQ(z.FitPar[1], 3000);
  EXPECT_EQ(z.FitPar[2], 200);
  EXPECT_REL(z.FQS, test::Quadratsumme(z, {10, 3000, 200}), 1e-12);
}

// Points on rho = 1000 - 2 T, the last one 50 above; B fixed at -2, A free. The gradient runs over
// as many array elements as there are active points: with the two inactive points in front, the
// last two (the outlier among them) take no part in the steps, which lead to A = 1000, where the
// steps stop. With the inactive points at the end of the array the same eight active points give
// the least-squares A = 1000 + 50 / 8.
TEST(MarquardtFit, InactivePointsInFrontLeaveTheLastPointsOutOfTheSteps) {
  std::vector<FitPunkt> p = test::Punkte([](double T) { return 1000 - 2 * T; }, 100, 300, 10);
  p.back().y += 50;
  p[0].Flag = p[1].Flag = FlagInaktiv;
  std::vector<FitPunkt> hinten(p.begin() + 2, p.end());
  hinten.push_back(p[0]);
  hinten.push_back(p[1]);
  auto fit = [](const std::vector<FitPunkt>& punkte) {
    FitZustand z = test::Zustand(punkte, fm::PolynomDichte);
    z.FixFeld = {false, true, true, true};
    z.StartFeld[1] = -2;
    z.StartFeld[2] = z.StartFeld[3] = 0;
    ProjectState s;
    EXPECT_TRUE(FitStarten(s, z));
    return z;
  };
  EXPECT_REL(fit(p).FitPar[0], 1000, 1e-6);
  EXPECT_REL(fit(hinten).FitPar[0], 1000 + 50.0 / 8, 1e-6);
}

TEST(MarquardtFit, AnIterationLimitEndsTheRunSilentlyWithThePreviousDeviationsScaledAgain) {
  // Frost-Kalkwarf on p itself creeps along its valley until the 250 gradients are used up.
  const Fall f{"", fm::FrostKalkwarf, false, 0, 0, {54.6, -6500, 260, -5.5, 4}, 290, 440, false, 0, {}};
  FitZustand z = Vorbereitet(f, Daten(f, 30));
  z.FitStDev = {1, 1, 1, 1, 1, 1, 1};
  ProjectState s;
  ASSERT_TRUE(FitStarten(s, z));
  EXPECT_EQ(z.fehler, -1);
  EXPECT_TRUE(z.Meldungen.empty());
  EXPECT_EQ(z.FitStDev[0], 1);
  EXPECT_EQ(z.FitStDev[1], 1000);
}

// A point where the formula is undefined keeps the residual of the point before; one where the
// model fails (value 0) counts with its full measured value, unless the log of that 0 is taken.
TEST(ResiduumBerechnen, AnUndefinedFormulaKeepsThePreviousResidual) {
  ProjectState s;
  FitZustand z = test::Zustand({{300, 5e4f, 0}, {400, 7e4f, 0}}, fm::Majer, false, 369.8);
  z.FitTcr = 369.8;
  const FitParameter b{40, 0.3, 0.4}; // scaled: A = 40000
  double r = 7;
  ResiduumBerechnen(s, z, 1, b, r); // T above Tcr: (1 - Tr)^beta undefined
  EXPECT_EQ(r, 7);
  ResiduumBerechnen(s, z, 0, b, r);
  EXPECT_NE(r, 7);

  FitZustand w = test::Zustand({{700, 3e4f, 0}}, fm::Wagner, false, 647.1, 22064);
  double rw = 7;
  ResiduumBerechnen(s, w, 0, {-7.77, 1.456, -2.77, -1.233}, rw); // above Tcr: the model gives 0
  EXPECT_EQ(rw, -3e4);
  w.FitLog = true;
  rw = 7;
  ResiduumBerechnen(s, w, 0, {-7.77, 1.456, -2.77, -1.233}, rw);
  EXPECT_EQ(rw, 7);
}

TEST(FitStarten, TwoActivePointsAndThreeParametersRefuseTheRun) {
  ProjectState s;
  FitZustand z = test::Zustand({{300, 10, 0}, {350, 50, 0}, {400, 90, FlagInaktiv}}, fm::Antoine);
  EXPECT_FALSE(FitStarten(s, z));
  ASSERT_EQ(z.Meldungen.size(), 1u);
  EXPECT_EQ(z.Meldungen[0].Text,
            "Die Zahl der (aktiven) Messpunkte muss größer als die Gesamtzahl der Parameter "
            "sein!\r\n\r\nErgänzen Sie die Daten im Dateneditor;\r\nauch Mehrfach-Eingabe von "
            "Punkten kann hilfreich sein.");
  EXPECT_EQ(z.Meldungen[0].Titel, "Ausführung nicht möglich");
  EXPECT_FALSE(z.Ergebnis);
}

TEST(FitFunktionswert, FollowsTheLogarithmChosenAfterTheRunAndInvertsItsValues) {
  const Fall& f = Faelle[1]; // Antoine in ln
  FitZustand z = Vorbereitet(f, Daten(f, 20));
  ProjectState s;
  ASSERT_TRUE(FitStarten(s, z));
  int16_t fehler = 0;
  const double p = FitFunktionswert(s, z, 373.15, fehler);
  EXPECT_EQ(fehler, 0);
  EXPECT_REL(p, std::exp(z.FitPar[0] - z.FitPar[1] / (373.15 + z.FitPar[2] - 273.15)), 1e-14);
  EXPECT_REL(FitInvers(s, z, p, fehler), 373.15, 1e-6);
  EXPECT_EQ(fehler, 0);
  // The same parameters read as lg: without a new run the function changes.
  z.Lg = true;
  EXPECT_REL(FitFunktionswert(s, z, 373.15, fehler),
             std::exp(LnTen * (z.FitPar[0] - z.FitPar[1] / (373.15 + z.FitPar[2] - 273.15))), 1e-14);
  // A negative pressure is never reached.
  z.Lg = false;
  FitInvers(s, z, -5, fehler);
  EXPECT_EQ(fehler, -1);
}

} // namespace
} // namespace quor
