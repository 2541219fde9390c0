// process: the states along one process line from its start to the end of its range, as the process
// page computes them for the diagram: T, p, v, h, s and the degree of vaporization in engine units.
// The polytrope of the current EOS goes through the calculator Merlon_1 as in the program.
#include "cli/ausgabe.h"
#include "cli/befehle.h"
#include "cli/fehler.h"
#include "diagrams/diagramm_codes.h"
#include "diagrams/kurven_groessen.h"
#include "engine/kalorik.h"
#include "engine/zustand.h"
#include "process/polytrope_austausch.h"
#include "process/prozess_kurve.h"
#include "process/prozess_linie.h"

#include <cmath>
#include <ostream>

namespace quor::cli {

namespace {

using namespace prozess;

int16_t ArtVon(const std::string& linie) {
  if (linie == "isotherm") return Isotherme;
  if (linie == "isobar") return Isobare;
  if (linie == "isochore") return Isochore;
  if (linie == "isentrope") return Isentrope;
  if (linie == "isenthalpe") return Isenthalpe;
  if (linie == "polytrope") return Polytrope;
  return KonstantesEta;
}

ProzessVorgabe Vorgabe(const Aufruf& a) {
  ProzessVorgabe v;
  v.ProzessArt = ArtVon(a.Linie);
  v.ProzessHetero = a.Hetero;
  v.ProzessBereich = a.BisT ? BereichT : BereichP;
  v.T1 = (*a.Von)[0];
  v.P1 = (*a.Von)[1];
  v.Ende = a.BisT ? *a.BisT : *a.BisP;
  v.ProzessPhase = a.ProzessPhase;
  v.Eta = a.Eta.value_or(0);
  v.PolytropenExponent = a.N.value_or(0);
  v.Kappa = a.Kappa.value_or(0);
  v.PolytropenModus = a.Ideal ? PolytropeIdealgas : PolytropeAktuelleEOS;
  return v;
}

const char* FixName(int16_t art) {
  switch (art) {
  case Isochore:
    return "v";
  case Isentrope:
    return "s";
  case Isenthalpe:
    return "h";
  default:
    return nullptr;
  }
}

// The start volume as the calculator takes it: the liquid root where there is a liquid.
double StartVolumen(ProjectState& s, double T, double p) {
  bool istL = false, istV = false;
  double rhoV = 0, rhoL = 0, vV = 0, vL = 0, imbalance = 0, A = 0, B = 0;
  int16_t nRoots = 0, err = 0;
  std::string meldung;
  VzuTP(s, T, p, s.EOS.Gebiet, istL, istV, rhoV, rhoL, vV, vL, nRoots, imbalance, A, B, meldung, err);
  return istL ? vL : vV;
}

// The polytrope of the current EOS through the calculator, its points asked for on the p - T
// diagram: v follows from p v^n = p1 v1^n, h and s from the engine at each state.
ProzessLinie PolytropeDurchRechner(ProjectState& s, ui::Oberflaeche& ui, const ProzessVorgabe& v,
                                   PolytropenErgebnis& r) {
  ProzessLinie l;
  const std::string m = PruefeVorgabe(s, v);
  if (!m.empty()) {
    l.meldungen.push_back(m);
    l.fehler = -1;
    return l;
  }
  PolytropenAnfrage a;
  a.T1 = v.T1, a.p1 = v.P1, a.ProzessBereich = v.ProzessBereich, a.Ende = v.Ende;
  a.PolytropenExponent = v.PolytropenExponent, a.Kappa = v.Kappa, a.PolytropenModus = PolytropeAktuelleEOS;
  a.diagrammCode = code::pT;
  a.punktAnzahl = v.Schritte + 1;
  int16_t err = 0;
  PolytropeRechnen(s, ui, a, r, err);
  if (err != 0) {
    l.meldungen.push_back("Fehler bei der Polytropenberechnung");
    l.fehler = -1;
    return l;
  }
  const EinheitenGruppe& e = s.Einheiten;
  const double n = v.PolytropenExponent, v1 = StartVolumen(s, v.T1, v.P1);
  for (std::size_t i = 0; i < r.X.size(); ++i) {
    ProzessPunkt z;
    z.T = r.X[i] / e.TFaktor;
    z.p = r.Y[i] / e.pFaktor;
    z.v = v1 * std::pow(v.P1 / z.p, 1 / n);
    const int zeile = kurven::ZeileVon(s, z.v);
    KalorischeWerte w;
    ThermoFunktionen(s, z.T, z.p, z.v, zeile, w, err);
    z.h = w.h, z.s = w.s, z.eta = zeile == PhaseV ? 1 : 0;
    l.punkte.push_back(z);
  }
  return l;
}

void JsonAusgabe(std::ostream& aus, const Aufruf& a, const ProzessVorgabe& v, const ProzessLinie& l,
                 const PolytropenErgebnis& r, const std::vector<Meldung>& m) {
  JsonSchreiber j;
  j.BeginObjekt();
  j.Feld("kind", a.Linie);
  j.Schluessel("points");
  j.BeginListe();
  for (const ProzessPunkt& z : l.punkte) {
    j.BeginObjekt();
    j.Feld("T", z.T);
    j.Feld("p", z.p);
    j.Feld("v", z.v);
    j.Feld("h", z.h);
    j.Feld("s", z.s);
    j.Feld("eta", z.eta);
    j.EndeObjekt();
  }
  j.EndeListe();
  j.Schluessel("report");
  j.BeginObjekt();
  j.Feld("curve_code", KurvenCode(v));
  j.Feld("heterogeneous", KurvenCode(v) == code::ProzessHeterogen);
  const char* fix = FixName(v.ProzessArt);
  j.Feld("fixed_quantity", fix ? fix : "");
  j.Feld("fixed_value", l.FixWert);
  j.Feld("failed", l.fehler != 0);
  if (!r.bericht.empty()) {
    j.Feld("text", r.bericht);
    j.Schluessel("head");
    j.BeginListe();
    for (double k : r.kopf)
      j.Zahl(k);
    j.EndeListe();
  }
  j.EndeObjekt();
  j.Schluessel("messages");
  MeldungenJson(j, m);
  j.EndeObjekt();
  aus << j.Ergebnis();
}

void TextAusgabe(std::ostream& aus, const ProzessVorgabe& v, const ProzessLinie& l,
                 const PolytropenErgebnis& r) {
  if (!l.meldungen.empty()) return; // refused: the message says why
  if (!r.bericht.empty()) aus << MitLF(r.bericht) << "\n";
  if (const char* fix = FixName(v.ProzessArt)) aus << fix << " = " << KurzText(l.FixWert) << "\n";
  aus << "T/K p/kPa v/(m^3/kmol) h/(kJ/kmol) s/(kJ/(kmol K)) eta\n";
  for (const ProzessPunkt& z : l.punkte)
    aus << KurzText(z.T) << " " << KurzText(z.p) << " " << KurzText(z.v) << " " << KurzText(z.h) << " "
        << KurzText(z.s) << " " << KurzText(z.eta) << "\n";
}

} // namespace

int BefehlProcess(Sitzung& z, std::ostream& aus, std::ostream& fehler) {
  const Aufruf& a = z.aufruf;
  z.DatenbankOeffnen();
  z.StoffUndModelle();
  ProjectState& s = z.s;
  if (s.Stoff.TKrit < 1e-6) throw CliFehler(ExitRechnung, "the substance has no critical temperature");
  const ProzessVorgabe v = Vorgabe(a);
  PolytropenErgebnis r;
  const ProzessLinie l = v.ProzessArt == Polytrope && !a.Ideal ? PolytropeDurchRechner(s, z.ui, v, r)
                                                               : BerechneProzessLinie(s, z.ui, v);

  auto meldungen = Meldungen(z.ui, z.Gedruckt, z.ui.protokoll.size());
  z.Gedruckt = z.ui.protokoll.size();
  for (const std::string& m : l.meldungen)
    meldungen.push_back({TitelNichtMoeglich, m});
  if (a.Json) {
    JsonAusgabe(aus, a, v, l, r, meldungen);
  } else {
    MeldungenSchreiben(fehler, meldungen);
    TextAusgabe(aus, v, l, r);
  }
  if (l.punkte.empty()) {
    fehler << "quor-cli: the line has no points\n";
    return ExitRechnung;
  }
  if (l.fehler != 0) fehler << "quor-cli: the line ended early or lost points (the solver failed)\n";
  return ExitOK;
}

} // namespace quor::cli
