// The view of the one-value box frmTpVSInputBox: the label, the field that takes only the keys a
// number needs, the unit, the limits, and the buttons to take the value and to cancel.
#pragma once

#include "process/tpvs_eingabe.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace quor::ui {

class TpVSEingabeFenster : public QDialog {
  Q_OBJECT

public:
  TpVSEingabeFenster(prozess::frmTpVSInputBox& logik, QWidget* eltern = nullptr);

  QLineEdit* Feld() const { return feld_; }
  QPushButton* OK() const { return ok_; }
  // Takes the text; closes with Accepted when the value is good.
  void cmdOK();


private:
  prozess::frmTpVSInputBox& logik_;
  QLineEdit* feld_;
  QPushButton* ok_;
};

} // namespace quor::ui
