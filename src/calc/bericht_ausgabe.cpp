// The batch report into a text file and onto the printer.
#include "calc/bericht_zeilen.h"
#include "core/datei_io.h"
#include "core/festtext.h"
#include "core/text_kodierung.h"

#include <algorithm>
#include <filesystem>

namespace quor {
namespace {

std::string Wiederholt(const std::string& zeichen, std::size_t n) {
  std::string t;
  for (std::size_t i = 0; i < n; ++i)
    t += zeichen;
  return t;
}

bool NurBlanks(const std::string& t) {
  return t.find_first_not_of(' ') == std::string::npos;
}

} // namespace

std::string BerichtText(const ProjectState& s, const RechenKontext& k, const BerichtAuftrag& a) {
  std::string text;
  for (const BerichtZeile& z : BerichtZeilen(s, k, a, BerichtZiel::Datei)) {
    text += Wiederholt(z.linienZeichen, z.linienLaenge);
    std::size_t spalte = 0;
    for (const BerichtEintrag& e : z.eintraege) {
      if (e.spalte < spalte) {
        text += "\r\n";
        spalte = 0;
      }
      text.append(e.spalte - spalte, ' ');
      text += e.text;
      spalte = e.spalte + Utf8Laenge(e.text);
    }
    text += "\r\n";
  }
  return text;
}

std::string BerichtDateiName(const std::string& name, const std::string& verzeichnis) {
  std::string datei = name;
  if (datei.find('.') == std::string::npos && Utf8Laenge(datei) < 9 && datei.rfind("LPT", 0) != 0)
    datei += ".LST";
  if (datei.find_first_of("\\/") != std::string::npos || verzeichnis.empty()) return datei;
  return (std::filesystem::u8path(verzeichnis) / std::filesystem::u8path(datei)).u8string();
}

bool SchreibeBericht(const std::string& pfad, const ProjectState& s, const RechenKontext& k,
                     const BerichtAuftrag& a) {
  return SchreibeDateiBytes(pfad, Utf8ZuWin1252(BerichtText(s, k, a)));
}

namespace {

// Characters of the widest printed line, its rule included.
std::size_t BreitesteZeile(const std::vector<BerichtZeile>& zeilen) {
  std::size_t breit = 0;
  for (const BerichtZeile& z : zeilen) {
    breit = std::max(breit, z.linienLaenge);
    for (const BerichtEintrag& e : z.eintraege)
      breit = std::max(breit, e.spalte + Utf8Laenge(e.text));
  }
  return breit;
}

// The printer's font; a list wider than the page is set smaller, down to 7 points, so that no
// column is cut off.
void SchriftWaehlen(ui::Drucker& d, std::size_t zeichen) {
  constexpr double Groesse = 10, Kleinste = 7;
  d.Schrift("COURIER", Groesse);
  const double breite = d.TextBreite(std::string(zeichen, 'X'));
  if (breite > d.SeitenBreite() && d.SeitenBreite() > 0)
    d.Schrift("COURIER", std::max(Kleinste, Groesse * d.SeitenBreite() / breite));
}

// Line by line down the page; a line that does not fit any more starts the next page.
class Zeilenvorschub {
public:
  explicit Zeilenvorschub(ui::Drucker& d) : d_(d), h_(d.ZeilenHoehe()) {}
  double Y() const { return y_; }
  double H() const { return h_; }
  void Weiter() {
    y_ += h_;
    if (y_ + h_ > d_.SeitenHoehe() && y_ > 0) {
      d_.NeueSeite();
      y_ = 0;
    }
  }

private:
  ui::Drucker& d_;
  double h_;
  double y_ = 0;
};

} // namespace

bool DruckeBericht(ui::Drucker& d, const ProjectState& s, const RechenKontext& k, const BerichtAuftrag& a) {
  const auto zeilen = BerichtZeilen(s, k, a, BerichtZiel::Drucker);
  if (!d.StartDokument("QUOR: Results of Calculation")) return false;
  SchriftWaehlen(d, BreitesteZeile(zeilen));
  const double x = d.TextBreite("X");
  Zeilenvorschub zeile(d);
  for (const BerichtZeile& z : zeilen) {
    if (z.linienLaenge > 0) {
      const double mitte = zeile.Y() + zeile.H() / 2;
      d.Linie(0, mitte, static_cast<double>(z.linienLaenge) * x, mitte);
    }
    std::size_t spalte = 0;
    for (const BerichtEintrag& e : z.eintraege) {
      if (e.spalte < spalte) {
        zeile.Weiter();
        spalte = 0;
      }
      spalte = e.spalte + Utf8Laenge(e.text);
      if (NurBlanks(e.text)) continue;
      d.Position(static_cast<double>(e.spalte) * x, zeile.Y());
      d.DruckeText(e.text);
    }
    zeile.Weiter();
  }
  d.EndeDokument();
  return true;
}

} // namespace quor
