// The kinds of state calculation (RechenArt) by name. The numbers are those the menus set, the
// project files and the record log keep, and the dispatcher branches on; 0 means none yet.
#pragma once

#include <cstdint>

namespace quor::art {

constexpr int16_t Keine = 0;
constexpr int16_t TRhoV = 1;             // T, rho(V) => p
constexpr int16_t TRhoL = 2;             // T, rho(L) => p
constexpr int16_t Tp = 3;                // T, p => rho
constexpr int16_t TzuPLV = 4;            // L-V equilibrium: T => p(LV)
constexpr int16_t PzuTLV = 5;            // L-V equilibrium: p => T(LV)
constexpr int16_t HLVvonT = 6;           // enthalpy of vaporization at T
constexpr int16_t HLVvonP = 7;           // enthalpy of vaporization at p
constexpr int16_t Funktionen = 8;        // T, p => all thermodynamic functions
constexpr int16_t BehaelterGlobal = 9;   // vessel, GLOBAL
constexpr int16_t BehaelterPartial = 10; // vessel, PARTIAL
constexpr int16_t Virial = 11;           // T => second virial coefficients
constexpr int16_t Polytrope = 12;        // start point of the polytropic process
constexpr int16_t pRho = 13;             // p, rho => T
// Database functions F(T)
constexpr int16_t DbRhoL = 14;
constexpr int16_t DbHLV = 15;
constexpr int16_t DbCpIdG = 16;
constexpr int16_t DbCpL = 17;
constexpr int16_t DbCpS = 18;
constexpr int16_t DbFrostKalkwarf = 19; // the vapour-pressure equations: 19 + submenu index
constexpr int16_t DbWagner = 20;
constexpr int16_t DbAntoineNd = 21;
constexpr int16_t DbAntoineHd = 22;
constexpr int16_t OhneZweig = 23; // within the database range, but no branch: the page stays empty
constexpr int16_t DbRhoS = 24;

constexpr bool IstBehaelter(int16_t a) {
  return a == BehaelterGlobal || a == BehaelterPartial;
}
constexpr bool IstGleichgewicht(int16_t a) {
  return a == TzuPLV || a == PzuTLV;
}
constexpr bool IstVerdampfung(int16_t a) {
  return a == HLVvonT || a == HLVvonP;
}
constexpr bool IstDatenbank(int16_t a) {
  return a >= DbRhoL && a <= DbRhoS;
}
constexpr bool IstDampfdruckDb(int16_t a) {
  return a >= DbFrostKalkwarf && a <= DbAntoineHd;
}

} // namespace quor::art
