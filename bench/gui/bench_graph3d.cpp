// Speed of the 3D diagram page: from an entry of the 3D menu to the page with its surface on show
// (the surface computed on its 61 x 61 grid, handed to the chart, one event round), for the real
// p(v, T) surface, the cp surface and the h surface of propane; and one frame of the chart at the
// page's size with ten iso-lines, drawn into a picture. The frame needs OpenGL: run under xvfb-run
// with GLX; on the offscreen platform that benchmark reports that it cannot draw. The program's
// main, with the application object, is the one of the 2D chart's benchmarks.
#include "../bench_stoffe.h"
#include "diagrams/diagramm_befehle.h"
#include "gui/diagrams/diagramm3d_flaeche.h"
#include "gui/diagrams/graph3d_steuerung.h"

#include <QApplication>
#include <QMdiArea>
#include <QPushButton>
#include <QSpinBox>
#include <benchmark/benchmark.h>

namespace {

using namespace quor;

// The work area of the main frame at its first size, with the 3D menu wired as the frame wires it.
struct Rahmen {
  ProjectState s = bench::PengRobinsonPropan();
  ui::SkriptOberflaeche oberflaeche;
  QWidget fenster;
  QMdiArea* flaeche = new QMdiArea(&fenster);
  ui::Graph3DSteuerung steuerung{s, oberflaeche, flaeche, &fenster};
  BefehlsRegister register_;

  Rahmen() {
    fenster.resize(1180, 680);
    flaeche->resize(fenster.size());
    fenster.show();
    RegistriereDiagrammBefehle(register_);
    ui::Graph3DHandlerSetzen(register_, [this](int index) { steuerung.Menue(index); });
    QApplication::processEvents();
  }

  void Menue(int index) {
    register_.Ausloesen("mnu3DSub", index);
    QApplication::processEvents();
  }
};

void BM_Menue3DBisFlaeche(benchmark::State& state) {
  Rahmen r;
  const int index = static_cast<int>(state.range(0));
  for (auto _ : state)
    r.Menue(index);
  state.counters["Zellen"] = static_cast<double>(r.steuerung.Seite()->Logik().Bild().Z.size());
}
// Entries 0 (p(v, T), real), 4 (cp) and 6 (h).
BENCHMARK(BM_Menue3DBisFlaeche)->Arg(0)->Arg(4)->Arg(6)->Unit(benchmark::kMillisecond);

void BM_Bild3DMitIsolinien(benchmark::State& state) {
  Rahmen r;
  r.Menue(0);
  ui::Graph3DFenster* seite = r.steuerung.Seite();
  seite->Anzahl("UpDown1_IsoT")->setValue(10);
  seite->Knopf("mnuAddIsobars")->click();
  ui::Diagramm3DFlaeche* chart = seite->Flaeche();
  if (!chart->KannZeichnen()) {
    state.SkipWithError("the 3D chart cannot draw here: run under xvfb-run with GLX");
    return;
  }
  for (auto _ : state)
    benchmark::DoNotOptimize(chart->Bild(chart->size()));
  state.counters["Pixel"] = chart->width() * chart->height();
}
BENCHMARK(BM_Bild3DMitIsolinien)->Unit(benchmark::kMillisecond);

} // namespace
