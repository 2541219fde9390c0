// The help window over the program directory's help pages.
#include "gui_hilfe.h"
#include "gui/basis/hilfe_fenster.h"
#include "gui/basis/qt_oberflaeche.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTextBrowser>
#include <gtest/gtest.h>

namespace quor::ui {
namespace {

const QString HilfeOrdner = QString(QUOR_PROGRAMM_VERZEICHNIS) + "/help";

TEST(Hilfe, TopicsOpenTheirPagesInTheProgramsOwnWindow) {
  test::App();
  QtOberflaeche ui(nullptr, HilfeOrdner.toStdString());
  EXPECT_EQ(ui.Hilfefenster(), nullptr);
  const std::pair<int, const char*> themen[] = {
      {11223, "Erste Schritte"}, {45333, "Rechenübung"}, {11124, "Tipps"}, {0, "Inhalt"}};
  for (const auto& [thema, titel] : themen) {
    ui.Hilfe(thema);
    HilfeFenster* fenster = ui.Hilfefenster();
    ASSERT_NE(fenster, nullptr);
    EXPECT_TRUE(fenster->isVisible());
    EXPECT_EQ(fenster->Browser()->documentTitle(), QString::fromUtf8(titel)) << thema;
    EXPECT_EQ(fenster->windowTitle(), "QUOR-6  Hilfe: " + QString::fromUtf8(titel));
  }
  EXPECT_TRUE(ui.Hilfefenster()->Browser()->isBackwardAvailable()); // one window, with its history
  ui.Hilfe(11223);
  EXPECT_TRUE(test::Bild(ui.Hilfefenster(), "hilfe.png"));
  delete ui.Hilfefenster();
}

TEST(Hilfe, EveryLinkBetweenThePagesFindsItsPage) {
  const QStringList seiten = QDir(HilfeOrdner).entryList({"*.html"});
  ASSERT_GE(seiten.size(), 4);
  const QRegularExpression verweis("href=\"([^\"#:]+)\"");
  int verweise = 0;
  for (const QString& seite : seiten) {
    QFile datei(HilfeOrdner + "/" + seite);
    ASSERT_TRUE(datei.open(QIODevice::ReadOnly)) << seite.toStdString();
    const QString text = QString::fromUtf8(datei.readAll());
    for (auto it = verweis.globalMatch(text); it.hasNext(); ++verweise) {
      const QString ziel = it.next().captured(1);
      EXPECT_TRUE(QFile::exists(HilfeOrdner + "/" + ziel))
          << seite.toStdString() << " -> " << ziel.toStdString();
    }
  }
  EXPECT_GE(verweise, 9);
}

} // namespace
} // namespace quor::ui
