// The batch report of the result page: for every calculated data point the given and calculated T, p,
// densities and enthalpy of vaporization with their deviations, the mean deviations, and on request
// the derivatives and residual functions of each point. It goes to a .LST text file or to the printer.
#pragma once

#include "calc/ergebnis_typen.h"
#include "core/project_state.h"
#include "dienste/oberflaeche.h"

#include <cstdint>
#include <string>

namespace quor {

struct BerichtAuftrag {
  std::string Datum;       // date text of the head
  std::string Titel;       // title of the result page
  int16_t Art = 0;         // kind of calculation
  bool MitDetails = false; // the per-point derivative pages
};

// A deviation of this many percent or more is not given as a number.
constexpr double AbweichungsGrenze = 500;

// The report as the file holds it, in UTF-8 with CR LF line ends (Windows-1252 is applied on writing).
std::string BerichtText(const ProjectState& s, const RechenKontext& k, const BerichtAuftrag& a);

// The file of a name as typed: a short name without a "." (not a printer port "LPT...") gets ".LST",
// a name without a directory goes into `verzeichnis`.
std::string BerichtDateiName(const std::string& name, const std::string& verzeichnis);

// Writes the report file in Windows-1252; false when it cannot be written.
bool SchreibeBericht(const std::string& pfad, const ProjectState& s, const RechenKontext& k,
                     const BerichtAuftrag& a);

// Draws the report on the printer in COURIER 10, columns by the width of "X"; false when no printer
// was chosen.
bool DruckeBericht(ui::Drucker& d, const ProjectState& s, const RechenKontext& k, const BerichtAuftrag& a);

} // namespace quor
