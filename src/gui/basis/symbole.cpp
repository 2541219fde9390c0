#include "gui/basis/symbole.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QStyle>

namespace quor::ui {

namespace {

constexpr int Groesse = 24;

// A small card with a short text, the pictures of the program's own functions.
QIcon TextSymbol(const QString& text, const QColor& grund, const QColor& schrift = Qt::white) {
  QPixmap bild(Groesse, Groesse);
  bild.fill(Qt::transparent);
  QPainter p(&bild);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(grund.darker(140), 1));
  p.setBrush(grund);
  p.drawRoundedRect(QRectF(1.5, 3.5, Groesse - 3, Groesse - 7), 3, 3);
  QFont f = p.font();
  f.setBold(true);
  f.setPixelSize(text.size() > 2 ? 9 : 11);
  p.setFont(f);
  p.setPen(schrift);
  p.drawText(QRect(0, 3, Groesse, Groesse - 6), Qt::AlignCenter, text);
  return QIcon(bild);
}

// A closed vessel with liquid in its lower part.
QIcon BehaelterSymbol() {
  QPixmap bild(Groesse, Groesse);
  bild.fill(Qt::transparent);
  QPainter p(&bild);
  p.setRenderHint(QPainter::Antialiasing);
  const QRectF koerper(5, 2.5, 14, 19);
  QPainterPath fluessig;
  fluessig.addRoundedRect(QRectF(5, 13, 14, 8.5), 3, 3);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(70, 130, 200));
  p.drawPath(fluessig);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor(60, 60, 60), 1.5));
  p.drawRoundedRect(koerper, 4, 4);
  return QIcon(bild);
}

} // namespace

QIcon ProgrammSymbol() {
  QPixmap bild(32, 32);
  bild.fill(Qt::transparent);
  QPainter p(&bild);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(QColor(20, 60, 110), 1.5));
  p.setBrush(QColor(40, 100, 170));
  p.drawRoundedRect(QRectF(1, 1, 30, 30), 6, 6);
  QFont f = p.font();
  f.setBold(true);
  f.setPixelSize(15);
  p.setFont(f);
  p.setPen(Qt::white);
  p.drawText(QRect(0, 0, 32, 32), Qt::AlignCenter, "Q6");
  return QIcon(bild);
}

QIcon ToolbarSymbol(int index, const QStyle* stil) {
  switch (index) {
  case 2:
    return stil->standardIcon(QStyle::SP_FileIcon);
  case 4:
    return stil->standardIcon(QStyle::SP_BrowserReload);
  case 6:
    return stil->standardIcon(QStyle::SP_DialogOpenButton);
  case 8:
    return stil->standardIcon(QStyle::SP_DialogSaveButton);
  case 11:
    return TextSymbol("Ref", QColor(120, 90, 160));
  case 15:
    return BehaelterSymbol();
  case 20:
    return TextSymbol("neu", QColor(40, 140, 80));
  case 22:
    return TextSymbol("exp", QColor(30, 110, 60));
  case 26:
    return TextSymbol("XY", QColor(200, 120, 30));
  case 28:
    return TextSymbol("db", QColor(170, 40, 40));
  case 32:
    return stil->standardIcon(QStyle::SP_MessageBoxInformation);
  default:
    return {};
  }
}

} // namespace quor::ui
