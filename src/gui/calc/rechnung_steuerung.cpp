#include "gui/calc/rechnung_steuerung.h"

#include "core/rahmen_freigaben.h"
#include "dienste/oberflaeche.h"
#include "gui/calc/calc_in_fenster.h"
#include "gui/calc/ceos_diagnose_fenster.h"
#include "gui/calc/ergebnis_fenster.h"
#include "gui/calc/parinput_fenster.h"
#include "gui/calc/referenz_fenster.h"
#include "gui/calc/superkrit_bild.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace quor::ui {

namespace {
// The page's first height: room for a text block of about 35 lines on a screen of 1024 rows.
constexpr int StandardHoehe = 740;
} // namespace

void RechnungBefehleGebaut(BefehlsSatz& befehle) {
  // Every kind with its page; the polytropic process waits for its process dialog.
  for (int index : {0, 1, 2, 3, 5, 6, 8, 9, 11, 15, 16, 18})
    befehle.SetzeGebaut("mnuCalc", index);
  for (int index = 1; index <= 6; ++index)
    befehle.SetzeGebaut("mnuCalc_sub_database", index);
  for (int index = 0; index <= 3; ++index)
    befehle.SetzeGebaut("mnuCalc_sub_sub_database", index);
  befehle.SetzeGebaut("frmReferenz");
}

RechnungSteuerung::RechnungSteuerung(ProjectState& s, Oberflaeche& ui, QMdiArea* flaeche, QWidget* rahmen)
    : QObject(rahmen), s_(s), ui_(ui), flaeche_(flaeche), rahmen_(rahmen) {}

RechnungSteuerung::~RechnungSteuerung() = default;

RechnungsFenster RechnungSteuerung::Fenster() {
  RechnungsFenster f;
  f.CalcInZeigen = [this] { CalcInZeigen(); };
  f.ErgebnisZeigen = [this] { return ErgebnisZeigen(); };
  f.ParinputZeigen = [this] { ParinputZeigen(); };
  f.ParinputSchliessen = [this] {
    if (parinput_) parinput_->close();
    parinput_ = nullptr;
  };
  f.ErgebnisNachVorne = [this] {
    if (seitenFenster_) flaeche_->setActiveSubWindow(seitenFenster_);
  };
  return f;
}

void RechnungSteuerung::Menue(const std::string& name, int index) {
  // A new calculation replaces the page on show with everything that belongs to it.
  SeiteSchliessen();
  mnuCalc_Click(s_, ui_, Fenster(), name, index);
}

void RechnungSteuerung::ReferenzZeigen() {
  auto* fenster = new ReferenzFenster(s_, ui_, rahmen_);
  fenster->setAttribute(Qt::WA_DeleteOnClose);
  fenster->open();
}

void RechnungSteuerung::SeiteSchliessen() {
  if (seitenFenster_) seitenFenster_->close();
  seitenFenster_ = nullptr;
  seite_ = nullptr;
  BegleiterSchliessen();
}

// The page has closed (by its button, its window or a new calculation): its companions go with it.
void RechnungSteuerung::SeiteEntladen() {
  seite_ = nullptr;
  seitenFenster_ = nullptr;
  BegleiterSchliessen();
}

void RechnungSteuerung::BegleiterSchliessen() {
  for (QWidget* w : {static_cast<QWidget*>(parinput_), static_cast<QWidget*>(diagnose_),
                     static_cast<QWidget*>(superKrit_)})
    if (w) w->close();
  parinput_ = nullptr;
  diagnose_ = nullptr;
  superKrit_ = nullptr;
}

// What the input dialogs decided goes to the page's calculation.
void RechnungSteuerung::VorgabenUebergeben() {
  RechenKontext& k = seite_->Logik().Kontext;
  const BehaelterDaten& b = s_.Rechnung.Behaelter;
  k.TpIstGleichgewicht = s_.Rechnung.TpGleichgewicht;
  k.Behaelter = BehaelterVorgabe{b.m, b.V, b.BehaelterT};
}

bool RechnungSteuerung::ErgebnisZeigen() {
  if (seitenFenster_) seitenFenster_->close();
  auto* seite = new ErgebnisFenster(s_, ui_, s_.Rechnung.StapelModus);
  seite_ = seite;
  VorgabenUebergeben();
  if (!seite->Laden()) {
    delete seite;
    return false;
  }
  seitenFenster_ = flaeche_->addSubWindow(seite);
  seitenFenster_->setObjectName("frmQCalcOutFenster");
  seitenFenster_->setWindowIcon(rahmen_->windowIcon());
  const FensterLage& lage = s_.Rechnung.ErgebnisSeite;
  if (lage.gesetzt)
    seitenFenster_->setGeometry(lage.x, lage.y, lage.breite, lage.hoehe);
  else
    seitenFenster_->resize(seitenFenster_->sizeHint().expandedTo(QSize(0, StandardHoehe)));
  connect(seite, &ErgebnisFenster::entladen, this, &RechnungSteuerung::SeiteEntladen);
  connect(seite, &ErgebnisFenster::diagnoseGewuenscht, this, &RechnungSteuerung::DiagnoseZeigen);
  connect(seite, &ErgebnisFenster::superKritUmschalten, this, &RechnungSteuerung::SuperKritUmschalten);
  seitenFenster_->show();
  flaeche_->setActiveSubWindow(seitenFenster_);
  return true;
}

void RechnungSteuerung::ParinputZeigen() {
  if (s_.Rechnung.ParinputModus == ParinputBezugspunkt) {
    // The reference point is asked for modally over the concept dialog.
    ParinputFenster eingabe(s_, ui_, {}, calcIn_ ? static_cast<QWidget*>(calcIn_) : rahmen_);
    eingabe.Laden();
    eingabe.exec();
    return;
  }
  if (!parinput_) {
    parinput_ = new ParinputFenster(
        s_, ui_, [this] { return Berechnen(); }, rahmen_);
    parinput_->setAttribute(Qt::WA_DeleteOnClose);
  }
  parinput_->Laden();
  // Over the page's right upper corner, so that the results stay in sight.
  const QPoint ecke = rahmen_->mapToGlobal(QPoint(rahmen_->width() - parinput_->width() - 40, 120));
  parinput_->move(ecke);
  parinput_->show();
  parinput_->raise();
  parinput_->activateWindow();
}

std::string RechnungSteuerung::Berechnen() {
  const bool behaelter = s_.Rechnung.ParinputModus == ParinputBehaelter;
  if (!seite_ || seite_->Logik().Entladen) {
    // The PARTIAL vessel opens its page with the first values.
    if (!behaelter) return {};
    return ErgebnisZeigen() ? seite_->Logik().Ausgang : "EXIT";
  }
  VorgabenUebergeben();
  seite_->Rechnen();
  const std::string ausgang = seite_->Logik().Ausgang;
  if (ausgang == "EXIT") {
    // The page closes at once; the value dialog stays for a better input.
    disconnect(seite_, &ErgebnisFenster::entladen, this, &RechnungSteuerung::SeiteEntladen);
    seitenFenster_->close();
    seitenFenster_ = nullptr;
    seite_ = nullptr;
  } else if (behaelter) {
    flaeche_->setActiveSubWindow(seitenFenster_);
  }
  return ausgang;
}

void RechnungSteuerung::CalcInZeigen() {
  auto* fenster = new CalcInFenster(s_, ui_, Fenster(), rahmen_);
  fenster->setAttribute(Qt::WA_DeleteOnClose);
  calcIn_ = fenster;
  fenster->open();
}

void RechnungSteuerung::DiagnoseZeigen() {
  if (!seite_) return;
  if (diagnose_) diagnose_->close();
  diagnose_ = new CEOSDiagnoseFenster(s_, seite_->Logik().Kontext.Letzter, rahmen_);
  diagnose_->setAttribute(Qt::WA_DeleteOnClose);
  diagnose_->show();
}

void RechnungSteuerung::SuperKritUmschalten() {
  if (superKrit_ && superKrit_->isVisible()) {
    superKrit_->close();
    superKrit_ = nullptr;
    return;
  }
  superKrit_ = new SuperKritFenster(rahmen_);
  superKrit_->setAttribute(Qt::WA_DeleteOnClose);
  superKrit_->show();
}

} // namespace quor::ui
