#include "gui/calc/calc_in_fenster.h"

#include "gui/basis/schirm.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace quor::ui {

namespace {

QString Q(const std::string& s) {
  QString t = QString::fromStdString(s);
  t.replace("\r\n", "\n");
  return t;
}

QString U(const char* s) {
  return QString::fromUtf8(s);
}

QLabel* NeuesLabel(const char* name, QWidget* eltern) {
  auto* l = new QLabel(eltern);
  l->setObjectName(name);
  l->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return l;
}

} // namespace

CalcInFenster::CalcInFenster(ProjectState& s, Oberflaeche& ui, RechnungsFenster fenster, QWidget* eltern)
    : QDialog(eltern), logik_(s, ui, std::move(fenster)) {
  setObjectName("frmCalcIn");
  setWindowTitle(U(frmCalcIn::Caption));
  auto* lage = new QGroupBox(U(frmCalcIn::fraSituationCaption), this);
  lage->setObjectName("fraSituation");
  situation_ = NeuesLabel("lblSituation", lage);
  (new QVBoxLayout(lage))->addWidget(situation_);

  auto* konzept = new QGroupBox("Berechnungskonzept", this);
  auto* globGruppe = new QButtonGroup(this);
  auto* k = new QHBoxLayout(konzept);
  for (int i = 0; i < 2; ++i) {
    glob_[i] = new QRadioButton(U(frmCalcIn::opt_globTexte[i]), konzept);
    glob_[i]->setObjectName(QString("opt_glob%1").arg(i));
    globGruppe->addButton(glob_[i], i);
    k->addWidget(glob_[i]);
  }
  k->addStretch(1);
  globalSit_ = NeuesLabel("GlobalSit", this);
  globalSit_->setWordWrap(true);
  globalSit_->setStyleSheet("color: #204a87;");

  ok_ = new QPushButton("OK", this);
  ok_->setObjectName("OK");
  ok_->setDefault(true);
  auto* abbrechen = new QPushButton("Abbrechen", this);
  abbrechen->setObjectName("Cancel");
  auto* knoepfe = new QHBoxLayout;
  knoepfe->addStretch(1);
  knoepfe->addWidget(ok_);
  knoepfe->addWidget(abbrechen);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(lage);
  layout->addWidget(konzept);
  layout->addWidget(globalSit_);
  layout->addWidget(BauePartial());
  layout->addStretch(1);
  layout->addLayout(knoepfe);
  connect(globGruppe, &QButtonGroup::idClicked, this, [this](int i) {
    if (zeigt_) return;
    logik_.opt_glob_Click(i);
    Zeige();
  });
  connect(abbrechen, &QPushButton::clicked, this, [this] {
    logik_.Cancel_Click();
    reject();
  });
  connect(ok_, &QPushButton::clicked, this, [this] {
    logik_.OK_Click();
    accept();
  });
  Verbinden();
  logik_.Form_Load();
  Zeige();
  setMinimumWidth(720);
}

QGroupBox* CalcInFenster::BauePartial() {
  partial_ = new QGroupBox(U(frmCalcIn::Bz1Caption), this);
  partial_->setObjectName("Bz1");
  auto* dichte = new QGroupBox("L-Dichte der PARTIAL-Berechnung", partial_);
  auto* bensonGruppe = new QButtonGroup(this);
  auto* d = new QGridLayout(dichte);
  for (int i = 1; i >= 0; --i) {
    benson_[i] = new QRadioButton(U(frmCalcIn::optPartialBensonTexte[i]), dichte);
    benson_[i]->setObjectName(QString("optPartialBenson%1").arg(i));
    bensonGruppe->addButton(benson_[i], i);
  }
  rhoLimits_ = NeuesLabel("lblRhoLimits", dichte);
  dichteHinweis_ = NeuesLabel("lblDichteHinweis", dichte);
  auto* hilfe = new QToolButton(dichte);
  hilfe->setObjectName("BENSON_HELP");
  hilfe->setText("?");
  hilfe->setToolTip("Hilfe zur BENSON-Methode");
  connect(hilfe, &QToolButton::clicked, this, [this] { logik_.BENSON_HELP_Click(); });
  d->addWidget(benson_[1], 0, 0);
  d->addWidget(hilfe, 0, 2, Qt::AlignRight);
  d->addWidget(benson_[0], 1, 0);
  d->addWidget(rhoLimits_, 1, 1);
  d->addWidget(dichteHinweis_, 2, 0, 1, 3);
  d->setColumnStretch(1, 1);
  connect(bensonGruppe, &QButtonGroup::idClicked, this, [this](int i) {
    if (zeigt_) return;
    logik_.optPartialBenson_Click(i);
    Zeige();
  });

  auto* refGruppe = new QButtonGroup(this);
  auto* wege = new QGridLayout;
  for (int i = 0; i < 3; ++i) {
    ref_[i] = new QRadioButton(U(frmCalcIn::Ref_optTexte[i]), partial_);
    ref_[i]->setObjectName(QString("Ref_opt%1").arg(i));
    refGruppe->addButton(ref_[i], i);
    wege->addWidget(ref_[i], i, 0);
  }
  refInput_ = new QPushButton(U(frmCalcIn::RefInputCaption), partial_);
  refInput_->setObjectName("RefInput");
  wege->addWidget(refInput_, 2, 1, Qt::AlignLeft);
  wege->setColumnStretch(2, 1);
  connect(refGruppe, &QButtonGroup::idClicked, this, [this](int i) {
    if (zeigt_) return;
    logik_.Ref_opt_Click(i);
    Zeige();
  });
  vorschlag_ = NeuesLabel("RefVorschlag", partial_);
  vorschlag_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  vorschlag_->setFrameShape(QFrame::StyledPanel);
  vorschlag_->setMinimumHeight(5 * vorschlag_->fontMetrics().lineSpacing());
  vorschlag_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  vorschlag_->setStyleSheet("QLabel { background: #fffff4; padding: 4px; }");

  auto* layout = new QVBoxLayout(partial_);
  layout->addWidget(dichte);
  layout->addLayout(wege);
  layout->addWidget(vorschlag_);
  return partial_;
}

void CalcInFenster::Verbinden() {
  connect(refInput_, &QPushButton::clicked, this, [this] {
    logik_.RefInput_Click();
    Zeige();
  });
}

void CalcInFenster::Zeige() {
  zeigt_ = true;
  situation_->setText(Q(logik_.Situation));
  globalSit_->setText(Q(logik_.GlobalSit));
  for (int i = 0; i < 2; ++i) {
    glob_[i]->setEnabled(logik_.opt_globEnabled[static_cast<std::size_t>(i)]);
    benson_[i]->setEnabled(logik_.optPartialBensonEnabled[static_cast<std::size_t>(i)]);
  }
  glob_[logik_.opt_glob]->setChecked(true);
  benson_[logik_.optPartialBenson]->setChecked(true);
  partial_->setVisible(logik_.PartialSichtbar);
  rhoLimits_->setText(Q(logik_.lblRhoLimits));
  dichteHinweis_->setText(Q(logik_.DichteHinweis));
  // No way chosen yet: none of the three options is checked.
  auto* gruppe = ref_[0]->group();
  gruppe->setExclusive(false);
  for (int i = 0; i < 3; ++i)
    ref_[i]->setChecked(logik_.Ref_opt == i);
  gruppe->setExclusive(true);
  refInput_->setEnabled(logik_.RefInputEnabled);
  vorschlag_->setText(Q(logik_.RefVorschlag));
  adjustSize();
  if (isVisible()) AufDemSchirmHalten(this); // the PARTIAL part makes it taller
  zeigt_ = false;
}

} // namespace quor::ui
