// calc: one direct calculation, started from its menu entry; the value dialog takes the given values.
#include "calc/rechnung_starten.h"
#include "cli/ausgabe.h"
#include "cli/befehle.h"
#include "cli/fehler.h"
#include "cli/steuerung.h"
#include "process/kessel.h"

#include <optional>
#include <ostream>

namespace quor::cli {

namespace {

// The vessel picture's texts: its caption, the pressure field at the gauge and the fill level.
void KesselText(std::ostream& aus, const prozess::frmKessel& k) {
  aus << "\n" << k.Caption << "\n" << prozess::frmKessel::GaugeText << ": " << k.txtDruck << "\n";
  if (!k.lblFuellstand.empty()) aus << k.lblFuellstand << "\n";
}

void KesselJson(JsonSchreiber& j, const prozess::frmKessel& k, const BehaelterDaten& b) {
  j.BeginObjekt();
  j.Feld("caption", k.Caption);
  j.Feld("pressure", k.txtDruck);
  j.Feld("fillLevel", k.lblFuellstand);
  j.Feld("BehaelterP", b.BehaelterP);
  j.Feld("BehaelterFuellstand", b.BehaelterFuellstand);
  j.Feld("BehaelterHoehe", b.BehaelterHoehe);
  j.Feld("BehaelterStatus", b.BehaelterStatus);
  j.EndeObjekt();
}

} // namespace

int BefehlCalc(Sitzung& z, std::ostream& aus, std::ostream& fehler) {
  const Aufruf& a = z.aufruf;
  z.DatenbankOeffnen();
  z.StoffUndModelle();
  ProjectState& s = z.s;
  Steuerung steuerung(z);
  steuerung.Starten(static_cast<int16_t>(a.Art), false, fehler);
  frmQCalcOut* seite = steuerung.Seite();
  if (seite == nullptr) throw CliFehler(ExitRechnung, "no result page was opened");
  steuerung.ZusatzBloecke(fehler);
  const bool exit = steuerung.Geschlossen();
  const RechenKontext& k = seite->Kontext;
  const bool ok = !exit && !k.ErrorFlag && !SeiteZeigtFehler(seite->Seite);
  const BezugspunktInfo& bezug = steuerung.Bezug();
  // Kinds 9 and 10 end on the vessel picture.
  std::optional<prozess::frmKessel> kessel;
  if (!exit && steuerung.Behaelter()) {
    kessel.emplace(s, *steuerung.Behaelter());
    kessel->Form_Load();
  }

  const auto meldungen = Meldungen(z.ui, z.Gedruckt, z.ui.protokoll.size());
  z.Gedruckt = z.ui.protokoll.size();
  if (a.Json) {
    JsonSchreiber j;
    j.BeginObjekt();
    j.Feld("ok", ok);
    j.Feld("kind", a.Art);
    j.Feld("title", seite->Caption);
    j.Schluessel("substance");
    StoffJson(j, s);
    j.Schluessel("models");
    ModelleJson(j, s);
    if (bezug.benutzt) {
      j.Schluessel("referencePoint");
      BezugspunktJson(j, s, bezug);
    }
    j.Schluessel("page");
    SeiteJson(j, seite->Seite);
    j.Feld("HatL", k.HatL);
    j.Feld("HatV", k.HatV);
    j.Feld("Gebiet", s.EOS.Gebiet);
    j.Schluessel("VRoots");
    j.BeginListe(true);
    for (const double v : s.EOS.VRoots)
      j.Zahl(v);
    j.EndeListe();
    j.Schluessel("Ergebnis");
    ErgebnisJson(j, k.Ergebnis);
    j.Schluessel("ErgebnisVektor");
    ErgebnisVektorJson(j, k.Ergebnis);
    j.Schluessel("StapelErgebnis");
    StapelErgebnisJson(j, k.StapelErgebnisse.at(0));
    if (kessel) {
      j.Schluessel("vessel");
      KesselJson(j, *kessel, s.Rechnung.Behaelter);
    }
    j.Schluessel("messages");
    MeldungenJson(j, meldungen);
    j.EndeObjekt();
    aus << j.Ergebnis();
  } else {
    MeldungenSchreiben(fehler, meldungen);
    if (bezug.benutzt) aus << BezugspunktText(s, bezug) << "\n";
    if (!exit) aus << SeitenText(seite->Caption, seite->Seite);
    if (kessel) KesselText(aus, *kessel);
  }
  if (!ok) fehler << "quor-cli: the calculation failed" << (exit ? " (the page closed at once)" : "") << "\n";
  return ok ? ExitOK : ExitRechnung;
}

} // namespace quor::cli
