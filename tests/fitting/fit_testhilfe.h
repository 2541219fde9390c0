// Shared set-up of the fitting tests: points from a function, a state with a model chosen, and the
// dialog over a scripted interface with measured rows sent as the measured-data editor sends a column.
#pragma once

#include "core/project_state.h"
#include "dienste/skript_oberflaeche.h"
#include "fitting/fit_daten.h"
#include "fitting/fit_lauf.h"
#include "fitting/fit_modelle.h"
#include "fitting/fitting_dialog.h"

#include <cstdint>
#include <functional>
#include <random>
#include <string>
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

struct FitDialog {
  ProjectState s;
  ui::SkriptOberflaeche ui;
  frmQFitting f{s, ui};

  // Rows T = von .. bis (n of them) with the column `spalte` (1 p ... 5 cp) from y(T), sent to the
  // dialog.
  void SendeSpalte(int16_t spalte, const std::function<double(double)>& y, double von, double bis, int n) {
    s.Mess.ExpDaten.assign(1, ExpDatenSatz{});
    for (int i = 0; i < n; ++i) {
      ExpDatenSatz z;
      z.T = von + (bis - von) * i / (n - 1);
      const auto w = static_cast<float>(y(z.T));
      if (spalte == tprho::p) z.p = w;
      if (spalte == tprho::RhoL) z.RhoL = w;
      if (spalte == tprho::HLV) z.HLV = w;
      if (spalte == tprho::Cp) z.Cp = w;
      s.Mess.ExpDaten.push_back(z);
    }
    s.Mess.ExpAnzahl = static_cast<int16_t>(n);
    f.DatenLaden(FitUebergabeVon(spalte));
  }

  // The model's value with parameters as the user sees them, evaluated by the model function alone.
  static double Modell(int16_t modell, bool lg, const FitParameter& P, double x, double Tcr = 0,
                       double pcr = 0) {
    EOSGruppe eos;
    double y = 0;
    ModellWert(eos, {modell, LogFaktor(modell, lg), Tcr, pcr}, P, x, y);
    return y;
  }

  std::string LetzteMeldung() const { return ui.Meldungen().empty() ? "" : ui.Meldungen().back().text; }
  std::string LetzterTitel() const { return ui.Meldungen().empty() ? "" : ui.Meldungen().back().titel; }
};

} // namespace quor::test
