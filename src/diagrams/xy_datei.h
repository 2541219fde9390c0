// X-Y point files (.XY): a comment line, then one line "x;y" per point with the program's separator.
// The 2D page loads and saves its point sets with them, the X-Y editor its table.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quor {

struct XYDatei {
  std::string Kommentar; // line 1 as it stands
  std::vector<float> X, Y;
};

// Reads the text of a file: line 1 is the comment; every further line is split at the first
// `trenner`, "," becomes "." in both parts, and each part is read as Basic's Val() reads it (what
// no number starts is 0). A third value after a further separator is dropped. A last line break
// adds no row. Never fails: any bytes give some table.
XYDatei LeseXYText(std::string_view text, char trenner);

// The file's text: the comment line, then x and y of every point in the exponent format
// ".0000000E+00" with "." as decimal mark, joined by `trenner`; lines end in CR LF.
std::string SchreibeXYText(const XYDatei& d, char trenner);

} // namespace quor
