// Logic of the process dialog frmInputProzessLinien: the description of one process line (its kind,
// homogeneous or inside the two-phase region, the range in T or p, the phase, the start and the end),
// the start state shown by cmdVScalc, the kappa values offered for the polytrope, and cmdDrawPL,
// which checks the input in its fixed order and hands the line to the 2D diagram (or, for the
// polytrope of the calculation menu, to the result page). Fields hold displayed units.
#pragma once

#include "core/project_state.h"
#include "diagrams/diagramm_auftrag.h"
#include "dienste/oberflaeche.h"
#include "process/polytrope_austausch.h"
#include "process/prozess_art.h"
#include "process/prozess_linie.h"

#include <array>
#include <string>
#include <vector>

namespace quor::prozess {

// The help topic of the process dialog.
constexpr int HilfeProzesslinien = 47100;

// What the view does after cmdDrawPL.
enum class ProzessFolge {
  Nichts,         // a message was shown, or the input was refused; the dialog stays open
  Kurve,          // the line waits for the diagram's draw button (its request is in Auftrag())
  ExterneKurve,   // the polytrope's points go into the diagram as they are (KurveX, KurveY)
  Parameter,      // the curve parameter of the diagram's family was taken (TVorgabe or pVorgabe)
  Ergebnisseite   // the polytropic process of the calculation menu: the result page shows its report
};

class frmInputProzessLinien {
public:
  static const char* const Caption;          // "  Eingabe-Parameter für Prozesslinien"
  static const char* const MausHinweis;      // picking the start in the diagram
  static const char* const ZeichnenHinweis;  // " dann Button [Zeichne Kurve] im Diagramm-Fenster "
  static const char* const EndeAlsAnfang;    // caption of chkEndToBegin
  static const char* const EndeAlsAnfangTip;

  frmInputProzessLinien(ProjectState& s, ui::Oberflaeche& ui);

  // Opening for a kind. `diagramm` is the request of the diagram on show (code 0: none, as for the
  // polytropic process of the calculation menu, `ausRechnung`). Sets the captions, labels, enabling,
  // the first default temperature with its hint, and the fields of the last line of this kind.
  void Form_Load(int16_t art, const DiagrammAuftrag& diagramm, bool ausRechnung = false);

  void optHomoHetero_Click(bool hetero);
  void optTp_Click(int16_t bereich);        // BereichT or BereichP
  void optPhase_Click(int16_t phase);       // PhaseV or PhaseL
  void optIdealEOS_Click(int16_t modus);    // PolytropeAktuelleEOS or PolytropeIdealgas
  // The start fields take the last state of the former line (and keep following it while set).
  void chkEndToBegin_Click(bool an);
  // A point picked on a curve of the diagram (engine units): the start takes its T and p.
  void StartpunktSetzen(double T, double p);

  // The start state in txtVSCalc: phase or region with the kind's quantity; "ERROR" in red when the
  // state cannot be solved.
  void cmdVScalc();
  // The kappa values offered by cmbKappa (messages for a missing T1 or reference temperature).
  void cmbKappa_DropDown();
  void cmbKappa_Click(int index);

  // Checks, stores and hands the line on; see ProzessFolge.
  ProzessFolge cmdDrawPL();

  // The request of the process line for the diagram page (its code, the diagram's axes, the title
  // that becomes the legend).
  const DiagrammAuftrag& Auftrag() const { return auftrag_; }
  // The polytrope's points in displayed coordinates and its legend.
  std::vector<double> KurveX, KurveY;
  std::string KurveLegende;

  // ----- what the view shows -----
  std::string ArtCaption;            // the caption of the kind (the Part's table)
  std::string lblT1, lblP1, lblEnde; // " T1/ K = ", "p1/kPa = ", " T2/ K = " or "p2/kPa = "
  std::string fraAnfang, fraEnde;    // "Anfangspunkt", "Endpunkt" (heterogeneous: the tie lines)
  std::string cmdDrawCaption;        // "Zeichnen", or "übernehmen" with "und schließen"
  std::string cmdVScalcCaption, cmdVScalcTip, txtVSCalcTip;
  std::string Hinweis;               // the first-default hint, or the mouse hint
  std::string lblParameter;          // kind 7: "T / K =" or "p / kPa ="

  std::string txtT1, txtP1, txtEnde;             // start T, start p, end of the range
  std::string txtX1, txtY1, txtX2, txtY2;        // straight line, axis units
  std::string txtEta;                            // kind 8
  std::string txtParameter;                      // kind 7
  std::string cmbKappa, txtN;                    // polytrope
  std::vector<std::string> KappaListe;           // the offered values' texts
  std::vector<double> KappaWerte;
  std::string txtVSCalc;
  bool txtVSCalcRot = false;

  int16_t ProzessArt = Isentrope;
  bool ProzessHetero = false;
  int16_t ProzessBereich = BereichT;
  int16_t ProzessPhase = PhaseV;
  int16_t PolytropenModus = PolytropeIdealgas;
  bool EndToBegin = false;
  bool AusRechnung = false;

  // Which controls are shown.
  bool HeteroMoeglich = false; // optHomoHetero (isochore, isentrope, isenthalpe)
  bool BereichWaehlbar = true; // optTp
  bool P1Sichtbar = true;      // the start pressure (not in the heterogeneous form with a T range)
  bool T1Sichtbar = true;
  bool VSCalcSichtbar = true;

  // The single-value results of the line (the polytrope's report head; cleared for other lines).
  std::array<double, 22> Ergebnisse{};
  std::string Bericht; // the polytrope's report
  ProzessLinie Linie;  // the states of the last line

private:
  void Beschriften();
  void ErsteVorgaben();
  bool Lese(const std::string& text, double& wert) const;
  ProzessFolge GeradeUebernehmen();
  ProzessFolge ParameterUebernehmen();
  ProzessFolge PolytropeUebernehmen(const ProzessVorgabe& v);
  ProzessFolge Linienzug(const ProzessVorgabe& v);
  bool VorgabeLesen(ProzessVorgabe& v);
  void Melde(const std::string& text);
  std::string Anzeige(double engineT) const;
  std::string AnzeigeP(double engineP) const;
  void VSCalcHeterogen(double T);
  void VSCalcHomogen(double T, double p);
  std::string GroesseText(const char* name, double engineWert, int spalte) const;

  ProjectState& s_;
  ui::Oberflaeche& ui_;
  double endeT_ = 0, endeP_ = 0; // the end state of the last line (0: none yet)
  DiagrammAuftrag diagramm_;
  DiagrammAuftrag auftrag_;
};

} // namespace quor::prozess
