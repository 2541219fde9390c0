// Shared by the tests of the calculation input: the windows that the start routine and the concept
// dialog open, recorded in the order they were asked for.
#pragma once

#include "calc/rechnung_starten.h"

#include <functional>
#include <string>
#include <vector>

namespace quor::test {

struct FensterAufnahme {
  std::vector<std::string> schritte;
  bool ergebnisOeffnet = true;        // what the result page answers
  std::function<void()> beimParinput; // the user's work in the value dialog

  RechnungsFenster Fenster() {
    RechnungsFenster f;
    f.CalcInZeigen = [this] { schritte.push_back("frmCalcIn"); };
    f.ErgebnisZeigen = [this] {
      schritte.push_back("frmQCalcOut");
      return ergebnisOeffnet;
    };
    f.ParinputZeigen = [this] {
      schritte.push_back("frmParinput");
      if (beimParinput) beimParinput();
    };
    f.ParinputSchliessen = [this] { schritte.push_back("frmParinput zu"); };
    f.ProzessZeigen = [this] { schritte.push_back("Prozess"); };
    f.ErgebnisNachVorne = [this] { schritte.push_back("nach vorne"); };
    f.DiagrammWeiter = [this] { schritte.push_back("Diagramm"); };
    return f;
  }
};

} // namespace quor::test
