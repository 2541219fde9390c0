// Residual and caloric functions against integrals of the EOS, differences and definitions.
#include "engine/kubisch.h"
#include "kalorik_hilfen.h"
#include "support/relativ.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace quor {
namespace {

using namespace quor::test;

struct Zustand {
  double Tr, pr;
  bool dampf;
};
// A dilute vapour, a compressed liquid and a supercritical fluid.
constexpr Zustand Dampf{0.7, 0.002, true}, Fluessig{0.7, 2.0, false}, Ueberkritisch{1.5, 1.0, true};

// Residual energy and entropy as integrals over the molar density at constant T, with (dp/dT)_v
// from differences of p(T, v):
//   u - u_idG = -int_0^rho (T p_T - p)/rho'^2 drho',  h - h_idG = (u - u_idG) + p v - R T,
//   s - s_idG(T, p) = -int_0^rho (p_T - R rho')/rho'^2 drho' + R ln Z,
// and g - g_idG = (h - h_idG) - T (s - s_idG) = R T ln phi from these two.
TEST(PhiFunktionen, ResidualEnthalpyAndEntropyAreIntegralsOfTheEquation) {
  for (int16_t index : KubischeZeilen) {
    for (const Zustand& z : {Dampf, Fluessig, Ueberkritisch}) {
      ProjectState s = MitCp(Wasser, index);
      SCOPED_TRACE(index);
      const double T = z.Tr * Wasser.TKrit, p = z.pr * Wasser.pKrit;
      const double v = Volumen(s, T, p, z.dampf), h = 1e-5 * T;
      const auto pT = [&](double rho) {
        return (Druck(s, T + h, 1 / rho) - Druck(s, T - h, 1 / rho)) / (2 * h);
      };
      const double uRes =
          -Integral([&](double r) { return (T * pT(r) - Druck(s, T, 1 / r)) / (r * r); }, 0, 1 / v);
      const double hRes = uRes + p * v - RGas * T;
      const double sRes = -Integral([&](double r) { return (pT(r) - RGas * r) / (r * r); }, 0, 1 / v) +
                          RGas * std::log(p * v / (RGas * T));
      const PhiErgebnis e = Phi(s, T, p, v);
      const auto& r = e.r();
      EXPECT_REL(RGas * r[4], hRes, 1e-7);
      EXPECT_REL(RGas * r[3], sRes, 1e-7);
      EXPECT_REL(RGas * r[5], hRes - T * sRes, 1e-7);
      EXPECT_REL(r[0], (hRes - T * sRes) / (RGas * T), 1e-7);
    }
  }
}

// cp is dh/dT at constant p (h from ThermoFunktionen along the isobar); cp - cv = -T (dp/dT)^2/(dp/dV)
// with both derivatives from differences of p(T, v); w^2 = -(v^2/M) 1000 (dp/dV)_s, where the
// isentrope's slope comes from differences of s(T, v): (dT/dV)_s = -(ds/dV)_T/(ds/dT)_v.
void PruefeCpCvW(ProjectState& s, const StoffDaten& stoff, const Zustand& z) {
  const double T = z.Tr * stoff.TKrit, p = z.pr * stoff.pKrit;
  const double v = Volumen(s, T, p, z.dampf);
  const KalorischeWerte w = Thermo(s, T, p, v);
  const double hT = 1e-5 * T, hv = 1e-5 * v;
  const auto hBeiT = [&](double t) { return Thermo(s, t, p, Volumen(s, t, p, z.dampf)).h; };
  EXPECT_REL(w.cp, (hBeiT(T + hT) - hBeiT(T - hT)) / (2 * hT), 1e-6);
  const double pT = (Druck(s, T + hT, v) - Druck(s, T - hT, v)) / (2 * hT);
  const double pv = (Druck(s, T, v + hv) - Druck(s, T, v - hv)) / (2 * hv);
  EXPECT_REL(w.cp - w.cv, -T * pT * pT / pv, 1e-6);
  const auto sBei = [&](double t, double vol) { return Thermo(s, t, Druck(s, t, vol), vol).s; };
  const double sT = (sBei(T + hT, v) - sBei(T - hT, v)) / (2 * hT);
  const double sv = (sBei(T, v + hv) - sBei(T, v - hv)) / (2 * hv);
  EXPECT_REL(w.w, std::sqrt(-(v * v / stoff.MolMasse) * 1000 * (pv - pT * sv / sT)), 1e-6);
}

// Every row; the virial rows and the ideal gas in the vapour only. With h the residual enthalpy
// and cp its T-derivative, this checks the first and second T-derivatives of ln phi as well.
TEST(ThermoFunktionen, HeatCapacitiesAndSpeedOfSoundFollowTheirDefinitions) {
  for (const StoffDaten& stoff : {Methan, Wasser}) {
    for (int16_t index : {2, 3, 4, 5, 6, 7, 8, 0, 11, 12, 13, 14, 15, 16}) {
      ProjectState s = MitCp(stoff, index);
      SCOPED_TRACE(std::string(stoff.name) + " row " + std::to_string(index));
      PruefeCpCvW(s, stoff, Dampf);
      PruefeCpCvW(s, stoff, Ueberkritisch);
      if (!s.Modell.VirialFlag) PruefeCpCvW(s, stoff, Fluessig);
    }
  }
}

// Ideal gas: no residual part at all, cp of the cp function (cv and w follow the definitions above).
TEST(PhiFunktionen, IdealGasHasNoResidualPart) {
  ProjectState s = MitCp(Methan, 0);
  const double T = 300, p = 2000, v = RGas * T / p;
  const PhiErgebnis e = Phi(s, T, p, v);
  ASSERT_EQ(e.err, 0);
  const auto& r = e.r();
  EXPECT_EQ(std::vector<double>(r.begin(), r.begin() + 7), std::vector<double>(7, 0.0));
  int16_t err = 0;
  const double cp = cpIdealgas(s, T, 1, err);
  EXPECT_REL(r[9], cp, 1e-14);
  EXPECT_LT(std::fabs(r[7]), 1e-15); // no Joule-Thomson effect: T (dV/dT)_p = v
}

// At the environment state both exergies vanish; away from it the exergy of h is positive.
TEST(ThermoFunktionen, ExergiesVanishAtTheEnvironmentState) {
  for (const StoffDaten& stoff : {Methan, Wasser}) {
    ProjectState s = MitCp(stoff, 6);
    s.Referenz.TUmgebung = 298.15;
    s.Referenz.pUmgebung = 101.325;
    const Loesung l = Loese(s, 298.15, 101.325);
    const KalorischeWerte w = Thermo(s, 298.15, 101.325, l.istV ? l.vV : l.vL, l.istV ? PhaseV : PhaseL);
    EXPECT_LT(std::max(std::fabs(w.eh), std::fabs(w.eu)), 1e-9 * std::fabs(w.h) + 1e-9) << stoff.name;
    const double T = 1.3 * stoff.TKrit, p = 0.5 * stoff.pKrit;
    EXPECT_GT(Thermo(s, T, p, Volumen(s, T, p, true)).eh, 0.0) << stoff.name;
  }
}

// The saturated phases have equal g: g(V) - g(L) = -(A + B), which the saturation tests bound; 1e-6 R T
// covers the roots' error on the steep liquid branch.
TEST(SaettigungsFunktionen, SaturatedPhasesHaveEqualFreeEnthalpyAndMeetAtTheCriticalPoint) {
  for (const StoffDaten& stoff : {Methan, Wasser, Eikosan}) {
    for (int16_t index : KubischeZeilen) {
      ProjectState s = MitCp(stoff, index);
      for (double Tr : {0.6, 0.85, 0.98}) {
        SCOPED_TRACE(std::string(stoff.name) + " row " + std::to_string(index) + " Tr " + std::to_string(Tr));
        const double T = Tr * stoff.TKrit;
        SaettigungsWerte erg;
        int16_t err = -1;
        SaettigungsFunktionen(s, T, erg, err);
        ASSERT_EQ(err, 0);
        double A = 0, B = 0;
        GleichgewichtsFlaeche(s, T, erg.p, A, B, err); // the saturated roots are in VRoots again
        const double dg = erg.phase[PhaseV].g - erg.phase[PhaseL].g;
        EXPECT_NEAR(dg, -(A + B), 1e-6 * RGas * T);
        EXPECT_GT(erg.phase[PhaseV].h, erg.phase[PhaseL].h);
      }
    }
  }
  // At TKrit both phases are the critical state; a virial model has no saturation.
  ProjectState s = MitCp(Methan, 6);
  SaettigungsWerte erg;
  int16_t err = -1;
  SaettigungsFunktionen(s, Methan.TKrit, erg, err);
  EXPECT_EQ(err, 0);
  EXPECT_EQ(erg.phase[PhaseL].h, erg.phase[PhaseV].h);
  s = MitCp(Methan, 14);
  SaettigungsFunktionen(s, 150, erg, err);
  EXPECT_EQ(err, -1);
}

} // namespace
} // namespace quor
