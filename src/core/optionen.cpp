#include "core/optionen.h"

#include "dienste/oberflaeche.h"

#include <algorithm>

namespace quor {

const char* const OptionenTexte::Caption = "   Optionen";
const char* const OptionenTexte::Molar = "molare Größen";
const char* const OptionenTexte::MolarTipp = " z. B. kJ/kmol oder m^3/kmol ";
const char* const OptionenTexte::Spezifisch = "spezifische Größen";
const char* const OptionenTexte::SpezifischTipp = " z. B. kJ/kg oder m^3/kg ";
const char* const OptionenTexte::Reduziert = "reduzierte Größen  z(red) = z / z(cr)";
const char* const OptionenTexte::SepCSV = "Trennzeichen für Protokoll-Datei (CSV)";
const char* const OptionenTexte::SepCSVTipp = " Semikolon empfohlen ";
const char* const OptionenTexte::SepXY = "Trennzeichen für XY-Datei";
const char* const OptionenTexte::Trenner[3] = {"Semikolon", "Komma", "Tab"};
const char* const OptionenTexte::KurvenLoeschen =
    "ein vorhandenes Diagramm immer löschen, bevor das neue gezeichnet wird (= Standard)";
const char* const OptionenTexte::KurvenHinzu =
    "beliebige neue Kurven hinzufügen, falls die Einheiten der Diagramm-Achsen passen";
const char* const OptionenTexte::CalcMode = "Modus für Berechnungen";
const char* const OptionenTexte::Stapel = "Stapel-Berechnung";
const char* const OptionenTexte::Direkt = "Direkt-Berechnung";
const char* const OptionenTexte::Aufloesung = "Kurven-Auflösung";
const char* const OptionenTexte::PunkteProKurve = "Punkte pro Kurve";
const char* const OptionenTexte::UnloadGraph2D = "löschen bei Einheiten-Änderungen";
const char* const OptionenTexte::ParSpeichern =
    "Parameterwerte für isotherme, isobare und isochore Kurven im Projektfile LastSession";
const char* const OptionenTexte::ParSpeichernTipp =
    " \"nicht speichern\" => Vorgabewerte immer T(cr), p(cr), v(cr)_berechnet ";
const char* const OptionenTexte::PartialKurve =
    "nur Teilkurve \"Gasphase\" für Fu(T) (isobar) oder Fu(p) (isotherm)";
const char* const OptionenTexte::PartialKurveTipp = " vorerst nur wirksam für Virial-EOS ";
const char* const OptionenTexte::SKurve =
    "für kubische EOS: Bei T < T(cr) instab./metastab. Verlauf zeichnen (ohne Konnode)";
const char* const OptionenTexte::SKurveTipp =
    " Beachten Sie: Diese Option wirkt nur im isothermen p-v-Diagramm ";
const char* const OptionenTexte::TpBeschraenkt =
    "nur physikalisch realen Bereich zeichnen (T>T(trip) bzw. p> p(trip))";
const char* const OptionenTexte::Normierung = "Einstellen / Sichten";
const char* const OptionenTexte::Schliessen = "Abbrechen <Esc>";
const char* const OptionenTexte::KeinTKrit = "Für diesen Stoff fehlt die kritische Temperatur.";
const char* const OptionenTexte::KommaCSV =
    "Bei Computereinstellung \"Deutschland\" (Dezimalzeichen = Komma)\r\n"
    "ist das Komma als Dateitrennzeichen nicht sinnvoll.\r\n"
    "Semikolon wählen?";
const char* const OptionenTexte::KommaXY =
    "Bei Computereinstellung \"Deutschland\" (Dezimalzeichen = Komma)\r\n"
    "ist das Komma als Dateitrennzeichen nicht sinnvoll;\r\n"
    "Clipboard-Inhalt und XY-Datei sind nicht mehr Excel-kompatibel.\r\n"
    "unbedingte Empfehlung: Semikolon";

namespace {

constexpr int Spezifisch = 1;
constexpr int StapelEintrag = 0;
constexpr int AddierenEintrag = 1;

// Energy factor of a mode: per kmol, per R, per R*T of the preset temperature, per kg.
double EnergieFaktorVon(const ProjectState& s) {
  const float T = s.Einheiten.TVorgabe;
  const float M = s.Stoff.MolMasse;
  switch (s.Einheiten.EnergieMode) {
  case 1:
    return 1.0 / RGas;
  case 2:
    return T > 0 ? 1.0 / (RGas * T) : 1.0;
  case 3:
    return M > 0 ? 1.0 / M : 1.0;
  default:
    return 1.0;
  }
}

} // namespace

char TrennerVonEintrag(int eintrag) {
  return eintrag == 1 ? ',' : eintrag == 2 ? '\t' : ';';
}

int EintragVonTrenner(char c) {
  return c == ',' ? 1 : c == '\t' ? 2 : 0;
}

frmQOptions::frmQOptions(ProjectState& s, ui::Oberflaeche& ui) : s_(s), ui_(ui) {}

void frmQOptions::Form_Load() {
  const EinheitenGruppe& e = s_.Einheiten;
  const OptionenGruppe& o = s_.Optionen;
  optMolarSpez = e.EnergieMode == 3 || e.VolumenMode == 1 ? Spezifisch : 0;
  chkReduziert = e.VolumenMode == 2;
  cmbSepCSV = EintragVonTrenner(o.CsvTrenner);
  cmbSepXY = EintragVonTrenner(o.XYTrenner);
  optKurvenMischen = s_.Zusatz.KurvenMischen ? AddierenEintrag : 0;
  OptCalcMode = s_.Rechnung.StapelModus ? StapelEintrag : 1;
  Slider1_punktdichte = std::clamp<int>(o.PunktDichte, SliderMin, SliderMax);
  chkUnloadGraph2D = o.UnloadGraph2D;
  chkParSpeichern = o.ParSpeichern;
  chkPartialKurve = o.PartialKurve;
  chkSKurveOhneKonnode = o.SKurveOhneKonnode;
  chkCurveTpRestricted = o.KurveTpBeschraenkt;
}

// The units: molar or specific, reduced values when the critical temperature is known, the
// energy factor of the mode, then the display factors and unit texts.
void frmQOptions::Einheiten() {
  EinheitenGruppe& e = s_.Einheiten;
  const bool spezifisch = optMolarSpez == Spezifisch;
  e.EnergieMode = spezifisch ? 3 : 0;
  e.VolumenMode = spezifisch ? 1 : 0;
  if (chkReduziert) {
    if (s_.Stoff.TKrit == 0) {
      ui_.Meldung(OptionenTexte::KeinTKrit, "Ausführung nicht möglich", ui::Symbol::Ausruf);
      chkReduziert = false;
    } else {
      if (e.TVorgabe == 0) e.TVorgabe = static_cast<float>(s_.Stoff.TKrit);
      e.VolumenMode = 2;
    }
  }
  e.EnergieFaktor = EnergieFaktorVon(s_);
  SetzeEinheiten(s_, ui_);
}

char frmQOptions::Trenner(int eintrag, const char* frage, const char* titel) {
  const char c = TrennerVonEintrag(eintrag);
  if (c == ',' && s_.Optionen.DezimalKomma &&
      ui_.Frage(frage, titel, ui::Knoepfe::JaNein, ui::Antwort::Ja) == ui::Antwort::Ja)
    return ';';
  return c;
}

OptionenAktionen frmQOptions::cmdOK() {
  OptionenAktionen a;
  const double volumenVorher = s_.Einheiten.VolumenFaktor;
  const double energieVorher = s_.Einheiten.EnergieFaktor;
  Einheiten();

  OptionenGruppe& o = s_.Optionen;
  o.UnloadGraph2D = chkUnloadGraph2D;
  o.ParSpeichern = chkParSpeichern;
  o.PartialKurve = chkPartialKurve;
  o.SKurveOhneKonnode = chkSKurveOhneKonnode;
  o.KurveTpBeschraenkt = chkCurveTpRestricted;
  s_.Zusatz.KurvenMischen = optKurvenMischen == AddierenEintrag;

  const EinheitenGruppe& e = s_.Einheiten;
  const bool geaendert = e.VolumenFaktor != volumenVorher || e.EnergieFaktor != energieVorher;
  a.Graph2DLoeschen = geaendert && chkUnloadGraph2D;
  a.EinheitenGeaendert = geaendert;

  o.PunktDichte = static_cast<int16_t>(std::clamp(Slider1_punktdichte, SliderMin, SliderMax));
  s_.Rechnung.StapelModus = OptCalcMode == StapelEintrag;
  a.CalcMenueTexte = CalcMenueTexte(s_.Rechnung.StapelModus);

  o.CsvTrenner = Trenner(cmbSepCSV, OptionenTexte::KommaCSV, "Warnung für CSV-File");
  o.XYTrenner = Trenner(cmbSepXY, OptionenTexte::KommaXY, "Warnung für XY-File");
  cmbSepCSV = EintragVonTrenner(o.CsvTrenner);
  cmbSepXY = EintragVonTrenner(o.XYTrenner);
  return a;
}

std::vector<std::pair<int, std::string>> frmQOptions::CalcMenueTexte(bool stapel) {
  if (stapel)
    return {{2, "Spalten T, p         => rho, Zustand L/V  + thermod. Fu."},
            {0, "Spalten T, rho(V) => p, Zustand L/V     + thermod. Fu."},
            {1, "Spalten T, rho(L) => p, Zustand L/V     + thermod. Fu."},
            {3, "Spalten p, rho(V) => T, Zustand L/V     + thermod. Fu."}};
  // The two entries without a text of their own for single input take their menu texts back.
  return {{2, "T, p         => rho, Zustand L/V  + thermod. Fu."},
          {3, "p, rho      => T, Zustand L/V     + thermod. Fu."},
          {0, "T, rho      => p, Zustand L/V    + thermod. Fu."},
          {1, "T, rho(L)  => p, Zustand L/V    + thermod. Fu."}};
}

} // namespace quor
