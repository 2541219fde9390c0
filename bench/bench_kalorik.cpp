// Speed of the caloric routines that every result page and curve point runs: the residual block of
// one phase, the caloric values of a state (with its exergies and the restoring saturation call) and
// both saturated phases at T. Peng/Robinson methane with the polynomial cp throughout.
#include "core/project_state.h"
#include "dienste/skript_oberflaeche.h"
#include "engine/eos_parameter.h"
#include "engine/kalorik.h"
#include "engine/zustand.h"

#include "bench_stoffe.h"

#include <benchmark/benchmark.h>

namespace {

using namespace quor;

using bench::PengRobinsonMethan;

// The root of the stable phase at (T, p).
double Wurzel(ProjectState& s, double T, double p, int& row) {
  bool istL = false, istV = false;
  double rhoV = 0, rhoL = 0, vV = 0, vL = 0, imbalance = 0, A = 0, B = 0;
  int16_t nRoots = 0, err = 0;
  std::string meldung;
  VzuTP(s, T, p, s.EOS.Gebiet, istL, istV, rhoV, rhoL, vV, vL, nRoots, imbalance, A, B, meldung, err);
  row = istV ? PhaseV : PhaseL;
  return istV ? vV : vL;
}

// Arguments: T and p in thousandths of TKrit and pKrit.
void BM_PhiFunktionen(benchmark::State& state) {
  ProjectState s = PengRobinsonMethan();
  const double T = state.range(0) / 1000.0 * s.Stoff.TKrit, p = state.range(1) / 1000.0 * s.Stoff.pKrit;
  int row = 0;
  const double v = Wurzel(s, T, p, row);
  KalorikTabellen tab;
  int16_t err = 0;
  for (auto _ : state) {
    PhiFunktionen(s, row, T, p, v, tab.Abl1, tab.Abl2, tab.ResFunk, err);
    benchmark::DoNotOptimize(tab.ResFunk[row][10]);
  }
  if (err != 0) state.SkipWithError("PhiFunktionen failed");
}
BENCHMARK(BM_PhiFunktionen)->Args({700, 50})->Args({700, 2000})->Args({1500, 1000});

void BM_ThermoFunktionen(benchmark::State& state) {
  ProjectState s = PengRobinsonMethan();
  const double T = state.range(0) / 1000.0 * s.Stoff.TKrit, p = state.range(1) / 1000.0 * s.Stoff.pKrit;
  int row = 0;
  const double v = Wurzel(s, T, p, row);
  KalorischeWerte w;
  int16_t err = 0;
  for (auto _ : state) {
    ThermoFunktionen(s, T, p, v, row, w, err);
    benchmark::DoNotOptimize(w.eh);
  }
  if (err != 0) state.SkipWithError("ThermoFunktionen failed");
}
BENCHMARK(BM_ThermoFunktionen)->Args({700, 50})->Args({700, 2000})->Args({1500, 1000});

// Argument: T in thousandths of TKrit.
void BM_SaettigungsFunktionen(benchmark::State& state) {
  ProjectState s = PengRobinsonMethan();
  const double T = state.range(0) / 1000.0 * s.Stoff.TKrit;
  SaettigungsWerte erg;
  int16_t err = 0;
  for (auto _ : state) {
    SaettigungsFunktionen(s, T, erg, err);
    benchmark::DoNotOptimize(erg.phase[PhaseV].h);
  }
  if (err != 0) state.SkipWithError("SaettigungsFunktionen failed");
}
BENCHMARK(BM_SaettigungsFunktionen)->Arg(600)->Arg(900)->Arg(990);

} // namespace
