// The diagram entries of the menus: their rows in the command registry, and the entries' own tests
// before a diagram opens.
#pragma once

#include "core/befehls_register.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace quor {

namespace ui {
class Oberflaeche;
}
class Markierungen;

// The 2D and 3D diagram menu with what each entry needs; the views attach the handlers.
void RegistriereDiagrammBefehle(BefehlsRegister& r);

// The diagram code of a 2D menu entry by the catalogue's table; 0 for an entry without one (a
// submenu, a separator, a 3D entry).
int16_t CodeVonMenue(const std::string& name, int index);

// Attaches `start` to every 2D entry that has a code, which makes those rows built.
void DiagrammHandlerSetzen(BefehlsRegister& r, const std::function<void(const std::string&, int)>& start);

// The insert menu of an open 2D diagram ("mnuInsert" under the 2D menu) with its submenus of the T,
// p and v marks; the page's own menu shows the same entries.
const std::vector<MenuePosten>& EinfuegePosten();
// The insert menu's entries of the process lines; the index is the kind of line.
inline const char* const ProzessEintrag = "mnuProzessLinie";

// Attaches `start` to every entry of the insert menu; the menu and its entries are enabled only
// while `seiteOffen` says a diagram page is open.
void EinfuegeHandlerSetzen(BefehlsRegister& r, const std::function<bool()>& seiteOffen,
                           const std::function<void(const std::string&, int)>& start);

// Runs an entry of the insert menu on the page's marks; true when the diagram changed.
bool MarkierungAusfuehren(Markierungen& m, const std::string& name, int index);

// The entry's own test before its diagram opens; false (after the message) when refused.
bool GrafErlaubt(const ProjectState& s, ui::Oberflaeche& ui, const std::string& name, int index);

// The 3D surfaces of pressure and temperature with a cubic model: real behaviour or S-shaped loops
// below the critical point. Other models and surfaces always draw the real behaviour.
bool Reales3D(const ProjectState& s, ui::Oberflaeche& ui, int art);

} // namespace quor
