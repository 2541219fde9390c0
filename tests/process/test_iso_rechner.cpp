// The iso-line calculator with methane and Peng/Robinson: round trips along an isentrope and an
// isenthalpe checked against the engine called directly, the display basis of the energy unit, a
// fixed value that the phase cannot hold, the way back to the last good pair, the option changes,
// the refusal without a state; the one-value box; the functions of the solver on both paths.
#include "calc/calc_testhilfe.h"
#include "core/rechen_art.h"
#include "engine/kalorik.h"
#include "process/iso_rechner.h"
#include "process/tpvs_eingabe.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

namespace quor::test {
namespace {

using namespace prozess;

// A result page that has calculated kind `art` at (T, p), and the calculator over it.
struct IsoSeite {
  Rechnung r;
  frmIsoCalc iso;
  IsoSeite(int16_t energieMode, double T, double p, int16_t art = art::Funktionen)
      : r(StoffMitModell(CasMethan, 6)), iso(r.s, r.ui, r.k) {
    r.s.Einheiten.EnergieMode = energieMode;
    r.Vorgabe(T, p).Rechne(art);
    EXPECT_TRUE(iso.Form_Load());
  }
  ExpDatenSatz Zeile() const { return r.s.Mess.ExpDaten.at(0); }
};

// h and s of the vapour at (T, p) straight from the engine, on a copy of the state, kJ/kmol.
KalorischeWerte Dampf(ProjectState s, double T, double p) {
  const Zustand z = Loese(s, T, p);
  EXPECT_TRUE(z.istV);
  KalorischeWerte w;
  int16_t err = 0;
  ThermoFunktionen(s, T, p, z.vV, PhaseV, w, err);
  EXPECT_EQ(err, 0);
  return w;
}

// Holding s at a given T: the isentrope from (300 K, 2000 kPa) down to 250 K and back. The state
// found on the way is checked by the engine; the way back ends on the start's pressure (the solver
// stops at |dx/x| < 1.5e-6, so 1e-5 leaves room).
TEST(IsoRechner, IsentropeThereAndBackEndsOnTheStartPressure) {
  IsoSeite f(0, 300, 2000);
  f.iso.OptIsoFu_Click(2);
  EXPECT_EQ(f.iso.lblFuConst, "S  = ");
  EXPECT_EQ(f.iso.txtTpVorgabe, "300");
  const double s0 = Dampf(f.r.s, 300, 2000).s;

  f.iso.txtTpVorgabe = "250";
  f.iso.cmdCalc_Click();
  ASSERT_TRUE(f.iso.Geloest) << f.iso.txtTpCalc;
  const double p1 = f.Zeile().p;
  EXPECT_EQ(f.Zeile().T, 250);
  EXPECT_LT(p1, 2000); // an expansion cools
  EXPECT_EQ(f.iso.txtTpCalc, IsoZahlText(p1) + " kPa");
  EXPECT_REL(Dampf(f.r.s, 250, p1).s, s0, 1e-7);

  f.iso.txtTpVorgabe = "300";
  f.iso.cmdCalc_Click();
  ASSERT_TRUE(f.iso.Geloest);
  EXPECT_REL(f.Zeile().p, 2000, 1e-5);
  EXPECT_REL(f.iso.GutP, 2000, 1e-5);
  EXPECT_TRUE(f.r.ui.Meldungen().empty());
}

// Holding h at a given p: throttled from 2000 to 500 kPa methane at 300 K cools by the Joule-Thomson
// effect (a few kelvin), and the isenthalpe back to 2000 kPa ends at 300 K.
TEST(IsoRechner, IsenthalpeThereAndBackEndsOnTheStartTemperature) {
  IsoSeite f(0, 300, 2000);
  f.iso.optIsoTp_Click(IsoPGegeben);
  f.iso.OptIsoFu_Click(1);
  EXPECT_EQ(f.iso.lblTpVorgabe, "p/kPa =");
  EXPECT_EQ(f.iso.lblTpCalc, "T/K =");
  f.iso.txtTpVorgabe = "500";
  f.iso.cmdCalc_Click();
  ASSERT_TRUE(f.iso.Geloest) << f.iso.txtTpCalc;
  const double T1 = f.Zeile().T;
  EXPECT_LT(T1, 300);
  EXPECT_GT(T1, 290);
  EXPECT_EQ(f.iso.txtTpCalc, IsoZahlText(T1) + " K");
  EXPECT_REL(Dampf(f.r.s, T1, 500).h, Dampf(f.r.s, 300, 2000).h, 1e-7);

  f.iso.txtTpVorgabe = "2000";
  f.iso.cmdCalc_Click();
  ASSERT_TRUE(f.iso.Geloest);
  EXPECT_REL(f.Zeile().T, 300, 1e-6);
}

// Per kg the same state shows h / M; typed as shown, each number solves on its own basis to the same
// temperature. The values typed are the fields' texts, not the full-precision values behind them.
TEST(IsoRechner, EnergyPerKgShowsAnotherNumberAndSolvesToTheSameState) {
  IsoSeite molar(0, 300, 2000), proKg(3, 300, 2000);
  const double M = molar.r.s.Stoff.MolMasse;
  double T[2] = {0, 0}, h[2] = {0, 0};
  int i = 0;
  for (IsoSeite* f : {&molar, &proKg}) {
    f->iso.optIsoTp_Click(IsoPGegeben);
    f->iso.OptIsoFu_Click(1);
    h[i] = std::stod(f->iso.txtFuConst);
    std::string getippt = f->iso.txtFuConst; // typed anew, with a decimal comma: read from the text
    for (char& c : getippt)
      if (c == '.') c = ',';
    f->iso.txtFuConst = getippt;
    f->iso.txtTpVorgabe = "800";
    f->iso.cmdCalc_Click();
    ASSERT_TRUE(f->iso.Geloest);
    T[i++] = f->Zeile().T;
  }
  EXPECT_EQ(molar.iso.lblFuEinheit, "kJ/kmol");
  EXPECT_EQ(proKg.iso.lblFuEinheit, "kJ/kg");
  const double hMolar = Dampf(molar.r.s, 300, 2000).h;
  EXPECT_REL(h[0], hMolar, 1e-9);
  EXPECT_REL(h[1], hMolar / M, 1e-9);
  EXPECT_REL(T[0], T[1], 1e-6);
}

// Liquid methane has volumes near 0.04 m^3/kmol; 1 m^3/kmol is no liquid state at 150 K. A negative
// entropy difference of a million is nothing the vapour has. The page keeps the former answer's pair.
TEST(IsoRechner, AValueThePhaseCannotHoldHasNoSolution) {
  IsoSeite f(0, 150, 3000);
  f.iso.optIsoPhase_Click(PhaseL);
  f.iso.OptIsoFu_Click(0);
  EXPECT_LT(std::stod(f.iso.txtFuConst), 0.1);
  f.iso.txtFuConst = "1";
  f.iso.cmdCalc_Click();
  EXPECT_FALSE(f.iso.Geloest);
  EXPECT_EQ(f.iso.txtTpCalc, "keine Lösung");
  EXPECT_EQ(f.iso.GutT, 150);
  EXPECT_EQ(f.iso.GutP, 3000);

  f.iso.optIsoPhase_Click(PhaseV);
  f.iso.OptIsoFu_Click(2);
  f.iso.txtFuConst = "-1E6";
  f.iso.cmdCalc_Click();
  EXPECT_EQ(f.iso.txtTpCalc, "keine Lösung");
  EXPECT_TRUE(f.r.ui.Meldungen().empty());
}

// After a success and a failure, Reset Last takes the successful pair again: the row, the fields and
// the value of the function there.
TEST(IsoRechner, ResetBringsBackTheLastGoodPair) {
  IsoSeite f(0, 300, 2000);
  f.iso.OptIsoFu_Click(2);
  f.iso.txtTpVorgabe = "260";
  f.iso.cmdCalc_Click();
  ASSERT_TRUE(f.iso.Geloest);
  const double p1 = f.Zeile().p;
  const std::string sText = f.iso.txtFuConst;
  f.iso.txtFuConst = "-1E6";
  f.iso.txtTpVorgabe = "280";
  f.iso.cmdCalc_Click();
  ASSERT_EQ(f.iso.txtTpCalc, "keine Lösung");

  f.iso.cmdReset_Click();
  EXPECT_EQ(f.Zeile().T, 260);
  EXPECT_EQ(f.Zeile().p, p1);
  EXPECT_EQ(f.iso.txtTpVorgabe, "260");
  EXPECT_EQ(f.iso.txtTpCalc, IsoZahlText(p1) + " kPa");
  EXPECT_REL(std::stod(f.iso.txtFuConst), std::stod(sText), 1e-8);
}

// Options refill the label, the unit and the value from the last state. A page of kind 3 has no
// function cells: the calculator computes them at the page's state and leaves the input row alone.
TEST(IsoRechner, OptionsRefillFromTheLastState) {
  IsoSeite f(0, 300, 2000, art::Tp);
  EXPECT_EQ(f.Zeile().T, 300);
  EXPECT_EQ(f.Zeile().p, 2000);
  const KalorischeWerte w = Dampf(f.r.s, 300, 2000);
  f.iso.OptIsoFu_Click(3);
  EXPECT_EQ(f.iso.lblFuConst, "G  = ");
  EXPECT_REL(std::stod(f.iso.txtFuConst), w.h - 300 * w.s, 1e-8);
  f.iso.OptIsoFu_Click(5);
  EXPECT_EQ(f.iso.lblFuConst, "E(H)=");
  EXPECT_REL(std::stod(f.iso.txtFuConst), w.eh, 1e-8);
  f.iso.OptIsoFu_Click(0);
  EXPECT_EQ(f.iso.lblFuEinheit, "m^3/kmol");
  EXPECT_REL(std::stod(f.iso.txtFuConst), Loese(f.r.s, 300, 2000).vV, 1e-8);
  f.iso.optIsoTp_Click(IsoPGegeben);
  EXPECT_EQ(f.iso.lblTpVorgabe, "p/kPa =");
  EXPECT_EQ(f.iso.txtTpVorgabe, "2000");
  EXPECT_EQ(f.iso.txtTpCalc, "");
}

// Without a calculated state the page refuses to open the calculator; an unreadable field is refused.
TEST(IsoRechner, Refusals) {
  ProjectState s = StoffMitModell(CasMethan, 6);
  ui::SkriptOberflaeche ui;
  RechenKontext leer;
  frmIsoCalc iso(s, ui, leer);
  EXPECT_FALSE(iso.Form_Load());
  ASSERT_EQ(ui.Meldungen().size(), 1u);
  EXPECT_EQ(ui.Letzte().text, "noch keine p- oder T-Vorgabe!");
  EXPECT_EQ(ui.Letzte().titel, "Ausführung nicht möglich");

  IsoSeite f(0, 300, 2000);
  f.iso.txtTpVorgabe = "3x0";
  f.iso.cmdCalc_Click();
  EXPECT_EQ(f.r.ui.Letzte().text, "keine gültige Eingabe");
  EXPECT_EQ(f.iso.txtTpCalc, "");
}

// The eight functions through the dispatcher are the engine's values times the display factor; the
// direct path gives the engine's values.
TEST(ProzessLoeserFunktionen, BothPathsAgreeOnEveryFunction) {
  ProjectState s = StoffMitModell(CasMethan, 6);
  s.Einheiten.EnergieMode = 3;
  ui::SkriptOberflaeche ui;
  const double M = s.Stoff.MolMasse;
  for (int16_t f = 1; f < IsoFunktionen; ++f) {
    SCOPED_TRACE(f);
    LoeserKontext batch, direkt;
    direkt.art = Auswertung::Direkt;
    double wb = 0, wd = 0;
    ASSERT_TRUE(FixWertBei(s, ui, batch, 250, 1500, IsoFixGroesse(f), PhaseV, wb));
    ASSERT_TRUE(FixWertBei(s, ui, direkt, 250, 1500, IsoFixGroesse(f), PhaseV, wd));
    EXPECT_REL(wb, wd / M, 1e-12);
  }
}

// The one-value box: the limits and the comma as decimal mark.
TEST(TpVSEingabe, ChecksNumberAndLimits) {
  ui::SkriptOberflaeche ui;
  frmTpVSInputBox box(ui, "T/K =", "K", 100, 500);
  box.txtWert = "250,5";
  EXPECT_TRUE(box.cmdOK_Click());
  EXPECT_EQ(box.Wert, 250.5);
  box.Bestaetigt = false;
  box.txtWert = "600";
  EXPECT_FALSE(box.cmdOK_Click());
  EXPECT_FALSE(box.Bestaetigt);
  EXPECT_EQ(ui.Letzte().text, "Eingabewert nicht im gültigen Bereich\r\n100 ... 500 K");
  box.txtWert = "2x";
  EXPECT_FALSE(box.cmdOK_Click());
  EXPECT_EQ(ui.Letzte().text, "keine gültige Eingabe");
  EXPECT_EQ(box.Wert, 250.5);
}

} // namespace
} // namespace quor::test
