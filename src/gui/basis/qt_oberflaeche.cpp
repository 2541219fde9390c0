#include "gui/basis/qt_oberflaeche.h"

#include "dienste/datei_filter.h"
#include "dienste/kind_prozess.h"
#include "gui/basis/hilfe_fenster.h"
#include "gui/basis/qt_drucker.h"
#include "gui/basis/schirm.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QInputDialog>
#include <QMessageBox>
#include <QSplitter>
#include <QTreeView>

namespace quor::ui {

namespace {

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

// Message texts join their lines with CR LF; the toolkit wants LF alone.
QString Zeilen(const std::string& s) {
  return Q(s).replace("\r\n", "\n");
}

QMessageBox::Icon Icon(Symbol s) {
  switch (s) {
  case Symbol::Information:
    return QMessageBox::Information;
  case Symbol::Ausruf:
    return QMessageBox::Warning;
  case Symbol::Kritisch:
    return QMessageBox::Critical;
  case Symbol::Frage:
    return QMessageBox::Question;
  default:
    return QMessageBox::NoIcon;
  }
}

QMessageBox::StandardButton Knopf(Antwort a) {
  switch (a) {
  case Antwort::OK:
    return QMessageBox::Ok;
  case Antwort::Abbrechen:
    return QMessageBox::Cancel;
  case Antwort::Ja:
    return QMessageBox::Yes;
  default:
    return QMessageBox::No;
  }
}

QMessageBox::StandardButtons KnopfSatz(ui::Knoepfe k) {
  switch (k) {
  case Knoepfe::OKAbbrechen:
    return QMessageBox::Ok | QMessageBox::Cancel;
  case Knoepfe::JaNein:
    return QMessageBox::Yes | QMessageBox::No;
  case Knoepfe::JaNeinAbbrechen:
    return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
  default:
    return QMessageBox::Ok;
  }
}

Antwort AntwortVon(int knopf) {
  switch (knopf) {
  case QMessageBox::Yes:
    return Antwort::Ja;
  case QMessageBox::No:
    return Antwort::Nein;
  case QMessageBox::Cancel:
    return Antwort::Abbrechen;
  default:
    return Antwort::OK;
  }
}

// The German texts of the standard buttons, whatever translations the toolkit has installed.
void DeutscheKnoepfe(QMessageBox& box) {
  if (auto* b = box.button(QMessageBox::Yes)) b->setText("&Ja");
  if (auto* b = box.button(QMessageBox::No)) b->setText("&Nein");
  if (auto* b = box.button(QMessageBox::Cancel)) b->setText("Abbrechen");
  if (auto* b = box.button(QMessageBox::Ok)) b->setText("OK");
}

// The toolkit's file dialog, wide enough that names, sizes, kinds and dates are read whole; empty when
// cancelled.
QString DateiWaehlen(QWidget* eltern, const DateiDialog& d, const QString& start, QFileDialog::AcceptMode art) {
  QFileDialog dialog(eltern, Q(d.titel), start, Q(ToolkitFilter(d.filter)));
  dialog.setAcceptMode(art);
  dialog.setFileMode(art == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  if (auto* liste = dialog.findChild<QTreeView*>("treeView")) {
    QHeaderView* kopf = liste->header();
    kopf->setSectionResizeMode(QHeaderView::ResizeToContents);
    kopf->setSectionResizeMode(0, QHeaderView::Stretch);
  }
  if (auto* teiler = dialog.findChild<QSplitter*>("splitter")) teiler->setSizes({170, 730});
  const QSize platz = SchirmFlaeche(eltern).size();
  dialog.resize(std::min(900, platz.width() - 40), std::min(560, platz.height() - 80));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().constFirst();
}

} // namespace

QtOberflaeche::QtOberflaeche(QWidget* eltern, std::string hilfeVerzeichnis)
    : eltern_(eltern), hilfeVerzeichnis_(std::move(hilfeVerzeichnis)),
      drucker_(std::make_unique<QtDrucker>(eltern)) {}

QtOberflaeche::~QtOberflaeche() {
  if (hilfe_ && !hilfe_->parent()) delete hilfe_;
}

void QtOberflaeche::Meldung(const std::string& text, const std::string& titel, Symbol symbol) {
  QMessageBox box(Icon(symbol), Q(titel), Zeilen(text), QMessageBox::Ok, eltern_);
  DeutscheKnoepfe(box);
  box.exec();
}

Antwort QtOberflaeche::Frage(const std::string& text, const std::string& titel, ui::Knoepfe knoepfe,
                             Antwort vorgabe) {
  QMessageBox box(QMessageBox::Question, Q(titel), Zeilen(text), KnopfSatz(knoepfe), eltern_);
  box.setDefaultButton(Knopf(vorgabe));
  DeutscheKnoepfe(box);
  return AntwortVon(box.exec());
}

std::optional<std::string> QtOberflaeche::Eingabe(const std::string& prompt, const std::string& titel,
                                                  const std::string& vorgabe) {
  bool ok = false;
  const QString text =
      QInputDialog::getText(eltern_, Q(titel), Zeilen(prompt), QLineEdit::Normal, Q(vorgabe), &ok);
  if (!ok) return std::nullopt;
  return text.toStdString();
}

std::optional<std::string> QtOberflaeche::DateiOeffnen(const DateiDialog& d) {
  QString start = Q(d.startVerzeichnis);
  if (!d.dateiName.empty()) start = QFileInfo(start + "/" + Q(d.dateiName)).filePath();
  const QString name = DateiWaehlen(eltern_, d, start, QFileDialog::AcceptOpen);
  if (name.isEmpty()) return std::nullopt;
  return name.toStdString();
}

std::optional<std::string> QtOberflaeche::DateiSpeichern(const DateiDialog& d) {
  QString start = Q(d.startVerzeichnis);
  if (!d.dateiName.empty()) start = start.isEmpty() ? Q(d.dateiName) : start + "/" + Q(d.dateiName);
  const QString name = DateiWaehlen(eltern_, d, start, QFileDialog::AcceptSave);
  if (name.isEmpty()) return std::nullopt;
  return MitStandardEndung(name.toStdString(), d.standardEndung);
}

void QtOberflaeche::ZwischenablageSetzen(const std::string& text) {
  QApplication::clipboard()->setText(Q(text));
}

std::string QtOberflaeche::ZwischenablageText() {
  return QApplication::clipboard()->text().toStdString();
}

Drucker& QtOberflaeche::Druck() {
  drucker_->SetzeEltern(eltern_);
  return *drucker_;
}

ProzessStatus QtOberflaeche::StarteProzess(const ProzessAuftrag& auftrag) {
  // The window stays as it is while the program waits for its child.
  QApplication::setOverrideCursor(Qt::WaitCursor);
  const ProzessStatus status = StarteKindProzess(auftrag);
  QApplication::restoreOverrideCursor();
  return status;
}

void QtOberflaeche::Hilfe(int thema) {
  const QString verzeichnis = Q(hilfeVerzeichnis_);
  if (!QFileInfo::exists(verzeichnis + "/" + HilfeFenster::SeitenName(thema))) {
    Meldung("Zu diesem Thema (Nr. " + std::to_string(thema) + ") ist keine Hilfeseite vorhanden.", "Hinweis",
            Symbol::Information);
    return;
  }
  // Beside a modal dialog the help is a modal window of that dialog, or it couldn't be used.
  if (QWidget* modal = QApplication::activeModalWidget()) {
    HilfeFenster fenster(verzeichnis, modal);
    fenster.ZeigeThema(thema);
    fenster.exec();
    return;
  }
  if (!hilfe_) hilfe_ = new HilfeFenster(verzeichnis, eltern_);
  hilfe_->ZeigeThema(thema);
  hilfe_->show();
  hilfe_->raise();
  hilfe_->activateWindow();
}

HilfeFenster* QtOberflaeche::Hilfefenster() const {
  return hilfe_;
}

} // namespace quor::ui
