// Speed of one call of the calculation dispatcher as the result page makes it: T, p => rho (kind 3)
// and the functions of kind 8 with every further block (fugacity, mechanical coefficients,
// derivatives with the inflection points, thermodynamic functions, EOS parameters). Peng/Robinson
// methane with the polynomial ideal-gas cp.
#include "calc/calc_batch.h"
#include "core/project_state.h"
#include "engine/eos_parameter.h"
#include "ui/skript_oberflaeche.h"

#include <benchmark/benchmark.h>

namespace {

using namespace quor;

ProjectState Methan() {
  ProjectState s;
  InitProjectState(s);
  s.Stoff.StoffName = "Methan";
  s.Stoff.MolMasse = 16.043f;
  s.Stoff.TSiede = 111.66f;
  s.Stoff.TKrit = 190.564;
  s.Stoff.pKrit = 4599.2;
  s.Stoff.omega = 0.0114;
  s.Stoff.CpPoly = {37.980f, -0.074622f, 3.0190e-4f, -2.8327e-7f, 9.0711e-11f};
  s.Modell.CpIndex = 1;
  s.Modell.EOSIndex = 6;
  s.Modell.VirialFlag = false;
  ui::SkriptOberflaeche ui;
  int16_t err = 0;
  EOSParameterSetup(s, ui, 6, err);
  return s;
}

// Arguments: T in K and p in kPa of the direct input.
void Rechne(benchmark::State& state, int16_t art, int16_t abschnitte, bool mitFunktionen) {
  ProjectState s = Methan();
  s.Mess.ExpDaten[0].T = static_cast<double>(state.range(0));
  s.Mess.ExpDaten[0].p = static_cast<double>(state.range(1));
  ui::SkriptOberflaeche ui;
  ErgebnisSeite seite;
  RechenKontext k;
  k.Abschnitte = abschnitte;
  k.MitFunktionen = mitFunktionen;
  int16_t punkt = 0;
  double p = 0;
  float eta = 0;
  std::string ausgang;
  for (auto _ : state) {
    CalcBatch(s, ui, seite, k, art, punkt, p, eta, ausgang);
    benchmark::DoNotOptimize(k.Ergebnis.data());
  }
  if (k.ErrorFlag) state.SkipWithError("the state has no result");
}

void BM_CalcBatchArt3(benchmark::State& state) {
  Rechne(state, 3, 1, false);
}
// Vapour inside the loop, compressed liquid, supercritical fluid.
BENCHMARK(BM_CalcBatchArt3)->Args({150, 500})->Args({120, 2000})->Args({250, 6000});

void BM_CalcBatchArt8AlleBloecke(benchmark::State& state) {
  Rechne(state, 8, 4, true);
}
BENCHMARK(BM_CalcBatchArt8AlleBloecke)->Args({150, 500})->Args({120, 2000})->Args({250, 6000});

} // namespace
