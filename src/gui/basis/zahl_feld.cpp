#include "gui/basis/zahl_feld.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

namespace quor::ui {

namespace {

class ZahlFilter : public QObject {
public:
  ZahlFilter(QLineEdit* feld, std::function<bool(char32_t)> erlaubt)
      : QObject(feld), erlaubt_(std::move(erlaubt)) {}

  bool eventFilter(QObject* objekt, QEvent* ereignis) override {
    auto* feld = qobject_cast<QLineEdit*>(objekt);
    if (feld && ereignis->type() == QEvent::KeyPress) {
      const QString text = static_cast<QKeyEvent*>(ereignis)->text();
      if (!text.isEmpty() && text.at(0).isPrint() && !erlaubt_(text.at(0).unicode())) return true;
    } else if (feld && ereignis->type() == QEvent::FocusIn) {
      QTimer::singleShot(0, feld, &QLineEdit::selectAll);
    }
    return false;
  }

private:
  std::function<bool(char32_t)> erlaubt_;
};

} // namespace

void ZahlFeld(QLineEdit* feld, std::function<bool(char32_t)> erlaubt) {
  feld->installEventFilter(new ZahlFilter(feld, std::move(erlaubt)));
}

} // namespace quor::ui
