// A number field: keys that cannot belong to a number are dropped (the printable ones; editing and
// control keys pass), and the field's text is selected when it takes the focus, ready to be typed
// over. Which characters belong to a number the caller says.
#pragma once

#include <functional>

class QLineEdit;

namespace quor::ui {

void ZahlFeld(QLineEdit* feld, std::function<bool(char32_t)> erlaubt);

} // namespace quor::ui
