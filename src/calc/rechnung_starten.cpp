#include "calc/rechnung_starten.h"

#include "calc/rechen_befehle.h"
#include "core/rechen_art.h"
#include "engine/korrelationen.h"

namespace quor {

const char* const TpFrageText = "Sollen die Vorgabewerte T, p ein V-L-Phasengleichgewicht beschreiben?\r\n"
                                "\r\n"
                                "ACHTUNG: Bei \"Ja\" wird die Existenz einer L-Phase vorausgesetzt\r\n"
                                "und eine \"PARTIAL-Berechnung\" durchgeführt.";
const char* const TpFrageTitel = "T-p-Vorgabe";
const char* const NurKubischText = "nur möglich mit einer kubischen EOS";
const char* const KeineStapelDatenText =
    "Für die Stapel-Berechnung sind keine experimentellen Daten geladen.\r\n"
    "Geben Sie Daten im Editor für exper. Daten ein (Menü Daten) oder laden Sie ein *.BAQ-File,\r\n"
    "oder wählen Sie unter Optionen die Direkt-Berechnung.";

namespace {

void Oeffne(const std::function<void()>& fenster) {
  if (fenster) fenster();
}

// The kinds that need the concept dialog before anything else.
bool BrauchtCalcIn(const ProjectState& s, int16_t art) {
  if (art::IstGleichgewicht(art)) return true;
  if (art == art::Tp && s.Rechnung.TpGleichgewicht) return true;
  return art::IstVerdampfung(art) && s.Modell.HLVIndex == HLVAusBenson;
}

} // namespace

bool mnuCalc_Click(ProjectState& s, ui::Oberflaeche& ui, const RechnungsFenster& f, const std::string& name,
                   int index) {
  const int16_t art = ArtVonMenue(name, index);
  if (art == art::Keine) return false;
  s.RechenArt = art;
  if (art::IstBehaelter(art)) s.Modell.RechnungGlobal = art == art::BehaelterGlobal;
  RechnungStarten(s, ui, f);
  if (art::IstBehaelter(art)) Oeffne(f.ErgebnisNachVorne);
  return true;
}

void RechnungStarten(ProjectState& s, ui::Oberflaeche& ui, const RechnungsFenster& f) {
  RechnungGruppe& r = s.Rechnung;
  if (s.RechenArt == art::Keine) s.RechenArt = art::TRhoV;
  const int16_t art = s.RechenArt;
  if (art == art::TRhoL && s.Modell.VirialFlag) {
    ui.Meldung(NurKubischText, "Ausführung nicht möglich", ui::Symbol::Ausruf);
    s.RechenArt = art::Keine;
    return;
  }
  r.TpGleichgewicht = false;
  // A batch runs over the measured rows: without any there is nothing to calculate.
  if (r.StapelModus && s.Mess.ExpAnzahl < 1 && !art::IstBehaelter(art) && art != art::Polytrope) {
    ui.Meldung(KeineStapelDatenText, "Ausführung nicht möglich", ui::Symbol::Ausruf);
    return;
  }
  if (!r.StapelModus) {
    if (art::IstBehaelter(art)) {
      r.ParinputModus = ParinputBehaelter;
      if (art == art::BehaelterPartial) {
        // The PARTIAL vessel needs its reference point first; OK of the dialog goes on from there.
        Oeffne(f.CalcInZeigen);
        return;
      }
    } else {
      r.ParinputModus = static_cast<int16_t>(art + ParinputDirekt);
    }
    if (art == art::Tp)
      r.TpGleichgewicht =
          ui.Frage(TpFrageText, TpFrageTitel, ui::Knoepfe::JaNein, ui::Antwort::Nein) == ui::Antwort::Ja;
  }
  if (BrauchtCalcIn(s, art)) {
    Oeffne(f.CalcInZeigen);
    return;
  }
  if (art == art::Polytrope) {
    Oeffne(f.ProzessZeigen);
    return;
  }
  const bool offen = f.ErgebnisZeigen ? f.ErgebnisZeigen() : false;
  const int16_t modus = r.ParinputModus;
  if (offen && !r.StapelModus && modus != ParinputDirekt + art::TzuPLV &&
      modus != ParinputDirekt + art::PzuTLV)
    Oeffne(f.ParinputZeigen);
}

} // namespace quor
