#include "gui/diagrams/graph2d_fenster.h"

#include "core/rahmen.h"
#include "diagrams/diagramm_befehle.h"
#include "diagrams/diagramm_codes.h"
#include "dienste/oberflaeche.h"
#include "gui/basis/hilfe_knopf.h"
#include "gui/diagrams/diagramm2d_flaeche.h"
#include "gui/diagrams/graph2d_dialoge.h"

#include <QColorDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QRubberBand>
#include <QVBoxLayout>
#include <qcustomplot.h>

#include <cmath>

namespace quor::ui {

namespace {

// Half the side of the square around the mouse in which a curve point counts as hit.
constexpr int TrefferPixel = 6;

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

QPushButton* NeuerKnopf(const char* name, const char* text, const char* tipp, QWidget* eltern) {
  auto* k = new QPushButton(text, eltern);
  k->setObjectName(name);
  k->setToolTip(tipp);
  k->setAutoDefault(false);
  return k;
}

// A family whose curves take a parameter from the page's field.
bool MitParameter(int16_t klasse) {
  return klasse == klasse::Isotherme || klasse == klasse::Isobare || klasse == klasse::Isochore;
}

} // namespace

Graph2DFenster::Graph2DFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern)
    : QWidget(eltern), s_(s), ui_(ui), logik_(s, ui), marken_(s, ui, logik_),
      flaeche_(new Diagramm2DFlaeche(this)), status_(new QLabel(this)),
      band_(new QRubberBand(QRubberBand::Rectangle, flaeche_->Plot())) {
  setObjectName("frmQGraph2D");
  setWindowTitle("2D-Diagramm");
  auto* lage = new QVBoxLayout(this);
  lage->setContentsMargins(4, 4, 4, 2);
  lage->setSpacing(3);
  BaueKopfzeile();
  lage->addWidget(flaeche_, 1);
  status_->setObjectName("lblStatus");
  status_->setText("Zoom: Rechteck mit der linken Maustaste aufziehen;  rechte Maustaste: auf einer Kurve "
                   "deren Gestaltung, sonst das Menü des Diagramms");
  status_->setFrameShape(QFrame::StyledPanel);
  status_->setFrameShadow(QFrame::Sunken);
  status_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  status_->setMinimumWidth(100);
  status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  lage->addWidget(status_);
  setMinimumSize(560, 360);

  QCustomPlot* plot = flaeche_->Plot();
  plot->setMouseTracking(true);
  connect(plot, &QCustomPlot::mousePress, this, &Graph2DFenster::MausGedrueckt);
  connect(plot, &QCustomPlot::mouseMove, this, &Graph2DFenster::MausZiehen);
  connect(plot, &QCustomPlot::mouseRelease, this, &Graph2DFenster::MausLos);
  Zeige();
}

Graph2DFenster::~Graph2DFenster() = default;

void Graph2DFenster::BaueKopfzeile() {
  auto* zeile = new QHBoxLayout;
  zeile->setSpacing(6);
  parameterLabel_ = new QLabel(this);
  parameterLabel_->setObjectName("lblParameter");
  parameter_ = new QLineEdit(this);
  parameter_->setObjectName("txtParameter");
  parameter_->setMaximumWidth(120);
  parameter_->setToolTip("Kurvenparameter; Eingabetaste zeichnet die Kurve");
  auto* zeichnen = NeuerKnopf("cmdDraw", "Zeichne Kurve", "Kurve mit dem eingegebenen Parameter zeichnen", this);
  auto* farbe = NeuerKnopf("cmdFarbVorwahl", "Farbe", "Farbe der nächsten Kurve", this);
  auto* bereich = NeuerKnopf("cmdKoordinaten", "Koordinatenbereich", "Achsenbereiche eingeben", this);
  auto* zurueck =
      NeuerKnopf("cmdZoomReset", "Zoom zurück", "zurück zum eingestellten Koordinatenbereich", this);
  auto* tauschen = NeuerKnopf("cmdChangeXY", "Achsen tauschen", "X- und Y-Achse vertauschen", this);
  auto* legende = NeuerKnopf("cmdLegende", "Legende", "Legende zeigen oder ausblenden", this);
  legende->setCheckable(true);
  auto* datei = NeuerKnopf("cmdDatei", "Datei", "Diagramm speichern oder laden, Punkte, Bild und Drucken", this);
  auto* dateiMenue = new QMenu(datei);
  dateiMenue->setObjectName("mnuDatei");
  datei->setMenu(dateiMenue);
  // Built when it opens: its lists follow the curves and point sets on show.
  connect(dateiMenue, &QMenu::aboutToShow, this, [this, dateiMenue] {
    dateiMenue->clear();
    for (QMenu* alt : dateiMenue->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly)) alt->deleteLater();
    DateiMenue(dateiMenue);
  });
  for (QWidget* w : std::initializer_list<QWidget*>{parameterLabel_, parameter_, zeichnen})
    zeile->addWidget(w);
  zeile->addSpacing(12);
  for (QWidget* w : std::initializer_list<QWidget*>{farbe, bereich, zurueck, tauschen, legende, datei})
    zeile->addWidget(w);
  zeile->addStretch(1);
  zeile->addWidget(HilfeKnopf(this, ui_, HilfeDiagramme2D));
  static_cast<QVBoxLayout*>(layout())->addLayout(zeile);

  connect(parameter_, &QLineEdit::returnPressed, this, [this] { Zeichnen(); });
  connect(zeichnen, &QPushButton::clicked, this, [this] { Zeichnen(); });
  connect(farbe, &QPushButton::clicked, this, [this] {
    const RGBFarbe f = logik_.FarbVorwahl();
    const QColor c = QColorDialog::getColor(QColor(f.R, f.G, f.B), this, "Farbe der nächsten Kurve");
    if (c.isValid())
      FarbeVorwaehlen(
          {static_cast<uint8_t>(c.red()), static_cast<uint8_t>(c.green()), static_cast<uint8_t>(c.blue())});
  });
  connect(bereich, &QPushButton::clicked, this, &Graph2DFenster::Koordinatenbereich);
  connect(zurueck, &QPushButton::clicked, this, [this] {
    logik_.cmdZoomReset();
    Zeige();
  });
  connect(tauschen, &QPushButton::clicked, this, [this] {
    if (logik_.cmdChangeXY()) Zeige();
  });
  connect(legende, &QPushButton::clicked, this, [this](bool an) {
    an ? logik_.mnuAddLegend() : logik_.mnuDelLegend();
    Zeige();
  });
}

QPushButton* Graph2DFenster::Knopf(const QString& name) const {
  return findChild<QPushButton*>(name);
}

// ----- the request and the curve -----

void Graph2DFenster::Anfordern(const DiagrammAuftrag& a, bool neu) {
  naechste_ = a;
  if (neu) logik_.Neu(a);
  Zeige();
}

void Graph2DFenster::ParameterZeigen() {
  // The family of the next curve may differ from the diagram's on the same axes (an isochor among
  // isobars): its text and input come from a page of that request.
  frmQGraph2D fuer(s_, ui_);
  fuer.Neu(naechste_);
  const bool mit = MitParameter(naechste_.Klasse);
  parameterLabel_->setText(Q(fuer.ParameterText()));
  parameterLabel_->setVisible(mit);
  parameter_->setVisible(mit);
}

ZeichenErgebnis Graph2DFenster::Zeichnen() {
  if (MitParameter(naechste_.Klasse)) {
    frmQGraph2D fuer(s_, ui_);
    fuer.Neu(naechste_);
    if (!fuer.ParameterEingabe(parameter_->text().toStdString())) {
      ParameterFokus();
      return ZeichenErgebnis::Fehler;
    }
  }
  const EinheitenGruppe& e = s_.Einheiten;
  QApplication::setOverrideCursor(Qt::WaitCursor);
  const ZeichenErgebnis erg = logik_.cmdDraw(naechste_, e.TVorgabe, e.pVorgabe, e.vVorgabe);
  QApplication::restoreOverrideCursor();
  Zeige();
  if (parameter_->isVisible()) ParameterFokus();
  return erg;
}

void Graph2DFenster::ParameterFokus() {
  if (!MitParameter(naechste_.Klasse)) return;
  parameter_->setFocus(Qt::OtherFocusReason);
  parameter_->selectAll();
}

void Graph2DFenster::Einfuegen(const std::string& name, int index) {
  if (name == ProzessEintrag) {
    emit prozessLinieGewuenscht(index);
    return;
  }
  if (MarkierungAusfuehren(marken_, name, index)) {
    Zeige();
  }
}

void Graph2DFenster::Zeige() {
  flaeche_->Zeige(logik_.Bild());
  const std::string& titel = logik_.Auftrag().Titel;
  setWindowTitle(titel.empty() ? "2D-Diagramm" : "2D-Diagramm:  " + Q(titel));
  ParameterZeigen();
  // A page made for points of another dialog has no catalogue curve to draw.
  Knopf("cmdDraw")->setEnabled(naechste_.Code != 0);
  Knopf("cmdLegende")->setChecked(logik_.LegendeSichtbar());
  Knopf("cmdChangeXY")->setText(logik_.Gekippt() ? "Achsen zurücktauschen" : "Achsen tauschen");
  const RGBFarbe f = logik_.FarbVorwahl();
  FarbeZeigen(Knopf("cmdFarbVorwahl"), f);
}

void Graph2DFenster::FarbeVorwaehlen(RGBFarbe f) {
  logik_.cmdFarbVorwahl(f);
  FarbeZeigen(Knopf("cmdFarbVorwahl"), f);
}

// ----- range and look -----

void Graph2DFenster::Koordinatenbereich() {
  const DiagrammAuftrag& a = logik_.Auftrag();
  const bool gekippt = logik_.Gekippt();
  const Graph2DZustand z = logik_.Zustand();
  BereichDialog d(logik_.Bereich(), Q(gekippt ? a.YText : a.XText), Q(gekippt ? a.XText : a.YText),
                  {AchsenStil2D{z.Format[0], z.Gitter[0]}, AchsenStil2D{z.Format[1], z.Gitter[1]}}, this);
  if (d.exec() != QDialog::Accepted) return;
  const auto w = d.Werte();
  if (!w) return;
  const auto stil = d.Stil();
  for (int achse = 0; achse < 2; ++achse)
    logik_.AchsenStil(achse, stil[static_cast<std::size_t>(achse)].Format, stil[static_cast<std::size_t>(achse)].Gitter);
  logik_.mnuCoord((*w)[0], (*w)[1], (*w)[2], (*w)[3]);
  Zeige();
}

void Graph2DFenster::KurveGestalten(int slot) {
  if (slot < 0 || slot >= MaxKurven || !logik_.KurveBelegt()[static_cast<std::size_t>(slot)]) return;
  const Graph2DKurve& k = logik_.Kurve(slot);
  StilDialog d(Q(k.Legende), {k.Farbe, k.Linie, k.Breite, k.Symbol}, this);
  connect(d.Zwischenablage(), &QPushButton::clicked, this,
          [this, slot] { ui_.ZwischenablageSetzen(logik_.KurveAlsText(slot)); });
  if (d.exec() != QDialog::Accepted) return;
  const KurvenStil stil = d.Stil();
  logik_.Gestalten(slot, stil.Farbe, stil.Linie, stil.Breite, stil.Symbol);
  Zeige();
}

// ----- the mouse -----

std::array<double, 2> Graph2DFenster::Toleranz(const QPoint& pixel) const {
  const Punkt2D a = flaeche_->DatenBei(pixel - QPoint(TrefferPixel, TrefferPixel));
  const Punkt2D b = flaeche_->DatenBei(pixel + QPoint(TrefferPixel, TrefferPixel));
  return {std::abs(b.X - a.X) / 2, std::abs(b.Y - a.Y) / 2};
}

void Graph2DFenster::MausBewegt(const QPoint& pixel) {
  const Punkt2D d = flaeche_->DatenBei(pixel);
  const auto t = Toleranz(pixel);
  const MausInfo info = logik_.Maus(d.X, d.Y, t[0], t[1]);
  status_->setText(Q(info.Zustand.empty() ? info.Koordinaten : info.Koordinaten + "      " + info.Zustand));
}

bool Graph2DFenster::ZoomRechteck(const QPoint& ecke1, const QPoint& ecke2) {
  const auto z = quor::ZoomRechteck(flaeche_->Flaeche(), {double(ecke1.x()), double(ecke1.y())},
                                    {double(ecke2.x()), double(ecke2.y())});
  if (!z || !logik_.cmdZoom(z->X.Min, z->X.Max, z->Y.Min, z->Y.Max)) return false;
  Zeige();
  return true;
}

int Graph2DFenster::RechtsKlick(const QPoint& pixel) {
  const Punkt2D d = flaeche_->DatenBei(pixel);
  const auto t = Toleranz(pixel);
  const int kurve = logik_.KurveBei(d.X, d.Y, t[0], t[1]);
  return kurve;
}

void Graph2DFenster::MausGedrueckt(QMouseEvent* e) {
  if (e->button() == Qt::LeftButton) {
    bandStart_ = e->pos();
    ziehen_ = true;
    band_->setGeometry(QRect(bandStart_, QSize()));
    band_->show();
  } else if (e->button() == Qt::RightButton) {
    const int kurve = RechtsKlick(e->pos());
    if (kurve >= 0) {
      KurveGestalten(kurve);
      return;
    }
    const std::unique_ptr<QMenu> menue = HauptMenue(-1);
    menue->exec(flaeche_->Plot()->mapToGlobal(e->pos()));
  }
}

void Graph2DFenster::MausZiehen(QMouseEvent* e) {
  if (ziehen_) band_->setGeometry(QRect(bandStart_, e->pos()).normalized());
  MausBewegt(e->pos());
}

void Graph2DFenster::MausLos(QMouseEvent* e) {
  if (!ziehen_ || e->button() != Qt::LeftButton) return;
  ziehen_ = false;
  band_->hide();
  // A click without a drag picks the state under the mouse; a dragged rectangle zooms.
  if ((e->pos() - bandStart_).manhattanLength() < 4) {
    PunktWaehlen(e->pos());
    return;
  }
  ZoomRechteck(bandStart_, e->pos());
}

bool Graph2DFenster::PunktWaehlen(const QPoint& pixel) {
  const Punkt2D d = flaeche_->DatenBei(pixel);
  const auto t = Toleranz(pixel);
  const auto tp = logik_.TpBei(d.X, d.Y, t[0], t[1]);
  if (!tp) return false;
  emit punktGewaehlt(tp->first, tp->second);
  return true;
}

} // namespace quor::ui
