#include "csv_tabelle.h"

namespace quor::werkzeug {

namespace {

// Splits one record starting at `pos`; moves `pos` behind its line end.
bool LeseZeile(std::string_view text, std::size_t& pos, std::vector<std::string>& felder) {
  felder.assign(1, "");
  bool zitiert = false;
  while (pos < text.size()) {
    const char c = text[pos++];
    if (zitiert) {
      if (c != '"') {
        felder.back() += c;
      } else if (pos < text.size() && text[pos] == '"') {
        felder.back() += '"';
        ++pos;
      } else {
        zitiert = false;
      }
    } else if (c == '"') {
      zitiert = true;
    } else if (c == ',') {
      felder.emplace_back();
    } else if (c == '\n') {
      return true;
    } else if (c != '\r') {
      felder.back() += c;
    }
  }
  return !zitiert;
}

} // namespace

int CsvTabelle::Spalte(const std::string& name) const {
  for (std::size_t i = 0; i < spalten.size(); ++i) {
    if (spalten[i] == name) return static_cast<int>(i);
  }
  return -1;
}

bool LeseCsv(std::string_view text, CsvTabelle& tabelle, std::string& fehler) {
  if (text.substr(0, 3) == "\xEF\xBB\xBF") text.remove_prefix(3);
  std::size_t pos = 0;
  if (!LeseZeile(text, pos, tabelle.spalten)) {
    fehler = "unterminated quote in the header";
    return false;
  }
  std::vector<std::string> felder;
  for (int zeile = 2; pos < text.size(); ++zeile) {
    if (!LeseZeile(text, pos, felder)) {
      fehler = "unterminated quote in row " + std::to_string(zeile);
      return false;
    }
    if (felder.size() == 1 && felder[0].empty()) continue;
    if (felder.size() != tabelle.spalten.size()) {
      fehler = "row " + std::to_string(zeile) + " has " + std::to_string(felder.size()) +
               " fields, the header " + std::to_string(tabelle.spalten.size());
      return false;
    }
    tabelle.zeilen.push_back(felder);
  }
  return true;
}

} // namespace quor::werkzeug
