#include "gui/basis/qt_drucker.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

namespace quor::ui {

namespace {
QString Q(const std::string& s) {
  return QString::fromStdString(s);
}
} // namespace

QtDrucker::QtDrucker(QWidget* eltern) : eltern_(eltern), schrift_("Courier", 10) {
  schrift_.setStyleHint(QFont::TypeWriter);
}

QtDrucker::~QtDrucker() {
  EndeDokument();
}

bool QtDrucker::StartDokument(const std::string& dokumentName) {
  EndeDokument();
  printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer_->setDocName(Q(dokumentName));
  if (!pdfZiel_.empty()) {
    printer_->setOutputFormat(QPrinter::PdfFormat);
    printer_->setOutputFileName(Q(pdfZiel_));
  } else {
    QPrintDialog dialog(printer_.get(), eltern_);
    dialog.setWindowTitle("Drucken");
    if (dialog.exec() != QDialog::Accepted) {
      printer_.reset();
      return false;
    }
  }
  painter_ = std::make_unique<QPainter>();
  if (!painter_->begin(printer_.get())) {
    painter_.reset();
    printer_.reset();
    return false;
  }
  const double skala = printer_->resolution() / 72.0;
  painter_->scale(skala, skala);
  painter_->setFont(schrift_);
  x_ = y_ = 0;
  return true;
}

void QtDrucker::Schrift(const std::string& name, double groesse, bool fett) {
  schrift_ = QFont(Q(name));
  schrift_.setPointSizeF(groesse > 0 ? groesse : 10);
  schrift_.setBold(fett);
  const QString klein = Q(name).toLower();
  if (klein.contains("courier") || klein.contains("mono")) schrift_.setStyleHint(QFont::TypeWriter);
  if (painter_) painter_->setFont(schrift_);
}

double QtDrucker::TextBreite(const std::string& text) {
  return QFontMetricsF(schrift_).horizontalAdvance(Q(text));
}

double QtDrucker::ZeilenHoehe() {
  return QFontMetricsF(schrift_).lineSpacing();
}

void QtDrucker::Position(double x, double y) {
  x_ = x;
  y_ = y;
}

double QtDrucker::SeitenHoehe() const {
  if (!printer_) return 0;
  return printer_->pageLayout().paintRect(QPageLayout::Point).height();
}

void QtDrucker::DruckeText(const std::string& text) {
  if (!painter_) return;
  if (y_ + ZeilenHoehe() > SeitenHoehe()) NeueSeite();
  painter_->drawText(QPointF(x_, y_ + QFontMetricsF(schrift_).ascent()), Q(text));
  x_ = 0;
  y_ += ZeilenHoehe();
}

void QtDrucker::Linie(double x1, double y1, double x2, double y2) {
  if (painter_) painter_->drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void QtDrucker::NeueSeite() {
  if (printer_ && painter_) printer_->newPage();
  x_ = y_ = 0;
}

void QtDrucker::EndeDokument() {
  if (painter_) painter_->end();
  painter_.reset();
  printer_.reset();
}

} // namespace quor::ui
