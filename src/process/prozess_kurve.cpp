#include "process/prozess_kurve.h"

#include "diagrams/diagramm_codes.h"

namespace quor::prozess {

int16_t KurvenCode(const ProzessVorgabe& v) {
  const bool hetero = v.ProzessHetero &&
                      (v.ProzessArt == Isochore || v.ProzessArt == Isentrope || v.ProzessArt == Isenthalpe);
  if (hetero || v.ProzessArt == KonstantesEta) return code::ProzessHeterogen;
  switch (v.ProzessArt) {
  case Gerade:
    return code::ProzessGerade;
  case Isotherme:
    return code::ProzessIsotherme;
  case Isobare:
    return code::ProzessIsobare;
  case Isochore:
    return code::ProzessIsochore;
  case Isentrope:
  case Isenthalpe:
    return code::ProzessIsentrope;
  default:
    return 0;
  }
}

void ProzessUebergeben(ProjectState& s, const ProzessVorgabe& v, const ProzessLinie& l,
                       int16_t diagrammCode) {
  ProzessUebergabe& u = s.Diagramm.Prozess;
  u = ProzessUebergabe{};
  u.ProzessHetero = KurvenCode(v) == code::ProzessHeterogen;
  u.DiagrammCode = diagrammCode;
  u.Zustaende.reserve(l.punkte.size());
  for (const ProzessPunkt& z : l.punkte)
    u.Zustaende.push_back({z.T, z.p, z.v, z.eta});
}

void GeradeUebergeben(ProjectState& s, float X1, float Y1, float X2, float Y2, int16_t diagrammCode) {
  ProzessUebergabe& u = s.Diagramm.Prozess;
  u = ProzessUebergabe{};
  u.DiagrammCode = diagrammCode;
  u.ProzessX1 = X1;
  u.ProzessY1 = Y1;
  u.ProzessX2 = X2;
  u.ProzessY2 = Y2;
}

} // namespace quor::prozess
