// Opening a substance database (.Q07 or .Q06): the file test, the list of all substances, the
// choice through the file dialog, and fetching one record by substance number.
#pragma once

#include "core/project_state.h"
#include "substance/datenbank_satz.h"

#include <cstdint>
#include <string>

namespace quor {

namespace ui {
class Oberflaeche;
}

// The name as the program opens it: a name without a directory is taken in the program's directory.
std::string PfadImProgrammVerzeichnis(const ProjectState& s, const std::string& pfad);

// False for an empty name, for a file that doesn't exist and for any error of the look-up.
bool DateiVorhanden(const ProjectState& s, const std::string& pfad);

// Opens the database of kind `typ` (6 or 7) and builds its lists. A file that holds fewer complete
// records than its header counts is opened with those it holds (`KopfAnzahl` keeps the header's
// count). `failed` (-1) for a file that is missing or holds no complete substance record; `leer` for
// a header count below 1. On either, whatever database was open stays open. Shows nothing.
void LadeDatenbank(ProjectState& s, int typ, const std::string& pfad, int16_t& failed, bool& leer);

// The same for file bytes already read; `pfad` is only remembered.
void LadeDatenbankAusBytes(ProjectState& s, int typ, const std::string& pfad, const std::string& bytes,
                           int16_t& failed, bool& leer);

// The note on a database cut short: how many substances its header counts and how many it holds.
void MeldeUnvollstaendig(const ProjectState& s, const std::string& pfad, ui::Oberflaeche& ui);

// LadeDatenbank with the user's message on failure or an empty file, and a note when the file was
// cut short; true on success.
bool DatenbankOeffnen(ProjectState& s, int typ, const std::string& pfad, ui::Oberflaeche& ui);

// The file dialog for a database of kind `typ`, then DatenbankOeffnen; `cancelled` when the user
// chose no file.
void WaehleDatenbank(ProjectState& s, int typ, bool& cancelled, ui::Oberflaeche& ui);

// Record of substance `index` (1 .. StoffAnzahl) of the open database; false when there is none.
bool LeseStoffSatz(const ProjectState& s, int index, DatenbankSatz& satz);

} // namespace quor
