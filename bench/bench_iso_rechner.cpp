// Speed of one answer of the iso-line calculator: methane vapour (Peng/Robinson, polynomial ideal-gas
// cp) from the page's state at 300 K, 2000 kPa, the entropy held, the pressure found at 250 K through
// the calculation dispatcher (kind 8), with the check of the solution. A counter gives the
// dispatcher calls of one answer.
#include "calc/calc_batch.h"
#include "core/rechen_art.h"
#include "process/iso_rechner.h"

#include "bench_stoffe.h"

#include <benchmark/benchmark.h>

namespace {

using namespace quor;

void BM_IsoRechnerEntropie(benchmark::State& state) {
  ProjectState s = bench::PengRobinsonMethan();
  ui::SkriptOberflaeche ui;
  ErgebnisSeite seite;
  RechenKontext k;
  int16_t punkt = 0;
  double p = 0;
  float eta = 0;
  std::string ausgang;
  int aufrufe = 0;
  for (auto _ : state) {
    s.Mess.ExpDaten.at(0).T = 300;
    s.Mess.ExpDaten.at(0).p = 2000;
    CalcBatch(s, ui, seite, k, art::Funktionen, punkt, p, eta, ausgang);
    prozess::frmIsoCalc iso(s, ui, k);
    iso.Form_Load();
    iso.OptIsoFu_Click(2);
    iso.txtTpVorgabe = "250";
    const int vorher = static_cast<int>(ui.protokoll.size());
    iso.cmdCalc_Click();
    if (!iso.Geloest || static_cast<int>(ui.protokoll.size()) != vorher) state.SkipWithError("no solution");
    aufrufe = iso.Auswertungen();
    benchmark::DoNotOptimize(s.Mess.ExpDaten.at(0).p);
  }
  state.counters["evaluations"] = aufrufe;
}
BENCHMARK(BM_IsoRechnerEntropie)->Unit(benchmark::kMicrosecond);

} // namespace
