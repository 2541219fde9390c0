// The view of the X-Y data editor frmQXYEdit: the comment, the grid of x-y pairs with its marks, the
// row input (x, y, add or edit, OK or the key "+"), the buttons of the files, the printer, the 2D
// page, the clipboard, sorting, swapping, deleting and the conversions with their frame. Every action
// goes to the logic with the grid's selection written first; the window shows the logic anew after it.
#pragma once

#include "fitting/xy_editor.h"

#include <QWidget>

#include <array>
#include <functional>

class QGroupBox;
class QLineEdit;
class QMenu;
class QPushButton;
class QRadioButton;

namespace quor::ui {

class DatenTabellenAnsicht;
class DatenTabellenModell;
class Oberflaeche;

class XYEditorFenster : public QWidget {
  Q_OBJECT

public:
  XYEditorFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern = nullptr);

  frmQXYEdit& Logik() { return logik_; }
  DatenTabellenAnsicht* Tabelle() const { return tabelle_; }
  DatenTabellenModell* Modell() const { return modell_; }
  // "txtComment", "txtX", "txtY", "txtW"
  QLineEdit* Feld(const QString& name) const;
  // By the logic's command names: "cmdLoad", "cmdSave", "cmdDrawXY", "cmdKurve", "OKinput", ...
  QPushButton* Knopf(const QString& name) const;
  QRadioButton* Modus(int i) const { return modus_[static_cast<std::size_t>(i)]; }
  QRadioButton* Umrechnung(int i) const { return manip_[static_cast<std::size_t>(i)]; }
  QGroupBox* Umrechnungsrahmen() const { return fraManipulation_; }

  // Shows the logic's fields and the grid anew.
  void Zeige();
  QSize sizeHint() const override;
  // The choice of the 2D page's curves under "Kurve aus 2D-Diagramm übernehmen", built anew.
  void KurvenMenueFuellen();

  // The frame's services: points into the 2D page, the page on show (null when none), and the
  // active points into the fitting dialog.
  std::function<void(const DiagrammPunkte&)> PunkteZeichnen;
  std::function<const frmQGraph2D*()> Seite2D;
  std::function<void(const std::vector<FitPunkt>&)> FittingSenden;

protected:
  void closeEvent(QCloseEvent* ereignis) override;
  void keyPressEvent(QKeyEvent* ereignis) override;
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
  QWidget* BaueLinks();
  QWidget* BaueEingabe();
  QWidget* BaueKnoepfe(Oberflaeche& ui);
  QGroupBox* BaueUmrechnung();
  QPushButton* NeuerKnopf(const char* name, const QString& text, const QString& tipp,
                          std::function<void()> befehl);
  // Runs a command of the logic with the grid's selection and the fields taken first, and shows the
  // logic anew; the grid is left to the model when the command changed cells only.
  void Ausfuehren(const std::function<void()>& befehl, bool tabelleNeu = true);
  void FelderNehmen();
  void FelderZeigen(); // everything but the grid
  void ZeileGewaehlt(int zeile);
  void Zeichnen();
  void ZumFitting();

  frmQXYEdit logik_;
  DatenTabellenModell* modell_ = nullptr;
  DatenTabellenAnsicht* tabelle_ = nullptr;
  QLineEdit *kommentar_ = nullptr, *x_ = nullptr, *y_ = nullptr, *w_ = nullptr;
  std::array<QRadioButton*, 2> modus_{};
  std::array<QRadioButton*, 6> manip_{};
  QGroupBox* fraManipulation_ = nullptr;
  QMenu* kurven_ = nullptr;
};

} // namespace quor::ui
