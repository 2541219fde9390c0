// curve: one curve of the curve engine, as the diagram page gets it: the catalogue's title, axis
// texts and standard ranges (or those of the command line), then the points in displayed units.
#include "cli/ausgabe.h"
#include "cli/befehle.h"
#include "cli/fehler.h"
#include "diagrams/diagramm_codes.h"
#include "diagrams/katalog.h"
#include "diagrams/kurven.h"

#include <ostream>
#include <tuple>

namespace quor::cli {

namespace {

const char* ParameterName(int16_t klasse) {
  switch (klasse) {
  case klasse::Isotherme:
    return "--T";
  case klasse::Isobare:
    return "--p";
  case klasse::Isochore:
    return "--v";
  default:
    return nullptr;
  }
}

// The curve's parameter by its family: exactly the one it takes (a tie line of an isochor may name
// its T as well).
void ParameterPruefen(const Aufruf& a, int16_t klasse) {
  const char* noetig = ParameterName(klasse);
  const std::string code = "code " + std::to_string(a.Code);
  if (noetig && a.Gegeben.count(noetig) == 0) throw Eingabefehler(code + " needs " + noetig);
  for (const char* name : {"--T", "--p", "--v"}) {
    const bool erlaubt = (noetig && std::string(name) == noetig) ||
                         (a.Konnode && klasse == klasse::Isochore && std::string(name) == "--T");
    if (a.Gegeben.count(name) != 0 && !erlaubt) throw Eingabefehler(code + " takes no " + name);
  }
}

DiagrammAuftrag Auftrag(Sitzung& z) {
  const Aufruf& a = z.aufruf;
  ProjectState& s = z.s;
  if (!CodeBekannt(a.Code))
    throw Eingabefehler("code " + std::to_string(a.Code) + " is no diagram code (see quor-cli --help)");
  if (s.Stoff.TKrit < 1e-6) throw CliFehler(ExitRechnung, "the substance has no critical temperature");
  DiagrammAuftrag r;
  r.Code = static_cast<int16_t>(a.Code);
  SetzeKatalogTexte(r, s.Einheiten);
  ParameterPruefen(a, r.Klasse);
  IniStandardBereich(s, r);
  if (a.XBereich) {
    r.Xmin = static_cast<float>((*a.XBereich)[0]);
    r.Xmax = static_cast<float>((*a.XBereich)[1]);
  }
  if (a.YBereich) {
    r.Ymin = static_cast<float>((*a.YBereich)[0]);
    r.Ymax = static_cast<float>((*a.YBereich)[1]);
  }
  return r;
}

void OptionenSetzen(Sitzung& z) {
  const Aufruf& a = z.aufruf;
  ProjectState& s = z.s;
  if (a.Punkte) s.Optionen.PunktDichte = static_cast<int16_t>(*a.Punkte);
  s.Optionen.SKurveOhneKonnode = a.SSchleife;
  DiagrammGruppe& d = s.Diagramm;
  if (a.Isohygre) d.Isohygre = *a.Isohygre;
  d.MitRealverhalten = a.Real;
  d.KonnodeModus = a.Konnode;
}

struct Kurve {
  Kurvenpunkte punkte;
  int16_t ergebnis = 0;
  bool imBereich = false;
  std::string meldung;
};

void JsonAusgabe(std::ostream& aus, const DiagrammAuftrag& r, const Kurve& k, const std::vector<Meldung>& m) {
  JsonSchreiber j;
  j.BeginObjekt();
  j.Feld("code", r.Code);
  j.Feld("title", r.Titel);
  j.Feld("x_text", r.XText);
  j.Feld("y_text", r.YText);
  for (const auto& [name, von, bis] : {std::tuple{"x_range", r.Xmin, r.Xmax}, {"y_range", r.Ymin, r.Ymax}}) {
    j.Schluessel(name);
    j.BeginListe(true);
    j.Zahl(von);
    j.Zahl(bis);
    j.EndeListe();
  }
  j.Feld("result", k.ergebnis);
  j.Feld("in_range", k.imBereich);
  j.Feld("head_z", k.punkte.empty() ? 0.0f : k.punkte[0].Z);
  j.Schluessel("points");
  j.BeginListe();
  for (std::size_t i = 1; i < k.punkte.size(); ++i) {
    j.BeginListe(true);
    j.Zahl(k.punkte[i].X);
    j.Zahl(k.punkte[i].Y);
    j.Zahl(k.punkte[i].Z);
    j.EndeListe();
  }
  j.EndeListe();
  j.Schluessel("messages");
  MeldungenJson(j, m);
  j.EndeObjekt();
  aus << j.Ergebnis();
}

void TextAusgabe(std::ostream& aus, const DiagrammAuftrag& r, const Kurve& k) {
  aus << r.Titel << "\n" << "x: " << r.XText << "\n" << "y: " << r.YText << "\n";
  for (std::size_t i = 1; i < k.punkte.size(); ++i)
    aus << KurzText(k.punkte[i].X) << " " << KurzText(k.punkte[i].Y) << " " << KurzText(k.punkte[i].Z) << "\n";
}

} // namespace

int BefehlCurve(Sitzung& z, std::ostream& aus, std::ostream& fehler) {
  const Aufruf& a = z.aufruf;
  z.DatenbankOeffnen();
  z.StoffUndModelle();
  ProjectState& s = z.s;
  const DiagrammAuftrag r = Auftrag(z);
  OptionenSetzen(z);
  double T = a.T.value_or(0), p = a.p.value_or(0);
  double v = a.v ? *a.v / s.Einheiten.VolumenFaktor : 0;
  Kurve k;
  CalcCurve(s, z.ui, r, k.ergebnis, T, p, v, k.punkte, k.imBereich, k.meldung);

  auto meldungen = Meldungen(z.ui, z.Gedruckt, z.ui.protokoll.size());
  z.Gedruckt = z.ui.protokoll.size();
  if (!k.meldung.empty()) meldungen.push_back({"CalcCurve", k.meldung});
  const bool ok = k.ergebnis == kurve::Fertig && Anzahl(k.punkte) > 0;
  if (a.Json) {
    JsonAusgabe(aus, r, k, meldungen);
  } else {
    MeldungenSchreiben(fehler, meldungen);
    TextAusgabe(aus, r, k);
  }
  if (!ok) fehler << "quor-cli: the curve has no points (result " << k.ergebnis << ")\n";
  return ok ? ExitOK : ExitRechnung;
}

} // namespace quor::cli
