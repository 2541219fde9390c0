// The main frame's command logic: the start without a project, opening a database by the menu
// index, the unit converter, and the commands with their messages.
#include "rahmen_hilfe.h"

#include <fstream>

namespace quor::test {
namespace {

TEST(Kommandozeile, LosesEveryDoubleQuoteOneByOne) {
  EXPECT_EQ(KommandozeileBereinigen("\"/daten/mein projekt.QC6\""), "/daten/mein projekt.QC6");
  EXPECT_EQ(KommandozeileBereinigen("a\"\"b\"c"), "abc");
  EXPECT_EQ(KommandozeileBereinigen("  \"\"  "), "");
}

TEST(RahmenStart, WithoutCommandLineOpensNothingAndStartsAFreshProject) {
  Rahmen r;
  r.s.Mess.FitSpalte = 4;
  r.s.Projekt.ProjektDatei = "alt.QC6";
  r.s.Projekt.StatusLeiste = {"", "alt", "alt", "alt", "alt"};
  r.logik->Start("");
  EXPECT_TRUE(r.logik->Gestartet);
  EXPECT_TRUE(r.aufrufe.empty());
  EXPECT_EQ(r.logik->Zustand(), RahmenZustand::KeineDatenbank);
  EXPECT_EQ(r.s.Mess.FitSpalte, 1);
  EXPECT_EQ(r.s.Projekt.ProjektDatei, "");
  EXPECT_EQ(r.s.Projekt.StatusLeiste, (std::array<std::string, 5>{}));
  // The files of the session are taken in the program directory.
  EXPECT_EQ(r.s.Projekt.TempDatei, "/quor/programm/QuorTemp.tmp");
  EXPECT_EQ(r.logik->HilfeVerzeichnis, "/quor/programm/help");
}

TEST(DatenbankOeffnen, MenuIndexGivesTheKindAndAFailedChoiceKeepsTheSubstance) {
  Rahmen r;
  r.logik->Start("");
  r.logik->mnuData_OpenBank_Click(1); // the separator
  EXPECT_TRUE(r.aufrufe.empty());

  r.MitStoffUndModell();
  r.s.Projekt.LetzteSitzung = true;
  r.logik->mnuData_OpenBank_Click(2);
  // The windows of the former substance close; the status bar names the new database alone.
  EXPECT_EQ(r.aufrufe, (Aufrufe{"Datenbank 6", "StoffFenster", "StoffWahl"}));
  EXPECT_EQ(r.s.Projekt.StatusLeiste[1], "Datenbank: NEU.Q06");
  EXPECT_FALSE(r.s.Projekt.LetzteSitzung);
  EXPECT_EQ(r.logik->Zustand(), RahmenZustand::DatenbankOhneStoff);
  EXPECT_EQ(r.s.Projekt.StatusLeiste[2], "");
  r.aufrufe.clear();
  EXPECT_TRUE(r.logik->Ausfuehren(ToolbarName, 2)); // "neues Projekt" opens a .Q07 database
  EXPECT_EQ(r.aufrufe, (Aufrufe{"Datenbank 7", "StoffFenster", "StoffWahl"}));

  // A cancelled or failed choice leaves the substance and its models as they were.
  r.MitStoffUndModell();
  r.datenbankErfolg = false;
  r.aufrufe.clear();
  r.logik->mnuData_OpenBank_Click(0);
  EXPECT_EQ(r.aufrufe, (Aufrufe{"Datenbank 7"}));
  EXPECT_EQ(r.logik->Zustand(), RahmenZustand::ModelleGetestet);
  EXPECT_EQ(r.s.Projekt.StatusLeiste[2], "Methan");
}

TEST(RahmenBefehle, UnitConverterStartsFromTheProgramDirectoryOrIsReportedMissing) {
  ProgrammOrdner ordner;
  Rahmen r;
  r.s.Datenbank.ProgrammVerzeichnis = ordner.pfad.string();
  r.logik->Start("");
  r.logik->mnuTavik1W_Click();
  ASSERT_EQ(r.ui.Meldungen().size(), 1u);
  EXPECT_EQ(r.ui.Letzte().text, "Datei Tavik1W.EXE nicht im QUOR-Verzeichnis gefunden");
  EXPECT_EQ(r.ui.Letzte().titel, "Ausführung nicht möglich");
  EXPECT_TRUE(r.ui.prozesse.empty());

  std::ofstream(ordner.pfad / "Tavik1W") << "#!/bin/sh\n";
  r.ui.prozessAusfuehren = [](const ui::ProzessAuftrag&) {
    return ui::ProzessStatus{ui::ProzessErgebnis::Beendet, 0};
  };
  EXPECT_TRUE(r.logik->Ausfuehren("mnuTavik1W"));
  ASSERT_EQ(r.ui.prozesse.size(), 1u);
  EXPECT_EQ(r.ui.prozesse[0].programm, (ordner.pfad / "Tavik1W").string());
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

TEST(RahmenBefehle, ReportsAndHelpTopics) {
  Rahmen r;
  r.logik->Start("");
  r.logik->mnuShowApp_path_Click();
  EXPECT_EQ(r.ui.Letzte().text, "/quor/programm");
  EXPECT_EQ(r.ui.Letzte().titel, "aktuelles Arbeitsverzeichnis von QUOR");
  EXPECT_TRUE(r.logik->Ausfuehren(ToolbarName, 32)); // the project status, like its menu entry
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
