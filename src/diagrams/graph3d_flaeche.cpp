// The grid of a 3D surface: p(v, T), v(p, T) and T(v, p) from the state functions of the EOS, with the
// saturation plane of the real behaviour, and the caloric functions over p and T.
#include "diagrams/diagramm3d_art.h"
#include "diagrams/graph3d_intern.h"
#include "engine/eos_auswertung.h"
#include "engine/eos_zeilen.h"
#include "engine/kalorik.h"
#include "engine/saettigung.h"
#include "engine/zustand.h"

#include <cmath>
#include <limits>

namespace quor {

namespace graph3d {

namespace {

constexpr double KeinWert = std::numeric_limits<double>::quiet_NaN();
// A pressure of zero on the grid is taken as this one (kPa): the state solver needs p > 0.
constexpr double KleinsterDruck = 0.1;

// The caloric quantity of a function surface, in kJ/kmol or kJ/(kmol K).
double Groesse(int16_t art, double T, const KalorischeWerte& w) {
  switch (art) {
  case art3d::Cp:
    return w.cp;
  case art3d::U:
    return w.u;
  case art3d::H:
    return w.h;
  case art3d::S:
    return w.s;
  case art3d::G:
    return w.h - T * w.s;
  case art3d::ExergieU:
    return w.eu;
  case art3d::ExergieH:
    return w.eh;
  default:
    return KeinWert;
  }
}

} // namespace

bool IstVorgabe(double grenze, float vorgabe) {
  return static_cast<float>(grenze) == vorgabe;
}

Zellrechner::Zellrechner(ProjectState& s, int16_t art, bool reales, const Bereich3D& b)
    : s_(s), art_(art), reales_(reales), b_(b) {}

double Zellrechner::Wert(double x, double y) {
  const EinheitenGruppe& e = s_.Einheiten;
  const double vF = e.VolumenFaktor > 0 ? e.VolumenFaktor : 1;
  const double pF = e.pFaktor > 0 ? e.pFaktor : 1;
  const double TF = e.TFaktor > 0 ? e.TFaktor : 1;
  double z = KeinWert;
  switch (art_) {
  case art3d::Druck:
    z = Druck(x / vF, y / TF) * pF;
    break;
  case art3d::Volumen:
    z = Volumen(x / pF, y / TF) * vF;
    break;
  case art3d::Temperatur:
    z = Temperatur(x / vF, y / pF) * TF;
    break;
  default:
    z = Funktion(x / pF, y / TF);
  }
  if (!std::isfinite(z)) return KeinWert;
  // The grid holds single-precision heights.
  const float einfach = static_cast<float>(Geschnitten(z));
  return std::isfinite(einfach) ? einfach : KeinWert;
}

double Zellrechner::Geschnitten(double z) const {
  if (!IstVorgabe(b_.zMax, Z3DVorgabe) && z > b_.zMax) z = b_.zMax;
  if (!IstVorgabe(b_.zMin, -Z3DVorgabe) && z < b_.zMin) z = b_.zMin;
  return z;
}

void Zellrechner::SaettigungBei(double T) {
  if (T == tSaett_) return;
  tSaett_ = T;
  zweiphasig_ = false;
  if (!reales_ || !eos::KubischGewaehlt(s_.Modell) || !(T < s_.Stoff.TKrit)) return;
  double imbalance = 0, A = 0, B = 0;
  int16_t err = 0;
  const double p = pLVbeiT(s_, T, imbalance, A, B, err);
  if (err != 0 || !(p > 0)) return;
  // The saturated volumes stay in the first and last root.
  pLV_ = p, vL_ = s_.EOS.VRoots[0], vV_ = s_.EOS.VRoots[2];
  zweiphasig_ = vL_ > 0 && vV_ > vL_;
}

// p(v, T); between the saturated volumes of the real behaviour the saturation pressure.
double Zellrechner::Druck(double v, double T) {
  SaettigungBei(T);
  if (zweiphasig_ && v > vL_ && v < vV_) return pLV_;
  // The solver tests v against the co-volume it holds, so that one has to be of this T.
  if (!s_.Modell.VirialFlag) EOSbeiT(s_, T);
  int16_t err = 0;
  const double p = PzuTV(s_, T, v, err);
  return err == 0 ? p : KeinWert;
}

// The volume of the phase the solver finds at (p, T): the liquid root when it says liquid alone,
// else the vapour root; a p of 0 taken as the smallest pressure. False when it finds none.
bool Zellrechner::PhasenVolumen(double& p, double T, double& v, bool& fluessig) {
  if (p == 0) p = KleinsterDruck;
  int16_t region = s_.EOS.Gebiet, nRoots = 0, err = 0;
  bool istL = false, istV = false;
  double rhoV = 0, rhoL = 0, vV = 0, vL = 0, imbalance = 0, A = 0, B = 0;
  std::string meldung;
  VzuTP(s_, T, p, region, istL, istV, rhoV, rhoL, vV, vL, nRoots, imbalance, A, B, meldung, err);
  if (err != 0) return false;
  fluessig = istL && !istV;
  v = fluessig ? vL : vV;
  return true;
}

// v(p, T) of the phase the solver finds.
double Zellrechner::Volumen(double p, double T) {
  double v = 0;
  bool fluessig = false;
  if (!PhasenVolumen(p, T, v, fluessig)) return KeinWert;
  return v > 0 ? v : KeinWert;
}

// T(v, p); inside the two-phase region of the real behaviour the saturation temperature at p.
double Zellrechner::Temperatur(double v, double p) {
  if (!(v > 0)) return KeinWert;
  int16_t err = 0;
  const double T = TzuPRho(s_, p, s_.Stoff.MolMasse / v, !reales_, err);
  return err == 0 ? T : KeinWert;
}

// The caloric function of the phase the solver finds at (p, T), in display units.
double Zellrechner::Funktion(double p, double T) {
  double v = 0;
  bool fluessig = false;
  if (!PhasenVolumen(p, T, v, fluessig)) return KeinWert;
  int16_t err = 0;
  KalorischeWerte w;
  ThermoFunktionen(s_, T, p, v, fluessig ? PhaseL : PhaseV, w, err);
  if (err != 0) return KeinWert;
  double wert = Groesse(art_, T, w);
  const double E = s_.Einheiten.EnergieFaktor;
  // The spike of cp at the critical point stays finite. Right at the point the slope of the isotherm
  // rounds to either sign, so a spike below zero is the same spike.
  if (art_ == art3d::Cp && std::fabs(wert * E) >= Cp3DGrenze) wert = Cp3DGrenze / E;
  return wert * E;
}

} // namespace graph3d

Gitter3D FlaecheBerechnen(ProjectState& s, int16_t art, int nx, int ny, const Bereich3D& b, bool reales) {
  Gitter3D g;
  if (nx < 1 || ny < 1 || art < art3d::Druck || art > art3d::ExergieH) return g;
  const double dx = (b.xMax - b.xMin) / nx, dy = (b.yMax - b.yMin) / ny;
  const auto spalten = static_cast<std::size_t>(nx) + 1, zeilen = static_cast<std::size_t>(ny) + 1;
  g.X.resize(spalten);
  g.Y.resize(zeilen);
  for (int i = 0; i <= nx; ++i)
    g.X[static_cast<std::size_t>(i)] = graph3d::Stelle(b.xMin, dx, i);
  for (int j = 0; j <= ny; ++j)
    g.Y[static_cast<std::size_t>(j)] = graph3d::Stelle(b.yMin, dy, j);
  g.Z.assign(zeilen, std::vector<double>(spalten));
  g.Gueltig.assign(zeilen, std::vector<bool>(spalten));
  graph3d::Zellrechner rechner(s, art, reales, b);
  // Row by row: a row keeps its temperature (or pressure), so its saturation state is found once.
  for (std::size_t j = 0; j < zeilen; ++j)
    for (std::size_t i = 0; i < spalten; ++i) {
      const double z = rechner.Wert(g.X[i], g.Y[j]);
      g.Z[j][i] = z;
      g.Gueltig[j][i] = std::isfinite(z);
    }
  return g;
}

} // namespace quor
