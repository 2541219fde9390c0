// Logic of the measured-data editor frmTpRhoEdit: the table of the current substance's rows (T, p,
// rho(V), rho(L), delta(LV)h, cp in that order on screen), the input of a row in chosen units, direct
// editing of cells, sorting, active marks, deleting, the clipboard, the .BAQ files, the printed list,
// the export of a column pair as .XY, the points of the control diagrams and what the fitting dialog
// is opened with. The data live in the project state's ExpDaten (which stores rho(L) before rho(V));
// the grid model Grid mirrors them in screen order and every change is written back at once.
#pragma once

#include "core/project_state.h"
#include "diagrams/diagramm_bild.h"
#include "dienste/oberflaeche.h"
#include "fitting/daten_tabelle.h"
#include "fitting/diagramm_punkte.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace quor {

// Columns of the table in screen order; a y column's index is its FitSpalte.
namespace tprho {
constexpr int T = 0, p = 1, RhoV = 2, RhoL = 3, HLV = 4, Cp = 5;
constexpr int Spalten = 6;
} // namespace tprho

// Units of the input fields (option arrays opt_T_unit, opt_p_Unit, opt_Rho_Unit).
namespace einheit {
constexpr int16_t Kelvin = 0, Celsius = 1;
constexpr int16_t kPa = 0, atm = 1, Torr = 2;
constexpr int16_t Dichte = 0, Volumen = 1;
} // namespace einheit

// Modes of the row input (optInputMode).
constexpr int16_t ZeileZufuegen = 0;
constexpr int16_t ZeileEditieren = 1;

// A stored row as a table row in screen order, and back (the single columns rounded to float).
DatenZeile TabellenZeile(const ExpDatenSatz& z);
ExpDatenSatz DatenSatz(const DatenZeile& z);

// The caption and tool-tip of a control of the dialog by its name ("cmdFitting", "TSort", ...);
// nullptr for a name without texts.
struct SteuerText {
  const char* Name;
  const char* Caption;
  const char* ToolTip;
};
const SteuerText* TpRhoText(const std::string& name);

// What the fitting dialog is opened with when a column is sent: the source, the tab, the model, the
// log option and the caption of the function button; what is unset stays as the dialog has it.
struct FitUebergabe {
  int16_t FitEditorCode = 2; // the T-p-rho editor
  int16_t FitDatenQuelle = 1;
  int16_t FitSpalte = 0;
  std::optional<int> Tab;
  std::optional<int16_t> Modell; // a FitModell code
  std::optional<int> optLogFit;  // the index of the log option chosen
  std::optional<std::string> FunktionsKnopf;
  bool GrafikKnoepfeAus = true; // cmdGraphFunction, cmdGraphResid, cmdGraphLnp until a fit has run
};
FitUebergabe FitUebergabeVon(int16_t fitSpalte);

class frmTpRhoEdit {
public:
  static const char* const LeereListe; // "leere Liste", the single row of an empty table
  static const char* const GridKopf;   // "  #     aus", the head of the number and mark columns
  static const char* const TitelNeu;   // " experimentelle Daten eingeben/editieren "
  static const char* const Kopf[2][6]; // the two head lines of the columns (the printed list's)

  // The open dialog with preview for .BAQ files (title, pattern "*.BAQ"); the chosen path, empty
  // when cancelled. Without it the plain open dialog of ui::Oberflaeche is asked.
  using DateiWahlFunktion = std::function<std::string(const std::string& titel, const std::string& muster)>;

  frmTpRhoEdit(ProjectState& s, ui::Oberflaeche& ui);

  // Opening: the table from the data, the caption, the chosen column, labels, fields, enabling.
  void Form_Load();
  // Closing (Edit_OK, Esc, the window's box): with unsaved changes the question Yes/No/Cancel; Yes
  // saves first. False keeps the dialog open. The frame's data button follows ExpAnzahl.
  bool Form_QueryUnload();

  // Input of a row: a field left, a unit chosen, the amount, the mode, and taking the row over.
  void y_LostFocus(int feld);
  void opt_T_unit_Click(int16_t index);
  void opt_p_Unit_Click(int16_t index);
  void opt_Rho_Unit_Click(int16_t index);
  void optInputMode_Click(int16_t index);
  void OKinput();
  // The table's cursor moved to a row: in edit mode its values fill the fields.
  void Grid_Zeile(int zeile);

  // Direct editing: the keys a cell passes on, and Enter on a cell with its text.
  static bool ZahlTaste(char c);
  void Grid_Enter(int zeile, int spalte, const std::string& text);

  // Commands of the table; an empty table beeps (Piepser).
  void TSort();
  void pSort();
  void cmdAus();
  void cmdErase();
  void cmdEraseSelected();
  void cmdClipboard();
  void cmdClipEinfuegen();
  void txtComment_Change(const std::string& text);
  void optFitFunction_Click(int16_t index);

  // Files and printer; false when cancelled, refused or failed.
  bool cmdBatchLoad();
  bool cmdBatchAdd();
  bool cmdBatchSave();
  bool cmdSaveXY();
  bool cmdPrintTpVListe();

  // The points of the control diagrams, nothing when refused; and what goes to the fitting dialog
  // (the table is sorted by T first).
  std::optional<DiagrammPunkte> cmdGraphFunction();
  std::optional<DiagrammPunkte> cmdlogGraf();
  FitUebergabe cmdFitting();

  // The table and the dialog's fields as the view shows them.
  DatenTabelle Grid{tprho::Spalten};
  std::string Caption;
  std::array<std::string, tprho::Spalten> y; // input fields in screen order
  std::string txtMol = "1";                  // "n/kmol ="
  std::string txtComment;
  std::string lblZeile = "Zeile 1";
  std::string lblDichte = "Dichte", lblRhoV = "rho_V", lblRhoL = "rho_L", lblRhoEinheit = "kg/m^3";
  std::string lblPEinheit = "kPa";
  std::string opt_Rho_UnitToolTip; // the hint of the volume option
  int16_t opt_T_unit = einheit::Kelvin, opt_p_Unit = einheit::kPa, opt_Rho_Unit = einheit::Dichte;
  bool opt_Rho_UnitVolumenEnabled = false; // needs the molar mass
  int16_t optInputMode = ZeileZufuegen;
  bool optInputModeEditierenEnabled = false;

  // Counts of measured values per column, the fit column and the colours of the columns.
  std::array<int, tprho::Spalten> Gemessen{};
  int16_t optFitFunction = 0; // 1 .. 5 as FitSpalte, 0 none
  std::array<bool, tprho::Spalten> optFitFunctionEnabled{};
  std::array<RGBFarbe, tprho::Spalten> SpaltenFarbe{};

  // Enabling by the number of rows.
  bool cmdBatchAddEnabled = false, cmdBatchSaveEnabled = false, cmdEraseEnabled = false;
  bool cmdAusEnabled = false, cmdPrintTpVListeEnabled = false, cmdSaveXYEnabled = false;
  bool TSortEnabled = false, pSortEnabled = false, cmdGraphFunctionEnabled = false;
  bool cmdFittingEnabled = false, cmdlogGrafEnabled = false;
  bool FittingAngeboten = true; // the view shows cmdFitting

  int Piepser = 0; // beeps of refused table commands
  DateiWahlFunktion DateiWaehlen;

private:
  // tprho_editor.cpp: the mirror of the data, the enabling, the fields and the buffer.
  void TabelleAusDaten();
  void DatenAusTabelle();
  void Freigaben();
  void CaptionSetzen();
  void FelderAusPuffer();
  void FeldAusPuffer(int feld);
  double Molmenge() const;
  bool Leer();
  // tprho_editor_befehle.cpp
  bool Laden(bool anfuegen);
  bool Sortieren(int spalte);
  // tprho_editor_ausgabe.cpp
  std::optional<DiagrammPunkte> Punkte(bool logarithmisch);

  ProjectState& s_;
  ui::Oberflaeche& ui_;
  std::array<double, tprho::Spalten> puffer_{}; // the row being typed, in table units
};

} // namespace quor
