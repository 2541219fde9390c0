// A run of quor-cli: the project state with the program's directory and database, the substance
// chosen through the substance choice, the models through the model window, the display units and
// the reference state through their windows. Every message lands in the scripted interface.
#pragma once

#include "cli/argumente.h"
#include "core/project_state.h"
#include "dienste/skript_oberflaeche.h"

#include <string>

namespace quor::cli {

class Sitzung {
public:
  explicit Sitzung(const Aufruf& a);

  // Opens the database (--db or the bundled one); throws CliFehler on failure.
  void DatenbankOeffnen();
  // Loads the substance of --substance as the substance choice does, then applies the models,
  // units and reference state of the command line.
  void StoffUndModelle();

  const Aufruf aufruf;
  ProjectState s;
  ui::SkriptOberflaeche ui;
  // Entries of the interface's record that have been printed; main prints the rest after an error.
  std::size_t Gedruckt = 0;

private:
  void StoffWaehlen();
  void ModelleWaehlen();
  void EinheitenSetzen();
  void ReferenzSetzen();
};

// A file name given on the command line, made absolute against the working directory.
std::string AbsoluterPfad(const std::string& pfad);

// Table text of a row without its padding; empty for a row outside the table.
std::string ZeilenText(const std::string& zeile);

} // namespace quor::cli
