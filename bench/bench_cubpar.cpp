// One run of the parameter program as the set-up waits for it: the process started in a program
// directory with the substance's "jipar.tmp", its fit, and its parameter file written.
#include "core/datei_io.h"
#include "dienste/kind_prozess.h"
#include "engine/varnik_ji.h"
#include "substance/datenbank.h"
#include "substance/stoff_laden.h"

#include <benchmark/benchmark.h>

#include <stdlib.h>

#include <cstdlib>
#include <filesystem>

namespace {

std::filesystem::path ProgrammVerzeichnis() {
  std::error_code fehler;
  const std::filesystem::path exe = std::filesystem::read_symlink("/proc/self/exe", fehler);
  return exe.parent_path().parent_path() / "bin";
}

// A scratch directory with "jipar.tmp" of substance `cas` for model `modell`.
std::string Vorbereitet(const std::string& cas, int16_t modell) {
  quor::ProjectState s;
  quor::InitProjectState(s);
  int16_t failed = 0;
  bool leer = false;
  quor::LadeDatenbank(s, 7, (ProgrammVerzeichnis() / "QUOR.Q07").string(), failed, leer);
  for (int k = 1; k <= s.Datenbank.StoffAnzahl; ++k)
    if (s.Datenbank.CASListe[k] == cas) quor::LadeStoff(s, k, failed);
  s.Modell.EOSIndex = modell;
  std::string dir = (std::filesystem::temp_directory_path() / "quor_bench_XXXXXX").string();
  if (mkdtemp(dir.data()) == nullptr) return std::string();
  quor::SchreibeDateiBytes(dir + "/jipar.tmp", quor::JiParDateiBytes(s));
  return dir;
}

bool LaufeCubpar(const std::string& programm, const std::string& dir) {
  quor::ui::ProzessAuftrag auftrag;
  auftrag.programm = programm;
  auftrag.arbeitsVerzeichnis = dir;
  const quor::ui::ProzessStatus status = quor::ui::StarteKindProzess(auftrag);
  return status.ergebnis == quor::ui::ProzessErgebnis::Beendet && status.exitCode == 0;
}

// Arguments: model (7, 8) and substance (0 methane, 1 water).
void BM_CubparLauf(benchmark::State& state) {
  const int16_t modell = static_cast<int16_t>(state.range(0));
  const std::string dir = Vorbereitet(state.range(1) == 0 ? "74-82-8" : "7732-18-5", modell);
  const std::string programm = (ProgrammVerzeichnis() / "cubpar").string();
  for (auto _ : state) {
    if (!LaufeCubpar(programm, dir)) {
      state.SkipWithError("cubpar failed");
      break;
    }
  }
  std::error_code fehler;
  std::filesystem::remove_all(dir, fehler);
}
BENCHMARK(BM_CubparLauf)
    ->Args({7, 0})
    ->Args({8, 0})
    ->Args({7, 1})
    ->Args({8, 1})
    ->Unit(benchmark::kMillisecond);

} // namespace
