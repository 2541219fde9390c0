// Helpers of the curve branches: the stepping of a displayed coordinate towards an axis end, the
// saturation of the EOS at T or at p with its two volumes, and the roots of the cubic at a state.
#pragma once

#include "diagrams/kurven_intern.h"

#include <cmath>
#include <cstdint>

namespace quor::kurven {

// Calls `f(x)` for x = von, von + schritt, ... towards `bis`. The loop runs while x has not passed
// `bis` by more than `rand` steps, and a value beyond `bis` is clamped to it, so that the axis end
// itself is the last point. `f` returns false to end the loop early.
template <typename F> void Schritte(double von, double bis, double schritt, double rand, F&& f) {
  if (!(schritt != 0) || !std::isfinite(von) || !std::isfinite(bis) || !std::isfinite(schritt)) return;
  constexpr long MaxSchritte = 1000000;
  const double richtung = schritt > 0 ? 1 : -1;
  const double grenze = bis + rand * schritt;
  for (long i = 0; i < MaxSchritte; ++i) {
    double x = von + static_cast<double>(i) * schritt;
    if (richtung * (x - grenze) > 0) return;
    if (richtung * (x - bis) > 0) x = bis;
    if (!f(x)) return;
  }
}

// Both saturated phases of the EOS at one temperature.
struct Koexistenz {
  double T = 0, p = 0, vL = 0, vV = 0;
};

// The saturation of the EOS at T: the pressure of pLVbeiT and the saturated roots it leaves in
// VRoots, with aT..dT those of T. False when the solver fails or the pressure is not above 1e-6.
bool KoexistenzBeiT(ProjectState& s, double T, Koexistenz& k);

// The saturation of the EOS at p. `TStart` is the start value of the search (0: none) and takes the
// temperature found, so that a loop over p carries it on.
bool KoexistenzBeiP(ProjectState& s, double p, double& TStart, Koexistenz& k);

// The roots of the cubic at (T, p) into VRoots, the EOS evaluated at T first. False when the
// solver fails.
bool Wurzeln(ProjectState& s, double T, double p, int16_t& nRoots);

// The volume of the stable phase at (T, p) as the state solver decides it: the vapour where a
// vapour exists, else the liquid. False when no physical root exists.
bool StabilesVolumen(ProjectState& s, double T, double p, double& v);

} // namespace quor::kurven
