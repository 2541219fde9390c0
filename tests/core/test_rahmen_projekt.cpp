// The frame's project commands: a project from the command line, the open dialog and the last
// session with what follows a load (the batch file's type, the measured data, the model window),
// and the last session written at the end.
#include "core/datei_io.h"
#include "core/projekt_datei.h"
#include "rahmen_hilfe.h"

#include <filesystem>

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

  ProjektRahmen() {
    d.ProjektLaden = [this](ProjectState& st, const std::string& pfad, std::string& b) {
      aufrufe.push_back("ProjektLaden " + pfad);
      fitSpalteBeimLaden = st.Mess.FitSpalte;
      b = batch;
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
  void PunkteHalten(int n) {
    s.Mess.ExpAnzahl = static_cast<int16_t>(n);
    s.Mess.ExpDaten.resize(static_cast<std::size_t>(n) + 1);
    s.Mess.BatchDateiTitel = "alt.BAQ";
  }
  std::string dialogAntwort;
};

TEST(ProjektRahmenStart, AQuotedProjectIsLoadedAndTheModelsFollow) {
  ProjektRahmen r;
  r.logik->Start("\"/projekte/Methan Versuch.QC6\"");
  EXPECT_EQ(r.aufrufe, (Aufrufe{"ProjektLaden /projekte/Methan Versuch.QC6", "ModellFenster"}));
  EXPECT_TRUE(r.s.Projekt.ProjektGeladenUeberKommando);
  EXPECT_EQ(r.s.Projekt.ProjektVerzeichnis, "/projekte");
  EXPECT_EQ(r.s.Projekt.ProjektDatei, "Methan Versuch.QC6");
  EXPECT_EQ(r.s.Einheiten.vVorgabe, 0.0986f); // the isochore's preset from the tested model
  EXPECT_TRUE(r.ui.protokoll.empty());
  EXPECT_TRUE(r.logik->Gestartet);
}

TEST(ProjektRahmenStart, ABareNameIsTakenInTheProgramDirectory) {
  ProjektRahmen r;
  r.logik->Start("\"Versuch.QC6\"");
  EXPECT_EQ(r.aufrufe.front(), "ProjektLaden Versuch.QC6");
  EXPECT_EQ(r.s.Projekt.ProjektVerzeichnis, "/quor/programm");
}

TEST(ProjektRahmenStart, ABatchFileOfAnotherTypeIsRefusedAndTheRestStays) {
  ProjektRahmen r;
  r.batch = "messung.TXT";
  bool batchGeladen = false;
  r.d.BatchDateiLaden = [&](ProjectState&, const std::string&) { return batchGeladen = true; };
  r.Bauen();
  r.logik->Start("/projekte/a.QC6");
  ASSERT_EQ(r.ui.Meldungen().size(), 1u);
  EXPECT_EQ(r.ui.Letzte().text, KeinBAQ);
  EXPECT_EQ(r.ui.Letzte().titel, "Ausführung nicht möglich");
  EXPECT_FALSE(batchGeladen);
  EXPECT_EQ(r.s.Mess.ExpAnzahl, 0); // the file's count described the refused file
  EXPECT_FALSE(r.s.Projekt.Freigaben.ExpDaten);
  EXPECT_EQ(r.aufrufe.back(), "ModellFenster");
  EXPECT_EQ(r.s.Projekt.ProjektDatei, "a.QC6");
}

TEST(ProjektRahmenStart, ABatchFileIsLoadedBesideTheProjectAndEnablesTheDataButton) {
  ProjektRahmen r;
  r.batch = "messung.baq";
  std::string geladen;
  r.d.BatchDateiLaden = [&](ProjectState&, const std::string& pfad) {
    geladen = pfad;
    return true;
  };
  r.Bauen();
  r.logik->Start("/projekte/a.QC6");
  EXPECT_TRUE(r.ui.protokoll.empty());
  EXPECT_EQ(geladen, "/projekte/messung.baq");
  EXPECT_EQ(r.s.Mess.ExpAnzahl, 12);
  EXPECT_TRUE(r.s.Projekt.Freigaben.ExpDaten);

  ProjektRahmen ohneLeser; // no reader for measured data in this build: no count without its rows
  ohneLeser.batch = "messung.BAQ";
  ohneLeser.logik->Start("/projekte/a.QC6");
  EXPECT_EQ(ohneLeser.s.Mess.ExpAnzahl, 0);
  EXPECT_TRUE(ohneLeser.ui.protokoll.empty());
}

TEST(ProjektRahmenStart, AFailedLoadShowsNoModels) {
  ProjektRahmen r;
  r.ladenErfolg = false;
  r.logik->Start("/projekte/a.QC6");
  EXPECT_EQ(r.aufrufe, (Aufrufe{"ProjektLaden /projekte/a.QC6"}));
  EXPECT_EQ(r.s.Projekt.ProjektDatei, "");
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
            (Aufrufe{"Dialog Projekt laden (*.QC6) *.QC6", "ProjektLaden /daten/b.QC6", "ModellFenster"}));
  ASSERT_EQ(r.ui.protokoll.size(), 1u);
  EXPECT_EQ(r.ui.Letzte().text, "Die bereits geladenen exper. Daten beibehalten?");
  EXPECT_EQ(r.ui.Letzte().titel, "exper. Daten");
  EXPECT_EQ(r.s.Mess.ExpAnzahl, 5);
  EXPECT_TRUE(r.s.Projekt.Freigaben.ExpDaten);
  EXPECT_EQ(r.s.Projekt.ProjektVerzeichnis, "/daten");

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
  EXPECT_EQ(r.aufrufe, (Aufrufe{"ProjektLaden QuorLastSession.QC6", "DialogeSchliessen", "ModellFenster"}));
  EXPECT_EQ(r.fitSpalteBeimLaden, 1);
  EXPECT_TRUE(r.ui.protokoll.empty());
  EXPECT_EQ(r.s.Mess.ExpAnzahl, 4);
  EXPECT_EQ(r.s.Projekt.ProjektDatei, "eigen.QC6"); // the session file doesn't become the project

  r.aufrufe.clear();
  r.batch = "x.DAT";
  r.logik->mnuData_LoadLastSession_Click();
  EXPECT_EQ(r.ui.Letzte().text, KeinBAQ);
}

TEST(ProjektMenue, OptionsNeedASubstance) {
  ProjektRahmen r;
  int gezeigt = 0;
  r.logik->Befehle.Handler("mnuOptions", [&](int) { ++gezeigt; });
  r.logik->Start("");
  EXPECT_FALSE(r.logik->Ausfuehren("mnuOptions"));
  r.MitStoffUndModell();
  EXPECT_TRUE(r.logik->Ausfuehren("mnuOptions"));
  EXPECT_EQ(gezeigt, 1);
}

class ProjektEnde : public ::testing::Test {
protected:
  void SetUp() override {
    ordner = fs::temp_directory_path() /
             ("quor_ende_" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    fs::remove_all(ordner);
    fs::create_directories(ordner);
    r.s.Datenbank.ProgrammVerzeichnis = ordner.string();
    r.d.ProjektSchreiben = [this](ProjectState& st, const std::string& pfad) {
      ProjektSchreiben(st, pfad, r.ui);
    };
    r.Bauen();
    r.logik->Start("");
  }
  void TearDown() override { fs::remove_all(ordner); }

  fs::path ordner;
  Rahmen r;
};

TEST_F(ProjektEnde, WithADatabaseTheLastSessionIsWrittenWithoutAComment) {
  r.MitStoffUndModell();
  r.s.Projekt.DateiKommentar = "bleibt";
  r.s.Projekt.ProjektVerzeichnis = (ordner / "anderswo").string();
  EXPECT_TRUE(r.logik->Ausfuehren("mnuData_Exit"));
  std::string bytes;
  ASSERT_TRUE(LeseDateiBytes((ordner / "QuorLastSession.QC6").string(), bytes));
  EXPECT_NE(bytes.find("\r\nbleibt\r\nQUOR.Q07\r\n"), std::string::npos);
  EXPECT_TRUE(r.ui.protokoll.empty()); // no question for the comment
}

TEST_F(ProjektEnde, WithoutADatabaseNothingIsWritten) {
  EXPECT_TRUE(r.logik->Ausfuehren("mnuData_Exit"));
  EXPECT_FALSE(fs::exists(ordner / "QuorLastSession.QC6"));
  EXPECT_TRUE(r.ui.protokoll.empty());
}

} // namespace
} // namespace quor::test
