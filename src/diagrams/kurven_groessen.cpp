#include "diagrams/kurven_groessen.h"

#include "engine/saettigung.h"
#include "engine/zustand.h"

#include <cmath>
#include <limits>
#include <string>

namespace quor::kurven {

namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

struct CodeAchsen {
  int16_t code;
  Achsen achsen;
};

using K = Koordinate;
using F = Familie;

// The axes of every code whose points are states of one phase or of the saturation line.
constexpr CodeAchsen Tabelle[] = {
    // p, v, T sections
    {1, {F::Isotherme, K::V, K::P}},
    {2, {F::Isotherme, K::P, K::PV}},
    {26, {F::Isotherme, K::P, K::Rho}},
    {3, {F::Isobare, K::V, K::T}},
    {4, {F::Isobare, K::Rho, K::T}},
    {5, {F::Isochore, K::T, K::P}},
    // functions over T at p
    {14, {F::Isobare, K::T, K::U}},
    {15, {F::Isobare, K::T, K::H}},
    {16, {F::Isobare, K::T, K::S}},
    {17, {F::Isobare, K::T, K::G}},
    {18, {F::Isobare, K::T, K::EH}},
    {19, {F::Isobare, K::T, K::Cp}},
    {20, {F::Isobare, K::T, K::EU}},
    {25, {F::Isobare, K::T, K::A}},
    {30, {F::Isobare, K::T, K::ResS}},
    {31, {F::Isobare, K::T, K::ResH}},
    {32, {F::Isobare, K::T, K::ResG}},
    {33, {F::Isobare, K::T, K::ResCp}},
    {34, {F::Isobare, K::T, K::Delta}},
    // functions over p at T
    {148, {F::Isotherme, K::P, K::A}},
    {149, {F::Isotherme, K::P, K::U}},
    {150, {F::Isotherme, K::P, K::H}},
    {151, {F::Isotherme, K::P, K::S}},
    {152, {F::Isotherme, K::P, K::G}},
    {153, {F::Isotherme, K::P, K::EH}},
    {154, {F::Isotherme, K::P, K::Cp}},
    {155, {F::Isotherme, K::P, K::EU}},
    {40, {F::Isotherme, K::P, K::ResS}},
    {41, {F::Isotherme, K::P, K::ResH}},
    {42, {F::Isotherme, K::P, K::ResG}},
    {43, {F::Isotherme, K::P, K::ResCp}},
    // functions over v at T
    {156, {F::Isotherme, K::V, K::A}},
    {157, {F::Isotherme, K::V, K::U}},
    {158, {F::Isotherme, K::V, K::S}},
    {159, {F::Isotherme, K::V, K::Cv}},
    {160, {F::Isotherme, K::V, K::EU}},
    // functions over T at v
    {180, {F::Isochore, K::T, K::EH}},
    {181, {F::Isochore, K::T, K::EU}},
    {182, {F::Isochore, K::T, K::A}},
    {183, {F::Isochore, K::T, K::U}},
    {184, {F::Isochore, K::T, K::S}},
    {185, {F::Isochore, K::T, K::Cv}},
    // two functions: h-s, eH-h, eH-(T(u) s)
    {107, {F::Isotherme, K::S, K::H}},
    {21, {F::Isotherme, K::H, K::EH}},
    {109, {F::Isotherme, K::TuS, K::EH}},
    {24, {F::Isobare, K::S, K::H}},
    {22, {F::Isobare, K::H, K::EH}},
    {23, {F::Isobare, K::TuS, K::EH}},
    // along the saturation line over T
    {90, {F::Saettigung, K::T, K::H}},
    {91, {F::Saettigung, K::T, K::S}},
    {92, {F::Saettigung, K::T, K::Cp}},
    {93, {F::Saettigung, K::T, K::G}},
    {94, {F::Saettigung, K::T, K::EH}},
    {95, {F::Saettigung, K::T, K::EU}},
    {88, {F::Saettigung, K::T, K::Cv}},
    {98, {F::Saettigung, K::T, K::U}},
    {99, {F::Saettigung, K::T, K::A}},
    // along the saturation line over p
    {68, {F::Saettigung, K::P, K::H}},
    {69, {F::Saettigung, K::P, K::S}},
    {70, {F::Saettigung, K::P, K::G}},
    {71, {F::Saettigung, K::P, K::EH}},
    {72, {F::Saettigung, K::P, K::Cp}},
    {73, {F::Saettigung, K::P, K::EU}},
    {74, {F::Saettigung, K::P, K::U}},
    {75, {F::Saettigung, K::P, K::A}},
    // the saturation line in two functions
    {89, {F::Saettigung, K::S, K::H}},
    {97, {F::Saettigung, K::H, K::EH}},
    {100, {F::Saettigung, K::TuS, K::EH}},
    {101, {F::Saettigung, K::S, K::U}},
    {102, {F::Saettigung, K::U, K::EU}},
    {96, {F::Saettigung, K::S, K::H}},
    {120, {F::Saettigung, K::H, K::EH}},
    {121, {F::Saettigung, K::TuS, K::EH}},
};

// The residual values are kept per R; the display shows them in kJ/kmol (or per unit of the mode).
double Residual(const Phasenzustand& z, int spalte, double E) {
  return RGas * z.res[spalte] * E;
}

} // namespace

Achsen AchsenVon(int16_t c) {
  for (const CodeAchsen& e : Tabelle)
    if (e.code == c) return e.achsen;
  return {};
}

Phasenzustand PhaseBei(ProjectState& s, double T, double p, double v, int row) {
  Phasenzustand z;
  z.T = T;
  z.p = p;
  z.v = v;
  KalorischeWerte& w = z.w;
  w.h = w.u = w.s = w.g = w.a = w.cp = w.cv = w.cpIdG = w.eh = w.eu = w.w = NaN;
  KalorikTabellen tab;
  tab.ResFunk[row].fill(NaN);
  int16_t err = 0;
  ThermoFunktionen(s, T, p, v, row, tab, w, err);
  z.res = tab.ResFunk[row];
  return z;
}

bool StabilesVolumen(ProjectState& s, double T, double p, double& v, int& row) {
  bool istL = false, istV = false;
  double rhoV = 0, rhoL = 0, vV = 0, vL = 0, imbalance = 0, A = 0, B = 0;
  int16_t nRoots = 0, err = 0;
  std::string meldung;
  VzuTP(s, T, p, s.EOS.Gebiet, istL, istV, rhoV, rhoL, vV, vL, nRoots, imbalance, A, B, meldung, err);
  if (err != 0 || !(istL || istV)) return false;
  const bool dampf = istV && vV > 0;
  v = dampf ? vV : vL;
  row = dampf ? PhaseV : PhaseL;
  return v > 0;
}

bool StabilePhase(ProjectState& s, double T, double p, Phasenzustand& z) {
  double v = 0;
  int row = PhaseV;
  if (!StabilesVolumen(s, T, p, v, row)) return false;
  z = PhaseBei(s, T, p, v, row);
  return true;
}

bool Saettigung(ProjectState& s, double T, Phasenzustand& L, Phasenzustand& V) {
  if (s.Modell.VirialFlag || !(T > 0) || T > s.Stoff.TKrit) return false;
  KalorikTabellen tab;
  for (auto& zeile : tab.ResFunk)
    zeile.fill(NaN);
  SaettigungsWerte erg;
  for (KalorischeWerte& w : erg.phase)
    w.h = w.u = w.s = w.g = w.a = w.cp = w.cv = w.cpIdG = w.eh = w.eu = w.w = NaN;
  int16_t err = 0;
  SaettigungsFunktionen(s, T, tab, erg, err);
  if (!(erg.p > 0) || !(erg.vL > 0) || !(erg.vV > 0)) return false;
  L = {T, erg.p, erg.vL, erg.phase[PhaseL], tab.ResFunk[PhaseL]};
  V = {T, erg.p, erg.vV, erg.phase[PhaseV], tab.ResFunk[PhaseV]};
  return true;
}

double EnergieFaktorBeiT(const ProjectState& s, double T) {
  switch (s.Einheiten.EnergieMode) {
  case 1:
    return 1.0 / RGas;
  case 2:
    return T > 0 ? 1.0 / (RGas * T) : 1.0;
  case 3:
    return s.Stoff.MolMasse > 0 ? 1.0 / s.Stoff.MolMasse : 1.0;
  default:
    return 1.0;
  }
}

double Wert(const ProjectState& s, Koordinate k, const Phasenzustand& z) {
  const EinheitenGruppe& e = s.Einheiten;
  const double E = EnergieFaktorBeiT(s, z.T);
  const KalorischeWerte& w = z.w;
  switch (k) {
  case K::T:
    return z.T * e.TFaktor;
  case K::P:
    return z.p * e.pFaktor;
  case K::V:
    return z.v * e.VolumenFaktor;
  case K::Rho:
    return s.Stoff.MolMasse / z.v;
  case K::PV:
    return z.p * z.v * e.VolumenFaktor;
  case K::U:
    return w.u * E;
  case K::H:
    return w.h * E;
  case K::S:
    return w.s * E;
  case K::G:
    return w.g * E;
  case K::A:
    return w.a * E;
  case K::EU:
    return w.eu * E;
  case K::EH:
    return w.eh * E;
  case K::Cp:
    // cp of the EOS: the ideal-gas part and the residual one; none without a cp equation
    return w.cpIdG > 0 ? (w.cpIdG + RGas * z.res[6]) * E : NaN;
  case K::Cv:
    return w.cv * E;
  case K::ResS:
    return Residual(z, 3, E);
  case K::ResH:
    return Residual(z, 4, E);
  case K::ResG:
    return Residual(z, 5, E);
  case K::ResCp:
    return Residual(z, 6, E);
  case K::Delta:
    return z.res[7];
  case K::TuS:
    return s.Referenz.TUmgebung * w.s * E;
  case K::Keine:
    break;
  }
  return NaN;
}

bool SaettigungsTemperatur(ProjectState& s, double p, double& T) {
  if (s.Modell.VirialFlag || !(p > 0) || p > s.Stoff.pKrit) return false;
  double imbalance = 0, A = 0, B = 0, start = 0;
  int16_t err = 0;
  T = TLVbeiP(s, p, imbalance, A, B, start, err);
  return err == 0 && T > 0;
}

std::vector<double> Schritte(double von, double bis, double schritt, double grenze) {
  std::vector<double> x;
  const double h = std::copysign(std::fabs(schritt), bis - von);
  if (!(std::fabs(h) > 0) || !std::isfinite(h)) return {von};
  const double ende = bis + grenze * h;
  const double n = std::floor((ende - von) / h);
  if (!(n >= 0) || n > 1e6) return x;
  for (int i = 0; i <= static_cast<int>(n); ++i) {
    const double wert = von + i * h;
    x.push_back((h > 0) == (wert > bis) ? bis : wert);
  }
  return x;
}

std::vector<double> Geometrisch(double von, double bis, int n) {
  std::vector<double> x;
  if (!(von > 0) || !(bis > 0) || n < 1) return x;
  const double q = std::log(bis / von) / n;
  for (int i = 0; i <= n; ++i)
    x.push_back(von * std::exp(q * i));
  return x;
}

} // namespace quor::kurven
