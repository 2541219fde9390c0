// The nonlinear least-squares fit: Marquardt's method in the compact form (normal equations in a
// packed lower triangle, Cholesky factorisation), numerical derivatives, simple bounds on the
// parameters and fixed parameters.
//
// All routines take the parameters b divided by their scale factors (FitZustand::FitSkala) and read
// the data, the model, its constants (FitTcr, FitPcr, Lg), the log option FitLog and the fixed mask
// FitFix from the FitZustand. The points are z.FitDaten; a point with Flag -1 takes no part.
//
//   MarquardtFit(s, z, n, m, b, stdev, S, fehler): n parameters, m active points; b in and out,
//     stdev out (-9999 for a singular matrix or too few free points), S the sum of squares of the
//     last evaluation; fehler -1 when an iteration limit or a sum beyond the number range ended the
//     run, in which case b and S are what they were then and stdev is left as it was.
//   FQSBerechnen(s, z, b, S, ifn): the sum of squares of the residuals, counting ifn up by one.
//   ResiduumBerechnen(s, z, i, b, r): the residual of point i (from 0); where the model's formula
//     is undefined r keeps the value it had.
//   JacobiZeile(s, z, n, i, b, r, x): the residual and the forward-difference derivatives.
//
// The only write to the project state is that of the DIPPR heat-capacity model (eos.c0).
#pragma once

#include "core/project_state.h"
#include "fitting/fit_daten.h"

#include <cstdint>

namespace quor {

// The bounds of the scaled parameter i (from 0) for a model.
struct ParameterGrenzen {
  double Unten, Oben;
};
ParameterGrenzen ParameterGrenzenVon(int16_t modell, int i);

void ResiduumBerechnen(ProjectState& s, const FitZustand& z, int i, const FitParameter& b, double& r);
void FQSBerechnen(ProjectState& s, const FitZustand& z, const FitParameter& b, double& S, int& ifn);
void JacobiZeile(ProjectState& s, const FitZustand& z, int n, int i, FitParameter& b, double& r,
                 FitParameter& x);
void MarquardtFit(ProjectState& s, const FitZustand& z, int n, int m, FitParameter& b, FitParameter& stdev,
                  double& S, int16_t& fehler);

} // namespace quor
