// Shared set-up of the fitting engine's tests: points from a function, a state with a model chosen.
#pragma once

#include "core/project_state.h"
#include "fitting/fit_daten.h"
#include "fitting/fit_lauf.h"
#include "fitting/fit_modelle.h"

#include <cstdint>
#include <functional>
#include <random>
#include <vector>

namespace quor::test {

// n points y = f(x) at x = von .. bis, evenly spaced, stored as the fit stores them (float).
inline std::vector<FitPunkt> Punkte(const std::function<double(double)>& f, double von, double bis, int n) {
  std::vector<FitPunkt> p;
  for (int i = 0; i < n; ++i) {
    const double x = von + (bis - von) * i / (n - 1);
    p.push_back({static_cast<float>(x), static_cast<float>(f(x)), FlagAktiv});
  }
  return p;
}

// Multiplies each y by (1 + u * relativ), u uniform in [-1, 1) from a generator with a fixed seed;
// the mapping of the raw 32-bit numbers is written out so that every library gives the same noise.
inline void Rauschen(std::vector<FitPunkt>& p, double relativ, uint32_t saat) {
  std::mt19937 gen(saat);
  for (FitPunkt& q : p) {
    const double u = gen() / 2147483648.0 - 1.0;
    q.y = static_cast<float>(q.y * (1 + u * relativ));
  }
}

// A state with the points taken over and the model chosen as the dialog does it.
inline FitZustand Zustand(const std::vector<FitPunkt>& p, int16_t modell, bool lg = false, double Tcr = 0,
                          double pcr = 0) {
  FitZustand z;
  FitDatenSetzen(z, p, QuelleXYEditor);
  ModellWaehlen(z, modell, lg, Tcr, pcr);
  return z;
}

// The sum of squares of the points for parameters P as the user sees them, for the state's model
// and options; evaluated independently of the fit's own residual routine.
inline double Quadratsumme(const FitZustand& z, const FitParameter& P) {
  EOSGruppe eos;
  const ModellKonstanten k{z.FitModell, LogFaktor(z.FitModell, z.Lg), z.FitTcr, z.FitPcr};
  double S = 0;
  for (const FitPunkt& p : z.FitDaten) {
    if (p.Flag == FlagInaktiv) continue;
    double y = 0;
    ModellWert(eos, k, P, p.x, y);
    const double r = z.FitLog ? std::log(y) - std::log(double(p.y)) : y - p.y;
    S += r * r;
  }
  return S;
}

} // namespace quor::test
