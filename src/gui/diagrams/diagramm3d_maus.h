// The mouse on the 3D chart: the left button moves the scene, spins it or scales it, as the page's
// mouse mode says. Spinning and scaling are the chart's own camera input (the right button always
// spins, the wheel always scales); moving shifts the camera's target in the plane of the screen.
#pragma once

#include <Q3DInputHandler>
#include <QPoint>
#include <QVector3D>

namespace quor::ui {

enum class MausModus { Verschieben, Drehen, Skalieren };

class Maus3D : public Q3DInputHandler {
  Q_OBJECT

public:
  explicit Maus3D(QObject* eltern = nullptr);

  void SetzeModus(MausModus m) { modus_ = m; }
  MausModus Modus() const { return modus_; }

  void mousePressEvent(QMouseEvent* e, const QPoint& ort) override;
  void mouseMoveEvent(QMouseEvent* e, const QPoint& ort) override;
  void mouseReleaseEvent(QMouseEvent* e, const QPoint& ort) override;

private:
  // The camera's target after a drag by `d` pixels from where it stood at the press.
  QVector3D Verschoben(const QPoint& d) const;

  MausModus modus_ = MausModus::Drehen;
  bool ziehen_ = false; // a left-button drag of this handler's own (move or scale)
  QPoint start_;
  QVector3D startZiel_;
  float startZoom_ = 100;
};

} // namespace quor::ui
