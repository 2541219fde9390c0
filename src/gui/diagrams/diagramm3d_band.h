// An iso-line on the 3D chart: the chart draws surfaces only, so a line becomes a narrow ribbon that
// lies a little above the surface along the line, one grid row per point of the line with the
// ribbon's left and right edge as its two columns.
#pragma once

#include "diagrams/diagramm_bild.h"

#include <QSurfaceDataProxy>

namespace quor::ui {

// Half width of the ribbon as a part of the horizontal axes' ranges, its lift above the line as a
// part of the vertical one.
constexpr double BandBreite = 0.006;
constexpr double BandHoehe = 0.015;

// The ribbon of `l` for a chart with these axes (X along the chart's x axis, Y along its depth, Z
// up); its points are kept just inside the horizontal axes, where the chart takes them.
QSurfaceDataArray* Band(const Linie3D& l, const Achse3D& x, const Achse3D& y, const Achse3D& z);

} // namespace quor::ui
