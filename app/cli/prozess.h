// Child processes of the program (the parameter tool of the Varnik/Ji models): started in their
// working directory with their output discarded, awaited at most the order's time.
#pragma once

#include "dienste/oberflaeche.h"

namespace quor::cli {

ui::ProzessStatus StarteKindProzess(const ui::ProzessAuftrag& auftrag);

} // namespace quor::cli
