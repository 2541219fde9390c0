// Lines inside the two-phase region: at each T of the range the two saturated states, and the
// mixture between them by the lever rule on the fixed quantity (or by the given degree of
// vaporization). No iteration: T is set and eta follows; outside 0 to 1 the lever rule extrapolates
// beyond the saturation curve.
#include "process/prozess_linie.h"

#include "engine/kalorik.h"
#include "engine/saettigung.h"

#include <cmath>

namespace quor::prozess {

namespace {

struct Konnode {
  double T = 0, p = 0;
  std::array<double, 3> L{}, V{}; // v, h, s of the saturated liquid and vapour
};

bool KonnodeBei(ProjectState& s, double T, Konnode& k) {
  SaettigungsWerte erg;
  int16_t err = 0;
  SaettigungsFunktionen(s, T, erg, err);
  if (err != 0 || !(erg.p > 0) || !(erg.vL > 0) || !(erg.vV > 0)) return false;
  const KalorischeWerte &L = erg.phase[PhaseL], &V = erg.phase[PhaseV];
  k = {T, erg.p, {erg.vL, L.h, L.s}, {erg.vV, V.h, V.s}};
  for (int i = 0; i < 3; ++i)
    if (!std::isfinite(k.L[i]) || !std::isfinite(k.V[i])) return false;
  return true;
}

// The saturation temperature of the vapour-pressure solver at p.
bool Siedetemperatur(ProjectState& s, double p, double& T) {
  double imbalance = 0, A = 0, B = 0, TStart = 0;
  int16_t err = 0;
  T = TLVbeiP(s, p, imbalance, A, B, TStart, err);
  return err == 0 && T > 0 && std::isfinite(T);
}

int Spalte(int16_t art) {
  return art == Isochore ? 0 : art == Isenthalpe ? 1 : 2;
}

} // namespace

void HeterogeneLinie(ProjectState& s, const ProzessVorgabe& v, ProzessLinie& l) {
  double T1 = v.T1, T2 = v.Ende;
  if (v.ProzessBereich == BereichP && !(Siedetemperatur(s, v.P1, T1) && Siedetemperatur(s, v.Ende, T2))) {
    l.fehler = -1;
    return;
  }
  const bool mitEta = v.ProzessArt == KonstantesEta;
  const int spalte = Spalte(v.ProzessArt);
  // The fixed quantity: that of the saturated phase at the first tie line.
  double z = 0;
  if (!mitEta) {
    Konnode k;
    if (!KonnodeBei(s, T1, k)) {
      l.fehler = -1;
      return;
    }
    z = v.ProzessPhase == PhaseV ? k.V[spalte] : k.L[spalte];
    l.FixWert = z;
  }
  for (double T : Laufwerte(T1, T2, v.Schritte)) {
    Konnode k;
    if (!KonnodeBei(s, T, k)) {
      l.fehler = -1;
      continue;
    }
    double eta = v.Eta == 0 ? 1e-35 : v.Eta;
    if (!mitEta) {
      const double zL = k.L[spalte], d = k.V[spalte] - zL;
      if (std::fabs(d) >= 1e-10) {
        eta = (z - zL) / d;
      } else if (std::fabs(z - zL) < 1e-10) {
        eta = 1;
      } else {
        l.fehler = -1;
        continue;
      }
    }
    auto mix = [&](int i) { return k.L[i] + eta * (k.V[i] - k.L[i]); };
    l.punkte.push_back({T, k.p, mix(0), mix(1), mix(2), eta});
  }
}

} // namespace quor::prozess
