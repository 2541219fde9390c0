// What the tests of the measured data share: a state with a database of two substances (methane,
// water) and water loaded, rows of measured data, and the text of a .BAQ file.
#pragma once

#include "core/project_state.h"

#include <string>
#include <vector>

namespace quor::test {

inline ProjectState MitWasser() {
  ProjectState s;
  InitProjectState(s);
  DatenbankGruppe& db = s.Datenbank;
  db.StoffAnzahl = 2;
  db.NamenListe = {"", "Methan", "Wasser"};
  db.CASListe = {"", "74-82-8", "7732-18-5"};
  db.StoffIndex = 2;
  s.Stoff.StoffName = "Wasser";
  s.Stoff.CASRN = "7732-18-5";
  s.Stoff.MolMasse = 18.015f;
  return s;
}

inline ExpDatenSatz Satz(double T, double p, float rhoL = 0, float rhoV = 0, float hlv = 0, float cp = 0) {
  ExpDatenSatz z;
  z.T = T;
  z.p = p;
  z.RhoL = rhoL;
  z.RhoV = rhoV;
  z.HLV = hlv;
  z.Cp = cp;
  return z;
}

inline void SetzeZeilen(ProjectState& s, const std::vector<ExpDatenSatz>& zeilen) {
  s.Mess.ExpDaten.assign(1, ExpDatenSatz{});
  s.Mess.ExpDaten.insert(s.Mess.ExpDaten.end(), zeilen.begin(), zeilen.end());
  s.Mess.ExpAnzahl = static_cast<int16_t>(zeilen.size());
}

// A file's text: head lines, the count, then the values as given, each on its line.
inline std::string BaqText(const std::string& stoffZeile, int n, const std::vector<std::string>& werte,
                           const std::string& kommentar = "Kommentar") {
  std::string t = "12.05.2024\r\n" + kommentar + "\r\n" + stoffZeile + "\r\n" + std::to_string(n) + "\r\n";
  for (const std::string& w : werte)
    t += w + "\r\n";
  return t;
}

} // namespace quor::test
