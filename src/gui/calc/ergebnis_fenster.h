// The view of the result page frmQCalcOut: the given values with the paging buttons, the main result
// in a proportional font, the value line, the region of the state and the phase labels over the text
// block in a fixed-width font; beside them the options of the further blocks, the output of the
// report, the record, the diagnostics and the close button; the substance's status line below.
#pragma once

#include "calc/ergebnis_seite.h"

#include <QWidget>

#include <array>
#include <functional>

class QAbstractButton;
class QCheckBox;
class QGroupBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace quor::ui {

class Oberflaeche;

class ErgebnisFenster : public QWidget {
  Q_OBJECT

public:
  ErgebnisFenster(ProjectState& s, Oberflaeche& ui, bool stapelModus, QWidget* eltern = nullptr);

  // Opens the page and runs its first calculation; false when it closed at once.
  bool Laden();
  // Runs the calculation for the point on show (after new given values) and shows the page anew.
  void Rechnen();
  // Shows the logic's fields.
  void Zeige();

  frmQCalcOut& Logik() { return logik_; }
  // Opens the iso-line calculator over the page; set by the frame. Without it the button stays off.
  std::function<void()> IsoRechnerOeffnen;
  QLabel* Par(int i) const { return i == 1 ? par1_ : par2_; }
  QLabel* Co1() const { return co1_; }
  QLabel* Txtco2() const { return txtco2_; }
  QLabel* Gleich() const { return gleich_; }
  QLabel* Identisch() const { return identisch_; }
  QLabel* Phase(int row) const { return row == 0 ? lPhase_ : vPhase_; }
  QPlainTextEdit* Liste() const { return liste_; }
  QLabel* StatusZeile() const { return status_; }
  QLabel* ProtText2() const { return protText2_; }
  QLabel* ProtHinweis() const { return protHinweis_; }
  // A record's note as the label shows it: a long path may break after each "/".
  static QString HinweisText(const std::string& text);
  QGroupBox* Rahmen(const char* name) const;
  QCheckBox* UHS() const { return uhs_; }
  QCheckBox* ResPlus(int i) const { return resPlus_[static_cast<std::size_t>(i)]; }
  QCheckBox* FuncPrint() const { return funcPrint_; }
  QRadioButton* Ausgabe(int i) const { return ausgabe_[static_cast<std::size_t>(i)]; }
  QPushButton* Knopf(const char* name) const;

  // The text block as shown: CR LF as line ends, the frame character of the text as a dash.
  static QString ListenText(const std::string& text);

signals:
  void diagnoseGewuenscht();
  void superKritUmschalten();
  // The page has closed: its companions close with it.
  void entladen();

protected:
  void closeEvent(QCloseEvent* ereignis) override;

private:
  QWidget* BaueKopf();
  QWidget* BaueErgebnis();
  QWidget* BaueOptionen(Oberflaeche& ui);
  QPushButton* NeuerKnopf(const char* name, const QString& text);
  void Verbinden();
  void Nachher();
  void LageMerken();
  QWidget* Fenster();

  ProjectState& s_;
  frmQCalcOut logik_;
  int piepser_ = 0;
  QGroupBox* vorgabe_ = nullptr;
  QLabel* par1_ = nullptr;
  QLabel* par2_ = nullptr;
  QLabel* co1_ = nullptr;
  QLabel* txtco2_ = nullptr;
  QLabel* gleich_ = nullptr;
  QLabel* identisch_ = nullptr;
  QLabel* lPhase_ = nullptr;
  QLabel* vPhase_ = nullptr;
  QPlainTextEdit* liste_ = nullptr;
  QLabel* status_ = nullptr;
  QLabel* protText2_ = nullptr;
  QLabel* protHinweis_ = nullptr;
  QGroupBox* erweitert_ = nullptr;
  QGroupBox* ausgabeRahmen_ = nullptr;
  QGroupBox* protokoll_ = nullptr;
  QCheckBox* uhs_ = nullptr;
  std::array<QCheckBox*, 2> resPlus_{};
  QCheckBox* funcPrint_ = nullptr;
  std::array<QRadioButton*, 3> ausgabe_{};
};

} // namespace quor::ui
