// The batch report: the .LST file of a batch against its golden file, the rules of deviations and
// means, the derivative pages, the head by kind and concept, the file name.
#include "calc/bericht.h"
#include "calc/ergebnis_seite.h"
#include "dienste/skript_oberflaeche.h"
#include "test_ergebnis_seite_daten.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>

namespace quor {
namespace {

using namespace quor::test;

std::vector<std::string> Zeilen(const std::string& text) {
  std::vector<std::string> z;
  std::size_t anfang = 0;
  for (std::size_t ende; (ende = text.find("\r\n", anfang)) != std::string::npos; anfang = ende + 2)
    z.push_back(text.substr(anfang, ende - anfang));
  return z;
}

// The first line that holds `text`, or an empty one.
std::string ZeileMit(const std::vector<std::string>& zeilen, const std::string& text) {
  for (const auto& z : zeilen)
    if (z.find(text) != std::string::npos) return z;
  return {};
}

struct Bericht {
  ProjectState s = StapelZustand("");
  RechenKontext k;
  BerichtAuftrag a{"14.03.2024", "Ergebnis der Berechnung  T => p(LV) (GLOBAL-Berechnung)", 4, false};
  Bericht() {
    k.AnzahlPunkte = s.Mess.ExpAnzahl;
    k.StapelErgebnisse.assign(6, StapelErgebnis{});
  }
  std::vector<std::string> Text() { return Zeilen(BerichtText(s, k, a)); }
  // The whole report against tests/data/calc/seite/<name>.
  void WieGespeichert(const std::string& name) { VergleicheMitGolden(name, BerichtText(s, k, a)); }
};

// The batch of five points with the third deleted, every live point calculated, deviations, means
// (exact hits and values missing on either side left out) and derivative pages; the file is
// Windows-1252 with CR LF. The golden file was checked column by column against the report's layout
// before it was first written.
TEST(Bericht, BatchReportFileMatchesGoldenFile) {
  TempOrdner tmp;
  ProjectState s = StapelZustand(tmp.Pfad());
  ui::SkriptOberflaeche ui;
  auto rechnung = StapelRechnung();
  frmQCalcOut seite(s, ui, true, rechnung.Funktion());
  seite.Datum = "14.03.2024";
  seite.Form_Load();
  seite.ResPlus_Click(0, true);
  seite.optResultPrint_Click(AusgabeDatei);
  ASSERT_TRUE(seite.chkFuncPrintEnabled);
  seite.chkFuncPrint_Click(true);
  ui.dateien.push_back(tmp.Datei("stapel.LST"));
  rechnung.aufrufe.clear();
  seite.cmdCalc_OK_Click();

  ASSERT_EQ(ui.dateiDialoge.size(), 1u);
  EXPECT_EQ(ui.dateiDialoge[0].titel, "QUOR-Ergebnisliste speichern unter ...");
  EXPECT_EQ(ui.dateiDialoge[0].filter, "Ergebnis-Datei (*.LST)|*.LST");
  EXPECT_EQ(rechnung.aufrufe, (std::vector<int>{1, 2, 4, 5})); // the deleted point is not calculated
  const std::string datei = LeseDatei(tmp.Datei("stapel.LST"));
  VergleicheMitGolden("stapel.LST", datei);
}

// A deviation of 500 % or more, single or mean, is not given as a number; just below it is.
TEST(Bericht, DeviationsFromFiveHundredPercentAreFlagged) {
  Bericht b;
  b.k.AnzahlPunkte = 2;
  b.s.Mess.ExpDaten[1].RhoV = 2;
  b.s.Mess.ExpDaten[2].RhoV = 2;
  b.k.StapelErgebnisse[1] = Ergebnis(1, "V+L", 300, 1000, 12, 500, 30000); // rho(V) 2 -> 12: exactly +500 %
  b.k.StapelErgebnisse[2] = Ergebnis(1, "V+L", 320, 1500, 11.98f, 480, 5000); // 2 -> 11.98f: +498.99998 %
  const auto z = b.Text();
  EXPECT_EQ(ZeileMit(z, "(Abw.>500 %!)").find("(Abw.>500 %!)"), 32u);
  EXPECT_EQ(ZeileMit(z, "(499. %)").find("(499. %)"), 32u); // Format "####.##" keeps the point
  // Mean of rho(V): (500 + 498.99998)/2 = 499.49999 -> Int(49949.999 + 0.5)/100 = 499.5
  EXPECT_EQ(ZeileMit(z, "499.5%").find("499.5%"), 32u);

  // Both +500 %: the mean is exactly 500 and flagged as well, beside the two points.
  b.k.StapelErgebnisse[2].rhoVCalc = 12;
  const auto z2 = b.Text();
  EXPECT_EQ(std::count_if(z2.begin(), z2.end(),
                          [](const std::string& l) { return l.find("(Abw.>500 %!)") != l.npos; }),
            3);
}

// The derivative pages (golden file): liquid values at column 26, vapour values at 52 by the letters
// of the phase, the "2" forms of the second-derivative labels in the file, and no page without a
// function block.
TEST(Bericht, DerivativePagesFollowThePhaseAndUsePlainLabelsInTheFile) {
  Bericht b;
  b.a.MitDetails = true;
  b.k.AnzahlPunkte = 2;
  b.k.StapelErgebnisse[1] = Ergebnis(1, " L ", 300, 1000, 20, 500, 30000);
  b.k.StapelErgebnisse[2] = Ergebnis(2, "V+L", 320, 1500, 2, 480, 5000);
  b.k.StapelErgebnisse[2].TFu = 0;
  b.WieGespeichert("bericht_ableitungen.LST");
}

// Kind 8 gives the functions of each point and ends after the points: no mean, no derivative pages
// (golden file).
TEST(Bericht, FunctionKindListsFunctionsAndEndsAfterThePoints) {
  Bericht b;
  b.a.Art = 8;
  b.a.MitDetails = true;
  b.k.AnzahlPunkte = 1;
  b.k.StapelErgebnisse[1] = Ergebnis(1, " V ", 300, 1000, 20, 0, 0);
  b.WieGespeichert("bericht_funktionen.LST");
}

// The head by concept (golden files): the vapour-pressure equation appears in PARTIAL and without an
// EOS, the Benson line for kinds 4 and 5 in PARTIAL only; a batch file is named when there is one.
TEST(Bericht, HeadNamesModelAndVapourPressureEquationByConcept) {
  Bericht b;
  b.s.Modell.RechnungGlobal = false;
  b.s.Modell.DampfdruckIndex = 4;
  b.WieGespeichert("bericht_partial.LST");
  b.s.Modell.RechnungGlobal = true;
  b.a.Art = 3;
  b.s.Mess.BatchDateiTitel.clear();
  b.WieGespeichert("bericht_global.LST");
}

// The printer gets the lines in order, page after page, each inside the printable area; on a narrow
// page the list is set below 10 points so that its last column stays on the paper.
TEST(Bericht, PrinterReportFillsPagesInOrderInsideThePrintableArea) {
  Bericht b;
  b.a.MitDetails = true;
  b.k.AnzahlPunkte = 2;
  b.k.StapelErgebnisse[1] = Ergebnis(1, " L ", 300, 1000, 20, 500, 30000);
  b.k.StapelErgebnisse[2] = Ergebnis(2, "V+L", 320, 1500, 2, 480, 5000);
  ui::SkriptDrucker d;
  d.seitenHoehe = 300;
  d.seitenBreite = 400;
  ASSERT_TRUE(DruckeBericht(d, b.s, b.k, b.a));
  double groesse = 0;
  int seite = 0;
  std::pair<int, double> vorher{0, -1};
  for (const std::string& zeile : d.protokoll) {
    std::istringstream in(zeile);
    std::string art;
    in >> art;
    if (art == "Schrift") in >> art >> groesse;
    if (art == "NeueSeite") ++seite;
    if (art != "Text") continue;
    double x = 0, y = 0;
    std::string text;
    in >> x >> y;
    std::getline(in >> std::ws, text);
    EXPECT_LE(y + 1.2 * groesse, d.seitenHoehe) << text;
    EXPECT_LE(x + 0.6 * groesse * static_cast<double>(text.size()), d.seitenBreite) << text;
    EXPECT_GE(std::make_pair(seite, y), vorher) << text; // top to bottom, page after page
    vorher = {seite, y};
  }
  EXPECT_GE(seite, 2);
  EXPECT_GT(groesse, 7);
  EXPECT_LT(groesse, 10);
  EXPECT_EQ(d.texte.at(1), "QUOR: Results of Calculation");
}

TEST(Bericht, FileNameGetsExtensionAndDirectoryWhenTypedWithout) {
  EXPECT_EQ(BerichtDateiName("liste", "verz"), "verz/liste.LST");
  EXPECT_EQ(BerichtDateiName("liste.txt", "verz"), "verz/liste.txt");
  EXPECT_EQ(BerichtDateiName("ergebnisse", "verz"), "verz/ergebnisse"); // nine characters or more
  EXPECT_EQ(BerichtDateiName("ab/liste", "verz"), "ab/liste.LST");      // the directory stays
  EXPECT_EQ(BerichtDateiName("c:\\liste", "verz"), "c:\\liste.LST");
}

} // namespace
} // namespace quor
