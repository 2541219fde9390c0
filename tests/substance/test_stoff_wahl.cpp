// The substance search of the default database by list name, CAS number and synonym (the spelling
// rules of the key are the synonym tests'), and a synonym without its substance.
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

// The list name in any case, the list's CAS number, an English synonym, an old German spelling.
TEST(StoffSuchen, FindsByNameCasNumberAndSynonym) {
  ProjectState s = MitStandardDatenbank();
  ui::SkriptOberflaeche ui;
  for (const auto& [text, name] : {std::pair{"methan   ", "Methan"},
                                   {"64-17-5", "Ethanol"},
                                   {"Methane", "Methan"},
                                   {"Äthanol", "Ethanol"}})
    EXPECT_EQ(Suchen(s, ui, text).index, Position(s, name)) << text;
  EXPECT_EQ(IndexVonCAS(s, "74-82-8   "), 1); // compared right-trimmed
  EXPECT_TRUE(ui.protokoll.empty());
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
