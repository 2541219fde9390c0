#include "gui/substance/b_par_input_fenster.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace quor::ui {

BParInputFenster::BParInputFenster(ProjectState& s, QWidget* eltern) : QDialog(eltern), logik_(s) {
  setObjectName("frmBParInput");
  setWindowTitle(QString::fromUtf8(frmBParInput::Caption));
  logik_.Form_Load();
  auto* formel = new QLabel(QString::fromUtf8(frmBParInput::Formel), this);
  QFont fett = formel->font();
  fett.setBold(true);
  formel->setFont(fett);
  auto* form = new QFormLayout;
  for (std::size_t i = 0; i < felder_.size(); ++i) {
    felder_[i] = new QLineEdit(QString::fromStdString(logik_.par[i]), this);
    felder_[i]->setObjectName(QString("par%1").arg(i));
    felder_[i]->setMinimumWidth(160);
    form->addRow(QString::fromUtf8(frmBParInput::Labels[i]), felder_[i]);
  }
  auto* knoepfe = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  knoepfe->button(QDialogButtonBox::Ok)->setObjectName("cmdParameter_OK");
  knoepfe->button(QDialogButtonBox::Cancel)->setText("Abbrechen");
  connect(knoepfe, &QDialogButtonBox::accepted, this, &BParInputFenster::cmdParameter_OK);
  connect(knoepfe, &QDialogButtonBox::rejected, this, [this] {
    logik_.cancel();
    reject();
  });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(formel);
  layout->addLayout(form);
  layout->addWidget(knoepfe);
}

void BParInputFenster::cmdParameter_OK() {
  for (std::size_t i = 0; i < felder_.size(); ++i)
    logik_.par[i] = felder_[i]->text().toStdString();
  logik_.cmdParameter_OK();
  accept();
}

} // namespace quor::ui
