// Logic of the model window frmQModell, the switchboard of the program: for the loaded substance
// it offers only the models whose data exist (EOS, vapour-pressure equation, delta(LV)h method with
// the Watson exponent, ideal-gas cp equation, GLOBAL or PARTIAL concept), writes the choice into the
// model selection and tests the set at once (cmdOKModell) on every change. The view shows the
// lists and forwards the user's choices; the returned actions tell it what else to do.
#pragma once

#include "core/project_state.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quor {

namespace ui {
class Oberflaeche;
}

// One list of the window: the table rows it offers, their texts, and the selection.
struct ModellListe {
  std::vector<int16_t> Index;     // table row of each entry
  std::vector<std::string> Texte; // the table's text of each entry (padded as in the table)
  int ListIndex = -1;             // selected entry

  int16_t Gewaehlt() const;                  // table row of the selection, -1 when nothing is selected
  int Position(int16_t tabellenIndex) const; // entry of a table row, -1 when it isn't offered
  void Hinzu(int16_t tabellenIndex, const std::string& text);
  void Entferne(int16_t tabellenIndex);
  void Leeren();
};

// What the view does after a user action, beyond showing the fields anew.
struct ModellAktionen {
  bool Getestet = false;              // cmdOKModell ran to its end (an open frmQOptions takes VirialFlag)
  bool BParInputOeffnen = false;      // the hand-input virial model was chosen: open frmBParInput
  bool BankEditAktualisieren = false; // an open frmQBankEdit shows the new choice
  bool Graph2DAktualisieren = false;  // an open 2D diagram takes the new EOS (SchnittKurvenCaption)
};

class frmQModell {
public:
  static const char* const CaptionOhneStoff; // "  Berechnungs-Modelle"
  static const char* const OptionGlobal;     // "GLOBAL-Konzept:  Kubische Zustandsgleichung (CEOS)"
  static const char* const OptionPartial;    // "PARTIAL-Konzept: Dampfdruckgleichung (EVP)"
  static const char* const LabelWatson;      // "WATSON-Exponent:"
  static const char* const HinweisSchaltzentrale;
  static const char* const cmdOKModellCaption; // "Modelle testen (unsichtbar)"
  static const char* const cmdEditDatenBankCaption;
  static const char* const OmegaWarnung;

  frmQModell(ProjectState& s, ui::Oberflaeche& ui);

  // Builds the window for the loaded substance: caption, the lists in their order with the defaults
  // and corrections of the model selection, the Watson list, the L-density lines and the concept
  // options; then tests the models (cmdOKModell). Runs again on every new substance.
  ModellAktionen Form_Load();

  // The user's choice in a list (entry from 0).
  ModellAktionen DampfdruckListe_Click(int eintrag);
  ModellAktionen EOSListe_Click(int eintrag);
  ModellAktionen HLVListe_Click(int eintrag);
  ModellAktionen CpListe_Click(int eintrag);
  // Free input or choice in the Watson list: WatsonExp takes the number of the text ("," or ".");
  // a text that isn't a number leaves it as it was.
  void WatsonListe_Change(const std::string& text);
  // Concept option 0 GLOBAL, 1 PARTIAL; ignored while the options are locked.
  ModellAktionen optKonzept_Click(int option);

  // Tests the models: the omega warning, the correlated vapour-pressure parameters, the EOS set-up
  // (not for the hand-input virial model), status bar, menu groups and display units. False when
  // the EOS set-up failed (its message is shown).
  bool cmdOKModell();

  // Caption an open 2D diagram takes for the current EOS.
  std::string SchnittKurvenCaption() const;

  std::string Caption;
  ModellListe Dampfdruck;
  ModellListe EOS;
  ModellListe HLV;
  ModellListe Cp;
  std::vector<std::string> WatsonListe;
  std::string WatsonText;
  bool WatsonVisible = false; // the list and its label show only for the Watson method
  std::string lblRhoL;        // "Parameter aus Datenbank verfügbar" / "Parameter nicht verfügbar"
  std::string lblRhoLBereich; // validity range of rho(L), empty without it
  int optKonzept = 0;         // 0 GLOBAL, 1 PARTIAL
  bool optKonzeptEnabled = true;

private:
  void BaueDampfdruckListe();
  void BaueEOSListe();
  void BaueHLVListe();
  void BaueWatsonListe();
  void BaueCpListe();
  void BaueRhoLZeilen();
  void SetzeKonzeptOptionen();
  void WaehleInHLV(int eintrag);
  void StatusLeiste();
  void KonstantenFuerHandEingabe();

  ProjectState& s_;
  ui::Oberflaeche& ui_;
};

} // namespace quor
