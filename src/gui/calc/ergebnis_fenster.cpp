#include "gui/calc/ergebnis_fenster.h"

#include "core/rahmen.h"
#include "dienste/oberflaeche.h"
#include "gui/basis/hilfe_knopf.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTextDocument>
#include <QVBoxLayout>

namespace quor::ui {

namespace {

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

// Columns of the text block: label and unit before the phase values, and the width of one value.
constexpr int SpalteL = 34;
constexpr int WertBreite = 20;
constexpr int ListenSpalten = 90; // the longest lines: the inflection points of the isotherm

QFont ListenSchrift() {
  QFont f = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  f.setFamilies({"Courier New", "DejaVu Sans Mono", "Noto Sans Mono", f.family()});
  f.setStyleHint(QFont::TypeWriter);
  f.setFixedPitch(true);
  f.setPointSize(9);
  return f;
}

QFont Co1Schrift() {
  QFont f("Arial");
  f.setFamilies({"Arial", "Liberation Sans", "Nimbus Sans", "DejaVu Sans"});
  f.setStyleHint(QFont::SansSerif);
  f.setPointSize(9);
  return f;
}

// Text colour, visibility and tool tip of a field.
void Feld(QLabel* l, const SeitenFeld& f, bool fett = false) {
  l->setText(Q(f.text));
  l->setVisible(f.sichtbar);
  l->setToolTip(Q(f.tooltip));
  QString stil = f.farbe == TextFarbe::Rot ? "color: #c00000;" : "color: black;";
  if (fett) stil += " font-weight: bold;";
  l->setStyleSheet(stil);
}

QLabel* NeuesLabel(const char* name, QWidget* eltern) {
  auto* l = new QLabel(eltern);
  l->setObjectName(name);
  l->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return l;
}

} // namespace

ErgebnisFenster::ErgebnisFenster(ProjectState& s, Oberflaeche& ui, bool stapelModus, QWidget* eltern)
    : QWidget(eltern), s_(s), logik_(s, ui, stapelModus) {
  setObjectName("frmQCalcOut");
  logik_.BegleiterEntladen = [this] { emit entladen(); };
  auto* links = new QVBoxLayout;
  links->addWidget(BaueKopf());
  links->addWidget(BaueErgebnis(), 1);
  auto* oben = new QHBoxLayout;
  oben->addLayout(links, 1);
  oben->addWidget(BaueOptionen(ui));
  status_ = NeuesLabel("statusZeile", this);
  status_->setFrameShape(QFrame::StyledPanel);
  status_->setFrameShadow(QFrame::Sunken);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(oben, 1);
  layout->addWidget(status_);
  Verbinden();
}

QWidget* ErgebnisFenster::BaueKopf() {
  vorgabe_ = new QGroupBox(this);
  vorgabe_->setObjectName("fraBatchVorgabe");
  par1_ = NeuesLabel("par1", vorgabe_);
  par2_ = NeuesLabel("par2", vorgabe_);
  auto* werte = new QVBoxLayout;
  werte->addWidget(par1_);
  werte->addWidget(par2_);
  auto* layout = new QHBoxLayout(vorgabe_);
  layout->addLayout(werte, 1);
  layout->addWidget(NeuerKnopf("cmdRueck", "Datensatz rückwärts"));
  layout->addWidget(NeuerKnopf("cmdVor", "Datensatz vorwärts"));
  return vorgabe_;
}

QWidget* ErgebnisFenster::BaueErgebnis() {
  auto* box = new QWidget(this);
  co1_ = NeuesLabel("co1", box);
  co1_->setFont(Co1Schrift());
  co1_->setWordWrap(true);
  txtco2_ = NeuesLabel("txtco2", box);
  txtco2_->setFont(ListenSchrift());
  gleich_ = NeuesLabel("lblGleich", box);
  identisch_ = NeuesLabel("lblIdentisch", box);
  liste_ = new QPlainTextEdit(box);
  liste_->setObjectName("Liste");
  liste_->setReadOnly(true);
  liste_->setLineWrapMode(QPlainTextEdit::NoWrap);
  liste_->setFont(ListenSchrift());
  liste_->setStyleSheet("QPlainTextEdit { background: #fffff4; }");

  // The phase labels stand over the value columns of the text block.
  const QFontMetricsF fm(liste_->font());
  auto spalten = [&fm](int n) { return fm.horizontalAdvance(QString(n, 'M')); };
  const double rand = liste_->frameWidth() + liste_->document()->documentMargin();
  lPhase_ = NeuesLabel("lblLphase", box);
  vPhase_ = NeuesLabel("lblVphase", box);
  auto* phasen = new QHBoxLayout;
  phasen->setSpacing(0);
  phasen->addSpacing(qRound(rand + spalten(SpalteL)));
  for (QLabel* l : {lPhase_, vPhase_}) {
    l->setFont(liste_->font());
    l->setFixedWidth(qRound(spalten(SpalteL + WertBreite)) - qRound(spalten(SpalteL)));
    l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    phasen->addWidget(l);
  }
  phasen->addStretch(1);
  liste_->setMinimumWidth(qRound(spalten(ListenSpalten) + 2 * rand) + 20);

  auto* region = new QHBoxLayout;
  region->addWidget(gleich_);
  region->addWidget(identisch_);
  region->addStretch(1);
  auto* layout = new QVBoxLayout(box);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(co1_);
  layout->addWidget(txtco2_);
  layout->addLayout(region);
  layout->addLayout(phasen);
  layout->addWidget(liste_, 1);
  return box;
}

QWidget* ErgebnisFenster::BaueOptionen(Oberflaeche& ui) {
  auto* spalte = new QWidget(this);
  erweitert_ = new QGroupBox("erweiterte Berechnung", spalte);
  erweitert_->setObjectName("fraCalcErweitert");
  uhs_ = new QCheckBox("thermodynamische Funkt. h. s, g, u, a, ...", erweitert_);
  uhs_->setObjectName("chkUHS");
  // The long caption of the first option is broken into two lines for the narrow column.
  resPlus_[0] = new QCheckBox("diff. Joule-Thomson-Koeffizient, Fugazitätskoeffizienten,\n"
                              "mechanische Koeffizienten, Residualfunktionen",
                              erweitert_);
  resPlus_[1] = new QCheckBox("Ableitungen nach T, p, v", erweitert_);
  auto* e = new QVBoxLayout(erweitert_);
  e->addWidget(uhs_);
  for (int i = 0; i < 2; ++i) {
    resPlus_[i]->setObjectName(QString("ResPlus%1").arg(i));
    e->addWidget(resPlus_[i]);
  }

  ausgabeRahmen_ = new QGroupBox("Ausgabe der Ergebnisliste", spalte);
  ausgabeRahmen_->setObjectName("fraResultOutput");
  auto* gruppe = new QButtonGroup(this);
  auto* a = new QGridLayout(ausgabeRahmen_);
  const char* texte[] = {"keine", "Drucker", "File"};
  for (int i = 0; i < 3; ++i) {
    ausgabe_[i] = new QRadioButton(texte[i], ausgabeRahmen_);
    ausgabe_[i]->setObjectName(QString("optResultPrint%1").arg(i));
    gruppe->addButton(ausgabe_[i], i);
    a->addWidget(ausgabe_[i], 0, i);
  }
  funcPrint_ = new QCheckBox("mit erweiterter Berechnung", ausgabeRahmen_);
  funcPrint_->setObjectName("chkFuncPrint");
  a->addWidget(funcPrint_, 1, 0, 1, 3);
  connect(gruppe, &QButtonGroup::idClicked, this, [this](int i) {
    logik_.optResultPrint_Click(static_cast<int16_t>(i));
    Zeige();
  });

  protokoll_ = new QGroupBox("Protokoll", spalte);
  protokoll_->setObjectName("fraProtokoll");
  protText2_ = NeuesLabel("lblProtText2", protokoll_);
  auto* p = new QVBoxLayout(protokoll_);
  p->addWidget(NeuerKnopf("cmdProtokoll", "Ergebnis protokollieren"));
  QPushButton* neu = NeuerKnopf("cmdOpenNew", "File schließen / neues File öffnen \n"
                                              "und Protokoll in Clipboard kopieren");
  neu->setToolTip("ACHTUNG: Alter Clipboard-Inhalt wird gelöscht");
  p->addWidget(neu);
  p->addWidget(protText2_);
  protHinweis_ = NeuesLabel("lblProtHinweis", protokoll_);
  protHinweis_->setWordWrap(true);
  protHinweis_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  protHinweis_->setStyleSheet("color: #1a5e1a;");
  p->addWidget(protHinweis_);

  auto* werkzeuge = new QGridLayout;
  werkzeuge->addWidget(NeuerKnopf("cmdCEOSDiagnose", "Diagnose kubische EOS"), 0, 0);
  werkzeuge->addWidget(NeuerKnopf("cmdInfoSuperCrit", "Info-Bild SuperCrit"), 0, 1);
  werkzeuge->addWidget(NeuerKnopf("cmdIsoCalc", "Iso-Rechner"), 1, 0);
  werkzeuge->addWidget(NeuerKnopf("cmdShowManuInput", "XY-Daten- Editor"), 1, 1);
  // The X-Y editor is not part of this build.
  Knopf("cmdShowManuInput")->setEnabled(false);

  auto* layout = new QVBoxLayout(spalte);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(erweitert_);
  layout->addWidget(ausgabeRahmen_);
  layout->addWidget(protokoll_);
  layout->addLayout(werkzeuge);
  layout->addStretch(1);
  auto* schluss = new QHBoxLayout;
  schluss->addWidget(NeuerKnopf("cmdCalc_OK", ""), 1);
  schluss->addWidget(HilfeKnopf(this, ui, HilfeBerechnungen));
  layout->addLayout(schluss);
  return spalte;
}

QPushButton* ErgebnisFenster::NeuerKnopf(const char* name, const QString& text) {
  auto* k = new QPushButton(text, this);
  k->setObjectName(name);
  return k;
}

QPushButton* ErgebnisFenster::Knopf(const char* name) const {
  return findChild<QPushButton*>(name);
}

QGroupBox* ErgebnisFenster::Rahmen(const char* name) const {
  return findChild<QGroupBox*>(name);
}

void ErgebnisFenster::Verbinden() {
  auto klick = [this](const char* name, auto handlung) {
    connect(Knopf(name), &QPushButton::clicked, this, [this, handlung] {
      handlung();
      Nachher();
    });
  };
  klick("cmdVor", [this] { logik_.cmdVor_Click(); });
  klick("cmdRueck", [this] { logik_.cmdRueck_Click(); });
  klick("cmdProtokoll", [this] { logik_.cmdProtokoll_Click(); });
  klick("cmdOpenNew", [this] { logik_.cmdOpenNew_Click(); });
  klick("cmdCalc_OK", [this] { logik_.cmdCalc_OK_Click(); });
  connect(Knopf("cmdCEOSDiagnose"), &QPushButton::clicked, this, &ErgebnisFenster::diagnoseGewuenscht);
  connect(Knopf("cmdInfoSuperCrit"), &QPushButton::clicked, this, &ErgebnisFenster::superKritUmschalten);
  connect(Knopf("cmdIsoCalc"), &QPushButton::clicked, this, [this] {
    if (logik_.cmdIsoCalc_Click() && IsoRechnerOeffnen) IsoRechnerOeffnen();
  });
  connect(uhs_, &QCheckBox::clicked, this, [this](bool an) {
    logik_.chkUHS_Click(an);
    Nachher();
  });
  for (int i = 0; i < 2; ++i)
    connect(resPlus_[i], &QCheckBox::clicked, this, [this, i](bool an) {
      logik_.ResPlus_Click(i, an);
      Nachher();
    });
  connect(funcPrint_, &QCheckBox::clicked, this, [this](bool an) { logik_.chkFuncPrint_Click(an); });
}

bool ErgebnisFenster::Laden() {
  logik_.Form_Load();
  Zeige();
  return logik_.Sichtbar;
}

void ErgebnisFenster::Rechnen() {
  logik_.Rechnen();
  Zeige();
}

// After a command: a beep at the ends of the batch, the page anew, or the window closed.
void ErgebnisFenster::Nachher() {
  if (logik_.Piepser != piepser_) {
    piepser_ = logik_.Piepser;
    QApplication::beep();
  }
  if (logik_.Entladen) {
    Fenster()->close();
    return;
  }
  Zeige();
}

QString ErgebnisFenster::ListenText(const std::string& text) {
  QString t = Q(text);
  t.replace("\r\n", "\n");
  t.replace(QChar(0x00AD), QChar('-'));
  return t;
}

void ErgebnisFenster::Zeige() {
  const ErgebnisSeite& seite = logik_.Seite;
  setWindowTitle(Q(logik_.Caption));
  vorgabe_->setTitle(Q(logik_.fraBatchVorgabeCaption));
  vorgabe_->setVisible(logik_.fraBatchVorgabeVisible);
  Feld(par1_, seite.par1);
  Feld(par2_, seite.par2);
  Feld(co1_, seite.co1);
  Feld(txtco2_, seite.txtco2);
  txtco2_->setVisible(logik_.fraValueVisible && seite.txtco2.sichtbar);
  Feld(gleich_, seite.lblGleich);
  Feld(identisch_, seite.lblIdentisch, true);
  Feld(lPhase_, seite.lblLphase, true);
  Feld(vPhase_, seite.lblVphase, true);
  liste_->setPlainText(ListenText(seite.Liste.text));
  liste_->setStyleSheet(seite.Liste.farbe == TextFarbe::Rot
                            ? "QPlainTextEdit { background: #fffff4; color: #c00000; }"
                            : "QPlainTextEdit { background: #fffff4; color: black; }");

  Knopf("cmdVor")->setEnabled(logik_.cmdVorEnabled);
  Knopf("cmdRueck")->setEnabled(logik_.cmdRueckEnabled);
  erweitert_->setVisible(logik_.fraCalcErweitertVisible);
  uhs_->setChecked(logik_.chkUHS);
  uhs_->setEnabled(logik_.chkUHSEnabled);
  for (std::size_t i = 0; i < resPlus_.size(); ++i) {
    resPlus_[i]->setChecked(logik_.ResPlus[i]);
    resPlus_[i]->setEnabled(logik_.ResPlusEnabled);
  }
  ausgabeRahmen_->setVisible(logik_.fraResultOutputVisible);
  ausgabeRahmen_->setEnabled(logik_.fraResultOutputEnabled);
  if (logik_.optResultPrint >= 0 && logik_.optResultPrint < 3)
    ausgabe_[logik_.optResultPrint]->setChecked(true);
  funcPrint_->setChecked(logik_.chkFuncPrint);
  funcPrint_->setEnabled(logik_.chkFuncPrintEnabled);
  protokoll_->setVisible(logik_.fraProtokollVisible);
  protText2_->setText(Q(logik_.lblProtText2));
  protHinweis_->setText(HinweisText(logik_.lblProtHinweis));
  protHinweis_->setVisible(!logik_.lblProtHinweis.empty());
  Knopf("cmdOpenNew")->setEnabled(logik_.cmdOpenNewEnabled);
  Knopf("cmdCEOSDiagnose")->setEnabled(logik_.cmdCEOSDiagnoseEnabled);
  Knopf("cmdInfoSuperCrit")->setEnabled(logik_.cmdInfoSuperCritEnabled);
  Knopf("cmdIsoCalc")->setEnabled(logik_.cmdIsoCalcEnabled && static_cast<bool>(IsoRechnerOeffnen));
  Knopf("cmdCalc_OK")->setText(Q(logik_.cmdCalc_OKCaption));
  Knopf("cmdCalc_OK")->setToolTip(Q(logik_.cmdCalc_OKToolTip));

  QStringList status;
  for (std::size_t i = 2; i < s_.Projekt.StatusLeiste.size(); ++i)
    if (!s_.Projekt.StatusLeiste[i].empty()) status << Q(s_.Projekt.StatusLeiste[i]);
  status_->setText(status.join("   |   "));
}

QWidget* ErgebnisFenster::Fenster() {
  return parentWidget() && parentWidget()->inherits("QMdiSubWindow") ? parentWidget() : this;
}

void ErgebnisFenster::LageMerken() {
  const QRect r = Fenster()->geometry();
  s_.Rechnung.ErgebnisSeite = FensterLage{r.x(), r.y(), r.width(), r.height(), true};
}

void ErgebnisFenster::closeEvent(QCloseEvent* ereignis) {
  LageMerken();
  logik_.Form_Unload(); // closes an open record and the companions
  ereignis->accept();
}

QString ErgebnisFenster::HinweisText(const std::string& text) {
  return QString::fromStdString(text).replace("\r\n", "\n").replace("/", QString("/") + QChar(0x200B));
}

} // namespace quor::ui
