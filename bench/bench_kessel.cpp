// Speed of the vessel picture: the segment solve of one fill level (bisection of a - sin a on
// [0, 2 pi]), and a whole vessel of methane (Peng/Robinson) at 150 K: the dispatcher's kind 9 with the
// picture's logic taking its state.
#include "calc/calc_batch.h"
#include "core/rechen_art.h"
#include "process/kessel.h"

#include "bench_stoffe.h"

#include <benchmark/benchmark.h>

namespace {

using namespace quor;

void BM_KesselSegmentWinkel(benchmark::State& state) {
  double anteil = 0.1;
  for (auto _ : state) {
    benchmark::DoNotOptimize(prozess::frmKessel::HoeheVon(anteil));
    anteil = anteil > 99.8 ? 0.1 : anteil + 0.7;
  }
}
BENCHMARK(BM_KesselSegmentWinkel);

void BM_KesselMethan(benchmark::State& state) {
  ProjectState s = bench::PengRobinsonMethan();
  ui::SkriptOberflaeche ui;
  ErgebnisSeite seite;
  RechenKontext k;
  BehaelterZustand gezeigt;
  k.BehaelterAnzeige = [&](const BehaelterZustand& z) { gezeigt = z; };
  k.Behaelter = {100, 1, 150};
  s.Modell.RechnungGlobal = true;
  int16_t punkt = 0;
  double p = 0;
  float eta = 0;
  std::string ausgang;
  for (auto _ : state) {
    CalcBatch(s, ui, seite, k, art::BehaelterGlobal, punkt, p, eta, ausgang);
    prozess::frmKessel kessel(s, gezeigt);
    kessel.Form_Load();
    if (kessel.lblFuellstand.empty()) state.SkipWithError("no fill level");
    benchmark::DoNotOptimize(kessel.Hoehe);
  }
}
BENCHMARK(BM_KesselMethan);

} // namespace
