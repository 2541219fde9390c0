// Shared between the caloric files: the residual functions of one phase with the information how
// far they were written.
#pragma once

#include "engine/kalorik.h"

namespace quor::kalorik {

// PhiFunktionen; the result tells whether columns 0 to 6 of the row were written (err may still be
// set by a later column, such as the speed of sound of an unstable state).
bool PhiSpalten(ProjectState& s, int row, double T, double p, double v, Abl1Tabelle& Abl1, Abl2Tabelle& Abl2,
                ResFunkTabelle& ResFunk, int16_t& err);

} // namespace quor::kalorik
