// What a state calculation leaves behind: the 42 numbers of one state, the record of one data point,
// the snapshot of the last solved state, and the fields of the result page that show it.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace quor {

constexpr int ErgebnisZellen = 42;
using ErgebnisVektor = std::array<double, ErgebnisZellen>;

// Cells of the ErgebnisVektor.
enum ErgebnisZelle : int {
  ZelleT = 0,
  ZelleP = 1,
  ZelleRhoGlobal = 2,
  ZelleVGlobal = 3,
  ZelleRhoL = 4,
  ZelleCpS = 5,
  ZelleCpIdG = 7,
  ZelleVV = 9,
  ZelleHV = 10,
  ZelleSV = 11,
  ZelleGV = 12,
  ZelleUV = 13,
  ZelleAV = 14,
  ZelleEHV = 15,
  ZelleEUV = 16,
  ZelleCpV = 17,
  ZelleCvV = 18,
  ZelleVL = 19,
  ZelleHL = 20,
  ZelleSL = 21,
  ZelleGL = 22,
  ZelleUL = 23,
  ZelleAL = 24,
  ZelleEHL = 25,
  ZelleEUL = 26,
  ZelleCpL = 27,
  ZelleCvL = 28,
  ZelleDhLV = 29,
  ZelleDsLV = 30,
  ZelleAlphaV = 31,
  ZelleChiV = 32,
  ZelleBetaV = 33,
  ZelleDeltaV = 34,
  ZelleAlphaL = 35,
  ZelleChiL = 36,
  ZelleBetaL = 37,
  ZelleDeltaL = 38,
  ZelleSchallL = 39,
  ZelleSchallV = 40,
  ZelleB = 41
};

// The result record of one data point. Phase is " V ", " L ", "V+L", or "   " without a result.
struct StapelErgebnis {
  std::string Phase = "   ";
  float TFu = 0, pFu = 0, vFu = 0;
  float TCalc = 0, pCalc = 0, rhoVCalc = 0, rhoLCalc = 0, dhCalc = 0;
  std::array<std::array<float, 7>, 2> Abl1{};  // phases x first derivatives 0..6
  std::array<std::array<float, 6>, 2> Abl2{};  // phases x second derivatives 0..5
  std::array<std::array<float, 11>, 2> Fuga{}; // phases x fugacity and residual block 0..10
  std::array<std::array<float, 3>, 2> Mech{};  // phases x mechanical coefficients 0..2
  float hFu = 0, sFu = 0, gFu = 0, eHFu = 0, eUFu = 0;
};

// The state last solved, for the diagnostics of the cubic equation.
struct LetzterZustand {
  float T = 0;
  bool HatV = false;
  bool HatL = false;
  std::array<double, 3> V{}; // copied from VRoots
  int16_t Art = 0;           // 3 after an equilibrium with both roots, else the kind of solution
  float vLetzt = 0;          // last v of the solution
  float pLetzt = 0;          // last p of the solution
  int16_t AnzahlWurzeln = 0; // 1 or 3 roots in the last solve
};

// Text colours of the page, by their Basic colour codes.
enum class TextFarbe : int16_t { Schwarz = 0, Rot = 4 };

// One text field or label of the result page.
struct SeitenFeld {
  std::string text;
  TextFarbe farbe = TextFarbe::Schwarz;
  bool sichtbar = true;
  std::string tooltip;
};

// The fields of the result page that a calculation writes.
struct ErgebnisSeite {
  SeitenFeld par1, par2; // the given values
  SeitenFeld co1;        // main result line
  SeitenFeld txtco2;     // value line
  SeitenFeld Liste;      // the text block, shown in a fixed-width font
  SeitenFeld lblGleich;  // region of the state
  SeitenFeld lblLphase, lblVphase;
  SeitenFeld lblIdentisch; // "identisch" / "(identisch)": what the arrows of lblGleich point at
  bool cmdInfoSuperCritVerfuegbar = true;
  bool cmdCEOSDiagnoseVerfuegbar = false;
  // Frames hidden for the polytropic start point.
  bool fraBatchVorgabeSichtbar = true;
  bool fraValueSichtbar = true;
  bool fraCalcErweitertSichtbar = true;
  bool fraProtokollSichtbar = true;
};

// The vessel of kinds 9 and 10: mass (kg), volume (m^3) and temperature (K) as given.
struct BehaelterVorgabe {
  double m = 0;
  double V = 0;
  float T = 0;
};

// The state that a vessel calculation hands to the vessel display.
struct BehaelterZustand {
  double T = 0, p = 0;   // K, kPa
  double v = 0;          // molar volume of the filling, m^3/kmol
  double vL = 0, vV = 0; // phase volumes, m^3/kmol (0 for a phase not present)
  double y = 0;          // vapour fraction by amount
  bool HatL = false, HatV = false;
  bool Fehler = false; // the calculation ended with an error; p is 0 then
  // "", "ERROR1" (v at or below the co-volume b of the EOS) or "ERROR2" (another error).
  std::string Status;
};

// What the page and its calculation share: the options of the further output blocks, the records
// of the data points, the snapshot, and the answer of the calculation input whether T and p describe
// a vapour-liquid equilibrium.
struct RechenKontext {
  int16_t AnzahlPunkte = 0;   // data points of the batch (0 with direct input)
  int16_t Abschnitte = 1;     // 1 nothing further, 2 fugacity/mechanical, 3 derivatives, 4 both
  bool MitFunktionen = false; // thermodynamic functions block
  bool TpIstGleichgewicht = false;
  std::vector<StapelErgebnis> StapelErgebnisse = std::vector<StapelErgebnis>(1); // 0..AnzahlPunkte
  LetzterZustand Letzter;
  ErgebnisVektor Ergebnis{};
  bool ErrorFlag = false;
  bool HatL = false;
  bool HatV = false;
  float EtaProzent = 0;
  std::string ProzessText;           // the polytropic calculator's text for kind 12
  bool TripelHinweisGezeigt = false; // the hint "below the triple point" is shown once per page
  BehaelterVorgabe Behaelter;        // given values of kinds 9 and 10
  // The vessel display of kinds 9 and 10; without one the calculation simply stops there.
  std::function<void(const BehaelterZustand&)> BehaelterAnzeige;
};

} // namespace quor
