// The X-Y data editor driven through the scripted user interface: files, conversions, the closing
// question, the enabling, the clipboard, the printed list and what goes to the 2D page and the fit.
#include "fitting/xy_editor.h"

#include "core/datei_io.h"
#include "dienste/skript_oberflaeche.h"
#include "support/relativ.h"
#include "support/temp_ordner.h"

#include <cmath>
#include <gtest/gtest.h>

namespace quor {
namespace {

struct Editor {
  ProjectState s;
  ui::SkriptOberflaeche ui;
  frmQXYEdit e{s, ui};
  test::TempOrdner ordner;

  // Loads a file of these bytes through the dialog.
  bool Lade(const std::string& bytes, const std::string& name = "punkte.XY") {
    ui.dateien = {ordner.Schreibe(name, bytes)};
    return e.cmdLoad();
  }
  std::vector<float> Spalte(int j) const {
    std::vector<float> v;
    for (const XYDatenSatz& z : e.XYDaten())
      v.push_back(j == 0 ? z.x : z.y);
    return v;
  }
  std::string LetzteMeldung() const { return ui.Meldungen().empty() ? "" : ui.Meldungen().back().text; }
};

// The reader cuts a third value and takes the decimal comma; a file with the comment only gives an
// empty table, and a save writes the comment alone.
TEST(XYEditor, ReadingAFileAndACommentOnlyFileThatSavesTheCommentAlone) {
  Editor t;
  t.s.Optionen.XYTrenner = '\t';
  ASSERT_TRUE(t.Lade("Messreihe\r\n1,5\t2\t99\r\n-3\t4,25e1\r\n"));
  EXPECT_EQ(t.Spalte(0), (std::vector<float>{1.5f, -3}));
  EXPECT_EQ(t.Spalte(1), (std::vector<float>{2, 42.5f}));
  EXPECT_EQ(t.e.Caption, "  X-Y-Daten-Editor  geladen: punkte.XY (2 Datenzeilen)");
  EXPECT_FALSE(t.e.Geaendert);

  ASSERT_TRUE(t.Lade("nur ein Kommentar\r\n", "leer.XY"));
  EXPECT_EQ(t.e.XYAnzahl(), 0);
  EXPECT_EQ(t.e.txtComment, "nur ein Kommentar");
  EXPECT_EQ(t.ui.dateiDialoge[1].titel, "(Kurven)punkte vom File laden");
  EXPECT_EQ(t.ui.dateiDialoge[1].filter, "x-y-Daten (*.XY)|*.XY|(*.LRG)|*LRG");

  t.ui.dateien = {t.ordner.Datei("neu.XY")};
  ASSERT_TRUE(t.e.cmdSave());
  EXPECT_EQ(test::LeseDatei(t.ordner.Datei("neu.XY")), "nur ein Kommentar\r\n");
  EXPECT_EQ(t.ui.dateiDialoge[2].titel, "(Kurven)punkte speichern unter ...");
  EXPECT_EQ(t.ui.dateiDialoge[2].filter, "x-y-Daten (*.XY)|*.XY");
  EXPECT_EQ(t.ui.dateiDialoge[2].standardEndung, ".XY");

  // Without comment and rows there is nothing to save.
  t.e.txtComment_Change("");
  EXPECT_FALSE(t.e.cmdSave());
  EXPECT_EQ(t.LetzteMeldung(), "keine Daten zum Abspeichern verfügbar");
  EXPECT_EQ(t.ui.dateiDialoge.size(), 3u);
}

TEST(XYEditor, InactiveRowsAreNeitherSavedNorDrawnNorSentToTheFit) {
  Editor t;
  ASSERT_TRUE(t.Lade("Reihe A\r\n1;10\r\n2;20\r\n3;30\r\n"));
  t.e.Tabelle.CursorZeile = 1;
  t.e.cmdAus();
  EXPECT_TRUE(t.e.Geaendert);

  t.ui.dateien = {t.ordner.Datei("aktiv.XY")};
  ASSERT_TRUE(t.e.cmdSave());
  EXPECT_EQ(test::LeseDatei(t.ordner.Datei("aktiv.XY")),
            "Reihe A\r\n.1000000E+01;.1000000E+02\r\n.3000000E+01;.3000000E+02\r\n");
  EXPECT_FALSE(t.e.Geaendert);
  EXPECT_EQ(t.e.XYAnzahl(), 3) << "the inactive row stays in the table";

  const auto p = t.e.cmdDrawXY();
  ASSERT_TRUE(p);
  EXPECT_EQ(p->X, (std::vector<double>{1, 3}));
  EXPECT_EQ(p->Y, (std::vector<double>{10, 30}));
  EXPECT_EQ(p->Legende, "Reihe A");
  EXPECT_REL(p->NeuesDiagramm.Xmin, 0.9, 1e-6); // 1 .. 3 widened by 5 % of the span
  EXPECT_REL(p->NeuesDiagramm.Xmax, 3.1, 1e-6);

  ASSERT_TRUE(t.e.cmdFitting());
  ASSERT_EQ(t.e.FitDaten.size(), 2u);
  EXPECT_EQ(t.e.FitDaten[1].x, 3);
  EXPECT_EQ(t.e.FitDaten[1].Flag, 0);

  // With every row inactive nothing goes out.
  for (int i : {0, 2}) {
    t.e.Tabelle.CursorZeile = i;
    t.e.cmdAus();
  }
  EXPECT_FALSE(t.e.cmdFitting());
  EXPECT_FALSE(t.e.cmdDrawXY());
  EXPECT_EQ(t.LetzteMeldung(), "Mindestens 1 aktiver Punkt notwendig!");
  EXPECT_EQ(t.ui.Meldungen().back().titel, "Ausführung nicht möglich");
}

TEST(XYEditor, SavingAsksBeforeOverwritingAndAFailedWriteKeepsTheData) {
  Editor t;
  ASSERT_TRUE(t.Lade("alt\r\n1;2\r\n", "da.XY"));
  t.e.ZelleEingabe(0, 1, "2,5");
  t.ui.dateien = {t.ordner.Datei("da.XY")};
  t.ui.antworten = {ui::Antwort::Nein};
  EXPECT_FALSE(t.e.cmdSave());
  EXPECT_EQ(t.ui.protokoll.back().text, "Eine solche Datei ist bereits vorhanden.\r\nÜberschreiben?");
  EXPECT_EQ(test::LeseDatei(t.ordner.Datei("da.XY")), "alt\r\n1;2\r\n");

  t.ui.dateien = {t.ordner.Datei("fehlt/da.XY")};
  EXPECT_FALSE(t.e.cmdSave());
  EXPECT_EQ(t.LetzteMeldung(), "Die Datei " + t.ordner.Datei("fehlt/da.XY") +
                                   "\r\nkann nicht geschrieben werden.\r\nDie Daten sind nicht gespeichert.");
  EXPECT_TRUE(t.e.Geaendert);
  EXPECT_EQ(t.Spalte(1), (std::vector<float>{2.5f}));
}

TEST(XYEditor, ClosingWithUnsavedChangesAsksYesNoCancel) {
  for (const ui::Antwort antwort : {ui::Antwort::Ja, ui::Antwort::Nein, ui::Antwort::Abbrechen}) {
    Editor t;
    t.e.txtX = "1";
    t.e.txtY = "2";
    t.e.OKinput();
    t.ui.antworten = {antwort};
    t.ui.dateien = {t.ordner.Datei("zu.XY")};
    const bool schliesst = t.e.Form_QueryUnload();
    const ui::Aufzeichnung frage = t.ui.protokoll.front();
    EXPECT_EQ(frage.text, "Die Daten wurden noch nicht gespeichert.\r\nJetzt speichern?");
    EXPECT_EQ(frage.titel, "WARNUNG");
    EXPECT_EQ(schliesst, antwort != ui::Antwort::Abbrechen);
    EXPECT_EQ(DateiExistiert(t.ordner.Datei("zu.XY")), antwort == ui::Antwort::Ja);
    EXPECT_EQ(t.e.Geaendert, antwort != ui::Antwort::Ja);
  }
  // A save cancelled in its dialog keeps the dialog open; saved data are not asked about.
  Editor t;
  t.e.txtComment_Change("nur Text");
  t.ui.antworten = {ui::Antwort::Ja};
  EXPECT_FALSE(t.e.Form_QueryUnload());
  Editor sauber;
  EXPECT_TRUE(sauber.e.Form_QueryUnload());
  EXPECT_TRUE(sauber.ui.protokoll.empty());
}

TEST(XYEditor, ConversionsActOnTheActiveRowsOnly) {
  Editor t;
  ASSERT_TRUE(t.Lade("k\r\n0.25;1\r\n0.5;2\r\n0.75;-4\r\n"));
  t.e.Tabelle.CursorZeile = 2;
  t.e.cmdAus(); // the negative y is out of the conversions
  const auto Wende = [&](int art, const std::string& w = "1") {
    t.e.optManip = art;
    t.e.txtW = w;
    return t.e.cmdExecManip();
  };
  ASSERT_TRUE(Wende(UmrechnungEinsMinusX));
  EXPECT_EQ(t.Spalte(0), (std::vector<float>{0.75f, 0.5f, 0.75f}));
  EXPECT_EQ(t.Spalte(1), (std::vector<float>{1, 2, -4})) << "x = 1 - x leaves y alone";

  // Closed forms: ln(e^y) = y, (y * 2.5 + 0.5) and its reciprocal.
  ASSERT_TRUE(Wende(UmrechnungExpY));
  EXPECT_REL(t.Spalte(1)[1], std::exp(2.0), 1e-7);
  ASSERT_TRUE(Wende(UmrechnungLnY));
  EXPECT_REL(t.Spalte(1)[1], 2.0, 1e-6);
  ASSERT_TRUE(Wende(UmrechnungMalW, "2,5")); // W through the parser with the decimal comma
  ASSERT_TRUE(Wende(UmrechnungPlusW, "0.5"));
  ASSERT_TRUE(Wende(UmrechnungKehrwertY));
  EXPECT_REL(t.Spalte(1)[0], 1 / 3.0, 1e-6);
  EXPECT_REL(t.Spalte(1)[1], 1 / 5.5, 1e-6);
  EXPECT_EQ(t.Spalte(1)[2], -4) << "the inactive row was not touched";
}

TEST(XYEditor, AConversionUndefinedForAPointChangesNoRowAndSaysWhichPoint) {
  Editor t;
  ASSERT_TRUE(t.Lade("k\r\n1;3\r\n2;-2\r\n3;0\r\n"));
  t.e.optManip = UmrechnungLnY;
  EXPECT_FALSE(t.e.cmdExecManip());
  EXPECT_EQ(t.LetzteMeldung(), "Mit den vorliegenden Daten ist diese Aktion nicht ausführbar.\r\n"
                               "(Die problematischen Punkte können \"inaktiv\" gesetzt (=> Häkchen in "
                               "Checkbox)\r\noder gelöscht werden.)\r\n\r\n"
                               "erster problematischer Punkt: Zeile 2 (x = 2, y = -2)\r\n"
                               "Die Daten bleiben unverändert.");
  EXPECT_EQ(t.Spalte(1), (std::vector<float>{3, -2, 0}));
  EXPECT_FALSE(t.e.Geaendert);

  // exp beyond the single range and 1/0 fail the same way; W must be a number.
  t.e.optManip = UmrechnungKehrwertY;
  EXPECT_FALSE(t.e.cmdExecManip());
  EXPECT_NE(t.LetzteMeldung().find("Zeile 3 (x = 3, y = 0)"), std::string::npos);
  t.e.ZelleEingabe(2, 1, "100");
  t.e.optManip = UmrechnungExpY;
  EXPECT_FALSE(t.e.cmdExecManip());
  EXPECT_NE(t.LetzteMeldung().find("Zeile 3 (x = 3, y = 100)"), std::string::npos);
  t.e.optManip = UmrechnungPlusW;
  t.e.txtW = "zwei";
  EXPECT_FALSE(t.e.cmdExecManip());
  EXPECT_EQ(t.LetzteMeldung(), "Der Wert W = \"zwei\" ist keine Zahl.");
  EXPECT_EQ(t.Spalte(1), (std::vector<float>{3, -2, 100}));
}

TEST(XYEditor, ButtonsFollowTheRowCount) {
  Editor t;
  const auto Stand = [&] {
    const frmQXYEdit& e = t.e;
    return std::vector<bool>{e.cmdSaveEnabled,   e.cmdPrintEnabled, e.cmdEraseEnabled, e.cmdAusEnabled,
                             e.cmdDrawXYEnabled, e.XSortEnabled,    e.YSortEnabled,    e.cmdFittingEnabled};
  };
  EXPECT_EQ(Stand(), (std::vector<bool>{false, false, false, false, false, false, false, false}));
  t.ui.zwischenablage = "1\t2\r\n";
  t.e.cmdClipEinfuegen();
  EXPECT_EQ(Stand(), (std::vector<bool>{true, true, true, true, true, false, false, true}));
  t.e.Tabelle.CursorZeile = 1;
  t.e.cmdClipEinfuegen(); // onto the row behind the last: the table grows
  EXPECT_EQ(t.e.XYAnzahl(), 2);
  EXPECT_EQ(Stand(), (std::vector<bool>{true, true, true, true, true, true, true, true}));

  t.e.Tabelle.Auswahl = TabellenAuswahl{0, 1, 0, 1};
  t.ui.antworten = {ui::Antwort::Ja};
  t.e.cmdErase();
  EXPECT_EQ(t.ui.protokoll.back().text, "Zeilen 1 bis 2 wirklich entfernen?");
  EXPECT_EQ(t.e.XYAnzahl(), 0);
  EXPECT_EQ(Stand(), (std::vector<bool>{false, false, false, false, false, false, false, false}));
}

TEST(XYEditor, PastedLinesOfAnXYFileAreSplitAtTheSeparator) {
  Editor t;
  t.ui.zwischenablage = "1,5;2\r\n3;4;5\r\n";
  t.e.cmdClipEinfuegen();
  EXPECT_EQ(t.Spalte(0), (std::vector<float>{1.5f, 3}));
  EXPECT_EQ(t.Spalte(1), (std::vector<float>{2, 4}));
  EXPECT_TRUE(t.ui.Meldungen().empty());

  // A comma as the file separator cannot split a line: the warning of the options.
  Editor k;
  k.s.Optionen.XYTrenner = ',';
  k.s.Optionen.DezimalKomma = true;
  k.ui.zwischenablage = "1,5\r\n";
  k.e.cmdClipEinfuegen();
  EXPECT_EQ(k.ui.Meldungen().back().titel, "Warnung für XY-File");
  EXPECT_EQ(k.Spalte(0), (std::vector<float>{1.5f}));

  // Copying without a selection gives the whole table.
  t.e.cmdClipboard();
  EXPECT_EQ(t.ui.zwischenablage, " 1.5\t 2\r 3\t 4\r");
}

TEST(XYEditor, SwappingKeepsTheInactiveMarkWithItsPointAndXSortOrdersByX) {
  Editor t;
  ASSERT_TRUE(t.Lade("k\r\n5;1\r\n4;3\r\n6;2\r\n"));
  t.e.Tabelle.CursorZeile = 0;
  t.e.cmdAus();
  t.e.cmdChangeXY();
  t.e.XSort();
  EXPECT_EQ(t.Spalte(0), (std::vector<float>{1, 2, 3}));
  EXPECT_EQ(t.Spalte(1), (std::vector<float>{5, 6, 4}));
  EXPECT_TRUE(t.e.XYDaten()[0].Inaktiv);
}

TEST(XYEditor, ThePrintedListNamesTheFileOrTheDateAndMarksInactiveRows) {
  Editor t;
  ASSERT_TRUE(t.Lade("Kommentar\r\n1;2\r\n3;4\r\n", "liste.XY"));
  t.e.Tabelle.CursorZeile = 1;
  t.e.cmdAus();
  t.e.DatumZeit = [] { return std::string("01.02.2024, 10:15"); };
  ASSERT_TRUE(t.e.cmdPrint());
  const std::vector<std::string>& texte = t.ui.drucker.texte;
  ASSERT_GE(texte.size(), 5u);
  EXPECT_EQ(texte[0], "Liste XY-Daten vom 01.02.2024, 10:15 Uhr") << "changed since loading";
  EXPECT_EQ(texte[1], "Kommentar");
  EXPECT_EQ(texte.back(), "2 Datenzeilen");
  EXPECT_NE(texte[texte.size() - 2].find("inaktiv"), std::string::npos);

  t.ui.dateien = {t.ordner.Datei("liste2.XY")};
  ASSERT_TRUE(t.e.cmdSave());
  t.ui.drucker.texte.clear();
  ASSERT_TRUE(t.e.cmdPrint());
  EXPECT_EQ(t.ui.drucker.texte[0], "Liste von XY-Datenfile liste2.XY");

  t.ui.drucker.verfuegbar = false;
  EXPECT_FALSE(t.e.cmdPrint());
}

TEST(XYEditor, ACurveOfThe2DPageBecomesTheTableAsShown) {
  Editor t;
  frmQGraph2D seite(t.s, t.ui);
  Graph2DZustand z;
  Graph2DKurve k;
  k.Punkte = {{2, 0, 0}, {1, 10, 0}, {2, 20, 0}}; // head, then two points
  k.Legende = " T = 150.00 K";
  z.Kurven = {{3, k}};
  seite.ZustandSetzen(z);
  EXPECT_FALSE(t.e.KurveUebernehmen(seite, 0)) << "an empty slot";
  ASSERT_TRUE(t.e.KurveUebernehmen(seite, 3));
  EXPECT_EQ(t.Spalte(0), (std::vector<float>{1, 2}));
  EXPECT_EQ(t.Spalte(1), (std::vector<float>{10, 20}));
  EXPECT_EQ(t.e.txtComment, "T = 150.00 K");
  EXPECT_TRUE(t.e.Geaendert);
}

} // namespace
} // namespace quor
