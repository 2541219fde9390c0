// The report as lines of texts at character columns, shared by the file and the printer output. A
// text at a column left of where the line has got to begins a new line at that column.
#pragma once

#include "calc/bericht.h"

#include <string>
#include <vector>

namespace quor {

struct BerichtEintrag {
  std::size_t spalte = 0;
  std::string text;
};

struct BerichtZeile {
  std::vector<BerichtEintrag> eintraege; // none: an empty line
  std::string linienZeichen;             // a rule of this character ...
  std::size_t linienLaenge = 0;          // ... this many times
};

enum class BerichtZiel { Datei, Drucker };

std::vector<BerichtZeile> BerichtZeilen(const ProjectState& s, const RechenKontext& k,
                                        const BerichtAuftrag& a, BerichtZiel ziel);

} // namespace quor
