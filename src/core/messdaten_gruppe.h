// The measured data of the current substance: rows of T, p, densities, enthalpy of vaporization and
// heat capacity, as keyed in, pasted or loaded from a batch file. Row 0 holds the values of a direct
// input; the measured rows are 1 to ExpAnzahl.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quor {

// One measured row; 0 in a column means "not measured".
struct ExpDatenSatz {
  bool Inaktiv = false; // excluded from fitting and diagrams
  double T = 0;         // K
  double p = 0;         // kPa
  float RhoL = 0;       // kg/m^3
  float RhoV = 0;       // kg/m^3
  float HLV = 0;        // kJ/kmol
  float Cp = 0;         // kJ/(kmol K)
};

struct MessdatenGruppe {
  std::vector<ExpDatenSatz> ExpDaten = std::vector<ExpDatenSatz>(1); // element 0: direct input
  int16_t ExpAnzahl = 0;
  std::string BatchDateiPfad;
  std::string BatchDateiTitel;
  std::string BatchKommentar;
  std::string BatchStoff;
  std::string BatchCAS;
  std::string BatchDatum;
  bool BatchGeaendert = false;
  int16_t FitSpalte = 1; // y column of a fit: 1 p, 2 rho(V), 3 rho(L), 4 delta(LV)h, 5 cp; 0 none
};

// The row `punkt`, grown into existence when it is beyond the end (rows are added as needed).
ExpDatenSatz& ExpZeile(MessdatenGruppe& m, int punkt);

} // namespace quor
