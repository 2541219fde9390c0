// Logic of the result page frmQCalcOut: it runs the calculation for the data point on show, lets the
// user walk through the live points of a batch, chooses the further output blocks, keeps the record
// of chosen results, and on closing writes the batch report to the printer or to a .LST file.
#pragma once

#include "calc/calc_batch.h"
#include "calc/ergebnis_typen.h"
#include "calc/protokoll.h"
#include "core/project_state.h"
#include "dienste/oberflaeche.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace quor {

// The calculation behind the page; the dispatcher in the program, a stand-in in tests.
using RechenFunktion = std::function<void(ProjectState&, ui::Oberflaeche&, ErgebnisSeite&, RechenKontext&,
                                          int16_t, int16_t&, double&, float&, std::string&)>;

// The kind's text in the page title ("Ergebnis der Berechnung " + this).
std::string ArtText(const ProjectState& s, int16_t art);

// A batch point is deleted when its first value, T, is zero.
bool PunktGeloescht(const MessdatenGruppe& m, int punkt);

// The iso-line calculator starts from the T and p of the state last calculated on the page; without
// them it refuses ("noch keine p- oder T-Vorgabe!" under "Ausführung nicht möglich") and answers false.
bool IsoRechnerMoeglich(const RechenKontext& k, ui::Oberflaeche& ui);
extern const char* const IsoKeineVorgabe;

// Where the report goes (option group optResultPrint).
enum AusgabeZiel : int16_t { AusgabeKeine = 0, AusgabeDrucker = 1, AusgabeDatei = 2 };

class frmQCalcOut {
public:
  static const char* const TitelAnfang;
  static const char* const SpeichernTitel;
  static const char* const SpeichernFilter;

  frmQCalcOut(ProjectState& s, ui::Oberflaeche& ui, bool stapelModus, RechenFunktion rechnen = CalcBatch);

  // Opening: records sized, options reset, the first live point chosen and calculated once. The page
  // unloads itself at once when the calculation answers "EXIT".
  void Form_Load();
  void cmdVor_Click();
  void cmdRueck_Click();
  void chkUHS_Click(bool an);
  void ResPlus_Click(int index, bool an);
  void optResultPrint_Click(int16_t index);
  void chkFuncPrint_Click(bool an);
  void cmdProtokoll_Click();
  void cmdOpenNew_Click();
  // True when the iso-line calculator may open over the page; otherwise the refusal was shown.
  bool cmdIsoCalc_Click();
  // Writes the report where chosen and closes the page with its companions.
  void cmdCalc_OK_Click();
  // Closing: an open record is closed first.
  void Form_Unload();
  // Runs the calculation for the point on show and updates the controls.
  void Rechnen();

  // What the calculation writes, and what it shares with the page.
  ErgebnisSeite Seite;
  RechenKontext Kontext;

  // Page state.
  int16_t Art = 0;            // kind of the calculation, taken on opening
  int16_t AktuellerPunkt = 0; // 0 with direct input
  bool StapelModus = false;
  bool MitDetails = false;
  ProtokollZustand Protokoll;
  std::string Datum = SystemDatum(); // the date of the record and the report

  // Controls.
  std::array<bool, 2> ResPlus{};
  bool chkUHS = false;
  bool chkFuncPrint = false;
  int16_t optResultPrint = AusgabeKeine;
  std::string Caption;
  std::string fraBatchVorgabeCaption;
  std::string cmdCalc_OKCaption;
  std::string cmdCalc_OKToolTip;
  std::string lblProtText2;
  std::string lblProtHinweis; // how many results are recorded, then where the file was written
  bool cmdVorEnabled = false, cmdRueckEnabled = false;
  bool fraResultOutputVisible = true, fraResultOutputEnabled = false;
  bool fraProtokollVisible = true, fraCalcErweitertVisible = true;
  bool fraBatchVorgabeVisible = true, fraValueVisible = true;
  bool chkUHSEnabled = false, ResPlusEnabled = true, chkFuncPrintEnabled = false;
  bool cmdOpenNewEnabled = false, cmdCEOSDiagnoseEnabled = false, cmdInfoSuperCritEnabled = true;
  bool cmdIsoCalcEnabled = false; // the kind calculates a state (not the database and virial kinds)

  int Piepser = 0;       // beeps at the ends of the batch
  bool Sichtbar = false; // shown after a successful opening
  bool Entladen = false; // the page has closed
  std::string Ausgang;   // the calculation's last answer ("EXIT" closes)
  float Eta = 0;         // vapour fraction in percent
  double Druck = 0;      // pressure handed through the calculation
  // Closes the companions of the page (parameter input, diagnostics, pictures, X-Y editor).
  std::function<void()> BegleiterEntladen;

private:
  int16_t ErsterLebenderPunkt() const;
  void SetzeFreigaben();
  void RechneAllePunkte();
  void BerichtAusgeben();

  ProjectState& s_;
  ui::Oberflaeche& ui_;
  RechenFunktion rechnen_;
};

} // namespace quor
