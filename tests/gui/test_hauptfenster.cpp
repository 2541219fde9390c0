// The main window's registry of menus and buttons, and the printer that writes the reports.
#include "core/project_state.h"
#include "dienste/skript_oberflaeche.h"
#include "gui/basis/qt_drucker.h"
#include "gui/frame/mdi_quor.h"
#include "gui_hilfe.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quor::ui {
namespace {

using test::App;

// The assembled registry: what the menus show is what runs.
TEST(Hauptfenster, EveryBuiltRowHasItsHandlerAndEveryButtonAnEntry) {
  App();
  ProjectState s;
  InitProjectState(s);
  SkriptOberflaeche ui;
  mdiQUOR fenster(s, ui);
  const BefehlsRegister& r = fenster.Logik().Befehle;
  int gebaut = 0, offen = 0;
  for (const BefehlsZeile& z : r.Zeilen()) {
    if (z.Trenner() || z.eltern == ToolbarName) continue;
    const bool menue = r.IstMenue(z.name, z.index);
    EXPECT_EQ(z.gebaut, static_cast<bool>(z.handler)) << z.Schluessel();
    if (!menue && !z.versteckt) {
      EXPECT_NE(fenster.Befehl(QString::fromStdString(z.name), z.index), nullptr) << z.Schluessel();
      (z.gebaut ? gebaut : offen)++;
    }
  }
  EXPECT_GT(gebaut, 40);
  EXPECT_GE(offen, 100); // the diagrams, the data editors, the fitting: not built yet
  const auto knoepfe = r.Kinder(ToolbarName);
  EXPECT_EQ(knoepfe.size(), 11u);
  for (const BefehlsZeile* k : knoepfe) {
    EXPECT_NE(r.Finde(k->zielName, k->zielIndex), nullptr) << k->Schluessel() << " -> " << k->zielName;
    EXPECT_NE(fenster.Knopf(k->index), nullptr) << k->index;
    EXPECT_EQ(fenster.Knopf(k->index)->toolTip().toStdString(), k->text);
  }
}

TEST(Drucker, WritesTextAndLinesIntoAPdf) {
  App();
  QTemporaryDir ordner;
  ASSERT_TRUE(ordner.isValid());
  const QString pdf = ordner.filePath("bericht.pdf");
  QtDrucker drucker(nullptr);
  drucker.SetzePdfZiel(pdf.toStdString());
  ASSERT_TRUE(drucker.StartDokument("QUOR: Results of Calculation"));
  drucker.Schrift("COURIER", 10, false);
  // A fixed-pitch font: ten characters are ten times as wide as one.
  EXPECT_NEAR(drucker.TextBreite("XXXXXXXXXX"), 10 * drucker.TextBreite("X"), 0.5);
  drucker.Position(72, 72);
  drucker.DruckeText("Substance: Methan");
  EXPECT_DOUBLE_EQ(drucker.X(), 0);
  EXPECT_GT(drucker.Y(), 72);
  drucker.Linie(72, 100, 300, 100);
  drucker.EndeDokument();
  QFile datei(pdf);
  ASSERT_TRUE(datei.open(QIODevice::ReadOnly));
  EXPECT_TRUE(datei.read(5).startsWith("%PDF"));
}

} // namespace
} // namespace quor::ui
