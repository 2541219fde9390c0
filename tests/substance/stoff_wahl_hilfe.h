// The default database and synonym file of the program directory, opened for the substance choice.
#pragma once

#include "substance/datenbank.h"
#include "dienste/skript_oberflaeche.h"

#include <gtest/gtest.h>

#include <string>

namespace quor::test {

const std::string ProgrammVerzeichnis = QUOR_PROGRAMM_VERZEICHNIS;
const std::string StandardDatenbank = ProgrammVerzeichnis + "/QUOR.Q07";

// The default database; synonyms from `verzeichnis` (the program directory unless told).
inline ProjectState MitStandardDatenbank(const std::string& verzeichnis = ProgrammVerzeichnis) {
  ProjectState s;
  InitProjectState(s);
  s.Datenbank.ProgrammVerzeichnis = verzeichnis;
  int16_t failed = 0;
  bool leer = false;
  LadeDatenbank(s, 7, StandardDatenbank, failed, leer);
  EXPECT_EQ(failed, 0);
  return s;
}

// Position of a German list name; 0 if none.
inline int16_t Position(const ProjectState& s, const std::string& name) {
  for (int k = 1; k <= s.Datenbank.StoffAnzahl; ++k)
    if (s.Datenbank.NamenListe[k] == name) return static_cast<int16_t>(k);
  return 0;
}

} // namespace quor::test
