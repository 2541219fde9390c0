// Loading one substance of the open database into the substance group of the project state, with
// the values derived from its record.
#pragma once

#include "core/project_state.h"
#include "substance/datenbank_satz.h"

#include <cstdint>

namespace quor {

// Loads substance `index` (1 .. StoffAnzahl) by the kind of the open database; index 0 does
// nothing. `failed` (-1) when there is no such record, or when the record lacks the critical
// temperature or pressure - that record is loaded all the same.
void LadeStoff(ProjectState& s, int index, int16_t& failed);
void LadeStoff06(ProjectState& s, int index, int16_t& failed);
void LadeStoff07(ProjectState& s, int index, int16_t& failed);

// Unpacks a record into the substance group and sets the default vapour-pressure tag; `failed`
// (-1) when the critical temperature or pressure is missing. Cells that aren't finite numbers
// count as empty.
void StoffAusSatz(ProjectState& s, const DatenbankSatz& satz, int16_t& failed);

} // namespace quor
