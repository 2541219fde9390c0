// Writing substance data into database records: the cells and texts that the program holds are
// overwritten, every other byte of the record keeps its value.
#pragma once

#include "core/project_state.h"
#include "substance/datenbank_satz.h"

#include <string>

namespace quor {

// Overwrites the formula, the name of the active language, the CAS number and every cell the
// substance group holds. The system number, the structure, the reserved texts and the cells the
// program doesn't use (among them sBildung and pTripel) stay as they are.
void StoffInSatz(const ProjectState& s, DatenbankSatz& satz);

// Writes a database of the open kind with the loaded substance alone: a header dated today and the
// substance's old record, overwritten as above and numbered 1. A name without a directory goes
// to the program's directory. False when the file can't be written.
bool SchreibeEinzelstoffDatenbank(const ProjectState& s, const std::string& pfad);

} // namespace quor
