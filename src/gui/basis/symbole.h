// The pictures of the toolbar buttons, drawn at run time.
#pragma once

#include <QIcon>

class QStyle;

namespace quor::ui {

QIcon ToolbarSymbol(int index, const QStyle* stil);

// The program's own picture for its windows.
QIcon ProgrammSymbol();

} // namespace quor::ui
