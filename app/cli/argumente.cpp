#include "cli/argumente.h"

#include "cli/fehler.h"
#include "core/rechen_art.h"
#include "core/zahl_lesen.h"
#include "engine/eos_zeilen.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <map>

namespace quor::cli {

namespace {

// An option: its name, whether it takes a value, and the commands that use it (empty: global).
struct Option {
  const char* name;
  bool wert;
  const char* befehle;
};

const Option Optionen[] = {
    {"--db", true, ""},
    {"--substance", true, ""},
    {"--eos", true, ""},
    {"--vapour-pressure", true, ""},
    {"--hlv", true, ""},
    {"--cp", true, ""},
    {"--watson", true, ""},
    {"--concept", true, ""},
    {"--liquid-density", true, ""},
    {"--energy-mode", true, ""},
    {"--volume-mode", true, ""},
    {"--reference", true, ""},
    {"--h-ref", true, ""},
    {"--s-ref", true, ""},
    {"--T-ref", true, ""},
    {"--p-ref", true, ""},
    {"--T-env", true, ""},
    {"--p-env", true, ""},
    {"--virial-b0", true, ""},
    {"--virial-b1", true, ""},
    {"--virial-b2", true, ""},
    {"--json", false, ""},
    {"--help", false, ""},
    {"--T", true, "calc curve iso"},
    {"--p", true, "calc curve iso"},
    {"--rho", true, "calc"},
    {"--v", true, "calc curve"},
    {"--m", true, "calc"},
    {"--V", true, "calc"},
    {"--equilibrium", false, "calc"},
    {"--sections", true, "calc batch"},
    {"--functions", false, "calc batch"},
    {"--ref-point", true, "calc batch"},
    {"--data", true, "batch fit"},
    {"--lst", true, "batch"},
    {"--csv", true, "batch"},
    {"--details", false, "batch"},
    {"--x", true, "curve surface"},
    {"--y", true, "curve surface"},
    {"--z", true, "surface"},
    {"--nx", true, "surface"},
    {"--ny", true, "surface"},
    {"--points", true, "curve"},
    {"--isohygre", true, "curve"},
    {"--s-loop", false, "curve"},
    {"--real", false, "curve surface"},
    {"--tie-line", false, "curve"},
    {"--column", true, "fit"},
    {"--log", false, "fit"},
    {"--lg", false, "fit"},
    {"--start", true, "fit iso"},
    {"--fix", true, "fit iso"},
    {"--tcr", true, "fit"},
    {"--pcr", true, "fit"},
    {"--smoothing", true, "fit"},
    {"--eval", true, "fit"},
    {"--apply", false, "fit"},
    {"--from", true, "process"},
    {"--to-T", true, "process"},
    {"--to-p", true, "process"},
    {"--phase", true, "process iso"},
    {"--hetero", false, "process"},
    {"--n", true, "process"},
    {"--kappa", true, "process"},
    {"--ideal", false, "process"},
    {"--eta", true, "process"},
    {"--value", true, "iso"},
    {"--groups", true, "joback"},
    {"--tb", true, "joback"},
    {"--out", true, "private-db"},
    {"--set", true, "private-db"},
};

const Option* FindeOption(const std::string& name) {
  for (const Option& o : Optionen)
    if (name == o.name) return &o;
  return nullptr;
}

bool BenutztVon(const Option& o, const std::string& befehl) {
  const std::string liste = std::string(" ") + o.befehle + " ";
  return *o.befehle == '\0' || liste.find(" " + befehl + " ") != std::string::npos;
}

std::string Klein(std::string t) {
  std::transform(t.begin(), t.end(), t.begin(), [](unsigned char c) { return std::tolower(c); });
  return t;
}

CliFehler KeineZahl(const std::string& option, const std::string& text) {
  return Eingabefehler("keine gültige Eingabe (" + option + " \"" + text + "\")");
}

double Zahl(const std::string& option, const std::string& text) {
  const ZahlErgebnis z = LeseZahl(text);
  if (!z.ok) throw KeineZahl(option, text);
  return z.wert;
}

// The given values of a calculation: positive numbers, as the input dialog demands them.
double PositiveZahl(const std::string& option, const std::string& text) {
  const double x = Zahl(option, text);
  if (!(x > 0)) throw KeineZahl(option, text);
  return x;
}

int Ganzzahl(const std::string& option, const std::string& text, int von, int bis) {
  const double x = Zahl(option, text);
  if (x != std::floor(x) || x < von || x > bis)
    throw Eingabefehler(option + " " + text + ": expected a whole number from " + std::to_string(von) +
                        " to " + std::to_string(bis));
  return static_cast<int>(x);
}

std::array<std::string, 4> Bezugspunkt(const std::string& text) {
  // "," is also a decimal mark of the number parser, so ";" separates when it is used.
  const char trenner = text.find(';') != std::string::npos ? ';' : ',';
  std::vector<std::string> teile(1);
  for (const char c : text) {
    if (c == trenner)
      teile.emplace_back();
    else
      teile.back() += c;
  }
  if (teile.size() != 4)
    throw Eingabefehler("--ref-point \"" + text + "\": expected four values T,p,rhoL,rhoV");
  std::array<std::string, 4> werte;
  for (std::size_t i = 0; i < 4; ++i) {
    PositiveZahl("--ref-point", teile[i]);
    werte[i] = teile[i];
  }
  return werte;
}

// An axis range "A,B" (";" separates when it is used, since "," is also a decimal mark); it must rise.
std::array<double, 2> Bereich(const std::string& option, const std::string& text) {
  const char trenner = text.find(';') != std::string::npos ? ';' : ',';
  const std::size_t teil = text.find(trenner);
  if (teil == std::string::npos || text.find(trenner, teil + 1) != std::string::npos)
    throw Eingabefehler(option + " \"" + text + "\": expected two values A,B");
  const std::array<double, 2> b{Zahl(option, text.substr(0, teil)), Zahl(option, text.substr(teil + 1))};
  if (!(b[0] < b[1])) throw Eingabefehler(option + " \"" + text + "\": the range must rise (A < B)");
  return b;
}

// A list of numbers "A,B,..." (";" separates when it is used, since "," is also a decimal mark); each
// one checked, kept as typed.
std::vector<std::string> ZahlenListe(const std::string& option, const std::string& text) {
  const char trenner = text.find(';') != std::string::npos ? ';' : ',';
  std::vector<std::string> teile(1);
  for (const char c : text) {
    if (c == trenner)
      teile.emplace_back();
    else
      teile.back() += c;
  }
  for (const std::string& t : teile)
    Zahl(option, t);
  return teile;
}

int16_t FitSpalte(const std::string& text) {
  const char* const namen[] = {"p", "rhov", "rhol", "hlv", "cp"};
  for (int16_t i = 0; i < 5; ++i)
    if (Klein(text) == namen[i]) return static_cast<int16_t>(i + 1);
  throw Eingabefehler("--column \"" + text + "\": expected p, rhoV, rhoL, hlv or cp");
}

// The fit's own options.
void FitOptionenLesen(Aufruf& a, const std::map<std::string, std::string>& werte) {
  auto hat = [&](const char* name) { return werte.count(name) != 0; };
  auto wert = [&](const char* name) { return werte.at(name); };
  if (hat("--column")) a.Spalte = FitSpalte(wert("--column"));
  a.LogFit = hat("--log");
  a.Lg = hat("--lg");
  a.Uebernehmen = hat("--apply");
  if (a.Befehl != "fit") return;
  if (hat("--start")) a.Start = ZahlenListe("--start", wert("--start"));
  if (a.Start.size() > 7) throw Eingabefehler("--start: at most seven values");
  if (hat("--fix"))
    for (const std::string& t : ZahlenListe("--fix", wert("--fix")))
      a.Fix.push_back(Ganzzahl("--fix", t, 1, 7));
  for (const auto& [name, ziel] : {std::pair{"--tcr", &a.Tcr}, std::pair{"--pcr", &a.Pcr}}) {
    if (!hat(name)) continue;
    Zahl(name, wert(name));
    *ziel = wert(name);
  }
  if (hat("--smoothing")) {
    const double sm = Zahl("--smoothing", wert("--smoothing"));
    if (!(sm >= 0 && sm <= 1000))
      throw Eingabefehler("--smoothing " + wert("--smoothing") + ": expected 0 to 1000");
    a.Glaettung = wert("--smoothing");
  }
  if (hat("--eval"))
    for (const std::string& t : ZahlenListe("--eval", wert("--eval")))
      a.Stellen.push_back(Zahl("--eval", t));
  if (a.Befehl == "fit" && a.Daten.empty()) throw Eingabefehler("fit needs --data FILE.XY or FILE.BAQ");
}

// The process line's own options: the start, exactly one end, and what its kind takes.
void ProzessOptionenLesen(Aufruf& a, const std::map<std::string, std::string>& werte) {
  if (a.Befehl != "process") return;
  auto hat = [&](const char* name) { return werte.count(name) != 0; };
  auto wert = [&](const char* name) { return werte.at(name); };
  const std::string& k = a.Linie;
  if (!hat("--from")) throw Eingabefehler("process needs --from T1,P1");
  const std::vector<std::string> von = ZahlenListe("--from", wert("--from"));
  if (von.size() != 2) throw Eingabefehler("--from \"" + wert("--from") + "\": expected two values T1,P1");
  a.Von = std::array<double, 2>{Zahl("--from", von[0]), Zahl("--from", von[1])};
  if (hat("--to-T") == hat("--to-p")) throw Eingabefehler("process needs either --to-T or --to-p");
  if (hat("--to-T")) a.BisT = Zahl("--to-T", wert("--to-T"));
  if (hat("--to-p")) a.BisP = Zahl("--to-p", wert("--to-p"));
  if (hat("--phase")) {
    const std::string ph = Klein(wert("--phase"));
    if (ph != "v" && ph != "l") throw Eingabefehler("--phase \"" + wert("--phase") + "\": expected V or L");
    a.ProzessPhase = ph == "v" ? 1 : 0;
  }
  a.Hetero = hat("--hetero");
  if (a.Hetero && k != "isochore" && k != "isentrope" && k != "isenthalpe")
    throw Eingabefehler("--hetero is for the isochore, isentrope and isenthalpe");
  for (const char* name : {"--n", "--kappa", "--ideal"})
    if (hat(name) && k != "polytrope") throw Eingabefehler(std::string(name) + " is for the polytrope");
  if (hat("--eta") != (k == "eta")) throw Eingabefehler("the eta line, and only it, needs --eta");
  if (k == "polytrope" && !hat("--n")) throw Eingabefehler("the polytrope needs --n");
  if (hat("--n")) a.N = Zahl("--n", wert("--n"));
  if (hat("--kappa")) a.Kappa = Zahl("--kappa", wert("--kappa"));
  if (hat("--eta")) a.Eta = Zahl("--eta", wert("--eta"));
  a.Ideal = hat("--ideal");
}

// The iso-line calculator's options: exactly one given quantity, the function held and its value.
void IsoOptionenLesen(Aufruf& a, const std::map<std::string, std::string>& werte) {
  if (a.Befehl != "iso") return;
  auto hat = [&](const char* name) { return werte.count(name) != 0; };
  auto wert = [&](const char* name) { return werte.at(name); };
  if (hat("--T") == hat("--p")) throw Eingabefehler("iso needs either --T or --p");
  if (!hat("--fix")) throw Eingabefehler("iso needs --fix v|h|s|g|u|eh|eu|a");
  const std::string fix = Klein(wert("--fix"));
  bool bekannt = false;
  for (const char* f : {"v", "h", "s", "g", "u", "eh", "eu", "a"})
    bekannt = bekannt || fix == f;
  if (!bekannt) throw Eingabefehler("--fix \"" + wert("--fix") + "\": expected v, h, s, g, u, eh, eu or a");
  a.IsoFix = fix;
  if (!hat("--value")) throw Eingabefehler("iso needs --value X");
  Zahl("--value", wert("--value"));
  a.IsoWert = wert("--value");
  if (hat("--start")) a.IsoStart = PositiveZahl("--start", wert("--start"));
  if (hat("--phase")) {
    const std::string ph = Klein(wert("--phase"));
    if (ph != "v" && ph != "l") throw Eingabefehler("--phase \"" + wert("--phase") + "\": expected V or L");
    a.ProzessPhase = ph == "v" ? 1 : 0;
  }
}

// The group counts of the Joback estimate, "I:N,I:N,..." with the row I of the group table, and the
// measured boiling point that answers the dialog's input box.
void JobackOptionenLesen(Aufruf& a, const std::map<std::string, std::string>& werte) {
  if (a.Befehl != "joback") return;
  if (werte.count("--groups") == 0) throw Eingabefehler("joback needs --groups I:N,I:N,...");
  const std::string& liste = werte.at("--groups");
  std::size_t anfang = 0;
  while (anfang <= liste.size()) {
    const std::size_t ende = std::min(liste.find(',', anfang), liste.size());
    const std::string paar = liste.substr(anfang, ende - anfang);
    const std::size_t doppel = paar.find(':');
    if (doppel == std::string::npos)
      throw Eingabefehler("--groups \"" + paar + "\": expected the group's row and its count, I:N");
    a.JobackGruppen.emplace_back(Ganzzahl("--groups", paar.substr(0, doppel), 0, 40),
                                 Ganzzahl("--groups", paar.substr(doppel + 1), 0, 999));
    anfang = ende + 1;
  }
  if (werte.count("--tb") != 0) a.JobackTb = PositiveZahl("--tb", werte.at("--tb"));
}

bool ArtErlaubt(const std::string& befehl, int a) {
  if (a < art::TRhoV || a > art::DbRhoS || a == art::Polytrope || a == art::OhneZweig) return false;
  return befehl != "batch" || !art::IstBehaelter(a);
}

} // namespace

bool IstGlobaleOption(const std::string& name, bool& mitWert) {
  const Option* o = FindeOption(name);
  if (o == nullptr || *o->befehle != '\0') return false;
  mitWert = o->wert;
  return true;
}

void GlobaleOptionenLesen(Aufruf& a, const std::map<std::string, std::string>& werte) {
  auto hat = [&](const char* name) { return werte.count(name) != 0; };
  auto wert = [&](const char* name) { return werte.at(name); };

  if (hat("--db")) a.Datenbank = wert("--db");
  if (hat("--substance")) a.Stoff = wert("--substance");
  if (hat("--eos")) a.EOS = Ganzzahl("--eos", wert("--eos"), eos::Idealgas, eos::VirialPitzerCurl);
  if (hat("--vapour-pressure")) a.Dampfdruck = Ganzzahl("--vapour-pressure", wert("--vapour-pressure"), 0, 8);
  if (hat("--hlv")) a.HLV = Ganzzahl("--hlv", wert("--hlv"), 0, 7);
  if (hat("--cp")) a.Cp = Ganzzahl("--cp", wert("--cp"), 0, 2);
  if (hat("--watson")) {
    Zahl("--watson", wert("--watson"));
    a.Watson = wert("--watson");
  }
  if (hat("--concept")) {
    const std::string k = Klein(wert("--concept"));
    if (k != "global" && k != "partial")
      throw Eingabefehler("--concept \"" + wert("--concept") + "\": expected global or partial");
    a.KonzeptGlobal = k == "global";
  }
  if (hat("--liquid-density")) {
    const std::string d = Klein(wert("--liquid-density"));
    if (d != "benson" && d != "database")
      throw Eingabefehler("--liquid-density \"" + wert("--liquid-density") +
                          "\": expected benson or database");
    a.BensonDichte = d == "benson";
  }
  if (hat("--energy-mode")) a.EnergieMode = Ganzzahl("--energy-mode", wert("--energy-mode"), 0, 3);
  if (hat("--volume-mode")) a.VolumenMode = Ganzzahl("--volume-mode", wert("--volume-mode"), 0, 2);
  if (hat("--reference")) {
    a.RefArt = Ganzzahl("--reference", wert("--reference"), 1, 10);
    if (*a.RefArt != 1 && *a.RefArt != 2 && *a.RefArt != 10)
      throw Eingabefehler("--reference " + wert("--reference") + ": expected 1, 2 or 10");
  }
  const char* const referenz[6] = {"--h-ref", "--s-ref", "--T-ref", "--p-ref", "--T-env", "--p-env"};
  for (std::size_t i = 0; i < 6; ++i) {
    if (!hat(referenz[i])) continue;
    Zahl(referenz[i], wert(referenz[i]));
    a.Referenz[i] = wert(referenz[i]);
  }
  const char* const virial[3] = {"--virial-b0", "--virial-b1", "--virial-b2"};
  for (std::size_t i = 0; i < 3; ++i) {
    if (!hat(virial[i])) continue;
    Zahl(virial[i], wert(virial[i]));
    a.Virial[i] = wert(virial[i]);
  }
  a.Json = hat("--json");
}

Aufruf LeseAufruf(const std::vector<std::string>& argumente) {
  Aufruf a;
  std::map<std::string, std::string> werte;
  std::vector<std::string> positionen;
  for (std::size_t i = 0; i < argumente.size(); ++i) {
    const std::string& arg = argumente[i];
    if (arg == "-h") {
      a.Hilfe = true;
      continue;
    }
    if (arg.rfind("--", 0) != 0 || arg.size() == 2) {
      positionen.push_back(arg);
      continue;
    }
    const std::size_t gleich = arg.find('=');
    const std::string name = arg.substr(0, gleich);
    const Option* o = FindeOption(name);
    if (o == nullptr) throw Eingabefehler("unknown option " + name + " (see quor-cli --help)");
    if (a.Gegeben.count(name) != 0) throw Eingabefehler("option " + name + " is given twice");
    std::string wert;
    if (o->wert) {
      if (gleich != std::string::npos) {
        wert = arg.substr(gleich + 1);
      } else {
        if (i + 1 >= argumente.size()) throw Eingabefehler("option " + name + " needs a value");
        wert = argumente[++i];
      }
    } else if (gleich != std::string::npos) {
      throw Eingabefehler("option " + name + " takes no value");
    }
    a.Gegeben.insert(name);
    werte[name] = wert;
  }
  a.Text = werte;
  if (a.Gegeben.count("--help") != 0) a.Hilfe = true;
  if (a.Hilfe) return a;

  if (positionen.empty())
    throw Eingabefehler(
        "no command given (list, info, calc, batch, curve, surface, fit, process, iso, joback, private-db; see "
        "quor-cli --help)");
  a.Befehl = positionen[0];
  if (a.Befehl != "list" && a.Befehl != "info" && a.Befehl != "calc" && a.Befehl != "batch" &&
      a.Befehl != "curve" && a.Befehl != "surface" && a.Befehl != "fit" && a.Befehl != "process" &&
      a.Befehl != "iso" && a.Befehl != "joback" && a.Befehl != "private-db")
    throw Eingabefehler("unknown command '" + a.Befehl + "' (see quor-cli --help)");
  const bool mitArt = a.Befehl == "calc" || a.Befehl == "batch";
  if (mitArt) {
    if (positionen.size() < 2)
      throw Eingabefehler(a.Befehl + " needs the kind of calculation (see quor-cli --help)");
    a.Art = Ganzzahl("kind", positionen[1], art::TRhoV, art::DbRhoS);
    if (!ArtErlaubt(a.Befehl, a.Art))
      throw Eingabefehler("kind " + positionen[1] + " is not available for " + a.Befehl);
  }
  if (a.Befehl == "curve") {
    if (positionen.size() < 2) throw Eingabefehler("curve needs the diagram code (see quor-cli --help)");
    a.Code = Ganzzahl("code", positionen[1], 1, 315);
  }
  if (a.Befehl == "surface") {
    if (positionen.size() < 2) throw Eingabefehler("surface needs the surface's Art (see quor-cli --help)");
    a.Flaeche = Ganzzahl("Art", positionen[1], 1, 10);
  }
  if (a.Befehl == "fit") {
    if (positionen.size() < 2) throw Eingabefehler("fit needs the model code (see quor-cli --help)");
    a.Modell = static_cast<int16_t>(Ganzzahl("model", positionen[1], 0, 19));
    if (a.Modell == 2 || a.Modell == 12 || a.Modell == 13)
      throw Eingabefehler("model " + positionen[1] + " is a reserved code");
  }
  if (a.Befehl == "process") {
    if (positionen.size() < 2) throw Eingabefehler("process needs the kind of line (see quor-cli --help)");
    a.Linie = Klein(positionen[1]);
    bool bekannt = false;
    for (const char* k : {"isotherm", "isobar", "isochore", "isentrope", "isenthalpe", "polytrope", "eta"})
      bekannt = bekannt || a.Linie == k;
    if (!bekannt) throw Eingabefehler("unknown kind of line '" + positionen[1] + "' (see quor-cli --help)");
  }
  const bool mitZweitem =
      mitArt || a.Befehl == "curve" || a.Befehl == "surface" || a.Befehl == "fit" || a.Befehl == "process";
  const std::size_t erwartet = mitZweitem ? 2 : 1;
  if (positionen.size() > erwartet) throw Eingabefehler("unexpected argument '" + positionen[erwartet] + "'");

  for (const std::string& name : a.Gegeben) {
    const Option* o = FindeOption(name);
    if (!BenutztVon(*o, a.Befehl))
      throw Eingabefehler("option " + name + " is not used by command " + a.Befehl);
  }

  auto hat = [&](const char* name) { return werte.count(name) != 0; };
  auto wert = [&](const char* name) { return werte.at(name); };

  GlobaleOptionenLesen(a, werte);

  auto positiv = [&](const char* name, std::optional<double>& ziel) {
    if (hat(name)) ziel = PositiveZahl(name, wert(name));
  };
  positiv("--T", a.T);
  positiv("--p", a.p);
  positiv("--rho", a.rho);
  positiv("--v", a.v);
  positiv("--m", a.m);
  positiv("--V", a.V);
  if (a.rho && a.v) throw Eingabefehler("give either --rho or --v, not both");
  if (hat("--sections")) {
    a.Abschnitte = Ganzzahl("--sections", wert("--sections"), 1, 4);
    a.AbschnitteGegeben = true;
  }
  a.Funktionen = hat("--functions");
  a.Gleichgewicht = hat("--equilibrium");
  a.Details = hat("--details");
  if (hat("--ref-point")) a.Bezugspunkt = Bezugspunkt(wert("--ref-point"));
  if (hat("--data")) a.Daten = wert("--data");
  if (hat("--lst")) a.Lst = wert("--lst");
  if (hat("--csv")) a.Csv = wert("--csv");
  if (a.Befehl == "batch" && a.Daten.empty()) throw Eingabefehler("batch needs --data FILE.BAQ");
  if (hat("--x")) a.XBereich = Bereich("--x", wert("--x"));
  if (hat("--y")) a.YBereich = Bereich("--y", wert("--y"));
  if (hat("--z")) a.ZBereich = Bereich("--z", wert("--z"));
  if (hat("--nx")) a.NX = Ganzzahl("--nx", wert("--nx"), 1, 400);
  if (hat("--ny")) a.NY = Ganzzahl("--ny", wert("--ny"), 1, 400);
  if (hat("--points")) a.Punkte = Ganzzahl("--points", wert("--points"), 2, 32000);
  if (hat("--isohygre")) {
    a.Isohygre = Zahl("--isohygre", wert("--isohygre"));
    if (!(*a.Isohygre >= 0 && *a.Isohygre <= 1))
      throw Eingabefehler("--isohygre " + wert("--isohygre") + ": expected a vapour fraction from 0 to 1");
  }
  a.SSchleife = hat("--s-loop");
  a.Real = hat("--real");
  a.Konnode = hat("--tie-line");
  FitOptionenLesen(a, werte);
  ProzessOptionenLesen(a, werte);
  IsoOptionenLesen(a, werte);
  JobackOptionenLesen(a, werte);
  return a;
}

} // namespace quor::cli
