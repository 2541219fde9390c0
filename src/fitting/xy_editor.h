// Logic of the X-Y data editor frmQXYEdit: a free table of x-y pairs that belongs to no substance,
// typed in, pasted, taken from a curve of the 2D page or loaded from an .XY file, with a comment.
// The table is a two-column grid model whose values are held at single precision; rows can be
// marked inactive, sorted, swapped, converted, deleted, printed, copied, saved, drawn into the 2D
// page and sent to the fitting. The view shows the fields and forwards the user's actions; it sets
// the cursor and the selection on `Tabelle` directly, values only through the commands.
#pragma once

#include "core/project_state.h"
#include "diagrams/graph2d.h"
#include "dienste/oberflaeche.h"
#include "fitting/daten_tabelle.h"
#include "fitting/diagramm_punkte.h"
#include "fitting/fit_daten.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quor {

// One row of the table as the file model holds it.
struct XYDatenSatz {
  float x = 0, y = 0;
  bool Inaktiv = false; // not written, not drawn, not sent to the fitting
};

// The conversions of the frame fraManipulation, by the index of optManip.
enum XYUmrechnung : int {
  UmrechnungExpY = 0,
  UmrechnungLnY = 1,
  UmrechnungMalW = 2,
  UmrechnungPlusW = 3,
  UmrechnungKehrwertY = 4,
  UmrechnungEinsMinusX = 5
};

class frmQXYEdit {
public:
  static const char* const Titel;                     // "  X-Y-Daten-Editor"
  static const std::array<const char*, 6> ManipTexte; // "y = exp(y)" ... "x = 1 - x"
  static const char* const NichtAusfuehrbar;          // the message of a conversion that fails
  static const char* const FittingText;               // the caption of cmdFitting

  frmQXYEdit(ProjectState& s, ui::Oberflaeche& ui);

  // Files. cmdLoad and KurveUebernehmen replace the table; unsaved changes are asked about first
  // (as on closing). False when cancelled or unreadable.
  bool cmdLoad();
  // The comment and the active rows; a table without rows writes the comment alone. Nothing to save
  // without either.
  bool cmdSave();
  // The points of a curve of the 2D page as shown (swapped with the page), its legend as comment.
  bool KurveUebernehmen(const frmQGraph2D& seite, int slot);
  // Closing: with unsaved changes the question Yes/No/Cancel; true when the dialog may close.
  bool Form_QueryUnload();

  // Editing. Cell input and the row input read "," as the decimal mark as Basic's Val() does.
  void ZelleEingabe(int zeile, int spalte, const std::string& text);
  void OKinput(); // txtX, txtY: a new row (optInputMode 0) or the cursor row replaced (1)
  void txtComment_Change(const std::string& text);
  void cmdAus(); // the cursor row active/inactive
  void cmdChangeXY();
  void XSort();
  void YSort();
  void cmdErase();         // the selected rows, after the question
  void cmdEraseSelected(); // the cells of the selection become 0
  void cmdClipboard();     // the selection, or the whole table without one, as tab-separated text
  void cmdClipEinfuegen(); // the clipboard at the cursor cell

  // Conversions: cmdManip shows the frame, cmdCloseManip hides it, cmdExecManip runs the one chosen
  // in optManip over the active rows. A conversion that is undefined for one of them changes no row.
  void cmdManip();
  bool cmdExecManip();
  void cmdCloseManip();

  // The list on the printer; false without rows or without a printer.
  bool cmdPrint();
  // The active points for the 2D page, with the diagram they need when no page is open; nothing
  // (after the message) without an active point.
  std::optional<DiagrammPunkte> cmdDrawXY();
  // Fills FitDaten with the active rows; false (after the message) without one. Opening the fitting
  // dialog is the view's part.
  bool cmdFitting();

  // The table as the file model holds it, and its row count.
  std::vector<XYDatenSatz> XYDaten() const;
  int XYAnzahl() const { return Tabelle.Anzahl(); }

  // The grid: column 0 x, column 1 y.
  DatenTabelle Tabelle{2};
  std::string txtComment;
  std::string Caption;
  std::string DateiPfad; // the file last loaded or saved
  bool Geaendert = false;

  // Row input.
  std::string txtX, txtY;
  int optInputMode = 0; // 0 "Zeile zufügen", 1 "Zeile editieren"

  // Conversion frame.
  bool fraManipulationVisible = false;
  int optManip = UmrechnungExpY;
  std::string txtW = "1";

  // What the fitting gets from cmdFitting.
  std::vector<FitPunkt> FitDaten;
  // The fitting dialog is offered: its button shows.
  bool FittingAngeboten = true;

  // Enabling by the row count (set after every change).
  bool cmdSaveEnabled = false, cmdPrintEnabled = false, cmdEraseEnabled = false;
  bool cmdEraseSelectedEnabled = false, cmdAusEnabled = false, cmdChangeXYEnabled = false;
  bool cmdManipEnabled = false, cmdClipboardEnabled = false, cmdDrawXYEnabled = false;
  bool XSortEnabled = false, YSortEnabled = false, cmdFittingEnabled = false;

  int Piepser = 0; // beeps of commands that find nothing to do
  // Date and time of the printed list ("dd.mm.yyyy, hh:mm"); the clock unless a test sets it.
  std::function<std::string()> DatumZeit;

private:
  void Freigaben();
  void Aenderung();
  void AufSingle();
  bool Sichern();
  bool HatDaten() const; // rows or a comment to save
  bool DateiSchreiben(const std::string& pfad);
  void Sortieren(int spalte);
  std::string Dateiname() const;
  std::string Legende() const;
  ui::DateiDialog Dialog(const char* titel, const char* filter) const;

  ProjectState& s_;
  ui::Oberflaeche& ui_;
  std::string verzeichnis_;
};

} // namespace quor
