// The frame's services that live in the substance and engine layers: choosing and opening a
// database, the EOS set-up of the start and the parameter report.
#pragma once

#include "core/rahmen.h"

namespace quor::ui {

class Oberflaeche;

// The file dialog of a database of kind `typ` and its opening; true when a database was opened (a
// cancelled dialog and a failed opening, whose message is shown, give false).
bool DatenbankWaehlenUndOeffnen(ProjectState& s, int typ, Oberflaeche& ui);

// The services above without any window of the frame's own.
RahmenDienste StandardDienste(Oberflaeche& ui);

} // namespace quor::ui
