// Logic of the dialog frmQStoffWahl: choosing a substance of the open database by its row in the
// list, by system number, or by name, synonym or CAS number, and loading it. The view shows the
// fields and forwards the user's actions; the return values tell it what to do next.
#pragma once

#include "core/project_state.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quor {

namespace ui {
class Oberflaeche;
}

enum class StoffWahlAktion {
  Nichts,       // stay open
  ModellFenster // the substance is loaded: close and open (or rebuild) frmQModell
};

class frmQStoffWahl {
public:
  static const char* const FormCaption;    // "   Stoffwahl"
  static const char* const ListenKopf;     // "lfd. #     Formel                   Stoffname"
  static const char* const LabelName;      // "Eingabe Stoffname/CAS-Nr.:"
  static const char* const LabelSprache;   // " in german or english "
  static const char* const HinweisEnter;   // the two-Enter hint
  static const char* const StoffOKCaption; // "Stoff &OK      Weiter >"
  static const char* const LabelDatenbank; // "geladene Datenbank: "

  frmQStoffWahl(ProjectState& s, ui::Oberflaeche& ui);

  // Opening: caption, list and database label; the loaded substance (else the first row) is
  // selected. False, with the message, when no database is open: the view closes at once.
  bool Form_Load();
  // The database label anew (a project load changed the database while the dialog is open).
  void ZeigeDatenbank();

  // A click in the list (row from 0).
  void List1_Click(int row);
  // Enter in the list acts as the OK button.
  StoffWahlAktion List1_KeyEnter() { return StoffOK_Click(); }

  // The number field changed. A number below 1 or a text that isn't digits beeps and empties the
  // field; a known system number selects its row. Returns true for the beep.
  bool Text1_Change(const std::string& text);

  // The user typed in the name field or picked one of its remembered texts.
  void NameCombo_Change(const std::string& text);
  // Enter in the name field: searches a non-empty text and shows the hit; a second Enter on the same
  // hit, with nothing typed or clicked between, acts as the OK button.
  StoffWahlAktion NameCombo_KeyEnter();
  // Esc in the name field: the focus goes to the list.
  void NameCombo_KeyEsc() { ListeHatFokus = true; }

  // OK: searches a non-empty name text first, asks about loaded measured data, loads the
  // substance, grades its data and enables the menus that need a substance.
  StoffWahlAktion StoffOK_Click();

  std::string Caption;
  std::vector<std::string> List1; // row k-1 shows substance k
  int ListIndex = -1;             // selected row
  int16_t StoffIndexNeu = 0;      // selected position, from 1
  bool ListeHatFokus = true;
  int16_t EnterTreffer = 0; // the hit of the last Enter in the name field; 0 after any other action

  std::string lblDatenbank;
  std::string lblCAS;
  std::string lblStruktur;                 // "Struktur: ..." in a .Q07 database, else empty
  std::string Text1;                       // system number
  std::string NameCombo;                   // name field
  std::vector<std::string> NameComboListe; // texts searched for, in order

private:
  void ZeigeZeile(int16_t position, bool nummerZeigen);
  bool Suche(int16_t& position);
  void ExpDatenFragen();
  void StoffLaden();

  ProjectState& s_;
  ui::Oberflaeche& ui_;
};

} // namespace quor
