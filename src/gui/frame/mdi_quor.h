// The main frame: menus, toolbar, status bar, the Daten-Ampel and the area that holds the child
// windows. The menu tree comes from its table; every command goes to the frame logic, and after each
// one the frame shows the project state anew (enabled entries, status bar panels, Ampel colour).
#pragma once

#include "core/rahmen.h"

#include <QMainWindow>
#include <QMap>

#include <memory>
#include <vector>

class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QToolButton;

namespace quor::ui {

class Oberflaeche;
class DatenEditorSteuerung;
class Graph2DSteuerung;
class Graph3DSteuerung;
class ModellFenster;
class ProzessSteuerung;
class StoffEditorSteuerung;
class RechnungSteuerung;
class StoffWahlFenster;

extern const char* const HauptfensterTitel;

class mdiQUOR : public QMainWindow {
  Q_OBJECT

public:
  mdiQUOR(ProjectState& state, Oberflaeche& ui, QWidget* eltern = nullptr);
  ~mdiQUOR() override;

  // The frame logic's start with the command line; then the frame shows what it allows.
  void Starten(const std::string& kommandozeile);

  QMdiArea* Arbeitsflaeche() const { return mdi_; }
  RahmenLogik& Logik() { return *logik_; }
  // A menu entry (or a submenu's entry) by control name and array index; null if there is none.
  QAction* Befehl(const QString& name, int index = -1) const;
  QMenu* Menue(const QString& name, int index = -1) const;
  // Toolbar button 0 to 32 (separators included), null outside.
  QAction* Knopf(int index) const;
  QString StatusText(int panel) const;
  QToolButton* Ampel() const { return ampel_; }
  StoffWahlFenster* StoffWahl() const { return stoffWahl_; }
  ModellFenster* Modelle() const { return modell_; }
  RechnungSteuerung* Rechnung() const { return rechnung_; }
  Graph2DSteuerung* Graf2D() const { return graf2d_; }
  Graph3DSteuerung* Graf3D() const { return graf3d_; }
  DatenEditorSteuerung* Editoren() const { return editoren_; }
  ProzessSteuerung* Prozess() const { return prozess_; }
  StoffEditorSteuerung* StoffEditoren() const { return stoffEditoren_; }

  // Enabled entries and buttons, status bar panels and Ampel from the project state.
  void Aktualisieren();
  void StoffWahlZeigen();
  // Builds the model window for the loaded substance (the first time or on `neuAufbauen`) and shows it.
  void ModellFensterZeigen(bool neuAufbauen);
  // Another substance, database or project: the windows of the former substance close.
  void StoffFensterSchliessen();

protected:
  void closeEvent(QCloseEvent* ereignis) override;

private:
  RahmenDienste Dienste();
  void BefehleRegistrieren();
  void BaueMenues();
  void BaueMenue(QWidget* behaelter, const std::string& eltern, int elternIndex);
  void BaueToolbar();
  void BaueStatusleiste();
  void BefehlAusloesen(const QString& name, int index);
  void AmpelZeigen();

  ProjectState& state_;
  Oberflaeche& ui_;
  std::unique_ptr<RahmenLogik> logik_;
  QMdiArea* mdi_;
  QMap<QString, QAction*> befehle_; // key "name(index)": entries, separators and submenu entries
  QMap<QString, QMenu*> menues_;
  std::vector<QAction*> knoepfe_;
  std::vector<QLabel*> panels_;
  QToolButton* ampel_ = nullptr;
  StoffWahlFenster* stoffWahl_ = nullptr;
  ModellFenster* modell_ = nullptr;
  QMdiSubWindow* modellFenster_ = nullptr;
  RechnungSteuerung* rechnung_ = nullptr;    // the windows of the state calculations
  Graph2DSteuerung* graf2d_ = nullptr;       // the 2D diagram page
  Graph3DSteuerung* graf3d_ = nullptr;       // the 3D diagram page
  DatenEditorSteuerung* editoren_ = nullptr; // the data editors and the fitting dialog
  ProzessSteuerung* prozess_ = nullptr;      // the process dialog
  StoffEditorSteuerung* stoffEditoren_ = nullptr; // the substance data editor and the estimate
};

} // namespace quor::ui
