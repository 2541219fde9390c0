#include "gui/basis/hilfe_fenster.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>

namespace quor::ui {

HilfeFenster::HilfeFenster(const QString& verzeichnis, QWidget* eltern)
    : QDialog(eltern, Qt::Window), verzeichnis_(verzeichnis), browser_(new QTextBrowser(this)) {
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
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(leiste);
  layout->addWidget(browser_, 1);
  resize(760, 640);
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
