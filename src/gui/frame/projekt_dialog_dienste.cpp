#include "gui/frame/projekt_dialog_dienste.h"

#include "core/projekt_datei.h"
#include "gui/diagrams/graph2d_steuerung.h"
#include "gui/diagrams/graph3d_steuerung.h"
#include "gui/frame/mdi_quor.h"
#include "gui/frame/optionen_fenster.h"
#include "gui/frame/projekt_dialog.h"
#include "gui/substance/modell_fenster.h"
#include "gui/substance/stoff_wahl_fenster.h"
#include "substance/projekt_laden.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace quor::ui {

namespace {

void MenueTexteSetzen(mdiQUOR& rahmen, const OptionenAktionen& a) {
  for (const auto& [eintrag, text] : a.CalcMenueTexte)
    rahmen.Logik().Befehle.SetzeText("mnuCalc", eintrag, text);
  // New units: the diagram's axes no longer fit them.
  if (a.Graph2DLoeschen) rahmen.Graf2D()->SeiteSchliessen();
  if (a.EinheitenGeaendert) rahmen.Graf3D()->SeiteSchliessen();
  rahmen.Aktualisieren();
}

void FensterSchliessen(mdiQUOR& rahmen) {
  for (QMdiSubWindow* fenster : rahmen.Arbeitsflaeche()->subWindowList())
    if (!rahmen.Modelle() || fenster->widget() != rahmen.Modelle()) fenster->close();
  if (rahmen.StoffWahl()) rahmen.StoffWahl()->close();
}

} // namespace

void ProjektDiensteOhneFenster(RahmenDienste& d, Oberflaeche& ui) {
  d.ProjektLaden = [&ui](ProjectState& s, const std::string& pfad, std::string& batch) {
    int16_t kind = 0, failed = 0;
    ProjektLaden(s, pfad, batch, kind, failed, ui);
    return failed == 0;
  };
  d.ProjektSchreiben = [&ui](ProjectState& s, const std::string& pfad) { ProjektSchreiben(s, pfad, ui); };
  d.ProjektSpeichernUnter = [&ui](ProjectState& s) { ProjektSpeichernUnter(s, ui); };
}

void ProjektFensterDienste(RahmenDienste& d, mdiQUOR& rahmen, Oberflaeche& ui) {
  ProjektDiensteOhneFenster(d, ui);
  // An open substance choice shows the project's database.
  d.ProjektLaden = [laden = d.ProjektLaden, &rahmen](ProjectState& st, const std::string& pfad,
                                                     std::string& b) {
    const bool ok = laden(st, pfad, b);
    if (rahmen.StoffWahl() && rahmen.StoffWahl()->isVisible()) rahmen.StoffWahl()->Laden();
    return ok;
  };
  d.ProjektDialog = [&rahmen, &ui](ProjectState& st, const std::string& titel, const std::string& muster) {
    return ProjektDateiWaehlen(st, ui, &rahmen, titel, muster);
  };
  d.DialogeSchliessen = [&rahmen] { FensterSchliessen(rahmen); };
}

void OptionenZeigen(mdiQUOR& rahmen, ProjectState& s, Oberflaeche& ui) {
  auto* fenster = new OptionenFenster(
      s, ui, [&rahmen](const OptionenAktionen& a) { MenueTexteSetzen(rahmen, a); },
      [&rahmen] { rahmen.Logik().Befehle.Ausloesen("frmReferenz"); }, &rahmen);
  fenster->setAttribute(Qt::WA_DeleteOnClose);
  fenster->open();
}

} // namespace quor::ui
