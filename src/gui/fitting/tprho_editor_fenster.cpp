#include "gui/fitting/tprho_editor_fenster.h"

#include "core/rahmen.h"
#include "gui/basis/hilfe_knopf.h"
#include "gui/fitting/daten_tabellen_modell.h"
#include "gui/fitting/editor_hilfen.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quor::ui {

namespace {

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

// The caption or tool-tip the logic has for a control; empty when it has none.
QString Caption(const char* name) {
  const SteuerText* t = TpRhoText(name);
  return t && t->Caption ? QString::fromUtf8(t->Caption) : QString();
}

QString Tipp(const char* name) {
  const SteuerText* t = TpRhoText(name);
  return t && t->ToolTip ? QString::fromUtf8(t->ToolTip) : QString();
}

QLabel* NeuesLabel(const char* name, QWidget* eltern, Qt::Alignment lage = Qt::AlignCenter) {
  auto* l = new QLabel(eltern);
  l->setObjectName(name);
  l->setAlignment(lage);
  return l;
}

// The y columns offered for the control diagram, the fit and the .XY export, by FitSpalte.
const char* const YSpalten[tprho::Spalten] = {"", "p", "rho(V)", "rho(L)", "delta(LV)h", "cp"};

} // namespace

TpRhoEditorFenster::TpRhoEditorFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern)
    : QWidget(eltern), logik_(s, ui) {
  setObjectName("frmTpRhoEdit");
  auto* links = new QVBoxLayout;
  links->addWidget(new QLabel(Caption("txtComment"), this));
  kommentar_ = new QLineEdit(this);
  kommentar_->setObjectName("txtComment");
  connect(kommentar_, &QLineEdit::textEdited, this, [this](const QString& text) {
    logik_.txtComment_Change(text.toStdString());
    FelderZeigen();
  });
  links->addWidget(kommentar_);
  links->addWidget(BaueTabelle(), 1);
  links->addWidget(BaueFitSpalten());
  links->addWidget(BaueEingabe());
  links->addWidget(BaueEinheiten());
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(6, 6, 6, 6);
  layout->addLayout(links, 1);
  layout->addWidget(BaueKnoepfe(ui));
}

QWidget* TpRhoEditorFenster::BaueTabelle() {
  QStringList koepfe = MarkKoepfe();
  for (int k = 0; k < tprho::Spalten; ++k)
    koepfe << QString::fromUtf8(frmTpRhoEdit::Kopf[0][k]) + "\n" +
                  QString::fromUtf8(frmTpRhoEdit::Kopf[1][k]);
  DatenTabellenModell::Logik l;
  l.ZelleEingabe = [this](int zeile, int spalte, const std::string& text) {
    logik_.Grid_Enter(zeile, spalte, text);
    FelderZeigen();
    emit geaendert();
  };
  // The mark's row, wherever the cursor stands; the model reads the cells anew itself.
  l.AktivUmschalten = [this](int zeile) {
    Ausfuehren(
        [this, zeile] {
          logik_.Grid.CursorZeile = zeile;
          logik_.cmdAus();
        },
        false);
  };
  l.Farbe = [this](int spalte) -> std::optional<QColor> {
    const RGBFarbe f = logik_.SpaltenFarbe[static_cast<std::size_t>(spalte)];
    return QColor(f.R, f.G, f.B);
  };
  modell_ = new DatenTabellenModell(logik_.Grid, koepfe, l, this);
  tabelle_ = new DatenTabellenAnsicht(logik_.Grid, modell_, this);
  tabelle_->setObjectName("Grid");
  tabelle_->Kopieren = [this] { Ausfuehren([this] { logik_.cmdClipboard(); }); };
  tabelle_->Einfuegen = [this] { Ausfuehren([this] { logik_.cmdClipEinfuegen(); }); };
  tabelle_->Leeren = [this] { Ausfuehren([this] { logik_.cmdEraseSelected(); }); };
  tabelle_->ZeileGewaehlt = [this](int zeile) {
    logik_.Grid_Zeile(zeile);
    FelderZeigen();
  };
  SpaltenBreiten(tabelle_, 96);
  tabelle_->setMinimumHeight(180);
  return tabelle_;
}

QGroupBox* TpRhoEditorFenster::BaueFitSpalten() {
  auto* rahmen = new QGroupBox("Spaltenpaar T-y für Kontroll-Grafik, Fitting und *.XY:   y =", this);
  rahmen->setObjectName("fraFitFunction");
  auto* gruppe = new QButtonGroup(rahmen);
  auto* zeile = new QHBoxLayout(rahmen);
  for (int k = 1; k < tprho::Spalten; ++k) {
    QRadioButton* o = NeueOption("optFitFunction", k, YSpalten[k], rahmen,
                                 [this, k] { logik_.optFitFunction_Click(static_cast<int16_t>(k)); });
    gruppe->addButton(o, k);
    zeile->addWidget(o);
  }
  zeile->addStretch(1);
  return rahmen;
}

QGroupBox* TpRhoEditorFenster::BaueEingabe() {
  auto* rahmen = new QGroupBox("Eingabe einer Zeile", this);
  rahmen->setObjectName("fraInput");
  auto* raster = new QGridLayout(rahmen);
  raster->setVerticalSpacing(2);
  const char* namen[] = {"lblT", "lblP", "lblRhoV", "lblRhoL", "lblHLV", "lblCp"};
  const char* einheiten[] = {"lblTEinheit",    "lblPEinheit",   "lblRhoEinheit",
                             "lblRhoEinheitL", "lblHLVEinheit", "lblCpEinheit"};
  for (int i = 0; i < tprho::Spalten; ++i) {
    raster->addWidget(NeuesLabel(namen[i], rahmen), 0, i);
    y_[i] = ZahlFeld("y", rahmen);
    y_[i]->setObjectName(QString("y%1").arg(i)); // the field array y(0..5)
    y_[i]->installEventFilter(this);
    connect(y_[i], &QLineEdit::textEdited, this,
            [this, i](const QString& t) { logik_.y[i] = t.toStdString(); });
    connect(y_[i], &QLineEdit::editingFinished, this, [this, i] {
      logik_.y[i] = y_[i]->text().toStdString();
      logik_.y_LostFocus(i);
    });
    raster->addWidget(y_[i], 1, i);
    raster->addWidget(NeuesLabel(einheiten[i], rahmen), 2, i);
  }
  Label("lblT")->setText("T");
  Label("lblP")->setText("p");
  Label("lblHLV")->setText("delta(LV)h");
  Label("lblCp")->setText("cp");
  Label("lblHLVEinheit")->setText("kJ/kmol");
  Label("lblCpEinheit")->setText("kJ/(kmol K)");
  auto* modi = new QButtonGroup(rahmen);
  for (int i = 0; i < 2; ++i) {
    const QString text = Caption(QString("optInputMode(%1)").arg(i).toUtf8().constData());
    QRadioButton* o = NeueOption("optInputMode", i, text, rahmen,
                                 [this, i] { logik_.optInputMode_Click(static_cast<int16_t>(i)); });
    modi->addButton(o, i);
    raster->addWidget(o, i, tprho::Spalten);
  }
  raster->addWidget(NeuesLabel("lblZeile", rahmen, Qt::AlignLeft | Qt::AlignVCenter), 2, tprho::Spalten);
  auto* ok = OKKnopf(rahmen);
  connect(ok, &QPushButton::clicked, this, [this] { Ausfuehren([this] { logik_.OKinput(); }); });
  raster->addWidget(ok, 0, tprho::Spalten + 1, 3, 1);
  return rahmen;
}

// The units of the input: one row of option groups, and the amount n of the volume form.
QWidget* TpRhoEditorFenster::BaueEinheiten() {
  auto* zeile = new QWidget(this);
  auto* layout = new QHBoxLayout(zeile);
  layout->setContentsMargins(0, 0, 0, 0);
  struct Gruppe {
    const char* name;
    const char* titel;
    int anzahl;
    std::function<void(int16_t)> klick;
  };
  const Gruppe gruppen[] = {
      {"opt_T_unit", "T", 2, [this](int16_t i) { logik_.opt_T_unit_Click(i); }},
      {"opt_p_Unit", "p", 3, [this](int16_t i) { logik_.opt_p_Unit_Click(i); }},
      {"opt_Rho_Unit", "", 2, [this](int16_t i) { logik_.opt_Rho_Unit_Click(i); }},
  };
  for (const Gruppe& g : gruppen) {
    auto* rahmen = new QGroupBox(g.titel, zeile);
    rahmen->setObjectName(QString("fra") + g.name);
    auto* knoepfe = new QButtonGroup(rahmen);
    auto* reihe = new QHBoxLayout(rahmen);
    reihe->setContentsMargins(6, 2, 6, 2);
    for (int i = 0; i < g.anzahl; ++i) {
      const QString text = Caption(QString("%1(%2)").arg(g.name).arg(i).toUtf8().constData());
      QRadioButton* o =
          NeueOption(g.name, i, text, rahmen, [klick = g.klick, i] { klick(static_cast<int16_t>(i)); });
      knoepfe->addButton(o, i);
      reihe->addWidget(o);
    }
    layout->addWidget(rahmen);
  }
  mol_ = ZahlFeld("txtMol", zeile);
  mol_->setMaximumWidth(90);
  mol_->installEventFilter(this);
  connect(mol_, &QLineEdit::textEdited, this, [this](const QString& t) { logik_.txtMol = t.toStdString(); });
  auto* dichte = findChild<QGroupBox*>("fraopt_Rho_Unit");
  static_cast<QHBoxLayout*>(dichte->layout())->addWidget(new QLabel(Caption("txtMol"), dichte));
  static_cast<QHBoxLayout*>(dichte->layout())->addWidget(mol_);
  layout->addStretch(1);
  return zeile;
}

QRadioButton* TpRhoEditorFenster::NeueOption(const char* name, int index, const QString& text,
                                             QWidget* eltern, std::function<void()> befehl) {
  auto* o = new QRadioButton(text, eltern);
  o->setObjectName(QString("%1%2").arg(name).arg(index));
  connect(o, &QRadioButton::clicked, this, [this, befehl = std::move(befehl)] { Ausfuehren(befehl); });
  return o;
}

QPushButton* TpRhoEditorFenster::NeuerKnopf(const char* name, const QString& text,
                                            std::function<void()> befehl) {
  auto* k = BefehlsKnopf(name, text, Tipp(name), this);
  connect(k, &QPushButton::clicked, this, [this, befehl = std::move(befehl)] { Ausfuehren(befehl); });
  return k;
}

QWidget* TpRhoEditorFenster::BaueKnoepfe(Oberflaeche& ui) {
  auto* rechts = new QWidget(this);
  auto* spalte = new QVBoxLayout(rechts);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->setSpacing(4);
  frmTpRhoEdit& l = logik_;
  const auto gruppe = [&](std::initializer_list<QPushButton*> knoepfe) {
    for (QPushButton* k : knoepfe)
      spalte->addWidget(k);
    spalte->addSpacing(10);
  };
  gruppe({NeuerKnopf("cmdBatchLoad", Caption("cmdBatchLoad"), [&l] { l.cmdBatchLoad(); }),
          NeuerKnopf("cmdBatchAdd", Caption("cmdBatchAdd"), [&l] { l.cmdBatchAdd(); }),
          NeuerKnopf("cmdBatchSave", "&Speichern *.BAQ", [&l] { l.cmdBatchSave(); }),
          NeuerKnopf("cmdSaveXY", Caption("cmdSaveXY"), [&l] { l.cmdSaveXY(); }),
          NeuerKnopf("cmdPrintTpVListe", Caption("cmdPrintTpVListe"), [&l] { l.cmdPrintTpVListe(); })});
  gruppe({NeuerKnopf("TSort", "nach T sortieren", [&l] { l.TSort(); }),
          NeuerKnopf("pSort", "nach p sortieren", [&l] { l.pSort(); }),
          NeuerKnopf("cmdAus", Caption("cmdAus"), [&l] { l.cmdAus(); }),
          NeuerKnopf("cmdErase", Caption("cmdErase"), [&l] { l.cmdErase(); }),
          NeuerKnopf("cmdEraseSelected", "markierte Zellen = 0  <Entf>", [&l] { l.cmdEraseSelected(); }),
          NeuerKnopf("cmdClipboard", "&Kopieren  <Strg+C>", [&l] { l.cmdClipboard(); }),
          NeuerKnopf("cmdClipEinfuegen", Caption("cmdClipEinfuegen"), [&l] { l.cmdClipEinfuegen(); })});
  auto* grafik =
      BefehlsKnopf("cmdGraphFunction", Caption("cmdGraphFunction"), Tipp("cmdGraphFunction"), rechts);
  auto* lnp = BefehlsKnopf("cmdlogGraf", Caption("cmdlogGraf"), Tipp("cmdlogGraf"), rechts);
  connect(grafik, &QPushButton::clicked, this, [this] { Zeichnen(false); });
  connect(lnp, &QPushButton::clicked, this, [this] { Zeichnen(true); });
  auto* fitting = BefehlsKnopf("cmdFitting", "zum Fitting senden", Tipp("cmdFitting"), rechts);
  connect(fitting, &QPushButton::clicked, this, &TpRhoEditorFenster::ZumFitting);
  gruppe({grafik, lnp, fitting});
  Knopf("cmdEraseSelected")->setToolTip("setzt die markierten Zellen auf 0; die Zeilen bleiben");
  Knopf("cmdClipboard")->setToolTip("markierte Zellen in die Zwischenablage");
  spalte->addStretch(1);
  spalte->addWidget(HilfeKnopf(this, ui, HilfeMessdaten, "Hilfe"));
  auto* schliessen = BefehlsKnopf("Edit_OK", Caption("Edit_OK"), "", rechts);
  connect(schliessen, &QPushButton::clicked, this, [this] { FensterSchliessen(this); });
  spalte->addWidget(schliessen);
  return rechts;
}

void TpRhoEditorFenster::Laden() {
  logik_.Form_Load();
  Zeige();
}

QPushButton* TpRhoEditorFenster::Knopf(const QString& name) const {
  return findChild<QPushButton*>(name);
}

QRadioButton* TpRhoEditorFenster::Option(const QString& name, int index) const {
  return findChild<QRadioButton*>(name + QString::number(index));
}

QLabel* TpRhoEditorFenster::Label(const QString& name) const {
  return findChild<QLabel*>(name);
}

void TpRhoEditorFenster::FelderNehmen() {
  for (int i = 0; i < tprho::Spalten; ++i)
    logik_.y[i] = y_[i]->text().toStdString();
  logik_.txtMol = mol_->text().toStdString();
}

void TpRhoEditorFenster::Ausfuehren(const std::function<void()>& befehl, bool tabelleNeu) {
  tabelle_->AuswahlSchreiben();
  FelderNehmen();
  const int piepser = logik_.Piepser;
  befehl();
  if (logik_.Piepser != piepser) QApplication::beep();
  FelderZeigen();
  if (tabelleNeu) tabelle_->Neu();
  emit geaendert();
}

void TpRhoEditorFenster::Zeige() {
  FelderZeigen();
  tabelle_->Neu();
}

void TpRhoEditorFenster::FelderZeigen() {
  const frmTpRhoEdit& l = logik_;
  setWindowTitle(Q(l.Caption));
  TextSetzen(kommentar_, l.txtComment);
  TextSetzen(mol_, l.txtMol);
  for (int i = 0; i < tprho::Spalten; ++i)
    TextSetzen(y_[i], l.y[i]);
  const std::pair<const char*, std::string> labels[] = {
      {"lblRhoV", l.lblRhoV},
      {"lblRhoL", l.lblRhoL},
      {"lblPEinheit", l.lblPEinheit},
      {"lblRhoEinheit", l.lblRhoEinheit},
      {"lblRhoEinheitL", l.lblRhoEinheit},
      {"lblZeile", l.lblZeile},
      {"lblTEinheit", l.opt_T_unit == einheit::Celsius ? "°C" : "K"}};
  for (const auto& [name, text] : labels)
    Label(name)->setText(Q(text));
  findChild<QGroupBox*>("fraopt_Rho_Unit")->setTitle(Q(l.lblDichte));
  Option("opt_T_unit", l.opt_T_unit)->setChecked(true);
  Option("opt_p_Unit", l.opt_p_Unit)->setChecked(true);
  Option("opt_Rho_Unit", l.opt_Rho_Unit)->setChecked(true);
  Option("opt_Rho_Unit", einheit::Volumen)->setEnabled(l.opt_Rho_UnitVolumenEnabled);
  Option("opt_Rho_Unit", einheit::Volumen)->setToolTip(Q(l.opt_Rho_UnitToolTip));
  Option("optInputMode", l.optInputMode)->setChecked(true);
  Option("optInputMode", ZeileEditieren)->setEnabled(l.optInputModeEditierenEnabled);
  for (int k = 1; k < tprho::Spalten; ++k) {
    QRadioButton* o = Option("optFitFunction", k);
    o->setEnabled(l.optFitFunctionEnabled[static_cast<std::size_t>(k)]);
    // No column chosen (0) leaves every option of the exclusive group unchecked.
    o->group()->setExclusive(false);
    o->setChecked(l.optFitFunction == k);
    o->group()->setExclusive(true);
  }
  const std::pair<const char*, bool> frei[] = {{"cmdBatchAdd", l.cmdBatchAddEnabled},
                                               {"cmdBatchSave", l.cmdBatchSaveEnabled},
                                               {"cmdErase", l.cmdEraseEnabled},
                                               {"cmdAus", l.cmdAusEnabled},
                                               {"cmdPrintTpVListe", l.cmdPrintTpVListeEnabled},
                                               {"cmdSaveXY", l.cmdSaveXYEnabled},
                                               {"TSort", l.TSortEnabled},
                                               {"pSort", l.pSortEnabled},
                                               {"cmdGraphFunction", l.cmdGraphFunctionEnabled},
                                               {"cmdFitting", l.cmdFittingEnabled},
                                               {"cmdlogGraf", l.cmdlogGrafEnabled},
                                               {"cmdEraseSelected", !l.Grid.Leer()},
                                               {"cmdClipboard", !l.Grid.Leer()}};
  for (const auto& [name, an] : frei)
    Knopf(name)->setEnabled(an);
  Knopf("cmdFitting")->setVisible(l.FittingAngeboten);
}

void TpRhoEditorFenster::Zeichnen(bool logarithmisch) {
  tabelle_->AuswahlSchreiben();
  const std::optional<DiagrammPunkte> punkte =
      logarithmisch ? logik_.cmdlogGraf() : logik_.cmdGraphFunction();
  if (punkte && PunkteZeichnen) PunkteZeichnen(*punkte);
}

// The table is sorted by T on the way: it is shown anew before the dialog opens.
void TpRhoEditorFenster::ZumFitting() {
  FitUebergabe u;
  Ausfuehren([this, &u] { u = logik_.cmdFitting(); });
  if (FittingSenden) FittingSenden(u);
}

void TpRhoEditorFenster::SchliessenOhneFrage() {
  fragen_ = false;
  FensterSchliessen(this);
}

void TpRhoEditorFenster::closeEvent(QCloseEvent* ereignis) {
  FelderNehmen();
  if (fragen_ && !logik_.Form_QueryUnload()) {
    ereignis->ignore();
    return;
  }
  ereignis->accept();
  emit geaendert();
}

void TpRhoEditorFenster::keyPressEvent(QKeyEvent* ereignis) {
  if (ereignis->key() == Qt::Key_Escape && ereignis->modifiers() == Qt::NoModifier) {
    FensterSchliessen(this);
    return;
  }
  QWidget::keyPressEvent(ereignis);
}

// The input fields take the keys of a number; "+" and Enter in a value field take the row over.
bool TpRhoEditorFenster::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (ereignis->type() != QEvent::KeyPress) return QWidget::eventFilter(objekt, ereignis);
  const auto* taste = static_cast<QKeyEvent*>(ereignis);
  const bool enter = taste->key() == Qt::Key_Return || taste->key() == Qt::Key_Enter;
  if (objekt != mol_ && (enter || taste->text() == "+")) {
    Ausfuehren([this] { logik_.OKinput(); });
    return true;
  }
  return !NummernTaste(taste->text());
}

} // namespace quor::ui
