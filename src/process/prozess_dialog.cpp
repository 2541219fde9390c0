// The process dialog's captions, labels and enabling by kind and form, its first defaults, and the
// start fields filled from the former line or from a point picked in the diagram.
#include "process/prozess_dialog.h"

#include "core/zahl_lesen.h"
#include "core/zahlformat.h"
#include "diagrams/diagramm_codes.h"

#include <cmath>

namespace quor::prozess {

const char* const frmInputProzessLinien::Caption = "  Eingabe-Parameter für Prozesslinien";
const char* const frmInputProzessLinien::MausHinweis =
    "Ermitteln Sie auf einer Kurve  den Anfangspunkt der Prozesslinie mit dem Mauszeiger.";
const char* const frmInputProzessLinien::ZeichnenHinweis = " dann Button [Zeichne Kurve] im Diagramm-Fenster ";
const char* const frmInputProzessLinien::EndeAlsAnfang = "Vorgabe für Anfangspunkt:  Endpunkt der letzten Kurve ";
const char* const frmInputProzessLinien::EndeAlsAnfangTip =
    "...sinnvoll für Fortsetzungskurven, z. B. Kreisprozesse  ";

namespace {

bool MitHeterogenerForm(int16_t art) {
  return art == Isochore || art == Isentrope || art == Isenthalpe;
}

// The caption of a kind in its form.
std::string ArtText(int16_t art, bool hetero, bool ausRechnung) {
  auto form = [hetero](const char* name) {
    return std::string("Einfügen ") + name + (hetero ? " im heterogenen Gebiet V - L" : " homogen");
  };
  switch (art) {
  case Gerade:
    return "Einfügen Gerade (x1, y1) - (x2, y2)";
  case Isotherme:
    return "Einfügen Isotherme";
  case Isobare:
    return "Einfügen Isobare";
  case Isochore:
    return form("Isochore");
  case Isentrope:
    return form("Isentrope");
  case Isenthalpe:
    return form("Isenthalpe");
  case Polytrope:
    return ausRechnung ? "Berechnung Polytropen-Prozess" : "Einfügen Polytrope (Zusatz-Information => \"Berechnung\")";
  case Parameter:
    return "Parameter-Eingabe";
  default:
    return "Einfügen einer Linie konstanten Verdampfungsgrads eta(V)";
  }
}

} // namespace

frmInputProzessLinien::frmInputProzessLinien(ProjectState& s, ui::Oberflaeche& ui) : s_(s), ui_(ui) {}

void frmInputProzessLinien::Form_Load(int16_t art, const DiagrammAuftrag& diagramm, bool ausRechnung) {
  ProzessArt = art;
  diagramm_ = diagramm;
  AusRechnung = ausRechnung;
  if (!MitHeterogenerForm(art)) ProzessHetero = art == KonstantesEta;
  // The isotherm runs in p, the isobar in T; the others keep the last choice.
  if (art == Isotherme) ProzessBereich = BereichP;
  if (art == Isobare) ProzessBereich = BereichT;
  txtVSCalc.clear();
  txtVSCalcRot = false;
  ErsteVorgaben();
  Beschriften();
  if (EndToBegin) chkEndToBegin_Click(true);
}

void frmInputProzessLinien::ErsteVorgaben() {
  Hinweis.clear();
  if (!txtT1.empty() || !(s_.Stoff.TKrit > 0)) return;
  txtT1 = Anzeige(s_.Stoff.TKrit);
  Hinweis = s_.Einheiten.VolumenMode == 2 ? "Hinweis: Erste Vorgabe-Temperatur ist T(red) = 1"
                                          : "Hinweis: Erste Vorgabe-Temperatur ist T(cr)/K";
}

void frmInputProzessLinien::Beschriften() {
  const int16_t art = ProzessArt;
  ArtCaption = ArtText(art, ProzessHetero, AusRechnung);
  HeteroMoeglich = MitHeterogenerForm(art);
  BereichWaehlbar = art != Isotherme && art != Isobare && art != Gerade && art != Parameter;
  const bool zweiphasig = ProzessHetero && (HeteroMoeglich || art == KonstantesEta);
  T1Sichtbar = !zweiphasig || ProzessBereich == BereichT;
  P1Sichtbar = !zweiphasig || ProzessBereich == BereichP;
  lblT1 = " T1/ K = ";
  lblP1 = "p1/kPa = ";
  lblEnde = ProzessBereich == BereichT ? " T2/ K = " : "p2/kPa = ";
  fraAnfang = zweiphasig ? "Anfangspunkt (1. Konnode)" : "Anfangspunkt";
  fraEnde = zweiphasig ? "Endpunkt (letzte Konnode)" : "Endpunkt";
  cmdDrawCaption = art == Parameter ? "übernehmen und schließen" : "Zeichnen";
  if (AusRechnung) cmdDrawCaption = "Berechnung";
  VSCalcSichtbar = art != Gerade && art != Parameter;
  txtVSCalcTip.clear();
  switch (art) {
  case Isochore:
    cmdVScalcCaption = "v berechnen";
    break;
  case Isentrope:
    cmdVScalcCaption = "s berechnen";
    txtVSCalcTip = " fixierter Entropiewert ";
    break;
  case Isenthalpe:
    cmdVScalcCaption = "h berechnen";
    txtVSCalcTip = " fixierter Enthalpiewert ";
    break;
  default:
    cmdVScalcCaption = "Phase bestimmen";
  }
  cmdVScalcTip = art == Isochore ? " bestimmt Volumen und Phase (V, L) für Anfangspunkt "
                                 : " bestimmt Phase (V, L) für Anfangspunkt ";
  if (art == Parameter) {
    const bool isobar = diagramm_.Klasse == klasse::Isobare;
    const bool reduziert = s_.Einheiten.VolumenMode == 2;
    lblParameter = isobar ? (reduziert ? "p / p(cr) =" : "p / kPa =") : (reduziert ? "T / T(cr) =" : "T / K =");
  }
}

void frmInputProzessLinien::optHomoHetero_Click(bool hetero) {
  if (!MitHeterogenerForm(ProzessArt)) return;
  ProzessHetero = hetero;
  txtVSCalc.clear();
  Beschriften();
}

void frmInputProzessLinien::optTp_Click(int16_t bereich) {
  if (!BereichWaehlbar) return;
  ProzessBereich = bereich == BereichP ? BereichP : BereichT;
  Beschriften();
}

void frmInputProzessLinien::optPhase_Click(int16_t phase) {
  ProzessPhase = phase == PhaseL ? PhaseL : PhaseV;
  txtVSCalc.clear();
}

void frmInputProzessLinien::optIdealEOS_Click(int16_t modus) {
  PolytropenModus = modus == PolytropeAktuelleEOS ? PolytropeAktuelleEOS : PolytropeIdealgas;
}

void frmInputProzessLinien::chkEndToBegin_Click(bool an) {
  EndToBegin = an;
  if (!an) return;
  const std::vector<ProzessZustand>& z = s_.Diagramm.Prozess.Zustaende;
  if (endeT_ > 0 && endeP_ > 0) {
    StartpunktSetzen(endeT_, endeP_);
  } else if (!z.empty()) {
    StartpunktSetzen(z.back().T, z.back().p);
  }
}

void frmInputProzessLinien::StartpunktSetzen(double T, double p) {
  if (!(T > 0) || !(p > 0) || !std::isfinite(T) || !std::isfinite(p)) return;
  txtT1 = Anzeige(T);
  txtP1 = AnzeigeP(p);
  Hinweis.clear();
  txtVSCalc.clear();
  txtVSCalcRot = false;
}

std::string frmInputProzessLinien::Anzeige(double engineT) const {
  const double f = s_.Einheiten.TFaktor > 0 ? s_.Einheiten.TFaktor : 1.0;
  return FormatVB(engineT * f, f == 1.0 ? "0.0####" : "0.0#####");
}

std::string frmInputProzessLinien::AnzeigeP(double engineP) const {
  const double f = s_.Einheiten.pFaktor > 0 ? s_.Einheiten.pFaktor : 1.0;
  return FormatVB(engineP * f, f == 1.0 ? "0.0####" : "0.0#####");
}

bool frmInputProzessLinien::Lese(const std::string& text, double& wert) const {
  // An empty field counts as zero, as the checks expect; anything else must be one number.
  if (text.find_first_not_of(" \t") == std::string::npos) {
    wert = 0;
    return true;
  }
  const ZahlErgebnis z = LeseZahl(text);
  if (!z.ok) return false;
  wert = z.wert;
  return true;
}

void frmInputProzessLinien::Melde(const std::string& text) {
  ui_.Meldung(text, TitelNichtMoeglich, ui::Symbol::Ausruf);
}

} // namespace quor::prozess
