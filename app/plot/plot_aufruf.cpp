#include "plot/plot_aufruf.h"

#include "cli/fehler.h"
#include "core/zahl_lesen.h"
#include "diagrams/katalog.h"

#include <cmath>
#include <map>
#include <set>

namespace quor::plot {

using cli::Eingabefehler;

namespace {

// The options of quor-plot beside the global ones; true for those that take a value.
const std::map<std::string, bool> EigeneOptionen = {
    {"--code", true},   {"--art", true}, {"--T", true},    {"--p", true},
    {"--v", true},      {"--x", true},   {"--y", true},    {"--coexistence", false},
    {"--points", true}, {"--out", true}, {"--size", true}, {"--help", false},
};

// Options that may be given more than once: each gives a curve.
bool Wiederholbar(const std::string& name) {
  return name == "--T" || name == "--p" || name == "--v";
}

cli::CliFehler KeineZahl(const std::string& option, const std::string& text) {
  return Eingabefehler("keine gültige Zahl: " + option + " \"" + text + "\"");
}

double Zahl(const std::string& option, const std::string& text) {
  const ZahlErgebnis z = LeseZahl(text);
  if (!z.ok) throw KeineZahl(option, text);
  return z.wert;
}

int Ganzzahl(const std::string& option, const std::string& text, int von, int bis) {
  const double x = Zahl(option, text);
  if (x != std::floor(x) || x < von || x > bis)
    throw Eingabefehler(option + " " + text + ": erwartet wird eine ganze Zahl von " + std::to_string(von) +
                        " bis " + std::to_string(bis));
  return static_cast<int>(x);
}

// An axis range "A,B"; ";" separates when it is used, since "," is also a decimal mark.
std::array<double, 2> Bereich(const std::string& option, const std::string& text) {
  const char trenner = text.find(';') != std::string::npos ? ';' : ',';
  const std::size_t teil = text.find(trenner);
  if (teil == std::string::npos || text.find(trenner, teil + 1) != std::string::npos)
    throw Eingabefehler(option + " \"" + text + "\": erwartet werden zwei Werte A,B");
  const std::array<double, 2> b{Zahl(option, text.substr(0, teil)), Zahl(option, text.substr(teil + 1))};
  if (!(b[0] < b[1])) throw Eingabefehler(option + " \"" + text + "\": der Bereich muss steigen (A < B)");
  return b;
}

// "1000x700": two whole numbers of pixels within the limits.
void Groesse(const std::string& text, int& breite, int& hoehe) {
  const std::size_t x = text.find_first_of("xX");
  const auto seite = [](const std::string& t) {
    if (t.empty() || t.size() > 5 || t.find_first_not_of("0123456789") != std::string::npos) return -1;
    return std::stoi(t);
  };
  breite = x == std::string::npos ? -1 : seite(text.substr(0, x));
  hoehe = x == std::string::npos ? -1 : seite(text.substr(x + 1));
  if (breite < MinSeite || breite > MaxSeite || hoehe < MinSeite || hoehe > MaxSeite)
    throw Eingabefehler("--size \"" + text + "\": erwartet wird BREITExHÖHE in Pixeln, je " +
                        std::to_string(MinSeite) + " bis " + std::to_string(MaxSeite) + ", z. B. 1000x700");
}

} // namespace

PlotAufruf LesePlotAufruf(const std::vector<std::string>& argumente) {
  PlotAufruf a;
  std::map<std::string, std::string> global, eigen;
  std::set<std::string> gegeben;
  for (std::size_t i = 0; i < argumente.size(); ++i) {
    const std::string& arg = argumente[i];
    if (arg == "-h") {
      a.Hilfe = true;
      continue;
    }
    if (arg.rfind("--", 0) != 0 || arg.size() == 2)
      throw Eingabefehler("unerwartetes Argument \"" + arg + "\" (siehe quor-plot --help)");
    const std::size_t gleich = arg.find('=');
    const std::string name = arg.substr(0, gleich);
    bool mitWert = false;
    const auto eigene = EigeneOptionen.find(name);
    const bool istEigene = eigene != EigeneOptionen.end();
    if (istEigene)
      mitWert = eigene->second;
    else if (name == "--json")
      throw Eingabefehler("--json gibt es nur für quor-cli");
    else if (!cli::IstGlobaleOption(name, mitWert))
      throw Eingabefehler("unbekannte Option " + name + " (siehe quor-plot --help)");
    if (gegeben.count(name) != 0 && !Wiederholbar(name))
      throw Eingabefehler("Option " + name + " ist doppelt angegeben");
    gegeben.insert(name);
    std::string wert;
    if (mitWert) {
      if (gleich != std::string::npos) {
        wert = arg.substr(gleich + 1);
      } else {
        if (i + 1 >= argumente.size()) throw Eingabefehler("Option " + name + " braucht einen Wert");
        wert = argumente[++i];
      }
    } else if (gleich != std::string::npos) {
      throw Eingabefehler("Option " + name + " nimmt keinen Wert");
    }
    if (name == "--T" || name == "--p" || name == "--v") {
      const double x = Zahl(name, wert);
      if (!(x > 0)) throw Eingabefehler(name + " " + wert + ": erwartet wird eine positive Zahl");
      (name == "--T" ? a.T : name == "--p" ? a.p : a.v).push_back(wert);
    } else if (istEigene) {
      eigen[name] = wert;
    } else {
      global[name] = wert;
    }
  }
  if (gegeben.count("--help") != 0) a.Hilfe = true;
  if (a.Hilfe) return a;

  cli::Aufruf& g = a.Global;
  g.Befehl = "plot";
  g.Gegeben = {gegeben.begin(), gegeben.end()};
  g.Text = global;
  cli::GlobaleOptionenLesen(g, global);
  if (g.Stoff.empty()) throw Eingabefehler("--substance fehlt: welcher Stoff soll es sein?");

  const auto hat = [&](const char* name) { return eigen.count(name) != 0; };
  if (hat("--code") == hat("--art"))
    throw Eingabefehler("entweder --code (2D-Diagramm) oder --art (3D-Fläche) angeben");
  if (hat("--code")) {
    a.Code = Ganzzahl("--code", eigen["--code"], 1, 999);
    if (!CodeBekannt(a.Code))
      throw Eingabefehler("--code " + eigen["--code"] + " ist kein Diagramm-Code (siehe quor-plot --help)");
  } else {
    a.Art = Ganzzahl("--art", eigen["--art"], 1, 10);
    for (const char* name : {"--T", "--p", "--v", "--coexistence", "--points"})
      if (gegeben.count(name) != 0)
        throw Eingabefehler(std::string(name) + " gehört zu --code, nicht zu --art");
  }
  if (hat("--x")) a.XBereich = Bereich("--x", eigen["--x"]);
  if (hat("--y")) a.YBereich = Bereich("--y", eigen["--y"]);
  a.Koexistenz = hat("--coexistence");
  if (hat("--points")) {
    a.Punkte = eigen["--points"];
    if (a.Punkte.empty()) throw Eingabefehler("--points braucht den Namen einer .XY-Datei");
  }
  if (!hat("--out")) throw Eingabefehler("--out DATEI fehlt (.png, .bmp, .svg oder .pdf)");
  a.Ziel = eigen["--out"];
  const std::optional<BildFormat> format = BildFormatVon(a.Ziel);
  if (!format)
    throw Eingabefehler("--out \"" + a.Ziel + "\": das Bildfile muss auf .png, .bmp, .svg oder .pdf enden");
  a.Format = *format;
  if (hat("--size")) Groesse(eigen["--size"], a.Breite, a.Hoehe);
  return a;
}

} // namespace quor::plot
