// The 3D page's files: the diagram as .oc3 and the picture as a bitmap file.
#include "diagrams/diagramm_datei_befehle.h"
#include "gui/diagrams/diagramm3d_flaeche.h"
#include "gui/diagrams/diagramm_export.h"
#include "gui/diagrams/graph3d_fenster.h"

#include <QCheckBox>
#include <QSignalBlocker>
#include <QSpinBox>

namespace quor::ui {

bool Graph3DFenster::Speichern() {
  if (logik_.Art() == 0) return false;
  return mnuSaveOC3(s_, ui_, logik_, flaeche_->Ansicht());
}

bool Graph3DFenster::Laden() {
  if (!mnuLoadOC3(s_, ui_, logik_)) return false;
  OptionenZeigen();
  IsoTexteZeigen();
  Zeige(true);
  return true;
}

void Graph3DFenster::OptionenZeigen() {
  const Graph3DZustand z = logik_.Zustand(flaeche_->Ansicht());
  const auto setze = [this](const char* name, bool an) {
    QCheckBox* k = Option(name);
    const QSignalBlocker still(k);
    k->setChecked(an);
  };
  setze("chkSolid", z.Anzeige.Massiv);
  setze("chkTransparent", z.Anzeige.Transparent);
  setze("chkShaded", z.Anzeige.Schattiert);
  setze("chkMesh", z.Anzeige.Netz);
  setze("chkGrid", z.Anzeige.Gitterebenen);
  setze("chkZoned", z.Anzeige.Zonen);
  setze("chkContoured", z.Anzeige.Hoehenlinien);
  setze("mnuAddCritPoint", z.KritischerPunkt);
  setze("chkIsothermenHalbe", z.HalbeT);
  setze("chkIsochorenHalbe", z.HalbeV);
  const char* zaehler[] = {"UpDown1_IsoZ", "UpDown1_IsoT", "UpDown1_IsoV"};
  for (std::size_t i = 0; i < 3; ++i) {
    QSpinBox* k = Anzahl(zaehler[i]);
    const QSignalBlocker still(k);
    k->setValue(z.IsoAnzahl[i]);
  }
}

bool Graph3DFenster::BildSchreiben() {
  if (logik_.Art() == 0 || !flaeche_->KannZeichnen()) return false;
  const auto datei = BildDateiWaehlen(s_, ui_, false);
  if (!datei) return false;
  std::string grund;
  if (Bildfile3D(flaeche_->Bild(flaeche_->size()), datei->Pfad, datei->Format, grund)) return true;
  ui_.Meldung(grund, "Bildfile schreiben", Symbol::Kritisch);
  return false;
}

} // namespace quor::ui
