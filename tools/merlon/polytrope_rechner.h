// The calculator of the polytrope p v^n = const: the states from the start state to the end of the
// range with the ideal gas or the program's equation of state, the result head, and FROM_PEX.DAT.
#pragma once

#include "core/project_state.h"
#include "diagrams/kurven_groessen.h"
#include "process/polytrope_austausch.h"
#include "process/polytrope_uebergabe.h"

#include <array>
#include <string>
#include <vector>

namespace quor::merlon {

struct PolytropenLinie {
  std::vector<kurven::Phasenzustand> zustaende; // engine units, from the start to the end
  std::array<double, prozess::PexKopfWerte> kopf{};
};

// The states and the head; false with the reason (German, for the report) when the request can't
// be computed.
bool PolytropeBerechnen(ProjectState& s, const prozess::PexAuftrag& a, PolytropenLinie& l,
                        std::string& grund);

// The number of intervals of the line for a point count (at least one).
int Schritte(int punkte);

// T at (p, v) on the EOS, and v at T on p v^n = C, each by a bracketing search in ln x from the
// ideal-gas guess; false when no root is bracketed.
bool TAufEOS(ProjectState& s, double p, double v, double TSchaetzung, double& T);
bool VAufPolytrope(ProjectState& s, double T, double n, double C, double vSchaetzung, double& v);

// FROM_PEX.DAT for a computed line: error flag 0, the code, the points in the diagram's displayed
// coordinates, the head, the report.
std::string FromPexBytes(ProjectState& s, const prozess::PexAuftrag& a, const PolytropenLinie& l);

// FROM_PEX.DAT of a request that failed: the flag and the reason.
std::string FehlerBytes(const std::string& grund);

// The whole calculator: the bytes of TO_PEX.DAT in, those of FROM_PEX.DAT out; never throws.
std::string MerlonLauf(const std::string& toPex);

// The German report text, lines ended by CR LF.
std::string Bericht(const ProjectState& s, const prozess::PexAuftrag& a, const PolytropenLinie& l);

} // namespace quor::merlon
