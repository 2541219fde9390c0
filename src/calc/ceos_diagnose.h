// Logic of the dialog frmCEOSDiagnose: what the cubic equation said for the state last calculated,
// its roots of v at the given T and p with their stability, and which picture of the isotherm fits.
#pragma once

#include "calc/ergebnis_typen.h"
#include "core/project_state.h"

#include <string>
#include <vector>

namespace quor {

class frmCEOSDiagnose {
public:
  static const char* const Caption;

  // The stored pictures of the isotherm's shape.
  enum class Bild { Keins, DreiWurzelnUnterkritisch, EineWurzelUnterkritisch, EineWurzelUeberkritisch };

  frmCEOSDiagnose(const ProjectState& s, const LetzterZustand& letzter) : s_(s), z_(letzter) {}

  // Fills the texts and the picture for a cubic EOS with a last state; leaves them empty otherwise.
  void Form_Load();
  void cmdClose_Click() { Geschlossen = true; }

  std::string lblEOS;               // name of the EOS
  std::string lblT, lblp;           // T and p of the state
  std::vector<std::string> Wurzeln; // one line per root, smallest first
  Bild pctEOS = Bild::Keins;
  bool Geschlossen = false;

private:
  std::string WurzelZeile(int nummer, double v, const std::string& notiz) const;
  const ProjectState& s_;
  const LetzterZustand& z_;
};

// The picture for a state at T with `anzahlWurzeln` roots: three or one root below TKrit, or one root at
// or above it.
frmCEOSDiagnose::Bild DiagnoseBild(float T, double TKrit, int16_t anzahlWurzeln);

} // namespace quor
