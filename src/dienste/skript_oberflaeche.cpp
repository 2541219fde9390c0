#include "dienste/skript_oberflaeche.h"

#include <sstream>

namespace quor::ui {

namespace {
std::string Zahl(double x) {
  std::ostringstream t;
  t << x;
  return t.str();
}
} // namespace

bool SkriptDrucker::StartDokument(const std::string& dokumentName) {
  protokoll.push_back("Start " + dokumentName);
  x_ = y_ = 0;
  return verfuegbar;
}

void SkriptDrucker::Schrift(const std::string& name, double groesse, bool fett) {
  groesse_ = groesse > 0 ? groesse : 10;
  protokoll.push_back("Schrift " + name + " " + Zahl(groesse) + (fett ? " fett" : ""));
}

// A fixed-pitch font whose characters are 0.6 of the font size wide.
double SkriptDrucker::TextBreite(const std::string& text) {
  std::size_t zeichen = 0;
  for (unsigned char c : text)
    if ((c & 0xC0) != 0x80) ++zeichen;
  return 0.6 * groesse_ * static_cast<double>(zeichen);
}

double SkriptDrucker::ZeilenHoehe() {
  return 1.2 * groesse_;
}

void SkriptDrucker::Position(double x, double y) {
  x_ = x;
  y_ = y;
}

void SkriptDrucker::DruckeText(const std::string& text) {
  protokoll.push_back("Text " + Zahl(x_) + " " + Zahl(y_) + " " + text);
  texte.push_back(text);
  x_ = 0;
  y_ += ZeilenHoehe();
}

void SkriptDrucker::Linie(double x1, double y1, double x2, double y2) {
  protokoll.push_back("Linie " + Zahl(x1) + " " + Zahl(y1) + " " + Zahl(x2) + " " + Zahl(y2));
}

void SkriptDrucker::NeueSeite() {
  protokoll.push_back("NeueSeite");
  x_ = y_ = 0;
}

void SkriptDrucker::EndeDokument() {
  protokoll.push_back("Ende");
}

void SkriptOberflaeche::Meldung(const std::string& text, const std::string& titel, Symbol symbol) {
  protokoll.push_back({"Meldung", text, titel, symbol});
}

Antwort SkriptOberflaeche::Frage(const std::string& text, const std::string& titel, Knoepfe,
                                 Antwort vorgabe) {
  protokoll.push_back({"Frage", text, titel, Symbol::Frage});
  if (antworten.empty()) return vorgabe;
  const Antwort a = antworten.front();
  antworten.pop_front();
  return a;
}

std::optional<std::string> SkriptOberflaeche::Eingabe(const std::string& prompt, const std::string& titel,
                                                      const std::string& vorgabe) {
  protokoll.push_back({"Eingabe", prompt, titel, Symbol::Keins});
  if (eingaben.empty()) return vorgabe;
  auto a = eingaben.front();
  eingaben.pop_front();
  return a;
}

std::optional<std::string> SkriptOberflaeche::DateiOeffnen(const DateiDialog& dialog) {
  protokoll.push_back({"DateiOeffnen", dialog.filter, dialog.titel, Symbol::Keins});
  dateiDialoge.push_back(dialog);
  if (dateien.empty()) return std::nullopt;
  auto a = dateien.front();
  dateien.pop_front();
  return a;
}

std::optional<std::string> SkriptOberflaeche::DateiSpeichern(const DateiDialog& dialog) {
  protokoll.push_back({"DateiSpeichern", dialog.filter, dialog.titel, Symbol::Keins});
  dateiDialoge.push_back(dialog);
  if (dateien.empty()) return std::nullopt;
  auto a = dateien.front();
  dateien.pop_front();
  return a;
}

ProzessStatus SkriptOberflaeche::StarteProzess(const ProzessAuftrag& auftrag) {
  protokoll.push_back({"Prozess", auftrag.programm, "", Symbol::Keins});
  prozesse.push_back(auftrag);
  if (!prozessAusfuehren) return {};
  return prozessAusfuehren(auftrag);
}

void SkriptOberflaeche::Hilfe(int thema) {
  protokoll.push_back({"Hilfe", std::to_string(thema), "", Symbol::Keins});
  hilfeThemen.push_back(thema);
}

std::vector<Aufzeichnung> SkriptOberflaeche::Meldungen() const {
  std::vector<Aufzeichnung> m;
  for (const auto& a : protokoll)
    if (a.art == "Meldung") m.push_back(a);
  return m;
}

Aufzeichnung SkriptOberflaeche::Letzte() const {
  return protokoll.empty() ? Aufzeichnung{} : protokoll.back();
}

} // namespace quor::ui
