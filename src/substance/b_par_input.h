// Logic of the dialog frmBParInput: the coefficients of the hand-input virial model
// B/m^3/kmol = b0 - b1/T^b2, kept in b0, bExp and BExpHand of the EOS group.
#pragma once

#include "core/project_state.h"

#include <array>
#include <string>

namespace quor {

class frmBParInput {
public:
  static const char* const Caption;               // "Eingabe Virialkoeffizient"
  static const char* const Formel;                // "B/m^3/kmol = b0 - b1/T^b2"
  static const std::array<const char*, 3> Labels; // "b0  = ", "b1  =", "b2  ="

  explicit frmBParInput(ProjectState& s);

  // The fields show the coefficients as they stand.
  void Form_Load();
  // Stores the three fields (read with "." or "," as decimal mark) and closes. A field that isn't a
  // number leaves its coefficient as it was.
  void cmdParameter_OK();
  // Closes without storing anything.
  void cancel() { Geschlossen = true; }

  std::array<std::string, 3> par; // b0, b1, b2
  bool Geschlossen = false;

private:
  ProjectState& s_;
};

} // namespace quor
