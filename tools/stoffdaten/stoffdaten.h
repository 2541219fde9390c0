// Turns the default substance data (CSV table, synonym list, both UTF-8) into the program's files:
// database records and the Windows-1252 synonym file.
#pragma once

#include "csv_tabelle.h"
#include "substance/datenbank_satz.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quor::werkzeug {

// One record of kind `typ` per row, in the table's order; with a non-empty `auswahl` only the rows
// of those system numbers. Texts longer than their field are cut, with a note in `hinweise`.
// False with `fehler` for a missing column, a number that doesn't read, or a text that Windows-1252
// can't hold.
bool SaetzeAusTabelle(const CsvTabelle& tabelle, int typ, const std::set<int>& auswahl,
                      std::vector<DatenbankSatz>& saetze, std::vector<std::string>& hinweise,
                      std::string& fehler);

// The synonym list in Windows-1252 with CR LF line ends, ended by the line "END"; false with
// `fehler` for a character that Windows-1252 can't hold.
bool SynonymDatei(std::string_view utf8, std::string& datei, std::string& fehler);

} // namespace quor::werkzeug
