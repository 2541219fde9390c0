#include "substance/modell_wahl.h"

#include "core/festtext.h"
#include "core/zahl_lesen.h"
#include "core/zahlformat.h"
#include "dienste/oberflaeche.h"
#include "engine/eos_parameter.h"
#include "engine/eos_zeilen.h"
#include "engine/korrelationen.h"
#include "substance/korrelierte_parameter.h"

#include <cmath>

namespace quor {

const char* const frmQModell::CaptionOhneStoff = "  Berechnungs-Modelle";
const char* const frmQModell::OptionGlobal = "GLOBAL-Konzept:  Kubische Zustandsgleichung (CEOS)";
const char* const frmQModell::OptionPartial = "PARTIAL-Konzept: Dampfdruckgleichung (EVP)";
const char* const frmQModell::LabelWatson = "WATSON-Exponent:";
const char* const frmQModell::HinweisSchaltzentrale =
    "dieses Fenster sollte - als Schalt-Zentrale von QUOR -immer geöffnet bleiben";
const char* const frmQModell::cmdOKModellCaption = "Modelle testen (unsichtbar)";
const char* const frmQModell::cmdEditDatenBankCaption = "Datenbank-Editor Synonym-Liste";
const char* const frmQModell::OmegaWarnung = "Kein azentrischer Faktor OMEGA verfügbar.\r\n"
                                             "Es wird mit OMEGA = 0 gerechnet.\r\n"
                                             "(Eingabemöglichkeit im Stoffdaten-Editor)";

namespace {

// Models that need the acentric factor.
bool BrauchtOmega(const ModelSelection& m) {
  return m.HLVIndex == HLVCarruthKobayashi || eos::BrauchtOmega(m.EOSIndex);
}

template <std::size_t N> std::string TabellenText(const std::array<std::string, N>& tabelle, int16_t i) {
  return i >= 0 && static_cast<std::size_t>(i) < N ? Trim(tabelle[i]) : std::string();
}

bool GueltigerEintrag(const ModellListe& l, int eintrag) {
  return eintrag >= 0 && eintrag < static_cast<int>(l.Index.size());
}

} // namespace

frmQModell::frmQModell(ProjectState& s, ui::Oberflaeche& ui) : s_(s), ui_(ui) {}

ModellAktionen frmQModell::Form_Load() {
  const std::string& name = s_.Stoff.StoffName;
  Caption = name.empty() ? CaptionOhneStoff : " Berechnungs-Modelle für " + name;
  BaueDampfdruckListe();
  BaueEOSListe();
  BaueHLVListe();
  BaueWatsonListe();
  BaueCpListe();
  BaueRhoLZeilen();
  SetzeKonzeptOptionen();
  ModellAktionen a;
  a.Getestet = cmdOKModell();
  return a;
}

ModellAktionen frmQModell::DampfdruckListe_Click(int eintrag) {
  ModellAktionen a;
  if (!GueltigerEintrag(Dampfdruck, eintrag)) return a;
  Dampfdruck.ListIndex = eintrag;
  ModelSelection& m = s_.Modell;
  m.DampfdruckIndex = Dampfdruck.Gewaehlt();
  m.DampfdruckTag = DampfdruckTagVon(m.DampfdruckIndex);
  a.BankEditAktualisieren = true;
  a.Getestet = cmdOKModell();
  return a;
}

ModellAktionen frmQModell::EOSListe_Click(int eintrag) {
  ModellAktionen a;
  if (!GueltigerEintrag(EOS, eintrag)) return a;
  EOS.ListIndex = eintrag;
  ModelSelection& m = s_.Modell;
  const bool warVirial = m.VirialFlag;
  m.EOSIndex = EOS.Gewaehlt();
  if (!eos::IstVirial(m.EOSIndex)) {
    m.VirialFlag = false;
    if (warVirial) {
      m.KonzeptGlobal = true;
      // The cubic route for delta(LV)h comes back at the end of its list whatever the acentric
      // factor: the cubic models without it (van der Waals, Berthelot, Redlich/Kwong) give it too.
      if (HLV.Position(HLVAusKubischerEOS) < 0)
        HLV.Hinzu(HLVAusKubischerEOS, s_.Tab.HLVNamen[HLVAusKubischerEOS]);
    }
  } else {
    m.VirialFlag = true;
    m.KonzeptGlobal = false;
    const bool gewaehlt = HLV.Gewaehlt() == HLVAusKubischerEOS;
    HLV.Entferne(HLVAusKubischerEOS);
    if (HLV.Index.empty()) HLV.Hinzu(HLVKeine, s_.Tab.HLVNamen[HLVKeine]);
    if (gewaehlt) WaehleInHLV(0);
  }
  SetzeKonzeptOptionen();
  if (m.EOSIndex == eos::VirialHand) {
    KonstantenFuerHandEingabe();
    a.BParInputOeffnen = true;
  }
  a.Graph2DAktualisieren = true;
  a.Getestet = cmdOKModell();
  return a;
}

void frmQModell::WaehleInHLV(int eintrag) {
  HLV.ListIndex = eintrag;
  s_.Modell.HLVIndex = HLV.Gewaehlt();
  WatsonVisible = s_.Modell.HLVIndex == HLVWatson;
}

ModellAktionen frmQModell::HLVListe_Click(int eintrag) {
  ModellAktionen a;
  if (!GueltigerEintrag(HLV, eintrag)) return a;
  WaehleInHLV(eintrag);
  a.Getestet = cmdOKModell();
  return a;
}

ModellAktionen frmQModell::CpListe_Click(int eintrag) {
  ModellAktionen a;
  if (!GueltigerEintrag(Cp, eintrag)) return a;
  Cp.ListIndex = eintrag;
  s_.Modell.CpIndex = Cp.Gewaehlt();
  a.BankEditAktualisieren = true;
  a.Getestet = cmdOKModell();
  return a;
}

void frmQModell::WatsonListe_Change(const std::string& text) {
  WatsonText = text;
  float wert = 0;
  if (LeseZahlFloat(text, wert)) s_.Modell.WatsonExp = wert;
}

ModellAktionen frmQModell::optKonzept_Click(int option) {
  ModellAktionen a;
  if (!optKonzeptEnabled || (option != 0 && option != 1)) return a;
  s_.Modell.KonzeptGlobal = option == 0;
  optKonzept = option;
  a.Getestet = cmdOKModell();
  return a;
}

// The hand-input model keeps only its own coefficients b0, b1 (bExp) and b2 (BExpHand): the
// constants of the model chosen before would otherwise enter the derivatives of B.
void frmQModell::KonstantenFuerHandEingabe() {
  EOSGruppe& e = s_.EOS;
  e.aForm = 1;
  e.a0 = e.c0 = e.d0 = 0;
  e.aExp = e.cExp = e.dExp = 0;
  e.aT = e.bT = e.cT = e.dT = 0;
  e.vKritEOS = 0;
  e.rhoKritEOS = 0;
}

bool frmQModell::cmdOKModell() {
  const StoffGruppe& st = s_.Stoff;
  const ModelSelection& m = s_.Modell;
  MenueFreigaben& f = s_.Projekt.Freigaben;
  if (st.omega == 0 && BrauchtOmega(m)) ui_.Meldung(OmegaWarnung, "WARNUNG", ui::Symbol::Ausruf);
  f.Modell = true;
  if (m.DampfdruckIndex > AugustKorreliert)
    KorrelierteParameter(s_, m.DampfdruckIndex, st.TKrit, st.pKrit, st.TSiede);
  if (m.EOSIndex != eos::VirialHand) {
    int16_t err = 0;
    EOSParameterSetup(s_, ui_, m.EOSIndex, err);
    if (err != 0) return false;
  }
  f.Diagramme = true;
  f.KritischerPunkt = st.TKrit * st.pKrit > 1e-6;
  StatusLeiste();
  SetzeEinheiten(s_, ui_);
  return true;
}

void frmQModell::StatusLeiste() {
  const ModelSelection& m = s_.Modell;
  auto& panel = s_.Projekt.StatusLeiste;
  panel[2] = s_.Stoff.StoffName;
  if (eos::IstGewaehlt(m.EOSIndex)) panel[3] = TabellenText(s_.Tab.EOSNamen, m.EOSIndex);
  if (m.DampfdruckIndex >= 0)
    panel[4] = "Dampfdruck-Gleichung: " + TabellenText(s_.Tab.DampfdruckNamen, m.DampfdruckIndex);
  if (m.VirialFlag) {
    s_.Projekt.Freigaben.Saettigung = false;
    return;
  }
  s_.Projekt.Freigaben.Saettigung = true;
  if (m.KonzeptGlobal)
    panel[3] += " (GLOBAL-Konzept)";
  else
    panel[4] += " (PARTIAL-Konzept)";
}

std::string frmQModell::SchnittKurvenCaption() const {
  return TabellenText(s_.Tab.EOSNamen, s_.Modell.EOSIndex) + " für Schnitt-Kurve (" +
         " (b = " + FormatVB(s_.EOS.b0, "####0.00###") + " m^3/kmol)" + ")";
}

} // namespace quor
