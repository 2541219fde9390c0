// The frame from start to tested models: open the default database through the menu, find a
// substance by typing its German name, hide the model window with Esc and bring it back, read the
// reports. At each step the frame and its windows show what their logic says, and the German texts
// of the frame, the substance choice and the model window fit their widgets at the windows' opening
// sizes; the windows fit a screen of 1280 x 800. With QUOR_BILDER_VERZEICHNIS set, the pictures
// of the windows are written there (the documentation's screenshots).
#include "engine/eos_parameter.h"
#include "gui/substance/text_fenster.h"
#include "programm_hilfe.h"

#include <QLayout>
#include <QMdiArea>
#include <QScrollBar>
#include <QStatusBar>

namespace quor::ui {
namespace {

using test::Taste;
using test::ZeigtLogik;

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

TEST(RahmenAblauf, GermanNameLeadsThroughSubstanceChoiceToTheModelsAndTheTextsFit) {
  test::Programm a;
  mdiQUOR& f = *a.fenster;
  f.resize(1180, 780); // the size the frame opens with
  ZeigtLogik(f, a.s);
  StoffWahlFenster* wahl = a.DatenbankOeffnen();
  ASSERT_TRUE(wahl && wahl->isVisible());
  EXPECT_EQ(wahl->Liste()->count(), static_cast<int>(wahl->Logik().List1.size()));
  ZeigtLogik(f, a.s);

  // An earlier input is not completed into what the user types in the focused field: "methan"
  // stays methane.
  QLineEdit* name = wahl->NamensFeld()->lineEdit();
  QFocusEvent fokus(QEvent::FocusIn, Qt::OtherFocusReason);
  QApplication::sendEvent(name, &fokus);
  name->clear();
  test::Tippen(name, "methanol");
  Taste(name, Qt::Key_Return);
  name->clear();
  test::Tippen(name, "methan");
  EXPECT_EQ(name->text(), "methan");
  Taste(name, Qt::Key_Return);
  EXPECT_EQ(wahl->Logik().NameCombo, "Methan");
  name->clear();
  test::Tippen(name, "kohlendioxid");
  Taste(name, Qt::Key_Return); // the first Enter shows the hit
  EXPECT_TRUE(wahl->isVisible());
  EXPECT_EQ(wahl->Liste()->currentRow(), wahl->Logik().ListIndex);
  EXPECT_EQ(wahl->NummernFeld()->text().toStdString(), wahl->Logik().Text1);
  Auslegen(wahl);
  EXPECT_LE(wahl->width(), 1280);
  EXPECT_LE(wahl->height(), 800);
  EXPECT_EQ(Abgeschnitten(wahl), std::vector<std::string>{});
  EXPECT_TRUE(test::Bild(wahl, "stoffwahl.png"));
  Taste(name, Qt::Key_Return); // the second one goes on to the models
  EXPECT_FALSE(wahl->isVisible());
  EXPECT_EQ(a.s.Stoff.StoffName, "Kohlendioxid");
  ZeigtLogik(f, a.s);
  EXPECT_TRUE(f.Ampel()->isEnabled()); // the substance's data graded in colour
  ModellFenster* modelle = f.Modelle();
  ASSERT_TRUE(modelle && modelle->isVisible());
  ZeigtLogik(modelle);
  EXPECT_TRUE(a.ui.Meldungen().empty());
  Auslegen(&f);
  EXPECT_EQ(Abgeschnitten(modelle), std::vector<std::string>{});
  EXPECT_EQ(Abgeschnitten(f.statusBar()), std::vector<std::string>{});
  // The switchboard opens whole inside the frame's work area.
  const QRect rahmen = f.Arbeitsflaeche()->viewport()->rect();
  EXPECT_TRUE(rahmen.contains(modelle->parentWidget()->geometry()))
      << modelle->parentWidget()->width() << "x" << modelle->parentWidget()->height();
  EXPECT_TRUE(test::Bild(modelle->parentWidget(), "modelle.png"));
  EXPECT_TRUE(test::Bild(&f, "hauptfenster.png"));

  // The longest menu texts still leave the menus narrower than the screen.
  for (const char* menueName : {"mnuData", "mnuCalcMenue", "mnu2D"}) {
    QMenu* menue = f.Menue(menueName);
    ASSERT_NE(menue, nullptr) << menueName;
    menue->adjustSize();
    EXPECT_LT(menue->width(), 1000) << menueName;
  }
  f.Menue("mnuData")->popup(QPoint(0, 0));
  EXPECT_TRUE(test::Bild(f.Menue("mnuData"), "menue_daten.png"));
  f.Menue("mnuData")->hide();

  // Esc hides the model window; its menu entry shows it again as it was, not built anew.
  modelle->Konzept(1)->click();
  Taste(modelle->EOSListe(), Qt::Key_Escape);
  EXPECT_FALSE(modelle->parentWidget()->isVisible());
  f.Befehl("mnuModel")->trigger();
  EXPECT_TRUE(modelle->parentWidget()->isVisible());
  EXPECT_FALSE(a.s.Modell.KonzeptGlobal);
  ZeigtLogik(modelle);

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

} // namespace
} // namespace quor::ui
