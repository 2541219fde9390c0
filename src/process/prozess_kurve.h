// A computed process line handed to the curve engine: the curve code of the line's kind and the
// states that the codes 201 to 211 put on the axes of the diagram on show.
#pragma once

#include "core/project_state.h"
#include "process/prozess_linie.h"

#include <cstdint>

namespace quor::prozess {

// The curve code of a line: 201 straight line, 202 isotherm, 204 isobar, 206 isochore, 210
// isentrope and isenthalpe, 211 any line inside the two-phase region (the constant-eta line
// among them); 0 for kinds the curve engine does not draw (polytrope, curve parameter).
int16_t KurvenCode(const ProzessVorgabe& v);

// Writes the states of `l` (or the ends of a straight line, in axis units) into the project state
// for the curve engine, with the code of the diagram whose axes the line takes.
void ProzessUebergeben(ProjectState& s, const ProzessVorgabe& v, const ProzessLinie& l, int16_t diagrammCode);
void GeradeUebergeben(ProjectState& s, float X1, float Y1, float X2, float Y2, int16_t diagrammCode);

} // namespace quor::prozess
