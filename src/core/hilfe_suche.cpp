#include "core/hilfe_suche.h"

#include "core/datei_io.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace quor {

namespace {

// A code point as UTF-8.
std::string Utf8(std::uint32_t c) {
  std::string s;
  if (c < 0x80) {
    s += static_cast<char>(c);
  } else if (c < 0x800) {
    s += static_cast<char>(0xC0 | (c >> 6));
    s += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    s += static_cast<char>(0xE0 | (c >> 12));
    s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    s += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x110000) {
    s += static_cast<char>(0xF0 | (c >> 18));
    s += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    s += static_cast<char>(0x80 | (c & 0x3F));
  }
  return s;
}

// The text of an entity's name (without & and ;), empty when it is not known.
std::string Entitaet(const std::string& name) {
  if (name.size() > 1 && name[0] == '#') {
    const bool hex = name[1] == 'x' || name[1] == 'X';
    const std::string ziffern = name.substr(hex ? 2 : 1);
    if (ziffern.empty()) return {};
    char* ende = nullptr;
    const unsigned long c = std::strtoul(ziffern.c_str(), &ende, hex ? 16 : 10);
    if (*ende != '\0' || c == 0 || c >= 0x110000) return {};
    return Utf8(static_cast<std::uint32_t>(c));
  }
  static const std::pair<const char*, std::uint32_t> namen[] = {
      {"nbsp", 0xA0},     {"amp", '&'},      {"lt", '<'},       {"gt", '>'},       {"quot", '"'},
      {"apos", '\''},     {"auml", 0xE4},    {"ouml", 0xF6},    {"uuml", 0xFC},    {"Auml", 0xC4},
      {"Ouml", 0xD6},     {"Uuml", 0xDC},    {"szlig", 0xDF},   {"deg", 0xB0},     {"middot", 0xB7},
      {"times", 0xD7},    {"sup2", 0xB2},    {"sup3", 0xB3},    {"ndash", 0x2013}, {"mdash", 0x2014},
      {"rarr", 0x2192},   {"larr", 0x2190},  {"asymp", 0x2248}, {"le", 0x2264},    {"ge", 0x2265},
      {"hellip", 0x2026}, {"bdquo", 0x201E}, {"ldquo", 0x201C}, {"rdquo", 0x201D}, {"rho", 0x3C1},
      {"eta", 0x3B7},     {"Delta", 0x394},  {"delta", 0x3B4},  {"kappa", 0x3BA},  {"omega", 0x3C9}};
  for (const auto& [n, c] : namen)
    if (name == n) return c == 0xA0 ? std::string(" ") : Utf8(c);
  return {};
}

bool IstLeer(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f';
}

// Lower case of an ASCII string, for tag names.
std::string AsciiKlein(std::string s) {
  for (char& c : s)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return s;
}

// Where the block opened at `von` by <name ...> ends (after </name>), npos when it doesn't.
std::size_t BlockEnde(const std::string& klein, std::size_t von, const std::string& name) {
  const std::size_t ende = klein.find("</" + name, von);
  if (ende == std::string::npos) return ende;
  const std::size_t zu = klein.find('>', ende);
  return zu == std::string::npos ? zu : zu + 1;
}

bool IstWortZeichen(unsigned char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c >= 0x80;
}

} // namespace

std::string HilfeSeitenText(const std::string& html) {
  const std::string klein = AsciiKlein(html);
  std::string roh;
  roh.reserve(html.size());
  std::size_t i = 0;
  while (i < html.size()) {
    if (html.compare(i, 4, "<!--") == 0) {
      const std::size_t ende = html.find("-->", i + 4);
      i = ende == std::string::npos ? html.size() : ende + 3;
      roh += ' ';
    } else if (html[i] == '<') {
      const std::size_t zu = html.find('>', i);
      if (zu == std::string::npos) break;
      std::size_t n = i + 1;
      while (n < zu && IstWortZeichen(static_cast<unsigned char>(html[n])))
        ++n;
      const std::string tag = klein.substr(i + 1, n - i - 1);
      i = zu + 1;
      if (tag == "style" || tag == "script") {
        const std::size_t ende = BlockEnde(klein, i, tag);
        i = ende == std::string::npos ? html.size() : ende;
      }
      roh += ' ';
    } else if (html[i] == '&') {
      const std::size_t semi = html.find(';', i);
      std::string text;
      if (semi != std::string::npos && semi - i <= 10) text = Entitaet(html.substr(i + 1, semi - i - 1));
      if (text.empty()) {
        roh += '&';
        ++i;
      } else {
        roh += text;
        i = semi + 1;
      }
    } else {
      roh += html[i++];
    }
  }
  std::string text;
  text.reserve(roh.size());
  for (const char c : roh) {
    if (IstLeer(c)) {
      if (!text.empty() && text.back() != ' ') text += ' ';
    } else {
      text += c;
    }
  }
  while (!text.empty() && text.back() == ' ')
    text.pop_back();
  return text;
}

std::string HilfeSeitenTitel(const std::string& html) {
  const std::string klein = AsciiKlein(html);
  const std::size_t auf = klein.find("<title");
  if (auf == std::string::npos) return {};
  const std::size_t anfang = klein.find('>', auf);
  if (anfang == std::string::npos) return {};
  const std::size_t ende = klein.find("</title", anfang);
  if (ende == std::string::npos) return {};
  return HilfeSeitenText(html.substr(anfang + 1, ende - anfang - 1));
}

std::string HilfeKlein(const std::string& text) {
  std::string s = text;
  for (std::size_t i = 0; i < s.size(); ++i) {
    const unsigned char c = static_cast<unsigned char>(s[i]);
    if (c >= 'A' && c <= 'Z') {
      s[i] = static_cast<char>(c - 'A' + 'a');
    } else if (c == 0xC3 && i + 1 < s.size()) {
      // U+00C0 .. U+00DE are the upper-case Latin-1 letters (U+00D7 is the multiplication sign).
      const unsigned char b = static_cast<unsigned char>(s[i + 1]);
      if (b >= 0x80 && b <= 0x9E && b != 0x97) s[i + 1] = static_cast<char>(b + 0x20);
      ++i;
    }
  }
  return s;
}

std::vector<std::string> HilfeSuchWoerter(const std::string& eingabe) {
  std::vector<std::string> woerter;
  const std::string klein = HilfeKlein(eingabe);
  std::string wort;
  auto fertig = [&] {
    if (!wort.empty() && std::find(woerter.begin(), woerter.end(), wort) == woerter.end())
      woerter.push_back(wort);
    wort.clear();
  };
  for (const char c : klein) {
    if (IstWortZeichen(static_cast<unsigned char>(c)))
      wort += c;
    else
      fertig();
  }
  fertig();
  return woerter;
}

int HilfeZaehle(const std::string& textKlein, const std::string& wort) {
  if (wort.empty()) return 0;
  int n = 0;
  for (std::size_t pos = textKlein.find(wort); pos != std::string::npos;
       pos = textKlein.find(wort, pos + wort.size()))
    ++n;
  return n;
}

std::vector<HilfeTreffer> SucheInHilfe(const std::string& verzeichnis, const std::string& eingabe) {
  std::vector<HilfeTreffer> treffer;
  const std::vector<std::string> woerter = HilfeSuchWoerter(eingabe);
  if (woerter.empty()) return treffer;
  namespace fs = std::filesystem;
  std::error_code fehler;
  for (fs::directory_iterator it(fs::u8path(verzeichnis), fehler), ende; !fehler && it != ende;
       it.increment(fehler)) {
    const fs::path pfad = it->path();
    if (pfad.extension() != ".html") continue;
    std::string html;
    if (!LeseDateiBytes(pfad.u8string(), html)) continue;
    const std::string text = HilfeKlein(HilfeSeitenText(html));
    int summe = 0;
    bool alle = true;
    for (const std::string& wort : woerter) {
      const int n = HilfeZaehle(text, wort);
      if (n == 0) {
        alle = false;
        break;
      }
      summe += n;
    }
    if (!alle) continue;
    HilfeTreffer t;
    t.datei = pfad.filename().u8string();
    t.titel = HilfeSeitenTitel(html);
    if (t.titel.empty()) t.titel = t.datei;
    t.anzahl = summe;
    treffer.push_back(t);
  }
  std::sort(treffer.begin(), treffer.end(), [](const HilfeTreffer& a, const HilfeTreffer& b) {
    if (a.anzahl != b.anzahl) return a.anzahl > b.anzahl;
    if (a.titel != b.titel) return a.titel < b.titel;
    return a.datei < b.datei;
  });
  return treffer;
}

} // namespace quor
