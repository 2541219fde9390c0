// Kinds of single functions at T: the virial comparison, the polytropic start point, the database
// functions with their validity ranges; and kind 23, which has no branch.
#include "calc_testhilfe.h"
#include "core/zahlformat.h"
#include "engine/kalorik.h"
#include "engine/virial.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quor {
namespace {

using namespace quor::test;

// Kind 11 lists the B of every virial row (stored page); the chosen model stays in force and its B (0
// for a cubic row) is cell 41.
TEST(CalcBatchDatenbank, Kind11ComparesTheVirialCoefficients) {
  Rechnung r(StoffMitModell(CasMethan, 6));
  const EOSGruppe vorher = r.s.EOS;
  r.Vorgabe(150, 0).Rechne(11);
  EXPECT_EQ(std::tie(r.s.EOS.a0, r.s.EOS.vKritEOS), std::tie(vorher.a0, vorher.vKritEOS));
  EXPECT_EQ(r.Zelle(ZelleB), 0);
  WieGespeichert(r.seite, "art11");

  Rechnung v(StoffMitModell(CasMethan, 16));
  v.Vorgabe(150, 0).Rechne(11);
  EXPECT_EQ(v.Zelle(ZelleB), BvonT(v.s, 16, 150));
}

// Each database kind against its correlation, with the cell it fills, inside the validity range.
TEST(CalcBatchDatenbank, DatabaseFunctionsAgreeWithTheCorrelations) {
  ProjectState d = StoffMitModell(CasMethan, 6);
  int16_t f = 0;
  HLVErgebnis erg;
  double T = 150, p0 = 0;
  struct Fall {
    int16_t art;
    double T;
    int zelle;
    double wert;
  };
  const Fall faelle[] = {
      {14, 150, ZelleRhoL, RhoL(d, 150, false, f)},
      {15, 150, ZelleDhLV, HLVBerechnen(d, HLVGleichung, T, p0, 0, false, erg, f)},
      {16, 150, ZelleCpIdG, CpIdG(d, 150, 1)},
      {17, 150, ZelleCpL, CpL(d, 150)},
      {18, 60, ZelleCpS, CpS(d, 60)},
      {19, 150, ZelleP, pLV(d, 150, FrostKalkwarfDB, false, f)},
      {20, 150, ZelleP, pLV(d, 150, WagnerDB, false, f)},
      {21, 100, ZelleP, pLV(d, 100, AntoineNiederdruck, false, f)},
      {22, 150, ZelleP, pLV(d, 150, AntoineHochdruck, false, f)},
  };
  for (const Fall& fall : faelle) {
    SCOPED_TRACE(fall.art);
    Rechnung r(d);
    r.Vorgabe(fall.T, 0).Rechne(fall.art);
    EXPECT_REL(r.Zelle(fall.zelle), fall.wert, 1e-12);
    EXPECT_TRUE(r.ui.Meldungen().empty());
    WieGespeichert(r.seite, "art" + std::to_string(fall.art));
  }
}

// The solid density page shows the liquid routine's number under its own label, with the solid
// block's limits; no cell but T is filled.
TEST(CalcBatchDatenbank, Kind24ShowsTheLiquidRoutine) {
  Rechnung r(StoffMitModell(CasMethan, 6));
  r.Vorgabe(85, 0).Rechne(24);
  int16_t f = 0;
  EXPECT_EQ(r.seite.txtco2.text, " rho(S) = " + SingleText(RhoL(r.s, 85, false, f)) + " kg/m^3");
  EXPECT_NE(r.seite.Liste.text.find(" T(Lo)/K = 24\r\n T(Hi)/K = 90\r\n"), std::string::npos);
  ErgebnisVektor nurT{};
  nurT[ZelleT] = 85;
  EXPECT_EQ(r.k.Ergebnis, nurT);
}

// More than 10 K outside the range a warning names it; a failing evaluation shows the error and no
// value. Without stored limits the density takes 10 K about the given T and never warns.
TEST(CalcBatchDatenbank, RangeWarningAndEvaluationError) {
  Rechnung r(StoffMitModell(CasMethan, 6));
  r.Vorgabe(202, 0).Rechne(20); // Wagner ends at 190 K and fails above its T(cr)
  const auto m = r.ui.Meldungen();
  ASSERT_EQ(m.size(), 2u);
  EXPECT_EQ(m[0].text,
            "T liegt mehr als 10 K außerhalb des Gültigkeitsbereichs der Gleichung\r\n(T/K = 91...190)");
  EXPECT_EQ(m[0].titel, "WARNUNG");
  EXPECT_EQ(m[1].text, "Berechnungsfehler aufgetreten");
  EXPECT_EQ(m[1].titel, "Ausführung nicht möglich");
  EXPECT_TRUE(r.k.ErrorFlag);
  EXPECT_EQ(r.seite.txtco2.text, "");

  r.s.Stoff.RhoLGrenzen = {};
  r.s.Stoff.RhoL = {600, -1.5f, 110, 0, 0, 0, 0}; // linear: 600 kg/m^3 + slope * T
  r.Vorgabe(135, 0).Rechne(14);
  EXPECT_EQ(r.ui.Meldungen().size(), 2u);
  EXPECT_EQ(r.seite.txtco2.text, " rho(L) = 397.5 kg/m^3");
  EXPECT_NE(r.seite.Liste.text.find(" T(Lo)/K = 125\r\n T(Hi)/K = 145\r\n"), std::string::npos);
}

// The polytropic start point hands the process text on and hides the frames; kind 23 leaves the page
// as the prologue made it.
TEST(CalcBatchDatenbank, PolytropicStartAndTheKindWithoutBranch) {
  Rechnung r(StoffMitModell(CasMethan, 6));
  r.k.ProzessText = "Polytrope n = 1.3\r\n";
  r.Vorgabe(300, 1000).Rechne(12);
  EXPECT_EQ(r.seite.Liste.text, "Polytrope n = 1.3\r\n");
  EXPECT_FALSE(r.seite.fraBatchVorgabeSichtbar || r.seite.fraValueSichtbar ||
               r.seite.fraCalcErweitertSichtbar || r.seite.fraProtokollSichtbar);

  Rechnung leer(StoffMitModell(CasMethan, 6));
  leer.Vorgabe(150, 500).Rechne(23);
  EXPECT_EQ(leer.seite.par1.text + leer.seite.txtco2.text + leer.seite.Liste.text, "");
  EXPECT_EQ(leer.k.Ergebnis, ErgebnisVektor{});
}

} // namespace
} // namespace quor
