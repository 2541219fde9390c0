// The command line of quor-plot: the global options of quor-cli (database, substance, models, units,
// reference state), the diagram with its curves, and the picture file. Every value is checked here;
// a fault is thrown as CliFehler with exit code 2 and a German message.
#pragma once

#include "cli/argumente.h"
#include "diagrams/diagramm_datei_befehle.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace quor::plot {

// The size of the picture when --size is not given, and the limits of each side.
constexpr int StandardBreite = 1000, StandardHoehe = 700;
constexpr int MinSeite = 100, MaxSeite = 8000;

struct PlotAufruf {
  cli::Aufruf Global; // the global options as quor-cli reads them

  int Code = 0; // --code: a 2D diagram of the catalogue
  int Art = 0;  // --art: a 3D surface, 1 to 10
  // Curve parameters as typed (displayed units), one curve each, in the order given.
  std::vector<std::string> T, p, v;
  std::optional<std::array<double, 2>> XBereich, YBereich; // displayed units
  bool Koexistenz = false;
  std::string Punkte; // --points: an .XY file
  std::string Ziel;   // --out
  BildFormat Format = BildFormat::PNG;
  int Breite = StandardBreite, Hoehe = StandardHoehe;
  bool Hilfe = false;
};

// Reads argv[1..].
PlotAufruf LesePlotAufruf(const std::vector<std::string>& argumente);

// The text of quor-plot --help.
const char* PlotHilfeText();

} // namespace quor::plot
