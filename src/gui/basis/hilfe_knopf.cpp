#include "gui/basis/hilfe_knopf.h"

#include "dienste/oberflaeche.h"

#include <QKeySequence>
#include <QPushButton>
#include <QShortcut>
#include <QWidget>

namespace quor::ui {

const char* const HilfeKnopfTip = " Hilfe zu diesem Fenster (F1) ";

QPushButton* HilfeKnopf(QWidget* fenster, Oberflaeche& ui, int thema, const QString& text, const char* name) {
  auto* knopf = new QPushButton(text, fenster);
  knopf->setObjectName(name);
  knopf->setToolTip(QString::fromUtf8(HilfeKnopfTip));
  // Enter in a dialog stays with its default button.
  knopf->setAutoDefault(false);
  if (text == "?") knopf->setFixedWidth(knopf->sizeHint().height());
  QObject::connect(knopf, &QPushButton::clicked, fenster, [&ui, thema] { ui.Hilfe(thema); });
  // F1 belongs to the window that holds the focus, also among the windows of the work area.
  auto* taste = new QShortcut(QKeySequence::HelpContents, fenster);
  taste->setContext(Qt::WidgetWithChildrenShortcut);
  QObject::connect(taste, &QShortcut::activated, knopf, &QPushButton::click);
  return knopf;
}

} // namespace quor::ui
