// Kinds that evaluate single functions at T: the comparison of the virial coefficients of all virial
// rows (kind 11), the start point of the polytropic process (kind 12) and the database functions
// (kinds 14 to 24).
#include "calc/calc_batch_intern.h"

#include "core/festtext.h"
#include "core/zahlformat.h"
#include "engine/eos_parameter.h"
#include "engine/kalorik.h"
#include "engine/korrelationen.h"
#include "engine/virial.h"

#include <cmath>

namespace quor::calcbatch {

namespace {

// One evaluation of a database function: value, label and unit, validity range.
struct Auswertung {
  const char* label = "";
  std::string einheit;
  double wert = 0;
  int16_t failed = 0;
  double Tlo = 0, Thi = 0;
};

void Grenzen(Auswertung& a, const TGrenzen& g) {
  a.Tlo = g.TLo;
  a.Thi = g.THi;
}

// Density limits: the stored range; without one, or for the Rackett form (first constant 0), 10 K
// about the given T.
void DichteGrenzen(Auswertung& a, const TGrenzen& g, float A, double T) {
  Grenzen(a, g);
  if ((g.TLo == 0 && g.THi == 0) || A < 1e-6f) {
    a.Tlo = T - 10.0;
    a.Thi = T + 10.0;
  }
}

std::string Ganz(double x) {
  return std::to_string(static_cast<long>(std::nearbyint(x)));
}

void Dichte(Lauf& l, Auswertung& a) {
  const StoffGruppe& st = l.s.Stoff;
  a.einheit = " kg/m^3";
  a.wert = RhoL(l.s, l.T, false, a.failed);
  if (!(a.wert > 1e-6)) a.failed = -1;
  if (l.art == art::DbRhoL) {
    a.label = " rho(L) = ";
    DichteGrenzen(a, st.RhoLGrenzen, st.RhoL[0], l.T);
    if (a.failed == 0) {
      l.Zelle(ZelleRhoL) = a.wert;
      l.Zelle(ZelleVL) = l.s.Einheiten.VolumenFaktor * st.MolMasse / a.wert;
    }
  } else {
    // The page of the solid density shows the liquid function with the solid block's limits.
    a.label = " rho(S) = ";
    DichteGrenzen(a, st.RhoSGrenzen, st.RhoS[0], l.T);
  }
}

void Waerme(Lauf& l, Auswertung& a) {
  ProjectState& s = l.s;
  static const char* const einheiten[4] = {" kJ/(kmol/)", " ", " 1/K", " kJ/(kg K)"};
  const int16_t mode = s.Einheiten.EnergieMode;
  a.einheit = einheiten[mode >= 0 && mode <= 3 ? mode : 0];
  const double E = s.Einheiten.EnergieFaktor;
  switch (l.art) {
  case art::DbCpIdG: {
    a.label = " cp_IdGas = ";
    const int16_t kind = s.Modell.CpIndex;
    a.wert = cpIdealgas(s, l.T, kind, a.failed) * E;
    if (kind == CpPolynom) Grenzen(a, s.Stoff.CpPolyGrenzen);
    if (kind == CpSinhCosh) Grenzen(a, s.Stoff.CpSinhGrenzen);
    if (a.failed == 0) l.Zelle(ZelleCpIdG) = a.wert;
    break;
  }
  case art::DbCpL:
    a.label = " cp(L) = ";
    a.wert = cpFluessig(s, l.T, a.failed) * E;
    Grenzen(a, s.Stoff.CpLGrenzen);
    if (a.failed == 0) l.Zelle(ZelleCpL) = a.wert;
    break;
  default:
    a.label = " cp(S) = ";
    a.wert = cpFest(s, l.T, a.failed) * E;
    Grenzen(a, s.Stoff.CpSGrenzen);
    if (a.failed == 0) l.Zelle(ZelleCpS) = a.wert;
  }
}

void Verdampfung(Lauf& l, Auswertung& a) {
  ProjectState& s = l.s;
  static const char* const einheiten[4] = {" kJ/kmol", " K", " ", " kJ/kg"};
  const int16_t mode = s.Einheiten.EnergieMode;
  a.label = " delta(LV)h = ";
  a.einheit = einheiten[mode >= 0 && mode <= 3 ? mode : 0];
  double T = l.T, p = 0;
  HLVErgebnis erg;
  a.wert = HLVBerechnen(s, HLVGleichung, T, p, s.Modell.DampfdruckIndex, false, erg, a.failed) *
           s.Einheiten.EnergieFaktor;
  Grenzen(a, s.Stoff.HLVGrenzen);
  if (a.failed == 0) {
    l.Zelle(ZelleDhLV) = a.wert;
    l.Zelle(ZelleDsLV) = a.wert / l.T;
  }
}

void Dampfdruck(Lauf& l, Auswertung& a) {
  const StoffGruppe& st = l.s.Stoff;
  int index = 0;
  switch (l.art) {
  case art::DbFrostKalkwarf:
    a.label = " p(LV), erw. Frost-Kalkwarf = ";
    index = FrostKalkwarfDB;
    Grenzen(a, st.FrostKalkwarfGrenzen);
    break;
  case art::DbWagner:
    a.label = " p(LV), Wagner = ";
    index = WagnerDB;
    Grenzen(a, st.WagnerGrenzen);
    break;
  case art::DbAntoineNd:
    a.label = " p(LV), Antoine (Lo-p) = ";
    index = AntoineNiederdruck;
    Grenzen(a, st.AntoineNdGrenzen);
    break;
  default:
    a.label = " p(LV), Antoine (Hi-p) = ";
    index = AntoineHochdruck;
    Grenzen(a, st.AntoineHdGrenzen);
  }
  a.einheit = " kPa";
  a.wert = pLV(l.s, l.T, index, false, a.failed) * l.s.Einheiten.pFaktor;
  if (a.failed == 0) l.Zelle(ZelleP) = a.wert;
}

} // namespace

void Art11(Lauf& l) {
  ProjectState& s = l.s;
  if (!HoleT(l, l.seite.par1)) return;
  l.seite.par1.text = TText(l, l.T);
  const std::string kopf = "Virialkoeffizienten-Vergleich, [B] = m^3/kmol";
  l.Zeile(kopf);
  l.Zeile(std::string(Utf8Laenge(kopf), '='));
  // The rows' set-ups overwrite the constants of the chosen model, which stays in force afterwards.
  const EOSGruppe gewaehlt = s.EOS;
  for (int16_t zeile = eos::VirialVanDerWaals; zeile <= eos::VirialPitzerCurl; ++zeile) {
    int16_t err = 0;
    EOSParameterSetup(s, l.ui, zeile, err);
    // The row texts keep their width, so that the values stand in one column.
    l.Zeile(s.Tab.EOSNamen[zeile] + " {B} = " + Einzel(l, BvonT(s, zeile, l.T)));
  }
  s.EOS = gewaehlt;
  l.Zelle(ZelleB) = BvonT(s, s.Modell.EOSIndex, l.T);
}

void Art12(Lauf& l) {
  ErgebnisSeite& seite = l.seite;
  seite.fraBatchVorgabeSichtbar = false;
  seite.fraValueSichtbar = false;
  seite.fraCalcErweitertSichtbar = false;
  seite.fraProtokollSichtbar = false;
  if (!HoleT(l, seite.par1) || !Holep(l, seite.par2)) return;
  seite.par1.text = TText(l, l.T);
  seite.par2.text = "p = " + Fmt(l, l.p, "####0.000 kPa");
  l.text = l.k.ProzessText;
}

void Datenbank(Lauf& l) {
  if (!HoleT(l, l.seite.par1)) return;
  Auswertung a;
  switch (l.art) {
  case art::DbRhoL:
  case art::DbRhoS:
    Dichte(l, a);
    break;
  case art::DbHLV:
    Verdampfung(l, a);
    break;
  case art::DbCpIdG:
  case art::DbCpL:
  case art::DbCpS:
    Waerme(l, a);
    break;
  default:
    Dampfdruck(l, a);
  }
  if (a.Tlo - l.T > 10 || l.T - a.Thi > 10) {
    l.ui.Meldung(std::string("T liegt mehr als 10 K außerhalb des Gültigkeitsbereichs der Gleichung") + CRLF +
                     "(T/K = " + SingleText(static_cast<float>(a.Tlo)) + "..." +
                     SingleText(static_cast<float>(a.Thi)) + ")",
                 "WARNUNG", ui::Symbol::Ausruf);
  }
  if (a.failed != 0 || !std::isfinite(a.wert)) {
    l.ui.Meldung("Berechnungsfehler aufgetreten", TitelNichtMoeglich, ui::Symbol::Ausruf);
    l.k.ErrorFlag = true;
    return;
  }
  ErgebnisSeite& seite = l.seite;
  seite.par1.text = TText(l, l.T);
  seite.co1.text = std::string(" Berechnung aus der Datenbankfunktion ") + a.label + " Fu(T)";
  seite.txtco2.text = a.label + Einzel(l, a.wert) + a.einheit;
  if (l.art == art::DbRhoL || l.art == art::DbRhoS) {
    const double M = l.s.Stoff.MolMasse, v = M / a.wert;
    l.Zeile(std::string(12, ' ') + "v  /m^3/kmol = " + Fmt(l, v, "##0.000###"));
    l.Zeile(std::string(12, ' ') + "v  /m^3/kg   = " + Fmt(l, v / M, "##0.000###"));
  }
  l.Zeile(" Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:");
  l.Zeile(" T(Lo)/K = " + Ganz(a.Tlo));
  l.Zeile(" T(Hi)/K = " + Ganz(a.Thi));
}

} // namespace quor::calcbatch
