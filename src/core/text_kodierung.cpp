#include "core/text_kodierung.h"

#include <cstdint>

namespace quor {
namespace {

// Code points of the bytes 0x80 to 0x9F; the undefined bytes keep their own number.
constexpr char32_t kC1Tabelle[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                     0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void HaengeUtf8An(std::string& aus, char32_t cp) {
  if (cp < 0x80) {
    aus += static_cast<char>(cp);
  } else if (cp < 0x800) {
    aus += static_cast<char>(0xC0 | (cp >> 6));
    aus += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    aus += static_cast<char>(0xE0 | (cp >> 12));
    aus += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    aus += static_cast<char>(0x80 | (cp & 0x3F));
  }
}

// Windows-1252 byte of a code point, or '?' when there is none.
char Win1252Byte(char32_t cp) {
  if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<char>(cp);
  for (int i = 0; i < 32; ++i) {
    if (kC1Tabelle[i] == cp) return static_cast<char>(0x80 + i);
  }
  return '?';
}

// Decodes one strictly valid UTF-8 character at bytes[i]; returns its length, 0 when invalid.
std::size_t DekodiereUtf8(std::string_view bytes, std::size_t i, char32_t& cp) {
  auto b = [&](std::size_t k) { return static_cast<std::uint8_t>(bytes[k]); };
  std::uint8_t b0 = b(i);
  if (b0 < 0x80) {
    cp = b0;
    return 1;
  }
  std::size_t n = b0 >= 0xF0 ? 4 : b0 >= 0xE0 ? 3 : b0 >= 0xC0 ? 2 : 0;
  if (n == 0 || b0 > 0xF4 || i + n > bytes.size()) return 0;
  cp = b0 & (0x7F >> n);
  for (std::size_t k = 1; k < n; ++k) {
    if ((b(i + k) & 0xC0) != 0x80) return 0;
    cp = (cp << 6) | (b(i + k) & 0x3F);
  }
  static constexpr char32_t kMinimum[5] = {0, 0, 0x80, 0x800, 0x10000};
  if (cp < kMinimum[n] || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) return 0;
  return n;
}

} // namespace

std::string Win1252ZuUtf8(std::string_view bytes) {
  std::string aus;
  aus.reserve(bytes.size() + bytes.size() / 4);
  for (char c : bytes) {
    auto b = static_cast<std::uint8_t>(c);
    HaengeUtf8An(aus, b >= 0x80 && b < 0xA0 ? kC1Tabelle[b - 0x80] : char32_t{b});
  }
  return aus;
}

std::string Utf8ZuWin1252(std::string_view utf8) {
  std::string aus;
  aus.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    char32_t cp = 0;
    std::size_t n = DekodiereUtf8(utf8, i, cp);
    aus += n == 0 ? '?' : Win1252Byte(cp);
    i += n == 0 ? 1 : n;
  }
  return aus;
}

bool IstUtf8(std::string_view bytes) {
  for (std::size_t i = 0; i < bytes.size();) {
    char32_t cp = 0;
    std::size_t n = DekodiereUtf8(bytes, i, cp);
    if (n == 0) return false;
    i += n;
  }
  return true;
}

std::string DateitextZuUtf8(std::string_view bytes) {
  constexpr std::string_view kBom = "\xEF\xBB\xBF";
  if (bytes.substr(0, kBom.size()) == kBom) bytes.remove_prefix(kBom.size());
  return IstUtf8(bytes) ? std::string(bytes) : Win1252ZuUtf8(bytes);
}

} // namespace quor
