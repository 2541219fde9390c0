// iso: the iso-line calculator without its window. From T (or p) and a start value of the other, the
// calculator holds one function of a phase at the value given in the display unit of the options and
// finds the p (or T) that belongs to it, in kPa or K.
#include "calc/calc_batch.h"
#include "cli/ausgabe.h"
#include "cli/befehle.h"
#include "cli/fehler.h"
#include "core/rechen_art.h"
#include "core/zahl_lesen.h"
#include "process/iso_rechner.h"

#include <ostream>

namespace quor::cli {

namespace {

using namespace prozess;

int16_t FunktionVon(const std::string& fix) {
  const char* const namen[IsoFunktionen] = {"v", "h", "s", "g", "u", "eh", "eu", "a"};
  for (int16_t i = 0; i < IsoFunktionen; ++i)
    if (fix == namen[i]) return i;
  return 0;
}

// The state the calculator starts from, as the result page of kind 8 leaves it: the given value and
// the first trial of the free one (--start, else the normal pressure or the standard temperature).
void StartZustand(Sitzung& z, RechenKontext& k) {
  const Aufruf& a = z.aufruf;
  ExpDatenSatz& zeile = z.s.Mess.ExpDaten.at(0);
  zeile.T = a.T ? *a.T : a.IsoStart.value_or(TStandard);
  zeile.p = a.p ? *a.p : a.IsoStart.value_or(pNormal);
  ErgebnisSeite seite;
  int16_t punkt = 0;
  double p = 0;
  float eta = 0;
  std::string ausgang;
  z.s.RechenArt = art::Funktionen;
  CalcBatch(z.s, z.ui, seite, k, art::Funktionen, punkt, p, eta, ausgang);
}

void JsonAusgabe(std::ostream& aus, const Aufruf& a, const frmIsoCalc& iso, const ProjectState& s,
                 const std::vector<Meldung>& m) {
  const ExpDatenSatz& zeile = s.Mess.ExpDaten.at(0);
  JsonSchreiber j;
  j.BeginObjekt();
  j.Feld("given", a.T ? "T" : "p");
  j.Feld("fixed", a.IsoFix);
  j.Feld("value", LeseZahl(*a.IsoWert).wert);
  j.Feld("phase", a.ProzessPhase == PhaseL ? "L" : "V");
  j.Feld("solved", iso.Geloest);
  j.Feld("result", iso.txtTpCalc);
  j.Feld("unit", iso.lblFuEinheit);
  if (iso.Geloest) {
    j.Feld("T", zeile.T);
    j.Feld("p", zeile.p);
  }
  j.Schluessel("messages");
  MeldungenJson(j, m);
  j.EndeObjekt();
  aus << j.Ergebnis();
}

} // namespace

int BefehlIso(Sitzung& z, std::ostream& aus, std::ostream& fehler) {
  const Aufruf& a = z.aufruf;
  z.DatenbankOeffnen();
  z.StoffUndModelle();
  RechenKontext k;
  StartZustand(z, k);
  frmIsoCalc iso(z.s, z.ui, k);
  const bool geladen = iso.Form_Load();
  if (geladen) {
    iso.optIsoTp_Click(a.T ? IsoTGegeben : IsoPGegeben);
    iso.optIsoPhase_Click(a.ProzessPhase);
    iso.OptIsoFu_Click(FunktionVon(a.IsoFix));
    iso.txtTpVorgabe = a.Text.at(a.T ? "--T" : "--p");
    iso.txtFuConst = *a.IsoWert;
    iso.cmdCalc_Click();
  }
  const auto meldungen = Meldungen(z.ui, z.Gedruckt, z.ui.protokoll.size());
  z.Gedruckt = z.ui.protokoll.size();
  if (a.Json) {
    JsonAusgabe(aus, a, iso, z.s, meldungen);
  } else {
    MeldungenSchreiben(fehler, meldungen);
    const ExpDatenSatz& zeile = z.s.Mess.ExpDaten.at(0);
    if (iso.Geloest)
      aus << (a.T ? "p = " + KurzText(zeile.p) + " kPa" : "T = " + KurzText(zeile.T) + " K") << "\n";
  }
  if (!iso.Geloest) {
    if (geladen) fehler << "quor-cli: " << frmIsoCalc::KeineLoesung << "\n";
    return ExitRechnung;
  }
  return ExitOK;
}

} // namespace quor::cli
