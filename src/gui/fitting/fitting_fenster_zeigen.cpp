// The fitting dialog's view at work: the openings, the commands with what they hand to the frame
// (diagrams, the spline's list, the changed substance), and every field of the logic shown.
#include "gui/fitting/editor_hilfen.h"
#include "gui/fitting/fitting_fenster.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabWidget>

#include <algorithm>

namespace quor::ui {

namespace {

QString Q(const std::string& s) {
  return Zeilen(s.c_str());
}

} // namespace

void FittingFenster::Laden() {
  logik_.Form_Load();
  Zeige();
}

void FittingFenster::DatenLaden(const FitUebergabe& u) {
  logik_.DatenLaden(u);
  Zeige();
}

void FittingFenster::DatenLaden(const std::vector<FitPunkt>& punkte) {
  logik_.DatenLaden(punkte);
  Zeige();
}

// ----- commands -----

void FittingFenster::Ausfuehren(const std::function<void()>& befehl) {
  befehl();
  Zeige();
}

// The run may take a while: the wait cursor stands until its results are shown.
void FittingFenster::Starten() {
  QApplication::setOverrideCursor(Qt::WaitCursor);
  logik_.cmdStart();
  Zeige();
  QApplication::restoreOverrideCursor();
}

void FittingFenster::Grafik(std::optional<FitDiagramm> (frmQFitting::*befehl)()) {
  const std::optional<FitDiagramm> d = (logik_.*befehl)();
  Zeige();
  if (d && DiagrammZeichnen) DiagrammZeichnen(*d);
}

void FittingFenster::Uebernehmen() {
  const bool geschrieben = logik_.cmdApply();
  Zeige();
  if (geschrieben) emit stoffGeaendert();
}

void FittingFenster::SplineListe() {
  const std::optional<frmQTextEdit> text = logik_.cmdSplineParAnzeigen();
  if (text && TextZeigen) TextZeigen(*text);
}

// Esc closes the dialog with its window.
void FittingFenster::keyPressEvent(QKeyEvent* ereignis) {
  if (ereignis->key() == Qt::Key_Escape && ereignis->modifiers() == Qt::NoModifier) {
    FensterSchliessen(this);
    return;
  }
  QWidget::keyPressEvent(ereignis);
}

// ----- the fields -----

void FittingFenster::Zeige() {
  setWindowTitle(Q(logik_.Caption));
  ModelleZeigen();
  ParameterZeigen();
  ErgebnisZeigen();
  KnoepfeZeigen();
}

void FittingFenster::ModelleZeigen() {
  const frmQFitting& l = logik_;
  {
    const QSignalBlocker still(tabs_);
    tabs_->setCurrentIndex(l.SSTab1);
  }
  if (QRadioButton* o = Option("optFit", l.Fit.FitModell)) o->setChecked(true);
  for (const FitModellEintrag& e : FitModellKatalog())
    if (QCheckBox* lg = Kasten("chkLg", e.Code)) lg->setChecked(l.chkLg[static_cast<std::size_t>(e.Code)]);
  Label("lblFittingEq")->setText(Q(l.lblFittingEq));
  Label("lblFittingEq")->setVisible(!l.lblFittingEq.empty());
  Option("optLogFit", l.optLogFit)->setChecked(true);
  Option("optcpPhase", l.optcpPhase)->setChecked(true);
  Rahmen("fracpPhase")->setVisible(l.optcpPhaseVisible);
  Rahmen("fraSpline")->setVisible(l.fraSplineVisible);
  TextSetzen(Feld("txtSplineWicht"), l.txtSplineWicht);
  Label("lblEingabetest")->setText(Q(l.lblEingabetest));
}

// A label stays while its field is hidden: the fixed term of a linear model keeps its name. A model
// without start fields (the spline) shows none of the columns.
void FittingFenster::ParameterZeigen() {
  const frmQFitting& l = logik_;
  findChild<QWidget*>("fraParameter")
      ->setVisible(
          std::any_of(l.lblStart.begin(), l.lblStart.end(), [](const std::string& t) { return !t.empty(); }));
  for (std::size_t i = 0; i < FitMaxPar; ++i) {
    const int k = static_cast<int>(i);
    Label("lblStart", k)->setText(Q(l.lblStart[i]));
    Label("lblStart", k)->setVisible(!l.lblStart[i].empty());
    TextSetzen(start_[i], l.txtStart[i]);
    start_[i]->setVisible(l.txtStartVisible[i]);
    QCheckBox* fix = Kasten("chkFix", k);
    fix->setChecked(l.chkFix[i]);
    fix->setVisible(l.chkFixVisible[i]);
    TextSetzen(par_[i], l.txtPar[i]);
    par_[i]->setVisible(l.txtParVisible[i]);
    TextSetzen(stDev_[i], l.txtStDev[i]);
    stDev_[i]->setVisible(l.txtStDevVisible[i]);
    QPushButton* links = Knopf("cmdleft", k);
    links->setVisible(l.txtParVisible[i]);
    links->setEnabled(l.cmdleftEnabled);
  }
  Label("lblParKopf")->setVisible(l.fraFQSVisible);
  Label("lblStDevKopf")->setVisible(l.StDevKopfVisible);
}

void FittingFenster::ErgebnisZeigen() {
  const frmQFitting& l = logik_;
  QGroupBox* fqs = Rahmen("fraFQS");
  fqs->setVisible(l.fraFQSVisible);
  fqs->setTitle(Q(l.fraFQSCaption));
  Label("lblFQS1")->setText(Q(l.lblFQS1));
  Label("lblFQS2")->setText(Q(l.lblFQS2));
  Label("lblsr2")->setText(Q(l.lblsr2));
  Rahmen("fraCalc")->setVisible(l.fraCalcVisible);
  Option("optCalc", l.optCalc)->setChecked(true);
  TextSetzen(Feld("txtCalcX"), l.txtCalcX);
  TextSetzen(Feld("txtCalcY"), l.txtCalcY);
  Label("lblApply")->setText(Q(l.lblApply));
}

void FittingFenster::KnoepfeZeigen() {
  const frmQFitting& l = logik_;
  Knopf("cmdGraphFunction")->setText(Q(l.cmdGraphFunctionCaption));
  const std::pair<const char*, bool> frei[] = {{"cmdStart", l.cmdStartEnabled},
                                               {"cmdLeftAll", l.cmdLeftAllEnabled},
                                               {"cmdCalc", l.cmdCalcEnabled},
                                               {"cmdGraphFunction", l.cmdGraphFunctionEnabled},
                                               {"cmdGraphResid", l.cmdGraphResidEnabled},
                                               {"cmdGraphLnp", l.cmdGraphLnpEnabled},
                                               {"cmdApply", l.cmdApplyEnabled},
                                               {"cmdSplineParAnzeigen", l.cmdSplineParAnzeigenEnabled}};
  for (const auto& [name, an] : frei)
    Knopf(name)->setEnabled(an);
}

} // namespace quor::ui
