// Logic of the dialog frmJOBACK: estimation of missing substance data from the counts of 41
// molecular groups. Critical data with the normal boiling and the freezing point after
// Lydersen/Joback, the acentric factor after Lee/Kesler, the ideal-gas formation enthalpy and Gibbs
// energy and the ideal-gas heat capacity polynomial after Joback. The results go into the loaded
// substance, or into the fields of the open substance editor.
#pragma once

#include "core/project_state.h"
#include "dienste/oberflaeche.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace quor {

// One row of the group table. Tc, pc, vc, Tb, Tf are the increments of the critical and boiling
// formulas, hf and gf in kJ/mol, A to D the cp coefficients; a 0 means "no increment here".
struct JobackGruppe {
  const char* Name;
  int Atome;
  double M; // kg/kmol
  double Tc, pc, vc, Tb, Tf;
  double hf, gf;
  double A, B, C, D;
};

constexpr int JobackGruppen = 41;
extern const std::array<JobackGruppe, JobackGruppen> JobackTabelle;
// The row "=NH": it has no increments for the critical data.
constexpr int JobackGruppeNH = 35;
// The help page of the dialog.
constexpr int HilfeJoback = 43500;

// JobackModus: what the dialog estimates.
enum JobackModus : int16_t { JobackKritisch = 1, JobackBildung = 2, JobackCp = 3 };

using JobackAnzahlen = std::array<int, JobackGruppen>;

// Sums over the groups: sum(n_i * Atoms_i) and sum(n_i * M_i).
int JobackAtome(const JobackAnzahlen& n);
double JobackMolmasse(const JobackAnzahlen& n);

// Fields of the substance editor (its DD array) that the transfer writes.
namespace jobackdd {
constexpr int MolMasse = 0, TSiede = 1, TKrit = 4, pKrit = 5, rhoKritExp = 6, omega = 7;
constexpr int hBildung = 44, gBildung = 45;
constexpr int CpPolyC0 = 28; // C0 to C4 at 28 to 32
constexpr int CpPolyTLo = 33, CpPolyTHi = 34;
} // namespace jobackdd

// Writes one value into field `ddIndex` of the open substance editor.
using EditorFeldSetzen = std::function<void(int ddIndex, double wert)>;

class frmJOBACK {
public:
  static const std::array<const char*, 3> ModusTexte; // captions by JobackModus 1 to 3
  static const char* const Beispiel;
  static const char* const lblMM;       // " aus den Inkrementen berechnete Molmasse"
  static const char* const lblOmega;    // the explanation beside cmdOmega
  static const char* const OmegaPrefix; // " omega = "
  static const char* const NHMeldung;
  static const char* const TbPrompt;
  static const char* const TbTitel;
  static const char* const KeinWert;    // " ---"
  static const char* const ApplyEditor; // "Übertragen in Daten-Editor"
  static const char* const ApplyDaten;  // "Übernehmen in Datenbasis"

  frmJOBACK(ProjectState& s, ui::Oberflaeche& ui);

  // Opens in a mode; counts and results stay as they were.
  void Form_Load(int16_t modus);
  void optModus_Click(int16_t modus);
  // A count typed into txtInkr(i): digits only; the molar mass follows at once.
  void txtInkr_Change(int i, const std::string& text);
  void cmdCalcCrit();
  void cmdOmega();
  void cmdCalcBildung();
  void cmdCalccp();
  // Into the editor's fields when `Editor` is set, else into the substance.
  void cmdApply();
  void cmdReset();

  std::string Caption() const;
  std::string cmdApplyCaption() const { return Editor ? ApplyEditor : ApplyDaten; }

  int16_t Modus = JobackKritisch;
  JobackAnzahlen Anzahl{};
  std::array<std::string, JobackGruppen> txtInkr;

  // Fields as shown; txtTb, txtTc and txtpc may be typed over before cmdOmega and cmdApply.
  std::string txtMM, txtTb, txtTf, txtTc, txtpc, txtvc, txtRhoCr, lblRhoCr, txtOmega;
  std::string txthf, txtgf;
  std::array<std::string, 4> txtC;

  // The values behind the fields (K, kPa, m^3/kmol, kg/m^3, kJ/kmol, kJ/(kmol K)); 0 = none.
  double M = 0, Tb = 0, Tf = 0, Tc = 0, pc = 0, vc = 0, rhoCr = 0, omega = 0;
  double hf = 0, gf = 0;
  std::array<double, 4> C{};
  bool KritGerechnet = false, OmegaGerechnet = false, BildungGerechnet = false, CpGerechnet = false;

  // Set while the substance editor is open: the transfer goes into its fields.
  EditorFeldSetzen Editor;
  // Runs after a transfer into the substance (the frame rebuilds the model window).
  std::function<void()> NachUebernahme;

private:
  void MolmasseZeigen();
  void KritLeeren(const std::string& text);
  double TbAbfragen(double TbInkremente);
  double FeldWert(const std::string& text, double wert) const;
  void KritUebertragen(const std::function<void(int, double)>& setze);
  void UebernehmenInStoff();

  ProjectState& s_;
  ui::Oberflaeche& ui_;
};

} // namespace quor
