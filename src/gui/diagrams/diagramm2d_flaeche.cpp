#include "gui/diagrams/diagramm2d_flaeche.h"

#include "core/zahlformat.h"

#include <QVBoxLayout>
#include <qcustomplot.h>

#include <algorithm>
#include <array>
#include <utility>

namespace quor::ui {

namespace {

QColor Farbe(const RGBFarbe& f) {
  return QColor(f.R, f.G, f.B);
}

QString Text(const std::string& s) {
  return QString::fromStdString(s);
}

Qt::PenStyle Strich(LinienArt a) {
  switch (a) {
  case LinienArt::Strich:
    return Qt::DashLine;
  case LinienArt::Punkt:
    return Qt::DotLine;
  case LinienArt::StrichPunkt:
    return Qt::DashDotLine;
  case LinienArt::Keine:
    return Qt::NoPen;
  case LinienArt::Durchgezogen:
    break;
  }
  return Qt::SolidLine;
}

QCPScatterStyle::ScatterShape Form(PunktSymbol s) {
  switch (s) {
  case PunktSymbol::Kreis:
    return QCPScatterStyle::ssCircle;
  case PunktSymbol::Quadrat:
    return QCPScatterStyle::ssSquare;
  case PunktSymbol::Dreieck:
    return QCPScatterStyle::ssTriangle;
  case PunktSymbol::Kreuz:
    return QCPScatterStyle::ssCross;
  case PunktSymbol::Plus:
    return QCPScatterStyle::ssPlus;
  case PunktSymbol::Raute:
    return QCPScatterStyle::ssDiamond;
  case PunktSymbol::Stern:
    return QCPScatterStyle::ssStar;
  case PunktSymbol::Keines:
    break;
  }
  return QCPScatterStyle::ssNone;
}

// Tick labels through the axis' Basic-style pattern, or the default text of a single value.
template <class Basis> class MusterTicker : public Basis {
public:
  explicit MusterTicker(std::string muster) : muster_(std::move(muster)) {}

protected:
  QString getTickLabel(double tick, const QLocale&, QChar, int) override {
    return Text(muster_.empty() ? SingleText(static_cast<float>(tick)) : FormatVB(tick, muster_));
  }

private:
  std::string muster_;
};

void SetzeAchse(QCPAxis* achse, const Achse2D& a, const QColor& vordergrund) {
  const AchsenBereich b = Anzeigbar(BereichVon(a));
  achse->setScaleType(b.Logarithmisch ? QCPAxis::stLogarithmic : QCPAxis::stLinear);
  if (b.Logarithmisch)
    achse->setTicker(QSharedPointer<QCPAxisTicker>(new MusterTicker<QCPAxisTickerLog>(a.Format)));
  else
    achse->setTicker(QSharedPointer<QCPAxisTicker>(new MusterTicker<QCPAxisTicker>(a.Format)));
  achse->setRange(b.Min, b.Max);
  achse->setLabel(Text(a.Titel));
  achse->grid()->setVisible(a.Gitter);
  const QPen stift(vordergrund);
  achse->setBasePen(stift);
  achse->setTickPen(stift);
  achse->setSubTickPen(stift);
  achse->setTickLabelColor(vordergrund);
  achse->setLabelColor(vordergrund);
}

// The edges of the shown range a point lies beyond, as bits: left 1, right 2, below 4, above 8.
int Jenseits(double x, double y, const AchsenBereich& bx, const AchsenBereich& by) {
  return (x < bx.Min) | (x > bx.Max) << 1 | (y < by.Min) << 2 | (y > by.Max) << 3;
}

// A series' points for the chart. Two neighbours beyond the same edge are joined by no visible
// line, yet the chart would run that line along the edge of the plot area, where its rim shows;
// a gap (NaN) breaks it.
void PunkteMitLuecken(const Reihe2D& r, const AchsenBereich& bx, const AchsenBereich& by, QVector<double>& x,
                      QVector<double>& y) {
  const std::size_t n = std::min(r.X.size(), r.Y.size());
  x.reserve(static_cast<int>(n));
  y.reserve(static_cast<int>(n));
  int vorher = 0;
  for (std::size_t k = 0; k < n; ++k) {
    const int jetzt = Jenseits(r.X[k], r.Y[k], bx, by);
    if (k > 0 && (jetzt & vorher)) {
      x.push_back(qQNaN());
      y.push_back(qQNaN());
    }
    x.push_back(r.X[k]);
    y.push_back(r.Y[k]);
    vorher = jetzt;
  }
}

// A piece of a curve runs through a rectangle.
bool Schneidet(const QRectF& r, const QLineF& strecke) {
  if (r.contains(strecke.p1()) || r.contains(strecke.p2())) return true;
  if (std::max(strecke.x1(), strecke.x2()) < r.left() || std::min(strecke.x1(), strecke.x2()) > r.right() ||
      std::max(strecke.y1(), strecke.y2()) < r.top() || std::min(strecke.y1(), strecke.y2()) > r.bottom())
    return false;
  const QLineF kanten[] = {{r.topLeft(), r.topRight()},
                           {r.topRight(), r.bottomRight()},
                           {r.bottomRight(), r.bottomLeft()},
                           {r.bottomLeft(), r.topLeft()}};
  for (const QLineF& kante : kanten)
    if (strecke.intersects(kante, nullptr) == QLineF::BoundedIntersection) return true;
  return false;
}

QCPItemText* TextBei(QCustomPlot* plot, const std::string& text, double x, double y, const QColor& farbe,
                     Qt::Alignment ausrichtung) {
  auto* t = new QCPItemText(plot);
  t->position->setType(QCPItemPosition::ptPlotCoords);
  t->position->setCoords(x, y);
  t->setPositionAlignment(ausrichtung);
  t->setText(Text(text));
  t->setColor(farbe);
  return t;
}

} // namespace

Diagramm2DFlaeche::Diagramm2DFlaeche(QWidget* eltern) : QWidget(eltern), plot_(new QCustomPlot(this)) {
  auto* lage = new QVBoxLayout(this);
  lage->setContentsMargins(0, 0, 0, 0);
  lage->addWidget(plot_);
  // Solid curves as single segments: a third of the time of joined polylines, the same look at the
  // density of a curve's points.
  plot_->setPlottingHint(QCP::phFastPolylines, true);
}

void Diagramm2DFlaeche::Zeige(const Diagramm2D& d) {
  plot_->clearItems();
  plot_->clearPlottables();

  // Axes and texts in black on a light page, in white on a dark one.
  const QColor seite = Farbe(d.Seitenfarbe);
  const QColor vordergrund = seite.lightnessF() < 0.5 ? Qt::white : Qt::black;
  plot_->setBackground(seite);
  SetzeAchse(plot_->xAxis, d.AchseX, vordergrund);
  SetzeAchse(plot_->yAxis, d.AchseY, vordergrund);

  const AchsenBereich bx = Anzeigbar(BereichVon(d.AchseX)), by = Anzeigbar(BereichVon(d.AchseY));
  for (const Reihe2D& r : d.Reihen) {
    auto* kurve = new QCPCurve(plot_->xAxis, plot_->yAxis);
    kurve->setName(Text(r.Name));
    QVector<double> x, y;
    PunkteMitLuecken(r, bx, by, x, y);
    kurve->setData(x, y);
    QPen stift(Farbe(r.Farbe), r.Breite, Strich(r.Linie));
    kurve->setPen(stift);
    kurve->setLineStyle(r.Linie == LinienArt::Keine ? QCPCurve::lsNone : QCPCurve::lsLine);
    stift.setStyle(Qt::SolidLine);
    kurve->setScatterStyle(QCPScatterStyle(Form(r.Symbol), stift, Qt::NoBrush, r.SymbolGroesse));
    kurve->setVisible(r.Sichtbar);
    if (!r.Sichtbar) kurve->removeFromLegend();
  }

  for (const Marke2D& m : d.Marken) {
    auto* punkt = new QCPCurve(plot_->xAxis, plot_->yAxis);
    punkt->setData({m.X}, {m.Y});
    punkt->setLineStyle(QCPCurve::lsNone);
    punkt->setScatterStyle(QCPScatterStyle(Form(m.Symbol), Farbe(m.Farbe), m.SymbolGroesse));
    punkt->removeFromLegend();
    const int abstand = static_cast<int>(m.SymbolGroesse / 2) + 2;
    TextBei(plot_, m.Text, m.X, m.Y, Farbe(m.Farbe), Qt::AlignLeft | Qt::AlignBottom)
        ->setPadding(QMargins(abstand, 0, 0, abstand));
  }

  for (const Beschriftung2D& b : d.Texte)
    TextBei(plot_, b.Text, b.X, b.Y, Farbe(b.Farbe), Qt::AlignLeft | Qt::AlignVCenter);

  plot_->legend->setVisible(d.LegendeSichtbar);
  plot_->legend->setBrush(seite);
  plot_->legend->setTextColor(vordergrund);
  plot_->legend->setBorderPen(QPen(vordergrund));
  SetzeKopfUndFuss(d.Kopf, d.Fuss);
  LegendePlatzieren();
  plot_->replot();
}

// The legend goes into the corner of the plot area where the fewest pieces of curves run under it,
// the upper right one when several are equally free.
void Diagramm2DFlaeche::LegendePlatzieren() {
  QCPLegend* legende = plot_->legend;
  if (!legende->visible() || legende->itemCount() == 0) return;
  for (const auto phase :
       {QCPLayoutElement::upPreparation, QCPLayoutElement::upMargins, QCPLayoutElement::upLayout})
    plot_->plotLayout()->update(phase);
  QCPLayoutInset* einsatz = plot_->axisRect()->insetLayout();
  const QRectF innen = einsatz->rect();
  const QSizeF groesse = legende->outerRect().size();
  const Qt::Alignment ecken[] = {Qt::AlignTop | Qt::AlignRight, Qt::AlignTop | Qt::AlignLeft,
                                 Qt::AlignBottom | Qt::AlignRight, Qt::AlignBottom | Qt::AlignLeft};
  std::array<int, 4> verdeckt{};
  std::array<QRectF, 4> platz;
  for (std::size_t i = 0; i < platz.size(); ++i) {
    const bool rechts = ecken[i] & Qt::AlignRight, unten = ecken[i] & Qt::AlignBottom;
    platz[i] = QRectF(QPointF(rechts ? innen.right() - groesse.width() : innen.left(),
                              unten ? innen.bottom() - groesse.height() : innen.top()),
                      groesse);
  }
  for (int k = 0; k < plot_->plottableCount(); ++k) {
    const auto* kurve = qobject_cast<QCPCurve*>(plot_->plottable(k));
    if (!kurve || !kurve->visible()) continue;
    bool erster = true;
    QPointF vorher;
    for (auto it = kurve->data()->constBegin(); it != kurve->data()->constEnd(); ++it) {
      if (qIsNaN(it->key) || qIsNaN(it->value)) {
        erster = true;
        continue;
      }
      const QPointF punkt = kurve->coordsToPixels(it->key, it->value);
      for (std::size_t i = 0; i < platz.size(); ++i)
        verdeckt[i] += Schneidet(platz[i], erster ? QLineF(punkt, punkt) : QLineF(vorher, punkt));
      vorher = punkt;
      erster = false;
    }
  }
  const auto frei = std::min_element(verdeckt.begin(), verdeckt.end());
  einsatz->setInsetAlignment(0, ecken[frei - verdeckt.begin()]);
}

void Diagramm2DFlaeche::SetzeKopfUndFuss(const std::string& kopf, const std::string& fuss) {
  QCPLayoutGrid* lage = plot_->plotLayout();
  for (QCPTextElement** alt : {&kopf_, &fuss_})
    if (*alt) {
      lage->remove(*alt);
      *alt = nullptr;
    }
  lage->simplify();
  const QColor farbe = plot_->xAxis->labelColor();
  if (!kopf.empty()) {
    lage->insertRow(0);
    kopf_ =
        new QCPTextElement(plot_, Text(kopf), QFont(font().family(), font().pointSize() + 2, QFont::Bold));
    kopf_->setTextColor(farbe);
    lage->addElement(0, 0, kopf_);
  }
  if (!fuss.empty()) {
    const int zeile = lage->rowCount();
    lage->insertRow(zeile);
    fuss_ = new QCPTextElement(plot_, Text(fuss));
    fuss_->setTextColor(farbe);
    lage->addElement(zeile, 0, fuss_);
  }
}

Zeichenflaeche Diagramm2DFlaeche::Flaeche() const {
  const QRect r = plot_->axisRect()->rect();
  const QCPRange x = plot_->xAxis->range();
  const QCPRange y = plot_->yAxis->range();
  // QCustomPlot puts the lower end of the value axis on the last pixel row of the rectangle,
  // bottom() = top() + height() - 1, so the area of the mapping starts one row above top().
  return {{double(r.left()), double(r.bottom() - r.height()), double(r.width()), double(r.height())},
          {x.lower, x.upper, plot_->xAxis->scaleType() == QCPAxis::stLogarithmic},
          {y.lower, y.upper, plot_->yAxis->scaleType() == QCPAxis::stLogarithmic}};
}

Punkt2D Diagramm2DFlaeche::DatenBei(const QPoint& pixel) const {
  return PixelZuDaten(Flaeche(), {double(pixel.x()), double(pixel.y())});
}

bool Diagramm2DFlaeche::ZoomeAuf(const QPoint& ecke1, const QPoint& ecke2) {
  const auto z =
      ZoomRechteck(Flaeche(), {double(ecke1.x()), double(ecke1.y())}, {double(ecke2.x()), double(ecke2.y())});
  if (!z) return false;
  plot_->xAxis->setRange(z->X.Min, z->X.Max);
  plot_->yAxis->setRange(z->Y.Min, z->Y.Max);
  plot_->replot();
  return true;
}

} // namespace quor::ui
