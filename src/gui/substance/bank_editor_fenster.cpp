#include "gui/substance/bank_editor_fenster.h"

#include "dienste/oberflaeche.h"
#include "gui/substance/text_fenster.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <vector>

namespace quor::ui {

namespace {

constexpr int ZahlBreite = 112;
constexpr int ZahlBreiteEng = 96; // the vapour-pressure page with its four columns
constexpr int TextBreite = 330;
constexpr int KorrBreite = 96;

QString Q(const char* utf8) {
  return QString::fromUtf8(utf8);
}
QString Q(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

// The groups of a page in the order of their fields.
std::vector<const char*> Gruppen(BankSeite seite) {
  std::vector<const char*> g;
  for (const BankFeld& f : BankFelder())
    if (f.Seite == seite && (g.empty() || g.back() != f.Gruppe)) g.push_back(f.Gruppe);
  return g;
}

// The column of a page that a group stands in: the two Antoine sets share one, and the texts of
// the substance share theirs with the formation quantities.
int Spalte(BankSeite seite, int gruppe) {
  if (seite == BankSeite::Dampfdruck) return gruppe == 0 ? 0 : gruppe - 1;
  if (seite == BankSeite::Einzeldaten) return gruppe == 1 ? 1 : 0;
  return gruppe;
}

} // namespace

BankEditorFenster::BankEditorFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern)
    : QWidget(eltern), s_(s), ui_(ui), logik_(s, ui) {
  setObjectName("frmQBankEdit");
  setWindowTitle(Q(frmQBankEdit::Caption));
  seiten_ = new QTabWidget(this);
  seiten_->setObjectName("tabSeiten");
  for (int i = 0; i < BankSeitenAnzahl; ++i)
    seiten_->addTab(BaueSeite(static_cast<BankSeite>(i)), Q(BankSeitenTitel[i]));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(seiten_);
  layout->addWidget(BaueKnopfLeiste());
  Laden();
}

QWidget* BankEditorFenster::BaueSeite(BankSeite seite) {
  auto* seitenWidget = new QWidget(this);
  auto* v = new QVBoxLayout(seitenWidget);
  auto* h = new QHBoxLayout;
  std::vector<QVBoxLayout*> spalten;
  const std::vector<const char*> gruppen = Gruppen(seite);
  for (int g = 0; g < static_cast<int>(gruppen.size()); ++g) {
    const int spalte = Spalte(seite, g);
    while (static_cast<int>(spalten.size()) <= spalte) {
      spalten.push_back(new QVBoxLayout);
      h->addLayout(spalten.back());
    }
    spalten[static_cast<std::size_t>(spalte)]->addWidget(
        BaueGruppe(seite, gruppen[static_cast<std::size_t>(g)]));
  }
  if (seite == BankSeite::Dampfdruck) {
    spalten.push_back(new QVBoxLayout);
    spalten.back()->addWidget(BaueKorrelierte());
    h->addLayout(spalten.back());
  }
  for (QVBoxLayout* s : spalten)
    s->addStretch();
  h->addStretch();
  v->addLayout(h);
  SeiteErgaenzen(seite, v);
  v->addStretch();
  return seitenWidget;
}

QGroupBox* BankEditorFenster::BaueGruppe(BankSeite seite, const char* gruppe) {
  auto* box = new QGroupBox(Q(gruppe), this);
  auto* grid = new QGridLayout(box);
  grid->setVerticalSpacing(3);
  int zeile = 0;
  for (const BankFeld& f : BankFelder()) {
    if (f.Seite != seite || f.Gruppe != gruppe) continue;
    auto* feld = new QLineEdit(box);
    feld->setObjectName(QString("DD%1").arg(f.Index));
    feld->setFixedWidth(IstTextFeld(f.Index)             ? TextBreite
                        : seite == BankSeite::Dampfdruck ? ZahlBreiteEng
                                                         : ZahlBreite);
    if (!IstTextFeld(f.Index)) feld->installEventFilter(this);
    connect(feld, &QLineEdit::textEdited, this,
            [this, i = f.Index](const QString& t) { logik_.FeldGeaendert(i, t.toStdString()); });
    felder_[f.Index] = feld;
    grid->addWidget(new QLabel(Q(f.Beschriftung), box), zeile, 0);
    grid->addWidget(feld, zeile++, 1);
    if (f.Index == 3) { // the triple-point pressure: from the database or the current equation
      for (int o = 0; o < 2; ++o) {
        optpSL_[o] = new QRadioButton(Q(frmQBankEdit::OptionPTripel[o]), box);
        optpSL_[o]->setObjectName(QString("optpSL%1").arg(o));
        optpSL_[o]->setToolTip(Q(frmQBankEdit::OptionPTripelTip));
        connect(optpSL_[o], &QRadioButton::clicked, this, [this, o] {
          logik_.optpSL_Click(o);
          Zeige();
        });
        grid->addWidget(optpSL_[o], zeile++, 1);
      }
    }
  }
  auto unten = [&](QWidget* w) { grid->addWidget(w, zeile++, 0, 1, 2); };
  if (gruppe == BankFeldVon(0)->Gruppe) {
    unten(NeuerKnopf("cmdJOBACKCrit", Q(frmQBankEdit::JobackCaption), Q(frmQBankEdit::JobackTip)));
    connect(Knopf("cmdJOBACKCrit"), &QPushButton::clicked, this,
            [this] { logik_.cmdJoback(JobackKritisch); });
  } else if (gruppe == BankFeldVon(44)->Gruppe) {
    unten(NeuerKnopf("cmdJOBACKBildung", Q(frmQBankEdit::JobackCaption), Q(frmQBankEdit::JobackTip)));
    connect(Knopf("cmdJOBACKBildung"), &QPushButton::clicked, this,
            [this] { logik_.cmdJoback(JobackBildung); });
  } else if (gruppe == BankFeldVon(83)->Gruppe) {
    mdbNr_ = new QLabel(box);
    grid->addWidget(mdbNr_, zeile, 0);
    auto* synonyme = NeuerKnopf("cmdSynonyme", "Synonyme");
    grid->addWidget(synonyme, zeile++, 1, Qt::AlignLeft);
    connect(synonyme, &QPushButton::clicked, this, [this] {
      if (auto text = logik_.cmdSynonyme()) ZeigeTextFenster(*text, this);
    });
  }
  return box;
}

QWidget* BankEditorFenster::BaueKorrelierte() {
  static const char* const knoepfe[4] = {"cmdCorrelateAugust", "cmdCorrelateKFW", "cmdCorrelateKFR",
                                         "cmdCorrelateAntoine"};
  auto* box = new QGroupBox("korrelierte Parameter (" + Q(frmQBankEdit::NichtEditierbar) + ")", this);
  box->setObjectName("fraKorreliert");
  auto* grid = new QGridLayout(box);
  grid->setVerticalSpacing(3);
  for (int z = 0; z < 9; ++z)
    grid->addWidget(new QLabel(QString(QChar('A' + z)), box), z + 1, 0);
  korreliert_.clear();
  for (int k = 0; k < 4; ++k) {
    const KorrelierterSatz& satz = logik_.Korreliert[static_cast<std::size_t>(k)];
    auto* titel = new QLabel(Q(satz.Titel), box);
    titel->setWordWrap(true);
    titel->setFixedWidth(KorrBreite);
    grid->addWidget(titel, 0, k + 1, Qt::AlignBottom);
    korreliert_.emplace_back();
    for (std::size_t z = 0; z < satz.Namen.size(); ++z) {
      auto* feld = new QLineEdit(box);
      feld->setReadOnly(true);
      feld->setFocusPolicy(Qt::NoFocus);
      feld->setFixedWidth(KorrBreite);
      feld->setStyleSheet("background: palette(window)");
      feld->setObjectName(QString("%1%2").arg(knoepfe[k] + 12).arg(z));
      grid->addWidget(feld, static_cast<int>(z) + 1, k + 1);
      korreliert_.back().push_back(feld);
    }
    auto* knopf =
        NeuerKnopf(knoepfe[k], Q(frmQBankEdit::KorrelierenCaption), Q(frmQBankEdit::KorrelierenTip));
    knopf->setFixedWidth(KorrBreite);
    grid->addWidget(knopf, 10, k + 1);
    connect(knopf, &QPushButton::clicked, this, [this, index = satz.Index] {
      logik_.cmdCorrelate(index);
      Zeige();
    });
  }
  return box;
}

void BankEditorFenster::SeiteErgaenzen(BankSeite seite, QVBoxLayout* v) {
  auto* knoepfe = new QHBoxLayout;
  switch (seite) {
  case BankSeite::Einzeldaten:
    break;
  case BankSeite::Dampfdruck:
    v->addWidget(Gleichung(frmQBankEdit::GleichungAntoine));
    v->addWidget(Gleichung(frmQBankEdit::GleichungWagner));
    dampfdruckWahl_ = new QLabel(this);
    knoepfe->addWidget(
        ZeichenKnopf("cmdDrawpLV", "p(LV)", BankZeichnen::pLV, Q(frmQBankEdit::ZeichnenpLVTip)));
    knoepfe->addWidget(dampfdruckWahl_);
    break;
  case BankSeite::CpIdealgas:
    v->addWidget(Gleichung(frmQBankEdit::GleichungCpPoly));
    v->addWidget(Gleichung(frmQBankEdit::GleichungCpSinh));
    cpWahl_ = new QLabel(this);
    knoepfe->addWidget(ZeichenKnopf("cmdDrawcpIdGas", "cp(idG)", BankZeichnen::CpIdGas));
    knoepfe->addWidget(cpWahl_);
    knoepfe->addSpacing(20);
    knoepfe->addWidget(
        NeuerKnopf("cmdApplyJOBACKcp", Q(frmQBankEdit::JobackCaption), Q(frmQBankEdit::JobackTip)));
    connect(Knopf("cmdApplyJOBACKcp"), &QPushButton::clicked, this, [this] { logik_.cmdJoback(JobackCp); });
    break;
  case BankSeite::Dichten:
    v->addWidget(Gleichung(frmQBankEdit::GleichungRhoLRackett));
    v->addWidget(Gleichung(frmQBankEdit::GleichungRhoLKombi));
    v->addWidget(Gleichung(frmQBankEdit::GleichungRhoS));
    knoepfe->addWidget(ZeichenKnopf("cmdDrawRhoL", "rho(L)", BankZeichnen::RhoL));
    knoepfe->addWidget(ZeichenKnopf("cmdDrawRhoS", "rho(S)", BankZeichnen::RhoS));
    break;
  case BankSeite::Verdampfung:
    v->addWidget(Gleichung(frmQBankEdit::GleichungHLV));
    knoepfe->addWidget(ZeichenKnopf("cmdDrawHLV", "delta(LV)h", BankZeichnen::HLV));
    break;
  case BankSeite::CpLS:
    v->addWidget(Gleichung(frmQBankEdit::GleichungCpPoly));
    v->addWidget(Gleichung(frmQBankEdit::GleichungCpSinh));
    knoepfe->addWidget(ZeichenKnopf("cmdDrawcpL", "cp(L)", BankZeichnen::CpL));
    knoepfe->addWidget(ZeichenKnopf("cmdDrawcpS", "cp(S)", BankZeichnen::CpS));
    break;
  }
  knoepfe->addStretch();
  v->addLayout(knoepfe);
}

QWidget* BankEditorFenster::BaueKnopfLeiste() {
  auto* leiste = new QWidget(this);
  auto* h = new QHBoxLayout(leiste);
  h->setContentsMargins(0, 0, 0, 0);
  auto* uebernehmen =
      NeuerKnopf("cmdUebernehmen", Q(frmQBankEdit::UebernehmenCaption), Q(frmQBankEdit::UebernehmenTip));
  connect(uebernehmen, &QPushButton::clicked, this, [this] {
    logik_.cmdUebernehmen();
    Zeige();
    emit uebernommen();
  });
  auto* schreiben =
      NeuerKnopf("cmdWriteDataBaseQ07", Q(frmQBankEdit::SchreibenCaption), Q(frmQBankEdit::SchreibenTip));
  connect(schreiben, &QPushButton::clicked, this, [this] {
    logik_.WriteDataBaseQ07();
    Zeige();
    emit uebernommen();
  });
  auto* hilfe = NeuerKnopf("cmdHilfe", "?", "Hilfe");
  connect(hilfe, &QPushButton::clicked, this, [this] { ui_.Hilfe(HilfeBankEditor); });
  auto* esc = NeuerKnopf("cmdEsc", "Esc", Q(frmQBankEdit::EscWarnung));
  connect(esc, &QPushButton::clicked, this, &BankEditorFenster::Schliessen);
  h->addWidget(uebernehmen);
  h->addWidget(schreiben);
  h->addWidget(new QLabel(Q(frmQBankEdit::KeinWertHinweis), leiste));
  h->addStretch();
  h->addWidget(hilfe);
  h->addWidget(esc);
  return leiste;
}

QPushButton* BankEditorFenster::NeuerKnopf(const char* name, const QString& text, const QString& tip) {
  auto* knopf = new QPushButton(text, this);
  knopf->setObjectName(name);
  if (!tip.isEmpty()) knopf->setToolTip(tip);
  return knopf;
}

QPushButton* BankEditorFenster::ZeichenKnopf(const char* name, const char* funktion, BankZeichnen knopf,
                                             const QString& tip) {
  auto* k = NeuerKnopf(name, "Zeichnen: " + Q(funktion) + " = Fu(T)", tip);
  connect(k, &QPushButton::clicked, this, [this, knopf] { logik_.cmdDraw(knopf); });
  return k;
}

QLabel* BankEditorFenster::Gleichung(const char* text) {
  auto* l = new QLabel(Q(text), this);
  l->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return l;
}

void BankEditorFenster::Laden() {
  logik_.Form_Load();
  Zeige();
}

void BankEditorFenster::ModellGeaendert() {
  logik_.ModellGeaendert();
  Zeige();
}

void BankEditorFenster::JobackWert(int ddIndex, double wert) {
  logik_.JobackWert(ddIndex, wert);
  Zeige();
}

void BankEditorFenster::Zeige() {
  for (auto& [index, feld] : felder_)
    feld->setText(Q(logik_.DD[static_cast<std::size_t>(index)]));
  for (std::size_t k = 0; k < korreliert_.size(); ++k)
    for (std::size_t z = 0; z < korreliert_[k].size(); ++z)
      korreliert_[k][z]->setText(Q(logik_.Korreliert[k].Texte[z]));
  optpSL_[logik_.optpSL]->setChecked(true);
  mdbNr_->setText(Q(logik_.lblMDBNr));
  dampfdruckWahl_->setText(Q(logik_.lblDampfdruckWahl));
  cpWahl_->setText(Q(logik_.lblCpWahl));
}

QLineEdit* BankEditorFenster::Feld(int ddIndex) const {
  auto it = felder_.find(ddIndex);
  return it == felder_.end() ? nullptr : it->second;
}

QPushButton* BankEditorFenster::Knopf(const QString& name) const {
  return findChild<QPushButton*>(name);
}

// The number fields take only what the key filter passes; a comma is typed as a point.
bool BankEditorFenster::eventFilter(QObject* objekt, QEvent* ereignis) {
  auto* feld = qobject_cast<QLineEdit*>(objekt);
  if (feld && ereignis->type() == QEvent::KeyPress) {
    auto* taste = static_cast<QKeyEvent*>(ereignis);
    const QString text = taste->text();
    const bool steuerung = taste->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (text.isEmpty() || steuerung || taste->key() == Qt::Key_Tab || taste->key() == Qt::Key_Backtab ||
        taste->key() == Qt::Key_Escape)
      return QWidget::eventFilter(objekt, ereignis);
    const QChar c = text.at(0);
    const char zeichen = c.unicode() < 128 ? BankTaste(static_cast<char>(c.unicode())) : 0;
    if (zeichen == 0) return true;
    if (zeichen != c.unicode()) {
      feld->insert(QString(QChar(zeichen)));
      logik_.FeldGeaendert(feld->objectName().mid(2).toInt(), feld->text().toStdString());
      return true;
    }
  }
  return QWidget::eventFilter(objekt, ereignis);
}

void BankEditorFenster::keyPressEvent(QKeyEvent* ereignis) {
  if (ereignis->key() == Qt::Key_Escape) {
    Schliessen();
    return;
  }
  QWidget::keyPressEvent(ereignis);
}

// Esc: the window closes, after the question when changes were not taken over.
void BankEditorFenster::Schliessen() {
  if (!logik_.Esc()) return;
  if (auto* rahmen = qobject_cast<QMdiSubWindow*>(parentWidget()))
    rahmen->close();
  else
    close();
}

} // namespace quor::ui
