// Small pieces of the diagram pages' menus: an entry with its object name and index, and a legend
// text cut to the width of a menu.
#pragma once

#include <QAction>
#include <QMenu>
#include <QString>

#include <string>

namespace quor::ui {

inline QAction* MenueEintrag(QMenu* m, const QString& text, const char* name, int index = -1) {
  QAction* a = m->addAction(text);
  a->setObjectName(name);
  a->setProperty("index", index);
  return a;
}

// A legend text short enough for a menu entry.
inline QString MenueKurz(const std::string& text) {
  const QString t = QString::fromStdString(text).simplified();
  return t.size() > 60 ? t.left(57) + "..." : t;
}

} // namespace quor::ui
