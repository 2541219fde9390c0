// Speed of the 2D chart on the screen: a diagram of 24 curves of 500 points, each an isotherm-like
// hyperbola that leaves the plot over its upper edge, with the legend on. Measured are the whole
// showing of a new picture (plottables rebuilt, legend placed, drawn) and a plain redraw.
#include "gui/diagrams/diagramm2d_flaeche.h"

#include <QApplication>
#include <benchmark/benchmark.h>
#include <qcustomplot.h>

#include <cstdlib>
#include <string>

namespace {

using namespace quor;

constexpr int Kurven = 24;
constexpr int Punkte = 500;

Diagramm2D VierundzwanzigKurven() {
  Diagramm2D d;
  d.AchseX = {0, 1.5, "v / (m^3/kmol)", "", false, false};
  d.AchseY = {0, 9000, "p / kPa", "", false, false};
  d.Kopf = "p - V (isothermer Schnitt)";
  for (int k = 0; k < Kurven; ++k) {
    Reihe2D r;
    const double T = 250 + 10 * k;
    r.Name = "T = " + std::to_string(static_cast<int>(T)) + ".00 K.";
    r.Farbe = {static_cast<uint8_t>(10 * k), 0, static_cast<uint8_t>(240 - 10 * k)};
    r.Breite = 1.5;
    for (int i = 0; i < Punkte; ++i) {
      const double v = 0.06 + 1.5 * i / (Punkte - 1);
      r.X.push_back(v);
      r.Y.push_back(8.31451 * T / (v - 0.05));
    }
    d.Reihen.push_back(std::move(r));
  }
  return d;
}

struct Flaeche {
  ui::Diagramm2DFlaeche w;
  Flaeche() {
    w.resize(1100, 620);
    w.show();
    QApplication::processEvents();
  }
};

void BM_Zeige24Kurven(benchmark::State& state) {
  Flaeche f;
  const Diagramm2D d = VierundzwanzigKurven();
  for (auto _ : state)
    f.w.Zeige(d);
  state.counters["Punkte"] = Kurven * Punkte;
}
BENCHMARK(BM_Zeige24Kurven)->Unit(benchmark::kMillisecond);

void BM_Replot24Kurven(benchmark::State& state) {
  Flaeche f;
  f.w.Zeige(VierundzwanzigKurven());
  for (auto _ : state)
    f.w.Plot()->replot();
  state.counters["Punkte"] = Kurven * Punkte;
}
BENCHMARK(BM_Replot24Kurven)->Unit(benchmark::kMillisecond);

} // namespace

// The widgets need an application; without a display it draws on the offscreen platform.
int main(int argc, char** argv) {
  if (!std::getenv("DISPLAY") && !std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
