// Pixels and data coordinates of a 2D plot area: the mapping in both directions on linear and
// logarithmic axes, the zoom to a rectangle dragged with the mouse, and the axis range a chart can
// actually show. Pixel x grows to the right, pixel y downward; the lower end of the Y axis is at the
// bottom of the plot area.
#pragma once

#include "diagrams/diagramm_bild.h"

#include <optional>

namespace quor {

struct Punkt2D {
  double X = 0;
  double Y = 0;
};

struct PixelRechteck {
  double Links = 0;
  double Oben = 0;
  double Breite = 0;
  double Hoehe = 0;
};

struct AchsenBereich {
  double Min = 0;
  double Max = 1;
  bool Logarithmisch = false;
};

// The plot area on the screen and the ranges of its two axes.
struct Zeichenflaeche {
  PixelRechteck Pixel;
  AchsenBereich X;
  AchsenBereich Y;
};

inline AchsenBereich BereichVon(const Achse2D& a) {
  return {a.Min, a.Max, a.Logarithmisch};
}

// The range as it is shown: finite, Min < Max, and on a logarithmic axis both ends above zero.
// Reversed ends are swapped; equal ends are widened by 1 % of their value (by 1 at zero; by a factor
// of 10 either way on a logarithmic axis); a logarithmic range reaching to zero or below keeps its
// upper end and spans three decades under it (1 to 10 when the upper end is not above zero either);
// a non-finite end gives 0 to 1 (1 to 10 when logarithmic).
AchsenBereich Anzeigbar(const AchsenBereich& a);

// The mapping of a point through the shown ranges (see Anzeigbar), so that it never divides by zero
// and never gives a NaN or an infinity. A plot area without width or height maps every pixel to the
// lower ends of the axes. On a logarithmic axis a value at or below zero has no place and goes to
// the axis' lower end. Points far outside the area stay within a million area widths of it.
Punkt2D PixelZuDaten(const Zeichenflaeche& f, Punkt2D pixel);
Punkt2D DatenZuPixel(const Zeichenflaeche& f, Punkt2D daten);

// The axis ranges of the rectangle between two pixel corners given in any order, cut to the plot
// area; empty when the cut rectangle is narrower or lower than mindestPixel (a click, not a drag).
// The result has the same plot area and the axes' scale types.
std::optional<Zeichenflaeche> ZoomRechteck(const Zeichenflaeche& f, Punkt2D ecke1, Punkt2D ecke2,
                                           double mindestPixel = 5);

} // namespace quor
