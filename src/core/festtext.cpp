#include "core/festtext.h"

namespace quor {

namespace {
bool IstFolgebyte(unsigned char c) {
  return (c & 0xC0) == 0x80;
}
} // namespace

std::size_t Utf8Laenge(std::string_view utf8) {
  std::size_t n = 0;
  for (unsigned char c : utf8)
    if (!IstFolgebyte(c)) ++n;
  return n;
}

std::string FestText(std::string_view utf8, std::size_t breite) {
  std::size_t zeichen = 0;
  std::size_t pos = 0;
  while (pos < utf8.size()) {
    if (!IstFolgebyte(static_cast<unsigned char>(utf8[pos]))) {
      if (zeichen == breite) break;
      ++zeichen;
    }
    ++pos;
  }
  std::string ergebnis(utf8.substr(0, pos));
  ergebnis.append(breite - zeichen, ' ');
  return ergebnis;
}

std::string RechtsBuendig(std::string_view utf8, std::size_t breite) {
  const std::size_t laenge = Utf8Laenge(utf8);
  std::string ergebnis;
  if (laenge < breite) ergebnis.assign(breite - laenge, ' ');
  ergebnis.append(utf8);
  return ergebnis;
}

std::string_view TrimAnsicht(std::string_view text) {
  const auto anfang = text.find_first_not_of(" \t");
  if (anfang == std::string_view::npos) return {};
  const auto ende = text.find_last_not_of(" \t");
  return text.substr(anfang, ende - anfang + 1);
}

std::string Trim(std::string_view text) {
  return std::string(TrimAnsicht(text));
}

} // namespace quor
