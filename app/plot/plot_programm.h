// A run of quor-plot: the command line, the platform of the toolkit (offscreen for the 2D chart, a
// display with OpenGL for the 3D one), the session of quor-cli, the diagram, and the picture file.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quor::plot {

// Runs a whole command line (argv without the program name); never throws. Exit codes: 0 the file
// is written, 1 nothing could be drawn, 2 a usage or input error (an --out that cannot be written
// among them).
int PlotAusfuehren(const std::vector<std::string>& argumente, std::ostream& aus, std::ostream& fehler);

} // namespace quor::plot
