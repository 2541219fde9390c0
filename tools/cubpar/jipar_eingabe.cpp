#include "jipar_eingabe.h"

#include "core/zahl_lesen.h"

namespace cubpar {

namespace {

constexpr std::size_t ZeilenLaenge = 12; // values of lines 6 and 7

std::vector<std::string> Zeilen(const std::string& text) {
  std::vector<std::string> z;
  std::string aktuell;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\r' || c == '\n') {
      z.push_back(aktuell);
      aktuell.clear();
      if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
    } else {
      aktuell += c;
    }
  }
  if (!aktuell.empty()) z.push_back(aktuell);
  return z;
}

// The values of a line separated by commas; false when a field is not a number.
bool Werte(const std::string& zeile, std::vector<double>& werte) {
  werte.clear();
  std::size_t anfang = 0;
  while (anfang <= zeile.size()) {
    std::size_t ende = zeile.find(',', anfang);
    if (ende == std::string::npos) ende = zeile.size();
    const quor::ZahlErgebnis z = quor::LeseZahl(std::string_view(zeile).substr(anfang, ende - anfang));
    if (!z.ok) return false;
    werte.push_back(z.wert);
    anfang = ende + 1;
  }
  return true;
}

bool Zeile(const std::vector<std::string>& z, std::size_t nr, std::size_t mindestens,
           std::vector<double>& werte, std::string& fehler) {
  if (nr > z.size()) {
    werte.assign(mindestens, 0.0);
    return true;
  }
  if (!Werte(z[nr - 1], werte)) {
    fehler = "Zeile " + std::to_string(nr) + ": keine Zahl";
    return false;
  }
  if (werte.size() < mindestens) werte.resize(mindestens, 0.0);
  return true;
}

bool Vollstaendig(const std::vector<double>& werte, std::size_t anzahl, std::size_t nr, std::string& fehler) {
  if (werte.size() >= anzahl) return true;
  fehler = "Zeile " + std::to_string(nr) + ": zu wenige Werte";
  return false;
}

} // namespace

bool LeseJiParEingabe(const std::string& bytes, JiParEingabe& e, std::string& fehler) {
  const std::vector<std::string> z = Zeilen(bytes);
  if (z.size() < 5) {
    fehler = "jipar.tmp hat weniger als fünf Zeilen";
    return false;
  }
  const quor::ZahlErgebnis modell = quor::LeseZahl(z[0]);
  if (!modell.ok || (modell.wert != 10 && modell.wert != 11)) {
    fehler = "Zeile 1: Modellcode 10 oder 11 erwartet";
    return false;
  }
  e.modellCode = static_cast<int>(modell.wert);
  e.cas = z[1];
  const std::size_t a = e.cas.find('"'), b = e.cas.rfind('"');
  if (a != std::string::npos && b > a) e.cas = e.cas.substr(a + 1, b - a - 1);
  std::vector<double> codes;
  if (!Werte(z[2], codes) || !Vollstaendig(codes, 2, 3, fehler)) {
    if (fehler.empty()) fehler = "Zeile 3: keine Zahl";
    return false;
  }
  e.code1 = static_cast<int>(codes[0]);
  e.code2 = static_cast<int>(codes[1]);
  return Zeile(z, 4, 0, e.kritisch, fehler) && Vollstaendig(e.kritisch, 6, 4, fehler) &&
         Zeile(z, 5, 0, e.dichte, fehler) && Vollstaendig(e.dichte, 9, 5, fehler) &&
         Zeile(z, 6, ZeilenLaenge, e.dampfdruck, fehler) && Zeile(z, 7, ZeilenLaenge, e.antoine, fehler);
}

} // namespace cubpar
