#include "gui/diagrams/diagramm3d_flaeche.h"

#include "diagrams/koordinaten.h"
#include "gui/diagrams/diagramm3d_band.h"

#include <Q3DCamera>
#include <Q3DScene>
#include <Q3DSurface>
#include <Q3DTheme>
#include <QCustom3DItem>
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

QColor Farbe(const RGBFarbe& f) {
  return QColor(f.R, f.G, f.B);
}

// A transparent surface shows in colours faded this far toward white: the chart's own alpha
// blending garbles the surface on software OpenGL, so the colours stay opaque.
constexpr double Blaesse = 0.55;

QColor Blass(const QColor& c, bool transparent) {
  if (!transparent) return c;
  const auto weiss = [](int x) { return static_cast<int>(std::lround(x + Blaesse * (255 - x))); };
  return QColor(weiss(c.red()), weiss(c.green()), weiss(c.blue()));
}

// Colour of the zones from the lowest (0) to the highest (1) part of the height range.
QColor Zone(double t) {
  static const std::array<QColor, 5> stufen{QColor(30, 40, 200), QColor(0, 170, 210), QColor(40, 180, 60),
                                            QColor(240, 220, 0), QColor(220, 30, 20)};
  const double s = std::clamp(t, 0.0, 1.0) * (stufen.size() - 1);
  const std::size_t k = std::min(static_cast<std::size_t>(s), stufen.size() - 2);
  const double w = s - k;
  const QColor& a = stufen[k];
  const QColor& b = stufen[k + 1];
  const auto mische = [w](int x, int y) { return static_cast<int>(std::lround(x + w * (y - x))); };
  return QColor(mische(a.red(), b.red()), mische(a.green(), b.green()), mische(a.blue(), b.blue()));
}

// The colour over the height range: zones or the surface colour, with dark bands at every tenth
// when contours are asked for.
QLinearGradient Verlauf(const Flaeche3D& f) {
  const bool blass = f.Anzeige.Transparent;
  const auto farbe = [&](double t) { return Blass(f.Anzeige.Zonen ? Zone(t) : Farbe(f.Farbe), blass); };
  QLinearGradient v(0, 0, 1, 0);
  for (int k = 0; k <= 10; ++k)
    v.setColorAt(k / 10.0, farbe(k / 10.0));
  if (f.Anzeige.Hoehenlinien) {
    constexpr double halb = 0.003; // half width of a contour band
    const QColor linie = Blass(QColor(20, 20, 20), blass);
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

// A point of the picture in the chart's coordinates: its height runs along the vertical axis.
QVector3D Ort(const Punkt3D& p, double dz = 0) {
  return QVector3D(static_cast<float>(p.X), static_cast<float>(p.Z + dz), static_cast<float>(p.Y));
}

// Decimals of the tick labels: enough to tell the ticks of the range apart, no more.
QString TickFormat(double spanne, int segmente) {
  const double schritt = spanne / std::max(segmente, 1);
  const int stellen = schritt > 0 ? 1 - static_cast<int>(std::floor(std::log10(schritt))) : 2;
  return QString("%.%1f").arg(std::clamp(stellen, 0, 6));
}

// The camera's zoom at which the whole box fits a wide chart, also with its near corner low in the
// view: the picture's 100 %.
constexpr double ZoomGanz = 0.85;

// A labelled point: a small ball at the place, its text a little above it so that the surface
// doesn't cover it. The ball is the sphere the chart library carries for its scatter graphs.
constexpr double LabelAbstand = 0.08; // part of the Z axis range
constexpr float LabelGroesse = 1.2f;
constexpr float KugelGroesse = 0.06f;

QCustom3DItem* Kugel(const Marke3D& m) {
  auto* kugel = new QCustom3DItem;
  kugel->setMeshFile(":/defaultMeshes/sphereSmooth");
  QImage farbe(2, 2, QImage::Format_RGB32);
  farbe.fill(Farbe(m.Farbe));
  kugel->setTextureImage(farbe);
  kugel->setPosition(Ort(m.Ort));
  kugel->setScaling(QVector3D(KugelGroesse, KugelGroesse, KugelGroesse));
  kugel->setShadowCasting(false);
  return kugel;
}

void SetzeAchse(QValue3DAxis* achse, const Achse3D& a) {
  const AchsenBereich b = Anzeigbar({a.Min, a.Max, false});
  achse->setRange(static_cast<float>(b.Min), static_cast<float>(b.Max));
  achse->setLabelFormat(TickFormat(b.Max - b.Min, achse->segmentCount()));
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
  // Both horizontal axes equally long, whatever their units: left to itself the chart would scale
  // them by their ranges, and v in m^3/kmol beside T in K would shrink to a wall.
  graph_->setHorizontalAspectRatio(1.0f);
  // Bold labels: the chart draws them small, and a thin minus sign would get lost.
  QFont schrift = graph_->activeTheme()->font();
  schrift.setBold(true);
  graph_->activeTheme()->setFont(schrift);
  graph_->addSeries(reihe_); // the graph owns the series from now on, the series its proxy
  maus_ = new Maus3D;
  graph_->setActiveInputHandler(maus_); // the graph owns it
}

Ansicht3D Diagramm3DFlaeche::Ansicht() const {
  if (!graph_) return ansicht_;
  const Q3DCamera* kamera = graph_->scene()->activeCamera();
  return {kamera->xRotation(), kamera->yRotation(), kamera->zoomLevel() / ZoomGanz};
}

void Diagramm3DFlaeche::ZielZuruecksetzen() {
  if (graph_) graph_->scene()->activeCamera()->setTarget(QVector3D());
}

void Diagramm3DFlaeche::SetzeMausModus(MausModus m) {
  modus_ = m;
  if (maus_) maus_->SetzeModus(m);
}

QImage Diagramm3DFlaeche::Bild(const QSize& groesse) const {
  // Four samples per pixel smooth the edges of the picture.
  return graph_ ? graph_->renderToImage(4, groesse) : QImage();
}

void Diagramm3DFlaeche::ZeigeLinien(const Flaeche3D& f) {
  for (QSurface3DSeries* l : linien_) {
    if (graph_) graph_->removeSeries(l);
    delete l;
  }
  linien_.clear();
  for (const Linie3D& l : f.Linien) {
    if (l.Punkte.size() < 2) continue;
    auto* reihe = new QSurface3DSeries(this);
    reihe->dataProxy()->resetArray(Band(l, f.AchseX, f.AchseY, f.AchseZ));
    reihe->setName(QString::fromStdString(l.Name));
    reihe->setDrawMode(QSurface3DSeries::DrawSurface);
    reihe->setFlatShadingEnabled(true);
    reihe->setColorStyle(Q3DTheme::ColorStyleUniform);
    reihe->setBaseColor(Farbe(l.Farbe));
    if (graph_) graph_->addSeries(reihe); // the graph takes it over
    linien_.push_back(reihe);
  }
}

QSurfaceDataProxy* Diagramm3DFlaeche::Daten() const {
  return reihe_->dataProxy();
}

bool Diagramm3DFlaeche::Zeige(const Flaeche3D& f) {
  if (graph_) graph_->removeCustomItems();
  const std::vector<double> hoehen = AnzeigeHoehen(f);
  if (hoehen.empty()) {
    Daten()->resetArray(new QSurfaceDataArray);
    ZeigeLinien(Flaeche3D());
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
  reihe_->setBaseColor(Blass(Farbe(f.Farbe), a.Transparent));
  reihe_->setBaseGradient(Verlauf(f));
  reihe_->setColorStyle(a.Zonen || a.Hoehenlinien ? Q3DTheme::ColorStyleRangeGradient
                                                  : Q3DTheme::ColorStyleUniform);
  reihe_->setName(QString::fromStdString(f.Titel));
  ZeigeLinien(f);
  if (!graph_) {
    ansicht_ = f.Ansicht;
    return true;
  }

  SetzeAchse(graph_->axisX(), f.AchseX);
  SetzeAchse(graph_->axisZ(), f.AchseY);
  SetzeAchse(graph_->axisY(), f.AchseZ);
  graph_->activeTheme()->setGridEnabled(a.Gitterebenen);

  const double ueber = LabelAbstand * (f.AchseZ.Max - f.AchseZ.Min);
  for (const Marke3D& m : f.Punkte) {
    graph_->addCustomItem(Kugel(m)); // the graph owns its items
    auto* marke = new QCustom3DLabel;
    marke->setText(QString::fromStdString(m.Text));
    marke->setPosition(Ort(m.Ort, ueber));
    marke->setTextColor(Farbe(m.Farbe));
    marke->setFacingCamera(true);
    marke->setScaling(QVector3D(LabelGroesse, LabelGroesse, LabelGroesse));
    graph_->addCustomItem(marke);
  }

  graph_->scene()->activeCamera()->setCameraPosition(static_cast<float>(f.Ansicht.Horizontal),
                                                     static_cast<float>(f.Ansicht.Vertikal),
                                                     static_cast<float>(f.Ansicht.Zoom * ZoomGanz));
  return true;
}

} // namespace quor::ui
