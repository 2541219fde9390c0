// Speed of the 3D surfaces on propane with Peng/Robinson over their standard ranges: cp(p, T) on a
// grid of 100 x 100 steps (the spike at the critical point included), the real p(v, T) surface with its
// saturation plane, and the page's default 60 x 60 steps of h(p, T).
#include "diagrams/diagramm3d_art.h"
#include "diagrams/graph3d.h"

#include "bench_stoffe.h"

#include <benchmark/benchmark.h>

namespace {

using namespace quor;

void Flaeche(benchmark::State& state, int16_t art, bool reales) {
  ProjectState s = bench::PengRobinsonPropan();
  const int n = static_cast<int>(state.range(0));
  const Bereich3D b = IniStandardBereich3D(s, art, reales);
  std::size_t gueltig = 0;
  for (auto _ : state) {
    const Gitter3D g = FlaecheBerechnen(s, art, n, n, b, reales);
    benchmark::DoNotOptimize(g.Z.data());
    gueltig = 0;
    for (const auto& zeile : g.Gueltig)
      for (const bool z : zeile)
        gueltig += z;
  }
  state.counters["cells"] = static_cast<double>(gueltig);
}

void BM_FlaecheCpPropan(benchmark::State& state) {
  Flaeche(state, art3d::Cp, true);
}
BENCHMARK(BM_FlaecheCpPropan)->Arg(100)->Unit(benchmark::kMillisecond);

void BM_FlaecheDruckRealPropan(benchmark::State& state) {
  Flaeche(state, art3d::Druck, true);
}
BENCHMARK(BM_FlaecheDruckRealPropan)->Arg(60)->Unit(benchmark::kMillisecond);

void BM_FlaecheEnthalpiePropan(benchmark::State& state) {
  Flaeche(state, art3d::H, true);
}
BENCHMARK(BM_FlaecheEnthalpiePropan)->Arg(60)->Unit(benchmark::kMillisecond);

} // namespace
