// The help button of a window and its key: a small button with the tooltip that names F1, and F1
// itself while the window or one of its controls has the focus; both open the window's help page.
#pragma once

#include <QString>

class QPushButton;
class QWidget;

namespace quor::ui {

class Oberflaeche;

extern const char* const HilfeKnopfTip; // " Hilfe zu diesem Fenster (F1) "

// Makes the button (a child of `fenster`, not yet in a layout) and binds F1 on `fenster` to the same
// topic. A "?" stays as narrow as the button is high.
QPushButton* HilfeKnopf(QWidget* fenster, Oberflaeche& ui, int thema, const QString& text = "?",
                        const char* name = "cmdHilfe");

} // namespace quor::ui
