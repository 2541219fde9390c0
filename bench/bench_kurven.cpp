// Speed of the curve engine on propane with Peng/Robinson and 500 points a curve: a whole p-v diagram
// (the coexistence curve and ten isotherms from 0.7 to 1.2 T(cr)), the vapour-pressure curve over T by
// the EOS, and the enthalpy isobar at 1000 kPa through the two-phase region.
#include "diagrams/diagramm_codes.h"
#include "diagrams/graph2d.h"
#include "diagrams/katalog.h"
#include "diagrams/kurven.h"

#include "bench_stoffe.h"

#include <benchmark/benchmark.h>

namespace {

using namespace quor;

DiagrammAuftrag Auftrag(int16_t c, int16_t k, float xmin, float xmax, float ymin, float ymax) {
  DiagrammAuftrag a;
  a.Code = c;
  a.Klasse = k;
  a.Xmin = xmin;
  a.Xmax = xmax;
  a.Ymin = ymin;
  a.Ymax = ymax;
  return a;
}

// One curve; the number of points is reported as a counter.
std::size_t Kurve(ProjectState& s, ui::Oberflaeche& ui, const DiagrammAuftrag& a, double T, double p) {
  Kurvenpunkte punkte;
  int16_t ergebnis = 0;
  double v = 0;
  bool imBereich = false;
  std::string meldung;
  CalcCurve(s, ui, a, ergebnis, T, p, v, punkte, imBereich, meldung);
  benchmark::DoNotOptimize(punkte.data());
  return Anzahl(punkte);
}

void BM_PvDiagrammPropan(benchmark::State& state) {
  ProjectState s = bench::PengRobinsonPropan();
  ui::SkriptOberflaeche ui;
  const DiagrammAuftrag koex = Auftrag(code::KoexPv, klasse::Koexistenz, 0.05f, 2.0f, 0, 8000);
  const DiagrammAuftrag isotherme = Auftrag(code::pv, klasse::Isotherme, 0.05f, 2.0f, 0, 8000);
  std::size_t n = 0;
  for (auto _ : state) {
    n = Kurve(s, ui, koex, 0, 0);
    for (int i = 0; i < 10; ++i)
      n += Kurve(s, ui, isotherme, s.Stoff.TKrit * (0.7 + 0.5 * i / 9.0), 0);
  }
  state.counters["Punkte"] = static_cast<double>(n);
}
BENCHMARK(BM_PvDiagrammPropan)->Unit(benchmark::kMillisecond);

void BM_DampfdruckKurvePropan(benchmark::State& state) {
  ProjectState s = bench::PengRobinsonPropan();
  ui::SkriptOberflaeche ui;
  const DiagrammAuftrag a = Auftrag(code::Dampfdruck, klasse::Koexistenz, 180, 380, 0, 5000);
  std::size_t n = 0;
  for (auto _ : state)
    n = Kurve(s, ui, a, 0, 0);
  state.counters["Punkte"] = static_cast<double>(n);
}
BENCHMARK(BM_DampfdruckKurvePropan)->Unit(benchmark::kMicrosecond);

void BM_EnthalpieIsobarePropan(benchmark::State& state) {
  ProjectState s = bench::PengRobinsonPropan();
  ui::SkriptOberflaeche ui;
  const DiagrammAuftrag a = Auftrag(code::HvonT, klasse::Isobare, 200, 500, -40000, 40000);
  std::size_t n = 0;
  for (auto _ : state)
    n = Kurve(s, ui, a, 0, 1000);
  state.counters["Punkte"] = static_cast<double>(n);
}
BENCHMARK(BM_EnthalpieIsobarePropan)->Unit(benchmark::kMicrosecond);


// A menu entry to its first drawn curve: the catalogue prepares the request of the p-v projection
// (texts, standard ranges from the model), a new page takes it and draws the coexistence curve.
void BM_MenueBisKoexistenzkurve(benchmark::State& state) {
  ProjectState s = bench::PengRobinsonPropan();
  ui::SkriptOberflaeche ui;
  for (auto _ : state) {
    DiagrammAuftrag a;
    a.Code = code::KoexPv;
    const Graf2DErgebnis e = Graf2D_Zentrale(s, ui, a, false);
    frmQGraph2D seite(s, ui);
    seite.Neu(a);
    const ZeichenErgebnis z = seite.cmdDraw();
    benchmark::DoNotOptimize(z);
    benchmark::DoNotOptimize(e);
  }
}
BENCHMARK(BM_MenueBisKoexistenzkurve)->Unit(benchmark::kMillisecond);

} // namespace
