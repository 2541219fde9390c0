// The view of frmParinput: labelled number fields built by what the dialog is opened for, the choice
// of density or volume and of mass or amount, and the buttons to calculate (or take) and to close.
// The fields take only the keys a number needs and select their whole text when they get the focus.
#pragma once

#include "calc/parinput.h"

#include <QDialog>

#include <functional>
#include <vector>

class QGroupBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace quor::ui {

class Oberflaeche;

class ParinputFenster : public QDialog {
  Q_OBJECT

public:
  ParinputFenster(ProjectState& s, Oberflaeche& ui, std::function<std::string()> berechnen,
                  QWidget* eltern = nullptr);

  // Builds the fields for ParinputModus.
  void Laden();

  frmParinput& Logik() { return logik_; }
  QLineEdit* Feld(int i) const { return felder_.at(static_cast<std::size_t>(i)); }
  QLabel* Bz(int i) const { return labels_.at(static_cast<std::size_t>(i)); }
  int Anzahl() const { return static_cast<int>(felder_.size()); }
  QRadioButton* RhoV(int i) const { return rhoV_[i]; }
  QRadioButton* MassOderMenge(int i) const { return mn_[i]; }
  QPushButton* OK() const { return ok_; }

  void cmdParameter_OK();


private:
  void FelderBauen();
  void FelderZeigen();
  void TexteNehmen();

  frmParinput logik_;
  QGridLayout* raster_;
  std::vector<QLabel*> labels_;
  std::vector<QLineEdit*> felder_;
  QGroupBox* rhoVRahmen_;
  QRadioButton* rhoV_[2];
  QGroupBox* mnRahmen_;
  QRadioButton* mn_[2];
  QPushButton* ok_;
};

} // namespace quor::ui
