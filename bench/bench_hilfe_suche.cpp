// The help search as the window runs it on every key: all pages of the help folder read, stripped
// and counted; and the plain text of the longest page alone.
#include "core/datei_io.h"
#include "core/hilfe_suche.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

const std::string HilfeOrdner = QUOR_HILFESEITEN;

void BM_HilfeSucheEinWort(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(quor::SucheInHilfe(HilfeOrdner, "Behälter"));
}
BENCHMARK(BM_HilfeSucheEinWort)->Unit(benchmark::kMicrosecond);

void BM_HilfeSucheDreiWoerter(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(quor::SucheInHilfe(HilfeOrdner, "Isochoren Konnode Koexistenzkurve"));
}
BENCHMARK(BM_HilfeSucheDreiWoerter)->Unit(benchmark::kMicrosecond);

void BM_HilfeSeitenText(benchmark::State& state) {
  std::string html;
  quor::LeseDateiBytes(HilfeOrdner + "/45100.html", html);
  for (auto _ : state)
    benchmark::DoNotOptimize(quor::HilfeSeitenText(html));
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(html.size()));
}
BENCHMARK(BM_HilfeSeitenText)->Unit(benchmark::kMicrosecond);

} // namespace
