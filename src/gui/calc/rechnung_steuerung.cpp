#include "gui/calc/rechnung_steuerung.h"

#include "dienste/oberflaeche.h"
#include "gui/calc/calc_in_fenster.h"
#include "gui/calc/ceos_diagnose_fenster.h"
#include "gui/calc/ergebnis_fenster.h"
#include "gui/calc/parinput_fenster.h"
#include "gui/calc/referenz_fenster.h"
#include "gui/calc/superkrit_bild.h"

#include <QGroupBox>
#include <QMdiArea>
#include <QMdiSubWindow>

#include <algorithm>

namespace quor::ui {

namespace {
// The page's first height: room for a text block of about 35 lines on a screen of 1024 rows.
constexpr int StandardHoehe = 740;

// A window's place inside the work area: no larger than the area and not reaching out of it.
QRect ImBereich(QRect r, const QSize& bereich) {
  r.setSize(r.size().boundedTo(bereich));
  r.moveLeft(std::clamp(r.left(), 0, bereich.width() - r.width()));
  r.moveTop(std::clamp(r.top(), 0, bereich.height() - r.height()));
  return r;
}
} // namespace

RechnungSteuerung::RechnungSteuerung(ProjectState& s, Oberflaeche& ui, QMdiArea* flaeche, QWidget* rahmen)
    : QObject(rahmen), s_(s), ui_(ui), flaeche_(flaeche), rahmen_(rahmen), ablauf_(s, ui, Ansicht()) {}

RechnungSteuerung::~RechnungSteuerung() = default;

RechnungsAblauf::Ansicht RechnungSteuerung::Ansicht() {
  RechnungsAblauf::Ansicht a;
  a.CalcInZeigen = [this] { CalcInZeigen(); };
  a.SeiteAnlegen = [this] { return SeiteAnlegen(); };
  a.SeiteGeladen = [this](bool offen) { SeiteGeladen(offen); };
  a.SeiteGerechnet = [this] {
    if (seite_) seite_->Zeige();
  };
  a.SeiteSchliessen = [this] {
    disconnect(seite_, &ErgebnisFenster::entladen, this, &RechnungSteuerung::SeiteEntladen);
    seitenFenster_->close();
    seitenFenster_ = nullptr;
    seite_ = nullptr;
  };
  a.ParinputZeigen = [this] { ParinputZeigen(); };
  a.ParinputSchliessen = [this] {
    if (parinput_) parinput_->close();
    parinput_ = nullptr;
  };
  a.ErgebnisNachVorne = [this] {
    if (seitenFenster_) flaeche_->setActiveSubWindow(seitenFenster_);
  };
  a.ProzessZeigen = [this] {
    if (ProzessZeigen) ProzessZeigen();
  };
  return a;
}

bool RechnungSteuerung::PolytropeZeigen(const std::string& bericht) {
  SeiteSchliessen();
  return ablauf_.ProzessErgebnisZeigen(bericht);
}

void RechnungSteuerung::Menue(const std::string& name, int index) {
  // A new calculation replaces the page on show with everything that belongs to it.
  SeiteSchliessen();
  ablauf_.Menue(name, index);
}

void RechnungSteuerung::ReferenzZeigen() {
  auto* fenster = new ReferenzFenster(s_, ui_, rahmen_);
  fenster->setAttribute(Qt::WA_DeleteOnClose);
  fenster->open();
}

void RechnungSteuerung::SeiteSchliessen() {
  if (seitenFenster_) seitenFenster_->close();
  SeiteEntladen();
}

// The page has closed (by its button, its window or a new calculation): its companions go with it.
void RechnungSteuerung::SeiteEntladen() {
  seite_ = nullptr;
  seitenFenster_ = nullptr;
  ablauf_.SeiteVergessen();
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

frmQCalcOut* RechnungSteuerung::SeiteAnlegen() {
  if (seitenFenster_) seitenFenster_->close();
  seite_ = new ErgebnisFenster(s_, ui_, s_.Rechnung.StapelModus);
  if (IsoRechnerZeigen) seite_->IsoRechnerOeffnen = [this] { IsoRechnerZeigen(seite_->Logik().Kontext); };
  behaelter_.reset();
  seite_->Logik().Kontext.BehaelterAnzeige = [this](const BehaelterZustand& z) { behaelter_ = z; };
  return &seite_->Logik();
}

void RechnungSteuerung::SeiteGeladen(bool offen) {
  if (!offen) {
    delete seite_;
    seite_ = nullptr;
    behaelter_.reset();
    return;
  }
  seite_->Zeige();
  seitenFenster_ = flaeche_->addSubWindow(seite_);
  seitenFenster_->setObjectName("frmQCalcOutFenster");
  seitenFenster_->setWindowIcon(rahmen_->windowIcon());
  const FensterLage& lage = s_.Rechnung.ErgebnisSeite;
  const QRect gewuenscht = lage.gesetzt ? QRect(lage.x, lage.y, lage.breite, lage.hoehe)
                                        : QRect(QPoint(0, 0), seitenFenster_->sizeHint().expandedTo(QSize(0, StandardHoehe)));
  seitenFenster_->setGeometry(ImBereich(gewuenscht, flaeche_->viewport()->size()));
  connect(seite_, &ErgebnisFenster::entladen, this, &RechnungSteuerung::SeiteEntladen);
  connect(seite_, &ErgebnisFenster::diagnoseGewuenscht, this, &RechnungSteuerung::DiagnoseZeigen);
  connect(seite_, &ErgebnisFenster::superKritUmschalten, this, &RechnungSteuerung::SuperKritUmschalten);
  seitenFenster_->show();
  flaeche_->setActiveSubWindow(seitenFenster_);
}

// A calculation of the value dialog; the vessel's state goes to its picture once the page shows
// the calculation it came from (not the page's own calculation when it opens without values).
std::string RechnungSteuerung::Berechnen() {
  behaelter_.reset();
  const std::string ausgang = ablauf_.Berechnen();
  if (behaelter_ && BehaelterZeigen && seite_ && ausgang != "EXIT") BehaelterZeigen(*behaelter_);
  behaelter_.reset();
  return ausgang;
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
  // Over the page's output frame, which direct input doesn't use, so that the results and the
  // further blocks stay in sight; without a page at the frame's right upper corner.
  const QGroupBox* ausgabe = seite_ ? seite_->Rahmen("fraResultOutput") : nullptr;
  const QPoint ecke = ausgabe ? ausgabe->mapToGlobal(QPoint(ausgabe->width() - parinput_->width(), 0))
                              : rahmen_->mapToGlobal(QPoint(rahmen_->width() - parinput_->width() - 40, 120));
  parinput_->move(ecke);
  parinput_->show();
  parinput_->raise();
  parinput_->activateWindow();
}

void RechnungSteuerung::CalcInZeigen() {
  auto* fenster = new CalcInFenster(s_, ui_, ablauf_.Fenster(), rahmen_);
  fenster->setAttribute(Qt::WA_DeleteOnClose);
  calcIn_ = fenster;
  fenster->open();
}

void RechnungSteuerung::DiagnoseZeigen() {
  if (!seite_) return;
  if (diagnose_) diagnose_->close();
  diagnose_ = new CEOSDiagnoseFenster(s_, ui_, seite_->Logik().Kontext.Letzter, rahmen_);
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
