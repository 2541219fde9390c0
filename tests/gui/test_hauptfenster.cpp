// The main window's registry of menus and buttons, and its database service: choosing a database
// tells success from a cancelled dialog and a missing file, so that the frame keeps its substance
// unless a database was opened.
#include "gui/frame/rahmen_dienste.h"
#include "programm_hilfe.h"

namespace quor::ui {
namespace {

// The assembled registry: what the menus show is what runs.
TEST(Hauptfenster, EveryBuiltRowHasItsHandlerAndEveryButtonAnEntry) {
  test::Programm a;
  mdiQUOR& fenster = *a.fenster;
  const BefehlsRegister& r = fenster.Logik().Befehle;
  int gebaut = 0;
  std::vector<std::string> offen; // entries of dialogs not built yet: shown, greyed
  for (const BefehlsZeile& z : r.Zeilen()) {
    if (z.Trenner() || z.eltern == ToolbarName) continue;
    const bool menue = r.IstMenue(z.name, z.index);
    EXPECT_EQ(z.gebaut, static_cast<bool>(z.handler)) << z.Schluessel();
    if (!menue && !z.versteckt) {
      EXPECT_NE(fenster.Befehl(QString::fromStdString(z.name), z.index), nullptr) << z.Schluessel();
      if (z.gebaut)
        ++gebaut;
      else
        offen.push_back(z.Schluessel());
    }
  }
  EXPECT_GT(gebaut, 140);
  // A greyed entry is still in the menu, and never enabled.
  for (const std::string& name : offen) {
    const BefehlsZeile* z = nullptr;
    for (const BefehlsZeile& k : r.Zeilen())
      if (k.Schluessel() == name) z = &k;
    ASSERT_TRUE(z);
    EXPECT_FALSE(fenster.Befehl(QString::fromStdString(z->name), z->index)->isEnabled()) << name;
  }
  const auto knoepfe = r.Kinder(ToolbarName);
  EXPECT_EQ(knoepfe.size(), 11u);
  for (const BefehlsZeile* k : knoepfe) {
    EXPECT_NE(r.Finde(k->zielName, k->zielIndex), nullptr) << k->Schluessel() << " -> " << k->zielName;
    EXPECT_NE(fenster.Knopf(k->index), nullptr) << k->index;
    EXPECT_EQ(fenster.Knopf(k->index)->toolTip().toStdString(), k->text);
  }
}

TEST(RahmenDienste, DatabaseChoiceReportsWhetherADatabaseWasOpened) {
  ProjectState s;
  InitProjectState(s);
  s.Datenbank.ProgrammVerzeichnis = QUOR_PROGRAMM_VERZEICHNIS;
  SkriptOberflaeche ui;
  EXPECT_FALSE(DatenbankWaehlenUndOeffnen(s, 7, ui)); // the dialog is cancelled
  EXPECT_FALSE(s.Datenbank.DatenbankGeladen);
  ui.dateien = {"QUOR.Q07"};
  EXPECT_TRUE(DatenbankWaehlenUndOeffnen(s, 7, ui));
  EXPECT_EQ(s.Datenbank.PfadQ07, "QUOR.Q07");

  // A missing file: the open database and its path stay, with the message.
  ui.dateien = {"FEHLT.Q07"};
  EXPECT_FALSE(DatenbankWaehlenUndOeffnen(s, 7, ui));
  EXPECT_EQ(s.Datenbank.PfadQ07, "QUOR.Q07");
  EXPECT_TRUE(s.Datenbank.DatenbankGeladen);
  EXPECT_EQ(ui.Meldungen().size(), 1u);
}

} // namespace
} // namespace quor::ui
