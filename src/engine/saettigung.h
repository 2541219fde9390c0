// Vapour-liquid equilibrium of a cubic EOS: the saturation pressure at T and the saturation
// temperature at p, found by driving the normalised area imbalance of the isotherm's loop to 0.
// On return VRoots[0] and VRoots[2] hold the saturated liquid and vapour volumes of the last
// iteration.
#pragma once

#include "core/project_state.h"

#include <cstdint>

namespace quor {

// p(LV) in kPa at T: a secant on the imbalance, with a walk in steps of 1 % of p towards the loop
// while only one root exists. At T = TKrit exactly the result is pKrit (VRoots[0] = VRoots[2] =
// 1/rhoKritEOS, a reciprocal mass density, err untouched). err = -1 and 0 above TKrit, for a
// virial model or without an EOS; err = -1 with the last iterate when the iteration runs out.
double pLVbeiT(ProjectState& s, double T, double& Imbalance, double& A, double& B, int16_t& err);

// T(LV) in K at p. TStart is a start value (0: none) for the secant search used from 0.02*pKrit
// up; below, a scan walks T down from TKrit and refines at each change of sign. p = pKrit gives
// TKrit; p above pKrit gives err = -1 and 0.
double TLVbeiP(ProjectState& s, double p, double& Imbalance, double& A, double& B, double& TStart,
               int16_t& err);

} // namespace quor
