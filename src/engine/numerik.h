// Small numeric helpers shared by the engine routines: single-precision narrowing with the
// semantics of the program's comparisons, and the finiteness test at a routine's edge.
#pragma once

#include <cfloat>
#include <cmath>

namespace quor {

// A double narrowed to single precision. Values beyond the float range become +-infinity instead
// of an undefined conversion, so a comparison "in single precision" is always defined.
inline float Einfach(double x) {
  if (x > FLT_MAX) return HUGE_VALF;
  if (x < -FLT_MAX) return -HUGE_VALF;
  return static_cast<float>(x);
}

// True when every argument is a finite number (neither NaN nor infinite).
template <typename... Werte> inline bool AlleEndlich(Werte... werte) {
  return (std::isfinite(werte) && ...);
}

} // namespace quor
