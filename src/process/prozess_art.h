// The kinds of process line (ProzessArt) that the process dialog takes. Kinds 0 to 5 are drawn by
// the process-line curve codes; the polytrope goes through its exchange with the process tool.
#pragma once

#include <cstdint>

namespace quor::prozess {

constexpr int16_t Gerade = 0; // straight line (x1, y1) - (x2, y2)
constexpr int16_t Isotherme = 1;
constexpr int16_t Isobare = 2;
constexpr int16_t Isochore = 3;      // homogeneous or inside the two-phase region
constexpr int16_t Isentrope = 4;     // reversible adiabate; homogeneous or heterogeneous
constexpr int16_t Isenthalpe = 5;    // homogeneous or heterogeneous
constexpr int16_t Polytrope = 6;     // computed by the polytrope exchange
constexpr int16_t Parameter = 7;     // a curve parameter for the family curves of the open diagram
constexpr int16_t KonstantesEta = 8; // line of constant degree of vaporization eta(V)

} // namespace quor::prozess
