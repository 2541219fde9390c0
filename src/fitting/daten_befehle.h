// The entries of the measured-data editors and the fitting tool in the data menu and the menu bar.
#pragma once

#include "core/befehls_register.h"

namespace quor {

// Their rows with what each needs; the editors and the fitting are not built yet.
void RegistriereDatenBefehle(BefehlsRegister& r);

} // namespace quor
