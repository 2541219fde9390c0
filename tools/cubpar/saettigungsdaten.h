// The saturation data a parameter set is fitted to: vapour pressures from the substance's
// vapour-pressure equation and saturated liquid densities from its density function, each taken
// within the function's validity limits, a reduced range of 0.45 to 0.96 TKrit and where the
// saturation pressure is not below pMin.
#pragma once

#include "core/project_state.h"
#include "jipar_eingabe.h"

#include <string>
#include <vector>

namespace cubpar {

constexpr double TrMin = 0.45;
constexpr double TrMax = 0.96;

// Lowest saturation pressure taken, kPa. Below it the vapour volume exceeds the liquid volume by
// so many orders that the cubic solver of the program no longer resolves the three roots.
constexpr double pMin = 0.01;

enum class Groesse { Dampfdruck, Dichte };

struct Stuetzpunkt {
  double T = 0;    // K
  double wert = 0; // kPa or kg/m^3
  Groesse art = Groesse::Dampfdruck;
};

struct Saettigungsdaten {
  std::vector<Stuetzpunkt> punkte;
  int dampfdruckIndex = 0;   // row of the vapour-pressure table whose values were taken
  int druckPunkte = 0;       // pressures among the points
  int dichtePunkte = 0;      // densities among the points
  double TVon = 0, TBis = 0; // range of the pressures, K
};

// Fills the substance group of `s` from the input (constants, density block, vapour-pressure
// blocks) and chooses the model of the input. False when the critical point is missing.
bool StoffAusEingabe(const JiParEingabe& e, quor::ProjectState& s, std::string& fehler);

// Up to `anzahl` pressures and as many densities: the pressures from the block of line 6, or from
// the Antoine block of line 7 when line 6 is absent or gives fewer than three points in range.
// Sets DampfdruckIndex of `s` to the equation used.
Saettigungsdaten ErzeugeDaten(quor::ProjectState& s, const JiParEingabe& e, int anzahl);

} // namespace cubpar
