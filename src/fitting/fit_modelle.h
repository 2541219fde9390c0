// The model functions of the fitting dialog, with their parameter counts, start values and scale
// factors.
//
// ModellWert(eos, k, P, x, y) evaluates model k.Modell at x (T in K, p in kPa) for the parameters
// P as the user sees them (A, B, C, ... in order; model 6 holds A, B, C, E, its D being computed
// from B and Tcr). It tells three outcomes apart:
//   - Gut: y is the value;
//   - Fehlschlag: the model's own failure test struck (Wagner out of range, Frost-Kalkwarf without
//     a solution); y is 0 and counts as the model's value;
//   - Laufzeitfehler: a step of the formula is undefined (overflow, logarithm or fractional power
//     of a negative number, division by zero); y is 0 and means nothing.
// Models 0 and 1 evaluate the polynomial and the combined expression with the regression's
// coefficients. The DIPPR heat capacity (18) keeps its A in eos.c0 while it runs and leaves it
// there, so it overwrites that constant of the current equation of state. The cp polynomial (16)
// offers a fifth parameter that its formula does not use: left free, it stays at its start value
// and makes the matrix of the standard deviations singular (-9999).
//
// ModellWaehlen sets a FitZustand up for a model as choosing it in the dialog does.
#pragma once

#include "core/project_state.h"
#include "fitting/fit_daten.h"

#include <array>
#include <cstdint>

namespace quor {

enum class ModellStatus : int16_t { Gut = 0, Fehlschlag = -1, Laufzeitfehler = -2 };

struct ModellKonstanten {
  int16_t Modell = 0;
  double c = 1;   // 1: natural logarithm; LnTen: decimal (vapour-pressure models 3 to 7)
  double Tcr = 0; // K
  double pcr = 0; // kPa
};

ModellStatus ModellWert(EOSGruppe& eos, const ModellKonstanten& k, const FitParameter& P, double x,
                        double& y);

// The vapour pressure of the Frost-Kalkwarf form ln p / c = A + B / (T + C - 273.15) + D ln T / c
// + E p / T^2, solved by Newton's method. Fehlschlag when p or the slope vanish.
ModellStatus FrostKalkwarfDruck(double A, double B, double C, double D, double E, double c, double T,
                                double& p);

// D of the Frost-Kalkwarf-Thodos form from B and Tcr: 1.8 B / Tcr + 2.67 for decimal logarithms,
// 1.8 B / (ln 10 Tcr) + 2.67 for natural ones.
double FrostKalkwarfThodosD(double B, double Tcr, bool lg);

// The factor c of the vapour-pressure models: ln 10 with chkLg checked, else 1; 1 for the others.
double LogFaktor(int16_t modell, bool lg);

struct ModellVorgabe {
  int16_t n = 0; // parameters, fixed ones included
  std::array<float, FitMaxPar> Start{};
  FitParameter Skala{1, 1, 1, 1, 1, 1, 1};
};

// Parameter count, start values and scale factors of a model. Tcr (of the model's group) enters
// the start values of the two Frost-Kalkwarf forms; lg is chkLg, which decides some of them.
ModellVorgabe ModellVorgaben(int16_t modell, bool lg, double Tcr);

// The start field that holds Tcr (and pcr) for a model that needs it, else -1: the field behind
// the last parameter, for model 6 the one behind the five fields it shows.
int TcrFeld(int16_t modell);
int PcrFeld(int16_t modell);

// Chooses the model: FitModell, FitNPar, FitStart, FitSkala, the start fields reset to the
// proposals, Tcr and pcr in their fields, Lg as given; the results are cleared.
void ModellWaehlen(FitZustand& z, int16_t modell, bool lg, double Tcr, double pcr);

} // namespace quor
