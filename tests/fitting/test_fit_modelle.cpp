// The model functions of the fitting dialog: the implicit Frost-Kalkwarf form, the failure rules of
// Wagner's equation, the DIPPR heat capacity's product test and its write into the EOS constant c0,
// the models that depend on Tcr, and what choosing a model puts into the start fields.
#include "fit_testhilfe.h"
#include "support/relativ.h"

#include <cmath>
#include <gtest/gtest.h>

namespace quor {
namespace {

double Wert(int16_t modell, const FitParameter& P, double x, ModellStatus& st, double c = 1, double Tcr = 0,
            double pcr = 0) {
  EOSGruppe eos;
  double y = -1;
  st = ModellWert(eos, {modell, c, Tcr, pcr}, P, x, y);
  return y;
}

TEST(FrostKalkwarf, TheNewtonSolutionSatisfiesTheImplicitEquationInBothLogarithms) {
  // ln p = A + B/(T + C - 273.15) + D ln T + E p / T^2, a water-like set; the lg form is the same
  // equation divided by ln 10, with D unchanged since D lg T = D ln T / ln 10.
  const double A = 54.6, B = -6500, C = 260, D = -5.5, E = 4;
  for (double T : {290.0, 373.15, 440.0}) {
    double p = 0, pLg = 0;
    ASSERT_EQ(FrostKalkwarfDruck(A, B, C, D, E, 1, T, p), ModellStatus::Gut);
    const double rechts = A + B / (T + C - 273.15) + D * std::log(T) + E * p / (T * T);
    EXPECT_NEAR(std::log(p), rechts, 1e-12) << T;
    ASSERT_EQ(FrostKalkwarfDruck(A / LnTen, B / LnTen, C, D, E / LnTen, LnTen, T, pLg), ModellStatus::Gut);
    EXPECT_REL(pLg, p, 1e-12);
  }
}

TEST(FrostKalkwarf, WithoutTheImplicitTermItIsTheExplicitFormAndAVanishingStartFails) {
  double p = 0;
  ASSERT_EQ(FrostKalkwarfDruck(20, -3000, 273.15, -1, 0, 1, 350, p), ModellStatus::Gut);
  EXPECT_REL(p, std::exp(20 - 3000.0 / 350 - std::log(350.0)), 1e-13);
  // exp(-300) is below 1e-120: the model's own failure, value 0.
  EXPECT_EQ(FrostKalkwarfDruck(-300, 0, 273.15, 0, 1, 1, 350, p), ModellStatus::Fehlschlag);
  EXPECT_EQ(p, 0);
}

TEST(FrostKalkwarf, TheThodosFormComputesDFromBInTheLogarithmOfItsForm) {
  // Model 6 is model 5 with D = 1.8 B / Tcr + 2.67 for lg, 1.8 B / (ln 10 Tcr) + 2.67 for ln.
  const double Tcr = 647.1, T = 373.15;
  ModellStatus st;
  for (bool lg : {false, true}) {
    const double c = lg ? LnTen : 1.0;
    const double B = lg ? -2823 : -6500;
    const double D = lg ? 1.8 * B / Tcr + 2.67 : 1.8 * B / (LnTen * Tcr) + 2.67;
    const double A = lg ? 23.15 : 53.3, E = lg ? 1.737 : 4;
    const double p6 = Wert(fitmodell::FrostKalkwarfThodos, {A, B, 260, E}, T, st, c, Tcr);
    ASSERT_EQ(st, ModellStatus::Gut);
    EXPECT_REL(p6, Wert(fitmodell::FrostKalkwarf, {A, B, 260, D, E}, T, st, c), 1e-14);
  }
}

TEST(Wagner, OutsideItsRangeOrBeyondItsLimitsTheModelFailsWithZero) {
  const FitParameter P{-7.77, 1.456, -2.77, -1.233};
  const double Tcr = 647.1, pcr = 22064;
  ModellStatus st;
  // The closed form at 373.15 K, X = 1 - T/Tcr.
  const double X = 1 - 373.15 / Tcr;
  const double S = P[0] * X + P[1] * std::pow(X, 1.5) + P[2] * std::pow(X, 3) + P[3] * std::pow(X, 6);
  EXPECT_REL(Wert(fitmodell::Wagner, P, 373.15, st, 1, Tcr, pcr), pcr * std::exp(S * Tcr / 373.15), 1e-14);
  EXPECT_EQ(st, ModellStatus::Gut);
  for (double T : {0.0, Tcr, 700.0, Tcr * (1 - 5e-7)}) { // the last one has X below 1e-6
    EXPECT_EQ(Wert(fitmodell::Wagner, P, T, st, 1, Tcr, pcr), 0) << T;
    EXPECT_EQ(st, ModellStatus::Fehlschlag) << T;
  }
  // |S| above 50, and a pressure below 1e-35.
  Wert(fitmodell::Wagner, {-200, 0, 0, 0}, 300, st, 1, Tcr, pcr);
  EXPECT_EQ(st, ModellStatus::Fehlschlag);
  Wert(fitmodell::Wagner, {-49, 0, 0, 0}, 10, st, 1, Tcr, pcr);
  EXPECT_EQ(st, ModellStatus::Fehlschlag);
}

TEST(DipprCp, TheProductTestDecidesAndAIsLeftInTheEosConstant) {
  EOSGruppe eos;
  eos.c0 = 123;
  double y = 0;
  // B = 0: the product of B, C, D, E vanishes, so y = A at any T.
  for (double T : {100.0, 1000.0}) {
    ASSERT_EQ(ModellWert(eos, {fitmodell::DipprCp}, {51.9, 0, 1626.5, 116.8, 723.6}, T, y),
              ModellStatus::Gut);
    EXPECT_EQ(y, 51.9);
  }
  EXPECT_EQ(eos.c0, 51.9);
  // The full form against the library's sinh and cosh (a propane-like set, kJ/(kmol K)).
  const double T = 400, t1 = 1626.5 / T, t2 = 723.6 / T;
  const double soll =
      51.92 + 192.45 * std::pow(t1 / std::sinh(t1), 2) + 116.8 * std::pow(t2 / std::cosh(t2), 2);
  ASSERT_EQ(ModellWert(eos, {fitmodell::DipprCp}, {51.92, 192.45, 1626.5, 116.8, 723.6}, T, y),
            ModellStatus::Gut);
  EXPECT_REL(y, soll, 1e-13);
  EXPECT_EQ(eos.c0, 51.92);
  // C/T of 709.78 or more makes sinh 0, and the quotient undefined.
  EXPECT_EQ(ModellWert(eos, {fitmodell::DipprCp}, {51.92, 192.45, 1626.5, 116.8, 723.6}, 2.0, y),
            ModellStatus::Laufzeitfehler);
}

TEST(ModelleMitTcr, WithoutTcrTrIsZeroAndAboveTcrThePowerIsUndefined) {
  ModellStatus st;
  EXPECT_EQ(Wert(fitmodell::Majer, {40000, 0.3, 0.4}, 300, st, 1, 0), 40000);
  EXPECT_EQ(Wert(fitmodell::DipprHLV, {29000, 0.38, 0.1, 0, 0}, 300, st, 1, 0), 29000);
  Wert(fitmodell::Majer, {40000, 0.3, 0.4}, 400, st, 1, 369.8);
  EXPECT_EQ(st, ModellStatus::Laufzeitfehler);
  Wert(fitmodell::Leuna, {300, -1, 0.002, -3e-6, 200}, 400, st, 1, 369.8);
  EXPECT_EQ(st, ModellStatus::Laufzeitfehler);
  // Rackett computes A / B^(1 + X^C) with X = 1 - T/Tcr.
  const double X = 1 - 200 / 369.8;
  EXPECT_REL(Wert(fitmodell::Rackett, {60.7, 0.2745, 0.2936}, 200, st, 1, 369.8),
             60.7 / std::pow(0.2745, 1 + std::pow(X, 0.2936)), 1e-14);
}

TEST(WaermekapazitaetPolynome, ShomateIsZeroAtNonPositiveTAndTheCpPolynomialIgnoresE) {
  ModellStatus st;
  EXPECT_EQ(Wert(fitmodell::Shomate, {28, 0.18, -8e-5, 1.5e-8, -2e5}, 0, st), 0);
  EXPECT_EQ(st, ModellStatus::Gut);
  EXPECT_REL(Wert(fitmodell::Shomate, {28, 0.18, -8e-5, 1.5e-8, -2e5}, 500, st),
             28 + 0.18 * 500 - 8e-5 * 250000 + 1.5e-8 * 1.25e8 - 2e5 / 250000, 1e-14);
  EXPECT_EQ(Wert(fitmodell::PolynomCp, {25, 0.2, -1e-4, 2e-8, 1e6}, 500, st),
            Wert(fitmodell::PolynomCp, {25, 0.2, -1e-4, 2e-8, 0}, 500, st));
}

TEST(ModellWahl, ChoosingAModelResetsTheStartFieldsAndPutsTcrBehindTheParameters) {
  FitZustand z;
  z.StartFeld = {9, 9, 9, 9, 9, 9, 9};
  ModellWaehlen(z, fitmodell::FrostKalkwarf, false, 647.1, 22064);
  // The proposals as the fields show them: 273.15 reads back as the decimal number.
  EXPECT_EQ(z.StartFeld[2], 273.15);
  EXPECT_EQ(z.StartFeld[5], 0);
  EXPECT_REL(z.StartFeld[3], 1.8 * -5000 / 647.1 + 2.67, 1e-6); // D from Tcr
  EXPECT_EQ(z.FitSkala[1], 1000);
  // Model 6 shows five fields (D computed), so its Tcr stands in the sixth.
  ModellWaehlen(z, fitmodell::FrostKalkwarfThodos, true, 647.1, 22064);
  EXPECT_EQ(z.FitNPar, 4);
  EXPECT_EQ(z.StartFeld[5], 647.1);
  ModellWaehlen(z, fitmodell::Wagner, false, 647.1, 22064);
  EXPECT_EQ(z.StartFeld[4], 647.1);
  EXPECT_EQ(z.StartFeld[5], 22064);
}

} // namespace
} // namespace quor
