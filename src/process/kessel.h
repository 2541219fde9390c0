// Logic of the vessel picture frmKessel: a closed lying cylinder with the state that the vessel
// calculation found in it. It words the pressure and the fill level, finds the height of the liquid
// from the share of the circular cross-section that it fills, keeps the results in the vessel's
// record and says what the picture shows as plain numbers: coordinates in percent of the drawing
// area (x of its width, y of its height, from the top) and colours of the 16-colour Basic palette.
#pragma once

#include "calc/ergebnis_typen.h"
#include "core/project_state.h"
#include "diagrams/diagramm_bild.h"

#include <array>
#include <string>

namespace quor::prozess {

// The help page of the vessel.
constexpr int HilfeKessel = 47300;

// The colours of the 16-colour palette of Basic's QBColor, 0 black to 15 bright white.
RGBFarbe QBFarbe(int nummer);

// The centre angle a (radians, 0 to 2 pi) of the circular segment that covers `anteil` percent of
// the circle: a - sin a = 2 pi anteil / 100. Shares outside 0..100 are taken at the nearer limit; a
// share that is not a number gives 0.
double SegmentWinkel(double anteil);

// The height of the segment of angle a in a circle of diameter `durchmesser`.
double SegmentHoehe(double winkel, double durchmesser);

// How the inside of the vessel is filled.
enum class KesselFuellung {
  Leer,       // nothing drawn inside (no state)
  Zweiphasig, // vapour above the level, liquid below
  Einfarbig,  // one colour throughout (supercritical fluid)
};

// One block of the legend: its text and the colour of its box.
struct KesselLegende {
  std::string text;
  int farbe = 0;
};

class frmKessel {
public:
  static const char* const DesignCaption;    // "Behälter-Berechnung (Zylinder)"
  static const char* const GaugeText;        // "p"
  static const char* const UnterschriftText; // "zylinderförmiger Behälter"
  static constexpr int VFarbe = 1;           // vapour
  static constexpr int LFarbe = 11;          // liquid, and the supercritical fluid of GLOBAL
  static constexpr int PartialUeberkritischFarbe = 14;
  static constexpr int FehlerFarbe = 4; // the filling with "ERROR3"
  // The cylinder's cross-section in picture units: its diameter spans 25 % to 75 % of the height.
  static constexpr double Oben = 25, Unten = 75, Durchmesser = 50;
  static constexpr double Links = 18.5, Rechts = 81.5; // the body, centred at half the width
  static constexpr double Boden = 79;                  // the feet stand on 21 % above the bottom
  // Shares of the segment solve within this distance of empty or full are held there.
  static constexpr double HalteAnteil = 0.15;

  frmKessel(ProjectState& s, const BehaelterZustand& z);

  // Works out the picture from the state and keeps p, fill level, level and status in the vessel's
  // record of the project state.
  void Form_Load();

  // Fields as shown.
  std::string Caption;
  std::string txtDruck;      // the pressure field beside the gauge
  std::string lblFuellstand; // "Füllstand ... % (Vol.-anteil)"; empty when not drawn
  std::array<KesselLegende, 3> Legende;

  // What the picture holds.
  KesselFuellung Fuellung = KesselFuellung::Leer;
  int FluessigFarbe = LFarbe;
  int DampfFarbe = VFarbe;
  int EinfarbigFarbe = LFarbe;
  double Fuellstand = 0;   // liquid volume in percent of the whole
  double Hoehe = 0;        // level above the bottom of the cross-section, 0 to Durchmesser
  double ZeigerAnteil = 0; // the gauge's needle, 0 (rest) to 1 (full scale at p(cr))

  // The level as a y coordinate of the picture (percent of the height from the top).
  double SpiegelY() const { return Unten - Hoehe; }

  // The pressure as the field shows it for a status ("", "ERROR1", "ERROR2", "ERROR3") and p in kPa.
  static std::string DruckText(const std::string& status, double p);
  // The fill level line for a percentage.
  static std::string FuellstandText(double prozent);
  // The liquid volume in percent of the vessel for a state.
  static double FuellstandVon(const BehaelterZustand& z);
  // The level on the cross-section's scale (0 to Durchmesser) for a fill level in percent: drawn
  // from the vapour side above half full, the segment's share held near empty and full.
  static double HoeheVon(double fuellstand);

private:
  ProjectState& s_;
  BehaelterZustand z_;
};

} // namespace quor::prozess
