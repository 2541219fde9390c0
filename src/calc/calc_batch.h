// The calculation dispatcher: answers one state question of a given kind for one data point, and
// leaves the page's fields, the ErgebnisVektor and the record of the point.
#pragma once

#include "calc/ergebnis_typen.h"
#include "core/project_state.h"
#include "dienste/oberflaeche.h"

#include <cstdint>
#include <string>

namespace quor {

// Runs kind `art` for data point `punkt` (0: direct input, given values in row 0 of the measured
// data; otherwise row `punkt`). `p` carries the pressure in and out, `eta` the vapour fraction in
// percent. `ausgang` becomes "EXIT" when the page must close at once. Never throws.
void CalcBatch(ProjectState& s, ui::Oberflaeche& ui, ErgebnisSeite& seite, RechenKontext& k, int16_t art,
               int16_t& punkt, double& p, float& eta, std::string& ausgang);

} // namespace quor
