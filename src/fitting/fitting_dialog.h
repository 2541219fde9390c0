// Logic of the fitting dialog frmQFitting: a model function fitted to the active points that a data
// editor sent, on five tabs of models, with the results, evaluation, diagrams and the transfer of
// the parameters into the loaded substance's data.
//
// What the view does with it:
//   - Opening: DatenLaden(FitUebergabe) when the measured-data editor sends a column (the dialog
//     reads ExpDaten itself), DatenLaden(points) when the X-Y editor sends its FitDaten, Form_Load()
//     when the menu opens the dialog without new data. Each of them is an opening: Caption, the
//     critical constants from the substance, Sm = 0, the model's start fields anew.
//   - It shows: Caption; the tabs (TabTexte, SSTab1) with their model options (FitModellKatalog():
//     caption, tab, visible) and the group caption GruppenText(tab); the chosen model Fit.FitModell;
//     chkLg[code] beside the models that have one (HatLg); lblFittingEq; the start fields lblStart,
//     txtStart, txtStartVisible with chkFix, chkFixVisible; optLogFit; optcpPhase on the heat-capacity
//     tab; the spline frame (fraSplineVisible, txtSplineWicht, lblEingabetest, SplineBereichText);
//     the results frame (fraFQSVisible, fraFQSCaption, lblFQS1, lblFQS2, Label11Text, lblsr2, txtPar,
//     txtStDev with their visibility, StDevKopfVisible "s, Par"); fraCalc (fraCalcVisible, optCalc,
//     txtCalcX, txtCalcY); lblApply; the enabled flags of every button.
//   - It forwards: SSTab1_Click, optFit_Click, chkLg_Click, chkFix_Click, txtStart_Change,
//     optLogFit_Click, optcpPhase_Click, txtSplineWicht_Change (when the field is left), optCalc_Click,
//     txtCalcX/Y_Change, and the commands. It shows the wait cursor while cmdStart runs.
//   - Diagrams: cmdGraphFunction, cmdGraphResid and cmdGraphLnp return a FitDiagramm. The view puts
//     its points into the open 2D page (cmdExternPoints with PunktQuelle::Fitting) and its curve
//     (cmdExternKurve), or opens a page for Punkte.NeuesDiagramm first when none is open.
//   - cmdSplineParAnzeigen returns the text window's content to show; cmdApply writes the parameter
//     set of the substance data in memory (the database file is written by the substance editor).
// Every message goes through ui::Oberflaeche. After each call the view shows all fields anew.
#pragma once

#include "core/project_state.h"
#include "dienste/oberflaeche.h"
#include "fitting/diagramm_punkte.h"
#include "fitting/fit_daten.h"
#include "fitting/tprho_editor.h"
#include "substance/text_fenster.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quor {

// The tabs of the dialog.
namespace fittab {
constexpr int Allgemein = 0, Dampfdruck = 1, Dichte = 2, HLV = 3, Cp = 4;
constexpr int Anzahl = 5;
} // namespace fittab

// One model option: its code, the caption in the list, the title of its diagrams and its tab.
struct FitModellEintrag {
  int16_t Code;
  const char* Name;
  const char* Titel;
  int Tab;
  bool Sichtbar; // false for the reserved codes
};

// Every model option in the order of the tabs; the entry of a code (nullptr for an unknown one).
const std::vector<FitModellEintrag>& FitModellKatalog();
const FitModellEintrag* FitModellVon(int16_t code);

// The captions of the tabs, the caption of a tab's model group, the formula text of a model
// (lblFittingEq) with chkLg as given, and whether the model has a chkLg.
extern const std::array<const char*, fittab::Anzahl> TabTexte;
const char* GruppenText(int tab);
std::string FormelText(int16_t code, bool lg);
bool HatLg(int16_t code);

// The labels of the seven start fields of a model ("A = ", ..., "Tcr/K = "); empty: the field is
// not shown.
std::array<std::string, FitMaxPar> StartLabels(int16_t code);
// The number of parameter fields shown (model 6 shows its computed D among them).
int ParameterFelder(int16_t code);

// What a diagram command hands to the 2D page: the active points with their legend and the diagram
// they need when no page is open, and the curve of the fitted function (or the zero line of the
// residuals) with its legend.
struct FitDiagramm {
  DiagrammPunkte Punkte;
  std::vector<double> KurveX, KurveY;
  std::string KurvenLegende;
};

class frmQFitting {
public:
  // Fixed texts of the dialog.
  static const char* const CaptionOhneDaten;  // " Fitting y = f(T) (noch keine Daten geladen)"
  static const char* const Label11Text;       // "Rest-Standardabweichung s(R) = SQRT(FQS / (N -NPar))"
  static const char* const SplineBereichText; // "Eingabe-Bereich Sm = 0 ... 5000; Standard  ist Sm = 0"
  static const char* const StDevKopf;         // "s, Par"
  static const std::array<const char*, 3> cpPhasenTexte; // "Idealgas", "flüssig", "fest"
  static const std::array<const char*, 2> LogFitTexte;
  static const std::array<const char*, 2> CalcTexte;
  static const char* const cmdStartCaption;     // "Start Fitting"
  static const char* const cmdCalcCaption;      // "inter- und extrapolieren"
  static const char* const cmdApplyCaption;     // "Parameter übernehmen"
  static const char* const cmdSplineParCaption; // "Spline-Parameter anzeigen"
  static const char* const chkLgCaption;

  frmQFitting(ProjectState& s, ui::Oberflaeche& ui);

  // Opening without new data, and the two ways data arrive (each an opening as well).
  void Form_Load();
  void DatenLaden(const FitUebergabe& u);
  void DatenLaden(const std::vector<FitPunkt>& punkte);

  // The user's choices. Choosing a model or changing a fix mark clears the results; chkLg of the
  // chosen model changes its formula text and what the result computes, not the start fields.
  void SSTab1_Click(int tab);
  void optFit_Click(int16_t code);
  void chkLg_Click(int16_t code, bool an);
  void chkFix_Click(int i, bool an);
  void txtStart_Change(int i, const std::string& text);
  void optLogFit_Click(int index);
  void optcpPhase_Click(int index);
  // Sm of the spline: 0 to 1000, anything else is told in lblEingabetest and reset to 0. Disables the
  // diagram buttons until the next run.
  void txtSplineWicht_Change(const std::string& text);

  // The run: the fields into the engine, its checks with their messages, the results shown. False
  // when a check refused it.
  bool cmdStart();
  // A result (or all of them) into the start fields.
  void cmdleft(int i);
  void cmdLeftAll();
  // Evaluation: optCalc 0 computes y from txtCalcX, 1 x from txtCalcY; "Error" where that fails.
  void optCalc_Click(int index);
  void txtCalcX_Change(const std::string& text);
  void txtCalcY_Change(const std::string& text);
  void cmdCalc();
  // The text window with the spline's pieces; nothing without a spline.
  std::optional<frmQTextEdit> cmdSplineParAnzeigen() const;

  // Diagrams of the result; nothing (after the message where there is one) when they can't be made.
  std::optional<FitDiagramm> cmdGraphFunction();
  std::optional<FitDiagramm> cmdGraphResid();
  std::optional<FitDiagramm> cmdGraphLnp();

  // The result into the substance's parameter set of the model (fitting_uebernahme.cpp); false when
  // nothing was written.
  bool cmdApply();

  // The engine's state: data, model, options, results. The view reads it; it writes only through
  // the commands above.
  FitZustand Fit;
  int16_t FitSpalte = 0;      // the measured-data column sent (1 p ... 5 cp), 0 from the X-Y editor
  int16_t FitDatenQuelle = 0; // 1 once an editor has sent data

  // Fields as the view shows them.
  std::string Caption = CaptionOhneDaten;
  int SSTab1 = fittab::Allgemein;
  std::array<bool, 20> chkLg{}; // by model code; only codes 3 to 7 have the box
  std::string lblFittingEq;
  std::array<std::string, FitMaxPar> lblStart, txtStart;
  std::array<bool, FitMaxPar> txtStartVisible{}, chkFix{}, chkFixVisible{};
  int optLogFit = 0;
  int optcpPhase = 0;
  bool optcpPhaseVisible = false;
  bool fraSplineVisible = false;
  std::string txtSplineWicht = "0";
  std::string lblEingabetest;

  // Results.
  bool fraFQSVisible = false;
  std::string fraFQSCaption, lblFQS1, lblFQS2, lblsr2;
  std::array<std::string, FitMaxPar> txtPar, txtStDev;
  std::array<bool, FitMaxPar> txtParVisible{}, txtStDevVisible{};
  bool StDevKopfVisible = false;

  // Evaluation.
  bool fraCalcVisible = false;
  int optCalc = 0;
  std::string txtCalcX, txtCalcY;

  // Buttons.
  std::string cmdGraphFunctionCaption = "y = f(x)";
  bool cmdStartEnabled = true;
  bool cmdGraphFunctionEnabled = false, cmdGraphResidEnabled = false, cmdGraphLnpEnabled = false;
  bool cmdCalcEnabled = false, cmdApplyEnabled = false, cmdleftEnabled = false, cmdLeftAllEnabled = false;
  bool cmdSplineParAnzeigenEnabled = false;
  std::string lblApply;

private:
  // fitting_dialog.cpp
  void ModellSetzen(int16_t code);
  void FelderDesModells();
  void FelderInZustand();
  void ErgebnisAnzeigen();
  void ErgebnisVerwerfen();
  void MeldungenZeigen();
  std::string ParText(int i) const;
  // fitting_uebernahme.cpp
  void TemperaturBereich(int16_t& Tmin, int16_t& Tmax) const;
  // fitting_diagramme.cpp
  std::vector<double> AktiveX() const;
  std::vector<double> AktiveY() const;
  std::string XAchse() const;

  ProjectState& s_;
  ui::Oberflaeche& ui_;
  double tcr_ = 0, pcr_ = 0; // the substance's critical constants at the last opening
};

} // namespace quor
