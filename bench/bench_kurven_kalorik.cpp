// Speed of the caloric curves on propane with Peng/Robinson and 500 points a curve: the inversion
// curve over T and in p*v over p, the enthalpy along the boiling line, the h-s isotherm through the
// two-phase region and u over T on an isochor inside it.
#include "diagrams/diagramm_codes.h"
#include "diagrams/kurven.h"

#include "bench_stoffe.h"

#include <benchmark/benchmark.h>

namespace {

using namespace quor;

struct Anfrage {
  int16_t code, klasse;
  float xmin, xmax, ymin, ymax;
  double T = 0, p = 0, v = 0;
};

void Kurve(benchmark::State& state, const Anfrage& f, bool realverhalten = false) {
  ProjectState s = bench::PengRobinsonPropan();
  s.Diagramm.MitRealverhalten = realverhalten;
  ui::SkriptOberflaeche ui;
  DiagrammAuftrag a;
  a.Code = f.code;
  a.Klasse = f.klasse;
  a.Xmin = f.xmin;
  a.Xmax = f.xmax;
  a.Ymin = f.ymin;
  a.Ymax = f.ymax;
  std::size_t n = 0;
  for (auto _ : state) {
    Kurvenpunkte punkte;
    int16_t ergebnis = 0;
    bool imBereich = false;
    std::string meldung;
    double T = f.T, p = f.p, v = f.v;
    CalcCurve(s, ui, a, ergebnis, T, p, v, punkte, imBereich, meldung);
    benchmark::DoNotOptimize(punkte.data());
    n = Anzahl(punkte);
  }
  state.counters["Punkte"] = static_cast<double>(n);
}

void BM_InversionskurvePT(benchmark::State& state) {
  Kurve(state, {code::InversionPT, klasse::Inversion, 200, 2000, 0, 60000});
}
BENCHMARK(BM_InversionskurvePT)->Unit(benchmark::kMillisecond);

void BM_InversionskurvePv(benchmark::State& state) {
  Kurve(state, {code::InversionPv, klasse::Inversion, 0, 60000, 0, 30000});
}
BENCHMARK(BM_InversionskurvePv)->Unit(benchmark::kMillisecond);

void BM_SiedelinieEnthalpie(benchmark::State& state) {
  Kurve(state, {code::KoexH, klasse::Koexistenz, 150, 380, -40000, 40000});
}
BENCHMARK(BM_SiedelinieEnthalpie)->Unit(benchmark::kMillisecond);

void BM_HSIsotherme(benchmark::State& state) {
  Kurve(state, {code::HSIsotherme, klasse::Isotherme, -200, 100, -40000, 40000, 300});
}
BENCHMARK(BM_HSIsotherme)->Unit(benchmark::kMillisecond);

void BM_IsochoreImZweiphasengebiet(benchmark::State& state) {
  Kurve(state, {code::UvonTIsochor, klasse::Isochore, 150, 500, -40000, 40000, 0, 0, 0.5}, true);
}
BENCHMARK(BM_IsochoreImZweiphasengebiet)->Unit(benchmark::kMillisecond);

} // namespace
