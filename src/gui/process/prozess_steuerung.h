// The process dialog in the main frame: opened by the insert menu's process lines, by the h-s and
// exergy diagrams for their curve parameter and by the polytropic process of the calculation menu.
// It stays beside the diagram page: a click on a curve gives the start, and what cmdDrawPL hands on
// goes to the page (the line waits for its draw button, the polytrope's points come at once) or to
// the result page.
#pragma once

#include "gui/process/iso_rechner_fenster.h"
#include "gui/process/kessel_fenster.h"
#include "gui/process/prozess_fenster.h"
#include "process/prozess_dialog.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>
#include <string>

namespace quor::ui {

class Graph2DSteuerung;
class Oberflaeche;

class ProzessSteuerung : public QObject {
  Q_OBJECT

public:
  ProzessSteuerung(ProjectState& s, Oberflaeche& ui, Graph2DSteuerung& graf2d, QWidget* rahmen);
  ~ProzessSteuerung() override;

  // Opens the dialog for a kind of line; `ausRechnung` for the polytropic process of the
  // calculation menu, whose report goes to the result page.
  void Oeffnen(int16_t art, bool ausRechnung = false);
  // Closes the dialogs (another substance, database or project).
  void Schliessen();
  // The iso-line calculator of a result page, with the page's context (its last state).
  void IsoRechnerOeffnen(const RechenKontext& seite);
  IsoRechnerFenster* IsoRechner() const { return iso_; }
  // The vessel picture of a vessel calculation; a new state replaces the picture on show.
  void KesselOeffnen(const BehaelterZustand& z);
  KesselFenster* Kessel() const { return kessel_; }
  // Opens the X-Y editor for the calculator's curve points (set by the frame).
  std::function<void()> KurvenInputOeffnen;

  ProzessFenster* Fenster() const { return fenster_; }
  prozess::frmInputProzessLinien& Logik() { return *logik_; }

  // The result page of the polytropic process with the calculator's report (set by the frame).
  std::function<bool(const std::string& bericht)> PolytropeErgebnis;

private:
  void Gezeichnet(prozess::ProzessFolge folge);
  void PunktGewaehlt(double T, double p);

  ProjectState& s_;
  Oberflaeche& ui_;
  Graph2DSteuerung& graf2d_;
  QWidget* rahmen_;
  std::unique_ptr<prozess::frmInputProzessLinien> logik_;
  QPointer<ProzessFenster> fenster_;
  QPointer<IsoRechnerFenster> iso_;
  QPointer<KesselFenster> kessel_;
};

} // namespace quor::ui
