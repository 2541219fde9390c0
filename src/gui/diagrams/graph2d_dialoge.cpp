#include "gui/diagrams/graph2d_dialoge.h"

#include "core/zahl_lesen.h"
#include "core/zahlformat.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace quor::ui {

namespace {

// OK and Abbrechen under a dialog's fields.
QDialogButtonBox* Knoepfe(QDialog* d) {
  auto* k = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, d);
  k->button(QDialogButtonBox::Ok)->setText("OK");
  k->button(QDialogButtonBox::Cancel)->setText("Abbrechen");
  QObject::connect(k, &QDialogButtonBox::accepted, d, &QDialog::accept);
  QObject::connect(k, &QDialogButtonBox::rejected, d, &QDialog::reject);
  return k;
}

const char* const LinienTexte[] = {"durchgezogen", "gestrichelt", "gepunktet", "Strich-Punkt", "keine"};
const char* const SymbolTexte[] = {"keines", "Kreis", "Quadrat", "Dreieck",
                                   "Kreuz",  "Plus",  "Raute",   "Stern"};

} // namespace

void FarbeZeigen(QPushButton* knopf, RGBFarbe f) {
  const QColor c(f.R, f.G, f.B);
  const QString schrift = c.lightnessF() < 0.5 ? "white" : "black";
  knopf->setStyleSheet(QString("QPushButton { background-color: %1; color: %2; }").arg(c.name(), schrift));
}

BereichDialog::BereichDialog(const std::array<double, 4>& bereich, const QString& xText, const QString& yText,
                             const std::array<AchsenStil2D, 2>& stil, QWidget* eltern)
    : QDialog(eltern) {
  setObjectName("frmKoordinatenbereich");
  setWindowTitle("Koordinatenbereich");
  auto* raster = new QGridLayout;
  raster->addWidget(new QLabel("von", this), 0, 1);
  raster->addWidget(new QLabel("bis", this), 0, 2);
  raster->addWidget(new QLabel("Zahlenformat", this), 0, 3);
  const QString achsen[] = {"X-Achse:  " + xText, "Y-Achse:  " + yText};
  for (int achse = 0; achse < 2; ++achse) {
    raster->addWidget(new QLabel(achsen[achse], this), achse + 1, 0);
    for (int ende = 0; ende < 2; ++ende) {
      const std::size_t i = static_cast<std::size_t>(2 * achse + ende);
      felder_[i] = new QLineEdit(QString::fromStdString(SingleText(static_cast<float>(bereich[i]))), this);
      felder_[i]->setObjectName(QString("txtBereich%1").arg(i));
      felder_[i]->setMinimumWidth(110);
      raster->addWidget(felder_[i], achse + 1, ende + 1);
    }
    const std::size_t a = static_cast<std::size_t>(achse);
    formate_[a] = new QLineEdit(QString::fromStdString(stil[a].Format), this);
    formate_[a]->setObjectName(QString("txtFormat%1").arg(achse));
    formate_[a]->setPlaceholderText("automatisch");
    formate_[a]->setToolTip("Muster der Achsenzahlen, z. B. 0.000 oder 0.0E+00; leer: automatisch");
    gitter_[a] = new QCheckBox("Gitter", this);
    gitter_[a]->setObjectName(QString("chkGitter%1").arg(achse));
    gitter_[a]->setChecked(stil[a].Gitter);
    raster->addWidget(formate_[a], achse + 1, 3);
    raster->addWidget(gitter_[a], achse + 1, 4);
  }
  auto* lage = new QVBoxLayout(this);
  lage->addLayout(raster);
  lage->addWidget(Knoepfe(this));
}

std::optional<std::array<double, 4>> BereichDialog::Werte() const {
  std::array<double, 4> w{};
  for (std::size_t i = 0; i < w.size(); ++i) {
    const ZahlErgebnis z = LeseZahl(felder_[i]->text().toStdString());
    if (!z.ok) return std::nullopt;
    w[i] = z.wert;
  }
  return w;
}

std::array<AchsenStil2D, 2> BereichDialog::Stil() const {
  std::array<AchsenStil2D, 2> s;
  for (std::size_t a = 0; a < s.size(); ++a)
    s[a] = {formate_[a]->text().trimmed().toStdString(), gitter_[a]->isChecked()};
  return s;
}

void BereichDialog::accept() {
  for (QLineEdit* f : felder_)
    if (!LeseZahl(f->text().toStdString()).ok) {
      f->setFocus();
      f->selectAll();
      return;
    }
  QDialog::accept();
}

StilDialog::StilDialog(const QString& legende, const KurvenStil& stil, QWidget* eltern)
    : QDialog(eltern), gewaehlt_(stil.Farbe), farbe_(new QPushButton("Farbe ...", this)),
      linie_(new QComboBox(this)), breite_(new QDoubleSpinBox(this)), symbol_(new QComboBox(this)),
      zwischenablage_(new QPushButton("Kurve in die Zwischenablage", this)) {
  setObjectName("frmKurveGestalten");
  setWindowTitle("Kurve gestalten");
  for (const char* t : LinienTexte)
    linie_->addItem(t);
  for (const char* t : SymbolTexte)
    symbol_->addItem(t);
  linie_->setCurrentIndex(static_cast<int>(stil.Linie));
  symbol_->setCurrentIndex(static_cast<int>(stil.Symbol));
  breite_->setRange(0.5, 10);
  breite_->setSingleStep(0.5);
  breite_->setDecimals(1);
  breite_->setValue(stil.Breite);
  FarbeZeigen(farbe_, gewaehlt_);
  connect(farbe_, &QPushButton::clicked, this, [this] {
    const QColor c =
        QColorDialog::getColor(QColor(gewaehlt_.R, gewaehlt_.G, gewaehlt_.B), this, "Farbe der Kurve");
    if (c.isValid())
      SetzeFarbe(
          {static_cast<uint8_t>(c.red()), static_cast<uint8_t>(c.green()), static_cast<uint8_t>(c.blue())});
  });

  auto* form = new QFormLayout;
  auto* name = new QLabel(legende, this);
  name->setWordWrap(true);
  form->addRow(name);
  form->addRow("Farbe", farbe_);
  form->addRow("Linienart", linie_);
  form->addRow("Linienbreite", breite_);
  form->addRow("Symbol", symbol_);
  zwischenablage_->setAutoDefault(false);
  auto* lage = new QVBoxLayout(this);
  lage->addLayout(form);
  lage->addWidget(zwischenablage_);
  lage->addWidget(Knoepfe(this));
}

void StilDialog::SetzeFarbe(RGBFarbe f) {
  gewaehlt_ = f;
  FarbeZeigen(farbe_, f);
}

KurvenStil StilDialog::Stil() const {
  return {gewaehlt_, static_cast<LinienArt>(linie_->currentIndex()), breite_->value(),
          static_cast<PunktSymbol>(symbol_->currentIndex())};
}

} // namespace quor::ui
