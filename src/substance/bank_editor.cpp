#include "substance/bank_editor.h"

#include "core/daten_diagnose.h"
#include "core/festtext.h"
#include "core/zahl_lesen.h"
#include "core/zahlformat.h"
#include "dienste/oberflaeche.h"
#include "engine/korrelationen.h"
#include "substance/bank_editor_felder.h"
#include "substance/korrelierte_parameter.h"
#include "substance/synonyme.h"

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace quor {

const char* const frmQBankEdit::Caption = "   Sichten/Editieren der Stoffdaten ";
const char* const frmQBankEdit::KeinWert = "<>";
const char* const frmQBankEdit::KeinWertHinweis = " \"<>\" = kein Wert vorhanden";
const char* const frmQBankEdit::UebernehmenCaption = "Übernehmen von Änderungen";
const char* const frmQBankEdit::UebernehmenTip = "...sonst keine Auswirkung auf Diagramme und Berechnungen ";
const char* const frmQBankEdit::SchreibenCaption =
    "Änderungen übernehmen und geänderte Daten in privates Q07-Datenbank-File schreiben => Klick";
const char* const frmQBankEdit::SchreibenTip =
    "Mini-Datenbank *.Q07 enthält nur den aktuellen Stoff dieses Projektes";
const char* const frmQBankEdit::EscWarnung = " Achtung, evtl. Änderungen gehen ohne \"Übernehmen\" verloren ";
const char* const frmQBankEdit::NichtEditierbar = "nicht editierbar";
const char* const frmQBankEdit::DiagrammOffen = "Löschen Sie das vorhandene 2D-Diagramm.";
const char* const frmQBankEdit::OptionPTripel[2] = {"aus Datenbank", "aus aktueller Dampfdruckgleichung"};
const char* const frmQBankEdit::OptionPTripelTip = " vgl. Fenster \"Berechnungs-Modelle\" ";
const char* const frmQBankEdit::KorrelierenCaption = "neu berechnen";
const char* const frmQBankEdit::KorrelierenTip =
    " ... nach Änderung von kritischem Punkt oder Normalsiedepunkt ";
const char* const frmQBankEdit::ZeichnenpLVTip =
    " Dampfdruck-Funktion entsprechend Einstellung unter \"Berechnungs-Modelle\" ";
const char* const frmQBankEdit::JobackCaption = "JOBACK-Werte berechnen";
const char* const frmQBankEdit::JobackTip = "... aus Molekül-Inkrementen ";
const char* const frmQBankEdit::GleichungCpSinh =
    "cp = C0+ C1*((C2/T)/sinh(C2/T))^2 + C3*((C4/T)/cosh(C4/T))^2  (DIPPR-Funktion)";
const char* const frmQBankEdit::GleichungCpPoly = "cp = C0 + C1*T + C2*T^2 + C3*T^3 + C4*T^4  (Polynom)";
const char* const frmQBankEdit::GleichungHLV =
    "delta(LV)h = A * (1 - Tr)^{beta + C*Tr + D*Tr^2 + E*Tr^3} * exp(-alpha * Tr) ";
const char* const frmQBankEdit::GleichungRhoLRackett =
    "Fall A = 0:           rhoL = B/[C^(1 + X^D)]  mit X = 1 - T/Tcr    (Rackett-Gl., DIPPR)";
const char* const frmQBankEdit::GleichungRhoLKombi =
    "Fall A <> 0:          rhoL =  A + B*T + C*T^2 + D*T^3 + E/(F + T) + G(1-T/Tcr)^1/3  (Kombi-Gleichung)";
const char* const frmQBankEdit::GleichungRhoS = "rhoS = A + B*T + C*T^2 + D*T^3";
const char* const frmQBankEdit::GleichungAntoine = "log10(p/kPa) = A - B/(C + T/K - 273.15)";
const char* const frmQBankEdit::GleichungWagner =
    "ln(p/pcrit) = (Tcrit/T)*(A1*X + A2*X^1.5 + A3*X^n3 + A4*X^n4 + A5*X^n5)  mit X = 1 - T/Tcrit";

namespace {

constexpr double Schwelle = 1e-6;

int16_t GanzeZahl(double x) {
  return static_cast<int16_t>(std::clamp(std::nearbyint(x), -32768.0, 32767.0));
}

std::string TextOderKeinWert(const std::string& t) {
  return Trim(t).empty() ? frmQBankEdit::KeinWert : t;
}

std::string TextOhneKeinWert(const std::string& t) {
  const std::string g = Trim(t);
  return g == frmQBankEdit::KeinWert ? "" : g;
}

KorrelierterSatz Satz(int index, const char* titel, const char* namen) {
  KorrelierterSatz k;
  k.Index = index;
  k.Titel = titel;
  for (const char* n = namen; *n; ++n)
    k.Namen.push_back(std::string(1, *n));
  return k;
}

template <std::size_t N> std::vector<std::string> Texte(const std::array<float, N>& werte) {
  std::vector<std::string> t;
  for (float w : werte)
    t.push_back(FeldText(w));
  return t;
}

} // namespace

frmQBankEdit::frmQBankEdit(ProjectState& s, ui::Oberflaeche& ui) : s_(s), ui_(ui) {
  Korreliert = {Satz(AugustKorreliert, "August", "AB"),
                Satz(FrostKalkwarfVdW, "Frost/Kalkwarf (vdW)", "ABCDEFGHI"),
                Satz(FrostKalkwarfRK, "Frost/Kalkwarf (RK)", "ABCDEFGHI"),
                Satz(AntoineThompson, "Antoine (Thompson)", "ABC")};
}

void frmQBankEdit::Form_Load() {
  FelderAusStand();
  korreliert_ = s_.Stoff;
  KorrelierteAnzeigen();
  lblMDBNr = "MDB-Syst.-Nr: " + std::to_string(s_.Stoff.MDBNr);
  optpSL = 0;
  ModellGeaendert();
  Geaendert = false;
}

void frmQBankEdit::FelderAusStand() {
  DD.fill("");
  StoffGruppe& st = s_.Stoff;
  bank::FuerJedenWert(st, [this](int i, auto& wert) {
    if constexpr (std::is_same_v<std::decay_t<decltype(wert)>, int16_t>)
      DD[i] = GrenzenText(wert);
    else
      DD[i] = FeldText(static_cast<float>(wert));
  });
  DD[bank::DDName] = TextOderKeinWert(st.StoffName);
  DD[bank::DDFormel] = TextOderKeinWert(st.Formel);
  DD[bank::DDCAS] = TextOderKeinWert(st.CASRN);
  DD[bank::DDStruktur] = TextOderKeinWert(st.Struktur);
}

void frmQBankEdit::KorrelierteAnzeigen() {
  const StoffGruppe& k = korreliert_;
  Korreliert[0].Texte = {FeldText(k.AugustA), FeldText(k.AugustB)};
  Korreliert[1].Texte = Texte(k.KFW);
  Korreliert[2].Texte = Texte(k.KFR);
  Korreliert[3].Texte = Texte(k.THO);
}

void frmQBankEdit::FeldGeaendert(int index, const std::string& text) {
  if (index < 0 || index >= DDAnzahl) return;
  DD[static_cast<std::size_t>(index)] = text;
  Geaendert = true;
}

double frmQBankEdit::Wert(int index) const {
  std::string t = DD[static_cast<std::size_t>(index)];
  std::replace(t.begin(), t.end(), ',', '.');
  return ValVB(t);
}

// An entered zero stays a value: it becomes 1E-37; an empty field has none.
void frmQBankEdit::NullenMarkieren() {
  for (int i = 0; i <= 122; ++i) {
    if (!BankFeldVon(i)) continue;
    std::string& t = DD[static_cast<std::size_t>(i)];
    if (Trim(t).empty())
      t = KeinWert;
    else if (Wert(i) == 0 && Trim(t) != KeinWert && !IstTextFeld(i))
      t = "1E-37";
  }
}

void frmQBankEdit::FelderInStand() {
  StoffGruppe& st = s_.Stoff;
  bank::FuerJedenWert(st, [this](int i, auto& wert) {
    using T = std::decay_t<decltype(wert)>;
    if constexpr (std::is_same_v<T, int16_t>)
      wert = GanzeZahl(Wert(i)); // the limits are whole kelvins
    else
      wert = static_cast<T>(Wert(i));
  });
  st.StoffName = TextOhneKeinWert(DD[bank::DDName]);
  st.Formel = FestText(TextOhneKeinWert(DD[bank::DDFormel]), 12);
  st.Formel = Trim(st.Formel);
  st.FormelOhneLeer.clear();
  std::copy_if(st.Formel.begin(), st.Formel.end(), std::back_inserter(st.FormelOhneLeer),
               [](char c) { return c != ' '; });
  st.CASRN = TextOhneKeinWert(DD[bank::DDCAS]);
  st.Struktur = TextOhneKeinWert(DD[bank::DDStruktur]);
  // The same values in the other forms the program keeps.
  st.vKritExp = st.rhoKritExp > Schwelle ? st.MolMasse / st.rhoKritExp : 0;
  if (std::fabs(static_cast<double>(st.hBildung) * st.gBildung) > Schwelle)
    st.DeltaFs = static_cast<float>((static_cast<double>(st.hBildung) - st.gBildung) / TStandard);
  // The sinh term needs a C2 other than 0 (an entered zero among them).
  float& C2 = st.CpSinh[2];
  C2 = std::fabs(C2);
  if (C2 < Schwelle && std::fabs(st.CpSinh[0]) > Schwelle) C2 = 0.1f;
  DD[37] = FeldText(C2);
}

void frmQBankEdit::AbgeleiteteWerte() {
  StoffGruppe& st = s_.Stoff;
  ModelSelection& m = s_.Modell;
  auto da = [](const TGrenzen& g, const std::array<float, 5>& c) {
    return g.TLo * std::fabs(static_cast<double>(c[0])) > Schwelle;
  };
  st.CpPolyOK = da(st.CpPolyGrenzen, st.CpPoly);
  st.CpSinhOK = da(st.CpSinhGrenzen, st.CpSinh);
  st.CpLOK = da(st.CpLGrenzen, st.CpL);
  st.CpSOK = da(st.CpSGrenzen, st.CpS);

  // Without a tag the Antoine sets that now have a range offer themselves, low pressure first.
  if (m.DampfdruckTag == "000" || m.DampfdruckTag == "<> " || m.DampfdruckTag.empty()) {
    if (st.AntoineHdGrenzen.TLo > Schwelle) m.DampfdruckTag = "AHP";
    if (st.AntoineNdGrenzen.TLo > Schwelle) m.DampfdruckTag = "ALP";
  }
  const int gleichung = bank::IndexVonTag(m.DampfdruckTag);
  if (!(st.TSiede > Schwelle) && gleichung > 0) {
    int16_t failed = 0;
    const double Tb = TLV(s_, pNormal, gleichung, false, failed);
    if (failed == 0 && Tb > Schwelle) {
      st.TSiede = static_cast<float>(Tb);
      DD[1] = FeldText(st.TSiede);
    }
  }
  if (static_cast<double>(st.TSiede) * st.TKrit * st.pKrit > Schwelle)
    KorrelierteParameter(s_, AugustKorreliert, st.TKrit, st.pKrit, st.TSiede);
  if (!(static_cast<double>(st.WatsonH) * st.WatsonT > Schwelle) && m.HLVIndex == HLVWatson)
    m.HLVIndex = HLVChen;
}

void frmQBankEdit::cmdUebernehmen() {
  NullenMarkieren();
  FelderInStand();
  AbgeleiteteWerte();
  DatenDiagnose(s_);
  korreliert_.AugustA = s_.Stoff.AugustA;
  korreliert_.AugustB = s_.Stoff.AugustB;
  KorrelierteAnzeigen();
  Geaendert = false;
  if (ModellFensterNeu) ModellFensterNeu();
  ModellGeaendert();
}

void frmQBankEdit::optpSL_Click(int option) {
  optpSL = option == 1 ? 1 : 0;
  if (optpSL == 0) {
    DD[3] = FeldText(s_.Stoff.pTripel);
    return;
  }
  const double Ttr = Wert(2);
  int16_t failed = -1;
  double p = 0;
  if (Ttr > Schwelle) p = pLV(s_, Ttr, bank::AktuelleDampfdruckGleichung(s_), false, failed);
  DD[3] = failed == 0 ? FeldText(static_cast<float>(p)) : KeinWert;
}

void frmQBankEdit::cmdCorrelate(int index) {
  ProjectState t;
  t.Stoff = korreliert_;
  KorrelierteParameter(t, index, Wert(4), Wert(5), Wert(1));
  korreliert_ = t.Stoff;
  KorrelierteAnzeigen();
}

void frmQBankEdit::JobackWert(int ddIndex, double wert) {
  if (!BankFeldVon(ddIndex)) return;
  FeldGeaendert(ddIndex, SingleText(static_cast<float>(wert)));
}

std::optional<frmQTextEdit> frmQBankEdit::cmdSynonyme() {
  return SynonymListe(s_, ui_, s_.Stoff.CASRN);
}

bool frmQBankEdit::Esc() {
  if (!Geaendert) return true;
  return ui_.Frage(EscWarnung, "Warnung", ui::Knoepfe::OKAbbrechen, ui::Antwort::Abbrechen) ==
         ui::Antwort::OK;
}

void frmQBankEdit::ModellGeaendert() {
  const int p = bank::AktuelleDampfdruckGleichung(s_);
  lblDampfdruckWahl = "aktuell gewählt: " + Trim(s_.Tab.DampfdruckNamen[static_cast<std::size_t>(p)]);
  const int cp = std::clamp<int>(s_.Modell.CpIndex, 0, 2);
  lblCpWahl = "aktuell gewählt: " + Trim(s_.Tab.CpNamen[static_cast<std::size_t>(cp)]);
  if (optpSL == 1) optpSL_Click(1);
}

} // namespace quor
