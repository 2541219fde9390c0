// The frame's services from the substance and engine layers: choosing a database tells success from
// a cancelled dialog and a missing file, and the EOS report comes with its title.
#include "core/rahmen.h"
#include "engine/eos_parameter.h"
#include "substance/datenbank.h"
#include "substance/stoff_laden.h"
#include "gui/frame/rahmen_dienste.h"
#include "dienste/skript_oberflaeche.h"

#include <gtest/gtest.h>

namespace quor::ui {
namespace {

struct Dienste {
  ProjectState s;
  SkriptOberflaeche ui;
  Dienste() {
    InitProjectState(s);
    s.Datenbank.ProgrammVerzeichnis = QUOR_PROGRAMM_VERZEICHNIS;
  }
};

TEST(RahmenDienste, DatabaseChoiceReportsWhetherADatabaseWasOpened) {
  Dienste d;
  EXPECT_FALSE(DatenbankWaehlenUndOeffnen(d.s, 7, d.ui)); // the dialog is cancelled
  EXPECT_FALSE(d.s.Datenbank.DatenbankGeladen);
  d.ui.dateien = {"QUOR.Q07"};
  EXPECT_TRUE(DatenbankWaehlenUndOeffnen(d.s, 7, d.ui));
  EXPECT_EQ(d.s.Datenbank.PfadQ07, "QUOR.Q07");
  EXPECT_GT(d.s.Datenbank.StoffAnzahl, 400);

  // A missing file: the open database and its path stay, with the message.
  d.ui.dateien = {"FEHLT.Q07"};
  EXPECT_FALSE(DatenbankWaehlenUndOeffnen(d.s, 7, d.ui));
  EXPECT_EQ(d.s.Datenbank.PfadQ07, "QUOR.Q07");
  ASSERT_EQ(d.ui.Meldungen().size(), 1u);
  EXPECT_EQ(d.ui.Letzte().titel, "Warnung");
  EXPECT_FALSE(DatenbankWaehlenUndOeffnen(d.s, 7, d.ui)); // cancelled again: nothing changes
  EXPECT_EQ(d.s.Datenbank.PfadQ07, "QUOR.Q07");
}

TEST(RahmenDienste, ParameterReportOfTheChosenModelWithItsTitle) {
  Dienste d;
  RahmenLogik logik(d.s, d.ui, StandardDienste(d.ui));
  logik.Start("");
  d.ui.dateien = {"QUOR.Q07"};
  ASSERT_TRUE(logik.Ausfuehren("mnuData_OpenBank", 0));
  int16_t failed = 0;
  d.s.Datenbank.StoffIndex = 1;
  LadeStoff(d.s, 1, failed); // Methan, as the substance choice loads it
  ASSERT_EQ(failed, 0);
  MenueFreigaben& f = d.s.Projekt.Freigaben;
  f.Stoff = f.Modell = f.KritischerPunkt = true;
  d.s.Modell.EOSIndex = 6;
  int16_t err = 0;
  EOSParameterSetup(d.s, d.ui, 6, err);
  ASSERT_EQ(err, 0);
  ASSERT_TRUE(logik.Ausfuehren("mnuData_ParameterEOS"));
  EXPECT_EQ(d.ui.Letzte().titel, " Parameter der generalisierten Zustandsgleichung ");
  EXPECT_NE(d.ui.Letzte().text.find("a0 = "), std::string::npos) << d.ui.Letzte().text;
  EXPECT_NE(d.ui.Letzte().text.find("krit. Volumen aus T(cr) und p(cr) berechnet:"), std::string::npos);
}

} // namespace
} // namespace quor::ui
