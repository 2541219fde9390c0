// The 3D chart on the screen: a Q3DSurface in a window container that shows a Flaeche3D. The
// surface's X and Y run along the chart's horizontal X and depth Z axes, its height along the
// vertical Y axis. Cells that could not be computed are drawn at the height of a valid neighbour.
// Solid and mesh become the series' draw mode, shading its smooth or flat shading, zones a colour
// gradient over the height range, contours dark bands at every tenth of that range, transparency
// the alpha of the surface colours; labelled points become labels in the scene. The iso-lines the
// picture carries are drawn by the 3D diagram itself, not here.
#pragma once

#include "diagrams/diagramm_bild.h"

#include <QWidget>

class Q3DSurface;
class QSurface3DSeries;
class QSurfaceDataProxy;

namespace quor::ui {

class Diagramm3DFlaeche : public QWidget {
public:
  explicit Diagramm3DFlaeche(QWidget* eltern = nullptr);

  // Replaces the surface, its dress, the labelled points and the view by those of f. An inconsistent
  // grid (see FlaecheStimmig) empties the chart and gives false.
  bool Zeige(const Flaeche3D& f);

  // False when the chart cannot draw here (no OpenGL context, or the offscreen platform): the widget
  // stays empty, Graph() is null, and the series still holds the data of the last picture.
  bool KannZeichnen() const { return graph_ != nullptr; }

  Q3DSurface* Graph() const { return graph_; }
  QSurface3DSeries* Reihe() const { return reihe_; }
  QSurfaceDataProxy* Daten() const;

private:
  Q3DSurface* graph_;
  QSurface3DSeries* reihe_;
};

} // namespace quor::ui
