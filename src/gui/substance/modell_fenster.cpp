#include "gui/substance/modell_fenster.h"

#include "core/rahmen.h"
#include "dienste/oberflaeche.h"
#include "gui/substance/b_par_input_fenster.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace quor::ui {

namespace {

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

void Fuelle(QListWidget* liste, const ModellListe& l) {
  const QSignalBlocker sperre(liste);
  liste->clear();
  for (const std::string& t : l.Texte)
    liste->addItem(Q(t));
  liste->setCurrentRow(l.ListIndex);
}

// High enough for all entries of the longest list of its kind, so that nothing scrolls.
void Hoehe(QListWidget* liste, int zeilen) {
  const int zeile = QFontMetrics(liste->font()).lineSpacing() + 2;
  liste->setFixedHeight(zeile * zeilen + 2 * liste->frameWidth() + 4);
}

} // namespace

ModellFenster::ModellFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern)
    : QWidget(eltern), s_(s), ui_(ui), logik_(s, ui), eos_(NeueListe("lstEOS")),
      dampfdruck_(NeueListe("lstDampfdruck")), hlv_(NeueListe("lstHLV")), cp_(NeueListe("lstCp")),
      watson_(new QComboBox(this)),
      watsonLabel_(new QLabel(QString::fromUtf8(frmQModell::LabelWatson), this)), rhoL_(new QLabel(this)),
      rhoLBereich_(new QLabel(this)),
      global_(new QRadioButton(QString::fromUtf8(frmQModell::OptionGlobal), this)),
      partial_(new QRadioButton(QString::fromUtf8(frmQModell::OptionPartial), this)) {
  setObjectName("frmQModell");
  Hoehe(eos_, 15);
  Hoehe(dampfdruck_, 8);
  Hoehe(hlv_, 7);
  Hoehe(cp_, 2);
  watson_->setObjectName("cboWatson");
  watson_->setEditable(true);
  watson_->setInsertPolicy(QComboBox::NoInsert);
  watson_->setMinimumContentsLength(8);
  global_->setObjectName("optKonzept0");
  partial_->setObjectName("optKonzept1");
  auto* gruppe = new QButtonGroup(this);
  gruppe->addButton(global_, 0);
  gruppe->addButton(partial_, 1);

  auto* watsonZeile = new QWidget(this);
  auto* wz = new QHBoxLayout(watsonZeile);
  wz->setContentsMargins(0, 0, 0, 0);
  wz->addWidget(watsonLabel_);
  wz->addWidget(watson_);
  wz->addStretch(1);
  auto* rhoL = new QWidget(this);
  auto* rl = new QVBoxLayout(rhoL);
  rl->setContentsMargins(0, 0, 0, 0);
  rl->addWidget(rhoL_);
  rl->addWidget(rhoLBereich_);
  auto* konzept = new QWidget(this);
  auto* kl = new QVBoxLayout(konzept);
  kl->setContentsMargins(0, 0, 0, 0);
  kl->addWidget(global_);
  kl->addWidget(partial_);

  auto* hinweis = new QLabel(QString::fromUtf8(frmQModell::HinweisSchaltzentrale), this);
  hinweis->setStyleSheet("font-style: italic; color: #204a87;");
  auto* bank = new QPushButton(QString::fromUtf8(frmQModell::cmdEditDatenBankCaption), this);
  bank->setObjectName("cmdEditDatenBank");
  bank->setEnabled(false); // the database editor is not part of this build

  auto* raster = new QGridLayout;
  raster->addWidget(Gruppe("Zustandsgleichung (EOS)", eos_), 0, 0, 3, 1);
  raster->addWidget(Gruppe("Dampfdruck-Gleichung p(LV) = Fu(T)", dampfdruck_), 0, 1);
  raster->addWidget(Gruppe("Verdampfungsenthalpie delta(LV)h = Fu(T)", hlv_, watsonZeile), 1, 1);
  raster->addWidget(Gruppe("Idealgas-Wärmekapazität cp(idG) = Fu(T)", cp_), 2, 1);
  raster->addWidget(Gruppe("Konzept für das Phasengleichgewicht V-L", konzept), 3, 0);
  raster->addWidget(Gruppe("L-Dichte rho(L) = Fu(T)", rhoL), 3, 1);
  auto* fuss = new QHBoxLayout;
  fuss->addWidget(hinweis, 1);
  fuss->addWidget(bank);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(raster);
  layout->addLayout(fuss);
  Verbinden();
}

QListWidget* ModellFenster::NeueListe(const char* name) {
  auto* liste = new QListWidget(this);
  liste->setObjectName(name);
  liste->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  liste->setMinimumWidth(QFontMetrics(liste->font()).horizontalAdvance(QString(37, 'M')));
  return liste;
}

// A framed group with its help button; the help explains the models and concepts.
QWidget* ModellFenster::Gruppe(const QString& titel, QWidget* inhalt, QWidget* zusatz) {
  auto* box = new QGroupBox(titel, this);
  auto* hilfe = new QToolButton(box);
  hilfe->setText("?");
  hilfe->setToolTip("Hilfe zu den Modellen");
  hilfe->setFocusPolicy(Qt::NoFocus);
  connect(hilfe, &QToolButton::clicked, this, [this] { ui_.Hilfe(HilfeModelle); });
  auto* zeile = new QHBoxLayout;
  zeile->addWidget(inhalt, 1);
  zeile->addWidget(hilfe, 0, Qt::AlignTop);
  auto* layout = new QVBoxLayout(box);
  layout->addLayout(zeile);
  if (zusatz) layout->addWidget(zusatz);
  layout->addStretch(1); // lists stay at the top of a taller group
  return box;
}

void ModellFenster::Verbinden() {
  auto wahl = [this](QListWidget* liste, ModellAktionen (frmQModell::*klick)(int)) {
    connect(liste, &QListWidget::currentRowChanged, this, [this, klick](int zeile) {
      if (!zeigt_ && zeile >= 0) Nachher((logik_.*klick)(zeile));
    });
  };
  wahl(eos_, &frmQModell::EOSListe_Click);
  wahl(dampfdruck_, &frmQModell::DampfdruckListe_Click);
  wahl(hlv_, &frmQModell::HLVListe_Click);
  wahl(cp_, &frmQModell::CpListe_Click);
  connect(watson_, &QComboBox::currentTextChanged, this, [this](const QString& text) {
    if (zeigt_) return;
    logik_.WatsonListe_Change(text.toStdString());
    emit geaendert();
  });
  connect(global_, &QRadioButton::toggled, this, [this](bool an) {
    if (!zeigt_) Nachher(logik_.optKonzept_Click(an ? 0 : 1));
  });
}

void ModellFenster::Laden() {
  logik_.Form_Load();
  Zeige();
  emit geaendert();
}

void ModellFenster::Zeige() {
  zeigt_ = true;
  setWindowTitle(Q(logik_.Caption));
  Fuelle(eos_, logik_.EOS);
  Fuelle(dampfdruck_, logik_.Dampfdruck);
  Fuelle(hlv_, logik_.HLV);
  Fuelle(cp_, logik_.Cp);
  watson_->clear();
  for (const std::string& t : logik_.WatsonListe)
    watson_->addItem(Q(t));
  watson_->setEditText(Q(logik_.WatsonText));
  watson_->setVisible(logik_.WatsonVisible);
  watsonLabel_->setVisible(logik_.WatsonVisible);
  rhoL_->setText(Q(logik_.lblRhoL));
  rhoLBereich_->setText(Q(logik_.lblRhoLBereich));
  rhoLBereich_->setVisible(!logik_.lblRhoLBereich.empty());
  (logik_.optKonzept == 0 ? global_ : partial_)->setChecked(true);
  global_->setEnabled(logik_.optKonzeptEnabled);
  partial_->setEnabled(logik_.optKonzeptEnabled);
  zeigt_ = false;
}

void ModellFenster::Nachher(const ModellAktionen& a) {
  Zeige();
  if (a.BParInputOeffnen) {
    BParInputFenster eingabe(s_, this);
    eingabe.exec();
  }
  emit geaendert();
}

void ModellFenster::keyPressEvent(QKeyEvent* ereignis) {
  if (ereignis->key() != Qt::Key_Escape) {
    QWidget::keyPressEvent(ereignis);
    return;
  }
  // In the frame the window sits in a subwindow, which is what hides.
  QWidget* fenster = parentWidget() && parentWidget()->inherits("QMdiSubWindow") ? parentWidget() : this;
  fenster->hide();
}

} // namespace quor::ui
