// Speed of the picture export: the propane p-v diagram with its coexistence curve and three
// isotherms (Peng/Robinson) written as PNG, SVG and PDF of 1000 x 700 pixels. Measured are the
// export alone (the chart shows the diagram and writes the three files), the whole work in the
// process (the 2D page's logic computes the four curves, then the export), and three runs of the
// quor-plot program, one per format, each with its start, the database, the substance and the model
// set-up. The program's main is the one of the 2D chart's benchmarks.
#include "../bench_stoffe.h"
#include "diagrams/graph2d.h"
#include "diagrams/katalog.h"
#include "diagrams/markierungen.h"
#include "dienste/kind_prozess.h"
#include "gui/diagrams/diagramm2d_flaeche.h"
#include "gui/diagrams/diagramm_export.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <unistd.h>

namespace {

using namespace quor;

const QSize Groesse(1000, 700);
const char* const Temperaturen[] = {"300", "340", "369.5"};

// A scratch folder for the files, removed at the end.
struct Ordner {
  std::filesystem::path pfad =
      std::filesystem::temp_directory_path() / ("quor_bench_export_" + std::to_string(getpid()));
  Ordner() { std::filesystem::create_directories(pfad); }
  ~Ordner() {
    std::error_code f;
    std::filesystem::remove_all(pfad, f);
  }
  std::string Datei(const char* name) const { return (pfad / name).string(); }
};

// The diagram as the page draws it: the catalogue's request of code 1, an isotherm per temperature
// through the parameter field, the coexistence curve of the insert menu.
Diagramm2D PropanPv(ProjectState& s, ui::SkriptOberflaeche& oberflaeche) {
  frmQGraph2D seite(s, oberflaeche);
  DiagrammAuftrag a;
  a.Code = 1;
  Graf2D_Zentrale(s, oberflaeche, a, false);
  seite.Neu(a);
  for (const char* T : Temperaturen)
    if (seite.ParameterEingabe(T)) seite.cmdDraw();
  Markierungen(s, oberflaeche, seite).mnuMarkKoex();
  return seite.Bild();
}

struct Chart {
  ui::Diagramm2DFlaeche w;
  Chart() {
    w.setAttribute(Qt::WA_DontShowOnScreen);
    w.resize(Groesse);
    w.show();
  }
};

// The chart shows the diagram and writes the three files; true when all three were written.
bool DreiFormate(Chart& c, const Diagramm2D& d, const Ordner& o) {
  c.w.Zeige(d);
  std::string grund;
  return ui::Bildfile2D(c.w, o.Datei("propan.png"), BildFormat::PNG, Groesse, grund) &&
         ui::Bildfile2D(c.w, o.Datei("propan.svg"), BildFormat::SVG, Groesse, grund) &&
         ui::Bildfile2D(c.w, o.Datei("propan.pdf"), BildFormat::PDF, Groesse, grund);
}

void BM_ExportPropanPvDreiFormate(benchmark::State& state) {
  ProjectState s = bench::PengRobinsonPropan();
  ui::SkriptOberflaeche oberflaeche;
  const Diagramm2D d = PropanPv(s, oberflaeche);
  Chart c;
  Ordner o;
  for (auto _ : state)
    if (!DreiFormate(c, d, o)) state.SkipWithError("a file was not written");
  state.counters["Kurven"] = static_cast<double>(d.Reihen.size());
}
BENCHMARK(BM_ExportPropanPvDreiFormate)->Unit(benchmark::kMillisecond);

void BM_PropanPvKurvenUndDreiFormate(benchmark::State& state) {
  ProjectState s = bench::PengRobinsonPropan();
  ui::SkriptOberflaeche oberflaeche;
  Chart c;
  Ordner o;
  for (auto _ : state)
    if (!DreiFormate(c, PropanPv(s, oberflaeche), o)) state.SkipWithError("a file was not written");
}
BENCHMARK(BM_PropanPvKurvenUndDreiFormate)->Unit(benchmark::kMillisecond);

// quor-plot as a script calls it: three runs with the database's propane.
void BM_QuorPlotDreiFormate(benchmark::State& state) {
  Ordner o;
  for (auto _ : state) {
    for (const char* name : {"propan.png", "propan.svg", "propan.pdf"}) {
      ui::ProzessAuftrag auftrag;
      auftrag.programm = QUOR_PLOT;
      auftrag.argumente = {"--substance",   "Propan", "--code",        "1",   "--coexistence", "--T",
                           Temperaturen[0], "--T",    Temperaturen[1], "--T", Temperaturen[2], "--out",
                           o.Datei(name)};
      auftrag.arbeitsVerzeichnis = o.pfad.string();
      const ui::ProzessStatus st = ui::StarteKindProzess(auftrag);
      if (st.ergebnis != ui::ProzessErgebnis::Beendet || st.exitCode != 0)
        state.SkipWithError("quor-plot failed");
    }
  }
}
BENCHMARK(BM_QuorPlotDreiFormate)->Unit(benchmark::kMillisecond);

} // namespace
