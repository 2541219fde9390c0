// The start state of the process dialog: its phase or region with the kind's quantity (cmdVScalc),
// and the kappa values that the polytrope's box offers.
#include "process/prozess_dialog.h"

#include "core/zahl_lesen.h"
#include "core/zahlformat.h"
#include "engine/kalorik.h"
#include "engine/saettigung.h"
#include "engine/zustand.h"

#include <cmath>

namespace quor::prozess {

namespace {

// Column of the kind's quantity in v, h, s.
int SpalteDerArt(int16_t art) {
  return art == Isentrope ? 2 : art == Isenthalpe ? 1 : 0;
}

const char* NameDerArt(int16_t art) {
  return art == Isentrope ? "s" : art == Isenthalpe ? "h" : "v";
}

} // namespace

// " v = 0.1234 m^3/kmol": per kg with the energy unit kJ/kg.
std::string frmInputProzessLinien::GroesseText(const char* name, double wert, int spalte) const {
  const bool proKg = s_.Einheiten.EnergieMode == 3 && s_.Stoff.MolMasse > 0;
  if (proKg) wert /= s_.Stoff.MolMasse;
  static const char* const einheitMol[] = {" m^3/kmol", " kJ/kmol", " kJ/(kmol K)"};
  static const char* const einheitKg[] = {" m^3/kg", " kJ/kg", " kJ/(kg K)"};
  return std::string(" ") + name + " = " + FormatVB(wert, "0.0#####") + (proKg ? einheitKg : einheitMol)[spalte];
}

void frmInputProzessLinien::cmdVScalc() {
  txtVSCalc.clear();
  txtVSCalcRot = false;
  double T = 0, p = 0;
  const double fT = s_.Einheiten.TFaktor > 0 ? s_.Einheiten.TFaktor : 1.0;
  const double fp = s_.Einheiten.pFaktor > 0 ? s_.Einheiten.pFaktor : 1.0;
  const bool okT = Lese(txtT1, T), okP = Lese(txtP1, p);
  T /= fT;
  p /= fp;
  if (ProzessHetero) {
    // The start is a tie line: its T, or the saturation temperature of its p.
    if (ProzessBereich == BereichP && okP && p > 0) {
      double imbalance = 0, A = 0, B = 0, TStart = 0;
      int16_t err = 0;
      T = p >= s_.Stoff.pKrit ? s_.Stoff.TKrit : TLVbeiP(s_, p, imbalance, A, B, TStart, err);
      if (err != 0) T = 0;
    }
    if ((ProzessBereich == BereichT && !okT) || !(T > 0)) {
      txtVSCalc = "ERROR";
      txtVSCalcRot = true;
      return;
    }
    VSCalcHeterogen(T);
    return;
  }
  if (!okT || !okP || !(T > 0) || !(p > 0)) {
    txtVSCalc = "ERROR";
    txtVSCalcRot = true;
    return;
  }
  VSCalcHomogen(T, p);
}

void frmInputProzessLinien::VSCalcHeterogen(double T) {
  const int spalte = SpalteDerArt(ProzessArt);
  if (T > s_.Stoff.TKrit) {
    txtVSCalc = " überkritisch (L = V)";
    return;
  }
  if (T == s_.Stoff.TKrit) {
    txtVSCalc = " kritischer Punkt";
    return;
  }
  SaettigungsWerte erg;
  int16_t err = 0;
  SaettigungsFunktionen(s_, T, erg, err);
  if (err != 0 || !(erg.vL > 0) || !(erg.vV > 0)) {
    txtVSCalc = "ERROR";
    txtVSCalcRot = true;
    return;
  }
  const double L[3] = {erg.vL, erg.phase[PhaseL].h, erg.phase[PhaseL].s};
  const double V[3] = {erg.vV, erg.phase[PhaseV].h, erg.phase[PhaseV].s};
  const std::string name = NameDerArt(ProzessArt);
  txtVSCalc = " heterogen L + V\r\n" + GroesseText((name + "(L)").c_str(), L[spalte], spalte) + "\r\n" +
              GroesseText((name + "(V)").c_str(), V[spalte], spalte);
}

void frmInputProzessLinien::VSCalcHomogen(double T, double p) {
  bool istL = false, istV = false;
  double rhoV = 0, rhoL = 0, vV = 0, vL = 0, imbalance = 0, A = 0, B = 0;
  int16_t nRoots = 0, err = 0, gebiet = 0;
  std::string meldung;
  VzuTP(s_, T, p, gebiet, istL, istV, rhoV, rhoL, vV, vL, nRoots, imbalance, A, B, meldung, err);
  if (err != 0 || (!istL && !istV)) {
    txtVSCalc = "ERROR";
    txtVSCalcRot = true;
    return;
  }
  const int spalte = SpalteDerArt(ProzessArt);
  const std::string name = NameDerArt(ProzessArt);
  auto wert = [&](int16_t phase) {
    const double v = phase == PhaseL ? vL : vV;
    if (spalte == 0) return v;
    KalorischeWerte w;
    int16_t e = 0;
    ThermoFunktionen(s_, T, p, v, phase, w, e);
    return spalte == 1 ? w.h : w.s;
  };
  switch (gebiet) {
  case GebietKritisch:
    txtVSCalc = "    kritischer Punkt";
    return;
  case GebietUeberkritisch:
    txtVSCalc = "    überkritisch (L = V)\r\n" + GroesseText(name.c_str(), wert(PhaseV), spalte);
    return;
  case GebietKomprimiert:
    txtVSCalc = "    überkritisch (L)\r\n" + GroesseText(name.c_str(), wert(istL ? PhaseL : PhaseV), spalte);
    return;
  case GebietUeberhitzt:
    txtVSCalc = "    überkritisch (V)\r\n" + GroesseText(name.c_str(), wert(istV ? PhaseV : PhaseL), spalte);
    return;
  default:
    break;
  }
  if (istL && istV) {
    txtVSCalc = "    Phasengleichg. V-L\r\n" + GroesseText((name + "(L)").c_str(), wert(PhaseL), spalte) + "\r\n" +
                GroesseText((name + "(V)").c_str(), wert(PhaseV), spalte);
  } else {
    const int16_t phase = istV ? PhaseV : PhaseL;
    txtVSCalc = std::string(istV ? "    V-Phase" : "    L-Phase") + "\r\n" + GroesseText(name.c_str(), wert(phase), spalte);
  }
}

// kappa = cp / (cp - R) with the ideal-gas heat capacity at T.
void frmInputProzessLinien::cmbKappa_DropDown() {
  KappaListe.clear();
  KappaWerte.clear();
  auto anbieten = [&](double T, const std::string& herkunft) {
    double h = 0, entropie = 0, cp = 0;
    int16_t err = 0;
    IdealgasFunktionen(s_, T, 101.325, h, entropie, cp, err);
    if (err != 0 || !(cp > RGas) || !std::isfinite(cp)) return;
    const double kappa = cp / (cp - RGas);
    KappaWerte.push_back(kappa);
    KappaListe.push_back(FormatVB(kappa, "0.0000##") + "   " + herkunft);
  };
  const double fT = s_.Einheiten.TFaktor > 0 ? s_.Einheiten.TFaktor : 1.0;
  double T1 = 0;
  if (Lese(txtT1, T1) && T1 > 0)
    anbieten(T1 / fT, "aus T1 = " + FormatVB(T1 / fT, "0.0#") + " K berechnet");
  else
    Melde("noch keine gültige Temperatur T1 angegeben");
  const double TRef = s_.Referenz.TRef;
  if (TRef > 0)
    anbieten(TRef, "aus T(ref) = " + FormatVB(TRef, "0.0#") + " K berechnet");
  else
    Melde("keine gültige Referenztemperatur gefunden");
}

void frmInputProzessLinien::cmbKappa_Click(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= KappaWerte.size()) return;
  cmbKappa = FormatVB(KappaWerte[static_cast<std::size_t>(index)], "0.0000##");
}

} // namespace quor::prozess
