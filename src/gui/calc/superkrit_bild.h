// frmPictureSuperCrit: a picture of the regions around the critical point in the p-T plane (liquid,
// vapour, the vapour-pressure curve ending at the critical point, and the three supercritical
// regions with the names the result page gives them). Drawn anew at every size of the window.
#pragma once

#include <QDialog>
#include <QWidget>

namespace quor::ui {

class SuperKritBild : public QWidget {
  Q_OBJECT

public:
  explicit SuperKritBild(QWidget* eltern = nullptr);
  QSize sizeHint() const override { return {620, 440}; }
  QSize minimumSizeHint() const override { return {320, 240}; }

protected:
  void paintEvent(QPaintEvent* ereignis) override;
};

class SuperKritFenster : public QDialog {
  Q_OBJECT

public:
  explicit SuperKritFenster(QWidget* eltern = nullptr);
  SuperKritBild* Bild() const { return bild_; }

private:
  SuperKritBild* bild_;
};

} // namespace quor::ui
