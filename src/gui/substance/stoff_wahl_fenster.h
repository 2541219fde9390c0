// The view of frmQStoffWahl: the substance list of the open database, the system-number field, the
// name field with the texts searched for, the CAS and structure lines and the OK button. Enter in the
// list or a second Enter on the same hit in the name field loads the substance; Esc in the name field
// goes to the list, Esc elsewhere closes the window.
#pragma once

#include "substance/stoff_wahl.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace quor::ui {

class Oberflaeche;

class StoffWahlFenster : public QDialog {
  Q_OBJECT

public:
  StoffWahlFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern);

  // Builds the list for the open database; false (after the logic's message) when there is none.
  bool Laden();

  frmQStoffWahl& Logik() { return logik_; }
  QListWidget* Liste() const { return liste_; }
  QComboBox* NamensFeld() const { return name_; }
  QLineEdit* NummernFeld() const { return nummer_; }
  QPushButton* OKKnopf() const { return ok_; }

signals:
  // The substance is loaded: the model window comes next.
  void stoffGeladen();

protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
  void BaueOberflaeche();
  QLayout* BaueEingabeSpalte();
  void Zeige();
  void NachAktion(StoffWahlAktion aktion);
  void NameUebernehmen();
  void SynonymeZeigen();

  ProjectState& s_;
  Oberflaeche& ui_;
  frmQStoffWahl logik_;
  QLabel* caption_ = nullptr;
  QLabel* kopf_ = nullptr;
  QListWidget* liste_ = nullptr;
  QLineEdit* nummer_ = nullptr;
  QComboBox* name_ = nullptr;
  QLabel* cas_ = nullptr;
  QLabel* struktur_ = nullptr;
  QLabel* datenbank_ = nullptr;
  QPushButton* ok_ = nullptr;
  bool zeigt_ = false;
};

} // namespace quor::ui
