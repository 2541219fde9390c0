// The run of a fit and the evaluation of its result, as the fitting dialog's "Start Fitting" and its
// "inter- und extrapolieren" use them.
//
// FitStarten(s, z) checks in this order: data present; Tcr (and pcr) in the field behind the last
// parameter where the model needs them; more active points than parameters (not for the spline);
// at least 3 active points for the spline. A failed check appends its message to z.Meldungen and
// returns false. Otherwise it takes FitFix and FitPar (divided by FitSkala) from FixFeld and
// StartFeld, FitTcr and FitPcr from their fields, fits (linear regression for models 0 and 1, the
// Marquardt fit for 3 to 18, the Akima spline for 19), multiplies FitPar and FitStDev by FitSkala,
// and sets FQS, sR, fehler and Ergebnis. An iteration limit ends the Marquardt fit without a word:
// the parameters and sum of squares of that moment are the result, and FitStDev keeps the values of
// the run before, multiplied by the scale factors once more.
//
// With model 6 FitPar holds A, B, C and E in its first four elements; the D shown beside them is
// FrostKalkwarfThodosD(B, FitTcr, true) (fit_modelle.h), taken over with ln 10 for the ln form.
//
// FitFunktionswert(s, z, x, fehler): the fitted function at x with FitPar, FitTcr, FitPcr and the
// current Lg; fehler -1 (and 0 returned) where the model cannot be evaluated.
// FitInvers(s, z, y, fehler): the x at which the fitted function takes the value y, by Newton's
// method from the straight line through the extremes of the active points; fehler -1 when 100
// rounds do not converge or the iteration leaves the number range.
#pragma once

#include "core/project_state.h"
#include "fitting/fit_daten.h"

namespace quor {

// The texts of the refused runs.
extern const char* const KeineDatenText;
extern const char* const TcrKorrelationText; // model 6
extern const char* const TcrFehltText;
extern const char* const PcrFehltText;
extern const char* const ZuWenigePunkteText;
extern const char* const FitTitelNichtMoeglich; // "Ausführung nicht möglich"
extern const char* const FitTitelSplineTest;    // "Test auf Spline-Anwendbarkeit der exper. Daten"

// The spline's messages, which depend on the editor the data came from.
std::string SplineZuWenigeText(int16_t editorCode);
std::string SplineMehrfachXText(int16_t editorCode);

bool FitStarten(ProjectState& s, FitZustand& z);
double FitFunktionswert(ProjectState& s, const FitZustand& z, double x, int16_t& fehler);
double FitInvers(ProjectState& s, const FitZustand& z, double y, int16_t& fehler);

} // namespace quor
