// The help window's search: the words typed list the pages that hold them, best first, and a click
// opens the page with the first word marked; pictures of two pages for the documentation.
#include "gui/basis/hilfe_fenster.h"
#include "gui_hilfe.h"

#include <QLineEdit>
#include <QListWidget>
#include <QTextBrowser>
#include <QTextCursor>

#include <gtest/gtest.h>

namespace quor::ui {
namespace {

using test::App;

const QString HilfeOrdner = QString(QUOR_PROGRAMM_VERZEICHNIS) + "/help";

TEST(HilfeFensterSuche, TypedWordsListThePagesAndAClickOpensOne) {
  App();
  HilfeFenster fenster(HilfeOrdner, nullptr);
  fenster.show();
  ASSERT_TRUE(fenster.ZeigeThema(0));
  fenster.SuchFeld()->setFocus();
  test::Tippen(fenster.SuchFeld(), QString::fromUtf8("behälter"));
  QListWidget* liste = fenster.TrefferListe();
  ASSERT_GE(liste->count(), 2);
  EXPECT_EQ(liste->item(0)->text(), QString::fromUtf8("Behälter"));

  liste->setCurrentRow(0);
  emit liste->itemClicked(liste->item(0));
  EXPECT_EQ(fenster.Browser()->documentTitle(), QString::fromUtf8("Behälter"));
  EXPECT_EQ(fenster.Browser()->textCursor().selectedText().toLower(), QString::fromUtf8("behälter"));
  EXPECT_EQ(fenster.windowTitle(), QString::fromUtf8("QUOR-6  Hilfe: Behälter"));
  EXPECT_TRUE(test::Bild(&fenster, "hilfe_suche.png"));

  // Another word narrows the list; a word no page holds says so and opens nothing.
  const int vorher = liste->count();
  fenster.SuchFeld()->setText(QString::fromUtf8("Behälter Konnode"));
  EXPECT_LT(liste->count(), vorher);
  fenster.SuchFeld()->setText(QString::fromUtf8("Behälter xyzzy"));
  ASSERT_EQ(liste->count(), 1);
  EXPECT_EQ(liste->item(0)->flags(), Qt::NoItemFlags);
  fenster.SuchFeld()->clear();
  EXPECT_EQ(liste->count(), 0);
}

TEST(HilfeFensterSuche, EnterOpensTheBestPageAndTheIsochorSectionHasItsPlace) {
  App();
  HilfeFenster fenster(HilfeOrdner, nullptr);
  fenster.show();
  fenster.SuchFeld()->setText("Isochoren Konnode Koexistenzkurve");
  ASSERT_GE(fenster.TrefferListe()->count(), 1);
  test::Taste(fenster.SuchFeld(), Qt::Key_Return);
  EXPECT_EQ(fenster.Browser()->documentTitle(), "2D-Diagramme");
  EXPECT_FALSE(fenster.Browser()->textCursor().selectedText().isEmpty());
  fenster.SuchFeld()->clear();
  fenster.Browser()->scrollToAnchor("isochoren");
  EXPECT_TRUE(test::Bild(&fenster, "hilfe_isochoren.png"));
}

} // namespace
} // namespace quor::ui
