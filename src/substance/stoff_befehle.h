// The entries of the substance data editor and of the estimation from molecular groups.
#pragma once

#include "core/befehls_register.h"

namespace quor {

// Their rows; the editor and the estimation are not built yet.
void RegistriereStoffBefehle(BefehlsRegister& r);

} // namespace quor
