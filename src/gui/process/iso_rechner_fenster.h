// The view of the iso-line calculator frmIsoCalc: the choice of the given quantity, of the function
// held fixed and of the phase; the given value, the fixed value with its unit and the result; the
// buttons to calculate, to go back to the last good pair, to open the X-Y editor, for help and to
// close. The fields take only the keys a number needs.
#pragma once

#include "process/iso_rechner.h"

#include <QDialog>

#include <array>
#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace quor::ui {

class Oberflaeche;

class IsoRechnerFenster : public QDialog {
  Q_OBJECT

public:
  // `seite` is the context of the result page, with the state last calculated.
  IsoRechnerFenster(ProjectState& s, Oberflaeche& ui, const RechenKontext& seite, QWidget* eltern = nullptr);

  // Takes the page's state; false (after the refusal) when there is none.
  bool Laden();

  // Opens the X-Y editor for manual curve points; set by the frame.
  std::function<void()> KurvenInputOeffnen;

  prozess::frmIsoCalc& Logik() { return logik_; }
  QLineEdit* TpVorgabe() const { return tpVorgabe_; }
  QLineEdit* FuConst() const { return fuConst_; }
  QLineEdit* TpCalc() const { return tpCalc_; }
  QLabel* LblFuConst() const { return lblFuConst_; }
  QRadioButton* Funktion(int i) const { return funktion_.at(static_cast<std::size_t>(i)); }
  QRadioButton* Vorgabe(int i) const { return vorgabe_.at(static_cast<std::size_t>(i)); }
  QRadioButton* Phase(int row) const { return phase_.at(static_cast<std::size_t>(row)); }
  QPushButton* Knopf(const char* name) const;

  // Shows the logic's fields.
  void Zeige();


private:
  QWidget* BaueOptionen();
  QWidget* BaueFelder();
  QWidget* BaueKnoepfe();
  QLineEdit* NeuesFeld(const char* name);
  void TexteNehmen();

  prozess::frmIsoCalc logik_;
  Oberflaeche& ui_;
  std::array<QRadioButton*, 2> vorgabe_{};
  std::array<QRadioButton*, 8> funktion_{};
  std::array<QRadioButton*, 2> phase_{};
  QLabel* lblTpVorgabe_ = nullptr;
  QLabel* lblFuConst_ = nullptr;
  QLabel* lblFuEinheit_ = nullptr;
  QLabel* lblTpCalc_ = nullptr;
  QLineEdit* tpVorgabe_ = nullptr;
  QLineEdit* fuConst_ = nullptr;
  QLineEdit* tpCalc_ = nullptr;
};

} // namespace quor::ui
