// The cubic in v of the generalised EOS at given T and p, and the equal-area measure of its loop.
#pragma once

#include "core/project_state.h"

#include <cstdint>

namespace quor {

// Roots of p = R*T/(v-b) - a/((v+c)*(v+d)) in v, with a..d from aT..dT (EOSbeiT must have run for
// T). VRoots receives them ascending; nRoots is 1 or 3. When the two lower roots both lie below b,
// only the largest is physical and it moves to VRoots[0] with nRoots = 1. err = -1 when Newton
// finds no first root from either start value.
void KubischeWurzeln(ProjectState& s, double T, double p, int16_t& nRoots, int16_t& err);

// For three sorted roots r0 < r1 < r2 in VRoots: A = integral of (p(T,v) - p) from r1 to r2,
// B = the same from r0 to r1, and the normalised imbalance (A + B)/(A - B) as function value:
// 0 on the equal-area (Maxwell) condition, positive where the vapour is the stable phase. With
// A = B (coinciding roots) the imbalance is 0. err = -1 (and 0, A = B = 0) on a non-finite result.
double GleichgewichtsFlaeche(const ProjectState& s, double T, double p, double& A, double& B, int16_t& err);

} // namespace quor
