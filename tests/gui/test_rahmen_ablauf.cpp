// The frame from start to tested models: open the default database through the menu, find a
// substance by typing its German name, choose in the model window and hide it with Esc, read the
// reports. At each step the frame and its windows show what their logic says.
#include "core/project_state.h"
#include "dienste/skript_oberflaeche.h"
#include "engine/eos_parameter.h"
#include "gui/substance/stoff_wahl_fenster.h"
#include "gui/substance/text_fenster.h"
#include "gui_hilfe.h"
#include "zeigt_logik.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>

namespace quor::ui {
namespace {

using test::Taste;
using test::ZeigtLogik;

struct Ablauf {
  ProjectState s;
  SkriptOberflaeche ui;
  std::unique_ptr<mdiQUOR> fenster;

  Ablauf() {
    test::App();
    s.Datenbank.ProgrammVerzeichnis = QUOR_PROGRAMM_VERZEICHNIS;
    fenster = std::make_unique<mdiQUOR>(s, ui);
    fenster->Starten("");
    fenster->show();
  }

  // The .Q07 entry of the data menu, the scripted file dialog answering with the default database.
  StoffWahlFenster* DatenbankOeffnen() {
    ui.dateien.push_back(std::string(QUOR_PROGRAMM_VERZEICHNIS) + "/QUOR.Q07");
    fenster->Befehl("mnuData_OpenBank", 0)->trigger();
    return fenster->StoffWahl();
  }
};

TEST(RahmenAblauf, GermanNameLeadsThroughSubstanceChoiceToTheModels) {
  Ablauf a;
  mdiQUOR& f = *a.fenster;
  ZeigtLogik(f, a.s);
  StoffWahlFenster* wahl = a.DatenbankOeffnen();
  ASSERT_NE(wahl, nullptr);
  ASSERT_TRUE(wahl->isVisible());
  EXPECT_EQ(wahl->Liste()->count(), static_cast<int>(wahl->Logik().List1.size()));
  ZeigtLogik(f, a.s);

  QLineEdit* name = wahl->NamensFeld()->lineEdit();
  name->clear();
  test::Tippen(name, "kohlendioxid");
  Taste(name, Qt::Key_Return); // the first Enter shows the hit
  EXPECT_TRUE(wahl->isVisible());
  EXPECT_EQ(wahl->Liste()->currentRow(), wahl->Logik().ListIndex);
  EXPECT_EQ(wahl->NummernFeld()->text().toStdString(), wahl->Logik().Text1);
  Taste(name, Qt::Key_Return); // the second one goes on to the models
  EXPECT_FALSE(wahl->isVisible());
  EXPECT_EQ(a.s.Stoff.StoffName, "Kohlendioxid");
  ZeigtLogik(f, a.s);
  EXPECT_TRUE(f.Ampel()->isEnabled()); // the substance's data graded in colour
  ModellFenster* modelle = f.Modelle();
  ASSERT_NE(modelle, nullptr);
  EXPECT_TRUE(modelle->isVisible());
  ZeigtLogik(modelle);
  EXPECT_TRUE(a.ui.Meldungen().empty());

  // The reports of the frame's services: the EOS parameters, and the project status in the text
  // window, wide enough for its longest line.
  f.Befehl("mnuData_ParameterEOS")->trigger();
  ASSERT_EQ(a.ui.Meldungen().size(), 1u);
  EXPECT_EQ(a.ui.Letzte().titel, ParameterEOSTitel);
  EXPECT_EQ(a.ui.Letzte().text, ParameterEOSText(a.s));
  f.Knopf(32)->trigger();
  TextFenster* status = f.findChild<TextFenster*>("frmQTextEdit");
  ASSERT_NE(status, nullptr);
  EXPECT_TRUE(status->Text().contains("Kohlendioxid"));
  QApplication::processEvents();
  EXPECT_TRUE(test::Bild(status, "projektstatus.png"));
  QPlainTextEdit* text = status->findChild<QPlainTextEdit*>("Text1");
  ASSERT_NE(text, nullptr);
  EXPECT_FALSE(text->horizontalScrollBar()->isVisible()) << status->width();
}

TEST(RahmenAblauf, TheModelWindowTakesItsChoicesAndEscHidesIt) {
  Ablauf a;
  StoffWahlFenster* wahl = a.DatenbankOeffnen();
  ASSERT_NE(wahl, nullptr);
  Taste(wahl->Liste(), Qt::Key_Return); // Enter in the list takes the selected first substance
  ModellFenster* modelle = a.fenster->Modelle();
  ASSERT_NE(modelle, nullptr);

  modelle->Konzept(1)->click();
  EXPECT_FALSE(a.s.Modell.KonzeptGlobal);
  ZeigtLogik(*a.fenster, a.s);
  QListWidget* eos = modelle->EOSListe();
  const auto virial = eos->findItems("VIRIAL-EOS Redlich / Kwong", Qt::MatchStartsWith);
  ASSERT_EQ(virial.size(), 1);
  eos->setCurrentItem(virial[0]);
  EXPECT_EQ(a.s.Modell.EOSIndex, 13);
  ZeigtLogik(modelle);
  ZeigtLogik(*a.fenster, a.s);

  Taste(eos, Qt::Key_Escape);
  EXPECT_FALSE(modelle->parentWidget()->isVisible());
  a.fenster->Befehl("mnuModel")->trigger();
  EXPECT_TRUE(modelle->parentWidget()->isVisible());
  EXPECT_EQ(a.s.Modell.EOSIndex, 13); // shown again as it was, not built anew
  ZeigtLogik(modelle);
}

} // namespace
} // namespace quor::ui
