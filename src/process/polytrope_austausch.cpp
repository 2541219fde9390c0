#include "process/polytrope_austausch.h"

#include "core/datei_io.h"
#include "core/listen_datei.h"
#include "core/zahlformat.h"
#include "diagrams/katalog.h"
#include "engine/ableitungen.h"
#include "engine/kalorik.h"
#include "engine/zustand.h"
#include "process/polytrope_uebergabe.h"

#include <cmath>
#include <exception>
#include <filesystem>
#include <system_error>
#include <utility>

namespace quor::prozess {

const char* const PexEingabeDatei = "TO_PEX.DAT";
const char* const PexErgebnisDatei = "FROM_PEX.DAT";
const char* const PexEndeDatei = "WRITEEND.END";
const char* const PexProgramm = "Merlon_1";

namespace {

const char* const ZahlMuster = "0.0000000E+00"; // one digit before the point: 1.2345670E+02
const char* const TitelNichtMoeglich = "Ausführung nicht möglich";

// Diagram code -> exchange code.
constexpr std::pair<int16_t, int16_t> CodeTabelle[] = {
    {1, 1},    {6, 1},    {26, 2},   {27, 2},  {2, 3},    {106, 3},  {70, 31},  {150, 31}, {3, 4},
    {7, 4},    {71, 32},  {151, 32}, {4, 5},   {12, 5},   {72, 35},  {154, 35}, {5, 6},    {9, 6},
    {73, 33},  {152, 33}, {13, 12},  {15, 12}, {90, 12},  {74, 34},  {153, 34}, {14, 10},  {98, 23},
    {182, 23}, {16, 13},  {91, 13},  {99, 21}, {183, 21}, {17, 14},  {93, 14},  {156, 43}, {18, 15},
    {94, 15},  {157, 41}, {19, 11},  {92, 11}, {158, 42}, {20, 24},  {95, 24},  {181, 24}, {159, 45},
    {21, 53},  {22, 53},  {160, 44}, {23, 52}, {109, 52}, {184, 22}, {24, 51},  {107, 51}, {185, 25}};

std::string Zahl(double x) {
  return FormatVB(std::isfinite(x) ? x : 0.0, ZahlMuster);
}

// The start state as the calculator may take it: the liquid root where there is a liquid, else the
// vapour; the phase's caloric values, the mechanical derivatives and coefficients, in display
// units. The other phase's values stay 0.
struct StartZustand {
  double v = 0;
  int zeile = PhaseV;
  std::array<std::array<double, PexPhasenWerte>, 2> phase{};
};

StartZustand LoeseStart(ProjectState& s, double T, double p) {
  StartZustand z;
  bool istL = false, istV = false;
  double rhoV = 0, rhoL = 0, vV = 0, vL = 0, imbalance = 0, A = 0, B = 0;
  int16_t nRoots = 0, err = 0;
  std::string meldung;
  VzuTP(s, T, p, s.EOS.Gebiet, istL, istV, rhoV, rhoL, vV, vL, nRoots, imbalance, A, B, meldung, err);
  if (err != 0 || !(istL || istV)) return z;
  z.zeile = istL ? PhaseL : PhaseV;
  z.v = istL ? vL : vV;
  KalorikTabellen tab;
  KalorischeWerte w;
  ThermoFunktionen(s, T, p, z.v, z.zeile, tab, w, err);
  MechTabelle mech{};
  int16_t errMech = 0;
  MechKoeffizienten(z.zeile, p, z.v, tab.Abl1, mech, errMech);
  const EinheitenGruppe& e = s.Einheiten;
  const double V = e.VolumenFaktor, E = e.EnergieFaktor;
  const auto& a = tab.Abl1[z.zeile];
  const auto& m = mech[z.zeile];
  z.phase[z.zeile] = {z.v * V,
                      w.h * E,
                      w.s * E,
                      w.u * E,
                      w.g * E,
                      w.a * E,
                      w.cp * E,
                      w.cv * E,
                      w.cpIdG * E,
                      w.w,
                      w.eh * E,
                      w.eu * E,
                      tab.ResFunk[z.zeile][0],
                      a[1] / V,
                      a[2],
                      a[3] * V,
                      a[4] * V,
                      a[5] / V,
                      a[6],
                      m[1],
                      m[2],
                      m[3]};
  return z;
}

void Zeile(ListenSchreiber& w, long x) {
  w.Ganz(x);
  w.ZeileEnde();
}

void ZeileZahl(ListenSchreiber& w, double x) {
  w.Roh(Zahl(x));
  w.ZeileEnde();
}

bool Loesche(const std::string& pfad) {
  std::error_code ec;
  std::filesystem::remove(pfad, ec);
  return !DateiExistiert(pfad);
}

// The factor that turns the first column into reduced units: that of the X axis' quantity.
double ReduzierFaktor(const ProjectState& s, int16_t diagrammCode) {
  const KatalogZeile* z = KatalogZeileVon(diagrammCode);
  if (z == nullptr) return 1;
  const EinheitenGruppe& e = s.Einheiten;
  switch (z->X) {
  case Groesse::T:
    return e.TFaktor;
  case Groesse::p:
    return e.pFaktor;
  case Groesse::v:
  case Groesse::PV:
    return e.VolumenFaktor;
  default:
    return 1;
  }
}

std::string RechnerPfad(const ProjectState& s) {
  for (const std::string& name : {std::string(PexProgramm), std::string(PexProgramm) + ".EXE"})
    if (DateiExistiert(PexPfad(s, name))) return PexPfad(s, name);
  return {};
}

} // namespace

int16_t AustauschCode(int16_t diagrammCode) {
  for (const auto& [code, wert] : CodeTabelle)
    if (code == diagrammCode) return wert;
  return 0;
}

bool SetztFixParameter(int16_t c) {
  return c == 6 || (c >= 10 && c <= 15) || (c >= 21 && c <= 25);
}

std::string PexPfad(const ProjectState& s, const std::string& name) {
  const std::string& verzeichnis = s.Datenbank.ProgrammVerzeichnis;
  if (verzeichnis.empty()) return name;
  return verzeichnis.back() == '/' ? verzeichnis + name : verzeichnis + "/" + name;
}

std::string ToPexBytes(ProjectState& s, const PolytropenAnfrage& a) {
  const bool spezifisch = s.Einheiten.EnergieMode >= 3;
  const StartZustand start = LoeseStart(s, a.T1, a.p1);
  ListenSchreiber w;
  Zeile(w, 0);
  w.Text(s.Stoff.Formel);
  w.ZeileEnde();
  Zeile(w, 1);
  Zeile(w, spezifisch ? 1 : 0);
  Zeile(w, a.PolytropenModus == 1 ? 1 : 2);
  Zeile(w, 0);
  Zeile(w, 2); // the start state is solved first
  Zeile(w, AustauschCode(a.diagrammCode));
  Zeile(w, a.punktAnzahl);
  for (double x :
       {static_cast<double>(s.Stoff.MolMasse), a.T1, a.p1, start.v * s.Einheiten.VolumenFaktor, 0.0, 0.0})
    ZeileZahl(w, x);
  if (!spezifisch)
    for (const auto& phase : start.phase)
      for (double x : phase)
        ZeileZahl(w, x);
  PexAuftrag anhang;
  anhang.n = a.PolytropenExponent;
  anhang.kappa = a.Kappa;
  anhang.Bereich = a.ProzessBereich;
  anhang.Ende = a.Ende;
  anhang.Trenner = s.Optionen.XYTrenner;
  anhang.DiagrammCode = a.diagrammCode;
  anhang.T1 = a.T1;
  anhang.p1 = a.p1;
  PexAnhangSchreiben(s, anhang, w);
  return w.Bytes();
}

void PolytropeRechnen(ProjectState& s, ui::Oberflaeche& ui, const PolytropenAnfrage& a, PolytropenErgebnis& r,
                      int16_t& err, int wartenMs) {
  err = 0;
  r = PolytropenErgebnis{};
  const std::string rechner = RechnerPfad(s);
  if (rechner.empty()) {
    ui.Meldung("File Merlon_1.EXE im QUOR-Verzeichnis nicht gefunden", TitelNichtMoeglich,
               ui::Symbol::Ausruf);
    err = PexOhneRechner;
    return;
  }
  bool geschrieben = false;
  try {
    geschrieben = SchreibeDateiBytes(PexPfad(s, PexEingabeDatei), ToPexBytes(s, a));
  } catch (const std::exception&) {
  }
  if (!geschrieben) {
    ui.Meldung("error to_PEX", "Fehler", ui::Symbol::Kritisch);
    err = PexSchreibFehler;
    return;
  }
  // An old result or end marker must never pass for the new one.
  if (!Loesche(PexPfad(s, PexErgebnisDatei)) || !Loesche(PexPfad(s, PexEndeDatei))) {
    ui.Meldung("error to_PEX", "Fehler", ui::Symbol::Kritisch);
    err = PexSchreibFehler;
    return;
  }
  ui::ProzessAuftrag auftrag;
  auftrag.programm = rechner;
  auftrag.arbeitsVerzeichnis = s.Datenbank.ProgrammVerzeichnis;
  auftrag.versteckt = true;
  auftrag.wartenMs = wartenMs;
  ui.StarteProzess(auftrag); // whether it ended in time shows in the end marker alone
  if (!DateiExistiert(PexPfad(s, PexEndeDatei))) {
    err = PexZeitAbgelaufen;
    return;
  }
  std::string bytes;
  LeseDateiBytes(PexPfad(s, PexErgebnisDatei), bytes);
  read_from_PEX(s, ui, bytes, r, err);
  if (err == 0 && s.Einheiten.VolumenMode == 2) {
    const double f = ReduzierFaktor(s, a.diagrammCode);
    for (double& x : r.X)
      if (x < 1e37) x *= f;
    if (r.hatFixParameter && !r.X.empty()) r.fixParameter = r.X.front();
  }
}

} // namespace quor::prozess
