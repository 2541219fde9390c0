// The window of the unit converter: the quantity on the left, the value with its unit and the molar
// mass above, and the value in every unit of the quantity below, recalculated as one types.
#pragma once

#include "umrechnung.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QTableWidget;

namespace quor::tavik {

class TavikFenster : public QWidget {
  Q_OBJECT

public:
  explicit TavikFenster(bool englisch, QWidget* eltern = nullptr);

  QListWidget* GroessenListe() const { return groessen_; }
  QLineEdit* WertFeld() const { return wert_; }
  QComboBox* EinheitenBox() const { return einheit_; }
  QLineEdit* MolmassenFeld() const { return molmasse_; }
  QTableWidget* Tabelle() const { return tabelle_; }
  QLabel* Meldung() const { return meldung_; }

  // The shown value of unit row `zeile` (empty when it cannot be given).
  QString Ergebnis(int zeile) const;

private:
  void GroesseGewaehlt(int zeile);
  void Rechnen();

  bool englisch_;
  Groesse groesse_ = Groesse::Temperatur;
  QListWidget* groessen_;
  QLineEdit* wert_;
  QComboBox* einheit_;
  QLabel* molmasseText_;
  QLineEdit* molmasse_;
  QTableWidget* tabelle_;
  QLabel* meldung_;
};

} // namespace quor::tavik
