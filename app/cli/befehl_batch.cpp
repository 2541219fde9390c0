// batch: every live point of a measured-data file through the result page in batch mode, with the
// result list (.LST) and the record (CSV) written by the page itself.
#include "calc/bericht.h"
#include "cli/ausgabe.h"
#include "cli/befehle.h"
#include "cli/fehler.h"
#include "cli/steuerung.h"
#include "core/datei_io.h"
#include "core/festtext.h"
#include "core/rechen_art.h"
#include "core/zahlformat.h"
#include "fitting/batch_datei.h"

#include <cmath>
#include <filesystem>
#include <ostream>

namespace quor::cli {

namespace {

struct PunktErgebnis {
  int16_t punkt = 0;
  bool ok = false;
  ExpDatenSatz vorgabe;
  StapelErgebnis satz;
  ErgebnisVektor ergebnis{};
  std::string fehlerText; // what the page shows in red
  std::vector<Meldung> meldungen;
};

std::string RoterText(const ErgebnisSeite& seite) {
  for (const SeitenFeld* f : {&seite.par1, &seite.par2, &seite.txtco2, &seite.co1, &seite.Liste})
    if (f->farbe == TextFarbe::Rot && !f->text.empty()) return Trim(MitLF(f->text));
  return std::string();
}

// One line of a point: its number and phase, the given T and p, then every calculated value.
std::string PunktZeile(int16_t rechenArt, const PunktErgebnis& e) {
  std::string z = RechtsBuendig(std::to_string(e.punkt), 5) + "  " + (e.ok ? e.satz.Phase : "---") + " ";
  auto wert = [&z](const char* name, double x, const char* einheit) {
    if (std::fabs(x) > 1e-6)
      z += std::string("  ") + name + " = " + SingleText(static_cast<float>(x)) + einheit;
  };
  wert("T", e.vorgabe.T, " K");
  wert("p", e.vorgabe.p, " kPa");
  if (!e.ok) return z + "  " + (e.fehlerText.empty() ? "kein Ergebnis" : e.fehlerText);
  const StapelErgebnis& s = e.satz;
  if (rechenArt == art::Funktionen) {
    wert("h", s.hFu, "");
    wert("s", s.sFu, "");
    wert("g", s.gFu, "");
    return z;
  }
  wert("T(calc)", s.TCalc, " K");
  wert("p(calc)", s.pCalc, " kPa");
  wert("rhoV(calc)", s.rhoVCalc, " kg/m^3");
  wert("rhoL(calc)", s.rhoLCalc, " kg/m^3");
  wert("delta(LV)h(calc)", s.dhCalc, "");
  return z;
}

void PunktJson(JsonSchreiber& j, const PunktErgebnis& e) {
  j.BeginObjekt();
  j.Feld("Punkt", e.punkt);
  j.Feld("ok", e.ok);
  j.Schluessel("Vorgabe");
  j.BeginObjekt();
  j.Feld("T", e.vorgabe.T);
  j.Feld("p", e.vorgabe.p);
  j.Feld("RhoV", e.vorgabe.RhoV);
  j.Feld("RhoL", e.vorgabe.RhoL);
  j.Feld("HLV", e.vorgabe.HLV);
  j.Feld("Cp", e.vorgabe.Cp);
  j.EndeObjekt();
  if (!e.ok) j.Feld("error", e.fehlerText);
  j.Schluessel("StapelErgebnis");
  StapelErgebnisJson(j, e.satz);
  j.Schluessel("Ergebnis");
  ErgebnisJson(j, e.ergebnis);
  j.Schluessel("messages");
  MeldungenJson(j, e.meldungen);
  j.EndeObjekt();
}

} // namespace

int BefehlBatch(Sitzung& z, std::ostream& aus, std::ostream& fehler) {
  const Aufruf& a = z.aufruf;
  z.DatenbankOeffnen();
  z.StoffUndModelle();
  ProjectState& s = z.s;
  const auto art = static_cast<int16_t>(a.Art);
  if (!LadeBatchDatei(s, z.ui, AbsoluterPfad(a.Daten)))
    throw Eingabefehler("cannot read the data file " + a.Daten);
  if (s.Mess.ExpAnzahl < 1) throw Eingabefehler("the data file " + a.Daten + " holds no points");

  Steuerung steuerung(z);
  steuerung.Starten(art, true, fehler);
  if (steuerung.Seite() == nullptr) throw CliFehler(ExitRechnung, "no result page was opened");
  frmQCalcOut& seite = *steuerung.Seite();
  const BezugspunktInfo& bezug = steuerung.Bezug();
  steuerung.ZusatzBloecke(fehler);
  if (!a.Lst.empty() && !(seite.fraResultOutputVisible && seite.fraResultOutputEnabled))
    throw Eingabefehler("--lst: kind " + std::to_string(a.Art) + " has no result list");

  std::vector<Meldung> vorher = Meldungen(z.ui, z.Gedruckt, z.ui.protokoll.size());
  z.Gedruckt = z.ui.protokoll.size();
  std::vector<PunktErgebnis> punkte;
  for (int16_t n = 1; n <= seite.Kontext.AnzahlPunkte; ++n) {
    if (PunktGeloescht(s.Mess, n)) continue;
    seite.AktuellerPunkt = n;
    const std::size_t ab = z.ui.protokoll.size();
    seite.Rechnen();
    PunktErgebnis e;
    e.punkt = n;
    e.vorgabe = s.Mess.ExpDaten[n];
    e.satz = seite.Kontext.StapelErgebnisse.at(n);
    e.ergebnis = seite.Kontext.Ergebnis;
    e.ok = !seite.Kontext.ErrorFlag && !SeiteZeigtFehler(seite.Seite);
    e.fehlerText = e.ok ? std::string() : RoterText(seite.Seite);
    e.meldungen = Meldungen(z.ui, ab, z.ui.protokoll.size());
    punkte.push_back(e);
    if (!a.Csv.empty() && e.ok) seite.cmdProtokoll_Click();
  }
  z.Gedruckt = z.ui.protokoll.size();

  // Closing the page writes the list (after the file dialog, answered with the name) and the record.
  std::string lstPfad, csvPfad;
  if (!a.Lst.empty()) {
    lstPfad = BerichtDateiName(a.Lst, std::filesystem::current_path().u8string());
    seite.optResultPrint_Click(AusgabeDatei);
    if (a.Details) seite.chkFuncPrint_Click(true);
    z.ui.dateien.push_back(lstPfad);
  }
  if (!a.Csv.empty()) {
    csvPfad = AbsoluterPfad(a.Csv);
    seite.Protokoll.ProtokollDatei = csvPfad;
  }
  if (a.Details && (a.Lst.empty() || !seite.chkFuncPrintEnabled))
    fehler << "quor-cli: note: --details needs --lst and --sections 2 or more with a kind below 6; ignored\n";
  seite.cmdCalc_OK_Click();
  const std::vector<Meldung> danach = Meldungen(z.ui, z.Gedruckt, z.ui.protokoll.size());
  z.Gedruckt = z.ui.protokoll.size();

  MeldungenSchreiben(fehler, vorher);
  if (a.Json) {
    JsonSchreiber j;
    j.BeginListe();
    for (const PunktErgebnis& e : punkte)
      PunktJson(j, e);
    j.EndeListe();
    aus << j.Ergebnis();
  } else {
    if (bezug.benutzt) aus << BezugspunktText(s, bezug) << "\n";
    aus << seite.Caption << "\n";
    for (const PunktErgebnis& e : punkte) {
      aus << PunktZeile(art, e) << "\n";
      if (e.meldungen.empty()) continue;
      fehler << "point " << e.punkt << ":\n";
      MeldungenSchreiben(fehler, e.meldungen);
    }
  }
  MeldungenSchreiben(fehler, danach);
  bool alleOk = true, einerOk = false;
  for (const PunktErgebnis& e : punkte) {
    alleOk = alleOk && e.ok;
    einerOk = einerOk || e.ok;
  }
  if (!lstPfad.empty() && !DateiExistiert(lstPfad))
    throw Eingabefehler("the file " + lstPfad + " was not written");
  // The record holds the points with a result; without one there is no file.
  if (!csvPfad.empty() && einerOk && !DateiExistiert(csvPfad))
    throw Eingabefehler("the file " + csvPfad + " was not written");
  if (!alleOk) fehler << "quor-cli: the calculation failed for at least one point\n";
  return alleOk ? ExitOK : ExitRechnung;
}

} // namespace quor::cli
