// The frame's database service: choosing a database tells success from a cancelled dialog and a
// missing file, so that the frame keeps its substance unless a database was opened.
#include "core/project_state.h"
#include "dienste/skript_oberflaeche.h"
#include "gui/frame/rahmen_dienste.h"

#include <gtest/gtest.h>

namespace quor::ui {
namespace {

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
