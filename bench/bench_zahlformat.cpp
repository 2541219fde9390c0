// Speed of the number texts that fill result pages, lists and exchange files.
#include "core/zahlformat.h"

#include <benchmark/benchmark.h>

namespace {

void BM_FormatVBFest(benchmark::State& state) {
  double t = 298.15;
  for (auto _ : state) {
    benchmark::DoNotOptimize(quor::FormatVB(t, "###0.000 K"));
    t += 0.001;
  }
}
BENCHMARK(BM_FormatVBFest);

void BM_FormatVBOptionaleStellen(benchmark::State& state) {
  double v = 0.0821;
  for (auto _ : state) {
    benchmark::DoNotOptimize(quor::FormatVB(v, "##0.000###"));
    v += 1e-7;
  }
}
BENCHMARK(BM_FormatVBOptionaleStellen);

void BM_FormatVBExponent(benchmark::State& state) {
  double v = -1234.5678;
  for (auto _ : state) {
    benchmark::DoNotOptimize(quor::FormatVB(v, " 0.0000E+00;-0.0000E+00"));
    v *= -1.0001;
  }
}
BENCHMARK(BM_FormatVBExponent);

void BM_FormatVBExponentOhneVorkomma(benchmark::State& state) {
  double v = 101.325;
  for (auto _ : state) {
    benchmark::DoNotOptimize(quor::FormatVB(v, ".0000000E+00"));
    v *= 1.0001;
  }
}
BENCHMARK(BM_FormatVBExponentOhneVorkomma);

void BM_SingleText(benchmark::State& state) {
  float x = 0.001234f;
  for (auto _ : state) {
    benchmark::DoNotOptimize(quor::SingleText(x));
    x *= 1.01f;
    if (x > 1e30f) x = 0.001234f;
  }
}
BENCHMARK(BM_SingleText);

} // namespace
