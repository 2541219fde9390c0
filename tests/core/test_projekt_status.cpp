// The project status report: a new project, a loaded one with its database, substance and measured
// data, and the warning for a data file of another substance.
#include "core/projekt_status.h"

#include "support/golden.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

using test::PruefeGolden;

ProjectState MitStoff() {
  ProjectState s;
  InitProjectState(s);
  s.Datenbank.DatenbankGeladen = true;
  s.Datenbank.DatenbankTyp = 7;
  s.Datenbank.PfadQ07 = "QUOR.Q07";
  s.Datenbank.StoffAnzahl = 430;
  s.Datenbank.StoffIndex = 1;
  s.Stoff.Formel = "CH4";
  s.Stoff.StoffName = "Methan";
  s.Stoff.CASRN = "74-82-8";
  s.Modell.EOSIndex = 6;
  s.Einheiten.TVorgabe = 190.56f;
  s.Einheiten.pVorgabe = 4599;
  s.Einheiten.vVorgabe = 0.1f;
  return s;
}

TEST(ProjektStatus, DescribesANewProject) {
  ProjectState s;
  InitProjectState(s);
  EXPECT_STREQ(ProjektStatusTitel, " Info Projekt-Status ");
  PruefeGolden("core/status_neu.txt", ProjektStatusText(s));
}

TEST(ProjektStatus, DescribesALoadedProjectWithUnsavedData) {
  ProjectState s = MitStoff();
  s.Projekt.LetzteSitzung = true;
  s.Projekt.ProjektDatum = "01.02.2024";
  s.Projekt.DateiKommentar = "Erdgas";
  s.Mess.ExpAnzahl = 1;
  PruefeGolden("core/status_geladen.txt", ProjektStatusText(s));

  s.Projekt.LetzteSitzung = false;
  s.Projekt.ProjektDatei = "Erdgas.QC6";
  EXPECT_NE(ProjektStatusText(s).find("Projekt\r\n    Erdgas.QC6\r\n    Dateidatum 01.02.2024\r\n"),
            std::string::npos);
}

// A saved data file is named; one of another substance with a warning; without a CAS number the names decide.
TEST(ProjektStatus, WarnsWhenTheDataFileIsOfAnotherSubstance) {
  ProjectState s = MitStoff();
  s.Mess.ExpAnzahl = 3;
  s.Mess.BatchDateiPfad = "daten/ethan.BAQ";
  s.Mess.BatchDateiTitel = "ethan.BAQ";
  s.Mess.BatchDatum = "03.04.2023";
  s.Mess.BatchStoff = "Ethan";
  s.Mess.BatchCAS = "74-84-0";
  EXPECT_TRUE(DatenfileStoffFremd(s));
  EXPECT_NE(
      ProjektStatusText(s).find("    File ethan.BAQ vom 03.04.2023\r\n    mit 3 experimentellen Punkten\r\n"
                                "    Stoff: Ethan\r\n    Dateikommentar:<>\r\nWARNUNG:\r\n"
                                "Der Stoff dieses Datenfiles stimmt nicht mit dem Stoff des Projekts "
                                "überein.\r\n"),
      std::string::npos);
  s.Mess.BatchCAS.clear();
  s.Mess.BatchStoff = "METHAN";
  EXPECT_FALSE(DatenfileStoffFremd(s));
}

} // namespace
} // namespace quor
