// Logic of the iso-line calculator frmIsoCalc: with T or p given and one state function of a phase
// held at a value, it finds the p or T that belongs to it. It starts from the state last calculated
// on the result page and solves through the functions calculation, the way the homogeneous process
// lines do, on the display basis of the units (a value per kg is another number than per kmol).
#pragma once

#include "calc/ergebnis_seite.h"
#include "calc/ergebnis_typen.h"
#include "core/project_state.h"
#include "dienste/oberflaeche.h"
#include "process/prozess_loeser.h"

#include <array>
#include <cstdint>
#include <string>

namespace quor::prozess {

// optIsoTp: what is given.
constexpr int16_t IsoTGegeben = 0;
constexpr int16_t IsoPGegeben = 1;
// OptIsoFu: the function held fixed, 0 to 7.
constexpr int16_t IsoFunktionen = 8;
// The help page of the calculator.
constexpr int HilfeIsoRechner = 47410;

// The fixed quantity of the solver for the option index of OptIsoFu (V, H, S, G, U, E(H), E(U), A).
FixGroesse IsoFixGroesse(int16_t funktion);

// A value as the calculator's fields show it: up to ten significant digits, no trailing zeros.
std::string IsoZahlText(double x);

class frmIsoCalc {
public:
  static const char* const Caption;
  static const std::array<const char*, 2> optIsoTpTexte;    // "Temperatur", "Druck"
  static const std::array<const char*, 8> OptIsoFuTexte;    // "Volumen V", ... "Freie Energie A"
  static const std::array<const char*, 8> lblFuConstTexte;  // "V  = ", ... "A  = "
  static const std::array<const char*, 2> optIsoPhaseTexte; // by phase row: "L-Phase", "V-Phase"
  static const char* const KeineLoesung;                    // "keine Lösung"
  static const char* const txtFuConstToolTip;
  static const char* const cmdResetToolTip;
  static const char* const cmdShowManuInputToolTip;

  // `seite` is the context of the result page with the state last calculated.
  frmIsoCalc(ProjectState& s, ui::Oberflaeche& ui, const RechenKontext& seite);

  // Takes T, p and the function values of the page's state; false (with the refusal shown) when the
  // page has no T and p yet.
  bool Form_Load();
  void cmdCalc_Click();
  void cmdReset_Click();
  void optIsoTp_Click(int16_t index);
  void OptIsoFu_Click(int16_t index);
  void optIsoPhase_Click(int16_t index);

  // Options.
  int16_t IsoVorgabe = IsoTGegeben;
  int16_t IsoFunktion = 1;
  int16_t IsoPhase = PhaseV;

  // Fields as shown and typed.
  std::string txtFuConst, txtTpVorgabe, txtTpCalc;
  std::string lblFuConst, lblFuEinheit, lblTpVorgabe, lblTpCalc;
  bool Geloest = false; // txtTpCalc shows a solution

  // The pair of the last successful calculation (at first the page's state), K and kPa.
  double GutT = 0, GutP = 0;

  // Evaluations of the functions so far (each one a dispatcher call).
  int Auswertungen() const { return lk_.aufrufe; }

private:
  void FelderFuellen();
  bool Auswerten(double T, double p);
  double Letzter(int16_t funktion, int16_t phase) const;
  bool WertLesen(const std::string& text, const std::string& gezeigt, double genau, double& wert);
  void ErgebnisZeigen(double T, double p);

  ProjectState& s_;
  ui::Oberflaeche& ui_;
  const RechenKontext& seite_;
  LoeserKontext lk_;
  ErgebnisVektor letzter_{}; // the function cells of the last state, display units
  double letzterT_ = 0, letzterP_ = 0;
  // What the fields were filled with, so that an untouched field gives its value in full precision.
  std::string fuGezeigt_, tpGezeigt_;
  double fuWert_ = 0, tpWert_ = 0;
};

} // namespace quor::prozess
