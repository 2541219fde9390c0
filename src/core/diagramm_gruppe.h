// Fields of the curve engine that stand in the project state: the vapour fraction of the coexistence
// family, the modes of a request, and the saturation values the engine's prologue leaves for the
// diagram page.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quor {

// One state of a process line, engine units: eta is the degree of vaporization of a two-phase state;
// a single phase has eta 1 (vapour) or 0 (liquid).
struct ProzessZustand {
  double T = 0, p = 0, v = 0, eta = 0;
};

// The process line that the process page hands to the curve engine (codes 201 to 211): its states,
// whether they lie inside the two-phase region, the code of the diagram on show whose axes the line
// takes, and the ends of a straight line in the axis units.
struct ProzessUebergabe {
  std::vector<ProzessZustand> Zustaende;
  bool ProzessHetero = false;
  int16_t DiagrammCode = 0;
  float ProzessX1 = 0, ProzessY1 = 0, ProzessX2 = 0, ProzessY2 = 0;
};

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
  ProzessUebergabe Prozess; // the process line to draw
};

} // namespace quor
