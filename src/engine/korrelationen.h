// Temperature functions of the loaded substance whose coefficients come from the database:
// vapour pressure and its inverse, the slope of the vapour-pressure curve, liquid and solid
// density, enthalpy of vaporization, heat capacities. T in K, p in kPa, density in kg/m^3,
// energies in kJ/kmol. Coefficients are single precision, the arithmetic is double.
//
// Every routine reports failure through `failed` (0 good, -1 failed) with the result 0 and never
// returns a non-finite number. Warnings about a temperature outside a block's validity range go to
// `ui` only when `warn` is set and `ui` is not null, so that a curve through many points can
// switch them off.
#pragma once

#include "core/project_state.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quor {

namespace ui {
class Oberflaeche;
}

// Rows of the vapour-pressure table.
enum DampfdruckGleichung : int16_t {
  DampfdruckKeine = 0,
  AntoineNiederdruck = 1,
  AntoineHochdruck = 2,
  FrostKalkwarfDB = 3,
  WagnerDB = 4,
  AugustKorreliert = 5,
  FrostKalkwarfVdW = 6,
  FrostKalkwarfRK = 7,
  AntoineThompson = 8
};

// The August constants from the normal boiling point and the critical point (p in kPa):
// B = Tb*Tc*ln(pc/101.325)/(Tb - Tc), A = ln(pc) - B/Tc. False (and both 0) when they are not finite.
bool AugustParameter(double Tc, double pc, double Tb, double& A, double& B);

// Vapour pressure by equation `index`; warns beyond 10 K outside the block's range.
double pLV(ProjectState& s, double T, int index, bool warn, int16_t& failed, ui::Oberflaeche* ui = nullptr);

// Saturation temperature at p by equation `index`; warns beyond 5 K outside the block's range.
double TLV(ProjectState& s, double p, int index, bool warn, int16_t& failed, ui::Oberflaeche* ui = nullptr);

// Slope d(ln p)/d(1/T) of equation `index` at T, in K; 0 for index 0 or above 8.
float DLnpDInvT(ProjectState& s, double T, int index, int16_t& failed);

// Liquid density of the database function (linear, Rackett or combination form).
float RhoL(ProjectState& s, double T, bool warn, int16_t& failed, ui::Oberflaeche* ui = nullptr);

// Solid density: cubic in T within a range, linear about a reference pair without one.
float RhoS(ProjectState& s, double T, bool warn, int16_t& failed, ui::Oberflaeche* ui = nullptr);

// Liquid density on the straight diameter through a reference point and the critical point;
// rhoV is the vapour density at T. `pref` is carried for the caller's record and not used.
double BensonRhoL(double T, double Tc, double rhoCr, double rhoV, double Tref, double pref, double rhoVref,
                  double rhoLref, int16_t& failed);

// Enthalpy of vaporization of the database function; 0 without its T(cr); a T above T(cr) fails.
double HLVFu(ProjectState& s, double T, int16_t& failed);

// Methods of HLVBerechnen (rows of the delta(LV)h table).
enum HLVMethode : int16_t {
  HLVKeine = 0,
  HLVGleichung = 1,
  HLVChen = 2,
  HLVCarruthKobayashi = 3,
  HLVWatson = 4,
  HLVAusRhoL = 5,
  HLVAusBenson = 6,
  HLVAusKubischerEOS = 7
};

// The state of a measured data point that stands in when neither T nor p is given (0: none).
struct HLVDatenpunkt {
  double T = 0;
  double p = 0;
};

// Side results and notes of an enthalpy of vaporization.
struct HLVErgebnis {
  double zV = 0;
  double zL = 0;
  std::vector<std::string> notizen; // what was used and where T and p came from, in order
};

// Enthalpy of vaporization by `methode` at T and p; a T or p not above 1e-6 is found from the
// vapour-pressure equation `index` (or the data point) and written back. Methods 1 to 4 come out
// as whole kJ/kmol.
double HLVBerechnen(ProjectState& s, int methode, double& T, double& p, int index, bool warn,
                    HLVErgebnis& erg, int16_t& failed, ui::Oberflaeche* ui = nullptr,
                    const HLVDatenpunkt& punkt = {});

// Rows of the cp table (CpIndex): the ideal-gas heat-capacity equations of the database.
enum CpGleichung : int16_t { CpKeine = 0, CpPolynom = 1, CpSinhCosh = 2 };

// Ideal-gas heat capacity in kJ/(kmol K): kind 1 polynomial, kind 2 sinh/cosh, otherwise 0.
double CpIdG(ProjectState& s, double T, int kind);

// Heat capacity of the liquid and of the solid in kJ/(kmol K).
double CpL(ProjectState& s, double T);
double CpS(ProjectState& s, double T);

} // namespace quor
