#include "gui/basis/qt_drucker.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>

namespace quor::ui {

namespace {

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

// The document's name is what the print dialog proposes as file name: no characters a file system
// refuses.
QString DateiTauglich(const std::string& name) {
  QString t = Q(name);
  for (QChar& c : t)
    if (QString(":/\\*?\"<>|").contains(c)) c = ' ';
  return t.simplified();
}

constexpr double PunkteJeZoll = 72.0;

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
  printer_->setDocName(DateiTauglich(dokumentName));
  printer_->setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
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
  painter_->setFont(schrift_);
  x_ = y_ = 0;
  return true;
}

// Device units per point: the painter works in the printer's pixels, the callers in points.
double QtDrucker::Skala() const {
  return printer_ ? printer_->resolution() / PunkteJeZoll : 1.0;
}

// Metrics of the current font in points. The font's point size is taken at the printer's resolution
// when one is open, else at the screen's.
QFontMetricsF QtDrucker::Metrik() const {
  if (printer_) return QFontMetricsF(schrift_, printer_.get());
  return QFontMetricsF(schrift_);
}

double QtDrucker::InPunkten(double geraeteMass) const {
  if (printer_) return geraeteMass / Skala();
  const QScreen* bildschirm = QGuiApplication::primaryScreen();
  const double dpi = bildschirm ? bildschirm->logicalDotsPerInchY() : PunkteJeZoll;
  return geraeteMass * PunkteJeZoll / dpi;
}

void QtDrucker::Schrift(const std::string& name, double groesse, bool fett) {
  schrift_ = QFont(Q(name));
  schrift_.setPointSizeF(groesse > 0 ? groesse : 10);
  schrift_.setBold(fett);
  const QString klein = Q(name).toLower();
  if (klein.contains("courier") || klein.contains("mono")) {
    schrift_.setStyleHint(QFont::TypeWriter);
    schrift_.setFixedPitch(true);
  }
  if (painter_) painter_->setFont(schrift_);
}

double QtDrucker::TextBreite(const std::string& text) {
  return InPunkten(Metrik().horizontalAdvance(Q(text)));
}

double QtDrucker::ZeilenHoehe() {
  return InPunkten(Metrik().lineSpacing());
}

void QtDrucker::Position(double x, double y) {
  x_ = x;
  y_ = y;
}

double QtDrucker::SeitenBreite() const {
  if (!printer_) return 0;
  return printer_->pageLayout().paintRect(QPageLayout::Point).width();
}

double QtDrucker::SeitenHoehe() const {
  if (!printer_) return 0;
  return printer_->pageLayout().paintRect(QPageLayout::Point).height();
}

void QtDrucker::DruckeText(const std::string& text) {
  if (!painter_) return;
  if (y_ + ZeilenHoehe() > SeitenHoehe()) NeueSeite();
  const double s = Skala();
  painter_->drawText(QPointF(x_ * s, y_ * s + Metrik().ascent()), Q(text));
  x_ = 0;
  y_ += ZeilenHoehe();
}

void QtDrucker::Linie(double x1, double y1, double x2, double y2) {
  if (!painter_) return;
  const double s = Skala();
  painter_->drawLine(QPointF(x1 * s, y1 * s), QPointF(x2 * s, y2 * s));
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
