// The main frame: menus, toolbar, status bar and the area that holds the child windows.
#pragma once

#include <QMainWindow>

class QMdiArea;

namespace quor {
struct ProjectState;
}

namespace quor::ui {

class Oberflaeche;

extern const char* const HauptfensterTitel;

class mdiQUOR : public QMainWindow {
  Q_OBJECT

public:
  mdiQUOR(ProjectState& state, Oberflaeche& ui, QWidget* eltern = nullptr);

  QMdiArea* Arbeitsflaeche() const { return mdi_; }

private:
  ProjectState& state_;
  Oberflaeche& ui_;
  QMdiArea* mdi_;
};

} // namespace quor::ui
