// The German texts of the frame, the substance choice and the model window fit their widgets at the
// windows' opening sizes, and the windows fit a screen of 1280 x 800. With QUOR_BILDER_VERZEICHNIS
// set, the pictures of the three windows are written there (the documentation's screenshots).
#include "core/project_state.h"
#include "gui_hilfe.h"
#include "gui/frame/mdi_quor.h"
#include "gui/substance/modell_fenster.h"
#include "gui/substance/stoff_wahl_fenster.h"
#include "dienste/skript_oberflaeche.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPixmap>
#include <QPushButton>
#include <QStatusBar>
#include <gtest/gtest.h>

namespace quor::ui {
namespace {

using test::App;
using test::Taste;
using test::Tippen;

void Bild(QWidget* w, const char* name) {
  EXPECT_TRUE(test::Bild(w, name)) << name;
}

void Auslegen(QWidget* w) {
  QApplication::processEvents();
  if (w->layout()) w->layout()->activate();
  QApplication::processEvents();
}

// Names of the labels, buttons and group titles whose text is wider than the room they were given.
std::vector<std::string> Abgeschnitten(const QWidget* fenster) {
  std::vector<std::string> zu;
  auto pruefe = [&](const QWidget* w, int noetig, const QString& text) {
    if (w->isVisible() && !text.trimmed().isEmpty() && w->width() + 1 < noetig)
      zu.push_back(text.toStdString() + " (" + std::to_string(w->width()) + " < " + std::to_string(noetig) +
                   ")");
  };
  for (const QLabel* l : fenster->findChildren<QLabel*>())
    if (!l->wordWrap() && l->pixmap().isNull()) pruefe(l, l->sizeHint().width(), l->text());
  for (const QAbstractButton* b : fenster->findChildren<QAbstractButton*>())
    pruefe(b, b->sizeHint().width(), b->text());
  for (const QGroupBox* g : fenster->findChildren<QGroupBox*>())
    pruefe(g, g->fontMetrics().horizontalAdvance(g->title()) + 16, g->title());
  return zu;
}

TEST(FensterLayout, GermanTextsFitTheFrameTheSubstanceChoiceAndTheModels) {
  App();
  ProjectState s;
  s.Datenbank.ProgrammVerzeichnis = QUOR_PROGRAMM_VERZEICHNIS;
  SkriptOberflaeche ui;
  ui.dateien.push_back("QUOR.Q07"); // a name alone is taken in the program directory
  mdiQUOR fenster(s, ui);
  fenster.Starten("");
  fenster.show();
  fenster.Befehl("mnuData_OpenBank", 0)->trigger();
  StoffWahlFenster* wahl = fenster.StoffWahl();
  ASSERT_NE(wahl, nullptr);
  wahl->NamensFeld()->lineEdit()->clear();
  Tippen(wahl->NamensFeld()->lineEdit(), "Kohlendioxid");
  Taste(wahl->NamensFeld()->lineEdit(), Qt::Key_Return);
  Auslegen(wahl);
  EXPECT_LE(wahl->width(), 1280);
  EXPECT_LE(wahl->height(), 800);
  EXPECT_EQ(Abgeschnitten(wahl), std::vector<std::string>{});
  Bild(wahl, "stoffwahl.png");

  wahl->OKKnopf()->click();
  ModellFenster* modelle = fenster.Modelle();
  ASSERT_NE(modelle, nullptr);
  Auslegen(&fenster);
  EXPECT_EQ(Abgeschnitten(modelle), std::vector<std::string>{});
  // The switchboard opens whole inside the frame's work area.
  const QRect rahmen = fenster.Arbeitsflaeche()->viewport()->rect();
  EXPECT_TRUE(rahmen.contains(modelle->parentWidget()->geometry()))
      << modelle->parentWidget()->width() << "x" << modelle->parentWidget()->height();
  EXPECT_EQ(Abgeschnitten(fenster.statusBar()), std::vector<std::string>{});
  Bild(modelle->parentWidget(), "modelle.png");
  Bild(&fenster, "hauptfenster.png");

  // The longest menu texts still leave the menus narrower than the screen.
  for (const char* name : {"mnuData", "mnuCalcMenue", "mnu2D"}) {
    QMenu* menue = fenster.Menue(name);
    ASSERT_NE(menue, nullptr) << name;
    menue->adjustSize();
    EXPECT_LT(menue->width(), 1000) << name;
  }
  fenster.Menue("mnuData")->popup(QPoint(0, 0));
  Bild(fenster.Menue("mnuData"), "menue_daten.png");
  fenster.Menue("mnuData")->hide();
}

} // namespace
} // namespace quor::ui
