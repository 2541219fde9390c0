#include "calc/calc_eingabe.h"

#include "core/rahmen.h"
#include "core/rechen_art.h"
#include "core/zahlformat.h"
#include "engine/korrelationen.h"
#include "engine/referenz.h"

#include <utility>

namespace quor {

const char* const frmCalcIn::Caption = "Wahl GLOBAL- oder PARTIAL-Berechnung für Phasengleichgewicht V-L";
const char* const frmCalcIn::fraSituationCaption = "Berechnungs-Situation";
const char* const frmCalcIn::Bz1Caption = "PARTIAL-Berechnung: L-Dichte und Bezugspunkt";
const std::array<const char*, 2> frmCalcIn::opt_globTexte{"GLOBAL-Berechnung", "PARTIAL-Berechnung"};
const std::array<const char*, 2> frmCalcIn::optPartialBensonTexte{"Datenbankfunktion rho(L) = Fu(T)",
                                                                  "BENSON-Methode (Mathias-Cailletet)"};
const std::array<const char*, 3> frmCalcIn::Ref_optTexte{
    "Vorschlag für Bezugspunkt entsprechend Datensituation:",
    "Bezugspunkt mit BENSON-Näherungsformel für rho(L):", "Bezugspunkt eingeben:"};
const char* const frmCalcIn::RefInputCaption = "Eingabe ...";
const char* const frmCalcIn::GlobalNurKubisch =
    "GLOBAL-Berechnung ist nur mit einer kubischen EOS möglich (=> Fenster \"Modelle\").";

namespace {

constexpr double Schwelle = 1e-6;

std::string Zeilen(std::initializer_list<const char*> zeilen) {
  std::string text;
  for (const char* z : zeilen) {
    if (!text.empty()) text += "\r\n";
    text += z;
  }
  return text;
}

// Basic's Str$ of a whole number: a blank where the sign of a negative one would stand.
std::string StrVB(int n) {
  return (n < 0 ? "" : " ") + std::to_string(n);
}

bool BezugGehalten(const ReferenzGruppe& r) {
  return r.BezugT * r.BezugP * r.BezugRhoL * r.BezugRhoV > 1e-6f;
}

} // namespace

std::string BezugspunktText(const ProjectState& s) {
  const ReferenzGruppe& r = s.Referenz;
  return " T(ref)/K           = " + SingleText(r.BezugT) + "\r\n" +
         " p(LV)(ref)/kPa     = " + SingleText(r.BezugP) + "\r\n" +
         " rho(L)(ref)/kg/m^3 = " + SingleText(r.BezugRhoL) + "\r\n" +
         " rho(V)(ref)/kg/m^3 = " + SingleText(r.BezugRhoV);
}

frmCalcIn::frmCalcIn(ProjectState& s, ui::Oberflaeche& ui, RechnungsFenster fenster)
    : s_(s), ui_(ui), f_(std::move(fenster)) {}

// The case itself asks for PARTIAL: T and p at equilibrium, or Benson's liquid density for the
// enthalpy of vaporization and the vessel. The equilibria by T or p stay free to choose whatever
// method of the enthalpy of vaporization is set: they take its value from the EOS.
bool frmCalcIn::PartialErzwungen() const {
  const int16_t a = s_.RechenArt;
  return (a == art::Tp && s_.Rechnung.TpGleichgewicht) || a >= art::HLVvonT;
}

void frmCalcIn::SituationSetzen() {
  const int16_t a = s_.RechenArt;
  const bool virial = s_.Modell.VirialFlag;
  const bool tpGleich = a == art::Tp && s_.Rechnung.TpGleichgewicht;
  const bool benson = a >= art::HLVvonT || s_.Modell.HLVIndex == HLVAusBenson;
  if (virial && !benson && !tpGleich) {
    Situation = Zeilen({"Die gewählte EOS ist nur für die V-Phasen-Berechnung anwendbar.",
                        "Die L-Dichte wird mit der BENSON-Methode berechnet,",
                        " p(LV) bzw. T(LV) mittels aktueller Dampfdruckgleichung (\"PARTIAL-Berechnung\")."});
  } else if (virial && tpGleich) {
    Situation = Zeilen({"Annahme, dass die Vorgabewerte das Phasengleichgewicht beschreiben.",
                        "Mittels EOS wird die V-Dichte berechnet, mittels der BENSON-Methode die L-Dichte"});
  } else if (tpGleich) {
    Situation = Zeilen({"Annahme, dass die Vorgabewerte exakt das Phasengleichgewicht beschreiben.",
                        "Für diesen Fall ist die PARTIAL-Berechnung zu wählen: Mittels EOS wird die ",
                        "Dampfdichte berechnet, mittels der Benson-Methode die Flüssigkeitsdichte"});
  } else if (benson) {
    Situation = Zeilen({"Die Berechnung der Dichte (bzw. des Molvolumens) der L-Phase erfolgt",
                        "nach der BENSON-Methode. Dazu ist (neben dem kritischen Punkt)",
                        "ein zweiter Bezugspunkt festzulegen."});
  } else if (s_.Modell.KonzeptGlobal) {
    Situation = Zeilen({"Die gewählte EOS ermöglicht die Berechnung beider Gleichgewichtsphasen",
                        " L und V (\"GLOBAL-Berechnung\"). Ihre Anwendung kann jedoch auf die V-Phase",
                        " beschränkt werden (\"PARTIAL-Berechnung\"); die L-Dichte wird dann mittels",
                        " BENSON-Methode oder Datenbank-Gleichung rho(T) berechnet, p(LV) bzw. T(LV) mittels "
                        "Dampfdruckgleichung."});
  } else {
    Situation = Zeilen({"Gleichgewichtsberechnung V-L erfolgt mit der aktuellen Dampfdruckgleichung.",
                        "(PARTIAL-Berechnungskonzept)"});
  }
}

void frmCalcIn::Form_Load() {
  Geschlossen = false;
  SituationSetzen();
  const TGrenzen& g = s_.Stoff.RhoLGrenzen;
  const bool dichteFunktion = g.TLo > Schwelle && g.THi > Schwelle;
  optPartialBensonEnabled = {dichteFunktion, true};
  lblRhoLimits = dichteFunktion ? "gültig im Bereich T/K =" + StrVB(g.TLo) + " ... " + std::to_string(g.THi)
                                : "(keine Datenbank-Funktion verfügbar.)";
  if (!dichteFunktion) s_.Modell.BensonDichte = true;
  optPartialBenson = s_.Modell.BensonDichte ? 1 : 0;

  const bool partial = PartialErzwungen();
  opt_globEnabled = {!partial, true};
  opt_glob = partial || s_.Modell.VirialFlag || !s_.Modell.KonzeptGlobal ? 1 : 0;
  s_.Modell.RechnungGlobal = opt_glob == 0;
  Ref_opt = -1;
  RefInputEnabled = false;
  RefVorschlag = BezugGehalten(s_.Referenz) ? BezugspunktText(s_) : "";
  KonzeptZeigen();
}

void frmCalcIn::KonzeptZeigen() {
  PartialSichtbar = opt_glob == 1;
  if (PartialSichtbar) {
    GlobalSit = std::string("PARTIAL-Berechnung: L-Dichte mittels ") +
                (s_.Modell.BensonDichte ? "BENSON-Methode (Mathias-Cailletet), "
                                        : " Datenbankgleichung rho(L) = Fu(T), ") +
                "V-Dichte mittels EOS berechnet. Die p(LV)- bzw. T(LV)-Berechnung erfolgt mit der aktuellen "
                "Dampfdruckgleichung.";
    DichteHinweis = s_.Modell.BensonDichte
                        ? "Die L-Dichte wird mit der BENSON-Methode berechnet."
                        : "Die L-Dichte wird mit der Datenbankfunktion rho(L) = Fu(T) berechnet.";
    // Without a reference point the proposal by the data is made at once.
    if (Ref_opt < 0 && !BezugGehalten(s_.Referenz)) Ref_opt_Click(0);
  } else {
    GlobalSit =
        "GLOBAL-Berechnung: L- und V-Dichte sowie Dampfdruck p(LV) bzw. Siedetemperatur p(LV) mittels "
        "kubischer Zustandsgleichung.";
    DichteHinweis.clear();
  }
}

void frmCalcIn::opt_glob_Click(int index) {
  if (index == 0 && s_.Modell.VirialFlag) {
    ui_.Meldung(GlobalNurKubisch, "Ausführung nicht möglich", ui::Symbol::Ausruf);
    index = 1;
  }
  if (index == 0 && !opt_globEnabled[0]) index = 1;
  opt_glob = index == 0 ? 0 : 1;
  s_.Modell.RechnungGlobal = opt_glob == 0;
  KonzeptZeigen();
}

void frmCalcIn::optPartialBenson_Click(int index) {
  if (index == 0 && !optPartialBensonEnabled[0]) index = 1;
  optPartialBenson = index == 0 ? 0 : 1;
  s_.Modell.BensonDichte = optPartialBenson == 1;
  KonzeptZeigen();
}

void frmCalcIn::Ref_opt_Click(int index) {
  Ref_opt = index;
  RefInputEnabled = index == 2;
  std::string text;
  if (index == 0) {
    int16_t err = 0;
    BezugspunktVorschlag(s_, text, err);
    RefVorschlag = err == 0 ? text : "";
  } else if (index == 1) {
    BezugspunktBenson(s_, text);
    RefVorschlag = text;
  }
}

void frmCalcIn::RefInput_Click() {
  if (!RefInputEnabled) return;
  s_.Rechnung.ParinputModus = ParinputBezugspunkt;
  if (f_.ParinputZeigen) f_.ParinputZeigen();
  RefVorschlag = BezugspunktText(s_);
}

void frmCalcIn::BENSON_HELP_Click() {
  ui_.Hilfe(HilfeBerechnungen);
}

void frmCalcIn::OK_Click() {
  BezugGueltigSetzen(s_);
  Geschlossen = true;
  if (f_.ParinputSchliessen) f_.ParinputSchliessen();
  if (AusDiagramm) {
    if (f_.DiagrammWeiter) f_.DiagrammWeiter();
    return;
  }
  const int16_t a = s_.RechenArt;
  if (a != art::BehaelterPartial && f_.ErgebnisZeigen && !f_.ErgebnisZeigen()) return;
  RechnungGruppe& r = s_.Rechnung;
  if (r.StapelModus) return;
  r.ParinputModus = static_cast<int16_t>(a == art::BehaelterPartial ? ParinputBehaelter : a + ParinputDirekt);
  if (f_.ParinputZeigen) f_.ParinputZeigen();
}

} // namespace quor
