// Loading projects against the default database, the failures on the way, and the preview of the
// open dialog with its refusals.
#include "core/projekt_datei.h"
#include "core/text_kodierung.h"
#include "dienste/skript_oberflaeche.h"
#include "substance/korrelierte_parameter.h"
#include "substance/projekt_laden.h"
#include "substance/stoff_wahl_suche.h"
#include "support/stoff_fixture.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quor {
namespace {

using namespace quor::test;

class ProjektLadenTest : public ::testing::Test {
protected:
  static ProjectState Frisch() {
    ProjectState st;
    InitProjectState(st);
    st.Datenbank.ProgrammVerzeichnis = ProgrammVerzeichnis;
    return st;
  }

  // Ethanol from the default database with PARTIAL Peng/Robinson, Thompson's vapour pressure,
  // the Chen method and the cp polynomial, measured data from a batch file.
  static ProjectState Quelle() {
    ProjectState q = StoffAusStandardDatenbank(CasEthanol);
    q.Datenbank.PfadQ07 = "QUOR.Q07"; // as a project names the default database
    ModelSelection& m = q.Modell;
    m.EOSIndex = 6;
    m.DampfdruckIndex = 8;
    m.HLVIndex = 2;
    m.CpIndex = 1;
    m.KonzeptGlobal = false;
    q.Projekt.DateiKommentar = "Ethanol-Messreihe";
    q.Mess.BatchDateiTitel = "etoh.BAQ";
    q.Mess.ExpAnzahl = 9;
    q.Einheiten.TVorgabe = 250; // not kept: manual normalisation is off
    return q;
  }

  std::string Datei(const std::string& name, const std::string& text) {
    return ordner.Schreibe(name, Utf8ZuWin1252(text));
  }

  // Loads `pfad`; `failed` as returned.
  int16_t Laden(const std::string& pfad) {
    int16_t failed = 0;
    ProjektLaden(s, pfad, batch, kind, failed, ui);
    return failed;
  }

  TempOrdner ordner;
  ProjectState s = Frisch();
  ui::SkriptOberflaeche ui;
  std::string batch;
  int16_t kind = -1;
};

TEST_F(ProjektLadenTest, AProjectBringsBackItsDatabaseSubstanceAndModels) {
  const std::string pfad = Datei("etoh.QC6", ProjektText(Quelle(), "05.06.2024 07:08:09"));
  s.Modell.VirialFlag = true; // the family of a former model must not stay
  ASSERT_EQ(Laden(pfad), 0);
  EXPECT_TRUE(ui.protokoll.empty());
  EXPECT_EQ(std::tie(batch, kind, s.Datenbank.PfadQ07, s.Mess.ExpAnzahl, s.Projekt.ProjektDatum),
            std::make_tuple("etoh.BAQ", 7, "QUOR.Q07", 9, "05.06.2024 07:08:09"));
  EXPECT_EQ(s.Datenbank.StoffIndex, IndexVonCAS(s, CasEthanol));
  EXPECT_NE(s.Projekt.Ampel.DatenAmpel, 0); // the data are graded as after a choice in the list
  // The settings themselves are the project file's round trip; the former virial family goes.
  EXPECT_FALSE(s.Modell.VirialFlag);
  // Saved without manual normalisation: the presets come from the critical point.
  EXPECT_EQ(s.Einheiten.TVorgabe, static_cast<float>(s.Stoff.TKrit));
  // Thompson's Antoine set is correlated for the loaded substance, as a separate call gives it.
  ProjectState vergleich = Quelle();
  vergleich.Stoff.THO = {};
  KorrelierteParameter(vergleich, 8, vergleich.Stoff.TKrit, vergleich.Stoff.pKrit, vergleich.Stoff.TSiede);
  EXPECT_EQ(s.Stoff.THO, vergleich.Stoff.THO);
}

TEST_F(ProjektLadenTest, TheLastSessionIsRecognisedByItsName) {
  ProjectState q = Quelle();
  q.Mess.BatchDateiTitel.clear();
  s.Mess.ExpAnzahl = 3; // held points stay: no batch file, no count
  ASSERT_EQ(Laden(Datei("QuorLastSession.QC6", ProjektText(q, "heute"))), 0);
  EXPECT_EQ(std::tie(s.Projekt.LetzteSitzung, batch, s.Mess.ExpAnzahl), std::make_tuple(true, "", 3));
}

TEST_F(ProjektLadenTest, ADatabasePathEndingInALetterLoadsNoDatabaseAndSaysNothing) {
  std::string text = ProjektText(Quelle(), "heute");
  text.replace(text.find("QUOR.Q07"), 8, "QUOR.Q0X");
  const std::string pfad = Datei("x.QC6", text);

  // With a database held, the substance is looked for there.
  s = MitStandardDatenbank();
  ASSERT_EQ(Laden(pfad), 0);
  EXPECT_EQ(kind, 0);
  EXPECT_EQ(s.Stoff.StoffName, "Ethanol");

  // Without one, only the substance is missed.
  s = Frisch();
  EXPECT_EQ(Laden(pfad), -1);
  EXPECT_FALSE(s.Datenbank.DatenbankGeladen);
  ASSERT_EQ(ui.Meldungen().size(), 1u); // the substance's message, as below
}

TEST_F(ProjektLadenTest, AMissingDatabaseStopsTheLoadOnlyWhenNoneIsHeld) {
  std::string text = ProjektText(Quelle(), "heute");
  text.replace(text.find("QUOR.Q07"), 8, "FEHLT.Q07");
  const std::string pfad = Datei("fehlt.QC6", text);
  EXPECT_EQ(Laden(pfad), -1);
  ASSERT_EQ(ui.Meldungen().size(), 1u);
  EXPECT_EQ(ui.Letzte().text, "Projekt-Datenbank FEHLT.Q07 im QUOR-Verzeichnis nicht gefunden");
  EXPECT_EQ(s.Modell.EOSIndex, -1);

  s = MitStandardDatenbank();
  ui.protokoll.clear();
  EXPECT_EQ(Laden(pfad), 0);
  ASSERT_EQ(ui.Meldungen().size(), 1u);
  EXPECT_EQ(ui.Letzte().text, "Datenbank FEHLT.Q07 im QUOR-Verzeichnis nicht gefunden bzw. leer.\r\n"
                              "Die aktuell geladene Bank wird weiter verwendet.");
  EXPECT_EQ(ui.Letzte().titel, "Hinweis");
  EXPECT_EQ(s.Modell.EOSIndex, 6);
}

TEST_F(ProjektLadenTest, ASubstanceNotInTheDatabaseEndsTheLoadBeforeTheModels) {
  ProjectState q = Quelle();
  q.Stoff.CASRN = "99999-99-9";
  EXPECT_EQ(Laden(Datei("fremd.QC6", ProjektText(q, "heute"))), -1);
  ASSERT_EQ(ui.Meldungen().size(), 1u);
  EXPECT_EQ(ui.Letzte().text, "CAS-Nr. 99999-99-9 (Stoff nicht in aktueller Datenbank)");
  EXPECT_TRUE(s.Datenbank.DatenbankGeladen); // the database was opened before the look-up
  EXPECT_EQ(s.Modell.EOSIndex, -1);
  EXPECT_FALSE(s.Projekt.Freigaben.Stoff);
}

TEST_F(ProjektLadenTest, ATruncatedOrMissingFileIsReportedWithThePartlyUpdatedState) {
  const std::string ganz = ProjektText(Quelle(), "heute");
  // Cut inside the model line: vapour-pressure equation and EOS are read, the cp equation is not.
  const std::size_t schnitt = ganz.find("8,6,1,2,") + 4;
  s.Modell.CpIndex = 2;
  EXPECT_EQ(Laden(Datei("kurz.QC6", ganz.substr(0, schnitt))), -1);
  ASSERT_EQ(ui.Meldungen().size(), 1u);
  EXPECT_EQ(ui.Letzte().text, "Meldung von Sub ProjektLaden:\r\nEinlesen hinter Dateiende (Zeile 12)");
  EXPECT_EQ(ui.Letzte().titel, "Fehler bei ProjektLaden");
  // The substance and the EOS came before the break, the cp equation did not.
  EXPECT_EQ(std::tie(s.Stoff.StoffName, s.Modell.EOSIndex, s.Modell.CpIndex),
            std::make_tuple("Ethanol", 6, 2));

  // A file that ends within its first three lines changes nothing at all.
  s = Frisch();
  ui.protokoll.clear();
  EXPECT_EQ(Laden(Datei("QuorLastSession.QC6", "heute\r\n<>\r\n")), -1);
  EXPECT_FALSE(s.Projekt.LetzteSitzung);
  EXPECT_EQ(ui.Letzte().text, "Meldung von Sub ProjektLaden:\r\nEinlesen hinter Dateiende (Zeile 3)");

  const std::string fehlt = ordner.Datei("nichtda.QC6");
  EXPECT_EQ(Laden(fehlt), -1);
  EXPECT_EQ(ui.Letzte().text, "Meldung von Sub ProjektLaden:\r\nDatei nicht gefunden\r\n" + fehlt);
}

TEST_F(ProjektLadenTest, ThePreviewShowsTheHeadWithTheSubstanceOfTheOpenDatabase) {
  const std::string pfad = Datei("etoh.QC6", ProjektText(Quelle(), "05.06.2024 07:08:09"));
  std::string text;
  ASSERT_TRUE(ProjektVorschau(s, pfad, text, ui)); // no database yet
  EXPECT_EQ(text, "gespeichert am:  05.06.2024 07:08:09\r\n"
                  "Kommentar:       Ethanol-Messreihe\r\n"
                  "Datenbank:       QUOR.Q07\r\n"
                  "exper. Daten:    etoh.BAQ (9 Punkte)\r\n"
                  "CAS-Nr.:         64-17-5  (Stoff nicht in aktueller Datenbank gefunden)");
  s = MitStandardDatenbank();
  ASSERT_TRUE(ProjektVorschau(s, pfad, text, ui));
  EXPECT_NE(text.find("CAS-Nr.:         64-17-5  Ethanol"), std::string::npos) << text;
  EXPECT_EQ(s.Stoff.StoffName, ""); // a preview loads nothing
}

TEST_F(ProjektLadenTest, ThePreviewRefusesNonProjectsAndOldDatabases) {
  std::string text = "alt";
  for (const std::string& pfad :
       {Datei("notiz.txt", "Hallo\r\n"), Datei("kaputt.QC6", "a\r\nb\r\nc\r\nd\r\nkeine Zahl\r\n")}) {
    EXPECT_FALSE(ProjektVorschau(s, pfad, text, ui));
    EXPECT_EQ(text, "");
    EXPECT_EQ(ui.Letzte().text, "Es werden nur *.QC6-Projekte unterstützt");
  }
  EXPECT_EQ(ui.Letzte().titel, "Ausführung nicht möglich");

  // An old database named by the file or inside a project: one message each time.
  std::string alt = ProjektText(Quelle(), "heute");
  alt.replace(alt.find("QUOR.Q07"), 8, "QUOR.q04");
  for (const std::string& pfad : {Datei("ALT.Q05", "x"), Datei("alt.QC6", alt)}) {
    ui.protokoll.clear();
    EXPECT_FALSE(ProjektVorschau(s, pfad, text, ui));
    ASSERT_EQ(ui.protokoll.size(), 1u);
    EXPECT_EQ(ui.Letzte().text, "Datenbanken *.Q04 oder *.Q05 werden nicht mehr unterstützt");
  }
}

} // namespace
} // namespace quor
