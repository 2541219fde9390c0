// process: the states along one process line from its start to the end of its range, as the process
// page computes them for the diagram: T, p, v, h, s and the degree of vaporization in engine units.
#include "cli/ausgabe.h"
#include "cli/befehle.h"
#include "cli/fehler.h"
#include "diagrams/diagramm_codes.h"
#include "process/prozess_kurve.h"
#include "process/prozess_linie.h"

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

void JsonAusgabe(std::ostream& aus, const Aufruf& a, const ProzessVorgabe& v, const ProzessLinie& l,
                 const std::vector<Meldung>& m) {
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
  j.EndeObjekt();
  j.Schluessel("messages");
  MeldungenJson(j, m);
  j.EndeObjekt();
  aus << j.Ergebnis();
}

void TextAusgabe(std::ostream& aus, const ProzessVorgabe& v, const ProzessLinie& l) {
  if (!l.meldungen.empty()) return; // refused: the message says why
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
  if (v.ProzessArt == Polytrope && !a.Ideal)
    throw Eingabefehler("the polytrope with the current EOS goes through the process tool; give --ideal");
  const ProzessLinie l = BerechneProzessLinie(s, z.ui, v);

  auto meldungen = Meldungen(z.ui, z.Gedruckt, z.ui.protokoll.size());
  z.Gedruckt = z.ui.protokoll.size();
  for (const std::string& m : l.meldungen)
    meldungen.push_back({TitelNichtMoeglich, m});
  if (a.Json) {
    JsonAusgabe(aus, a, v, l, meldungen);
  } else {
    MeldungenSchreiben(fehler, meldungen);
    TextAusgabe(aus, v, l);
  }
  if (l.punkte.empty()) {
    fehler << "quor-cli: the line has no points\n";
    return ExitRechnung;
  }
  if (l.fehler != 0) fehler << "quor-cli: the line ended early or lost points (the solver failed)\n";
  return ExitOK;
}

} // namespace quor::cli
