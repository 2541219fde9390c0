// The screen a window stands on: its free area, and a window kept inside it.
#pragma once

#include <QRect>

class QWidget;

namespace quor::ui {

// The screen's area without panels and docks; 1280 x 800 when no screen is known.
QRect SchirmFlaeche(const QWidget* fenster);

// Moves a top-level window that reaches out of its screen back inside, with room above for the
// title bar that the window manager adds.
void AufDemSchirmHalten(QWidget* fenster);

} // namespace quor::ui
