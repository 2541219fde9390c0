// The diagram of a quor-plot run, drawn by the logic of the diagram pages as the user would draw it:
// the 2D page with the catalogue's request of the code, one curve per given parameter through the
// page's field and its draw button, the coexistence curve through the insert menu, a point set
// through the page's file command; or the 3D page with the surface of an Art. The program's messages
// go to `fehler`; a diagram that stays empty is an error.
#pragma once

#include "cli/sitzung.h"
#include "diagrams/diagramm_bild.h"
#include "plot/plot_aufruf.h"

#include <iosfwd>

namespace quor::plot {

// Throw CliFehler: exit code 2 for options that don't fit the diagram, 1 when nothing was drawn.
Diagramm2D Zeichne2D(cli::Sitzung& z, const PlotAufruf& a, std::ostream& fehler);
Flaeche3D Zeichne3D(cli::Sitzung& z, const PlotAufruf& a, std::ostream& fehler);

// The program's messages recorded since the last call, once each, on `fehler`.
void MeldungenAusgeben(cli::Sitzung& z, std::ostream& fehler);

} // namespace quor::plot
