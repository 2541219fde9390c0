#include "gui/fitting/daten_editor_steuerung.h"

#include "gui/diagrams/graph2d_steuerung.h"
#include "gui/fitting/tprho_editor_fenster.h"
#include "gui/fitting/xy_editor_fenster.h"

#include <QMdiArea>

#include <algorithm>

namespace quor::ui {

DatenEditorSteuerung::DatenEditorSteuerung(ProjectState& s, Oberflaeche& ui, QMdiArea* flaeche,
                                           Graph2DSteuerung* graf2d, QWidget* rahmen)
    : QObject(rahmen), s_(s), ui_(ui), flaeche_(flaeche), graf2d_(graf2d), rahmen_(rahmen) {
  // The X-Y editor offers the curves of a page while one is open.
  connect(graf2d_, &Graph2DSteuerung::seiteGeaendert, this, [this] {
    if (xy_) xy_->Zeige();
  });
}

// A window of its natural size at `ecke` of the work area, no larger than the area and inside it.
QMdiSubWindow* DatenEditorSteuerung::Einsetzen(QWidget* editor, const char* name, const QPoint& ecke) {
  QMdiSubWindow* fenster = flaeche_->addSubWindow(editor);
  fenster->setObjectName(name);
  fenster->setWindowIcon(rahmen_->windowIcon());
  fenster->setAttribute(Qt::WA_DeleteOnClose);
  const QSize bereich = flaeche_->viewport()->size();
  QRect lage(ecke, fenster->sizeHint().boundedTo(bereich));
  lage.moveLeft(std::clamp(lage.left(), 0, std::max(0, bereich.width() - lage.width())));
  lage.moveTop(std::clamp(lage.top(), 0, std::max(0, bereich.height() - lage.height())));
  fenster->setGeometry(lage);
  return fenster;
}

void DatenEditorSteuerung::XYEditorZeigen() {
  if (!xy_) {
    xy_ = new XYEditorFenster(s_, ui_);
    xy_->PunkteZeichnen = [this](const DiagrammPunkte& p) { PunkteZeichnen(p); };
    xy_->Seite2D = [this]() -> const frmQGraph2D* {
      Graph2DFenster* seite = graf2d_->Seite();
      return seite ? &seite->Logik() : nullptr;
    };
    xy_->FittingSenden = [this](const std::vector<FitPunkt>& p) { FittingMitPunkten(p); };
    xy_->Zeige();
    xyFenster_ = Einsetzen(xy_, "frmQXYEditFenster", QPoint(60, 40));
  }
  xyFenster_->show();
  flaeche_->setActiveSubWindow(xyFenster_);
}

void DatenEditorSteuerung::MessdatenEditorZeigen() {
  if (!tprho_) {
    tprho_ = new TpRhoEditorFenster(s_, ui_);
    tprho_->Logik().DateiWaehlen = BatchDateiWaehlen;
    tprho_->PunkteZeichnen = [this](const DiagrammPunkte& p) { PunkteZeichnen(p); };
    tprho_->FittingSenden = [this](const FitUebergabe& u) { FittingMitMessdaten(u); };
    connect(tprho_, &TpRhoEditorFenster::geaendert, this, &DatenEditorSteuerung::datenGeaendert);
    tprho_->Laden();
    tprhoFenster_ = Einsetzen(tprho_, "frmTpRhoEditFenster", QPoint(0, 0));
  }
  tprhoFenster_->show();
  flaeche_->setActiveSubWindow(tprhoFenster_);
  emit datenGeaendert();
}

void DatenEditorSteuerung::MessdatenNeu() {
  MessdatenGruppe& m = s_.Mess;
  m.ExpDaten.assign(1, ExpDatenSatz{});
  m.ExpAnzahl = 0;
  m.BatchDateiPfad.clear();
  m.BatchDateiTitel.clear();
  m.BatchKommentar.clear();
  m.BatchGeaendert = false;
  s_.Projekt.Freigaben.ExpDaten = false;
  if (tprho_) tprho_->Laden(); // an open editor shows the empty table
  MessdatenEditorZeigen();
}

bool DatenEditorSteuerung::Schliessen() {
  for (QMdiSubWindow* fenster : {xyFenster_.data(), tprhoFenster_.data()})
    if (fenster && !fenster->close()) return false;
  return true;
}

// The question would come after the change: a save would then write the new substance into the
// file's substance line, and "Abbrechen" could not keep the former substance. The data stay in memory
// as the substance choice or the project left them, with their flag of unsaved changes.
void DatenEditorSteuerung::MessdatenEditorSchliessen() {
  if (tprho_) tprho_->SchliessenOhneFrage();
}

void DatenEditorSteuerung::PunkteZeichnen(const DiagrammPunkte& p) {
  Graph2DFenster* seite = graf2d_->SeiteFuer(p.NeuesDiagramm);
  seite->Logik().cmdExternPoints(p.X, p.Y, p.Quelle, p.Legende);
  seite->Zeige();
}

// ----- the fitting dialog -----

bool DatenEditorSteuerung::FittingHolen() {
  if (fitting_) return false;
  fitting_ = new FittingFenster(s_, ui_);
  fitting_->DiagrammZeichnen = [this](const FitDiagramm& d) { FitDiagrammZeichnen(d); };
  fitting_->TextZeigen = [this](const frmQTextEdit& t) {
    if (TextZeigen) TextZeigen(t);
  };
  connect(fitting_, &FittingFenster::stoffGeaendert, this, &DatenEditorSteuerung::stoffGeaendert);
  fittingFenster_ = Einsetzen(fitting_, "frmQFittingFenster", QPoint(30, 20));
  return true;
}

void DatenEditorSteuerung::FittingVorne() {
  fittingFenster_->show();
  flaeche_->setActiveSubWindow(fittingFenster_);
}

void DatenEditorSteuerung::FittingZeigen() {
  if (FittingHolen()) fitting_->Laden();
  FittingVorne();
}

void DatenEditorSteuerung::FittingMitMessdaten(const FitUebergabe& u) {
  FittingHolen();
  fitting_->DatenLaden(u);
  FittingVorne();
}

void DatenEditorSteuerung::FittingMitPunkten(const std::vector<FitPunkt>& punkte) {
  FittingHolen();
  fitting_->DatenLaden(punkte);
  FittingVorne();
}

// The points first, then the curve; a page made for the diagram takes the ranges of both.
void DatenEditorSteuerung::FitDiagrammZeichnen(const FitDiagramm& d) {
  PunkteZeichnen(d.Punkte);
  Graph2DFenster* seite = graf2d_->Seite();
  if (!seite || d.KurveX.empty()) return;
  seite->Logik().cmdExternKurve(d.KurveX, d.KurveY, d.KurvenLegende);
  seite->Zeige();
}

} // namespace quor::ui
