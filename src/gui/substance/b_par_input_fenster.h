// The view of frmBParInput: the three coefficients of the hand-input virial model.
#pragma once

#include "substance/b_par_input.h"

#include <QDialog>

#include <array>

class QLineEdit;

namespace quor::ui {

class BParInputFenster : public QDialog {
  Q_OBJECT

public:
  BParInputFenster(ProjectState& s, QWidget* eltern);

  QLineEdit* Feld(int i) const { return felder_[static_cast<std::size_t>(i)]; }
  void cmdParameter_OK();

private:
  frmBParInput logik_;
  std::array<QLineEdit*, 3> felder_{};
};

} // namespace quor::ui
