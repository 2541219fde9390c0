#include "diagrams/diagramm_bild.h"

#include <algorithm>

namespace quor {

bool FlaecheStimmig(const Flaeche3D& f) {
  const std::size_t n = f.X.size() * f.Y.size();
  return f.X.size() >= 2 && f.Y.size() >= 2 && f.Z.size() == n &&
         (f.Gueltig.empty() || f.Gueltig.size() == n);
}

std::vector<double> AnzeigeHoehen(const Flaeche3D& f) {
  if (!FlaecheStimmig(f)) return {};
  std::vector<double> z = f.Z;
  if (f.Gueltig.empty()) return z;

  bool eineGueltig = false;
  double tiefste = f.AchseZ.Min;
  for (std::size_t k = 0; k < z.size(); ++k)
    if (f.Gueltig[k]) {
      tiefste = eineGueltig ? std::min(tiefste, z[k]) : z[k];
      eineGueltig = true;
    }

  const std::size_t nx = f.X.size();
  for (std::size_t j = 0; j < f.Y.size(); ++j) {
    const std::size_t anfang = ZellIndex(f, j, 0);
    for (std::size_t i = 0; i < nx; ++i) {
      if (f.Gueltig[anfang + i]) continue;
      double wert = tiefste;
      // Widening search: the left neighbour at distance d is looked at before the right one.
      for (std::size_t d = 1; d < nx; ++d) {
        if (i >= d && f.Gueltig[anfang + i - d]) {
          wert = f.Z[anfang + i - d];
          break;
        }
        if (i + d < nx && f.Gueltig[anfang + i + d]) {
          wert = f.Z[anfang + i + d];
          break;
        }
      }
      z[anfang + i] = wert;
    }
  }
  return z;
}

} // namespace quor
