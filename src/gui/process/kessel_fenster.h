// The view of the vessel picture frmKessel: the lying cylinder with its filling, the gauge with the
// pressure field, the level indicator on the right, the legend and the fill level, drawn anew at any
// size; help and close buttons below. The window's place is kept in the project state.
#pragma once

#include "process/kessel.h"

#include <QDialog>
#include <QWidget>

class QLabel;

namespace quor::ui {

class Oberflaeche;

// The drawing area: every coordinate of the logic is a percentage of its width or height.
class KesselBild : public QWidget {
  Q_OBJECT

public:
  KesselBild(const prozess::frmKessel& logik, QWidget* eltern = nullptr);
  QSize sizeHint() const override { return {640, 440}; }
  QSize minimumSizeHint() const override { return {320, 220}; }

protected:
  void paintEvent(QPaintEvent* ereignis) override;

private:
  const prozess::frmKessel& logik_;
};

class KesselFenster : public QDialog {
  Q_OBJECT

public:
  KesselFenster(ProjectState& s, Oberflaeche& ui, const BehaelterZustand& z, QWidget* eltern = nullptr);

  prozess::frmKessel& Logik() { return logik_; }
  KesselBild* Bild() const { return bild_; }

protected:
  void moveEvent(QMoveEvent* ereignis) override;
  void resizeEvent(QResizeEvent* ereignis) override;

private:
  void LageMerken();

  ProjectState& s_;
  prozess::frmKessel logik_;
  KesselBild* bild_ = nullptr;
  bool geladen_ = false; // the kept place is taken; from now on the window's own is kept
};

} // namespace quor::ui
