// The quantities the caloric curves plot: which pair of coordinates a code shows, the state of one
// phase with its caloric block, and the value of a coordinate in displayed units.
#pragma once

#include "core/project_state.h"
#include "engine/kalorik.h"

#include <array>
#include <cstdint>
#include <vector>

namespace quor::kurven {

// A coordinate of a diagram axis.
enum class Koordinate : int16_t {
  Keine,
  T,
  P,
  V,
  Rho,
  PV, // p*v
  U,
  H,
  S,
  G,
  A,
  EU,
  EH,
  Cp,
  Cv,
  ResS,
  ResH,
  ResG,
  ResCp,
  Delta, // Joule-Thomson coefficient (dT/dp) at h
  TuS,   // T(u)*s, the environment's temperature times the entropy
};

// What fixes the curve of a code: its parameter T (isotherm), p (isobar), v (isochor), or the
// saturation line (Isohygre).
enum class Familie : int16_t { Keine, Isotherme, Isobare, Isochore, Saettigung };

struct Achsen {
  Familie familie = Familie::Keine;
  Koordinate x = Koordinate::Keine;
  Koordinate y = Koordinate::Keine;
};

// The axes of code `c`; familie Keine for codes that are no curves of a state's phases.
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

// The volume and the row of the stable phase at (T, p) as the state solver finds it (the vapour where
// both exist); false when there is no root.
bool StabilesVolumen(ProjectState& s, double T, double p, double& v, int& row);

// The stable phase at (T, p) with its caloric block; false when there is no root.
bool StabilePhase(ProjectState& s, double T, double p, Phasenzustand& z);

// Both saturated phases at T (at TKrit the critical point); false without an equilibrium.
bool Saettigung(ProjectState& s, double T, Phasenzustand& L, Phasenzustand& V);

// The energy factor of the display at T (mode 2 divides by R*T).
double EnergieFaktorBeiT(const ProjectState& s, double T);

// The value of coordinate `k` of state `z` in displayed units; NaN when it is not available.
double Wert(const ProjectState& s, Koordinate k, const Phasenzustand& z);

// The line of vapour fraction x between the two saturated phases: zL + (zV - zL)*x.
inline double Mischung(double zL, double zV, double x) {
  return zL + (zV - zL) * x;
}

// The saturation temperature of the EOS at p; false above pKrit or when the search fails.
bool SaettigungsTemperatur(ProjectState& s, double p, double& T);

// The values of a loop from `von` towards `bis` in steps of |schritt|: the loop runs on while it has
// passed `bis` by less than `grenze` steps, and its last value is clamped to `bis`.
std::vector<double> Schritte(double von, double bis, double schritt, double grenze = 0.9);

// `n` + 1 values from `von` to `bis` in equal ratios (both positive).
std::vector<double> Geometrisch(double von, double bis, int n);

} // namespace quor::kurven
