#include "gui/diagrams/diagramm3d_maus.h"

#include <Q3DCamera>
#include <Q3DScene>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>

namespace quor::ui {

namespace {

constexpr float Grad = 3.14159265f / 180.0f;
// Pixels of vertical drag that scale the scene by the factor e.
constexpr float SkalierPixel = 150.0f;
// The box is half as high as it is wide: a step of the target upwards moves the scene twice as far.
constexpr float HochFaktor = 1.7f;

Q3DCamera* Kamera(const Q3DInputHandler& h) {
  return h.scene() ? h.scene()->activeCamera() : nullptr;
}

} // namespace

Maus3D::Maus3D(QObject* eltern) : Q3DInputHandler(eltern) {}

void Maus3D::mousePressEvent(QMouseEvent* e, const QPoint& ort) {
  Q3DCamera* kamera = Kamera(*this);
  if (e->button() != Qt::LeftButton || !kamera) {
    Q3DInputHandler::mousePressEvent(e, ort);
    return;
  }
  if (modus_ == MausModus::Drehen) {
    // The chart spins with its right button; the left one does the same here.
    QMouseEvent rechts(e->type(), e->position(), e->scenePosition(), e->globalPosition(), Qt::RightButton,
                       Qt::RightButton, e->modifiers());
    Q3DInputHandler::mousePressEvent(&rechts, ort);
    return;
  }
  ziehen_ = true;
  start_ = ort;
  startZiel_ = kamera->target();
  startZoom_ = kamera->zoomLevel();
}

void Maus3D::mouseMoveEvent(QMouseEvent* e, const QPoint& ort) {
  Q3DCamera* kamera = Kamera(*this);
  if (!ziehen_ || !kamera) {
    Q3DInputHandler::mouseMoveEvent(e, ort);
    return;
  }
  const QPoint d = ort - start_;
  if (modus_ == MausModus::Skalieren) {
    // Up enlarges, down shrinks, within the camera's own limits.
    const float zoom = startZoom_ * std::exp(-static_cast<float>(d.y()) / SkalierPixel);
    kamera->setZoomLevel(std::clamp(zoom, kamera->minZoomLevel(), kamera->maxZoomLevel()));
  } else {
    kamera->setTarget(Verschoben(d));
  }
}

void Maus3D::mouseReleaseEvent(QMouseEvent* e, const QPoint& ort) {
  ziehen_ = false;
  Q3DInputHandler::mouseReleaseEvent(e, ort);
}

// The scene follows the mouse: the target goes the other way along the screen's horizontal and
// vertical directions, as the camera's turn lays them into the scene. The whole width of the view
// is about the width of the scene at 100 % zoom.
QVector3D Maus3D::Verschoben(const QPoint& d) const {
  const Q3DCamera* kamera = Kamera(*this);
  const float breite = scene() && scene()->viewport().width() > 0 ? scene()->viewport().width() : 500.0f;
  const float schritt = 2.0f / breite * 100.0f / std::max(kamera->zoomLevel(), 1.0f);
  const float a = kamera->xRotation() * Grad;
  const float b = kamera->yRotation() * Grad;
  const QVector3D rechts(std::cos(a), 0, -std::sin(a));
  const QVector3D oben(std::sin(a) * std::sin(b), std::cos(b), std::cos(a) * std::sin(b));
  return startZiel_ - rechts * (schritt * d.x()) + oben * (HochFaktor * schritt * d.y());
}

} // namespace quor::ui
