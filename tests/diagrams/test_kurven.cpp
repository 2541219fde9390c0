// The curve engine's own part, before any branch: the refusal of the slope of ln p under the GLOBAL
// concept, the tie line of a state as 51 points, and the note of a request that gives no points.
#include "calc/calc_testhilfe.h"
#include "diagrams/diagramm_codes.h"
#include "diagrams/kurven.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quor {
namespace {

struct Kurve {
  ProjectState s = test::StoffMitModell(test::CasMethan, 6);
  ui::SkriptOberflaeche ui;
  Kurvenpunkte punkte;
  int16_t ergebnis = -1;
  bool imBereich = false;
  std::string meldung;

  void Zeichne(int16_t code, int16_t klasse, float Xmin, float Xmax, float Ymin, float Ymax, double T) {
    DiagrammAuftrag a;
    a.Code = code, a.Klasse = klasse;
    a.Xmin = Xmin, a.Xmax = Xmax, a.Ymin = Ymin, a.Ymax = Ymax;
    double p = 0, v = 0;
    CalcCurve(s, ui, a, ergebnis, T, p, v, punkte, imBereich, meldung);
  }
};

TEST(CalcCurve, TheSlopeOfLnPIsRefusedUnderTheGlobalConcept) {
  Kurve k;
  ASSERT_TRUE(k.s.Modell.KonzeptGlobal);
  k.Zeichne(code::Anstieg, klasse::Koexistenz, 0.005f, 0.011f, 0, 2000, 0);
  EXPECT_EQ(Anzahl(k.punkte), 0u);
  ASSERT_EQ(k.ui.Meldungen().size(), 1u);
  EXPECT_EQ(k.ui.Letzte().titel, "Ausführung nicht möglich");
  EXPECT_EQ(k.ui.Letzte().text, "nur für Dampfdruckgleichungen entspr. \"Modelle\" möglich (PARTIAL-Konzept),\r\n"
                                "nicht für die Dampfdruckberechnung mittels CEOS (GLOBAL-Konzept)\r\n"
                                "Ändern Sie unter \"Modelle\" auf PARTIAL-Konzept");
  k.s.Modell.KonzeptGlobal = false;
  k.Zeichne(code::Anstieg, klasse::Koexistenz, 0.006f, 0.011f, 0, 2000, 0);
  EXPECT_GT(Anzahl(k.punkte), 0u);
}

// The tie line of an isotherm runs in 51 even steps from the liquid to the vapour end; a state
// without one (above T(cr)) gives result 4. A vapour-pressure curve asked for above T(cr) has no
// point and ends with the note.
TEST(CalcCurve, TieLineModeAndTheEmptyCurve) {
  Kurve k;
  k.s.Diagramm.KonnodeModus = true;
  k.Zeichne(code::pv, klasse::Isotherme, 0.03f, 2, 0, 5000, 150);
  ASSERT_EQ(Anzahl(k.punkte), 51u);
  double X1 = 0, X2 = 0, Y1 = 0, Y2 = 0;
  DiagrammAuftrag a;
  a.Code = code::pv;
  ASSERT_TRUE(Konnodenpunkte(k.s, a, 150, 0, 0, X1, X2, Y1, Y2));
  EXPECT_FLOAT_EQ(k.punkte[1].X, static_cast<float>(X1));
  EXPECT_FLOAT_EQ(k.punkte[51].X, static_cast<float>(X2));
  EXPECT_FLOAT_EQ(k.punkte[26].X, static_cast<float>((X1 + X2) / 2));
  EXPECT_EQ(k.punkte[0].Z, kopf::MitParameter);
  k.Zeichne(code::pv, klasse::Isotherme, 0.03f, 2, 0, 5000, 250);
  EXPECT_EQ(k.ergebnis, kurve::KeineKonnode);

  k.s.Diagramm.KonnodeModus = false;
  k.Zeichne(code::Dampfdruck, klasse::Koexistenz, 200, 300, 0, 5000, 0); // all above T(cr)
  EXPECT_EQ(Anzahl(k.punkte), 0u);
  EXPECT_EQ(k.meldung, "mit diesen Eingabedaten kein Ergebnis erhalten");
}

// Just below T(cr) the saturation search stops at p(cr) with the roots of a one-root state: the
// isotherm takes no saturation pair from it, and no point at v = 0.
TEST(CalcCurve, AnIsothermJustBelowTheCriticalPointHasNoFalseSaturationPoint) {
  for (const char* cas : {test::CasMethan, "74-98-6"}) {
    Kurve k;
    k.s = test::StoffMitModell(cas, 6);
    const double Tc = k.s.Stoff.TKrit;
    k.Zeichne(code::pv, klasse::Isotherme, 0.03f, 2, 0, 20000, std::nextafter(Tc, 0.0));
    ASSERT_GT(Anzahl(k.punkte), 0u) << cas;
    for (std::size_t i = 1; i < k.punkte.size(); ++i)
      EXPECT_GT(k.punkte[i].X, 0.02f) << cas << " point " << i;
  }
}

} // namespace
} // namespace quor
