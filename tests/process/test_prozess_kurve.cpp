// Process lines through the curve engine: the states of a computed line land on the axes of the
// diagram on show (engine units here, so the axis values are the states' own), two-phase states as
// mixtures of the saturated phases, and the straight line in 50 steps.
#include "calc/calc_testhilfe.h"
#include "diagrams/diagramm_codes.h"
#include "diagrams/kurven.h"
#include "process/prozess_kurve.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

namespace quor::test {
namespace {

using namespace prozess;

Kurvenpunkte Zeichne(ProjectState& s, int16_t c) {
  DiagrammAuftrag a;
  a.Code = c;
  a.Xmin = 0.001f;
  a.Xmax = 1e5f;
  a.Ymin = -1e5f;
  a.Ymax = 1e5f;
  ui::SkriptOberflaeche ui;
  Kurvenpunkte k;
  int16_t ergebnis = -1;
  bool imBereich = false;
  std::string meldung;
  double T = 0, p = 0, v = 0;
  CalcCurve(s, ui, a, ergebnis, T, p, v, k, imBereich, meldung);
  EXPECT_EQ(ergebnis, kurve::Fertig);
  return k;
}

ProzessLinie Rechne(ProjectState& s, const ProzessVorgabe& v, int16_t diagramm) {
  ui::SkriptOberflaeche ui;
  const ProzessLinie l = BerechneProzessLinie(s, ui, v);
  ProzessUebergeben(s, v, l, diagramm);
  return l;
}

TEST(ProzessKurve, HomogeneousStatesOnTheAxesOfTheDiagram) {
  ProjectState s = StoffMitModell(CasMethan, 6);
  ProzessVorgabe v;
  v.ProzessArt = Isentrope;
  v.T1 = 300;
  v.P1 = 1000;
  v.Ende = 200;
  ASSERT_EQ(KurvenCode(v), code::ProzessIsentrope);
  const ProzessLinie l = Rechne(s, v, 16); // s over T at p
  const Kurvenpunkte k = Zeichne(s, KurvenCode(v));
  ASSERT_EQ(Anzahl(k), l.punkte.size());
  EXPECT_EQ(k[0].Z, kopf::OhneParameter);
  for (std::size_t i = 0; i < l.punkte.size(); ++i) {
    EXPECT_REL(k[i + 1].X, l.punkte[i].T, 1e-6);
    EXPECT_REL(k[i + 1].Y, l.FixWert, 1e-5);
  }
}

TEST(ProzessKurve, TwoPhaseStatesAreMixturesOnEveryAxis) {
  ProjectState s = StoffMitModell(CasMethan, 6);
  ProzessVorgabe v;
  v.ProzessArt = Isochore;
  v.ProzessHetero = true;
  v.T1 = 150;
  v.Ende = 120;
  v.ProzessPhase = PhaseV;
  ASSERT_EQ(KurvenCode(v), code::ProzessHeterogen);
  for (int16_t diagramm : {int16_t{107}, int16_t{1}}) { // h over s; p over v
    const ProzessLinie l = Rechne(s, v, diagramm);
    const Kurvenpunkte k = Zeichne(s, code::ProzessHeterogen);
    ASSERT_EQ(Anzahl(k), l.punkte.size());
    for (std::size_t i = 0; i < l.punkte.size(); ++i) {
      const ProzessPunkt& z = l.punkte[i];
      EXPECT_REL(k[i + 1].X, diagramm == 107 ? z.s : z.v, 1e-5);
      EXPECT_REL(k[i + 1].Y, diagramm == 107 ? z.h : z.p, 1e-5);
    }
  }
}

TEST(ProzessKurve, StraightLineInFiftySteps) {
  ProjectState s = StoffMitModell(CasMethan, 6);
  GeradeUebergeben(s, 1, 100, 3, 500, 1);
  const Kurvenpunkte k = Zeichne(s, code::ProzessGerade);
  ASSERT_EQ(Anzahl(k), 51u);
  EXPECT_EQ(k[1].X, 1);
  EXPECT_EQ(k[26].Y, 300);
  EXPECT_EQ(k[51].X, 3);
  EXPECT_EQ(k[51].Y, 500);
  // Without a diagram whose axes it could take, a line gives no points.
  ProzessVorgabe v;
  v.T1 = 300;
  v.P1 = 1000;
  v.Ende = 200;
  Rechne(s, v, 0);
  EXPECT_EQ(Anzahl(Zeichne(s, code::ProzessIsentrope)), 0u);
}

} // namespace
} // namespace quor::test
