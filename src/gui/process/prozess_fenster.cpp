#include "gui/process/prozess_fenster.h"

#include "calc/parinput.h"
#include "gui/basis/zahl_feld.h"
#include "dienste/oberflaeche.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <functional>

namespace quor::ui {

namespace {

using namespace prozess;

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

// The kappa box asks the logic for its offered values each time it opens.
class KappaBox : public QComboBox {
public:
  explicit KappaBox(QWidget* eltern) : QComboBox(eltern) {}
  std::function<void()> VorOeffnen;
  void showPopup() override {
    if (VorOeffnen) VorOeffnen();
    QComboBox::showPopup();
  }
};

} // namespace

ProzessFenster::ProzessFenster(frmInputProzessLinien& logik, Oberflaeche& ui, QWidget* eltern)
    : QDialog(eltern), logik_(logik), ui_(ui), art_(new QLabel(this)) {
  setObjectName("frmInputProzessLinien");
  setWindowTitle(QString::fromUtf8(frmInputProzessLinien::Caption));
  QFont fett = art_->font();
  fett.setBold(true);
  art_->setFont(fett);
  art_->setObjectName("lblArt");
  form_ = Optionen("Form", "optHomoHetero", optForm_, "Prozesslinie homogen", "Prozesslinie heterogen V-L");
  bereich_ = Optionen("Bereich", "optTp", optBereich_, "T-Bereich", "p-Bereich");
  phase_ = Optionen("Phase", "optPhase", optPhase_, "V-Phase", "L-Phase");
  connect(optForm_[1], &QRadioButton::toggled, this, [this](bool an) {
    TexteNehmen();
    logik_.optHomoHetero_Click(an);
    Zeige();
  });
  connect(optBereich_[0], &QRadioButton::toggled, this, [this](bool an) {
    TexteNehmen();
    logik_.optTp_Click(an ? BereichT : BereichP);
    Zeige();
  });
  connect(optPhase_[1], &QRadioButton::toggled, this, [this](bool an) {
    logik_.optPhase_Click(an ? PhaseL : PhaseV);
    Zeige();
  });
  auto* kopf = new QVBoxLayout(this);
  kopf->addWidget(art_);
  auto* optionen = new QHBoxLayout;
  optionen->addWidget(form_);
  optionen->addWidget(bereich_);
  optionen->addWidget(phase_);
  kopf->addLayout(optionen);
  BaueStart();
  kopf->addWidget(anfang_);
  kopf->addWidget(ende_);
  BaueSonderfelder();
  for (QGroupBox* g : {gerade_, eta_, parameter_, polytrope_})
    kopf->addWidget(g);
  chkEndToBegin_ = new QCheckBox(QString::fromUtf8(frmInputProzessLinien::EndeAlsAnfang), this);
  chkEndToBegin_->setObjectName("chkEndToBegin");
  chkEndToBegin_->setToolTip(QString::fromUtf8(frmInputProzessLinien::EndeAlsAnfangTip));
  connect(chkEndToBegin_, &QCheckBox::toggled, this, [this](bool an) {
    TexteNehmen();
    logik_.chkEndToBegin_Click(an);
    Zeige();
  });
  kopf->addWidget(chkEndToBegin_);
  hinweis_ = new QLabel(this);
  hinweis_->setObjectName("lblHinweis");
  mausHinweis_ = new QLabel(QString::fromUtf8(frmInputProzessLinien::MausHinweis), this);
  mausHinweis_->setObjectName("lblMausHinweis");
  mausHinweis_->setWordWrap(true);
  kopf->addWidget(hinweis_);
  kopf->addWidget(mausHinweis_);
  BaueKnoepfe();
  kopf->setSizeConstraint(QLayout::SetFixedSize);
  Zeige();
}

QGroupBox* ProzessFenster::Optionen(const char* titel, const char* name, std::array<QRadioButton*, 2>& knoepfe,
                                    const QString& a, const QString& b) {
  auto* g = new QGroupBox(titel, this);
  g->setObjectName(name);
  auto* l = new QVBoxLayout(g);
  auto* gruppe = new QButtonGroup(g);
  knoepfe = {new QRadioButton(a, g), new QRadioButton(b, g)};
  for (int i = 0; i < 2; ++i) {
    knoepfe[static_cast<std::size_t>(i)]->setObjectName(QString(name) + QString::number(i));
    gruppe->addButton(knoepfe[static_cast<std::size_t>(i)], i);
    l->addWidget(knoepfe[static_cast<std::size_t>(i)]);
  }
  return g;
}

QLineEdit* ProzessFenster::NeuesFeld(const char* name) {
  auto* f = new QLineEdit(this);
  f->setObjectName(name);
  f->setAlignment(Qt::AlignRight);
  f->setFixedWidth(120);
  ZahlFeld(f, ZahlTaste);
  return f;
}

void ProzessFenster::BaueStart() {
  anfang_ = new QGroupBox(this);
  anfang_->setObjectName("fraAnfang");
  auto* a = new QGridLayout(anfang_);
  lblT1_ = new QLabel(anfang_);
  lblP1_ = new QLabel(anfang_);
  txtT1_ = NeuesFeld("txtT1");
  // The hint of the first default goes once the user types another temperature.
  connect(txtT1_, &QLineEdit::textEdited, this, [this] {
    logik_.Hinweis.clear();
    hinweis_->hide();
  });
  txtP1_ = NeuesFeld("txtP1");
  a->addWidget(lblT1_, 0, 0);
  a->addWidget(txtT1_, 0, 1);
  a->addWidget(lblP1_, 1, 0);
  a->addWidget(txtP1_, 1, 1);
  cmdVScalc_ = new QPushButton(anfang_);
  cmdVScalc_->setObjectName("cmdVScalc");
  cmdVScalc_->setAutoDefault(false);
  txtVSCalc_ = new QLabel(anfang_);
  txtVSCalc_->setObjectName("txtVSCalc");
  txtVSCalc_->setMinimumWidth(250);
  txtVSCalc_->setFrameShape(QFrame::StyledPanel);
  txtVSCalc_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  a->addWidget(cmdVScalc_, 0, 2);
  a->addWidget(txtVSCalc_, 0, 3, 3, 1);
  connect(cmdVScalc_, &QPushButton::clicked, this, [this] {
    TexteNehmen();
    logik_.cmdVScalc();
    Zeige();
  });
  ende_ = new QGroupBox(this);
  ende_->setObjectName("fraEnde");
  auto* e = new QHBoxLayout(ende_);
  lblEnde_ = new QLabel(ende_);
  txtEnde_ = NeuesFeld("txtEnde");
  e->addWidget(lblEnde_);
  e->addWidget(txtEnde_);
  e->addStretch(1);
}

void ProzessFenster::BaueSonderfelder() {
  gerade_ = new QGroupBox("Gerade in Achseneinheiten", this);
  auto* g = new QGridLayout(gerade_);
  const char* namen[] = {"txtX1", "txtY1", "txtX2", "txtY2"};
  const char* texte[] = {"x1 = ", "y1 = ", "x2 = ", "y2 = "};
  for (int i = 0; i < 4; ++i) {
    txtGerade_[static_cast<std::size_t>(i)] = NeuesFeld(namen[i]);
    g->addWidget(new QLabel(texte[i], gerade_), i / 2, (i % 2) * 2);
    g->addWidget(txtGerade_[static_cast<std::size_t>(i)], i / 2, (i % 2) * 2 + 1);
  }
  eta_ = new QGroupBox("Verdampfungsgrad", this);
  auto* e = new QHBoxLayout(eta_);
  txtEta_ = NeuesFeld("txtEta");
  e->addWidget(new QLabel("eta(V) = ", eta_));
  e->addWidget(txtEta_);
  e->addStretch(1);
  parameter_ = new QGroupBox("Kurvenparameter", this);
  auto* p = new QHBoxLayout(parameter_);
  lblParameter_ = new QLabel(parameter_);
  txtParameter_ = NeuesFeld("txtParameter");
  p->addWidget(lblParameter_);
  p->addWidget(txtParameter_);
  p->addStretch(1);

  polytrope_ = new QGroupBox("Polytrope  p v^n = const", this);
  auto* y = new QGridLayout(polytrope_);
  auto* kappa = new KappaBox(polytrope_);
  kappa->setObjectName("cmbKappa");
  kappa->setEditable(true);
  kappa->setMinimumWidth(300);
  ZahlFeld(kappa->lineEdit(), ZahlTaste);
  kappa->VorOeffnen = [this, kappa] {
    TexteNehmen();
    logik_.cmbKappa_DropDown();
    kappa->clear();
    for (const std::string& t : logik_.KappaListe)
      kappa->addItem(Q(t));
    kappa->setEditText(Q(logik_.cmbKappa));
  };
  connect(kappa, QOverload<int>::of(&QComboBox::activated), this, [this](int i) {
    logik_.cmbKappa_Click(i);
    Zeige();
  });
  cmbKappa_ = kappa;
  txtN_ = NeuesFeld("txtN");
  y->addWidget(new QLabel("kappa = cp/cV =", polytrope_), 0, 0);
  y->addWidget(cmbKappa_, 0, 1, 1, 2);
  y->addWidget(new QLabel("Polytropenexponent =", polytrope_), 1, 0);
  y->addWidget(txtN_, 1, 1);
  auto* modell = new QButtonGroup(polytrope_);
  optModell_ = {new QRadioButton("mit aktueller EOS", polytrope_), new QRadioButton(" mit Idealgas-Gleichung", polytrope_)};
  for (int i = 0; i < 2; ++i) {
    optModell_[static_cast<std::size_t>(i)]->setObjectName(QString("optIdealEOS%1").arg(i));
    modell->addButton(optModell_[static_cast<std::size_t>(i)], i);
    y->addWidget(optModell_[static_cast<std::size_t>(i)], 2, i);
  }
  connect(optModell_[0], &QRadioButton::toggled, this,
          [this](bool an) { logik_.optIdealEOS_Click(an ? PolytropeAktuelleEOS : PolytropeIdealgas); });
  bericht_ = new QPlainTextEdit(polytrope_);
  bericht_->setObjectName("txtBericht");
  bericht_->setReadOnly(true);
  bericht_->setFixedHeight(150);
  bericht_->setLineWrapMode(QPlainTextEdit::NoWrap);
  QFont mono("Monospace");
  mono.setStyleHint(QFont::TypeWriter);
  bericht_->setFont(mono);
  y->addWidget(bericht_, 3, 0, 1, 3);
}

void ProzessFenster::BaueKnoepfe() {
  cmdDraw_ = new QPushButton(this);
  cmdDraw_->setObjectName("cmdDrawPL");
  cmdDraw_->setDefault(true);
  auto* schliessen = new QPushButton("Abbrechen <Esc>", this);
  schliessen->setObjectName("cmdClose");
  schliessen->setAutoDefault(false);
  auto* hilfe = new QPushButton("Hilfe", this);
  hilfe->setObjectName("cmdHelp");
  hilfe->setAutoDefault(false);
  auto* zeile = new QHBoxLayout;
  zeile->addWidget(hilfe);
  zeile->addStretch(1);
  zeile->addWidget(cmdDraw_);
  zeile->addWidget(schliessen);
  static_cast<QVBoxLayout*>(layout())->addLayout(zeile);
  connect(cmdDraw_, &QPushButton::clicked, this, &ProzessFenster::cmdDrawPL);
  connect(schliessen, &QPushButton::clicked, this, &QDialog::reject);
  connect(hilfe, &QPushButton::clicked, this, [this] { ui_.Hilfe(HilfeProzesslinien); });
}

void ProzessFenster::cmdDrawPL() {
  TexteNehmen();
  const ProzessFolge folge = logik_.cmdDrawPL();
  Zeige();
  if (folge != ProzessFolge::Nichts) emit gezeichnet(folge);
}

void ProzessFenster::TexteNehmen() {
  logik_.txtT1 = txtT1_->text().toStdString();
  logik_.txtP1 = txtP1_->text().toStdString();
  logik_.txtEnde = txtEnde_->text().toStdString();
  logik_.txtEta = txtEta_->text().toStdString();
  logik_.txtN = txtN_->text().toStdString();
  logik_.txtParameter = txtParameter_->text().toStdString();
  logik_.cmbKappa = cmbKappa_->currentText().toStdString();
  std::string* gerade[] = {&logik_.txtX1, &logik_.txtY1, &logik_.txtX2, &logik_.txtY2};
  for (std::size_t i = 0; i < 4; ++i)
    *gerade[i] = txtGerade_[i]->text().toStdString();
}

void ProzessFenster::Zeige() {
  const frmInputProzessLinien& l = logik_;
  const int16_t art = l.ProzessArt;
  art_->setText(Q(l.ArtCaption));
  const bool mitStart = art != Gerade && art != Parameter;
  form_->setVisible(l.HeteroMoeglich);
  bereich_->setVisible(mitStart);
  bereich_->setEnabled(l.BereichWaehlbar);
  phase_->setVisible(mitStart && art != KonstantesEta && art != Polytrope);
  const QSignalBlocker b1(optForm_[1]), b2(optBereich_[0]), b3(optPhase_[1]), b4(optModell_[0]);
  optForm_[l.ProzessHetero ? 1 : 0]->setChecked(true);
  optBereich_[l.ProzessBereich == BereichT ? 0 : 1]->setChecked(true);
  optPhase_[l.ProzessPhase == PhaseL ? 1 : 0]->setChecked(true);
  optModell_[l.PolytropenModus == PolytropeAktuelleEOS ? 0 : 1]->setChecked(true);
  optPhase_[0]->setText(l.ProzessHetero ? "V-Sättigung" : "V-Phase");
  optPhase_[1]->setText(l.ProzessHetero ? "L-Sättigung" : "L-Phase");
  anfang_->setVisible(mitStart);
  ende_->setVisible(mitStart);
  anfang_->setTitle(Q(l.fraAnfang));
  ende_->setTitle(Q(l.fraEnde));
  lblT1_->setText(Q(l.lblT1));
  lblP1_->setText(Q(l.lblP1));
  lblEnde_->setText(Q(l.lblEnde));
  for (QWidget* w : {static_cast<QWidget*>(lblT1_), static_cast<QWidget*>(txtT1_)})
    w->setVisible(l.T1Sichtbar);
  for (QWidget* w : {static_cast<QWidget*>(lblP1_), static_cast<QWidget*>(txtP1_)})
    w->setVisible(l.P1Sichtbar);
  txtT1_->setText(Q(l.txtT1));
  txtP1_->setText(Q(l.txtP1));
  txtEnde_->setText(Q(l.txtEnde));
  cmdVScalc_->setVisible(l.VSCalcSichtbar);
  txtVSCalc_->setVisible(l.VSCalcSichtbar);
  cmdVScalc_->setText(Q(l.cmdVScalcCaption));
  cmdVScalc_->setToolTip(Q(l.cmdVScalcTip));
  txtVSCalc_->setToolTip(Q(l.txtVSCalcTip));
  QString vs = Q(l.txtVSCalc);
  vs.replace("\r\n", "\n");
  txtVSCalc_->setText(vs);
  txtVSCalc_->setStyleSheet(l.txtVSCalcRot ? "color: red;" : "");
  gerade_->setVisible(art == Gerade);
  eta_->setVisible(art == KonstantesEta);
  txtEta_->setText(Q(l.txtEta));
  parameter_->setVisible(art == Parameter);
  lblParameter_->setText(Q(l.lblParameter));
  polytrope_->setVisible(art == Polytrope);
  cmbKappa_->setEditText(Q(l.cmbKappa));
  txtN_->setText(Q(l.txtN));
  QString bericht = Q(l.Bericht);
  bericht.replace("\r\n", "\n");
  bericht_->setPlainText(bericht);
  chkEndToBegin_->setVisible(mitStart);
  const QSignalBlocker b5(chkEndToBegin_);
  chkEndToBegin_->setChecked(l.EndToBegin);
  hinweis_->setText(Q(l.Hinweis));
  hinweis_->setVisible(!l.Hinweis.empty());
  mausHinweis_->setVisible(mitStart && !l.AusRechnung);
  cmdDraw_->setText(Q(l.cmdDrawCaption));
}

QLineEdit* ProzessFenster::Feld(const QString& name) const {
  if (name == "cmbKappa") return cmbKappa_->lineEdit();
  return findChild<QLineEdit*>(name);
}

QPushButton* ProzessFenster::Knopf(const QString& name) const {
  return findChild<QPushButton*>(name);
}

} // namespace quor::ui
