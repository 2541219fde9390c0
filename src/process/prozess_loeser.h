// The solver of the homogeneous process lines and of the iso-line calculator: at a given T (or p) it
// finds the p (or T) at which the fixed quantity (v, h, s, g, u, a or an exergy of one phase) takes
// its value. The free variable lives
// in row 0 of the measured data, the input row of the functions calculation, and is overwritten.
#pragma once

#include "calc/ergebnis_typen.h"
#include "core/project_state.h"
#include "dienste/oberflaeche.h"
#include "engine/ableitungen.h"

#include <cstdint>

namespace quor::prozess {

// The fixed quantity, as its offset in a phase's block of the result cells: v, h, s, g, u, a, and the
// exergies of h and u.
enum class FixGroesse : int16_t { v = 0, h = 1, s = 2, g = 3, u = 4, a = 5, eh = 6, eu = 7 };

// The phase whose column is read is given by its row in the tables, PhaseL (0) or PhaseV (1).

// How one value of the fixed quantity is found: through the calculation dispatcher with kind 8, as
// the page does it, or straight from the state solver and the caloric functions in engine units,
// without the page's texts. Both read the column of the chosen phase and give 0 when that phase is
// not present at the state.
enum class Auswertung : int16_t { CalcBatch, Direkt };

// Work space of one line: the page and the context the dispatcher writes, and the evaluation path.
struct LoeserKontext {
  Auswertung art = Auswertung::CalcBatch;
  ErgebnisSeite seite;
  RechenKontext k;
  int aufrufe = 0; // evaluations so far (each one a dispatcher call on that path)
};

// The fixed quantity at (T, p) in the column of `phase`, in the units of the chosen path (the
// dispatcher's cells are scaled by the display factors; the direct path gives engine units).
// False when the state cannot be solved.
bool FixWertBei(ProjectState& s, ui::Oberflaeche& ui, LoeserKontext& lk, double T, double p, FixGroesse g,
                int16_t phase, double& wert);

// Varies T (variableT, with p given in row 0) or p (with T given) in row 0 of ExpDaten, starting from
// the value there, until the fixed quantity equals `ziel`. Newton steps on a forward difference
// (step 1e-4 for T, 0.0005 for p), at most 500 rounds; ends when |dx/x| < 1.5e-6. `fehler` is -1
// when the rounds run out, a value leaves the range of 1e9 or the state cannot be solved; row 0
// then holds the last trial. Never throws.
void ProzessLoeser(ProjectState& s, ui::Oberflaeche& ui, LoeserKontext& lk, bool variableT, FixGroesse g,
                   int16_t phase, double ziel, int16_t& fehler);

} // namespace quor::prozess
