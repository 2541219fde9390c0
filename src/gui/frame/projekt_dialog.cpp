#include "gui/frame/projekt_dialog.h"

#include "core/projekt_datei.h"
#include "core/rahmen.h"
#include "fitting/batch_datei.h"
#include "gui/basis/hilfe_knopf.h"
#include "substance/projekt_laden.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace quor::ui {

namespace {

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

QStringList Liste(const std::vector<std::string>& texte) {
  QStringList l;
  for (const std::string& t : texte)
    l << Q(t);
  return l;
}

QWidget* MitUeberschrift(const QString& text, QWidget* inhalt, QWidget* eltern) {
  auto* box = new QWidget(eltern);
  auto* layout = new QVBoxLayout(box);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(new QLabel(text, box));
  layout->addWidget(inhalt, 1);
  return box;
}

} // namespace

ProjektDialogFenster::ProjektDialogFenster(frmQCmnDlg::VorschauFunktion vorschau, Oberflaeche& ui,
                                           int hilfeThema, QWidget* eltern)
    : QDialog(eltern), logik_(std::move(vorschau)) {
  setObjectName("frmQCmnDlg");
  verzeichnis_ = new QLabel(this);
  verzeichnis_->setObjectName("lblVerzeichnis");
  verzeichnis_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  ordner_ = new QListWidget(this);
  ordner_->setObjectName("Dir1");
  dateien_ = new QListWidget(this);
  dateien_->setObjectName("File1");
  vorschau_ = new QPlainTextEdit(this);
  vorschau_->setObjectName("txtVorschau");
  vorschau_->setReadOnly(true);
  vorschau_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  vorschau_->setMinimumWidth(QFontMetrics(vorschau_->font()).horizontalAdvance(QString(60, 'M')));
  info_ = new QGroupBox(this);
  info_->setObjectName("fraInfo");
  auto* infoLayout = new QVBoxLayout(info_);
  infoLayout->addWidget(vorschau_);

  connect(ordner_, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) {
    logik_.Dir1_DblClick(ordner_->row(item));
    Zeige(true);
  });
  connect(dateien_, &QListWidget::currentRowChanged, this, [this](int zeile) {
    if (zeigt_ || zeile < 0) return;
    logik_.File1_Click(zeile);
    Zeige(false);
  });
  connect(dateien_, &QListWidget::itemActivated, this, [this] { Oeffnen(); });

  auto* knoepfe = new QDialogButtonBox(this);
  ok_ = knoepfe->addButton("Öffnen", QDialogButtonBox::AcceptRole);
  ok_->setObjectName("cmdOK");
  knoepfe->addButton("Abbrechen", QDialogButtonBox::RejectRole)->setObjectName("cmdCancel");
  knoepfe->addButton(HilfeKnopf(this, ui, hilfeThema, "Hilfe"), QDialogButtonBox::HelpRole);
  connect(knoepfe, &QDialogButtonBox::accepted, this, &ProjektDialogFenster::Oeffnen);
  connect(knoepfe, &QDialogButtonBox::rejected, this, [this] {
    logik_.cmdCancel_Click();
    reject();
  });

  auto* listen = new QHBoxLayout;
  listen->addWidget(MitUeberschrift("Ordner", ordner_, this), 1);
  listen->addWidget(MitUeberschrift("Dateien", dateien_, this), 1);
  listen->addWidget(info_, 2);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(verzeichnis_);
  layout->addLayout(listen, 1);
  layout->addWidget(knoepfe);
  resize(900, 420);
}

void ProjektDialogFenster::Laden(const std::string& titel, const std::string& muster,
                                 const std::string& verzeichnis, const std::string& datei) {
  logik_.Form_Load(titel, muster, verzeichnis, datei);
  setWindowTitle(Q(logik_.Caption));
  info_->setTitle(Q(logik_.fraInfoCaption));
  Zeige(true);
}

void ProjektDialogFenster::Zeige(bool listen) {
  zeigt_ = true;
  if (listen) {
    verzeichnis_->setText(Q(logik_.Verzeichnis + "   (" + logik_.Muster + ")"));
    ordner_->clear();
    ordner_->addItems(Liste(logik_.Dir1));
    dateien_->clear();
    dateien_->addItems(Liste(logik_.File1));
  }
  dateien_->setCurrentRow(logik_.File1Index);
  vorschau_->setPlainText(Q(logik_.txtVorschau));
  ok_->setEnabled(logik_.File1Index >= 0);
  zeigt_ = false;
}

void ProjektDialogFenster::Oeffnen() {
  if (logik_.cmdOK_Click()) accept();
}

std::string ProjektDateiWaehlen(ProjectState& s, Oberflaeche& ui, QWidget* eltern, const std::string& titel,
                                const std::string& muster) {
  ProjektDialogFenster dialog(
      [&s, &ui](const std::string& pfad, std::string& text) { return ProjektVorschau(s, pfad, text, ui); },
      ui, HilfeProjekte, eltern);
  const ProjektGruppe& p = s.Projekt;
  const std::string& start =
      p.ProjektVerzeichnis.empty() ? s.Datenbank.ProgrammVerzeichnis : p.ProjektVerzeichnis;
  dialog.Laden(titel, muster, start, p.ProjektDatei);
  if (dialog.exec() != QDialog::Accepted) return std::string();
  const DateiWahl wahl = dialog.Logik().Ergebnis();
  return wahl.cancelled ? std::string() : wahl.Pfad;
}

std::string BatchDateiWaehlen(ProjectState& s, Oberflaeche& ui, QWidget* eltern, const std::string& titel,
                              const std::string& muster) {
  ProjektDialogFenster dialog(
      [](const std::string& pfad, std::string& text) { return BatchVorschau(pfad, text); }, ui,
      HilfeMessdaten, eltern);
  const MessdatenGruppe& m = s.Mess;
  const ProjektGruppe& p = s.Projekt;
  const std::string start = !m.BatchDateiPfad.empty()       ? VerzeichnisTeil(m.BatchDateiPfad)
                            : !p.ProjektVerzeichnis.empty() ? p.ProjektVerzeichnis
                                                            : s.Datenbank.ProgrammVerzeichnis;
  dialog.Laden(titel, muster, start, m.BatchDateiTitel);
  if (dialog.exec() != QDialog::Accepted) return std::string();
  const DateiWahl wahl = dialog.Logik().Ergebnis();
  return wahl.cancelled ? std::string() : wahl.Pfad;
}

} // namespace quor::ui
