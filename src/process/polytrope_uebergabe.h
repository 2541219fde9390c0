// TO_PEX.DAT as both sides of the polytrope exchange see it: the program writes it, the calculator
// Merlon_1 reads it. The head carries the request as ten items; the tail carries the polytrope's
// own values and the model the program computes with (substance constants and correlation blocks,
// model choice, the set-up constants of the EOS, the reference state, the display units), each
// number in its shortest exact text, so that the calculator works with bit-identical values
// through the same engine, edited and not yet saved data included.
#pragma once

#include "core/listen_datei.h"
#include "core/project_state.h"

#include <cstdint>
#include <string>

namespace quor::prozess {

// Values of one phase in the start-state block of the head.
constexpr int PexPhasenWerte = 22;

// The request as the calculator reads it.
struct PexAuftrag {
  // the head
  std::string Formel;
  bool Spezifisch = false; // item 4: values per kg, the phase blocks are left out
  int16_t Modus = 1;       // item 5: 1 current EOS, 2 ideal gas
  int16_t Start = 2;       // item 7
  int16_t Code = 0;        // item 8: the exchange code
  int Punkte = 0;          // item 9
  double MolMasse = 0, T1 = 0, p1 = 0;
  // the tail
  double n = 0, kappa = 0;
  int16_t Bereich = 0; // 1 T, 0 p
  double Ende = 0;
  char Trenner = ';';
  int16_t DiagrammCode = 0;
};

// Writes the tail: the polytrope's values, then the model.
void PexAnhangSchreiben(const ProjectState& s, const PexAuftrag& a, ListenSchreiber& w);

// Reads the whole of TO_PEX.DAT into the request and the model into `s` (which the caller has set
// up with InitProjectState). False with the reason for a file that is short or holds a wrong value.
bool PexAuftragLesen(const std::string& bytes, PexAuftrag& a, ProjectState& s, std::string& grund);

// The text that ends the tail; a file without it was cut off.
extern const char* const PexAnhangEnde;

} // namespace quor::prozess
