// The German texts of the frame, the substance choice and the model window fit their widgets at the
// windows' opening sizes, and the windows fit a screen of 1280 x 800. With QUOR_BILDER_VERZEICHNIS
// set, the pictures of the three windows are written there (the documentation's screenshots).
#include "programm_hilfe.h"

#include <QLayout>
#include <QMdiArea>
#include <QStatusBar>

namespace quor::ui {
namespace {

using test::Taste;

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
  test::Programm a;
  mdiQUOR& fenster = *a.fenster;
  fenster.resize(1180, 780); // the size the frame opens with
  StoffWahlFenster* wahl = a.DatenbankOeffnen();
  ASSERT_NE(wahl, nullptr);
  QLineEdit* name = wahl->NamensFeld()->lineEdit();
  name->clear();
  test::Tippen(name, "Kohlendioxid");
  Taste(name, Qt::Key_Return);
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
