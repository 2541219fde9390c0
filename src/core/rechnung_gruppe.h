// The set-up of a state calculation between the menu and the dispatcher: the mode of the input
// (direct or over the batch data), what the value dialog is opened for and the user's choices in it,
// the values of the vessel, and where the result page stood when it was last closed.
#pragma once

#include <cstdint>
#include <string>

namespace quor {

// What the value dialog frmParinput is opened for: the reference point, the vessel, or a direct
// calculation (kind + 100).
enum ParinputZweck : int16_t { ParinputBezugspunkt = 4, ParinputBehaelter = 33, ParinputDirekt = 100 };

// The vessel: the given mass (kg), volume (m^3) and temperature (K), and what its calculation found.
struct BehaelterDaten {
  double m = 0;
  double V = 0;
  float BehaelterT = 0;
  float BehaelterP = 0;
  float BehaelterFuellstand = 0; // liquid volume in percent of the whole
  float BehaelterHoehe = 0;
  std::string BehaelterStatus; // "" or "ERROR1", "ERROR2", "ERROR3"
};

// Position and size of a window in pixels; `gesetzt` once it was kept.
struct FensterLage {
  int x = 0, y = 0, breite = 0, hoehe = 0;
  bool gesetzt = false;
};

struct RechnungGruppe {
  bool StapelModus = false;     // the calculation works through the batch data
  int16_t ParinputModus = 0;    // ParinputZweck, or kind + 100
  bool TpGleichgewicht = false; // T and p given describe a vapour-liquid equilibrium
  bool EingabeRho = true;       // kinds 1, 2, 13 take a density, not a volume
  bool EingabeMasse = true;     // the vessel takes a mass, not an amount
  BehaelterDaten Behaelter;
  FensterLage ErgebnisSeite; // the result page, kept for its next opening
  FensterLage Kessel;        // the vessel picture, kept for its next opening
};

} // namespace quor
