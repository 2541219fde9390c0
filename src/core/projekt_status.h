// The report of what the project holds: project file, database, substance, measured data and the
// preset parameters of the diagrams. The frame shows it in the text window.
#pragma once

#include "core/project_state.h"

#include <string>

namespace quor {

extern const char* const ProjektStatusTitel; // " Info Projekt-Status "

// Lines joined by CR LF, an empty line between the sections.
std::string ProjektStatusText(const ProjectState& s);

// True when the substance named in the measured-data file is not the project's substance: by CAS
// number when both are known, else by name; a file without a substance never differs.
bool DatenfileStoffFremd(const ProjectState& s);

} // namespace quor
