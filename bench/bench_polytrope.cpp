// One round trip of the polytrope exchange as the process page waits for it: TO_PEX.DAT written, the
// calculator started in a program directory, FROM_PEX.DAT read. Methane with Peng/Robinson from
// 300 K, 1000 kPa to 5000 kPa with n = 1.3 and 166 points on the p - T diagram, with the ideal gas
// (argument 2) and with the equation of state (argument 1).
#include "dienste/kind_prozess.h"
#include "process/polytrope_austausch.h"

#include "bench_stoffe.h"

#include <benchmark/benchmark.h>

#include <stdlib.h>

#include <filesystem>

namespace {

namespace fs = std::filesystem;

fs::path ProgrammVerzeichnis() {
  std::error_code fehler;
  const fs::path exe = fs::read_symlink("/proc/self/exe", fehler);
  return exe.parent_path().parent_path() / "bin";
}

void BM_PolytropeAustausch(benchmark::State& state) {
  using namespace quor;
  std::string dir = (fs::temp_directory_path() / "quor_bench_XXXXXX").string();
  if (mkdtemp(dir.data()) == nullptr) {
    state.SkipWithError("no scratch directory");
    return;
  }
  std::error_code ec;
  fs::create_symlink(ProgrammVerzeichnis() / prozess::PexProgramm, fs::path(dir) / prozess::PexProgramm, ec);
  ProjectState s = bench::PengRobinsonMethan();
  s.Datenbank.ProgrammVerzeichnis = dir;
  ui::SkriptOberflaeche ui;
  ui.prozessAusfuehren = ui::StarteKindProzess;
  prozess::PolytropenAnfrage a;
  a.T1 = 300, a.p1 = 1000, a.ProzessBereich = 0, a.Ende = 5000;
  a.PolytropenExponent = 1.3, a.Kappa = 1.3, a.PolytropenModus = static_cast<int16_t>(state.range(0));
  a.diagrammCode = 5;
  a.punktAnzahl = 166;
  for (auto _ : state) {
    prozess::PolytropenErgebnis r;
    int16_t err = 0;
    prozess::PolytropeRechnen(s, ui, a, r, err);
    if (err != 0 || r.X.size() != 166) state.SkipWithError("the exchange failed");
    benchmark::DoNotOptimize(r.X.data());
  }
  fs::remove_all(dir, ec);
}
BENCHMARK(BM_PolytropeAustausch)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

} // namespace
