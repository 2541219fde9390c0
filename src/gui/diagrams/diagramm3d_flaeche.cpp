#include "gui/diagrams/diagramm3d_flaeche.h"

#include "diagrams/koordinaten.h"

#include <Q3DCamera>
#include <Q3DScene>
#include <Q3DSurface>
#include <Q3DTheme>
#include <QCustom3DLabel>
#include <QGuiApplication>
#include <QLinearGradient>
#include <QSurface3DSeries>
#include <QSurfaceDataProxy>
#include <QVBoxLayout>
#include <QValue3DAxis>

#include <algorithm>
#include <array>
#include <cmath>

namespace quor::ui {

namespace {

QColor Farbe(const RGBFarbe& f, int alpha = 255) {
  return QColor(f.R, f.G, f.B, alpha);
}

// Colour of the zones from the lowest (0) to the highest (1) part of the height range.
QColor Zone(double t, int alpha) {
  static const std::array<QColor, 5> stufen{QColor(30, 40, 200), QColor(0, 170, 210), QColor(40, 180, 60),
                                            QColor(240, 220, 0), QColor(220, 30, 20)};
  const double s = std::clamp(t, 0.0, 1.0) * (stufen.size() - 1);
  const std::size_t k = std::min(static_cast<std::size_t>(s), stufen.size() - 2);
  const double w = s - k;
  const QColor& a = stufen[k];
  const QColor& b = stufen[k + 1];
  const auto mische = [w](int x, int y) { return static_cast<int>(std::lround(x + w * (y - x))); };
  return QColor(mische(a.red(), b.red()), mische(a.green(), b.green()), mische(a.blue(), b.blue()), alpha);
}

// The colour over the height range: zones or the surface colour, with dark bands at every tenth
// when contours are asked for.
QLinearGradient Verlauf(const Flaeche3D& f, int alpha) {
  const auto farbe = [&](double t) { return f.Anzeige.Zonen ? Zone(t, alpha) : Farbe(f.Farbe, alpha); };
  QLinearGradient v(0, 0, 1, 0);
  for (int k = 0; k <= 10; ++k)
    v.setColorAt(k / 10.0, farbe(k / 10.0));
  if (f.Anzeige.Hoehenlinien) {
    constexpr double halb = 0.003; // half width of a contour band
    const QColor linie(20, 20, 20, alpha);
    for (int k = 1; k < 10; ++k) {
      const double t = k / 10.0;
      v.setColorAt(t - 2 * halb, farbe(t - 2 * halb));
      v.setColorAt(t - halb, linie);
      v.setColorAt(t + halb, linie);
      v.setColorAt(t + 2 * halb, farbe(t + 2 * halb));
    }
  }
  return v;
}

void SetzeAchse(QValue3DAxis* achse, const Achse3D& a) {
  const AchsenBereich b = Anzeigbar({a.Min, a.Max, false});
  achse->setRange(static_cast<float>(b.Min), static_cast<float>(b.Max));
  achse->setTitle(QString::fromStdString(a.Titel));
  achse->setTitleVisible(!a.Titel.empty());
}

} // namespace

Diagramm3DFlaeche::Diagramm3DFlaeche(QWidget* eltern)
    : QWidget(eltern), graph_(new Q3DSurface), reihe_(new QSurface3DSeries(this)) {
  auto* lage = new QVBoxLayout(this);
  lage->setContentsMargins(0, 0, 0, 0);
  // Without an OpenGL context the graph has no renderer, and on the offscreen platform it has one
  // that fails at the first frame; there the widget stays empty and the series keeps the data.
  const QString plattform = QGuiApplication::platformName();
  if (!graph_->hasContext() || plattform == "offscreen" || plattform == "minimal") {
    delete graph_;
    graph_ = nullptr;
    return;
  }
  QWidget* behaelter = QWidget::createWindowContainer(graph_, this); // takes the window over
  behaelter->setMinimumSize(200, 150);
  behaelter->setFocusPolicy(Qt::StrongFocus);
  lage->addWidget(behaelter);
  graph_->setAxisX(new QValue3DAxis);
  graph_->setAxisY(new QValue3DAxis);
  graph_->setAxisZ(new QValue3DAxis);
  graph_->addSeries(reihe_); // the graph owns the series from now on, the series its proxy
}

QSurfaceDataProxy* Diagramm3DFlaeche::Daten() const {
  return reihe_->dataProxy();
}

bool Diagramm3DFlaeche::Zeige(const Flaeche3D& f) {
  if (graph_) graph_->removeCustomItems();
  const std::vector<double> hoehen = AnzeigeHoehen(f);
  if (hoehen.empty()) {
    Daten()->resetArray(new QSurfaceDataArray);
    return false;
  }

  auto* feld = new QSurfaceDataArray;
  feld->reserve(static_cast<qsizetype>(f.Y.size()));
  for (std::size_t j = 0; j < f.Y.size(); ++j) {
    auto* zeile = new QSurfaceDataRow(static_cast<qsizetype>(f.X.size()));
    for (std::size_t i = 0; i < f.X.size(); ++i)
      (*zeile)[static_cast<qsizetype>(i)].setPosition(
          QVector3D(static_cast<float>(f.X[i]), static_cast<float>(hoehen[ZellIndex(f, j, i)]),
                    static_cast<float>(f.Y[j])));
    feld->append(zeile);
  }
  Daten()->resetArray(feld);

  const Anzeige3D& a = f.Anzeige;
  QSurface3DSeries::DrawFlags modus;
  if (a.Massiv || !a.Netz) modus |= QSurface3DSeries::DrawSurface;
  if (a.Netz) modus |= QSurface3DSeries::DrawWireframe;
  reihe_->setDrawMode(modus);
  reihe_->setFlatShadingEnabled(!a.Schattiert);
  const int alpha = a.Transparent ? 128 : 255;
  reihe_->setBaseColor(Farbe(f.Farbe, alpha));
  reihe_->setBaseGradient(Verlauf(f, alpha));
  reihe_->setColorStyle(a.Zonen || a.Hoehenlinien ? Q3DTheme::ColorStyleRangeGradient
                                                  : Q3DTheme::ColorStyleUniform);
  reihe_->setName(QString::fromStdString(f.Titel));
  if (!graph_) return true;

  SetzeAchse(graph_->axisX(), f.AchseX);
  SetzeAchse(graph_->axisZ(), f.AchseY);
  SetzeAchse(graph_->axisY(), f.AchseZ);
  graph_->activeTheme()->setGridEnabled(a.Gitterebenen);

  for (const Marke3D& m : f.Punkte) {
    auto* marke = new QCustom3DLabel;
    marke->setText(QString::fromStdString(m.Text));
    marke->setPosition(
        QVector3D(static_cast<float>(m.Ort.X), static_cast<float>(m.Ort.Z), static_cast<float>(m.Ort.Y)));
    marke->setTextColor(Farbe(m.Farbe));
    marke->setFacingCamera(true);
    graph_->addCustomItem(marke); // the graph owns it
  }

  graph_->scene()->activeCamera()->setCameraPosition(static_cast<float>(f.Ansicht.Horizontal),
                                                     static_cast<float>(f.Ansicht.Vertikal),
                                                     static_cast<float>(f.Ansicht.Zoom));
  return true;
}

} // namespace quor::ui
