// Which commands of the main frame are enabled: the states of the frame, what each menu entry and
// toolbar button needs, and the set of commands that are built. An entry that isn't built stays
// visible and disabled whatever the state.
#pragma once

#include "core/project_state.h"

#include <set>
#include <string>

namespace quor {

enum class RahmenZustand {
  KeineDatenbank,     // nothing opened yet
  DatenbankOhneStoff, // a database is open, no substance chosen
  StoffGewaehlt,      // a substance is loaded, the model window is open
  ModelleGetestet     // the models were tested once
};

// Needs of a command, combined as bits.
enum Bedarf : unsigned {
  BrauchtNichts = 0,
  BrauchtDatenbank = 1u << 0,
  BrauchtStoff = 1u << 1,
  BrauchtModell = 1u << 2,
  BrauchtKritischenPunkt = 1u << 3,
  BrauchtDiagramme = 1u << 4,
  BrauchtSaettigung = 1u << 5,
  BrauchtExpDaten = 1u << 6,
  BrauchtDatenbankFunktion = 1u << 7 // the substance holds limits for the entry's function
};

// Name of the toolbar; its buttons are keyed "Toolbar1(index)".
extern const char* const ToolbarName;

// Key of a menu entry or button: the control's name, with "(index)" for an element of an array.
std::string BefehlsSchluessel(const std::string& name, int index = -1);

RahmenZustand ZustandVon(const ProjectState& s);

unsigned BedarfVon(const std::string& name, int index);

// True when the substance's data hold the temperature limits of the function behind an entry of
// the database submenus (entries without such a function count as available).
bool DatenbankFunktionVorhanden(const ProjectState& s, const std::string& name, int index);

// The commands that work in this build.
class BefehlsSatz {
public:
  BefehlsSatz();
  bool Gebaut(const std::string& name, int index = -1) const;
  void SetzeGebaut(const std::string& name, int index = -1, bool gebaut = true);

private:
  std::set<std::string> gebaut_;
};

// Everything the command needs is there (whether it is built or not).
bool BedarfErfuellt(const ProjectState& s, const std::string& name, int index = -1);

// Built, and everything it needs is there.
bool Freigegeben(const ProjectState& s, const BefehlsSatz& befehle, const std::string& name, int index = -1);

} // namespace quor
