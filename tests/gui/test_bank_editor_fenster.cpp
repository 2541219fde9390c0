// The substance data editor's window over water: its pages, the key filter of a number field, the
// read-only correlated sets, a take-over shown at once, the hooks of its buttons and Esc.
#include "dienste/skript_oberflaeche.h"
#include "gui/substance/bank_editor_fenster.h"
#include "gui_hilfe.h"
#include "support/stoff_fixture.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include <gtest/gtest.h>

namespace quor::ui {
namespace {

TEST(BankEditorFenster, ShowsThePagesFiltersKeysAndTakesOver) {
  test::App();
  ProjectState s = quor::test::StoffAusStandardDatenbank(quor::test::CasWasser);
  SkriptOberflaeche ui;
  BankEditorFenster w(s, ui);
  w.resize(w.sizeHint());
  w.show();
  EXPECT_EQ(w.windowTitle(), "   Sichten/Editieren der Stoffdaten ");
  ASSERT_EQ(w.Seiten()->count(), 6);
  EXPECT_EQ(w.Seiten()->tabText(3), "Dichten rho(T) L und S ");
  // It fits into the frame's work area on a screen of 1280 x 800.
  EXPECT_LE(w.sizeHint().width(), 1180);
  EXPECT_LE(w.sizeHint().height(), 660);
  EXPECT_EQ(w.Feld(83)->text(), "Wasser");
  EXPECT_TRUE(test::Bild(&w, "bank_editor_einzeldaten.png"));
  w.Seiten()->setCurrentIndex(1);
  EXPECT_TRUE(test::Bild(&w, "bank_editor_dampfdruck.png"));
  for (int seite = 2; seite < 6; ++seite) {
    w.Seiten()->setCurrentIndex(seite);
    EXPECT_TRUE(test::Bild(&w, ("bank_editor_seite" + std::to_string(seite + 1) + ".png").c_str()));
  }

  // Letters are dropped, a comma comes as a point; the name field takes letters.
  QLineEdit* omega = w.Feld(7);
  omega->clear();
  test::Tippen(omega, "0x,3q");
  EXPECT_EQ(omega->text(), "0.3");
  w.Feld(5)->clear();
  test::Tippen(w.Feld(5), "0");
  test::Tippen(w.Feld(84), "ab");
  EXPECT_TRUE(w.Feld(84)->text().endsWith("ab"));
  auto* thompson = w.findChild<QLineEdit*>("Antoine0");
  ASSERT_NE(thompson, nullptr);
  EXPECT_TRUE(thompson->isReadOnly());

  int uebernommen = 0;
  QObject::connect(&w, &BankEditorFenster::uebernommen, [&uebernommen] { ++uebernommen; });
  w.Knopf("cmdUebernehmen")->click();
  EXPECT_EQ(uebernommen, 1);
  EXPECT_EQ(w.Feld(5)->text(), "1E-37");
  EXPECT_FLOAT_EQ(static_cast<float>(s.Stoff.omega), 0.3f);

  int modus = 0;
  std::string gezeichnet;
  w.Logik().JobackOeffnen = [&modus](int m) { modus = m; };
  w.Logik().DiagrammOffen2D = [] { return false; };
  w.Logik().Zeichnen = [&gezeichnet](const std::string& n, int i) { gezeichnet = n + std::to_string(i); };
  w.Knopf("cmdApplyJOBACKcp")->click();
  w.Knopf("cmdDrawHLV")->click();
  EXPECT_EQ(modus, JobackCp);
  EXPECT_EQ(gezeichnet, "mnuGraf_sub_database7");
  w.JobackWert(33, 250);
  EXPECT_EQ(w.Feld(33)->text(), "250");

  w.Knopf("cmdHilfe")->click();
  EXPECT_EQ(ui.hilfeThemen, std::vector<int>{HilfeBankEditor});
  ui.antworten.push_back(Antwort::Abbrechen); // the Joback value is not taken over yet
  w.Knopf("cmdEsc")->click();
  EXPECT_TRUE(w.isVisible());
  EXPECT_EQ(ui.Letzte().art, "Frage");
  ui.antworten.push_back(Antwort::OK);
  test::Taste(&w, Qt::Key_Escape);
  EXPECT_FALSE(w.isVisible());
}

} // namespace
} // namespace quor::ui
