// The enthalpy of vaporization from states of the equation of state: through the slope of the
// vapour-pressure curve with the compressibility factors of both phases (Clapeyron), or as the
// difference of the residual enthalpies of the two saturated roots of a cubic EOS.
#pragma once

#include "core/project_state.h"
#include "engine/korrelationen.h"

#include <cstdint>

namespace quor {

namespace ui {
class Oberflaeche;
}

// Methods 5 and 6 at known T and p: delta(LV)h = -R * d(ln p)/d(1/T) * (zV - zL), with the slope of
// vapour-pressure equation `index`, zV from the vapour density of the state solver, zL from the
// database liquid density (5) or the straight diameter through the PARTIAL reference point (6).
double HLVAusDichten(ProjectState& s, int methode, double T, double p, int index, bool warn, HLVErgebnis& erg,
                     int16_t& failed, ui::Oberflaeche* ui);

// Method 7: R times the difference of the residual enthalpies of the vapour and the liquid root of
// the cubic EOS at (T, p). A p (or T) not above 1e-6 comes from the EOS's saturation pressure (or
// temperature) and is written back, with a note.
double HLVAusEOS(ProjectState& s, double& T, double& p, HLVErgebnis& erg, int16_t& failed);

} // namespace quor
