// The two small dialogs of the 2D diagram page: the input of the axis range (four number fields) and
// the look of one curve (colour, line style, width, symbol).
#pragma once

#include "diagrams/diagramm_bild.h"

#include <QDialog>

#include <array>
#include <optional>
#include <string>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLineEdit;
class QPushButton;

namespace quor::ui {

// How an axis labels its ticks and whether it draws a grid.
struct AchsenStil2D {
  std::string Format; // Basic-style pattern ("0.000", "0.0E+00"); empty: automatic
  bool Gitter = false;
};

// The axis range in displayed units: X from, X to, Y from, Y to; and the number format and grid of
// each axis.
class BereichDialog : public QDialog {
  Q_OBJECT

public:
  BereichDialog(const std::array<double, 4>& bereich, const QString& xText, const QString& yText,
                const std::array<AchsenStil2D, 2>& stil = {}, QWidget* eltern = nullptr);

  QLineEdit* Feld(int i) const { return felder_[static_cast<std::size_t>(i)]; }
  QLineEdit* FormatFeld(int achse) const { return formate_[static_cast<std::size_t>(achse)]; }
  std::array<AchsenStil2D, 2> Stil() const;
  // The four numbers of the fields; empty when one of them is no number.
  std::optional<std::array<double, 4>> Werte() const;
  // Closes only when every field holds a number; else the first other text is selected.
  void accept() override;

private:
  std::array<QLineEdit*, 4> felder_{};
  std::array<QLineEdit*, 2> formate_{};
  std::array<QCheckBox*, 2> gitter_{};
};

// The look of a curve as the page's style dialog sets it.
struct KurvenStil {
  RGBFarbe Farbe;
  LinienArt Linie = LinienArt::Durchgezogen;
  double Breite = 1.5;
  PunktSymbol Symbol = PunktSymbol::Keines;
};

class StilDialog : public QDialog {
  Q_OBJECT

public:
  StilDialog(const QString& legende, const KurvenStil& stil, QWidget* eltern = nullptr);

  KurvenStil Stil() const;
  QPushButton* FarbKnopf() const { return farbe_; }
  QComboBox* Linie() const { return linie_; }
  QDoubleSpinBox* Breite() const { return breite_; }
  QComboBox* Symbol() const { return symbol_; }
  // Copies the curve's points to the clipboard; the page connects it.
  QPushButton* Zwischenablage() const { return zwischenablage_; }
  void SetzeFarbe(RGBFarbe f);

private:
  RGBFarbe gewaehlt_;
  QPushButton* farbe_;
  QComboBox* linie_;
  QDoubleSpinBox* breite_;
  QComboBox* symbol_;
  QPushButton* zwischenablage_;
};

// A button that shows a colour as its face.
void FarbeZeigen(QPushButton* knopf, RGBFarbe f);

} // namespace quor::ui
