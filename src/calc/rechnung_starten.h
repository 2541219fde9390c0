// The way from a command of the calculation menu to the dispatcher: the kind of each menu entry,
// and the start routine that decides by kind and mode which dialog comes next (the concept dialog,
// the result page with the value dialog over it, or the process dialog).
#pragma once

#include "core/project_state.h"
#include "dienste/oberflaeche.h"

#include <cstdint>
#include <functional>
#include <string>

namespace quor {

// The windows that the start of a calculation and its dialogs open; the program's view fills them.
// A window left empty is not there: its step is passed over.
struct RechnungsFenster {
  std::function<void()> CalcInZeigen;       // frmCalcIn, modal
  std::function<bool()> ErgebnisZeigen;     // frmQCalcOut for RechenArt; false when it did not open
  std::function<void()> ParinputZeigen;     // frmParinput for ParinputModus, over the result page
  std::function<void()> ParinputSchliessen; // closes an open frmParinput
  std::function<void()> ProzessZeigen;      // the process dialog of the polytropic start point
  std::function<void()> ErgebnisNachVorne;  // the result page as the active window
  std::function<void()> DiagrammWeiter;     // frmCalcIn was opened by a diagram: it goes on after OK
};

extern const char* const TpFrageText;
extern const char* const TpFrageTitel;
extern const char* const NurKubischText;       // refusal of kind 2 with a model without liquid phase
extern const char* const KeineStapelDatenText; // refusal of a batch without measured rows

// A command of the calculation menu: sets RechenArt (and the concept of the vessel), starts the
// calculation, and brings the result page forward after the vessel. False for an entry without a kind.
bool mnuCalc_Click(ProjectState& s, ui::Oberflaeche& ui, const RechnungsFenster& f, const std::string& name,
                   int index);

// Decides from RechenArt and the mode which dialog comes next, and opens it.
void RechnungStarten(ProjectState& s, ui::Oberflaeche& ui, const RechnungsFenster& f);

} // namespace quor
