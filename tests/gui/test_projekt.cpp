// Projects through the frame: a substance and models chosen, the project saved and given to a fresh
// program on its command line, the last session written when the window closes and loaded by its
// button; the open dialog with its preview; and the options window with its effect on the menu.
#include "gui/frame/optionen_fenster.h"
#include "gui/frame/projekt_dialog.h"
#include "programm_hilfe.h"
#include "support/temp_ordner.h"

#include <filesystem>
#include <fstream>
#include <tuple>

namespace quor::ui {
namespace {

namespace fs = std::filesystem;
using test::Taste;
using test::ZeigtLogik;

// A program directory of its own with the default database and synonym list, so that the last
// session lands beside them and nowhere else.
class ProjektGUI : public ::testing::Test {
protected:
  void SetUp() override {
    test::App();
    fs::create_directories(ordner / "projekte");
    for (const char* datei : {"QUOR.Q07", "SYNOM7.TXT"})
      fs::copy_file(fs::path(QUOR_PROGRAMM_VERZEICHNIS) / datei, ordner / datei);
  }
  using Programm = test::Programm;
  std::unique_ptr<Programm> Starten(const std::string& kommandozeile) {
    return std::make_unique<Programm>(ordner.string(), kommandozeile);
  }

  // Ethanol with Soave/Redlich/Kwong in PARTIAL, the last vapour-pressure equation offered and the
  // second delta(LV)h method, chosen by hand.
  void StoffUndModelleWaehlen(Programm& p) {
    ASSERT_NE(p.DatenbankOeffnen(), nullptr);
    QLineEdit* feld = p.fenster->StoffWahl()->NamensFeld()->lineEdit();
    feld->clear();
    test::Tippen(feld, "Ethanol");
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
    ASSERT_EQ(p.s.Modell.EOSIndex, 5);
    ASSERT_FALSE(p.s.Modell.KonzeptGlobal);
  }

  // The state a project carries, side by side, and the windows showing it.
  static void GleicherZustand(const Programm& a, Programm& b) {
    auto zustand = [](const Programm& p) {
      const auto& m = p.s.Modell;
      return std::tuple(p.s.Stoff.StoffName, m.EOSIndex, m.DampfdruckIndex, m.HLVIndex, m.CpIndex,
                        m.KonzeptGlobal);
    };
    EXPECT_EQ(zustand(b), zustand(a));
    ASSERT_TRUE(b.fenster->Modelle() && b.fenster->Modelle()->isVisible());
    ZeigtLogik(b.fenster->Modelle());
    ZeigtLogik(*b.fenster, b.s);
  }

  quor::test::TempOrdner tmp{"quor_gui_"};
  const fs::path ordner{tmp.Pfad()};
};

TEST_F(ProjektGUI, ASavedProjectAndTheLastSessionComeBackInFreshPrograms) {
  auto erstes = Starten("");
  StoffUndModelleWaehlen(*erstes);
  ASSERT_FALSE(HasFatalFailure());
  const fs::path projekt = ordner / "projekte" / "Ethanol Versuch.QC6";
  erstes->ui.dateien.push_back(projekt.string());
  erstes->ui.eingaben.push_back(std::string("aus dem GUI-Test"));
  erstes->fenster->Befehl("mnuData_SaveProject")->trigger();
  ASSERT_TRUE(fs::exists(projekt));
  erstes->fenster->close();
  ASSERT_TRUE(fs::exists(ordner / "QuorLastSession.QC6"));

  auto zweites = Starten("\"" + projekt.string() + "\"");
  GleicherZustand(*erstes, *zweites);
  EXPECT_EQ(zweites->s.Projekt.DateiKommentar, "aus dem GUI-Test");
  EXPECT_TRUE(zweites->ui.Meldungen().empty());

  auto drittes = Starten("");
  drittes->fenster->Knopf(4)->trigger();
  GleicherZustand(*erstes, *drittes);
  EXPECT_TRUE(drittes->s.Projekt.LetzteSitzung);
}

// The dialog lists the folder's projects and shows the preview of the chosen one; OK does not take a
// file its preview refused.
TEST_F(ProjektGUI, TheOpenDialogPreviewsProjectsAndKeepsARefusedOneOut) {
  for (const char* name : {"a.QC6", "b.QC6"})
    std::ofstream(ordner / "projekte" / name) << name;
  SkriptOberflaeche ui;
  ProjektDialogFenster dialog(
      [](const std::string& pfad, std::string& text) {
        text = "Vorschau\r\n" + pfad;
        return pfad.find("b.QC6") == std::string::npos;
      },
      ui, HilfeProjekte, nullptr);
  dialog.Laden("Projekt laden (*.QC6)", "*.QC6", (ordner / "projekte").string(), "");
  dialog.show();
  ASSERT_EQ(dialog.Dateien()->count(), 2);
  for (int zeile : {1, 0}) {
    dialog.Dateien()->setCurrentRow(zeile);
    EXPECT_EQ(dialog.Vorschau()->toPlainText(), test::Q(dialog.Logik().txtVorschau));
    EXPECT_EQ(dialog.Vorschau()->toPlainText().startsWith("Vorschau\n"), zeile == 0);
    dialog.OKKnopf()->click();
    EXPECT_EQ(dialog.isVisible(), zeile == 1); // the refused file is not taken
  }
  EXPECT_EQ(fs::path(dialog.Logik().Ergebnis().Pfad), ordner / "projekte" / "a.QC6");
}

TEST_F(ProjektGUI, OptionsReachTheStateAndRenameTheCalculationMenu) {
  auto p = Starten("");
  StoffUndModelleWaehlen(*p);
  ASSERT_FALSE(HasFatalFailure());
  p->fenster->Befehl("mnuOptions")->trigger();
  auto* optionen = p->fenster->findChild<OptionenFenster*>("frmQOptions");
  ASSERT_TRUE(optionen && optionen->isVisible());
  EXPECT_TRUE(optionen->Normierung()->isEnabled()); // the reference-state dialog is there

  const int16_t molar = p->s.Einheiten.EnergieMode;
  optionen->MolarSpez(1)->setChecked(true);
  optionen->CalcMode(0)->setChecked(true);
  optionen->SepXY()->setCurrentIndex(2);
  optionen->OKKnopf()->click();
  EXPECT_FALSE(optionen->isVisible());
  EXPECT_EQ(p->s.Optionen.XYTrenner, '\t');
  EXPECT_TRUE(p->s.Rechnung.StapelModus);
  EXPECT_NE(p->s.Einheiten.EnergieMode, molar); // specific now
  const BefehlsRegister& r = p->fenster->Logik().Befehle;
  for (const auto& [index, text] : frmQOptions::CalcMenueTexte(true))
    EXPECT_EQ(r.Finde("mnuCalc", index)->text, text);
  ZeigtLogik(*p->fenster, p->s);
}

} // namespace
} // namespace quor::ui
