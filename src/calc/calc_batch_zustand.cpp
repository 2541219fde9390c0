// State questions: T and a density give p (kinds 1 and 2, and the vessel of kinds 9 and 10), T and p
// give the densities (kind 3), p and a density give T (kind 13).
#include "calc/calc_batch_intern.h"

#include "core/festtext.h"
#include "engine/numerik.h"
#include "engine/saettigung.h"
#include "engine/virial.h"
#include "engine/zustand.h"

#include <cmath>

namespace quor::calcbatch {

namespace {

// Mass, volume and temperature of the vessel; false (field red, ErrorFlag) when one is missing.
bool BehaelterHolen(Lauf& l, double& rho) {
  const BehaelterVorgabe& b = l.k.Behaelter;
  if (!(b.T >= 1e-6f)) {
    l.seite.par1.farbe = TextFarbe::Rot;
    l.seite.par1.text = "kein T in diesem Datenpunkt";
    l.k.ErrorFlag = true;
    return false;
  }
  if (!(b.m >= 1e-6) || !(b.V >= 1e-6)) {
    l.seite.par2.farbe = TextFarbe::Rot;
    l.seite.par2.text = "kein rho in diesem Datenpunkt";
    l.k.ErrorFlag = true;
    return false;
  }
  l.T = b.T;
  rho = b.m / b.V;
  l.Zelle(ZelleT) = l.T;
  l.Zelle(ZelleRhoGlobal) = rho;
  l.Zelle(ZelleVGlobal) = l.s.Stoff.MolMasse * l.s.Einheiten.VolumenFaktor / rho;
  return true;
}

// A pressure below 0.01 kPa in the default text of the single value, else in the pattern.
std::string DruckText(Lauf& l, double p, const char* muster) {
  return p < 0.01 ? Einzel(l, p) : Fmt(l, p, muster);
}

// Virial models: p = R*T/(v - B) for the vapour.
void VirialDruck(Lauf& l, double rho) {
  const double B = BvonT(l.s, l.s.Modell.EOSIndex, l.T);
  if (!(l.v > B)) {
    MeldeFehler(l, ", keine p-Lösung (v < b)");
    return;
  }
  l.p = RGas * l.T / (l.v - B);
  const std::string wert = l.p < 0.01 ? Einzel(l, l.p) + " kPa" : Fmt(l, l.p, "######0.000 kPa");
  l.seite.txtco2.text = " p = " + wert;
  l.k.HatV = true;
  l.vV = l.v;
  l.rhoV = rho;
  l.Zelle(ZelleP) = l.p;
  l.satz.Phase = PhasenMarke(l);
  l.satz.pCalc = Einfach(l.p);
  if (art::IstBehaelter(l.art)) BehaelterAnzeigen(l);
}

// Below T(cr): the given v against the saturated volumes of the EOS. False after an error.
bool UnterKritisch(Lauf& l, double rho) {
  ProjectState& s = l.s;
  double imbalance = 0, A = 0, B = 0;
  int16_t err = 0;
  l.pLV = pLVbeiT(s, l.T, imbalance, A, B, err);
  if (err != 0 || l.pLV < 1e-6) {
    MeldeFehler(l, FehlerCode(err));
    return false;
  }
  const double L = s.EOS.VRoots[0], V = s.EOS.VRoots[2];
  int16_t e = 0;
  if (l.v > V) {
    l.k.HatV = true;
    l.vV = l.v;
    l.rhoV = rho;
    l.p = PzuTV(s, l.T, l.v, e);
    if (e != 0) MeldeFehler(l, FehlerCode(e));
    return e == 0;
  }
  if (l.v < L) {
    l.k.HatL = true;
    l.vL = l.v;
    l.rhoL = rho;
    if (l.v > s.EOS.bT) l.p = PzuTV(s, l.T, l.v, e);
    if (l.v <= s.EOS.bT || e != 0) {
      if (s.Modell.RechnungGlobal) l.behaelterStatus = "ERROR1";
      MeldeFehler(l, s.Modell.RechnungGlobal ? "ERROR1" : " (v <= b)");
      return false;
    }
    return true;
  }
  l.k.HatL = l.k.HatV = true;
  l.vL = L;
  l.vV = V;
  l.rhoL = s.Stoff.MolMasse / L;
  l.rhoV = s.Stoff.MolMasse / V;
  l.p = l.pLV;
  return true;
}

// The values of both phases weighted by the vapour fraction.
void GlobalBlock(Lauf& l) {
  const EinheitenGruppe& e = l.s.Einheiten;
  const bool molar = e.EnergieMode == 0;
  const std::string kopf = molar ? "molare globale Funktionen" : "spezifische globale Funktionen";
  const std::string eE = molar ? "kJ/kmol" : "kJ/kg", eS = molar ? "kJ/(kmol K)" : "kJ/(kg K)";
  const std::string eV = molar ? "m^3/kmol" : "m^3/kg";
  l.Zeile(kopf);
  l.Zeile("  z = y(V) z(V) + (1 - y(V)) z(L)");
  l.Zeile(std::string(Utf8Laenge(kopf), '='));
  const KalorischeWerte L = PhasenFunktionen(l, PhaseL), V = PhasenFunktionen(l, PhaseV);
  const double y = l.y, E = e.EnergieFaktor;
  auto z = [&](double zV, double zL) { return y * zV + (1 - y) * zL; };
  auto zeile = [&](const char* label, double wert, const std::string& einheit) {
    l.Zeile(label + Einzel(l, wert) + "  " + einheit);
  };
  const double v = z(l.vV, l.vL);
  zeile("Dichte rho        = ", l.s.Stoff.MolMasse / v, "kg/m^3");
  zeile("Volumen v         = ", v * e.VolumenFaktor, eV);
  zeile("Enthalpie h       = ", z(V.h, L.h) * E, eE);
  zeile("Entropie s        = ", z(V.s, L.s) * E, eS);
  zeile("Freie Enthalpie g = ", z(V.g, L.g) * E, eE);
  zeile("Innere Energie u  = ", z(V.u, L.u) * E, eE);
  zeile("Freie Energie a   = ", z(V.a, L.a) * E, eE);
  zeile("Exergie eH        = ", z(V.eh, L.eh) * E, eE);
  zeile("Exergie eU        = ", z(V.eu, L.eu) * E, eE);
  zeile("Wärmekapazität cp = ", z(V.cp, L.cp) * E, eS);
  zeile("Wärmekapazität cV = ", z(V.cv, L.cv) * E, eS);
}

// Steps 8 to 10 of kinds 1, 2 (and 10): value line, snapshot, state text, lines.
void ZustandZeigen(Lauf& l) {
  ProjectState& s = l.s;
  const double Tc = s.Stoff.TKrit;
  const bool beide = l.k.HatL && l.k.HatV;
  const bool behaelter = art::IstBehaelter(l.art);
  if (beide && l.T < Tc) {
    const double L = l.vL, V = l.vV;
    l.y = V > L ? (l.v - L) / (V - L) : 0;
    l.zweiPhasig = true;
    std::string wert = " Druck p(LV)/kPa = " + DruckText(l, l.pLV, "#####0.000");
    if (!behaelter) wert += std::string(22, ' ') + "Verdampfungsgrad eta(V) = " + Fmt(l, l.y, "0.0#######");
    l.seite.txtco2.text = wert;
  } else if (l.pLV > 1e-6) {
    l.seite.co1.text =
        "vgl. mit Dampfdruck aus " + EOSText(s) + ": p(LV) = " + Fmt(l, l.pLV, "###0.000") + " kPa";
  }
  SchreibeLetzten(l, l.v, l.p, beide ? 3 : 1, s.EOS.VRoots[2] > 0 ? 3 : 1);
  l.Zelle(ZelleP) = l.p;
  l.satz.Phase = PhasenMarke(l);
  l.satz.pCalc = Einfach(l.p);
  if (l.art == art::BehaelterGlobal) {
    BehaelterAnzeigen(l);
    return;
  }
  std::string meldung;
  int16_t nRoots = 0;
  bool istL = false, istV = false;
  double rhoV = 0, rhoL = 0, vV = 0, vL = 0, imbalance = 0, A = 0, B = 0;
  int16_t err = 0;
  VzuTP(s, l.T, l.p, s.EOS.Gebiet, istL, istV, rhoV, rhoL, vV, vL, nRoots, imbalance, A, B, meldung, err);
  l.Zeile(meldung);
  DichteZeilen(l);
  const bool zweiPhasen = beide && l.T < Tc && l.p < s.Stoff.pKrit;
  if (zweiPhasen) GlobalBlock(l);
  std::string druck;
  if (l.p == 0 && !s.Modell.RechnungGlobal)
    druck = " (Fehler)";
  else
    druck = DruckText(l, l.p, "####0.000");
  l.Zeile((zweiPhasen ? " Dampfdruck p/kPa = " : " Systemdruck p/kPa = ") + druck);
}

} // namespace

void Art1Bis2(Lauf& l) {
  ProjectState& s = l.s;
  const bool behaelter = art::IstBehaelter(l.art);
  double rho = 0;
  if (behaelter) {
    if (!BehaelterHolen(l, rho)) return;
  } else {
    if (!HoleT(l, l.seite.par1) || !HoleRho(l, l.seite.par2, rho)) return;
    l.seite.par1.text = TText(l, l.T);
    l.seite.par2.text = "rho = " + Fmt(l, rho, "###0.0###") + " kg/m^3";
  }
  l.v = s.Stoff.MolMasse / rho;
  if (s.Modell.VirialFlag) {
    VirialDruck(l, rho);
    return;
  }
  const double Tc = s.Stoff.TKrit;
  if (l.art == art::BehaelterPartial && l.T >= Tc) {
    l.ui.Meldung(
        std::string("PARTIAL-Berechnung nur für Phasengleichgewicht - also für T < T(cr) - sinnvoll") + CRLF +
            "(T(cr)/K =" + (Tc >= 0 ? " " : "") + Einzel(l, Tc) + ")",
        TitelNichtMoeglich, ui::Symbol::Ausruf);
    l.exit = true;
    return;
  }
  if (behaelter && l.T < s.Stoff.TTripel)
    l.ui.Meldung("T ist kleiner als Tripelpunkt-Temperatur", "WARNUNG", ui::Symbol::Ausruf);
  if (Einfach(l.T) < Einfach(Tc)) {
    if (!UnterKritisch(l, rho)) return;
  } else if (l.T >= Tc) {
    int16_t e = 0;
    l.k.HatV = true;
    l.vV = l.v;
    l.rhoV = rho;
    l.p = PzuTV(s, l.T, l.v, e);
    if (e != 0) {
      MeldeFehler(l, FehlerCode(e));
      return;
    }
  }
  ZustandZeigen(l);
}

void Art3(Lauf& l) {
  ProjectState& s = l.s;
  ErgebnisSeite& seite = l.seite;
  if (!HoleT(l, seite.par1) || !Holep(l, seite.par2)) return;
  seite.par1.text = TText(l, l.T);
  seite.par2.text = "p = " + Fmt(l, l.p, "####0.000 kPa");
  const StoffGruppe& st = s.Stoff;
  if (std::fabs(l.T - st.TKrit) < 0.05 && std::fabs(l.p - st.pKrit) < 0.02) {
    l.Zeile("kritischer Punkt!");
    l.Zeile(" T(cr) = " + Fmt(l, st.TKrit, "####0.00 K"));
    l.Zeile(" p(cr) = " + Fmt(l, st.pKrit, "#####.00 kPa"));
    if (s.EOS.vKritEOS > 1e-6) {
      l.Zeile("rho(cr) = " + Fmt(l, s.EOS.rhoKritEOS, "####.0") + " kg/m^3");
      l.Zeile("  v(cr) = " + Einzel(l, s.EOS.vKritEOS) + " m^3/kmol");
    }
  }
  if (s.Modell.VirialFlag)
    seite.txtco2.text = " Virialkoeff. B = " + Einzel(l, BvonT(s, s.Modell.EOSIndex, l.T)) + "  m^3/kmol";
  std::string meldung;
  int16_t nRoots = 0;
  const int16_t err = LoeseZustand(l, l.T, l.p, meldung, nRoots);
  if (err != 0) {
    MeldeFehler(l, FehlerCode(err));
    return;
  }
  SchreibeLetzten(l, l.k.HatV ? l.vV : l.vL, l.p, l.k.HatL && l.k.HatV ? 3 : 1, nRoots);
  seite.co1.text = meldung;
  // On the saturation line the gas is the cubic's vapour root, whichever phase the areas call stable.
  if (l.k.TpIstGleichgewicht && !l.k.HatV && nRoots == 3) l.vV = s.EOS.VRoots[2];
  if (l.k.TpIstGleichgewicht && l.vV > 1e-6) {
    l.rhoV = st.MolMasse / l.vV;
    l.rhoL = PartialRhoL(l, l.T, l.rhoV);
    if (l.rhoL > 1e-6) l.vL = st.MolMasse / l.rhoL;
    l.Zeile(std::string(12, ' ') +
            (s.Modell.BensonDichte ? "nach BENSON-Methode:" : "nach Datenbankgleichung rho(T):"));
    l.k.HatL = l.k.HatV = true;
  }
  DichteZeilen(l);
  l.satz.Phase = PhasenMarke(l);
  if (l.k.HatV) l.satz.rhoVCalc = Einfach(l.rhoV);
  if (l.k.HatL) l.satz.rhoLCalc = Einfach(l.rhoL);
}

void Art13(Lauf& l) {
  ProjectState& s = l.s;
  ErgebnisSeite& seite = l.seite;
  double rho = 0;
  if (!Holep(l, seite.par1) || !HoleRho(l, seite.par2, rho)) return;
  seite.par1.text = "p = " + Fmt(l, l.p, "####0.000 kPa");
  seite.par2.text = "rho = " + Fmt(l, rho, "###0.0###") + " kg/m^3";
  int16_t err = 0;
  l.T = TzuPRho(s, l.p, rho, false, err);
  if (!(l.T > 0)) {
    l.T = 0;
    seite.txtco2.farbe = TextFarbe::Rot;
    seite.txtco2.text = " Fehler";
    return;
  }
  seite.txtco2.text = " T = " + Fmt(l, l.T, "###0.000 K");
  l.Zelle(ZelleT) = l.T;
  std::string meldung;
  int16_t nRoots = 0;
  err = LoeseZustand(l, l.T, l.p, meldung, nRoots);
  if (err != 0) {
    MeldeFehler(l, FehlerCode(err));
    return;
  }
  seite.co1.text = meldung;
  SchreibeLetzten(l, s.Stoff.MolMasse / rho, l.p, l.k.HatL && l.k.HatV ? 3 : 1, nRoots);
  DichteZeilen(l);
  l.satz.Phase = PhasenMarke(l);
  l.satz.TCalc = Einfach(l.T);
}

} // namespace quor::calcbatch
