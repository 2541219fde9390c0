#include "gui/basis/schirm.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace quor::ui {

namespace {
constexpr int TitelLeiste = 30;
}

QRect SchirmFlaeche(const QWidget* fenster) {
  const QScreen* schirm = fenster ? fenster->screen() : QGuiApplication::primaryScreen();
  return schirm ? schirm->availableGeometry() : QRect(0, 0, 1280, 800);
}

void AufDemSchirmHalten(QWidget* fenster) {
  const QRect platz = SchirmFlaeche(fenster).adjusted(0, TitelLeiste, 0, 0);
  QRect lage = fenster->frameGeometry();
  lage.moveLeft(std::clamp(lage.left(), platz.left(), std::max(platz.left(), platz.right() + 1 - lage.width())));
  lage.moveTop(std::clamp(lage.top(), platz.top(), std::max(platz.top(), platz.bottom() + 1 - lage.height())));
  if (lage.topLeft() != fenster->frameGeometry().topLeft()) fenster->move(lage.topLeft());
}

} // namespace quor::ui
