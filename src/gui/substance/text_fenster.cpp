#include "gui/substance/text_fenster.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QTextDocument>
#include <QVBoxLayout>

#include <algorithm>

namespace quor::ui {

TextFenster::TextFenster(const frmQTextEdit& logik, QWidget* eltern)
    : QDialog(eltern), text_(new QPlainTextEdit(this)) {
  setObjectName("frmQTextEdit");
  setWindowTitle(QString::fromStdString(logik.Caption));
  text_->setObjectName("Text1");
  text_->setReadOnly(true);
  text_->setLineWrapMode(QPlainTextEdit::NoWrap);
  text_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  QStringList zeilen;
  for (const std::string& z : logik.Zeilen())
    zeilen << QString::fromStdString(z);
  text_->setPlainText(zeilen.join('\n'));

  auto* knoepfe = new QDialogButtonBox(QDialogButtonBox::Close, this);
  knoepfe->button(QDialogButtonBox::Close)->setText("Schließen");
  connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(text_);
  layout->addWidget(knoepfe);

  // Wide enough for the longest line (up to a limit) beside a vertical scroll bar, high enough for
  // all lines up to about 30.
  const QFontMetrics fm(text_->font());
  int textBreite = fm.horizontalAdvance(QString(40, 'M'));
  for (const QString& z : zeilen)
    textBreite = std::max(textBreite, fm.horizontalAdvance(z));
  const int rand = 2 * static_cast<int>(text_->document()->documentMargin()) + 2 * text_->frameWidth() +
                   style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2 * layout->contentsMargins().left() +
                   8;
  const int zeilenZahl = std::clamp(static_cast<int>(zeilen.size()) + 2, 10, 32);
  resize(std::min(textBreite + rand, 1100), fm.lineSpacing() * zeilenZahl + 80);
}

QString TextFenster::Text() const {
  return text_->toPlainText();
}

TextFenster* ZeigeTextFenster(const frmQTextEdit& logik, QWidget* eltern) {
  auto* fenster = new TextFenster(logik, eltern);
  fenster->setAttribute(Qt::WA_DeleteOnClose);
  fenster->show();
  return fenster;
}

} // namespace quor::ui
