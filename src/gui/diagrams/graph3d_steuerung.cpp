#include "gui/diagrams/graph3d_steuerung.h"

#include "diagrams/graph3d.h"
#include "gui/diagrams/diagramm_seite.h"

#include <QMdiArea>

namespace quor::ui {

namespace {

constexpr const char* Menue3D = "mnu3DSub";
constexpr int LetzterEintrag = 10;

} // namespace

void Graph3DHandlerSetzen(BefehlsRegister& r, const std::function<void(int)>& start) {
  for (int index = 0; index <= LetzterEintrag; ++index)
    if (ArtVon3DMenue(index) != 0) r.Handler(Menue3D, index, start);
}

Graph3DSteuerung::Graph3DSteuerung(ProjectState& s, Oberflaeche& ui, QMdiArea* flaeche, QWidget* rahmen)
    : QObject(rahmen), s_(s), ui_(ui), flaeche_(flaeche), rahmen_(rahmen) {}

void Graph3DSteuerung::Menue(int index) {
  const int16_t art = ArtVon3DMenue(index);
  if (art == 0) return;
  SeiteHolen()->Neu(art);
}

Graph3DFenster* Graph3DSteuerung::SeiteHolen() {
  if (seite_) {
    flaeche_->setActiveSubWindow(fenster_);
    return seite_;
  }
  seite_ = new Graph3DFenster(s_, ui_);
  fenster_ = DiagrammSeiteEinsetzen(flaeche_, seite_, "frmGraph3DFenster", rahmen_->windowIcon());
  zerstoert_ = connect(seite_, &QObject::destroyed, this, [this] {
    seite_ = nullptr;
    fenster_ = nullptr;
  });
  fenster_->show();
  flaeche_->setActiveSubWindow(fenster_);
  return seite_;
}

void Graph3DSteuerung::SeiteSchliessen() {
  if (!fenster_) return;
  QMdiSubWindow* fenster = fenster_;
  // The page counts as closed at once, although the window goes only with the next event round.
  disconnect(zerstoert_);
  seite_ = nullptr;
  fenster_ = nullptr;
  fenster->close();
}

} // namespace quor::ui
