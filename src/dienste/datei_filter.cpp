#include "dienste/datei_filter.h"

#include <cctype>
#include <vector>

namespace quor::ui {

namespace {

std::vector<std::string> Teile(std::string_view text, char trenner) {
  std::vector<std::string> teile;
  std::size_t anfang = 0;
  while (anfang <= text.size()) {
    const auto ende = text.find(trenner, anfang);
    const auto laenge = (ende == std::string_view::npos ? text.size() : ende) - anfang;
    teile.emplace_back(text.substr(anfang, laenge));
    if (ende == std::string_view::npos) break;
    anfang = ende + 1;
  }
  return teile;
}

std::string Umgewandelt(std::string text, int (*f)(int)) {
  for (char& c : text)
    c = static_cast<char>(f(static_cast<unsigned char>(c)));
  return text;
}

std::string MusterListe(std::string_view muster) {
  std::string liste;
  auto anfuegen = [&liste](const std::string& m) {
    if (m.empty() || liste.find(m) != std::string::npos) return;
    if (!liste.empty()) liste += ' ';
    liste += m;
  };
  for (auto& m : Teile(muster, ';')) {
    const auto anfang = m.find_first_not_of(' ');
    if (anfang == std::string::npos) continue;
    const std::string sauber = m.substr(anfang, m.find_last_not_of(' ') - anfang + 1);
    anfuegen(Umgewandelt(sauber, ::toupper));
    anfuegen(Umgewandelt(sauber, ::tolower));
  }
  return liste;
}

std::string OhneKlammerMuster(const std::string& beschreibung) {
  const auto klammer = beschreibung.rfind('(');
  if (klammer == std::string::npos || beschreibung.find('*', klammer) == std::string::npos)
    return beschreibung;
  auto ende = beschreibung.find_last_not_of(' ', klammer == 0 ? 0 : klammer - 1);
  return ende == std::string::npos ? std::string() : beschreibung.substr(0, ende + 1);
}

} // namespace

std::string ToolkitFilter(std::string_view filter) {
  const auto teile = Teile(filter, '|');
  std::string ergebnis;
  for (std::size_t i = 0; i + 1 < teile.size(); i += 2) {
    if (!ergebnis.empty()) ergebnis += ";;";
    ergebnis += OhneKlammerMuster(teile[i]) + " (" + MusterListe(teile[i + 1]) + ")";
  }
  if (teile.size() == 1 && !teile[0].empty()) ergebnis = teile[0];
  return ergebnis;
}

std::string MitStandardEndung(std::string_view pfad, std::string_view endung) {
  std::string ergebnis(pfad);
  if (ergebnis.empty() || endung.empty()) return ergebnis;
  const auto name = ergebnis.find_last_of("/\\");
  const auto punkt = ergebnis.rfind('.');
  if (punkt != std::string::npos && (name == std::string::npos || punkt > name)) return ergebnis;
  if (endung.front() != '.') ergebnis += '.';
  ergebnis += endung;
  return ergebnis;
}

} // namespace quor::ui
