// The Joback window: the group table with every column, counts typed into it (digits only) with the
// molar mass at once, the modes and their results, the number filter of the typed-over fields, the
// transfer button's caption by the editor hook, help, and the picture of the window.
#include "dienste/skript_oberflaeche.h"
#include "gui/substance/joback_fenster.h"
#include "gui_hilfe.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

namespace quor::ui {
namespace {

void Anzahl(JobackFenster& w, int zeile, const QString& text) {
  w.Tabelle()->item(zeile, JobackFenster::SpalteAnzahl)->setText(text);
}

TEST(JobackFenster, TableCountsModesAndResults) {
  test::App();
  ProjectState s;
  InitProjectState(s);
  SkriptOberflaeche ui;
  JobackFenster w(s, ui, JobackKritisch, nullptr);
  w.show();
  EXPECT_EQ(w.windowTitle(), "LYDERSEN/JOBACK-Berechnung kritischer Daten");
  EXPECT_TRUE(w.ModusKnopf(JobackKritisch)->isChecked());
  // It fits a screen of 1280 x 800.
  EXPECT_LE(w.width(), 1280);
  EXPECT_LE(w.height(), 800);
  EXPECT_LE(w.minimumSizeHint().width(), 1280);

  QTableWidget* t = w.Tabelle();
  ASSERT_EQ(t->rowCount(), 41);
  EXPECT_EQ(t->item(19, JobackFenster::SpalteGruppe)->text(), "-OH (alcohol)");
  QStringList zeile;
  for (int c = JobackFenster::SpalteAtome; c < JobackFenster::Spalten; ++c)
    zeile << t->item(0, c)->text();
  EXPECT_EQ(zeile.join(' '),
            "4 15.03494 0.0141 -0.0012 65 23.58 -5.10 -76.45 -43.96 19.5 -0.00808 0.000153 -9.7E-08");
  EXPECT_FALSE(t->item(0, JobackFenster::SpalteGruppe)->flags() & Qt::ItemIsEditable);

  // The isopropanol of the example line; a letter among the digits is dropped.
  Anzahl(w, 0, "2x");
  Anzahl(w, 2, "1");
  Anzahl(w, 19, "1");
  EXPECT_EQ(t->item(0, JobackFenster::SpalteAnzahl)->text(), "2");
  EXPECT_EQ(w.Feld("txtMM")->text(), "60.096");

  ui.eingaben.push_back(std::nullopt);
  w.Knopf("cmdCalcCrit")->click();
  EXPECT_EQ(w.Feld("txtTb")->text(), "359.8");
  EXPECT_EQ(w.Feld("txtTc")->text().toStdString(), w.Logik().txtTc);
  // The boiling point typed over, with a letter the filter drops, feeds omega.
  w.Feld("txtTb")->clear();
  test::Tippen(w.Feld("txtTb"), "35x5,4");
  EXPECT_EQ(w.Feld("txtTb")->text(), "355,4");
  w.Knopf("cmdOmega")->click();
  EXPECT_EQ(w.Feld("txtOmega")->text().toStdString(), w.Logik().txtOmega);
  EXPECT_TRUE(w.Logik().OmegaGerechnet);
  EXPECT_TRUE(test::Bild(&w, "joback.png"));

  w.ModusKnopf(JobackCp)->click();
  EXPECT_EQ(w.windowTitle(), "JOBACK-Berechnung Idealgas-cp aus Molekül-Inkrementen");
  w.Knopf("cmdCalccp")->click();
  EXPECT_EQ(w.Feld("txtC0")->text(), "3.77");
  EXPECT_TRUE(test::Bild(&w, "joback_cp.png"));
  EXPECT_EQ(w.Knopf("cmdApply")->text(), "Übernehmen in Datenbasis");
  w.Knopf("cmdApply")->click();
  EXPECT_TRUE(s.Stoff.CpPolyOK);

  w.Knopf("cmdHelp")->click();
  EXPECT_EQ(ui.hilfeThemen, std::vector<int>{HilfeJoback});
  w.Knopf("cmdReset")->click();
  EXPECT_TRUE(t->item(0, JobackFenster::SpalteAnzahl)->text().isEmpty());
  EXPECT_TRUE(w.Feld("txtC0")->text().isEmpty());
}

TEST(JobackFenster, TransferCaptionFollowsTheEditor) {
  test::App();
  ProjectState s;
  InitProjectState(s);
  SkriptOberflaeche ui;
  JobackFenster w(s, ui, JobackBildung, nullptr);
  w.Logik().Editor = [](int, double) {};
  w.show();
  EXPECT_TRUE(w.ModusKnopf(JobackBildung)->isChecked());
  EXPECT_EQ(w.Knopf("cmdApply")->text(), "Übertragen in Daten-Editor");
}

} // namespace
} // namespace quor::ui
