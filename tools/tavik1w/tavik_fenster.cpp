#include "tavik_fenster.h"

#include "core/zahl_lesen.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace quor::tavik {

namespace {

QString T(bool englisch, const char* deutsch, const char* english) {
  return QString::fromUtf8(englisch ? english : deutsch);
}

// Ten significant digits, without a trailing exponent where plain digits read better.
QString Zahl(double x) {
  return QString::number(x, 'g', 10);
}

} // namespace

TavikFenster::TavikFenster(bool englisch, QWidget* eltern)
    : QWidget(eltern), englisch_(englisch), groessen_(new QListWidget(this)), wert_(new QLineEdit(this)),
      einheit_(new QComboBox(this)), molmasseText_(new QLabel(this)), molmasse_(new QLineEdit(this)),
      tabelle_(new QTableWidget(this)), meldung_(new QLabel(this)) {
  setObjectName("Tavik1W");
  setWindowTitle(T(englisch, "Tavik1W  -  Einheiten umrechnen", "Tavik1W  -  unit converter"));
  for (Groesse g : Groessen())
    groessen_->addItem(QString::fromStdString(GroessenName(g, englisch)));
  groessen_->setFixedWidth(200);
  wert_->setObjectName("txtWert");
  wert_->setText("1");
  einheit_->setObjectName("cmbEinheit");
  molmasse_->setObjectName("txtMolmasse");
  molmasseText_->setText(T(englisch, "Molmasse M / (kg/kmol) =", "molar mass M / (kg/kmol) ="));
  molmasse_->setToolTip(T(englisch, "nötig zwischen molaren und massebezogenen Einheiten",
                          "needed between molar and mass-based units"));
  tabelle_->setColumnCount(2);
  tabelle_->setHorizontalHeaderLabels({T(englisch, "Wert", "value"), T(englisch, "Einheit", "unit")});
  tabelle_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  tabelle_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  tabelle_->verticalHeader()->hide();
  tabelle_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  tabelle_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  meldung_->setObjectName("lblMeldung");
  meldung_->setStyleSheet("color: #a00000;");

  auto* eingabe = new QGridLayout;
  eingabe->addWidget(new QLabel(T(englisch, "Wert =", "value ="), this), 0, 0);
  eingabe->addWidget(wert_, 0, 1);
  eingabe->addWidget(einheit_, 0, 2);
  eingabe->addWidget(molmasseText_, 1, 0);
  eingabe->addWidget(molmasse_, 1, 1);
  auto* kopieren = new QPushButton(T(englisch, "Tabelle kopieren", "copy table"), this);
  kopieren->setObjectName("cmdKopieren");
  auto* schliessen = new QPushButton(T(englisch, "Schließen", "Close"), this);
  auto* knoepfe = new QHBoxLayout;
  knoepfe->addWidget(meldung_, 1);
  knoepfe->addWidget(kopieren);
  knoepfe->addWidget(schliessen);
  auto* rechts = new QVBoxLayout;
  rechts->addLayout(eingabe);
  rechts->addWidget(tabelle_, 1);
  rechts->addLayout(knoepfe);
  auto* haupt = new QHBoxLayout(this);
  haupt->addWidget(groessen_);
  haupt->addLayout(rechts, 1);
  resize(720, 440);

  connect(groessen_, &QListWidget::currentRowChanged, this, &TavikFenster::GroesseGewaehlt);
  connect(wert_, &QLineEdit::textChanged, this, &TavikFenster::Rechnen);
  connect(molmasse_, &QLineEdit::textChanged, this, &TavikFenster::Rechnen);
  connect(einheit_, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &TavikFenster::Rechnen);
  connect(schliessen, &QPushButton::clicked, this, &QWidget::close);
  connect(kopieren, &QPushButton::clicked, this, [this] {
    QString text;
    for (int i = 0; i < tabelle_->rowCount(); ++i)
      text += tabelle_->item(i, 0)->text() + "\t" + tabelle_->item(i, 1)->text() + "\r\n";
    QApplication::clipboard()->setText(text);
  });
  groessen_->setCurrentRow(0);
}

void TavikFenster::GroesseGewaehlt(int zeile) {
  if (zeile < 0 || zeile >= static_cast<int>(Groessen().size())) return;
  groesse_ = Groessen()[static_cast<std::size_t>(zeile)];
  const QSignalBlocker sperre(einheit_);
  einheit_->clear();
  const std::vector<Einheit>& e = Einheiten(groesse_);
  tabelle_->setRowCount(static_cast<int>(e.size()));
  for (std::size_t i = 0; i < e.size(); ++i) {
    einheit_->addItem(QString::fromUtf8(e[i].name));
    tabelle_->setItem(static_cast<int>(i), 0, new QTableWidgetItem);
    tabelle_->setItem(static_cast<int>(i), 1, new QTableWidgetItem(QString::fromUtf8(e[i].name)));
    tabelle_->item(static_cast<int>(i), 0)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  }
  molmasseText_->setVisible(MitMolmasse(groesse_));
  molmasse_->setVisible(MitMolmasse(groesse_));
  Rechnen();
}

void TavikFenster::Rechnen() {
  const ZahlErgebnis x = LeseZahl(wert_->text().toStdString());
  const ZahlErgebnis M = LeseZahl(molmasse_->text().toStdString());
  const double molmasse = M.ok ? M.wert : 0;
  meldung_->clear();
  if (!x.ok && !wert_->text().trimmed().isEmpty())
    meldung_->setText(T(englisch_, "keine gültige Zahl", "not a valid number"));
  const auto von = static_cast<std::size_t>(std::max(0, einheit_->currentIndex()));
  for (int i = 0; i < tabelle_->rowCount(); ++i) {
    QString text;
    if (x.ok) {
      const Wert w = Umrechnen(groesse_, von, static_cast<std::size_t>(i), x.wert, molmasse);
      text = w.fehler == Fehler::Keiner ? Zahl(w.zahl) : QString::fromStdString(FehlerText(w.fehler, englisch_));
    }
    tabelle_->item(i, 0)->setText(text);
  }
}

QString TavikFenster::Ergebnis(int zeile) const {
  const QTableWidgetItem* z = tabelle_->item(zeile, 0);
  return z ? z->text() : QString();
}

} // namespace quor::tavik
