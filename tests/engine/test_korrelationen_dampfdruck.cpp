// Vapour pressure, its inverse and its slope against literature points; warnings and failures.
#include "dienste/skript_oberflaeche.h"
#include "engine/korrelationen.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quor {
namespace {

// Water with literature sets: Antoine (mmHg, degC) A 8.07131, B 1730.63, C 233.426 moved to kPa
// and kelvins; Wagner 3/6 of McGarry (Reid, Prausnitz, Poling 1987): -7.76451, 1.45838, -2.77580,
// -1.23303, Tc 647.3 K, pc 22120 kPa.
ProjectState Wasser() {
  ProjectState s;
  StoffGruppe& st = s.Stoff;
  st.TKrit = 647.096;
  st.pKrit = 22064;
  st.TSiede = 373.15f;
  st.AntoineNd = {7.196213f, 1730.63f, 233.426f}; // C without 273.15: T in degC
  st.AntoineNdGrenzen = {300, 400};
  st.AntoineHd = st.AntoineNd;
  st.AntoineHdGrenzen = {374, 600};
  st.Wagner = {-7.76451f, 1.45838f, -2.77580f, 3, -1.23303f, 6, 0, 0, 647.3f, 22120};
  st.WagnerGrenzen = {275, 647};
  double A = 0, B = 0;
  AugustParameter(st.TKrit, st.pKrit, st.TSiede, A, B);
  st.AugustA = static_cast<float>(A);
  st.AugustB = static_cast<float>(B);
  return s;
}

// Methane's DIPPR 101 curve of Perry's handbook, ln(p/Pa) = 39.205 - 1324.4/T - 3.4366 ln T
// + 3.1019e-5 T^2, in the stored Frost/Kalkwarf layout (C with 273.15, F less 2).
void MethanFrostKalkwarf(StoffGruppe& st) {
  const float A = static_cast<float>(39.205 / LnTen - 3), B = static_cast<float>(-1324.4 / LnTen);
  st.FrostKalkwarf = {A, B, 273.15f, -3.4366f, 0, 0, 0, static_cast<float>(3.1019e-5 / LnTen), 2};
  st.FrostKalkwarfGrenzen = {91, 190};
}

double MethanPerry(double T) {
  return std::exp(39.205 - 1324.4 / T - 3.4366 * std::log(T) + 3.1019e-5 * T * T) / 1000;
}

// Slope d(ln p)/d(1/T) by central differences of pLV.
double SteigungNumerisch(ProjectState& s, double T, int index) {
  int16_t f = 0;
  const double h = 0.05;
  const double pPlus = pLV(s, T + h, index, false, f), pMinus = pLV(s, T - h, index, false, f);
  return (std::log(pPlus) - std::log(pMinus)) / (1 / (T + h) - 1 / (T - h));
}

TEST(Dampfdruck, WaterPassesItsNormalBoilingPointWithEveryForm) {
  ProjectState s = Wasser();
  for (int index : {1, 2, 4, 5}) {
    SCOPED_TRACE(index);
    int16_t failed = -1;
    EXPECT_REL(pLV(s, 373.15, index, false, failed), 101.325, 2e-3);
    EXPECT_EQ(failed, 0);
    EXPECT_REL(TLV(s, 101.325, index, false, failed), 373.15, 2e-4);
    EXPECT_EQ(failed, 0);
  }
}

TEST(Dampfdruck, FrostKalkwarfExplicitAndImplicit) {
  ProjectState s;
  MethanFrostKalkwarf(s.Stoff);
  int16_t failed = -1;
  // Perry's curve at 111.66 K gives 101.27 kPa; the stored form must agree everywhere in its range.
  for (double T : {91.0, 111.66, 150.0, 190.0}) {
    SCOPED_TRACE(T);
    EXPECT_REL(pLV(s, T, 3, false, failed), MethanPerry(T), 2e-5);
    EXPECT_EQ(failed, 0);
    EXPECT_REL(TLV(s, MethanPerry(T), 3, false, failed), T, 1e-4);
  }
  // The implicit form, solved for p: B = -1500, D = -2 and a strong term E p/T^2 with E = 20; A
  // closes the equation at (300 K, 500 kPa).
  const double T0 = 300, p0 = 500;
  const double A = std::log10(p0) + 1500 / T0 + 2 * std::log10(T0) - 20 * p0 / (T0 * T0);
  s.Stoff.FrostKalkwarf = {static_cast<float>(A), -1500, 273.15f, -2, 20, 0, 0, 0, 0};
  EXPECT_REL(pLV(s, T0, 3, false, failed), p0, 1e-5);
  EXPECT_EQ(failed, 0);
  EXPECT_REL(TLV(s, p0, 3, false, failed), T0, 1e-5);
  // The slope takes the pressure dependence of the E term into account.
  EXPECT_REL(DLnpDInvT(s, 280, 3, failed), SteigungNumerisch(s, 280, 3), 1e-4);
}

TEST(Dampfdruck, SlopeAgreesWithTheCurveForEveryForm) {
  ProjectState s = Wasser();
  MethanFrostKalkwarf(s.Stoff); // the stored C' is 273.15 - 273.15, so the sign of C' - T doesn't show
  int16_t failed = -1;
  for (auto [index, T] : {std::pair{1, 350.0}, {2, 450.0}, {3, 120.0}, {4, 500.0}}) {
    SCOPED_TRACE(index);
    EXPECT_REL(DLnpDInvT(s, T, index, failed), SteigungNumerisch(s, T, index), 1e-5);
    EXPECT_EQ(failed, 0);
  }
  // August: ln p is linear in 1/T with the slope B.
  EXPECT_REL(DLnpDInvT(s, 300, 5, failed), s.Stoff.AugustB, 1e-6);
  EXPECT_EQ(DLnpDInvT(s, 300, 9, failed), 0.0f);
}

TEST(Dampfdruck, WarningsBeyondTenKelvinForThePressureFiveForTheTemperatureAndTheAugustRule) {
  ProjectState s = Wasser();
  ui::SkriptOberflaeche ui;
  int16_t failed = 0;
  pLV(s, 290, 1, true, failed, &ui); // 10 K below the range
  pLV(s, 410, 1, true, failed, &ui); // 10 K above
  EXPECT_TRUE(ui.Meldungen().empty());
  pLV(s, 289, 1, true, failed, &ui);
  ASSERT_EQ(ui.Meldungen().size(), 1u);
  EXPECT_EQ(ui.Letzte().text, " Temperatur -11 K außerhalb Parameter-Gültigkeitsbereich\r\n"
                              "(vgl. unter Daten/Parameter Dampfdruckgleichung)");
  EXPECT_EQ(ui.Letzte().titel, "Warnung zur Dampfdruckgleichung");
  EXPECT_EQ(failed, 0); // the calculation goes on
  pLV(s, 289, 1, false, failed, &ui);
  EXPECT_EQ(ui.Meldungen().size(), 1u); // not without `warn`

  TLV(s, pLV(s, 405, 1, false, failed), 1, true, failed, &ui);
  EXPECT_EQ(ui.Meldungen().size(), 1u);
  TLV(s, pLV(s, 406, 1, false, failed), 1, true, failed, &ui);
  ASSERT_EQ(ui.Meldungen().size(), 2u);
  EXPECT_EQ(ui.Letzte().text, "Temperatur 6 K außerhalb Parameter-Gültigkeitsbereich\r\n"
                              "(vgl. unter Daten/Parameter Dampfdruckgleichung)");

  // August warns only below the boiling point (10 K still allowed), Thompson never.
  s.Stoff.THO = {7.0f, 1700.0f, 500.0f};
  for (double T : {640.0, 363.15})
    pLV(s, T, 5, true, failed, &ui);
  for (double T : {20.0, 2000.0})
    pLV(s, T, 8, true, failed, &ui);
  EXPECT_EQ(ui.Meldungen().size(), 2u);
  pLV(s, 362, 5, true, failed, &ui);
  EXPECT_EQ(ui.Meldungen().size(), 3u);
}

// Zero temperature, NaN, no form, a pressure near 0, an unknown form, a pressure below 1e-35 (Wagner at
// 5 K), and Frost/Kalkwarf without coefficients, whose inverse has no start.
TEST(Dampfdruck, NonsenseInputAndTheEndsOfWagnerFailWithZero) {
  ProjectState s = Wasser();
  int16_t failed = 0;
  const auto scheitert = [&](double wert) { return wert == 0.0 && failed == -1; }; // after the call
  EXPECT_TRUE(scheitert(pLV(s, 0, 1, false, failed)));
  EXPECT_TRUE(scheitert(pLV(s, std::nan(""), 4, false, failed)));
  EXPECT_TRUE(scheitert(pLV(s, 300, 0, false, failed)));
  EXPECT_TRUE(scheitert(TLV(s, 1e-7, 1, false, failed)));
  EXPECT_TRUE(scheitert(TLV(s, 100, 9, false, failed)));
  EXPECT_TRUE(scheitert(pLV(s, 5, 4, false, failed)));
  EXPECT_TRUE(scheitert(TLV(s, 100, 3, false, failed)));
  // Wagner fails at its own critical temperature, and silently beyond a sum of 50 in magnitude.
  ui::SkriptOberflaeche ui;
  EXPECT_REL(pLV(s, 647.29, 4, true, failed, &ui), 22120, 1e-3);
  EXPECT_TRUE(scheitert(pLV(s, 647.3, 4, true, failed, &ui)));
  s.Stoff.Wagner[0] = -70;
  EXPECT_TRUE(scheitert(pLV(s, 150, 4, true, failed, &ui)));
  EXPECT_TRUE(ui.Meldungen().empty());
}

} // namespace
} // namespace quor
