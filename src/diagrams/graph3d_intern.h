// Shared by the files of the 3D diagram: the value of one grid point of a surface, and the grid's
// positions.
#pragma once

#include "diagrams/graph3d.h"

namespace quor::graph3d {

// The value of a surface at one point (x, y) in display units, as a cell of the grid gets it: the
// state from the engine, cp held at Cp3DGrenze, the energy factor, the Z limits other than the preset
// pair. NaN when the engine gives no value there. Keeps the saturation state of the last temperature,
// so a row of the real p(v, T) surface asks for it once.
class Zellrechner {
public:
  Zellrechner(ProjectState& s, int16_t art, bool reales, const Bereich3D& b);
  double Wert(double x, double y);

private:
  double Druck(double v, double T);
  bool PhasenVolumen(double& p, double T, double& v, bool& fluessig);
  double Volumen(double p, double T);
  double Temperatur(double v, double p);
  double Funktion(double p, double T);
  void SaettigungBei(double T);
  double Geschnitten(double z) const;

  ProjectState& s_;
  int16_t art_;
  bool reales_;
  Bereich3D b_;
  // Saturation of the last temperature of the real p(v, T) surface.
  double tSaett_ = -1;
  bool zweiphasig_ = false;
  double pLV_ = 0, vL_ = 0, vV_ = 0;
};

// The position of point k of n + 1 from `von` in steps of `schritt`.
inline double Stelle(double von, double schritt, int k) {
  return von + k * schritt;
}

// The Z limit is the preset one (compared in single precision).
bool IstVorgabe(double grenze, float vorgabe);

} // namespace quor::graph3d
