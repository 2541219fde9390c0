#include "gui/substance/stoff_wahl_fenster.h"

#include "core/rahmen.h"
#include "gui/basis/hilfe_knopf.h"
#include "gui/substance/text_fenster.h"
#include "substance/synonyme.h"

#include <QApplication>
#include <QComboBox>
#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace quor::ui {

namespace {

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

bool IstEnter(const QKeyEvent* k) {
  return k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter;
}

} // namespace

StoffWahlFenster::StoffWahlFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern)
    : QDialog(eltern), s_(s), ui_(ui), logik_(s, ui) {
  setObjectName("frmQStoffWahl");
  setWindowTitle(QString::fromUtf8(frmQStoffWahl::FormCaption));
  BaueOberflaeche();
}

void StoffWahlFenster::BaueOberflaeche() {
  const QFont fest = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  caption_ = new QLabel(this);
  QFont gross = caption_->font();
  gross.setBold(true);
  gross.setPointSizeF(gross.pointSizeF() * 1.15);
  caption_->setFont(gross);

  kopf_ = new QLabel(QString::fromUtf8(frmQStoffWahl::ListenKopf), this);
  kopf_->setFont(fest);
  kopf_->setIndent(6); // over the text of the list's rows, not over its frame
  liste_ = new QListWidget(this);
  liste_->setObjectName("List1");
  liste_->setFont(fest);
  liste_->setUniformItemSizes(true);
  liste_->setMinimumWidth(QFontMetrics(fest).horizontalAdvance(QString(62, 'M')));
  liste_->setMinimumHeight(360);
  liste_->installEventFilter(this);
  connect(liste_, &QListWidget::currentRowChanged, this, [this](int zeile) {
    if (zeigt_ || zeile < 0) return;
    logik_.List1_Click(zeile);
    Zeige();
  });
  datenbank_ = new QLabel(this);
  datenbank_->setObjectName("lblDatenbank");
  datenbank_->setTextInteractionFlags(Qt::TextSelectableByMouse);

  auto* links = new QVBoxLayout;
  links->addWidget(kopf_);
  links->addWidget(liste_, 1);
  links->addWidget(datenbank_);

  auto* spalten = new QHBoxLayout;
  spalten->addLayout(links, 3);
  spalten->addLayout(BaueEingabeSpalte(), 2);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(caption_);
  layout->addLayout(spalten, 1);
}

QLayout* StoffWahlFenster::BaueEingabeSpalte() {
  nummer_ = new QLineEdit(this);
  nummer_->setObjectName("Text1");
  nummer_->setMaxLength(4);
  nummer_->setMaximumWidth(QFontMetrics(nummer_->font()).horizontalAdvance("000000") + 16);
  connect(nummer_, &QLineEdit::textEdited, this, [this](const QString& text) {
    if (logik_.Text1_Change(text.toStdString())) QApplication::beep();
    Zeige();
  });
  auto* nummerZeile = new QHBoxLayout;
  nummerZeile->addWidget(new QLabel("Stoff-Nr. (MDB):", this));
  nummerZeile->addWidget(nummer_);
  nummerZeile->addStretch(1);

  name_ = new QComboBox(this);
  name_->setObjectName("NameCombo");
  name_->setEditable(true);
  name_->setInsertPolicy(QComboBox::NoInsert);
  name_->setMinimumContentsLength(28);
  // What the user typed is searched: no inline completion from earlier inputs; those stay in the
  // field's list, and one is taken only when the user picks it there.
  name_->setCompleter(nullptr);
  name_->lineEdit()->installEventFilter(this);
  connect(name_->lineEdit(), &QLineEdit::textEdited, this,
          [this](const QString& text) { logik_.NameCombo_Change(text.toStdString()); });
  connect(name_, &QComboBox::textActivated, this,
          [this](const QString& text) { logik_.NameCombo_Change(text.toStdString()); });
  auto* nameLabel = new QLabel(QString::fromUtf8(frmQStoffWahl::LabelName), this);
  nameLabel->setBuddy(name_);
  auto* sprache = new QLabel(QString::fromUtf8(frmQStoffWahl::LabelSprache), this);
  sprache->setStyleSheet("color: palette(mid);");
  auto* hinweis = new QLabel(QString::fromUtf8(frmQStoffWahl::HinweisEnter), this);
  hinweis->setWordWrap(true);

  auto* suche = new QGroupBox(this);
  auto* sucheLayout = new QVBoxLayout(suche);
  auto* nameKopf = new QHBoxLayout;
  nameKopf->addWidget(nameLabel);
  nameKopf->addWidget(sprache);
  nameKopf->addStretch(1);
  sucheLayout->addLayout(nameKopf);
  sucheLayout->addWidget(name_);
  sucheLayout->addWidget(hinweis);

  cas_ = new QLabel(this);
  cas_->setObjectName("lblCAS");
  struktur_ = new QLabel(this);
  struktur_->setObjectName("lblStruktur");
  struktur_->setWordWrap(true);
  for (QLabel* l : {cas_, struktur_})
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);

  auto* synonyme = new QPushButton("Synonym-Liste für diesen Stoff", this);
  synonyme->setObjectName("cmdSynonyme");
  synonyme->setAutoDefault(false);
  connect(synonyme, &QPushButton::clicked, this, &StoffWahlFenster::SynonymeZeigen);
  ok_ = new QPushButton(QString::fromUtf8(frmQStoffWahl::StoffOKCaption), this);
  ok_->setObjectName("StoffOK");
  ok_->setDefault(true);
  connect(ok_, &QPushButton::clicked, this, [this] {
    NameUebernehmen();
    NachAktion(logik_.StoffOK_Click());
  });
  auto* abbrechen = new QPushButton("Abbrechen", this);
  abbrechen->setAutoDefault(false);
  connect(abbrechen, &QPushButton::clicked, this, &QDialog::reject);

  auto* gewaehlt = new QGroupBox("gewählter Stoff", this);
  auto* gewaehltLayout = new QVBoxLayout(gewaehlt);
  gewaehltLayout->addWidget(cas_);
  gewaehltLayout->addWidget(struktur_);

  auto* rechts = new QVBoxLayout;
  rechts->addLayout(nummerZeile);
  rechts->addWidget(suche);
  rechts->addWidget(gewaehlt);
  rechts->addStretch(1);
  rechts->addWidget(synonyme);
  rechts->addWidget(ok_);
  rechts->addWidget(abbrechen);
  rechts->addWidget(HilfeKnopf(this, ui_, HilfeErstnutzer, "Hilfe"));
  return rechts;
}

bool StoffWahlFenster::Laden() {
  if (!logik_.Form_Load()) return false;
  zeigt_ = true;
  liste_->clear();
  for (const std::string& zeile : logik_.List1)
    liste_->addItem(Q(zeile));
  zeigt_ = false;
  Zeige();
  liste_->setFocus();
  return true;
}

// The logic's fields into the widgets, without echoing them back as user actions.
void StoffWahlFenster::Zeige() {
  zeigt_ = true;
  const QSignalBlocker sperreListe(liste_);
  caption_->setText(Q(logik_.Caption));
  if (liste_->currentRow() != logik_.ListIndex) {
    liste_->setCurrentRow(logik_.ListIndex);
    liste_->scrollToItem(liste_->currentItem(), QAbstractItemView::PositionAtCenter);
  }
  if (nummer_->text() != Q(logik_.Text1)) nummer_->setText(Q(logik_.Text1));
  if (name_->count() != static_cast<int>(logik_.NameComboListe.size())) {
    const QSignalBlocker sperreName(name_);
    name_->clear();
    for (const std::string& t : logik_.NameComboListe)
      name_->addItem(Q(t));
  }
  name_->setEditText(Q(logik_.NameCombo));
  cas_->setText(Q(logik_.lblCAS));
  struktur_->setText(Q(logik_.lblStruktur));
  struktur_->setVisible(!logik_.lblStruktur.empty());
  datenbank_->setText(Q(logik_.lblDatenbank));
  zeigt_ = false;
}

void StoffWahlFenster::NameUebernehmen() {
  if (name_->currentText().toStdString() != logik_.NameCombo)
    logik_.NameCombo_Change(name_->currentText().toStdString());
}

void StoffWahlFenster::NachAktion(StoffWahlAktion aktion) {
  Zeige();
  if (aktion != StoffWahlAktion::ModellFenster) return;
  accept();
  emit stoffGeladen();
}

bool StoffWahlFenster::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (ereignis->type() != QEvent::KeyPress) return QDialog::eventFilter(objekt, ereignis);
  const auto* taste = static_cast<QKeyEvent*>(ereignis);
  if (objekt == liste_ && IstEnter(taste)) {
    NachAktion(logik_.List1_KeyEnter());
    return true;
  }
  if (objekt == name_->lineEdit()) {
    if (IstEnter(taste)) {
      NameUebernehmen();
      NachAktion(logik_.NameCombo_KeyEnter());
      return true;
    }
    if (taste->key() == Qt::Key_Escape) {
      logik_.NameCombo_KeyEsc();
      liste_->setFocus();
      return true;
    }
  }
  return QDialog::eventFilter(objekt, ereignis);
}

void StoffWahlFenster::SynonymeZeigen() {
  const int k = logik_.StoffIndexNeu;
  if (k < 1 || k >= static_cast<int>(s_.Datenbank.CASListe.size())) return;
  if (auto text = SynonymListe(s_, ui_, s_.Datenbank.CASListe[static_cast<std::size_t>(k)]))
    ZeigeTextFenster(*text, this);
}

} // namespace quor::ui
