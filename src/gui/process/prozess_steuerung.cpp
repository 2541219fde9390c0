#include "gui/process/prozess_steuerung.h"

#include "gui/diagrams/graph2d_steuerung.h"
#include "gui/process/prozess_fenster.h"

#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>

namespace quor::ui {

using namespace prozess;

ProzessSteuerung::ProzessSteuerung(ProjectState& s, Oberflaeche& ui, Graph2DSteuerung& graf2d, QWidget* rahmen)
    : QObject(rahmen), s_(s), ui_(ui), graf2d_(graf2d), rahmen_(rahmen),
      logik_(std::make_unique<frmInputProzessLinien>(s, ui)) {
  connect(&graf2d_, &Graph2DSteuerung::prozessLinieGewuenscht, this, [this](int art) { Oeffnen(int16_t(art)); });
  connect(&graf2d_, &Graph2DSteuerung::prozessParameterGewuenscht, this, [this] { Oeffnen(Parameter); });
  connect(&graf2d_, &Graph2DSteuerung::punktGewaehlt, this, &ProzessSteuerung::PunktGewaehlt);
}

ProzessSteuerung::~ProzessSteuerung() = default;

void ProzessSteuerung::Oeffnen(int16_t art, bool ausRechnung) {
  DiagrammAuftrag diagramm;
  if (Graph2DFenster* seite = graf2d_.Seite(); seite && !ausRechnung)
    diagramm = art == Parameter ? seite->Naechste() : seite->Logik().Auftrag();
  logik_->Form_Load(art, diagramm, ausRechnung);
  if (!fenster_) {
    // A window of its own beside the diagram: it stays open while the user picks the start.
    fenster_ = new ProzessFenster(*logik_, ui_, rahmen_);
    fenster_->setWindowFlag(Qt::Tool, true);
    fenster_->setAttribute(Qt::WA_DeleteOnClose);
    connect(fenster_, &ProzessFenster::gezeichnet, this, &ProzessSteuerung::Gezeichnet);
    if (rahmen_) {
      const QRect r = rahmen_->geometry();
      fenster_->move(r.right() - fenster_->sizeHint().width() - 20, r.top() + 80);
    }
  }
  fenster_->Zeige();
  fenster_->show();
  fenster_->raise();
  fenster_->activateWindow();
}

void ProzessSteuerung::Schliessen() {
  if (fenster_) fenster_->close();
  fenster_ = nullptr;
  if (iso_) iso_->close();
  iso_ = nullptr;
  if (kessel_) kessel_->close();
  kessel_ = nullptr;
}

void ProzessSteuerung::KesselOeffnen(const BehaelterZustand& z) {
  if (kessel_) kessel_->close();
  kessel_ = new KesselFenster(s_, ui_, z, rahmen_);
  kessel_->setAttribute(Qt::WA_DeleteOnClose);
  kessel_->show();
  kessel_->raise();
}

void ProzessSteuerung::IsoRechnerOeffnen(const RechenKontext& seite) {
  if (iso_) iso_->close();
  iso_ = new IsoRechnerFenster(s_, ui_, seite, rahmen_);
  iso_->setAttribute(Qt::WA_DeleteOnClose);
  iso_->KurvenInputOeffnen = KurvenInputOeffnen;
  if (!iso_->Laden()) {
    iso_->close();
    iso_ = nullptr;
    return;
  }
  iso_->show();
  iso_->raise();
}

void ProzessSteuerung::PunktGewaehlt(double T, double p) {
  if (!fenster_ || !fenster_->isVisible()) return;
  fenster_->TexteNehmen();
  logik_->StartpunktSetzen(T, p);
  fenster_->Zeige();
}

void ProzessSteuerung::Gezeichnet(ProzessFolge folge) {
  if (folge == ProzessFolge::Ergebnisseite) {
    Schliessen();
    if (PolytropeErgebnis) PolytropeErgebnis(logik_->Bericht);
    return;
  }
  Graph2DFenster* seite = graf2d_.Seite();
  if (!seite) return;
  if (graf2d_.SeitenFenster()) graf2d_.SeitenFenster()->raise();
  switch (folge) {
  case ProzessFolge::Kurve:
    seite->Anfordern(logik_->Auftrag(), false);
    seite->Statuszeile()->setText(QString::fromUtf8(frmInputProzessLinien::ZeichnenHinweis));
    break;
  case ProzessFolge::ExterneKurve:
    seite->Logik().cmdExternKurve(logik_->KurveX, logik_->KurveY, logik_->KurveLegende);
    seite->Zeige();
    break;
  case ProzessFolge::Parameter:
    seite->ParameterFeld()->setText(QString::fromStdString(logik_->txtParameter));
    seite->Zeichnen();
    Schliessen();
    break;
  default:
    break;
  }
}

} // namespace quor::ui
