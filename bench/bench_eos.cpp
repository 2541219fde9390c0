// Speed of the EOS solvers that every result page and curve point runs: v(T,p) in its three kinds
// of state, the saturation pressure from low T to just below TKrit, and the saturation temperature
// by its secant and its scanning search. Peng/Robinson methane throughout.
#include "core/project_state.h"
#include "dienste/skript_oberflaeche.h"
#include "engine/eos_parameter.h"
#include "engine/saettigung.h"
#include "engine/zustand.h"

#include "bench_stoffe.h"

#include <benchmark/benchmark.h>

namespace {

using namespace quor;

using bench::PengRobinsonMethan;

// Arguments: T and p in thousandths of TKrit and pKrit.
void BM_VzuTP(benchmark::State& state) {
  ProjectState s = PengRobinsonMethan();
  const double T = state.range(0) / 1000.0 * s.Stoff.TKrit;
  const double p = state.range(1) / 1000.0 * s.Stoff.pKrit;
  bool istL = false, istV = false;
  double rhoV = 0, rhoL = 0, vV = 0, vL = 0, imbalance = 0, A = 0, B = 0;
  int16_t nRoots = 0, err = 0;
  std::string meldung;
  for (auto _ : state) {
    VzuTP(s, T, p, s.EOS.Gebiet, istL, istV, rhoV, rhoL, vV, vL, nRoots, imbalance, A, B, meldung, err);
    benchmark::DoNotOptimize(vV);
    benchmark::DoNotOptimize(vL);
  }
}
BENCHMARK(BM_VzuTP)->Name("VzuTP/Dampf")->Args({950, 100});
BENCHMARK(BM_VzuTP)->Name("VzuTP/Fluessig")->Args({700, 600});
BENCHMARK(BM_VzuTP)->Name("VzuTP/DreiWurzeln")->Args({900, 300});

// Argument: T in thousandths of TKrit.
void BM_pLVbeiT(benchmark::State& state) {
  ProjectState s = PengRobinsonMethan();
  const double T = state.range(0) / 1000.0 * s.Stoff.TKrit;
  double imbalance = 0, A = 0, B = 0;
  int16_t err = 0;
  for (auto _ : state)
    benchmark::DoNotOptimize(pLVbeiT(s, T, imbalance, A, B, err));
  if (err != 0) state.SkipWithError("pLVbeiT failed");
}
BENCHMARK(BM_pLVbeiT)->Arg(500)->Arg(700)->Arg(900)->Arg(990);

// Argument: p in thousandths of pKrit; 300 takes the secant search, 10 the scanning search.
void BM_TLVbeiP(benchmark::State& state) {
  ProjectState s = PengRobinsonMethan();
  const double p = state.range(0) / 1000.0 * s.Stoff.pKrit;
  double imbalance = 0, A = 0, B = 0, ohneStart = 0;
  int16_t err = 0;
  for (auto _ : state)
    benchmark::DoNotOptimize(TLVbeiP(s, p, imbalance, A, B, ohneStart, err));
  if (err != 0) state.SkipWithError("TLVbeiP failed");
}
BENCHMARK(BM_TLVbeiP)->Name("TLVbeiP/Sekante")->Arg(300);
BENCHMARK(BM_TLVbeiP)->Name("TLVbeiP/Abtastung")->Arg(10);

} // namespace
