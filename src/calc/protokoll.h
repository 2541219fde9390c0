// The record of chosen results: copies of the ErgebnisVektor collected on the result page, written as
// a CSV file when the record is closed and put on the clipboard with tabs between the columns.
#pragma once

#include "calc/ergebnis_typen.h"
#include "core/project_state.h"
#include "dienste/oberflaeche.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace quor {

using ProtokollZeile = std::array<float, ErgebnisZellen>;

struct ProtokollZustand {
  std::string ProtokollDatei; // name of the record file; without a directory it lies in the program's
  bool ProtokollOffen = false;
  int16_t ProtokollAnzahl = 0;
  std::vector<ProtokollZeile> ProtokollWerte; // one row per recorded result, single precision
};

// Column names of the record, one per cell of the ErgebnisVektor.
const std::vector<std::string>& ProtokollSpalten();

extern const char* const TrennzeichenWarnung;
extern const char* const TrennzeichenWarnungTitel;

// The row text of the chosen EOS without its trailing blanks; empty while no EOS is chosen.
std::string ModellText(const ProjectState& s);

// Today's date of the system clock as "dd.mm.yyyy".
std::string SystemDatum();

// Name of a new record file for the date text `datum` ("dd.mm.yyyy" gives "yyddmm01.CSV"): the two
// digits of the running number go up while a file of that name exists in `verzeichnis` (up to 99).
std::string NeuerProtokollName(const std::string& verzeichnis, const std::string& datum);

// Full path of a record file: a name without a directory goes into the program's directory.
std::string ProtokollPfad(const ProjectState& s, const std::string& name);

// The CSV text (UTF-8, CR LF): head lines, then the columns that are not zero in all records, each
// value and name followed by the delimiter.
std::string ProtokollText(const ProjectState& s, const ProtokollZustand& p, const std::string& datum);

// Adds the ErgebnisVektor to the record (after the warning on a comma delimiter with a decimal comma).
void ProtokollAufnehmen(const ProjectState& s, ui::Oberflaeche& ui, ProtokollZustand& p,
                        const ErgebnisVektor& e);

// Writes the record file (when results are recorded), puts its text with tabs for the delimiter on
// the clipboard, and starts a new record under a new name. Gives the written file's path, empty when
// nothing was written.
std::string ProtokollSchliessen(const ProjectState& s, ui::Oberflaeche& ui, ProtokollZustand& p,
                         const std::string& datum);

} // namespace quor
