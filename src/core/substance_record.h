// One substance of the database in memory: texts, coefficient blocks of the correlations with their
// validity ranges, and the availability flags set on load. The substance group of the project state
// is the working copy of such a record together with the constants (molar mass, critical point ...).
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace quor {

// Validity range of a correlation block in whole kelvins; 0 means "no limit given".
struct TGrenzen {
  int16_t TLo = 0;
  int16_t THi = 0;
  // The function behind the limits is there: one limit suffices.
  bool Vorhanden() const { return TLo > 0 || THi > 0; }
};

struct SubstanceRecord {
  std::string Formel;         // at most 12 characters, right-trimmed
  std::string FormelOhneLeer; // the formula without any blank
  std::string Struktur;       // structure line; empty for the older database kind
  std::string CASRN;          // CAS registry number, trimmed
  int16_t MDBNr = 0;          // the substance's system number

  float TUntereGrenze = 0; // lower temperature bound; the triple point when the cell is empty

  // Liquid density: A, B, C, D, E, F, G; Rackett form when A is 0, combination form otherwise.
  std::array<float, 7> RhoL{};
  float RhoLTcr = 0;
  TGrenzen RhoLGrenzen;

  // Vapour pressure: Frost/Kalkwarf A..I, Antoine A, B, C below and above the normal boiling point,
  // Wagner A1, A2, A3, n3, A4, n4, A5, n5, Tcrit, pcrit.
  std::array<float, 9> FrostKalkwarf{};
  TGrenzen FrostKalkwarfGrenzen;
  std::array<float, 3> AntoineNd{};
  TGrenzen AntoineNdGrenzen;
  std::array<float, 3> AntoineHd{};
  TGrenzen AntoineHdGrenzen;
  std::array<float, 10> Wagner{};
  TGrenzen WagnerGrenzen;

  // Heat capacities C0..C4: ideal gas polynomial and sinh/cosh form, liquid, solid.
  std::array<float, 5> CpPoly{};
  TGrenzen CpPolyGrenzen;
  std::array<float, 5> CpSinh{};
  TGrenzen CpSinhGrenzen;
  std::array<float, 5> CpL{};
  TGrenzen CpLGrenzen;
  std::array<float, 5> CpS{};
  TGrenzen CpSGrenzen;
  bool CpPolyOK = false;
  bool CpSinhOK = false;
  bool CpLOK = false;
  bool CpSOK = false;

  // Enthalpy of vaporization: A, alpha, beta, C, D, E of the database function, its T(cr), and the
  // reference point of the Watson correlation.
  std::array<float, 6> HLV{};
  float HLVTcr = 0;
  TGrenzen HLVGrenzen;
  float WatsonH = 0; // kJ/kmol
  float WatsonT = 0; // K

  // Solid density A, B, C, D.
  std::array<float, 4> RhoS{};
  TGrenzen RhoSGrenzen;

  // Vapour-pressure sets correlated from the critical point and the normal boiling point; never
  // stored in a file. Frost/Kalkwarf with the van der Waals (KFW) and the Redlich/Kwong term (KFR),
  // A..I each, and Thompson's Antoine set (THO) A, B, C.
  std::array<float, 9> KFW{};
  std::array<float, 9> KFR{};
  std::array<float, 3> THO{};
};

} // namespace quor
