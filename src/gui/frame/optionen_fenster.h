// The view of frmQOptions: units, separators, calculation mode, curve resolution and the diagram
// options. OK hands the fields to the logic; Esc or "Abbrechen <Esc>" discards them.
#pragma once

#include "core/optionen.h"

#include <QDialog>

#include <array>
#include <functional>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QSlider;

namespace quor::ui {

class Oberflaeche;

class OptionenFenster : public QDialog {
  Q_OBJECT

public:
  using NachOK = std::function<void(const OptionenAktionen&)>;

  // `normierung` opens the reference-state dialog; without it the button stays disabled.
  OptionenFenster(ProjectState& s, Oberflaeche& ui, NachOK nachOK, std::function<void()> normierung,
                  QWidget* eltern);

  frmQOptions& Logik() { return logik_; }
  QRadioButton* MolarSpez(int i) const { return molarSpez_[static_cast<std::size_t>(i)]; }
  QRadioButton* KurvenMischen(int i) const { return mischen_[static_cast<std::size_t>(i)]; }
  QRadioButton* CalcMode(int i) const { return calcMode_[static_cast<std::size_t>(i)]; }
  QCheckBox* Reduziert() const { return reduziert_; }
  QComboBox* SepCSV() const { return sepCSV_; }
  QComboBox* SepXY() const { return sepXY_; }
  QSlider* Punktdichte() const { return slider_; }
  QPushButton* OKKnopf() const { return ok_; }
  QPushButton* Normierung() const { return normierung_; }

  void cmdOK();

private:
  QWidget* BaueEinheiten();
  QWidget* BaueTrenner();
  QWidget* BaueDiagramme();
  QWidget* BaueRechnung();
  QWidget* BaueAufloesung();
  QCheckBox* Box(const char* name, const char* text, const char* tipp = nullptr);
  void Zeige();
  void Uebernehmen();

  frmQOptions logik_;
  NachOK nachOK_;
  std::function<void()> normierungAufruf_;
  std::array<QRadioButton*, 2> molarSpez_{};
  std::array<QRadioButton*, 2> mischen_{};
  std::array<QRadioButton*, 2> calcMode_{};
  QCheckBox* reduziert_ = nullptr;
  QComboBox* sepCSV_ = nullptr;
  QComboBox* sepXY_ = nullptr;
  QSlider* slider_ = nullptr;
  QLabel* punkte_ = nullptr;
  QCheckBox* unload_ = nullptr;
  QCheckBox* parSpeichern_ = nullptr;
  QCheckBox* partial_ = nullptr;
  QCheckBox* sKurve_ = nullptr;
  QCheckBox* tp_ = nullptr;
  QPushButton* ok_ = nullptr;
  QPushButton* normierung_ = nullptr;
};

} // namespace quor::ui
