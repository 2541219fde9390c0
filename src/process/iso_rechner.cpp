#include "process/iso_rechner.h"

#include "calc/parinput.h"
#include "core/zahl_lesen.h"
#include "core/zahlformat.h"

#include <algorithm>
#include <cmath>

namespace quor::prozess {

const char* const frmIsoCalc::Caption = "   \"Iso-Rechner\"";
const std::array<const char*, 2> frmIsoCalc::optIsoTpTexte{"Temperatur", "Druck"};
const std::array<const char*, 8> frmIsoCalc::OptIsoFuTexte{
    "Volumen V",        "Enthalpie H",  "Entropie",     "Freie Enthalpie G",
    "Innere Energie U", "Exergie E(H)", "Exergie E(U)", "Freie Energie A"};
const std::array<const char*, 8> frmIsoCalc::lblFuConstTexte{
    "V  = ", "H  = ", "S  = ", "G  = ", "U  = ", "E(H)=", "E(U)=", "A  = "};
const std::array<const char*, 2> frmIsoCalc::optIsoPhaseTexte{"L-Phase", "V-Phase"};
const char* const frmIsoCalc::KeineLoesung = "keine Lösung";
const char* const frmIsoCalc::txtFuConstToolTip = " manuelle Eingabe möglich; Einheit s. unter 'Optionen'  ";
const char* const frmIsoCalc::cmdResetToolTip = " Rückstellung auf letzte erfolgreiche Berechnung ";
const char* const frmIsoCalc::cmdShowManuInputToolTip =
    " öffnet Eingabe-Fenster für manuelle Kurvenpunkte (x-y-Datenfile) ";

namespace {

constexpr const char* TitelNichtMoeglich = "Ausführung nicht möglich";

// The function's cell in the result vector for a phase row.
int Zelle(int16_t funktion, int16_t phase) {
  return (phase == PhaseL ? ZelleVL : ZelleVV) + static_cast<int>(IsoFixGroesse(funktion));
}

std::string Getrimmt(const std::string& t) {
  const auto a = t.find_first_not_of(' ');
  if (a == std::string::npos) return "";
  return t.substr(a, t.find_last_not_of(' ') - a + 1);
}

// The unit of the fixed value as the options set it.
std::string Einheit(const EinheitenGruppe& e, int16_t funktion) {
  static const char* const energie[4] = {"kJ/kmol", "K", "R T", "kJ/kg"};
  static const char* const entropie[4] = {"kJ/(kmol K)", "R", "1/K", "kJ/(kg K)"};
  const int mode = e.EnergieMode >= 0 && e.EnergieMode <= 3 ? e.EnergieMode : 0;
  const FixGroesse g = IsoFixGroesse(funktion);
  if (g == FixGroesse::v) return Getrimmt(e.vEinheit);
  return g == FixGroesse::s ? entropie[mode] : energie[mode];
}

// The size below which the found value counts as the fixed one: relative to the value, but not
// below the natural scale of the function (R for the entropy, R T for the energies) in display units.
double Toleranz(const ProjectState& s, FixGroesse g, double T, double ziel) {
  const double E = s.Einheiten.EnergieFaktor;
  const double skala = g == FixGroesse::v ? 0 : (g == FixGroesse::s ? RGas : RGas * T) * E;
  return 1e-5 * std::max(std::fabs(ziel), std::fabs(skala));
}

} // namespace

FixGroesse IsoFixGroesse(int16_t funktion) {
  static const FixGroesse tabelle[IsoFunktionen] = {FixGroesse::v,  FixGroesse::h, FixGroesse::s,
                                                    FixGroesse::g,  FixGroesse::u, FixGroesse::eh,
                                                    FixGroesse::eu, FixGroesse::a};
  return tabelle[funktion >= 0 && funktion < IsoFunktionen ? funktion : 0];
}

std::string IsoZahlText(double x) {
  if (!std::isfinite(x) || x == 0) return "0";
  const double a = std::fabs(x);
  if (a < 1e-4 || a >= 1e10) return FormatVB(x, "0.000000000E+00");
  const int stellen = std::clamp(9 - static_cast<int>(std::floor(std::log10(a))), 0, 13);
  std::string t = FormatVB(x, "0." + std::string(static_cast<std::size_t>(stellen), '#'));
  if (!t.empty() && t.back() == '.') t.pop_back();
  return t;
}

frmIsoCalc::frmIsoCalc(ProjectState& s, ui::Oberflaeche& ui, const RechenKontext& seite)
    : s_(s), ui_(ui), seite_(seite) {}

bool frmIsoCalc::Form_Load() {
  if (!IsoRechnerMoeglich(seite_, ui_)) return false;
  const ErgebnisVektor& e = seite_.Ergebnis;
  letzterT_ = e[ZelleT] > 1e-6 ? e[ZelleT] : seite_.Letzter.T;
  letzterP_ = e[ZelleP] > 1e-6 ? e[ZelleP] : seite_.Letzter.pLetzt;
  IsoPhase = seite_.Letzter.HatV || !seite_.Letzter.HatL ? PhaseV : PhaseL;
  letzter_ = e;
  // The volumes stand in the cells of every state kind, the caloric functions only after kind 8 or
  // with the functions block.
  bool mitFunktionen = false;
  for (int16_t f = 1; f < IsoFunktionen; ++f)
    mitFunktionen = mitFunktionen || letzter_[Zelle(f, PhaseL)] != 0 || letzter_[Zelle(f, PhaseV)] != 0;
  if (!mitFunktionen) {
    // The page's kind has no function block: the functions of its state, leaving the input row as it was.
    const ExpDatenSatz zeile = s_.Mess.ExpDaten.at(0);
    Auswerten(letzterT_, letzterP_);
    s_.Mess.ExpDaten.at(0) = zeile;
  }
  GutT = letzterT_;
  GutP = letzterP_;
  FelderFuellen();
  return true;
}

// The functions at (T, p) through the calculation of kind 8; they become the last state.
bool frmIsoCalc::Auswerten(double T, double p) {
  double wert = 0;
  if (!FixWertBei(s_, ui_, lk_, T, p, FixGroesse::v, IsoPhase, wert)) return false;
  letzter_ = lk_.k.Ergebnis;
  letzterT_ = T;
  letzterP_ = p;
  return true;
}

double frmIsoCalc::Letzter(int16_t funktion, int16_t phase) const {
  return letzter_[Zelle(funktion, phase)];
}

void frmIsoCalc::FelderFuellen() {
  const bool pGegeben = IsoVorgabe == IsoPGegeben;
  lblFuConst = lblFuConstTexte[IsoFunktion];
  lblFuEinheit = Einheit(s_.Einheiten, IsoFunktion);
  lblTpVorgabe = pGegeben ? "p/kPa =" : "T/K =";
  lblTpCalc = pGegeben ? "T/K =" : "p/kPa =";
  fuWert_ = Letzter(IsoFunktion, IsoPhase);
  txtFuConst = fuGezeigt_ = IsoZahlText(fuWert_);
  tpWert_ = pGegeben ? letzterP_ : letzterT_;
  txtTpVorgabe = tpGezeigt_ = IsoZahlText(tpWert_);
  txtTpCalc.clear();
  Geloest = false;
}

// An untouched field gives the value it was filled with in full; a typed one is read.
bool frmIsoCalc::WertLesen(const std::string& text, const std::string& gezeigt, double genau, double& wert) {
  if (text == gezeigt) {
    wert = genau;
    return true;
  }
  const ZahlErgebnis z = LeseZahl(text);
  wert = z.wert;
  return z.ok;
}

void frmIsoCalc::ErgebnisZeigen(double T, double p) {
  txtTpCalc = IsoVorgabe == IsoPGegeben ? IsoZahlText(T) + " K" : IsoZahlText(p) + " kPa";
  Geloest = true;
}

void frmIsoCalc::cmdCalc_Click() {
  double vorgabe = 0, ziel = 0;
  if (!WertLesen(txtTpVorgabe, tpGezeigt_, tpWert_, vorgabe) || !(vorgabe > 0) ||
      !WertLesen(txtFuConst, fuGezeigt_, fuWert_, ziel)) {
    ui_.Meldung(frmParinput::UngueltigText, TitelNichtMoeglich, ui::Symbol::Ausruf);
    return;
  }
  const bool variableT = IsoVorgabe == IsoPGegeben;
  ExpDatenSatz& zeile = s_.Mess.ExpDaten.at(0);
  double& gegeben = variableT ? zeile.p : zeile.T;
  double& frei = variableT ? zeile.T : zeile.p;
  gegeben = vorgabe;
  if (!(frei > 1e-6)) frei = variableT ? GutT : GutP;
  const FixGroesse g = IsoFixGroesse(IsoFunktion);
  int16_t fehler = 0;
  ProzessLoeser(s_, ui_, lk_, variableT, g, IsoPhase, ziel, fehler);
  txtTpCalc = KeineLoesung;
  Geloest = false;
  if (fehler != 0) return;
  // The solution is checked once more: its phase must be there and hold the value.
  const ExpDatenSatz loesung = s_.Mess.ExpDaten.at(0);
  double wert = 0;
  if (!FixWertBei(s_, ui_, lk_, loesung.T, loesung.p, g, IsoPhase, wert)) return;
  const bool phaseDa = IsoPhase == PhaseL ? lk_.k.HatL : lk_.k.HatV;
  if (!phaseDa || std::fabs(wert - ziel) > Toleranz(s_, g, loesung.T, ziel)) return;
  letzter_ = lk_.k.Ergebnis;
  letzterT_ = GutT = loesung.T;
  letzterP_ = GutP = loesung.p;
  ErgebnisZeigen(loesung.T, loesung.p);
}

void frmIsoCalc::cmdReset_Click() {
  ExpDatenSatz& zeile = s_.Mess.ExpDaten.at(0);
  zeile.T = GutT;
  zeile.p = GutP;
  Auswerten(GutT, GutP);
  FelderFuellen();
  ErgebnisZeigen(GutT, GutP);
}

void frmIsoCalc::optIsoTp_Click(int16_t index) {
  IsoVorgabe = index == IsoPGegeben ? IsoPGegeben : IsoTGegeben;
  FelderFuellen();
}

void frmIsoCalc::OptIsoFu_Click(int16_t index) {
  IsoFunktion = index >= 0 && index < IsoFunktionen ? index : 0;
  FelderFuellen();
}

void frmIsoCalc::optIsoPhase_Click(int16_t index) {
  IsoPhase = index == PhaseL ? PhaseL : PhaseV;
  FelderFuellen();
}

} // namespace quor::prozess
