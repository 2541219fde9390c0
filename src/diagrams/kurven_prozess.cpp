// Process lines: the states that the process page computed, put on the axes of the diagram on show.
// A state of a two-phase line is the mixture of the two saturated phases at its T by its degree of
// vaporization on every axis; the straight line runs in 50 steps between its two ends.
#include "diagrams/diagramm_codes.h"
#include "diagrams/kurven_groessen.h"
#include "diagrams/kurven_intern.h"

namespace quor::kurven {

namespace {

// The value of quantity g of a two-phase state: density and p*v follow from the mixed volume, all
// other quantities mix linearly.
double MischWert(const ProjectState& s, Groesse g, const Phasenzustand& L, const Phasenzustand& V,
                 const ProzessZustand& z) {
  const double v = Mischung(L.v, V.v, z.eta);
  if (g == Groesse::Rho) return s.Stoff.MolMasse / v;
  if (g == Groesse::PV) return L.p * v * s.Einheiten.VolumenFaktor;
  return Mischung(Wert(s, g, L), Wert(s, g, V), z.eta);
}

void Gerade(Lauf& l, const ProzessUebergabe& u) {
  for (int i = 0; i <= 50; ++i)
    l.Punkt(u.ProzessX1 + i * (static_cast<double>(u.ProzessX2) - u.ProzessX1) / 50,
            u.ProzessY1 + i * (static_cast<double>(u.ProzessY2) - u.ProzessY1) / 50, 0);
}

} // namespace

void Prozesslinie(Lauf& l) {
  const ProzessUebergabe& u = l.s.Diagramm.Prozess;
  if (l.a.Code == code::ProzessGerade) {
    Gerade(l, u);
  } else if (const KatalogZeile* d = KatalogZeileVon(u.DiagrammCode)) {
    for (const ProzessZustand& z : u.Zustaende) {
      if (u.ProzessHetero) {
        Phasenzustand L, V;
        if (!Saettigung(l.s, z.T, L, V)) continue;
        l.Punkt(MischWert(l.s, d->X, L, V, z), MischWert(l.s, d->Y, L, V, z), 0);
      } else {
        const Phasenzustand p = PhaseBei(l.s, z.T, z.p, z.v, z.eta >= 0.5 ? PhaseV : PhaseL);
        l.Punkt(Wert(l.s, d->X, p), Wert(l.s, d->Y, p), 0);
      }
    }
  }
  l.Kopf(kopf::OhneParameter);
}

} // namespace quor::kurven
