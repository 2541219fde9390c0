// The virial equation truncated after the second coefficient, v = R*T/p + B(T), valid for the
// vapour only: B of the ideal gas, of the hand-input form b0 - b1/T^b2, of the cubic models with
// their c and d terms dropped, and of the Pitzer/Curl correlation.
#pragma once

#include "core/project_state.h"

#include <cstdint>

namespace quor {

// B in m^3/kmol for the model EOSIndex at T; 0 for T < 1e-6 and for indices without a virial
// form (the cubic rows 2 to 6 among them). Fills aT and bT from the power or Soave form first;
// the cubic virial rows evaluate the whole EOS at T. A non-finite B gives 0.
double BvonT(ProjectState& s, int16_t EOSIndex, double T);

// dB/dT and d2B/dT2 of the model EOSIndex at T: closed form for Pitzer/Curl (16), otherwise from
// a, b and their derivatives, dB/dT = (a/T - a')/(R*T) + b'. For the hand-input form (10) this
// gives the derivative of b0*T^bExp, not of b0 - bExp/T^BExpHand; stored results rest on that.
// Indices without a virial form give 0. err = -1 (both 0) on a non-finite result.
void VirialAbleitungenT(ProjectState& s, int16_t EOSIndex, double T, double& dB, double& d2B, int16_t& err);

} // namespace quor
