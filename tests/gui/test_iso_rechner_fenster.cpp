// The iso-line calculator's window over a calculated state of methane: its texts, the key filter of
// its fields, a calculation and an option change shown at once, help and the X-Y editor's hook; the
// result page's button that opens it or refuses; the one-value box with its limits.
#include "calc/calc_testhilfe.h"
#include "core/rechen_art.h"
#include "gui/calc/ergebnis_fenster.h"
#include "gui/process/iso_rechner_fenster.h"
#include "gui/process/tpvs_eingabe_fenster.h"
#include "gui_hilfe.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace quor::ui {
namespace {

using quor::test::CasMethan;
using quor::test::Rechnung;
using quor::test::StoffMitModell;

TEST(IsoRechnerFenster, CalculatesAndRefillsWhatItShows) {
  test::App();
  Rechnung r(StoffMitModell(CasMethan, 6));
  r.Vorgabe(300, 2000).Rechne(art::Funktionen);
  IsoRechnerFenster w(r.s, r.ui, r.k);
  ASSERT_TRUE(w.Laden());
  w.show();
  EXPECT_EQ(w.windowTitle(), "   \"Iso-Rechner\"");
  EXPECT_EQ(w.Knopf("cmdReset")->toolTip(), " Rückstellung auf letzte erfolgreiche Berechnung ");
  EXPECT_EQ(w.Knopf("cmdShowManuInput")->toolTip(),
            " öffnet Eingabe-Fenster für manuelle Kurvenpunkte (x-y-Datenfile) ");
  EXPECT_EQ(w.FuConst()->toolTip(), " manuelle Eingabe möglich; Einheit s. unter 'Optionen'  ");
  EXPECT_EQ(w.Knopf("cmdEsc")->text(), "schließen ");
  EXPECT_TRUE(w.Phase(PhaseV)->isChecked());
  // It fits beside the page on a screen of 1280 x 800.
  EXPECT_LE(w.sizeHint().width(), 640);
  EXPECT_LE(w.sizeHint().height(), 500);

  // Entropy held, a lower temperature typed with a letter among the digits: the letter is dropped.
  w.Funktion(2)->click();
  EXPECT_EQ(w.LblFuConst()->text(), "S  = ");
  w.TpVorgabe()->clear();
  test::Tippen(w.TpVorgabe(), "2x50");
  EXPECT_EQ(w.TpVorgabe()->text(), "250");
  w.Knopf("cmdCalc")->click();
  EXPECT_TRUE(w.Logik().Geloest);
  EXPECT_EQ(w.TpCalc()->text().toStdString(), w.Logik().txtTpCalc);
  EXPECT_TRUE(w.TpCalc()->text().endsWith(" kPa"));
  EXPECT_TRUE(test::Bild(&w, "iso_rechner.png"));

  w.Vorgabe(1)->click();
  EXPECT_EQ(w.findChild<QLabel*>("lblFuConst")->text(), "S  = ");
  EXPECT_EQ(w.TpVorgabe()->text().toStdString(), w.Logik().txtTpVorgabe);
  EXPECT_TRUE(w.TpCalc()->text().isEmpty());

  w.Knopf("cmdIsoHelp")->click();
  EXPECT_EQ(r.ui.hilfeThemen, std::vector<int>{prozess::HilfeIsoRechner});
  EXPECT_FALSE(w.Knopf("cmdShowManuInput")->isEnabled());
  int geoeffnet = 0;
  w.KurvenInputOeffnen = [&] { ++geoeffnet; };
  w.Zeige();
  w.Knopf("cmdShowManuInput")->click();
  EXPECT_EQ(geoeffnet, 1);
  EXPECT_TRUE(r.ui.Meldungen().empty());
}

// The page's button opens the calculator through the frame's hook when a state was calculated, and
// refuses when the given values had no pressure.
TEST(IsoRechnerFenster, ThePagesButtonOpensOrRefuses) {
  test::App();
  ProjectState s = StoffMitModell(CasMethan, 6);
  s.RechenArt = art::Funktionen;
  s.Mess.ExpDaten[0].T = 300;
  s.Mess.ExpDaten[0].p = 2000;
  SkriptOberflaeche ui;
  ErgebnisFenster seite(s, ui, false);
  ASSERT_TRUE(seite.Laden());
  EXPECT_FALSE(seite.Knopf("cmdIsoCalc")->isEnabled()); // no hook yet
  int geoeffnet = 0;
  seite.IsoRechnerOeffnen = [&] { ++geoeffnet; };
  seite.Zeige();
  ASSERT_TRUE(seite.Knopf("cmdIsoCalc")->isEnabled());
  seite.Knopf("cmdIsoCalc")->click();
  EXPECT_EQ(geoeffnet, 1);

  s.Mess.ExpDaten[0].p = 0;
  seite.Rechnen();
  seite.Knopf("cmdIsoCalc")->click();
  EXPECT_EQ(geoeffnet, 1);
  EXPECT_EQ(ui.Letzte().text, "noch keine p- oder T-Vorgabe!");
  EXPECT_EQ(ui.Letzte().titel, "Ausführung nicht möglich");
}

TEST(TpVSEingabeFenster, TakesOnlyAValueWithinItsLimits) {
  test::App();
  SkriptOberflaeche ui;
  prozess::frmTpVSInputBox box(ui, "T2/ K = ", "K", 100, 500);
  TpVSEingabeFenster w(box);
  EXPECT_EQ(w.OK()->text(), "Zeichnen");
  EXPECT_EQ(w.findChild<QLabel*>("lblGrenzen")->text(), "gültiger Bereich: 100 ... 500 K");
  test::Tippen(w.Feld(), "6a00");
  EXPECT_EQ(w.Feld()->text(), "600");
  w.OK()->click();
  EXPECT_EQ(w.result(), QDialog::Rejected);
  EXPECT_EQ(ui.Letzte().text, "Eingabewert nicht im gültigen Bereich\r\n100 ... 500 K");
  w.Feld()->setText("250,5");
  w.OK()->click();
  EXPECT_EQ(w.result(), QDialog::Accepted);
  EXPECT_EQ(box.Wert, 250.5);
}

} // namespace
} // namespace quor::ui
