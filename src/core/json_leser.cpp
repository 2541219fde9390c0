#include "core/json_leser.h"

#include <charconv>
#include <cmath>
#include <cstdint>

namespace quor {

const JsonWert* JsonWert::Feld(std::string_view name) const {
  if (art != Art::Objekt) return nullptr;
  for (const auto& [schluessel, wert] : objekt)
    if (schluessel == name) return &wert;
  return nullptr;
}

namespace {

class Leser {
public:
  explicit Leser(std::string_view t) : t_(t) {}

  JsonErgebnis Lesen() {
    JsonErgebnis e;
    if (t_.substr(0, 3) == "\xEF\xBB\xBF") pos_ = 3;
    JsonWert w;
    if (Wert(w, 0)) {
      Leer();
      if (pos_ == t_.size()) {
        e.wert = std::move(w);
        return e;
      }
      Fehler("Text nach dem Ende");
    }
    e.fehler = fehler_ + " (Byte " + std::to_string(fehlerPos_ + 1) + ")";
    return e;
  }

private:
  bool Fehler(const char* was) {
    if (fehler_.empty()) {
      fehler_ = was;
      fehlerPos_ = pos_;
    }
    return false;
  }

  void Leer() {
    while (pos_ < t_.size() && (t_[pos_] == ' ' || t_[pos_] == '\t' || t_[pos_] == '\n' || t_[pos_] == '\r'))
      ++pos_;
  }

  bool Wort(std::string_view w) {
    if (t_.substr(pos_, w.size()) != w) return Fehler("unbekanntes Wort");
    pos_ += w.size();
    return true;
  }

  bool Wert(JsonWert& w, int tiefe) {
    if (tiefe > JsonMaxTiefe) return Fehler("zu tief verschachtelt");
    Leer();
    if (pos_ >= t_.size()) return Fehler("Text endet zu früh");
    switch (t_[pos_]) {
    case '{':
      return Objekt(w, tiefe);
    case '[':
      return Liste(w, tiefe);
    case '"':
      w.art = JsonWert::Art::Text;
      return Text(w.text);
    case 't':
      w.art = JsonWert::Art::Bool;
      w.wahr = true;
      return Wort("true");
    case 'f':
      w.art = JsonWert::Art::Bool;
      return Wort("false");
    case 'n':
      return Wort("null");
    default:
      return Zahl(w);
    }
  }

  bool Objekt(JsonWert& w, int tiefe) {
    w.art = JsonWert::Art::Objekt;
    ++pos_;
    Leer();
    if (pos_ < t_.size() && t_[pos_] == '}') return ++pos_, true;
    for (;;) {
      Leer();
      std::string schluessel;
      if (pos_ >= t_.size() || t_[pos_] != '"') return Fehler("Schlüssel erwartet");
      if (!Text(schluessel)) return false;
      Leer();
      if (pos_ >= t_.size() || t_[pos_] != ':') return Fehler("':' erwartet");
      ++pos_;
      JsonWert kind;
      if (!Wert(kind, tiefe + 1)) return false;
      w.objekt.emplace_back(std::move(schluessel), std::move(kind));
      if (!NachElement('}')) return false;
      if (t_[pos_ - 1] == '}') return true;
    }
  }

  bool Liste(JsonWert& w, int tiefe) {
    w.art = JsonWert::Art::Liste;
    ++pos_;
    Leer();
    if (pos_ < t_.size() && t_[pos_] == ']') return ++pos_, true;
    for (;;) {
      JsonWert kind;
      if (!Wert(kind, tiefe + 1)) return false;
      w.liste.push_back(std::move(kind));
      if (!NachElement(']')) return false;
      if (t_[pos_ - 1] == ']') return true;
    }
  }

  // After an element: a comma, or the closing bracket; both are consumed.
  bool NachElement(char ende) {
    Leer();
    if (pos_ >= t_.size()) return Fehler("Text endet zu früh");
    if (t_[pos_] == ',' || t_[pos_] == ende) return ++pos_, true;
    return Fehler(ende == '}' ? "',' oder '}' erwartet" : "',' oder ']' erwartet");
  }

  bool Zahl(JsonWert& w) {
    const std::size_t anfang = pos_;
    if (pos_ < t_.size() && t_[pos_] == '-') ++pos_;
    const auto ziffern = [this] {
      const std::size_t a = pos_;
      while (pos_ < t_.size() && t_[pos_] >= '0' && t_[pos_] <= '9') ++pos_;
      return pos_ > a;
    };
    // A leading zero stands alone: "01" is a zero followed by text.
    if (pos_ < t_.size() && t_[pos_] == '0') ++pos_;
    else if (!ziffern()) return Fehler("Wert erwartet");
    if (pos_ < t_.size() && t_[pos_] == '.') {
      ++pos_;
      if (!ziffern()) return Fehler("Ziffer erwartet");
    }
    if (pos_ < t_.size() && (t_[pos_] == 'e' || t_[pos_] == 'E')) {
      ++pos_;
      if (pos_ < t_.size() && (t_[pos_] == '+' || t_[pos_] == '-')) ++pos_;
      if (!ziffern()) return Fehler("Ziffer erwartet");
    }
    double x = 0;
    const auto r = std::from_chars(t_.data() + anfang, t_.data() + pos_, x);
    if (r.ec == std::errc::result_out_of_range) {
      // Underflow reads as zero; overflow is refused.
      const std::string_view ziffernText = t_.substr(anfang, pos_ - anfang);
      const std::size_t e = ziffernText.find_first_of("eE");
      if (e == std::string_view::npos || ziffernText.find('-', e) == std::string_view::npos) {
        pos_ = anfang;
        return Fehler("Zahl zu groß");
      }
      x = 0;
    } else if (r.ec != std::errc() || !std::isfinite(x)) {
      pos_ = anfang;
      return Fehler("Zahl zu groß");
    }
    w.art = JsonWert::Art::Zahl;
    w.zahl = x;
    return true;
  }

  bool Hex4(uint32_t& u) {
    if (pos_ + 4 > t_.size()) return Fehler("Text endet zu früh");
    u = 0;
    for (int i = 0; i < 4; ++i) {
      const char c = t_[pos_++];
      u <<= 4;
      if (c >= '0' && c <= '9') u |= static_cast<uint32_t>(c - '0');
      else if (c >= 'a' && c <= 'f') u |= static_cast<uint32_t>(c - 'a' + 10);
      else if (c >= 'A' && c <= 'F') u |= static_cast<uint32_t>(c - 'A' + 10);
      else return Fehler("falsches \\u-Zeichen");
    }
    return true;
  }

  static void Utf8(uint32_t u, std::string& aus) {
    if (u < 0x80) {
      aus += static_cast<char>(u);
    } else if (u < 0x800) {
      aus += static_cast<char>(0xC0 | (u >> 6));
      aus += static_cast<char>(0x80 | (u & 0x3F));
    } else if (u < 0x10000) {
      aus += static_cast<char>(0xE0 | (u >> 12));
      aus += static_cast<char>(0x80 | ((u >> 6) & 0x3F));
      aus += static_cast<char>(0x80 | (u & 0x3F));
    } else {
      aus += static_cast<char>(0xF0 | (u >> 18));
      aus += static_cast<char>(0x80 | ((u >> 12) & 0x3F));
      aus += static_cast<char>(0x80 | ((u >> 6) & 0x3F));
      aus += static_cast<char>(0x80 | (u & 0x3F));
    }
  }

  bool Escape(std::string& aus) {
    if (pos_ >= t_.size()) return Fehler("Text endet zu früh");
    const char c = t_[pos_++];
    switch (c) {
    case '"': aus += '"'; return true;
    case '\\': aus += '\\'; return true;
    case '/': aus += '/'; return true;
    case 'b': aus += '\b'; return true;
    case 'f': aus += '\f'; return true;
    case 'n': aus += '\n'; return true;
    case 'r': aus += '\r'; return true;
    case 't': aus += '\t'; return true;
    case 'u': break;
    default: return --pos_, Fehler("falsches Escape-Zeichen");
    }
    uint32_t u = 0;
    if (!Hex4(u)) return false;
    if (u >= 0xD800 && u < 0xDC00 && t_.substr(pos_, 2) == "\\u") {
      pos_ += 2;
      uint32_t tief = 0;
      if (!Hex4(tief)) return false;
      if (tief >= 0xDC00 && tief < 0xE000) u = 0x10000 + ((u - 0xD800) << 10) + (tief - 0xDC00);
      else u = 0xFFFD;
    } else if (u >= 0xD800 && u < 0xE000) {
      u = 0xFFFD; // a lone half of a pair
    }
    Utf8(u, aus);
    return true;
  }

  bool Text(std::string& aus) {
    ++pos_; // the opening quote
    for (;;) {
      if (pos_ >= t_.size()) return Fehler("Text endet zu früh");
      const char c = t_[pos_++];
      if (c == '"') return true;
      if (c == '\\') {
        if (!Escape(aus)) return false;
      } else if (static_cast<unsigned char>(c) < 0x20) {
        --pos_;
        return Fehler("Steuerzeichen im Text");
      } else {
        aus += c;
      }
    }
  }

  std::string_view t_;
  std::size_t pos_ = 0;
  std::string fehler_;
  std::size_t fehlerPos_ = 0;
};

} // namespace

JsonErgebnis LeseJson(std::string_view text) {
  return Leser(text).Lesen();
}

} // namespace quor
