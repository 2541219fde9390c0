#include "gui/process/kessel_fenster.h"

#include "dienste/oberflaeche.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace quor::ui {

namespace {

using prozess::frmKessel;
using prozess::KesselFuellung;

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

QColor Farbe(int qb) {
  const RGBFarbe f = prozess::QBFarbe(qb);
  return {f.R, f.G, f.B};
}

// Percent coordinates of the area into pixels.
struct Massstab {
  double b, h;
  double x(double prozent) const { return b * prozent / 100; }
  double y(double prozent) const { return h * prozent / 100; }
  QRectF Rechteck(double x1, double y1, double x2, double y2) const {
    return QRectF(QPointF(x(x1), y(y1)), QPointF(x(x2), y(y2)));
  }
};

// A font whose text fits the width `breite` (pixels), at most `groesse` pixels high.
QFont PassendeSchrift(QFont schrift, const QString& text, double breite, int groesse) {
  schrift.setPixelSize(std::max(groesse, 6));
  while (schrift.pixelSize() > 6 && QFontMetricsF(schrift).horizontalAdvance(text) > breite)
    schrift.setPixelSize(schrift.pixelSize() - 1);
  return schrift;
}

void TextIn(QPainter& p, const QRectF& r, const QString& text, int groesse, int ausrichtung) {
  p.setFont(PassendeSchrift(p.font(), text, r.width(), groesse));
  p.drawText(r, ausrichtung | Qt::AlignVCenter, text);
}

// The cylinder seen from the side: a body with elliptic ends.
QPainterPath Zylinder(const Massstab& m) {
  QPainterPath pfad;
  const QRectF r = m.Rechteck(frmKessel::Links, frmKessel::Oben, frmKessel::Rechts, frmKessel::Unten);
  pfad.addRoundedRect(r, m.x(5), r.height() / 2);
  return pfad;
}

// The inside: vapour above the level and liquid below, or one colour, or nothing.
void Fuellung(QPainter& p, const Massstab& m, const frmKessel& k, const QPainterPath& zylinder) {
  p.save();
  p.setClipPath(zylinder);
  p.setPen(Qt::NoPen);
  const double links = m.x(frmKessel::Links), rechts = m.x(frmKessel::Rechts);
  if (k.Fuellung == KesselFuellung::Einfarbig) {
    p.fillPath(zylinder, Farbe(k.EinfarbigFarbe));
  } else if (k.Fuellung == KesselFuellung::Zweiphasig) {
    const double spiegel = m.y(k.SpiegelY());
    p.fillRect(QRectF(QPointF(links, m.y(frmKessel::Oben)), QPointF(rechts, spiegel)), Farbe(k.DampfFarbe));
    p.fillRect(QRectF(QPointF(links, spiegel), QPointF(rechts, m.y(frmKessel::Unten))),
               Farbe(k.FluessigFarbe));
    if (k.Hoehe > 0 && k.Hoehe < frmKessel::Durchmesser) {
      p.setPen(QPen(Qt::black, 1.5));
      p.drawLine(QPointF(links, spiegel), QPointF(rechts, spiegel));
    }
  }
  p.restore();
}

// The feet on the floor, the stub to the gauge and the drain below.
void Gestell(QPainter& p, const Massstab& m) {
  p.setPen(QPen(Qt::black, 1.5));
  p.setBrush(QColor(128, 128, 128));
  for (const double mitte : {30.0, 70.0}) {
    const QPointF ecken[4] = {{m.x(mitte - 3), m.y(72)},
                              {m.x(mitte + 3), m.y(72)},
                              {m.x(mitte + 5), m.y(frmKessel::Boden)},
                              {m.x(mitte - 5), m.y(frmKessel::Boden)}};
    p.drawPolygon(ecken, 4);
  }
  p.drawLine(QPointF(m.x(10), m.y(frmKessel::Boden)), QPointF(m.x(90), m.y(frmKessel::Boden)));
  p.setBrush(Qt::white);
  p.drawRect(m.Rechteck(29.2, 17, 30.8, frmKessel::Oben));
  p.drawRect(m.Rechteck(49.2, frmKessel::Unten, 50.8, 78));
}

// The gauge over the vessel: dial, scale, needle, its label "p" and the pressure field beside it.
void Manometer(QPainter& p, const Massstab& m, const frmKessel& k, int schrift) {
  const double r = std::min(m.y(7), m.x(5));
  const QPointF mitte(m.x(30), m.y(17) - r);
  p.setPen(QPen(Qt::black, 1.5));
  p.setBrush(Qt::white);
  p.drawEllipse(mitte, r, r);
  for (int i = 0; i <= 6; ++i) {
    const double w = (225 - 45.0 * i) * M_PI / 180;
    const QPointF richtung(std::cos(w), -std::sin(w));
    p.drawLine(mitte + richtung * (0.8 * r), mitte + richtung * r);
  }
  const double w = (225 - 270 * k.ZeigerAnteil) * M_PI / 180;
  p.setPen(QPen(Farbe(4), 2));
  p.drawLine(mitte, mitte + QPointF(std::cos(w), -std::sin(w)) * (0.75 * r));
  p.setPen(Qt::black);
  TextIn(p, QRectF(mitte.x() - r, mitte.y() + 0.2 * r, 2 * r, 0.6 * r), Q(frmKessel::GaugeText), schrift,
         Qt::AlignHCenter);
  const QRectF feld = m.Rechteck(37, 6, 54, 14);
  p.setBrush(Qt::white);
  p.drawRect(feld);
  TextIn(p, feld.adjusted(3, 0, -3, 0), Q(k.txtDruck), schrift, Qt::AlignHCenter);
}

// The level indicator on the right: a glass tube joined to the vessel with the level's pointer.
void Zeiger(QPainter& p, const Massstab& m, const frmKessel& k) {
  const QRectF rohr = m.Rechteck(84, frmKessel::Oben, 86.5, frmKessel::Unten);
  p.setPen(QPen(Qt::black, 1.5));
  for (const double y : {27.0, 73.0})
    p.drawLine(QPointF(m.x(frmKessel::Rechts) - 2, m.y(y)), QPointF(rohr.left(), m.y(y)));
  p.setPen(Qt::NoPen);
  p.fillRect(rohr, Qt::white);
  if (k.Fuellung == KesselFuellung::Einfarbig) p.fillRect(rohr, Farbe(k.EinfarbigFarbe));
  const double spiegel = m.y(k.SpiegelY());
  if (k.Fuellung == KesselFuellung::Zweiphasig) {
    p.fillRect(QRectF(rohr.topLeft(), QPointF(rohr.right(), spiegel)), Farbe(k.DampfFarbe));
    p.fillRect(QRectF(QPointF(rohr.left(), spiegel), rohr.bottomRight()), Farbe(k.FluessigFarbe));
  }
  p.setPen(QPen(Qt::black, 1.5));
  p.setBrush(Qt::NoBrush);
  p.drawRect(rohr);
  if (k.Fuellung != KesselFuellung::Zweiphasig) return;
  const double d = std::max(4.0, m.y(2));
  const QPointF spitze(rohr.right() + 2, spiegel);
  const QPointF dreieck[3] = {spitze, spitze + QPointF(2 * d, -d), spitze + QPointF(2 * d, d)};
  p.setBrush(Farbe(4));
  p.drawPolygon(dreieck, 3);
}

void Legende(QPainter& p, const Massstab& m, const frmKessel& k, int schrift) {
  for (std::size_t i = 0; i < k.Legende.size(); ++i) {
    const double oben = 4 + 6.5 * static_cast<double>(i);
    const QRectF kasten = m.Rechteck(58, oben + 1, 61, oben + 5);
    p.setPen(QPen(Qt::black, 1));
    p.setBrush(Farbe(k.Legende[i].farbe));
    p.drawRect(kasten);
    p.setPen(Qt::black);
    TextIn(p, QRectF(QPointF(kasten.right(), m.y(oben)), QPointF(m.x(98), m.y(oben + 6))),
           Q(k.Legende[i].text), schrift, Qt::AlignLeft);
  }
}

} // namespace

KesselBild::KesselBild(const frmKessel& logik, QWidget* eltern) : QWidget(eltern), logik_(logik) {
  setObjectName("picKessel");
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void KesselBild::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  p.fillRect(rect(), Qt::white);
  const Massstab m{static_cast<double>(width()), static_cast<double>(height())};
  const int schrift = static_cast<int>(std::clamp(std::min(m.y(4.5), m.x(3.0)), 9.0, 28.0));

  Gestell(p, m);
  const QPainterPath zylinder = Zylinder(m);
  p.fillPath(zylinder, Qt::white);
  Fuellung(p, m, logik_, zylinder);
  p.setPen(QPen(Qt::black, 2));
  p.setBrush(Qt::NoBrush);
  p.drawPath(zylinder);
  Zeiger(p, m, logik_);
  Manometer(p, m, logik_, schrift);
  Legende(p, m, logik_, schrift);

  p.setPen(Qt::black);
  TextIn(p, m.Rechteck(10, 81, 90, 88), Q(frmKessel::UnterschriftText), schrift, Qt::AlignHCenter);
  if (!logik_.lblFuellstand.empty()) {
    QFont fett = p.font();
    fett.setBold(true);
    p.setFont(fett);
    TextIn(p, m.Rechteck(10, 89, 90, 97), Q(logik_.lblFuellstand), schrift, Qt::AlignHCenter);
  }
}

KesselFenster::KesselFenster(ProjectState& s, Oberflaeche& ui, const BehaelterZustand& z, QWidget* eltern)
    : QDialog(eltern), s_(s), logik_(s, z) {
  setObjectName("frmKessel");
  logik_.Form_Load();
  setWindowTitle(Q(logik_.Caption));
  bild_ = new KesselBild(logik_, this);
  auto* hilfe = new QPushButton("Hilfe", this);
  hilfe->setObjectName("cmdHilfe");
  auto* schliessen = new QPushButton("schließen", this);
  schliessen->setObjectName("cmdEsc");
  connect(hilfe, &QPushButton::clicked, this, [&ui] { ui.Hilfe(prozess::HilfeKessel); });
  connect(schliessen, &QPushButton::clicked, this, &QDialog::reject);
  auto* knoepfe = new QHBoxLayout;
  knoepfe->addStretch();
  knoepfe->addWidget(hilfe);
  knoepfe->addWidget(schliessen);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(bild_, 1);
  layout->addLayout(knoepfe);

  const FensterLage& lage = s_.Rechnung.Kessel;
  if (lage.gesetzt) {
    move(lage.x, lage.y);
    resize(lage.breite, lage.hoehe);
  }
  geladen_ = true;
}

void KesselFenster::LageMerken() {
  if (!geladen_) return;
  s_.Rechnung.Kessel = FensterLage{x(), y(), width(), height(), true};
}

void KesselFenster::moveEvent(QMoveEvent* ereignis) {
  QDialog::moveEvent(ereignis);
  LageMerken();
}

void KesselFenster::resizeEvent(QResizeEvent* ereignis) {
  QDialog::resizeEvent(ereignis);
  LageMerken();
}

} // namespace quor::ui
