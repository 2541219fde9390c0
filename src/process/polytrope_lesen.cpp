// The reading side of the polytrope exchange: FROM_PEX.DAT line by line.
#include "core/text_kodierung.h"
#include "core/zahl_lesen.h"
#include "process/polytrope_austausch.h"

#include <cmath>
#include <string_view>

namespace quor::prozess {

namespace {

constexpr double Unendlich = 1e37; // a value at or beyond it stands for "none"

// The lines of the file without their ends; a last line end makes no empty line of its own.
std::vector<std::string> Zeilen(const std::string& text) {
  std::vector<std::string> z;
  std::string zeile;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\r' || c == '\n') {
      z.push_back(zeile);
      zeile.clear();
      if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
    } else {
      zeile += c;
    }
  }
  if (!zeile.empty()) z.push_back(zeile);
  return z;
}

// A number of the file after "," -> "."; false for anything else.
bool Zahl(std::string text, double& x) {
  for (char& c : text)
    if (c == ',') c = '.';
  const ZahlErgebnis e = LeseZahl(text);
  if (!e.ok) return false;
  x = e.wert >= Unendlich ? Unendlich : e.wert;
  return true;
}

bool Ganz(const std::string& text, long grenze, long& n) {
  double x = 0;
  if (!Zahl(text, x) || std::fabs(x) > grenze || x != std::round(x)) return false;
  n = static_cast<long>(x);
  return true;
}

// One point line: X and Y split at the separator.
bool Punkt(const std::string& zeile, char trenner, double& x, double& y) {
  const std::size_t k = zeile.find(trenner);
  if (k == std::string::npos) return false;
  std::string rest = zeile.substr(k + 1);
  const std::size_t k2 = rest.find(trenner);
  if (k2 != std::string::npos) rest.resize(k2);
  return Zahl(zeile.substr(0, k), x) && Zahl(rest, y);
}

class Leser {
public:
  Leser(const std::string& bytes, const ProjectState& s) : z_(Zeilen(DateitextZuUtf8(bytes))), s_(s) {}

  // The whole file into r; the reason of the first fault otherwise.
  std::string Lies(PolytropenErgebnis& r, int16_t& fehlerFlag) {
    long flag = 0, code = 0, n = 0;
    if (!Naechste(flag, 32767, "Fehlerflag")) return grund_;
    fehlerFlag = static_cast<int16_t>(flag);
    if (flag != 0) {
      r.bericht = Rest();
      return {};
    }
    if (!Naechste(code, 32767, "Ergebniscode") || !Naechste(n, 1000000, "Punktanzahl")) return grund_;
    r.code = static_cast<int16_t>(code);
    if (n < 0 || static_cast<std::size_t>(n) > PexKopfWerte + z_.size())
      return "Punktanzahl ungültig: " + std::to_string(n);
    for (double& k : r.kopf) {
      if (!Vorhanden()) return grund_;
      double x = 0;
      if (!Zahl(z_[i_], x)) return Ungueltig("Kopfwert");
      k = static_cast<float>(x);
      ++i_;
    }
    for (long p = 0; p < n; ++p) {
      if (!Vorhanden()) return grund_;
      double x = 0, y = 0;
      if (!Punkt(z_[i_], s_.Optionen.XYTrenner, x, y)) return Ungueltig("Punkt");
      r.X.push_back(x);
      r.Y.push_back(y);
      ++i_;
    }
    r.hatFixParameter = SetztFixParameter(r.code) && !r.X.empty();
    if (r.hatFixParameter) r.fixParameter = r.X.front();
    r.bericht = Rest();
    return {};
  }

private:
  bool Vorhanden() {
    if (i_ < z_.size()) return true;
    grund_ = "Einlesen hinter Dateiende";
    return false;
  }
  std::string Ungueltig(const std::string& was) {
    return "Typen unverträglich (" + was + " in Zeile " + std::to_string(i_ + 1) + ")";
  }
  bool Naechste(long& x, long grenze, const std::string& was) {
    if (!Vorhanden()) return false;
    if (!Ganz(z_[i_], grenze, x)) {
      grund_ = Ungueltig(was);
      return false;
    }
    ++i_;
    return true;
  }
  std::string Rest() {
    std::string t;
    for (std::size_t k = i_; k < z_.size(); ++k)
      t += (k > i_ ? "\r\n" : "") + z_[k];
    return t;
  }

  std::vector<std::string> z_;
  const ProjectState& s_;
  std::size_t i_ = 0;
  std::string grund_;
};

} // namespace

void read_from_PEX(const ProjectState& s, ui::Oberflaeche& ui, const std::string& bytes,
                   PolytropenErgebnis& r, int16_t& err) {
  err = 0;
  r = PolytropenErgebnis{};
  int16_t flag = 0;
  const std::string grund = Leser(bytes, s).Lies(r, flag);
  if (!grund.empty()) {
    ui.Meldung(grund, "Call from read_from_PEX:", ui::Symbol::Kritisch);
    r.X.clear();
    r.Y.clear();
    err = PexLeseFehler;
  } else if (flag != 0) {
    err = PexRechnerFehler;
  }
}

} // namespace quor::prozess
