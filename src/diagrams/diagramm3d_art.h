// The surfaces of the 3D diagram (Diagramm3DArt): a function of two state variables over a grid.
// Menu entries 0 to 2 choose 1 to 3; entries 4 to 10 choose the function surfaces by their index.
#pragma once

#include <cstdint>

namespace quor::art3d {

constexpr int16_t Druck = 1;      // p(v, T)
constexpr int16_t Volumen = 2;    // v(p, T)
constexpr int16_t Temperatur = 3; // T(v, p)
constexpr int16_t Cp = 4;         // Cp(p, T); diverges at the critical point
constexpr int16_t U = 5;          // U(p, T)
constexpr int16_t H = 6;          // H(p, T)
constexpr int16_t S = 7;          // S(p, T)
constexpr int16_t G = 8;          // G(p, T)
constexpr int16_t ExergieU = 9;   // EU(p, T)
constexpr int16_t ExergieH = 10;  // EH(p, T)

} // namespace quor::art3d
