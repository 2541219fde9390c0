#include "gui/diagrams/graph3d_fenster.h"

#include "core/rahmen.h"
#include "diagrams/diagramm3d_art.h"
#include "dienste/oberflaeche.h"
#include "gui/basis/hilfe_knopf.h"
#include "gui/diagrams/diagramm3d_flaeche.h"
#include "gui/diagrams/diagramm_export.h"
#include "gui/diagrams/graph3d_dialog.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QVBoxLayout>

namespace quor::ui {

namespace {

constexpr int LeistenBreite = 262;
// Iso-lines per axis at most.
constexpr int MaxIsolinien = 40;

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

// The names of the three kinds of iso-lines of a surface: constant Z, constant y (the rows) and
// constant x (the columns).
struct IsoTexte {
  const char* Z;
  const char* Zeilen;
  const char* Spalten;
};

IsoTexte IsoTexteVon(int16_t art) {
  switch (art) {
  case art3d::Druck:
    return {"Isobaren", "Isothermen", "Isochoren"};
  case art3d::Volumen:
    return {"Isochoren", "Isothermen", "Isobaren"};
  case art3d::Temperatur:
    return {"Isothermen", "Isobaren", "Isochoren"};
  case art3d::H:
    return {"Isenthalpen", "Isothermen", "Isobaren"};
  case art3d::S:
    return {"Isentropen", "Isothermen", "Isobaren"};
  default:
    return {"Linien gleicher Höhe", "Isothermen", "Isobaren"};
  }
}

QCheckBox* Box(const char* name, const char* text, QWidget* eltern) {
  auto* b = new QCheckBox(text, eltern);
  b->setObjectName(name);
  return b;
}

QPushButton* NeuerKnopf(const char* name, const char* text, const char* tipp, QWidget* eltern) {
  auto* k = new QPushButton(text, eltern);
  k->setObjectName(name);
  k->setToolTip(tipp);
  k->setAutoDefault(false);
  return k;
}

QSpinBox* Zaehler(const char* name, QWidget* eltern) {
  auto* z = new QSpinBox(eltern);
  z->setObjectName(name);
  z->setRange(0, MaxIsolinien);
  z->setValue(0);
  z->setMaximumWidth(56);
  return z;
}

} // namespace

Graph3DFenster::Graph3DFenster(ProjectState& s, Oberflaeche& ui, QWidget* eltern)
    : QWidget(eltern), s_(s), ui_(ui), logik_(s, ui), flaeche_(new Diagramm3DFlaeche(this)),
      hinweis_(new QLabel(this)) {
  setObjectName("frmGraph3D");
  setWindowTitle("3D-Diagramm");
  hinweis_->setObjectName("lblHinweis");
  hinweis_->setStyleSheet("QLabel { color: rgb(180, 0, 0); font-weight: bold; }");
  hinweis_->setAlignment(Qt::AlignCenter);
  hinweis_->hide();
  auto* links = new QVBoxLayout;
  links->setSpacing(3);
  links->addWidget(flaeche_, 1);
  links->addWidget(hinweis_);
  auto* lage = new QHBoxLayout(this);
  lage->setContentsMargins(4, 4, 4, 4);
  lage->addLayout(links, 1);
  lage->addWidget(BaueSeitenleiste());
  setMinimumSize(640, 420);
}

// ----- the side panel -----

QWidget* Graph3DFenster::BaueSeitenleiste() {
  auto* leiste = new QWidget;
  auto* spalte = new QVBoxLayout(leiste);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->setSpacing(4);
  spalte->addWidget(BaueDarstellung());
  spalte->addWidget(BaueIsolinien());
  spalte->addWidget(BaueMaus());
  spalte->addWidget(BaueKnoepfe());
  spalte->addStretch(1);
  // On a small work area the panel scrolls rather than squeezing the chart.
  auto* rollen = new QScrollArea(this);
  rollen->setObjectName("Seitenleiste");
  rollen->setWidget(leiste);
  rollen->setWidgetResizable(true);
  rollen->setFrameShape(QFrame::NoFrame);
  rollen->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  rollen->setFixedWidth(LeistenBreite);
  return rollen;
}

QGroupBox* Graph3DFenster::BaueDarstellung() {
  auto* gruppe = new QGroupBox("Darstellung", this);
  auto* spalte = new QVBoxLayout(gruppe);
  spalte->setSpacing(2);
  const Anzeige3D& a = logik_.Anzeige;
  const std::pair<QCheckBox*, bool> boxen[] = {
      {Box("chkSolid", "massiv", gruppe), a.Massiv},
      {Box("chkTransparent", "transparent", gruppe), a.Transparent},
      {Box("chkShaded", "schattiert", gruppe), a.Schattiert},
      {Box("chkMesh", "Netz (Gitterlinien)", gruppe), a.Netz},
      {Box("chkGrid", "Gitterebenen", gruppe), a.Gitterebenen},
      {Box("chkZoned", "Zonen (Farbverlauf nach Höhe)", gruppe), a.Zonen},
      {Box("chkContoured", "Höhenlinien", gruppe), a.Hoehenlinien}};
  for (const auto& [box, an] : boxen) {
    box->setChecked(an);
    spalte->addWidget(box);
    connect(box, &QCheckBox::toggled, this, [this] {
      OptionenLesen();
      Zeige();
    });
  }
  auto* krit = Box("mnuAddCritPoint", "kritischer Punkt  CrP", gruppe);
  krit->setToolTip("den kritischen Punkt auf der Fläche markieren");
  spalte->addWidget(krit);
  connect(krit, &QCheckBox::toggled, this, [this](bool an) {
    logik_.KritischerPunkt(an);
    Zeige();
  });
  return gruppe;
}

QGroupBox* Graph3DFenster::BaueIsolinien() {
  auto* gruppe = new QGroupBox("Isolinien (Anzahl)", this);
  auto* raster = new QGridLayout(gruppe);
  raster->setVerticalSpacing(2);
  const char* namen[][3] = {{"lblIsoZ", "UpDown1_IsoZ", nullptr},
                            {"lblIsoT", "UpDown1_IsoT", "chkIsothermenHalbe"},
                            {"lblIsoV", "UpDown1_IsoV", "chkIsochorenHalbe"}};
  for (int zeile = 0; zeile < 3; ++zeile) {
    auto* text = new QLabel(gruppe);
    text->setObjectName(namen[zeile][0]);
    raster->addWidget(text, zeile, 0);
    raster->addWidget(Zaehler(namen[zeile][1], gruppe), zeile, 1);
    if (namen[zeile][2]) {
      auto* halb = Box(namen[zeile][2], "halb", gruppe);
      halb->setToolTip("nur jede zweite dieser Linien");
      raster->addWidget(halb, zeile, 2);
    }
  }
  auto* zeichnen = NeuerKnopf("mnuAddIsobars", "zeichnen", "Isolinien auf der Fläche zeichnen", gruppe);
  auto* loeschen = NeuerKnopf("mnuDelIsolinien", "entfernen", "alle Isolinien entfernen", gruppe);
  raster->addWidget(zeichnen, 3, 0);
  raster->addWidget(loeschen, 3, 1, 1, 2);
  connect(zeichnen, &QPushButton::clicked, this, &Graph3DFenster::IsolinienZeichnen);
  connect(loeschen, &QPushButton::clicked, this, [this] {
    logik_.Isolinien(0, 0, 0, false, false);
    Zeige();
  });
  return gruppe;
}

QGroupBox* Graph3DFenster::BaueMaus() {
  auto* gruppe = new QGroupBox("linke Maustaste", this);
  auto* spalte = new QVBoxLayout(gruppe);
  spalte->setSpacing(2);
  auto* knoepfe = new QButtonGroup(gruppe);
  const std::tuple<const char*, const char*, MausModus> arten[] = {
      {"OptionMove", "verschieben", MausModus::Verschieben},
      {"OptionSpin", "drehen", MausModus::Drehen},
      {"OptionScale", "skalieren", MausModus::Skalieren}};
  for (const auto& [name, text, modus] : arten) {
    auto* knopf = new QRadioButton(text, gruppe);
    knopf->setObjectName(name);
    knopf->setChecked(modus == flaeche_->Modus());
    knoepfe->addButton(knopf);
    spalte->addWidget(knopf);
    connect(knopf, &QRadioButton::toggled, this, [this, m = modus](bool an) {
      if (an) flaeche_->SetzeMausModus(m);
    });
  }
  auto* tipp = new QLabel(
      "skalieren: nach oben ziehen vergrößert; rechte Maustaste: drehen; Mausrad: skalieren", gruppe);
  tipp->setWordWrap(true);
  spalte->addWidget(tipp);
  return gruppe;
}

QWidget* Graph3DFenster::BaueKnoepfe() {
  auto* feld = new QWidget(this);
  auto* raster = new QGridLayout(feld);
  raster->setContentsMargins(0, 4, 0, 0);
  auto* bereich = NeuerKnopf("cmdCoord3", "Koordinatenbereich ...", "Achsenbereiche eingeben", feld);
  auto* ansicht =
      NeuerKnopf("cmdAnsicht", "Ansicht zurücksetzen", "Drehung, Zoom und Lage wie zu Beginn", feld);
  auto* kopieren =
      NeuerKnopf("cmdKopieren", "Bild kopieren", "das Diagramm als Bild in die Zwischenablage", feld);
  auto* drucken = NeuerKnopf("cmdDrucken", "Drucken ...", "das Diagramm drucken (oder als PDF)", feld);
  auto* bildDatei = NeuerKnopf("cmdBildDatei", "Bildfile ...", "das Diagramm als Bitmap-Grafik (PNG, BMP) speichern",
                               feld);
  auto* speichern = NeuerKnopf("cmdSave3D", "Speichern ...", "diese Diagrammgestaltung speichern (*.oc3)", feld);
  auto* laden = NeuerKnopf("cmdLoad3D", "Laden ...", "eine abgespeicherte Diagrammvorlage laden (*.oc3)", feld);
  raster->addWidget(bereich, 0, 0, 1, 2);
  raster->addWidget(ansicht, 1, 0, 1, 2);
  raster->addWidget(kopieren, 2, 0);
  raster->addWidget(drucken, 2, 1);
  raster->addWidget(bildDatei, 3, 0);
  raster->addWidget(HilfeKnopf(this, ui_, HilfeDiagramme3D, "Hilfe"), 3, 1);
  raster->addWidget(speichern, 4, 0);
  raster->addWidget(laden, 4, 1);
  connect(bildDatei, &QPushButton::clicked, this, [this] { BildSchreiben(); });
  connect(speichern, &QPushButton::clicked, this, [this] { Speichern(); });
  connect(laden, &QPushButton::clicked, this, [this] { Laden(); });
  connect(bereich, &QPushButton::clicked, this, &Graph3DFenster::Koordinatenbereich);
  connect(ansicht, &QPushButton::clicked, this, [this] { Zeige(true); });
  connect(kopieren, &QPushButton::clicked, this, [this] { BildKopieren(); });
  connect(drucken, &QPushButton::clicked, this, [this] { Drucken(); });
  return feld;
}

QCheckBox* Graph3DFenster::Option(const QString& name) const {
  return findChild<QCheckBox*>(name);
}

QSpinBox* Graph3DFenster::Anzahl(const QString& name) const {
  return findChild<QSpinBox*>(name);
}

QRadioButton* Graph3DFenster::Maus(const QString& name) const {
  return findChild<QRadioButton*>(name);
}

QPushButton* Graph3DFenster::Knopf(const QString& name) const {
  return findChild<QPushButton*>(name);
}

// ----- the surface and its dress -----

void Graph3DFenster::OptionenLesen() {
  Anzeige3D& a = logik_.Anzeige;
  a.Massiv = Option("chkSolid")->isChecked();
  a.Transparent = Option("chkTransparent")->isChecked();
  a.Schattiert = Option("chkShaded")->isChecked();
  a.Netz = Option("chkMesh")->isChecked();
  a.Gitterebenen = Option("chkGrid")->isChecked();
  a.Zonen = Option("chkZoned")->isChecked();
  a.Hoehenlinien = Option("chkContoured")->isChecked();
}

void Graph3DFenster::IsoTexteZeigen() {
  const IsoTexte t = IsoTexteVon(logik_.Art());
  findChild<QLabel*>("lblIsoZ")->setText(t.Z);
  findChild<QLabel*>("lblIsoT")->setText(t.Zeilen);
  findChild<QLabel*>("lblIsoV")->setText(t.Spalten);
}

void Graph3DFenster::IsolinienZeichnen() {
  QApplication::setOverrideCursor(Qt::WaitCursor);
  logik_.Isolinien(Anzahl("UpDown1_IsoZ")->value(), Anzahl("UpDown1_IsoT")->value(),
                   Anzahl("UpDown1_IsoV")->value(), Option("chkIsothermenHalbe")->isChecked(),
                   Option("chkIsochorenHalbe")->isChecked());
  QApplication::restoreOverrideCursor();
  Zeige();
}

bool Graph3DFenster::Neu(int16_t art) {
  OptionenLesen();
  QApplication::setOverrideCursor(Qt::WaitCursor);
  const bool ok = logik_.Neu(art);
  QApplication::restoreOverrideCursor();
  logik_.KritischerPunkt(Option("mnuAddCritPoint")->isChecked());
  IsoTexteZeigen();
  Zeige(true);
  return ok;
}

void Graph3DFenster::Zeige(bool neueAnsicht) {
  Flaeche3D bild = logik_.Bild();
  if (neueAnsicht)
    flaeche_->ZielZuruecksetzen();
  else
    bild.Ansicht = flaeche_->Ansicht();
  flaeche_->Zeige(bild);
  setWindowTitle(bild.Titel.empty() ? "3D-Diagramm" : "3D-Diagramm:  " + Q(bild.Titel));
  const std::string hinweis = logik_.Hinweis();
  hinweis_->setText(Q(hinweis));
  hinweis_->setVisible(!hinweis.empty());
}

void Graph3DFenster::Koordinatenbereich() {
  if (logik_.Art() == 0) return;
  Bereich3DDialog d(logik_, TexteVon(logik_.Art(), s_.Einheiten), this);
  if (d.exec() == QDialog::Accepted) Zeige();
}

void Graph3DFenster::SetzeMausModus(MausModus m) {
  const char* namen[] = {"OptionMove", "OptionSpin", "OptionScale"};
  Maus(namen[static_cast<int>(m)])->setChecked(true);
}

// ----- picture, clipboard and printer -----

bool Graph3DFenster::BildKopieren() {
  return InZwischenablage(Zwischenablage3D(flaeche_->Bild(flaeche_->size())));
}

bool Graph3DFenster::Drucken(const QString& pdfDatei) {
  if (!flaeche_->KannZeichnen()) return false;
  const auto drucker = DiagrammDrucker(this, windowTitle().remove(':'), pdfDatei);
  return drucker && DruckeAuf(*drucker);
}

// The title above, the picture as large as the page allows in the chart's proportions, the warning
// below it.
bool Graph3DFenster::DruckeAuf(QPrinter& drucker) {
  // Drawn at twice the size on the screen: sharp enough on paper, fast enough in software.
  const QImage bild = flaeche_->Bild(flaeche_->size() * 2);
  return DruckeBildSeite(drucker, windowTitle().section(":  ", 1), hinweis_->text(), bild.size(),
                         [&bild](QPainter& maler, const QRectF& ziel) { maler.drawImage(ziel, bild); });
}

} // namespace quor::ui
