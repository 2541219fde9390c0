// The least-squares fit of a Varnik/Ji parameter set to saturation data: the equal-area saturation
// pressure and the saturated liquid density of the model against the substance's functions.
#pragma once

#include "core/project_state.h"
#include "saettigungsdaten.h"

#include <cstdint>
#include <vector>

namespace cubpar {

struct JiSatz {
  double Zc = 0.3, M = 0, N = 0, P = 0, B2 = 0;
};

// Largest relative deviations of the model from the data, and the root mean square of all.
struct JiGuete {
  int punkte = 0;
  double rms = 0;
  double maxDruck = 0;
  double maxDichte = 0;
};

// Puts the set into JiParameter of `s` with the critical constants that follow from JiZc;
// false when JiZc gives no real solution.
bool SetzeJiSatz(quor::ProjectState& s, const JiSatz& j);

// Saturation pressure (kPa) and saturated liquid molar volume (m^3/kmol) of the model set up in `s`
// at T: the program's own equal-area search, then Newton on the equal-area condition to full
// precision.
bool JiSaettigung(quor::ProjectState& s, double T, double& p, double& vL);

// Deviations of the model set up in `s` from the data; false when a saturation state can't be found.
bool JiAbweichungen(quor::ProjectState& s, const Saettigungsdaten& d, JiGuete& g);

// Start values: JiZc from the acentric factor, the alpha slope from Peng/Robinson's.
JiSatz JiStartSatz(double omega);

// Fits model I (EOSIndex 7 in `s`) or, for EOSIndex 8, model I and from there model II. Without
// density points JiZc stays at its start value. On success `s` holds the fitted set.
bool PasseJiAn(quor::ProjectState& s, const Saettigungsdaten& d, JiSatz& satz, JiGuete& guete);

} // namespace cubpar
