// Shared by the tests of the fitting dialog: the dialog over a scripted interface, measured rows
// generated from a model function and sent as the measured-data editor sends a column.
#pragma once

#include "dienste/skript_oberflaeche.h"
#include "fit_testhilfe.h"
#include "fitting/fit_modelle.h"
#include "fitting/fitting_dialog.h"

#include <functional>
#include <string>
#include <vector>

namespace quor::test {

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
