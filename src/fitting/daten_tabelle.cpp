#include "fitting/daten_tabelle.h"

#include "core/zahl_lesen.h"
#include "core/zahlformat.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace quor {

namespace {

// The model holds no NaN or infinity: such a value is stored as 0, "no value".
double Endlich(double x) {
  return std::isfinite(x) ? x : 0.0;
}

// A cell of pasted text, read as Basic's Val() reads it after "," has become ".".
double ZellWert(std::string zelle) {
  std::replace(zelle.begin(), zelle.end(), ',', '.');
  return Endlich(ValVB(zelle));
}

// Lines of clipboard text: a line ends at CR (an LF behind it belongs to the same end) or at a lone
// LF; the empty piece behind a last line end is no line.
std::vector<std::string_view> TextZeilen(std::string_view text) {
  std::vector<std::string_view> zeilen;
  std::size_t pos = 0;
  while (pos < text.size()) {
    const std::size_t ende = text.find_first_of("\r\n", pos);
    if (ende == std::string_view::npos) {
      zeilen.push_back(text.substr(pos));
      break;
    }
    zeilen.push_back(text.substr(pos, ende - pos));
    pos = ende + 1;
    if (text[ende] == '\r' && pos < text.size() && text[pos] == '\n') ++pos;
  }
  return zeilen;
}

std::vector<std::string> Zellen(std::string_view zeile) {
  std::vector<std::string> zellen;
  std::size_t pos = 0;
  while (true) {
    const std::size_t tab = zeile.find('\t', pos);
    zellen.emplace_back(
        zeile.substr(pos, tab == std::string_view::npos ? std::string_view::npos : tab - pos));
    if (tab == std::string_view::npos) break;
    pos = tab + 1;
  }
  return zellen;
}

bool AlleNull(const DatenZeile& z) {
  return std::all_of(z.Werte.begin(), z.Werte.end(), [](double w) { return w == 0.0; });
}

} // namespace

DatenTabelle::DatenTabelle(int spalten) : spalten_(std::max(spalten, 1)) {
  CursorZeile = -1;
}

void DatenTabelle::Setzen(std::vector<DatenZeile> zeilen) {
  zeilen_.clear();
  for (DatenZeile& z : zeilen)
    Anhaengen(std::move(z));
  CursorZeile = zeilen_.empty() ? -1 : 0;
  CursorSpalte = 0;
  Auswahl = TabellenAuswahl{};
}

void DatenTabelle::Anhaengen(DatenZeile z) {
  z.Werte.resize(static_cast<std::size_t>(spalten_), 0.0);
  for (double& w : z.Werte)
    w = Endlich(w);
  zeilen_.push_back(std::move(z));
  if (CursorZeile < 0) CursorZeile = 0;
}

void DatenTabelle::Ersetzen(int zeile, DatenZeile z) {
  if (zeile < 0 || zeile >= Anzahl()) return;
  z.Werte.resize(static_cast<std::size_t>(spalten_), 0.0);
  for (double& w : z.Werte)
    w = Endlich(w);
  zeilen_[static_cast<std::size_t>(zeile)] = std::move(z);
}

void DatenTabelle::SetzeWert(int zeile, int spalte, double wert) {
  if (zeile < 0 || zeile >= Anzahl() || spalte < 0 || spalte >= spalten_) return;
  zeilen_[static_cast<std::size_t>(zeile)].Werte[static_cast<std::size_t>(spalte)] = Endlich(wert);
}

bool DatenTabelle::Sortieren(int spalte) {
  if (zeilen_.empty() || spalte < 0 || spalte >= spalten_) return false;
  const auto k = static_cast<std::size_t>(spalte);
  // Exchanging only neighbours that are strictly out of order keeps equal keys in their order.
  for (std::size_t ende = zeilen_.size(); ende > 1; --ende) {
    bool getauscht = false;
    for (std::size_t i = 0; i + 1 < ende; ++i) {
      if (zeilen_[i].Werte[k] > zeilen_[i + 1].Werte[k]) {
        std::swap(zeilen_[i], zeilen_[i + 1]);
        getauscht = true;
      }
    }
    if (!getauscht) break;
  }
  return true;
}

bool DatenTabelle::AktivUmschalten(int zeile) {
  if (zeile < 0 || zeile >= Anzahl()) return false;
  DatenZeile& z = zeilen_[static_cast<std::size_t>(zeile)];
  z.Inaktiv = !z.Inaktiv;
  return true;
}

void DatenTabelle::ZeilenLoeschen(int von, int bis) {
  if (von > bis) std::swap(von, bis);
  von = std::max(von, 0);
  bis = std::min(bis, Anzahl() - 1);
  if (von > bis) return;
  zeilen_.erase(zeilen_.begin() + von, zeilen_.begin() + bis + 1);
  CursorZeile = zeilen_.empty() ? -1 : std::min(von, Anzahl() - 1);
  Auswahl = TabellenAuswahl{};
}

void DatenTabelle::ZellenLeeren(const TabellenAuswahl& a) {
  if (a.Leer()) return;
  for (int i = std::max(a.Zeile1, 0); i <= std::min(a.Zeile2, Anzahl() - 1); ++i)
    for (int j = std::max(a.Spalte1, 0); j <= std::min(a.Spalte2, spalten_ - 1); ++j)
      SetzeWert(i, j, 0.0);
}

std::string DatenTabelle::AuswahlText(const TabellenAuswahl& a) const {
  std::string text;
  if (a.Leer()) return text;
  for (int i = std::max(a.Zeile1, 0); i <= std::min(a.Zeile2, Anzahl() - 1); ++i) {
    const DatenZeile& z = Zeile(i);
    for (int j = std::max(a.Spalte1, 0); j <= std::min(a.Spalte2, spalten_ - 1); ++j) {
      if (j > std::max(a.Spalte1, 0)) text += '\t';
      text += ZellText(z.Werte[static_cast<std::size_t>(j)]);
    }
    text += '\r';
  }
  return text;
}

bool DatenTabelle::Einfuegen(std::string_view text, int zeile, int spalte) {
  if (text.empty()) return false;
  zeile = std::clamp(zeile, 0, Anzahl());
  spalte = std::clamp(spalte, 0, spalten_ - 1);
  const std::vector<std::string_view> zeilen = TextZeilen(text);
  const int bisZeile = zeile + static_cast<int>(zeilen.size()) - 1;
  while (Anzahl() <= bisZeile)
    Anhaengen(DatenZeile{});
  for (std::size_t i = 0; i < zeilen.size(); ++i) {
    const std::vector<std::string> zellen = Zellen(zeilen[i]);
    for (std::size_t j = 0; j < zellen.size() && spalte + static_cast<int>(j) < spalten_; ++j)
      SetzeWert(zeile + static_cast<int>(i), spalte + static_cast<int>(j), ZellWert(zellen[j]));
  }
  // An empty line at the end of the text (a line break too many) leaves a row without any value.
  if (bisZeile >= Anzahl() - 1 && !zeilen_.empty() && AlleNull(zeilen_.back())) {
    zeilen_.pop_back();
    CursorZeile = std::min(CursorZeile, Anzahl() - 1);
  }
  return true;
}

std::vector<int> DatenTabelle::Gemessen() const {
  std::vector<int> n(static_cast<std::size_t>(spalten_), 0);
  for (const DatenZeile& z : zeilen_)
    for (std::size_t j = 0; j < n.size(); ++j)
      if (z.Werte[j] >= GemessenAb) ++n[j];
  return n;
}

std::string DatenTabelle::ZellText(double wert) {
  if (!std::isfinite(wert) || wert == 0.0) return " 0";
  const std::string text = std::fabs(wert) <= std::numeric_limits<float>::max()
                               ? SingleText(static_cast<float>(wert))
                               : DoubleText(wert);
  return wert > 0 ? " " + text : text;
}

} // namespace quor
