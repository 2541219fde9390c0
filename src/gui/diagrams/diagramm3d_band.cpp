#include "gui/diagrams/diagramm3d_band.h"

#include <algorithm>
#include <cmath>

namespace quor::ui {

namespace {

// Positions in parts of an axis range, so that a direction means the same on both horizontal axes.
struct Skala {
  double Min, Spanne;
  explicit Skala(const Achse3D& a) : Min(a.Min), Spanne(a.Max != a.Min ? a.Max - a.Min : 1.0) {}
  double Teil(double w) const { return (w - Min) / Spanne; }
  // Back to the axis' units, kept a hair inside the range: the chart leaves out a row or column
  // that starts on the edge.
  double Wert(double t) const {
    constexpr double Rand = 1e-4;
    return Min + std::clamp(t, Rand, 1 - Rand) * Spanne;
  }
};

} // namespace

QSurfaceDataArray* Band(const Linie3D& l, const Achse3D& x, const Achse3D& y, const Achse3D& z) {
  const Skala sx(x), sy(y);
  const double hoch = BandHoehe * (z.Max - z.Min);
  const std::size_t n = l.Punkte.size();
  auto* feld = new QSurfaceDataArray;
  feld->reserve(static_cast<qsizetype>(n));
  double ux = 1, uy = 0; // the line's direction, kept where two points lie on one another
  for (std::size_t k = 0; k < n; ++k) {
    const Punkt3D& vor = l.Punkte[k > 0 ? k - 1 : k];
    const Punkt3D& nach = l.Punkte[k + 1 < n ? k + 1 : k];
    const double dx = sx.Teil(nach.X) - sx.Teil(vor.X), dy = sy.Teil(nach.Y) - sy.Teil(vor.Y);
    const double laenge = std::hypot(dx, dy);
    if (laenge > 1e-12) ux = dx / laenge, uy = dy / laenge;
    // The left edge first: the chart then lights the ribbon from above, as it does the surface.
    const Punkt3D& p = l.Punkte[k];
    const double px = sx.Teil(p.X), py = sy.Teil(p.Y);
    const float h = static_cast<float>(p.Z + hoch);
    auto* zeile = new QSurfaceDataRow(2);
    for (int seite = 0; seite < 2; ++seite) {
      const double s = seite == 0 ? BandBreite : -BandBreite;
      (*zeile)[seite].setPosition(
          QVector3D(static_cast<float>(sx.Wert(px - s * uy)), h, static_cast<float>(sy.Wert(py + s * ux))));
    }
    feld->append(zeile);
  }
  return feld;
}

} // namespace quor::ui
