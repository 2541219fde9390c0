// The help window: the HTML pages of the program's help folder in a browser with back, forward and
// contents; a topic number names its page (<topic>.html, the contents page for topic 0).
#pragma once

#include <QDialog>

class QTextBrowser;

namespace quor::ui {

class HilfeFenster : public QDialog {
  Q_OBJECT

public:
  HilfeFenster(const QString& verzeichnis, QWidget* eltern);

  // The page of a topic number; false when the help folder has none.
  bool ZeigeThema(int thema);
  static QString SeitenName(int thema);

  QTextBrowser* Browser() const { return browser_; }

private:
  QString verzeichnis_;
  QTextBrowser* browser_;
};

} // namespace quor::ui
