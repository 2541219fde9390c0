// The view of the 2D diagram page frmQGraph2D: a row with the curve parameter and the buttons of the
// page (draw, colour of the next curve, axis range, zoom reset, swapped axes, legend), the chart, and
// a status line that tells what lies under the mouse. A rectangle dragged with the left button zooms;
// a right click on a curve opens its style dialog, on an empty place the page's menu with the insert
// menu, the deletes, the legend and the clipboard.
#pragma once

#include "diagrams/graph2d.h"
#include "diagrams/markierungen.h"

#include <QPoint>
#include <QString>
#include <QWidget>

#include <memory>

class QLabel;
class QLineEdit;
class QMenu;
class QMouseEvent;
class QPushButton;
class QRubberBand;

namespace quor::ui {

class Diagramm2DFlaeche;
class Oberflaeche;

class Graph2DFenster : public QWidget {
  Q_OBJECT

public:
  Graph2DFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern = nullptr);
  ~Graph2DFenster() override;

  frmQGraph2D& Logik() { return logik_; }
  Markierungen& Marken() { return marken_; }

  // The request of the next curve: a new diagram for it when `neu`, else a curve of another code on
  // the axes on show. The parameter row follows the request's family.
  void Anfordern(const DiagrammAuftrag& a, bool neu);
  const DiagrammAuftrag& Naechste() const { return naechste_; }
  // Draws the next curve with the parameter of the field (when its family takes one).
  ZeichenErgebnis Zeichnen();
  // The field of the parameter takes the focus with its text selected.
  void ParameterFokus();
  // An entry of the insert menu (name and index as the menus have them).
  void Einfuegen(const std::string& name, int index);

  // Shows the logic's picture and fields anew.
  void Zeige();

  // The user's actions in pixels of the chart, as its mouse events give them.
  bool ZoomRechteck(const QPoint& ecke1, const QPoint& ecke2);
  void MausBewegt(const QPoint& pixel);
  // A right click: the curve under the mouse (its slot, or -1) and what opens for it.
  int RechtsKlick(const QPoint& pixel);
  // The page's menu for a right click on an empty place; `kurve` is the slot under the mouse or -1.
  std::unique_ptr<QMenu> HauptMenue(int kurve);
  void FarbeVorwaehlen(RGBFarbe f);
  // The page's file menu: diagram save and load (.oc2), point sets from and to .XY files, the picture
  // (mnuBild) and the colour of the sheet. It hangs under the page's "Datei" button and in its menu.
  void DateiMenue(QMenu* m);
  // Loads a diagram file; the next curve takes the loaded diagram's request.
  bool DiagrammLaden();
  // mnuBild: the picture on the printer (after the question for a black sheet), to the clipboard as
  // bitmap or vector picture, into a picture file of the chosen kind. Printing writes `pdfDatei`
  // when one is given, else the print dialog chooses the printer.
  bool BildDrucken(const QString& pdfDatei = QString());
  bool BildKopieren(bool vektor);
  bool BildSchreiben(bool vektor);

  // A click on a curve: the state under the mouse is sent with punktGewaehlt when T and p are known.
  bool PunktWaehlen(const QPoint& pixel);

  // The range dialog; its four numbers become the new setting.
  void Koordinatenbereich();
  void KurveGestalten(int slot);

  Diagramm2DFlaeche* Flaeche() const { return flaeche_; }
  QLabel* ParameterLabel() const { return parameterLabel_; }
  QLineEdit* ParameterFeld() const { return parameter_; }
  QLabel* Statuszeile() const { return status_; }
  // "cmdDraw", "cmdFarbVorwahl", "cmdKoordinaten", "cmdZoomReset", "cmdChangeXY", "cmdLegende"
  QPushButton* Knopf(const QString& name) const;

signals:
  // An entry of the insert menu's process lines (its kind); the process dialog takes it.
  void prozessLinieGewuenscht(int art);
  // T (K) and p (kPa) of a point picked on a curve.
  void punktGewaehlt(double T, double p);

private:
  void BaueKopfzeile();
  void MausGedrueckt(QMouseEvent* e);
  void MausLos(QMouseEvent* e);
  void MausZiehen(QMouseEvent* e);
  // Tolerances of the hit test in data units around a pixel.
  std::array<double, 2> Toleranz(const QPoint& pixel) const;
  void EinfuegeMenue(QMenu* m);
  void LoeschMenue(QMenu* m);
  void ZwischenablageMenue(QMenu* m, int kurve);
  void BildMenue(QMenu* m);
  void PunkteSpeichernMenue(QMenu* m);
  void ParameterZeigen();

  ProjectState& s_;
  Oberflaeche& ui_;
  frmQGraph2D logik_;
  Markierungen marken_;
  DiagrammAuftrag naechste_;
  Diagramm2DFlaeche* flaeche_;
  QLabel* parameterLabel_ = nullptr;
  QLineEdit* parameter_ = nullptr;
  QLabel* status_;
  QRubberBand* band_;
  QPoint bandStart_;
  bool ziehen_ = false;
};

} // namespace quor::ui
