// The one flow of a state calculation, shared by the program's windows and the command line: a menu
// entry sets the kind and starts it, the concept dialog may come first, the result page opens with
// its first calculation, and each input of the value dialog is calculated on the page. The view
// supplies its windows as hooks; the flow decides what comes in which order.
#pragma once

#include "calc/ergebnis_seite.h"
#include "calc/rechnung_starten.h"

#include <functional>
#include <string>

namespace quor {

class RechnungsAblauf {
public:
  // The view's part. A hook left empty is a window that isn't there: its step is passed over.
  struct Ansicht {
    std::function<void()> CalcInZeigen; // the concept dialog
    // A new result page in the state's mode; its logic (owned by the view), null when none opens.
    std::function<frmQCalcOut*()> SeiteAnlegen;
    // The page's first calculation is done: show it (true) or drop it, it closed at once (false).
    std::function<void(bool offen)> SeiteGeladen;
    std::function<void()> SeiteGerechnet;  // a calculation on the page is done: show it anew
    std::function<void()> SeiteSchliessen; // the page closed itself after a calculation ("EXIT")
    std::function<void()> ParinputZeigen;  // the value dialog for ParinputModus
    std::function<void()> ParinputSchliessen;
    std::function<void()> ProzessZeigen;
    std::function<void()> ErgebnisNachVorne;
  };

  RechnungsAblauf(ProjectState& s, ui::Oberflaeche& ui, Ansicht ansicht);

  // A command of the calculation menu (entry name and index); false for an entry without a kind.
  bool Menue(const std::string& name, int index);
  // The value dialog's input calculated on the page: the page's exit text ("EXIT" when it closed),
  // empty when no page is open.
  std::string Berechnen();
  // The result page of the polytropic process: the start point of row 0 of the measured data and
  // the calculator's report; false when no page opens.
  bool ProzessErgebnisZeigen(const std::string& bericht);
  // The windows that the start routine and the concept dialog open.
  RechnungsFenster Fenster();

  frmQCalcOut* Seite() const { return seite_; }
  // The view has closed the page.
  void SeiteVergessen() { seite_ = nullptr; }

private:
  bool ErgebnisZeigen();
  void VorgabenUebergeben();

  ProjectState& s_;
  ui::Oberflaeche& ui_;
  Ansicht a_;
  frmQCalcOut* seite_ = nullptr;
  std::string prozessText_; // the polytropic calculator's report for the page of kind 12
};

} // namespace quor
