// The central routine of the 2D diagrams: a menu entry's code becomes a prepared request, and the
// routine says what opens next.
#include "diagrams/katalog.h"

#include "diagrams/diagramm_codes.h"

namespace quor {

namespace {

constexpr const char* AchsenFrage = "\r\nDie Einheiten der Diagramm-Achsen passen nicht zusammen.\r\n"
                                    "Das vorhandene Diagramm löschen?";

} // namespace

bool AchsenFrageNoetig(bool diagrammOffen, const std::string& achsentagAlt, int code) {
  const KatalogZeile* z = KatalogZeileVon(code);
  return diagrammOffen && z && achsentagAlt != z->Achsentag;
}

bool AchsenPruefen(ui::Oberflaeche& ui, DiagrammAuftrag& a, bool diagrammOffen, bool& loeschen) {
  loeschen = false;
  if (!AchsenFrageNoetig(diagrammOffen, a.AchsentagAlt, a.Code)) return true;
  if (ui.Frage(AchsenFrage, "Warnung", ui::Knoepfe::JaNein, ui::Antwort::Ja) == ui::Antwort::Ja) {
    loeschen = true;
    return true;
  }
  a.Achsentag = a.AchsentagAlt;
  return false;
}

Graf2DFolge FolgeVon(int16_t klasse, const std::string& achsentag) {
  if (klasse == klasse::Koexistenz || klasse == klasse::Inversion || klasse == klasse::Datenbank)
    return Graf2DFolge::DiagrammSofort;
  if (achsentag == "hs" || achsentag == "hh") return Graf2DFolge::ProzessSeite;
  return Graf2DFolge::ParameterEingabe;
}

Graf2DErgebnis Graf2D_Zentrale(ProjectState& s, ui::Oberflaeche& ui, DiagrammAuftrag& a, bool diagrammOffen) {
  Graf2DErgebnis erg;
  if (s.Stoff.TKrit < 1e-6 || !CodeBekannt(a.Code)) return erg;
  if (!AchsenPruefen(ui, a, diagrammOffen, erg.DiagrammLoeschen)) return erg;
  SetzeKatalogTexte(a, s.Einheiten);
  IniStandardBereich(s, a);
  erg.Folge = FolgeVon(a.Klasse, a.Achsentag);
  return erg;
}

} // namespace quor
