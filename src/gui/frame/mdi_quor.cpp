#include "gui/frame/mdi_quor.h"

#include "core/daten_diagnose.h"
#include "dienste/oberflaeche.h"
#include "gui/frame/menue_tabelle.h"
#include "gui/substance/modell_fenster.h"
#include "gui/frame/projekt_dialog_dienste.h"
#include "gui/frame/rahmen_dienste.h"
#include "gui/calc/rechnung_steuerung.h"
#include "gui/substance/stoff_wahl_fenster.h"
#include "gui/basis/symbole.h"
#include "gui/substance/text_fenster.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QSet>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

namespace quor::ui {

const char* const HauptfensterTitel =
    "QUOR-6     thermodynamische Zustands- und Prozessberechnungen an Reinstoffsystemen";

namespace {

QString Schluessel(const QString& name, int index) {
  return index < 0 ? name : name + "(" + QString::number(index) + ")";
}

} // namespace

mdiQUOR::mdiQUOR(ProjectState& state, Oberflaeche& ui, QWidget* eltern)
    : QMainWindow(eltern), state_(state), ui_(ui), mdi_(new QMdiArea(this)) {
  rechnung_ = new RechnungSteuerung(state, ui, mdi_, this);
  logik_ = std::make_unique<RahmenLogik>(state, ui, Dienste());
  RechnungBefehleGebaut(logik_->Befehle);
  setObjectName("mdiQUOR");
  setWindowTitle(QString::fromUtf8(HauptfensterTitel));
  setWindowIcon(ProgrammSymbol());
  mdi_->setObjectName("mdiArea");
  mdi_->setBackground(QBrush(QColor(128, 128, 128)));
  setCentralWidget(mdi_);
  BaueMenues();
  BaueToolbar();
  BaueStatusleiste();
  resize(1180, 780);
  Aktualisieren();
}

mdiQUOR::~mdiQUOR() = default;

RahmenDienste mdiQUOR::Dienste() {
  RahmenDienste d = StandardDienste(ui_);
  d.StoffWahlZeigen = [this] { StoffWahlZeigen(); };
  d.ModellFensterZeigen = [this] { ModellFensterZeigen(true); };
  d.TextFensterZeigen = [this](const std::string& titel, const std::string& text) {
    ZeigeTextFenster(frmQTextEdit(titel, text), this);
  };
  d.Rechnung = [this](const std::string& name, int index) { rechnung_->Menue(name, index); };
  d.ReferenzZeigen = [this] { rechnung_->ReferenzZeigen(); };
  d.ProtokollSchliessen = [this] { rechnung_->SeiteSchliessen(); };
  ProjektFensterDienste(d, *this, state_, ui_);
  return d;
}

void mdiQUOR::Starten(const std::string& kommandozeile) {
  logik_->Start(kommandozeile);
  Aktualisieren();
}

void mdiQUOR::BaueMenues() {
  QSet<QString> eltern;
  for (const MenueZeile& z : MenueTabelle())
    if (*z.eltern) eltern.insert(Schluessel(z.eltern, z.elternIndex));
  for (const MenueZeile& z : MenueTabelle()) {
    const QString name = QString::fromUtf8(z.name);
    const QString text = QString::fromUtf8(z.text);
    const QString schluessel = Schluessel(name, z.index);
    QWidget* behaelter = *z.eltern ? static_cast<QWidget*>(menues_.value(Schluessel(z.eltern, z.elternIndex)))
                                   : static_cast<QWidget*>(menuBar());
    QAction* aktion = nullptr;
    if (text == "-") {
      aktion = new QAction(this);
      aktion->setSeparator(true);
    } else if (eltern.contains(schluessel)) {
      auto* menue = new QMenu(text, behaelter);
      menue->setObjectName(name);
      menue->setProperty("index", z.index);
      menues_.insert(schluessel, menue);
      aktion = menue->menuAction();
    } else {
      aktion = new QAction(text, this);
      connect(aktion, &QAction::triggered, this,
              [this, name, index = z.index] { BefehlAusloesen(name, index); });
    }
    aktion->setObjectName(name);
    aktion->setProperty("index", z.index);
    behaelter->addAction(aktion);
    if (!name.isEmpty()) befehle_.insert(schluessel, aktion);
  }
}

void mdiQUOR::BaueToolbar() {
  auto* leiste = addToolBar("Toolbar1");
  leiste->setObjectName("Toolbar1");
  leiste->setMovable(false);
  leiste->setIconSize(QSize(24, 24));
  bool vorherTrenner = true;
  for (const ToolbarKnopf& k : ToolbarTabelle()) {
    QAction* aktion = nullptr;
    if (!k.tipp) {
      aktion = leiste->addSeparator();
      aktion->setVisible(!vorherTrenner); // a run of unnamed places shows as one separator
      vorherTrenner = true;
    } else {
      aktion = leiste->addAction(ToolbarSymbol(k.index, style()), QString());
      aktion->setToolTip(QString::fromUtf8(k.tipp));
      connect(aktion, &QAction::triggered, this, [this, i = k.index] {
        logik_->Ausfuehren(ToolbarName, i);
        Aktualisieren();
      });
      vorherTrenner = false;
    }
    aktion->setObjectName(Schluessel("Toolbar1", k.index));
    aktion->setProperty("index", k.index);
    knoepfe_.push_back(aktion);
  }
  auto* abstand = new QWidget(leiste);
  abstand->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  leiste->addWidget(abstand);
  ampel_ = new QToolButton(leiste);
  ampel_->setObjectName("txtAmpel");
  ampel_->setText("  Daten-Ampel  ");
  ampel_->setToolTip(QString::fromUtf8(DatenAmpelTitel) + ": Klick zeigt den Bericht");
  ampel_->setAutoRaise(false);
  connect(ampel_, &QToolButton::clicked, this, [this] { logik_->txtAmpel_Click(); });
  leiste->addWidget(ampel_);
}

void mdiQUOR::BaueStatusleiste() {
  const int dehnung[] = {1, 2, 3, 3};
  for (int i = 1; i <= 4; ++i) {
    auto* panel = new QLabel(this);
    panel->setObjectName(QString("Panel%1").arg(i));
    panel->setFrameShape(QFrame::StyledPanel);
    panel->setFrameShadow(QFrame::Sunken);
    panel->setMinimumWidth(60);
    statusBar()->addWidget(panel, dehnung[i - 1]);
    panels_.push_back(panel);
  }
}

QAction* mdiQUOR::Befehl(const QString& name, int index) const {
  return befehle_.value(Schluessel(name, index), nullptr);
}

QMenu* mdiQUOR::Menue(const QString& name, int index) const {
  return menues_.value(Schluessel(name, index), nullptr);
}

QAction* mdiQUOR::Knopf(int index) const {
  return index >= 0 && index < static_cast<int>(knoepfe_.size()) ? knoepfe_[static_cast<std::size_t>(index)]
                                                                 : nullptr;
}

QString mdiQUOR::StatusText(int panel) const {
  return panel >= 1 && panel <= 4 ? panels_[static_cast<std::size_t>(panel - 1)]->text() : QString();
}

void mdiQUOR::Aktualisieren() {
  for (auto it = befehle_.cbegin(); it != befehle_.cend(); ++it) {
    QAction* a = it.value();
    if (a->isSeparator()) continue;
    const std::string name = a->objectName().toStdString();
    const int index = a->property("index").toInt();
    // A submenu opens whenever its needs are met, so that its entries show even when disabled.
    a->setEnabled(a->menu() ? BedarfErfuellt(state_, name, index) : logik_->Freigegeben(name, index));
  }
  if (QAction* virial = Befehl("mnuCalc", 18))
    virial->setText(QString::fromStdString(logik_->VirialEintragText()));
  for (QAction* k : knoepfe_)
    if (!k->isSeparator()) k->setEnabled(logik_->Freigegeben(ToolbarName, k->property("index").toInt()));
  for (int i = 1; i <= 4; ++i)
    panels_[static_cast<std::size_t>(i - 1)]->setText(QString::fromStdString(state_.Projekt.StatusLeiste[i]));
  AmpelZeigen();
}

void mdiQUOR::AmpelZeigen() {
  const AmpelFarbe f = FarbeVonAmpel(state_.Projekt.Ampel.DatenAmpel);
  ampel_->setEnabled(!f.Systemfarbe);
  ampel_->setStyleSheet(f.Systemfarbe ? QString()
                                      : QString("QToolButton#txtAmpel { background-color: rgb(%1, %2, %3); "
                                                "color: black; border: 1px solid #555; border-radius: 3px; "
                                                "padding: 3px 6px; font-weight: bold; }")
                                            .arg(f.Rot)
                                            .arg(f.Gruen)
                                            .arg(f.Blau));
}

void mdiQUOR::BefehlAusloesen(const QString& name, int index) {
  if (name == "mnuWindow_Kaskade") {
    mdi_->cascadeSubWindows();
  } else if (name == "mnuWindow_Nebeneinander") {
    mdi_->tileSubWindows();
  } else if (name == "mnuData_Exit") {
    close();
    return;
  } else if (name == "mnuModel" && modell_) {
    ModellFensterZeigen(false);
  } else {
    logik_->Ausfuehren(name.toStdString(), index);
  }
  Aktualisieren();
}

void mdiQUOR::StoffWahlZeigen() {
  if (!stoffWahl_) {
    stoffWahl_ = new StoffWahlFenster(state_, ui_, this);
    connect(stoffWahl_, &StoffWahlFenster::stoffGeladen, this, [this] { ModellFensterZeigen(true); });
    connect(stoffWahl_, &QDialog::finished, this, &mdiQUOR::Aktualisieren);
  }
  if (!stoffWahl_->Laden()) return;
  stoffWahl_->open();
}

void mdiQUOR::ModellFensterZeigen(bool neuAufbauen) {
  if (!modell_) {
    modell_ = new ModellFenster(state_, ui_);
    modell_->setWindowIcon(windowIcon());
    modellFenster_ = mdi_->addSubWindow(modell_);
    modellFenster_->setObjectName("frmQModellFenster");
    modellFenster_->setAttribute(Qt::WA_DeleteOnClose, false); // closing hides the switchboard
    connect(modell_, &ModellFenster::geaendert, this, &mdiQUOR::Aktualisieren);
    neuAufbauen = true;
  }
  if (neuAufbauen) modell_->Laden();
  modellFenster_->show();
  modell_->show();
  mdi_->setActiveSubWindow(modellFenster_);
  Aktualisieren();
}

void mdiQUOR::closeEvent(QCloseEvent* ereignis) {
  logik_->Beenden();
  ereignis->accept();
}

} // namespace quor::ui
