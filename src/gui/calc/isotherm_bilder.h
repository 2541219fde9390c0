// The pictures of the cubic equation's isotherm for the diagnostics: three roots below the critical
// temperature (the loop cut by the isobar three times), one root below it, and one root at or above
// it. Drawn anew at every size from the reduced van der Waals isotherm.
#pragma once

#include "calc/ceos_diagnose.h"

#include <QWidget>

#include <vector>

namespace quor::ui {

class IsothermBild : public QWidget {
  Q_OBJECT

public:
  explicit IsothermBild(QWidget* eltern = nullptr);

  void SetzeFall(frmCEOSDiagnose::Bild fall);
  frmCEOSDiagnose::Bild Fall() const { return fall_; }
  // The reduced volumes where the isobar of the picture cuts its isotherm, smallest first.
  std::vector<double> Wurzeln() const;

  QSize sizeHint() const override { return {380, 280}; }
  QSize minimumSizeHint() const override { return {240, 180}; }

protected:
  void paintEvent(QPaintEvent* ereignis) override;

private:
  double Tr() const;
  double Pr() const;

  frmCEOSDiagnose::Bild fall_ = frmCEOSDiagnose::Bild::Keins;
};

} // namespace quor::ui
