// The view of frmReferenz: the reference state of enthalpy and entropy with its temperature and
// pressure, the kind of normalisation, and the environment of the exergies.
#pragma once

#include "calc/frm_referenz.h"

#include <QDialog>

#include <array>

class QLabel;
class QLineEdit;
class QRadioButton;

namespace quor::ui {

class Oberflaeche;

class ReferenzFenster : public QDialog {
  Q_OBJECT

public:
  static const char* const OptionBenutzer; // caption of the first option

  ReferenzFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern = nullptr);

  frmReferenz& Logik() { return logik_; }
  QLineEdit* Feld(int i) const { return felder_[static_cast<std::size_t>(i)]; }
  QRadioButton* Option(int i) const { return optionen_[static_cast<std::size_t>(i)]; }
  QLabel* HinweisPo() const { return hinweisPo_; }
  void OK();

private:
  void Zeige();
  void TexteNehmen();

  frmReferenz logik_;
  std::array<QLineEdit*, 6> felder_{};
  std::array<QRadioButton*, 3> optionen_{};
  std::array<QLabel*, 2> bz7_{};
  QLabel* hinweisPo_;
};

} // namespace quor::ui
