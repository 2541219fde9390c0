// Equilibrium kinds of the dispatcher: T => p(LV) and p => T(LV), GLOBAL from the cubic EOS and PARTIAL
// from the vapour-pressure equation with Benson's liquid; the enthalpy of vaporization at T or p.
#include "calc_testhilfe.h"
#include "engine/virial.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

using namespace quor::test;

double Enthalpie(ProjectState s, int methode, double T, double p) {
  HLVErgebnis erg;
  int16_t failed = 0;
  const double h = HLVBerechnen(s, methode, T, p, FrostKalkwarfDB, false, erg, failed);
  EXPECT_EQ(failed, 0);
  return h;
}

// GLOBAL: the saturation of the EOS and the enthalpy of vaporization of its two roots (stored pages);
// p => T(LV) the same way round.
TEST(CalcBatchGleichgewicht, GlobalFromTheCubicEquation) {
  Rechnung t(StoffMitModell(CasMethan, 6));
  ProjectState d = t.s;
  const double p = DruckLV(d, 150);
  t.Vorgabe(150, 0).Rechne(4);
  EXPECT_EQ(t.Zelle(ZelleP), p);
  EXPECT_REL(t.Zelle(ZelleDhLV), Enthalpie(d, HLVAusKubischerEOS, 150, p), 1e-12);
  WieGespeichert(t.seite, "art4_global");

  Rechnung r(StoffMitModell(CasMethan, 6));
  r.Vorgabe(0, 1000).Rechne(5);
  WieGespeichert(r.seite, "art5_global");
}

// Above the critical point there is no equilibrium: the given value turns red and no phase is shown,
// neither the equilibrium's two nor the one the region would name.
TEST(CalcBatchGleichgewicht, AboveTheCriticalPoint) {
  Rechnung r(StoffMitModell(CasMethan, 6));
  r.Vorgabe(150, 500).Rechne(3);
  ASSERT_TRUE(r.seite.lblVphase.sichtbar);
  r.Vorgabe(200, 5000).Rechne(4);
  EXPECT_TRUE(r.k.ErrorFlag);
  EXPECT_EQ(r.seite.par1.text, "T = 200.000 K > T(cr) !!!");
  EXPECT_EQ(r.seite.par1.farbe, TextFarbe::Rot);
  EXPECT_FALSE(r.seite.lblLphase.sichtbar || r.seite.lblVphase.sichtbar);
  EXPECT_EQ(r.Rechne(5).seite.par1.text, "p = 5000.000 kPa > p(cr) !!!");
  EXPECT_FALSE(r.seite.lblLphase.sichtbar || r.seite.lblVphase.sichtbar);
  EXPECT_EQ(r.Vorgabe(190.56, 0).Rechne(6).seite.par1.text, "T = 190.560 K >= T(cr) !!!");
}

// PARTIAL with a virial model: p(LV) from the vapour-pressure equation, V = B + R*T/p(LV) without any
// root of an equation, the liquid on Benson's straight diameter. Without an equation the point's
// pressure stands in, and without it there is no result.
TEST(CalcBatchGleichgewicht, PartialWithAVirialModel) {
  Rechnung r(StoffMitModell(CasMethan, 14));
  ReferenzpunktMethan(r.s);
  r.Vorgabe(150, 0).Rechne(4);
  ProjectState d = r.s;
  int16_t f = 0;
  const double p = pLV(d, 150, FrostKalkwarfDB, false, f);
  const double V = BvonT(d, 14, 150) + RGas * 150 / p;
  EXPECT_EQ(r.seite.co1.text, "p(LV) aus aktueller Dampfdruckgleichung Frost/Kalkwarf (MDB-Gl):");
  EXPECT_EQ(r.Zelle(ZelleP), p);
  EXPECT_REL(r.Zelle(ZelleVV), V, 1e-14);
  EXPECT_REL(r.Zelle(ZelleVL), d.Stoff.MolMasse / BensonMethan(d, 150, d.Stoff.MolMasse / V), 1e-12);
  EXPECT_FALSE(r.seite.cmdCEOSDiagnoseVerfuegbar);

  r.s.Modell.DampfdruckIndex = 0;
  EXPECT_EQ(r.Vorgabe(150, 800).Rechne(4).seite.txtco2.text, " p(LV)(aus Datenpunkt) = 800.0 kPa");
  EXPECT_EQ(r.Vorgabe(150, 0).Rechne(4).seite.txtco2.text, "  kein p(LV) aus Datenpunkt verfügbar");
  EXPECT_TRUE(r.k.ErrorFlag);
}

// GLOBAL with a virial model: T(LV) from the equation, a framed note instead of densities.
TEST(CalcBatchGleichgewicht, GlobalWithAVirialModelHasNoDensities) {
  Rechnung r(StoffMitModell(CasMethan, 14));
  r.s.Modell.RechnungGlobal = true;
  r.Vorgabe(0, 1000).Rechne(5);
  std::string rahmen;
  for (int i = 0; i < 75; ++i)
    rahmen += "\u00AD";
  EXPECT_EQ(r.seite.Liste.text.find(rahmen +
                                    "\r\n          (Dichte-Berechnung nicht möglich mit "
                                    "Dampfdruckgleichung)\r\n" +
                                    rahmen + "\r\n"),
            0u);
  EXPECT_EQ(r.Zelle(ZelleVV), 0);
}

// Kind 6 by the database function and by Chen with the pressure found, kind 7 from the EOS (stored
// pages); without a method no result. In kJ/kg the value is divided by the molar mass.
TEST(CalcBatchGleichgewicht, EnthalpyOfVaporization) {
  Rechnung db(StoffMitModell(CasMethan, 6, HLVGleichung));
  db.Vorgabe(120, 0).Rechne(6);
  EXPECT_EQ(db.Zelle(ZelleDhLV), Enthalpie(db.s, HLVGleichung, 120, 0));
  WieGespeichert(db.seite, "art6_datenbank");

  Rechnung chen(StoffMitModell(CasMethan, 6, HLVChen));
  chen.Vorgabe(120, 0).Rechne(6);
  int16_t f = 0;
  const double p = pLV(chen.s, 120, FrostKalkwarfDB, false, f);
  EXPECT_EQ(chen.Zelle(ZelleDhLV), Enthalpie(chen.s, HLVChen, 120, p));

  Rechnung eos(StoffMitModell(CasMethan, 6, HLVAusKubischerEOS));
  eos.Vorgabe(0, 1000).Rechne(7);
  WieGespeichert(eos.seite, "art7_eos");

  Rechnung keine(StoffMitModell(CasMethan, 6, HLVKeine));
  keine.Vorgabe(120, 0).Rechne(6);
  EXPECT_TRUE(keine.k.ErrorFlag);
  EXPECT_EQ(keine.seite.Liste.text, "Verdampfungsenthalpie aus keine\r\nkein Ergebnis erhalten");

  Rechnung kg(StoffMitModell(CasWasser, 6, HLVGleichung));
  kg.s.Einheiten.EnergieMode = 3;
  kg.Vorgabe(373.15, 0).Rechne(6);
  EXPECT_REL(kg.Zelle(ZelleDhLV), Enthalpie(kg.s, HLVGleichung, 373.15, 0) / kg.s.Stoff.MolMasse, 1e-15);
}

} // namespace
} // namespace quor
