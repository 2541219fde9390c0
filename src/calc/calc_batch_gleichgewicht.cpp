// Vapour-liquid equilibrium: T gives p(LV) (kind 4), p gives T(LV) (kind 5), both with the saturated
// densities, GLOBAL from the cubic EOS or PARTIAL from the vapour-pressure equation and a liquid
// density correlation; and the enthalpy of vaporization at T or p (kinds 6, 7).
#include "calc/calc_batch_intern.h"

#include "core/festtext.h"
#include "engine/eos_auswertung.h"
#include "engine/korrelationen.h"
#include "engine/kubisch.h"
#include "engine/numerik.h"
#include "engine/saettigung.h"
#include "engine/virial.h"

#include <cmath>

namespace quor::calcbatch {

namespace {

bool Fehler(Lauf& l, SeitenFeld& feld, const std::string& text) {
  feld.farbe = TextFarbe::Rot;
  feld.text = text;
  l.k.ErrorFlag = true;
  return false;
}

// The vapour volume of a PARTIAL calculation at (T, p): the virial equation, or the largest root of
// the cubic (0 when it has one root only).
double PartialDampfVolumen(Lauf& l) {
  ProjectState& s = l.s;
  if (s.Modell.VirialFlag) return BvonT(s, s.Modell.EOSIndex, l.T) + RGas * l.T / l.p;
  double imbalance = 0, A = 0, B = 0;
  int16_t err = 0, nRoots = 0;
  pLVbeiT(s, l.T, imbalance, A, B, err);
  EOSbeiT(s, l.T);
  err = 0;
  KubischeWurzeln(s, l.T, l.p, nRoots, err);
  return err == 0 ? s.EOS.VRoots[2] : 0;
}

// PARTIAL densities: the vapour from the EOS, the liquid from Benson or the database function.
void PartialDichten(Lauf& l, const char* datenbankText) {
  const double V = PartialDampfVolumen(l);
  if (!(eos::IstGewaehlt(l.s.Modell.EOSIndex) && V > 1e-6)) return;
  const double M = l.s.Stoff.MolMasse;
  l.vV = V;
  l.rhoV = M / V;
  l.rhoL = PartialRhoL(l, l.T, l.rhoV);
  if (l.rhoL > 1e-6) l.vL = M / l.rhoL;
  l.Zeile(std::string(12, ' ') + (l.s.Modell.BensonDichte ? "nach BENSON-Methode:" : datenbankText));
  DichteZeilen(l);
}

// GLOBAL: the saturated roots that the EOS's equilibrium left in VRoots.
void GlobalDichten(Lauf& l) {
  const auto& r = l.s.EOS.VRoots;
  const double M = l.s.Stoff.MolMasse;
  l.vL = r[0];
  l.vV = r[2];
  l.rhoL = l.vL > 0 ? M / l.vL : 0;
  l.rhoV = l.vV > 0 ? M / l.vV : 0;
  SchreibeLetzten(l, l.vV, l.p, 3, 3);
  l.Zeile(std::string(12, ' ') + "aus kubischer EOS:");
  DichteZeilen(l);
}

void OhneDichte(Lauf& l, int breite, const char* hinweis) {
  l.Zeile(Rahmen(breite));
  l.Zeile(std::string(10, ' ') + hinweis);
  l.Zeile(Rahmen(breite));
}

// delta(LV)h from the two saturated roots of the EOS, into cells 29, 30 and the record.
void VerdampfungsenthalpieEOS(Lauf& l) {
  ProjectState& s = l.s;
  const int16_t hlv = s.Modell.HLVIndex;
  double T = l.T, p = l.p;
  HLVErgebnis erg;
  int16_t failed = 0;
  const ExpDatenSatz punkt = Datenpunkt(l);
  const double h = HLVBerechnen(s, HLVAusKubischerEOS, T, p, s.Modell.DampfdruckIndex,
                                hlv == HLVAusRhoL || hlv == HLVAusBenson, erg, failed, &l.ui,
                                HLVDatenpunkt{punkt.T, punkt.p});
  if (!(std::fabs(h) < 1e30)) return;
  l.Zelle(ZelleDhLV) = h * s.Einheiten.EnergieFaktor;
  if (l.T > 0) l.Zelle(ZelleDsLV) = l.Zelle(ZelleDhLV) / l.T;
  l.satz.dhCalc = Einfach(h);
}

// The record of an equilibrium: the phase "V+L" and the values below 1e30.
void GleichgewichtsSatz(Lauf& l, bool mitT, bool mitP) {
  l.satz.Phase = "V+L";
  if (mitT && l.T < 1e30) l.satz.TCalc = Einfach(l.T);
  if (mitP && l.p < 1e30) l.satz.pCalc = Einfach(l.p);
  if (l.rhoV < 1e30) l.satz.rhoVCalc = Einfach(l.rhoV);
  if (l.rhoL < 1e30) l.satz.rhoLCalc = Einfach(l.rhoL);
}

bool DruckPartial(Lauf& l) {
  ProjectState& s = l.s;
  const int16_t index = s.Modell.DampfdruckIndex;
  if (index > 0) {
    int16_t failed = 0;
    l.p = pLV(s, l.T, index, true, failed, &l.ui);
    l.seite.co1.text =
        "p(LV) aus aktueller Dampfdruckgleichung " + ZeilenText(s.Tab.DampfdruckNamen[index]) + ":";
    if (failed != 0 || !(l.p >= 1e-6)) {
      MeldeFehler(l, FehlerCode(failed != 0 ? failed : -1));
      return false;
    }
    l.seite.txtco2.text = " p(LV) = " + Einzel(l, l.p) + " kPa";
    return true;
  }
  l.seite.co1.text = "keine Dampfdruckgleichung verfügbar";
  l.p = Datenpunkt(l).p;
  if (!(l.p >= 1e-6)) {
    l.p = 0;
    return Fehler(l, l.seite.txtco2, "  kein p(LV) aus Datenpunkt verfügbar");
  }
  l.seite.txtco2.text = " p(LV)(aus Datenpunkt) = " + Fmt(l, l.p, "####0.0#") + " kPa";
  return true;
}

bool TemperaturPartial(Lauf& l) {
  ProjectState& s = l.s;
  const int16_t index = s.Modell.DampfdruckIndex;
  const char* const keinT = " kein T(LV) verfügbar o. berechenbar";
  if (index > 0) {
    int16_t failed = 0;
    l.T = TLV(s, l.p, index, true, failed, &l.ui);
    l.seite.co1.text = "T(LV) aus akt. Dampfdruckgleichung:";
    if (failed != 0 || !(l.T >= 1e-6)) {
      l.T = 0;
      return Fehler(l, l.seite.txtco2, keinT);
    }
    l.seite.txtco2.text = " T(LV) = " + Fmt(l, l.T, "####.000 K");
    return true;
  }
  l.seite.co1.text = "keine Dampfdruckgleichung verfügbar";
  l.T = Datenpunkt(l).T;
  if (!(l.T >= 1e-6)) {
    l.T = 0;
    return Fehler(l, l.seite.txtco2, keinT);
  }
  l.seite.txtco2.text = " T(LV) (aus Datenpunkt) = " + Fmt(l, l.T, "####.0# K");
  return true;
}

// The lines of kinds 6, 7 below the value: entropy, compressibility factors, database comparison.
void EnthalpieText(Lauf& l, double h, const HLVErgebnis& erg) {
  ProjectState& s = l.s;
  const int16_t mode = s.Einheiten.EnergieMode;
  const double E = s.Einheiten.EnergieFaktor;
  static const char* const hLabel[4] = {"delta(LV)h/(kJ/kmol)", "delta(LV)h/K", "delta(LV)h/(R T)",
                                        "delta(LV)h/(kJ/kg)"};
  static const char* const sLabel[4] = {"delta(LV)s/(kJ/(kmol K))", "delta(LV)s/R", "delta(LV)s/(1/K))",
                                        "delta(LV)s/(kJ/(kg K))"};
  const int m = mode >= 0 && mode <= 3 ? mode : 0;
  auto hWert = [&](double x) { return Fmt(l, x, x < 1000 ? "##0.00" : "##########.0"); };
  const double dh = h * E;
  l.Zeile(Rahmen(70));
  l.Zeile(hLabel[m] + std::string(20, ' ') + hWert(dh));
  l.Zeile("(Verdampfungsentropie delta(LV)s = delta(LV)h / T:");
  l.Zeile(std::string(sLabel[m]) + " = " + Einzel(l, dh / l.T) + ")");
  const int16_t hlv = s.Modell.HLVIndex;
  if (hlv == HLVAusRhoL || hlv == HLVAusBenson) {
    l.Zeile("es wurden folgende Kompressibilitätsfaktoren z benutzt:");
    l.Zeile(std::string(13, ' ') + "z(L) = " + Einzel(l, erg.zL) + std::string(16, ' ') +
            "z(V) = " + Einzel(l, erg.zV));
    l.Zeile("z(V) von " + EOSText(s));
    l.Zeile(hlv == HLVAusBenson ? "rho(L) für z(L)-Berechnung nach MATHIAS/CAILLETET/BENSON"
                                : "rho(L) für z(L)-Berechnung aus Datenbankfunktion rho(L) = Fu(T)");
  }
  if (hlv != HLVGleichung) {
    int16_t failed = 0;
    const double hDb = HLVFu(s, l.T, failed);
    const TGrenzen g = s.Stoff.HLVGrenzen;
    if (failed == 0 && l.T >= g.TLo - 5 && l.T <= g.THi + 5)
      l.Zeile(std::string("Vergleich mit Datenbankfunktion: ") + hLabel[m] + " = " + hWert(hDb * E));
  }
}

} // namespace

void Art4(Lauf& l) {
  ProjectState& s = l.s;
  l.k.HatL = l.k.HatV = true;
  if (!HoleT(l, l.seite.par1) || !eos::IstGewaehlt(s.Modell.EOSIndex)) return;
  if (l.T > s.Stoff.TKrit) {
    Fehler(l, l.seite.par1, TText(l, l.T) + " > T(cr) !!!");
    return;
  }
  l.seite.par1.text = TText(l, l.T);
  if (!s.Modell.RechnungGlobal) {
    if (!DruckPartial(l)) return;
    PartialDichten(l, "nach Datenbankgleichung rho(T):");
  } else if (l.Kubisch()) {
    double imbalance = 0, A = 0, B = 0;
    int16_t err = 0;
    l.p = pLVbeiT(s, l.T, imbalance, A, B, err);
    if (err != 0) {
      MeldeFehler(l, FehlerCode(err));
      return;
    }
    l.seite.co1.text = "p(LV) aus " + EOSText(s);
    l.seite.txtco2.text = " p(LV) = " + Einzel(l, l.p) + " kPa";
    GlobalDichten(l);
  } else {
    int16_t failed = 0;
    l.p = pLV(s, l.T, s.Modell.DampfdruckIndex, true, failed, &l.ui);
    if (failed != 0 || !(l.p >= 1e-6)) {
      MeldeFehler(l, FehlerCode(-1));
      return;
    }
    l.seite.txtco2.text = " p(LV) = " + Einzel(l, l.p) + " kPa";
    OhneDichte(l, 74, "(Dichte-Berechnung nicht möglich mit Dampfdruckgleichung!)");
  }
  l.Zelle(ZelleP) = l.p;
  VerdampfungsenthalpieEOS(l);
  GleichgewichtsSatz(l, false, true);
}

void Art5(Lauf& l) {
  ProjectState& s = l.s;
  l.k.HatL = l.k.HatV = true;
  if (!Holep(l, l.seite.par1) || !eos::IstGewaehlt(s.Modell.EOSIndex)) return;
  if (l.p > s.Stoff.pKrit) {
    Fehler(l, l.seite.par1, "p = " + Fmt(l, l.p, "###0.000 kPa") + " > p(cr) !!!");
    return;
  }
  l.seite.par1.text = "p = " + Fmt(l, l.p, "###0.000 kPa");
  if (!s.Modell.RechnungGlobal) {
    if (!TemperaturPartial(l)) return;
    PartialDichten(l, "nach Datenbankgleichung rho(T)");
  } else if (l.Kubisch()) {
    double imbalance = 0, A = 0, B = 0, start = 0;
    int16_t err = 0;
    l.T = TLVbeiP(s, l.p, imbalance, A, B, start, err);
    if (err != 0) {
      l.T = 0;
      MeldeFehler(l, FehlerCode(err));
      return;
    }
    l.seite.co1.text = "T(LV) aus CEOS " + EOSText(s);
    l.seite.txtco2.text = " T(LV) = " + Fmt(l, l.T, "###0.000 K");
    GlobalDichten(l);
  } else {
    int16_t failed = 0;
    l.T = TLV(s, l.p, s.Modell.DampfdruckIndex, true, failed, &l.ui);
    if (failed != 0 || !(l.T >= 1e-6)) {
      l.T = 0;
      MeldeFehler(l, FehlerCode(-1));
      return;
    }
    l.seite.txtco2.text = "T(LV) = " + Fmt(l, l.T, "###0.0# K");
    OhneDichte(l, 75, "(Dichte-Berechnung nicht möglich mit Dampfdruckgleichung)");
  }
  l.Zelle(ZelleT) = l.T;
  VerdampfungsenthalpieEOS(l);
  GleichgewichtsSatz(l, true, false);
}

void Art6Bis7(Lauf& l) {
  ProjectState& s = l.s;
  const bool art6 = l.art == art::HLVvonT;
  SeitenFeld& par1 = l.seite.par1;
  if (art6) {
    if (!HoleT(l, par1)) return;
    if (!(l.T < s.Stoff.TKrit)) {
      Fehler(l, par1, TText(l, l.T) + " >= T(cr) !!!");
      return;
    }
    par1.text = TText(l, l.T);
  } else {
    if (!Holep(l, par1)) return;
    if (!(l.p < s.Stoff.pKrit)) {
      Fehler(l, par1, "p = " + Fmt(l, l.p, "###0.000 kPa") + " >= p(cr) !!!");
      return;
    }
    par1.text = "p = " + Fmt(l, l.p, "###0.000 kPa");
  }
  // The partner stays 0: the enthalpy dispatcher finds it.
  double T = art6 ? l.T : 0, p = art6 ? 0 : l.p;
  HLVErgebnis erg;
  int16_t failed = 0;
  const ExpDatenSatz punkt = Datenpunkt(l);
  const int16_t methode = s.Modell.HLVIndex;
  const double h = HLVBerechnen(s, methode, T, p, s.Modell.DampfdruckIndex, true, erg, failed, &l.ui,
                                HLVDatenpunkt{punkt.T, punkt.p});
  const std::string name =
      methode >= 0 && methode < static_cast<int>(s.Tab.HLVNamen.size()) ? s.Tab.HLVNamen[methode] : "";
  // The method's name; the rows that begin with "aus" don't repeat it behind the heading's "aus".
  std::string methodenText = ZeilenText(name);
  if (methodenText.rfind("aus ", 0) == 0) methodenText.erase(0, 4);
  std::string kopf = "Verdampfungsenthalpie aus " + methodenText + CRLF;
  for (const std::string& notiz : erg.notizen)
    kopf += notiz + CRLF;
  if (failed != 0 || !std::isfinite(h)) {
    l.k.ErrorFlag = true;
    l.seite.Liste.farbe = TextFarbe::Rot;
    l.seite.Liste.text = kopf + "kein Ergebnis erhalten";
    return;
  }
  l.T = T;
  l.p = p;
  l.k.HatL = l.k.HatV = true;
  SchreibeLetzten(l, 0, l.p, 3, 0);
  l.text += kopf;
  if (art6) {
    if (l.p > 1e-6) l.Zeile(" p(LV) = " + Einzel(l, l.p) + " kPa");
    l.Zelle(ZelleP) = l.p;
  } else {
    l.Zeile(" T(LV) = " + Fmt(l, l.T, "####.000 K"));
    l.Zelle(ZelleT) = l.T;
  }
  EnthalpieText(l, h, erg);
  l.satz.Phase = "V+L";
  l.satz.dhCalc = Einfach(h);
  if (art6) l.satz.pCalc = Einfach(l.p);
  if (!art6) l.satz.TCalc = Einfach(l.T);
  l.Zelle(ZelleDhLV) = h * s.Einheiten.EnergieFaktor;
  if (l.T > 0) l.Zelle(ZelleDsLV) = l.Zelle(ZelleDhLV) / l.T;
}

} // namespace quor::calcbatch
