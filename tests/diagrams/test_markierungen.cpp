// The insert menu of the 2D diagram: the curves it adds through the draw routine, its refusals, and
// the lines and points it sets at characteristic values in the display's units.
#include "diagrams/graph2d_testhilfe.h"
#include "diagrams/markierungen.h"
#include "engine/eos_auswertung.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

using test::Seite;
using Texte = std::vector<std::string>;

struct Menue : Seite {
  Markierungen m{s, ui, g};
  explicit Menue(int16_t code, int16_t eos = 6) : Seite(code, eos) {}

  const Graph2DMarke* Marke(const std::string& art) const {
    for (const Graph2DMarke& k : g.Marken())
      if (k.Art == art) return &k;
    return nullptr;
  }
};

const char* const NichtMoeglich = "Ausführung nicht möglich|";

TEST(Markierungen, EachCodeHasTheCoexistenceCurveOfItsAxes) {
  EXPECT_EQ(KoexistenzZwilling(code::pv), code::KoexPv);
  EXPECT_EQ(KoexistenzZwilling(code::pvProdukt), code::KoexPvProdukt);
  EXPECT_EQ(KoexistenzZwilling(code::RhoP), code::KoexRhoP);
  EXPECT_EQ(KoexistenzZwilling(code::Tv), code::KoexTv);
  EXPECT_EQ(KoexistenzZwilling(code::TRho), code::KoexTRho);
  EXPECT_EQ(KoexistenzZwilling(code::DbRhoL), code::KoexRhoT);
  EXPECT_EQ(KoexistenzZwilling(code::pT), code::Dampfdruck);
  EXPECT_EQ(KoexistenzZwilling(code::InversionPT), code::Dampfdruck);
  EXPECT_EQ(KoexistenzZwilling(code::HvonT), code::KoexH);
  EXPECT_EQ(KoexistenzZwilling(code::JouleThomson), 0);
  EXPECT_EQ(InversionsZwilling(code::pT), code::InversionPT);
  EXPECT_EQ(InversionsZwilling(code::pvProdukt), code::InversionPv);
  EXPECT_EQ(InversionsZwilling(code::pv), 0);
}

// The coexistence curve, a line of constant vapour fraction and the tie line join the isotherm
// on its page.
TEST(Markierungen, CurvesOfTheInsertMenuAreDrawnOnTheSameAxes) {
  Menue t(code::Tv);
  t.s.Einheiten.pVorgabe = 2000;
  ASSERT_EQ(t.g.cmdDraw(), ZeichenErgebnis::Gezeichnet);
  t.s.Diagramm.Isohygre = 0.7;
  ASSERT_TRUE(t.m.mnuMarkKoex());
  EXPECT_EQ(t.s.Diagramm.Isohygre, 0);
  EXPECT_EQ(t.g.Kurve(1).Auftrag.Code, code::KoexTv);
  EXPECT_EQ(t.g.Kurve(1).Legende, "T-V-Projektion (Koexistenzkurve V - L); CEOS Peng / Robinson");

  t.ui.eingaben.push_back("2");
  EXPECT_FALSE(t.m.mnuMarkIsohygre());
  EXPECT_EQ(t.ui.Letzte().text, "Der Dampfanteil x muss zwischen 0 und 1 liegen.");
  t.ui.eingaben.push_back("0,5");
  ASSERT_TRUE(t.m.mnuMarkIsohygre());
  EXPECT_EQ(t.g.Kurve(2).Legende,
            "T-V-Projektion (Koexistenzkurve V - L); CEOS Peng / Robinson, x(V) = 0.500");
  EXPECT_EQ(t.s.Diagramm.Isohygre, 0); // the fraction was the line's only
  // The middle line halves the volumes of the saturated phases at each of its temperatures.
  const Kurvenpunkte& mitte = t.g.Kurve(2).Punkte;
  ASSERT_GT(Anzahl(mitte), 5u);
  const double T = mitte[5].Y;
  test::DruckLV(t.s, T);
  const double vL = t.s.EOS.VRoots[0], vV = t.s.EOS.VRoots[2];
  EXPECT_NEAR(mitte[5].X, (vL + vV) / 2, 1e-4 * vV);

  ASSERT_TRUE(t.m.mnuMarkKonnode());
  EXPECT_FALSE(t.s.Diagramm.KonnodeModus);
  EXPECT_EQ(t.g.Kurve(3).Legende, "(V-L) p = 2000.000 kPa.");
  EXPECT_TRUE(t.g.Kurve(3).Konnode);
  EXPECT_EQ(Anzahl(t.g.Kurve(3).Punkte), 51u);
}

// The S-loop: the isotherm's T goes to two decimals, and the curve runs through the two-phase
// region where the plain isotherm jumps along its tie line.
TEST(Markierungen, TheSLoopRunsThroughTheTwoPhaseRegion) {
  Menue t(code::pv);
  t.s.Einheiten.TVorgabe = 150.004f;
  ASSERT_TRUE(t.m.mnuMarkSKurve());
  EXPECT_FLOAT_EQ(t.s.Einheiten.TVorgabe, 150.0f);
  EXPECT_TRUE(t.s.Optionen.SKurveOhneKonnode);
  test::DruckLV(t.s, 150);
  const double vL = t.s.EOS.VRoots[0], vV = t.s.EOS.VRoots[2];
  std::size_t innen = 0;
  for (std::size_t i = 1; i < t.g.Kurve(0).Punkte.size(); ++i) {
    const double v = t.g.Kurve(0).Punkte[i].X;
    innen += v > 1.01 * vL && v < 0.99 * vV;
  }
  EXPECT_GT(innen, 3u);
}

// Without a cubic EOS the curves of the two-phase region and the covolume are refused and nothing
// changes.
TEST(Markierungen, AVirialModelRefusesTheCurvesOfTheTwoPhaseRegion) {
  Menue t(code::pv, 15);
  t.s.Einheiten.TVorgabe = 150;
  const int stand = t.g.Stand();
  EXPECT_FALSE(t.m.mnuMarkIsohygre());
  EXPECT_FALSE(t.m.mnuMarkInversion());
  EXPECT_FALSE(t.m.mnuMarkSKurve());
  EXPECT_FALSE(t.m.mnuMarkKonnode());
  EXPECT_FALSE(t.m.mnuMarkB());
  EXPECT_EQ(t.Meldungen(),
            (Texte{std::string(NichtMoeglich) + "Isohygren nur für kubische EOS möglich.",
                   std::string(NichtMoeglich) + "Inversionskurve nur mit kubischer EOS möglich.",
                   std::string(NichtMoeglich) + "S-Kurve nur für kubische EOS möglich.",
                   std::string(NichtMoeglich) + "Konnode V-L nur für kubische EOS möglich",
                   std::string(NichtMoeglich) + "Kovolumen b nur für kubische EOS möglich."}));
  EXPECT_EQ(t.g.Stand(), stand);
  EXPECT_FALSE(t.s.Optionen.SKurveOhneKonnode);
}

TEST(Markierungen, TheTieLineIsRefusedOutsideTheTwoPhaseRegion) {
  Menue iso(code::pv);
  iso.s.Einheiten.TVorgabe = static_cast<float>(iso.s.Stoff.TKrit);
  EXPECT_FALSE(iso.m.mnuMarkKonnode());
  Menue bar(code::Tv);
  bar.s.Einheiten.pVorgabe = static_cast<float>(bar.s.Stoff.pKrit) + 1;
  EXPECT_FALSE(bar.m.mnuMarkKonnode());
  // The isochor exactly on the critical volume has no tie line, whatever its temperature.
  Menue chor(code::pT);
  chor.s.Einheiten.vVorgabe = static_cast<float>(chor.s.EOS.vKritEOS);
  chor.s.Einheiten.TVorgabe = 150;
  EXPECT_FALSE(chor.m.mnuMarkKonnode());
  EXPECT_EQ(iso.Meldungen(),
            Texte{std::string(NichtMoeglich) + "nur im Zweiphasengebiet V-L möglich (T < T(cr))"});
  EXPECT_EQ(bar.Meldungen(),
            Texte{std::string(NichtMoeglich) + "nur im Zweiphasengebiet V-L möglich (p < p(cr))"});
  EXPECT_EQ(chor.Meldungen(),
            Texte{std::string(NichtMoeglich) + "nur im Zweiphasengebiet V-L möglich (v <> v(cr))"});
  EXPECT_EQ(iso.g.KurvenAnzahl() + bar.g.KurvenAnzahl() + chor.g.KurvenAnzahl(), 0);
  EXPECT_FALSE(chor.s.Diagramm.KonnodeModus);
}

// A curve kind without a twin on these axes, and a line of a quantity on neither axis, are refused
// with the page's own words.
TEST(Markierungen, MarksThatDoNotFitTheAxesAreRefused) {
  Menue t(code::JouleThomson);
  EXPECT_FALSE(t.m.mnuMarkKoex());
  EXPECT_FALSE(t.m.mnuMarkHalbierende());
  EXPECT_FALSE(t.m.mnuMarkP(1));
  EXPECT_FALSE(t.m.mnuMarkCritPointEx());
  EXPECT_TRUE(t.m.mnuMarkT(1)); // T is the X axis here
  const std::string passt =
      std::string(NichtMoeglich) + "Diese Markierung passt nicht zu den Achsen des Diagramms.";
  EXPECT_EQ(t.Meldungen(), (Texte{passt, passt, passt, passt}));
  EXPECT_EQ(t.g.KurvenAnzahl(), 0);
  EXPECT_EQ(t.g.Marken().size(), 1u);
}

// A line runs across the axes on show; its label stands a sixth of the range above the lower end.
TEST(Markierungen, LinesStandAtTheirValueAcrossTheAxes) {
  Menue t(code::pT);
  ASSERT_TRUE(t.m.mnuMarkT(1));
  ASSERT_TRUE(t.m.mnuMarkP(1));
  const std::array<double, 4> b = t.g.Bereich();
  const Graph2DMarke* T = t.Marke("T(cr)");
  ASSERT_NE(T, nullptr);
  EXPECT_EQ(T->Linie.X, (std::vector<double>{t.s.Stoff.TKrit, t.s.Stoff.TKrit}));
  EXPECT_EQ(T->Linie.Y, (std::vector<double>{b[2], b[3]}));
  ASSERT_TRUE(T->Text);
  EXPECT_EQ(T->Text->Text, "T(cr)");
  EXPECT_DOUBLE_EQ(T->Text->Y, b[2] + (b[3] - b[2]) / 6);
  const Graph2DMarke* p = t.Marke("p(cr)");
  ASSERT_NE(p, nullptr);
  EXPECT_EQ(p->Linie.Y, (std::vector<double>{t.s.Stoff.pKrit, t.s.Stoff.pKrit}));
  EXPECT_DOUBLE_EQ(p->Text->X, b[0] + (b[1] - b[0]) / 6);

  // The user's value; a second one stands beside the first.
  t.ui.eingaben = {"150", "160,5", "kalt"};
  ASSERT_TRUE(t.m.mnuMarkT(0));
  ASSERT_TRUE(t.m.mnuMarkT(0));
  EXPECT_FALSE(t.m.mnuMarkT(0));
  EXPECT_EQ(t.g.Marken().size(), 4u);
  EXPECT_EQ(t.g.Marken()[3].Linie.X[0], 160.5);
  EXPECT_EQ(t.g.Marken()[3].Text->Text, "T");

  // T(LV) at the page's p by the EOS (GLOBAL): the EOS's saturation pressure there is that p.
  t.s.Einheiten.pVorgabe = 1000;
  ASSERT_TRUE(t.m.mnuMarkT(3));
  const Graph2DMarke* Ts = t.Marke("T(LV) bei p");
  ASSERT_NE(Ts, nullptr);
  EXPECT_EQ(Ts->Text->Text, "                      T(LV) bei p");
  EXPECT_NEAR(test::DruckLV(t.s, Ts->Linie.X[0]), 1000, 0.01);

  // The labels go alone; the lines go with theirs; the critical point stays until its own delete.
  ASSERT_TRUE(t.m.mnuMarkCritPointEx());
  t.m.mnuDelMarkLabels();
  EXPECT_FALSE(t.Marke("T(cr)")->Text);
  t.m.mnuDelMarkTP();
  ASSERT_EQ(t.g.Marken().size(), 1u);
  EXPECT_EQ(t.g.Bild().Marken.size(), 1u);
  t.m.mnuDelCritPointEx();
  EXPECT_TRUE(t.g.Marken().empty());
}

TEST(Markierungen, ValuesTakeTheReducedAndSpecificUnits) {
  Menue red(code::pv);
  red.s.Einheiten.VolumenMode = 2;
  SetzeEinheiten(red.s, red.ui);
  red.Oeffne(code::pv);
  ASSERT_TRUE(red.m.mnuMarkV(1));
  ASSERT_TRUE(red.m.mnuMarkP(1));
  EXPECT_NEAR(red.Marke("v(crit)")->Linie.X[0], 1, 1e-12);
  EXPECT_NEAR(red.Marke("p(cr)")->Linie.Y[0], 1, 1e-6);
  ASSERT_TRUE(red.m.mnuMarkCritPointCalc());
  EXPECT_NEAR(red.Marke("KritCalc")->Punkt->X, 1, 1e-12);
  EXPECT_NEAR(red.Marke("KritCalc")->Punkt->Y, 1, 1e-6);

  // Per kg the volume is divided by the molar mass; on a density axis it becomes M/v.
  Menue spez(code::Tv);
  spez.s.Einheiten.VolumenMode = 1;
  SetzeEinheiten(spez.s, spez.ui);
  spez.Oeffne(code::Tv);
  const double M = spez.s.Stoff.MolMasse, vc = spez.s.EOS.vKritEOS;
  ASSERT_TRUE(spez.m.mnuMarkV(1));
  EXPECT_NEAR(spez.Marke("v(crit)")->Linie.X[0], vc / M, 1e-9);
  spez.s.Einheiten.TVorgabe = 150;
  ASSERT_TRUE(spez.m.mnuMarkB());
  EOSbeiT(spez.s, 150);
  EXPECT_NEAR(spez.Marke("v = b")->Linie.X[0], spez.s.EOS.bT / M, 1e-9);
  spez.Oeffne(code::TRho);
  ASSERT_TRUE(spez.m.mnuMarkV(1));
  EXPECT_NEAR(spez.Marke("v(crit)")->Linie.X[0], M / vc, 1e-6);
}

} // namespace
} // namespace quor
