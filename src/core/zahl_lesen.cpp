#include "core/zahl_lesen.h"

#include "core/festtext.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace quor {
namespace {

bool IstZiffer(char c) {
  return c >= '0' && c <= '9';
}
bool IstLeer(char c) {
  return c == ' ' || c == '\t';
}

// A number found at the start of a text, in the form the standard converter reads.
struct Gescannt {
  std::size_t laenge = 0; // characters taken from the text; 0 when no number starts it
  bool negativ = false;
  std::string mantisse; // digits with '.' as decimal mark, exponent as "e-12"
  long dezExponent = 0; // decimal exponent of the first non-zero digit, saturated; for the range
  bool nullMantisse = true;
};

// Exponent digits are summed with saturation so that absurd exponents cannot overflow.
long SaettigeExponent(long e, char ziffer) {
  return e > 100000 ? e : e * 10 + (ziffer - '0');
}

void ScanneMantisse(std::string_view t, std::size_t& i, Gescannt& g, std::size_t& ziffern) {
  long vorKomma = 0;
  long fuehrendeNullen = 0;
  bool komma = false;
  for (; i < t.size(); ++i) {
    char c = t[i];
    if (IstZiffer(c)) {
      ++ziffern;
      g.mantisse += c;
      if (c != '0' && g.nullMantisse) {
        g.nullMantisse = false;
        g.dezExponent = komma ? -fuehrendeNullen - 1 : 0;
      }
      if (!komma && !g.nullMantisse) ++vorKomma;
      if (komma && g.nullMantisse) ++fuehrendeNullen;
    } else if ((c == '.' || c == ',') && !komma) {
      komma = true;
      g.mantisse += '.';
    } else {
      break;
    }
  }
  if (!g.nullMantisse && vorKomma > 0) g.dezExponent = vorKomma - 1;
}

void ScanneExponent(std::string_view t, std::size_t& i, Gescannt& g) {
  if (i >= t.size() || (t[i] != 'e' && t[i] != 'E' && t[i] != 'd' && t[i] != 'D')) return;
  std::size_t j = i + 1;
  bool negativ = false;
  if (j < t.size() && (t[j] == '+' || t[j] == '-')) negativ = t[j++] == '-';
  if (j >= t.size() || !IstZiffer(t[j])) return; // "1e" ends before the 'e'
  long e = 0;
  g.mantisse += negativ ? "e-" : "e";
  for (; j < t.size() && IstZiffer(t[j]); ++j) {
    g.mantisse += t[j];
    e = SaettigeExponent(e, t[j]);
  }
  g.dezExponent += negativ ? -e : e;
  i = j;
}

// Longest number at the start of t (no blanks skipped).
Gescannt Scanne(std::string_view t) {
  Gescannt g;
  std::size_t i = 0;
  if (i < t.size() && (t[i] == '+' || t[i] == '-')) g.negativ = t[i++] == '-';
  std::size_t ziffern = 0;
  ScanneMantisse(t, i, g, ziffern);
  if (ziffern == 0) return Gescannt{};
  ScanneExponent(t, i, g);
  g.laenge = i;
  return g;
}

// Converts a scanned number straight to T (a detour through double could round twice); false on
// overflow. Underflow gives a signed zero.
template <typename T> bool Wandle(const Gescannt& g, T& wert) {
  const char* anfang = g.mantisse.data();
  const char* ende = anfang + g.mantisse.size();
  T x = 0;
  auto [ptr, ec] = std::from_chars(anfang, ende, x, std::chars_format::general);
  if (ec == std::errc::result_out_of_range) {
    if (!g.nullMantisse && g.dezExponent > 0) return false;
    x = 0;
  } else if (ec != std::errc() || ptr != ende || !std::isfinite(x)) {
    return false;
  }
  wert = g.negativ ? -x : x;
  return true;
}

} // namespace

ZahlErgebnis LeseZahl(std::string_view text) {
  ZahlErgebnis erg;
  std::string_view t = TrimAnsicht(text);
  Gescannt g = Scanne(t);
  if (g.laenge == 0 || g.laenge != t.size()) {
    erg.rest = std::string(t.substr(g.laenge));
    return erg;
  }
  double x = 0;
  if (!Wandle(g, x)) {
    erg.rest = std::string(t);
    return erg;
  }
  erg.ok = true;
  erg.wert = x;
  return erg;
}

bool LeseZahlFloat(std::string_view text, float& wert) {
  std::string_view t = TrimAnsicht(text);
  Gescannt g = Scanne(t);
  return g.laenge != 0 && g.laenge == t.size() && Wandle(g, wert);
}

double ValVB(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size() && (IstLeer(text[i]) || text[i] == '\r' || text[i] == '\n'))
    ++i;
  Gescannt g = Scanne(text.substr(i));
  double x = 0;
  if (g.laenge == 0 || !Wandle(g, x)) return 0;
  return x;
}

} // namespace quor
