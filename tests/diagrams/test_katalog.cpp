// The diagram catalogue: texts of the axes and titles in every unit mode, the standard ranges of a
// family and of a database function, and the central routine with its question about the axes.
#include "calc/calc_testhilfe.h"
#include "diagrams/diagramm_codes.h"
#include "diagrams/katalog.h"
#include "engine/kalorik.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

constexpr int16_t PengRobinson = 6;

EinheitenGruppe Einheiten(int16_t energieMode, int16_t volumenMode) {
  EinheitenGruppe e;
  e.EnergieMode = energieMode;
  e.VolumenMode = volumenMode;
  return e;
}

DiagrammAuftrag Auftrag(int16_t code, const std::string& tagAlt = "") {
  DiagrammAuftrag a;
  a.Code = code;
  a.AchsentagAlt = tagAlt;
  return a;
}

// Every code of the menus and of the curve kinds, those without a menu entry among them; the
// process lines are no part of the catalogue.
TEST(Katalog, KnowsEveryCodeWithAFamilyAndATagInUse) {
  const std::string tags = ".pv.rp.qp.Tv.Tr.pT.rT.0T.hT.sT.cT.hp.sp.cp.hv.sv.cv.hs.hh.";
  std::vector<int> codes = {1,   2,   3,   4,   5,   6,   7,   8,   9,   10,  11,  12,  13,
                            14,  15,  16,  17,  18,  19,  20,  21,  22,  23,  24,  25,  26,
                            27,  30,  31,  32,  33,  34,  40,  41,  42,  43,  80,  88,  89,
                            105, 106, 107, 109, 120, 121, 190, 180, 181, 182, 183, 184, 185};
  for (int c = 68; c <= 75; ++c)
    codes.push_back(c);
  for (int c = 90; c <= 102; ++c)
    codes.push_back(c);
  for (int c = 148; c <= 160; ++c)
    codes.push_back(c);
  for (int c = 300; c <= 315; ++c)
    codes.push_back(c);
  for (int c : codes) {
    const KatalogZeile* z = KatalogZeileVon(c);
    ASSERT_NE(z, nullptr) << c;
    EXPECT_TRUE(z->Klasse >= 1 && z->Klasse <= 7 && z->Klasse != 4) << c;
    EXPECT_NE(std::string(z->Titel), "") << c;
    if (c != code::DbVL) {
      EXPECT_NE(tags.find("." + std::string(z->Achsentag) + "."), std::string::npos) << c;
    }
  }
  for (int c : {0, 28, 201, 206, 211, 316})
    EXPECT_FALSE(CodeBekannt(c)) << c;
  DiagrammAuftrag a = Auftrag(code::ProzessIsochore);
  EXPECT_FALSE(SetzeKatalogTexte(a, Einheiten(0, 0)));
  EXPECT_EQ(a.Titel, "");
}

// One code of each family: the axis texts in the four energy modes and in reduced units.
TEST(Katalog, AxisTextsFollowTheEnergyAndVolumeModes) {
  struct Fall {
    int16_t code, energieMode, volumenMode;
    const char *x, *y;
  };
  const Fall faelle[] = {
      {code::pv, 0, 0, "v / (m^3/kmol)", "p / kPa"},
      {code::pv, 0, 1, "v / (m^3/kg)", "p / kPa"},
      {code::pv, 0, 2, "v / v(cr), calc.", "p / p(cr)"},
      {code::pvProdukt, 0, 1, "p / kPa", "pv / (kPa*m^3/kg)"},
      {code::InversionPv, 0, 2, "p / p(cr)", "p(red) * v(red)"},
      {code::TRho, 0, 2, "rho / (kg/m^3)", "T / T(cr)"},
      {code::HvonT, 0, 0, "T / K", "h / (kJ/kmol) "},
      {code::HvonT, 1, 0, "T / K", "h / K"},
      {code::HvonT, 2, 0, "T / K", "h / (R T)"},
      {code::HvonT, 3, 2, "T / T(cr)", "h / (kJ/kg) "},
      {code::SvonP, 0, 0, "p / kPa", "s / (kJ/kmol/K) "},
      {code::SvonP, 1, 2, "p / p(cr)", "s / R "},
      {code::SvonP, 2, 0, "p / kPa", "s / (1/K) "},
      {code::SvonP, 3, 0, "p / kPa", "s / (kJ/kg/K)) "},
      {code::CvVonV, 1, 1, "v / (m^3/kg)", "cV / R "},
      {code::ResCpVonT, 3, 0, "T / K", "delta cp /(kJ/ (kg K)) "},
      {code::ResGvonP, 2, 2, "p / p(cr)", "delta g / (R T)"},
      {code::EHTsIsotherme, 0, 0, "(T(u) * s) / (kJ/kmol) ", "eH / (kJ/kmol) "},
      {code::EHTsIsotherme, 1, 0, "(T(u) * s) / K ", "eH / K"},
      {code::EHTsIsotherme, 2, 0, "(T(u) *s) / (R T) ", "eH / (R T)"},
      {code::EHTsIsotherme, 3, 0, "T(u) * s / (kJ/kg) ", "eH / (kJ/kg) "},
      {code::LnPvonInvT, 0, 0, "1/T / (1/K) ", "ln(p/kPa) "},
      {code::LnPvonInvT, 0, 2, "1 / T(red)", "ln (p/p(cr))"},
      {code::Anstieg, 0, 2, "1/T / (1/K)", "dln(p/kPa) / d(1/T) "},
      {code::JouleThomson, 3, 0, "T / K", "delta / (K/kPa)"},
      {code::DbHLV, 2, 2, "T / T(cr)", "delta(LV)h / (R T)"},
      {code::DbDampfdruck + 3, 0, 2, "T / T(cr)", "p / p(cr)"},
      {code::DbVL, 0, 1, "T / K", "v / (m^3/kg)"},
  };
  for (const Fall& f : faelle) {
    DiagrammAuftrag a = Auftrag(f.code);
    ASSERT_TRUE(SetzeKatalogTexte(a, Einheiten(f.energieMode, f.volumenMode)));
    EXPECT_EQ(a.XText, f.x) << f.code << " " << f.energieMode << " " << f.volumenMode;
    EXPECT_EQ(a.YText, f.y) << f.code << " " << f.energieMode << " " << f.volumenMode;
  }
}

TEST(Katalog, CaloricTitlesAreMolarOrSpecific) {
  struct Fall {
    int16_t code, energieMode;
    const char* titel;
  };
  const Fall faelle[] = {
      {code::HvonT, 0, "molare Enthalpie H (isobarer Schnitt)"},
      {code::HvonT, 2, "molare Enthalpie H (isobarer Schnitt)"},
      {code::HvonT, 3, "spezifische Enthalpie H (isobarer Schnitt)"},
      {code::HSIsotherme, 1, "molare Enthalpie H vs. Entropie S (isothermer  Schnitt)"},
      {code::EHTsIsobare, 3, "spezifische Exergie der Enthalpie E(H) vs. T(u) * Entropie (isobarer Schnitt)"},
      {code::DbCpS, 3, "spezifische Feststoff-Wärmekapazität Cp = Fu(T), Datenbankfunktion"},
      {code::pv, 3, "p - V (isothermer Schnitt)"},
      {code::JouleThomson, 3, "differentieller Joule-Thomson-Koeffizient aus EOS (isobarer Scnitt)"},
      {code::DbRhoL, 0, "Datenbankfunktion L-Dichte = Fu(T)"},
  };
  for (const Fall& f : faelle) {
    DiagrammAuftrag a = Auftrag(f.code);
    SetzeKatalogTexte(a, Einheiten(f.energieMode, 0));
    EXPECT_EQ(a.Titel, f.titel) << f.code;
  }
}

// Methane with Peng/Robinson, the standard ranges of the loaded substance.
struct KatalogMethan : ::testing::Test {
  ProjectState s = test::StoffMitModell(test::CasMethan, PengRobinson);
  ui::SkriptOberflaeche ui;

  DiagrammAuftrag Bereich(int16_t code) {
    DiagrammAuftrag a = Auftrag(code);
    EXPECT_TRUE(IniStandardBereich(s, a));
    return a;
  }
};

void GleicheAchsen(const DiagrammAuftrag& a, const DiagrammAuftrag& b) {
  EXPECT_EQ(a.Xmin, b.Xmin) << a.Code << " " << b.Code;
  EXPECT_EQ(a.Xmax, b.Xmax) << a.Code << " " << b.Code;
  EXPECT_EQ(a.Ymin, b.Ymin) << a.Code << " " << b.Code;
  EXPECT_EQ(a.Ymax, b.Ymax) << a.Code << " " << b.Code;
}

TEST_F(KatalogMethan, AFamilyOpensOnTheSameAxesWidenedByFivePercent) {
  const DiagrammAuftrag pv = Bereich(code::pv);
  GleicheAchsen(pv, Bereich(code::KoexPv));
  GleicheAchsen(Bereich(code::HvonT), Bereich(code::KoexH));
  GleicheAchsen(Bereich(code::Tv), Bereich(code::KoexTv));
  // the stored ranges, widened by a twentieth of their span on each side; sampling the model leaves
  // its work fields as they were
  const double aT = s.EOS.aT, wurzel = s.EOS.VRoots[0];
  const StandardBereiche b = BereicheVon(s);
  EXPECT_EQ(s.EOS.aT, aT);
  EXPECT_EQ(s.EOS.VRoots[0], wurzel);
  const quor::Bereich v = b[Groesse::v], p = b[Groesse::p];
  EXPECT_REL(pv.Xmin, v.Min - 0.05 * (v.Max - v.Min), 1e-6);
  EXPECT_REL(pv.Xmax, v.Max + 0.05 * (v.Max - v.Min), 1e-6);
  EXPECT_REL(pv.Ymax, p.Max + 0.05 * (p.Max - p.Min), 1e-6);
  // the critical point lies inside the p-v axes
  EXPECT_LT(pv.Xmin, s.EOS.vKritEOS);
  EXPECT_GT(pv.Xmax, s.EOS.vKritEOS);
  EXPECT_GT(pv.Ymax, s.Stoff.pKrit);
}

TEST_F(KatalogMethan, CaloricAxesHoldTheLiquidAtTheTriplePointAndTheHotGas) {
  // the saturated liquid at the triple point and the gas at 1.5 TKrit and normal pressure, by the model
  SaettigungsWerte sat;
  int16_t err = 0;
  SaettigungsFunktionen(s, s.Stoff.TTripel, sat, err);
  ASSERT_EQ(err, 0);
  const test::Zustand gas = test::Loese(s, 1.5 * s.Stoff.TKrit, pNormal);
  KalorischeWerte heiss;
  ThermoFunktionen(s, 1.5 * s.Stoff.TKrit, pNormal, gas.vV, 1, heiss, err);
  ASSERT_EQ(err, 0);
  const DiagrammAuftrag h = Bereich(code::HvonT), sp = Bereich(code::SvonP), cp = Bereich(code::CpVonT);
  for (double wert : {sat.phase[0].h, heiss.h}) {
    EXPECT_LT(h.Ymin, wert);
    EXPECT_GT(h.Ymax, wert);
  }
  for (double wert : {sat.phase[0].s, heiss.s}) {
    EXPECT_LT(sp.Ymin, wert);
    EXPECT_GT(sp.Ymax, wert);
  }
  EXPECT_LT(cp.Ymin, 0);
  EXPECT_GT(cp.Ymax, sat.phase[0].cp);
}

TEST_F(KatalogMethan, RangesAreInDisplayedUnits) {
  const DiagrammAuftrag kelvin = Bereich(code::HvonT);
  s.Einheiten.EnergieMode = 3;
  s.Einheiten.EnergieFaktor = 1 / s.Stoff.MolMasse;
  s.Einheiten.VolumenMode = 2;
  SetzeEinheiten(s, ui);
  const DiagrammAuftrag reduziert = Bereich(code::HvonT);
  EXPECT_REL(reduziert.Xmin, kelvin.Xmin / s.Stoff.TKrit, 1e-6);
  EXPECT_REL(reduziert.Xmax, kelvin.Xmax / s.Stoff.TKrit, 1e-6);
  EXPECT_REL(reduziert.Ymax, kelvin.Ymax / s.Stoff.MolMasse, 1e-5);
  const DiagrammAuftrag pv = Bereich(code::pv);
  EXPECT_LT(pv.Xmin, 1.0f); // the critical point at v(red) = p(red) = 1
  EXPECT_GT(pv.Xmax, 1.0f);
  EXPECT_GT(pv.Ymax, 1.0f);
}

TEST_F(KatalogMethan, ADatabaseFunctionOpensOnItsValidityRange) {
  const TGrenzen g = s.Stoff.RhoLGrenzen;
  ASSERT_TRUE(g.TLo > 0 && g.THi > g.TLo);
  int16_t f = 0;
  const double rhoKalt = RhoL(s, g.TLo, false, f), rhoWarm = RhoL(s, g.THi, false, f);
  ASSERT_GT(rhoKalt, rhoWarm);
  const double spanneT = g.THi - g.TLo, spanneRho = rhoKalt - rhoWarm + 20;
  const DiagrammAuftrag a = Bereich(code::DbRhoL);
  EXPECT_REL(a.Xmin, g.TLo - 0.05 * spanneT, 1e-6);
  EXPECT_REL(a.Xmax, g.THi + 0.05 * spanneT, 1e-6);
  EXPECT_REL(a.Ymin, rhoWarm - 10 - 0.05 * spanneRho, 1e-6);
  EXPECT_REL(a.Ymax, rhoKalt + 10 + 0.05 * spanneRho, 1e-6);
  // the solid's heat capacity runs up to 2000, the others to 200
  EXPECT_REL(Bereich(code::DbCpS).Ymax, 2100, 1e-6);
  EXPECT_REL(Bereich(code::DbCpL).Ymax, 210, 1e-6);
  // a vapour-pressure equation from the database: the Wagner block's limits and its pressures
  const TGrenzen w = s.Stoff.WagnerGrenzen;
  ASSERT_TRUE(w.TLo > 0 && w.THi > w.TLo && w.THi < s.Stoff.TKrit);
  const double p1 = pLV(s, w.TLo, WagnerDB, false, f), p2 = pLV(s, w.THi, WagnerDB, false, f);
  const DiagrammAuftrag wagner = Bereich(code::DbDampfdruck + 1);
  EXPECT_REL(wagner.Xmax, w.THi + 0.05 * (w.THi - w.TLo), 1e-6);
  EXPECT_REL(wagner.Ymax, p2 + 0.05 * (p2 - p1), 1e-6);
}

TEST_F(KatalogMethan, AxesThatDontFitAskBeforeTheDiagramIsCleared) {
  const std::string frage = "\r\nDie Einheiten der Diagramm-Achsen passen nicht zusammen.\r\n"
                            "Das vorhandene Diagramm löschen?";
  // No: the request keeps the tag on show and nothing opens
  DiagrammAuftrag a = Auftrag(code::HvonT, "pv");
  ui.antworten = {ui::Antwort::Nein};
  Graf2DErgebnis e = Graf2D_Zentrale(s, ui, a, true);
  ASSERT_EQ(ui.protokoll.size(), 1u);
  EXPECT_EQ(ui.protokoll[0].art, "Frage");
  EXPECT_EQ(ui.protokoll[0].text, frage);
  EXPECT_EQ(ui.protokoll[0].titel, "Warnung");
  EXPECT_EQ(e.Folge, Graf2DFolge::Nichts);
  EXPECT_FALSE(e.DiagrammLoeschen);
  EXPECT_EQ(a.Achsentag, "pv");
  EXPECT_EQ(a.Titel, "");
  // Yes clears the diagram and goes on
  ui.antworten = {ui::Antwort::Ja};
  e = Graf2D_Zentrale(s, ui, a, true);
  EXPECT_TRUE(e.DiagrammLoeschen);
  EXPECT_EQ(e.Folge, Graf2DFolge::ParameterEingabe);
  EXPECT_EQ(a.Achsentag, "hT");
  EXPECT_EQ(a.Titel, "molare Enthalpie H (isobarer Schnitt)");
  // the same axes, or no diagram on show: no question
  DiagrammAuftrag koex = Auftrag(code::KoexPv, "pv"), neu = Auftrag(code::HvonT, "pv");
  Graf2D_Zentrale(s, ui, koex, true);
  Graf2D_Zentrale(s, ui, neu, false);
  EXPECT_EQ(ui.protokoll.size(), 2u);
}

TEST_F(KatalogMethan, WhatOpensFollowsTheFamilyAndTheProcessTags) {
  struct Fall {
    int16_t code;
    Graf2DFolge folge;
  };
  const Fall faelle[] = {
      {code::pv, Graf2DFolge::ParameterEingabe},     {code::pT, Graf2DFolge::ParameterEingabe},
      {code::KoexPv, Graf2DFolge::DiagrammSofort},   {code::InversionPT, Graf2DFolge::DiagrammSofort},
      {code::DbCpL, Graf2DFolge::DiagrammSofort},    {code::HSIsotherme, Graf2DFolge::ProzessSeite},
      {code::EHHIsobare, Graf2DFolge::ProzessSeite}, {96, Graf2DFolge::DiagrammSofort},
  };
  for (const Fall& f : faelle) {
    DiagrammAuftrag a = Auftrag(f.code);
    EXPECT_EQ(Graf2D_Zentrale(s, ui, a, false).Folge, f.folge) << f.code;
  }
  // without a critical temperature the request is left as it came
  s.Stoff.TKrit = 0;
  DiagrammAuftrag a = Auftrag(code::pv, "hT");
  EXPECT_EQ(Graf2D_Zentrale(s, ui, a, true).Folge, Graf2DFolge::Nichts);
  EXPECT_EQ(a.Achsentag, "");
  EXPECT_EQ(a.Xmax, 0);
  EXPECT_TRUE(ui.protokoll.empty());
}

} // namespace
} // namespace quor
