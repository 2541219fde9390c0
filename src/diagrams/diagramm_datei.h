// Diagram files: a 2D page as .oc2, a 3D page as .oc3. Both are JSON texts of our own format
// (docs/diagrammdateien.md): a head with the format name and version, the substance, models,
// normalisation and display units the diagram was made with, and the page's complete state: every
// curve with its points, request, parameters and look, the point sets, the marks, the labels, the
// legend, the axes with their ranges, titles and number formats, the swap state; for 3D the art,
// the ranges, the grid with its heights, the display options, the iso-lines and the view.
#pragma once

#include "core/project_state.h"
#include "diagrams/graph2d.h"
#include "diagrams/graph3d.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

constexpr int DiagrammDateiVersion = 1;

// What a diagram was made with.
struct DiagrammHerkunft {
  std::string Stoff; // name as the database has it
  std::string CAS;
  int16_t EOSIndex = -1;
  std::string EOSName;
  int16_t DampfdruckIndex = 0, HLVIndex = 0, CpIndex = 0;
  int16_t RefArt = 1;
  double hRef = 0, sRef = 0;
  float TRef = 0, pRef = 0;
  int16_t VolumenMode = 0, EnergieMode = 0;
  float TFaktor = 1, pFaktor = 1;
};

DiagrammHerkunft HerkunftVon(const ProjectState& s);

// The differences between what a file was made with and what is loaded now, one German line each
// ("Stoff: Propan (74-98-6), geladen ist Methan (74-82-8)"); empty when they agree.
std::vector<std::string> HerkunftUnterschiede(const DiagrammHerkunft& datei, const DiagrammHerkunft& jetzt);

struct Diagramm2DDatei {
  DiagrammHerkunft Herkunft;
  Graph2DZustand Zustand;
};

struct Diagramm3DDatei {
  DiagrammHerkunft Herkunft;
  Graph3DZustand Zustand;
};

// The file texts (UTF-8, LF line ends).
std::string SchreibeOC2(const Diagramm2DDatei& d);
std::string SchreibeOC3(const Diagramm3DDatei& d);

// Reads a file text of any bytes. No value, and in `fehler` a German reason, when the text is no
// diagram file of this kind, of a newer version, or holds a value the page cannot take (a slot out
// of range, a range that is empty or not finite, a grid whose sizes disagree, too many curves or
// point sets).
std::optional<Diagramm2DDatei> LeseOC2(std::string_view text, std::string& fehler);
std::optional<Diagramm3DDatei> LeseOC3(std::string_view text, std::string& fehler);

} // namespace quor
