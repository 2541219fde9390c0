// The view of the process dialog frmInputProzessLinien: the kind's caption, the form, range and phase
// options, the start and end fields with cmdVScalc and its answer, the straight line's two points,
// the degree of vaporization, the polytrope's kappa box, exponent and model with its report, the
// curve parameter of the h-s and exergy diagrams, the continuation box and the hints. It stays open
// beside the diagram, so that a click on a curve can give the start.
#pragma once

#include "process/prozess_dialog.h"

#include <QDialog>

#include <array>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace quor::ui {

class ProzessFenster : public QDialog {
  Q_OBJECT

public:
  ProzessFenster(prozess::frmInputProzessLinien& logik, Oberflaeche& ui, QWidget* eltern = nullptr);

  // Shows the logic's captions, fields and enabling anew.
  void Zeige();
  // The fields as typed go to the logic.
  void TexteNehmen();

  QLineEdit* Feld(const QString& name) const;
  QPushButton* Knopf(const QString& name) const;

signals:
  // cmdDrawPL was pressed and the logic says what follows.
  void gezeichnet(prozess::ProzessFolge folge);


private:
  QLineEdit* NeuesFeld(const char* name);
  QGroupBox* Optionen(const char* titel, const char* name, std::array<QRadioButton*, 2>& knoepfe,
                      const QString& a, const QString& b);
  void BaueStart();
  void BaueSonderfelder();
  void BaueKnoepfe();
  void cmdDrawPL();

  prozess::frmInputProzessLinien& logik_;
  Oberflaeche& ui_;
  QLabel* art_;
  QGroupBox* form_;
  QGroupBox* bereich_;
  QGroupBox* phase_;
  std::array<QRadioButton*, 2> optForm_{}, optBereich_{}, optPhase_{}, optModell_{};
  QGroupBox* anfang_ = nullptr;
  QGroupBox* ende_ = nullptr;
  QGroupBox* gerade_ = nullptr;
  QGroupBox* polytrope_ = nullptr;
  QGroupBox* parameter_ = nullptr;
  QGroupBox* eta_ = nullptr;
  QLabel* lblT1_ = nullptr;
  QLabel* lblP1_ = nullptr;
  QLabel* lblEnde_ = nullptr;
  QLabel* lblParameter_ = nullptr;
  QLineEdit* txtT1_ = nullptr;
  QLineEdit* txtP1_ = nullptr;
  QLineEdit* txtEnde_ = nullptr;
  QLineEdit* txtEta_ = nullptr;
  QLineEdit* txtN_ = nullptr;
  QLineEdit* txtParameter_ = nullptr;
  std::array<QLineEdit*, 4> txtGerade_{};
  QComboBox* cmbKappa_ = nullptr;
  QPushButton* cmdVScalc_ = nullptr;
  QLabel* txtVSCalc_ = nullptr;
  QPlainTextEdit* bericht_ = nullptr;
  QCheckBox* chkEndToBegin_ = nullptr;
  QLabel* hinweis_ = nullptr;
  QLabel* mausHinweis_ = nullptr;
  QPushButton* cmdDraw_ = nullptr;
};

} // namespace quor::ui
