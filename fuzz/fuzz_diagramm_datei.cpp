// Feeds arbitrary bytes to the readers of the diagram pages: the first byte chooses the .oc2 reader
// (0), the .oc3 reader (1) or the .XY reader (2), the rest is the file. Nothing may crash; a file
// that is read must give a page whose picture the chart can take, and writing it again and reading
// that gives the same text.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "diagrams/diagramm_datei.h"
#include "diagrams/xy_datei.h"
#include "dienste/skript_oberflaeche.h"

namespace {

void Pruefe(bool bedingung) {
  if (!bedingung) std::abort();
}

void Zwei(const std::string& bytes) {
  std::string fehler;
  const auto d = quor::LeseOC2(bytes, fehler);
  Pruefe(d.has_value() == fehler.empty());
  if (!d) return;
  quor::ProjectState s;
  quor::InitProjectState(s);
  quor::ui::SkriptOberflaeche ui;
  quor::frmQGraph2D g(s, ui);
  g.ZustandSetzen(d->Zustand);
  const quor::Diagramm2D bild = g.Bild();
  Pruefe(bild.AchseX.Min < bild.AchseX.Max && bild.AchseY.Min < bild.AchseY.Max);
  for (const quor::Reihe2D& r : bild.Reihen) Pruefe(r.X.size() == r.Y.size());
  const std::string text = quor::SchreibeOC2(*d);
  const auto wieder = quor::LeseOC2(text, fehler);
  Pruefe(wieder.has_value() && quor::SchreibeOC2(*wieder) == text);
}

void Drei(const std::string& bytes) {
  std::string fehler;
  const auto d = quor::LeseOC3(bytes, fehler);
  Pruefe(d.has_value() == fehler.empty());
  if (!d) return;
  quor::ProjectState s;
  quor::InitProjectState(s);
  quor::ui::SkriptOberflaeche ui;
  quor::frmGraph3D g(s, ui);
  g.ZustandSetzen(d->Zustand);
  Pruefe(quor::FlaecheStimmig(g.Bild()));
  const std::string text = quor::SchreibeOC3(*d);
  const auto wieder = quor::LeseOC3(text, fehler);
  Pruefe(wieder.has_value() && quor::SchreibeOC3(*wieder) == text);
}

void XY(const std::string& bytes) {
  const quor::XYDatei d = quor::LeseXYText(bytes, ';');
  Pruefe(d.X.size() == d.Y.size());
  const quor::XYDatei wieder = quor::LeseXYText(quor::SchreibeXYText(d, ';'), ';');
  Pruefe(wieder.X.size() == d.X.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 1) return 0;
  const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  switch (data[0] % 3) {
  case 0:
    Zwei(bytes);
    break;
  case 1:
    Drei(bytes);
    break;
  default:
    XY(bytes);
  }
  return 0;
}
