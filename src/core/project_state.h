// The one record of the running project: substance constants, the EOS work fields, the model
// choice, the reference state, the display units and the options. The program owns exactly one
// instance; every routine that reads or writes it takes it by reference.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "core/datenbank_gruppe.h"
#include "core/diagramm_gruppe.h"
#include "core/messdaten_gruppe.h"
#include "core/optionen_zusatz.h"
#include "core/projekt_gruppe.h"
#include "core/rechnung_gruppe.h"
#include "core/substance_record.h"

namespace quor {

namespace ui {
class Oberflaeche;
}

// Physical constants, used with exactly these values in every formula.
constexpr double RGas = 8.31451;     // kJ/(kmol K)
constexpr double pNormal = 101.325;  // kPa
constexpr double TStandard = 298.15; // K
constexpr double LnTen = 2.30258509299405;

// Widths of the name tables (characters, blanks included).
constexpr int NamenBreite = 35;
constexpr int LabelBreite = 14;

// Substance constants: the working copy of the loaded database record.
struct StoffGruppe : SubstanceRecord {
  std::string StoffName;
  float MolMasse = 0; // kg/kmol
  float TSiede = 0;   // K
  float TTripel = 0;  // K
  float pTripel = 0;  // kPa
  float hBildung = 0; // kJ/kmol
  float gBildung = 0; // kJ/kmol
  float sBildung = 0; // kJ/(kmol K)
  float DeltaFs = 0;  // kJ/(kmol K)
  double TKrit = 0;   // K, 0 = unknown
  double pKrit = 0;   // kPa, 0 = unknown
  double rhoKritExp = 0;
  double vKritExp = 0;
  double omega = 0;
  float AugustA = 0;
  float AugustB = 0;
};

// Results and constants of the chosen equation of state, filled by the parameter set-up and the
// solvers; never read from a file.
struct EOSGruppe {
  double vKritEOS = 0;
  double rhoKritEOS = 0;
  int16_t aForm = 0; // 1: a(T) a power of T; 2: Soave form
  double a0 = 0, b0 = 0, c0 = 0, d0 = 0;
  double aExp = 0, bExp = 0, cExp = 0, dExp = 0;
  double BExpHand = 0;
  double aT = 0, bT = 0, cT = 0, dT = 0;
  std::array<double, 3> VRoots{};
  double BVirial = 0;
  int16_t Gebiet = 0;
  // JiA, JiB2, JiZc, JiM, JiN, JiP, JiOmegaA, JiOmegaB, JiU
  std::array<double, 9> JiParameter{};
};

// Indices into JiParameter.
enum JiIndex { JiA = 0, JiB2, JiZc, JiM, JiN, JiP, JiOmegaA, JiOmegaB, JiU };

// Region codes of the last v(T,p) solution.
enum GebietCode : int16_t {
  GebietSubkritisch = 0,
  GebietKomprimiert = 1,
  GebietUeberkritisch = 2,
  GebietUeberhitzt = 3,
  GebietKritisch = 4
};

struct ModelSelection {
  int16_t EOSIndex = -1;
  bool VirialFlag = false;
  int16_t DampfdruckIndex = 0;
  std::string DampfdruckTag;
  int16_t HLVIndex = 0;
  int16_t CpIndex = 0;
  float WatsonExp = 0;
  bool KonzeptGlobal = true;
  bool RechnungGlobal = true;
  bool BensonDichte = true;
};

struct ReferenzGruppe {
  int16_t RefArt = 1; // 1 user values, 10 conventional normalisation, 2 formation quantities
  double hRef = 0;
  double sRef = 0;
  float TRef = 298.15f;
  float pRef = 0;
  double TUmgebung = 298.15;
  double pUmgebung = 101.325;
  float BezugT = 0, BezugP = 0, BezugRhoL = 0, BezugRhoV = 0;
  bool BezugGueltig = false;
};

struct EinheitenGruppe {
  int16_t VolumenMode = 0; // 0 m^3/kmol, 1 m^3/kg, 2 reduced T, p, v
  double VolumenFaktor = 1;
  int16_t EnergieMode = 0; // 0 kJ/kmol, 1 per R, 2 per R*TVorgabe, 3 kJ/kg
  double EnergieFaktor = 1;
  float TFaktor = 1;
  float pFaktor = 1;
  std::string TEinheit = " K";
  std::string pEinheit = " kPa";
  std::string vEinheit = " m^3/kmol";
  float TVorgabe = 0, pVorgabe = 0, vVorgabe = 0;
};

struct OptionenGruppe {
  int16_t PunktDichte = 500;
  char CsvTrenner = ';';
  char XYTrenner = ';';
  bool KurveTpBeschraenkt = true;
  bool SKurveOhneKonnode = false;
  bool UnloadGraph2D = true;
  bool PartialKurve = false;
  bool ParSpeichern = false;
  bool DezimalKomma = false;
};

// The name tables, filled once by InitProjectState; every row padded to its table's width.
struct Tabellen {
  std::array<std::string, 17> EOSNamen;
  std::array<std::string, 9> DampfdruckNamen;
  std::array<std::string, 8> HLVNamen;
  std::array<std::string, 3> CpNamen;
  std::array<std::string, 24> AbleitungsLabels;
};

struct ProjectState {
  StoffGruppe Stoff;
  EOSGruppe EOS;
  ModelSelection Modell;
  ReferenzGruppe Referenz;
  EinheitenGruppe Einheiten;
  OptionenGruppe Optionen;
  Tabellen Tab;
  DatenbankGruppe Datenbank;
  MessdatenGruppe Mess;
  int16_t RechenArt = 0; // kind of the state calculation on show
  ProjektGruppe Projekt;
  RechnungGruppe Rechnung; // set-up of the state calculation
  OptionenZusatz Zusatz;   // diagram mode, process-line start values
  DiagrammGruppe Diagramm; // fields of the curve engine
};

// The parameter set-up of the equation of state lives in the engine, which sits above this layer;
// the program hands it in so that the start-up can run it.
using EOSSetupFunktion = std::function<void(ProjectState&)>;

// Fills tables and defaults in the order of the program's start.
void InitProjectState(ProjectState& s, const EOSSetupFunktion& setup = {});

// True when the user's locale formats 0.75 with a comma.
bool LocaleHatDezimalKomma();

// Display factors and unit texts from VolumenMode; falls back to mode 0 with a message when the
// EOS has no critical volume.
void SetzeEinheiten(ProjectState& s, ui::Oberflaeche& ui);

// Three-letter tag of a vapour-pressure row ("000" for row 0 or an index outside the table).
std::string DampfdruckTagVon(int index);

} // namespace quor
