// The rows of the EOS table (EOSIndex) by name, and what each row is. This is the one place that
// knows which rows are cubic, which belong to the virial family, which need the acentric factor
// and where a row takes its constants from; everybody else asks here.
//
//   row    model                       family     notes
//    0     ideal gas                   virial     the virial form with B = 0
//    1     (empty, never offered)
//    2     van der Waals               cubic
//    3     Berthelot                   cubic
//    4     Redlich/Kwong               cubic
//    5     Soave/Redlich/Kwong         cubic      Soave slope from omega
//    6     Peng/Robinson               cubic      Soave slope from omega
//    7     Varnik/Ji I                 cubic      fitted parameter set, from omega
//    8     Varnik/Ji II                cubic      as 7, with T-dependent b, c, d
//    9     (empty, never offered)
//   10     virial, B by hand           virial     b0 - b1/T^b2
//   11-15  virial, B of rows 2 to 6    virial     the cubic constants, c and d dropped
//   16     virial, Pitzer/Curl         virial     correlation in omega
//
// The predicates take int so that a row read as unsigned (or promoted) compares by its value.
#pragma once

#include "core/project_state.h"

#include <cstdint>

namespace quor::eos {

constexpr int16_t Keine = -1; // no model chosen yet
constexpr int16_t Idealgas = 0;
constexpr int16_t LeereZeile1 = 1; // rows 1 and 9 hold no model
constexpr int16_t VanDerWaals = 2;
constexpr int16_t Berthelot = 3;
constexpr int16_t RedlichKwong = 4;
constexpr int16_t SoaveRedlichKwong = 5;
constexpr int16_t PengRobinson = 6;
constexpr int16_t VarnikJi1 = 7;
constexpr int16_t VarnikJi2 = 8;
constexpr int16_t LeereZeile9 = 9;
constexpr int16_t VirialHand = 10;
constexpr int16_t VirialVanDerWaals = 11;
constexpr int16_t VirialBerthelot = 12;
constexpr int16_t VirialRedlichKwong = 13;
constexpr int16_t VirialSoaveRedlichKwong = 14;
constexpr int16_t VirialPengRobinson = 15;
constexpr int16_t VirialPitzerCurl = 16;

// A row has been chosen (any index above Keine).
constexpr bool IstGewaehlt(int z) {
  return z > Keine;
}

// The cubic equations of state, rows 2 to 8: the only ones with a liquid phase and a saturation
// line of their own (GLOBAL concept).
constexpr bool IstKubisch(int z) {
  return z >= VanDerWaals && z <= VarnikJi2;
}

// The virial family: the ideal gas and every row above 9. These models describe the vapour only;
// the row sets VirialFlag.
constexpr bool IstVirial(int z) {
  return z == Idealgas || z >= VirialHand;
}

// The Varnik/Ji models with their fitted parameter sets.
constexpr bool IstVarnikJi(int z) {
  return z == VarnikJi1 || z == VarnikJi2;
}

// Rows whose constants come from the acentric factor: Soave/Redlich/Kwong, Peng/Robinson and the
// Varnik/Ji models, their virial forms and Pitzer/Curl.
constexpr bool BrauchtOmega(int z) {
  return (z >= SoaveRedlichKwong && z <= VarnikJi2) || z >= VirialSoaveRedlichKwong;
}

// The virial rows that take their constants from a cubic row (11 to 15).
constexpr bool IstKubischerVirial(int z) {
  return z >= VirialVanDerWaals && z <= VirialPengRobinson;
}

// The row whose constants a row uses: 11 to 15 those of the cubic rows 2 to 6, every other row its own.
constexpr int KonstantenZeile(int z) {
  return IstKubischerVirial(z) ? z - (VirialVanDerWaals - VanDerWaals) : z;
}

// Rows whose second virial coefficient is B = b - a/(R*T) of the evaluated cubic form: the
// Varnik/Ji models and the virial rows 11 to 15.
constexpr bool BAusKubischerForm(int z) {
  return IstVarnikJi(z) || IstKubischerVirial(z);
}

// The chosen model is a cubic equation of state with its liquid phase.
inline bool KubischGewaehlt(const ModelSelection& m) {
  return !m.VirialFlag && IstKubisch(m.EOSIndex);
}

} // namespace quor::eos
