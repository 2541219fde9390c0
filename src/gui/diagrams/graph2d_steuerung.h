// The 2D diagram page in the main frame: a 2D menu entry runs the catalogue's central routine with
// whether a page is open, makes or reuses the page as a child window of the work area, clears it
// when the user agreed, and then draws at once or waits for the curve's parameter. The insert menu
// reaches the page on show.
#pragma once

#include "gui/diagrams/graph2d_fenster.h"

#include <QMdiSubWindow>
#include <QObject>
#include <QPointer>

#include <string>

class QMdiArea;

namespace quor::ui {

class Oberflaeche;

class Graph2DSteuerung : public QObject {
  Q_OBJECT

public:
  Graph2DSteuerung(ProjectState& s, Oberflaeche& ui, QMdiArea* flaeche, QWidget* rahmen);

  // A command of the 2D menu (entry name and index).
  void Menue(const std::string& name, int index);
  // A command of the insert menu; nothing without a page.
  void Einfuegen(const std::string& name, int index);
  // The page for points that bring their own diagram (the data editors): the page on show, or a new
  // one made for `a`, a request without a catalogue code (its title, axis texts and ranges).
  Graph2DFenster* SeiteFuer(const DiagrammAuftrag& a);
  // Closes the page (another substance, database or project, or new units).
  void SeiteSchliessen();

  Graph2DFenster* Seite() const { return seite_; }
  QMdiSubWindow* SeitenFenster() const { return fenster_; }

signals:
  // The page was opened or closed: the entries that need it change.
  void seiteGeaendert();
  // The process dialog is asked for: a process line of the insert menu (its kind), the curve
  // parameter of an h-s or exergy diagram, a point picked on a curve of the page.
  void prozessLinieGewuenscht(int art);
  void prozessParameterGewuenscht();
  void punktGewaehlt(double T, double p);

private:
  Graph2DFenster* SeiteHolen();

  ProjectState& s_;
  Oberflaeche& ui_;
  QMdiArea* flaeche_;
  QWidget* rahmen_;
  QPointer<Graph2DFenster> seite_;
  QPointer<QMdiSubWindow> fenster_;
  QMetaObject::Connection zerstoert_;
};

} // namespace quor::ui
