// The substance data editor and the group-contribution estimate in the main frame: the editor as a
// child window of the work area (its drawing buttons reach the 2D page, its Joback buttons the
// estimate, whose values then go into the editor's fields), the estimate on its own from the data
// menu (its values then go into the substance).
#pragma once

#include "core/project_state.h"
#include "gui/substance/bank_editor_fenster.h"

#include <QMdiSubWindow>
#include <QObject>
#include <QPointer>

#include <functional>

class QMdiArea;

namespace quor::ui {

class Graph2DSteuerung;
class Oberflaeche;

class StoffEditorSteuerung : public QObject {
  Q_OBJECT

public:
  StoffEditorSteuerung(ProjectState& s, Oberflaeche& ui, QMdiArea* flaeche, Graph2DSteuerung& graf2d,
                       QWidget* rahmen);

  // mnuData_EditDatenbank: the editor opened, or brought forward with the substance's values.
  void BankEditorZeigen();
  // The estimate in one of its modes (critical data, formation, cp), modal.
  void JobackZeigen(int16_t modus);
  // The model window changed the models: the editor shows what follows from them.
  void ModellGeaendert();

  BankEditorFenster* BankEditor() const { return editor_; }
  QMdiSubWindow* BankEditorRahmen() const { return fenster_; }

  // Set by the frame: the model window built anew, and the frame's enabling after a take-over.
  std::function<void()> ModellFensterNeu;
  std::function<void()> Geaendert;

private:
  ProjectState& s_;
  Oberflaeche& ui_;
  QMdiArea* flaeche_;
  Graph2DSteuerung& graf2d_;
  QWidget* rahmen_;
  QPointer<BankEditorFenster> editor_;
  QPointer<QMdiSubWindow> fenster_;
};

} // namespace quor::ui
