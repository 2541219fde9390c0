// The windows of a state calculation in the main frame: the concept dialog, the result page as a
// child window of the work area, the value dialog over it, and the page's companions (diagnostics and
// the picture of the supercritical regions). It gives the start routine its windows and ties the
// value dialog to the page, so that each input is calculated and shown at once.
#pragma once

#include "calc/rechnungs_ablauf.h"
#include "gui/calc/calc_in_fenster.h"
#include "gui/calc/ceos_diagnose_fenster.h"
#include "gui/calc/ergebnis_fenster.h"
#include "gui/calc/parinput_fenster.h"
#include "gui/calc/superkrit_bild.h"

#include <QMdiSubWindow>
#include <QObject>
#include <QPointer>

#include <functional>
#include <optional>
#include <string>

class QMdiArea;

namespace quor::ui {

class Oberflaeche;

class RechnungSteuerung : public QObject {
  Q_OBJECT

public:
  RechnungSteuerung(ProjectState& s, Oberflaeche& ui, QMdiArea* flaeche, QWidget* rahmen);
  ~RechnungSteuerung() override;

  // A command of the calculation menu (entry name and index).
  void Menue(const std::string& name, int index);
  // The dialog of the reference state (toolbar).
  void ReferenzZeigen();
  // Closes the result page with its companions (an open record is written then).
  void SeiteSchliessen();
  // The result page of the polytropic process with the calculator's report.
  bool PolytropeZeigen(const std::string& bericht);
  // The process dialog of the polytropic process, and the iso-line calculator of a result page with
  // the page's context (set by the frame).
  std::function<void()> ProzessZeigen;
  std::function<void(const RechenKontext&)> IsoRechnerZeigen;
  // The vessel picture of kinds 9 and 10 with the state the calculation handed on; it opens after
  // the result page has shown the calculation (set by the frame).
  std::function<void(const BehaelterZustand&)> BehaelterZeigen;

  RechnungsFenster Fenster() { return ablauf_.Fenster(); }

  ErgebnisFenster* Seite() const { return seite_; }
  QMdiSubWindow* SeitenFenster() const { return seitenFenster_; }
  ParinputFenster* Parinput() const { return parinput_; }
  CalcInFenster* CalcIn() const { return calcIn_; }
  CEOSDiagnoseFenster* Diagnose() const { return diagnose_; }
  SuperKritFenster* SuperKrit() const { return superKrit_; }

private:
  RechnungsAblauf::Ansicht Ansicht();
  frmQCalcOut* SeiteAnlegen();
  void SeiteGeladen(bool offen);
  void ParinputZeigen();
  void CalcInZeigen();
  void DiagnoseZeigen();
  void SuperKritUmschalten();
  void SeiteEntladen();
  void BegleiterSchliessen();
  std::string Berechnen();

  ProjectState& s_;
  Oberflaeche& ui_;
  QMdiArea* flaeche_;
  QWidget* rahmen_;
  QPointer<ErgebnisFenster> seite_;
  QPointer<QMdiSubWindow> seitenFenster_;
  QPointer<ParinputFenster> parinput_;
  QPointer<CalcInFenster> calcIn_;
  QPointer<CEOSDiagnoseFenster> diagnose_;
  QPointer<SuperKritFenster> superKrit_;
  // The vessel's state handed on by the calculation under way.
  std::optional<BehaelterZustand> behaelter_;
  RechnungsAblauf ablauf_; // last: its hooks use the members above
};

} // namespace quor::ui
