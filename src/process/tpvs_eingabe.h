// Logic of the one-value box frmTpVSInputBox, in which the process lines and the diagrams ask a single
// value (a temperature, a pressure, a volume or an entropy) with its label, its unit text, its limits
// and the button that takes it. The text is read locale-independently and must lie within the limits.
#pragma once

#include "dienste/oberflaeche.h"

#include <string>

namespace quor::prozess {

class frmTpVSInputBox {
public:
  static const char* const BereichText;   // "Eingabewert nicht im gültigen Bereich"
  static const char* const UngueltigText; // "keine gültige Eingabe"

  frmTpVSInputBox(ui::Oberflaeche& ui, std::string label, std::string einheit, double minimum, double maximum,
                  std::string knopf = "Zeichnen");

  // Takes the typed value: true with Wert set when it is a number within the limits; otherwise the
  // message says why and the box stays open.
  bool cmdOK_Click();
  // The limits as the message and the box show them: "min ... max" with the unit.
  std::string GrenzenText() const;

  std::string Caption = "Eingabe";
  std::string lblWert, lblEinheit, txtWert, cmdOKCaption;
  double Minimum = 0, Maximum = 0;
  double Wert = 0;
  bool Bestaetigt = false;

private:
  ui::Oberflaeche& ui_;
};

} // namespace quor::prozess
