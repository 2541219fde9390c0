// The one application object of the widget tests, and keys typed into a widget.
#pragma once

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QPixmap>
#include <QString>
#include <QWidget>

#include <cstdlib>

namespace quor::ui::test {

// Made once and never destroyed: its end would come after the display connection's at exit.
inline QApplication& App() {
  static int argc = 1;
  static char name[] = "test_ui";
  static char* argv[] = {name, nullptr};
  static QApplication* app = new QApplication(argc, argv);
  return *app;
}

inline void Taste(QWidget* ziel, int taste, const QString& text = QString()) {
  QKeyEvent druck(QEvent::KeyPress, taste, Qt::NoModifier, text);
  QApplication::sendEvent(ziel, &druck);
  QKeyEvent los(QEvent::KeyRelease, taste, Qt::NoModifier, text);
  QApplication::sendEvent(ziel, &los);
}

// Types a text character by character, as the keyboard does.
inline void Tippen(QWidget* ziel, const QString& text) {
  for (const QChar c : text)
    Taste(ziel, c.isLetter() ? Qt::Key(c.toUpper().unicode()) : Qt::Key_unknown, QString(c));
}

// The picture of a window into QUOR_BILDER_VERZEICHNIS, when that is set (the documentation's
// screenshots); true when nothing was asked or the file was written.
inline bool Bild(QWidget* w, const char* name) {
  const char* verzeichnis = std::getenv("QUOR_BILDER_VERZEICHNIS");
  return !verzeichnis || w->grab().save(QDir(verzeichnis).filePath(name));
}

} // namespace quor::ui::test
