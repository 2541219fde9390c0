// cmdDrawPL of the process dialog: the fields read and checked in their fixed order, then the line
// computed and handed to the diagram's curve engine, the polytrope worked out by the exchange with
// the process tool, or the curve parameter of the diagram's family taken over.
#include "process/prozess_dialog.h"

#include "core/zahl_lesen.h"
#include "core/zahlformat.h"
#include "diagrams/diagramm_codes.h"
#include "process/prozess_kurve.h"

#include <cmath>

namespace quor::prozess {

namespace {

const char* const Unvollstaendig = "Eingabe nicht vollständig oder ungültig";
const char* const PolytropeFehler = "Fehler bei der Polytropenberechnung";
const char* const NurEinPunkt = "Es wird nur 1 Punkt gezeichnet, da die Funktion hier druckunabhängig ist.";

// The legend of a line: its kind, the fixed value in engine units and the form.
std::string LinienLegende(const ProzessVorgabe& v, const ProzessLinie& l) {
  const char* const form = v.ProzessHetero ? " (V-L)" : v.ProzessPhase == PhaseL ? " (L)" : " (V)";
  const double start = l.punkte.empty() ? 0 : (v.ProzessArt == Isotherme ? l.punkte.front().T : l.punkte.front().p);
  switch (v.ProzessArt) {
  case Isotherme:
    return "Isotherme T = " + FormatVB(start, "0.0#") + " K";
  case Isobare:
    return "Isobare p = " + FormatVB(start, "0.0##") + " kPa";
  case Isochore:
    return "Isochore v = " + FormatVB(l.FixWert, "0.0####") + " m^3/kmol" + form;
  case Isentrope:
    return "Isentrope s = " + FormatVB(l.FixWert, "0.0##") + " kJ/(kmol K)" + form;
  case Isenthalpe:
    return "Isenthalpe h = " + FormatVB(l.FixWert, "0.0##") + " kJ/kmol" + form;
  case KonstantesEta:
    return "eta(V) = " + FormatVB(v.Eta, "0.0####");
  default:
    return "Prozesslinie";
  }
}

} // namespace

ProzessFolge frmInputProzessLinien::cmdDrawPL() {
  if (ProzessArt == Parameter) return ParameterUebernehmen();
  if (ProzessArt == Gerade) return GeradeUebernehmen();
  ProzessVorgabe v;
  if (!VorgabeLesen(v)) {
    Melde(Unvollstaendig);
    return ProzessFolge::Nichts;
  }
  const std::string m = PruefeVorgabe(s_, v);
  if (!m.empty()) {
    Melde(m);
    return ProzessFolge::Nichts;
  }
  // The degree of vaporization 0 is kept just off the boiling line.
  if (ProzessArt == KonstantesEta && v.Eta == 0) {
    txtEta = "1E-35";
    v.Eta = 1e-35;
  }
  if (ProzessArt == Polytrope) return PolytropeUebernehmen(v);
  Ergebnisse.fill(0);
  Bericht.clear();
  return Linienzug(v);
}

// The fields in engine units; false when a field holds no number (an empty one counts as zero).
bool frmInputProzessLinien::VorgabeLesen(ProzessVorgabe& v) {
  v.ProzessArt = ProzessArt;
  v.ProzessHetero = ProzessHetero;
  v.ProzessBereich = ProzessBereich;
  v.ProzessPhase = ProzessPhase;
  v.PolytropenModus = PolytropenModus;
  const double fT = s_.Einheiten.TFaktor > 0 ? s_.Einheiten.TFaktor : 1.0;
  const double fp = s_.Einheiten.pFaktor > 0 ? s_.Einheiten.pFaktor : 1.0;
  if (ProzessArt == Polytrope) {
    // The box's text is the value; a text that is no number is no valid kappa.
    if (!Lese(cmbKappa, v.Kappa)) v.Kappa = 0;
    if (!(v.Kappa > 1)) return true; // the check names the missing kappa first
    if (!Lese(txtN, v.PolytropenExponent)) return false;
  }
  if (ProzessArt == KonstantesEta && !Lese(txtEta, v.Eta)) return false;
  double T1 = 0, p1 = 0, ende = 0;
  if ((T1Sichtbar && !Lese(txtT1, T1)) || (P1Sichtbar && !Lese(txtP1, p1)) || !Lese(txtEnde, ende)) return false;
  v.T1 = T1 / fT;
  v.P1 = p1 / fp;
  v.Ende = ProzessBereich == BereichT ? ende / fT : ende / fp;
  return true;
}

ProzessFolge frmInputProzessLinien::Linienzug(const ProzessVorgabe& v) {
  Linie = BerechneProzessLinie(s_, ui_, v);
  if (!Linie.meldungen.empty()) {
    Melde(Linie.meldungen.front());
    return ProzessFolge::Nichts;
  }
  if (!Linie.punkte.empty()) endeT_ = Linie.punkte.back().T, endeP_ = Linie.punkte.back().p;
  ProzessUebergeben(s_, v, Linie, diagramm_.Code);
  auftrag_ = diagramm_;
  auftrag_.Code = KurvenCode(v);
  auftrag_.Klasse = 0;
  auftrag_.Titel = LinienLegende(v, Linie);
  return ProzessFolge::Kurve;
}

ProzessFolge frmInputProzessLinien::GeradeUebernehmen() {
  float x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  if (!LeseZahlFloat(txtX1, x1) || !LeseZahlFloat(txtY1, y1) || !LeseZahlFloat(txtX2, x2) ||
      !LeseZahlFloat(txtY2, y2)) {
    Melde(Unvollstaendig);
    return ProzessFolge::Nichts;
  }
  if (x1 == x2 && y1 == y2) {
    Melde("unzulässige Eingabe");
    return ProzessFolge::Nichts;
  }
  Ergebnisse.fill(0);
  Bericht.clear();
  Linie = {};
  GeradeUebergeben(s_, x1, y1, x2, y2, diagramm_.Code);
  auftrag_ = diagramm_;
  auftrag_.Code = code::ProzessGerade;
  auftrag_.Klasse = 0;
  auftrag_.Titel = "Gerade (" + SingleText(x1) + ", " + SingleText(y1) + ") - (" + SingleText(x2) + ", " +
                   SingleText(y2) + ")";
  return ProzessFolge::Kurve;
}

// The curve parameter of the family on show: T of the isotherms or p of the isobars.
ProzessFolge frmInputProzessLinien::ParameterUebernehmen() {
  const bool isobar = diagramm_.Klasse == klasse::Isobare;
  EinheitenGruppe& e = s_.Einheiten;
  const double faktor = isobar ? e.pFaktor : e.TFaktor;
  double wert = 0;
  if (!Lese(txtParameter, wert) || !(wert > 0) || !(faktor > 0)) {
    Melde(Unvollstaendig);
    return ProzessFolge::Nichts;
  }
  const double engine = wert / faktor;
  (isobar ? e.pVorgabe : e.TVorgabe) = static_cast<float>(engine);
  auftrag_ = diagramm_;
  auftrag_.Titel = isobar ? "p = " + FormatVB(engine, "0.0##") + " kPa" : "T = " + FormatVB(engine, "0.0##") + " K";
  return ProzessFolge::Parameter;
}

ProzessFolge frmInputProzessLinien::PolytropeUebernehmen(const ProzessVorgabe& v) {
  PolytropenAnfrage a;
  a.T1 = v.T1;
  a.p1 = v.P1;
  a.ProzessBereich = v.ProzessBereich;
  a.Ende = v.Ende;
  a.PolytropenExponent = v.PolytropenExponent;
  a.Kappa = v.Kappa;
  a.PolytropenModus = v.PolytropenModus;
  a.diagrammCode = AusRechnung ? 0 : diagramm_.Code;
  a.punktAnzahl = AusRechnung ? 0 : s_.Optionen.PunktDichte / 3;
  PolytropenErgebnis r;
  int16_t err = 0;
  PolytropeRechnen(s_, ui_, a, r, err);
  if (err != 0) {
    ui_.Meldung(PolytropeFehler, TitelNichtMoeglich, ui::Symbol::Ausruf);
    return ProzessFolge::Nichts;
  }
  Ergebnisse = r.kopf;
  Bericht = r.bericht;
  Linie = {};
  endeT_ = r.kopf[KopfT2];
  endeP_ = r.kopf[KopfP2];
  if (AusRechnung) {
    // The result page shows the start point and the calculator's report.
    ExpDatenSatz& zeile = s_.Mess.ExpDaten.at(0);
    zeile.T = v.T1;
    zeile.p = v.P1;
    return ProzessFolge::Ergebnisseite;
  }
  KurveX = r.X;
  KurveY = r.Y;
  if (diagramm_.Klasse == klasse::Datenbank || AustauschCode(diagramm_.Code) == 0) {
    ui_.Meldung(NurEinPunkt, "Hinweis", ui::Symbol::Information);
    if (KurveX.size() > 1) KurveX.resize(1), KurveY.resize(1);
  }
  KurveLegende = "Polytrope n = " + FormatVB(v.PolytropenExponent, "0.0###") +
                 ", kappa = " + FormatVB(v.Kappa, "0.0###") +
                 (v.PolytropenModus == PolytropeIdealgas ? " (Idealgas)" : " (aktuelle EOS)");
  return ProzessFolge::ExterneKurve;
}

} // namespace quor::prozess
