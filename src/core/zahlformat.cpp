// Basic-style number formatting. The value is first brought to its decimal form with a fixed number of
// significant digits (15 for patterns, as Basic converts a double), and all rounding after that is done
// on the decimal digits, half away from zero. Nothing here depends on the locale.
#include "core/zahlformat.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace quor {
namespace {

// Decimal digits of a finite value >= 0: value = d0.d1d2... * 10^exp, exactly `stellen` digits.
struct Dezimal {
  std::string ziffern;
  int exp = 0;
};

Dezimal ZerlegeDezimal(double betrag, int stellen) {
  char puffer[48];
  std::snprintf(puffer, sizeof puffer, "%.*e", stellen - 1, betrag);
  Dezimal d;
  const char* p = puffer;
  for (; *p != '\0' && *p != 'e'; ++p)
    if (*p >= '0' && *p <= '9') d.ziffern += *p;
  if (*p == 'e') d.exp = std::atoi(p + 1);
  return d;
}

// Adds one unit in the last place of a digit string; "99" becomes "100", "" becomes "1".
void ErhoeheLetzteStelle(std::string& z) {
  for (auto i = z.size(); i > 0; --i) {
    if (z[i - 1] != '9') {
      ++z[i - 1];
      return;
    }
    z[i - 1] = '0';
  }
  z.insert(z.begin(), '1');
}

// The first n digits of z (zeros appended beyond its end), rounded half up at digit n.
std::string RundeAufStellen(const std::string& z, int n) {
  if (n < 0) return std::string();
  const auto stellen = static_cast<std::size_t>(n);
  std::string r = z.substr(0, stellen);
  r.append(stellen - r.size(), '0');
  if (stellen < z.size() && z[stellen] >= '5') ErhoeheLetzteStelle(r);
  return r;
}

std::string OhneFuehrendeNullen(const std::string& z) {
  const auto erste = z.find_first_not_of('0');
  return erste == std::string::npos ? std::string() : z.substr(erste);
}

// ---------------------------------------------------------------------------------------------
// Pattern sections

enum class Art { Text, Ziffer, Punkt, Prozent, Exponent };

struct Teil {
  Art art;
  bool nachkomma = false; // a digit placeholder after the decimal point
  std::string text;       // literal text
};

struct Abschnitt {
  std::vector<Teil> teile;
  int nVorkomma = 0;  // digit placeholders before the point
  int nNachkomma = 0; // digit placeholders after the point
  int minVorkomma = 0;
  int minNachkomma = 0;
  bool gruppieren = false; // thousands separators
  int tausender = 0;       // scaling commas: each divides by 1000
  int prozent = 0;
  bool exponent = false;
  char expZeichen = 'E';
  bool expPlus = true; // "E+" writes the sign always, "E-" only a minus
  int expMin = 0;      // least number of exponent digits
};

void TextAnhaengen(Abschnitt& a, std::string_view text) {
  if (!a.teile.empty() && a.teile.back().art == Art::Text)
    a.teile.back().text += text;
  else
    a.teile.push_back({Art::Text, false, std::string(text)});
}

// Reads an exponent marker right behind the mantissa's digits, starting at s[i] ('E' or 'e' followed by its
// sign); returns the index of its last character.
std::size_t LiesExponent(Abschnitt& a, std::string_view s, std::size_t i) {
  a.exponent = true;
  a.expZeichen = s[i];
  a.expPlus = s[i + 1] == '+';
  i += 2;
  for (; i < s.size() && (s[i] == '0' || s[i] == '#'); ++i)
    if (s[i] == '0') ++a.expMin;
  a.teile.push_back({Art::Exponent, false, {}});
  return i - 1;
}

Abschnitt ZerlegeAbschnitt(std::string_view s) {
  Abschnitt a;
  bool punkt = false;
  bool nachZiffer = false; // the last token was a digit placeholder (commas between do not count)
  int kommas = 0;          // commas since the last integer digit placeholder
  int ersteNullVorkomma = -1;
  for (std::size_t i = 0; i < s.size(); ++i) {
    const char c = s[i];
    if (c == ',' && nachZiffer && !punkt && !a.exponent) {
      ++kommas;
      continue;
    }
    if (kommas > 0 && (c == '0' || c == '#'))
      a.gruppieren = true;
    else
      a.tausender += kommas;
    kommas = 0;
    nachZiffer = false;
    if (c == '"') {
      const auto ende = s.find('"', i + 1);
      TextAnhaengen(a, s.substr(i + 1, ende == std::string_view::npos ? ende : ende - i - 1));
      i = ende == std::string_view::npos ? s.size() : ende;
    } else if (c == '\\') {
      if (i + 1 < s.size()) TextAnhaengen(a, s.substr(++i, 1));
    } else if (a.exponent) {
      TextAnhaengen(a, s.substr(i, 1));
    } else if (c == '0' || c == '#') {
      a.teile.push_back({Art::Ziffer, punkt, {}});
      if (punkt) {
        ++a.nNachkomma;
        if (c == '0') a.minNachkomma = a.nNachkomma;
      } else {
        if (c == '0' && ersteNullVorkomma < 0) ersteNullVorkomma = a.nVorkomma;
        ++a.nVorkomma;
        nachZiffer = true;
      }
    } else if (c == '.' && !punkt) {
      punkt = true;
      a.teile.push_back({Art::Punkt, false, {}});
    } else if (c == '%') {
      ++a.prozent;
      a.teile.push_back({Art::Prozent, false, {}});
    } else if ((c == 'E' || c == 'e') && i + 1 < s.size() && (s[i + 1] == '+' || s[i + 1] == '-') &&
               !a.teile.empty() && (a.teile.back().art == Art::Ziffer || a.teile.back().art == Art::Punkt)) {
      i = LiesExponent(a, s, i);
    } else {
      TextAnhaengen(a, s.substr(i, 1));
    }
  }
  a.tausender += kommas;
  if (ersteNullVorkomma >= 0) a.minVorkomma = a.nVorkomma - ersteNullVorkomma;
  return a;
}

// Splits a pattern at the ';' that stand outside quotes and are not escaped.
std::vector<std::string_view> TeileAbschnitte(std::string_view muster) {
  std::vector<std::string_view> abschnitte;
  std::size_t anfang = 0;
  bool zitat = false;
  for (std::size_t i = 0; i < muster.size(); ++i) {
    if (muster[i] == '"')
      zitat = !zitat;
    else if (muster[i] == '\\' && !zitat)
      ++i;
    else if (muster[i] == ';' && !zitat) {
      abschnitte.push_back(muster.substr(anfang, i - anfang));
      anfang = i + 1;
    }
  }
  abschnitte.push_back(muster.substr(anfang));
  return abschnitte;
}

// ---------------------------------------------------------------------------------------------
// Digits of a value for one section

struct Ziffern {
  std::string vorkomma;  // integer digits, already padded to the least count
  std::string nachkomma; // fraction digits, trailing optional zeros dropped
  int exp = 0;
};

// Fixed notation: round to nNachkomma decimals.
Ziffern FesteZiffern(const Abschnitt& a, double betrag) {
  const Dezimal d = ZerlegeDezimal(betrag, 15);
  const std::string r = RundeAufStellen(d.ziffern, d.exp + 1 + a.nNachkomma);
  const auto n = static_cast<std::size_t>(a.nNachkomma);
  Ziffern z;
  if (r.size() > n) {
    z.vorkomma = r.substr(0, r.size() - n);
    z.nachkomma = r.substr(r.size() - n);
  } else {
    z.nachkomma = std::string(n - r.size(), '0') + r;
  }
  return z;
}

// Scientific notation: the mantissa keeps as many integer digits as there are placeholders before the
// point; with none it lies in [0.1, 1).
Ziffern ExponentZiffern(const Abschnitt& a, double betrag) {
  const Dezimal d = ZerlegeDezimal(betrag, 15);
  const int stellen = a.nVorkomma + a.nNachkomma;
  std::string r = RundeAufStellen(d.ziffern, stellen);
  Ziffern z;
  z.exp = a.nVorkomma == 0 ? d.exp + 1 : d.exp - (a.nVorkomma - 1);
  if (static_cast<int>(r.size()) > stellen) { // the rounding carried into a new digit
    r.pop_back();
    ++z.exp;
  }
  if (betrag == 0.0) z.exp = 0;
  const auto n = static_cast<std::size_t>(a.nVorkomma);
  z.vorkomma = r.substr(0, n);
  z.nachkomma = r.substr(n);
  return z;
}

Ziffern BerechneZiffern(const Abschnitt& a, double betrag) {
  Ziffern z = a.exponent ? ExponentZiffern(a, betrag) : FesteZiffern(a, betrag);
  z.vorkomma = OhneFuehrendeNullen(z.vorkomma);
  if (static_cast<int>(z.vorkomma.size()) < a.minVorkomma)
    z.vorkomma.insert(0, static_cast<std::size_t>(a.minVorkomma) - z.vorkomma.size(), '0');
  auto ende = z.nachkomma.find_last_not_of('0') + 1; // npos + 1 == 0 when all are zero
  ende = std::max(ende, static_cast<std::size_t>(a.minNachkomma));
  z.nachkomma.resize(std::min(ende, z.nachkomma.size()));
  return z;
}

std::string Gruppiert(const std::string& ziffern) {
  std::string out;
  for (std::size_t i = 0; i < ziffern.size(); ++i) {
    if (i > 0 && (ziffern.size() - i) % 3 == 0) out += ',';
    out += ziffern[i];
  }
  return out;
}

std::string ExponentText(const Abschnitt& a, int exp) {
  std::string out(1, a.expZeichen);
  if (exp < 0)
    out += '-';
  else if (a.expPlus)
    out += '+';
  std::string ziffern = std::to_string(std::abs(exp));
  const auto mindestens = static_cast<std::size_t>(std::max(a.expMin, 1));
  if (ziffern.size() < mindestens) ziffern.insert(0, mindestens - ziffern.size(), '0');
  return out + ziffern;
}

// Integer digits are right-aligned on the placeholders; the first placeholder takes any surplus.
void VorkommaStelle(const Abschnitt& a, const std::string& vorkomma, int index, std::string& out) {
  if (a.gruppieren) {
    if (index == 0) out += Gruppiert(vorkomma);
    return;
  }
  const int j = static_cast<int>(vorkomma.size()) - a.nVorkomma + index;
  if (index == 0 && j >= 0)
    out.append(vorkomma, 0, static_cast<std::size_t>(j) + 1);
  else if (j >= 0)
    out += vorkomma[static_cast<std::size_t>(j)];
}

std::string FormatAbschnitt(const Abschnitt& a, double betrag) {
  betrag *= std::pow(100.0, a.prozent) / std::pow(1000.0, a.tausender);
  if (!std::isfinite(betrag)) return "Inf";
  const Ziffern z = BerechneZiffern(a, betrag);
  std::string out;
  int vorIndex = 0;
  std::size_t nachIndex = 0;
  for (const Teil& t : a.teile) {
    switch (t.art) {
    case Art::Text:
      out += t.text;
      break;
    case Art::Prozent:
      out += '%';
      break;
    case Art::Punkt:
      if (a.nVorkomma == 0) out += z.vorkomma;
      out += '.';
      break;
    case Art::Ziffer:
      if (!t.nachkomma)
        VorkommaStelle(a, z.vorkomma, vorIndex++, out);
      else if (nachIndex < z.nachkomma.size())
        out += z.nachkomma[nachIndex++];
      break;
    case Art::Exponent:
      out += ExponentText(a, z.exp);
      break;
    }
  }
  return out;
}

// Default text with up to `stellen` significant digits; fixed notation while -5 < exponent < maxExp.
std::string Standardtext(double x, int stellen, int maxExp) {
  if (std::isnan(x)) return "NaN";
  if (std::isinf(x)) return x > 0 ? "Inf" : "-Inf";
  if (x == 0.0) return "0";
  const Dezimal d = ZerlegeDezimal(std::fabs(x), stellen);
  const std::string z = d.ziffern.substr(0, d.ziffern.find_last_not_of('0') + 1);
  std::string out = x < 0 ? "-" : "";
  if (d.exp > -5 && d.exp < maxExp) {
    const auto vor = static_cast<std::size_t>(d.exp + 1);
    if (d.exp < 0)
      out += "0." + std::string(static_cast<std::size_t>(-d.exp - 1), '0') + z;
    else if (z.size() <= vor)
      out += z + std::string(vor - z.size(), '0');
    else
      out += z.substr(0, vor) + "." + z.substr(vor);
    return out;
  }
  out += z.substr(0, 1);
  if (z.size() > 1) out += "." + z.substr(1);
  Abschnitt a; // "E+00"
  a.expMin = 2;
  return out + ExponentText(a, d.exp);
}

} // namespace

std::string FormatVB(double value, std::string_view pattern) {
  if (std::isnan(value)) return "NaN";
  if (std::isinf(value)) return value > 0 ? "Inf" : "-Inf";
  const auto abschnitte = TeileAbschnitte(pattern);
  if (abschnitte[0].empty()) return DoubleText(value);
  const bool negativ = value < 0;
  const double betrag = std::fabs(value);
  if (value == 0.0 && abschnitte.size() >= 3 && !abschnitte[2].empty())
    return FormatAbschnitt(ZerlegeAbschnitt(abschnitte[2]), 0.0);
  if (negativ && abschnitte.size() >= 2 && !abschnitte[1].empty())
    return FormatAbschnitt(ZerlegeAbschnitt(abschnitte[1]), betrag);
  const std::string text = FormatAbschnitt(ZerlegeAbschnitt(abschnitte[0]), betrag);
  return negativ ? "-" + text : text;
}

std::string SingleText(float x) {
  return Standardtext(static_cast<double>(x), 7, 7);
}

std::string DoubleText(double x) {
  return Standardtext(x, 15, 15);
}

} // namespace quor
