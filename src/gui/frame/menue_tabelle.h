// The menu tree of the main frame as data: one row per entry, in menu order. An entry that other rows
// name as their parent is a submenu; the text "-" makes a separator.
#pragma once

#include <vector>

namespace quor::ui {

struct MenueZeile {
  const char* name; // control name, the entry's object name
  int index;        // position in its control array, -1 for a single control
  const char* text;
  const char* eltern; // name of the parent menu, "" for the menu bar
  int elternIndex;
};

const std::vector<MenueZeile>& MenueTabelle();

struct ToolbarKnopf {
  int index;
  const char* tipp; // tool-tip; null for a separator
};

// Buttons 0 to 32; the unnamed indices are separators.
const std::vector<ToolbarKnopf>& ToolbarTabelle();

} // namespace quor::ui
