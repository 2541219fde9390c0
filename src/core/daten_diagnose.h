// Grading of the loaded substance's data into the four levels of the "Daten-Ampel", its colours,
// and the report that explains the grade.
#pragma once

#include "core/project_state.h"

#include <cstdint>
#include <string>

namespace quor {

namespace ui {
class Oberflaeche;
}

// Title of the report.
extern const char* const DatenAmpelTitel;

// Colour of a level; `Systemfarbe` (the window's face colour) for anything but 1 to 4.
struct AmpelFarbe {
  int Rot = 0, Gruen = 0, Blau = 0;
  bool Systemfarbe = true;
};

// The five tests and the level; stores the result in s.Projekt.Ampel and returns it.
DatenLage DatenDiagnose(ProjectState& s);

AmpelFarbe FarbeVonAmpel(int16_t DatenAmpel);

// The report: the diagnosis runs again, then one line (or group of lines) per test and the closing
// paragraph of the level. Every line ends with CR LF.
std::string DatenAmpelText(ProjectState& s);

// The report in a message box (a click on the field or on cmdDatenDiagnose).
void cmdDatenDiagnose(ProjectState& s, ui::Oberflaeche& ui);

} // namespace quor
