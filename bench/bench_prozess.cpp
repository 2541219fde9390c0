// Speed of a homogeneous process line: the isentrope of methane vapour (Peng/Robinson, polynomial
// ideal-gas cp) from 300 K, 1000 kPa down to 200 K in 166 steps (167 points). The solver evaluates
// the entropy twice per round: through the calculation dispatcher (kind 8, as the page does it) or
// straight from the state solver and the caloric functions; both give the same states. A counter
// gives the evaluations per line.
#include "process/prozess_linie.h"

#include "bench_stoffe.h"

#include <benchmark/benchmark.h>

namespace {

using namespace quor;

void Isentrope(benchmark::State& state, prozess::Auswertung art) {
  ProjectState s = bench::PengRobinsonMethan();
  ui::SkriptOberflaeche ui;
  prozess::ProzessVorgabe v;
  v.ProzessArt = prozess::Isentrope;
  v.ProzessBereich = prozess::BereichT;
  v.T1 = 300;
  v.P1 = 1000;
  v.Ende = 200;
  v.Schritte = 166;
  v.auswertung = art;
  int aufrufe = 0;
  for (auto _ : state) {
    const prozess::ProzessLinie l = prozess::BerechneProzessLinie(s, ui, v);
    if (l.fehler != 0 || l.punkte.size() != 167) state.SkipWithError("the line is not complete");
    aufrufe = l.aufrufe;
    benchmark::DoNotOptimize(l.punkte.data());
  }
  state.counters["evaluations"] = aufrufe;
}

void BM_IsentropeCalcBatch(benchmark::State& state) {
  Isentrope(state, prozess::Auswertung::CalcBatch);
}
BENCHMARK(BM_IsentropeCalcBatch)->Unit(benchmark::kMillisecond);

void BM_IsentropeDirekt(benchmark::State& state) {
  Isentrope(state, prozess::Auswertung::Direkt);
}
BENCHMARK(BM_IsentropeDirekt)->Unit(benchmark::kMillisecond);

} // namespace
