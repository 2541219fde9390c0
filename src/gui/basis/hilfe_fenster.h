// The help window: the HTML pages of the program's help folder in a browser with back, forward and
// contents; a topic number names its page (<topic>.html, the contents page for topic 0). Beside the
// page a search: the pages that hold every word typed, best first, each opened by a click.
#pragma once

#include <QDialog>

class QLineEdit;
class QListWidget;
class QListWidgetItem;
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
  QLineEdit* SuchFeld() const { return suche_; }
  QListWidget* TrefferListe() const { return treffer_; }

private:
  void Suchen(const QString& eingabe);
  void TrefferOeffnen(QListWidgetItem* eintrag);

  QString verzeichnis_;
  QTextBrowser* browser_;
  QLineEdit* suche_;
  QListWidget* treffer_;
};

} // namespace quor::ui
