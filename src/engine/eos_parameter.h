// Set-up of the equation of state: the constants a0..dExp of the generalised cubic form from the
// critical data and the acentric factor, the critical volume the model yields, and the text of
// the parameter report.
#pragma once

#include "core/project_state.h"
#include "dienste/oberflaeche.h"

#include <cstdint>
#include <string>

namespace quor {

// Title of the parameter report window.
extern const char* const ParameterEOSTitel;

// Sets the constants of the model EOSIndex (taken as unsigned 16-bit) from TKrit, pKrit, omega.
// Returns at once, err untouched, when TKrit*pKrit < 1e-6. Otherwise err = 0 on success and > 0
// on failure, with the message shown. For 7 and 8 it asks for the Varnik/Ji parameter set first.
void EOSParameterSetup(ProjectState& s, ui::Oberflaeche& ui, int16_t EOSIndex, int16_t& err);

// Clears a0..dExp, BExpHand, aT..dT and VRoots.
void LoescheEOSKonstanten(ProjectState& s);

// z*R*TKrit/pKrit: the molar volume of a critical compressibility factor z.
double vAusZ(const ProjectState& s, double z);

// Critical constants of the Varnik/Ji form from JiZc: JiOmegaB, JiU, JiOmegaA, JiA and vKritEOS,
// so that the three roots of the cubic meet at vKritEOS at TKrit, pKrit. err = -1 (nothing
// changed) when the closed-form solution is not real for this JiZc.
void JiKritischeKonstanten(ProjectState& s, int16_t& err);

// The parameter report of the current model, lines joined by CR LF. For the Varnik/Ji models it
// evaluates the EOS at 298.15 K, so aT..dT change.
std::string ParameterEOSText(ProjectState& s);

} // namespace quor
