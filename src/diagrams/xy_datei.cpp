#include "diagrams/xy_datei.h"

#include "core/text_kodierung.h"
#include "core/zahl_lesen.h"
#include "core/zahlformat.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quor {

namespace {

// Val() of a part with "," read as the decimal mark, held to the float range.
float Wert(std::string teil) {
  std::replace(teil.begin(), teil.end(), ',', '.');
  const double x = ValVB(teil);
  const double grenze = std::numeric_limits<float>::max();
  return static_cast<float>(std::clamp(x, -grenze, grenze));
}

std::string Zahl(float x) {
  std::string t = FormatVB(x, ".0000000E+00");
  std::replace(t.begin(), t.end(), ',', '.');
  return t;
}

} // namespace

XYDatei LeseXYText(std::string_view bytes, char trenner) {
  const std::string text = DateitextZuUtf8(bytes);
  XYDatei d;
  std::size_t pos = 0;
  bool ersteZeile = true;
  while (pos < text.size()) {
    std::size_t ende = text.find('\n', pos);
    if (ende == std::string::npos) ende = text.size();
    std::string zeile = text.substr(pos, ende - pos);
    pos = ende + 1;
    if (!zeile.empty() && zeile.back() == '\r') zeile.pop_back();
    if (ersteZeile) {
      d.Kommentar = zeile;
      ersteZeile = false;
      continue;
    }
    const std::size_t t1 = zeile.find(trenner);
    const std::string x = zeile.substr(0, t1);
    std::string y = t1 == std::string::npos ? std::string() : zeile.substr(t1 + 1);
    y = y.substr(0, y.find(trenner));
    d.X.push_back(Wert(x));
    d.Y.push_back(Wert(y));
  }
  return d;
}

std::string SchreibeXYText(const XYDatei& d, char trenner) {
  std::string aus = Utf8ZuWin1252(d.Kommentar) + "\r\n";
  const std::size_t n = std::min(d.X.size(), d.Y.size());
  for (std::size_t i = 0; i < n; ++i) aus += Zahl(d.X[i]) + trenner + Zahl(d.Y[i]) + "\r\n";
  return aus;
}

} // namespace quor
