#include "gui/calc/isotherm_bilder.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace quor::ui {

namespace {

using Bild = frmCEOSDiagnose::Bild;

// The picture's window in reduced volume (on a logarithmic axis, so that the steep liquid branch
// gets room) and reduced pressure.
constexpr double VMin = 0.38, VMax = 8.0, PMin = 0.0, PMax = 1.6;

// Reduced van der Waals isotherm: the shape every cubic equation shares.
double PReduziert(double Tr, double vr) {
  return 8 * Tr / (3 * vr - 1) - 3 / (vr * vr);
}

} // namespace

IsothermBild::IsothermBild(QWidget* eltern) : QWidget(eltern) {
  setObjectName("pctEOS");
  setAutoFillBackground(true);
  QPalette p = palette();
  p.setColor(QPalette::Window, Qt::white);
  setPalette(p);
}

void IsothermBild::SetzeFall(Bild fall) {
  fall_ = fall;
  update();
}

double IsothermBild::Tr() const {
  return fall_ == Bild::EineWurzelUeberkritisch ? 1.3 : 0.9;
}

// Three roots: an isobar through the loop; one root below TKrit: above the loop's maximum.
double IsothermBild::Pr() const {
  return fall_ == Bild::DreiWurzelnUnterkritisch ? 0.6 : 1.0;
}

std::vector<double> IsothermBild::Wurzeln() const {
  std::vector<double> wurzeln;
  if (fall_ == Bild::Keins) return wurzeln;
  const int schritte = 4000;
  double vAlt = VMin, fAlt = PReduziert(Tr(), VMin) - Pr();
  for (int i = 1; i <= schritte; ++i) {
    const double v = VMin * std::pow(VMax / VMin, static_cast<double>(i) / schritte);
    const double f = PReduziert(Tr(), v) - Pr();
    if ((fAlt < 0) != (f < 0)) wurzeln.push_back(vAlt + (v - vAlt) * fAlt / (fAlt - f));
    vAlt = v;
    fAlt = f;
  }
  return wurzeln;
}

void IsothermBild::paintEvent(QPaintEvent*) {
  QPainter maler(this);
  maler.setRenderHint(QPainter::Antialiasing);
  const QRectF flaeche = QRectF(rect()).adjusted(38, 14, -14, -30);
  auto x = [&](double v) {
    return flaeche.left() + std::log(v / VMin) / std::log(VMax / VMin) * flaeche.width();
  };
  auto y = [&](double p) { return flaeche.bottom() - (p - PMin) / (PMax - PMin) * flaeche.height(); };

  // Axes with their names.
  maler.setPen(QPen(Qt::black, 1.2));
  maler.drawLine(flaeche.bottomLeft(), flaeche.topLeft());
  maler.drawLine(flaeche.bottomLeft(), flaeche.bottomRight());
  maler.drawText(QRectF(flaeche.right() - 60, flaeche.bottom() + 6, 60, 20), Qt::AlignRight, "v (log.)");
  maler.drawText(QRectF(4, flaeche.top() - 4, 30, 20), Qt::AlignLeft, "p");
  if (fall_ == Bild::Keins) return;

  // The isotherm, clipped to the window of the picture.
  maler.save();
  maler.setClipRect(flaeche);
  QPainterPath kurve;
  const int punkte = 600;
  for (int i = 0; i <= punkte; ++i) {
    const double v = VMin * std::pow(VMax / VMin, static_cast<double>(i) / punkte);
    const QPointF q(x(v), y(std::min(PReduziert(Tr(), v), PMax * 2)));
    if (i == 0)
      kurve.moveTo(q);
    else
      kurve.lineTo(q);
  }
  maler.setPen(QPen(QColor(0, 70, 160), 2.2));
  maler.drawPath(kurve);
  // The isobar of the given pressure.
  maler.setPen(QPen(QColor(200, 0, 0), 1.4, Qt::DashLine));
  maler.drawLine(QPointF(flaeche.left(), y(Pr())), QPointF(flaeche.right(), y(Pr())));
  maler.restore();

  // The legend where the case's curve does not run: upper right below TKrit, lower right above it.
  const bool ueber = fall_ == Bild::EineWurzelUeberkritisch;
  const QString isotherme = ueber ? "Isotherme T > T(cr)" : "Isotherme T < T(cr)";
  const double links = flaeche.right() - 150, oben = ueber ? flaeche.bottom() - 42 : flaeche.top() + 4;
  maler.setPen(QPen(QColor(0, 70, 160), 2.2));
  maler.drawLine(QPointF(links, oben + 8), QPointF(links + 22, oben + 8));
  maler.setPen(QPen(QColor(200, 0, 0), 1.4, Qt::DashLine));
  maler.drawLine(QPointF(links, oben + 28), QPointF(links + 22, oben + 28));
  maler.setPen(Qt::black);
  maler.drawText(QRectF(links + 28, oben, 130, 16), Qt::AlignLeft | Qt::AlignVCenter, isotherme);
  maler.drawText(QRectF(links + 28, oben + 20, 130, 16), Qt::AlignLeft | Qt::AlignVCenter, "Isobare p");

  // The roots, numbered from the liquid side; a middle one of three is unstable.
  const std::vector<double> wurzeln = Wurzeln();
  for (std::size_t i = 0; i < wurzeln.size(); ++i) {
    const QPointF q(x(wurzeln[i]), y(Pr()));
    const bool instabil = wurzeln.size() == 3 && i == 1;
    maler.setPen(QPen(Qt::black, 1));
    maler.setBrush(instabil ? QColor(Qt::white) : QColor(200, 0, 0));
    maler.drawEllipse(q, 4.5, 4.5);
    maler.setPen(QPen(Qt::gray, 1, Qt::DotLine));
    maler.drawLine(q, QPointF(q.x(), flaeche.bottom()));
    maler.setPen(Qt::black);
    maler.drawText(QRectF(q.x() - 24, flaeche.bottom() + 4, 48, 20), Qt::AlignHCenter | Qt::AlignTop,
                   QString("v(%1)").arg(i + 1));
  }
}

} // namespace quor::ui
