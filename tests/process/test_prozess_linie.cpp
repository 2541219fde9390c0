// Process lines of methane with Peng/Robinson: homogeneous lines checked point by point against
// direct calls of the state solver and the caloric functions, heterogeneous lines against the
// saturated states and the lever rule, the ideal-gas polytrope against its closed form, and the
// refusals word for word.
#include "calc/calc_testhilfe.h"
#include "core/zahlformat.h"
#include "engine/kalorik.h"
#include "process/prozess_linie.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quor::test {
namespace {

using namespace prozess;

ProjectState Methan() {
  return StoffMitModell(CasMethan, 6);
}

// v, h, s of one phase at (T, p) straight from the engine, on a copy of the state.
struct Phase {
  bool da = false;
  double v = 0, h = 0, s = 0;
};
Phase PhaseBei(ProjectState s, double T, double p, int16_t phase) {
  const Zustand z = Loese(s, T, p);
  Phase e;
  e.da = phase == PhaseL ? z.istL : z.istV;
  if (!e.da) return e;
  e.v = phase == PhaseL ? z.vL : z.vV;
  KalorischeWerte w;
  int16_t err = 0;
  ThermoFunktionen(s, T, p, e.v, phase, w, err);
  e.h = w.h;
  e.s = w.s;
  return e;
}

double Groesse(const Phase& e, int16_t art) {
  return art == Isochore ? e.v : art == Isentrope ? e.s : e.h;
}

ProzessLinie Linie(ProjectState& s, const ProzessVorgabe& v) {
  ui::SkriptOberflaeche ui;
  return BerechneProzessLinie(s, ui, v);
}

ProzessVorgabe Homogen(int16_t art, int16_t bereich, double T1, double P1, double ende) {
  ProzessVorgabe v;
  v.ProzessArt = art;
  v.ProzessBereich = bereich;
  v.T1 = T1;
  v.P1 = P1;
  v.Ende = ende;
  v.ProzessPhase = PhaseV;
  return v;
}

// Along the isentrope, the isenthalpe and the isochore of the vapour the fixed quantity keeps the
// start's value: each point is solved anew by the engine, and the deviation stays below what a
// relative change of 1e-5 in the solved variable would make (the solver stops at |dx/x| < 1.5e-6).
TEST(HomogeneLinie, FixedQuantityKeepsItsStartValueAtEveryPoint) {
  struct Fall {
    int16_t art, bereich;
    double T1, P1, ende;
  };
  for (const Fall& f :
       {Fall{Isentrope, BereichT, 300, 1000, 200}, Fall{Isenthalpe, BereichP, 300, 5000, 500},
        Fall{Isochore, BereichT, 300, 1000, 400}, Fall{Isentrope, BereichP, 250, 2000, 300}}) {
    SCOPED_TRACE(f.art);
    ProjectState s = Methan();
    const ProzessLinie l = Linie(s, Homogen(f.art, f.bereich, f.T1, f.P1, f.ende));
    ASSERT_EQ(l.fehler, 0);
    ASSERT_EQ(l.punkte.size(), 51u);
    const double ziel = Groesse(PhaseBei(s, f.T1, f.P1, PhaseV), f.art);
    EXPECT_EQ(l.FixWert, ziel);
    const bool laufT = f.bereich == BereichT;
    EXPECT_EQ(laufT ? l.punkte.back().T : l.punkte.back().p, f.ende); // the last step lands on the end
    for (const ProzessPunkt& z : l.punkte) {
      const Phase e = PhaseBei(s, z.T, z.p, PhaseV);
      ASSERT_TRUE(e.da) << z.T << " K " << z.p << " kPa";
      const double T2 = laufT ? z.T : z.T * (1 + 1e-5), p2 = laufT ? z.p * (1 + 1e-5) : z.p;
      const double toleranz = std::fabs(Groesse(PhaseBei(s, T2, p2, PhaseV), f.art) - Groesse(e, f.art));
      EXPECT_NEAR(Groesse(e, f.art), ziel, toleranz) << z.T << " K " << z.p << " kPa";
      // The point carries the engine's state at its T and p.
      EXPECT_REL(z.v, e.v, 1e-12);
      EXPECT_REL(z.h, e.h, 1e-12);
      EXPECT_REL(z.s, e.s, 1e-12);
      EXPECT_EQ(z.eta, 1);
    }
  }
}

// The isentrope expands the gas: T falls, and so must p; the isotherm keeps T and the isobar p.
TEST(HomogeneLinie, IsothermAndIsobarKeepTheirVariable) {
  ProjectState s = Methan();
  const ProzessLinie t = Linie(s, Homogen(Isotherme, BereichP, 300, 100, 8000));
  ASSERT_EQ(t.punkte.size(), 51u);
  for (const ProzessPunkt& z : t.punkte) {
    EXPECT_EQ(z.T, 300);
    EXPECT_REL(z.v, PhaseBei(s, 300, z.p, PhaseV).v, 1e-12);
  }
  const ProzessLinie b = Linie(s, Homogen(Isobare, BereichT, 200, 1000, 400));
  ASSERT_EQ(b.punkte.size(), 51u);
  for (std::size_t i = 1; i < b.punkte.size(); ++i) {
    EXPECT_EQ(b.punkte[i].p, 1000);
    EXPECT_GT(b.punkte[i].h, b.punkte[i - 1].h); // cp > 0
  }
}

// The solver through the dispatcher and through the engine directly give the same line.
TEST(HomogeneLinie, BothEvaluationPathsGiveTheSameStates) {
  ProjectState s1 = Methan(), s2 = Methan();
  ProzessVorgabe v = Homogen(Isentrope, BereichT, 300, 1000, 200);
  const ProzessLinie a = Linie(s1, v);
  v.auswertung = Auswertung::Direkt;
  const ProzessLinie b = Linie(s2, v);
  ASSERT_EQ(a.punkte.size(), b.punkte.size());
  for (std::size_t i = 0; i < a.punkte.size(); ++i)
    EXPECT_EQ(a.punkte[i].p, b.punkte[i].p) << i;
  EXPECT_EQ(a.aufrufe, b.aufrufe);
}

// An isentrope of the vapour that reaches the saturation curve has no continuation of its own: the
// solver fails there and the line ends with the points so far, all of them vapour below p(LV).
TEST(HomogeneLinie, IsentropeEndsAtTheSaturationCurve) {
  ProjectState s = Methan();
  const ProzessLinie l = Linie(s, Homogen(Isentrope, BereichT, 185, 3000, 110));
  EXPECT_EQ(l.fehler, -1);
  ASSERT_GT(l.punkte.size(), 1u);
  ASSERT_LT(l.punkte.size(), 51u);
  for (const ProzessPunkt& z : l.punkte)
    EXPECT_LT(z.p, DruckLV(s, z.T)) << z.T;
  // A start in a phase that is not present gives no line.
  ProzessVorgabe fluessig = Homogen(Isochore, BereichT, 150, 500, 140);
  fluessig.ProzessPhase = PhaseL;
  EXPECT_TRUE(Linie(s, fluessig).punkte.empty());
}

ProzessVorgabe Heterogen(int16_t art, double T1, double T2, int16_t phase) {
  ProzessVorgabe v;
  v.ProzessArt = art;
  v.ProzessHetero = true;
  v.ProzessBereich = BereichT;
  v.T1 = T1;
  v.Ende = T2;
  v.ProzessPhase = phase;
  return v;
}

// Inside the dome every point is the mixture of the two saturated states at its T, with eta from
// the lever rule on the fixed quantity; a start on the dew or boiling line gives eta exactly 1 or 0.
TEST(HeterogeneLinie, PointsFollowTheLeverRule) {
  for (int16_t art : {Isochore, Isentrope, Isenthalpe}) {
    for (int16_t phase : {PhaseL, PhaseV}) {
      SCOPED_TRACE(art * 10 + phase);
      ProjectState s = Methan();
      const ProzessLinie l = Linie(s, Heterogen(art, 150, 120, phase));
      ASSERT_EQ(l.fehler, 0);
      ASSERT_EQ(l.punkte.size(), 51u);
      EXPECT_EQ(l.punkte.front().eta, phase == PhaseV ? 1.0 : 0.0);
      for (const ProzessPunkt& z : l.punkte) {
        SaettigungsWerte erg;
        int16_t err = 0;
        ProjectState kopie = s;
        SaettigungsFunktionen(kopie, z.T, erg, err);
        ASSERT_EQ(err, 0);
        const KalorischeWerte &L = erg.phase[0], &V = erg.phase[1];
        EXPECT_REL(z.p, erg.p, 1e-12);
        EXPECT_REL(z.v, erg.vL + z.eta * (erg.vV - erg.vL), 1e-12);
        EXPECT_NEAR(z.h, L.h + z.eta * (V.h - L.h), 1e-9 * std::fabs(V.h - L.h));
        EXPECT_NEAR(z.s, L.s + z.eta * (V.s - L.s), 1e-9 * std::fabs(V.s - L.s));
        const double fix = art == Isochore ? z.v : art == Isentrope ? z.s : z.h;
        EXPECT_NEAR(fix, l.FixWert, 1e-9 * std::fabs(l.FixWert) + 1e-9);
      }
    }
  }
}

// Beyond the saturation curve the lever rule extrapolates: the isochore of the saturated vapour at
// 120 K, followed up to 150 K, has eta above 1 there (the vapour's volume shrinks as T rises).
TEST(HeterogeneLinie, ExtrapolatesBeyondTheSaturationCurve) {
  ProjectState s = Methan();
  const ProzessLinie l = Linie(s, Heterogen(Isochore, 120, 150, PhaseV));
  ASSERT_EQ(l.punkte.size(), 51u);
  EXPECT_EQ(l.punkte.front().eta, 1.0);
  EXPECT_GT(l.punkte.back().eta, 1.0);
}

// At the critical point the two saturated states coincide: a line that starts there has eta = 1;
// a line of another volume that reaches it loses that point and is marked failed.
TEST(HeterogeneLinie, CriticalPoint) {
  ProjectState s = Methan();
  const double Tc = s.Stoff.TKrit;
  const ProzessLinie ab = Linie(s, Heterogen(Isochore, Tc, 150, PhaseV));
  ASSERT_EQ(ab.punkte.size(), 51u);
  EXPECT_EQ(ab.punkte.front().eta, 1.0);
  EXPECT_GT(ab.punkte[1].eta, 0.0);
  EXPECT_LT(ab.punkte[1].eta, 1.0);
  const ProzessLinie hin = Linie(s, Heterogen(Isochore, 150, Tc, PhaseV));
  EXPECT_EQ(hin.fehler, -1);
  ASSERT_EQ(hin.punkte.size(), 50u);
  EXPECT_LT(hin.punkte.back().T, Tc);
}

// The line of constant degree of vaporization: every point at the given eta; 0 counts as 1e-35.
TEST(HeterogeneLinie, ConstantEtaLine) {
  ProjectState s = Methan();
  ProzessVorgabe v = Heterogen(KonstantesEta, 120, 180, PhaseV);
  v.Eta = 0.25;
  const ProzessLinie l = Linie(s, v);
  ASSERT_EQ(l.punkte.size(), 51u);
  for (const ProzessPunkt& z : l.punkte)
    EXPECT_EQ(z.eta, 0.25);
  v.Eta = 0;
  EXPECT_EQ(Linie(s, v).punkte.front().eta, 1e-35);
}

ProzessVorgabe Polytrop(double n, int16_t bereich, double ende) {
  ProzessVorgabe v = Homogen(Polytrope, bereich, 300, 100, ende);
  v.PolytropenExponent = n;
  v.Kappa = 1.3;
  v.PolytropenModus = PolytropeIdealgas;
  return v;
}

// The ideal-gas polytrope keeps p v^n and follows T2/T1 = (p2/p1)^((n-1)/n); its h and s change
// as those of an ideal gas of constant kappa.
TEST(Polytrope, IdealGasClosedForm) {
  ProjectState s = Methan();
  for (int16_t bereich : {BereichP, BereichT}) {
    const ProzessLinie l = Linie(s, Polytrop(1.2, bereich, bereich == BereichP ? 1000 : 400));
    ASSERT_EQ(l.fehler, 0);
    ASSERT_EQ(l.punkte.size(), 51u);
    const ProzessPunkt& a = l.punkte.front();
    const double cp = 1.3 * RGas / 0.3;
    for (const ProzessPunkt& z : l.punkte) {
      EXPECT_REL(z.p * std::pow(z.v, 1.2), a.p * std::pow(a.v, 1.2), 1e-12);
      EXPECT_REL(z.T / a.T, std::pow(z.p / a.p, 0.2 / 1.2), 1e-12);
      EXPECT_REL(z.p * z.v, RGas * z.T, 1e-12);
      EXPECT_NEAR(z.s - a.s, cp * std::log(z.T / a.T) - RGas * std::log(z.p / a.p), 1e-9);
    }
  }
  // n = 1 is the isotherm: accepted with a p range.
  const ProzessLinie iso = Linie(s, Polytrop(1, BereichP, 1000));
  ASSERT_EQ(iso.punkte.size(), 51u);
  EXPECT_TRUE(iso.meldungen.empty());
  for (const ProzessPunkt& z : iso.punkte)
    EXPECT_REL(z.T, 300, 1e-14);
}

// The refusals, in the order the checks run, each ending the action before any point.
TEST(Pruefung, MessagesWordForWordAndInOrder) {
  ProjectState s = Methan();
  auto meldung = [&](const ProzessVorgabe& v) {
    const ProzessLinie l = Linie(s, v);
    EXPECT_TRUE(l.punkte.empty());
    return l.meldungen.size() == 1 ? l.meldungen[0]
                                   : std::string("(" + std::to_string(l.meldungen.size()) + ")");
  };
  // kappa comes before everything else; then n = 1 against a T range.
  ProzessVorgabe p = Polytrop(1, BereichT, 400);
  p.Kappa = 0;
  EXPECT_EQ(meldung(p),
            "noch kein gültiges kappa vorhanden\r\n\r\nGeben Sie Ihren Wert ein oder klicken Sie auf "
            "die\r\nCombo-Box, um einen angebotenen Wert zu übernehmen.");
  p.Kappa = 1.4;
  EXPECT_EQ(meldung(p),
            "Bedingung Polytropen-Exp. n = 1 (=> isotherm) ist im\r\nWiderspruch zur Angabe eines "
            "T-Bereichs.");
  ProzessVorgabe eta = Heterogen(KonstantesEta, 120, 150, PhaseV);
  eta.Eta = 1.5;
  EXPECT_EQ(meldung(eta), "unzulässige Eingabe");
  // Both tie lines above T(cr): the message names the last one; the range itself is not judged.
  // The critical constants in Basic's default text of a double.
  const std::string Tc = DoubleText(s.Stoff.TKrit), pc = DoubleText(s.Stoff.pKrit);
  EXPECT_EQ(Tc, "190.56");
  EXPECT_EQ(meldung(Heterogen(Isentrope, 200, 200, PhaseV)),
            "Temperatur für Endkonnode muss kleiner/gleich T(cr) = " + Tc + " K sein");
  EXPECT_EQ(meldung(Heterogen(Isentrope, 200, 150, PhaseV)),
            "Temperatur für Anfangskonnode muss kleiner/gleich T(cr) = " + Tc + " K sein");
  ProzessVorgabe druck = Heterogen(Isochore, 150, 150, PhaseL);
  druck.ProzessBereich = BereichP;
  druck.P1 = 1000;
  druck.Ende = 5000;
  EXPECT_EQ(meldung(druck), "Druck für Endkonnode muss kleiner/gleich p(cr) = " + pc + " kPa sein");
  EXPECT_EQ(meldung(Homogen(Isentrope, BereichT, 0, 1000, 200)), "T- und p-Vorgabe müssen größer Null sein");
  EXPECT_EQ(meldung(Homogen(Isentrope, BereichT, 300, 1000, 300)), "Bereichsangabe ungültig");
  EXPECT_EQ(meldung(Homogen(Isotherme, BereichT, 300, 1000, 400)), "Bereichsangabe ungültig");
}

} // namespace
} // namespace quor::test
