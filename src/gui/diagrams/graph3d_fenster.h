// The view of the 3D diagram page frmGraph3D: the chart with the surface, the warning of the surface
// under it, and a side panel with the display options, the critical point, the iso-lines, the mouse
// mode, the range dialog, the copy of the picture and its print.
#pragma once

#include "diagrams/graph3d.h"
#include "gui/diagrams/diagramm3d_maus.h"

#include <QWidget>

class QCheckBox;
class QGroupBox;
class QLabel;
class QPrinter;
class QPushButton;
class QRadioButton;
class QSpinBox;

namespace quor::ui {

class Diagramm3DFlaeche;
class Oberflaeche;

class Graph3DFenster : public QWidget {
  Q_OBJECT

public:
  Graph3DFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern = nullptr);

  frmGraph3D& Logik() { return logik_; }

  // A new surface of `art` with its standard ranges (the logic may ask about the real behaviour);
  // false when nothing could be drawn.
  bool Neu(int16_t art);
  // Shows the logic's picture; the camera keeps its turn unless `neueAnsicht`.
  void Zeige(bool neueAnsicht = false);

  // The range dialog cmdCoord3.
  void Koordinatenbereich();
  // The chart's picture to the clipboard; false when the chart cannot draw here.
  bool BildKopieren();
  // Prints title, picture and warning: into `pdfDatei` when given, else on the printer the print
  // dialog chooses. False when cancelled or when the chart cannot draw.
  bool Drucken(const QString& pdfDatei = QString());
  void SetzeMausModus(MausModus m);
  // The diagram file (.oc3): saved with the camera as it stands; a loaded one sets the options and
  // counts of the panel and the camera of the file.
  bool Speichern();
  bool Laden();
  // The picture into a bitmap file (PNG or BMP); false when cancelled, not drawable or not written.
  bool BildSchreiben();

  Diagramm3DFlaeche* Flaeche() const { return flaeche_; }
  QLabel* Hinweis() const { return hinweis_; }
  // The controls by name: "chkSolid", "chkTransparent", ... ; "UpDown1_IsoZ", ...; "OptionMove", ...;
  // "cmdCoord3", "cmdKopieren", "cmdDrucken", "mnuAddIsobars", ...
  QCheckBox* Option(const QString& name) const;
  QSpinBox* Anzahl(const QString& name) const;
  QRadioButton* Maus(const QString& name) const;
  QPushButton* Knopf(const QString& name) const;

private:
  QWidget* BaueSeitenleiste();
  QGroupBox* BaueDarstellung();
  QGroupBox* BaueIsolinien();
  QGroupBox* BaueMaus();
  QWidget* BaueKnoepfe();
  void OptionenLesen();
  void IsolinienZeichnen();
  void IsoTexteZeigen();
  void OptionenZeigen(); // the panel's options and counts from the logic
  bool DruckeAuf(QPrinter& drucker);

  ProjectState& s_;
  Oberflaeche& ui_;
  frmGraph3D logik_;
  Diagramm3DFlaeche* flaeche_;
  QLabel* hinweis_;
};

} // namespace quor::ui
