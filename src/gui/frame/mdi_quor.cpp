#include "gui/frame/mdi_quor.h"

#include "calc/rechen_befehle.h"
#include "core/daten_diagnose.h"
#include "diagrams/diagramm_befehle.h"
#include "dienste/oberflaeche.h"
#include "fitting/daten_befehle.h"
#include "gui/basis/schirm.h"
#include "gui/basis/symbole.h"
#include "gui/calc/rechnung_steuerung.h"
#include "gui/frame/stoff_editor_steuerung.h"
#include "gui/process/prozess_steuerung.h"
#include "substance/joback.h"
#include "gui/diagrams/graph2d_steuerung.h"
#include "gui/diagrams/graph3d_steuerung.h"
#include "gui/fitting/daten_editor_steuerung.h"
#include "gui/frame/projekt_dialog.h"
#include "gui/frame/projekt_dialog_dienste.h"
#include "gui/frame/rahmen_dienste.h"
#include "gui/substance/modell_fenster.h"
#include "gui/substance/stoff_wahl_fenster.h"
#include "gui/substance/text_fenster.h"
#include "substance/stoff_befehle.h"

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
  graf2d_ = new Graph2DSteuerung(state, ui, mdi_, this);
  graf3d_ = new Graph3DSteuerung(state, ui, mdi_, this);
  editoren_ = new DatenEditorSteuerung(state, ui, mdi_, graf2d_, this);
  prozess_ = new ProzessSteuerung(state, ui, *graf2d_, this);
  stoffEditoren_ = new StoffEditorSteuerung(state, ui, mdi_, *graf2d_, this);
  stoffEditoren_->Geaendert = [this] { Aktualisieren(); };
  stoffEditoren_->ModellFensterNeu = [this] {
    if (modell_ && modellFenster_ && modellFenster_->isVisible()) modell_->Laden();
  };
  rechnung_->ProzessZeigen = [this] { prozess_->Oeffnen(prozess::Polytrope, true); };
  prozess_->PolytropeErgebnis = [this](const std::string& bericht) { return rechnung_->PolytropeZeigen(bericht); };
  rechnung_->IsoRechnerZeigen = [this](const RechenKontext& k) { prozess_->IsoRechnerOeffnen(k); };
  rechnung_->BehaelterZeigen = [this](const BehaelterZustand& z) { prozess_->KesselOeffnen(z); };
  prozess_->KurvenInputOeffnen = [this] { editoren_->XYEditorZeigen(); };
  logik_ = std::make_unique<RahmenLogik>(state, ui, Dienste());
  BefehleRegistrieren();
  setObjectName("mdiQUOR");
  setWindowTitle(QString::fromUtf8(HauptfensterTitel));
  setWindowIcon(ProgrammSymbol());
  mdi_->setObjectName("mdiArea");
  mdi_->setBackground(QBrush(QColor(128, 128, 128)));
  setCentralWidget(mdi_);
  BaueMenues();
  BaueToolbar();
  BaueStatusleiste();
  // The first size leaves room for the window's title bar on a screen of 1280 x 800.
  resize(QSize(1180, 780).boundedTo(SchirmFlaeche(this).size() - QSize(0, 40)));
  Aktualisieren();
}

// The children go after this body: the closing diagram page must not ask the half-gone frame to
// show its entries anew.
mdiQUOR::~mdiQUOR() {
  graf2d_->disconnect(this);
  graf2d_->disconnect(editoren_);
}

RahmenDienste mdiQUOR::Dienste() {
  RahmenDienste d = StandardDienste(ui_);
  d.ModellFensterZeigen = [this] { ModellFensterZeigen(true); };
  d.TextFensterZeigen = [this](const std::string& titel, const std::string& text) {
    ZeigeTextFenster(frmQTextEdit(titel, text), this);
  };
  d.ProtokollSchliessen = [this] { rechnung_->SeiteSchliessen(); };
  d.StoffFensterSchliessen = [this] { StoffFensterSchliessen(); };
  d.BatchEingabeOeffnen = [this] { editoren_->MessdatenNeu(); };
  ProjektFensterDienste(d, *this, ui_);
  return d;
}

void mdiQUOR::Starten(const std::string& kommandozeile) {
  logik_->Start(kommandozeile);
  Aktualisieren();
}

// The rows of every subsystem, in the order the menus show them within a rank, and the handlers
// that open this frame's windows.
void mdiQUOR::BefehleRegistrieren() {
  BefehlsRegister& r = logik_->Befehle;
  RegistriereStoffBefehle(r);
  RegistriereDatenBefehle(r);
  RegistriereDiagrammBefehle(r);
  RegistriereRechenBefehle(r);
  RechenHandlerSetzen(r, [this](const std::string& name, int index) { rechnung_->Menue(name, index); });
  DiagrammHandlerSetzen(r, [this](const std::string& name, int index) { graf2d_->Menue(name, index); });
  EinfuegeHandlerSetzen(
      r, [this] { return graf2d_->Seite() != nullptr; },
      [this](const std::string& name, int index) { graf2d_->Einfuegen(name, index); });
  connect(graf2d_, &Graph2DSteuerung::seiteGeaendert, this, &mdiQUOR::Aktualisieren);
  Graph3DHandlerSetzen(r, [this](int index) { graf3d_->Menue(index); });
  r.Handler("frmReferenz", [this](int) { rechnung_->ReferenzZeigen(); });
  r.Handler("mnuStoffwahl", [this](int) { StoffWahlZeigen(); });
  r.Handler("mnuModel", [this](int) { ModellFensterZeigen(false); });
  r.Handler("mnuOptions", [this](int) { OptionenZeigen(*this, state_, ui_); });
  r.Handler("mnuWindow_Kaskade", [this](int) { mdi_->cascadeSubWindows(); });
  r.Handler("mnuWindow_Nebeneinander", [this](int) { mdi_->tileSubWindows(); });
  r.Handler("mnuData_Exit", [this](int) { close(); }); // the closing ends the session
  r.Handler("mnuData_BatchInput", [this](int) { logik_->mnuData_BatchInput_Click(); });
  r.Handler("mnuData_BatchEdit", [this](int) { editoren_->MessdatenEditorZeigen(); });
  r.Handler("mnuData_EditXY", [this](int) { editoren_->XYEditorZeigen(); });
  r.Handler("mnuData_EditDatenbank", [this](int) { stoffEditoren_->BankEditorZeigen(); });
  r.Handler("mnuData_Joback_CritData", [this](int) { stoffEditoren_->JobackZeigen(JobackKritisch); });
  r.Handler("mnuData_JOBACK_bildung", [this](int) { stoffEditoren_->JobackZeigen(JobackBildung); });
  r.Handler("mnuData_JOBACK_cpIdG", [this](int) { stoffEditoren_->JobackZeigen(JobackCp); });
  r.Handler("mnuData_Fitting", [this](int) { editoren_->FittingZeigen(); });
  r.Handler("mnuFitting", [this](int) { editoren_->FittingZeigen(); });
  editoren_->BatchDateiWaehlen = [this](const std::string& titel, const std::string& muster) {
    return BatchDateiWaehlen(state_, ui_, this, titel, muster);
  };
  editoren_->TextZeigen = [this](const frmQTextEdit& t) { ZeigeTextFenster(t, this); };
  connect(editoren_, &DatenEditorSteuerung::datenGeaendert, this, &mdiQUOR::Aktualisieren);
  connect(editoren_, &DatenEditorSteuerung::stoffGeaendert, this, &mdiQUOR::Aktualisieren);
}

void mdiQUOR::BaueMenues() {
  BaueMenue(menuBar(), "", -1);
}

void mdiQUOR::BaueMenue(QWidget* behaelter, const std::string& eltern, int elternIndex) {
  const BefehlsRegister& r = logik_->Befehle;
  for (const BefehlsZeile* z : r.Kinder(eltern, elternIndex)) {
    const QString name = QString::fromStdString(z->name);
    const QString text = QString::fromStdString(z->text);
    QAction* aktion = nullptr;
    if (z->Trenner()) {
      aktion = new QAction(this);
      aktion->setSeparator(true);
    } else if (r.IstMenue(z->name, z->index)) {
      auto* menue = new QMenu(text, behaelter);
      menue->setObjectName(name);
      menue->setProperty("index", z->index);
      menues_.insert(Schluessel(name, z->index), menue);
      aktion = menue->menuAction();
      BaueMenue(menue, z->name, z->index);
    } else {
      aktion = new QAction(text, this);
      connect(aktion, &QAction::triggered, this,
              [this, name, index = z->index] { BefehlAusloesen(name, index); });
    }
    aktion->setObjectName(name);
    aktion->setProperty("index", z->index);
    behaelter->addAction(aktion);
    if (!name.isEmpty()) befehle_.insert(Schluessel(name, z->index), aktion);
  }
}

void mdiQUOR::BaueToolbar() {
  auto* leiste = addToolBar(ToolbarName);
  leiste->setObjectName(ToolbarName);
  leiste->setMovable(false);
  leiste->setIconSize(QSize(24, 24));
  // The buttons stand at their indices; the places between them are separators.
  const auto knoepfe = logik_->Befehle.Kinder(ToolbarName);
  const int letzter = knoepfe.empty() ? -1 : knoepfe.back()->index;
  bool vorherTrenner = true;
  for (int i = 0; i <= letzter; ++i) {
    const BefehlsZeile* knopf = logik_->Befehle.Finde(ToolbarName, i);
    QAction* aktion = nullptr;
    if (!knopf) {
      aktion = leiste->addSeparator();
      aktion->setVisible(!vorherTrenner); // a run of unnamed places shows as one separator
      vorherTrenner = true;
    } else {
      aktion = leiste->addAction(ToolbarSymbol(i, style()), QString());
      aktion->setToolTip(QString::fromStdString(knopf->text));
      connect(aktion, &QAction::triggered, this, [this, i] { BefehlAusloesen(ToolbarName, i); });
      vorherTrenner = false;
    }
    aktion->setObjectName(Schluessel(ToolbarName, i));
    aktion->setProperty("index", i);
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
  const int dehnung[] = {2, 2, 3, 3};
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
  const BefehlsRegister& r = logik_->Befehle;
  for (auto it = befehle_.cbegin(); it != befehle_.cend(); ++it) {
    QAction* a = it.value();
    if (a->isSeparator()) continue;
    const std::string name = a->objectName().toStdString();
    const int index = a->property("index").toInt();
    const BefehlsZeile* z = r.Finde(name, index);
    if (!z) continue;
    a->setText(QString::fromStdString(z->textVon ? z->textVon(state_) : z->text));
    // A submenu opens whenever its needs are met, so that its entries show even when disabled.
    a->setEnabled(a->menu() ? r.BedarfErfuellt(state_, name, index) : r.Freigegeben(state_, name, index));
  }
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
  logik_->Ausfuehren(name.toStdString(), index);
  if (!logik_->Beendet()) Aktualisieren();
}

void mdiQUOR::StoffWahlZeigen() {
  if (!stoffWahl_) {
    stoffWahl_ = new StoffWahlFenster(state_, ui_, this);
    connect(stoffWahl_, &StoffWahlFenster::stoffGeladen, this, [this] {
      StoffFensterSchliessen();
      ModellFensterZeigen(true);
    });
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
    connect(modell_, &ModellFenster::geaendert, stoffEditoren_, &StoffEditorSteuerung::ModellGeaendert);
    neuAufbauen = true;
  }
  if (neuAufbauen) modell_->Laden();
  modellFenster_->show();
  modell_->show();
  mdi_->setActiveSubWindow(modellFenster_);
  Aktualisieren();
}

// The windows of the former substance: the calculation's page with its companions, the diagram pages,
// the editor of its measured data, the other child windows (the fitting dialog among them) and the
// text windows close; the model window waits hidden for its rebuild. The X-Y editor belongs to no
// substance and stays.
void mdiQUOR::StoffFensterSchliessen() {
  prozess_->Schliessen();
  rechnung_->SeiteSchliessen();
  graf2d_->SeiteSchliessen();
  graf3d_->SeiteSchliessen();
  editoren_->MessdatenEditorSchliessen();
  for (QMdiSubWindow* fenster : mdi_->subWindowList())
    if (fenster != modellFenster_ && fenster != editoren_->XYFenster()) fenster->close();
  for (TextFenster* text : findChildren<TextFenster*>())
    text->close();
  if (modellFenster_) modellFenster_->hide();
}

void mdiQUOR::closeEvent(QCloseEvent* ereignis) {
  // Unsaved data of an editor are asked about first; "Abbrechen" keeps the program running.
  if (!editoren_->Schliessen()) {
    ereignis->ignore();
    return;
  }
  logik_->Beenden();
  ereignis->accept();
}

} // namespace quor::ui
