// Standard axis ranges of the 2D diagrams: one stored range per quantity, so that every curve of a
// family opens on the same axes, and the ranges of the database functions from their validity
// limits.
#include "diagrams/diagramm_codes.h"
#include "diagrams/katalog.h"
#include "engine/kalorik.h"
#include "engine/korrelationen.h"
#include "engine/zustand.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quor {

namespace {

using G = Groesse;

constexpr double Rand = 0.05; // widening on each side, share of the span

// The lowest temperature of the standard ranges: the triple point, else half the critical
// temperature.
double UntereTemperatur(const StoffGruppe& st) {
  return st.TTripel > 1e-6 && st.TTripel < st.TKrit ? st.TTripel : 0.5 * st.TKrit;
}

// Slope factor of the generalised vapour-pressure curve ln(p/pc) = f*(1 - Tc/T).
double WilsonFaktor(const StoffGruppe& st) {
  return 5.373 * (1 + st.omega);
}

// The critical volume of the model, else the measured one, else one from Zc = 0.29.
double KritischesVolumen(const ProjectState& s) {
  if (s.EOS.vKritEOS > 1e-6) return s.EOS.vKritEOS;
  if (s.Stoff.vKritExp > 1e-6) return s.Stoff.vKritExp;
  return 0.29 * RGas * s.Stoff.TKrit / s.Stoff.pKrit;
}

// Smallest and largest value of each quantity met at the sampled states.
class Sammler {
public:
  Sammler() {
    min_.fill(std::numeric_limits<double>::infinity());
    max_.fill(-std::numeric_limits<double>::infinity());
  }
  void Nimm(Groesse g, double wert) {
    if (!std::isfinite(wert)) return;
    const auto i = static_cast<std::size_t>(g);
    min_[i] = std::min(min_[i], wert);
    max_[i] = std::max(max_[i], wert);
  }
  // The range met, or `ersatz` when no two different values were met.
  Bereich Von(Groesse g, Bereich ersatz) const {
    const auto i = static_cast<std::size_t>(g);
    if (!(max_[i] > min_[i])) return ersatz;
    return {min_[i], max_[i]};
  }

private:
  std::array<double, GroessenAnzahl> min_{}, max_{};
};

// The caloric values of one phase of a state.
void PhaseAufnehmen(ProjectState& s, double T, double p, double v, int row, Sammler& z) {
  KalorikTabellen tab;
  KalorischeWerte w;
  int16_t err = 0;
  ThermoFunktionen(s, T, p, v, row, tab, w, err);
  if (err != 0) return;
  const auto& r = tab.ResFunk[row];
  z.Nimm(G::U, w.u);
  z.Nimm(G::H, w.h);
  z.Nimm(G::S, w.s);
  z.Nimm(G::G, w.g);
  z.Nimm(G::A, w.a);
  z.Nimm(G::EH, w.eh);
  z.Nimm(G::EU, w.eu);
  z.Nimm(G::TuS, s.Referenz.TUmgebung * w.s);
  z.Nimm(G::ResS, RGas * r[3]);
  z.Nimm(G::ResH, RGas * r[4]);
  z.Nimm(G::ResG, RGas * r[5]);
  z.Nimm(G::ResCp, RGas * r[6]);
  if (w.cp > 0) { // the heat capacities need an ideal-gas cp
    z.Nimm(G::Cp, w.cp);
    z.Nimm(G::Cv, w.cv);
    z.Nimm(G::JouleThomson, r[7]);
  }
}

// Every phase the model finds at (T, p).
void ZustandAufnehmen(ProjectState& s, double T, double p, Sammler& z) {
  bool istL = false, istV = false;
  double rhoV = 0, rhoL = 0, vV = 0, vL = 0, imbalance = 0, A = 0, B = 0;
  int16_t gebiet = 0, nRoots = 0, err = 0;
  std::string meldung;
  VzuTP(s, T, p, gebiet, istL, istV, rhoV, rhoL, vV, vL, nRoots, imbalance, A, B, meldung, err);
  if (err != 0) return;
  if (istL && vL > 0) PhaseAufnehmen(s, T, p, vL, 0, z);
  if (istV && vV > 0) PhaseAufnehmen(s, T, p, vV, 1, z);
}

// The model at states spread over the standard T and p ranges, clear of the critical point where
// the heat capacities diverge. The model's work fields and the reference state are left as found.
Sammler Proben(ProjectState& s) {
  Sammler z;
  if (s.Modell.EOSIndex < 0) return z;
  const EOSGruppe eos = s.EOS;
  const ReferenzGruppe referenz = s.Referenz;
  const double Tc = s.Stoff.TKrit, pc = s.Stoff.pKrit, Tu = UntereTemperatur(s.Stoff);
  for (double T : {Tu, (Tu + Tc) / 2, 1.2 * Tc, 1.5 * Tc})
    for (double p : {0.005 * pc, 0.5 * pc, 2 * pc})
      ZustandAufnehmen(s, T, p, z);
  s.EOS = eos;
  s.Referenz = referenz;
  return z;
}

void ZustandsBereiche(const ProjectState& s, StandardBereiche& b) {
  const StoffGruppe& st = s.Stoff;
  const double Tc = st.TKrit, pc = st.pKrit, Tu = UntereTemperatur(st);
  const double vc = KritischesVolumen(s);
  b[G::T] = {Tu, 1.5 * Tc};
  b[G::p] = {0, 2 * pc};
  b[G::v] = {0.25 * vc, 6 * vc};
  b[G::Rho] = {0, 3.5 * st.MolMasse / vc};
  b[G::PV] = {0, 1.6 * RGas * Tc};
  b[G::InvT] = b[G::InvTAnstieg] = {1 / Tc, 1 / Tu};
  // ln p from a generalised curve at the lowest T, one unit lower for its error, to the critical point
  const double f = WilsonFaktor(st);
  b[G::LnP] = {std::log(pc) + f * (1 - Tc / Tu) - 1, std::log(pc)};
  b[G::Anstieg] = {-2 * f * Tc, 0};
  // the inversion curve reaches about five times the critical temperature and twelve times the
  // critical pressure
  b[G::TInversion] = {Tu, 5.5 * Tc};
  b[G::pInversion] = {0, 12 * pc};
  b[G::PVInversion] = {0, 6 * RGas * Tc};
  // delta(LV)h from zero to somewhat above the generalised curve's value R*f*Tc
  b[G::HLV] = {0, 1.3 * f * RGas * Tc};
}

void KalorischeBereiche(ProjectState& s, StandardBereiche& b) {
  const Sammler z = Proben(s);
  const double RTc = RGas * s.Stoff.TKrit;
  const Bereich energie{-10 * RTc, 10 * RTc}, entropie{-10 * RGas, 10 * RGas};
  for (Groesse g : {G::U, G::H, G::G, G::A, G::ResH, G::ResG})
    b[g] = z.Von(g, energie);
  for (Groesse g : {G::S, G::ResS})
    b[g] = z.Von(g, entropie);
  const double Tumg = s.Referenz.TUmgebung;
  b[G::TuS] = z.Von(G::TuS, {entropie.Min * Tumg, entropie.Max * Tumg});
  // heat capacities and exergies from zero up
  b[G::Cp] = {0, z.Von(G::Cp, {0, 200}).Max};
  b[G::Cv] = {0, z.Von(G::Cv, {0, 200}).Max};
  const Bereich rcp = z.Von(G::ResCp, {0, 10 * RGas});
  b[G::ResCp] = {std::min(0.0, rcp.Min), rcp.Max};
  for (Groesse g : {G::EH, G::EU}) {
    const Bereich e = z.Von(g, {0, 10 * RTc});
    b[g] = {std::min(0.0, e.Min), e.Max};
  }
  b[G::JouleThomson] = z.Von(G::JouleThomson, {-0.01, 0.05});
}

// ----- database functions -----

// The validity range of a block, its missing ends taken from `ersatz`.
Bereich Gueltigkeit(const TGrenzen& g, Bereich ersatz) {
  Bereich x{g.TLo > 0 ? g.TLo : ersatz.Min, g.THi > 0 ? g.THi : ersatz.Max};
  return x.Max > x.Min ? x : ersatz;
}

const TGrenzen* DampfdruckGrenzen(const StoffGruppe& st, int index) {
  switch (index) {
  case FrostKalkwarfDB:
    return &st.FrostKalkwarfGrenzen;
  case WagnerDB:
    return &st.WagnerGrenzen;
  case AntoineNiederdruck:
    return &st.AntoineNdGrenzen;
  case AntoineHochdruck:
    return &st.AntoineHdGrenzen;
  default:
    return nullptr;
  }
}

// The vapour-pressure equation of a code: 306 to 309 the database's (Frost/Kalkwarf, Wagner,
// Antoine below and above the normal boiling point), 312 to 315 the correlated ones.
int DampfdruckIndexVon(int code) {
  static const int index[] = {FrostKalkwarfDB,  WagnerDB,         AntoineNiederdruck, AntoineHochdruck, 0, 0,
                              AugustKorreliert, FrostKalkwarfVdW, FrostKalkwarfRK,    AntoineThompson};
  return index[code - code::DbDampfdruck];
}

Bereich Umfang(double a, double b) {
  return {std::min(a, b), std::max(a, b)};
}

// X and Y of a database function in engine units: the validity range and the function's values at
// its ends.
void DatenbankBereich(ProjectState& s, const StandardBereiche& b, int code, Bereich& x, Bereich& y) {
  const StoffGruppe& st = s.Stoff;
  const double Tu = UntereTemperatur(st), Tc = st.TKrit;
  const Bereich fluessig{Tu, Tc}, fest{0.5 * Tu, Tu};
  int16_t f1 = 0, f2 = 0;
  switch (code) {
  case code::DbRhoL:
  case code::DbRhoS: {
    const bool L = code == code::DbRhoL;
    x = Gueltigkeit(L ? st.RhoLGrenzen : st.RhoSGrenzen, L ? fluessig : fest);
    const double r1 = L ? RhoL(s, x.Min, false, f1) : RhoS(s, x.Min, false, f1);
    const double r2 = L ? RhoL(s, x.Max, false, f2) : RhoS(s, x.Max, false, f2);
    y = Umfang(r1, r2);
    y = {y.Min - 10, y.Max + 10};
    return;
  }
  case code::DbVL: {
    x = Gueltigkeit(st.RhoLGrenzen, fluessig);
    const double r1 = RhoL(s, x.Min, false, f1), r2 = RhoL(s, x.Max, false, f2);
    y = r1 > 1e-6 && r2 > 1e-6 ? Umfang(st.MolMasse / r1, st.MolMasse / r2) : b[G::v];
    return;
  }
  case code::DbCpIdGPolynom:
    x = Gueltigkeit(st.CpPolyGrenzen, b[G::T]);
    y = {0, 200};
    return;
  case code::DbCpIdGSinh:
    x = Gueltigkeit(st.CpSinhGrenzen, b[G::T]);
    y = {0, 200};
    return;
  case code::DbCpL:
    x = Gueltigkeit(st.CpLGrenzen, fluessig);
    y = {0, 200};
    return;
  case code::DbCpS:
    x = Gueltigkeit(st.CpSGrenzen, fest);
    y = {0, 2000};
    return;
  case code::DbHLV:
    // at and above the function's own critical temperature delta(LV)h is 0
    x = Gueltigkeit(st.HLVGrenzen, fluessig);
    y = Umfang(HLVFu(s, x.Min, f1), HLVFu(s, x.Max, f2));
    return;
  default: { // the vapour-pressure equations
    const int index = DampfdruckIndexVon(code);
    const TGrenzen* g = DampfdruckGrenzen(st, index);
    x = g ? Gueltigkeit(*g, fluessig) : fluessig;
    // an equation that fails at its upper end stops at the critical point
    const double p1 = pLV(s, x.Min, index, false, f1);
    const double p2 = pLV(s, x.Max, index, false, f2);
    y = Umfang(f1 ? 0 : p1, f2 ? st.pKrit : p2);
  }
  }
}

} // namespace

StandardBereiche BereicheVon(ProjectState& s) {
  StandardBereiche b;
  ZustandsBereiche(s, b);
  KalorischeBereiche(s, b);
  return b;
}

Bereich AnzeigeBereich(Groesse g, Bereich r, const EinheitenGruppe& e) {
  switch (g) {
  case G::T:
  case G::TInversion:
    r = {r.Min * e.TFaktor, r.Max * e.TFaktor};
    break;
  case G::p:
  case G::pInversion:
    r = {r.Min * e.pFaktor, r.Max * e.pFaktor};
    break;
  case G::v:
  case G::PV:
  case G::PVInversion:
    r = {r.Min * e.VolumenFaktor, r.Max * e.VolumenFaktor};
    break;
  case G::InvT:
  case G::InvTAnstieg:
    r = {r.Min / e.TFaktor, r.Max / e.TFaktor};
    break;
  case G::LnP:
    r = {r.Min + std::log(e.pFaktor), r.Max + std::log(e.pFaktor)};
    break;
  default:
    if (IstKalorisch(g)) r = {r.Min * e.EnergieFaktor, r.Max * e.EnergieFaktor};
  }
  r = Umfang(r.Min, r.Max);
  const double rand = Rand * (r.Max - r.Min);
  return {r.Min - rand, r.Max + rand};
}

bool IniStandardBereich(ProjectState& s, const StandardBereiche& b, DiagrammAuftrag& a) {
  const KatalogZeile* z = KatalogZeileVon(a.Code);
  if (!z) return false;
  Bereich x = b[z->X], y = b[z->Y];
  if (z->Klasse == klasse::Datenbank) {
    DatenbankBereich(s, b, a.Code, x, y);
    // a function without values at its ends opens on the quantity's standard
    if (!(x.Max > x.Min) || !std::isfinite(x.Max - x.Min)) x = b[z->X];
    if (!(y.Max > y.Min) || !std::isfinite(y.Max - y.Min)) y = b[z->Y];
  }
  const Bereich X = AnzeigeBereich(z->X, x, s.Einheiten), Y = AnzeigeBereich(z->Y, y, s.Einheiten);
  a.Xmin = static_cast<float>(X.Min);
  a.Xmax = static_cast<float>(X.Max);
  a.Ymin = static_cast<float>(Y.Min);
  a.Ymax = static_cast<float>(Y.Max);
  return true;
}

bool IniStandardBereich(ProjectState& s, DiagrammAuftrag& a) {
  const KatalogZeile* z = KatalogZeileVon(a.Code);
  if (!z) return false;
  // the database functions need no model
  StandardBereiche b;
  if (z->Klasse == klasse::Datenbank)
    ZustandsBereiche(s, b);
  else
    b = BereicheVon(s);
  return IniStandardBereich(s, b, a);
}

} // namespace quor
