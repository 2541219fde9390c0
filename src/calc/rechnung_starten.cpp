#include "calc/rechnung_starten.h"

namespace quor {

const char* const TpFrageText = "Sollen die Vorgabewerte T, p ein V-L-Phasengleichgewicht beschreiben?\r\n"
                                "\r\n"
                                "ACHTUNG: Bei \"Ja\" wird die Existenz einer L-Phase vorausgesetzt\r\n"
                                "und eine \"PARTIAL-Berechnung\" durchgeführt.";
const char* const TpFrageTitel = "T-p-Vorgabe";
const char* const NurKubischText = "nur möglich mit einer kubischen EOS";

namespace {

// Kinds of the database submenu by entry: L-density, S-density, enthalpy of vaporization, ideal-gas,
// liquid and solid heat capacity.
int16_t DatenbankArt(int index) {
  switch (index) {
  case 1:
    return 14;
  case 2:
    return 24;
  case 3:
    return 15;
  case 4:
    return 16;
  case 5:
    return 17;
  case 6:
    return 18;
  default:
    return 0;
  }
}

int16_t CalcArt(int index) {
  switch (index) {
  case 0:
  case 1:
  case 2:
    return static_cast<int16_t>(index + 1);
  case 3:
    return 13;
  case 5:
  case 6:
    return static_cast<int16_t>(index - 1);
  case 8:
  case 9:
    return static_cast<int16_t>(index - 2);
  case 11:
    return 8;
  case 13:
    return 12;
  case 15:
    return 9;
  case 16:
    return 10;
  case 18:
    return 11;
  default:
    return 0;
  }
}

void Oeffne(const std::function<void()>& fenster) {
  if (fenster) fenster();
}

// The kinds that need the concept dialog before anything else.
bool BrauchtCalcIn(const ProjectState& s, int16_t art) {
  if (art == 4 || art == 5) return true;
  if (art == 3 && s.Rechnung.TpGleichgewicht) return true;
  return (art == 6 || art == 7) && s.Modell.HLVIndex == 6;
}

} // namespace

int16_t ArtVonMenue(const std::string& name, int index) {
  if (name == "mnuCalc") return CalcArt(index);
  if (name == "mnuCalc_sub_database") return DatenbankArt(index);
  if (name == "mnuCalc_sub_sub_database" && index >= 0 && index <= 3) return static_cast<int16_t>(index + 19);
  return 0;
}

bool mnuCalc_Click(ProjectState& s, ui::Oberflaeche& ui, const RechnungsFenster& f, const std::string& name,
                   int index) {
  const int16_t art = ArtVonMenue(name, index);
  if (art == 0) return false;
  s.RechenArt = art;
  if (art == 9) s.Modell.RechnungGlobal = true;
  if (art == 10) s.Modell.RechnungGlobal = false;
  RechnungStarten(s, ui, f);
  if (art == 9 || art == 10) Oeffne(f.ErgebnisNachVorne);
  return true;
}

void RechnungStarten(ProjectState& s, ui::Oberflaeche& ui, const RechnungsFenster& f) {
  RechnungGruppe& r = s.Rechnung;
  if (s.RechenArt == 0) s.RechenArt = 1;
  const int16_t art = s.RechenArt;
  if (art == 2 && s.Modell.VirialFlag) {
    ui.Meldung(NurKubischText, "Ausführung nicht möglich", ui::Symbol::Ausruf);
    s.RechenArt = 0;
    return;
  }
  r.TpGleichgewicht = false;
  if (!r.StapelModus) {
    if (art == 9 || art == 10) {
      r.ParinputModus = ParinputBehaelter;
      if (art == 10) {
        // The PARTIAL vessel needs its reference point first; OK of the dialog goes on from there.
        Oeffne(f.CalcInZeigen);
        return;
      }
    } else {
      r.ParinputModus = static_cast<int16_t>(art + ParinputDirekt);
    }
    if (art == 3)
      r.TpGleichgewicht =
          ui.Frage(TpFrageText, TpFrageTitel, ui::Knoepfe::JaNein, ui::Antwort::Nein) == ui::Antwort::Ja;
  }
  if (BrauchtCalcIn(s, art)) {
    Oeffne(f.CalcInZeigen);
    return;
  }
  if (art == 12) {
    Oeffne(f.ProzessZeigen);
    return;
  }
  const bool offen = f.ErgebnisZeigen ? f.ErgebnisZeigen() : false;
  const int16_t modus = r.ParinputModus;
  if (offen && !r.StapelModus && modus != ParinputDirekt + 4 && modus != ParinputDirekt + 5)
    Oeffne(f.ParinputZeigen);
}

} // namespace quor
