// The batch report into a text file and onto the printer.
#include "calc/bericht_zeilen.h"
#include "core/datei_io.h"
#include "core/festtext.h"
#include "core/text_kodierung.h"

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

bool DruckeBericht(ui::Drucker& d, const ProjectState& s, const RechenKontext& k, const BerichtAuftrag& a) {
  const auto zeilen = BerichtZeilen(s, k, a, BerichtZiel::Drucker);
  if (!d.StartDokument("QUOR: Results of Calculation")) return false;
  d.Schrift("COURIER", 10);
  const double x = d.TextBreite("X");
  const double h = d.ZeilenHoehe();
  double y = d.Y();
  for (const BerichtZeile& z : zeilen) {
    if (z.linienLaenge > 0) d.Linie(0, y + h / 2, static_cast<double>(z.linienLaenge) * x, y + h / 2);
    std::size_t spalte = 0;
    for (const BerichtEintrag& e : z.eintraege) {
      if (e.spalte < spalte) {
        y += h;
        spalte = 0;
      }
      spalte = e.spalte + Utf8Laenge(e.text);
      if (NurBlanks(e.text)) continue;
      d.Position(static_cast<double>(e.spalte) * x, y);
      d.DruckeText(e.text);
    }
    y += h;
  }
  d.EndeDokument();
  return true;
}

} // namespace quor
