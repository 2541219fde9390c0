// State questions of the dispatcher: T, p => rho in every phase and at the critical point, T, rho => p
// with the two-phase split, p, rho => T, the vessel kinds and the readers of the given values. Numbers
// are checked against direct engine calls, texts against the stored pages.
#include "calc_testhilfe.h"
#include "core/festtext.h"
#include "core/zahlformat.h"
#include "engine/korrelationen.h"
#include "engine/saettigung.h"
#include "engine/virial.h"
#include "engine/zustand.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quor {
namespace {

using namespace quor::test;

// Kind 3 in the vapour, the compressed liquid, above the critical point and at it: phases and volumes
// are the solver's; the region follows the comparison with the critical point.
TEST(CalcBatchZustand, Kind3ShowsTheSolverStateInEveryPhase) {
  // page, T, p, liquid, vapour, region
  for (const auto& [name, T, p, L, V, gebiet] : {std::tuple{"art3_dampf", 150.0, 500.0, false, true, 0},
                                                 {"art3_fluessig", 120.0, 2000.0, true, false, 0},
                                                 {"art3_ueberkritisch", 250.0, 6000.0, true, true, 2},
                                                 {"art3_kritisch", 190.56, 4599.0, true, true, 4}}) {
    SCOPED_TRACE(name);
    Rechnung r(StoffMitModell(CasMethan, 6));
    const Zustand d = Loese(r.s, T, p);
    r.Vorgabe(T, p).Rechne(3);
    EXPECT_EQ(std::tie(r.k.HatL, r.k.HatV, r.s.EOS.Gebiet), std::tuple(L, V, gebiet));
    EXPECT_EQ(r.Zelle(ZelleVV), V ? d.vV : 0);
    EXPECT_EQ(r.Zelle(ZelleVL), L ? d.vL : 0);
    WieGespeichert(r.seite, name);
  }
}

// The region compares in single precision: the critical pair although the doubles differ; a
// superheated state below p(cr) with the text of the supercritical region.
TEST(CalcBatchZustand, RegionInSinglePrecision) {
  Rechnung r(StoffMitModell(CasMethan, 6));
  ASSERT_NE(190.56 + 2e-6, r.s.Stoff.TKrit);
  r.Vorgabe(190.56 + 2e-6, 4599 - 1e-4).Rechne(3);
  EXPECT_EQ(r.s.EOS.Gebiet, GebietKritisch);
  r.Vorgabe(250, 1000).Rechne(3);
  EXPECT_EQ(r.s.EOS.Gebiet, GebietUeberkritisch);
  EXPECT_EQ(r.seite.lblGleich.text, "überkritische Phase (L) = (V) (T > T(cr), p > p(cr))   > > > > >");
}

// Kind 3 answered as an equilibrium takes the vapour root and Benson's liquid, also where the areas
// call the liquid stable; a virial model shows B and the vapour only.
TEST(CalcBatchZustand, Kind3AsEquilibriumAndWithAVirialModel) {
  Rechnung r(StoffMitModell(CasMethan, 6));
  ReferenzpunktMethan(r.s);
  r.k.TpIstGleichgewicht = true;
  const Zustand d = Loese(r.s, 150, 500);
  r.Vorgabe(150, 500).Rechne(3);
  EXPECT_TRUE(r.k.HatL && r.k.HatV);
  EXPECT_REL(r.Zelle(ZelleVL), r.s.Stoff.MolMasse / BensonMethan(r.s, 150, d.rhoV), 1e-12);
  EXPECT_NE(r.seite.Liste.text.find("            nach BENSON-Methode:\r\n"), std::string::npos);

  // Just above the EOS's vapour pressure the liquid is stable, yet the three roots give the vapour.
  const double p = 1.005 * DruckLV(r.s, 150);
  const Zustand fluessig = Loese(r.s, 150, p);
  ASSERT_TRUE(fluessig.istL && !fluessig.istV && fluessig.vV > 0);
  r.Vorgabe(150, p).Rechne(3);
  EXPECT_TRUE(r.k.HatL && r.k.HatV);
  EXPECT_REL(r.Zelle(ZelleVV), fluessig.vV, 1e-12);
  EXPECT_REL(r.Zelle(ZelleVL), r.s.Stoff.MolMasse / BensonMethan(r.s, 150, fluessig.rhoV), 1e-12);

  Rechnung v(StoffMitModell(CasWasser, 14));
  v.Vorgabe(400, 100).Rechne(3);
  const double B = BvonT(v.s, 14, 400);
  EXPECT_EQ(v.seite.txtco2.text, " Virialkoeff. B = " + SingleText(static_cast<float>(B)) + "  m^3/kmol");
  EXPECT_REL(v.Zelle(ZelleVV), RGas * 400 / 100 + B, 1e-14);
  EXPECT_FALSE(v.seite.lblGleich.sichtbar || v.seite.cmdCEOSDiagnoseVerfuegbar);
}

// Kind 1 inside the loop: p is the EOS's vapour pressure and the given volume lies between the
// saturated roots (stored page); the saturated vapour's own volume is two-phase with y = 1.
TEST(CalcBatchZustand, Kind1SplitsATwoPhaseState) {
  Rechnung r(StoffMitModell(CasMethan, 6));
  ProjectState d = r.s;
  const double pLV = DruckLV(d, 150), V = d.EOS.VRoots[2];
  r.Vorgabe(150, 0, 100).Rechne(1);
  EXPECT_EQ(r.p, pLV);
  EXPECT_EQ(r.Satz().Phase, "V+L");
  WieGespeichert(r.seite, "art1_zweiphasig");

  r.Vorgabe(150, 0, static_cast<float>(r.s.Stoff.MolMasse / V)).Rechne(1);
  EXPECT_TRUE(r.k.HatL && r.k.HatV);
  EXPECT_NE(r.seite.txtco2.text.find("Verdampfungsgrad eta(V) = 1"), std::string::npos);
}

// Kind 1 outside the loop: p(T, v) of one phase in the default form; a volume at or below b is refused
// (the vessel's word in GLOBAL); kind 2 reads the liquid density.
TEST(CalcBatchZustand, Kind1And2InOnePhaseAndTheirErrors) {
  Rechnung r(StoffMitModell(CasMethan, 6));
  r.Vorgabe(100, 0, 1e-4f).Rechne(1);
  ProjectState d = r.s;
  int16_t err = 0;
  const double p = PzuTV(d, 100, d.Stoff.MolMasse / static_cast<double>(1e-4f), err);
  EXPECT_EQ(r.p, p);
  EXPECT_NE(r.seite.Liste.text.find(" Systemdruck p/kPa = " + SingleText(static_cast<float>(p)) + "\r\n"),
            std::string::npos);

  r.Vorgabe(150, 0, 0, 900).Rechne(2);
  const std::string kopf = "Meldung von Sub CalcBatch:\r\n" + std::string(25, ' ');
  EXPECT_EQ(r.seite.Liste.text, kopf + "ERROR1");
  EXPECT_EQ(r.seite.Liste.farbe, TextFarbe::Rot);
  EXPECT_TRUE(r.k.ErrorFlag && !r.k.HatL && !r.k.HatV);
  r.s.Modell.RechnungGlobal = false;
  r.Rechne(2);
  EXPECT_EQ(r.seite.Liste.text, kopf + " (v <= b)");

  Rechnung v(StoffMitModell(CasWasser, 14));
  ASSERT_GT(BvonT(v.s, 14, 3000), 18.0153 / 5000); // B is positive far above the Boyle temperature
  v.Vorgabe(3000, 0, 5000).Rechne(1);
  EXPECT_EQ(v.seite.Liste.text, kopf + ", keine p-Lösung (v < b)");
}

// Kind 13: T(p, rho) of the solver, then the state there.
TEST(CalcBatchZustand, Kind13FindsTheTemperature) {
  Rechnung r(StoffMitModell(CasMethan, 6));
  ProjectState d = r.s;
  int16_t err = 0;
  r.Vorgabe(0, 1000, 5).Rechne(13);
  EXPECT_EQ(r.Zelle(ZelleT), TzuPRho(d, 1000, 5, false, err));
  WieGespeichert(r.seite, "art13");
}

// Batch points without a given value: the field turns red with the reader's text and the point's record
// has no result; other points keep theirs. The triple-point hint comes once per page, for cubic models.
TEST(CalcBatchZustand, MissingValuesAndTheTriplePointHint) {
  Rechnung r(StoffMitModell(CasMethan, 6));
  r.s.Mess.ExpDaten = {
      {}, {false, 150, 500, 0, 0, 0, 0}, {false, 0, 500, 0, 0, 0, 0}, {false, 150, 0, 0, 0, 0, 0}};
  r.k.StapelErgebnisse.resize(4);
  r.Rechne(3, 1).Rechne(3, 2);
  EXPECT_EQ(r.seite.par1.text, "kein T in diesem Datenpunkt");
  EXPECT_EQ(r.seite.par1.farbe, TextFarbe::Rot);
  EXPECT_EQ(r.Satz(2).Phase, "   ");
  EXPECT_EQ(r.Satz(1).Phase, " V ");
  EXPECT_EQ(r.Rechne(3, 3).seite.par2.text, "kein p in diesem Datenpunkt");
  EXPECT_EQ(r.Rechne(1, 3).seite.par2.text, "kein rho in diesem Datenpunkt");
  EXPECT_TRUE(r.ui.Meldungen().empty());

  r.Vorgabe(85, 5000).Rechne(3).Rechne(3);
  ASSERT_EQ(r.ui.Meldungen().size(), 1u);
  EXPECT_EQ(r.ui.Meldungen()[0].text, "T ist kleiner als Tripelpunkt-Temperatur");
  EXPECT_EQ(r.ui.Meldungen()[0].titel, "Hinweis");
  Rechnung virial(StoffMitModell(CasMethan, 14));
  EXPECT_TRUE(virial.Vorgabe(85, 5).Rechne(3).ui.Meldungen().empty());
}

// The vessel: kind 9 hands its state to the display; kind 10 above T(cr) closes the page at once;
// kind 10 with a virial model goes to the display directly.
TEST(CalcBatchZustand, VesselKinds) {
  Rechnung r(StoffMitModell(CasMethan, 6));
  std::vector<BehaelterZustand> gezeigt;
  r.k.BehaelterAnzeige = [&](const BehaelterZustand& z) { gezeigt.push_back(z); };
  r.k.Behaelter = {10, 0.1, 150};
  r.Rechne(9);
  ASSERT_EQ(gezeigt.size(), 1u);
  EXPECT_TRUE(gezeigt[0].HatL && gezeigt[0].HatV);
  EXPECT_EQ(gezeigt[0].p, r.p);
  EXPECT_REL(gezeigt[0].y, (gezeigt[0].v - gezeigt[0].vL) / (gezeigt[0].vV - gezeigt[0].vL), 1e-14);

  r.k.Behaelter.T = 200;
  r.Rechne(10);
  EXPECT_EQ(r.ausgang, "EXIT");
  EXPECT_EQ(
      r.ui.Letzte().text,
      "PARTIAL-Berechnung nur für Phasengleichgewicht - also für T < T(cr) - sinnvoll\r\n(T(cr)/K = 190.56)");
  EXPECT_EQ(r.ui.Letzte().titel, "Ausführung nicht möglich");

  Rechnung v(StoffMitModell(CasMethan, 16));
  v.k.BehaelterAnzeige = r.k.BehaelterAnzeige;
  v.k.Behaelter = {1, 1, 300};
  v.Rechne(10);
  ASSERT_EQ(gezeigt.size(), 2u);
  EXPECT_TRUE(gezeigt[1].HatV && !gezeigt[1].HatL);
}

} // namespace
} // namespace quor
