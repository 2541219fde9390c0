// Shared by the files of the calculation dispatcher: the run of one call with its working values,
// the readers of the given values, the error report, number texts that refuse non-finite values,
// and the pieces of text that several kinds print.
#pragma once

#include "calc/ergebnis_typen.h"
#include "core/project_state.h"
#include "core/rechen_art.h"
#include "dienste/oberflaeche.h"
#include "engine/eos_zeilen.h"
#include "engine/kalorik.h"

#include <cstdint>
#include <string>

namespace quor::calcbatch {

constexpr const char* CRLF = "\r\n";
constexpr const char* TitelNichtMoeglich = "Ausführung nicht möglich";

// One call of the dispatcher: where it writes, and the state it works out.
struct Lauf {
  ProjectState& s;
  ui::Oberflaeche& ui;
  ErgebnisSeite& seite;
  RechenKontext& k;
  int16_t art;
  int16_t punkt;

  double T = 0, p = 0;
  double v = 0;              // the given (global) molar volume of kinds 1, 2, 9, 10
  double vL = 0, vV = 0;     // phase volumes, m^3/kmol
  double rhoL = 0, rhoV = 0; // phase densities, kg/m^3
  double pLV = 0;            // saturation pressure at T from the EOS (kinds 1, 2, 9, 10)
  double y = 0;              // vapour fraction of a two-phase state
  bool zweiPhasig = false;   // y is set
  std::string text;          // the text block; Liste takes it unless an error occurred
  StapelErgebnis satz;       // the record of this point
  bool nichtEndlich = false; // a number that is not finite was about to be shown
  bool exit = false;         // the page must close at once
  // The vessel display has its state; what it shows in place of p ("ERROR1").
  bool behaelterGezeigt = false;
  std::string behaelterStatus;

  Lauf(ProjectState& s_, ui::Oberflaeche& ui_, ErgebnisSeite& seite_, RechenKontext& k_, int16_t art_,
       int16_t punkt_)
      : s(s_), ui(ui_), seite(seite_), k(k_), art(art_), punkt(punkt_) {}

  bool Kubisch() const { return eos::KubischGewaehlt(s.Modell); }
  void Zeile(const std::string& zeile) { text += zeile + CRLF; }
  double& Zelle(int index) { return k.Ergebnis[index]; }
};

// --- numbers as texts; a value that is not finite shows as "0" and marks the run ---
std::string Fmt(Lauf& l, double x, const char* muster);
std::string Einzel(Lauf& l, double x);             // default text of the single value
std::string MitVorzeichenPlatz(Lauf& l, double x); // a blank in front of a non-negative number
std::string Rechts(const std::string& text, std::size_t breite);
std::string Wiederhole(const std::string& zeichen, int anzahl);
// The line character of the frames: code 173 of the Windows code page.
std::string Rahmen(int anzahl);
// The row text of a table without its padding.
std::string ZeilenText(const std::string& zeile);
std::string EOSText(const ProjectState& s);

// --- messages and readers ---
// The measured row of the point, or an empty one when the point lies beyond the data.
ExpDatenSatz Datenpunkt(const Lauf& l);
// The engine's error: ErrorFlag, the text block red with the routine's name and `meldung`, no phases.
void MeldeFehler(Lauf& l, const std::string& meldung);
std::string FehlerCode(int code); // " (E" + code + ")"
// T, p and the density of kinds 1 and 2 (rho(V), else rho(L)) from the data point; false (with the
// field red and ErrorFlag) when the point holds none. T goes to cell 0, p to cell 1, rho to cell 2.
bool HoleT(Lauf& l, SeitenFeld& feld, bool warnen = true);
bool Holep(Lauf& l, SeitenFeld& feld);
bool HoleRho(Lauf& l, SeitenFeld& feld, double& rho);
std::string TText(Lauf& l, double T); // "T = " + "###0.000 K"

// --- states ---
// v(T, p) with the region into Gebiet: the phases, volumes and densities go into the run. Returns the
// solver's code (0 good) and the state text.
int16_t LoeseZustand(Lauf& l, double T, double p, std::string& meldung, int16_t& nRoots);
// The snapshot of the last solved state.
void SchreibeLetzten(Lauf& l, double v, double p, int16_t art, int16_t nRoots);
// Liquid density of a PARTIAL calculation: Benson's straight diameter or the database function.
double PartialRhoL(Lauf& l, double T, double rhoV);
// The lines "Dichte" and "Volumen" with both phases; cells 9 and 19.
void DichteZeilen(Lauf& l);
// The phase mark of the record by the phase flags.
std::string PhasenMarke(const Lauf& l);
// The vessel display, where one is connected.
void BehaelterAnzeigen(Lauf& l);

// --- function blocks ---
// Unit texts by EnergieMode.
struct FunktionsEinheiten {
  const char* h;
  const char* s;
  const char* g;
  const char* u;
  const char* a;
  const char* e;
  const char* cp;
  const char* cv;
};
const FunktionsEinheiten& EinheitenVon(int16_t EnergieMode);
// Caloric values of phase `row` (0 liquid, 1 vapour) at the run's T, p; false when the phase is absent.
bool PhaseDa(const Lauf& l, int row);
KalorischeWerte PhasenFunktionen(Lauf& l, int row);
// Cells of a phase from its caloric values (scaled), g as h - T*s of the scaled cells.
void FunktionsZellen(Lauf& l, int row, const KalorischeWerte& w);
// The rows "Volumen" to the speed of sound; `trenner` " = " or " =".
void FunktionsZeilen(Lauf& l, const std::array<KalorischeWerte, 2>& w, const std::array<bool, 2>& da,
                     const char* trenner, const char* schallLabel);

// --- the kinds ---
void Art1Bis2(Lauf& l);  // T, rho => p (and kinds 9, 10, the vessel)
void Art3(Lauf& l);      // T, p => rho
void Art13(Lauf& l);     // p, rho => T
void Art4(Lauf& l);      // T => p(LV)
void Art5(Lauf& l);      // p => T(LV)
void Art6Bis7(Lauf& l);  // enthalpy of vaporization
void Art8(Lauf& l);      // functions at T, p
void Art11(Lauf& l);     // virial coefficients
void Art12(Lauf& l);     // start point of the polytropic process
void Datenbank(Lauf& l); // kinds 14 to 24

// --- the common ending ---
void GebietZeigen(Lauf& l);
void ResidualBlock(Lauf& l);
void FunktionenBlock(Lauf& l);
void ParameterBlock(Lauf& l);

} // namespace quor::calcbatch
