// The tie line of a state: its two ends, the saturated liquid and the saturated vapour, in the
// coordinates of a diagram code.
#include "diagrams/kurven_groessen.h"
#include "diagrams/kurven_intern.h"
#include "engine/numerik.h"

namespace quor {

using kurven::Familie;

// The isochor's tie line is the one at the state's temperature, whatever its volume.
bool Konnodenpunkte(ProjectState& s, const DiagrammAuftrag& a, double T, double p, double /*v*/, double& X1,
                    double& X2, double& Y1, double& Y2) {
  const kurven::Achsen achsen = kurven::AchsenVon(a.Code);
  if (s.Modell.VirialFlag) return false;
  double TSatt = 0;
  switch (achsen.familie) {
  case Familie::Isotherme:
    TSatt = T;
    break;
  case Familie::Isobare:
    if (!kurven::SaettigungsTemperatur(s, p, TSatt)) return false;
    break;
  case Familie::Isochore:
    TSatt = T;
    if (!(TSatt > 0) && !kurven::SaettigungsTemperatur(s, p, TSatt)) return false;
    break;
  default:
    return false;
  }
  if (!(TSatt > 0) || TSatt >= s.Stoff.TKrit) return false;
  kurven::Phasenzustand L, V;
  if (!kurven::Saettigung(s, TSatt, L, V)) return false;
  X1 = kurven::Wert(s, achsen.x, L);
  X2 = kurven::Wert(s, achsen.x, V);
  Y1 = kurven::Wert(s, achsen.y, L);
  Y2 = kurven::Wert(s, achsen.y, V);
  return AlleEndlich(X1, X2, Y1, Y2);
}

} // namespace quor
