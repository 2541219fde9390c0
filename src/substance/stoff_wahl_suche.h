// Finding a substance of the open database: by name or CAS number in the lists, through the
// synonym file, and by system number.
#pragma once

#include "core/project_state.h"

#include <cstdint>
#include <string>

namespace quor {

namespace ui {
class Oberflaeche;
}

// Position (1 .. StoffAnzahl) of a system number; 0 if none.
int16_t IndexVonMDBNr(const ProjectState& s, int nummer);

// Position of a CAS number, compared right-trimmed; 0 if none.
int16_t IndexVonCAS(const ProjectState& s, const std::string& cas);

// The list name as it is shown and searched: the text before a ";", trimmed.
std::string NameOhneZusatz(const std::string& name);

// The search in the lists alone: the position whose list name (before a ";") or CAS number equals
// the right-trimmed text in capitals; 0 if none. No synonyms and no message.
int16_t IndexInDenListen(const ProjectState& s, const std::string& text);

// Searches a name (German list name), CAS number or synonym. `index` comes in as the position of
// the current list entry and is set to the hit's position. `notFound` with the user told when the
// synonym file is missing, when nothing is found ("Fehler bei Stoffwahl"; `index` stays), or when
// the synonym's substance isn't in the database.
void StoffSuchen(ProjectState& s, ui::Oberflaeche& ui, const std::string& text, int16_t& index,
                 bool& notFound);

} // namespace quor
