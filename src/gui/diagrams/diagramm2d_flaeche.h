// The 2D chart on the screen: a QCustomPlot that shows a Diagramm2D. Curves and point sets become
// QCPCurve plottables (they keep the order of their points, so loops and swapped axes draw right),
// point marks one-point curves outside the legend, texts and mark labels text items at data
// coordinates; tick labels follow the axes' format patterns; the legend takes the corner of the plot
// area where it hides least of the curves. Mouse positions are turned into data
// coordinates through the same mapping as the zoom rectangle.
#pragma once

#include "diagrams/diagramm_bild.h"
#include "diagrams/koordinaten.h"

#include <QPoint>
#include <QWidget>

class QCustomPlot;
class QCPTextElement;

namespace quor::ui {

class Diagramm2DFlaeche : public QWidget {
public:
  explicit Diagramm2DFlaeche(QWidget* eltern = nullptr);

  // Replaces everything shown by the picture d and redraws.
  void Zeige(const Diagramm2D& d);

  // The plot area in pixels of Plot() and the axis ranges shown now.
  Zeichenflaeche Flaeche() const;

  // The data coordinate under a mouse position given in pixels of Plot() (as its mouse signals give
  // them).
  Punkt2D DatenBei(const QPoint& pixel) const;

  // Narrows the axes to the rectangle between two mouse positions; false (and nothing changed) for
  // a click or a rectangle too thin to mean a zoom.
  bool ZoomeAuf(const QPoint& ecke1, const QPoint& ecke2);

  QCustomPlot* Plot() const { return plot_; }

private:
  void SetzeKopfUndFuss(const std::string& kopf, const std::string& fuss);
  void LegendePlatzieren();

  QCustomPlot* plot_;
  QCPTextElement* kopf_ = nullptr;
  QCPTextElement* fuss_ = nullptr;
};

} // namespace quor::ui
