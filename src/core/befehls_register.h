// The command registry of the main frame: every menu entry and toolbar button is one row with its
// object name, array index, caption, place in the menu tree, what it needs of the project, whether
// it is built, and its handler. Each subsystem registers its own rows; the view builds the menus and
// the toolbar from the registry and asks it which rows are enabled. An entry that isn't built stays
// visible and disabled whatever the state.
#pragma once

#include "core/project_state.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace quor {

enum class RahmenZustand {
  KeineDatenbank,     // nothing opened yet
  DatenbankOhneStoff, // a database is open, no substance chosen
  StoffGewaehlt,      // a substance is loaded, the model window is open
  ModelleGetestet     // the models were tested once
};

RahmenZustand ZustandVon(const ProjectState& s);

// Needs of a command, combined as bits.
enum Bedarf : unsigned {
  BrauchtNichts = 0,
  BrauchtDatenbank = 1u << 0,
  BrauchtStoff = 1u << 1,
  BrauchtModell = 1u << 2,
  BrauchtKritischenPunkt = 1u << 3,
  BrauchtDiagramme = 1u << 4,
  BrauchtSaettigung = 1u << 5,
  BrauchtExpDaten = 1u << 6
};

bool BedarfErfuellt(const ProjectState& s, unsigned bedarf);

// Name of the toolbar; its buttons are the rows "Toolbar1(index)".
extern const char* const ToolbarName;

// Key of a row: the control's name, with "(index)" for an element of a control array.
std::string BefehlsSchluessel(const std::string& name, int index = -1);

// Order of the menu bar and of the data menu, which several subsystems fill. Rows of equal rank keep
// the order in which they were registered.
namespace rang {
constexpr int Daten = 100, Stoffwahl = 200, Modelle = 300, Diagramme = 400, Berechnungen = 500, Fitting = 600,
              Einheiten = 700, Optionen = 800, Fenster = 900, Hilfe = 1000;
// inside "mnuData"
constexpr int DatenBank = 10, DatenStatus = 20, DatenProjekt = 30, DatenMessdaten = 40, DatenEditoren = 50,
              DatenParameter = 60, DatenVerzeichnis = 70, DatenEnde = 80;
} // namespace rang

using BefehlsHandler = std::function<void(int index)>;

struct BefehlsZeile {
  std::string name;   // object name; empty for a separator of no array
  int index = -1;     // position in its control array, -1 for a single control
  std::string text;   // caption ("-" makes a separator); the tool-tip of a button
  std::string eltern; // parent menu, "" for the menu bar; ToolbarName for a button
  int elternIndex = -1;
  int rang = 0;
  bool versteckt = false; // a command of no menu (run by a button or by another command)
  unsigned bedarf = BrauchtNichts;
  // A further condition of the row (a database function the substance must hold); empty when none.
  std::function<bool(const ProjectState&)> verfuegbar;
  // A caption that follows the state (the chosen model); empty when the text stands.
  std::function<std::string(const ProjectState&)> textVon;
  bool gebaut = false;
  BefehlsHandler handler;
  // A button runs this command (name, index) unless it has a handler of its own; it is enabled when
  // that command is built and the button's own needs are met.
  std::string zielName;
  int zielIndex = -1;

  bool Trenner() const { return text == "-"; }
  std::string Schluessel() const { return BefehlsSchluessel(name, index); }
};

// A menu entry as the subsystems' tables write it.
struct MenuePosten {
  const char* name;
  int index;
  const char* text;
  const char* eltern;
  int elternIndex;
};

BefehlsZeile ZeileVon(const MenuePosten& p, int rang = 0, unsigned bedarf = BrauchtNichts);

class BefehlsRegister {
public:
  // Adds a row; a row of the same key replaces the former one.
  void Registriere(BefehlsZeile zeile);
  // Attaches the handler of a registered row and marks it built; false when there is no such row.
  bool Handler(const std::string& name, int index, BefehlsHandler handler);
  bool Handler(const std::string& name, BefehlsHandler handler) {
    return Handler(name, -1, std::move(handler));
  }
  void SetzeGebaut(const std::string& name, int index = -1, bool gebaut = true);
  // A caption that the state changes (units, the chosen model).
  void SetzeText(const std::string& name, int index, const std::string& text);

  const BefehlsZeile* Finde(const std::string& name, int index = -1) const;
  bool IstMenue(const std::string& name, int index = -1) const; // some row names it as its parent
  // The rows under a parent in menu order ("" for the menu bar, ToolbarName for the toolbar).
  std::vector<const BefehlsZeile*> Kinder(const std::string& eltern, int elternIndex = -1) const;
  const std::vector<BefehlsZeile>& Zeilen() const { return zeilen_; }

  // A submenu has no handler of its own; it opens whenever its needs are met.
  bool Gebaut(const std::string& name, int index = -1) const;
  // Everything the row needs is there (whether it is built or not).
  bool BedarfErfuellt(const ProjectState& s, const std::string& name, int index = -1) const;
  // Built, and everything it needs is there.
  bool Freigegeben(const ProjectState& s, const std::string& name, int index = -1) const;
  // Runs the row's handler when it is enabled; false otherwise.
  bool Ausfuehren(const ProjectState& s, const std::string& name, int index = -1) const;
  // Runs the row's handler whatever the state (a command that another command calls); false without one.
  bool Ausloesen(const std::string& name, int index = -1) const;

private:
  BefehlsZeile* Zeile(const std::string& name, int index);

  std::vector<BefehlsZeile> zeilen_;
  std::map<std::string, std::size_t> stelle_; // named rows by key: the frame asks for each entry often
};

} // namespace quor
