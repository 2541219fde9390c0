#include "gui/calc/parinput_fenster.h"

#include "core/rahmen.h"
#include "gui/basis/hilfe_knopf.h"
#include "gui/basis/zahl_feld.h"

#include <QButtonGroup>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quor::ui {

namespace {

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

QGroupBox* Wahl(const QString& titel, QRadioButton* (&knoepfe)[2], const char* name, QWidget* eltern) {
  auto* rahmen = new QGroupBox(titel, eltern);
  auto* gruppe = new QButtonGroup(rahmen);
  auto* layout = new QVBoxLayout(rahmen);
  for (int i = 0; i < 2; ++i) {
    knoepfe[i] = new QRadioButton(rahmen);
    knoepfe[i]->setObjectName(QString("%1%2").arg(name).arg(i));
    gruppe->addButton(knoepfe[i], i);
    layout->addWidget(knoepfe[i]);
  }
  return rahmen;
}

} // namespace

ParinputFenster::ParinputFenster(ProjectState& s, Oberflaeche& ui, std::function<std::string()> berechnen,
                                 QWidget* eltern)
    : QDialog(eltern), logik_(s, ui, std::move(berechnen)), raster_(new QGridLayout) {
  setObjectName("frmParinput");
  rhoVRahmen_ = Wahl(QString::fromUtf8(frmParinput::fraRhoVInputCaption), rhoV_, "optRhoV", this);
  rhoVRahmen_->setObjectName("fraRhoVInput");
  mnRahmen_ = Wahl("Eingabe-Wahl", mn_, "optm_n", this);
  ok_ = new QPushButton(this);
  ok_->setObjectName("cmdParameter_OK");
  ok_->setDefault(true);
  auto* schliessen = new QPushButton(QString::fromUtf8(frmParinput::cmdCloseCaption), this);
  schliessen->setObjectName("cmdClose");
  schliessen->setAutoDefault(false);
  connect(ok_, &QPushButton::clicked, this, &ParinputFenster::cmdParameter_OK);
  connect(schliessen, &QPushButton::clicked, this, [this] {
    logik_.cmdClose_Click();
    reject();
  });
  for (int i = 0; i < 2; ++i) {
    connect(rhoV_[i], &QRadioButton::clicked, this, [this, i] {
      TexteNehmen();
      logik_.optRhoV_Click(i);
      FelderZeigen();
    });
    connect(mn_[i], &QRadioButton::clicked, this, [this, i] {
      TexteNehmen();
      logik_.optm_n_Click(i);
      FelderZeigen();
    });
  }
  auto* knoepfe = new QHBoxLayout;
  knoepfe->addStretch(1);
  knoepfe->addWidget(ok_);
  knoepfe->addWidget(schliessen);
  knoepfe->addWidget(HilfeKnopf(this, ui, HilfeBerechnungen, "Hilfe"));
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(raster_);
  layout->addWidget(rhoVRahmen_);
  layout->addWidget(mnRahmen_);
  layout->addLayout(knoepfe);
}

void ParinputFenster::Laden() {
  logik_.Form_Load();
  FelderBauen();
  FelderZeigen();
  if (!felder_.empty()) felder_.front()->setFocus();
}

void ParinputFenster::FelderBauen() {
  for (QLabel* l : labels_)
    delete l;
  for (QLineEdit* f : felder_)
    delete f;
  labels_.clear();
  felder_.clear();
  const QFont fest = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  for (std::size_t i = 0; i < logik_.Felder.size(); ++i) {
    auto* label = new QLabel(this);
    label->setObjectName(QString("Bz%1").arg(i));
    label->setFont(fest);
    auto* feld = new QLineEdit(this);
    feld->setObjectName(QString("par%1").arg(i));
    feld->setMinimumWidth(140);
    ZahlFeld(feld, ZahlTaste);
    raster_->addWidget(label, static_cast<int>(i), 0);
    raster_->addWidget(feld, static_cast<int>(i), 1);
    labels_.push_back(label);
    felder_.push_back(feld);
  }
}

void ParinputFenster::FelderZeigen() {
  setWindowTitle(Q(logik_.Caption));
  ok_->setText(Q(logik_.cmdParameter_OKCaption));
  for (std::size_t i = 0; i < felder_.size(); ++i) {
    const ParinputFeld& f = logik_.Felder[i];
    labels_[i]->setText(Q(f.Bz));
    felder_[i]->setText(Q(f.par));
    felder_[i]->setEnabled(f.enabled);
  }
  rhoVRahmen_->setVisible(logik_.fraRhoVInputVisible);
  mnRahmen_->setVisible(logik_.optm_nVisible);
  for (int i = 0; i < 2; ++i) {
    rhoV_[i]->setText(Q(logik_.optRhoVTexte[static_cast<std::size_t>(i)]));
    mn_[i]->setText(Q(logik_.optm_nTexte[static_cast<std::size_t>(i)]));
  }
  rhoV_[logik_.optRhoV]->setChecked(true);
  mn_[logik_.optm_n]->setChecked(true);
  adjustSize();
}

void ParinputFenster::TexteNehmen() {
  for (std::size_t i = 0; i < felder_.size(); ++i)
    logik_.Felder[i].par = felder_[i]->text().toStdString();
}

void ParinputFenster::cmdParameter_OK() {
  TexteNehmen();
  if (logik_.cmdParameter_OK_Click()) {
    accept();
    return;
  }
  // The dialog stays for the next input, its first field ready to be typed over.
  if (!felder_.empty() && isVisible()) {
    felder_.front()->setFocus();
    felder_.front()->selectAll();
  }
}

} // namespace quor::ui
