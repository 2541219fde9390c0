// The range dialog of the 3D diagram page (cmdCoord3): low and high limit of x, y and z in the
// display units. OK hands the six texts to the page's logic, which refuses a wrong input with its
// message and otherwise computes the surface anew; the dialog closes only then.
#pragma once

#include "diagrams/graph3d.h"

#include <QDialog>

#include <array>

class QLineEdit;

namespace quor::ui {

class Bereich3DDialog : public QDialog {
  Q_OBJECT

public:
  Bereich3DDialog(frmGraph3D& logik, const Texte3D& texte, QWidget* eltern = nullptr);

  // Field 0 to 5: x from, x to, y from, y to, z from, z to.
  QLineEdit* Feld(int i) const { return felder_[static_cast<std::size_t>(i)]; }
  void accept() override;

private:
  frmGraph3D& logik_;
  std::array<QLineEdit*, 6> felder_{};
};

} // namespace quor::ui
