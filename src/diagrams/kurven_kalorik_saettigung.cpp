// Caloric functions along the saturation line, over T or p or in two function coordinates, and the
// isotherms and isobars in the h-s and exergy diagrams. A saturation line is the line of vapour
// fraction Isohygre between the saturated liquid (0) and the saturated vapour (1).
#include "diagrams/kurven_groessen.h"
#include "diagrams/kurven_intern.h"

#include <algorithm>

namespace quor::kurven {

namespace {

// A heat capacity beyond this (kJ/(kmol K)) is the divergence at the critical point.
constexpr double GroessteWaermekapazitaet = 5000;
// The lowest pressure of the loops in p, relative to pKrit.
constexpr double KleinsterRelativerDruck = 1e-4;

double KleinsterDruck(const ProjectState& s) {
  return std::max(0.01, KleinsterRelativerDruck * s.Stoff.pKrit);
}

// A point of a heat capacity is dropped where either phase's value is negative or beyond the
// divergence at the critical point.
bool Plausibel(const ProjectState& s, const Achsen& ach, const Phasenzustand& L, const Phasenzustand& V) {
  if (ach.y != Groesse::Cp && ach.y != Groesse::Cv) return true;
  const double grenze = GroessteWaermekapazitaet * EnergieFaktorBeiT(s, L.T);
  for (const Phasenzustand* z : {&L, &V}) {
    const double c = Wert(s, ach.y, *z);
    if (!(c >= 0 && c <= grenze)) return false;
  }
  return true;
}

// The point of the line between the two saturated phases, the same vapour fraction on both axes.
void MischPunkt(Lauf& l, const Achsen& ach, const Phasenzustand& L, const Phasenzustand& V) {
  if (!Plausibel(l.s, ach, L, V)) return;
  const double x = l.s.Diagramm.Isohygre;
  l.Punkt(Mischung(Wert(l.s, ach.x, L), Wert(l.s, ach.x, V), x),
          Mischung(Wert(l.s, ach.y, L), Wert(l.s, ach.y, V), x), x);
}

// The point of the saturation line at T; nothing when T has no equilibrium.
void SaettigungsPunkt(Lauf& l, const Achsen& ach, double T) {
  Phasenzustand L, V;
  if (Saettigung(l.s, T, L, V)) MischPunkt(l, ach, L, V);
}

// Without a critical density the critical point has no volume and is left out.
bool KritischerPunktDa(const ProjectState& s) {
  return s.EOS.rhoKritEOS > 0 && s.Stoff.TKrit > 0;
}

// The isotherm at T in two functions, p rising on a geometric scale; the tie line at p(LV).
void HSIsotherme(Lauf& l, const Achsen& ach) {
  ProjectState& s = l.s;
  Phasenzustand L, V;
  bool konnode = !l.Virial() && l.T < s.Stoff.TKrit && Saettigung(s, l.T, L, V);
  for (double p : Geometrisch(KleinsterDruck(s), 10 * s.Stoff.pKrit, s.Optionen.PunktDichte)) {
    if (konnode && p >= L.p) {
      PhasenPunkt(l, ach, V, l.T);
      PhasenPunkt(l, ach, L, l.T);
      konnode = false;
    }
    Phasenzustand z;
    if (StabilePhase(s, l.T, p, z)) PhasenPunkt(l, ach, z, l.T);
  }
  l.Kopf(kopf::MitParameter);
}

// The isobar at p in two functions, T rising from the triple point (or 0.4 TKrit) to 3 TKrit; the
// tie line at T(LV).
void HSIsobare(Lauf& l, const Achsen& ach) {
  ProjectState& s = l.s;
  const double Tc = s.Stoff.TKrit;
  const double von = s.Stoff.TTripel > 1e-6 ? s.Stoff.TTripel : 0.4 * Tc;
  double TLV = 0;
  Phasenzustand L, V;
  bool konnode = SaettigungsTemperatur(s, l.p, TLV) && TLV < Tc && Saettigung(s, TLV, L, V);
  const double n = std::max<int16_t>(s.Optionen.PunktDichte, 1);
  Schritte(von, 3 * Tc, (3 * Tc - von) / n, 0.9, [&](double T) {
    if (konnode && T >= TLV) {
      PhasenPunkt(l, ach, L, l.p);
      PhasenPunkt(l, ach, V, l.p);
      konnode = false;
    }
    Phasenzustand z;
    if (StabilePhase(s, T, l.p, z)) PhasenPunkt(l, ach, z, l.p);
    return true;
  });
  l.Kopf(kopf::ZweiZweige);
}

// The saturation line in two functions, p falling on a geometric scale from the critical point,
// T = T(LV) of p.
void HSSaettigung(Lauf& l, const Achsen& ach) {
  ProjectState& s = l.s;
  if (KritischerPunktDa(s)) SaettigungsPunkt(l, ach, s.Stoff.TKrit);
  const double unten =
      std::max<double>(KleinsterDruck(s), s.Optionen.KurveTpBeschraenkt ? s.Stoff.pTripel : 0);
  const auto druecke = Geometrisch(unten, s.Stoff.pKrit, s.Optionen.PunktDichte);
  // from just below the critical point down
  for (std::size_t i = druecke.size(); i-- > 1;) {
    double T = 0;
    if (SaettigungsTemperatur(s, druecke[i - 1], T)) SaettigungsPunkt(l, ach, T);
  }
  l.Kopf(kopf::MitParameter);
}

} // namespace

// h, s, cp, g, eH, eU, cV, u, a along the saturation line over T or over p, from the top of the axis
// down.
void SaettigungsFunktion(Lauf& l) {
  ProjectState& s = l.s;
  const Achsen ach = AchsenVon(l.a.Code);
  const bool ueberP = ach.x == Groesse::p;
  const double faktor = ueberP ? l.PF() : l.TF();
  auto punkt = [&](double T) {
    if (T > s.Stoff.TKrit || (s.Optionen.KurveTpBeschraenkt && T < s.Stoff.TTripel)) return;
    Phasenzustand L, V;
    if (Saettigung(s, T, L, V)) MischPunkt(l, ach, L, V);
  };
  const double kritisch = (ueberP ? s.Stoff.pKrit : s.Stoff.TKrit) * faktor;
  if (KritischerPunktDa(s) && kritisch >= l.a.Xmin && kritisch <= l.a.Xmax) punkt(s.Stoff.TKrit);
  Schritte(l.a.Xmax, l.a.Xmin, -l.dx, 0.9, [&](double x) {
    double T = x / faktor;
    if (x < kritisch && (!ueberP || SaettigungsTemperatur(s, x / faktor, T))) punkt(T);
    return true;
  });
  l.Kopf(kopf::MitParameter);
}

// The saturation line in two function coordinates, T falling from TKrit to 0.1 K in steps of
// TKrit/N; both saturated volumes must lie clear of the covolume.
void SaettigungZweiFunktionen(Lauf& l) {
  ProjectState& s = l.s;
  const Achsen ach = AchsenVon(l.a.Code);
  const double Tc = s.Stoff.TKrit;
  if (KritischerPunktDa(s)) SaettigungsPunkt(l, ach, Tc);
  const double dT = Tc / std::max<int16_t>(s.Optionen.PunktDichte, 1);
  for (double T = Tc - dT; T >= 0.1; T -= dT) {
    Phasenzustand L, V;
    if (Saettigung(s, T, L, V) && L.v > 1.08 * s.EOS.bT && V.v > 1.08 * s.EOS.bT) MischPunkt(l, ach, L, V);
  }
  if (s.Diagramm.Isohygre != 0) SortiereKurve(l.Punkte());
  l.Kopf(kopf::MitParameter);
}

// Isotherms, isobars and the saturation line in h-s, eH-h and eH-(T(u) s).
void HSKurve(Lauf& l) {
  const Achsen ach = AchsenVon(l.a.Code);
  switch (ach.familie) {
  case Familie::Isotherme:
    return HSIsotherme(l, ach);
  case Familie::Isobare:
    return HSIsobare(l, ach);
  case Familie::Saettigung:
    return HSSaettigung(l, ach);
  default:
    return;
  }
}

} // namespace quor::kurven
