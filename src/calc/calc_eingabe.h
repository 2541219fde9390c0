// Logic of the concept dialog frmCalcIn: GLOBAL or PARTIAL for the calculation at hand, with the
// situation of the case explained, the source of the liquid density, and the reference point of a
// PARTIAL calculation by one of three ways (proposal by the data, Benson's approximation, or typed in).
#pragma once

#include "calc/rechnung_starten.h"
#include "core/project_state.h"
#include "dienste/oberflaeche.h"

#include <array>
#include <string>

namespace quor {

class frmCalcIn {
public:
  static const char* const Caption;
  static const char* const fraSituationCaption; // "Berechnungs-Situation"
  static const char* const Bz1Caption;
  static const std::array<const char*, 2> opt_globTexte;         // GLOBAL, PARTIAL
  static const std::array<const char*, 2> optPartialBensonTexte; // database function, Benson
  static const std::array<const char*, 3> Ref_optTexte;
  static const char* const RefInputCaption;
  static const char* const GlobalNurKubisch; // refusal of GLOBAL with a model without liquid phase

  frmCalcIn(ProjectState& s, ui::Oberflaeche& ui, RechnungsFenster fenster);

  // The situation of the case, the concept of the project preselected (PARTIAL where the case demands
  // it), and with PARTIAL the reference point: the one held, or else the proposal by the data.
  void Form_Load();
  // 0 GLOBAL, 1 PARTIAL; GLOBAL with a model without liquid phase is refused and PARTIAL stays.
  void opt_glob_Click(int index);
  // 0 the database function rho(L) = Fu(T), 1 the Benson method.
  void optPartialBenson_Click(int index);
  // The three ways to the reference point; way 2 waits for RefInput.
  void Ref_opt_Click(int index);
  // The value dialog for the reference point; its values are shown afterwards.
  void RefInput_Click();
  void BENSON_HELP_Click();
  // Takes the reference point, closes the dialog and goes on with the calculation (or the diagram).
  void OK_Click();
  void Cancel_Click() { Geschlossen = true; }

  // Lines of the frame "Berechnungs-Situation", joined by CR LF.
  std::string Situation;
  std::string GlobalSit;
  int opt_glob = 0;
  std::array<bool, 2> opt_globEnabled{true, true};
  // The controls of the reference point and of the liquid density (shown with PARTIAL).
  bool PartialSichtbar = false;
  int optPartialBenson = 1;
  std::array<bool, 2> optPartialBensonEnabled{true, true};
  std::string DichteHinweis; // what the density option says
  std::string lblRhoLimits;
  int Ref_opt = -1; // none chosen yet
  bool RefInputEnabled = false;
  std::string RefVorschlag; // report of the reference point, lines joined by CR LF
  bool AusDiagramm = false; // opened by a diagram, which goes on after OK
  bool Geschlossen = false;

private:
  void SituationSetzen();
  void KonzeptZeigen();
  bool PartialErzwungen() const;

  ProjectState& s_;
  ui::Oberflaeche& ui_;
  RechnungsFenster f_;
};

// The four values of the PARTIAL reference point as report lines.
std::string BezugspunktText(const ProjectState& s);

} // namespace quor
