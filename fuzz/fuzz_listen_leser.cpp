// Feeds arbitrary bytes to the list reader, reads mixed values until the end and checks that what was
// read survives a write and a second read unchanged.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "core/listen_datei.h"
#include "core/text_kodierung.h"
#include "core/zahl_lesen.h"

namespace {

void Pruefe(bool bedingung) {
  if (!bedingung) std::abort();
}

template <typename T> bool GleicheBits(T a, T b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}

std::string OhneAnfuehrung(std::string s) {
  for (char& c : s)
    c = c == '"' ? '\'' : c;
  return s;
}

void PruefeText(const std::string& s) {
  quor::ListenSchreiber w;
  w.Text(s);
  quor::ListenLeser r(w.Utf8());
  std::string t;
  Pruefe(r.LeseText(t) && t == OhneAnfuehrung(s));
}

void PruefeZahl(double x) {
  quor::ListenSchreiber w;
  w.Zahl(x);
  quor::ListenLeser r(w.Bytes());
  double y = 0;
  Pruefe(r.LeseDouble(y) && GleicheBits(y, x));
}

void PruefeZahl(float x) {
  quor::ListenSchreiber w;
  w.Zahl(x);
  quor::ListenLeser r(w.Bytes());
  float y = 0;
  Pruefe(r.LeseFloat(y) && GleicheBits(y, x));
}

void PruefeGanz(int16_t x) {
  quor::ListenSchreiber w;
  w.Ganz(x);
  quor::ListenLeser r(w.Bytes());
  int16_t y = 0;
  Pruefe(r.LeseInt16(y) && y == x);
}

void PruefeBool(bool x) {
  quor::ListenSchreiber w;
  w.Bool(x);
  quor::ListenLeser r(w.Bytes());
  bool y = !x;
  Pruefe(r.LeseBool(y) && y == x);
}

// One read of the kind chosen by k; checks the value it got.
void LiesEinmal(quor::ListenLeser& l, unsigned k) {
  std::string s;
  double d = 0;
  float f = 0;
  int16_t i = 0;
  bool b = false;
  switch (k % 6) {
  case 0:
    if (l.LeseText(s)) PruefeText(s);
    break;
  case 1:
    if (l.LeseDouble(d)) PruefeZahl(d);
    break;
  case 2:
    if (l.LeseFloat(f)) PruefeZahl(f);
    break;
  case 3:
    if (l.LeseInt16(i)) PruefeGanz(i);
    break;
  case 4:
    if (l.LeseBool(b)) PruefeBool(b);
    break;
  default:
    l.LeseZeile(s);
    break;
  }
}

void PruefeZahlLeser(std::string_view text) {
  quor::ZahlErgebnis z = quor::LeseZahl(text);
  Pruefe(z.ok ? z.rest.empty() && std::isfinite(z.wert) : z.wert == 0);
  double v = quor::ValVB(text);
  Pruefe(std::isfinite(v));
}

void PruefeKodierung(std::string_view bytes) {
  Pruefe(quor::Utf8ZuWin1252(quor::Win1252ZuUtf8(bytes)) == bytes);
  Pruefe(quor::IstUtf8(quor::DateitextZuUtf8(bytes)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string_view bytes(reinterpret_cast<const char*>(data), size);
  PruefeZahlLeser(bytes.substr(0, 400));
  PruefeKodierung(bytes);
  quor::ListenLeser l(bytes);
  unsigned wahl = size > 0 ? data[0] : 0; // the first byte picks the order of the reads
  std::size_t lesungen = 0;
  std::size_t zeile = 1;
  while (!l.AmEnde()) {
    Pruefe(++lesungen <= 3 * size); // every read moves on by a character (up to 3 bytes decoded)
    LiesEinmal(l, wahl + static_cast<unsigned>(lesungen) * (wahl % 5 + 1));
    Pruefe(l.Zeile() >= zeile);
    zeile = l.Zeile();
  }
  std::string s;
  Pruefe(!l.LeseText(s));
  return 0;
}
