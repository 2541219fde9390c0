// The model codes of the fitting dialog (FitModell), one per option on its five tabs. Codes 2, 12
// and 13 are reserved, hidden entries.
#pragma once

#include <cstdint>

namespace quor::fitmodell {

// General y(x)
constexpr int16_t Polynom = 0; // A + B x + ... + F x^5, linear regression
constexpr int16_t Kombi = 1;   // A + B x + C x^2 + D x^3 + E/x + F/x^2 + G ln x, linear regression
constexpr int16_t Reserviert2 = 2;
// Vapour pressure p(T)
constexpr int16_t August = 3; // August / Dupré-Rankine
constexpr int16_t Antoine = 4;
constexpr int16_t FrostKalkwarf = 5;
constexpr int16_t FrostKalkwarfThodos = 6; // D correlated from B and Tcr
constexpr int16_t DipprDampfdruck = 7;
constexpr int16_t Wagner = 8;
// Liquid density rho(L)(T)
constexpr int16_t Rackett = 9; // Rackett / DIPPR
constexpr int16_t Leuna = 10;
constexpr int16_t PolynomDichte = 11;
constexpr int16_t Reserviert12 = 12;
constexpr int16_t Reserviert13 = 13;
// Enthalpy of vaporization delta(LV)h(T)
constexpr int16_t Majer = 14;
constexpr int16_t DipprHLV = 15;
// Heat capacity cp(T)
constexpr int16_t PolynomCp = 16;
constexpr int16_t Shomate = 17;
constexpr int16_t DipprCp = 18;
// Interpolation
constexpr int16_t AkimaSpline = 19;

} // namespace quor::fitmodell
