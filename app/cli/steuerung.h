// The windows of a state calculation without a display: the menu command of the kind starts the
// calculation as in the program, and the concept dialog, the result page and the value dialog are
// answered from the command line (concept, liquid density, reference point, given values).
#pragma once

#include "calc/ergebnis_seite.h"
#include "calc/rechnungs_ablauf.h"
#include "core/json_schreiber.h"
#include "cli/sitzung.h"

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>

namespace quor::cli {

// The PARTIAL reference point as the concept dialog left it.
struct BezugspunktInfo {
  bool benutzt = false;       // the dialog showed it (a PARTIAL calculation through the dialog)
  bool vorgeschlagen = false; // the proposal by the data, not typed in
  std::string bericht;        // the dialog's report, lines joined by CR LF
};

class Steuerung {
public:
  explicit Steuerung(Sitzung& z);

  // Runs the menu command of kind `art` to its end, directly (the value dialog takes the given
  // values and calculates) or over the batch data. Throws CliFehler when the program refuses.
  void Starten(int16_t art, bool stapel, std::ostream& fehler);

  // The result page; null when none was opened.
  frmQCalcOut* Seite() { return seite_.get(); }
  // The page closed itself at once ("EXIT").
  bool Geschlossen() const { return geschlossen_; }
  const BezugspunktInfo& Bezug() const { return bezug_; }
  // The state the vessel calculation handed to its picture; none before one was calculated.
  const std::optional<BehaelterZustand>& Behaelter() const { return behaelter_; }

  // Ticks the further blocks of the page that the command line asks for (each tick recalculates, as
  // on the page); a block that the page doesn't offer for this kind is noted on `fehler` and skipped.
  void ZusatzBloecke(std::ostream& fehler);

private:
  RechnungsAblauf::Ansicht Ansicht();
  void CalcInZeigen();
  void ParinputZeigen();

  Sitzung& z_;
  std::unique_ptr<frmQCalcOut> seite_;
  bool geschlossen_ = false;
  BezugspunktInfo bezug_;
  std::optional<BehaelterZustand> behaelter_;
  RechnungsAblauf ablauf_; // last: its hooks use the members above
};

void BezugspunktJson(JsonSchreiber& j, const ProjectState& s, const BezugspunktInfo& b);
std::string BezugspunktText(const ProjectState& s, const BezugspunktInfo& b);

} // namespace quor::cli
