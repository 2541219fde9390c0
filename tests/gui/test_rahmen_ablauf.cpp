// The frame from start to tested models: open the default database through the menu, find a
// substance by typing its German name, and read the status bar and the model window.
#include "core/project_state.h"
#include "gui_hilfe.h"
#include "gui/frame/mdi_quor.h"
#include "gui/substance/modell_fenster.h"
#include "gui/substance/stoff_wahl_fenster.h"
#include "gui/substance/text_fenster.h"
#include "dienste/skript_oberflaeche.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QRadioButton>
#include <QToolButton>
#include <gtest/gtest.h>

namespace quor::ui {
namespace {

using test::App;
using test::Taste;
using test::Tippen;

const std::string Programm = QUOR_PROGRAMM_VERZEICHNIS;

struct Ablauf {
  ProjectState s;
  SkriptOberflaeche ui;
  std::unique_ptr<mdiQUOR> fenster;

  Ablauf() {
    App();
    s.Datenbank.ProgrammVerzeichnis = Programm;
    fenster = std::make_unique<mdiQUOR>(s, ui);
    fenster->Starten("");
    fenster->show();
  }

  // The .Q07 entry of the data menu, the scripted file dialog answering with the default database.
  StoffWahlFenster* DatenbankOeffnen() {
    ui.dateien.push_back(Programm + "/QUOR.Q07");
    fenster->Befehl("mnuData_OpenBank", 0)->trigger();
    return fenster->StoffWahl();
  }

  // Types a name into the name field and presses Enter `mal` times.
  void NameEingeben(StoffWahlFenster* wahl, const QString& name, int mal) {
    QLineEdit* feld = wahl->NamensFeld()->lineEdit();
    feld->clear();
    Tippen(feld, name);
    for (int i = 0; i < mal; ++i)
      Taste(feld, Qt::Key_Return);
  }
};

TEST(RahmenAblauf, OpensOnlyWhatTheOpeningStateAllows) {
  Ablauf a;
  mdiQUOR& f = *a.fenster;
  EXPECT_TRUE(f.Befehl("mnuData_OpenBank", 0)->isEnabled());
  EXPECT_TRUE(f.Befehl("mnuData_OpenBank", 1)->isSeparator());
  EXPECT_FALSE(f.Befehl("mnuStoffwahl")->isEnabled());
  EXPECT_FALSE(f.Befehl("mnuModel")->isEnabled());
  EXPECT_TRUE(f.Befehl("mnuData_LoadProject")->isEnabled()); // a project brings its own database
  EXPECT_FALSE(f.Befehl("mnuOptions")->isEnabled());
  EXPECT_FALSE(f.Befehl("mnuData_EditDatenbank")->isEnabled()); // visible, but not part of this build
  EXPECT_TRUE(f.Befehl("mnuData_EditDatenbank")->isVisible());
  EXPECT_FALSE(f.Befehl("mnuCalc", 2)->isEnabled());
  EXPECT_EQ(f.Befehl("mnuGraf_sub_cut", 1)->text(), "isotherm p - v");
  EXPECT_EQ(f.Menue("mnuGraf_sub_database", 9), f.Befehl("mnuGraf_sub_database", 9)->menu());
  EXPECT_EQ(f.Knopf(2)->toolTip(), " neues Projekt ");
  EXPECT_EQ(f.Knopf(15)->toolTip(), " Behälterber., GLOBAL oder PARTIAL => \"Modelle\"    ");
  EXPECT_TRUE(f.Knopf(3)->isSeparator());
  EXPECT_EQ(f.Knopf(33), nullptr);
  EXPECT_FALSE(f.Ampel()->isEnabled()); // nothing loaded: the face colour
  for (int i = 1; i <= 4; ++i)
    EXPECT_EQ(f.StatusText(i), "");
}

TEST(RahmenAblauf, GermanNameLeadsThroughSubstanceChoiceToTheModels) {
  Ablauf a;
  StoffWahlFenster* wahl = a.DatenbankOeffnen();
  ASSERT_NE(wahl, nullptr);
  ASSERT_TRUE(wahl->isVisible());
  EXPECT_EQ(wahl->Liste()->count(), a.s.Datenbank.StoffAnzahl);
  EXPECT_TRUE(a.fenster->Befehl("mnuStoffwahl")->isEnabled());

  a.NameEingeben(wahl, "kohlendioxid", 1); // the first Enter shows the hit
  EXPECT_TRUE(wahl->isVisible());
  EXPECT_EQ(wahl->Liste()->currentItem()->text().section(' ', -1), "Kohlendioxid");
  EXPECT_EQ(wahl->NummernFeld()->text(), "909");
  Taste(wahl->NamensFeld()->lineEdit(), Qt::Key_Return); // the second one goes on to the models
  EXPECT_FALSE(wahl->isVisible());
  EXPECT_EQ(a.s.Stoff.StoffName, "Kohlendioxid");
  EXPECT_EQ(wahl->NamensFeld()->itemText(0), "kohlendioxid"); // the text searched for is remembered

  mdiQUOR& f = *a.fenster;
  EXPECT_EQ(f.StatusText(2), "Kohlendioxid");
  EXPECT_EQ(f.StatusText(3), "CEOS Peng / Robinson (GLOBAL-Konzept)");
  EXPECT_TRUE(f.StatusText(4).startsWith("Dampfdruck-Gleichung: ")) << f.StatusText(4).toStdString();
  EXPECT_TRUE(f.Befehl("mnuData_ParameterEOS")->isEnabled());
  EXPECT_TRUE(f.Ampel()->isEnabled());
  // Carbon dioxide sublimes at normal pressure: no normal boiling point, some restrictions (yellow).
  EXPECT_EQ(a.s.Projekt.Ampel.DatenAmpel, 2);
  EXPECT_TRUE(f.Ampel()->styleSheet().contains("rgb(255, 255, 0)"));

  ModellFenster* modelle = f.Modelle();
  ASSERT_NE(modelle, nullptr);
  EXPECT_TRUE(modelle->isVisible());
  EXPECT_EQ(modelle->windowTitle(), " Berechnungs-Modelle für Kohlendioxid");
  EXPECT_EQ(modelle->EOSListe()->currentItem()->text().trimmed(), "CEOS Peng / Robinson");
  EXPECT_EQ(modelle->EOSListe()->count(), 15); // critical point and omega: every model
  EXPECT_TRUE(modelle->Konzept(0)->isChecked());
  EXPECT_TRUE(a.ui.Meldungen().empty());

  // The project button shows the status report in the text window.
  f.Knopf(32)->trigger();
  TextFenster* status = f.findChild<TextFenster*>("frmQTextEdit");
  ASSERT_NE(status, nullptr);
  EXPECT_EQ(status->windowTitle(), " Info Projekt-Status ");
  EXPECT_TRUE(status->Text().contains("Kohlendioxid"));
  EXPECT_TRUE(status->Text().contains("QUOR.Q07 mit "));
  QApplication::processEvents();
  EXPECT_TRUE(test::Bild(status, "projektstatus.png"));
  // Wide enough for its longest line: no horizontal scrolling.
  QPlainTextEdit* text = status->findChild<QPlainTextEdit*>("Text1");
  ASSERT_NE(text, nullptr);
  EXPECT_FALSE(text->horizontalScrollBar()->isVisible()) << status->width();
}

TEST(RahmenAblauf, VirialModelSwitchesToPartialAndEscHidesTheSwitchboard) {
  Ablauf a;
  StoffWahlFenster* wahl = a.DatenbankOeffnen();
  ASSERT_NE(wahl, nullptr);
  Taste(wahl->Liste(), Qt::Key_Return); // Enter in the list takes the selected first substance
  ModellFenster* modelle = a.fenster->Modelle();
  ASSERT_NE(modelle, nullptr);
  EXPECT_EQ(a.s.Stoff.StoffName, "Methan");

  modelle->Konzept(1)->click(); // PARTIAL with the cubic model
  EXPECT_FALSE(a.s.Modell.KonzeptGlobal);
  EXPECT_EQ(a.fenster->StatusText(3), "CEOS Peng / Robinson");
  EXPECT_TRUE(a.fenster->StatusText(4).endsWith(" (PARTIAL-Konzept)"))
      << a.fenster->StatusText(4).toStdString();

  QListWidget* eos = modelle->EOSListe();
  const QList<QListWidgetItem*> treffer = eos->findItems("VIRIAL-EOS Redlich / Kwong", Qt::MatchStartsWith);
  ASSERT_EQ(treffer.size(), 1);
  eos->setCurrentItem(treffer[0]);
  EXPECT_EQ(a.s.Modell.EOSIndex, 13);
  EXPECT_TRUE(modelle->Konzept(1)->isChecked());
  EXPECT_FALSE(modelle->Konzept(0)->isEnabled());
  EXPECT_EQ(a.fenster->StatusText(3), "VIRIAL-EOS Redlich / Kwong");
  EXPECT_FALSE(modelle->HLVListe()->findItems("aus kub.-EOS", Qt::MatchStartsWith).size());

  Taste(eos, Qt::Key_Escape);
  EXPECT_FALSE(modelle->parentWidget()->isVisible());
  a.fenster->Befehl("mnuModel")->trigger();
  EXPECT_TRUE(modelle->parentWidget()->isVisible());
  EXPECT_EQ(a.s.Modell.EOSIndex, 13); // shown again as it was, not built anew
}

TEST(RahmenAblauf, UnknownNameIsReportedAndTheSelectionStays) {
  Ablauf a;
  StoffWahlFenster* wahl = a.DatenbankOeffnen();
  ASSERT_NE(wahl, nullptr);
  a.NameEingeben(wahl, "Quorium", 1);
  ASSERT_EQ(a.ui.Meldungen().size(), 1u);
  EXPECT_EQ(a.ui.Letzte().text, "Unter dieser Bezeichnung nichts gefunden.");
  EXPECT_EQ(a.ui.Letzte().titel, "Fehler bei Stoffwahl");
  EXPECT_TRUE(wahl->isVisible());
  EXPECT_EQ(wahl->Liste()->currentRow(), 0);
  EXPECT_EQ(wahl->NamensFeld()->currentText(), "Methan");

  Taste(wahl->NamensFeld()->lineEdit(), Qt::Key_Escape); // Esc in the name field goes to the list
  EXPECT_TRUE(wahl->isVisible());
}

} // namespace
} // namespace quor::ui
