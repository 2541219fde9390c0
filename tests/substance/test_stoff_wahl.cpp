// The substance search of the default database: by list name, CAS number, system number and
// synonym (the spelling rules of the key are the synonym tests'), and what it tells when nothing is
// found.
#include "dienste/skript_oberflaeche.h"
#include "substance/stoff_wahl_suche.h"
#include "support/stoff_fixture.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

using namespace quor::test;

struct Ergebnis {
  int16_t index;
  bool notFound;
};

Ergebnis Suchen(ProjectState& s, ui::Oberflaeche& ui, const std::string& text, int16_t start = 7) {
  Ergebnis e{start, true};
  StoffSuchen(s, ui, text, e.index, e.notFound);
  return e;
}

TEST(StoffSuchen, FindsByNameCasNumberAndSynonym) {
  ProjectState s = MitStandardDatenbank();
  ui::SkriptOberflaeche ui;
  const int16_t methan = Position(s, "Methan"), ethanol = Position(s, "Ethanol");
  ASSERT_GT(methan, 0);
  ASSERT_GT(ethanol, 0);
  EXPECT_EQ(Suchen(s, ui, "methan   ").index, methan); // the list name, in any case
  EXPECT_EQ(Suchen(s, ui, "64-17-5").index, ethanol);  // the list's CAS number
  EXPECT_EQ(Suchen(s, ui, "Methane").index, methan);   // an English synonym
  EXPECT_EQ(Suchen(s, ui, "Äthanol").index, ethanol);  // the old German spelling
  EXPECT_TRUE(ui.protokoll.empty());
}

TEST(StoffSuchen, LooksUpSystemAndCasNumbers) {
  ProjectState s = MitStandardDatenbank();
  const DatenbankGruppe& db = s.Datenbank;
  EXPECT_EQ(IndexVonMDBNr(s, db.MDBNummern[200]), 200);
  EXPECT_EQ(IndexVonMDBNr(s, 9999), 0);
  EXPECT_EQ(IndexVonCAS(s, "74-82-8   "), 1); // compared right-trimmed
  EXPECT_EQ(IndexVonCAS(s, "1-1-1"), 0);
  EXPECT_EQ(NameOhneZusatz("Methan ; Sumpfgas"), "Methan");
}

TEST(StoffSuchen, KeepsTheCurrentEntryWhenNothingIsFound) {
  ProjectState s = MitStandardDatenbank();
  ui::SkriptOberflaeche ui;
  const Ergebnis e = Suchen(s, ui, "Metha", 7);
  EXPECT_TRUE(e.notFound);
  EXPECT_EQ(e.index, 7);
  ASSERT_EQ(ui.Meldungen().size(), 1u);
  EXPECT_EQ(ui.Letzte().text, "Unter dieser Bezeichnung nichts gefunden.");
  EXPECT_EQ(ui.Letzte().titel, "Fehler bei Stoffwahl");
  EXPECT_EQ(ui.Letzte().symbol, ui::Symbol::Ausruf);
}

TEST(StoffSuchen, TellsOfASynonymWhoseSubstanceIsNotInTheDatabase) {
  TempOrdner dir;
  dir.Schreibe("SYNOM7.TXT", "1-1-1\r\nXu_Unob en_Unob de\r\nUNOBTANIUM\r\n\r\nEND\r\n");
  ProjectState s = MitStandardDatenbank(dir.Pfad());
  ui::SkriptOberflaeche ui;
  const Ergebnis e = Suchen(s, ui, "Unobtanium", 3);
  EXPECT_TRUE(e.notFound);
  EXPECT_EQ(e.index, 3);
  EXPECT_EQ(ui.Letzte().text, "Unob de\r\nXu\r\nUnob en\r\nCAS-Nr. 1-1-1\r\n"
                              "  dieser Stoff ist in der Datenbank nicht enthalten  ");

  ProjectState ohne = MitStandardDatenbank(dir.Pfad() + "/fehlt");
  ui::SkriptOberflaeche ui2;
  EXPECT_EQ(Suchen(ohne, ui2, "Methan").index, 1); // the list needs no synonym file
  EXPECT_TRUE(Suchen(ohne, ui2, "Methane").notFound);
  ASSERT_EQ(ui2.Meldungen().size(), 1u); // only the missing file is told
  EXPECT_EQ(ui2.Letzte().titel, "FEHLER");
}

} // namespace
} // namespace quor
