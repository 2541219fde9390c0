// Liquid and solid density of the database functions and the straight-diameter liquid density.
#include "engine/korrelationen.h"
#include "engine/korrelationen_intern.h"

#include <cmath>

namespace quor {

using namespace korrelation;

namespace {

// The three forms of the liquid density; `failed` only for a combination value that isn't positive.
double RhoLWert(const StoffGruppe& st, double T, int16_t& failed) {
  const std::array<float, 7>& k = st.RhoL;
  const double A = k[0], B = k[1], C = k[2], D = k[3], E = k[4], F = k[5], G = k[6];
  const double Tcr = st.RhoLTcr;
  // Linear without a range: no reference temperature is taken off, unlike the solid.
  if (st.RhoLGrenzen.TLo == 0 && A > 1e-6 && C > 1e-6) return A + B * T;
  if (std::fabs(A) <= 1e-6) {
    if (T > Tcr) return 0;
    const double X = 1 - T / Tcr;
    return B / std::pow(C, 1 + std::pow(X, D));
  }
  double r = A + B * T + C * T * T + D * T * T * T + E / (F + T);
  if (std::fabs(G) > 1e-6 && T < Tcr) r += G * std::pow(1 - T / Tcr, 1.0 / 3.0);
  if (!(r >= 1e-10)) return Fehlschlag(failed);
  return r;
}

} // namespace

float RhoL(ProjectState& s, double T, bool warn, int16_t& failed, ui::Oberflaeche* ui) {
  failed = 0;
  const StoffGruppe& st = s.Stoff;
  const double r = RhoLWert(st, T, failed);
  const int dev = AbweichungWennBegrenzt(T, st.RhoLGrenzen);
  if (Warnen(warn, ui, dev, 5)) {
    Warne(ui,
          AusserhalbText(" ", dev, "(zum Gültigkeitsbereich der Dichtegleichung vgl. Fenster \"Modelle\")"),
          "Warnung zur Dichtegleichung rho(L) = Fu(T)");
  }
  return EndwertFloat(r, failed);
}

float RhoS(ProjectState& s, double T, bool warn, int16_t& failed, ui::Oberflaeche* ui) {
  failed = 0;
  const StoffGruppe& st = s.Stoff;
  const std::array<float, 4>& k = st.RhoS;
  const double A = k[0], B = k[1], C = k[2], D = k[3];
  const TGrenzen& g = st.RhoSGrenzen;
  double r = 0;
  if (g.TLo > 0 && g.THi > 0) {
    r = A + B * T + C * T * T + D * T * T * T;
  } else if (g.TLo == 0 && A > 1e-6) {
    r = (A - C * B) + B * T; // value A at the reference temperature C, slope B
  }
  const int dev = AbweichungWennBegrenzt(T, g);
  if (Warnen(warn, ui, dev, 5)) {
    Warne(ui,
          AusserhalbText(" ", dev,
                         "(Gültigkeitsbereich: " + std::to_string(g.TLo) + " ... " + std::to_string(g.THi) +
                             " K)"),
          "Warnung zur Dichtegleichung rho(S) = Fu(T)");
  }
  return EndwertFloat(r, failed);
}

double BensonRhoL(double T, double Tc, double rhoCr, double rhoV, double Tref, double /*pref*/,
                  double rhoVref, double rhoLref, int16_t& failed) {
  failed = 0;
  const double r = (rhoVref + rhoLref) * (T - Tc) / (Tref - Tc) - rhoV + 2 * rhoCr * (Tref - T) / (Tref - Tc);
  return Endwert(r, failed);
}

} // namespace quor
