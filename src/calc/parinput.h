// Logic of the value dialog frmParinput: the given values of a direct calculation, of the vessel or
// of the PARTIAL reference point. It builds its fields by ParinputModus, reads them on OK, stores them
// where they belong and runs the calculation; for a calculation it stays open for the next input.
#pragma once

#include "core/project_state.h"
#include "dienste/oberflaeche.h"

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace quor {

// What a field of the dialog holds.
enum class ParinputGroesse { T, p, Rho, V, m, n, BezugT, BezugP, BezugRhoL, BezugRhoV };

struct ParinputFeld {
  ParinputGroesse groesse;
  std::string Bz;  // label
  std::string par; // text as typed
  bool enabled = true;
};

// True for a key that a number can need: digits, decimal marks, signs, the exponent letters and the
// control keys (backspace and the like). The fields drop every other key.
bool ZahlTaste(char32_t zeichen);

class frmParinput {
public:
  static const char* const UngueltigText; // "keine gültige Eingabe"
  static const char* const fraRhoVInputCaption;
  static const char* const cmdCloseCaption;

  // `berechnen` runs the calculation of RechenArt with the values just stored and shows its page;
  // it returns the dispatcher's answer ("EXIT" when the page closed at once).
  frmParinput(ProjectState& s, ui::Oberflaeche& ui, std::function<std::string()> berechnen = {});

  // Caption, fields and options by ParinputModus, prefilled from where the values are kept.
  void Form_Load();
  // 0 a density, 1 a volume in the unit of the display (kinds 1, 2, 13); the choice is kept.
  void optRhoV_Click(int index);
  // 0 the vessel's mass, 1 its amount of substance; the other field is locked, the choice kept.
  void optm_n_Click(int index);
  // Reads and stores the fields; a field that is not a positive number is refused with a message and
  // the dialog stays. Returns true when the dialog closes (the reference point).
  bool cmdParameter_OK_Click();
  void cmdClose_Click() { Geschlossen = true; }

  std::string Caption;
  std::string cmdParameter_OKCaption;
  std::vector<ParinputFeld> Felder;
  bool fraRhoVInputVisible = false;
  std::array<std::string, 2> optRhoVTexte;
  int optRhoV = 0;
  bool optm_nVisible = false;
  std::array<std::string, 2> optm_nTexte{" Eingabe-Wahl Masse ", " Eingabe-Wahl Stoffmenge "};
  int optm_n = 0;
  bool Geschlossen = false;
  std::string Ausgang; // the calculation's last answer

private:
  void DirektFelder(int16_t art);
  void BehaelterFelder();
  void DichteFeldSetzen();
  ParinputFeld* Feld(ParinputGroesse g);
  void Speichern(const std::vector<double>& werte);

  ProjectState& s_;
  ui::Oberflaeche& ui_;
  std::function<std::string()> berechnen_;
};

} // namespace quor
