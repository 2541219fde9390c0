// Enthalpy of vaporization from states of the EOS against Clausius-Clapeyron.
#include "engine/korrelationen.h"
#include "kalorik_hilfen.h"
#include "support/relativ.h"

#include <cmath>
#include <gtest/gtest.h>

namespace quor {
namespace {

using namespace quor::test;

// The saturation pressure to the last digits (for differences): a secant on the imbalance.
double GenauerDampfdruck(ProjectState& s, double T) {
  int16_t err = 0;
  double p1 = Saettigungsdruck(s, T, err), p0 = p1 * (1 + 1e-4);
  EXPECT_EQ(err, 0);
  double f0 = Flaechenbilanz(s, T, p0), f1 = Flaechenbilanz(s, T, p1);
  for (int i = 0; i < 50 && f1 != f0; ++i) {
    const double p2 = p1 - f1 * (p1 - p0) / (f1 - f0);
    p0 = p1;
    f0 = f1;
    p1 = p2;
    f1 = Flaechenbilanz(s, T, p1);
    if (std::fabs(p1 - p0) < 1e-14 * p1) break;
  }
  return p1;
}

double Hlv(ProjectState& s, int methode, double& T, double& p, HLVErgebnis& erg, int16_t& failed) {
  return HLVBerechnen(s, methode, T, p, s.Modell.DampfdruckIndex, false, erg, failed);
}

// Clausius-Clapeyron: delta(LV)h = T (vV - vL) dp(LV)/dT, with dp(LV)/dT a central difference of
// the EOS's saturation pressure.
TEST(HLVAusEOS, MatchesClausiusClapeyronOfTheEquation) {
  for (const StoffDaten& stoff : {Methan, Wasser}) {
    for (int16_t index : KubischeZeilen) {
      ProjectState s = MitCp(stoff, index);
      for (double Tr : {0.6, 0.9}) {
        SCOPED_TRACE(std::string(stoff.name) + " row " + std::to_string(index) + " Tr " + std::to_string(Tr));
        double T = Tr * stoff.TKrit;
        const double h = 1e-4 * T;
        double p = GenauerDampfdruck(s, T);
        const double dpdT = (GenauerDampfdruck(s, T + h) - GenauerDampfdruck(s, T - h)) / (2 * h);
        const double vL = Volumen(s, T, p, false), vV = Volumen(s, T, p, true);
        HLVErgebnis erg;
        int16_t failed = -1;
        const double dh = Hlv(s, HLVAusKubischerEOS, T, p, erg, failed);
        ASSERT_EQ(failed, 0);
        EXPECT_REL(dh, T * (vV - vL) * dpdT, 1e-6);
        EXPECT_REL(erg.zV, p * vV / (RGas * T), 1e-7); // the solver's roots, not the polished ones
        EXPECT_REL(erg.zL, p * vL / (RGas * T), 1e-7);
      }
    }
  }
}

// A missing p or T comes from the EOS's saturation, with its note; a virial model has none.
TEST(HLVAusEOS, MissingPressureOrTemperatureComesFromTheEquation) {
  ProjectState s = MitCp(Methan, 6), v = MitCp(Methan, 14);
  HLVErgebnis erg;
  int16_t failed = -1;
  double T = 150, p = 0, T2 = 0, p2 = GenauerDampfdruck(s, 150), T3 = 150, p3 = 0;
  const double dh = Hlv(s, HLVAusKubischerEOS, T, p, erg, failed);
  EXPECT_REL(p, p2, 1e-4);
  EXPECT_EQ(erg.notizen, std::vector<std::string>{"p = p(LV) von kubischer EOS"});
  EXPECT_REL(Hlv(s, HLVAusKubischerEOS, T2, p2, erg, failed), dh, 1e-3);
  EXPECT_REL(T2, 150, 1e-4);
  EXPECT_EQ(erg.notizen, std::vector<std::string>{"T = T(LV) von kubischer EOS"});
  EXPECT_EQ(Hlv(v, HLVAusKubischerEOS, T3, p3, erg, failed), 0.0);
  EXPECT_EQ(failed, -1);
  EXPECT_EQ(erg.notizen, std::vector<std::string>{"p(LV) von EOS: Fehler -1"});
}

// delta(LV)h = -R d(ln p)/d(1/T) (zV - zL), the slope as a central difference of ln p(LV) in 1/T;
// water with Peng/Robinson for the vapour, an Antoine equation and a linear liquid density.
TEST(HLVAusDichten, ClapeyronWithTheVapourPressureSlope) {
  ProjectState s = MitCp(Wasser, 6);
  s.Stoff.AntoineNd = {7.196213f, 1730.63f, 233.426f};
  s.Stoff.AntoineNdGrenzen = {274, 647};
  s.Modell.DampfdruckIndex = AntoineNiederdruck;
  s.Stoff.RhoL = {1300.0f, -0.95f, 373.15f, 0, 0, 0, 0}; // A + B T without a range
  s.Stoff.rhoKritExp = 322;
  const double T0 = 373.15, M = Wasser.MolMasse;
  int16_t f = 0;
  const double pSoll = pLV(s, T0, AntoineNiederdruck, false, f);
  const double x = 1 / T0, hx = 1e-6 * x;
  const double steigung =
      (std::log(pLV(s, 1 / (x + hx), 1, false, f)) - std::log(pLV(s, 1 / (x - hx), 1, false, f))) / (2 * hx);
  const double vV = Volumen(s, T0, pSoll, true), zV = pSoll * vV / (RGas * T0);

  HLVErgebnis erg;
  int16_t failed = -1;
  double T = T0, p = 0;
  const double dh5 = Hlv(s, HLVAusRhoL, T, p, erg, failed);
  ASSERT_EQ(failed, 0);
  EXPECT_REL(p, pSoll, 1e-12);
  const double zL5 = M * p / (RGas * T * (1300 - 0.95 * T0));
  EXPECT_REL(dh5, -RGas * steigung * (zV - zL5), 1e-6);
  EXPECT_EQ(erg.notizen.back(), " aktueller Dampfdruckgleichung");

  // The reference point of the straight diameter at T itself gives back its liquid density.
  s.Referenz.BezugT = static_cast<float>(T0);
  s.Referenz.BezugP = static_cast<float>(pSoll);
  s.Referenz.BezugRhoV = static_cast<float>(M / vV);
  s.Referenz.BezugRhoL = 958;
  const double dh6 = Hlv(s, HLVAusBenson, T, p, erg, failed);
  EXPECT_REL(dh6, -RGas * steigung * (zV - M * p / (RGas * T * 958)), 1e-6);
}

} // namespace
} // namespace quor
