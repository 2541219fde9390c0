// The 3D chart on the screen: a Q3DSurface in a window container that shows a Flaeche3D. The
// surface's X and Y run along the chart's horizontal X and depth Z axes, its height along the
// vertical Y axis. Cells that could not be computed are drawn at the height of a valid neighbour.
// Solid and mesh become the series' draw mode, shading its smooth or flat shading, zones a colour
// gradient over the height range, contours dark bands at every tenth of that range, transparency
// colours faded toward white (the chart's alpha blending is not to be trusted); labelled points become a ball
// with the label above it. Each iso-line becomes a narrow ribbon of its own series lying on the surface along
// the line. The left mouse button moves, spins or scales the scene.
#pragma once

#include "diagrams/diagramm_bild.h"
#include "gui/diagrams/diagramm3d_maus.h"

#include <QImage>
#include <QWidget>

#include <vector>

class Q3DSurface;
class QSurface3DSeries;
class QSurfaceDataProxy;

namespace quor::ui {

class Diagramm3DFlaeche : public QWidget {
public:
  explicit Diagramm3DFlaeche(QWidget* eltern = nullptr);

  // Replaces the surface, its dress, the iso-lines, the labelled points and the view by those of f.
  // An inconsistent grid (see FlaecheStimmig) empties the chart and gives false.
  bool Zeige(const Flaeche3D& f);

  // The camera's turn and zoom as the user left them (the picture's view while the chart cannot draw).
  Ansicht3D Ansicht() const;
  // The camera looks at the middle of the scene again.
  void ZielZuruecksetzen();
  void SetzeMausModus(MausModus m);
  MausModus Modus() const { return modus_; }
  // The chart drawn into a picture of that size; a null picture when the chart cannot draw.
  QImage Bild(const QSize& groesse) const;

  // False when the chart cannot draw here (no OpenGL context, or the offscreen platform): the widget
  // stays empty, Graph() is null, and the series still holds the data of the last picture.
  bool KannZeichnen() const { return graph_ != nullptr; }

  Q3DSurface* Graph() const { return graph_; }
  QSurface3DSeries* Reihe() const { return reihe_; }
  QSurfaceDataProxy* Daten() const;
  // The series of the iso-lines on show, in the order of the picture's lines.
  const std::vector<QSurface3DSeries*>& Linien() const { return linien_; }

private:
  void ZeigeLinien(const Flaeche3D& f);

  Q3DSurface* graph_;
  QSurface3DSeries* reihe_;
  std::vector<QSurface3DSeries*> linien_;
  Maus3D* maus_ = nullptr;
  MausModus modus_ = MausModus::Drehen;
  Ansicht3D ansicht_;
};

} // namespace quor::ui
