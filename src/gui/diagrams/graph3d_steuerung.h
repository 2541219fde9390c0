// The 3D diagram page in the main frame: an entry of the 3D menu (mnu3DSub) chooses the surface,
// makes or reuses the page as a child window of the work area and draws the surface there.
#pragma once

#include "core/befehls_register.h"
#include "gui/diagrams/graph3d_fenster.h"

#include <QMdiSubWindow>
#include <QObject>
#include <QPointer>

#include <functional>
#include <string>

class QMdiArea;

namespace quor::ui {

class Oberflaeche;

// Attaches `start` to every entry of the 3D menu that chooses a surface, which makes those rows built.
void Graph3DHandlerSetzen(BefehlsRegister& r, const std::function<void(int)>& start);

class Graph3DSteuerung : public QObject {
  Q_OBJECT

public:
  Graph3DSteuerung(ProjectState& s, Oberflaeche& ui, QMdiArea* flaeche, QWidget* rahmen);

  // An entry of the 3D menu by its index.
  void Menue(int index);
  // Closes the page (another substance, database or project, or new units).
  void SeiteSchliessen();

  Graph3DFenster* Seite() const { return seite_; }
  QMdiSubWindow* SeitenFenster() const { return fenster_; }

private:
  Graph3DFenster* SeiteHolen();

  ProjectState& s_;
  Oberflaeche& ui_;
  QMdiArea* flaeche_;
  QWidget* rahmen_;
  QPointer<Graph3DFenster> seite_;
  QPointer<QMdiSubWindow> fenster_;
  QMetaObject::Connection zerstoert_;
};

} // namespace quor::ui
