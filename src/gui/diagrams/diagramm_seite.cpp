#include "gui/diagrams/diagramm_seite.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace quor::ui {

QMdiSubWindow* DiagrammSeiteEinsetzen(QMdiArea* flaeche, QWidget* seite, const char* name, const QIcon& symbol) {
  QMdiSubWindow* fenster = flaeche->addSubWindow(seite);
  fenster->setObjectName(name);
  fenster->setWindowIcon(symbol);
  fenster->setAttribute(Qt::WA_DeleteOnClose);
  fenster->setGeometry(QRect(QPoint(0, 0), flaeche->viewport()->size()));
  return fenster;
}

} // namespace quor::ui
