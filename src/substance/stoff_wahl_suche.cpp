#include "substance/stoff_wahl_suche.h"

#include "core/festtext.h"
#include "dienste/oberflaeche.h"
#include "substance/synonyme.h"

#include <vector>

namespace quor {

namespace {

const char* const CRLF = "\r\n";

std::string RechtsGetrimmt(const std::string& t) {
  const std::size_t ende = t.find_last_not_of(" \t");
  return ende == std::string::npos ? std::string() : t.substr(0, ende + 1);
}

// Position whose list name or CAS number equals the search text (already in capitals); 0 if none.
int16_t IndexInListen(const DatenbankGruppe& db, const std::string& text) {
  for (int k = 1; k <= db.StoffAnzahl && k < static_cast<int>(db.NamenListe.size()); ++k) {
    if (GrossSchreibung(NameOhneZusatz(db.NamenListe[k])) == text) return static_cast<int16_t>(k);
    if (k < static_cast<int>(db.CASListe.size()) && Trim(db.CASListe[k]) == text)
      return static_cast<int16_t>(k);
  }
  return 0;
}

} // namespace

int16_t IndexInDenListen(const ProjectState& s, const std::string& text) {
  return IndexInListen(s.Datenbank, GrossSchreibung(RechtsGetrimmt(text)));
}

namespace {

void MeldeNichtInDatenbank(ui::Oberflaeche& ui, const std::string& cas, const std::string& line2) {
  std::string text;
  for (const std::string& teil : BeschreibungsTeile(line2))
    text += teil + CRLF;
  text += "CAS-Nr. " + cas + CRLF + "  dieser Stoff ist in der Datenbank nicht enthalten  ";
  ui.Meldung(text, "Hinweis", ui::Symbol::Information);
}

} // namespace

int16_t IndexVonMDBNr(const ProjectState& s, int nummer) {
  const DatenbankGruppe& db = s.Datenbank;
  for (int k = 1; k <= db.StoffAnzahl && k < static_cast<int>(db.MDBNummern.size()); ++k)
    if (db.MDBNummern[k] == nummer) return static_cast<int16_t>(k);
  return 0;
}

int16_t IndexVonCAS(const ProjectState& s, const std::string& cas) {
  const DatenbankGruppe& db = s.Datenbank;
  const std::string gesucht = RechtsGetrimmt(cas);
  for (int k = 1; k <= db.StoffAnzahl && k < static_cast<int>(db.CASListe.size()); ++k)
    if (RechtsGetrimmt(db.CASListe[k]) == gesucht) return static_cast<int16_t>(k);
  return 0;
}

std::string NameOhneZusatz(const std::string& name) {
  return Trim(name.substr(0, name.find(';')));
}

void StoffSuchen(ProjectState& s, ui::Oberflaeche& ui, const std::string& text, int16_t& index,
                 bool& notFound) {
  notFound = false;
  const std::string gesucht = GrossSchreibung(RechtsGetrimmt(text));
  const int16_t inListe = IndexInListen(s.Datenbank, gesucht);
  if (inListe > 0) {
    index = inListe;
    return;
  }
  std::string cas, line2;
  bool missing = false;
  NameNormieren(s, ui, text, cas, line2, missing);
  notFound = true;
  if (missing) return;
  if (cas == "END") {
    ui.Meldung("Unter dieser Bezeichnung nichts gefunden.", "Fehler bei Stoffwahl", ui::Symbol::Ausruf);
    return;
  }
  const int16_t treffer = IndexVonCAS(s, cas);
  if (treffer > 0) {
    index = treffer;
    notFound = false;
    return;
  }
  MeldeNichtInDatenbank(ui, cas, line2);
}

} // namespace quor
