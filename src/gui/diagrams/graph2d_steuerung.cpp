#include "gui/diagrams/graph2d_steuerung.h"

#include "diagrams/diagramm_befehle.h"
#include "diagrams/katalog.h"
#include "dienste/oberflaeche.h"
#include "gui/diagrams/diagramm_seite.h"

#include <QMdiArea>

namespace quor::ui {

Graph2DSteuerung::Graph2DSteuerung(ProjectState& s, Oberflaeche& ui, QMdiArea* flaeche, QWidget* rahmen)
    : QObject(rahmen), s_(s), ui_(ui), flaeche_(flaeche), rahmen_(rahmen) {}

void Graph2DSteuerung::Menue(const std::string& name, int index) {
  if (!GrafErlaubt(s_, ui_, name, index)) return;
  DiagrammAuftrag a;
  a.Code = CodeVonMenue(name, index);
  if (a.Code == 0) return;
  const bool offen = seite_ != nullptr;
  if (offen) a.AchsentagAlt = seite_->Logik().Auftrag().Achsentag;
  const Graf2DErgebnis e = Graf2D_Zentrale(s_, ui_, a, offen);
  if (e.Folge == Graf2DFolge::Nichts) return;
  Graph2DFenster* seite = SeiteHolen();
  // A curve of the same axes joins the diagram on show; other axes start a new one.
  seite->Anfordern(a, !offen || e.DiagrammLoeschen);
  // The process page takes the parameter of the h-s and eH diagrams.
  if (e.Folge == Graf2DFolge::DiagrammSofort)
    seite->Zeichnen();
  else if (e.Folge == Graf2DFolge::ProzessSeite)
    emit prozessParameterGewuenscht();
  else
    seite->ParameterFokus();
}

void Graph2DSteuerung::Einfuegen(const std::string& name, int index) {
  if (seite_) seite_->Einfuegen(name, index);
}

Graph2DFenster* Graph2DSteuerung::SeiteFuer(const DiagrammAuftrag& a) {
  const bool offen = seite_ != nullptr;
  Graph2DFenster* seite = SeiteHolen();
  if (!offen) seite->Anfordern(a, true);
  return seite;
}

Graph2DFenster* Graph2DSteuerung::SeiteHolen() {
  if (seite_) {
    flaeche_->setActiveSubWindow(fenster_);
    return seite_;
  }
  seite_ = new Graph2DFenster(s_, ui_);
  fenster_ = DiagrammSeiteEinsetzen(flaeche_, seite_, "frmQGraph2DFenster", rahmen_->windowIcon());
  connect(seite_, &Graph2DFenster::prozessLinieGewuenscht, this, &Graph2DSteuerung::prozessLinieGewuenscht);
  connect(seite_, &Graph2DFenster::punktGewaehlt, this, &Graph2DSteuerung::punktGewaehlt);
  zerstoert_ = connect(seite_, &QObject::destroyed, this, [this] {
    seite_ = nullptr;
    fenster_ = nullptr;
    emit seiteGeaendert();
  });
  fenster_->show();
  flaeche_->setActiveSubWindow(fenster_);
  emit seiteGeaendert();
  return seite_;
}

void Graph2DSteuerung::SeiteSchliessen() {
  if (!fenster_) return;
  QMdiSubWindow* fenster = fenster_;
  // The page counts as closed at once, although the window goes only with the next event round.
  disconnect(zerstoert_);
  seite_ = nullptr;
  fenster_ = nullptr;
  fenster->close();
  emit seiteGeaendert();
}

} // namespace quor::ui
