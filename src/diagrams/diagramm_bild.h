// What a chart shows, without a chart library: the 2D picture (series, axes, text labels, point
// marks, header, footer, legend, page colour) and the 3D surface (a grid of heights with a validity
// mask, axes, display options, iso-lines, labelled points, view). The diagram logic fills these;
// the adapter widgets turn them into the chart components' own objects.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace quor {

struct RGBFarbe {
  uint8_t R = 0;
  uint8_t G = 0;
  uint8_t B = 0;
};

inline bool operator==(const RGBFarbe& a, const RGBFarbe& b) {
  return a.R == b.R && a.G == b.G && a.B == b.B;
}
inline bool operator!=(const RGBFarbe& a, const RGBFarbe& b) {
  return !(a == b);
}

enum class LinienArt { Durchgezogen, Strich, Punkt, StrichPunkt, Keine };

enum class PunktSymbol { Keines, Kreis, Quadrat, Dreieck, Kreuz, Plus, Raute, Stern };

// ---------------------------------------------------------------------------------------------------
// 2D

// One curve or point set; X[k], Y[k] is its k-th point, drawn in the order given (a curve may turn
// back in X, as a coexistence loop or a diagram with swapped axes does).
struct Reihe2D {
  std::string Name; // legend text
  std::vector<double> X;
  std::vector<double> Y;
  RGBFarbe Farbe{0, 0, 255};
  LinienArt Linie = LinienArt::Durchgezogen;
  double Breite = 1; // line width in pixels
  PunktSymbol Symbol = PunktSymbol::Keines;
  double SymbolGroesse = 6; // pixels
  bool Sichtbar = true;
};

struct Achse2D {
  double Min = 0;
  double Max = 1;
  std::string Titel;
  std::string Format; // Basic-style pattern of the tick labels ("0.000", "0.0E+00"); empty: default text
  bool Gitter = false;
  bool Logarithmisch = false;
};

// A text whose left end stands at a data coordinate, vertically centred on it.
struct Beschriftung2D {
  std::string Text;
  double X = 0;
  double Y = 0;
  RGBFarbe Farbe;
};

// A point mark (critical point, triple point, ...): a symbol at a data coordinate, its label to the
// upper right of it.
struct Marke2D {
  std::string Text;
  double X = 0;
  double Y = 0;
  PunktSymbol Symbol = PunktSymbol::Kreuz;
  double SymbolGroesse = 9;
  RGBFarbe Farbe{255, 0, 0};
};

struct Diagramm2D {
  std::vector<Reihe2D> Reihen;
  Achse2D AchseX;
  Achse2D AchseY;
  std::vector<Beschriftung2D> Texte;
  std::vector<Marke2D> Marken;
  std::string Kopf; // header text above the plot area; empty: none
  std::string Fuss; // footer text below it; empty: none
  bool LegendeSichtbar = true;
  RGBFarbe Seitenfarbe{255, 255, 255};
};

// ---------------------------------------------------------------------------------------------------
// 3D

struct Achse3D {
  double Min = 0;
  double Max = 1;
  std::string Titel;
};

// How the surface is dressed. Solid and mesh together draw the filled surface with its grid lines;
// neither of them draws the filled surface.
struct Anzeige3D {
  bool Massiv = true;        // filled surface
  bool Transparent = false;  // half-transparent surface
  bool Schattiert = true;    // smooth shading across the cells; false: each cell flat
  bool Netz = false;         // mesh (wire frame) of the grid lines
  bool Gitterebenen = true;  // grid on the back planes
  bool Zonen = true;         // colour by height
  bool Hoehenlinien = false; // lines of equal height
};

struct Punkt3D {
  double X = 0;
  double Y = 0;
  double Z = 0;
};

// An isobar, isotherm or isochore on the surface.
struct Linie3D {
  std::string Name;
  std::vector<Punkt3D> Punkte;
  RGBFarbe Farbe{0, 0, 0};
};

// A labelled point such as the critical point "CrP".
struct Marke3D {
  std::string Text;
  Punkt3D Ort;
  RGBFarbe Farbe{255, 0, 0};
};

// Turn of the camera in degrees (horizontal -180 .. 180, vertical -90 .. 90) and its zoom in percent.
struct Ansicht3D {
  double Horizontal = 30;
  double Vertikal = 25;
  double Zoom = 100;
};

// The surface Z(X, Y) over a regular grid: X holds the column positions, Y the row positions,
// Z the heights row by row (Z[j * X.size() + i] lies over X[i], Y[j]). A cell that could not be
// computed is marked false in Gueltig (same layout); an empty Gueltig marks every cell valid.
struct Flaeche3D {
  std::string Titel;
  std::vector<double> X;
  std::vector<double> Y;
  std::vector<double> Z;
  std::vector<bool> Gueltig;
  Achse3D AchseX;
  Achse3D AchseY;
  Achse3D AchseZ;
  Anzeige3D Anzeige;
  RGBFarbe Farbe{60, 120, 200}; // surface colour when it is not zoned
  std::vector<Linie3D> Linien;
  std::vector<Marke3D> Punkte;
  Ansicht3D Ansicht;
};

// Index of the cell in row j (over Y[j]) and column i (over X[i]).
inline std::size_t ZellIndex(const Flaeche3D& f, std::size_t j, std::size_t i) {
  return j * f.X.size() + i;
}

// True when Z (and Gueltig, unless empty) hold one value per grid point and the grid has at least
// two rows and two columns.
bool FlaecheStimmig(const Flaeche3D& f);

// The heights to draw: valid cells as they are; an invalid cell takes the height of the nearest valid
// cell of its row (the left one when two are equally near), or, in a row without any, the lowest
// valid height of the surface, or, on a surface without any, the lower end of the Z axis. Empty when
// the surface is not consistent.
std::vector<double> AnzeigeHoehen(const Flaeche3D& f);

} // namespace quor
