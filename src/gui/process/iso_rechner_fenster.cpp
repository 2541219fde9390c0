#include "gui/process/iso_rechner_fenster.h"

#include "calc/parinput.h"
#include "gui/basis/zahl_feld.h"
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

namespace {

QString Q(const char* s) {
  return QString::fromUtf8(s);
}

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

// An option group: the buttons in `spalten` columns, each with its index as its id.
template <std::size_t N>
QGroupBox* Wahl(const QString& titel, const char* name, const std::array<const char*, N>& texte,
                std::array<QRadioButton*, N>& knoepfe, int spalten, QWidget* eltern) {
  auto* rahmen = new QGroupBox(titel, eltern);
  auto* gruppe = new QButtonGroup(rahmen);
  auto* raster = new QGridLayout(rahmen);
  const int zeilen = static_cast<int>((N + spalten - 1) / spalten);
  for (std::size_t i = 0; i < N; ++i) {
    knoepfe[i] = new QRadioButton(Q(texte[i]), rahmen);
    knoepfe[i]->setObjectName(QString("%1%2").arg(name).arg(i));
    gruppe->addButton(knoepfe[i], static_cast<int>(i));
    raster->addWidget(knoepfe[i], static_cast<int>(i) % zeilen, static_cast<int>(i) / zeilen);
  }
  return rahmen;
}

} // namespace

IsoRechnerFenster::IsoRechnerFenster(ProjectState& s, Oberflaeche& ui, const RechenKontext& seite,
                                     QWidget* eltern)
    : QDialog(eltern), logik_(s, ui, seite), ui_(ui) {
  setObjectName("frmIsoCalc");
  setWindowTitle(Q(prozess::frmIsoCalc::Caption));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(BaueOptionen());
  layout->addWidget(BaueFelder());
  layout->addWidget(BaueKnoepfe());
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget* IsoRechnerFenster::BaueOptionen() {
  using prozess::frmIsoCalc;
  auto* zeile = new QWidget(this);
  auto* layout = new QHBoxLayout(zeile);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* links = new QVBoxLayout;
  links->addWidget(Wahl("Vorgabe", "optIsoTp", frmIsoCalc::optIsoTpTexte, vorgabe_, 1, zeile));
  links->addWidget(Wahl("Phase", "optIsoPhase", frmIsoCalc::optIsoPhaseTexte, phase_, 1, zeile));
  layout->addLayout(links);
  layout->addWidget(Wahl("konstant gehalten", "OptIsoFu", frmIsoCalc::OptIsoFuTexte, funktion_, 2, zeile), 1);

  auto klick = [this](QRadioButton* knopf, auto handlung) {
    connect(knopf, &QRadioButton::clicked, this, [this, handlung] {
      handlung();
      Zeige();
    });
  };
  for (int16_t i = 0; i < 2; ++i) {
    klick(vorgabe_[i], [this, i] { logik_.optIsoTp_Click(i); });
    klick(phase_[i], [this, i] { logik_.optIsoPhase_Click(i); });
  }
  for (int16_t i = 0; i < prozess::IsoFunktionen; ++i)
    klick(funktion_[i], [this, i] { logik_.OptIsoFu_Click(i); });
  return zeile;
}

QLineEdit* IsoRechnerFenster::NeuesFeld(const char* name) {
  auto* feld = new QLineEdit(this);
  feld->setObjectName(name);
  feld->setMinimumWidth(150);
  ZahlFeld(feld, ZahlTaste);
  return feld;
}

QWidget* IsoRechnerFenster::BaueFelder() {
  auto* rahmen = new QGroupBox(this);
  auto* raster = new QGridLayout(rahmen);
  lblTpVorgabe_ = new QLabel(rahmen);
  lblFuConst_ = new QLabel(rahmen);
  lblFuConst_->setObjectName("lblFuConst");
  lblFuEinheit_ = new QLabel(rahmen);
  lblFuEinheit_->setMinimumWidth(lblFuEinheit_->fontMetrics().horizontalAdvance("kJ/(kmol K)") + 6);
  lblTpCalc_ = new QLabel(rahmen);
  tpVorgabe_ = NeuesFeld("txtTpVorgabe");
  fuConst_ = NeuesFeld("txtFuConst");
  fuConst_->setToolTip(Q(prozess::frmIsoCalc::txtFuConstToolTip));
  tpCalc_ = NeuesFeld("txtTpCalc");
  tpCalc_->setReadOnly(true);
  raster->addWidget(lblTpVorgabe_, 0, 0, Qt::AlignRight);
  raster->addWidget(tpVorgabe_, 0, 1);
  raster->addWidget(lblFuConst_, 1, 0, Qt::AlignRight);
  raster->addWidget(fuConst_, 1, 1);
  raster->addWidget(lblFuEinheit_, 1, 2);
  raster->addWidget(lblTpCalc_, 2, 0, Qt::AlignRight);
  raster->addWidget(tpCalc_, 2, 1, 1, 2);
  raster->setColumnStretch(1, 1);
  return rahmen;
}

QWidget* IsoRechnerFenster::BaueKnoepfe() {
  auto* zeile = new QWidget(this);
  auto* layout = new QHBoxLayout(zeile);
  layout->setContentsMargins(0, 0, 0, 0);
  auto knopf = [&](const char* name, const char* text, const char* tipp = nullptr) {
    auto* k = new QPushButton(Q(text), zeile);
    k->setObjectName(name);
    k->setAutoDefault(false);
    if (tipp) k->setToolTip(Q(tipp));
    layout->addWidget(k);
    return k;
  };
  QPushButton* rechnen = knopf("cmdCalc", "berechnen");
  rechnen->setDefault(true);
  QPushButton* reset = knopf("cmdReset", "Reset Last", prozess::frmIsoCalc::cmdResetToolTip);
  QPushButton* kurven =
      knopf("cmdShowManuInput", "Kurven-Input", prozess::frmIsoCalc::cmdShowManuInputToolTip);
  QPushButton* hilfe = knopf("cmdIsoHelp", "?");
  hilfe->setFixedWidth(hilfe->sizeHint().height());
  QPushButton* schliessen = knopf("cmdEsc", "schließen ");

  connect(rechnen, &QPushButton::clicked, this, [this] {
    TexteNehmen();
    logik_.cmdCalc_Click();
    Zeige();
  });
  connect(reset, &QPushButton::clicked, this, [this] {
    logik_.cmdReset_Click();
    Zeige();
  });
  connect(kurven, &QPushButton::clicked, this, [this] {
    if (KurvenInputOeffnen) KurvenInputOeffnen();
  });
  connect(hilfe, &QPushButton::clicked, this, [this] { ui_.Hilfe(prozess::HilfeIsoRechner); });
  connect(schliessen, &QPushButton::clicked, this, &QDialog::reject);
  return zeile;
}

QPushButton* IsoRechnerFenster::Knopf(const char* name) const {
  return findChild<QPushButton*>(name);
}

bool IsoRechnerFenster::Laden() {
  if (!logik_.Form_Load()) return false;
  Zeige();
  return true;
}

void IsoRechnerFenster::TexteNehmen() {
  logik_.txtTpVorgabe = tpVorgabe_->text().toStdString();
  logik_.txtFuConst = fuConst_->text().toStdString();
}

void IsoRechnerFenster::Zeige() {
  vorgabe_[static_cast<std::size_t>(logik_.IsoVorgabe)]->setChecked(true);
  funktion_[static_cast<std::size_t>(logik_.IsoFunktion)]->setChecked(true);
  phase_[static_cast<std::size_t>(logik_.IsoPhase)]->setChecked(true);
  lblTpVorgabe_->setText(Q(logik_.lblTpVorgabe));
  lblFuConst_->setText(Q(logik_.lblFuConst));
  lblFuEinheit_->setText(Q(logik_.lblFuEinheit));
  lblTpCalc_->setText(Q(logik_.lblTpCalc));
  tpVorgabe_->setText(Q(logik_.txtTpVorgabe));
  fuConst_->setText(Q(logik_.txtFuConst));
  tpCalc_->setText(Q(logik_.txtTpCalc));
  const bool ohne = !logik_.Geloest && !logik_.txtTpCalc.empty();
  tpCalc_->setStyleSheet(ohne ? "color: #c00000;" : "");
  Knopf("cmdShowManuInput")->setEnabled(static_cast<bool>(KurvenInputOeffnen));
}

} // namespace quor::ui
