// The view of frmQTextEdit: a window with a title and a read-only text of several lines in a
// fixed-width font, for synonym lists and reports.
#pragma once

#include "substance/text_fenster.h"

#include <QDialog>

class QPlainTextEdit;

namespace quor::ui {

class TextFenster : public QDialog {
  Q_OBJECT

public:
  TextFenster(const frmQTextEdit& logik, QWidget* eltern);

  QString Text() const;

private:
  QPlainTextEdit* text_;
};

// Shows the text in a window of its own that deletes itself on closing; it stays usable beside a
// modal dialog when that dialog is its parent.
TextFenster* ZeigeTextFenster(const frmQTextEdit& logik, QWidget* eltern);

} // namespace quor::ui
