#include "stoffdaten.h"

#include "core/festtext.h"
#include "core/text_kodierung.h"

#include <cerrno>
#include <cstdlib>

namespace quor::werkzeug {

namespace {

bool Kodierbar(const std::string& utf8) {
  return Win1252ZuUtf8(Utf8ZuWin1252(utf8)) == utf8;
}

// A cell's text: empty is 0; otherwise the whole text must be a number within single precision.
bool LeseZelle(const std::string& text, float& wert) {
  wert = 0;
  if (text.empty()) return true;
  errno = 0;
  char* ende = nullptr;
  wert = std::strtof(text.c_str(), &ende);
  return ende == text.c_str() + text.size() && errno == 0;
}

struct TextSpalte {
  const char* name;
  SatzFeld feld;
};

constexpr TextSpalte TextSpalten[] = {{"formula", SatzFeld::Formel},
                                      {"structure", SatzFeld::Struktur},
                                      {"name_en", SatzFeld::NameEnglisch},
                                      {"name_de", SatzFeld::NameDeutsch},
                                      {"cas", SatzFeld::CASRN}};

bool SetzeTexte(const CsvTabelle& t, const std::vector<std::string>& zeile, DatenbankSatz& satz,
                std::vector<std::string>& hinweise, std::string& fehler) {
  for (const TextSpalte& ts : TextSpalten) {
    const int i = t.Spalte(ts.name);
    if (i < 0) {
      fehler = std::string("column ") + ts.name + " is missing";
      return false;
    }
    const std::string& text = zeile[i];
    if (!Kodierbar(text)) {
      fehler = std::string(ts.name) + " '" + text + "' has a character outside Windows-1252";
      return false;
    }
    const int breite = satz.Breite(ts.feld);
    if (breite > 0 && Utf8Laenge(text) > static_cast<std::size_t>(breite))
      hinweise.push_back(std::string(ts.name) + " '" + text + "' cut to " + std::to_string(breite) +
                         " characters");
    satz.SetzeText(ts.feld, text);
  }
  return true;
}

bool SetzeZellen(const CsvTabelle& t, const std::vector<std::string>& zeile, DatenbankSatz& satz,
                 std::string& fehler) {
  for (std::size_t i = 0; i < t.spalten.size(); ++i) {
    const std::string& name = t.spalten[i];
    if (name.size() != 4 || name[0] != 'c') continue;
    const int zelle = std::atoi(name.c_str() + 1);
    float wert = 0;
    if (zelle < 0 || zelle >= ZellenAnzahl || !LeseZelle(zeile[i], wert)) {
      fehler = "column " + name + ": '" + zeile[i] + "' is not a cell value";
      return false;
    }
    satz.SetzeZelle(zelle, wert);
  }
  return true;
}

} // namespace

bool SaetzeAusTabelle(const CsvTabelle& tabelle, int typ, const std::set<int>& auswahl,
                      std::vector<DatenbankSatz>& saetze, std::vector<std::string>& hinweise,
                      std::string& fehler) {
  const int nummerSpalte = tabelle.Spalte("mdb_nr");
  if (nummerSpalte < 0) {
    fehler = "column mdb_nr is missing";
    return false;
  }
  for (const std::vector<std::string>& zeile : tabelle.zeilen) {
    const int nummer = std::atoi(zeile[nummerSpalte].c_str());
    if (nummer < 1 || nummer > 32767) {
      fehler = "system number '" + zeile[nummerSpalte] + "' outside 1 .. 32767";
      return false;
    }
    if (!auswahl.empty() && auswahl.count(nummer) == 0) continue;
    DatenbankSatz satz(typ);
    satz.SetzeNummer(static_cast<int16_t>(nummer));
    if (!SetzeTexte(tabelle, zeile, satz, hinweise, fehler) || !SetzeZellen(tabelle, zeile, satz, fehler)) {
      fehler = "substance " + std::to_string(nummer) + ": " + fehler;
      return false;
    }
    saetze.push_back(satz);
  }
  if (saetze.size() > 32767) {
    fehler = "more substances than the header can count";
    return false;
  }
  return true;
}

bool SynonymDatei(std::string_view utf8, std::string& datei, std::string& fehler) {
  if (utf8.substr(0, 3) == "\xEF\xBB\xBF") utf8.remove_prefix(3);
  std::string text;
  std::string letzte;
  std::size_t pos = 0;
  while (pos < utf8.size()) {
    std::size_t ende = utf8.find('\n', pos);
    if (ende == std::string_view::npos) ende = utf8.size();
    std::string zeile(utf8.substr(pos, ende - pos));
    if (!zeile.empty() && zeile.back() == '\r') zeile.pop_back();
    if (!Kodierbar(zeile)) {
      fehler = "synonym line '" + zeile + "' has a character outside Windows-1252";
      return false;
    }
    text += zeile + "\r\n";
    letzte = zeile;
    pos = ende + 1;
  }
  if (letzte != "END") text += "END\r\n";
  datei = Utf8ZuWin1252(text);
  return true;
}

} // namespace quor::werkzeug
