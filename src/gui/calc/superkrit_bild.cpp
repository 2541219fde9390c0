#include "gui/calc/superkrit_bild.h"

#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace quor::ui {

namespace {

// The picture's plane in reduced temperature and pressure.
constexpr double TMin = 0.55, TMax = 1.5, PMax = 1.8;

// A vapour-pressure curve of the usual shape, ln pr = 5.4 (1 - 1/Tr), ending at the critical point.
double DampfdruckReduziert(double Tr) {
  return std::exp(5.4 * (1 - 1 / Tr));
}

} // namespace

SuperKritBild::SuperKritBild(QWidget* eltern) : QWidget(eltern) {
  setObjectName("pctSuperCrit");
  setAutoFillBackground(true);
  QPalette p = palette();
  p.setColor(QPalette::Window, Qt::white);
  setPalette(p);
}

void SuperKritBild::paintEvent(QPaintEvent*) {
  QPainter maler(this);
  maler.setRenderHint(QPainter::Antialiasing);
  const QRectF f = QRectF(rect()).adjusted(46, 18, -18, -40);
  auto x = [&](double T) { return f.left() + (T - TMin) / (TMax - TMin) * f.width(); };
  auto y = [&](double p) { return f.bottom() - p / PMax * f.height(); };
  const QPointF krit(x(1), y(1));

  // The regions above and right of the critical point, shaded.
  maler.fillRect(QRectF(QPointF(krit.x(), f.top()), f.bottomRight()).intersected(f), QColor(255, 236, 200));
  maler.fillRect(QRectF(f.topLeft(), QPointF(krit.x(), krit.y())), QColor(214, 232, 255));
  maler.fillRect(QRectF(QPointF(krit.x(), f.top()), QPointF(f.right(), krit.y())), QColor(255, 214, 214));

  maler.setPen(QPen(Qt::black, 1.2));
  maler.drawLine(f.bottomLeft(), f.topLeft());
  maler.drawLine(f.bottomLeft(), f.bottomRight());
  maler.drawText(QRectF(f.right() - 60, f.bottom() + 8, 60, 20), Qt::AlignRight, "T");
  maler.drawText(QRectF(6, f.top() - 6, 36, 20), Qt::AlignLeft, "p");

  // T(cr) and p(cr) as dashed lines through the critical point.
  maler.setPen(QPen(Qt::darkGray, 1, Qt::DashLine));
  maler.drawLine(QPointF(krit.x(), f.top()), QPointF(krit.x(), f.bottom()));
  maler.drawLine(QPointF(f.left(), krit.y()), QPointF(f.right(), krit.y()));
  maler.setPen(Qt::black);
  maler.drawText(QRectF(krit.x() - 40, f.bottom() + 8, 80, 20), Qt::AlignHCenter, "T(cr)");
  maler.drawText(QRectF(2, krit.y() - 10, 42, 20), Qt::AlignRight | Qt::AlignVCenter, "p(cr)");

  // The vapour-pressure curve up to the critical point.
  QPainterPath kurve;
  const int punkte = 200;
  for (int i = 0; i <= punkte; ++i) {
    const double T = TMin + (1 - TMin) * i / punkte;
    const QPointF q(x(T), y(DampfdruckReduziert(T)));
    if (i == 0)
      kurve.moveTo(q);
    else
      kurve.lineTo(q);
  }
  maler.setPen(QPen(QColor(0, 70, 160), 2.4));
  maler.drawPath(kurve);
  maler.setBrush(QColor(200, 0, 0));
  maler.setPen(Qt::black);
  maler.drawEllipse(krit, 5, 5);
  maler.drawText(QRectF(krit.x() + 8, krit.y() + 2, 160, 20), Qt::AlignLeft, "kritischer Punkt");

  // The names of the regions, as the result page reports them.
  QFont fett = maler.font();
  fett.setBold(true);
  maler.setFont(fett);
  auto text = [&](double T, double p, const QString& t, const QColor& farbe) {
    maler.setPen(farbe);
    maler.drawText(QRectF(x(T) - 150, y(p) - 24, 300, 48), Qt::AlignCenter | Qt::TextWordWrap, t);
  };
  text(1.25, 1.45, "überkritische Phase\n(T > T(cr), p > p(cr))", QColor(150, 0, 0));
  text(0.78, 1.45, "überkritische L-Phase\n(T < T(cr), p > p(cr))", QColor(0, 60, 140));
  text(1.25, 0.45, "überkritische V-Phase\n(T > T(cr), p < p(cr))", QColor(140, 80, 0));
  text(0.68, 0.62, "L", QColor(0, 60, 140));
  text(0.86, 0.14, "V", QColor(140, 80, 0));
}

SuperKritFenster::SuperKritFenster(QWidget* eltern) : QDialog(eltern), bild_(new SuperKritBild(this)) {
  setObjectName("frmPictureSuperCrit");
  setWindowTitle("überkritische Zustandsgebiete");
  auto* schliessen = new QPushButton("Schließen", this);
  schliessen->setObjectName("cmdClose");
  connect(schliessen, &QPushButton::clicked, this, &QDialog::close);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(bild_, 1);
  layout->addWidget(schliessen, 0, Qt::AlignRight);
}

} // namespace quor::ui
