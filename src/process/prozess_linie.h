// The states along a process line from its start state to the end of its range in T or p: the
// isotherm, isobar, isochore, isentrope and isenthalpe of one phase (homogeneous), the isochore,
// isentrope and isenthalpe inside the two-phase region by the lever rule (heterogeneous), the line of
// constant degree of vaporization, and the polytrope of the ideal gas. Engine units throughout.
#pragma once

#include "core/project_state.h"
#include "dienste/oberflaeche.h"
#include "process/prozess_art.h"
#include "process/prozess_loeser.h"

#include <string>
#include <vector>

namespace quor::prozess {

// Range given in T (1) or in p (0).
constexpr int16_t BereichP = 0;
constexpr int16_t BereichT = 1;
// The polytrope with the current EOS (through the exchange with the process tool) or the ideal gas.
constexpr int16_t PolytropeAktuelleEOS = 1;
constexpr int16_t PolytropeIdealgas = 2;

// The description of one line.
struct ProzessVorgabe {
  int16_t ProzessArt = Isentrope;
  bool ProzessHetero = false;
  int16_t ProzessBereich = BereichT;
  double T1 = 0, P1 = 0; // the start state (heterogeneous: T1 or P1 gives the first tie line)
  double Ende = 0;       // T2 (K) or P2 (kPa) by ProzessBereich
  int16_t ProzessPhase = PhaseV;
  double Eta = 0;                // degree of vaporization of the line of constant eta(V)
  double PolytropenExponent = 0; // n
  double Kappa = 0;              // cp/cV of the ideal gas
  int16_t PolytropenModus = PolytropeIdealgas;
  int Schritte = 50; // equal steps from the start to the end
  Auswertung auswertung = Auswertung::CalcBatch;
};

// One state of the line: T in K, p in kPa, v in m^3/kmol, h in kJ/kmol, s in kJ/(kmol K), eta the
// degree of vaporization (1 for a homogeneous vapour, 0 for a homogeneous liquid).
struct ProzessPunkt {
  double T = 0, p = 0, v = 0, h = 0, s = 0, eta = 0;
};

struct ProzessLinie {
  std::vector<ProzessPunkt> punkte;
  double FixWert = 0;                 // the fixed quantity (v, h or s) of the start, engine units
  int16_t fehler = 0;                 // -1: the solver failed or a point could not be computed
  std::vector<std::string> meldungen; // refusals, word for word, in the order they arose
  int aufrufe = 0;                    // evaluations of the fixed quantity
};

// The refusal of the description as the process dialog words it; empty when the line can be drawn.
// Ranges: a straight line has none; the isotherm runs in p, the isobar in T.
std::string PruefeVorgabe(const ProjectState& s, const ProzessVorgabe& v);

// The title of the refusals.
inline const char* const TitelNichtMoeglich = "Ausführung nicht möglich";

// Computes the line. A refused description gives no points and its message; a failure of the
// solver ends a homogeneous line with the points so far; a failing point of a heterogeneous line is
// left out. Row 0 of ExpDaten is overwritten.
ProzessLinie BerechneProzessLinie(ProjectState& s, ui::Oberflaeche& ui, const ProzessVorgabe& v);

// The values of the running variable: Schritte equal steps from `von` to `bis`, the last one landing
// on `bis` exactly.
std::vector<double> Laufwerte(double von, double bis, int schritte);

// --- the families, each in its own file ---
// One phase (prozess_linie.cpp).
void HomogeneLinie(ProjectState& s, ui::Oberflaeche& ui, const ProzessVorgabe& v, ProzessLinie& l);
// Inside the two-phase region by the lever rule, and the line of constant eta (prozess_hetero.cpp).
void HeterogeneLinie(ProjectState& s, const ProzessVorgabe& v, ProzessLinie& l);
// The ideal-gas polytrope p v^n = const with constant kappa (prozess_linie.cpp).
void IdealgasPolytrope(ProjectState& s, const ProzessVorgabe& v, ProzessLinie& l);

} // namespace quor::prozess
