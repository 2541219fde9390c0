// The catalogue of 2D diagrams: for each code its family, the pair of axes, the title and the axis
// texts in the chosen units; the standard axis ranges of each quantity; and the central routine
// that a menu entry calls with its code before a diagram opens.
#pragma once

#include "core/project_state.h"
#include "diagrams/diagramm_auftrag.h"
#include "dienste/oberflaeche.h"

#include <array>
#include <cstdint>
#include <string>

namespace quor {

// The quantities on the axes of a 2D diagram. Each has its axis texts and one stored standard
// range; the inversion curves keep ranges of their own, since they reach far above the critical
// point.
enum class Groesse : uint8_t {
  T,
  p,
  v,
  Rho,
  PV,          // p*v
  InvT,        // 1/T of ln p over 1/T
  InvTAnstieg, // 1/T of the vapour-pressure slope
  LnP,
  Anstieg, // d ln p / d(1/T)
  U,
  H,
  S,
  G,
  A,
  Cp,
  Cv,
  EH,
  EU,
  HLV,  // delta(LV)h
  ResS, // residual s, h, g, cp
  ResH,
  ResG,
  ResCp,
  TuS,          // T(u) * s
  JouleThomson, // delta
  TInversion,
  pInversion,
  PVInversion,
  Anzahl
};
constexpr std::size_t GroessenAnzahl = static_cast<std::size_t>(Groesse::Anzahl);

// One row of the catalogue.
struct KatalogZeile {
  int16_t Code;
  int16_t Klasse;
  const char* Achsentag;
  const char* Titel; // without the prefix of the caloric codes
  Groesse X;
  Groesse Y;
};

// The row of a code; nullptr for a code the catalogue does not know (the process lines among
// them, which never pass through it).
const KatalogZeile* KatalogZeileVon(int code);

// The code is one of the catalogue's.
bool CodeBekannt(int code);

// The quantity is an energy, entropy or heat capacity: its text follows EnergieMode and its values
// take EnergieFaktor.
bool IstKalorisch(Groesse g);

// A code whose axes carry a caloric quantity; its title gets "molare " or "spezifische ".
bool KalorischerCode(int code);

// The axis text of a quantity in the display units (EnergieMode, VolumenMode).
std::string AchsenText(Groesse g, const EinheitenGruppe& e);

// The title with its prefix for a caloric code ("molare " for EnergieMode 0 to 2, "spezifische "
// for mode 3); empty for an unknown code.
std::string TitelVon(int code, const EinheitenGruppe& e);

// Klasse, Achsentag, Titel, XText, YText of the request's code; false (nothing written) for an
// unknown code.
bool SetzeKatalogTexte(DiagrammAuftrag& a, const EinheitenGruppe& e);

// ----- standard ranges -----

struct Bereich {
  double Min = 0;
  double Max = 0;
};

// The stored range of every quantity, in engine units (K, kPa, m^3/kmol, kg/m^3, kJ/kmol,
// kJ/(kmol K), K/kPa; 1/T in 1/K; ln p of p in kPa).
struct StandardBereiche {
  std::array<Bereich, GroessenAnzahl> Werte{};
  Bereich& operator[](Groesse g) { return Werte[static_cast<std::size_t>(g)]; }
  const Bereich& operator[](Groesse g) const { return Werte[static_cast<std::size_t>(g)]; }
};

// The standards of the loaded substance: T from the triple point (half the critical temperature
// when it is missing) to 1.5 TKrit, p up to 2 pKrit, v and rho about the critical volume, the
// vapour-pressure axes from a generalised vapour-pressure curve, and the caloric quantities from
// the model at a few states spread over those T and p ranges (its work fields are left as found).
StandardBereiche BereicheVon(ProjectState& s);

// A range in displayed units: the quantity's display factor applied (TFaktor, pFaktor,
// VolumenFaktor, EnergieFaktor), then widened by 5 % of its span on each side.
Bereich AnzeigeBereich(Groesse g, Bereich engine, const EinheitenGruppe& e);

// The four ends of the request's axes for its code: the stored range of each axis' quantity, or
// for a database function its validity range in T and the function's values at both ends; in
// displayed units and widened by 5 %. False (nothing written) for an unknown code.
bool IniStandardBereich(ProjectState& s, const StandardBereiche& b, DiagrammAuftrag& a);
bool IniStandardBereich(ProjectState& s, DiagrammAuftrag& a);

// ----- the central routine -----

// What opens after the catalogue has prepared a request.
enum class Graf2DFolge {
  Nichts,           // the request ends here (no critical temperature, unknown code, or No)
  DiagrammSofort,   // the diagram page opens and draws at once (Klasse 5, 6, 7)
  ParameterEingabe, // the input of the curve's parameter opens first
  ProzessSeite      // the process page takes the input (tags "hs" and "hh")
};

struct Graf2DErgebnis {
  Graf2DFolge Folge = Graf2DFolge::Nichts;
  bool DiagrammLoeschen = false; // the user agreed to clear the diagram on show
};

// A diagram is on show and the code's pair of axes differs from its tag.
bool AchsenFrageNoetig(bool diagrammOffen, const std::string& achsentagAlt, int code);

// Asks whether the diagram on show may be cleared when the new code's axes don't fit it. True when
// the request may go on (no question, or Yes, which sets `loeschen`); on No the request's tag goes
// back to the tag on show and the result is false.
bool AchsenPruefen(ui::Oberflaeche& ui, DiagrammAuftrag& a, bool diagrammOffen, bool& loeschen);

// The work of a menu entry's code: refuses without a critical temperature, asks when the axes
// don't fit the diagram on show, fills the texts and the standard ranges, and says what opens.
Graf2DErgebnis Graf2D_Zentrale(ProjectState& s, ui::Oberflaeche& ui, DiagrammAuftrag& a, bool diagrammOffen);

// The decision alone: what opens for a request of this family and tag.
Graf2DFolge FolgeVon(int16_t klasse, const std::string& achsentag);

} // namespace quor
