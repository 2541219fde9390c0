// The view of the fitting dialog frmQFitting: the five tabs with their model options and lg boxes, the
// formula, the start fields with their fix boxes beside the results and their standard deviations,
// the log option, the heat capacity's phase, the spline's frame, the quality of the fit, the
// evaluation both ways, and the buttons of the run, the diagrams, the transfer into the substance and
// the spline's list. Every action goes to the logic; the window shows all its fields anew after it.
#pragma once

#include "fitting/fitting_dialog.h"

#include <QWidget>

#include <array>
#include <functional>
#include <optional>

class QButtonGroup;
class QCheckBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;

namespace quor::ui {

class Oberflaeche;

class FittingFenster : public QWidget {
  Q_OBJECT

public:
  FittingFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern = nullptr);

  // Openings: from the menu without new data, with a column of the measured data, with the points
  // of the X-Y editor; each shows everything anew.
  void Laden();
  void DatenLaden(const FitUebergabe& u);
  void DatenLaden(const std::vector<FitPunkt>& punkte);
  // Shows every field of the logic.
  void Zeige();

  frmQFitting& Logik() { return logik_; }
  QTabWidget* Tabs() const { return tabs_; }
  // By the logic's names: "cmdStart", "cmdLeftAll", "cmdCalc", "cmdGraphFunction", "cmdGraphResid",
  // "cmdGraphLnp", "cmdApply", "cmdSplineParAnzeigen", and "cmdleft" with its index.
  QPushButton* Knopf(const QString& name, int index = -1) const;
  // "optFit" by model code, "optLogFit", "optcpPhase", "optCalc" by index.
  QRadioButton* Option(const QString& name, int index) const;
  // "chkLg" by model code, "chkFix" by index.
  QCheckBox* Kasten(const QString& name, int index) const;
  // "txtStart", "txtPar", "txtStDev" by index; "txtSplineWicht", "txtCalcX", "txtCalcY".
  QLineEdit* Feld(const QString& name, int index = -1) const;
  // "lblFittingEq", "lblStart" by index, "lblFQS1", "lblFQS2", "Label11", "lblsr2", "lblApply",
  // "lblEingabetest", "lblSplineBereich", "lblStDevKopf", "lblParKopf".
  QLabel* Label(const QString& name, int index = -1) const;
  // "fraFQS", "fraCalc", "fraSpline", "fracpPhase", "fraLogFit", and "fraModelle" with the tab.
  QGroupBox* Rahmen(const QString& name, int index = -1) const;
  QSize sizeHint() const override;

  // The frame's services: a diagram into the 2D page, a text window.
  std::function<void(const FitDiagramm&)> DiagrammZeichnen;
  std::function<void(const frmQTextEdit&)> TextZeigen;

signals:
  // The parameters went into the substance's data.
  void stoffGeaendert();

protected:
  void keyPressEvent(QKeyEvent* ereignis) override;

private:
  // fitting_fenster.cpp: the controls.
  QWidget* BaueLinks();
  QTabWidget* BaueTabs();
  QWidget* BaueTab(int tab);
  QGroupBox* BaueCpPhase(QWidget* eltern);
  QWidget* BaueParameter();
  void BaueParameterZeile(QGridLayout* raster, int i);
  QGroupBox* BaueSpline();
  QWidget* BaueLogFit();
  QWidget* BaueRechts(Oberflaeche& ui);
  QGroupBox* BaueFQS();
  QGroupBox* BaueCalc();
  QGroupBox* BaueGrafik();
  QPushButton* NeuerKnopf(const char* name, const QString& text, const QString& tipp,
                          std::function<void()> befehl);
  QRadioButton* NeueOption(const char* name, int index, const QString& text, QWidget* eltern,
                           QButtonGroup* gruppe, std::function<void()> befehl);
  QLabel* NeuesLabel(const QString& name, QWidget* eltern);

  // fitting_fenster_zeigen.cpp: the commands and the fields shown.
  // Runs a command of the logic and shows its fields anew.
  void Ausfuehren(const std::function<void()>& befehl);
  void Starten();
  void Grafik(std::optional<FitDiagramm> (frmQFitting::*befehl)());
  void Uebernehmen();
  void SplineListe();
  void ModelleZeigen();
  void ParameterZeigen();
  void ErgebnisZeigen();
  void KnoepfeZeigen();

  frmQFitting logik_;
  QTabWidget* tabs_ = nullptr;
  QButtonGroup* modelle_ = nullptr;
  std::array<QLineEdit*, FitMaxPar> start_{}, par_{}, stDev_{};
};

} // namespace quor::ui
