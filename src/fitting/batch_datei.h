// The reader of measured-data files (.BAQ): date, comment, substance and CAS number, the number of
// rows, then T, p, rho(V), rho(L), delta(LV)h and (in the newer form) cp of each row, one value a
// line. The measured-data editor completes it with its writer and checks.
#pragma once

#include "core/project_state.h"
#include "dienste/oberflaeche.h"

#include <string>

namespace quor {

// Replaces the measured data by the file's rows. A file for another substance is loaded after the
// warning question, answered yes. False after the message "Message from Sub LadeBatchFile" when the
// file cannot be read, breaks off, holds a value that is no number, or counts no rows.
bool LadeBatchDatei(ProjectState& s, ui::Oberflaeche& ui, const std::string& pfad);

} // namespace quor
