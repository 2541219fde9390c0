// Projects through the frame: a substance and models chosen, the project saved and given to a fresh
// program on its command line; the last session written at the end and loaded by its button; the
// open dialog with its preview; and the options window with its effect on the frame's menu.
#include "core/project_state.h"
#include "gui_hilfe.h"
#include "substance/projekt_laden.h"
#include "gui/frame/mdi_quor.h"
#include "gui/substance/modell_fenster.h"
#include "gui/frame/optionen_fenster.h"
#include "gui/frame/projekt_dialog.h"
#include "gui/substance/stoff_wahl_fenster.h"
#include "dienste/skript_oberflaeche.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace quor::ui {
namespace {

namespace fs = std::filesystem;
using test::App;
using test::Taste;
using test::Tippen;

// A program directory of its own with the default database and synonym list, so that the last
// session lands beside them and nowhere else.
class ProjektGUI : public ::testing::Test {
protected:
  void SetUp() override {
    App();
    ordner = fs::temp_directory_path() /
             ("quor_gui_" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    fs::remove_all(ordner);
    fs::create_directories(ordner / "projekte");
    for (const char* datei : {"QUOR.Q07", "SYNOM7.TXT"})
      fs::copy_file(fs::path(QUOR_PROGRAMM_VERZEICHNIS) / datei, ordner / datei);
  }
  void TearDown() override { fs::remove_all(ordner); }

  struct Programm {
    ProjectState s;
    SkriptOberflaeche ui;
    std::unique_ptr<mdiQUOR> fenster;
  };

  std::unique_ptr<Programm> Starten(const std::string& kommandozeile) {
    auto p = std::make_unique<Programm>();
    p->s.Datenbank.ProgrammVerzeichnis = ordner.string();
    p->fenster = std::make_unique<mdiQUOR>(p->s, p->ui);
    p->fenster->Starten(kommandozeile);
    p->fenster->show();
    return p;
  }

  // Ethanol with Soave/Redlich/Kwong in PARTIAL, the last vapour-pressure equation offered and the
  // second delta(LV)h method, chosen by hand.
  void StoffUndModelleWaehlen(Programm& p) {
    p.ui.dateien.push_back((ordner / "QUOR.Q07").string());
    p.fenster->Befehl("mnuData_OpenBank", 0)->trigger();
    StoffWahlFenster* wahl = p.fenster->StoffWahl();
    ASSERT_NE(wahl, nullptr);
    QLineEdit* feld = wahl->NamensFeld()->lineEdit();
    feld->clear();
    Tippen(feld, "Ethanol");
    Taste(feld, Qt::Key_Return);
    Taste(feld, Qt::Key_Return);
    ASSERT_EQ(p.s.Stoff.StoffName, "Ethanol");
    ModellFenster* m = p.fenster->Modelle();
    ASSERT_NE(m, nullptr);
    const auto srk = m->EOSListe()->findItems("CEOS Soave / Redlich / Kwong", Qt::MatchStartsWith);
    ASSERT_EQ(srk.size(), 1);
    m->EOSListe()->setCurrentItem(srk[0]);
    m->Konzept(1)->click();
    m->DampfdruckListe()->setCurrentRow(m->DampfdruckListe()->count() - 1);
    m->HLVListe()->setCurrentRow(1);
  }

  // The state a project carries, side by side.
  static void GleicherZustand(const Programm& a, const Programm& b) {
    EXPECT_EQ(b.s.Stoff.StoffName, a.s.Stoff.StoffName);
    EXPECT_EQ(b.s.Modell.EOSIndex, a.s.Modell.EOSIndex);
    EXPECT_EQ(b.s.Modell.DampfdruckIndex, a.s.Modell.DampfdruckIndex);
    EXPECT_EQ(b.s.Modell.HLVIndex, a.s.Modell.HLVIndex);
    EXPECT_EQ(b.s.Modell.CpIndex, a.s.Modell.CpIndex);
    EXPECT_EQ(b.s.Modell.KonzeptGlobal, a.s.Modell.KonzeptGlobal);
    for (int i = 2; i <= 4; ++i)
      EXPECT_EQ(b.fenster->StatusText(i), a.fenster->StatusText(i)) << "panel " << i;
    ModellFenster* m = b.fenster->Modelle();
    ASSERT_NE(m, nullptr);
    EXPECT_TRUE(m->isVisible());
    EXPECT_EQ(m->EOSListe()->currentItem()->text(), a.fenster->Modelle()->EOSListe()->currentItem()->text());
    EXPECT_EQ(m->DampfdruckListe()->currentRow(), a.fenster->Modelle()->DampfdruckListe()->currentRow());
    EXPECT_TRUE(m->Konzept(1)->isChecked());
    EXPECT_TRUE(b.fenster->Befehl("mnuData_ParameterEOS")->isEnabled());
    EXPECT_TRUE(b.fenster->Befehl("mnuOptions")->isEnabled());
  }

  fs::path ordner;
};

TEST_F(ProjektGUI, ASavedProjectComesBackInAFreshProgramFromTheCommandLine) {
  auto erstes = Starten("");
  StoffUndModelleWaehlen(*erstes);
  ASSERT_FALSE(HasFatalFailure());
  EXPECT_EQ(erstes->s.Modell.EOSIndex, 5);
  EXPECT_FALSE(erstes->s.Modell.KonzeptGlobal);

  const fs::path projekt = ordner / "projekte" / "Ethanol Versuch.QC6";
  erstes->ui.dateien.push_back(projekt.string());
  erstes->ui.eingaben.push_back(std::string("aus dem GUI-Test"));
  erstes->fenster->Befehl("mnuData_SaveProject")->trigger();
  ASSERT_TRUE(fs::exists(projekt));
  EXPECT_EQ(erstes->ui.Meldungen().size(), 1u); // the once-only hint before saving

  auto zweites = Starten("\"" + projekt.string() + "\"");
  GleicherZustand(*erstes, *zweites);
  EXPECT_EQ(zweites->s.Projekt.DateiKommentar, "aus dem GUI-Test");
  EXPECT_EQ(zweites->s.Projekt.ProjektDatei, "Ethanol Versuch.QC6");
  EXPECT_TRUE(zweites->s.Projekt.ProjektGeladenUeberKommando);
  EXPECT_TRUE(zweites->ui.Meldungen().empty());
}

TEST_F(ProjektGUI, TheLastSessionIsWrittenAtTheEndAndLoadedByItsButton) {
  auto erstes = Starten("");
  StoffUndModelleWaehlen(*erstes);
  ASSERT_FALSE(HasFatalFailure());
  erstes->ui.protokoll.clear();
  erstes->fenster->close();
  ASSERT_TRUE(fs::exists(ordner / "QuorLastSession.QC6"));
  EXPECT_TRUE(erstes->ui.protokoll.empty()); // no question for a comment

  auto zweites = Starten("");
  EXPECT_TRUE(zweites->fenster->Knopf(4)->isEnabled());
  zweites->fenster->Knopf(4)->trigger();
  GleicherZustand(*erstes, *zweites);
  EXPECT_TRUE(zweites->s.Projekt.LetzteSitzung);
}

TEST_F(ProjektGUI, TheOpenDialogPreviewsProjectsAndRefusesOldOnes) {
  auto p = Starten("");
  StoffUndModelleWaehlen(*p);
  ASSERT_FALSE(HasFatalFailure());
  p->ui.dateien.push_back((ordner / "projekte" / "a.QC6").string());
  p->fenster->Befehl("mnuData_SaveProject")->trigger();
  ASSERT_TRUE(fs::copy_file(ordner / "projekte" / "a.QC6", ordner / "projekte" / "b.QC6"));
  {
    // b names a database of an old kind.
    std::string bytes;
    std::ifstream ein(ordner / "projekte" / "b.QC6", std::ios::binary);
    bytes.assign(std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>());
    bytes.replace(bytes.find("QUOR.Q07"), 8, "QUOR.Q05");
    std::ofstream(ordner / "projekte" / "b.QC6", std::ios::binary) << bytes;
  }
  p->ui.protokoll.clear();

  ProjektDialogFenster dialog(
      [&](const std::string& pfad, std::string& t) { return ProjektVorschau(p->s, pfad, t, p->ui); },
      p->fenster.get());
  dialog.Laden("Projekt laden (*.QC6)", "*.QC6", (ordner / "projekte").string(), "");
  dialog.show();
  EXPECT_EQ(dialog.windowTitle(), "Projekt laden (*.QC6)");
  EXPECT_EQ(dialog.Info()->title(), "Projektinformation");
  ASSERT_EQ(dialog.Dateien()->count(), 2);
  dialog.Dateien()->setCurrentRow(0);
  EXPECT_TRUE(dialog.Vorschau()->toPlainText().contains("CAS-Nr.:         64-17-5  Ethanol"))
      << dialog.Vorschau()->toPlainText().toStdString();
  dialog.Dateien()->setCurrentRow(1);
  EXPECT_EQ(dialog.Vorschau()->toPlainText(), "");
  ASSERT_EQ(p->ui.Meldungen().size(), 1u);
  EXPECT_EQ(p->ui.Letzte().text, "Datenbanken *.Q04 oder *.Q05 werden nicht mehr unterstützt");
  dialog.OKKnopf()->click();
  EXPECT_TRUE(dialog.isVisible()); // the refused file is not taken
  dialog.Dateien()->setCurrentRow(0);
  dialog.OKKnopf()->click();
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(fs::path(dialog.Logik().Ergebnis().Pfad), ordner / "projekte" / "a.QC6");
}

TEST_F(ProjektGUI, OptionsChangeUnitsAndTheCalculationMenu) {
  auto p = Starten("");
  EXPECT_FALSE(p->fenster->Befehl("mnuOptions")->isEnabled());
  StoffUndModelleWaehlen(*p);
  ASSERT_FALSE(HasFatalFailure());
  p->fenster->Befehl("mnuOptions")->trigger();
  auto* optionen = p->fenster->findChild<OptionenFenster*>("frmQOptions");
  ASSERT_NE(optionen, nullptr);
  EXPECT_TRUE(optionen->isVisible());
  EXPECT_EQ(optionen->windowTitle(), "   Optionen");
  EXPECT_TRUE(optionen->MolarSpez(0)->isChecked());
  EXPECT_EQ(optionen->SepCSV()->itemText(2), "Tab");
  EXPECT_EQ(optionen->Punktdichte()->value(), 500);
  EXPECT_TRUE(optionen->Normierung()->isEnabled()); // the reference-state dialog is there

  optionen->MolarSpez(1)->setChecked(true);
  optionen->CalcMode(0)->setChecked(true);
  optionen->SepXY()->setCurrentIndex(2);
  optionen->OKKnopf()->click();
  EXPECT_FALSE(optionen->isVisible());
  EXPECT_EQ(p->s.Einheiten.EnergieMode, 3);
  EXPECT_EQ(p->s.Einheiten.VolumenMode, 1);
  EXPECT_EQ(p->s.Optionen.XYTrenner, '\t');
  EXPECT_TRUE(p->s.Rechnung.StapelModus);
  EXPECT_EQ(p->fenster->Befehl("mnuCalc", 2)->text(),
            "Spalten T, p         => rho, Zustand L/V  + thermod. Fu.");
  EXPECT_EQ(p->fenster->Befehl("mnuCalc", 0)->text(),
            "Spalten T, rho(V) => p, Zustand L/V     + thermod. Fu.");
}

} // namespace
} // namespace quor::ui
