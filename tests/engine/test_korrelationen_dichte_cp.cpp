// Densities, the straight diameter and heat capacities against literature or hand-computed values.
#include "dienste/skript_oberflaeche.h"
#include "engine/korrelationen.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

TEST(Dichte, RackettAndCombinationForms) {
  // Methane's DIPPR 105 set of the default data (A = 0 selects it); NIST: 422.6 kg/m^3 at 111.67 K.
  ProjectState s;
  s.Stoff.RhoL = {0, 30.384418f, 0.23603f, 0.21974f, 0, 0, 0};
  s.Stoff.RhoLTcr = 191.05f;
  int16_t failed = -1;
  EXPECT_REL(RhoL(s, 111.66, false, failed), 422.6, 3e-3);
  EXPECT_EQ(failed, 0);
  // Above its own T(cr) the form gives 0, and that is no failure.
  EXPECT_EQ(RhoL(s, 191.1, false, failed), 0.0f);
  EXPECT_EQ(failed, 0);

  // The combination form, with and without the cube-root term.
  s.Stoff.RhoL = {1000, -0.5f, 0.001f, 0, 100, -100, 50};
  s.Stoff.RhoLTcr = 600;
  s.Stoff.RhoLGrenzen = {200, 800};
  // By hand: 1000 - 150 + 90 + 100/200 + 50*0.5^(1/3) = 980.18503.
  EXPECT_REL(RhoL(s, 300, false, failed), 980.18503, 1e-6);
  EXPECT_EQ(failed, 0);
  // Above T(cr) the G term is left out: 1000 - 350 + 490 + 100/600 = 1140.16667.
  EXPECT_REL(RhoL(s, 700, false, failed), 1140.16667, 1e-6);
  // A value that isn't positive fails.
  s.Stoff.RhoL = {1, -1, 0, 0, 0, 0, 0};
  EXPECT_EQ(RhoL(s, 300, false, failed), 0.0f);
  EXPECT_EQ(failed, -1);
}

TEST(Dichte, WithoutRangeLiquidIsLinearInTAndSolidAboutItsReferencePair) {
  ProjectState s;
  // rho = A + B*T for the liquid: 1000 - 0.8*300 = 760, nothing taken off for C.
  s.Stoff.RhoL = {1000, -0.8f, 293.15f, 0, 0, 0, 0};
  // The solid takes A at T = C: 1000 - 0.8*(300 - 293.15) = 994.52.
  s.Stoff.RhoS = {1000, -0.8f, 293.15f, 0};
  int16_t failed = -1;
  EXPECT_REL(RhoL(s, 300, false, failed), 760.0, 1e-6);
  EXPECT_REL(RhoS(s, 300, false, failed), 994.52, 1e-6);
  EXPECT_EQ(failed, 0);
}

TEST(Dichte, SolidCubicAndTheRangeWarningsOfBothPhases) {
  ProjectState s;
  s.Stoff.RhoS = {900, -0.1f, 1e-4f, 0};
  s.Stoff.RhoSGrenzen = {100, 200};
  s.Stoff.RhoL = {0, 30.384418f, 0.23603f, 0.21974f, 0, 0, 0};
  s.Stoff.RhoLTcr = 191.05f;
  s.Stoff.RhoLGrenzen = {91, 190};
  ui::SkriptOberflaeche ui;
  int16_t failed = -1;
  // 900 - 15 + 2.25 = 887.25.
  EXPECT_REL(RhoS(s, 150, true, failed, &ui), 887.25, 1e-6);
  RhoS(s, 205, true, failed, &ui);
  EXPECT_TRUE(ui.Meldungen().empty());
  RhoS(s, 206, true, failed, &ui);
  ASSERT_EQ(ui.Meldungen().size(), 1u);
  EXPECT_EQ(ui.Letzte().text, " Temperatur 6 K außerhalb Parameter-Gültigkeitsbereich\r\n"
                              "(Gültigkeitsbereich: 100 ... 200 K)");
  EXPECT_EQ(ui.Letzte().titel, "Warnung zur Dichtegleichung rho(S) = Fu(T)");
  RhoL(s, 84, true, failed, &ui);
  ASSERT_EQ(ui.Meldungen().size(), 2u);
  EXPECT_EQ(ui.Letzte().text, " Temperatur -7 K außerhalb Parameter-Gültigkeitsbereich\r\n"
                              "(zum Gültigkeitsbereich der Dichtegleichung vgl. Fenster \"Modelle\")");
  EXPECT_EQ(ui.Letzte().titel, "Warnung zur Dichtegleichung rho(L) = Fu(T)");
}

TEST(Dichte, StraightDiameterRunsThroughTheCriticalPoint) {
  const double Tc = 190.56, rhoCr = 162.7, Tref = 111.66, rhoLref = 422.6, rhoVref = 1.816;
  int16_t failed = -1;
  EXPECT_REL(BensonRhoL(Tc, Tc, rhoCr, rhoCr, Tref, 101.325, rhoVref, rhoLref, failed), rhoCr, 1e-12);
  // Halfway the mean of the two phases is halfway between the two means.
  const double T = (Tc + Tref) / 2, rhoV = 20;
  const double rhoL = BensonRhoL(T, Tc, rhoCr, rhoV, Tref, 101.325, rhoVref, rhoLref, failed);
  EXPECT_REL((rhoL + rhoV) / 2, ((rhoLref + rhoVref) / 2 + rhoCr) / 2, 1e-12);
  EXPECT_EQ(BensonRhoL(T, Tc, rhoCr, rhoV, Tc, 101.325, rhoVref, rhoLref, failed), 0.0);
  EXPECT_EQ(failed, -1);
}

TEST(Waermekapazitaet, BothIdealGasFormsGiveMethaneAndStayFiniteAtExtremes) {
  // Methane's sets of the default data; NIST: cp = 35.69 kJ/(kmol K) at 298.15 K.
  ProjectState s;
  s.Stoff.CpPoly = {41.27649f, -0.101277426f, 0.00037690537f, -3.694986e-07f, 1.2522948e-10f};
  s.Stoff.CpSinh = {33.39484f, 83.585434f, 2235.0352f, 46.10642f, 1028.8073f};
  EXPECT_REL(CpIdG(s, 298.15, 1), 35.69, 5e-3);
  EXPECT_REL(CpIdG(s, 298.15, 2), 35.69, 5e-3);
  EXPECT_EQ(CpIdG(s, 298.15, 3), 0.0);
  // Where C/T is tiny the sinh term tends to C1 and the cosh term to 0; 0/sinh(0) gives 0.
  s.Stoff.CpSinh = {30, 80, 2000, 40, 1000};
  EXPECT_REL(CpIdG(s, 1e6, 2), 110.0, 1e-5);
  s.Stoff.CpSinh[2] = 0;
  EXPECT_EQ(CpIdG(s, 300, 2), 0.0);
}

// C4 goes with T^-2 for the gas and, from 10 on, for the condensed phases (else T^4); helium keeps its
// polynomial up to a larger C2.
TEST(Waermekapazitaet, PolynomialBranchesOfTheCondensedPhases) {
  ProjectState s;
  s.Stoff.CpPoly = {10, 0, 0, 0, 5};
  s.Stoff.CpL = {10, 0, 0, 0, 5};
  s.Stoff.CpS = {10, 0, 0, 0, 0.5f};
  EXPECT_REL(CpIdG(s, 2, 1), 10 + 5 / 4.0, 1e-12); // C4/T^2
  EXPECT_REL(CpL(s, 2), 10 + 5 * 16.0, 1e-12);     // C4*T^4
  s.Stoff.CpL[4] = 10;
  EXPECT_REL(CpL(s, 2), 10 + 10 / 4.0, 1e-12);
  EXPECT_REL(CpS(s, 2), 10 + 0.5 * 16, 1e-12);
  // Helium keeps its polynomial up to a larger C2: 1 + 200*T^2, or sinh/cosh with C1 = C3 = 0: 1.
  s.Stoff.CpL = {1, 0, 200, 0, 0};
  s.Stoff.CASRN = "7440-59-7";
  EXPECT_REL(CpL(s, 2), 801.0, 1e-12);
  s.Stoff.CASRN = "7727-37-9";
  EXPECT_REL(CpL(s, 2), 1.0, 1e-12);
  s.Stoff.CpL[2] = 99; // below the limit of all others
  EXPECT_REL(CpL(s, 2), 1 + 99 * 4.0, 1e-12);
}

} // namespace
} // namespace quor
