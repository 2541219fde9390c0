// The vapour-pressure curve over T and as ln p over 1/T, by the EOS in the GLOBAL concept and by
// the chosen vapour-pressure equation in the PARTIAL one; the slope d ln p/d(1/T) of that equation
// with the place of its maximum; the enthalpy of vaporization over T.
#include "core/zahlformat.h"
#include "diagrams/diagramm_codes.h"
#include "diagrams/kurven_hilfen.h"
#include "engine/korrelationen.h"

#include <cmath>
#include <string>

namespace quor::kurven {

namespace {

// p(LV) at T; false when it cannot be had.
bool Dampfdruck(Lauf& l, double T, double& p) {
  ProjectState& s = l.s;
  if (s.Modell.KonzeptGlobal) {
    Koexistenz k;
    if (!KoexistenzBeiT(s, T, k)) return false;
    p = k.p;
    return true;
  }
  int16_t failed = 0;
  p = pLV(s, T, s.Modell.DampfdruckIndex, false, failed);
  return failed == 0 && std::isfinite(p);
}

// The temperature of a point on the axis of 1/T.
double TvonKehrwert(const Lauf& l, double x) {
  return x > 0 ? 1 / (x * l.TF()) : 0;
}

void DampfdruckUeberT(Lauf& l) {
  Schritte(l.s.Stoff.TKrit * l.TF(), l.a.Xmin, -l.dx, 0.9, [&](double x) {
    const double T = x / l.TF();
    double p = 0;
    if (T > 1e-6 && Dampfdruck(l, T, p) && p > 1e-6) l.Punkt(x, p * l.PF(), T);
    return true;
  });
}

void LnDampfdruck(Lauf& l) {
  Schritte(l.a.Xmax, l.a.Xmin, -l.dx, 0.9, [&](double x) {
    const double T = TvonKehrwert(l, x);
    double p = 0;
    if (T > 1e-6 && Dampfdruck(l, T, p) && p > 0.01) l.Punkt(x, std::log(p * l.PF()), T);
    return true;
  });
}

// The slope of the vapour-pressure equation. For the equations whose slope has a maximum (Frost/
// Kalkwarf and Wagner forms), one that lies clearly inside the axes is told with its temperature.
void Anstieg(Lauf& l) {
  ProjectState& s = l.s;
  double yMax = -37000, xMax = 0, TMax = 0;
  Schritte(l.a.Xmax, l.a.Xmin, -l.dx, 0.9, [&](double x) {
    const double T = TvonKehrwert(l, x);
    int16_t failed = 0;
    const double y = T > 1e-6 ? DLnpDInvT(s, T, s.Modell.DampfdruckIndex, failed) : 0;
    if (!(T > 1e-6) || failed != 0) return true;
    l.Punkt(x, y, T);
    if (y > yMax) yMax = y, xMax = x, TMax = T;
    return true;
  });
  const std::string& tag = s.Modell.DampfdruckTag;
  const bool mitMaximum = tag.size() == 3 && std::string("FRO.WAG.KFW.KFR").find(tag) != std::string::npos;
  if (mitMaximum && xMax > l.a.Xmin + 2 * l.dx && yMax < l.a.Ymax - 5 * l.dy)
    l.meldung = " Kurven-Maximum bei T/K = " + FormatVB(TMax, "#####0.0");
}

} // namespace

void DampfdruckKurve(Lauf& l) {
  if (l.a.Code == code::Dampfdruck)
    DampfdruckUeberT(l);
  else if (l.a.Code == code::LnPvonInvT)
    LnDampfdruck(l);
  else
    Anstieg(l);
  l.Kopf(kopf::OhneParameter);
}

void VerdampfungsEnthalpie(Lauf& l) {
  ProjectState& s = l.s;
  Schritte(l.a.Xmax, l.a.Xmin, -l.dx, 0.9, [&](double x) {
    double T = x / l.TF(), p = 0;
    if (!(T > 1e-6)) return true;
    HLVErgebnis erg;
    int16_t failed = 0;
    const double h = HLVBerechnen(s, s.Modell.HLVIndex, T, p, s.Modell.DampfdruckIndex, false, erg, failed);
    if (failed == 0) l.Punkt(x, h * l.EFbeiT(T), T);
    return true;
  });
  SortiereKurve(l.Punkte());
  l.Kopf(l.p > 0 ? kopf::ZweiZweige : kopf::OhneParameter);
}

} // namespace quor::kurven
