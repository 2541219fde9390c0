#include "gui/fitting/fitting_fenster.h"

#include "core/rahmen.h"
#include "gui/basis/hilfe_knopf.h"
#include "gui/fitting/editor_hilfen.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace quor::ui {

namespace {

QString Name(const QString& name, int index) {
  return index < 0 ? name : name + QString::number(index);
}

QString U(const char* text) {
  return QString::fromUtf8(text);
}

// A field that shows a result: read-only, its text to the right.
QLineEdit* ErgebnisFeld(const char* name, int i, QWidget* eltern) {
  QLineEdit* f = ZahlFeld(name, eltern);
  f->setObjectName(Name(name, i));
  f->setReadOnly(true);
  f->setFocusPolicy(Qt::ClickFocus);
  f->setStyleSheet("QLineEdit { background: palette(window); }");
  return f;
}

} // namespace

FittingFenster::FittingFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern)
    : QWidget(eltern), logik_(s, ui) {
  setObjectName("frmQFitting");
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(6, 6, 6, 6);
  layout->addWidget(BaueLinks(), 1);
  layout->addWidget(BaueRechts(ui));
  Zeige();
}

QWidget* FittingFenster::BaueLinks() {
  auto* links = new QWidget(this);
  auto* spalte = new QVBoxLayout(links);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->addWidget(BaueTabs());
  QLabel* formel = NeuesLabel("lblFittingEq", links);
  formel->setFrameShape(QFrame::StyledPanel);
  formel->setFrameShadow(QFrame::Sunken);
  formel->setMargin(4);
  formel->setTextInteractionFlags(Qt::TextSelectableByMouse);
  QFont f = formel->font();
  f.setBold(true);
  formel->setFont(f);
  spalte->addWidget(formel);
  spalte->addWidget(BaueParameter());
  spalte->addWidget(BaueSpline());
  spalte->addWidget(BaueLogFit());
  spalte->addStretch(1);
  return links;
}

QTabWidget* FittingFenster::BaueTabs() {
  tabs_ = new QTabWidget(this);
  tabs_->setObjectName("SSTab1");
  modelle_ = new QButtonGroup(this); // one choice over all tabs
  for (int tab = 0; tab < fittab::Anzahl; ++tab)
    tabs_->addTab(BaueTab(tab), U(TabTexte[static_cast<std::size_t>(tab)]));
  connect(tabs_, &QTabWidget::currentChanged, this,
          [this](int tab) { Ausfuehren([this, tab] { logik_.SSTab1_Click(tab); }); });
  return tabs_;
}

// The visible models of a tab, each with its lg box where it has one; the heat capacities with the
// phase their parameters are meant for.
QWidget* FittingFenster::BaueTab(int tab) {
  auto* seite = new QWidget(tabs_);
  auto* rahmen = new QGroupBox(U(GruppenText(tab)), seite);
  rahmen->setObjectName(Name("fraModelle", tab));
  auto* raster = new QGridLayout(rahmen);
  raster->setVerticalSpacing(2);
  int zeile = 0;
  for (const FitModellEintrag& e : FitModellKatalog()) {
    if (e.Tab != tab || !e.Sichtbar) continue;
    const int16_t code = e.Code;
    raster->addWidget(
        NeueOption("optFit", code, U(e.Name), rahmen, modelle_, [this, code] { logik_.optFit_Click(code); }),
        zeile, 0);
    if (HatLg(code)) {
      auto* lg = new QCheckBox(U(frmQFitting::chkLgCaption), rahmen);
      lg->setObjectName(Name("chkLg", code));
      lg->setToolTip("Gleichung mit dem dekadischen Logarithmus");
      connect(lg, &QCheckBox::clicked, this,
              [this, code](bool an) { Ausfuehren([this, code, an] { logik_.chkLg_Click(code, an); }); });
      raster->addWidget(lg, zeile, 1);
    }
    ++zeile;
  }
  raster->setColumnStretch(2, 1);
  raster->setRowStretch(zeile, 1);
  auto* layout = new QHBoxLayout(seite);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->addWidget(rahmen, 1);
  if (tab == fittab::Cp) layout->addWidget(BaueCpPhase(seite));
  return seite;
}

QGroupBox* FittingFenster::BaueCpPhase(QWidget* eltern) {
  auto* rahmen = new QGroupBox("Parameter übernehmen für", eltern);
  rahmen->setObjectName("fracpPhase");
  auto* gruppe = new QButtonGroup(rahmen);
  auto* spalte = new QVBoxLayout(rahmen);
  for (int i = 0; i < 3; ++i)
    spalte->addWidget(NeueOption("optcpPhase", i, U(frmQFitting::cpPhasenTexte[static_cast<std::size_t>(i)]),
                                 rahmen, gruppe, [this, i] { logik_.optcpPhase_Click(i); }));
  spalte->addStretch(1);
  return rahmen;
}

// The start fields with their labels and fix boxes, beside them the results with the button that
// takes one back into its start field, and the standard deviations.
QWidget* FittingFenster::BaueParameter() {
  auto* rahmen = new QWidget(this);
  rahmen->setObjectName("fraParameter");
  auto* raster = new QGridLayout(rahmen);
  raster->setContentsMargins(0, 4, 0, 4);
  raster->setVerticalSpacing(2);
  raster->addWidget(new QLabel("Startwerte", rahmen), 0, 1, Qt::AlignCenter);
  raster->addWidget(new QLabel("fix", rahmen), 0, 2, Qt::AlignCenter);
  QPushButton* alle = NeuerKnopf("cmdLeftAll", "<<", "alle Ergebnisse als Startwerte übernehmen",
                                 [this] { logik_.cmdLeftAll(); });
  alle->setMaximumWidth(40);
  raster->addWidget(alle, 0, 3);
  QLabel* ergebnis = NeuesLabel("lblParKopf", rahmen);
  ergebnis->setText("Ergebnis");
  raster->addWidget(ergebnis, 0, 4, Qt::AlignCenter);
  QLabel* stDev = NeuesLabel("lblStDevKopf", rahmen);
  stDev->setText(U(frmQFitting::StDevKopf));
  raster->addWidget(stDev, 0, 5, Qt::AlignCenter);
  for (int i = 0; i < FitMaxPar; ++i)
    BaueParameterZeile(raster, i);
  raster->setColumnStretch(1, 1);
  raster->setColumnStretch(4, 1);
  raster->setColumnStretch(5, 1);
  return rahmen;
}

void FittingFenster::BaueParameterZeile(QGridLayout* raster, int i) {
  QWidget* eltern = raster->parentWidget();
  const int zeile = i + 1;
  QLabel* label = NeuesLabel(Name("lblStart", i), eltern);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  raster->addWidget(label, zeile, 0);
  start_[i] = ZahlFeld("txtStart", eltern);
  start_[i]->setObjectName(Name("txtStart", i));
  connect(start_[i], &QLineEdit::textEdited, this,
          [this, i](const QString& t) { logik_.txtStart_Change(i, t.toStdString()); });
  raster->addWidget(start_[i], zeile, 1);
  auto* fix = new QCheckBox(eltern);
  fix->setObjectName(Name("chkFix", i));
  fix->setToolTip("Parameter festhalten: den festen Wert ins Startfeld eintragen");
  connect(fix, &QCheckBox::clicked, this,
          [this, i](bool an) { Ausfuehren([this, i, an] { logik_.chkFix_Click(i, an); }); });
  raster->addWidget(fix, zeile, 2, Qt::AlignCenter);
  QPushButton* links = NeuerKnopf("cmdleft", "<", "dieses Ergebnis als Startwert übernehmen",
                                  [this, i] { logik_.cmdleft(i); });
  links->setObjectName(Name("cmdleft", i));
  links->setMaximumWidth(40);
  raster->addWidget(links, zeile, 3);
  par_[i] = ErgebnisFeld("txtPar", i, eltern);
  raster->addWidget(par_[i], zeile, 4);
  stDev_[i] = ErgebnisFeld("txtStDev", i, eltern);
  raster->addWidget(stDev_[i], zeile, 5);
}

QGroupBox* FittingFenster::BaueSpline() {
  auto* rahmen = new QGroupBox("AKIMA-Spline", this);
  rahmen->setObjectName("fraSpline");
  auto* raster = new QGridLayout(rahmen);
  raster->addWidget(new QLabel("Glättung Sm =", rahmen), 0, 0);
  QLineEdit* sm = ZahlFeld("txtSplineWicht", rahmen);
  sm->setToolTip("Glättungsfaktor Sm; 0 ohne Glättung");
  // Leaving the field hands its text over once it was typed in.
  connect(sm, &QLineEdit::editingFinished, this, [this, sm] {
    if (!sm->isModified()) return;
    sm->setModified(false);
    Ausfuehren([this, sm] { logik_.txtSplineWicht_Change(sm->text().toStdString()); });
  });
  raster->addWidget(sm, 0, 1);
  raster->addWidget(NeuesLabel("lblEingabetest", rahmen), 0, 2);
  QLabel* bereich = NeuesLabel("lblSplineBereich", rahmen);
  bereich->setText(U(frmQFitting::SplineBereichText));
  raster->addWidget(bereich, 1, 0, 1, 3);
  raster->addWidget(NeuerKnopf("cmdSplineParAnzeigen", U(frmQFitting::cmdSplineParCaption),
                               "die Koeffizienten der Spline-Stücke in einem Textfenster",
                               [this] { SplineListe(); }),
                    2, 0, 1, 2);
  raster->setColumnStretch(2, 1);
  return rahmen;
}

QWidget* FittingFenster::BaueLogFit() {
  auto* rahmen = new QGroupBox("Minimiert wird", this);
  rahmen->setObjectName("fraLogFit");
  auto* gruppe = new QButtonGroup(rahmen);
  auto* zeile = new QHBoxLayout(rahmen);
  for (int i = 0; i < 2; ++i)
    zeile->addWidget(NeueOption("optLogFit", i, U(frmQFitting::LogFitTexte[static_cast<std::size_t>(i)]),
                                rahmen, gruppe, [this, i] { logik_.optLogFit_Click(i); }));
  zeile->addStretch(1);
  return rahmen;
}

QWidget* FittingFenster::BaueRechts(Oberflaeche& ui) {
  auto* rechts = new QWidget(this);
  rechts->setMinimumWidth(400);
  rechts->setMaximumWidth(440);
  auto* spalte = new QVBoxLayout(rechts);
  spalte->setContentsMargins(0, 0, 0, 0);
  QPushButton* start = BefehlsKnopf("cmdStart", U(frmQFitting::cmdStartCaption),
                                    "das gewählte Modell an die aktiven Punkte anpassen", rechts);
  start->setMinimumHeight(40);
  QFont f = start->font();
  f.setBold(true);
  start->setFont(f);
  connect(start, &QPushButton::clicked, this, &FittingFenster::Starten);
  spalte->addWidget(start);
  spalte->addWidget(BaueFQS());
  spalte->addWidget(BaueCalc());
  spalte->addWidget(BaueGrafik());
  QPushButton* apply = BefehlsKnopf("cmdApply", U(frmQFitting::cmdApplyCaption),
                                    "die Parameter in den Parametersatz des Stoffs schreiben", rechts);
  connect(apply, &QPushButton::clicked, this, &FittingFenster::Uebernehmen);
  spalte->addWidget(apply);
  QLabel* ziel = NeuesLabel("lblApply", rechts);
  ziel->setWordWrap(true);
  spalte->addWidget(ziel);
  spalte->addStretch(1);
  spalte->addWidget(HilfeKnopf(this, ui, HilfeFitting, "Hilfe"), 0, Qt::AlignRight);
  return rechts;
}

QGroupBox* FittingFenster::BaueFQS() {
  auto* rahmen = new QGroupBox(this);
  rahmen->setObjectName("fraFQS");
  auto* spalte = new QVBoxLayout(rahmen);
  spalte->setSpacing(2);
  for (const char* name : {"lblFQS1", "lblFQS2", "Label11", "lblsr2"}) {
    QLabel* l = NeuesLabel(name, rahmen);
    l->setWordWrap(true);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    spalte->addWidget(l);
  }
  Label("Label11")->setText(U(frmQFitting::Label11Text));
  for (const char* wert : {"lblFQS2", "lblsr2"})
    Label(wert)->setIndent(20);
  return rahmen;
}

QGroupBox* FittingFenster::BaueCalc() {
  auto* rahmen = new QGroupBox("Funktionswerte", this);
  rahmen->setObjectName("fraCalc");
  auto* gruppe = new QButtonGroup(rahmen);
  auto* raster = new QGridLayout(rahmen);
  for (int i = 0; i < 2; ++i)
    raster->addWidget(NeueOption("optCalc", i, U(frmQFitting::CalcTexte[static_cast<std::size_t>(i)]), rahmen,
                                 gruppe, [this, i] { logik_.optCalc_Click(i); }),
                      0, 2 * i, 1, 2);
  QLineEdit* x = ZahlFeld("txtCalcX", rahmen);
  QLineEdit* y = ZahlFeld("txtCalcY", rahmen);
  connect(x, &QLineEdit::textEdited, this,
          [this](const QString& t) { logik_.txtCalcX_Change(t.toStdString()); });
  connect(y, &QLineEdit::textEdited, this,
          [this](const QString& t) { logik_.txtCalcY_Change(t.toStdString()); });
  connect(x, &QLineEdit::returnPressed, this, [this] { Ausfuehren([this] { logik_.cmdCalc(); }); });
  connect(y, &QLineEdit::returnPressed, this, [this] { Ausfuehren([this] { logik_.cmdCalc(); }); });
  raster->addWidget(new QLabel("x =", rahmen), 1, 0);
  raster->addWidget(x, 1, 1);
  raster->addWidget(new QLabel("y =", rahmen), 1, 2);
  raster->addWidget(y, 1, 3);
  raster->addWidget(NeuerKnopf("cmdCalc", U(frmQFitting::cmdCalcCaption),
                               "mit den Parametern y aus x oder x aus y berechnen",
                               [this] { logik_.cmdCalc(); }),
                    2, 0, 1, 4);
  return rahmen;
}

QGroupBox* FittingFenster::BaueGrafik() {
  auto* rahmen = new QGroupBox("2D-Diagramm", this);
  rahmen->setObjectName("fraGrafik");
  auto* zeile = new QHBoxLayout(rahmen);
  struct Knopf {
    const char* name;
    const char* text;
    const char* tipp;
    std::optional<FitDiagramm> (frmQFitting::*befehl)();
  };
  const Knopf knoepfe[] = {
      {"cmdGraphFunction", "y = f(x)",
       "Messpunkte und gefittete Funktion (ohne offenes Diagramm in ein neues)",
       &frmQFitting::cmdGraphFunction},
      {"cmdGraphResid", "Residuen", "die Residuen der aktiven Punkte", &frmQFitting::cmdGraphResid},
      {"cmdGraphLnp", "ln p = f(1/T)", "ln p über 1/T: Messpunkte und Funktion", &frmQFitting::cmdGraphLnp},
  };
  for (const Knopf& k : knoepfe) {
    QPushButton* b = BefehlsKnopf(k.name, U(k.text), U(k.tipp), rahmen);
    connect(b, &QPushButton::clicked, this, [this, befehl = k.befehl] { Grafik(befehl); });
    zeile->addWidget(b);
  }
  return rahmen;
}

QPushButton* FittingFenster::NeuerKnopf(const char* name, const QString& text, const QString& tipp,
                                        std::function<void()> befehl) {
  QPushButton* k = BefehlsKnopf(name, text, tipp, this);
  connect(k, &QPushButton::clicked, this, [this, befehl = std::move(befehl)] { Ausfuehren(befehl); });
  return k;
}

QRadioButton* FittingFenster::NeueOption(const char* name, int index, const QString& text, QWidget* eltern,
                                         QButtonGroup* gruppe, std::function<void()> befehl) {
  auto* o = new QRadioButton(text, eltern);
  o->setObjectName(Name(name, index));
  gruppe->addButton(o, index);
  connect(o, &QRadioButton::clicked, this, [this, befehl = std::move(befehl)] { Ausfuehren(befehl); });
  return o;
}

QLabel* FittingFenster::NeuesLabel(const QString& name, QWidget* eltern) {
  auto* l = new QLabel(eltern);
  l->setObjectName(name);
  return l;
}

// ----- lookup by the logic's names -----

QPushButton* FittingFenster::Knopf(const QString& name, int index) const {
  return findChild<QPushButton*>(Name(name, index));
}

QRadioButton* FittingFenster::Option(const QString& name, int index) const {
  return findChild<QRadioButton*>(Name(name, index));
}

QCheckBox* FittingFenster::Kasten(const QString& name, int index) const {
  return findChild<QCheckBox*>(Name(name, index));
}

QLineEdit* FittingFenster::Feld(const QString& name, int index) const {
  return findChild<QLineEdit*>(Name(name, index));
}

QLabel* FittingFenster::Label(const QString& name, int index) const {
  return findChild<QLabel*>(Name(name, index));
}

QGroupBox* FittingFenster::Rahmen(const QString& name, int index) const {
  return findChild<QGroupBox*>(Name(name, index));
}

// Room for the results column and the frames on the right at the first opening.
QSize FittingFenster::sizeHint() const {
  return QWidget::sizeHint().expandedTo(QSize(1000, 520));
}

} // namespace quor::ui
