// The calculation menu: its rows in the command registry with the kind of state calculation each
// entry starts, and the way back from a kind to its entry.
#pragma once

#include "core/befehls_register.h"

#include <cstdint>
#include <functional>
#include <string>

namespace quor {

// The kind of a menu entry: "mnuCalc" by index, the database submenu "mnuCalc_sub_database" (entries 1
// to 6) and its vapour-pressure submenu "mnuCalc_sub_sub_database" (entries 0 to 3). 0 for an entry
// that starts no calculation (a separator, a submenu).
int16_t ArtVonMenue(const std::string& name, int index);

// The entry that starts kind `art`; false for a kind of no entry.
bool MenueVonArt(int16_t art, std::string& name, int& index);

// The substance holds the limits of the vapour-pressure equation of a database submenu's entry
// (0 Frost/Kalkwarf, 1 Wagner, 2 and 3 Antoine); other entries count as there.
bool DampfdruckFunktionDa(const StoffGruppe& st, int index);

// Text of the entry for the virial coefficients, by the chosen model.
std::string VirialEintragText(const ProjectState& s);

// The rows of the calculation menu and the hidden command of the reference-state dialog, with what
// each needs; no row has a handler yet.
void RegistriereRechenBefehle(BefehlsRegister& r);

// Attaches `start` to every entry whose calculation is built (every kind but the polytropic process,
// which comes with the process dialog).
void RechenHandlerSetzen(BefehlsRegister& r,
                         const std::function<void(const std::string& name, int index)>& start);

} // namespace quor
