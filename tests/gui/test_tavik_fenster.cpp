// The unit converter's window: a typed value in every unit of its quantity, the molar mass field
// only where it counts, the reasons instead of numbers, and the English window of Tavik1W_E.
#include "gui_hilfe.h"
#include "tavik_fenster.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTableWidget>

#include <gtest/gtest.h>

namespace quor::tavik {
namespace {

TEST(TavikFenster, ConvertsAsOneTypesAndSaysWhyAValueIsMissing) {
  ui::test::App();
  TavikFenster f(false);
  f.show();
  EXPECT_EQ(f.windowTitle(), QString::fromUtf8("Tavik1W  -  Einheiten umrechnen"));
  f.WertFeld()->setText("100");
  f.EinheitenBox()->setCurrentIndex(1); // °C
  EXPECT_EQ(f.Ergebnis(0), "373.15");
  EXPECT_EQ(f.Ergebnis(2), "212");
  EXPECT_FALSE(f.MolmassenFeld()->isVisible());
  f.WertFeld()->setText("-300");
  EXPECT_EQ(f.Ergebnis(0), QString::fromUtf8("unter dem absoluten Nullpunkt"));
  f.WertFeld()->setText("1,5x");
  EXPECT_EQ(f.Meldung()->text(), QString::fromUtf8("keine gültige Zahl"));

  // Density of liquid propane: the molar units need the molar mass.
  f.GroessenListe()->setCurrentRow(2);
  EXPECT_TRUE(f.MolmassenFeld()->isVisible());
  f.EinheitenBox()->setCurrentIndex(6); // kg/m³
  f.WertFeld()->setText("500,0");
  EXPECT_EQ(f.Ergebnis(3), "0.002");
  EXPECT_EQ(f.Ergebnis(0), QString::fromUtf8("Molmasse erforderlich"));
  f.MolmassenFeld()->setText("44.097");
  EXPECT_EQ(f.Ergebnis(0), "0.088194");
  EXPECT_TRUE(ui::test::Bild(&f, "tavik1w.png"));
}

TEST(TavikFenster, TheEnglishWindowSpeaksEnglish) {
  ui::test::App();
  TavikFenster f(true);
  EXPECT_EQ(f.windowTitle(), "Tavik1W  -  unit converter");
  EXPECT_EQ(f.GroessenListe()->item(1)->text(), "Pressure");
  f.GroessenListe()->setCurrentRow(2);
  f.WertFeld()->setText("1");
  EXPECT_EQ(f.Ergebnis(0), "1");
  EXPECT_EQ(f.Ergebnis(3), "needs the molar mass");
}

} // namespace
} // namespace quor::tavik
