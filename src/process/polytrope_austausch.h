// The polytropic process p v^n = const worked out by the companion calculator Merlon_1: the program
// writes its whole request into TO_PEX.DAT in the program directory, starts the calculator, waits for
// its end marker WRITEEND.END and reads the points, the result head and the report from
// FROM_PEX.DAT. The calculator's side of the protocol is described in tools/merlon/README.md.
#pragma once

#include "core/project_state.h"
#include "dienste/oberflaeche.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace quor::prozess {

extern const char* const PexEingabeDatei;  // "TO_PEX.DAT"
extern const char* const PexErgebnisDatei; // "FROM_PEX.DAT"
extern const char* const PexEndeDatei;     // "WRITEEND.END"
extern const char* const PexProgramm;      // "Merlon_1", the calculator's name on this platform

// Errors of the exchange.
constexpr int16_t PexOhneRechner = 10;     // the calculator is not in the program directory
constexpr int16_t PexZeitAbgelaufen = 100; // its end marker did not appear in time
constexpr int16_t PexSchreibFehler = 20;   // TO_PEX.DAT could not be written
constexpr int16_t PexLeseFehler = 30;      // FROM_PEX.DAT was missing or broken
constexpr int16_t PexRechnerFehler = 40;   // the calculator set its error flag

// The number of values of the result head.
constexpr std::size_t PexKopfWerte = 22;

// Exchange code of a diagram code by the mapping table; 0 for a code outside it.
int16_t AustauschCode(int16_t diagrammCode);

// The result codes whose first point also fixes the curve's parameter (T on their X axis).
bool SetztFixParameter(int16_t ergebnisCode);

struct PolytropenAnfrage {
  double T1 = 0, p1 = 0;         // start state, K, kPa
  int16_t ProzessBereich = 0;    // 1: range in T, 0: in p (BereichT/BereichP of prozess_linie.h)
  double Ende = 0;               // T2 (K) or p2 (kPa)
  double PolytropenExponent = 0; // n
  double Kappa = 0;              // cp/cV
  int16_t PolytropenModus = 1;   // 1 current EOS, 2 ideal gas
  int16_t diagrammCode = 0;      // code of the diagram the points are for (0: none, kind 12)
  int punktAnzahl = 0;           // PunktDichte/3, or 0 for calculation kind 12
};

struct PolytropenErgebnis {
  int16_t code = 0;              // result code as read
  std::vector<double> X, Y;      // the points in the diagram's displayed coordinates
  std::array<double, 22> kopf{}; // the 22 values of the result head
  std::string bericht;           // the report text (lines joined with CR LF)
  bool hatFixParameter = false;  // the result code fixes the curve's parameter ...
  double fixParameter = 0;       // ... to the first point's X value
};

// Positions in the result head (engine units, per kmol; see tools/merlon/README.md).
enum PexKopf : std::size_t {
  KopfT1 = 0,
  KopfP1,
  KopfV1,
  KopfT2,
  KopfP2,
  KopfV2,
  KopfN,
  KopfKappa,
  KopfArbeit, // volume work done on the substance, -integral of p dv
  KopfWaerme, // heat taken in, q = delta u - w
  KopfDeltaU,
  KopfDeltaH,
  KopfDeltaS,
  KopfTechArbeit, // integral of v dp
  KopfH1,
  KopfS1,
  KopfU1,
  KopfH2,
  KopfS2,
  KopfU2,
  KopfModus, // 1 current EOS, 2 ideal gas
  KopfPunkte // the number of points along the line
};

// The whole of TO_PEX.DAT: the head of ten items, then the tail with what the calculator needs to
// compute with the program's model (tools/merlon/README.md). The start state is solved first.
std::string ToPexBytes(ProjectState& s, const PolytropenAnfrage& a);

// Parses FROM_PEX.DAT. A fault shows a box titled "Call from read_from_PEX:" and sets err != 0.
void read_from_PEX(const ProjectState& s, ui::Oberflaeche& ui, const std::string& bytes,
                   PolytropenErgebnis& r, int16_t& err);

// The whole exchange; err 0 ok, 10 calculator missing (with its message), 100 time ran out.
void PolytropeRechnen(ProjectState& s, ui::Oberflaeche& ui, const PolytropenAnfrage& a, PolytropenErgebnis& r,
                      int16_t& err, int wartenMs = 50000);

// The path of a file of the exchange in the program directory.
std::string PexPfad(const ProjectState& s, const std::string& name);

} // namespace quor::prozess
