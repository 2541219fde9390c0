#include "gui/calc/referenz_fenster.h"

#include "core/rahmen.h"
#include "dienste/oberflaeche.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quor::ui {

const char* const ReferenzFenster::OptionBenutzer = "Z(ref) = Eingabewerte bei To und po";

namespace {

QString U(const char* s) {
  return QString::fromUtf8(s);
}

} // namespace

ReferenzFenster::ReferenzFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern)
    : QDialog(eltern), logik_(s, ui), hinweisPo_(new QLabel(U(frmReferenz::HinweisPo), this)) {
  setObjectName("frmReferenz");
  setWindowTitle(U(frmReferenz::Caption));
  logik_.Form_Load();
  auto* ueberschrift = new QLabel(U(frmReferenz::Ueberschrift), this);
  QFont fett = ueberschrift->font();
  fett.setBold(true);
  ueberschrift->setFont(fett);

  auto* art = new QGroupBox("Normierung", this);
  auto* gruppe = new QButtonGroup(this);
  auto* a = new QVBoxLayout(art);
  // The long caption of the formation quantities is broken before its second half.
  const QString texte[] = {U(OptionBenutzer), U(frmReferenz::OptionTexte[1]),
                           U(frmReferenz::OptionTexte[2]).replace("  aus Elementen", "\naus Elementen")};
  for (int i = 0; i < 3; ++i) {
    optionen_[i] = new QRadioButton(texte[i], art);
    optionen_[i]->setObjectName(QString("opt_HNull%1").arg(i));
    gruppe->addButton(optionen_[i], i);
    a->addWidget(optionen_[i]);
  }
  connect(gruppe, &QButtonGroup::idClicked, this, [this](int i) {
    TexteNehmen();
    logik_.opt_HNull_Click(i);
    Zeige();
  });

  for (std::size_t i = 0; i < felder_.size(); ++i) {
    felder_[i] = new QLineEdit(this);
    felder_[i]->setObjectName(QString("T%1").arg(i));
    felder_[i]->setMinimumWidth(120);
  }
  auto* werte = new QGridLayout;
  for (int i = 0; i < 2; ++i) {
    bz7_[i] = new QLabel(this);
    bz7_[i]->setObjectName(QString("bz7_%1").arg(i));
    werte->addWidget(bz7_[i], i, 0);
    werte->addWidget(felder_[i], i, 1);
  }
  werte->addWidget(new QLabel(U(frmReferenz::TextTo), this), 2, 0);
  werte->addWidget(felder_[2], 2, 1);
  werte->addWidget(new QLabel(U(frmReferenz::TextPo), this), 3, 0);
  werte->addWidget(felder_[3], 3, 1);
  hinweisPo_->setObjectName("lblHinweisPo");
  werte->addWidget(hinweisPo_, 3, 2);
  werte->setColumnStretch(2, 1);

  auto* umgebung = new QGroupBox(U(frmReferenz::TextUmgebung), this);
  auto* u = new QGridLayout(umgebung);
  u->addWidget(new QLabel(U(frmReferenz::TextTu), umgebung), 0, 0);
  u->addWidget(felder_[4], 0, 1);
  u->addWidget(new QLabel(U(frmReferenz::TextPu), umgebung), 1, 0);
  u->addWidget(felder_[5], 1, 1);
  u->setColumnStretch(2, 1);

  auto* ok = new QPushButton("OK", this);
  ok->setObjectName("OK");
  ok->setDefault(true);
  auto* esc = new QPushButton("Abbrechen", this);
  esc->setObjectName("ESC");
  auto* hilfe = new QPushButton("Hilfe", this);
  hilfe->setObjectName("cmdRefHelp");
  connect(ok, &QPushButton::clicked, this, &ReferenzFenster::OK);
  connect(esc, &QPushButton::clicked, this, [this] {
    logik_.ESC_Click();
    reject();
  });
  connect(hilfe, &QPushButton::clicked, this, [&ui] { ui.Hilfe(HilfeNormierung); });
  auto* knoepfe = new QHBoxLayout;
  knoepfe->addWidget(hilfe);
  knoepfe->addStretch(1);
  knoepfe->addWidget(ok);
  knoepfe->addWidget(esc);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(ueberschrift);
  layout->addWidget(art);
  layout->addLayout(werte);
  layout->addWidget(umgebung);
  layout->addLayout(knoepfe);
  Zeige();
}

void ReferenzFenster::Zeige() {
  for (std::size_t i = 0; i < felder_.size(); ++i) {
    felder_[i]->setText(QString::fromStdString(logik_.T[i]));
    felder_[i]->setEnabled(logik_.T_Enabled[i]);
  }
  for (std::size_t i = 0; i < 2; ++i)
    bz7_[i]->setText(QString::fromStdString(logik_.bz7[i]) + " =");
  for (std::size_t i = 0; i < optionen_.size(); ++i)
    optionen_[i]->setEnabled(logik_.opt_HNull_Enabled[i]);
  optionen_[static_cast<std::size_t>(logik_.opt_HNull)]->setChecked(true);
  hinweisPo_->setVisible(logik_.HinweisPoVisible);
}

void ReferenzFenster::TexteNehmen() {
  for (std::size_t i = 0; i < felder_.size(); ++i)
    logik_.T[i] = felder_[i]->text().toStdString();
}

void ReferenzFenster::OK() {
  TexteNehmen();
  if (logik_.OK_Click()) accept();
}

} // namespace quor::ui
