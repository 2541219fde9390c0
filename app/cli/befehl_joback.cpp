// joback: the group-contribution estimate without its window. The counts of the groups go into the
// dialog's table; the critical data (with --tb answering the box of a measured boiling point; without
// it the box is cancelled and the estimate stays), the acentric factor, the formation quantities and
// the ideal-gas cp polynomial are calculated as the dialog's buttons do. Needs no database.
#include "cli/ausgabe.h"
#include "cli/befehle.h"
#include "cli/fehler.h"
#include "core/json_schreiber.h"
#include "substance/joback.h"

#include <ostream>

namespace quor::cli {

namespace {

void Kritisch(JsonSchreiber& j, const char* name, const frmJOBACK& f, double wert) {
  if (f.KritGerechnet)
    j.Feld(name, wert);
  else {
    j.Schluessel(name);
    j.Null();
  }
}

void JsonAusgabe(std::ostream& aus, const frmJOBACK& f, const std::vector<Meldung>& m) {
  JsonSchreiber j;
  j.BeginObjekt();
  j.Feld("M", f.M);
  j.Feld("atoms", JobackAtome(f.Anzahl));
  Kritisch(j, "Tb", f, f.Tb);
  Kritisch(j, "Tf", f, f.Tf);
  Kritisch(j, "Tc", f, f.Tc);
  Kritisch(j, "pc", f, f.pc);
  Kritisch(j, "vc", f, f.vc);
  Kritisch(j, "rhoCr", f, f.rhoCr);
  j.Schluessel("omega");
  if (f.OmegaGerechnet)
    j.Zahl(f.omega);
  else
    j.Null();
  j.Feld("hf", f.hf);
  j.Feld("gf", f.gf);
  j.Schluessel("cp");
  j.BeginListe(true);
  for (const double c : f.C)
    j.Zahl(c);
  j.EndeListe();
  j.Schluessel("messages");
  MeldungenJson(j, m);
  j.EndeObjekt();
  aus << j.Ergebnis();
}

// The values as the dialog shows them.
void TextAusgabe(std::ostream& aus, const frmJOBACK& f) {
  aus << "M = " << f.txtMM << " kg/kmol, " << JobackAtome(f.Anzahl) << " atoms\n";
  aus << "T(LV),NP = " << f.txtTb << " K\n";
  aus << "T(SL) = " << f.txtTf << " K\n";
  aus << "T(cr) = " << f.txtTc << " K\n";
  aus << "p(cr) = " << f.txtpc << " kPa\n";
  aus << "v(cr) = " << f.txtvc << " m^3/kmol\n";
  aus << "rho(cr) = " << f.txtRhoCr << " kg/m^3\n";
  aus << "omega = " << f.txtOmega << "\n";
  aus << "delta(f)H = " << f.txthf << " kJ/kmol\n";
  aus << "delta(f)G = " << f.txtgf << " kJ/kmol\n";
  aus << "cp = C0 + C1*T + C2*T^2 + C3*T^3 (kJ/(kmol K)): " << f.txtC[0] << " " << f.txtC[1] << " "
      << f.txtC[2] << " " << f.txtC[3] << "\n";
}

} // namespace

int BefehlJoback(Sitzung& z, std::ostream& aus, std::ostream& fehler) {
  const Aufruf& a = z.aufruf;
  frmJOBACK f(z.s, z.ui);
  f.Form_Load(JobackKritisch);
  JobackAnzahlen n{};
  for (const auto& [zeile, anzahl] : a.JobackGruppen)
    n[static_cast<std::size_t>(zeile)] += anzahl;
  for (int i = 0; i < JobackGruppen; ++i)
    if (n[static_cast<std::size_t>(i)] > 0)
      f.txtInkr_Change(i, std::to_string(n[static_cast<std::size_t>(i)]));
  z.ui.eingaben.push_back(a.JobackTb ? std::optional<std::string>(KurzText(*a.JobackTb)) : std::nullopt);
  f.cmdCalcCrit();
  z.ui.eingaben.clear();
  f.cmdOmega();
  f.cmdCalcBildung();
  f.cmdCalccp();
  const auto meldungen = Meldungen(z.ui, z.Gedruckt, z.ui.protokoll.size());
  z.Gedruckt = z.ui.protokoll.size();
  if (a.Json) {
    JsonAusgabe(aus, f, meldungen);
  } else {
    MeldungenSchreiben(fehler, meldungen);
    TextAusgabe(aus, f);
  }
  return ExitOK;
}

} // namespace quor::cli
