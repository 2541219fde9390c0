#include "substance/b_par_input.h"

#include "core/zahl_lesen.h"
#include "core/zahlformat.h"

namespace quor {

const char* const frmBParInput::Caption = "Eingabe Virialkoeffizient";
const char* const frmBParInput::Formel = "B/m^3/kmol = b0 - b1/T^b2";
const std::array<const char*, 3> frmBParInput::Labels{"b0  = ", "b1  =", "b2  ="};

frmBParInput::frmBParInput(ProjectState& s) : s_(s) {}

void frmBParInput::Form_Load() {
  const EOSGruppe& e = s_.EOS;
  par = {DoubleText(e.b0), DoubleText(e.bExp), DoubleText(e.BExpHand)};
  Geschlossen = false;
}

void frmBParInput::cmdParameter_OK() {
  EOSGruppe& e = s_.EOS;
  double* const ziel[3] = {&e.b0, &e.bExp, &e.BExpHand};
  for (std::size_t i = 0; i < par.size(); ++i) {
    const ZahlErgebnis z = LeseZahl(par[i]);
    if (z.ok) *ziel[i] = z.wert;
  }
  Geschlossen = true;
}

} // namespace quor
