#include "process/tpvs_eingabe.h"

#include "core/zahl_lesen.h"
#include "process/iso_rechner.h"

#include <utility>

namespace quor::prozess {

const char* const frmTpVSInputBox::BereichText = "Eingabewert nicht im gültigen Bereich";
const char* const frmTpVSInputBox::UngueltigText = "keine gültige Eingabe";

frmTpVSInputBox::frmTpVSInputBox(ui::Oberflaeche& ui, std::string label, std::string einheit, double minimum,
                                 double maximum, std::string knopf)
    : lblWert(std::move(label)), lblEinheit(std::move(einheit)), cmdOKCaption(std::move(knopf)),
      Minimum(minimum), Maximum(maximum), ui_(ui) {}

std::string frmTpVSInputBox::GrenzenText() const {
  return IsoZahlText(Minimum) + " ... " + IsoZahlText(Maximum) + " " + lblEinheit;
}

bool frmTpVSInputBox::cmdOK_Click() {
  const ZahlErgebnis z = LeseZahl(txtWert);
  if (!z.ok) {
    ui_.Meldung(UngueltigText, "Ausführung nicht möglich", ui::Symbol::Ausruf);
    return false;
  }
  if (z.wert < Minimum || z.wert > Maximum) {
    ui_.Meldung(std::string(BereichText) + "\r\n" + GrenzenText(), "Ausführung nicht möglich",
                ui::Symbol::Ausruf);
    return false;
  }
  Wert = z.wert;
  Bestaetigt = true;
  return true;
}

} // namespace quor::prozess
