// The measured-data editor frmTpRhoEdit: a row typed in its units, editing a row or a cell, the
// enabling by the count of rows and measured values, the table commands with their questions,
// pasting, loading and closing, and what goes to the diagrams, the printer, an .XY file and the fit.
#include "core/datei_io.h"
#include "dienste/skript_oberflaeche.h"
#include "fitting/batch_datei.h"
#include "fitting/fit_modell.h"
#include "fitting/messdaten_testhilfe.h"
#include "fitting/tprho_editor.h"
#include "support/relativ.h"
#include "support/temp_ordner.h"

#include <cmath>
#include <gtest/gtest.h>

namespace quor {
namespace {

using test::MitWasser;
using test::Satz;

struct Editor {
  explicit Editor(std::vector<ExpDatenSatz> zeilen = {}) : s(MitWasser()) {
    test::SetzeZeilen(s, zeilen);
    e.Form_Load();
  }
  void Tippe(const std::array<const char*, 6>& felder) {
    for (int i = 0; i < 6; ++i) {
      e.y[i] = felder[i];
      e.y_LostFocus(i);
    }
  }
  ProjectState s;
  ui::SkriptOberflaeche ui;
  frmTpRhoEdit e{s, ui};
};

ExpDatenSatz Inaktiv(ExpDatenSatz z) {
  z.Inaktiv = true;
  return z;
}

// Typed values are stored in K, kPa and kg/m^3: degrees Celsius + 273.15, atm * 101.325, Torr *
// 101.325 / 760, a volume as M n / V (only a positive one); a change of unit rewrites the fields
// from the stored row, T in K to three decimals and p in kPa to five, rounded half up.
TEST(TpRhoEditor, EingabeInGewaehltenEinheitenUndUmschreibenDerFelder) {
  Editor t;
  t.s.Stoff.MolMasse = 28.0134f;
  t.e.Form_Load();
  EXPECT_EQ(t.e.opt_Rho_UnitToolTip,
            " Übernahme des Eingabewertes nach Umrechnung rho = M n / V (Molmasse M/(kg/kmol) = 28.01) ");
  t.e.opt_T_unit_Click(einheit::Celsius);
  t.e.opt_p_Unit_Click(einheit::Torr);
  t.e.opt_Rho_Unit_Click(einheit::Volumen);
  EXPECT_EQ(t.e.lblPEinheit + t.e.lblDichte + t.e.lblRhoV + t.e.lblRhoL + t.e.lblRhoEinheit,
            "Torrmol. Volumenv_Vv_Lm^3");
  t.e.txtMol = "2";
  t.Tippe({"-195,8", "760", "0,5", "0.0796", "5580", "29.1"});
  t.e.y[tprho::RhoV] = "0"; // no volume: the stored vapour density stays
  t.e.y_LostFocus(tprho::RhoV);
  t.e.OKinput();
  ASSERT_EQ(t.s.Mess.ExpAnzahl, 1);
  const ExpDatenSatz& z = t.s.Mess.ExpDaten[1];
  EXPECT_REL(z.T, 77.35, 1e-12);   // -195.8 + 273.15
  EXPECT_REL(z.p, 101.325, 1e-12); // 760 Torr
  EXPECT_EQ(z.RhoV, static_cast<float>(28.0134f * 2 / 0.5));
  EXPECT_EQ(z.RhoL, static_cast<float>(28.0134f * 2 / 0.0796));
  EXPECT_EQ(z.HLV, 5580);
  EXPECT_EQ(z.Cp, 29.1f);
  EXPECT_TRUE(t.s.Mess.BatchGeaendert);

  t.e.opt_T_unit_Click(einheit::Kelvin);
  t.e.opt_p_Unit_Click(einheit::atm);
  t.e.opt_Rho_Unit_Click(einheit::Dichte);
  EXPECT_EQ(t.e.y[tprho::T], "77.35");
  EXPECT_EQ(t.e.y[tprho::p], "1");
  EXPECT_EQ(t.e.y[tprho::RhoV], "112.0536"); // 28.0134 * 2 / 0.5 in single precision
  EXPECT_EQ(t.e.lblRhoEinheit, "kg/m^3");

  t.e.opt_p_Unit_Click(einheit::kPa);
  t.e.y[tprho::T] = "300.1234567";
  t.e.y[tprho::p] = "101.3254321";
  t.e.y_LostFocus(tprho::T);
  t.e.y_LostFocus(tprho::p);
  t.e.opt_Rho_Unit_Click(einheit::Dichte);
  EXPECT_EQ(t.e.y[tprho::T], "300.123");
  EXPECT_EQ(t.e.y[tprho::p], "101.32543");
  t.e.opt_T_unit_Click(einheit::Celsius);
  EXPECT_EQ(t.e.y[tprho::T], "26.973");

  // Without a molar mass there is no volume input.
  t.s.Stoff.MolMasse = 0;
  t.e.Form_Load();
  t.e.opt_Rho_Unit_Click(einheit::Volumen);
  EXPECT_FALSE(t.e.opt_Rho_UnitVolumenEnabled);
  EXPECT_EQ(t.e.opt_Rho_Unit, einheit::Dichte);
}

// A row typed as zeros is dropped without a word; T = 0 with p = 1 is a row. In edit mode the row
// under the cursor is replaced and the next one comes up; a cell's text is stored as it stands,
// whatever the input units, and its field follows.
TEST(TpRhoEditor, NullzeileFaelltWegEditierenErsetztDieZeileDesCursors) {
  Editor t;
  t.Tippe({"0", "", "0", "0,0", "0", "0"});
  t.e.OKinput();
  EXPECT_EQ(t.s.Mess.ExpAnzahl, 0);
  EXPECT_FALSE(t.s.Mess.BatchGeaendert);
  EXPECT_TRUE(t.ui.protokoll.empty());
  t.Tippe({"0", "1", "0", "0", "0", "0"});
  t.e.OKinput();
  ASSERT_EQ(t.s.Mess.ExpAnzahl, 1);
  EXPECT_EQ(t.s.Mess.ExpDaten[1].p, 1);
  EXPECT_EQ(t.e.lblZeile, "Zeile 2");

  Editor ed({Satz(300, 3.5, 996), Satz(310, 4.5), Satz(320, 6)});
  EXPECT_EQ(ed.e.optInputMode, ZeileEditieren);
  ed.e.Grid_Zeile(1);
  EXPECT_EQ(ed.e.y[tprho::T], "310");
  ed.e.y[tprho::p] = "4.75";
  ed.e.OKinput();
  EXPECT_EQ(ed.s.Mess.ExpAnzahl, 3);
  EXPECT_EQ(ed.s.Mess.ExpDaten[2].p, 4.75);
  EXPECT_EQ(ed.e.Grid.CursorZeile, 2);
  EXPECT_EQ(ed.e.y[tprho::T], "320");
  EXPECT_EQ(ed.e.lblZeile, "Zeile 3");

  ed.e.opt_T_unit_Click(einheit::Celsius);
  ed.s.Mess.BatchGeaendert = false;
  ed.e.Grid_Enter(0, tprho::T, "310,5");
  ed.e.Grid_Enter(0, tprho::RhoL, "0.1");
  EXPECT_EQ(ed.s.Mess.ExpDaten[1].T, 310.5);
  EXPECT_EQ(ed.s.Mess.ExpDaten[1].RhoL, 0.1f);
  EXPECT_EQ(ed.e.y[tprho::T], "37.35");
  EXPECT_TRUE(ed.s.Mess.BatchGeaendert);
}

// The buttons follow the number of rows; a y column is offered once T has three measured values
// and the column one; the chosen column and T are highlighted; ln p needs p chosen and two rows.
TEST(TpRhoEditor, FreigabenFolgenDerZeilenzahlUndDenGemessenenWerten) {
  struct Fall {
    int n;
    bool eins, zwei, drei;
  };
  for (const Fall f : {Fall{0, false, false, false}, Fall{1, true, false, false}, Fall{2, true, true, false},
                       Fall{3, true, true, true}}) {
    std::vector<ExpDatenSatz> zeilen;
    for (int i = 0; i < f.n; ++i)
      zeilen.push_back(Satz(300 + i, 1));
    Editor t(zeilen);
    const frmTpRhoEdit& e = t.e;
    for (bool b : {e.cmdBatchAddEnabled, e.cmdBatchSaveEnabled, e.cmdEraseEnabled, e.cmdAusEnabled,
                   e.cmdPrintTpVListeEnabled, e.cmdSaveXYEnabled, e.optInputModeEditierenEnabled})
      EXPECT_EQ(b, f.eins) << f.n;
    for (bool b : {e.TSortEnabled, e.pSortEnabled, e.cmdGraphFunctionEnabled, e.cmdlogGrafEnabled})
      EXPECT_EQ(b, f.zwei) << f.n;
    EXPECT_EQ(e.cmdFittingEnabled, f.drei);
    EXPECT_EQ(t.s.Projekt.Freigaben.ExpDaten, f.eins);
  }

  Editor t({Satz(300, 1, 0, 0, 40000), Satz(310, 0, 0, 0, 0, 75), Satz(0, 2), Satz(320, 0)});
  EXPECT_EQ(t.e.Gemessen, (std::array<int, 6>{3, 2, 0, 0, 1, 1}));
  EXPECT_EQ(t.e.optFitFunctionEnabled, (std::array<bool, 6>{false, true, false, false, true, true}));
  t.e.optFitFunction_Click(tprho::RhoV); // not offered: nothing changes
  EXPECT_EQ(t.s.Mess.FitSpalte, 1);
  t.e.optFitFunction_Click(tprho::HLV);
  EXPECT_EQ(t.s.Mess.FitSpalte, 4);
  EXPECT_FALSE(t.e.cmdlogGrafEnabled);
  const RGBFarbe weiss{255, 255, 255};
  for (int k = 0; k < 6; ++k)
    EXPECT_EQ(t.e.SpaltenFarbe[k] == weiss, k != tprho::T && k != tprho::HLV) << k;
}

// Sorting by T and by p; sending to the fit sorts by T, so the row numbers change, and hands over
// the chosen column. An empty table only beeps.
TEST(TpRhoEditor, SortierenUndDasFittingSortiertMit) {
  Editor t({Satz(310, 1), Satz(300, 2), Satz(290, 3), Satz(300, 4)});
  t.e.TSort();
  std::vector<double> p;
  for (int i = 1; i <= 4; ++i)
    p.push_back(t.s.Mess.ExpDaten[i].p);
  EXPECT_EQ(p, (std::vector<double>{3, 2, 4, 1}));
  t.e.pSort();
  EXPECT_EQ(t.s.Mess.ExpDaten[1].T, 310);

  const FitUebergabe u = t.e.cmdFitting();
  EXPECT_EQ(t.s.Mess.ExpDaten[1].T, 290);
  EXPECT_EQ(u.FitSpalte, tprho::p);
  EXPECT_EQ(u.Modell, fitmodell::August);
  // What the dialog opens with for the other columns.
  EXPECT_EQ(FitUebergabeVon(tprho::RhoL).Modell, fitmodell::Rackett);
  EXPECT_FALSE(FitUebergabeVon(tprho::HLV).FunktionsKnopf.has_value());
  EXPECT_EQ(FitUebergabeVon(0).FunktionsKnopf, "y = f(x)");
  EXPECT_FALSE(FitUebergabeVon(0).Tab.has_value());

  Editor leer;
  leer.e.TSort();
  leer.e.cmdAus();
  leer.e.cmdErase();
  EXPECT_EQ(leer.e.Piepser, 3);
  EXPECT_TRUE(leer.ui.protokoll.empty());
}

// Deleting asks for one row or a block; without a selection it refuses. Clearing cells keeps the
// rows; the inactive mark toggles.
TEST(TpRhoEditor, LoeschenFragtUndZellenLeerenBehaeltDieZeilen) {
  Editor t({Satz(300, 1, 2), Satz(310, 2), Satz(320, 3), Satz(330, 4)});
  t.e.cmdErase();
  EXPECT_EQ(t.ui.Letzte().text, "keine Markierung!");
  EXPECT_EQ(t.ui.Letzte().titel, "Ausführung nicht möglich");
  t.e.Grid.Auswahl = {1, 2, 0, 5};
  t.ui.antworten = {ui::Antwort::Nein};
  t.e.cmdErase();
  EXPECT_EQ(t.ui.Letzte().text, "Zeilen 2 bis 3 wirklich entfernen?");
  EXPECT_EQ(t.s.Mess.ExpAnzahl, 4);
  t.ui.antworten = {ui::Antwort::Ja};
  t.e.cmdErase();
  ASSERT_EQ(t.s.Mess.ExpAnzahl, 2);
  EXPECT_EQ(t.s.Mess.ExpDaten[2].T, 330);
  t.e.Grid.Auswahl = {1, 1, 0, 0};
  t.ui.antworten = {ui::Antwort::Ja};
  t.e.cmdErase();
  EXPECT_EQ(t.ui.Letzte().text, "Zeile 2 wirklich entfernen?");
  EXPECT_EQ(t.ui.Letzte().titel, "WARNUNG");
  ASSERT_EQ(t.s.Mess.ExpDaten.size(), 2u);

  t.e.Grid.Auswahl = {0, 1, 0, 1};
  t.e.cmdEraseSelected();
  EXPECT_EQ(t.s.Mess.ExpAnzahl, 1);
  EXPECT_EQ(t.s.Mess.ExpDaten[1].T, 0);
  EXPECT_EQ(t.s.Mess.ExpDaten[1].p, 0);
  EXPECT_EQ(t.s.Mess.ExpDaten[1].RhoL, 2);
  t.e.Grid.CursorZeile = 0;
  t.e.cmdAus();
  EXPECT_TRUE(t.s.Mess.ExpDaten[1].Inaktiv);
}

// Pasted text lands at the cursor as it stands, whatever the input units; the single columns hold
// floats; the mode turns to edit; copying gives the selected cells.
TEST(TpRhoEditor, EinfuegenUndKopierenUeberDieZwischenablage) {
  Editor t;
  t.e.opt_T_unit_Click(einheit::Celsius);
  t.ui.zwischenablage = "300\t3,5\t0.1\r\n310\t4.5\r\n";
  t.e.cmdClipEinfuegen();
  ASSERT_EQ(t.s.Mess.ExpAnzahl, 2);
  EXPECT_EQ(t.s.Mess.ExpDaten[1].T, 300);
  EXPECT_EQ(t.s.Mess.ExpDaten[1].p, 3.5);
  EXPECT_EQ(t.s.Mess.ExpDaten[1].RhoV, 0.1f);
  EXPECT_EQ(t.e.optInputMode, ZeileEditieren);
  EXPECT_TRUE(t.s.Mess.BatchGeaendert);

  t.e.Grid.Auswahl = {1, 1, 0, 1};
  t.e.cmdClipboard();
  EXPECT_EQ(t.ui.zwischenablage, " 310\t 4.5\r");
}

// Loading through the dialog replaces or appends; afterwards the caption names substance and file,
// the comment shows, row 1 is up for editing and the data count as saved. A chooser with a preview
// set in place of the file dialog gets the title and the pattern.
TEST(TpRhoEditor, LadenSetztTitelKommentarUndBearbeitungsmodus) {
  test::TempOrdner ordner;
  Editor quelle({Satz(300, 3.5), Satz(310, 4.5)});
  quelle.s.Mess.BatchKommentar = "Messreihe";
  const std::string pfad = ordner.Datei("wasser.BAQ");
  ASSERT_TRUE(SchreibeBatchDatei(quelle.s, pfad));

  Editor t;
  EXPECT_EQ(t.e.Caption, " experimentelle Daten eingeben/editieren ");
  t.ui.dateien = {pfad, pfad};
  ASSERT_TRUE(t.e.cmdBatchLoad());
  EXPECT_EQ(t.e.Caption, " experimentelle Daten, Wasser (File wasser.BAQ)");
  EXPECT_EQ(t.e.txtComment, "Messreihe");
  EXPECT_EQ(t.e.lblZeile, "Zeile 1");
  EXPECT_EQ(t.e.optInputMode, ZeileEditieren);
  EXPECT_FALSE(t.s.Mess.BatchGeaendert);
  EXPECT_TRUE(t.s.Projekt.Freigaben.ExpDaten);
  ASSERT_TRUE(t.e.cmdBatchAdd());
  EXPECT_EQ(t.ui.dateiDialoge[1].titel, "Daten aus gewähltem File anfügen mit Vorschau");
  EXPECT_EQ(t.e.Grid.Anzahl(), 4);

  std::string gewaehlt;
  t.e.DateiWaehlen = [&](const std::string& titel, const std::string& muster) {
    gewaehlt = titel + " " + muster;
    return std::string();
  };
  EXPECT_FALSE(t.e.cmdBatchLoad());
  EXPECT_EQ(gewaehlt, "Datenfile laden mit Vorschau *.BAQ");
  EXPECT_EQ(t.s.Mess.ExpAnzahl, 4);
}

// Closing with unsaved changes: Cancel stays, No closes as it is, Yes saves first.
TEST(TpRhoEditor, SchliessenFragtNachDemSpeichern) {
  test::TempOrdner ordner;
  Editor t({Satz(300, 3.5)});
  EXPECT_TRUE(t.e.Form_QueryUnload());
  EXPECT_TRUE(t.ui.protokoll.empty());

  t.s.Mess.BatchGeaendert = true;
  t.ui.antworten = {ui::Antwort::Abbrechen, ui::Antwort::Nein, ui::Antwort::Ja};
  EXPECT_FALSE(t.e.Form_QueryUnload());
  EXPECT_EQ(t.ui.Letzte().text,
            "Die Daten wurden nach Änderung noch nicht gespeichert.\r\n\r\njetzt in *.BAQ speichern?");
  EXPECT_EQ(t.ui.Letzte().titel, "WARNUNG");
  EXPECT_TRUE(t.e.Form_QueryUnload());
  EXPECT_TRUE(t.s.Mess.BatchGeaendert);
  EXPECT_TRUE(t.ui.dateiDialoge.empty());
  t.ui.dateien = {ordner.Datei("neu.BAQ")};
  EXPECT_TRUE(t.e.Form_QueryUnload());
  EXPECT_FALSE(t.s.Mess.BatchGeaendert);
  EXPECT_TRUE(DateiExistiert(ordner.Datei("neu.BAQ")));
  EXPECT_EQ(t.e.Caption, " experimentelle Daten, Wasser (File neu.BAQ)");
}

// The control diagram takes every active row, zeros too; ln p over 1/T refuses a zero in T or p of
// an active row. The range of a diagram spans the data by 5 %, a column without spread lies around
// its value or at -1 .. 1 for zeros.
TEST(TpRhoEditor, KontrollgrafikUndDampfdruckpunkte) {
  Editor t({Satz(300, 3.5), Satz(400, 0), Inaktiv(Satz(250, 0)), Satz(350, 41.7)});
  const auto k = t.e.cmdGraphFunction();
  ASSERT_TRUE(k.has_value());
  EXPECT_EQ(k->X, (std::vector<double>{300, 400, 350}));
  EXPECT_EQ(k->Y, (std::vector<double>{3.5, 0, 41.7}));
  EXPECT_EQ(k->NeuesDiagramm.Titel, "experimentelle Punkte y(T)");
  EXPECT_FLOAT_EQ(k->NeuesDiagramm.Xmin, 295); // 300 - 0.05 * 100
  EXPECT_FLOAT_EQ(k->NeuesDiagramm.Xmax, 405);

  t.e.optFitFunction_Click(tprho::p);
  EXPECT_FALSE(t.e.cmdlogGraf().has_value());
  EXPECT_EQ(t.ui.Letzte().text, "T- und p-Spalte dürfen keine Null-Werte enthalten.");
  EXPECT_EQ(t.ui.Letzte().titel, "Ausführung nicht möglich");
  t.e.Grid_Enter(1, tprho::p, "101.325");
  const auto l = t.e.cmdlogGraf();
  ASSERT_TRUE(l.has_value());
  EXPECT_EQ(l->X[1], 1.0 / 400);
  EXPECT_EQ(l->Y[1], std::log(101.325));
  EXPECT_EQ(l->NeuesDiagramm.Titel, "experimentelle Punkte ln{p} = f(1/T)");

  float a = 0, b = 0;
  DiagrammBereich({-2, -2}, a, b);
  EXPECT_FLOAT_EQ(a, -2.1f);
  EXPECT_FLOAT_EQ(b, -1.9f);
  DiagrammBereich({0, 0}, a, b);
  EXPECT_EQ(a, -1);
  EXPECT_EQ(b, 1);
}

// The list on the printer with its head and rule; the column pair as .XY file: T and the chosen
// column of the active rows.
TEST(TpRhoEditor, DruckenUndXYDatei) {
  test::TempOrdner ordner;
  Editor t({Satz(300, 3.5, 996.5f), Inaktiv(Satz(250, 1))});
  ASSERT_TRUE(t.e.cmdPrintTpVListe());
  const std::vector<std::string>& texte = t.ui.drucker.texte;
  ASSERT_EQ(texte.size(), 6u);
  EXPECT_NE(texte[0].find("delta(LV)h /"), std::string::npos);
  EXPECT_NE(texte[1].find("kJ/(kmol K)"), std::string::npos);
  EXPECT_EQ(texte[2], std::string(84, '_'));
  EXPECT_NE(texte[3].find("996.5"), std::string::npos);

  t.e.optFitFunction_Click(0);
  t.ui.dateien = {ordner.Datei("leer.XY")};
  EXPECT_FALSE(t.e.cmdSaveXY());
  EXPECT_EQ(t.ui.Letzte().text, "keine Daten zum Abspeichern verfügbar");
  t.s.Mess.FitSpalte = tprho::p;
  ASSERT_TRUE(t.e.cmdSaveXY());
  EXPECT_EQ(t.ui.dateiDialoge.back().titel, "T-y-Daten speichern unter ...");
  const std::string text = test::LeseDatei(ordner.Datei("leer.XY"));
  EXPECT_NE(text.find("\r\n.3000000E+03;.3500000E+01\r\n"), std::string::npos) << text;
  EXPECT_EQ(text.find(".2500000E+03"), std::string::npos);
}

} // namespace
} // namespace quor
