// The frame's project and options services: loading, writing and saving projects (no window of the
// frame needed), and those that open the frame's dialogs (the open dialog with preview, the options)
// or close its windows.
#pragma once

#include "core/rahmen.h"

namespace quor::ui {

class Oberflaeche;
class mdiQUOR;

void ProjektDiensteOhneFenster(RahmenDienste& d, Oberflaeche& ui);

void ProjektFensterDienste(RahmenDienste& d, mdiQUOR& rahmen, Oberflaeche& ui);

// The options dialog over the frame; its changes of the calculation menu's texts go to the registry.
void OptionenZeigen(mdiQUOR& rahmen, ProjectState& s, Oberflaeche& ui);

} // namespace quor::ui
