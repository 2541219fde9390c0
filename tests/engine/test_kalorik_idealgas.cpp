// The ideal-gas part: h and s as integrals of cp and cp/T, the reference kinds, the sinh/cosh limit.
#include "engine/referenz.h"
#include "kalorik_hilfen.h"
#include "support/relativ.h"

#include <cmath>
#include <gtest/gtest.h>
#include <tuple>

namespace quor {
namespace {

using namespace quor::test;

struct CpSatz {
  const char* name;
  int16_t CpIndex;
  std::array<float, 5> k;
  double (*cp)(const std::array<float, 5>& k, double T); // written out here, independent of the code
};

double Potenz4(const std::array<float, 5>& k, double T) {
  return k[0] + k[1] * T + k[2] * T * T + k[3] * T * T * T + k[4] * T * T * T * T;
}
double InversQuadrat(const std::array<float, 5>& k, double T) {
  return k[0] + k[1] * T + k[2] * T * T + k[3] * T * T * T + k[4] / (T * T);
}
double OhneKonstante(const std::array<float, 5>& k, double T) {
  return k[1] + k[2] * T + k[3] * T * T + k[4] / (T * T);
}
double DIPPR107(const std::array<float, 5>& k, double T) {
  const double x = k[2] / T, y = k[4] / T;
  return k[0] + k[1] * std::pow(x / std::sinh(x), 2) + k[3] * std::pow(y / std::cosh(y), 2);
}

// The three polynomial branches (|A| > 1e-8 with |E| < 1 or |E| >= 1, and A absent) and the
// sinh/cosh form with methane's DIPPR 107 set (Perry's handbook, in kJ/(kmol K)).
const CpSatz Saetze[] = {
    {"polynomial with T^4", 1, CpMethan, Potenz4},
    {"polynomial with E/T^2", 1, {30.0f, 0.02f, 1e-5f, -5e-9f, 2e5f}, InversQuadrat},
    {"polynomial without A", 1, {0.0f, 20.0f, 0.05f, -1e-5f, -3e5f}, OhneKonstante},
    {"sinh/cosh", 2, {33.298f, 79.933f, 2086.9f, 41.602f, 991.96f}, DIPPR107},
};

ProjectState MitSatz(const CpSatz& satz) {
  ProjectState s = ZustandMit(Methan, 6);
  s.Modell.CpIndex = satz.CpIndex;
  (satz.CpIndex == 1 ? s.Stoff.CpPoly : s.Stoff.CpSinh) = satz.k;
  s.Referenz.RefArt = RefBenutzer;
  s.Referenz.TRef = 298.15f;
  s.Referenz.pRef = 101.325f;
  s.Referenz.hRef = 500;
  s.Referenz.sRef = 7;
  return s;
}

// h(T, p) = int_To^T cp dT + hRef, s(T, p) = int_To^T cp/T dT - R ln(p/pRef) + sRef, for T above and
// below To.
TEST(IdealgasFunktionen, AreTheIntegralsOfCpAndCpOverTDownToOneTenthKelvin) {
  for (const CpSatz& satz : Saetze) {
    ProjectState s = MitSatz(satz);
    const double To = s.Referenz.TRef, p = 300;
    for (double T : {600.0, 150.0}) {
      SCOPED_TRACE(std::string(satz.name) + " T = " + std::to_string(T));
      double h = 0, sIdG = 0, cp = 0;
      int16_t err = -1;
      IdealgasFunktionen(s, T, p, h, sIdG, cp, err);
      ASSERT_EQ(err, 0);
      const auto f = [&](double t) { return satz.cp(satz.k, t); };
      EXPECT_REL(cp, f(T), 1e-12);
      EXPECT_REL(h, Integral(f, To, T) + 500, 1e-10);
      const double sSoll =
          Integral([&](double t) { return f(t) / t; }, To, T) - RGas * std::log(p / s.Referenz.pRef) + 7;
      EXPECT_REL(sIdG, sSoll, 1e-10);
    }
  }
  // The sinh/cosh form has no value at T <= 0.1; just above, with C/T of 2e4, only A is left.
  ProjectState s = MitSatz(Saetze[3]);
  double h = 1, sIdG = 2, cp = 3;
  int16_t err = 0;
  IdealgasFunktionen(s, 0.1, 101.325, h, sIdG, cp, err);
  EXPECT_EQ(std::tie(err, h), std::make_tuple(int16_t{-1}, 1.0));
  IdealgasFunktionen(s, 0.1000001, 101.325, h, sIdG, cp, err);
  EXPECT_EQ(err, 0);
  EXPECT_REL(cp, 33.298, 1e-6);
  EXPECT_TRUE(std::isfinite(h) && std::isfinite(sIdG));
}

// Formation quantities: at To = 298.15 K and po = 101.325 kPa (as the state holds them, single
// precision) h and s are hBildung and sBildung, whatever TRef and pRef held. The conventional
// normalisation takes s0 = (hBildung - gBildung)/298.15; user values keep their TRef.
TEST(ReferenzKonstanten, KindsAndTheirOverrides) {
  ProjectState s = MitSatz(Saetze[0]);
  s.Stoff.hBildung = -74870;
  s.Stoff.gBildung = -50810;
  s.Stoff.sBildung = 186.3f;
  s.Referenz.hRef = s.Referenz.sRef = 0;
  s.Referenz.TRef = 350;
  s.Referenz.pRef = 20;
  s.Referenz.RefArt = RefBildung;
  double h = 0, sIdG = 0, cp = 0, h0 = 0, s0 = 0;
  int16_t err = -1;
  IdealgasFunktionen(s, 298.15f, 101.325f, h, sIdG, cp, err);
  EXPECT_EQ(std::tie(s.Referenz.TRef, s.Referenz.pRef), std::make_tuple(298.15f, 101.325f));
  EXPECT_EQ(std::tie(h, sIdG), std::make_tuple(-74870.0, static_cast<double>(186.3f)));

  const double po = 101.325f;
  s.Referenz.RefArt = RefKonventionell;
  s.Referenz.TRef = 350;
  ReferenzKonstanten(s, 1013.25, h0, s0);
  EXPECT_EQ(std::tie(s.Referenz.TRef, h0), std::make_tuple(298.15f, -74870.0));
  EXPECT_REL(s0, -24060 / 298.15 - RGas * std::log(1013.25 / po), 1e-12);

  s.Referenz.RefArt = RefBenutzer;
  s.Referenz.TRef = 350;
  s.Referenz.pRef = 0;
  ReferenzKonstanten(s, 200, h0, s0);
  EXPECT_EQ(std::tie(h0, s.Referenz.TRef, s.Referenz.pRef), std::make_tuple(0.0, 350.0f, 101.325f));
  EXPECT_REL(s0, -RGas * std::log(200 / po), 1e-12);
}

} // namespace
} // namespace quor
