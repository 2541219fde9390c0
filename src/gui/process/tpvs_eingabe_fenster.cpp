#include "gui/process/tpvs_eingabe_fenster.h"

#include "calc/parinput.h"
#include "gui/basis/zahl_feld.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace quor::ui {

namespace {

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

} // namespace

TpVSEingabeFenster::TpVSEingabeFenster(prozess::frmTpVSInputBox& logik, QWidget* eltern)
    : QDialog(eltern), logik_(logik), feld_(new QLineEdit(this)), ok_(new QPushButton(this)) {
  setObjectName("frmTpVSInputBox");
  setWindowTitle(Q(logik_.Caption));
  feld_->setObjectName("txtWert");
  feld_->setText(Q(logik_.txtWert));
  feld_->setMinimumWidth(140);
  ZahlFeld(feld_, ZahlTaste);
  ok_->setObjectName("cmdOK");
  ok_->setText(Q(logik_.cmdOKCaption));
  ok_->setDefault(true);
  auto* abbrechen = new QPushButton("Abbrechen", this);
  abbrechen->setObjectName("cmdCancel");
  abbrechen->setAutoDefault(false);

  auto* raster = new QGridLayout(this);
  raster->addWidget(new QLabel(Q(logik_.lblWert), this), 0, 0);
  raster->addWidget(feld_, 0, 1);
  raster->addWidget(new QLabel(Q(logik_.lblEinheit), this), 0, 2);
  auto* grenzen = new QLabel("gültiger Bereich: " + Q(logik_.GrenzenText()), this);
  grenzen->setObjectName("lblGrenzen");
  raster->addWidget(grenzen, 1, 0, 1, 3);
  auto* knoepfe = new QHBoxLayout;
  knoepfe->addStretch(1);
  knoepfe->addWidget(ok_);
  knoepfe->addWidget(abbrechen);
  raster->addLayout(knoepfe, 2, 0, 1, 3);
  raster->setSizeConstraint(QLayout::SetFixedSize);

  connect(ok_, &QPushButton::clicked, this, &TpVSEingabeFenster::cmdOK);
  connect(abbrechen, &QPushButton::clicked, this, &QDialog::reject);
}

void TpVSEingabeFenster::cmdOK() {
  logik_.txtWert = feld_->text().toStdString();
  if (logik_.cmdOK_Click()) accept();
}

} // namespace quor::ui
