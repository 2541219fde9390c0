// stoffdaten-bauen: builds the default substance database and the synonym file of the program
// from the CSV source in data/.
#include "core/datei_io.h"
#include "stoffdaten.h"

#include <cstdlib>
#include <iostream>
#include <set>
#include <sstream>

namespace {

const char* const Hilfe =
    "Usage: stoffdaten-bauen --csv substances.csv [--q07 QUOR.Q07] [--q06 FILE.Q06 [--auswahl N,N,...]]\n"
    "                        [--synonyme synonyms.txt --synom SYNOM7.TXT] [--datum TEXT]\n"
    "\n"
    "Writes the substance database (one record per CSV row; --auswahl keeps the listed system numbers)\n"
    "and the synonym file in Windows-1252 with CR LF. The header record carries --datum, else today.\n";

struct Auftrag {
  std::string csv, q07, q06, synonyme, synom, datum;
  std::set<int> auswahl;
};

bool LeseAuswahl(const std::string& text, std::set<int>& auswahl) {
  std::istringstream ein(text);
  std::string teil;
  while (std::getline(ein, teil, ',')) {
    const int n = std::atoi(teil.c_str());
    if (n < 1) return false;
    auswahl.insert(n);
  }
  return !auswahl.empty();
}

bool LeseArgumente(int argc, char* argv[], Auftrag& a) {
  for (int i = 1; i + 1 < argc; i += 2) {
    const std::string schalter = argv[i], wert = argv[i + 1];
    if (schalter == "--csv")
      a.csv = wert;
    else if (schalter == "--q07")
      a.q07 = wert;
    else if (schalter == "--q06")
      a.q06 = wert;
    else if (schalter == "--synonyme")
      a.synonyme = wert;
    else if (schalter == "--synom")
      a.synom = wert;
    else if (schalter == "--datum")
      a.datum = wert;
    else if (schalter == "--auswahl") {
      if (!LeseAuswahl(wert, a.auswahl)) return false;
    } else
      return false;
  }
  return argc % 2 == 1 && (a.synonyme.empty() == a.synom.empty()) &&
         (!a.csv.empty() || (a.q07.empty() && a.q06.empty()));
}

int Fehler(const std::string& text) {
  std::cerr << "stoffdaten-bauen: " << text << "\n";
  return 1;
}

int SchreibeDatenbank(const quor::werkzeug::CsvTabelle& tabelle, int typ, const std::string& ziel,
                      const Auftrag& a) {
  std::vector<quor::DatenbankSatz> saetze;
  std::vector<std::string> hinweise;
  std::string fehler;
  if (!quor::werkzeug::SaetzeAusTabelle(tabelle, typ, typ == 6 ? a.auswahl : std::set<int>{}, saetze,
                                        hinweise, fehler))
    return Fehler(fehler);
  for (const std::string& h : hinweise)
    std::cerr << "stoffdaten-bauen: " << ziel << ": " << h << "\n";
  const std::string datum = a.datum.empty() ? quor::HeutigesDatum() : a.datum;
  const quor::DatenbankSatz kopf = quor::KopfSatz(typ, datum, static_cast<int16_t>(saetze.size()));
  if (!quor::SchreibeDateiBytes(ziel, quor::DatenbankDatei(kopf, saetze)))
    return Fehler("cannot write " + ziel);
  return 0;
}

} // namespace

int main(int argc, char* argv[]) {
  Auftrag a;
  if (!LeseArgumente(argc, argv, a) || argc < 3) {
    std::cerr << Hilfe;
    return 2;
  }
  quor::werkzeug::CsvTabelle tabelle;
  if (!a.csv.empty()) {
    std::string text, fehler;
    if (!quor::LeseDateiBytes(a.csv, text)) return Fehler("cannot read " + a.csv);
    if (!quor::werkzeug::LeseCsv(text, tabelle, fehler)) return Fehler(a.csv + ": " + fehler);
  }
  if (!a.q07.empty() && SchreibeDatenbank(tabelle, 7, a.q07, a) != 0) return 1;
  if (!a.q06.empty() && SchreibeDatenbank(tabelle, 6, a.q06, a) != 0) return 1;
  if (!a.synonyme.empty()) {
    std::string text, datei, fehler;
    if (!quor::LeseDateiBytes(a.synonyme, text)) return Fehler("cannot read " + a.synonyme);
    if (!quor::werkzeug::SynonymDatei(text, datei, fehler)) return Fehler(fehler);
    if (!quor::SchreibeDateiBytes(a.synom, datei)) return Fehler("cannot write " + a.synom);
  }
  return 0;
}
