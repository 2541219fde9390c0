// Project files: every item written and read back, the layout of the text (booleans, empty comment,
// free line breaks of the settings), the breaks of a damaged file, and the write routines with their
// comment question, their directories and the save dialog.
#include "core/datei_io.h"
#include "core/projekt_datei.h"
#include "core/text_kodierung.h"
#include "dienste/skript_oberflaeche.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <tuple>

namespace quor {
namespace {

namespace fs = std::filesystem;

// A state in which every item differs from its default.
ProjectState Beispiel() {
  ProjectState s;
  InitProjectState(s);
  s.Projekt.DateiKommentar = "Prüfstand 3, Methan";
  s.Datenbank.DatenbankTyp = 7;
  s.Datenbank.PfadQ07 = "QUOR.Q07";
  s.Datenbank.PfadQ06 = "ALT.Q06";
  s.Mess.BatchDateiPfad = "/messungen/methan_1998.BAQ";
  s.Mess.ExpAnzahl = 17;
  s.Stoff.CASRN = "74-82-8";
  EinheitenGruppe& e = s.Einheiten;
  e.TVorgabe = 150.5f;
  e.pVorgabe = 3000.25f;
  e.vVorgabe = 0.0987f;
  e.EnergieFaktor = 1.0 / 8.31451;
  e.VolumenMode = 2;
  e.EnergieMode = 1;
  OptionenGruppe& o = s.Optionen;
  o.KurveTpBeschraenkt = false;
  o.PunktDichte = 1234;
  o.CsvTrenner = '\t';
  o.ParSpeichern = true;
  ModelSelection& m = s.Modell;
  m.DampfdruckIndex = 7;
  m.EOSIndex = 14;
  m.CpIndex = 2;
  m.HLVIndex = 4;
  m.WatsonExp = 0.38f;
  m.KonzeptGlobal = false;
  ReferenzGruppe& r = s.Referenz;
  r.RefArt = 10;
  r.hRef = -1234.5678901234;
  r.sRef = 98.76543210987;
  r.TRef = 273.15f;
  r.pRef = 101.325f;
  s.Zusatz.ProzessStart1 = 350.125;
  s.Zusatz.ProzessStart2 = 2500.5;
  s.Zusatz.ProzessOption = 3;
  s.Mess.FitSpalte = 4;
  return s;
}

// A project text read into a fresh state: the six head lines and the settings.
struct Gelesen {
  ProjectState s;
  ProjektKopf kopf;
  LeseFehler fehler;
  bool ok = false;
  explicit Gelesen(const std::string& text) {
    InitProjectState(s);
    ListenLeser leser(Utf8ZuWin1252(text));
    ok = LeseKopfAnfang(leser, kopf, fehler) && LeseKopfRest(leser, kopf, fehler) &&
         LeseEinstellungen(leser, s, fehler);
  }
};

TEST(ProjektDatei, EveryItemComesBackAsItWasWritten) {
  const ProjectState alt = Beispiel();
  const Gelesen g(ProjektText(alt, "01.02.2024 10:11:12"));
  ASSERT_TRUE(g.ok) << g.fehler.Grund;
  const ProjectState& neu = g.s;
  const ProjektKopf& kopf = g.kopf;

  EXPECT_EQ(kopf.Datum, "01.02.2024 10:11:12");
  EXPECT_EQ(kopf.Kommentar, "Prüfstand 3, Methan");
  EXPECT_EQ(kopf.Datenbank, "QUOR.Q07");
  EXPECT_EQ(kopf.BatchDatei, "methan_1998.BAQ"); // the name without its directory
  EXPECT_EQ(kopf.ExpAnzahl, 17);
  EXPECT_EQ(kopf.CAS, "74-82-8     "); // the CAS field keeps its 12 characters

  // Floats and doubles alike come back bit for bit (doubles in their shortest exact text).
  const EinheitenGruppe &e = neu.Einheiten, &ea = alt.Einheiten;
  EXPECT_EQ(
      std::tie(e.TVorgabe, e.pVorgabe, e.vVorgabe, e.EnergieFaktor, e.VolumenMode, e.EnergieMode),
      std::tie(ea.TVorgabe, ea.pVorgabe, ea.vVorgabe, ea.EnergieFaktor, ea.VolumenMode, ea.EnergieMode));
  const OptionenGruppe &o = neu.Optionen, &oa = alt.Optionen;
  EXPECT_EQ(std::tie(o.KurveTpBeschraenkt, o.PunktDichte, o.CsvTrenner, o.ParSpeichern),
            std::tie(oa.KurveTpBeschraenkt, oa.PunktDichte, oa.CsvTrenner, oa.ParSpeichern));
  const ModelSelection &m = neu.Modell, &ma = alt.Modell;
  EXPECT_EQ(
      std::tie(m.DampfdruckIndex, m.EOSIndex, m.CpIndex, m.HLVIndex, m.WatsonExp, m.KonzeptGlobal),
      std::tie(ma.DampfdruckIndex, ma.EOSIndex, ma.CpIndex, ma.HLVIndex, ma.WatsonExp, ma.KonzeptGlobal));
  EXPECT_EQ(m.DampfdruckTag, "KFR"); // derived from the indices on reading
  const ReferenzGruppe &r = neu.Referenz, &ra = alt.Referenz;
  EXPECT_EQ(std::tie(r.RefArt, r.hRef, r.sRef, r.TRef, r.pRef),
            std::tie(ra.RefArt, ra.hRef, ra.sRef, ra.TRef, ra.pRef));
  const OptionenZusatz &z = neu.Zusatz, &za = alt.Zusatz;
  EXPECT_EQ(std::tie(z.ProzessStart1, z.ProzessStart2, z.ProzessOption, neu.Mess.FitSpalte),
            std::tie(za.ProzessStart1, za.ProzessStart2, za.ProzessOption, alt.Mess.FitSpalte));
}

TEST(ProjektDatei, BooleansAreMinusOneOrZeroAndAnEmptyCommentIsMarked) {
  ProjectState s = Beispiel();
  s.Projekt.DateiKommentar.clear();
  const std::string text = ProjektText(s, "heute");
  EXPECT_EQ(text.substr(0, 21), "heute\r\n<>\r\nQUOR.Q07\r\n"); // an empty comment is stored as "<>"
  EXPECT_NE(text.find("\r\n0,1234\r\n\"\t\"\r\n"), std::string::npos) << text; // real-range box off
  EXPECT_NE(text.find(",0.38,0\r\n"), std::string::npos) << text;              // PARTIAL concept
  EXPECT_NE(text.find("\r\n4,-1\r\n0,0,0\r\n"), std::string::npos) << text;    // FitSpalte, box on, reserved

  const Gelesen g(text);
  ASSERT_TRUE(g.ok);
  EXPECT_EQ(g.kopf.Kommentar, KeinKommentar);

  // Without manual normalisation the presets are written as 0 and taken over as such.
  s.Optionen.ParSpeichern = false;
  const std::string ohne = ProjektText(s, "heute");
  EXPECT_NE(ohne.find("74-82-8     \r\n0,0,0\r\n"), std::string::npos) << ohne;
  const Gelesen h(ohne);
  ASSERT_TRUE(h.ok);
  EXPECT_EQ(h.s.Einheiten.TVorgabe, 0.0f);
}

TEST(ProjektDatei, SettingsAreReadValueByValueWhateverTheLineBreaks) {
  // An older file: every setting on a line of its own, booleans as words and numbers, padded numbers.
  std::string text = "12-24-1999\r\n<>\r\nC:\\QUOR\\QUOR.Q06\r\n\r\n 0 \r\n7732-18-5   \r\n";
  for (const char* wert :
       {"0", "0", "0",    "1",    "1",      "3",       "#TRUE#", "250", "\",\"", "4", "-1", "1", "1", "0.375",
        "1", "2", "10.5", "0.25", "298.15", "101.325", "0",      "0",   "0",     "1", "0",  "0", "0", "0"})
    text += std::string(wert) + "\r\n";
  const Gelesen g(text);
  ASSERT_TRUE(g.ok) << g.fehler.Grund << " " << g.fehler.Zeile;
  const ProjectState& s = g.s;
  EXPECT_EQ(DatenbankArtVonPfad(g.kopf.Datenbank), 6);
  EXPECT_EQ(s.Einheiten.EnergieMode, 3);
  EXPECT_TRUE(s.Optionen.KurveTpBeschraenkt); // #TRUE#
  EXPECT_EQ(s.Optionen.CsvTrenner, ',');
  EXPECT_EQ(s.Modell.DampfdruckTag, "WAG");
  EXPECT_EQ(s.Modell.EOSIndex, 0);      // "none" comes back as the ideal gas
  EXPECT_FALSE(s.Modell.KonzeptGlobal); // 1: only -1 is true
  EXPECT_EQ(s.Referenz.hRef, 10.5);
}

TEST(ProjektDatei, ValuesOutsideTheirTablesFallBackAndNoVapourPressureTagIsMarked) {
  ProjectState s = Beispiel();
  s.Modell.DampfdruckIndex = 0;
  std::string text = ProjektText(s, "heute");
  // Hand-edited indices beyond every table.
  const std::size_t zeile = text.find("0,14,2,4,");
  ASSERT_NE(zeile, std::string::npos);
  text.replace(zeile, 9, "0,99,7,-3,");
  const Gelesen g(text);
  ASSERT_TRUE(g.ok);
  const ProjectState& neu = g.s;
  EXPECT_EQ(neu.Modell.DampfdruckTag, "<>");
  EXPECT_EQ(std::tie(neu.Modell.EOSIndex, neu.Modell.CpIndex, neu.Modell.HLVIndex), std::tuple(0, 0, 0));
}

TEST(ProjektDatei, ABreakLeavesTheItemsBeforeItInPlace) {
  const std::string ganz = ProjektText(Beispiel(), "heute");
  // Cut right after item 19 (the concept), before the reference kind.
  const std::size_t schnitt = ganz.find(",0.38,0\r\n") + 9;
  const Gelesen kurz(ganz.substr(0, schnitt));
  EXPECT_FALSE(kurz.ok);
  EXPECT_EQ(kurz.fehler.Grund, "Einlesen hinter Dateiende");
  const ProjectState& s = kurz.s;
  EXPECT_EQ(s.Modell.EOSIndex, 14);     // read before the break
  EXPECT_FALSE(s.Modell.KonzeptGlobal); // the last item read
  EXPECT_EQ(s.Referenz.RefArt, 1);      // not reached: as before

  std::string falsch = ganz;
  falsch.replace(falsch.find("1234"), 4, "viel");
  const Gelesen g(falsch);
  EXPECT_FALSE(g.ok);
  EXPECT_EQ(g.fehler.Grund, "Typen unverträglich");
  EXPECT_EQ(g.fehler.Zeile, 10u);
  EXPECT_FALSE(g.s.Optionen.KurveTpBeschraenkt); // the item before the bad one

  // A head of fewer than three lines ends before the database.
  EXPECT_FALSE(Gelesen("nur\r\nzwei").ok);
}

TEST(ProjektDatei, DatabaseKindAndLastSessionAreReadFromTheNames) {
  EXPECT_EQ(DatenbankArtVonPfad("C:\\QUOR\\ALT.Q06 "), 6);
  EXPECT_EQ(DatenbankArtVonPfad("/bank/QUOR.Q0X"), 0); // a letter: no kind
  EXPECT_FALSE(IstLetzteSitzung("LastSession.QC6"));
  EXPECT_EQ(PfadIn("/projekte", "C:\\alt\\a.QC6"), "C:\\alt\\a.QC6"); // a directory of either kind stays
  EXPECT_EQ(VerzeichnisTeil("/a.QC6"), "/");
}

class ProjektSchreibenTest : public ::testing::Test {
protected:
  void SetUp() override {
    fs::create_directories(ordner.Datei("programm"));
    fs::create_directories(ordner.Datei("projekte"));
    s.Datenbank.ProgrammVerzeichnis = ordner.Datei("programm");
    s.Projekt.ProjektVerzeichnis = ordner.Datei("projekte");
  }

  test::TempOrdner ordner;
  ProjectState s = Beispiel();
  ui::SkriptOberflaeche ui;
};

TEST_F(ProjektSchreibenTest, LastSessionGoesToTheProgramDirectoryWithoutAQuestion) {
  ASSERT_TRUE(ProjektSchreiben(s, "/anderswo/QUORLASTSESSION.QC6", ui));
  EXPECT_TRUE(ui.protokoll.empty());
  EXPECT_TRUE(fs::exists(ordner.Datei("programm/QuorLastSession.QC6")));
  EXPECT_FALSE(fs::exists("/anderswo/QUORLASTSESSION.QC6"));
}

TEST_F(ProjektSchreibenTest, AProjectAsksForItsCommentAndABareNameGoesToTheProjectDirectory) {
  ui.eingaben.push_back(std::string("neuer Kommentar"));
  ASSERT_TRUE(ProjektSchreiben(s, "versuch.QC6", ui));
  ASSERT_EQ(ui.protokoll.size(), 1u);
  EXPECT_EQ(ui.protokoll[0].text, "<Abbrechen> = kein Kommentar");
  EXPECT_EQ(ui.protokoll[0].titel, " Datei-Kommentar (optional) ");
  EXPECT_EQ(s.Projekt.DateiKommentar, "neuer Kommentar");
  EXPECT_NE(test::LeseDatei(ordner.Datei("projekte/versuch.QC6")).find("\r\nneuer Kommentar\r\n"),
            std::string::npos);

  ui.eingaben.push_back(std::nullopt); // <Abbrechen>: no comment
  ASSERT_TRUE(ProjektSchreiben(s, "versuch.QC6", ui));
  EXPECT_NE(test::LeseDatei(ordner.Datei("projekte/versuch.QC6")).find("\r\n<>\r\n"), std::string::npos);
}

TEST_F(ProjektSchreibenTest, AFileThatCannotBeWrittenIsReported) {
  ui.eingaben.push_back(std::string());
  EXPECT_FALSE(ProjektSchreiben(s, ordner.Datei("fehlt/x.QC6"), ui));
  ASSERT_EQ(ui.Meldungen().size(), 1u);
  EXPECT_EQ(ui.Letzte().text.rfind("Meldung von Sub ProjektSchreiben:\r\nPfad/Datei-Zugriffsfehler", 0), 0u);
}

TEST_F(ProjektSchreibenTest, SaveAsOffersTheProjectAndKeepsTheChosenFile) {
  s.Projekt.ProjektDatei = "alt.QC6";
  EXPECT_FALSE(ProjektSpeichernUnter(s, ui)); // the empty queue cancels
  ASSERT_EQ(ui.dateiDialoge.size(), 1u);
  const ui::DateiDialog& d = ui.dateiDialoge[0];
  EXPECT_EQ(d.titel, "aktuelles Projekt speichern unter ...");
  EXPECT_EQ(d.filter, "QUOR-Projektdatei (*.QC6)|*.QC6");
  EXPECT_EQ(std::tie(d.startVerzeichnis, d.dateiName), std::tuple(ordner.Datei("projekte"), "alt.QC6"));

  ui.dateien.push_back(ordner.Datei("programm/neu.QC6"));
  ASSERT_TRUE(ProjektSpeichernUnter(s, ui));
  EXPECT_TRUE(fs::exists(ordner.Datei("programm/neu.QC6")));
  EXPECT_EQ(s.Projekt.ProjektVerzeichnis, ordner.Datei("programm"));
  EXPECT_EQ(s.Projekt.ProjektDatei, "neu.QC6");
}

} // namespace
} // namespace quor
