// The fit data and options as the fitting dialog and the fitting engine share them.
//
// One FitZustand per dialog instance. The dialog (or a command-line front end) works it like this:
//   1. FitDatenSetzen(z, points, editor) when data arrive: FitDaten, FitAnzahl, FitInaktiv.
//   2. ModellWaehlen(z, model, lg, Tcr, pcr) (fit_modelle.h) when a model is chosen: FitModell,
//      FitNPar, FitStart, FitSkala, the start fields StartFeld reset to the proposals (Tcr and pcr
//      put into the fields behind the parameters where the model reads them), results cleared.
//   3. The user edits StartFeld, FixFeld, Lg, FitLog and, for the spline, SplineGlaettung.
//   4. FitStarten(s, z) (fit_lauf.h) runs the fit: it checks the data, fills FitFix and FitPar from
//      the fields, fits, and leaves FitPar, FitStDev (both as the user sees them, i.e. multiplied
//      by FitSkala), FQS, sR, fehler and the messages in z; a refused run leaves only messages.
//   5. FitFunktionswert(s, z, x, fehler) and FitInvers(s, z, y, fehler) evaluate the result.
//
// Parameter arrays are indexed from 0: element 0 is the first parameter (A), element 6 the
// seventh (G). The engine routines of marquardt.h work on the parameters divided by FitSkala.
#pragma once

#include "dienste/oberflaeche.h"
#include "fitting/akima_spline.h"
#include "fitting/fit_modell.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace quor {

// One point of a fit: Flag -1 inactive, 0 active.
struct FitPunkt {
  float x = 0, y = 0, Flag = 0;
};
constexpr float FlagInaktiv = -1;
constexpr float FlagAktiv = 0;

// Where the data came from (FitEditorCode): the X-Y editor or the T-p-rho editor.
constexpr int16_t QuelleXYEditor = 1;
constexpr int16_t QuelleTpRhoEditor = 2;

constexpr int FitMaxPar = 7;
using FitParameter = std::array<double, FitMaxPar>;

// A message the engine hands to the dialog, which shows it through ui::Oberflaeche.
struct FitMeldung {
  std::string Text;
  std::string Titel;
  ui::Symbol Symbol = ui::Symbol::Ausruf;
};

struct FitZustand {
  // Data.
  std::vector<FitPunkt> FitDaten;
  int16_t FitAnzahl = 0;  // all points
  int16_t FitInaktiv = 0; // points with Flag -1
  int16_t FitEditorCode = QuelleXYEditor;

  // Model and options.
  int16_t FitModell = fitmodell::Polynom;
  int16_t FitNPar = 6;        // parameters of the model, fixed ones included
  bool Lg = false;            // chkLg of the model: the formula in decimal logarithms (c = ln 10)
  bool FitLog = false;        // optLogFit(1): residuals ln(y_calc) - ln(y)
  double SplineGlaettung = 0; // Sm of the spline, 0 = none
  std::array<float, FitMaxPar> FitStart{};    // the proposals of the model
  FitParameter FitSkala{1, 1, 1, 1, 1, 1, 1}; // per-parameter scale factors
  std::array<double, FitMaxPar> StartFeld{};  // the numbers of txtStart(0..6)
  std::array<bool, FitMaxPar> FixFeld{};      // chkFix(0..6)

  // What the run reads from the fields and the fit works with.
  std::array<bool, FitMaxPar> FitFix{};
  double FitTcr = 0; // the critical temperature of the model's group, K
  double FitPcr = 0; // kPa

  // Results.
  FitParameter FitPar{};
  FitParameter FitStDev{}; // -9999 (times the scale): singular matrix or too few free points
  double FQS = 0;          // sum of squares as the fit returned it
  double sR = 0;           // sqrt(FQS / (N - FitNPar)); 0 where that quotient is not positive
  int16_t fehler = 0;      // -1: an iteration limit of the Marquardt fit ended the run
  bool Ergebnis = false;   // a run has left results
  std::vector<FitMeldung> Meldungen;
  AkimaSpline Spline; // model 19
};

// Takes the points over and counts them; the editor code says where they came from.
void FitDatenSetzen(FitZustand& z, std::vector<FitPunkt> punkte, int16_t editorCode);

// The number of active points.
inline int AktivePunkte(const FitZustand& z) {
  return z.FitAnzahl - z.FitInaktiv;
}

// Forgets the results of a run (as any change of model or of a fix mark does).
void ErgebnisLoeschen(FitZustand& z);

} // namespace quor
