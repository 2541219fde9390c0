// Points that a data editor sends to the 2D page: the values in the diagram's units with their
// legend and source, and the diagram they need when no page is open (title, axis texts, ranges; no
// catalogue code). The view hands them to the open page's cmdExternPoints, or opens a page for
// `NeuesDiagramm` first.
#pragma once

#include "diagrams/diagramm_auftrag.h"
#include "diagrams/graph2d.h"

#include <string>
#include <vector>

namespace quor {

struct DiagrammPunkte {
  std::vector<double> X, Y;
  std::string Legende;
  PunktQuelle Quelle = PunktQuelle::XYEditor;
  DiagrammAuftrag NeuesDiagramm; // Code 0; Titel, XText, YText, Xmin .. Ymax
};

// The range of a point list widened by 5 % of its span on both sides; a span of 0 gives -1 .. 1 for
// the value 0, else value * 0.95 .. value * 1.05 (ordered).
void DiagrammBereich(const std::vector<double>& werte, float& min, float& max);

} // namespace quor
