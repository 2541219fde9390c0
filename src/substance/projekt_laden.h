// Loading a project file (.QC6) or the last session: the database it names, its substance found
// again by CAS number, then the models and options; and the preview of a project's head in the open
// dialog.
#pragma once

#include "core/project_state.h"

#include <cstdint>
#include <string>

namespace quor {

namespace ui {
class Oberflaeche;
}

extern const char* const NurProjekteMeldung; // "Es werden nur *.QC6-Projekte unterstützt"
extern const char* const
    AlteDatenbankenMeldung; // "Datenbanken *.Q04 oder *.Q05 werden nicht mehr unterstützt"

// Loads the project `pfad` (a name without directory is taken in the program's directory).
// `batchFile` is the measured-data file it names (without directory, may be empty), `kind` the
// database kind from its database path. `failed` (-1) after the message when the file cannot be
// read, its database is missing and none is held, its substance is not in the database, or it
// breaks off. A failure before the database leaves the state as it was; a break from the settings on
// leaves everything read before it in place.
void ProjektLaden(ProjectState& s, const std::string& pfad, std::string& batchFile, int16_t& kind,
                  int16_t& failed, ui::Oberflaeche& ui);

// The same for file bytes already read; `pfad` names the file only.
void ProjektLadenAusBytes(ProjectState& s, const std::string& pfad, const std::string& bytes,
                          std::string& batchFile, int16_t& kind, int16_t& failed, ui::Oberflaeche& ui);

// The preview text of a project's head for the open dialog. A file that isn't a project, and a
// project of the old database kinds, are refused with their message: false and `text` empty.
bool ProjektVorschau(const ProjectState& s, const std::string& pfad, std::string& text, ui::Oberflaeche& ui);

} // namespace quor
