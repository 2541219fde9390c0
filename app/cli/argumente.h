// The command line of quor-cli: global options, the command with its kind, and the command's options.
// Every value is checked here (a number that isn't one, a row outside its table, an option that the
// command doesn't use); the substance and the models are checked later against the database.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace quor::cli {

struct Aufruf {
  // Global options.
  std::string Datenbank; // --db, empty: the bundled database
  std::string Stoff;     // --substance
  std::optional<int> EOS, Dampfdruck, HLV, Cp;
  std::optional<std::string> Watson; // the text as typed into the Watson list
  std::optional<bool> KonzeptGlobal; // --concept
  std::optional<bool> BensonDichte;  // --liquid-density
  std::optional<int> EnergieMode, VolumenMode, RefArt;
  // Fields of the reference window in its order: h, s, To, po, T(u), p(u) (texts, checked numbers).
  std::array<std::optional<std::string>, 6> Referenz;
  // b0, b1, b2 of the hand-input virial model (texts, checked numbers).
  std::array<std::optional<std::string>, 3> Virial;
  bool Json = false;
  bool Hilfe = false;

  std::string Befehl; // list, info, calc, batch, curve, surface, fit, process, iso, joback
  int Art = 0;        // kind of calc and batch

  // Options of calc and batch.
  std::optional<double> T, p, rho, v, m, V;
  int Abschnitte = 1;
  bool AbschnitteGegeben = false;
  bool Funktionen = false;
  bool Gleichgewicht = false;
  bool Details = false;
  std::optional<std::array<std::string, 4>> Bezugspunkt; // T, p, rho(L), rho(V), checked numbers
  std::string Daten, Lst, Csv;

  // Options of curve.
  int Code = 0;                                            // the diagram code
  std::optional<std::array<double, 2>> XBereich, YBereich; // axis ranges, displayed units
  std::optional<int> Punkte;                               // points per curve
  std::optional<double> Isohygre;
  bool SSchleife = false, Real = false, Konnode = false;

  // Options of surface (with --x, --y and --real of curve).
  int Flaeche = 0;                               // the surface's Art, 1 to 10
  std::optional<std::array<double, 2>> ZBereich; // Z range, displayed units
  std::optional<int> NX, NY;                     // grid steps per axis

  // Options of fit (with --data of batch).
  int16_t Modell = 0;                  // the model code
  int16_t Spalte = 1;                  // --column of a .BAQ file: 1 p, 2 rho(V), 3 rho(L), 4 delta(LV)h, 5 cp
  bool LogFit = false, Lg = false;     // --log, --lg
  bool Uebernehmen = false;            // --apply
  std::vector<std::string> Start;      // texts of the start fields, checked numbers
  std::vector<int> Fix;                // parameter numbers from 1
  std::optional<std::string> Tcr, Pcr; // texts of the fields behind the parameters, checked numbers
  std::optional<std::string> Glaettung; // Sm of the spline, a checked number from 0 to 1000
  std::vector<double> Stellen;          // --eval

  // Options of process.
  std::string Linie; // isotherm, isobar, isochore, isentrope, isenthalpe, polytrope, eta
  std::optional<std::array<double, 2>> Von; // --from T1,P1 (K, kPa)
  std::optional<double> BisT, BisP;         // --to-T, --to-p: the end of the range
  int16_t ProzessPhase = 1;                 // --phase: 1 V, 0 L
  bool Hetero = false, Ideal = false;       // --hetero, --ideal
  std::optional<double> N, Kappa, Eta;      // --n, --kappa, --eta

  // Options of iso (with --T or --p of calc and --phase of process).
  std::string IsoFix;                 // v, h, s, g, u, eh, eu, a
  std::optional<std::string> IsoWert; // --value as typed, a checked number
  std::optional<double> IsoStart;     // --start: the free variable's first trial (kPa or K)

  // Options of joback.
  std::vector<std::pair<int, int>> JobackGruppen; // --groups: row of the group table, count
  std::optional<double> JobackTb;                 // --tb: measured normal boiling point, K

  std::set<std::string> Gegeben;           // every option named on the line
  std::map<std::string, std::string> Text; // the value of each option as typed
};

// Parses argv[1..]; throws CliFehler (exit code 2) with the reason.
Aufruf LeseAufruf(const std::vector<std::string>& argumente);

// True for an option that every command takes (the database, substance, models, units, reference
// state, --json, --help); `mitWert` tells whether a value follows it.
bool IstGlobaleOption(const std::string& name, bool& mitWert);

// Reads and checks the values of the global options among `werte` (option -> value as typed) into
// `a`; throws CliFehler (exit code 2) with the reason.
void GlobaleOptionenLesen(Aufruf& a, const std::map<std::string, std::string>& werte);

// The text of quor-cli --help.
const char* HilfeText();

} // namespace quor::cli
