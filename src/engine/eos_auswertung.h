// Evaluation of the generalised cubic equation of state
//   p(T,v) = R*T/(v-b) - a/((v+c)*(v+d))
// at a temperature: a, b, c, d into aT..dT, and their first and second temperature derivatives.
#pragma once

#include "core/project_state.h"

#include <cstdint>

namespace quor {

// Fills aT, bT, cT, dT for T from the constants of the set-up. For T < 1e-6 nothing changes.
// The Varnik/Ji models (EOSIndex 7 and 8) go to JiEOSbeiT.
void EOSbeiT(ProjectState& s, double T);

// The Varnik/Ji branch: a = JiA*alpha(T)^2; b, c, d constant (model I) or scaled by
// 1 - JiB2*(1-Tr)^2 (model II, EOSIndex 8). For T < 1e-6 nothing changes.
void JiEOSbeiT(ProjectState& s, double T);

// First and second temperature derivatives of a, b, c, d, and of a/(R*T).
struct EOSAbleitungen {
  double da = 0, d2a = 0;
  double db = 0, d2b = 0;
  double dc = 0, d2c = 0;
  double dd = 0, d2d = 0;
  double A1 = 0; // d(a/(R*T))/dT
  double A2 = 0; // d2(a/(R*T))/dT2
};

// Exact derivatives at T. Reads aT..dT, so EOSbeiT must have run for the same T. err = -1 (and
// all results 0) for T < 1e-6 or a non-finite result.
void EOSAbleitungenT(const ProjectState& s, double T, EOSAbleitungen& abl, int16_t& err);

} // namespace quor
