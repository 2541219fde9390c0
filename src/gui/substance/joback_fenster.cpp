#include "gui/substance/joback_fenster.h"

#include "core/zahlformat.h"
#include "dienste/oberflaeche.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QStackedWidget>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QVBoxLayout>

namespace quor::ui {

namespace {

QString Q(const char* s) {
  return QString::fromUtf8(s);
}

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

// The count of a group: digits only, at most three.
class AnzahlDelegate : public QStyledItemDelegate {
public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QWidget* createEditor(QWidget* eltern, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override {
    QWidget* editor = QStyledItemDelegate::createEditor(eltern, option, index);
    if (auto* feld = qobject_cast<QLineEdit*>(editor)) {
      feld->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]{0,3}"), feld));
      feld->setObjectName("txtInkrEditor");
    }
    return editor;
  }
};

// The columns of the table as the method lists them.
QString SpaltenText(const JobackGruppe& g, int spalte) {
  switch (spalte) {
  case JobackFenster::SpalteGruppe:
    return Q(g.Name);
  case JobackFenster::SpalteAtome:
    return QString::number(g.Atome);
  case JobackFenster::SpalteM:
    return Q(FormatVB(g.M, "0.00000"));
  default:
    break;
  }
  const double werte[] = {g.Tc, g.pc, g.vc, g.Tb, g.Tf, g.hf, g.gf, g.A, g.B, g.C, g.D};
  const int i = spalte - JobackFenster::ErsteIncrementSpalte;
  const double x = werte[i];
  if (i <= 1) return Q(FormatVB(x, "0.0000"));
  if (i == 2) return Q(FormatVB(x, "0"));
  if (i <= 6) return Q(FormatVB(x, "0.00"));
  return Q(DoubleText(x));
}

// Keys of a number field: digits, decimal mark, exponent, sign, and the editing keys.
bool ZahlZeichen(QChar c) {
  return c.isDigit() || QString(".,eE-+").contains(c) || c.unicode() < 32 || c.unicode() == 127;
}

} // namespace

JobackFenster::JobackFenster(ProjectState& s, Oberflaeche& ui, int16_t modus, QWidget* eltern)
    : QDialog(eltern), logik_(s, ui), ui_(ui) {
  setObjectName("frmJOBACK");
  logik_.Form_Load(modus);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(BaueModus());
  layout->addWidget(BaueTabelle(), 1);
  auto* unten = new QHBoxLayout;
  seiten_ = new QStackedWidget(this);
  seiten_->addWidget(BaueKritisch());
  seiten_->addWidget(BaueBildung());
  seiten_->addWidget(BaueCp());
  unten->addWidget(seiten_, 1);
  auto* mm = new QGroupBox(Q(frmJOBACK::lblMM), this);
  auto* mmLayout = new QHBoxLayout(mm);
  mmLayout->addWidget(NeuesFeld("txtMM"));
  mmLayout->addWidget(new QLabel("kg/kmol", mm));
  unten->addWidget(mm, 0, Qt::AlignTop);
  layout->addLayout(unten);
  layout->addWidget(BaueKnoepfe());
  resize(1200, 760);
  Zeige();
}

QWidget* JobackFenster::BaueModus() {
  auto* zeile = new QWidget(this);
  auto* layout = new QHBoxLayout(zeile);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* gruppe = new QButtonGroup(zeile);
  for (int16_t m = JobackKritisch; m <= JobackCp; ++m) {
    auto* knopf = new QRadioButton(Q(frmJOBACK::ModusTexte[static_cast<std::size_t>(m - 1)]), zeile);
    knopf->setObjectName(QString("optModus%1").arg(m));
    gruppe->addButton(knopf, m);
    layout->addWidget(knopf);
    modus_[static_cast<std::size_t>(m - 1)] = knopf;
    connect(knopf, &QRadioButton::clicked, this, [this, m] {
      logik_.optModus_Click(m);
      Zeige();
    });
  }
  layout->addStretch(1);
  return zeile;
}

QTableWidget* JobackFenster::BaueTabelle() {
  tabelle_ = new QTableWidget(JobackGruppen, Spalten, this);
  tabelle_->setObjectName("grdInkremente");
  tabelle_->setHorizontalHeaderLabels(
      {"Anzahl", "Gruppe", "Atome", "M", "Tc", "pc", "vc", "Tb", "Tf", "hf", "gf", "A", "B", "C", "D"});
  const char* tipps[Spalten] = {"Anzahl der Gruppe im Molekül",
                                "",
                                "Atome der Gruppe",
                                "kg/kmol",
                                "",
                                "",
                                "",
                                "",
                                "",
                                "kJ/mol",
                                "kJ/mol",
                                "cp-Koeffizient",
                                "cp-Koeffizient",
                                "cp-Koeffizient",
                                "cp-Koeffizient"};
  for (int c = 0; c < Spalten; ++c)
    tabelle_->horizontalHeaderItem(c)->setToolTip(Q(tipps[c]));
  tabelle_->setItemDelegateForColumn(SpalteAnzahl, new AnzahlDelegate(tabelle_));
  tabelle_->verticalHeader()->setDefaultSectionSize(tabelle_->fontMetrics().height() + 6);
  for (int r = 0; r < JobackGruppen; ++r) {
    tabelle_->setVerticalHeaderItem(r, new QTableWidgetItem(QString::number(r)));
    for (int c = 0; c < Spalten; ++c) {
      auto* item = new QTableWidgetItem(c == SpalteAnzahl ? QString() : SpaltenText(JobackTabelle[r], c));
      item->setTextAlignment(c == SpalteGruppe ? Qt::AlignLeft | Qt::AlignVCenter
                                               : Qt::AlignRight | Qt::AlignVCenter);
      if (c != SpalteAnzahl) item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
      tabelle_->setItem(r, c, item);
    }
  }
  // The columns as wide as their contents; the group names take what room is left.
  tabelle_->resizeColumnsToContents();
  tabelle_->setColumnWidth(SpalteAnzahl, 60);
  for (int c = 0; c < Spalten; ++c)
    tabelle_->setColumnWidth(c, tabelle_->columnWidth(c) + 8);
  tabelle_->horizontalHeader()->setSectionResizeMode(SpalteGruppe, QHeaderView::Stretch);
  tabelle_->setEditTriggers(QAbstractItemView::AllEditTriggers);
  connect(tabelle_, &QTableWidget::itemChanged, this, &JobackFenster::AnzahlGeaendert);
  return tabelle_;
}

QLineEdit* JobackFenster::NeuesFeld(const char* name, bool tippbar) {
  auto* feld = new QLineEdit(this);
  feld->setObjectName(name);
  feld->setAlignment(Qt::AlignRight);
  feld->setFixedWidth(110);
  feld->setReadOnly(!tippbar);
  if (tippbar) feld->installEventFilter(this);
  return feld;
}

QPushButton* JobackFenster::NeuerKnopf(const char* name, const QString& text, QWidget* eltern) {
  auto* k = new QPushButton(text, eltern);
  k->setObjectName(name);
  k->setAutoDefault(false);
  return k;
}

QWidget* JobackFenster::BaueKritisch() {
  auto* rahmen = new QGroupBox(Q(frmJOBACK::ModusTexte[0]), this);
  auto* raster = new QGridLayout(rahmen);
  const struct {
    const char* name;
    const char* label;
    bool tippbar;
  } felder[] = {{"txtTb", "T(LV),NP /K", true},      {"txtTf", "T(SL) /K", false},
                {"txtTc", "T(cr) /K", true},         {"txtpc", "p(cr) /kPa", true},
                {"txtvc", "v(cr) /m^3/kmol", false}, {"txtRhoCr", "rho(cr) /kg/m^3", false}};
  for (int i = 0; i < 6; ++i) {
    raster->addWidget(new QLabel(Q(felder[i].label), rahmen), i % 3, 3 * (i / 3), Qt::AlignRight);
    raster->addWidget(NeuesFeld(felder[i].name, felder[i].tippbar), i % 3, 3 * (i / 3) + 1);
  }
  lblRhoCr_ = new QLabel(rahmen);
  raster->addWidget(lblRhoCr_, 3, 0, 1, 5);
  raster->addWidget(NeuerKnopf("cmdCalcCrit", "berechnen", rahmen), 0, 6);
  raster->addWidget(new QLabel(Q(frmJOBACK::lblOmega), rahmen), 0, 7, 3, 1);
  raster->addWidget(NeuerKnopf("cmdOmega", "omega berechnen", rahmen), 1, 6);
  auto* omegaZeile = new QHBoxLayout;
  omega_ = new QLabel(rahmen);
  omegaZeile->addWidget(omega_);
  omegaZeile->addWidget(NeuesFeld("txtOmega"));
  omegaZeile->addStretch(1);
  raster->addLayout(omegaZeile, 3, 6, 1, 2);
  raster->setColumnMinimumWidth(2, 16);
  raster->setColumnMinimumWidth(5, 16);
  raster->setColumnStretch(8, 1);
  Befehl("cmdCalcCrit", [this] { logik_.cmdCalcCrit(); });
  Befehl("cmdOmega", [this] { logik_.cmdOmega(); });
  return rahmen;
}

QWidget* JobackFenster::BaueBildung() {
  auto* rahmen = new QGroupBox(Q(frmJOBACK::ModusTexte[1]), this);
  auto* raster = new QGridLayout(rahmen);
  raster->addWidget(new QLabel("delta(f)H(idG, 298 K) /kJ/kmol", rahmen), 0, 0, Qt::AlignRight);
  raster->addWidget(NeuesFeld("txthf"), 0, 1);
  raster->addWidget(new QLabel("delta(f)G(idG, 298 K) /kJ/kmol", rahmen), 1, 0, Qt::AlignRight);
  raster->addWidget(NeuesFeld("txtgf"), 1, 1);
  raster->addWidget(NeuerKnopf("cmdCalcBildung", "berechnen", rahmen), 0, 2);
  raster->setColumnStretch(3, 1);
  raster->setRowStretch(2, 1);
  Befehl("cmdCalcBildung", [this] { logik_.cmdCalcBildung(); });
  return rahmen;
}

QWidget* JobackFenster::BaueCp() {
  auto* rahmen = new QGroupBox(Q(frmJOBACK::ModusTexte[2]), this);
  auto* raster = new QGridLayout(rahmen);
  raster->addWidget(
      new QLabel("cp(idG) = C0 + C1*T + C2*T^2 + C3*T^3   /kJ/(kmol K),  250 ... 1000 K", rahmen), 0, 0, 1,
      8);
  for (int i = 0; i < 4; ++i) {
    raster->addWidget(new QLabel(QString("C%1").arg(i), rahmen), 1, 2 * i, Qt::AlignRight);
    const std::string name = "txtC" + std::to_string(i);
    raster->addWidget(NeuesFeld(name.c_str()), 1, 2 * i + 1);
  }
  raster->addWidget(NeuerKnopf("cmdCalccp", "berechnen", rahmen), 1, 8);
  raster->setColumnStretch(9, 1);
  raster->setRowStretch(2, 1);
  Befehl("cmdCalccp", [this] { logik_.cmdCalccp(); });
  return rahmen;
}

QWidget* JobackFenster::BaueKnoepfe() {
  auto* zeile = new QWidget(this);
  auto* layout = new QHBoxLayout(zeile);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(new QLabel(Q(frmJOBACK::Beispiel), zeile), 1);
  for (const auto& [name, text] :
       {std::pair{"cmdApply", ""}, {"cmdReset", "Reset"}, {"cmdHelp", "?"}, {"cmdEsc", "schließen "}})
    layout->addWidget(NeuerKnopf(name, Q(text), zeile));
  Knopf("cmdHelp")->setFixedWidth(Knopf("cmdHelp")->sizeHint().height());
  Befehl("cmdApply", [this] { logik_.cmdApply(); });
  Befehl("cmdReset", [this] { logik_.cmdReset(); });
  connect(Knopf("cmdHelp"), &QPushButton::clicked, this, [this] { ui_.Hilfe(HilfeJoback); });
  connect(Knopf("cmdEsc"), &QPushButton::clicked, this, &QDialog::reject);
  return zeile;
}

// A button runs its command on the fields as typed and shows the result.
template <typename Handlung> void JobackFenster::Befehl(const char* name, Handlung handlung) {
  connect(Knopf(name), &QPushButton::clicked, this, [this, handlung] {
    TexteNehmen();
    handlung();
    Zeige();
  });
}

QLineEdit* JobackFenster::Feld(const char* name) const {
  return findChild<QLineEdit*>(name);
}

QPushButton* JobackFenster::Knopf(const char* name) const {
  return findChild<QPushButton*>(name);
}

void JobackFenster::AnzahlGeaendert(QTableWidgetItem* item) {
  if (zeigt_ || item->column() != SpalteAnzahl) return;
  logik_.txtInkr_Change(item->row(), item->text().toStdString());
  Zeige();
}

void JobackFenster::TexteNehmen() {
  logik_.txtTb = Feld("txtTb")->text().toStdString();
  logik_.txtTc = Feld("txtTc")->text().toStdString();
  logik_.txtpc = Feld("txtpc")->text().toStdString();
}

void JobackFenster::Zeige() {
  zeigt_ = true;
  setWindowTitle(Q(logik_.Caption()));
  ModusKnopf(logik_.Modus)->setChecked(true);
  seiten_->setCurrentIndex(logik_.Modus - 1);
  for (int r = 0; r < JobackGruppen; ++r) {
    QTableWidgetItem* item = tabelle_->item(r, SpalteAnzahl);
    const QString text = Q(logik_.txtInkr[static_cast<std::size_t>(r)]);
    if (item->text() != text) item->setText(text);
  }
  const std::pair<const char*, const std::string*> felder[] = {
      {"txtMM", &logik_.txtMM},       {"txtTb", &logik_.txtTb},       {"txtTf", &logik_.txtTf},
      {"txtTc", &logik_.txtTc},       {"txtpc", &logik_.txtpc},       {"txtvc", &logik_.txtvc},
      {"txtRhoCr", &logik_.txtRhoCr}, {"txtOmega", &logik_.txtOmega}, {"txthf", &logik_.txthf},
      {"txtgf", &logik_.txtgf},       {"txtC0", &logik_.txtC[0]},     {"txtC1", &logik_.txtC[1]},
      {"txtC2", &logik_.txtC[2]},     {"txtC3", &logik_.txtC[3]}};
  for (const auto& [name, text] : felder)
    Feld(name)->setText(Q(*text));
  lblRhoCr_->setText(Q(logik_.lblRhoCr));
  omega_->setText(Q(frmJOBACK::OmegaPrefix));
  Knopf("cmdApply")->setText(Q(logik_.cmdApplyCaption()));
  zeigt_ = false;
}

void JobackFenster::showEvent(QShowEvent* ereignis) {
  Zeige();
  QDialog::showEvent(ereignis);
}

bool JobackFenster::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (qobject_cast<QLineEdit*>(objekt) && ereignis->type() == QEvent::KeyPress) {
    const QString text = static_cast<QKeyEvent*>(ereignis)->text();
    if (!text.isEmpty() && !ZahlZeichen(text.at(0))) return true;
  }
  return QDialog::eventFilter(objekt, ereignis);
}

} // namespace quor::ui
