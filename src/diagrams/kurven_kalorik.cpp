// Caloric functions of one phase along an isobar over T, an isotherm over p or v, and an isochor over
// T. The phase is the one the state solver finds stable; where a curve crosses the two-phase region
// the ends of its tie line join the two branches.
#include "diagrams/diagramm_codes.h"
#include "diagrams/kurven_groessen.h"
#include "diagrams/kurven_intern.h"
#include "engine/eos_auswertung.h"
#include "engine/zustand.h"

#include <cmath>

namespace quor::kurven {

namespace {

bool Zwischen(int16_t c, int16_t von, int16_t bis) {
  return c >= von && c <= bis;
}

// The tie line of the curve's state for the request's axes.
struct Konnode {
  bool da = false;
  double X1 = 0, X2 = 0, Y1 = 0, Y2 = 0; // 1 liquid, 2 vapour
};

Konnode KonnodeDerKurve(Lauf& l) {
  Konnode k;
  k.da = Konnodenpunkte(l.s, l.a, l.T, l.p, l.v, k.X1, k.X2, k.Y1, k.Y2);
  return k;
}

// The tie line of a curve that crosses it between the ends of the X axis.
Konnode KonnodeImBereich(Lauf& l) {
  Konnode k = KonnodeDerKurve(l);
  k.da = k.da && k.X1 >= l.a.Xmin && k.X1 <= l.a.Xmax;
  return k;
}

// Writes the two ends once, the vapour's first, when the loop value x has reached the tie line's X
// (coming from the vapour's side).
void KonnodeBeimUebergang(Lauf& l, Konnode& k, double x, bool fallend, double z) {
  if (!k.da || (fallend ? x > k.X1 : x < k.X1)) return;
  l.Punkt(k.X2, k.Y2, z);
  l.Punkt(k.X1, k.Y1, z);
  k.da = false;
}

} // namespace

// u, h, s, g, a, eH, eU, cp, the residual functions and delta over T at p, T falling.
void FunktionUeberT(Lauf& l) {
  const int16_t c = l.a.Code;
  const Achsen ach = AchsenVon(c);
  const bool mitKonnode = !Zwischen(c, code::ResSvonT, code::JouleThomson) &&
                          (c != code::CpVonT || l.s.Optionen.SKurveOhneKonnode);
  Konnode k;
  if (mitKonnode) k = KonnodeImBereich(l);
  Schritte(l.a.Xmax, l.a.Xmin, -l.dx, 0.9, [&](double x) {
    KonnodeBeimUebergang(l, k, x, true, l.p);
    const double T = x / l.TF();
    Phasenzustand z;
    if (T > 0 && StabilePhase(l.s, T, l.p, z)) PhasenPunkt(l, ach, z, l.p);
    return true;
  });
  l.Kopf(kopf::ZweiZweige);
}

// u, h, s, g, a, eH, eU, cp and the residual functions over p at T, p rising.
void FunktionUeberP(Lauf& l) {
  const int16_t c = l.a.Code;
  const Achsen ach = AchsenVon(c);
  Konnode k;
  if (!Zwischen(c, code::ResSvonP, code::ResCpVonP)) k = KonnodeImBereich(l);
  Schritte(l.a.Xmin, l.a.Xmax, l.dx, 0.9, [&](double x) {
    KonnodeBeimUebergang(l, k, x, false, l.T);
    const double p = std::max(x / l.PF(), 0.01);
    Phasenzustand z;
    if (StabilePhase(l.s, l.T, p, z)) PhasenPunkt(l, ach, z, l.T);
    return true;
  });
  l.Kopf(kopf::MitParameter);
}

// a, u, s, cV, eU over v at T, v falling in half steps; the volumes inside the two-phase region are
// left out and the two saturated phases added.
void FunktionUeberV(Lauf& l) {
  ProjectState& s = l.s;
  const Achsen ach = AchsenVon(l.a.Code);
  const Konnode k = KonnodeDerKurve(l);
  EOSbeiT(s, l.T);
  const double bGrenze = 1.04 * s.EOS.bT;
  Schritte(l.a.Xmax, l.a.Xmin, -l.dx / 2, 0.9, [&](double x) {
    const double v = x / l.VF();
    if (v <= bGrenze || (k.da && x > k.X1 && x < k.X2)) return true;
    int16_t err = 0;
    double p = PzuTV(s, l.T, v, err);
    if (err != 0) return true;
    if (p < 0) p = 0.01;
    const int row = k.da ? (x <= k.X1 ? PhaseL : PhaseV) : ZeileVon(s, v);
    PhasenPunkt(l, ach, PhaseBei(s, l.T, p, v, row), l.T);
    return true;
  });
  if (k.da) {
    l.Punkt(k.X1, k.Y1, l.T);
    l.Punkt(k.X2, k.Y2, l.T);
  }
  // Right at the critical temperature the saturated phases stay where they were written.
  if (std::fabs(l.T - s.Stoff.TKrit) >= 0.01) SortiereKurve(l.Punkte());
  l.Kopf(kopf::MitParameter);
}

// eH, eU, a, u, s, cV over T at v, T rising. Inside the two-phase region, with the real behaviour,
// the two saturated phases are weighted by the vapour fraction; otherwise the EOS's own state at
// (T, v) is taken.
void IsochorFunktion(Lauf& l) {
  ProjectState& s = l.s;
  const Achsen ach = AchsenVon(l.a.Code);
  const bool real = s.Diagramm.MitRealverhalten && !l.Virial();
  Schritte(l.a.Xmin, l.a.Xmax, l.dx, 0.8, [&](double x) {
    const double T = x / l.TF();
    if (!(T > 0)) return true;
    Phasenzustand L, V;
    if (real && T < s.Stoff.TKrit && Saettigung(s, T, L, V) && L.v < l.v && l.v < V.v) {
      const double q = (l.v - L.v) / (V.v - L.v);
      l.Punkt(x, Mischung(Wert(s, ach.y, L), Wert(s, ach.y, V), q), l.v);
      return true;
    }
    int16_t err = 0;
    const double p = PzuTV(s, T, l.v, err);
    if (err == 0) PhasenPunkt(l, ach, PhaseBei(s, T, p, l.v, ZeileVon(s, l.v)), l.v);
    return true;
  });
  l.Kopf(kopf::ZweiZweige);
}

} // namespace quor::kurven
