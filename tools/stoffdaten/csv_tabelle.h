// A comma-separated table with one header row; fields may be quoted ("a, b"; "" inside for ").
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quor::werkzeug {

struct CsvTabelle {
  std::vector<std::string> spalten;
  std::vector<std::vector<std::string>> zeilen;

  // Position of a column, -1 when there is none.
  int Spalte(const std::string& name) const;
};

// Reads the text; false with a message in `fehler` for a row whose field count differs from the
// header's or an unterminated quote.
bool LeseCsv(std::string_view text, CsvTabelle& tabelle, std::string& fehler);

} // namespace quor::werkzeug
