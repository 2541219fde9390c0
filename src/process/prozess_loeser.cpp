#include "process/prozess_loeser.h"

#include "calc/calc_batch.h"
#include "core/rechen_art.h"
#include "engine/kalorik.h"
#include "engine/zustand.h"

#include <cmath>
#include <exception>
#include <string>

namespace quor::prozess {

namespace {

bool DurchCalcBatch(ProjectState& s, ui::Oberflaeche& ui, LoeserKontext& lk, double T, double p, FixGroesse g,
                    int16_t phase, double& wert) {
  ExpDatenSatz& z = s.Mess.ExpDaten.at(0);
  z.T = T;
  z.p = p;
  int16_t punkt = 0;
  double pAus = 0;
  float eta = 0;
  std::string ausgang;
  CalcBatch(s, ui, lk.seite, lk.k, art::Funktionen, punkt, pAus, eta, ausgang);
  if (lk.k.ErrorFlag) return false;
  const int spalte = static_cast<int>(g) + (phase == PhaseL ? ZelleVL : ZelleVV);
  wert = lk.k.Ergebnis[spalte];
  return std::isfinite(wert);
}

// A caloric quantity in engine units; g as h - T s, the way the result cells form it.
double Kalorisch(const KalorischeWerte& w, double T, FixGroesse g) {
  switch (g) {
  case FixGroesse::h:
    return w.h;
  case FixGroesse::s:
    return w.s;
  case FixGroesse::g:
    return w.h - T * w.s;
  case FixGroesse::u:
    return w.u;
  case FixGroesse::a:
    return w.a;
  case FixGroesse::eh:
    return w.eh;
  default:
    return w.eu;
  }
}

bool Direkt(ProjectState& s, double T, double p, FixGroesse g, int16_t phase, double& wert) {
  bool istL = false, istV = false;
  double rhoV = 0, rhoL = 0, vV = 0, vL = 0, imbalance = 0, A = 0, B = 0;
  int16_t nRoots = 0, err = 0;
  std::string meldung;
  VzuTP(s, T, p, s.EOS.Gebiet, istL, istV, rhoV, rhoL, vV, vL, nRoots, imbalance, A, B, meldung, err);
  if (err != 0) return false;
  wert = 0;
  if (!(phase == PhaseL ? istL : istV)) return true;
  const double v = phase == PhaseL ? vL : vV;
  if (g == FixGroesse::v) {
    wert = v;
    return std::isfinite(wert);
  }
  KalorischeWerte w;
  int16_t fehler = 0;
  ThermoFunktionen(s, T, p, v, phase, w, fehler);
  wert = Kalorisch(w, T, g);
  return std::isfinite(wert);
}

} // namespace

bool FixWertBei(ProjectState& s, ui::Oberflaeche& ui, LoeserKontext& lk, double T, double p, FixGroesse g,
                int16_t phase, double& wert) {
  ++lk.aufrufe;
  try {
    if (lk.art == Auswertung::Direkt) {
      s.Mess.ExpDaten.at(0).T = T;
      s.Mess.ExpDaten.at(0).p = p;
      return Direkt(s, T, p, g, phase, wert);
    }
    return DurchCalcBatch(s, ui, lk, T, p, g, phase, wert);
  } catch (const std::exception&) {
    return false;
  }
}

void ProzessLoeser(ProjectState& s, ui::Oberflaeche& ui, LoeserKontext& lk, bool variableT, FixGroesse g,
                   int16_t phase, double ziel, int16_t& fehler) {
  fehler = -1;
  ExpDatenSatz zeile = s.Mess.ExpDaten.at(0);
  const double d0 = variableT ? 1e-4 : 0.0005;
  double d = d0;
  double x = variableT ? zeile.T : zeile.p;
  auto F = [&](double wert, double& f) {
    return variableT ? FixWertBei(s, ui, lk, wert, zeile.p, g, phase, f)
                     : FixWertBei(s, ui, lk, zeile.T, wert, g, phase, f);
  };
  for (int runde = 0; runde < 500; ++runde) {
    double f = 0, f2 = 0;
    if (!F(x, f) || !F(x + d, f2)) break;
    const double steigung = (f2 - f) / d;
    if (steigung == 0) {
      d = 50 * d0;
      continue;
    }
    const double dx = (f - ziel) / steigung;
    x -= dx;
    if (x < 0) x *= -2;
    if (!std::isfinite(x) || std::fabs(x) > 1e9 || std::fabs(f) > 1e9) break;
    if (std::fabs(dx / x) < 1.5e-6) {
      fehler = 0;
      break;
    }
    if (std::fabs(dx) < d) d = std::fabs(dx);
  }
  (variableT ? zeile.T : zeile.p) = std::isfinite(x) ? x : 0;
  s.Mess.ExpDaten.at(0) = zeile;
}

} // namespace quor::prozess
