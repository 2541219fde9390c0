#include "calc/protokoll.h"

#include "core/datei_io.h"
#include "core/text_kodierung.h"
#include "core/zahlformat.h"

#include <algorithm>
#include <cmath>
#include <ctime>
#include <filesystem>
#include <system_error>

namespace quor {

const char* const TrennzeichenWarnung =
    "Bei Computereinstellung \"Deutschland\" (Dezimalzeichen Komma)\r\n"
    "ist Komma als Dateitrennzeichen nicht sinnvoll; der Clipboard-Inhalt\r\n"
    "ist nicht mehr Excel-kompatibel.\r\n"
    "\r\n"
    "unbedingte Empfehlung: Semikolon (Einstellung unter \"Optionen\")";
const char* const TrennzeichenWarnungTitel = "Warnung Trennzeichen (Delimiter)";

namespace {

// The column names as one text; the split is always at ";", whatever the delimiter of the file.
constexpr const char* SpaltenText =
    "T;p;rho(global);v(global);rho(L);cp(S);x;cp(idG);x;v(V);h(V);s(V);g(V);u(V);a(V);eH(V); "
    "eU(V);cp(V);cV(V);"
    "v(L);h(L);s(L);g(L);u(L);a(L);eH(L);eU(L);cp(L);cV(L);delta(LV)h;delta(LV)s;alpha(V);chi(V);beta(V);"
    "delta(V);alpha(L);chi(L);beta(L);delta(L);sound speed(L);sound speed(V);B";

std::string ZweiStellen(int n) {
  return (n < 10 ? "0" : "") + std::to_string(n);
}

// Characters `von` .. `von + anzahl` of a date text, cut to what it holds.
std::string Teil(const std::string& text, std::size_t von, std::size_t anzahl) {
  return von < text.size() ? text.substr(von, anzahl) : std::string();
}

std::string EinheitenZeile(const ProjectState& s) {
  std::string z = "units: [T] = K   [p] = kPa   [B] = m^3/kmol    ";
  switch (s.Einheiten.VolumenMode) {
  case 1:
    return z + "[v] = m^3/kg";
  case 2:
    return z + "[v(red)] = 1";
  default:
    return z + "[v] = m^3/kmol ";
  }
}

void EntferneLeereDatei(const std::string& pfad) {
  std::error_code ec;
  const auto p = std::filesystem::u8path(pfad);
  if (std::filesystem::is_regular_file(p, ec) && std::filesystem::file_size(p, ec) == 0)
    std::filesystem::remove(p, ec);
}

} // namespace

const std::vector<std::string>& ProtokollSpalten() {
  static const std::vector<std::string> spalten = [] {
    std::vector<std::string> v;
    std::string name;
    for (const char* c = SpaltenText; *c != '\0'; ++c) {
      if (*c == ';') {
        v.push_back(name);
        name.clear();
      } else {
        name += *c;
      }
    }
    v.push_back(name);
    return v;
  }();
  return spalten;
}

std::string ModellText(const ProjectState& s) {
  const int i = s.Modell.EOSIndex;
  if (i < 0 || i >= static_cast<int>(s.Tab.EOSNamen.size())) return std::string();
  const std::string& t = s.Tab.EOSNamen[static_cast<std::size_t>(i)];
  return t.substr(0, t.find_last_not_of(' ') + 1);
}

std::string SystemDatum() {
  const std::time_t jetzt = std::time(nullptr);
  std::tm zeit{};
  localtime_r(&jetzt, &zeit);
  char text[16];
  std::strftime(text, sizeof text, "%d.%m.%Y", &zeit);
  return text;
}

std::string NeuerProtokollName(const std::string& verzeichnis, const std::string& datum) {
  const std::string jahr = datum.size() >= 2 ? datum.substr(datum.size() - 2) : datum;
  const std::string stamm = jahr + Teil(datum, 0, 2) + Teil(datum, 3, 2);
  std::string name;
  for (int nummer = 1; nummer <= 99; ++nummer) {
    name = stamm + ZweiStellen(nummer) + ".CSV";
    const std::string pfad =
        verzeichnis.empty()
            ? name
            : (std::filesystem::u8path(verzeichnis) / std::filesystem::u8path(name)).u8string();
    if (!DateiExistiert(pfad)) break;
  }
  return name;
}

std::string ProtokollPfad(const ProjectState& s, const std::string& name) {
  const std::string& verzeichnis = s.Datenbank.ProgrammVerzeichnis;
  if (name.find_first_of("\\/") != std::string::npos || verzeichnis.empty()) return name;
  return (std::filesystem::u8path(verzeichnis) / std::filesystem::u8path(name)).u8string();
}

std::string ProtokollText(const ProjectState& s, const ProtokollZustand& p, const std::string& datum) {
  const auto& spalten = ProtokollSpalten();
  std::array<float, ErgebnisZellen> summe{};
  for (const auto& zeile : p.ProtokollWerte)
    for (int c = 0; c < ErgebnisZellen; ++c)
      summe[c] += zeile[c];

  const char trenner = s.Optionen.CsvTrenner;
  std::string text;
  auto zeile = [&text](const std::string& z) { text += z + "\r\n"; };
  zeile("QUOR-6: p-V-T Calculations of States and Processes - record from " + datum);
  zeile(s.Stoff.StoffName);
  zeile(ModellText(s));
  zeile(EinheitenZeile(s));
  if (s.Einheiten.EnergieMode == 0) zeile("molar SI-units for function z: [z] = kJ/kmol or kJ/(kmol K)");
  if (s.Einheiten.EnergieMode == 3) zeile("specific SI-units for function z: [z] = kJ/kg or kJ/(kg K)");
  zeile("");

  std::string kopf;
  for (int c = 0; c < ErgebnisZellen; ++c)
    if (std::fabs(summe[c]) > 0) kopf += spalten[c] + trenner;
  zeile(kopf);
  for (const auto& werte : p.ProtokollWerte) {
    std::string z;
    for (int c = 0; c < ErgebnisZellen; ++c)
      if (std::fabs(summe[c]) > 0) z += SingleText(werte[c]) + trenner;
    zeile(z);
  }
  return text;
}

void ProtokollAufnehmen(const ProjectState& s, ui::Oberflaeche& ui, ProtokollZustand& p,
                        const ErgebnisVektor& e) {
  if (s.Optionen.CsvTrenner == ',' && s.Optionen.DezimalKomma)
    ui.Meldung(TrennzeichenWarnung, TrennzeichenWarnungTitel, ui::Symbol::Ausruf);
  p.ProtokollOffen = true;
  ProtokollZeile zeile{};
  for (int c = 0; c < ErgebnisZellen; ++c)
    zeile[c] = static_cast<float>(e[c]);
  p.ProtokollWerte.push_back(zeile);
  p.ProtokollAnzahl = static_cast<int16_t>(p.ProtokollWerte.size());
}

std::string ProtokollSchliessen(const ProjectState& s, ui::Oberflaeche& ui, ProtokollZustand& p,
                                const std::string& datum) {
  const std::string pfad = ProtokollPfad(s, p.ProtokollDatei);
  bool geschrieben = false;
  if (p.ProtokollAnzahl > 0 && !p.ProtokollDatei.empty() &&
      !(geschrieben = SchreibeDateiBytes(pfad, Utf8ZuWin1252(ProtokollText(s, p, datum)))))
    ui.Meldung("Die Protokolldatei konnte nicht geschrieben werden:\r\n" + pfad,
               "Fehler bei Protokoll-Ausgabe", ui::Symbol::Kritisch);
  if (!p.ProtokollDatei.empty()) EntferneLeereDatei(pfad);

  std::string bytes;
  std::string text;
  if (!p.ProtokollDatei.empty() && LeseDateiBytes(pfad, bytes)) text = DateitextZuUtf8(bytes);
  std::replace(text.begin(), text.end(), s.Optionen.CsvTrenner, '\t');
  ui.ZwischenablageSetzen(text);

  p.ProtokollDatei = NeuerProtokollName(s.Datenbank.ProgrammVerzeichnis, datum);
  p.ProtokollOffen = false;
  p.ProtokollAnzahl = 0;
  p.ProtokollWerte.clear();
  return geschrieben ? pfad : std::string();
}

} // namespace quor
