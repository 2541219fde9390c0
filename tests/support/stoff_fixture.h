// The default database and synonym file as the build puts them into the program directory, and
// substances loaded from it.
#pragma once

#include "core/project_state.h"
#include "substance/datenbank.h"
#include "substance/stoff_laden.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quor::test {

inline const std::string ProgrammVerzeichnis = QUOR_PROGRAMM_VERZEICHNIS;
inline const std::string StandardDatenbank = ProgrammVerzeichnis + "/QUOR.Q07";

inline const char* const CasMethan = "74-82-8";
inline const char* const CasWasser = "7732-18-5";
inline const char* const CasEthanol = "64-17-5";

// Row of the vapour-pressure table of a tag (0 for none).
inline int16_t DampfdruckIndexVon(const std::string& tag) {
  for (int16_t i = 1; i <= 8; ++i)
    if (DampfdruckTagVon(i) == tag) return i;
  return 0;
}

// The default database, opened once per test program and copied for each call; the synonym file
// is looked for in `verzeichnis`.
inline ProjectState MitStandardDatenbank(const std::string& verzeichnis = ProgrammVerzeichnis) {
  static const ProjectState geoeffnet = [] {
    ProjectState z;
    InitProjectState(z);
    int16_t failed = 0;
    bool leer = false;
    LadeDatenbank(z, 7, StandardDatenbank, failed, leer);
    EXPECT_EQ(failed, 0) << "the default database is built by the target stoffdaten";
    return z;
  }();
  ProjectState s = geoeffnet;
  s.Datenbank.ProgrammVerzeichnis = verzeichnis;
  return s;
}

// Position of an entry in one of the database's lists (indexed from 1); 0 if none.
inline int16_t Position(const std::vector<std::string>& liste, const std::string& eintrag) {
  for (std::size_t k = 1; k < liste.size(); ++k)
    if (liste[k] == eintrag) return static_cast<int16_t>(k);
  return 0;
}
inline int16_t Position(const ProjectState& s, const std::string& name) {
  return Position(s.Datenbank.NamenListe, name);
}

// The default database with the substance of CAS number `cas` loaded and the vapour-pressure
// equation of its default tag chosen.
inline ProjectState StoffAusStandardDatenbank(const std::string& cas) {
  ProjectState s = MitStandardDatenbank();
  int16_t failed = 0;
  LadeStoff(s, Position(s.Datenbank.CASListe, cas), failed);
  EXPECT_EQ(failed, 0) << cas;
  EXPECT_EQ(s.Stoff.CASRN, cas);
  s.Modell.DampfdruckIndex = DampfdruckIndexVon(s.Modell.DampfdruckTag);
  return s;
}

} // namespace quor::test
