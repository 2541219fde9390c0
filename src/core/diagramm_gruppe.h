// Fields of the curve engine that stand in the project state: the vapour fraction of the coexistence
// family, the modes of a request, and the saturation values the engine's prologue leaves for the
// diagram page.
#pragma once

#include <string>

namespace quor {

struct DiagrammGruppe {
  double Isohygre = 0;           // vapour fraction x of a coexistence line: 0 boiling, 1 dew, 0.5 middle
  bool KonnodeModus = false;     // the request is for the tie line of the current state
  bool MitRealverhalten = false; // inside the two-phase region follow the tie line (true) or the S-loop
  double pSattVorgabe = 0;       // p(LV) at the request's T by the vapour-pressure equation
  double TSattVorgabe = 0;       // T(LV) at the request's p
  bool KurveAbgebrochen = false; // the last isochor was cut short at the coexistence curve
  // Session state of the diagram files: the one-time hint of loading was shown; the folder of the
  // last diagram, picture or point file (empty: the program directory).
  bool OC2HinweisGezeigt = false;
  std::string DateiVerzeichnis;
};

} // namespace quor
