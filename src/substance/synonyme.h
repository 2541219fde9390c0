// The synonym file SYNOM7.TXT in the program's directory and the name search behind it: the keys
// that bring German and English chemical spellings to one form, the look-up of a name or CAS
// number, and the synonym block of a CAS number.
//
// The file is a sequence of blocks: the CAS number with its hyphens; one description line whose
// parts (formula, English name, German name) are joined by "_"; synonym lines in capitals; an empty
// line. The line "END" closes the file. Windows-1252 and UTF-8 are both read.
#pragma once

#include "core/project_state.h"
#include "substance/text_fenster.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

namespace ui {
class Oberflaeche;
}

extern const char* const SynonymDateiName; // "SYNOM7.TXT"

// Capitals as the name search forms them: ASCII letters and the lower-case letters of Latin-1, the
// umlauts among them; every other character stays.
std::string GrossSchreibung(std::string_view utf8);

// The plain key: capitals without any blank. A CAS number is compared with it.
std::string KlarSchluessel(std::string_view text);

// The normal key of a plain key: the German spellings brought to the C-spelling ("ÄTH" -> "ETH",
// "ZYKLO" -> "CYCLO" ...), "OXYD" -> "OXID", the short forms "ME-", "ET-", "SAEURE" written out, and
// every "-", "(", ")", "[", "]", "." removed. Synonym lines are compared with it.
std::string NormalSchluessel(std::string_view klarSchluessel);

// A synonym line as it is compared: without "-", "(", ")", "[", "]", ".".
std::string OhneTrennzeichen(std::string_view zeile);

// Path of the synonym file: SYNOM7.TXT in the program's directory (synom7.txt when only that exists).
std::string SynonymDateiPfad(const ProjectState& s);

// The file as UTF-8 and its date ("dd.mm.yyyy"); false when it cannot be read.
bool LeseSynonymDatei(const ProjectState& s, std::string& text, std::string& datum);

// Searches the file for the block of a name or CAS number. On a hit `casOut` and `line2Out` are the
// block's CAS and description lines; with no hit `casOut` is "END". A missing file shows the message
// (title "FEHLER") and sets `missing`.
void NameNormieren(ProjectState& s, ui::Oberflaeche& ui, const std::string& text, std::string& casOut,
                   std::string& line2Out, bool& missing);

// The parts of a description line as they are shown: split at "_" into at most three parts, the
// last non-empty part first, then the other non-empty parts in their order.
std::vector<std::string> BeschreibungsTeile(const std::string& line2);

// The synonym block of a CAS number: `text` is "CAS-RN: " + number followed by the description
// parts, one a line; `synonyms` the block's synonym lines in the file's order. `failed` with a
// message when the number isn't in the file or the file can't be read. Notes the file's date in
// s.Projekt.SynonymDatum.
void FindSynonymVonCAS(ProjectState& s, ui::Oberflaeche& ui, const std::string& cas, std::string& text,
                       std::vector<std::string>& synonyms, bool& failed);

// The synonym list of a substance for the text window ("  Synonym-Liste"); nothing (after a
// message) for a missing or placeholder CAS number or a failed look-up.
std::optional<frmQTextEdit> SynonymListe(ProjectState& s, ui::Oberflaeche& ui, const std::string& cas);

} // namespace quor
