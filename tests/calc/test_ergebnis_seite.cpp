// The result page: opening, walking over the live points of a batch, the options of the further
// blocks, the controls offered in direct input, and closing.
#include "calc/ergebnis_seite.h"
#include "calc_testhilfe.h"
#include "dienste/skript_oberflaeche.h"
#include "test_ergebnis_seite_daten.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

using namespace quor::test;

struct Seite {
  ProjectState s = StapelZustand("");
  ui::SkriptOberflaeche ui;
  RechnungsAttrappe rechnung = StapelRechnung();
  frmQCalcOut seite;
  explicit Seite(bool stapel = true) : seite(s, ui, stapel, rechnung.Funktion()) {
    seite.Datum = "14.03.2024";
  }
  std::vector<int> Schritte(void (frmQCalcOut::*knopf)(), int n) {
    std::vector<int> punkte;
    for (int i = 0; i < n; ++i) {
      (seite.*knopf)();
      punkte.push_back(seite.AktuellerPunkt);
    }
    return punkte;
  }
};

// The batch of five with point 3 deleted: forward and back the deleted point is stepped over, the
// ends beep and keep the page at the last or first point; each step calculates once.
TEST(ErgebnisSeite, PagingSkipsTheDeletedPointAndBeepsAtTheEnds) {
  Seite t;
  t.seite.Form_Load();
  EXPECT_EQ(t.seite.AktuellerPunkt, 1);
  EXPECT_EQ(t.seite.fraBatchVorgabeCaption, " Vorgabewert(e) aus Datenpunkt #1");
  EXPECT_EQ(t.Schritte(&frmQCalcOut::cmdVor_Click, 4), (std::vector<int>{2, 4, 5, 5}));
  EXPECT_EQ(t.seite.Piepser, 1);
  EXPECT_EQ(t.seite.fraBatchVorgabeCaption, "Vorgabewerte aus Datenpunkt 5");
  EXPECT_EQ(t.Schritte(&frmQCalcOut::cmdRueck_Click, 4), (std::vector<int>{4, 2, 1, 1}));
  EXPECT_EQ(t.seite.Piepser, 2);
  EXPECT_EQ(t.rechnung.aufrufe, (std::vector<int>{1, 2, 4, 5, 5, 4, 2, 1, 1}));
  EXPECT_TRUE(t.ui.protokoll.empty());
}

// Opening sizes the records (all without result), starts at the first live point, calculates once;
// "EXIT" from the calculation closes the page with its companions before it is shown.
TEST(ErgebnisSeite, OpeningStartsAtTheFirstLivePointAndHonoursExit) {
  Seite t;
  t.s.Mess.ExpDaten[1].T = 0;
  t.seite.Kontext.StapelErgebnisse.assign(9, Ergebnis(1, "V+L", 1, 1, 1, 1, 1)); // left from before
  t.seite.Form_Load();
  EXPECT_EQ(t.rechnung.aufrufe, (std::vector<int>{2}));
  ASSERT_EQ(t.seite.Kontext.StapelErgebnisse.size(), 6u);
  EXPECT_EQ(t.seite.Kontext.StapelErgebnisse[4].Phase, "   ");
  EXPECT_EQ(t.seite.Caption, "Ergebnis der Berechnung  T => p(LV) (GLOBAL-Berechnung)");
  EXPECT_EQ(t.seite.cmdCalc_OKCaption, "Beenden (+Ausgabe)");

  Seite exit;
  exit.rechnung.antwort = "EXIT";
  int begleiter = 0;
  exit.seite.BegleiterEntladen = [&begleiter] { ++begleiter; };
  exit.seite.Form_Load();
  EXPECT_TRUE(exit.seite.Entladen && !exit.seite.Sichtbar);
  EXPECT_EQ(begleiter, 1);
}

// Direct input: point 0, no moving, no report output, the close button reads "Schließen".
TEST(ErgebnisSeite, DirectInputHasNoBatchControls) {
  Seite t(false);
  t.s.RechenArt = 3;
  t.seite.Form_Load();
  EXPECT_EQ(t.seite.fraBatchVorgabeCaption, " Vorgabewert(e) Direkteingabe ");
  EXPECT_EQ(t.seite.cmdCalc_OKCaption, "Schließen");
  EXPECT_FALSE(t.seite.cmdVorEnabled || t.seite.cmdRueckEnabled || t.seite.fraResultOutputEnabled);
  t.seite.cmdVor_Click();
  t.seite.optResultPrint_Click(AusgabeDatei); // not reachable in this mode: nothing is written
  t.seite.cmdCalc_OK_Click();
  EXPECT_EQ(t.rechnung.aufrufe, std::vector<int>{0});
  EXPECT_TRUE(t.ui.dateiDialoge.empty() && t.seite.Entladen);
}

// The two ticks of ResPlus give the blocks 1 to 4, chkUHS the functions; each change recalculates.
// The report's extended pages are offered only with an output, a kind below 6 and a block above 1.
TEST(ErgebnisSeite, OptionsSetTheBlocksAndRecalculate) {
  Seite t;
  t.s.RechenArt = 3;
  t.seite.Form_Load();
  t.seite.ResPlus_Click(0, true);
  t.seite.ResPlus_Click(1, true);
  t.seite.ResPlus_Click(0, false);
  EXPECT_EQ(t.rechnung.abschnitte, (std::vector<int16_t>{1, 2, 4, 3}));
  t.seite.chkUHS_Click(true);
  EXPECT_TRUE(t.seite.Kontext.MitFunktionen);
  EXPECT_EQ(t.rechnung.aufrufe.size(), 5u);

  EXPECT_FALSE(t.seite.chkFuncPrintEnabled); // no output chosen
  t.seite.optResultPrint_Click(AusgabeDrucker);
  EXPECT_TRUE(t.seite.chkFuncPrintEnabled);
  t.seite.ResPlus_Click(1, false);
  EXPECT_FALSE(t.seite.chkFuncPrintEnabled); // block 1

  t.seite.cmdCalc_OK_Click(); // printed without the extended pages, output choice reset
  EXPECT_EQ(t.ui.drucker.protokoll.back(), "Ende");
  EXPECT_FALSE(t.seite.MitDetails);
  EXPECT_EQ(t.seite.optResultPrint, AusgabeKeine);

  t.seite.Form_Load(); // opening again resets the options
  EXPECT_EQ(t.seite.Kontext.Abschnitte, 1);
  EXPECT_FALSE(t.seite.Kontext.MitFunktionen);
}

// With the real dispatcher (kind 3, methane, Peng/Robinson): the page shows the first point's state;
// only one deleted point is skipped at a step, so of two in a row the second is reached (and reported
// as without T, which the dispatcher's own tests check).
TEST(ErgebnisSeite, WalksABatchWithTheDispatcher) {
  ProjectState s = StoffMitModell(CasMethan, 6);
  s.RechenArt = 3;
  s.Mess.ExpAnzahl = 4;
  s.Mess.ExpDaten.assign(5, ExpDatenSatz{});
  s.Mess.ExpDaten[1].T = s.Mess.ExpDaten[4].T = 150;
  s.Mess.ExpDaten[1].p = s.Mess.ExpDaten[4].p = 100;
  ui::SkriptOberflaeche ui;
  frmQCalcOut seite(s, ui, true);
  seite.Form_Load();
  EXPECT_EQ(seite.Kontext.StapelErgebnisse[1].Phase, " V ");
  EXPECT_EQ(seite.Seite.par1.farbe, TextFarbe::Schwarz);
  seite.cmdVor_Click();
  EXPECT_EQ(seite.AktuellerPunkt, 3);
}

} // namespace
} // namespace quor
