// A diagram request and the curve it gives: the request names a code of the catalogue, its family,
// the pair of axes and their ranges in displayed units; the curve is a list of points whose element
// 0 is the head.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quor {

struct DiagrammAuftrag {
  float Xmin = 0, Ymin = 0, Xmax = 0, Ymax = 0; // displayed units
  int16_t Code = 0;
  int16_t Klasse = 0;
  std::string Achsentag;    // two letters naming the pair of axes ("pv", "Tv", ...)
  std::string AchsentagAlt; // the tag of the diagram on show
  std::string XText, YText, Titel;
};

// X, Y in displayed units (volumes times VolumenFaktor, pressures times pFaktor, temperatures times
// TFaktor, energies times EnergieFaktor); Z the curve's parameter in engine units. In the head X is
// the number of points and Z the mark of the curve.
struct Kurvenpunkt {
  float X = 0, Y = 0, Z = 0;
};

using Kurvenpunkte = std::vector<Kurvenpunkt>;

namespace kopf {
constexpr float MitParameter = -1; // an isotherm-like curve: its parameter is shown
constexpr float ZweiZweige = -2;   // a curve of two branches, or isobar-like
constexpr float OhneParameter = 0;
} // namespace kopf

// Result codes of a curve.
namespace kurve {
constexpr int16_t Fertig = 0;
constexpr int16_t KeinKritischesVolumen = 3;
constexpr int16_t KeineKonnode = 4;
} // namespace kurve

// The number of points of a curve (the head's X).
inline std::size_t Anzahl(const Kurvenpunkte& k) {
  return k.empty() ? 0 : k.size() - 1;
}

} // namespace quor
