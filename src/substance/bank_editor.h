// Logic of the substance data editor frmQBankEdit: every value of the loaded substance as the text
// of one field of DD ("<>" for no value), on six pages. "Übernehmen" puts the fields into the
// project state with the derived values (flags, vapour-pressure tag, boiling point, August
// constants, Watson method) and grades the data anew; the main database is never changed, but a
// private database of the one substance can be written. The correlated vapour-pressure sets are
// shown and computed from the fields, never edited.
#pragma once

#include "core/project_state.h"
#include "substance/joback.h"
#include "substance/text_fenster.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quor {

namespace ui {
class Oberflaeche;
}

constexpr int HilfeBankEditor = 34100;

// The pages of the dialog, in their order.
enum class BankSeite { Einzeldaten, Dampfdruck, CpIdealgas, Dichten, Verdampfung, CpLS };
constexpr int BankSeitenAnzahl = 6;
extern const char* const BankSeitenTitel[BankSeitenAnzahl];

// One editable field: its DD index, the label in front of it, its page and the group box it sits in.
struct BankFeld {
  int Index;
  const char* Beschriftung;
  BankSeite Seite;
  const char* Gruppe;
};

// Every DD field in the order of the pages and groups.
const std::vector<BankFeld>& BankFelder();

// The field of a DD index; null for an index without a field.
const BankFeld* BankFeldVon(int index);

// The text fields (name, formula, CAS number, structure); all others hold numbers.
bool IstTextFeld(int index);

// A correlated vapour-pressure set as the editor shows it, read-only: its title, the names of its
// values and their texts.
struct KorrelierterSatz {
  int Index = 0; // 5 August, 6 KFW, 7 KFR, 8 THO
  std::string Titel;
  std::vector<std::string> Namen;
  std::vector<std::string> Texte;
};

// The key filter of a number field: the character as it is entered, "," as ".", or 0 for one
// that doesn't pass (digits, "E", "e", "-", ".", ",", carriage return, backspace and delete pass).
char BankTaste(char c);

// The drawing buttons of the pages.
enum class BankZeichnen { pLV, RhoL, RhoS, HLV, CpIdGas, CpL, CpS };

class frmQBankEdit {
public:
  static constexpr int DDAnzahl = 131;
  static const char* const Caption;            // "   Sichten/Editieren der Stoffdaten "
  static const char* const KeinWert;           // "<>"
  static const char* const KeinWertHinweis;    // " "<>" = kein Wert vorhanden"
  static const char* const UebernehmenCaption; // "Übernehmen von Änderungen"
  static const char* const UebernehmenTip;     // "...sonst keine Auswirkung auf ..."
  static const char* const SchreibenCaption;
  static const char* const SchreibenTip;
  static const char* const EscWarnung;
  static const char* const NichtEditierbar; // "nicht editierbar"
  static const char* const DiagrammOffen;   // "Löschen Sie das vorhandene 2D-Diagramm."
  static const char* const OptionPTripel[2];
  static const char* const OptionPTripelTip;
  static const char* const KorrelierenCaption;
  static const char* const KorrelierenTip;
  static const char* const ZeichnenpLVTip;
  static const char* const JobackCaption;
  static const char* const JobackTip;
  static const char* const GleichungCpSinh;
  static const char* const GleichungCpPoly;
  static const char* const GleichungHLV;
  static const char* const GleichungRhoLRackett;
  static const char* const GleichungRhoLKombi;
  static const char* const GleichungRhoS;
  static const char* const GleichungAntoine;
  static const char* const GleichungWagner;

  frmQBankEdit(ProjectState& s, ui::Oberflaeche& ui);

  // Fills every field from the project state, the correlated sets from the state's values, and
  // the triple-point option from the database.
  void Form_Load();

  // The user typed into a field (the view has passed the text through the key filter).
  void FeldGeaendert(int index, const std::string& text);

  // "Übernehmen": the fields into the project state with the derived values; then the model
  // window is rebuilt (hook).
  void cmdUebernehmen();

  // Takes over, then writes the private database of the substance after the save dialog.
  void WriteDataBaseQ07();

  // Triple-point pressure: 0 from the database, 1 from the current vapour-pressure equation.
  void optpSL_Click(int option);

  // "neu berechnen" of a correlated set (5 August, 6 KFW, 7 KFR, 8 THO) from the fields' Tc, pc, Tb.
  void cmdCorrelate(int index);

  // A drawing button: refused while a 2D diagram is open, else the 2D menu's entry of the function.
  void cmdDraw(BankZeichnen knopf);

  // A group button: opens the Joback dialog in its mode.
  void cmdJoback(JobackModus modus);

  // A value of the Joback dialog into its field.
  void JobackWert(int ddIndex, double wert);

  // The synonym list of the substance; nothing (after a message) without one.
  std::optional<frmQTextEdit> cmdSynonyme();

  // Esc: true when the window may close; with changes not taken over the user is asked first.
  bool Esc();

  // The model window's choice changed: the labels that name the current equations.
  void ModellGeaendert();

  // The 2D menu entry that draws a database function of a drawing button ("mnuGraf_sub_database" or
  // "mnuGraf_sub_sub_database" and its index); index -1 when there is none.
  std::pair<std::string, int> ZeichenEintrag(BankZeichnen knopf) const;

  std::array<std::string, DDAnzahl> DD;
  std::array<KorrelierterSatz, 4> Korreliert; // August, KFW, KFR, THO
  int optpSL = 0;
  std::string lblMDBNr;          // "MDB-Syst.-Nr: " + number
  std::string lblDampfdruckWahl; // the vapour-pressure equation of the models
  std::string lblCpWahl;         // the ideal-gas cp equation of the models
  bool Geaendert = false;        // fields changed since the last load or take-over

  // Hooks the frame sets: whether a 2D diagram is open, drawing through the 2D menu, the Joback
  // dialog, and the model window's rebuild when it is open.
  std::function<bool()> DiagrammOffen2D;
  std::function<void(const std::string& name, int index)> Zeichnen;
  std::function<void(int modus)> JobackOeffnen;
  std::function<void()> ModellFensterNeu;

private:
  double Wert(int index) const;
  float WertF(int index) const { return static_cast<float>(Wert(index)); }
  void FelderAusStand();
  void KorrelierteAnzeigen();
  void NullenMarkieren();
  void FelderInStand();
  void AbgeleiteteWerte();

  ProjectState& s_;
  ui::Oberflaeche& ui_;
  StoffGruppe korreliert_; // the correlated sets on show
};

// The text of a value in a field: "<>" for 0, else the default text of a single value.
std::string FeldText(float wert);
// The text of a temperature limit: "<>" for 0, else the whole number.
std::string GrenzenText(int16_t wert);

} // namespace quor
