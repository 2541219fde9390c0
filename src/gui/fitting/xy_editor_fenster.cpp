#include "gui/fitting/xy_editor_fenster.h"

#include "core/rahmen.h"
#include "dienste/oberflaeche.h"
#include "fitting/tprho_editor.h"
#include "gui/basis/hilfe_knopf.h"
#include "gui/fitting/daten_tabellen_modell.h"
#include "gui/fitting/editor_hilfen.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quor::ui {

XYEditorFenster::XYEditorFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern)
    : QWidget(eltern), logik_(s, ui) {
  setObjectName("frmQXYEdit");
  auto* oben = new QHBoxLayout;
  oben->addWidget(BaueLinks(), 1);
  oben->addWidget(BaueKnoepfe(ui));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(6, 6, 6, 6);
  layout->addLayout(oben, 1);
  Zeige();
}

QWidget* XYEditorFenster::BaueLinks() {
  auto* links = new QWidget(this);
  kommentar_ = new QLineEdit(links);
  kommentar_->setObjectName("txtComment");
  kommentar_->setToolTip("Kommentar: die erste Zeile der *.XY-Datei");
  connect(kommentar_, &QLineEdit::textEdited, this, [this](const QString& text) {
    logik_.txtComment_Change(text.toStdString());
    FelderZeigen();
  });
  DatenTabellenModell::Logik l;
  l.ZelleEingabe = [this](int zeile, int spalte, const std::string& text) {
    logik_.ZelleEingabe(zeile, spalte, text);
    FelderZeigen();
  };
  // The mark's row, wherever the cursor stands; the model reads the cells anew itself.
  l.AktivUmschalten = [this](int zeile) {
    Ausfuehren(
        [this, zeile] {
          logik_.Tabelle.CursorZeile = zeile;
          logik_.cmdAus();
        },
        false);
  };
  modell_ = new DatenTabellenModell(logik_.Tabelle,
                                    MarkKoepfe() << "x"
                                                 << "y",
                                    l, this);
  tabelle_ = new DatenTabellenAnsicht(logik_.Tabelle, modell_, links);
  tabelle_->setObjectName("Grid");
  tabelle_->Kopieren = [this] { Ausfuehren([this] { logik_.cmdClipboard(); }); };
  tabelle_->Einfuegen = [this] { Ausfuehren([this] { logik_.cmdClipEinfuegen(); }); };
  tabelle_->Leeren = [this] { Ausfuehren([this] { logik_.cmdEraseSelected(); }); };
  tabelle_->ZeileGewaehlt = [this](int zeile) { ZeileGewaehlt(zeile); };
  SpaltenBreiten(tabelle_, 120);

  auto* layout = new QVBoxLayout(links);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(new QLabel("Kommentar:", links));
  layout->addWidget(kommentar_);
  layout->addWidget(tabelle_, 1);
  layout->addWidget(BaueEingabe());
  return links;
}

QWidget* XYEditorFenster::BaueEingabe() {
  auto* rahmen = new QGroupBox("Eingabe einer Zeile", this);
  rahmen->setObjectName("fraInput");
  x_ = ZahlFeld("txtX", rahmen);
  y_ = ZahlFeld("txtY", rahmen);
  for (QLineEdit* f : {x_, y_})
    f->installEventFilter(this);
  auto* gruppe = new QButtonGroup(rahmen);
  const char* texte[] = {"Zeile zufügen", "Zeile editieren"};
  for (int i = 0; i < 2; ++i) {
    modus_[i] = new QRadioButton(texte[i], rahmen);
    modus_[i]->setObjectName(QString("optInputMode%1").arg(i));
    gruppe->addButton(modus_[i], i);
    connect(modus_[i], &QRadioButton::clicked, this, [this, i] {
      Ausfuehren([this, i] { logik_.optInputMode = i; });
      if (i == 1) ZeileGewaehlt(logik_.Tabelle.CursorZeile);
    });
  }
  auto* ok = OKKnopf(rahmen);
  connect(ok, &QPushButton::clicked, this, [this] { Ausfuehren([this] { logik_.OKinput(); }); });
  auto* raster = new QGridLayout(rahmen);
  raster->addWidget(new QLabel("x =", rahmen), 0, 0);
  raster->addWidget(x_, 0, 1);
  raster->addWidget(modus_[0], 0, 2);
  raster->addWidget(new QLabel("y =", rahmen), 1, 0);
  raster->addWidget(y_, 1, 1);
  raster->addWidget(modus_[1], 1, 2);
  raster->addWidget(ok, 0, 3, 2, 1);
  raster->setColumnStretch(1, 1);
  return rahmen;
}

QPushButton* XYEditorFenster::NeuerKnopf(const char* name, const QString& text, const QString& tipp,
                                         std::function<void()> befehl) {
  auto* k = BefehlsKnopf(name, text, tipp, this);
  connect(k, &QPushButton::clicked, this, [this, befehl = std::move(befehl)] { Ausfuehren(befehl); });
  return k;
}

QWidget* XYEditorFenster::BaueKnoepfe(Oberflaeche& ui) {
  auto* rechts = new QWidget(this);
  auto* raster = new QGridLayout;
  raster->setSpacing(4);
  const SteuerText* aus = TpRhoText("cmdAus");
  const SteuerText* einfuegen = TpRhoText("cmdClipEinfuegen");
  frmQXYEdit& l = logik_;
  const auto paar = [&](int zeile, QWidget* a, QWidget* b) {
    raster->addWidget(a, zeile, 0, 1, b ? 1 : 2);
    if (b) raster->addWidget(b, zeile, 1);
  };
  paar(0,
       NeuerKnopf("cmdLoad", "&Laden *.XY", "(Kurven)punkte vom File laden (*.XY, *.LRG)",
                  [&l] { l.cmdLoad(); }),
       NeuerKnopf("cmdSave", "&Speichern als File *.XY ",
                  "Kommentar und aktive Punkte als Textdatei *.XY speichern", [&l] { l.cmdSave(); }));
  paar(1, NeuerKnopf("cmdPrint", "&Drucken", "Liste der X-Y-Daten drucken", [&l] { l.cmdPrint(); }),
       BefehlsKnopf("cmdDrawXY", "&Zeichnen",
                    "aktive Punkte in das 2D-Diagramm zeichnen (ohne offenes Diagramm in ein neues)", this));
  connect(Knopf("cmdDrawXY"), &QPushButton::clicked, this, &XYEditorFenster::Zeichnen);
  auto* kurve =
      BefehlsKnopf("cmdKurve", "Kurve aus 2D-Diagramm übernehmen",
                   "die Punkte einer Kurve des offenen 2D-Diagramms in die Tabelle übernehmen", this);
  kurven_ = new QMenu(kurve);
  kurven_->setObjectName("mnuKurven");
  kurve->setMenu(kurven_);
  connect(kurven_, &QMenu::aboutToShow, this, &XYEditorFenster::KurvenMenueFuellen);
  paar(2, kurve, nullptr);
  paar(
      3,
      NeuerKnopf("cmdClipboard", "&Kopieren  <Strg+C>",
                 "markierte Zellen (ohne Markierung die ganze Tabelle) in die Zwischenablage",
                 [&l] { l.cmdClipboard(); }),
      NeuerKnopf("cmdClipEinfuegen", einfuegen->Caption, einfuegen->ToolTip, [&l] { l.cmdClipEinfuegen(); }));
  paar(4,
       NeuerKnopf("XSort", "nach x sortieren", " Tabelle nach x sortieren (aufsteigend) ",
                  [&l] { l.XSort(); }),
       NeuerKnopf("YSort", "nach y sortieren", " Tabelle nach y sortieren (aufsteigend) ",
                  [&l] { l.YSort(); }));
  paar(5, NeuerKnopf("cmdChangeXY", "x  <->  y", " vertauscht x- und y-Spalte ", [&l] { l.cmdChangeXY(); }),
       NeuerKnopf("cmdManip", "&Umrechnen ...", "y (oder x) aller aktiven Zeilen umrechnen",
                  [&l] { l.cmdManip(); }));
  paar(6, NeuerKnopf("cmdAus", aus->Caption, aus->ToolTip, [&l] { l.cmdAus(); }),
       NeuerKnopf("cmdEraseSelected", "markierte Zellen = 0  <Entf>",
                  "setzt die markierten Zellen auf 0; die Zeilen bleiben", [&l] { l.cmdEraseSelected(); }));
  paar(7,
       NeuerKnopf("cmdErase", TpRhoText("cmdErase")->Caption, "die markierten Zeilen löschen",
                  [&l] { l.cmdErase(); }),
       nullptr);
  paar(8,
       BefehlsKnopf("cmdFitting", Zeilen(frmQXYEdit::FittingText), "aktive Punkte zum Fitting senden", this),
       nullptr);
  connect(Knopf("cmdFitting"), &QPushButton::clicked, this, &XYEditorFenster::ZumFitting);

  auto* schliessen = BefehlsKnopf("Edit_OK", TpRhoText("Edit_OK")->Caption, "", this);
  connect(schliessen, &QPushButton::clicked, this, [this] { FensterSchliessen(this); });
  auto* layout = new QVBoxLayout(rechts);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(raster);
  layout->addWidget(BaueUmrechnung());
  layout->addStretch(1);
  auto* schluss = new QHBoxLayout;
  schluss->addStretch(1);
  schluss->addWidget(HilfeKnopf(this, ui, HilfeXYEditor, "Hilfe"));
  schluss->addWidget(schliessen);
  layout->addLayout(schluss);
  return rechts;
}

QGroupBox* XYEditorFenster::BaueUmrechnung() {
  fraManipulation_ = new QGroupBox("Umrechnung der aktiven Zeilen", this);
  fraManipulation_->setObjectName("fraManipulation");
  auto* gruppe = new QButtonGroup(fraManipulation_);
  auto* raster = new QGridLayout(fraManipulation_);
  for (int i = 0; i < 6; ++i) {
    manip_[i] = new QRadioButton(QString::fromUtf8(frmQXYEdit::ManipTexte[static_cast<std::size_t>(i)]),
                                 fraManipulation_);
    manip_[i]->setObjectName(QString("optManip%1").arg(i));
    gruppe->addButton(manip_[i], i);
    raster->addWidget(manip_[i], i % 3, i / 3);
    connect(manip_[i], &QRadioButton::clicked, this, [this, i] { logik_.optManip = i; });
  }
  auto* lblW = new QLabel("W =", fraManipulation_);
  lblW->setObjectName("lblW");
  w_ = ZahlFeld("txtW", fraManipulation_);
  w_->installEventFilter(this);
  auto* w = new QHBoxLayout;
  w->addWidget(lblW);
  w->addWidget(w_, 1);
  raster->addLayout(w, 3, 0, 1, 2);
  auto* ausfuehren = NeuerKnopf("cmdExecManip", "Ausführen", "die gewählte Umrechnung ausführen",
                                [this] { logik_.cmdExecManip(); });
  auto* zu = NeuerKnopf("cmdCloseManip", "Schließen", "", [this] { logik_.cmdCloseManip(); });
  raster->addWidget(ausfuehren, 4, 0);
  raster->addWidget(zu, 4, 1);
  return fraManipulation_;
}

// Room for some twenty rows at the first opening.
QSize XYEditorFenster::sizeHint() const {
  return QWidget::sizeHint().expandedTo(QSize(760, 600));
}

QLineEdit* XYEditorFenster::Feld(const QString& name) const {
  return findChild<QLineEdit*>(name);
}

QPushButton* XYEditorFenster::Knopf(const QString& name) const {
  return findChild<QPushButton*>(name);
}

void XYEditorFenster::FelderNehmen() {
  logik_.txtX = x_->text().toStdString();
  logik_.txtY = y_->text().toStdString();
  logik_.txtW = w_->text().toStdString();
}

void XYEditorFenster::Ausfuehren(const std::function<void()>& befehl, bool tabelleNeu) {
  tabelle_->AuswahlSchreiben();
  FelderNehmen();
  const int piepser = logik_.Piepser;
  befehl();
  if (logik_.Piepser != piepser) QApplication::beep();
  FelderZeigen();
  if (tabelleNeu) tabelle_->Neu();
}

void XYEditorFenster::Zeige() {
  FelderZeigen();
  tabelle_->Neu();
}

void XYEditorFenster::FelderZeigen() {
  const frmQXYEdit& l = logik_;
  setWindowTitle(QString::fromStdString(l.Caption));
  TextSetzen(kommentar_, l.txtComment);
  TextSetzen(x_, l.txtX);
  TextSetzen(y_, l.txtY);
  TextSetzen(w_, l.txtW);
  modus_[l.optInputMode == 1 ? 1 : 0]->setChecked(true);
  modus_[1]->setEnabled(!l.Tabelle.Leer());
  fraManipulation_->setVisible(l.fraManipulationVisible);
  if (l.optManip >= 0 && l.optManip < 6) manip_[static_cast<std::size_t>(l.optManip)]->setChecked(true);
  const std::pair<const char*, bool> frei[] = {
      {"cmdSave", l.cmdSaveEnabled},     {"cmdPrint", l.cmdPrintEnabled},
      {"cmdErase", l.cmdEraseEnabled},   {"cmdEraseSelected", l.cmdEraseSelectedEnabled},
      {"cmdAus", l.cmdAusEnabled},       {"cmdChangeXY", l.cmdChangeXYEnabled},
      {"cmdManip", l.cmdManipEnabled},   {"cmdClipboard", l.cmdClipboardEnabled},
      {"cmdDrawXY", l.cmdDrawXYEnabled}, {"XSort", l.XSortEnabled},
      {"YSort", l.YSortEnabled},         {"cmdFitting", l.cmdFittingEnabled}};
  for (const auto& [name, an] : frei)
    Knopf(name)->setEnabled(an);
  Knopf("cmdFitting")->setVisible(l.FittingAngeboten);
  Knopf("cmdKurve")->setEnabled(Seite2D && Seite2D());
}

// In the edit mode the fields show the row the cursor stands on, ready to be typed over.
void XYEditorFenster::ZeileGewaehlt(int zeile) {
  frmQXYEdit& l = logik_;
  if (zeile < 0 || zeile >= l.Tabelle.Anzahl()) return;
  l.Tabelle.CursorZeile = zeile;
  if (l.optInputMode != 1) return;
  const std::vector<double>& werte = l.Tabelle.Zeile(zeile).Werte;
  l.txtX = QString::fromStdString(DatenTabelle::ZellText(werte[0])).trimmed().toStdString();
  l.txtY = QString::fromStdString(DatenTabelle::ZellText(werte[1])).trimmed().toStdString();
  TextSetzen(x_, l.txtX);
  TextSetzen(y_, l.txtY);
}

void XYEditorFenster::Zeichnen() {
  tabelle_->AuswahlSchreiben();
  const std::optional<DiagrammPunkte> punkte = logik_.cmdDrawXY();
  if (punkte && PunkteZeichnen) PunkteZeichnen(*punkte);
}

void XYEditorFenster::ZumFitting() {
  bool gesendet = false;
  Ausfuehren([this, &gesendet] { gesendet = logik_.cmdFitting(); });
  if (gesendet && FittingSenden) FittingSenden(logik_.FitDaten);
}

void XYEditorFenster::KurvenMenueFuellen() {
  kurven_->clear();
  const frmQGraph2D* seite = Seite2D ? Seite2D() : nullptr;
  for (int slot = 0; seite && slot < MaxKurven; ++slot) {
    if (!seite->KurveBelegt()[static_cast<std::size_t>(slot)]) continue;
    const std::string& legende = seite->Kurve(slot).Legende;
    QAction* a = kurven_->addAction(legende.empty() ? QString("Kurve %1").arg(slot + 1)
                                                    : QString::fromStdString(legende).trimmed());
    a->setProperty("slot", slot);
    connect(a, &QAction::triggered, this, [this, slot] {
      Ausfuehren([this, slot] {
        if (const frmQGraph2D* s = Seite2D ? Seite2D() : nullptr) logik_.KurveUebernehmen(*s, slot);
      });
    });
  }
  if (kurven_->isEmpty()) kurven_->addAction("keine Kurve im 2D-Diagramm")->setEnabled(false);
}

void XYEditorFenster::closeEvent(QCloseEvent* ereignis) {
  FelderNehmen();
  if (logik_.Form_QueryUnload())
    ereignis->accept();
  else
    ereignis->ignore();
}

void XYEditorFenster::keyPressEvent(QKeyEvent* ereignis) {
  if (ereignis->key() == Qt::Key_Escape && ereignis->modifiers() == Qt::NoModifier) {
    FensterSchliessen(this);
    return;
  }
  QWidget::keyPressEvent(ereignis);
}

// The input fields take the keys of a number; "+" and Enter in x or y take the row over, Enter in W
// runs the conversion.
bool XYEditorFenster::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (ereignis->type() != QEvent::KeyPress) return QWidget::eventFilter(objekt, ereignis);
  const auto* taste = static_cast<QKeyEvent*>(ereignis);
  const bool enter = taste->key() == Qt::Key_Return || taste->key() == Qt::Key_Enter;
  if (objekt == w_ && enter) {
    Ausfuehren([this] { logik_.cmdExecManip(); });
    return true;
  }
  if (objekt != w_ && (enter || taste->text() == "+")) {
    Ausfuehren([this] { logik_.OKinput(); });
    return true;
  }
  return !NummernTaste(taste->text());
}

} // namespace quor::ui
