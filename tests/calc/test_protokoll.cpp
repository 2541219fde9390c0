// The record of results: the CSV file of a batch against its golden file, columns left out when they
// sum to zero, the clipboard with tabs, the warning on a comma delimiter, the file name from the date.
#include "calc/ergebnis_seite.h"
#include "calc/protokoll.h"
#include "core/text_kodierung.h"
#include "dienste/skript_oberflaeche.h"
#include "test_ergebnis_seite_daten.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <tuple>

namespace quor {
namespace {

using namespace quor::test;

// A record's cells T, p, v(V), eU(V), v(L), delta(LV)h, delta(LV)s, alpha(V); the others stay 0.
ErgebnisVektor Vektor(const std::array<double, 8>& werte) {
  const int zellen[] = {ZelleT, ZelleP, ZelleVV, ZelleEUV, ZelleVL, ZelleDhLV, ZelleDsLV, ZelleAlphaV};
  ErgebnisVektor e{};
  for (std::size_t i = 0; i < werte.size(); ++i)
    e[static_cast<std::size_t>(zellen[i])] = werte[i];
  return e;
}

// The vectors of the batch: alpha(V) cancels to a sum of exactly 0 over the three records, eU(V) (the
// name with the leading blank) is set, cell 40 stays 0.
RechnungsAttrappe ProtokollRechnung() {
  RechnungsAttrappe r = StapelRechnung();
  r.vektoren[1] = Vektor({300, 1012.5, 2.5, -1250.25, 0.088, 40000, 133.3333333, 0.5});
  r.vektoren[2] = Vektor({320, 1480.25, 1.75, 2e-7, 0.09, 40000, 125, -0.5});
  r.vektoren[5] = Vektor({360, 2500.125, 0.5, 0, 0.105, 1e5, 277.7777778, 0});
  return r;
}

struct ProtokollSeite {
  TempOrdner tmp;
  ProjectState s = StapelZustand(tmp.Pfad());
  ui::SkriptOberflaeche ui;
  RechnungsAttrappe rechnung = ProtokollRechnung();
  frmQCalcOut seite{s, ui, true, rechnung.Funktion()};

  void Oeffnen() {
    seite.Datum = "14.03.2024";
    seite.Form_Load();
  }
  // Records points 1, 2 and 5 while paging forward.
  void DreiAufnehmen() {
    seite.cmdProtokoll_Click();
    seite.cmdVor_Click();
    seite.cmdProtokoll_Click();
    seite.cmdVor_Click();
    seite.cmdVor_Click();
    seite.cmdProtokoll_Click();
  }
};

// Three results recorded while paging, then closed: the CSV file, the clipboard and the next name.
TEST(Protokoll, RecordFileOfABatchMatchesGoldenFile) {
  ProtokollSeite p;
  p.Oeffnen();
  EXPECT_EQ(p.seite.lblProtText2, "24140301.CSV");
  p.DreiAufnehmen();
  EXPECT_TRUE(p.seite.cmdOpenNewEnabled);
  EXPECT_EQ(p.seite.lblProtHinweis, "3 Ergebnisse protokolliert");
  p.seite.cmdOpenNew_Click();
  EXPECT_EQ(p.seite.lblProtHinweis, "3 Ergebnisse geschrieben nach\r\n" + p.tmp.Datei("24140301.CSV") +
                                        "\r\nund in die Zwischenablage kopiert");

  const std::string datei = LeseDatei(p.tmp.Datei("24140301.CSV"));
  VergleicheMitGolden("24140301.CSV", datei); // without alpha(V), which cancels to 0

  std::string mitTabs = datei;
  std::replace(mitTabs.begin(), mitTabs.end(), ';', '\t');
  EXPECT_EQ(p.ui.zwischenablage, mitTabs);
  EXPECT_EQ(p.seite.lblProtText2, "24140302.CSV");
  EXPECT_FALSE(p.seite.Protokoll.ProtokollOffen || p.seite.cmdOpenNewEnabled);
  EXPECT_TRUE(p.ui.protokoll.empty()); // no message on the way
}

// With "," as delimiter and a decimal comma in the system a warning comes with each record.
TEST(Protokoll, CommaDelimiterWithDecimalCommaWarns) {
  ProtokollSeite p;
  p.s.Optionen.CsvTrenner = ',';
  p.s.Optionen.DezimalKomma = true;
  p.Oeffnen();
  p.seite.cmdProtokoll_Click();
  ASSERT_EQ(p.ui.Meldungen().size(), 1u);
  EXPECT_EQ(p.ui.Meldungen()[0].titel, "Warnung Trennzeichen (Delimiter)");
  EXPECT_EQ(p.ui.Meldungen()[0].text,
            "Bei Computereinstellung \"Deutschland\" (Dezimalzeichen Komma)\r\n"
            "ist Komma als Dateitrennzeichen nicht sinnvoll; der Clipboard-Inhalt\r\n"
            "ist nicht mehr Excel-kompatibel.\r\n\r\n"
            "unbedingte Empfehlung: Semikolon (Einstellung unter \"Optionen\")");
}

// Closing the page closes an open record the same way and says where it went.
TEST(Protokoll, ClosingThePageWritesAnOpenRecord) {
  ProtokollSeite p;
  p.Oeffnen();
  p.seite.cmdProtokoll_Click();
  EXPECT_EQ(p.seite.lblProtHinweis, "1 Ergebnis protokolliert");
  p.seite.Form_Unload();
  EXPECT_TRUE(DateiExistiert(p.tmp.Datei("24140301.CSV")));
  ASSERT_EQ(p.ui.Meldungen().size(), 1u);
  EXPECT_EQ(p.ui.Letzte().text, "Protokoll: 1 Ergebnis geschrieben nach\r\n" + p.tmp.Datei("24140301.CSV") +
                                    "\r\nund in die Zwischenablage kopiert");
  EXPECT_NE(p.ui.zwischenablage.find("300\t1012.5\t"), std::string::npos);
}

// yy dd mm from a date "dd.mm.yyyy", then the running number, raised past existing files with a
// leading zero below 10.
TEST(Protokoll, FileNameFromTheDateSkipsExistingFiles) {
  TempOrdner tmp;
  EXPECT_EQ(NeuerProtokollName(tmp.Pfad(), "07.11.2025"), "25071101.CSV");
  for (int i = 1; i <= 9; ++i)
    ASSERT_TRUE(SchreibeDateiBytes(tmp.Datei("2507110" + std::to_string(i) + ".CSV"), "x"));
  EXPECT_EQ(NeuerProtokollName(tmp.Pfad(), "07.11.2025"), "25071110.CSV");
}

// The unit lines follow the volume and energy modes; energy modes 1 and 2 write no line of their own.
TEST(Protokoll, UnitLinesFollowTheDisplayModes) {
  ProjectState s = StapelZustand("");
  ProtokollZustand p;
  p.ProtokollWerte.push_back({});
  p.ProtokollWerte[0][0] = 300;
  p.ProtokollAnzahl = 1;
  ASSERT_EQ(ProtokollSpalten().size(), static_cast<std::size_t>(ErgebnisZellen));
  // Golden files calc/seite/protokoll_<mode>.CSV: molar, specific, reduced without an energy line.
  for (const auto& [name, volumen, energie] :
       {std::tuple{"molar", 0, 0}, {"spezifisch", 1, 3}, {"reduziert", 2, 2}}) {
    SCOPED_TRACE(name);
    s.Einheiten.VolumenMode = static_cast<int16_t>(volumen);
    s.Einheiten.EnergieMode = static_cast<int16_t>(energie);
    VergleicheMitGolden(std::string("protokoll_") + name + ".CSV", ProtokollText(s, p, "14.03.2024"));
  }
}

} // namespace
} // namespace quor
