#include "diagrams/kurven_groessen.h"

#include "diagrams/diagramm_codes.h"

#include <cmath>
#include <limits>

namespace quor::kurven {

namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

using G = Groesse;

// Marks every value as not given by the engine.
void Unbekannt(KalorischeWerte& w) {
  w.h = w.u = w.s = w.g = w.a = w.cp = w.cv = w.cpIdG = w.eh = w.eu = w.w = NaN;
}

// The residual values are kept per R; the display shows them in kJ/kmol (or per unit of the mode).
double Residual(const Phasenzustand& z, int spalte, double E) {
  return RGas * z.res[spalte] * E;
}

} // namespace

Achsen AchsenVon(int16_t c) {
  const KatalogZeile* z = KatalogZeileVon(c);
  if (z == nullptr) return {};
  switch (z->Klasse) {
  case klasse::Isotherme:
    return {Familie::Isotherme, z->X, z->Y};
  case klasse::Isobare:
    return {Familie::Isobare, z->X, z->Y};
  case klasse::Isochore:
    return {Familie::Isochore, z->X, z->Y};
  case klasse::Koexistenz:
    return {Familie::Saettigung, z->X, z->Y};
  default:
    return {};
  }
}

Phasenzustand PhaseBei(ProjectState& s, double T, double p, double v, int row) {
  Phasenzustand z;
  z.T = T;
  z.p = p;
  z.v = v;
  Unbekannt(z.w);
  KalorikTabellen tab;
  tab.ResFunk[row].fill(NaN);
  int16_t err = 0;
  ThermoFunktionen(s, T, p, v, row, tab, z.w, err);
  z.res = tab.ResFunk[row];
  return z;
}

int ZeileVon(const ProjectState& s, double v) {
  return v < s.EOS.vKritEOS ? PhaseL : PhaseV;
}

bool StabilePhase(ProjectState& s, double T, double p, Phasenzustand& z) {
  double v = 0;
  if (!StabilesVolumen(s, T, p, v)) return false;
  z = PhaseBei(s, T, p, v, ZeileVon(s, v));
  return true;
}

bool Saettigung(ProjectState& s, double T, Phasenzustand& L, Phasenzustand& V) {
  if (s.Modell.VirialFlag || !(T > 0) || T > s.Stoff.TKrit) return false;
  KalorikTabellen tab;
  for (auto& zeile : tab.ResFunk)
    zeile.fill(NaN);
  SaettigungsWerte erg;
  for (KalorischeWerte& w : erg.phase)
    Unbekannt(w);
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

double Wert(const ProjectState& s, Groesse g, const Phasenzustand& z) {
  const EinheitenGruppe& e = s.Einheiten;
  const double E = EnergieFaktorBeiT(s, z.T);
  const KalorischeWerte& w = z.w;
  switch (g) {
  case G::T:
    return z.T * e.TFaktor;
  case G::p:
    return z.p * e.pFaktor;
  case G::v:
    return z.v * e.VolumenFaktor;
  case G::Rho:
    return s.Stoff.MolMasse / z.v;
  case G::PV:
    return z.p * z.v * e.VolumenFaktor;
  case G::U:
    return w.u * E;
  case G::H:
    return w.h * E;
  case G::S:
    return w.s * E;
  case G::G:
    return w.g * E;
  case G::A:
    return w.a * E;
  case G::EU:
    return w.eu * E;
  case G::EH:
    return w.eh * E;
  case G::Cp:
    // cp of the EOS: the ideal-gas part and the residual one; none without a cp equation
    return w.cpIdG > 0 ? (w.cpIdG + RGas * z.res[6]) * E : NaN;
  case G::Cv:
    return w.cv * E;
  case G::ResS:
    return Residual(z, 3, E);
  case G::ResH:
    return Residual(z, 4, E);
  case G::ResG:
    return Residual(z, 5, E);
  case G::ResCp:
    return Residual(z, 6, E);
  case G::JouleThomson:
    return z.res[7];
  case G::TuS:
    return s.Referenz.TUmgebung * w.s * E;
  default:
    break;
  }
  return NaN;
}

void PhasenPunkt(Lauf& l, const Achsen& ach, const Phasenzustand& z, double parameter) {
  l.Punkt(Wert(l.s, ach.x, z), Wert(l.s, ach.y, z), parameter);
}

bool SaettigungsTemperatur(ProjectState& s, double p, double& T) {
  Koexistenz k;
  double start = 0;
  if (s.Modell.VirialFlag || !KoexistenzBeiP(s, p, start, k)) return false;
  T = k.T;
  return true;
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
