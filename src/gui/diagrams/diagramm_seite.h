// A diagram page as a child window of the work area: named, with the program's icon, released on
// closing, and filling the work area, since the chart wants every pixel it can have.
#pragma once

#include <QIcon>

class QMdiArea;
class QMdiSubWindow;
class QWidget;

namespace quor::ui {

QMdiSubWindow* DiagrammSeiteEinsetzen(QMdiArea* flaeche, QWidget* seite, const char* name, const QIcon& symbol);

} // namespace quor::ui
