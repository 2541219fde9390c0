// The view of the measured-data editor frmTpRhoEdit: the comment, the grid of T, p, rho(V), rho(L),
// delta(LV)h and cp with its marks and the highlighted columns, the choice of the y column, the row
// input in its units with mode and row label, and the buttons of the files, the table, the clipboard,
// the printer, the control diagrams and the .XY export. Every action goes to the logic with the grid's
// selection and the fields taken first; the window shows the logic anew after it and tells the frame
// that the data may have changed.
#pragma once

#include "fitting/tprho_editor.h"

#include <QWidget>

#include <array>
#include <functional>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace quor::ui {

class DatenTabellenAnsicht;
class DatenTabellenModell;
class Oberflaeche;

class TpRhoEditorFenster : public QWidget {
  Q_OBJECT

public:
  TpRhoEditorFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern = nullptr);

  // Opening: the logic's Form_Load, then everything shown.
  void Laden();
  // Shows the logic's fields and the grid anew.
  void Zeige();
  // Closes the window without the question about unsaved data (another substance is loaded).
  void SchliessenOhneFrage();

  frmTpRhoEdit& Logik() { return logik_; }
  DatenTabellenAnsicht* Tabelle() const { return tabelle_; }
  DatenTabellenModell* Modell() const { return modell_; }
  QLineEdit* Feld(int i) const { return y_[static_cast<std::size_t>(i)]; }
  QLineEdit* Kommentar() const { return kommentar_; }
  QLineEdit* Mol() const { return mol_; }
  // By the logic's names: "cmdBatchLoad", "TSort", "cmdGraphFunction", "OKinput", "Edit_OK", ...
  QPushButton* Knopf(const QString& name) const;
  // "opt_T_unit", "opt_p_Unit", "opt_Rho_Unit", "optInputMode", "optFitFunction" with the index.
  QRadioButton* Option(const QString& name, int index) const;
  // "lblZeile", "lblDichte", "lblRhoV", "lblRhoL", "lblTEinheit", "lblPEinheit", "lblRhoEinheit" ...
  QLabel* Label(const QString& name) const;

  // The frame's services: points into the 2D page, a column into the fitting dialog.
  std::function<void(const DiagrammPunkte&)> PunkteZeichnen;
  std::function<void(const FitUebergabe&)> FittingSenden;

signals:
  // After each action: the measured data and with them the frame's data button may have changed.
  void geaendert();

protected:
  void closeEvent(QCloseEvent* ereignis) override;
  void keyPressEvent(QKeyEvent* ereignis) override;
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
  QWidget* BaueTabelle();
  QGroupBox* BaueFitSpalten();
  QGroupBox* BaueEingabe();
  QWidget* BaueEinheiten();
  QWidget* BaueKnoepfe(Oberflaeche& ui);
  QPushButton* NeuerKnopf(const char* name, const QString& text, std::function<void()> befehl);
  QRadioButton* NeueOption(const char* name, int index, const QString& text, QWidget* eltern,
                           std::function<void()> befehl);
  // Runs a command of the logic with the grid's selection and the fields taken first, and shows the
  // logic anew; the grid is left to the model when the command changed cells only.
  void Ausfuehren(const std::function<void()>& befehl, bool tabelleNeu = true);
  void FelderNehmen();
  void FelderZeigen(); // everything but the grid
  void Zeichnen(bool logarithmisch);
  void ZumFitting();

  frmTpRhoEdit logik_;
  DatenTabellenModell* modell_ = nullptr;
  DatenTabellenAnsicht* tabelle_ = nullptr;
  QLineEdit* kommentar_ = nullptr;
  QLineEdit* mol_ = nullptr;
  std::array<QLineEdit*, tprho::Spalten> y_{};
  bool fragen_ = true;
};

} // namespace quor::ui
