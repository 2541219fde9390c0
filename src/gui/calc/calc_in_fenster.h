// The view of frmCalcIn: the situation of the case, GLOBAL or PARTIAL, and with PARTIAL the source
// of the liquid density and the reference point with its report.
#pragma once

#include "calc/calc_eingabe.h"

#include <QDialog>

class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace quor::ui {

class Oberflaeche;

class CalcInFenster : public QDialog {
  Q_OBJECT

public:
  CalcInFenster(ProjectState& s, Oberflaeche& ui, RechnungsFenster fenster, QWidget* eltern = nullptr);

  frmCalcIn& Logik() { return logik_; }
  void Zeige();

  QLabel* Situation() const { return situation_; }
  QLabel* GlobalSit() const { return globalSit_; }
  QLabel* RhoLimits() const { return rhoLimits_; }
  QLabel* Vorschlag() const { return vorschlag_; }
  QRadioButton* Glob(int i) const { return glob_[i]; }
  QRadioButton* Benson(int i) const { return benson_[i]; }
  QRadioButton* Ref(int i) const { return ref_[i]; }
  QPushButton* RefInput() const { return refInput_; }
  QPushButton* OK() const { return ok_; }
  QGroupBox* Partial() const { return partial_; }

private:
  QGroupBox* BauePartial();
  void Verbinden();

  frmCalcIn logik_;
  bool zeigt_ = false;
  QLabel* situation_;
  QLabel* globalSit_;
  QLabel* rhoLimits_;
  QLabel* dichteHinweis_;
  QLabel* vorschlag_;
  QRadioButton* glob_[2];
  QRadioButton* benson_[2];
  QRadioButton* ref_[3];
  QPushButton* refInput_;
  QPushButton* ok_;
  QGroupBox* partial_;
};

} // namespace quor::ui
