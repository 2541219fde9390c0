// The 2D page's file menu: the diagram as .oc2, point sets from and to .XY files, the picture and
// the colour of the drawing sheet.
#include "diagrams/diagramm_datei_befehle.h"
#include "dienste/oberflaeche.h"
#include "gui/diagrams/diagramm_export.h"
#include "gui/diagrams/graph2d_fenster.h"
#include "gui/diagrams/menue_hilfen.h"

#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPrinter>

namespace quor::ui {

void Graph2DFenster::DateiMenue(QMenu* m) {
  connect(MenueEintrag(m, "Diagramm speichern (*.oc2) ...", "mnuSaveOC2"), &QAction::triggered, this,
          [this] { mnuSaveOC2(s_, ui_, logik_); });
  connect(MenueEintrag(m, "Diagramm laden (*.oc2) ...", "mnuLoadOC2"), &QAction::triggered, this,
          &Graph2DFenster::DiagrammLaden);
  m->addSeparator();
  QAction* punkte = MenueEintrag(m, "(Kurven)punkte vom File laden ...", "mnuAddPunkte");
  connect(punkte, &QAction::triggered, this, [this] {
    if (mnuAddPunkte(s_, ui_, logik_)) Zeige();
  });
  QMenu* speichern = m->addMenu("(Kurven)punkte speichern unter ...");
  speichern->setObjectName("mnuSavePunkte");
  PunkteSpeichernMenue(speichern);
  m->addSeparator();
  QMenu* bild = m->addMenu("Bild");
  bild->setObjectName("mnuBild");
  BildMenue(bild);
  QAction* schwarz = MenueEintrag(m, "schwarzes Zeichenblatt", "mnuSchwarzesBlatt");
  schwarz->setCheckable(true);
  schwarz->setChecked(logik_.Seitenfarbe() == RGBFarbe{0, 0, 0});
  connect(schwarz, &QAction::triggered, this, [this](bool an) {
    logik_.SeitenfarbeSetzen(an ? RGBFarbe{0, 0, 0} : RGBFarbe{255, 255, 255});
    Zeige();
  });
}

bool Graph2DFenster::DiagrammLaden() {
  if (!mnuLoadOC2(s_, ui_, logik_)) return false;
  naechste_ = logik_.Auftrag();
  Zeige();
  return true;
}

// Every point set and every curve on show, each into its own .XY file.
void Graph2DFenster::PunkteSpeichernMenue(QMenu* m) {
  const auto& saetze = logik_.PunktSaetze();
  for (int i = 0; i < static_cast<int>(saetze.size()); ++i) {
    const QString text =
        QString("Punktsatz %1:  ").arg(i + 1) + MenueKurz(saetze[static_cast<std::size_t>(i)].Legende);
    connect(MenueEintrag(m, text, "mnuSavePunktSatz", i), &QAction::triggered, this,
            [this, i] { PunkteSpeichern(s_, ui_, logik_, i); });
  }
  for (int i = 0; i < MaxKurven; ++i) {
    if (!logik_.KurveBelegt()[static_cast<std::size_t>(i)]) continue;
    const QString text = QString("Kurve %1:  ").arg(i + 1) + MenueKurz(logik_.Kurve(i).Legende);
    connect(MenueEintrag(m, text, "mnuSaveKurve", i), &QAction::triggered, this,
            [this, i] { PunkteSpeichern(s_, ui_, logik_, -1, i); });
  }
  m->setEnabled(!m->isEmpty());
}

void Graph2DFenster::BildMenue(QMenu* m) {
  connect(MenueEintrag(m, "Drucken", "mnuBildDrucken"), &QAction::triggered, this, [this] { BildDrucken(); });
  QMenu* ablage = m->addMenu("zur Zwischenablage");
  ablage->setObjectName("mnuBildZwischenablage");
  ablage->setToolTipsVisible(true);
  QMenu* datei = m->addMenu("Bildfile schreiben");
  datei->setObjectName("mnuBildDatei");
  for (const bool vektor : {false, true}) {
    QAction* a = MenueEintrag(ablage, vektor ? "Vektor-Grafik" : "Bitmap-Grafik", "mnuBildKopieren", vektor);
    a->setToolTip(ZwischenablageRat);
    connect(a, &QAction::triggered, this, [this, vektor] { BildKopieren(vektor); });
    connect(MenueEintrag(datei, vektor ? "Vektor-Grafik (SVG, PDF) ..." : "Bitmap-Grafik (PNG, BMP) ...",
                    "mnuBildSchreiben", vektor),
            &QAction::triggered, this, [this, vektor] { BildSchreiben(vektor); });
  }
}

bool Graph2DFenster::BildDrucken(const QString& pdfDatei) {
  if (!DruckenBestaetigt(ui_, logik_.Seitenfarbe())) return false;
  const auto drucker = DiagrammDrucker(this, windowTitle().remove(':'), pdfDatei);
  return drucker && Drucke2D(*drucker, *flaeche_);
}

bool Graph2DFenster::BildKopieren(bool vektor) {
  if (!InZwischenablage(Zwischenablage2D(*flaeche_, vektor))) return false;
  status_->setText(QString(vektor ? "Vektor-Grafik" : "Bitmap-Grafik") + " in der Zwischenablage.  " +
                   ZwischenablageRat);
  return true;
}

bool Graph2DFenster::BildSchreiben(bool vektor) {
  const auto datei = BildDateiWaehlen(s_, ui_, vektor);
  if (!datei) return false;
  std::string grund;
  if (Bildfile2D(*flaeche_, datei->Pfad, datei->Format, {}, grund)) return true;
  ui_.Meldung(grund, "Bildfile schreiben", Symbol::Kritisch);
  return false;
}

} // namespace quor::ui
