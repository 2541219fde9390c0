// Logic of the options dialog frmQOptions: units of the calculated values (molar or specific,
// reduced), the separators of the record log and the X-Y files, the mode of calculations, the point
// count of curves and the behaviour of diagrams. Nothing takes effect before cmdOK; closing the
// dialog otherwise discards the fields.
#pragma once

#include "core/project_state.h"

#include <string>
#include <utility>
#include <vector>

namespace quor {

namespace ui {
class Oberflaeche;
}

// The texts of the dialog's controls.
struct OptionenTexte {
  static const char* const Caption;          // "   Optionen"
  static const char* const Molar;            // "molare Größen"
  static const char* const MolarTipp;        // " z. B. kJ/kmol oder m^3/kmol "
  static const char* const Spezifisch;       // "spezifische Größen"
  static const char* const SpezifischTipp;   // " z. B. kJ/kg oder m^3/kg "
  static const char* const Reduziert;        // "reduzierte Größen  z(red) = z / z(cr)"
  static const char* const SepCSV;           // "Trennzeichen für Protokoll-Datei (CSV)"
  static const char* const SepCSVTipp;       // " Semikolon empfohlen "
  static const char* const SepXY;            // "Trennzeichen für XY-Datei"
  static const char* const Trenner[3];       // "Semikolon", "Komma", "Tab"
  static const char* const KurvenLoeschen;   // clear an open diagram first (the standard)
  static const char* const KurvenHinzu;      // add curves when the axes' units fit
  static const char* const CalcMode;         // "Modus für Berechnungen"
  static const char* const Stapel;           // "Stapel-Berechnung"
  static const char* const Direkt;           // "Direkt-Berechnung"
  static const char* const Aufloesung;       // "Kurven-Auflösung"
  static const char* const PunkteProKurve;   // "Punkte pro Kurve"
  static const char* const UnloadGraph2D;    // "löschen bei Einheiten-Änderungen"
  static const char* const ParSpeichern;     // presets of the family curves in the last session
  static const char* const ParSpeichernTipp; // what "not saving" means
  static const char* const PartialKurve;
  static const char* const PartialKurveTipp;
  static const char* const SKurve;
  static const char* const SKurveTipp;
  static const char* const TpBeschraenkt;
  static const char* const Normierung; // "Einstellen / Sichten"
  static const char* const Schliessen; // "Abbrechen <Esc>"
  static const char* const KeinTKrit;  // "Für diesen Stoff fehlt die kritische Temperatur."
  static const char* const KommaCSV;   // the question about a comma in the record log
  static const char* const KommaXY;    // the question about a comma in X-Y files
};

// What the view does after cmdOK.
struct OptionenAktionen {
  bool Graph2DLoeschen = false;    // the units changed: the open 2D diagram goes
  bool EinheitenGeaendert = false; // the display factors changed: a 3D surface in the old units goes
  // New texts of the first entries of the calculation menu: (entry of mnuCalc, text).
  std::vector<std::pair<int, std::string>> CalcMenueTexte;
};

class frmQOptions {
public:
  static constexpr int SliderMin = 50;
  static constexpr int SliderMax = 2000;

  frmQOptions(ProjectState& s, ui::Oberflaeche& ui);

  // The fields from the project state.
  void Form_Load();
  // Takes the fields over in the dialog's order: units, reduced values, display factors, boxes,
  // diagram clearing, point count, calculation mode, the two separators.
  OptionenAktionen cmdOK();

  // The menu texts of the first calculation entries for a mode.
  static std::vector<std::pair<int, std::string>> CalcMenueTexte(bool stapel);

  int optMolarSpez = 0; // 0 molar, 1 specific
  bool chkReduziert = false;
  int cmbSepCSV = 0; // 0 Semikolon, 1 Komma, 2 Tab
  int cmbSepXY = 0;
  int optKurvenMischen = 0; // 0 clear the diagram first, 1 add curves
  int OptCalcMode = 1;      // 0 list calculation, 1 direct calculation
  int Slider1_punktdichte = 500;
  bool chkUnloadGraph2D = true;
  bool chkParSpeichern = false;
  bool chkPartialKurve = false;
  bool chkSKurveOhneKonnode = false;
  bool chkCurveTpRestricted = true;

private:
  void Einheiten();
  char Trenner(int eintrag, const char* frage, const char* titel);

  ProjectState& s_;
  ui::Oberflaeche& ui_;
};

// The separator character of a list entry (0 ";", 1 ",", 2 tab) and the entry of a character.
char TrennerVonEintrag(int eintrag);
int EintragVonTrenner(char c);

} // namespace quor
