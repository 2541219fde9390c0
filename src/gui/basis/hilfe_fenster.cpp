#include "gui/basis/hilfe_fenster.h"

#include "core/hilfe_suche.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>

namespace quor::ui {

HilfeFenster::HilfeFenster(const QString& verzeichnis, QWidget* eltern)
    : QDialog(eltern, Qt::Window), verzeichnis_(verzeichnis), browser_(new QTextBrowser(this)),
      suche_(new QLineEdit(this)), treffer_(new QListWidget(this)) {
  setObjectName("frmHilfe");
  setWindowTitle("QUOR-6  Hilfe");
  browser_->setObjectName("Hilfeseite");
  browser_->setOpenExternalLinks(true);
  browser_->setSearchPaths({verzeichnis});
  browser_->document()->setDocumentMargin(14);

  auto* zurueck = new QPushButton("< Zurück", this);
  auto* vor = new QPushButton("Vor >", this);
  auto* inhalt = new QPushButton("Inhalt", this);
  auto* schliessen = new QPushButton("Schließen", this);
  zurueck->setEnabled(false);
  vor->setEnabled(false);
  connect(zurueck, &QPushButton::clicked, browser_, &QTextBrowser::backward);
  connect(vor, &QPushButton::clicked, browser_, &QTextBrowser::forward);
  connect(browser_, &QTextBrowser::backwardAvailable, zurueck, &QPushButton::setEnabled);
  connect(browser_, &QTextBrowser::forwardAvailable, vor, &QPushButton::setEnabled);
  connect(inhalt, &QPushButton::clicked, this, [this] { ZeigeThema(0); });
  connect(schliessen, &QPushButton::clicked, this, &QDialog::close);
  connect(browser_, &QTextBrowser::sourceChanged, this, [this] {
    const QString titel = browser_->documentTitle();
    setWindowTitle(titel.isEmpty() ? "QUOR-6  Hilfe" : "QUOR-6  Hilfe: " + titel);
  });

  auto* leiste = new QHBoxLayout;
  for (QPushButton* k : {zurueck, vor, inhalt}) {
    k->setAutoDefault(false);
    leiste->addWidget(k);
  }
  leiste->addStretch(1);
  schliessen->setAutoDefault(false);
  leiste->addWidget(schliessen);
  // The search column: the words, and the pages that hold all of them.
  suche_->setObjectName("txtSuchen");
  suche_->setClearButtonEnabled(true);
  suche_->setToolTip("Seiten, die alle eingegebenen Wörter enthalten (Groß-/Kleinschreibung egal)");
  treffer_->setObjectName("lstTreffer");
  connect(suche_, &QLineEdit::textChanged, this, &HilfeFenster::Suchen);
  connect(suche_, &QLineEdit::returnPressed, this, [this] {
    if (treffer_->count() > 0) TrefferOeffnen(treffer_->item(0));
  });
  connect(treffer_, &QListWidget::itemClicked, this, &HilfeFenster::TrefferOeffnen);
  connect(treffer_, &QListWidget::itemActivated, this, &HilfeFenster::TrefferOeffnen);
  auto* spalte = new QWidget(this);
  auto* spaltenLayout = new QVBoxLayout(spalte);
  spaltenLayout->setContentsMargins(0, 0, 0, 0);
  auto* beschriftung = new QLabel("Suchen:", spalte);
  beschriftung->setBuddy(suche_);
  spaltenLayout->addWidget(beschriftung);
  spaltenLayout->addWidget(suche_);
  spaltenLayout->addWidget(treffer_, 1);
  auto* teiler = new QSplitter(Qt::Horizontal, this);
  teiler->addWidget(spalte);
  teiler->addWidget(browser_);
  teiler->setStretchFactor(1, 1);
  teiler->setSizes({220, 680});

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(leiste);
  layout->addWidget(teiler, 1);
  resize(920, 660);
}

void HilfeFenster::Suchen(const QString& eingabe) {
  treffer_->clear();
  if (eingabe.trimmed().isEmpty()) return;
  const std::vector<HilfeTreffer> seiten = SucheInHilfe(verzeichnis_.toStdString(), eingabe.toStdString());
  for (const HilfeTreffer& t : seiten) {
    auto* eintrag = new QListWidgetItem(QString::fromStdString(t.titel), treffer_);
    eintrag->setData(Qt::UserRole, QString::fromStdString(t.datei));
    eintrag->setToolTip(QString("%1 Fundstellen").arg(t.anzahl));
  }
  if (seiten.empty() && !HilfeSuchWoerter(eingabe.toStdString()).empty()) {
    auto* leer = new QListWidgetItem("(keine Seite enthält alle Wörter)", treffer_);
    leer->setFlags(Qt::NoItemFlags);
  }
}

void HilfeFenster::TrefferOeffnen(QListWidgetItem* eintrag) {
  const QString datei = eintrag ? eintrag->data(Qt::UserRole).toString() : QString();
  if (datei.isEmpty()) return;
  browser_->setSource(QUrl::fromLocalFile(QDir(verzeichnis_).filePath(datei)));
  // The first place of the first word, marked on the page.
  const std::vector<std::string> woerter = HilfeSuchWoerter(suche_->text().toStdString());
  if (!woerter.empty()) browser_->find(QString::fromStdString(woerter.front()));
}

QString HilfeFenster::SeitenName(int thema) {
  return thema == 0 ? QString("index.html") : QString::number(thema) + ".html";
}

bool HilfeFenster::ZeigeThema(int thema) {
  const QString seite = QDir(verzeichnis_).filePath(SeitenName(thema));
  if (!QFileInfo::exists(seite)) return false;
  browser_->setSource(QUrl::fromLocalFile(seite));
  return true;
}

} // namespace quor::ui
