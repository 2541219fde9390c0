// The main frame's command logic: start with the command line, opening a database, the end of the
// session, and the commands with their messages.
#include "rahmen_hilfe.h"

#include <filesystem>
#include <fstream>

namespace quor::test {
namespace {

namespace fs = std::filesystem;

TEST(Kommandozeile, LosesEveryDoubleQuoteOneByOne) {
  EXPECT_EQ(KommandozeileBereinigen("\"/daten/mein projekt.QC6\""), "/daten/mein projekt.QC6");
  EXPECT_EQ(KommandozeileBereinigen("a\"\"b\"c"), "abc");
  EXPECT_EQ(KommandozeileBereinigen("  \"\"  "), "");
}

TEST(RahmenStart, TakesAQuotedProjectFromTheCommandLine) {
  Rahmen r;
  bool geladen = false;
  r.d.ProjektLaden = [&](ProjectState&, const std::string& pfad, std::string&) {
    r.aufrufe.push_back("ProjektLaden " + pfad);
    return geladen = true;
  };
  r.Bauen();
  r.s.Projekt.StatusLeiste = {"", "alt", "alt", "alt", "alt"};
  r.logik->Start("\"/projekte/Methan Versuch.QC6\"");
  EXPECT_TRUE(r.logik->Gestartet);
  EXPECT_EQ(r.logik->KommandoProjekt, "/projekte/Methan Versuch.QC6");
  EXPECT_TRUE(r.s.Projekt.ProjektGeladenUeberKommando);
  EXPECT_TRUE(geladen);
  EXPECT_EQ(r.aufrufe, (Aufrufe{"ProjektLaden /projekte/Methan Versuch.QC6", "ModellFenster"}));
  for (int i = 1; i <= 4; ++i)
    EXPECT_EQ(r.s.Projekt.StatusLeiste[i], "") << "panel " << i;
}

TEST(RahmenStart, WithoutCommandLineOpensNothingAndSetsTheDefaults) {
  Rahmen r;
  r.s.Mess.FitSpalte = 4;
  r.s.Projekt.ProjektDatei = "alt.QC6";
  r.logik->Start("");
  EXPECT_TRUE(r.aufrufe.empty());
  EXPECT_FALSE(r.s.Projekt.ProjektGeladenUeberKommando);
  EXPECT_EQ(r.logik->Zustand(), RahmenZustand::KeineDatenbank);
  EXPECT_EQ(r.s.Modell.EOSIndex, -1);
  EXPECT_EQ(r.s.Mess.FitSpalte, 1);
  EXPECT_EQ(r.s.Projekt.ProjektDatei, "");
  EXPECT_EQ(r.s.Optionen.PunktDichte, 500);
  EXPECT_EQ(r.s.Projekt.TempDatei, "/quor/programm/QuorTemp.tmp");
  EXPECT_EQ(r.logik->HilfeVerzeichnis, "/quor/programm/help");
  EXPECT_EQ(r.s.Tab.EOSNamen[6].substr(0, 20), "CEOS Peng / Robinson");
}

TEST(DatenbankOeffnen, MenuIndexGivesTheKindAndResetsForANewSubstance) {
  Rahmen r;
  r.logik->Start("");
  r.logik->mnuData_OpenBank_Click(1); // the separator
  EXPECT_TRUE(r.aufrufe.empty());

  r.MitStoffUndModell();
  r.s.Projekt.LetzteSitzung = true;
  r.s.Datenbank.StoffIndex = 12;
  r.logik->mnuData_OpenBank_Click(2);
  EXPECT_EQ(r.aufrufe, (Aufrufe{"Datenbank 6", "StoffWahl"}));
  EXPECT_FALSE(r.s.Projekt.LetzteSitzung);
  EXPECT_EQ(r.logik->Zustand(), RahmenZustand::DatenbankOhneStoff);
  EXPECT_EQ(r.s.Datenbank.StoffIndex, 0);
  EXPECT_EQ(r.s.Projekt.StatusLeiste[2], "");
  EXPECT_FALSE(r.logik->Freigegeben("mnuModel"));

  r.aufrufe.clear();
  r.logik->mnuData_OpenBank_Click(0);
  EXPECT_EQ(r.aufrufe, (Aufrufe{"Datenbank 7", "StoffWahl"}));
  r.aufrufe.clear();
  EXPECT_TRUE(r.logik->Ausfuehren(ToolbarName, 2)); // "neues Projekt" opens a .Q07 database too
  EXPECT_EQ(r.aufrufe, (Aufrufe{"Datenbank 7", "StoffWahl"}));
}

TEST(DatenbankOeffnen, CancelledOrFailedChoiceKeepsTheSubstance) {
  Rahmen r;
  r.datenbankErfolg = false;
  r.logik->Start("");
  r.MitStoffUndModell();
  r.logik->mnuData_OpenBank_Click(0);
  EXPECT_EQ(r.aufrufe, (Aufrufe{"Datenbank 7"}));
  EXPECT_EQ(r.logik->Zustand(), RahmenZustand::ModelleGetestet);
  EXPECT_EQ(r.s.Projekt.StatusLeiste[2], "Methan");
}

class RahmenEnde : public ::testing::Test {
protected:
  void SetUp() override {
    ordner = fs::temp_directory_path() /
             ("quor_rahmen_" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    fs::remove_all(ordner);
    fs::create_directories(ordner);
    r.s.Datenbank.ProgrammVerzeichnis = ordner.string();
    r.d.ProtokollSchliessen = [this] { r.aufrufe.push_back("Protokoll"); };
    r.d.ProjektSchreiben = [this](ProjectState&, const std::string& pfad) {
      r.aufrufe.push_back("Schreiben " + pfad);
    };
    r.Bauen();
    r.logik->Start("");
  }
  void TearDown() override { fs::remove_all(ordner); }

  fs::path ordner;
  Rahmen r;
};

TEST_F(RahmenEnde, WithoutDatabaseWritesNoLastSession) {
  std::ofstream(r.s.Projekt.TempDatei).close(); // empty: it goes
  EXPECT_TRUE(r.logik->Ausfuehren("mnuData_Exit"));
  EXPECT_EQ(r.aufrufe, (Aufrufe{"Protokoll"}));
  EXPECT_FALSE(r.logik->LetzteSitzungFaellig);
  EXPECT_FALSE(fs::exists(r.s.Projekt.TempDatei));
  EXPECT_FALSE(r.logik->Beenden()); // the frame's closing after the menu runs nothing twice
  EXPECT_EQ(r.aufrufe.size(), 1u);
}

TEST_F(RahmenEnde, WithADatabaseWritesTheLastSessionAfterTheRecordLog) {
  r.s.Datenbank.DatenbankTyp = 7;
  r.s.Datenbank.PfadQ07 = "QUOR.Q07";
  std::ofstream(r.s.Projekt.TempDatei) << "1;2;3";
  EXPECT_TRUE(r.logik->Beenden());
  EXPECT_EQ(r.aufrufe, (Aufrufe{"Protokoll", "Schreiben QuorLastSession.QC6"}));
  EXPECT_TRUE(r.logik->LetzteSitzungFaellig);
  EXPECT_TRUE(fs::exists(r.s.Projekt.TempDatei)); // not empty: it stays
}

TEST_F(RahmenEnde, OnlyThePathOfTheOpenKindCounts) {
  r.s.Datenbank.DatenbankTyp = 6;
  r.s.Datenbank.PfadQ07 = "QUOR.Q07";
  EXPECT_TRUE(r.logik->Beenden());
  EXPECT_EQ(r.aufrufe, (Aufrufe{"Protokoll"}));
}

TEST_F(RahmenEnde, UnitConverterStartsFromTheProgramDirectoryOrIsReportedMissing) {
  r.logik->mnuTavik1W_Click();
  ASSERT_EQ(r.ui.Meldungen().size(), 1u);
  EXPECT_EQ(r.ui.Letzte().text, "Datei Tavik1W.EXE nicht im QUOR-Verzeichnis gefunden");
  EXPECT_EQ(r.ui.Letzte().titel, "Ausführung nicht möglich");
  EXPECT_TRUE(r.ui.prozesse.empty());

  std::ofstream(ordner / "Tavik1W") << "#!/bin/sh\n";
  r.ui.prozessAusfuehren = [](const ui::ProzessAuftrag&) {
    return ui::ProzessStatus{ui::ProzessErgebnis::Beendet, 0};
  };
  EXPECT_TRUE(r.logik->Ausfuehren("mnuTavik1W"));
  ASSERT_EQ(r.ui.prozesse.size(), 1u);
  EXPECT_EQ(r.ui.prozesse[0].programm, (ordner / "Tavik1W").string());
  EXPECT_FALSE(r.ui.prozesse[0].versteckt);
  EXPECT_LT(r.ui.prozesse[0].wartenMs, 0); // runs beside the program, not awaited
  EXPECT_EQ(r.ui.Meldungen().size(), 1u);

  r.s.Datenbank.EnglischeOberflaeche = true; // the English converter is looked for by its own name
  r.logik->mnuTavik1W_Click();
  EXPECT_EQ(r.ui.Letzte().text, "Datei Tavik1W_E.EXE nicht im QUOR-Verzeichnis gefunden");
}

TEST(RahmenBefehle, SaveHintComesOncePerSession) {
  Rahmen r;
  int gespeichert = 0;
  r.d.ProjektSpeichernUnter = [&](ProjectState&) { ++gespeichert; };
  r.Bauen();
  r.logik->Start("");
  r.logik->mnuData_SaveProject_Click();
  r.logik->mnuData_SaveProject_Click();
  ASSERT_EQ(r.ui.Meldungen().size(), 1u);
  EXPECT_EQ(r.ui.Letzte().text, "Tipp:\r\nÜberprüfen Sie vor dem Abspeichern des Projekts\r\n"
                                "die Einstellungen unter \"Modelle\" und \"Optionen\".");
  EXPECT_EQ(r.ui.Letzte().titel, "einmaliger allgemeiner Hinweis");
  EXPECT_TRUE(r.s.Projekt.EinmalHinweis);
  EXPECT_EQ(gespeichert, 2);
}

TEST(RahmenBefehle, BatchInputNeedsASubstanceAndAsksBeforeReplacingData) {
  Rahmen r;
  int editor = 0;
  r.d.BatchEingabeOeffnen = [&] { ++editor; };
  r.Bauen();
  r.logik->Start("");
  EXPECT_FALSE(r.logik->mnuData_BatchInput_Click());
  EXPECT_EQ(r.ui.Letzte().text, "Erst Stoff wählen oder Projekt laden;\r\n"
                                "erst danach können Sie exper. Daten sichten oder laden.");
  EXPECT_EQ(r.ui.Letzte().titel, "freundlicher Hinweis");

  r.MitStoffUndModell();
  r.s.Mess.ExpAnzahl = 3;
  r.ui.antworten = {ui::Antwort::Nein, ui::Antwort::Ja};
  EXPECT_FALSE(r.logik->mnuData_BatchInput_Click());
  EXPECT_EQ(r.ui.Letzte().art, "Frage");
  EXPECT_EQ(r.ui.Letzte().text,
            "Es wird Daten-Neueingabe erwartet;\r\nder vorhandene Datensatz wird gelöscht.\r\n"
            "Möchten Sie das?");
  EXPECT_EQ(r.ui.Letzte().titel, "Warnung");
  EXPECT_EQ(editor, 0);
  EXPECT_EQ(r.s.Mess.ExpAnzahl, 3); // "Nein" keeps the data
  EXPECT_TRUE(r.logik->mnuData_BatchInput_Click());
  EXPECT_EQ(editor, 1);
}

TEST(RahmenBefehle, ReportsGoToTheirWindowsWithTheirTitles) {
  Rahmen r;
  r.logik->Start("");
  r.logik->mnuShowApp_path_Click();
  EXPECT_EQ(r.ui.Letzte().text, "/quor/programm");
  EXPECT_EQ(r.ui.Letzte().titel, "aktuelles Arbeitsverzeichnis von QUOR");

  EXPECT_TRUE(r.logik->Ausfuehren(ToolbarName, 32));
  ASSERT_EQ(r.aufrufe.size(), 1u);
  EXPECT_EQ(r.aufrufe[0].rfind("Text  Info Projekt-Status |Projekt", 0), 0u) << r.aufrufe[0];

  EXPECT_FALSE(r.logik->Ausfuehren("mnuData_ParameterEOS")); // no model tested yet
  r.MitStoffUndModell();
  EXPECT_TRUE(r.logik->Ausfuehren("mnuData_ParameterEOS"));
  EXPECT_EQ(r.ui.Letzte().text, "a0 = 1");
  EXPECT_EQ(r.ui.Letzte().titel, " Parameter der generalisierten Zustandsgleichung ");

  r.logik->txtAmpel_Click();
  EXPECT_EQ(r.ui.Letzte().titel, "Stoffdatensituation (Daten-Ampel)");
  EXPECT_EQ(r.ui.Letzte().text.rfind("- Kritische Daten verfügbar\r\n", 0), 0u);
}

TEST(RahmenBefehle, HelpEntriesOpenTheirTopics) {
  Rahmen r;
  r.logik->Start("");
  for (const char* eintrag :
       {"mnuHilfe_Erstnutzer", "mnuHilfe_RechenUebung", "mnuHilfe_Tipps", "mnuHilfe_Inhalt"})
    EXPECT_TRUE(r.logik->Ausfuehren(eintrag)) << eintrag;
  EXPECT_EQ(r.ui.hilfeThemen, (std::vector<int>{11223, 45333, 11124, 0}));
  r.logik->mnuHilfeHinweis_Click();
  EXPECT_EQ(r.ui.Letzte().titel, "Hinweis zur HTML-Hilfe");
  EXPECT_EQ(r.ui.Letzte().text.rfind("Die umfangreiche HTML-Hilfe ist ein wichtiger", 0), 0u);
}

} // namespace
} // namespace quor::test
