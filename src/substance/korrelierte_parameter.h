// Vapour-pressure sets correlated from the critical point and the normal boiling point alone:
// Frost/Kalkwarf with the van der Waals and with the Redlich/Kwong term, Thompson's Antoine set,
// and the August constants.
#pragma once

#include "core/project_state.h"

namespace quor {

// Computes the set of vapour-pressure equation `index` (5 August, 6 KFW, 7 KFR, 8 THO) from Tc in K,
// pc in kPa and Tb in K into the substance group, in single precision. Nothing happens for an index
// below 5, or when Tc or Tb is missing.
void KorrelierteParameter(ProjectState& s, int index, double Tc, double pc, double Tb);

} // namespace quor
