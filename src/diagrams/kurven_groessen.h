// The quantities the caloric curves plot: the family and the pair of axes of a code, the state of one
// phase with its caloric block, and the value of a quantity in displayed units.
#pragma once

#include "diagrams/katalog.h"
#include "diagrams/kurven_hilfen.h"
#include "engine/kalorik.h"

#include <array>
#include <cstdint>
#include <vector>

namespace quor::kurven {

// What fixes the curve of a code: its parameter T (isotherm), p (isobar), v (isochor), or the
// saturation line (Isohygre).
enum class Familie : int16_t { Keine, Isotherme, Isobare, Isochore, Saettigung };

struct Achsen {
  Familie familie = Familie::Keine;
  Groesse x = Groesse::Anzahl;
  Groesse y = Groesse::Anzahl;
};

// The family and the axes' quantities of code `c` by the catalogue; familie Keine for codes of
// other families.
Achsen AchsenVon(int16_t c);

// One phase at (T, p, v) with its caloric block. Values the engine could not give are NaN, so that
// a point built from them is dropped.
struct Phasenzustand {
  double T = 0, p = 0, v = 0;
  KalorischeWerte w;
  std::array<double, 11> res{}; // the phase's row of the residual block
};

// The caloric block of one phase at (T, p, v); `row` is the phase's row (0 liquid, 1 vapour).
Phasenzustand PhaseBei(ProjectState& s, double T, double p, double v, int row);

// The row of a single phase of volume v: the liquid's below the critical volume.
int ZeileVon(const ProjectState& s, double v);

// The stable phase at (T, p) with its caloric block; false when there is no root.
bool StabilePhase(ProjectState& s, double T, double p, Phasenzustand& z);

// Both saturated phases at T (at TKrit the critical point); false without an equilibrium.
bool Saettigung(ProjectState& s, double T, Phasenzustand& L, Phasenzustand& V);

// The energy factor of the display at T (mode 2 divides by R*T).
double EnergieFaktorBeiT(const ProjectState& s, double T);

// The value of quantity `g` of state `z` in displayed units; NaN when it is not available.
double Wert(const ProjectState& s, Groesse g, const Phasenzustand& z);

// Appends the point of state z on the axes `ach`, with the curve's parameter.
void PhasenPunkt(Lauf& l, const Achsen& ach, const Phasenzustand& z, double parameter);

// The line of vapour fraction x between the two saturated phases: zL + (zV - zL)*x.
inline double Mischung(double zL, double zV, double x) {
  return zL + (zV - zL) * x;
}

// The saturation temperature of the EOS at p; false above pKrit or when the search fails.
bool SaettigungsTemperatur(ProjectState& s, double p, double& T);

// `n` + 1 values from `von` to `bis` in equal ratios (both positive).
std::vector<double> Geometrisch(double von, double bis, int n);

} // namespace quor::kurven
