// Logic of the dialog frmReferenz: the reference state of enthalpy and entropy (user values,
// conventional normalisation or formation quantities) with its temperature and pressure, and the
// environment of the exergies. The view shows the fields and forwards the user's actions.
#pragma once

#include "core/project_state.h"
#include "dienste/oberflaeche.h"

#include <array>
#include <string>

namespace quor {

class frmReferenz {
public:
  // Fixed texts of the form.
  static const char* const Caption;
  static const char* const Ueberschrift;
  static const char* const TextTo;
  static const char* const TextPo;
  static const char* const TextUmgebung;
  static const char* const TextTu;
  static const char* const TextPu;
  static const char* const HinweisPo;
  static const std::array<const char*, 3> OptionTexte;

  frmReferenz(ProjectState& s, ui::Oberflaeche& ui);

  // Opening: energy factor and labels by EnergieMode, the fields from the reference group, pRef
  // proposed from the EOS's saturation pressure at TRef when it is 0, the options enabled by the
  // formation data and the current kind selected.
  void Form_Load();

  // A click on option `index` (0 user values, 1 conventional normalisation, 2 formation quantities).
  void opt_HNull_Click(int index);

  // Takes the six fields (read with "." or "," as decimal mark) and the kind into the reference group.
  // A field that is no number leaves its value as it was. Returns true: the dialog closes.
  bool OK_Click();
  // Closes without taking anything.
  void ESC_Click() { Geschlossen = true; }

  // Text fields: 0 hRef, 1 sRef, 2 TRef, 3 pRef, 4 TUmgebung, 5 pUmgebung; and which can be edited.
  std::array<std::string, 6> T;
  std::array<bool, 6> T_Enabled{true, true, true, true, true, true};
  // Labels beside h and s, by the energy unit.
  std::array<std::string, 2> bz7;
  // The option array, its enabled flags and the selected index.
  std::array<bool, 3> opt_HNull_Enabled{true, false, false};
  int opt_HNull = 0;
  // "(bei CEOS: Voreinstellung po = pLV(To)) " is shown.
  bool HinweisPoVisible = false;
  // h and s shown = stored value * Faktor.
  double Faktor = 1;
  bool Geschlossen = false;

private:
  void FelderFuellen();
  ProjectState& s_;
  [[maybe_unused]] ui::Oberflaeche& ui_; // the services the dialog would ask; it shows no message of its own
};

} // namespace quor
