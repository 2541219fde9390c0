// What the commands print: the recorded messages (stderr in text mode, "messages" in JSON), the
// result page as a user sees it, and the JSON forms of the substance, the models, the page, the
// ErgebnisVektor and the record of a data point.
#pragma once

#include "calc/ergebnis_typen.h"
#include "core/json_schreiber.h"
#include "core/project_state.h"
#include "dienste/skript_oberflaeche.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace quor::cli {

struct Meldung {
  std::string titel;
  std::string text;
};

// Messages and questions recorded from entry `ab` to entry `bis` (exclusive), each text once in
// the order of its first appearance: a page that is calculated again shows the same boxes again.
// The question that --equilibrium answers is left out.
std::vector<Meldung> Meldungen(const ui::SkriptOberflaeche& ui, std::size_t ab, std::size_t bis);

// CR LF as LF.
std::string MitLF(std::string text);

// "TITLE: first line" and further lines indented, for stderr.
void MeldungenSchreiben(std::ostream& aus, const std::vector<Meldung>& meldungen);
void MeldungenJson(JsonSchreiber& j, const std::vector<Meldung>& meldungen);

// The page: title, given values, main result, value line, region, phases and the text block.
std::string SeitenText(const std::string& titel, const ErgebnisSeite& seite);

void StoffJson(JsonSchreiber& j, const ProjectState& s);
void ModelleJson(JsonSchreiber& j, const ProjectState& s);
void SeiteJson(JsonSchreiber& j, const ErgebnisSeite& seite);
// The 42 cells by their names in the record's head; a name that repeats gets its cell number.
void ErgebnisJson(JsonSchreiber& j, const ErgebnisVektor& e);
void ErgebnisVektorJson(JsonSchreiber& j, const ErgebnisVektor& e);
void StapelErgebnisJson(JsonSchreiber& j, const StapelErgebnis& z);

// Names of the cells as keys (see ErgebnisJson).
const std::vector<std::string>& ErgebnisNamen();

// True when a field of the page that shows the result or the given values is red (an error shown).
bool SeiteZeigtFehler(const ErgebnisSeite& seite);

} // namespace quor::cli
