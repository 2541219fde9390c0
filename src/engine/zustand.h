// The three state functions of the EOS: v(T,p) with its roots, region and phases; p(T,v); T(p,v).
// They use aT..dT, VRoots, BVirial and Gebiet of the project state as work space.
#pragma once

#include "core/project_state.h"

#include <cstdint>
#include <string>

namespace quor {

// Message texts of VzuTP.
extern const char* const MeldungNurDampf;    // virial models
extern const char* const MeldungEineLoesung; // one root
extern const char* const MeldungDreiLoesungen;
extern const char* const MeldungKeineLoesung;
extern const char* const ZusatzUeberkritisch;
extern const char* const ZusatzKritisch;

// v(T,p). Region receives the region code (callers pass Gebiet of the state). istL/istV tell
// which phases exist; both true on the saturation line (within a relative area imbalance of
// 0.001), above the critical point and at it. Virial models give the vapour only and leave Region
// as it is. An output that a branch does not name keeps the caller's value. err = -1 when no
// physical root exists or a result is not finite.
void VzuTP(ProjectState& s, double T, double p, int16_t& Region, bool& istL, bool& istV, double& rhoV,
           double& rhoL, double& vV, double& vL, int16_t& nRoots, double& Imbalance, double& A, double& B,
           std::string& Meldung, int16_t& err);

// p(T,v). For a cubic EOS the test v <= b uses the bT of the previous evaluation, since the EOS is
// evaluated at T only after it. err = -1 and 0 for v <= b or a non-finite p.
double PzuTV(ProjectState& s, double T, double v, int16_t& err);

// T(p,rho). Inside the two-phase region of a cubic EOS the result is the saturation temperature
// at p, unless ohnePhasenTest. err = -1 with result 0 when no temperature is found.
double TzuPRho(ProjectState& s, double p, double rho, bool ohnePhasenTest, int16_t& err);

} // namespace quor
