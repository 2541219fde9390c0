// The view of frmQBankEdit, the substance data editor: the six pages as tabs, every value a line
// edit with the editor's key filter, the correlated vapour-pressure sets read-only, and the buttons
// to take over, to write a private database, to draw, for Joback, the synonym list, help and Esc.
#pragma once

#include "substance/bank_editor.h"

#include <QWidget>

#include <map>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QVBoxLayout;

namespace quor::ui {

class Oberflaeche;

class BankEditorFenster : public QWidget {
  Q_OBJECT

public:
  BankEditorFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern = nullptr);

  // Fills the fields from the project state anew.
  void Laden();
  // The models changed: the labels of the current equations and the computed triple-point pressure.
  void ModellGeaendert();
  // A value of the Joback dialog into its field.
  void JobackWert(int ddIndex, double wert);

  frmQBankEdit& Logik() { return logik_; }
  QTabWidget* Seiten() const { return seiten_; }
  QLineEdit* Feld(int ddIndex) const;
  QPushButton* Knopf(const QString& name) const;

signals:
  // The take-over changed the substance: the frame shows the grade and the menus anew.
  void uebernommen();

protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;
  void keyPressEvent(QKeyEvent* ereignis) override;

private:
  QWidget* BaueSeite(BankSeite seite);
  QGroupBox* BaueGruppe(BankSeite seite, const char* gruppe);
  QWidget* BaueKorrelierte();
  QWidget* BaueKnopfLeiste();
  QPushButton* NeuerKnopf(const char* name, const QString& text, const QString& tip = QString());
  QPushButton* ZeichenKnopf(const char* name, const char* funktion, BankZeichnen knopf,
                            const QString& tip = QString());
  QLabel* Gleichung(const char* text);
  void SeiteErgaenzen(BankSeite seite, QVBoxLayout* layout);
  void Zeige();
  void Schliessen();

  ProjectState& s_;
  Oberflaeche& ui_;
  frmQBankEdit logik_;
  QTabWidget* seiten_;
  std::map<int, QLineEdit*> felder_;
  std::vector<std::vector<QLineEdit*>> korreliert_;
  QRadioButton* optpSL_[2] = {nullptr, nullptr};
  QLabel* mdbNr_ = nullptr;
  QLabel* dampfdruckWahl_ = nullptr;
  QLabel* cpWahl_ = nullptr;
};

} // namespace quor::ui
