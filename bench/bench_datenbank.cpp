// Opening the default database, loading one substance, and the vapour-pressure equations per call.
#include "engine/korrelationen.h"
#include "substance/datenbank.h"
#include "substance/korrelierte_parameter.h"
#include "substance/stoff_laden.h"

#include <benchmark/benchmark.h>

#include <filesystem>

namespace {

// The default database beside the programs: bin/ next to the benchmark's own folder.
std::string StandardDatenbank() {
  std::error_code fehler;
  const std::filesystem::path exe = std::filesystem::read_symlink("/proc/self/exe", fehler);
  return (exe.parent_path().parent_path() / "bin" / "QUOR.Q07").string();
}

// The default database opened and `cas` loaded, with the correlated sets computed.
bool Geladen(quor::ProjectState& s, const std::string& cas) {
  quor::InitProjectState(s);
  int16_t failed = 0;
  bool leer = false;
  quor::LadeDatenbank(s, 7, StandardDatenbank(), failed, leer);
  if (failed != 0 || leer) return false;
  for (int k = 1; k <= s.Datenbank.StoffAnzahl; ++k) {
    if (s.Datenbank.CASListe[k] != cas) continue;
    quor::LadeStoff(s, k, failed);
    const quor::StoffGruppe& st = s.Stoff;
    for (int index = 5; index <= 8; ++index)
      quor::KorrelierteParameter(s, index, st.TKrit, st.pKrit, st.TSiede);
    return true;
  }
  return false;
}

void BM_DatenbankOeffnen(benchmark::State& state) {
  const std::string pfad = StandardDatenbank();
  for (auto _ : state) {
    quor::ProjectState s;
    int16_t failed = 0;
    bool leer = false;
    quor::LadeDatenbank(s, 7, pfad, failed, leer);
    if (failed != 0) state.SkipWithError("default database missing");
    benchmark::DoNotOptimize(s.Datenbank.StoffAnzahl);
  }
}
BENCHMARK(BM_DatenbankOeffnen)->Unit(benchmark::kMillisecond);

void BM_StoffLaden(benchmark::State& state) {
  quor::ProjectState s;
  if (!Geladen(s, "7732-18-5")) state.SkipWithError("default database missing");
  int16_t failed = 0;
  for (auto _ : state) {
    quor::LadeStoff(s, 1, failed);
    benchmark::DoNotOptimize(s.Stoff.AugustA);
  }
}
BENCHMARK(BM_StoffLaden);

// pLV of water at 350 K by equation: 1 and 2 Antoine, 3 Frost/Kalkwarf explicit, 4 Wagner,
// 5 August, 6 and 7 Frost/Kalkwarf with the E term (Newton), 8 Thompson.
void BM_pLV(benchmark::State& state) {
  quor::ProjectState s;
  if (!Geladen(s, "7732-18-5")) state.SkipWithError("default database missing");
  const int index = static_cast<int>(state.range(0));
  int16_t failed = 0;
  double T = 350;
  for (auto _ : state) {
    benchmark::DoNotOptimize(T);
    benchmark::DoNotOptimize(quor::pLV(s, T, index, false, failed));
  }
  if (failed != 0) state.SkipWithError("pLV failed");
}
BENCHMARK(BM_pLV)->DenseRange(1, 8);

// The inverse, for the same equations at 50 kPa.
void BM_TLV(benchmark::State& state) {
  quor::ProjectState s;
  if (!Geladen(s, "7732-18-5")) state.SkipWithError("default database missing");
  const int index = static_cast<int>(state.range(0));
  int16_t failed = 0;
  double p = 50;
  for (auto _ : state) {
    benchmark::DoNotOptimize(p);
    benchmark::DoNotOptimize(quor::TLV(s, p, index, false, failed));
  }
  if (failed != 0) state.SkipWithError("TLV failed");
}
BENCHMARK(BM_TLV)->DenseRange(1, 8);

} // namespace
