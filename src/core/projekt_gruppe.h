// The project as a whole beside its substance and models: file, comment and origin of the project,
// the grade of the substance's data, the texts of the status bar, and which groups of menu entries
// and toolbar buttons the frame enables. Dialog logic writes these fields; the frame shows them.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace quor {

// The data situation of the loaded substance ("Daten-Ampel").
struct DatenLage {
  int16_t DatenAmpel = 0; // 1 no restrictions .. 4 no calculation possible; 0 nothing judged yet
  bool KritOK = false;
  bool OmegaOK = false;
  bool DampfdruckOK = false;
  bool SiedeOK = false;
  bool HLVOK = false;
  bool AmpelNichtRot = false; // true unless the level is 4
};

// Groups of menu entries and toolbar buttons, by what they need.
struct MenueFreigaben {
  bool Stoff = false;           // a substance is chosen
  bool KritischerPunkt = false; // TKrit and pKrit of the substance are known
  bool Modell = false;          // the models were tested once
  bool Diagramme = false;       // diagram menus
  bool Saettigung = false;      // saturation by the EOS (cubic models only)
  bool ExpDaten = false;        // toolbar button of the measured data
};

struct ProjektGruppe {
  std::string ProjektVerzeichnis;
  std::string ProjektDatei;   // empty while the project is not saved
  std::string DateiKommentar; // comment of the project file
  std::string ProjektDatum;   // date of the project file as read or written
  bool LetzteSitzung = false; // the project came from the last-session file
  bool ProjektGeladenUeberKommando = false;
  bool EinmalHinweis = false; // the once-per-session hint was shown
  std::string TempDatei;

  std::string SynonymDatum; // date of the synonym file, 10 characters

  DatenLage Ampel;
  // Status bar panels 1 to 4 (element 0 unused): 2 substance, 3 EOS, 4 vapour-pressure equation.
  std::array<std::string, 5> StatusLeiste;
  MenueFreigaben Freigaben;
};

} // namespace quor
