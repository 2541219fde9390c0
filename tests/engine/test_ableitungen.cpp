// Derivatives of p(T,v), v(T,p) and T(p,v) against differences; the inflection points of the isotherm.
#include "engine/ableitungen.h"
#include "kalorik_hilfen.h"
#include "support/relativ.h"

#include <cmath>
#include <gtest/gtest.h>

namespace quor {
namespace {

using namespace quor::test;

// T at (p, v) by Newton on p(T, v) to the last digits, independent of the solvers under test.
double Temperatur(ProjectState& s, double p, double v, double T) {
  for (int i = 0; i < 60; ++i) {
    const double h = 1e-6 * T;
    const double dT = -(Druck(s, T, v) - p) / ((Druck(s, T + h, v) - Druck(s, T - h, v)) / (2 * h));
    T += dT;
    if (std::fabs(dT) < 1e-14 * T) break;
  }
  return T;
}

// Central differences with relative steps 1e-5 (first derivatives) and 3e-5 to 1e-4 (second).
void PruefeGegenDifferenzen(ProjectState& s, double T, double p, bool dampf) {
  const double v = Volumen(s, T, p, dampf);
  const PhiErgebnis e = Phi(s, T, p, v);
  ASSERT_EQ(e.err, 0);
  const auto& a1 = e.tab.Abl1[PhaseV];
  const auto& a2 = e.tab.Abl2[PhaseV];
  const double hT = 1e-5 * T, hT2 = 3e-5 * T, hv = 1e-5 * v, hv2 = 1e-4 * v;
  EXPECT_REL(a1[1], (Druck(s, T, v + hv) - Druck(s, T, v - hv)) / (2 * hv), 1e-6);
  EXPECT_REL(a1[2], (Druck(s, T + hT, v) - Druck(s, T - hT, v)) / (2 * hT), 1e-6);
  const double pvv = (Druck(s, T, v + hv2) - 2 * Druck(s, T, v) + Druck(s, T, v - hv2)) / (hv2 * hv2);
  EXPECT_TRUE(Nahe(a2[1], pvv, 1e-5, std::fabs(a1[1]) / v));
  EXPECT_REL(a1[4], (Volumen(s, T + hT, p, dampf) - Volumen(s, T - hT, p, dampf)) / (2 * hT), 1e-6);
  const double vtt = (Volumen(s, T + hT2, p, dampf) - 2 * v + Volumen(s, T - hT2, p, dampf)) / (hT2 * hT2);
  EXPECT_TRUE(Nahe(a2[4], vtt, 1e-4, std::fabs(a1[4]) / T));
  // alpha = p beta chi, since (dV/dT)_p = -(dV/dp)_T (dp/dT)_v.
  MechTabelle mech{};
  int16_t err = -1;
  MechKoeffizienten(PhaseV, p, v, e.tab.Abl1, mech, err);
  EXPECT_EQ(err, 0);
  EXPECT_REL(mech[PhaseV][1], p * mech[PhaseV][3] * mech[PhaseV][2], 1e-10);
  if (s.Modell.VirialFlag) return; // the virial d2T/dV2 is a form of its own, not this derivative
  const double Tp = Temperatur(s, p, v + hv2, T), Tm = Temperatur(s, p, v - hv2, T);
  EXPECT_TRUE(Nahe(a2[5], (Tp - 2 * Temperatur(s, p, v, T) + Tm) / (hv2 * hv2), 1e-4, std::fabs(a1[5]) / v));
}

// Cubic rows: vapour, compressed liquid, supercritical, liquid next to the critical point; the virial
// rows and the ideal gas: dilute and supercritical vapour.
TEST(AbleitungenPTV, EveryRowMatchesDifferencesOfTheEquation) {
  for (const StoffDaten& stoff : {Methan, Wasser, Eikosan}) {
    for (int16_t index : {2, 3, 4, 5, 6, 7, 8, 0, 11, 12, 13, 14, 15, 16}) {
      ProjectState s = MitCp(stoff, index);
      const double Tc = stoff.TKrit, pc = stoff.pKrit;
      SCOPED_TRACE(std::string(stoff.name) + " row " + std::to_string(index));
      if (s.Modell.VirialFlag) {
        PruefeGegenDifferenzen(s, 0.8 * Tc, 0.02 * pc, true);
        PruefeGegenDifferenzen(s, 1.3 * Tc, 0.4 * pc, true);
        continue;
      }
      PruefeGegenDifferenzen(s, 0.7 * Tc, 0.002 * pc, true);
      PruefeGegenDifferenzen(s, 0.7 * Tc, 2.0 * pc, false);
      PruefeGegenDifferenzen(s, 1.5 * Tc, 1.0 * pc, true);
      int16_t err = 0;
      PruefeGegenDifferenzen(s, 0.95 * Tc, 1.02 * Saettigungsdruck(s, 0.95 * Tc, err), false);
    }
  }
}

// van der Waals: d2p/dV2 = 0 where R T v^4 = 3a (v-b)^3, whose right-hand side peaks at v = 4b with
// 81a/(256b) = 1.0679 R TKrit: at TKrit the critical volume is the first root, above 1.0679 TKrit
// there is none. For every cubic row d2p/dV2 vanishes there by differences.
TEST(WendepunkteSuchen, InflectionPointsOfTheIsotherm) {
  ProjectState s = ZustandMit(Methan, 2);
  Wendepunkte wp;
  int16_t err = -1;
  WendepunkteSuchen(s, Methan.TKrit, wp, err);
  ASSERT_EQ(err, 0);
  EXPECT_REL(wp.v[0], s.EOS.vKritEOS, 1e-9);
  EXPECT_REL(wp.p[0], Methan.pKrit, 1e-8);
  WendepunkteSuchen(s, 1.2 * Methan.TKrit, wp, err);
  EXPECT_EQ(err, -1);
  EXPECT_EQ(wp.v, (std::array<double, 2>{0, 0}));

  for (int16_t index : KubischeZeilen) {
    ProjectState w = ZustandMit(Wasser, index);
    const double T = 0.8 * Wasser.TKrit;
    WendepunkteSuchen(w, T, wp, err);
    ASSERT_EQ(err, 0) << index;
    ASSERT_LT(wp.v[0], wp.v[1]) << index;
    for (double v : wp.v) {
      const double h = 1e-4 * v;
      const double d1 = (Druck(w, T, v + h) - Druck(w, T, v - h)) / (2 * h);
      const double d2 = (Druck(w, T, v + h) - 2 * Druck(w, T, v) + Druck(w, T, v - h)) / (h * h);
      EXPECT_LT(std::fabs(d2), 1e-5 * std::fabs(d1) / v) << index;
    }
  }
}

} // namespace
} // namespace quor
