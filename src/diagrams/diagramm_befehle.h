// The diagram entries of the menus: their rows in the command registry, and the entries' own tests
// before a diagram opens.
#pragma once

#include "core/befehls_register.h"

#include <string>

namespace quor {

namespace ui {
class Oberflaeche;
}

// The 2D and 3D diagram menu with what each entry needs; the diagrams themselves are not built yet.
void RegistriereDiagrammBefehle(BefehlsRegister& r);

// The entry's own test before its diagram opens; false (after the message) when refused.
bool GrafErlaubt(const ProjectState& s, ui::Oberflaeche& ui, const std::string& name, int index);

// The 3D surfaces of pressure and temperature with a cubic model: real behaviour or S-shaped loops
// below the critical point. Other models and surfaces always draw the real behaviour.
bool Reales3D(const ProjectState& s, ui::Oberflaeche& ui, int art);

} // namespace quor
