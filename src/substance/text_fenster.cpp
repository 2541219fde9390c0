#include "substance/text_fenster.h"

namespace quor {

std::vector<std::string> frmQTextEdit::Zeilen() const {
  std::vector<std::string> zeilen;
  std::string zeile;
  bool offen = false;
  for (std::size_t i = 0; i < Text.size(); ++i) {
    const char c = Text[i];
    if (c == '\r' || c == '\n') {
      zeilen.push_back(zeile);
      zeile.clear();
      offen = false;
      if (c == '\r' && i + 1 < Text.size() && Text[i + 1] == '\n') ++i;
    } else {
      zeile += c;
      offen = true;
    }
  }
  if (offen) zeilen.push_back(zeile);
  return zeilen;
}

} // namespace quor
