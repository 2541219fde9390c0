// Logic of the 3D diagram page frmGraph3D: one surface of a function of two state variables over a
// regular grid (Diagramm3DArt), its standard ranges, the range input, the surface computation, the
// display options, the critical point and the iso-lines on the surface. The picture is a Flaeche3D
// that the view hands to the Q3DSurface adapter.
#pragma once

#include "core/project_state.h"
#include "diagrams/diagramm_bild.h"
#include "dienste/oberflaeche.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace quor {

// The preset Z pair: with it the Z axis follows the data.
constexpr float Z3DVorgabe = 0.01111f;
// The largest heat capacity a cell shows, in display units.
constexpr double Cp3DGrenze = 500000;

// Menu entry of mnu3DSub to the surface's Art (0 to 2: Art 1 to 3; 4 to 10: Art 4 to 10); 0 for none.
int16_t ArtVon3DMenue(int eintrag);

// Title and axis texts of a surface in the display units ("Druck p(v, T)", "v / (m^3/kmol)", ...).
struct Texte3D {
  std::string Titel, X, Y, Z;
};
Texte3D TexteVon(int16_t art, const EinheitenGruppe& e);

// The six limits of the axes in display units: x, y, z, each low and high.
struct Bereich3D {
  double xMin = 0, xMax = 1, yMin = 0, yMax = 1, zMin = -Z3DVorgabe, zMax = Z3DVorgabe;
};

// The standard ranges of an Art with the unit factors; `reales` only matters for Art 1.
Bereich3D IniStandardBereich3D(const ProjectState& s, int16_t art, bool reales);

// The one stored set of limits in display units: p, T, v, and the Z of a function surface. The axes
// of Art 1, 2, 3 are rotations of it (x, y, z = v, T, p; p, T, v; v, p, T); Art 4 to 10 take p, T
// and the function's pair.
struct AchsenSatz3D {
  double pMin = 0, pMax = 1, TMin = 0, TMax = 1, vMin = 0, vMax = 1;
  double fMin = -Z3DVorgabe, fMax = Z3DVorgabe;
};
Bereich3D AchsenVon(int16_t art, const AchsenSatz3D& a);
// Writes the axes of `art` back into the stored set.
void InSatz(int16_t art, const Bereich3D& b, AchsenSatz3D& a);

// The grid as the surface gets it: X[i], Y[j], Z[j][i] in display units; a cell the engine could not
// give is NaN in Z and false in Gueltig.
struct Gitter3D {
  std::vector<double> X, Y;
  std::vector<std::vector<double>> Z;
  std::vector<std::vector<bool>> Gueltig;
};

// The surface of `art` over nx + 1 by ny + 1 points of `b`. The function surfaces (Art 4 to 10)
// follow FlaecheBerechnen: p of 0 taken as 0.1 kPa, the phase by the state solver, the caloric block of
// that root times EnergieFaktor, cp held at Cp3DGrenze, values clipped to Z limits other than the
// preset pair. Art 1 to 3 with `reales` put a cell inside the two-phase region on the saturation plane.
Gitter3D FlaecheBerechnen(ProjectState& s, int16_t art, int nx, int ny, const Bereich3D& b, bool reales);

// Everything a 3D page keeps, as a diagram file holds it: the art, the real-behaviour answer, the
// stored limits and those on show, the grid resolution and the computed grid, the dressing, the
// iso-line counts, and the camera's turn and zoom.
struct Graph3DZustand {
  int16_t Art = 0;
  bool Reales = true;
  AchsenSatz3D Satz;
  Bereich3D Bereich;
  int NX = 60, NY = 60;
  Gitter3D Gitter;
  Anzeige3D Anzeige;
  bool KritischerPunkt = false;
  std::array<int, 3> IsoAnzahl{}; // Z, T (rows), v or p (columns)
  bool HalbeT = false, HalbeV = false;
  Ansicht3D Ansicht;
};

class frmGraph3D {
public:
  frmGraph3D(ProjectState& s, ui::Oberflaeche& ui);

  // A new surface of `art`: asks "Reales Verhalten zeichnen?" for a cubic model and Art 1 or 3
  // (a virial model always draws the real behaviour), sets the standard ranges and computes.
  // False when nothing could be drawn (with the message of an empty surface).
  bool Neu(int16_t art);
  int16_t Art() const { return art_; }
  bool Reales() const { return reales_; }

  // The range input cmdCoord3 (texts as typed, display units, in the order x low, x high, y low,
  // y high, z low, z high): the two refusals under "EINGABE-FEHLER"; on success the limits go into
  // the stored set and the surface is computed anew.
  bool cmdCoord3(const std::array<std::string, 6>& felder);
  const Bereich3D& Bereich() const { return bereich_; }

  // Grid resolution (points per axis minus one, 1 to 400); an open surface is computed anew.
  void Aufloesung(int nx, int ny);

  // Display options and the dressing.
  Anzeige3D Anzeige;
  void KritischerPunkt(bool an); // the point "CrP"
  // Iso-lines on the surface: `anzahl` lines of constant Z, T (rows) or v/p (columns); `halbe`
  // halves their count.
  void Isolinien(int anzahlZ, int anzahlT, int anzahlV, bool halbeT, bool halbeV);

  // The page's state with the camera `ansicht` the view reports, and a state put in its place (a
  // loaded diagram file, checked by its reader): the grid is shown as saved, not computed anew.
  Graph3DZustand Zustand(const Ansicht3D& ansicht) const;
  void ZustandSetzen(const Graph3DZustand& z);

  // The picture for the adapter; the warning text under the title for Art 4.
  Flaeche3D Bild() const;
  std::string Hinweis() const;
  const Gitter3D& Gitter() const { return gitter_; }
  int Stand() const { return stand_; }

private:
  bool Rechnen();
  void Ausstatten(); // iso-lines and the critical point of the grid on show
  void KritischenPunktSetzen();

  ProjectState& s_;
  ui::Oberflaeche& ui_;
  int16_t art_ = 0;
  bool reales_ = true;
  bool ersteZeichnung_ = true;
  AchsenSatz3D satz_;
  Bereich3D bereich_;
  int nx_ = 60, ny_ = 60;
  Gitter3D gitter_;
  bool kritischerPunkt_ = false;
  std::vector<Linie3D> linien_;
  std::array<int, 3> isoAnzahl_{}; // Z, T (rows), v or p (columns)
  bool halbeT_ = false, halbeV_ = false;
  std::vector<Marke3D> marken_;
  std::optional<Ansicht3D> ansicht_; // the camera of a loaded file, until the next new surface
  int stand_ = 0;
};

} // namespace quor
