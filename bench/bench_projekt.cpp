// Writing a project's text, and loading a project against the default database: with the database
// read again from its file (as every load does) and with the database already held.
#include "core/projekt_datei.h"
#include "dienste/skript_oberflaeche.h"
#include "substance/datenbank.h"
#include "substance/projekt_laden.h"
#include "substance/stoff_laden.h"
#include "substance/stoff_wahl_suche.h"

#include <benchmark/benchmark.h>

#include <filesystem>

namespace {

std::string StandardDatenbank() {
  std::error_code fehler;
  const std::filesystem::path exe = std::filesystem::read_symlink("/proc/self/exe", fehler);
  return (exe.parent_path().parent_path() / "bin" / "QUOR.Q07").string();
}

// The default database open and ethanol loaded with a full model choice.
quor::ProjectState Projekt() {
  quor::ProjectState s;
  quor::InitProjectState(s);
  int16_t failed = 0;
  bool leer = false;
  quor::LadeDatenbank(s, 7, StandardDatenbank(), failed, leer);
  quor::LadeStoff(s, quor::IndexVonCAS(s, "64-17-5"), failed);
  s.Modell.EOSIndex = 6;
  s.Modell.DampfdruckIndex = 8;
  s.Modell.HLVIndex = 2;
  s.Modell.CpIndex = 1;
  return s;
}

void BM_ProjektText(benchmark::State& state) {
  const quor::ProjectState s = Projekt();
  for (auto _ : state)
    benchmark::DoNotOptimize(quor::ProjektText(s, "01.01.2024 00:00:00"));
}
BENCHMARK(BM_ProjektText);

void Laden(benchmark::State& state, bool bankLesen) {
  quor::ProjectState s = Projekt();
  std::string text = quor::ProjektText(s, "01.01.2024 00:00:00");
  if (!bankLesen) text.replace(text.find("QUOR.Q07"), 8, "QUOR.Q0X"); // no kind: the held database
  quor::ui::SkriptOberflaeche ui;
  std::string batch;
  int16_t kind = 0, failed = 0;
  for (auto _ : state) {
    quor::ProjektLadenAusBytes(s, "bench.QC6", text, batch, kind, failed, ui);
    if (failed != 0) state.SkipWithError("load failed");
  }
}

void BM_ProjektLadenMitDatenbank(benchmark::State& state) {
  Laden(state, true);
}
BENCHMARK(BM_ProjektLadenMitDatenbank);

void BM_ProjektLadenGehalteneDatenbank(benchmark::State& state) {
  Laden(state, false);
}
BENCHMARK(BM_ProjektLadenGehalteneDatenbank);

} // namespace
