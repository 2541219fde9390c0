#include "core/json_schreiber.h"

#include "core/text_kodierung.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace quor {

namespace {

// The fewest significant digits that read back to the same value; numbers of ordinary size are
// written without an exponent ("100", not "1e+02"). Written and read back independently of the
// C locale, so that a German desktop does not turn the point into a comma.
template <typename T> std::string Kuerzeste(T x, int maxStellen) {
  char puffer[64];
  const auto schreibe = [&puffer](T wert, int stellen) {
    const auto e = std::to_chars(puffer, puffer + sizeof puffer, wert, std::chars_format::general, stellen);
    return std::string(puffer, e.ptr);
  };
  int stellen = 1;
  std::string text;
  for (; stellen <= maxStellen; ++stellen) {
    text = schreibe(x, stellen);
    T zurueck{};
    std::from_chars(text.data(), text.data() + text.size(), zurueck);
    if (zurueck == x) break;
  }
  stellen = std::min(stellen, maxStellen);
  if (text.find('e') == std::string::npos || x == 0) return text;
  const int exponent = static_cast<int>(std::floor(std::log10(std::fabs(static_cast<double>(x)))));
  if (exponent < -5 || exponent >= 17) return text;
  return schreibe(x, std::max(stellen, exponent + 1));
}

} // namespace

std::string KurzText(double x) {
  return Kuerzeste(x, 17);
}

std::string KurzText(float x) {
  return Kuerzeste(x, 9);
}

std::string JsonText(std::string_view text) {
  const std::string utf8 = IstUtf8(text) ? std::string(text) : Win1252ZuUtf8(text);
  std::string aus = "\"";
  for (const char c : utf8) {
    const auto u = static_cast<unsigned char>(c);
    switch (c) {
    case '"':
      aus += "\\\"";
      break;
    case '\\':
      aus += "\\\\";
      break;
    case '\n':
      aus += "\\n";
      break;
    case '\r':
      aus += "\\r";
      break;
    case '\t':
      aus += "\\t";
      break;
    default:
      if (u < 0x20 || u == 0x7f) {
        char puffer[8];
        std::snprintf(puffer, sizeof puffer, "\\u%04x", u);
        aus += puffer;
      } else {
        aus += c;
      }
    }
  }
  return aus + "\"";
}

void JsonSchreiber::NeueZeile() {
  text_ += '\n';
  text_.append(2 * ebenen_.size(), ' ');
}

void JsonSchreiber::VorWert() {
  if (nachSchluessel_) {
    nachSchluessel_ = false;
    return;
  }
  if (ebenen_.empty()) return;
  Ebene& e = ebenen_.back();
  if (e.anzahl++ > 0) text_ += e.kompakt ? ", " : ",";
  if (!e.kompakt) NeueZeile();
}

void JsonSchreiber::Schluessel(std::string_view name) {
  VorWert();
  text_ += JsonText(name) + ": ";
  nachSchluessel_ = true;
}

void JsonSchreiber::BeginObjekt() {
  VorWert();
  text_ += '{';
  ebenen_.push_back({false, false, 0});
}

void JsonSchreiber::BeginListe(bool kompakt) {
  VorWert();
  text_ += '[';
  ebenen_.push_back({true, kompakt, 0});
}

void JsonSchreiber::EndeObjekt() {
  const Ebene e = ebenen_.back();
  ebenen_.pop_back();
  if (e.anzahl > 0) NeueZeile();
  text_ += '}';
  if (ebenen_.empty()) text_ += '\n';
}

void JsonSchreiber::EndeListe() {
  const Ebene e = ebenen_.back();
  ebenen_.pop_back();
  if (e.anzahl > 0 && !e.kompakt) NeueZeile();
  text_ += ']';
  if (ebenen_.empty()) text_ += '\n';
}

void JsonSchreiber::Text(std::string_view utf8) {
  VorWert();
  text_ += JsonText(utf8);
}

void JsonSchreiber::Zahl(double x) {
  VorWert();
  text_ += std::isfinite(x) ? KurzText(x) : "null";
}

void JsonSchreiber::Zahl(float x) {
  VorWert();
  text_ += std::isfinite(x) ? KurzText(x) : "null";
}

void JsonSchreiber::Ganz(long x) {
  VorWert();
  text_ += std::to_string(x);
}

void JsonSchreiber::Bool(bool b) {
  VorWert();
  text_ += b ? "true" : "false";
}

void JsonSchreiber::Null() {
  VorWert();
  text_ += "null";
}

} // namespace quor
