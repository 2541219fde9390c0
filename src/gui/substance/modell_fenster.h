// The view of frmQModell, the switchboard: the lists of the equation of state, the vapour-pressure
// equation, the delta(LV)h method with the Watson exponent and the ideal-gas cp equation, the
// L-density lines and the GLOBAL/PARTIAL options. Every choice goes to the logic, which tests the
// models at once; Esc hides the window.
#pragma once

#include "substance/modell_wahl.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QListWidget;
class QRadioButton;

namespace quor::ui {

class Oberflaeche;

class ModellFenster : public QWidget {
  Q_OBJECT

public:
  ModellFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern = nullptr);

  // Builds the lists for the loaded substance and tests the models.
  void Laden();

  frmQModell& Logik() { return logik_; }
  QListWidget* EOSListe() const { return eos_; }
  QListWidget* DampfdruckListe() const { return dampfdruck_; }
  QListWidget* HLVListe() const { return hlv_; }
  QListWidget* CpListe() const { return cp_; }
  QRadioButton* Konzept(int option) const { return option == 0 ? global_ : partial_; }

signals:
  // A choice changed the models: the frame shows the status bar and the menus anew.
  void geaendert();

protected:
  void keyPressEvent(QKeyEvent* ereignis) override;

private:
  QWidget* Gruppe(const QString& titel, QWidget* inhalt, QWidget* zusatz = nullptr);
  QListWidget* NeueListe(const char* name);
  void Verbinden();
  void Zeige();
  void Nachher(const ModellAktionen& a);

  ProjectState& s_;
  Oberflaeche& ui_;
  frmQModell logik_;
  QListWidget* eos_;
  QListWidget* dampfdruck_;
  QListWidget* hlv_;
  QListWidget* cp_;
  QComboBox* watson_;
  QLabel* watsonLabel_;
  QLabel* rhoL_;
  QLabel* rhoLBereich_;
  QRadioButton* global_;
  QRadioButton* partial_;
  bool zeigt_ = false;
};

} // namespace quor::ui
