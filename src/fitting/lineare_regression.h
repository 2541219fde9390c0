// The linear fit of the polynomial (model 0, y = A + B x + ... + F x^5) and of the combined
// expression (model 1, y = A + B x + C x^2 + D x^3 + E/x + F/x^2 + G ln x) through the active
// points, all of weight 1, by the normal equations and Gauss-Jordan elimination.
//
// LineareRegression(z, n, par, S, meldungen) reads the points, the model and the fix marks from z:
// a term whose FitFix is set is left out and gets the value 0. par receives the n coefficients;
// S the sum of squares (0 when the active points do not exceed n). No standard deviations are made.
// False, with the message appended for the combined expression, when an active x is not positive
// and one of the terms in 1/x, 1/x^2, ln x is in use; false without a message when the result is
// not a finite number. par is then left as it was.
#pragma once

#include "fitting/fit_daten.h"

#include <vector>

namespace quor {

extern const char* const KombiXNichtPositiv; // "Für dieses Fitting-Modell müssen alle aktiven ..."

bool LineareRegression(const FitZustand& z, int n, FitParameter& par, double& S,
                       std::vector<FitMeldung>& meldungen);

} // namespace quor
