#include "calc/ergebnis_seite.h"

#include "calc/bericht.h"
#include "core/rechen_art.h"

#include <utility>

namespace quor {

const char* const frmQCalcOut::TitelAnfang = "Ergebnis der Berechnung ";
const char* const frmQCalcOut::SpeichernTitel = "QUOR-Ergebnisliste speichern unter ...";
const char* const frmQCalcOut::SpeichernFilter = "Ergebnis-Datei (*.LST)|*.LST";

namespace {

const char* const GlobalText = " (GLOBAL-Berechnung)";
const char* const PartialText = " (PARTIAL-Berechnung)";

// Title texts of the database functions (kind 23 has none).
const char* DatenbankText(int16_t a) {
  switch (a) {
  case art::DbRhoL:
    return "L-Dichte";
  case art::DbRhoS:
    return "S-Dichte";
  case art::DbHLV:
    return "Verdampfungsenthalpie";
  case art::DbCpIdG:
    return "Idealgas-Wärmekapazität";
  case art::DbCpL:
    return "L-Wärmekapazität";
  case art::DbCpS:
    return "S-Wärmekapazität";
  case art::DbFrostKalkwarf:
    return "erweiterte Frost-Kalkwarf-Gleichung";
  case art::DbWagner:
    return "Wagner-Gleichung";
  case art::DbAntoineNd:
    return "Antoine-Gleichung (Lo-p)";
  case art::DbAntoineHd:
    return "Antoine-Gleichung (Hi-p)";
  default:
    return nullptr;
  }
}

} // namespace

std::string ArtText(const ProjectState& s, int16_t a) {
  const bool global = s.Modell.RechnungGlobal;
  const std::string behaelter = "Phasenzustand und Druck in einem Behälter";
  switch (a) {
  case art::TRhoV:
    return " T, rho(V)  => p";
  case art::TRhoL:
    return " T, rho(L)  => p";
  case art::Tp:
    return " T, p => rho";
  case art::pRho:
    return " p, rho => T";
  case art::TzuPLV:
    return std::string(" T => p(LV)") + (global ? GlobalText : PartialText);
  case art::PzuTLV:
    return std::string(" p => T(LV)") + (global ? GlobalText : PartialText);
  case art::HLVvonT:
    return " T => Verdampfungsenthalpie entsprechend \"Modelle\"";
  case art::HLVvonP:
    return " p => Verdampfungsenthalpie entsprechend \"Modelle\"";
  case art::Funktionen:
    return std::string(" thermodynamische Funktionen F(T, p)") + GlobalText;
  case art::Polytrope:
    return "Polytropen-Prozess";
  case art::BehaelterGlobal:
    return behaelter + GlobalText;
  case art::BehaelterPartial:
    return behaelter + " (PARTIAL-Berechnung, rho(L) " +
           (s.Modell.BensonDichte ? " nach BENSON)" : " aus Datenbank)");
  case art::Virial:
    return " Vergleich Virialkoeffizienten";
  default: {
    const char* db = DatenbankText(a);
    return db != nullptr ? std::string(" Datenbankfunktion ") + db : std::string();
  }
  }
}

const char* const IsoKeineVorgabe = "noch keine p- oder T-Vorgabe!";

bool IsoRechnerMoeglich(const RechenKontext& k, ui::Oberflaeche& ui) {
  if (k.Letzter.T > 1e-6f && k.Letzter.pLetzt > 1e-6f) return true;
  ui.Meldung(IsoKeineVorgabe, "Ausführung nicht möglich", ui::Symbol::Ausruf);
  return false;
}

bool PunktGeloescht(const MessdatenGruppe& m, int punkt) {
  return punkt >= 1 && punkt < static_cast<int>(m.ExpDaten.size()) && m.ExpDaten[punkt].T == 0;
}

frmQCalcOut::frmQCalcOut(ProjectState& s, ui::Oberflaeche& ui, bool stapelModus, RechenFunktion rechnen)
    : StapelModus(stapelModus), s_(s), ui_(ui), rechnen_(std::move(rechnen)) {}

int16_t frmQCalcOut::ErsterLebenderPunkt() const {
  for (int16_t n = 1; n <= Kontext.AnzahlPunkte; ++n)
    if (!PunktGeloescht(s_.Mess, n)) return n;
  return Kontext.AnzahlPunkte > 0 ? 1 : 0;
}

void frmQCalcOut::Form_Load() {
  Art = s_.RechenArt;
  Kontext.AnzahlPunkte = StapelModus ? s_.Mess.ExpAnzahl : 0;
  Kontext.StapelErgebnisse.assign(static_cast<std::size_t>(Kontext.AnzahlPunkte) + 1, StapelErgebnis{});
  Kontext.Abschnitte = 1;
  Kontext.MitFunktionen = art::IstGleichgewicht(Art) && s_.Modell.RechnungGlobal;
  ResPlus = {false, false};
  chkUHS = Kontext.MitFunktionen;
  chkFuncPrint = false;
  optResultPrint = AusgabeKeine;
  MitDetails = false;

  Caption = TitelAnfang + ArtText(s_, Art);
  cmdCalc_OKCaption = StapelModus ? "Beenden (+Ausgabe)" : "Schließen";
  cmdCalc_OKToolTip = StapelModus ? "" : "...Eingabe und Ausgabe ";
  AktuellerPunkt = StapelModus ? ErsterLebenderPunkt() : 0;
  fraBatchVorgabeCaption = StapelModus ? " Vorgabewert(e) aus Datenpunkt #" + std::to_string(AktuellerPunkt)
                                       : " Vorgabewert(e) Direkteingabe ";
  Protokoll = ProtokollZustand{};
  Protokoll.ProtokollDatei = NeuerProtokollName(s_.Datenbank.ProgrammVerzeichnis, Datum);
  lblProtText2 = Protokoll.ProtokollDatei;
  Entladen = false;
  Sichtbar = false;

  Rechnen();
  if (Ausgang == "EXIT") {
    Form_Unload();
    return;
  }
  Sichtbar = true;
}

void frmQCalcOut::Rechnen() {
  Ausgang.clear();
  rechnen_(s_, ui_, Seite, Kontext, Art, AktuellerPunkt, Druck, Eta, Ausgang);
  SetzeFreigaben();
}

void frmQCalcOut::SetzeFreigaben() {
  const bool datenbank = art::IstDatenbank(Art);
  const bool partial45 = art::IstGleichgewicht(Art) && !s_.Modell.RechnungGlobal;
  cmdVorEnabled = cmdRueckEnabled = StapelModus;
  fraResultOutputVisible = !(Art == art::Virial || datenbank);
  fraResultOutputEnabled = StapelModus;
  fraProtokollVisible = !art::IstBehaelter(Art) && Seite.fraProtokollSichtbar;
  fraCalcErweitertVisible =
      !(art::IstVerdampfung(Art) || Art == art::Virial || datenbank) && Seite.fraCalcErweitertSichtbar;
  fraBatchVorgabeVisible = Seite.fraBatchVorgabeSichtbar;
  fraValueVisible = Seite.fraValueSichtbar;
  chkUHSEnabled = Art < art::TzuPLV || Art == art::BehaelterGlobal;
  ResPlusEnabled = !partial45;
  chkFuncPrintEnabled = optResultPrint != AusgabeKeine && Art < art::HLVvonT && Kontext.Abschnitte >= 2;
  cmdOpenNewEnabled = Protokoll.ProtokollOffen;
  cmdCEOSDiagnoseEnabled = Seite.cmdCEOSDiagnoseVerfuegbar;
  cmdInfoSuperCritEnabled = Seite.cmdInfoSuperCritVerfuegbar;
  cmdIsoCalcEnabled = !(Art == art::Virial || datenbank || Art == art::Polytrope);
}

// A step skips one deleted point only; beyond the ends the page beeps and stays at the end.
void frmQCalcOut::cmdVor_Click() {
  if (!cmdVorEnabled) return;
  ++AktuellerPunkt;
  if (PunktGeloescht(s_.Mess, AktuellerPunkt)) ++AktuellerPunkt;
  if (AktuellerPunkt > Kontext.AnzahlPunkte) {
    ++Piepser;
    AktuellerPunkt = Kontext.AnzahlPunkte;
  }
  fraBatchVorgabeCaption = "Vorgabewerte aus Datenpunkt " + std::to_string(AktuellerPunkt);
  Rechnen();
}

void frmQCalcOut::cmdRueck_Click() {
  if (!cmdRueckEnabled) return;
  --AktuellerPunkt;
  if (PunktGeloescht(s_.Mess, AktuellerPunkt)) --AktuellerPunkt;
  if (AktuellerPunkt < 1) {
    ++Piepser;
    AktuellerPunkt = 1;
  }
  fraBatchVorgabeCaption = "Vorgabewerte aus Datenpunkt " + std::to_string(AktuellerPunkt);
  Rechnen();
}

void frmQCalcOut::chkUHS_Click(bool an) {
  chkUHS = an;
  Kontext.MitFunktionen = an;
  Rechnen();
}

void frmQCalcOut::ResPlus_Click(int index, bool an) {
  if (index < 0 || index > 1) return;
  ResPlus[static_cast<std::size_t>(index)] = an;
  Kontext.Abschnitte = static_cast<int16_t>(1 + (ResPlus[0] ? 1 : 0) + (ResPlus[1] ? 2 : 0));
  Rechnen();
}

void frmQCalcOut::optResultPrint_Click(int16_t index) {
  optResultPrint = index;
  SetzeFreigaben();
}

void frmQCalcOut::chkFuncPrint_Click(bool an) {
  chkFuncPrint = an;
}

void frmQCalcOut::cmdProtokoll_Click() {
  ProtokollAufnehmen(s_, ui_, Protokoll, Kontext.Ergebnis);
  const int n = Protokoll.ProtokollAnzahl;
  lblProtHinweis = n == 1 ? "1 Ergebnis protokolliert" : std::to_string(n) + " Ergebnisse protokolliert";
  SetzeFreigaben();
}

bool frmQCalcOut::cmdIsoCalc_Click() {
  return cmdIsoCalcEnabled && IsoRechnerMoeglich(Kontext, ui_);
}

void frmQCalcOut::cmdOpenNew_Click() {
  const int n = Protokoll.ProtokollAnzahl;
  const std::string pfad = ProtokollSchliessen(s_, ui_, Protokoll, Datum);
  lblProtText2 = Protokoll.ProtokollDatei;
  lblProtHinweis = pfad.empty()
                       ? std::string()
                       : (n == 1 ? "1 Ergebnis" : std::to_string(n) + " Ergebnisse") +
                             " geschrieben nach\r\n" + pfad + "\r\nund in die Zwischenablage kopiert";
  SetzeFreigaben();
}

// The report lists every live point, so each is calculated once more before it is written.
void frmQCalcOut::RechneAllePunkte() {
  for (int16_t n = 1; n <= Kontext.AnzahlPunkte; ++n) {
    if (PunktGeloescht(s_.Mess, n)) continue;
    int16_t punkt = n;
    std::string ausgang;
    rechnen_(s_, ui_, Seite, Kontext, Art, punkt, Druck, Eta, ausgang);
  }
}

void frmQCalcOut::BerichtAusgeben() {
  MitDetails = chkFuncPrint && chkFuncPrintEnabled;
  const BerichtAuftrag auftrag{Datum, Caption, Art, MitDetails};
  if (optResultPrint == AusgabeDrucker) {
    RechneAllePunkte();
    DruckeBericht(ui_.Druck(), s_, Kontext, auftrag);
    return;
  }
  ui::DateiDialog dialog;
  dialog.titel = SpeichernTitel;
  dialog.filter = SpeichernFilter;
  dialog.standardEndung = ".LST";
  dialog.startVerzeichnis = s_.Datenbank.ProgrammVerzeichnis;
  const auto name = ui_.DateiSpeichern(dialog);
  if (!name || name->empty()) return;
  RechneAllePunkte();
  const std::string pfad = BerichtDateiName(*name, s_.Datenbank.ProgrammVerzeichnis);
  if (!SchreibeBericht(pfad, s_, Kontext, auftrag))
    ui_.Meldung("Die Ergebnisliste konnte nicht geschrieben werden:\r\n" + pfad, "Fehler bei Dateiausgabe",
                ui::Symbol::Kritisch);
}

void frmQCalcOut::cmdCalc_OK_Click() {
  if (optResultPrint != AusgabeKeine && fraResultOutputVisible && fraResultOutputEnabled) BerichtAusgeben();
  optResultPrint = AusgabeKeine;
  Form_Unload();
}

void frmQCalcOut::Form_Unload() {
  if (Entladen) return;
  // The page goes: where the record went is said once more.
  if (Protokoll.ProtokollOffen) {
    cmdOpenNew_Click();
    if (!lblProtHinweis.empty())
      ui_.Meldung("Protokoll: " + lblProtHinweis, "Protokoll", ui::Symbol::Information);
  }
  Entladen = true;
  Sichtbar = false;
  SetzeFreigaben();
  if (BegleiterEntladen) BegleiterEntladen();
}

} // namespace quor
