// The view of frmJOBACK: the table of the 41 groups with every column and the count to type in,
// the choice of what is estimated, the results of that choice, the molar mass from the groups, and
// the buttons to transfer, to reset, for help and to close.
#pragma once

#include "substance/joback.h"

#include <QDialog>

#include <array>

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QTableWidget;
class QTableWidgetItem;

namespace quor::ui {

class Oberflaeche;

class JobackFenster : public QDialog {
  Q_OBJECT

public:
  // Columns of the group table.
  enum Spalte { SpalteAnzahl = 0, SpalteGruppe, SpalteAtome, SpalteM, ErsteIncrementSpalte, Spalten = 15 };

  JobackFenster(ProjectState& s, Oberflaeche& ui, int16_t modus, QWidget* eltern = nullptr);

  frmJOBACK& Logik() { return logik_; }
  QTableWidget* Tabelle() const { return tabelle_; }
  QLineEdit* Feld(const char* name) const;
  QPushButton* Knopf(const char* name) const;
  QRadioButton* ModusKnopf(int16_t modus) const { return modus_.at(static_cast<std::size_t>(modus - 1)); }

  // Shows the logic's fields (after a change of the logic from outside, e.g. the editor hook).
  void Zeige();

protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;
  // The transfer button's caption follows the editor hook set after construction.
  void showEvent(QShowEvent* ereignis) override;

private:
  QWidget* BaueModus();
  QTableWidget* BaueTabelle();
  QWidget* BaueKritisch();
  QWidget* BaueBildung();
  QWidget* BaueCp();
  QWidget* BaueKnoepfe();
  QLineEdit* NeuesFeld(const char* name, bool tippbar = false);
  QPushButton* NeuerKnopf(const char* name, const QString& text, QWidget* eltern);
  void AnzahlGeaendert(QTableWidgetItem* item);
  void TexteNehmen();
  template <typename Handlung> void Befehl(const char* name, Handlung handlung);

  frmJOBACK logik_;
  Oberflaeche& ui_;
  std::array<QRadioButton*, 3> modus_{};
  QTableWidget* tabelle_ = nullptr;
  QStackedWidget* seiten_ = nullptr;
  QLabel* lblRhoCr_ = nullptr;
  QLabel* omega_ = nullptr;
  bool zeigt_ = false; // the table is being filled from the logic
};

} // namespace quor::ui
