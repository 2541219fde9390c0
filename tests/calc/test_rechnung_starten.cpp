// From a command of the calculation menu to the first window: the refusal of kind 2 without a liquid phase,
// the question on T and p at equilibrium, and which dialog comes next in direct and batch mode.
#include "calc/rechnung_starten.h"
#include "calc_testhilfe.h"
#include "dienste/skript_oberflaeche.h"
#include "eingabe_testhilfe.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

using namespace quor::test;
using Schritte = std::vector<std::string>;

struct Start {
  ProjectState s;
  ui::SkriptOberflaeche ui;
  FensterAufnahme fenster;
  explicit Start(int16_t eos, int16_t hlv = 7) : s(StoffMitModell(CasMethan, eos, hlv)) {}
  Schritte Menue(const std::string& name, int index) {
    fenster.schritte.clear();
    EXPECT_TRUE(mnuCalc_Click(s, ui, fenster.Fenster(), name, index)) << name << index;
    return fenster.schritte;
  }
};

TEST(RechnungStarten, KindTwoNeedsACubicModel) {
  Start virial(13);
  EXPECT_EQ(virial.Menue("mnuCalc", 1), Schritte{});
  ASSERT_EQ(virial.ui.Meldungen().size(), 1u);
  EXPECT_EQ(virial.ui.Letzte().text, "nur möglich mit einer kubischen EOS");
  EXPECT_EQ(virial.ui.Letzte().titel, "Ausführung nicht möglich");
  EXPECT_EQ(virial.s.RechenArt, 0);

  Start kubisch(6);
  EXPECT_EQ(kubisch.Menue("mnuCalc", 1), (Schritte{"frmQCalcOut", "frmParinput"}));
  EXPECT_TRUE(kubisch.ui.protokoll.empty());
}

// Kind 3 asks whether T and p lie on the saturation curve; "Ja" leads through the concept dialog,
// "Nein" (the default) to the page with the value dialog over it.
TEST(RechnungStarten, KindThreeAsksForTheEquilibrium) {
  Start ja(6);
  ja.ui.antworten.push_back(ui::Antwort::Ja);
  EXPECT_EQ(ja.Menue("mnuCalc", 2), Schritte{"frmCalcIn"});
  ASSERT_EQ(ja.ui.protokoll.size(), 1u);
  EXPECT_EQ(ja.ui.Letzte().art, "Frage");
  EXPECT_EQ(ja.ui.Letzte().text, "Sollen die Vorgabewerte T, p ein V-L-Phasengleichgewicht beschreiben?\r\n"
                                 "\r\n"
                                 "ACHTUNG: Bei \"Ja\" wird die Existenz einer L-Phase vorausgesetzt\r\n"
                                 "und eine \"PARTIAL-Berechnung\" durchgeführt.");
  EXPECT_EQ(ja.ui.Letzte().titel, "T-p-Vorgabe");
  EXPECT_TRUE(ja.s.Rechnung.TpGleichgewicht);

  Start nein(6);
  EXPECT_EQ(nein.Menue("mnuCalc", 2), (Schritte{"frmQCalcOut", "frmParinput"}));
  EXPECT_FALSE(nein.s.Rechnung.TpGleichgewicht);

  // The answer of one calculation does not carry over to the next kind.
  ja.Menue("mnuCalc", 11);
  EXPECT_FALSE(ja.s.Rechnung.TpGleichgewicht);
}

// The concept dialog comes first for the equilibria, and for the enthalpy of vaporization only with
// Benson's liquid density; other kinds open the page at once.
TEST(RechnungStarten, EquilibriaGoThroughTheConceptDialog) {
  Start t(6, 6);
  for (int index : {5, 6, 8, 9})
    EXPECT_EQ(t.Menue("mnuCalc", index), Schritte{"frmCalcIn"}) << index;
  Start ohneBenson(6, 7);
  EXPECT_EQ(ohneBenson.Menue("mnuCalc", 8), (Schritte{"frmQCalcOut", "frmParinput"}));
  EXPECT_EQ(ohneBenson.Menue("mnuCalc_sub_database", 1), (Schritte{"frmQCalcOut", "frmParinput"}));
  EXPECT_EQ(ohneBenson.Menue("mnuCalc", 13), Schritte{"Prozess"});
  EXPECT_EQ(ohneBenson.s.RechenArt, 12);
}

// The vessel: GLOBAL opens the page and the value dialog for the vessel, PARTIAL first needs its
// reference point; both bring the page forward afterwards.
TEST(RechnungStarten, TheVesselByItsConcept) {
  Start t(6);
  EXPECT_EQ(t.Menue("mnuCalc", 15), (Schritte{"frmQCalcOut", "frmParinput", "nach vorne"}));
  EXPECT_TRUE(t.s.Modell.RechnungGlobal);
  EXPECT_EQ(t.Menue("mnuCalc", 16), (Schritte{"frmCalcIn", "nach vorne"}));
  EXPECT_FALSE(t.s.Modell.RechnungGlobal);
  EXPECT_EQ(t.s.RechenArt, 10);
}

// Over the batch data nothing is asked and no value dialog opens; the page alone calculates. Without
// measured rows a batch is refused, the vessel still opens.
TEST(RechnungStarten, BatchModeOpensOnlyThePage) {
  Start leer(6);
  leer.s.Rechnung.StapelModus = true;
  EXPECT_EQ(leer.Menue("mnuCalc", 2), Schritte{});
  EXPECT_EQ(leer.ui.Letzte().text, KeineStapelDatenText);
  EXPECT_EQ(leer.Menue("mnuCalc", 15).front(), "frmQCalcOut");

  Start t(6);
  t.s.Rechnung.StapelModus = true;
  ExpZeile(t.s.Mess, 1) = {false, 150, 1000, 0, 0, 0, 0};
  t.s.Mess.ExpAnzahl = 1;
  for (int index : {0, 2, 3, 11, 15, 16})
    EXPECT_EQ(t.Menue("mnuCalc", index).front(), "frmQCalcOut") << index;
  EXPECT_TRUE(t.ui.protokoll.empty());
  EXPECT_FALSE(t.s.Rechnung.TpGleichgewicht);
  EXPECT_EQ(t.Menue("mnuCalc", 5), Schritte{"frmCalcIn"});

  // A page that closes at once gets no value dialog.
  Start exit(6);
  exit.s.Mess.ExpAnzahl = 1;
  exit.fenster.ergebnisOeffnet = false;
  EXPECT_EQ(exit.Menue("mnuCalc", 0), Schritte{"frmQCalcOut"});
}

} // namespace
} // namespace quor
