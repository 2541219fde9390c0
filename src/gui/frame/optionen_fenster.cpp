#include "gui/frame/optionen_fenster.h"

#include "core/rahmen.h"
#include "gui/basis/hilfe_knopf.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QVBoxLayout>

namespace quor::ui {

namespace {

QString T(const char* text) {
  return QString::fromUtf8(text);
}

QGroupBox* Gruppe(const QString& titel, QWidget* eltern) {
  auto* g = new QGroupBox(titel, eltern);
  new QVBoxLayout(g);
  return g;
}

QRadioButton* Option(const QString& name, const char* text, const char* tipp, QGroupBox* g) {
  auto* r = new QRadioButton(T(text), g);
  r->setObjectName(name);
  if (tipp) r->setToolTip(T(tipp));
  g->layout()->addWidget(r);
  return r;
}

QComboBox* Trennerliste(const char* name, QWidget* eltern) {
  auto* c = new QComboBox(eltern);
  c->setObjectName(name);
  for (const char* t : OptionenTexte::Trenner)
    c->addItem(T(t));
  return c;
}

} // namespace

OptionenFenster::OptionenFenster(ProjectState& s, Oberflaeche& ui, NachOK nachOK,
                                 std::function<void()> normierung, QWidget* eltern)
    : QDialog(eltern), logik_(s, ui), nachOK_(std::move(nachOK)), normierungAufruf_(std::move(normierung)) {
  setObjectName("frmQOptions");
  setWindowTitle(T(OptionenTexte::Caption));
  logik_.Form_Load();

  auto* links = new QVBoxLayout;
  links->addWidget(BaueEinheiten());
  links->addWidget(BaueTrenner());
  links->addWidget(BaueRechnung());
  links->addWidget(BaueAufloesung());
  links->addStretch(1);
  auto* spalten = new QHBoxLayout;
  spalten->addLayout(links);
  spalten->addWidget(BaueDiagramme(), 1);

  auto* knoepfe = new QDialogButtonBox(this);
  ok_ = knoepfe->addButton("OK", QDialogButtonBox::AcceptRole);
  ok_->setObjectName("cmdOK");
  knoepfe->addButton(T(OptionenTexte::Schliessen), QDialogButtonBox::RejectRole)->setObjectName("cmdClose");
  knoepfe->addButton(HilfeKnopf(this, ui, HilfeOptionen, "Hilfe"), QDialogButtonBox::HelpRole);
  connect(knoepfe, &QDialogButtonBox::accepted, this, &OptionenFenster::cmdOK);
  connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(spalten, 1);
  layout->addWidget(knoepfe);
  Zeige();
}

QWidget* OptionenFenster::BaueEinheiten() {
  QGroupBox* g = Gruppe("Einheiten berechneter Größen", this);
  molarSpez_[0] = Option("optMolarSpez0", OptionenTexte::Molar, OptionenTexte::MolarTipp, g);
  molarSpez_[1] = Option("optMolarSpez1", OptionenTexte::Spezifisch, OptionenTexte::SpezifischTipp, g);
  reduziert_ = new QCheckBox(T(OptionenTexte::Reduziert), g);
  reduziert_->setObjectName("chkReduziert");
  g->layout()->addWidget(reduziert_);
  normierung_ = new QPushButton(T(OptionenTexte::Normierung), g);
  normierung_->setObjectName("cmdNormierung");
  normierung_->setEnabled(static_cast<bool>(normierungAufruf_));
  connect(normierung_, &QPushButton::clicked, this, [this] { normierungAufruf_(); });
  g->layout()->addWidget(normierung_);
  return g;
}

QWidget* OptionenFenster::BaueTrenner() {
  auto* g = new QGroupBox("Trennzeichen", this);
  auto* form = new QFormLayout(g);
  sepCSV_ = Trennerliste("cmbSepCSV", g);
  sepCSV_->setToolTip(T(OptionenTexte::SepCSVTipp));
  sepXY_ = Trennerliste("cmbSepXY", g);
  form->addRow(T(OptionenTexte::SepCSV), sepCSV_);
  form->addRow(T(OptionenTexte::SepXY), sepXY_);
  return g;
}

QWidget* OptionenFenster::BaueRechnung() {
  QGroupBox* g = Gruppe(T(OptionenTexte::CalcMode), this);
  calcMode_[0] = Option("OptCalcMode0", OptionenTexte::Stapel, nullptr, g);
  calcMode_[1] = Option("OptCalcMode1", OptionenTexte::Direkt, nullptr, g);
  return g;
}

QWidget* OptionenFenster::BaueAufloesung() {
  QGroupBox* g = Gruppe(T(OptionenTexte::Aufloesung), this);
  slider_ = new QSlider(Qt::Horizontal, g);
  slider_->setObjectName("Slider1_punktdichte");
  slider_->setRange(frmQOptions::SliderMin, frmQOptions::SliderMax);
  slider_->setSingleStep(10);
  slider_->setPageStep(100);
  punkte_ = new QLabel(g);
  punkte_->setObjectName("lblPunkte");
  connect(slider_, &QSlider::valueChanged, this, [this](int wert) {
    punkte_->setText(QString::number(wert) + " " + T(OptionenTexte::PunkteProKurve));
  });
  auto* zeile = new QHBoxLayout;
  zeile->addWidget(new QLabel("min", g));
  zeile->addWidget(slider_, 1);
  zeile->addWidget(new QLabel("max", g));
  static_cast<QVBoxLayout*>(g->layout())->addLayout(zeile);
  g->layout()->addWidget(punkte_);
  return g;
}

QCheckBox* OptionenFenster::Box(const char* name, const char* text, const char* tipp) {
  auto* b = new QCheckBox(T(text), this);
  b->setObjectName(name);
  if (tipp) b->setToolTip(T(tipp));
  return b;
}

QWidget* OptionenFenster::BaueDiagramme() {
  QGroupBox* g = Gruppe("Diagramme", this);
  mischen_[0] = Option("optKurvenMischen0", OptionenTexte::KurvenLoeschen, nullptr, g);
  mischen_[1] = Option("optKurvenMischen1", OptionenTexte::KurvenHinzu, nullptr, g);
  unload_ = Box("chkUnloadGraph2D", OptionenTexte::UnloadGraph2D);
  parSpeichern_ = Box("chkParSpeichern", OptionenTexte::ParSpeichern, OptionenTexte::ParSpeichernTipp);
  partial_ = Box("chkPartialKurve", OptionenTexte::PartialKurve, OptionenTexte::PartialKurveTipp);
  sKurve_ = Box("chkSKurveOhneKonnode", OptionenTexte::SKurve, OptionenTexte::SKurveTipp);
  tp_ = Box("chkCurveTpRestricted", OptionenTexte::TpBeschraenkt);
  for (QCheckBox* b : {unload_, parSpeichern_, partial_, sKurve_, tp_})
    g->layout()->addWidget(b);
  static_cast<QVBoxLayout*>(g->layout())->addStretch(1);
  return g;
}

void OptionenFenster::Zeige() {
  const frmQOptions& l = logik_;
  molarSpez_[static_cast<std::size_t>(l.optMolarSpez == 1)]->setChecked(true);
  mischen_[static_cast<std::size_t>(l.optKurvenMischen == 1)]->setChecked(true);
  calcMode_[static_cast<std::size_t>(l.OptCalcMode == 1)]->setChecked(true);
  reduziert_->setChecked(l.chkReduziert);
  sepCSV_->setCurrentIndex(l.cmbSepCSV);
  sepXY_->setCurrentIndex(l.cmbSepXY);
  slider_->setValue(l.Slider1_punktdichte);
  punkte_->setText(QString::number(slider_->value()) + " " + T(OptionenTexte::PunkteProKurve));
  unload_->setChecked(l.chkUnloadGraph2D);
  parSpeichern_->setChecked(l.chkParSpeichern);
  partial_->setChecked(l.chkPartialKurve);
  sKurve_->setChecked(l.chkSKurveOhneKonnode);
  tp_->setChecked(l.chkCurveTpRestricted);
}

void OptionenFenster::Uebernehmen() {
  frmQOptions& l = logik_;
  l.optMolarSpez = molarSpez_[1]->isChecked() ? 1 : 0;
  l.optKurvenMischen = mischen_[1]->isChecked() ? 1 : 0;
  l.OptCalcMode = calcMode_[1]->isChecked() ? 1 : 0;
  l.chkReduziert = reduziert_->isChecked();
  l.cmbSepCSV = sepCSV_->currentIndex();
  l.cmbSepXY = sepXY_->currentIndex();
  l.Slider1_punktdichte = slider_->value();
  l.chkUnloadGraph2D = unload_->isChecked();
  l.chkParSpeichern = parSpeichern_->isChecked();
  l.chkPartialKurve = partial_->isChecked();
  l.chkSKurveOhneKonnode = sKurve_->isChecked();
  l.chkCurveTpRestricted = tp_->isChecked();
}

void OptionenFenster::cmdOK() {
  Uebernehmen();
  const OptionenAktionen a = logik_.cmdOK();
  if (nachOK_) nachOK_(a);
  accept();
}

} // namespace quor::ui
