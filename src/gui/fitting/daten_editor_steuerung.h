// The data editors in the main frame: the X-Y editor and the editor of the substance's measured data
// as child windows of the work area, opened or brought forward by the data menu and the toolbar, and
// the points they draw, which go into the 2D page on show or into a new page made for them. The
// fitting dialog that both editors send their data to is a child window beside them; its diagrams go
// the same way.
#pragma once

#include "gui/fitting/fitting_fenster.h"
#include "gui/fitting/tprho_editor_fenster.h"
#include "gui/fitting/xy_editor_fenster.h"

#include <QMdiSubWindow>
#include <QObject>
#include <QPointer>

class QMdiArea;

namespace quor::ui {

class Graph2DSteuerung;
class Oberflaeche;

class DatenEditorSteuerung : public QObject {
  Q_OBJECT

public:
  DatenEditorSteuerung(ProjectState& s, Oberflaeche& ui, QMdiArea* flaeche, Graph2DSteuerung* graf2d,
                       QWidget* rahmen);

  // mnuData_EditXY: the X-Y editor, opened or brought forward.
  void XYEditorZeigen();
  // mnuData_BatchEdit: the measured-data editor with the data held, opened or brought forward.
  void MessdatenEditorZeigen();
  // mnuData_BatchInput, after the frame's question: the data held are cleared, then the editor shows.
  void MessdatenNeu();
  // The program ends: both editors close after their questions about unsaved data; false when the
  // user keeps one open.
  bool Schliessen();
  // Another substance: the measured-data editor closes without its question about unsaved data.
  void MessdatenEditorSchliessen();
  // The points of an editor into the 2D page on show, or into a new page made for their diagram.
  void PunkteZeichnen(const DiagrammPunkte& p);

  // mnuData_Fitting, mnuFitting: the fitting dialog, opened without new data or brought forward.
  void FittingZeigen();
  // The data an editor sends: the dialog opens (or comes forward) with them.
  void FittingMitMessdaten(const FitUebergabe& u);
  void FittingMitPunkten(const std::vector<FitPunkt>& punkte);
  // A diagram of the fit: its points and its curve into the 2D page, as the editors' points go.
  void FitDiagrammZeichnen(const FitDiagramm& d);

  XYEditorFenster* XYEditor() const { return xy_; }
  QMdiSubWindow* XYFenster() const { return xyFenster_; }
  TpRhoEditorFenster* MessdatenEditor() const { return tprho_; }
  QMdiSubWindow* MessdatenFenster() const { return tprhoFenster_; }
  FittingFenster* Fitting() const { return fitting_; }
  QMdiSubWindow* FittingRahmen() const { return fittingFenster_; }

  // The open dialog with preview for .BAQ files; without it the editor asks the plain file dialog.
  frmTpRhoEdit::DateiWahlFunktion BatchDateiWaehlen;
  // The frame's text window (the spline's list).
  std::function<void(const frmQTextEdit&)> TextZeigen;

signals:
  // The measured data may have changed: the frame's data button follows their count.
  void datenGeaendert();
  // The fitting dialog wrote parameters into the substance's data.
  void stoffGeaendert();

private:
  QMdiSubWindow* Einsetzen(QWidget* editor, const char* name, const QPoint& ecke);
  // The fitting dialog, made when none is open; true when it was made.
  bool FittingHolen();
  void FittingVorne();

  ProjectState& s_;
  Oberflaeche& ui_;
  QMdiArea* flaeche_;
  Graph2DSteuerung* graf2d_;
  QWidget* rahmen_;
  QPointer<XYEditorFenster> xy_;
  QPointer<QMdiSubWindow> xyFenster_;
  QPointer<TpRhoEditorFenster> tprho_;
  QPointer<QMdiSubWindow> tprhoFenster_;
  QPointer<FittingFenster> fitting_;
  QPointer<QMdiSubWindow> fittingFenster_;
};

} // namespace quor::ui
