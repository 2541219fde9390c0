// Building the lists of the model window for the loaded substance, with the defaults and the
// corrections of the model selection they imply.
#include "substance/modell_wahl.h"

#include "core/zahlformat.h"
#include "engine/eos_zeilen.h"
#include "engine/korrelationen.h"

#include <algorithm>
#include <cmath>

namespace quor {

namespace {

constexpr double Schwelle = 1e-6;

// Selects the entry of a table row; the first entry for row 0 or a row that isn't offered.
void Waehle(ModellListe& l, int16_t index) {
  const int p = index != 0 ? l.Position(index) : -1;
  l.ListIndex = p >= 0 ? p : 0;
}

// Basic's Str$ of a whole number: a blank stands for the plus sign.
std::string StrVB(int n) {
  return (n >= 0 ? " " : "") + std::to_string(n);
}

} // namespace

int16_t ModellListe::Gewaehlt() const {
  return ListIndex >= 0 && ListIndex < static_cast<int>(Index.size()) ? Index[ListIndex] : int16_t{-1};
}

int ModellListe::Position(int16_t tabellenIndex) const {
  const auto it = std::find(Index.begin(), Index.end(), tabellenIndex);
  return it == Index.end() ? -1 : static_cast<int>(it - Index.begin());
}

void ModellListe::Hinzu(int16_t tabellenIndex, const std::string& text) {
  Index.push_back(tabellenIndex);
  Texte.push_back(text);
}

void ModellListe::Entferne(int16_t tabellenIndex) {
  const int p = Position(tabellenIndex);
  if (p < 0) return;
  Index.erase(Index.begin() + p);
  Texte.erase(Texte.begin() + p);
  if (ListIndex > p) --ListIndex;
  if (ListIndex >= static_cast<int>(Index.size())) ListIndex = static_cast<int>(Index.size()) - 1;
}

void ModellListe::Leeren() {
  Index.clear();
  Texte.clear();
  ListIndex = -1;
}

// Database equations first (Frost/Kalkwarf, Wagner, Antoine low and high pressure), then the
// four correlated ones when the boiling and the critical point are known.
void frmQModell::BaueDampfdruckListe() {
  const StoffGruppe& st = s_.Stoff;
  ModelSelection& m = s_.Modell;
  const auto& namen = s_.Tab.DampfdruckNamen;
  Dampfdruck.Leeren();
  auto hinzu = [&](int16_t i) { Dampfdruck.Hinzu(i, namen[i]); };
  if (std::abs(st.FrostKalkwarfGrenzen.TLo) > Schwelle) hinzu(FrostKalkwarfDB);
  if (st.WagnerGrenzen.TLo > Schwelle) hinzu(WagnerDB);
  if (st.AntoineNd[0] > Schwelle) hinzu(AntoineNiederdruck);
  if (st.AntoineHd[0] > Schwelle) hinzu(AntoineHochdruck);
  if (st.TSiede > Schwelle && st.TKrit * st.pKrit > Schwelle)
    for (int16_t i = AugustKorreliert; i <= AntoineThompson; ++i)
      hinzu(i);
  if (Dampfdruck.Index.empty()) hinzu(DampfdruckKeine);
  Waehle(Dampfdruck, m.DampfdruckIndex);
  m.DampfdruckIndex = Dampfdruck.Gewaehlt();
  m.DampfdruckTag = DampfdruckTagVon(m.DampfdruckIndex);
}

// The ideal gas always; the cubic and virial models with the critical point, those that need the
// acentric factor only with it.
void frmQModell::BaueEOSListe() {
  const StoffGruppe& st = s_.Stoff;
  ModelSelection& m = s_.Modell;
  const bool omega = st.omega != 0;
  if (m.EOSIndex == eos::Keine) m.EOSIndex = omega ? eos::PengRobinson : eos::RedlichKwong;
  EOS.Leeren();
  auto hinzu = [&](std::initializer_list<int16_t> indizes) {
    for (int16_t i : indizes)
      EOS.Hinzu(i, s_.Tab.EOSNamen[i]);
  };
  hinzu({eos::Idealgas});
  if (st.TKrit > Schwelle && st.pKrit > Schwelle) {
    hinzu({eos::VanDerWaals, eos::Berthelot, eos::RedlichKwong});
    if (omega) hinzu({eos::SoaveRedlichKwong, eos::PengRobinson, eos::VarnikJi1, eos::VarnikJi2});
    hinzu({eos::VirialHand});
    if (omega) hinzu({eos::VirialPitzerCurl});
    hinzu({eos::VirialVanDerWaals, eos::VirialBerthelot, eos::VirialRedlichKwong});
    if (omega) hinzu({eos::VirialSoaveRedlichKwong, eos::VirialPengRobinson});
  }
  const int p = EOS.Position(m.EOSIndex);
  EOS.ListIndex = p >= 0 ? p : 0;
  m.EOSIndex = EOS.Gewaehlt();
  m.VirialFlag = eos::IstVirial(m.EOSIndex);
  if (m.VirialFlag) m.KonzeptGlobal = false;
}

void frmQModell::BaueHLVListe() {
  const StoffGruppe& st = s_.Stoff;
  ModelSelection& m = s_.Modell;
  const auto& namen = s_.Tab.HLVNamen;
  HLV.Leeren();
  auto hinzu = [&](int16_t i) { HLV.Hinzu(i, namen[i]); };
  if (st.HLVGrenzen.TLo > Schwelle)
    hinzu(HLVGleichung);
  else if (m.HLVIndex == HLVGleichung)
    m.HLVIndex = HLVKeine;
  if (st.TKrit * st.pKrit > 1.0) hinzu(HLVChen);
  if (std::fabs(st.omega) > Schwelle && st.TKrit > Schwelle) hinzu(HLVCarruthKobayashi);
  if (static_cast<double>(st.WatsonH) * st.WatsonT > Schwelle && st.TKrit > Schwelle) hinzu(HLVWatson);
  if (st.RhoLGrenzen.TLo > Schwelle) hinzu(HLVAusRhoL);
  if (st.TKrit > Schwelle) hinzu(HLVAusBenson);
  if (std::fabs(st.omega) > Schwelle && !m.VirialFlag) hinzu(HLVAusKubischerEOS);
  if (HLV.Index.empty()) hinzu(HLVKeine);
  Waehle(HLV, m.HLVIndex);
  m.HLVIndex = HLV.Gewaehlt();
}

// "0.38" first; with the critical temperature a second exponent from the reduced boiling point.
void frmQModell::BaueWatsonListe() {
  const StoffGruppe& st = s_.Stoff;
  ModelSelection& m = s_.Modell;
  WatsonListe = {"0.38"};
  if (st.TKrit > Schwelle) {
    const double Tbr = st.TSiede / st.TKrit;
    if (Tbr <= 0.57)
      WatsonListe.push_back("0.30");
    else if (Tbr < 0.71)
      WatsonListe.push_back(SingleText(static_cast<float>(0.74 * Tbr - 0.116)));
    else
      WatsonListe.push_back("0.41");
  }
  if (m.WatsonExp > Schwelle) {
    WatsonText = SingleText(m.WatsonExp);
  } else {
    WatsonText = WatsonListe.front();
    m.WatsonExp = 0.38f;
  }
  WatsonVisible = m.HLVIndex == HLVWatson;
}

// A stored cp equation that the substance lacks moves to the other one, without a message.
void frmQModell::BaueCpListe() {
  const StoffGruppe& st = s_.Stoff;
  int16_t& cp = s_.Modell.CpIndex;
  Cp.Leeren();
  if (!st.CpPolyOK && !st.CpSinhOK) Cp.Hinzu(CpKeine, s_.Tab.CpNamen[CpKeine]);
  if (st.CpPolyOK) Cp.Hinzu(CpPolynom, s_.Tab.CpNamen[CpPolynom]);
  if (st.CpSinhOK) Cp.Hinzu(CpSinhCosh, s_.Tab.CpNamen[CpSinhCosh]);
  if (cp == CpKeine) {
    if (st.CpSinhOK)
      cp = CpSinhCosh;
    else if (st.CpPolyOK)
      cp = CpPolynom;
  } else if (cp == CpPolynom && !st.CpPolyOK) {
    cp = st.CpSinhOK ? CpSinhCosh : CpKeine;
  } else if (cp == CpSinhCosh && !st.CpSinhOK) {
    cp = st.CpPolyOK ? CpPolynom : CpKeine;
  }
  const int p = Cp.Position(cp);
  Cp.ListIndex = p >= 0 ? p : 0;
  cp = Cp.Gewaehlt();
}

void frmQModell::BaueRhoLZeilen() {
  const TGrenzen& g = s_.Stoff.RhoLGrenzen;
  if (g.TLo > Schwelle) {
    lblRhoL = "Parameter aus Datenbank verfügbar";
    lblRhoLBereich = "Gültigkeit: T =" + StrVB(g.TLo) + " ..." + StrVB(g.THi) + " K";
  } else {
    lblRhoL = "Parameter nicht verfügbar";
    lblRhoLBereich.clear();
  }
}

void frmQModell::SetzeKonzeptOptionen() {
  optKonzept = s_.Modell.KonzeptGlobal ? 0 : 1;
  optKonzeptEnabled = !s_.Modell.VirialFlag;
}

} // namespace quor
