#include "substance/stoff_wahl.h"

#include "core/daten_diagnose.h"
#include "core/festtext.h"
#include "dienste/oberflaeche.h"
#include "engine/korrelationen.h"
#include "substance/datenbank.h"
#include "substance/korrelierte_parameter.h"
#include "substance/stoff_laden.h"
#include "substance/stoff_wahl_suche.h"

#include <algorithm>

namespace quor {

const char* const frmQStoffWahl::FormCaption = "   Stoffwahl";
const char* const frmQStoffWahl::ListenKopf = "lfd. #     Formel                   Stoffname";
const char* const frmQStoffWahl::LabelName = "Eingabe Stoffname/CAS-Nr.:";
const char* const frmQStoffWahl::LabelSprache = " in german or english ";
const char* const frmQStoffWahl::HinweisEnter =
    "Eingabe mit <Enter> bestätigen, nochmaliges <Enter> führt direkt zum Fenster \"Modelle\"";
const char* const frmQStoffWahl::StoffOKCaption = "Stoff &OK      Weiter >";
const char* const frmQStoffWahl::LabelDatenbank = "geladene Datenbank: ";

namespace {

// Columns of a list row under the heading: position, formula, name.
constexpr std::size_t SpalteFormel = 11;
constexpr std::size_t SpalteName = 25;

std::string ListenZeile(const DatenbankGruppe& db, int k) {
  return FestText(std::to_string(k), SpalteFormel) + FestText(db.FormelListe[k], SpalteName) +
         NameOhneZusatz(db.NamenListe[k]);
}

} // namespace

frmQStoffWahl::frmQStoffWahl(ProjectState& s, ui::Oberflaeche& ui) : s_(s), ui_(ui) {}

bool frmQStoffWahl::Form_Load() {
  const DatenbankGruppe& db = s_.Datenbank;
  if (!db.DatenbankGeladen || db.StoffAnzahl < 1) {
    ui_.Meldung("=> über Icon \"Neues Projekt\" oder über Menüpunkt \"Daten\"\r\nStoffdaten laden",
                "Ausführung nicht möglich", ui::Symbol::Ausruf);
    return false;
  }
  Caption = "Wählen Sie einen Stoff (aus " + std::to_string(db.StoffAnzahl) + ")";
  List1.clear();
  for (int k = 1; k <= db.StoffAnzahl; ++k)
    List1.push_back(ListenZeile(db, k));
  ZeigeDatenbank();
  const bool geladen = db.StoffIndex >= 1 && db.StoffIndex <= db.StoffAnzahl;
  ZeigeZeile(geladen ? db.StoffIndex : int16_t{1}, true);
  ListeHatFokus = true;
  return true;
}

void frmQStoffWahl::ZeigeDatenbank() {
  const DatenbankGruppe& db = s_.Datenbank;
  lblDatenbank = LabelDatenbank + (db.DatenbankTyp == 6 ? db.PfadQ06 : db.PfadQ07);
}

void frmQStoffWahl::List1_Click(int row) {
  if (row < 0 || row >= static_cast<int>(List1.size())) return;
  EnterTreffer = 0;
  ZeigeZeile(static_cast<int16_t>(row + 1), true);
  ListeHatFokus = true;
}

// Selects a position and shows its record: CAS number, structure, name and system number.
void frmQStoffWahl::ZeigeZeile(int16_t position, bool nummerZeigen) {
  StoffIndexNeu = position;
  ListIndex = position - 1;
  DatenbankSatz satz;
  if (!LeseStoffSatz(s_, position, satz)) return;
  const std::string cas = Trim(satz.Text(SatzFeld::CASRN));
  if (satz.Typ() == 6) {
    lblCAS = "CAS-RN:   " + cas;
    lblStruktur.clear();
  } else {
    lblCAS = " CAS-RN: " + cas;
    lblStruktur = "Struktur: " + Trim(satz.Text(SatzFeld::Struktur));
  }
  NameCombo = NameOhneZusatz(s_.Datenbank.NamenListe[position]);
  if (nummerZeigen) Text1 = std::to_string(s_.Datenbank.MDBNummern[position]);
}

bool frmQStoffWahl::Text1_Change(const std::string& text) {
  EnterTreffer = 0;
  Text1 = text.substr(0, 4);
  if (Text1.empty()) return false;
  const bool ziffern = std::all_of(Text1.begin(), Text1.end(), [](char c) { return c >= '0' && c <= '9'; });
  if (!ziffern || std::stoi(Text1) < 1) {
    Text1.clear();
    return true;
  }
  const int16_t position = IndexVonMDBNr(s_, std::stoi(Text1));
  if (position > 0) ZeigeZeile(position, false);
  return false;
}

// Searches the name field and remembers the text; on failure the current entry is shown again.
bool frmQStoffWahl::Suche(int16_t& position) {
  const std::string text = NameCombo;
  if (std::find(NameComboListe.begin(), NameComboListe.end(), text) == NameComboListe.end())
    NameComboListe.push_back(text);
  position = StoffIndexNeu;
  bool notFound = false;
  StoffSuchen(s_, ui_, text, position, notFound);
  if (notFound) {
    position = StoffIndexNeu;
    ZeigeZeile(StoffIndexNeu, true);
  }
  return !notFound;
}

void frmQStoffWahl::NameCombo_Change(const std::string& text) {
  NameCombo = text;
  EnterTreffer = 0;
}

StoffWahlAktion frmQStoffWahl::NameCombo_KeyEnter() {
  if (Trim(NameCombo).empty()) return StoffWahlAktion::Nichts;
  int16_t position = 0;
  const bool gefunden = Suche(position);
  const bool zweites = gefunden && position == StoffIndexNeu && position == EnterTreffer;
  EnterTreffer = gefunden ? position : int16_t{0};
  if (zweites) return StoffOK_Click();
  if (gefunden) ZeigeZeile(position, true);
  return StoffWahlAktion::Nichts;
}

StoffWahlAktion frmQStoffWahl::StoffOK_Click() {
  if (!Trim(NameCombo).empty()) {
    int16_t position = 0;
    if (!Suche(position)) return StoffWahlAktion::Nichts;
    if (position != StoffIndexNeu) ZeigeZeile(position, true);
  }
  if (StoffIndexNeu < 1 || StoffIndexNeu > s_.Datenbank.StoffAnzahl) return StoffWahlAktion::Nichts;
  ExpDatenFragen();
  StoffLaden();
  return StoffWahlAktion::ModellFenster;
}

void frmQStoffWahl::ExpDatenFragen() {
  MessdatenGruppe& m = s_.Mess;
  if (m.ExpAnzahl < 1) return;
  if (ui_.Frage("Geladene exper. Daten jetzt löschen?", "exper. Daten", ui::Knoepfe::JaNein,
                ui::Antwort::Ja) != ui::Antwort::Ja)
    return;
  m.ExpDaten.assign(1, ExpDatenSatz{});
  m.ExpAnzahl = 0;
  m.BatchDateiPfad.clear();
  m.BatchDateiTitel.clear();
  m.BatchKommentar.clear();
  m.BatchGeaendert = false;
  s_.Projekt.Freigaben.ExpDaten = false;
}

void frmQStoffWahl::StoffLaden() {
  s_.Datenbank.StoffIndex = StoffIndexNeu;
  int16_t failed = 0;
  LadeStoff(s_, StoffIndexNeu, failed); // a record without critical data is loaded all the same
  const StoffGruppe& st = s_.Stoff;
  s_.Projekt.StatusLeiste[2] = st.StoffName;
  DatenDiagnose(s_);
  if (st.pKrit * st.TKrit > 0.1 && st.TSiede > 1e-6 && s_.Modell.DampfdruckIndex >= FrostKalkwarfVdW)
    KorrelierteParameter(s_, s_.Modell.DampfdruckIndex, st.TKrit, st.pKrit, st.TSiede);
  MenueFreigaben& f = s_.Projekt.Freigaben;
  f.Stoff = true;
  f.KritischerPunkt = st.TKrit > 1e-6 && st.pKrit > 1e-6;
}

} // namespace quor
