// Curves of the p-v-T surface and of the coexistence region for methane with Peng/Robinson, point by
// point against direct calls of the engine: isotherms on p(T,v) with their saturation points, the
// coexistence lines, the vapour-pressure curve by both concepts, the virial isotherm and the empty
// axis range.
#include "calc/calc_testhilfe.h"
#include "diagrams/diagramm_codes.h"
#include "diagrams/kurven.h"
#include "engine/kalorik.h"
#include "engine/virial.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quor {
namespace {

using test::DruckLV;
using test::StoffMitModell;

constexpr int16_t PengRobinson = 6, PengRobinsonVirial = 15;

struct Ergebnis {
  Kurvenpunkte punkte;
  int16_t code = -1;
  bool imBereich = false;
  std::string meldung;
  ui::SkriptOberflaeche ui;
};

void Zeichne(ProjectState& s, Ergebnis& e, int16_t code, int16_t klasse, float Xmin, float Xmax, float Ymin,
             float Ymax, double T = 0, double p = 0, double v = 0) {
  DiagrammAuftrag a;
  a.Code = code, a.Klasse = klasse;
  a.Xmin = Xmin, a.Xmax = Xmax, a.Ymin = Ymin, a.Ymax = Ymax;
  CalcCurve(s, e.ui, a, e.code, T, p, v, e.punkte, e.imBereich, e.meldung);
}

ProjectState Methan() {
  return StoffMitModell(test::CasMethan, PengRobinson);
}

// The position of the point at (X, Y) in float, 0 when there is none.
std::size_t Stelle(const Kurvenpunkte& k, double X, double Y) {
  for (std::size_t i = 1; i < k.size(); ++i)
    if (k[i].X == static_cast<float>(X) && k[i].Y == static_cast<float>(Y)) return i;
  return 0;
}

double LnPhi(ProjectState s, double T, double p, double v) {
  Abl1Tabelle a1{};
  Abl2Tabelle a2{};
  ResFunkTabelle rf{};
  int16_t err = 0;
  PhiFunktionen(s, 0, T, p, v, a1, a2, rf, err);
  EXPECT_EQ(err, 0);
  return rf[0][0];
}

TEST(KurvenPvT, IsothermPointsLieOnTheEosAndMeetTheSaturationInTwoPointsOfEqualFugacity) {
  for (const double T : {150.0, 250.0}) {
    ProjectState s = Methan();
    Ergebnis e;
    Zeichne(s, e, code::pv, klasse::Isotherme, 0.03f, 1.5f, 0, 8000, T);
    ASSERT_EQ(e.code, kurve::Fertig);
    ASSERT_GT(Anzahl(e.punkte), 100u);
    EXPECT_EQ(e.punkte[0].Z, kopf::MitParameter);
    ProjectState eos = s;
    for (std::size_t i = 1; i < e.punkte.size(); ++i) {
      int16_t err = 0;
      EXPECT_REL(e.punkte[i].Y, PzuTV(eos, T, e.punkte[i].X, err), 2e-5)
          << "T " << T << " v " << e.punkte[i].X;
      if (i > 1) {
        EXPECT_LE(e.punkte[i - 1].X, e.punkte[i].X);
      }
    }
    if (T > s.Stoff.TKrit) continue;
    // Below T(cr): the two saturated states, nothing between them, equal fugacity.
    ProjectState g = s;
    const double pLV = DruckLV(g, T), vL = g.EOS.VRoots[0], vV = g.EOS.VRoots[2];
    ASSERT_NE(Stelle(e.punkte, vL, pLV), 0u);
    ASSERT_NE(Stelle(e.punkte, vV, pLV), 0u);
    for (std::size_t i = 1; i < e.punkte.size(); ++i)
      EXPECT_FALSE(e.punkte[i].X > static_cast<float>(vL) && e.punkte[i].X < static_cast<float>(vV));
    EXPECT_NEAR(LnPhi(s, T, pLV, vL), LnPhi(s, T, pLV, vV), 1e-4);
  }
}

TEST(KurvenPvT, JustBelowTheCriticalPointTheSaturationPointsStayAdjacentAndTheSLoopFillsTheGap) {
  ProjectState s = Methan();
  const double T = s.Stoff.TKrit - 0.1;
  ProjectState g = s;
  const double pLV = DruckLV(g, T), vL = g.EOS.VRoots[0], vV = g.EOS.VRoots[2];
  ASSERT_LT(vL, vV);
  Ergebnis e;
  Zeichne(s, e, code::pv, klasse::Isotherme, 0.03f, 0.5f, 0, 8000, T);
  const std::size_t iL = Stelle(e.punkte, vL, pLV), iV = Stelle(e.punkte, vV, pLV);
  ASSERT_NE(iL, 0u);
  EXPECT_EQ(iV, iL + 1);

  s.Optionen.SKurveOhneKonnode = true;
  Ergebnis sKurve;
  Zeichne(s, sKurve, code::pv, klasse::Isotherme, 0.03f, 0.5f, 0, 8000, T);
  int innen = 0;
  for (std::size_t i = 1; i < sKurve.punkte.size(); ++i)
    innen += sKurve.punkte[i].X > static_cast<float>(vL) && sKurve.punkte[i].X < static_cast<float>(vV);
  EXPECT_GT(innen, 0);
}

TEST(KurvenPvT, VapourPressureCurveFollowsTheEosInGlobalAndTheEquationInPartial) {
  for (const bool global : {true, false}) {
    ProjectState s = Methan();
    s.Modell.KonzeptGlobal = s.Modell.RechnungGlobal = global;
    Ergebnis e;
    Zeichne(s, e, code::Dampfdruck, klasse::Koexistenz, 100, 200, 0, 5000);
    ASSERT_GT(Anzahl(e.punkte), 400u) << global;
    EXPECT_EQ(e.punkte[0].Z, kopf::OhneParameter);
    for (std::size_t i = 1; i < e.punkte.size(); ++i) {
      const double T = e.punkte[i].X;
      ProjectState r = s;
      int16_t failed = 0;
      const double p = global ? DruckLV(r, T) : pLV(r, T, s.Modell.DampfdruckIndex, false, failed);
      EXPECT_REL(e.punkte[i].Y, p, 1e-5) << "T " << T << " global " << global;
    }
  }
}

TEST(KurvenPvT, CoexistenceCurvesGiveBothSaturatedStates) {
  ProjectState s = Methan();
  const double Tc = s.Stoff.TKrit, M = s.Stoff.MolMasse;
  Ergebnis dichten;
  Zeichne(s, dichten, code::KoexRhoT, klasse::Koexistenz, 100, 200, 0, 500);
  ASSERT_GT(Anzahl(dichten.punkte), 100u);
  int fluessig = 0, dampf = 0;
  for (std::size_t i = 1; i < dichten.punkte.size(); ++i) {
    const Kurvenpunkt& k = dichten.punkte[i];
    ProjectState g = s;
    DruckLV(g, k.X);
    const double rhoL = M / g.EOS.VRoots[0], rhoV = M / g.EOS.VRoots[2];
    const bool istL = std::fabs(k.Y - rhoL) <= 1e-4 * rhoL, istV = std::fabs(k.Y - rhoV) <= 1e-4 * rhoV;
    EXPECT_TRUE(istL || istV) << "T " << k.X << " rho " << k.Y;
    fluessig += istL, dampf += istV;
  }
  EXPECT_EQ(fluessig, dampf);

  // The p-v dome: the critical point, then saturated pairs at the EOS's p(LV) of their temperature.
  Ergebnis kuppel;
  Zeichne(s, kuppel, code::KoexPv, klasse::Koexistenz, 0, 1.0f, 0, 5000);
  ASSERT_GT(Anzahl(kuppel.punkte), 20u);
  EXPECT_NE(Stelle(kuppel.punkte, s.EOS.vKritEOS, s.Stoff.pKrit), 0u);
  for (std::size_t i = 1; i < kuppel.punkte.size(); ++i) {
    const Kurvenpunkt& k = kuppel.punkte[i];
    if (k.Z >= Tc - 0.5) continue; // near T(cr) a float temperature no longer fixes p(LV)
    ProjectState g = s;
    EXPECT_REL(k.Y, DruckLV(g, k.Z), 1e-4) << "T " << k.Z;
    if (i > 1) {
      EXPECT_LE(kuppel.punkte[i - 1].X, k.X);
    }
  }
}

TEST(KurvenPvT, IsohygreZeroAndOneAreTheBoilingAndDewLinesAndOneHalfLiesBetween) {
  ProjectState s = Methan();
  const double x[3] = {0, 0.5, 1};
  for (int j = 0; j < 3; ++j) {
    s.Diagramm.Isohygre = x[j];
    Ergebnis e;
    Zeichne(s, e, code::KoexTv, klasse::Koexistenz, 0, 2, 100, 200);
    ASSERT_GT(Anzahl(e.punkte), 100u);
    EXPECT_EQ(e.punkte[1].X, static_cast<float>(s.EOS.vKritEOS)); // the critical point first
    for (std::size_t i = 2; i < e.punkte.size(); ++i) {
      const Kurvenpunkt& k = e.punkte[i];
      if (k.Z >= s.Stoff.TKrit - 1) continue; // near T(cr) a float temperature no longer fixes vV
      ProjectState g = s;
      DruckLV(g, k.Z);
      const double vL = g.EOS.VRoots[0], vV = g.EOS.VRoots[2];
      if (x[j] == 0.5) {
        EXPECT_REL(k.X, (vL + vV) / 2, 1e-4);
      } else {
        EXPECT_REL(k.X, x[j] == 0 ? vL : vV, 1e-4) << "Isohygre " << x[j] << " T " << k.Z;
      }
    }
  }
}

TEST(KurvenPvT, VirialIsothermIsMonotonicWithoutTiePointsAndHasNoCoexistence) {
  ProjectState s = StoffMitModell(test::CasMethan, PengRobinsonVirial);
  const double T = 150;
  Ergebnis e;
  Zeichne(s, e, code::pv, klasse::Isotherme, 0.03f, 1.5f, 0, 8000, T);
  ASSERT_GT(Anzahl(e.punkte), 400u);
  ProjectState b = s;
  const double B = BvonT(b, PengRobinsonVirial, T);
  for (std::size_t i = 1; i < e.punkte.size(); ++i) {
    EXPECT_REL(e.punkte[i].Y, RGas * T / (e.punkte[i].X - B), 2e-5);
    EXPECT_GT(e.punkte[i].Y, 0);
    if (i > 1) {
      EXPECT_LT(e.punkte[i].Y, e.punkte[i - 1].Y);
    }
  }
  // No critical volume: the densities over T are refused.
  Ergebnis dichten;
  Zeichne(s, dichten, code::KoexRhoT, klasse::Koexistenz, 100, 200, 0, 500);
  EXPECT_EQ(dichten.code, kurve::KeinKritischesVolumen);
  EXPECT_EQ(Anzahl(dichten.punkte), 0u);
}

TEST(KurvenPvT, EqualAxisEndsGiveNoPointsAndNoMessage) {
  ProjectState s = Methan();
  Ergebnis e;
  Zeichne(s, e, code::pv, klasse::Isotherme, 0.5f, 0.5f, 0, 8000, 150);
  EXPECT_EQ(Anzahl(e.punkte), 0u);
  EXPECT_TRUE(e.meldung.empty());
  EXPECT_TRUE(e.ui.protokoll.empty());
}

} // namespace
} // namespace quor
