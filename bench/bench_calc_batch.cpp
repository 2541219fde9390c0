// Speed of one call of the calculation dispatcher as the result page makes it: T, p => rho (kind 3)
// and the functions of kind 8 with every further block (fugacity, mechanical coefficients,
// derivatives with the inflection points, thermodynamic functions, EOS parameters). Peng/Robinson
// methane with the polynomial ideal-gas cp.
#include "calc/calc_batch.h"
#include "core/project_state.h"
#include "dienste/skript_oberflaeche.h"
#include "engine/eos_parameter.h"

#include "bench_stoffe.h"

#include <benchmark/benchmark.h>

namespace {

using namespace quor;

using bench::PengRobinsonMethan;

// Arguments: T in K and p in kPa of the direct input.
void Rechne(benchmark::State& state, int16_t art, int16_t abschnitte, bool mitFunktionen) {
  ProjectState s = PengRobinsonMethan();
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
