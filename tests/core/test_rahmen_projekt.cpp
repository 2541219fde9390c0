// The frame's project commands: a project from the command line, the open dialog and the last
// session with what follows a load (the batch file's type, the measured data, the model window),
// and the last session written at the end.
#include "core/datei_io.h"
#include "core/projekt_datei.h"
#include "rahmen_hilfe.h"

#include <fstream>

namespace quor::test {
namespace {

namespace fs = std::filesystem;

const char* const KeinBAQ = "Datenfile ist nicht vom Typ *.BAQ und kann nicht geladen werden";

// A frame whose project services record their calls; the loader names `batch` and succeeds
// unless told otherwise.
struct ProjektRahmen : Rahmen {
  std::string batch;
  bool ladenErfolg = true;
  int16_t fitSpalteBeimLaden = -1;
  std::string dialogAntwort;
  std::string batchGeladen;

  ProjektRahmen() {
    d.ProjektLaden = [this](ProjectState& st, const std::string& pfad, std::string& b) {
      aufrufe.push_back("ProjektLaden " + pfad);
      fitSpalteBeimLaden = st.Mess.FitSpalte;
      b = batch;
      st.Datenbank.PfadQ07 = "/daten/QUOR.Q07";
      if (!batch.empty()) st.Mess.ExpAnzahl = 12; // the count the file holds
      return ladenErfolg;
    };
    d.ModellFensterZeigen = [this] {
      aufrufe.push_back("ModellFenster");
      s.EOS.vKritEOS = 0.0986; // the model test sets the EOS up
    };
    d.ProjektDialog = [this](ProjectState&, const std::string& titel, const std::string& muster) {
      aufrufe.push_back("Dialog " + titel + " " + muster);
      return dialogAntwort;
    };
    d.DialogeSchliessen = [this] { aufrufe.push_back("DialogeSchliessen"); };
    Bauen();
  }
  // A reader of measured data that notes the file it was given.
  void MitLeser() {
    d.BatchDateiLaden = [this](ProjectState&, const std::string& pfad) {
      batchGeladen = pfad;
      return true;
    };
    Bauen();
  }
  void PunkteHalten(int n) {
    s.Mess.ExpAnzahl = static_cast<int16_t>(n);
    s.Mess.ExpDaten.resize(static_cast<std::size_t>(n) + 1);
    s.Mess.BatchDateiTitel = "alt.BAQ";
  }
};

TEST(ProjektRahmenStart, AQuotedProjectIsLoadedAndTheModelsFollow) {
  ProjektRahmen r;
  r.logik->Start("\"/projekte/Methan Versuch.QC6\"");
  EXPECT_EQ(r.aufrufe, (Aufrufe{"ProjektLaden /projekte/Methan Versuch.QC6", "StoffFenster", "ModellFenster"}));
  EXPECT_EQ(r.s.Projekt.StatusLeiste[1], "Datenbank: QUOR.Q07");
  EXPECT_TRUE(r.s.Projekt.ProjektGeladenUeberKommando);
  EXPECT_EQ(r.s.Projekt.ProjektVerzeichnis, "/projekte");
  EXPECT_EQ(r.s.Projekt.ProjektDatei, "Methan Versuch.QC6");
  EXPECT_EQ(r.s.Einheiten.vVorgabe, 0.0986f); // the isochore's preset from the tested model
  EXPECT_TRUE(r.ui.protokoll.empty());

  ProjektRahmen name; // a bare name is taken in the program directory
  name.logik->Start("\"Versuch.QC6\"");
  EXPECT_EQ(name.aufrufe.front(), "ProjektLaden Versuch.QC6");
  EXPECT_EQ(name.s.Projekt.ProjektVerzeichnis, "/quor/programm");

  ProjektRahmen fehler; // a failed load shows no models
  fehler.ladenErfolg = false;
  fehler.logik->Start("/projekte/a.QC6");
  EXPECT_EQ(fehler.aufrufe, (Aufrufe{"ProjektLaden /projekte/a.QC6"}));
  EXPECT_EQ(fehler.s.Projekt.ProjektDatei, "");
}

TEST(ProjektRahmenStart, TheProjectsBatchFileIsLoadedBesideItOrRefusedByItsType) {
  ProjektRahmen r;
  r.batch = "messung.baq";
  r.MitLeser();
  r.logik->Start("/projekte/a.QC6");
  EXPECT_TRUE(r.ui.protokoll.empty());
  EXPECT_EQ(r.batchGeladen, "/projekte/messung.baq");
  EXPECT_EQ(r.s.Mess.ExpAnzahl, 12);
  EXPECT_TRUE(r.s.Projekt.Freigaben.ExpDaten);

  ProjektRahmen fremd;
  fremd.batch = "messung.TXT";
  fremd.MitLeser();
  fremd.logik->Start("/projekte/a.QC6");
  ASSERT_EQ(fremd.ui.Meldungen().size(), 1u);
  EXPECT_EQ(fremd.ui.Letzte().text, KeinBAQ);
  EXPECT_EQ(fremd.ui.Letzte().titel, "Ausführung nicht möglich");
  EXPECT_EQ(fremd.batchGeladen, "");
  EXPECT_EQ(fremd.s.Mess.ExpAnzahl, 0); // the file's count described the refused file
  EXPECT_FALSE(fremd.s.Projekt.Freigaben.ExpDaten);
  EXPECT_EQ(fremd.aufrufe.back(), "ModellFenster"); // the rest of the project stays

  ProjektRahmen ohneLeser; // without a reader of measured data: no count without its rows
  ohneLeser.batch = "messung.BAQ";
  ohneLeser.logik->Start("/projekte/a.QC6");
  EXPECT_EQ(ohneLeser.s.Mess.ExpAnzahl, 0);
  EXPECT_TRUE(ohneLeser.ui.protokoll.empty());
}

TEST(ProjektMenue, TheOpenDialogLeadsToTheLoadAndAsksAboutHeldPoints) {
  ProjektRahmen r;
  r.logik->Start("");
  EXPECT_TRUE(r.logik->Freigegeben("mnuData_LoadProject")); // no database needed: the project names one
  EXPECT_TRUE(r.logik->Ausfuehren("mnuData_LoadProject"));  // cancelled
  EXPECT_EQ(r.aufrufe, (Aufrufe{"Dialog Projekt laden (*.QC6) *.QC6"}));

  r.aufrufe.clear();
  r.dialogAntwort = "/daten/b.QC6";
  r.PunkteHalten(5);
  r.ui.antworten = {ui::Antwort::Ja};
  EXPECT_TRUE(r.logik->Ausfuehren(ToolbarName, 6));
  EXPECT_EQ(r.aufrufe,
            (Aufrufe{"Dialog Projekt laden (*.QC6) *.QC6", "ProjektLaden /daten/b.QC6", "StoffFenster", "ModellFenster"}));
  ASSERT_EQ(r.ui.protokoll.size(), 1u);
  EXPECT_EQ(r.ui.Letzte().text, "Die bereits geladenen exper. Daten beibehalten?");
  EXPECT_EQ(r.ui.Letzte().titel, "exper. Daten");
  EXPECT_EQ(r.s.Mess.ExpAnzahl, 5);
  EXPECT_TRUE(r.s.Projekt.Freigaben.ExpDaten);

  r.ui.antworten = {ui::Antwort::Nein};
  r.logik->mnuData_LoadProject_Click();
  EXPECT_EQ(r.s.Mess.ExpAnzahl, 0);
  EXPECT_EQ(r.s.Mess.BatchDateiTitel, "");
  EXPECT_FALSE(r.s.Projekt.Freigaben.ExpDaten);
}

TEST(ProjektMenue, TheLastSessionResetsTheFitColumnClosesDialogsAndAsksNothing) {
  ProjektRahmen r;
  r.logik->Start("");
  r.s.Projekt.ProjektDatei = "eigen.QC6";
  r.s.Mess.FitSpalte = 3;
  r.PunkteHalten(4);
  EXPECT_TRUE(r.logik->Ausfuehren(ToolbarName, 4));
  EXPECT_EQ(r.aufrufe, (Aufrufe{"ProjektLaden QuorLastSession.QC6", "StoffFenster", "DialogeSchliessen", "ModellFenster"}));
  EXPECT_EQ(r.fitSpalteBeimLaden, 1);
  EXPECT_TRUE(r.ui.protokoll.empty());
  EXPECT_EQ(r.s.Mess.ExpAnzahl, 4);
  EXPECT_EQ(r.s.Projekt.ProjektDatei, "eigen.QC6"); // the session file doesn't become the project

  r.batch = "x.DAT";
  r.logik->mnuData_LoadLastSession_Click();
  EXPECT_EQ(r.ui.Letzte().text, KeinBAQ);
}

// At the end the record log closes, an empty temporary file goes, and the last session is written
// without a question for its comment when a database of the open kind has its path.
TEST(ProjektEnde, TheLastSessionIsWrittenOnlyWithADatabaseOfTheOpenKind) {
  ProgrammOrdner ordner;
  Rahmen r;
  int protokoll = 0;
  const fs::path sitzung = ordner.pfad / "QuorLastSession.QC6";
  auto starten = [&] {
    r.s.Datenbank.ProgrammVerzeichnis = ordner.pfad.string();
    r.d.ProtokollSchliessen = [&] { ++protokoll; };
    r.d.ProjektSchreiben = [&](ProjectState& st, const std::string& pfad) {
      ProjektSchreiben(st, pfad, r.ui);
    };
    r.Bauen();
    r.logik->Start("");
  };
  starten();
  std::ofstream(r.s.Projekt.TempDatei).close();
  EXPECT_TRUE(r.logik->Ausfuehren("mnuData_Exit"));
  EXPECT_FALSE(r.logik->Beenden()); // the frame's closing after the menu runs nothing twice
  EXPECT_EQ(protokoll, 1);
  EXPECT_FALSE(fs::exists(r.s.Projekt.TempDatei));
  EXPECT_FALSE(fs::exists(sitzung));

  starten();
  r.MitStoffUndModell();
  r.s.Datenbank.DatenbankTyp = 6; // the path is of the other kind
  EXPECT_TRUE(r.logik->Beenden());
  EXPECT_FALSE(fs::exists(sitzung));

  starten();
  r.s.Datenbank.DatenbankTyp = 7;
  r.s.Projekt.DateiKommentar = "bleibt";
  r.s.Projekt.ProjektVerzeichnis = (ordner.pfad / "anderswo").string();
  std::ofstream(r.s.Projekt.TempDatei) << "1;2;3";
  EXPECT_TRUE(r.logik->Beenden());
  std::string bytes;
  ASSERT_TRUE(LeseDateiBytes(sitzung.string(), bytes));
  EXPECT_NE(bytes.find("\r\nbleibt\r\nQUOR.Q07\r\n"), std::string::npos);
  EXPECT_TRUE(r.ui.protokoll.empty());            // no question for the comment
  EXPECT_TRUE(fs::exists(r.s.Projekt.TempDatei)); // not empty: it stays
}

} // namespace
} // namespace quor::test
