#include "cli/steuerung.h"

#include "calc/calc_eingabe.h"
#include "calc/parinput.h"
#include "calc/rechen_befehle.h"
#include "cli/ausgabe.h"
#include "cli/fehler.h"
#include "core/rechen_art.h"

#include <map>
#include <ostream>

namespace quor::cli {

namespace {

// The command-line option that fills a field of the value dialog.
const char* OptionVon(ParinputGroesse g, bool volumen) {
  switch (g) {
  case ParinputGroesse::T:
    return "--T";
  case ParinputGroesse::p:
    return "--p";
  case ParinputGroesse::Rho:
    return volumen ? "--v" : "--rho";
  case ParinputGroesse::V:
    return "--V";
  case ParinputGroesse::m:
    return "--m";
  default:
    return "";
  }
}

} // namespace

Steuerung::Steuerung(Sitzung& z) : z_(z), ablauf_(z.s, z.ui, Ansicht()) {}

RechnungsAblauf::Ansicht Steuerung::Ansicht() {
  RechnungsAblauf::Ansicht a;
  a.CalcInZeigen = [this] { CalcInZeigen(); };
  a.SeiteAnlegen = [this] {
    seite_ = std::make_unique<frmQCalcOut>(z_.s, z_.ui, z_.s.Rechnung.StapelModus);
    seite_->Kontext.BehaelterAnzeige = [this](const BehaelterZustand& b) { behaelter_ = b; };
    return seite_.get();
  };
  a.SeiteGeladen = [this](bool offen) { geschlossen_ = !offen; };
  a.SeiteSchliessen = [this] {
    seite_->Form_Unload();
    geschlossen_ = true;
  };
  a.ParinputZeigen = [this] { ParinputZeigen(); };
  return a;
}

void Steuerung::Starten(int16_t art, bool stapel, std::ostream& fehler) {
  ProjectState& s = z_.s;
  const Aufruf& a = z_.aufruf;
  std::string name;
  int index = 0;
  if (!MenueVonArt(art, name, index))
    throw Eingabefehler("kind " + std::to_string(art) + " has no menu entry");
  s.Rechnung.StapelModus = stapel;
  if (a.Gleichgewicht && (art != art::Tp || stapel)) throw Eingabefehler("--equilibrium belongs to calc 3");
  // The question whether T and p lie on the saturation line is answered by --equilibrium.
  if (art == art::Tp && !stapel)
    z_.ui.antworten.push_back(a.Gleichgewicht ? ui::Antwort::Ja : ui::Antwort::Nein);
  ablauf_.Menue(name, index);
  z_.ui.antworten.clear();
  if (s.RechenArt == art::Keine)
    throw Eingabefehler("the calculation of kind " + std::to_string(art) + " cannot start");
  if (a.Bezugspunkt && !bezug_.benutzt)
    fehler << "quor-cli: note: --ref-point is not used by this calculation; ignored\n";
}

void Steuerung::CalcInZeigen() {
  const Aufruf& a = z_.aufruf;
  frmCalcIn dialog(z_.s, z_.ui, ablauf_.Fenster());
  dialog.Form_Load();
  if (a.KonzeptGlobal) {
    if (*a.KonzeptGlobal && !dialog.opt_globEnabled[0])
      throw Eingabefehler("--concept global: this calculation is a PARTIAL one");
    dialog.opt_glob_Click(*a.KonzeptGlobal ? 0 : 1);
    if (dialog.opt_glob != (*a.KonzeptGlobal ? 0 : 1)) throw Eingabefehler("--concept global is refused");
  }
  if (a.BensonDichte && dialog.PartialSichtbar) dialog.optPartialBenson_Click(*a.BensonDichte ? 1 : 0);
  if (a.Bezugspunkt && dialog.PartialSichtbar) {
    dialog.Ref_opt_Click(2);
    dialog.RefInput_Click();
  }
  bezug_.benutzt = dialog.PartialSichtbar;
  bezug_.vorgeschlagen = dialog.Ref_opt == 0;
  bezug_.bericht = dialog.RefVorschlag;
  dialog.OK_Click();
}

void Steuerung::ParinputZeigen() {
  const Aufruf& a = z_.aufruf;
  frmParinput dialog(z_.s, z_.ui, [this] { return ablauf_.Berechnen(); });
  dialog.Form_Load();
  if (z_.s.Rechnung.ParinputModus == ParinputBezugspunkt) {
    for (std::size_t i = 0; i < dialog.Felder.size() && i < 4; ++i)
      dialog.Felder[i].par = (*a.Bezugspunkt)[i];
    if (!dialog.cmdParameter_OK_Click()) throw Eingabefehler("--ref-point is refused by the input dialog");
    return;
  }
  // The given values go into the dialog's fields; each field needs one, and each value a field.
  if (dialog.fraRhoVInputVisible) dialog.optRhoV_Click(a.v ? 1 : 0);
  const std::string kind = "calc " + std::to_string(a.Art);
  std::map<std::string, bool> genommen;
  std::string noetig;
  for (ParinputFeld& f : dialog.Felder) {
    if (!f.enabled) continue;
    const std::string option = OptionVon(f.groesse, dialog.optRhoV == 1);
    noetig += " " + option;
    const auto text = a.Text.find(option);
    if (text != a.Text.end()) {
      f.par = text->second;
      genommen[option] = true;
    }
  }
  for (ParinputFeld& f : dialog.Felder) {
    const std::string option = OptionVon(f.groesse, dialog.optRhoV == 1);
    if (f.enabled && !genommen[option]) throw Eingabefehler(kind + " needs" + noetig);
  }
  for (const char* option : {"--T", "--p", "--rho", "--v", "--m", "--V"})
    if (a.Gegeben.count(option) != 0 && !genommen[option])
      throw Eingabefehler(kind + " does not use " + option);
  const std::size_t vorher = z_.ui.protokoll.size();
  dialog.cmdParameter_OK_Click();
  for (std::size_t i = vorher; i < z_.ui.protokoll.size(); ++i)
    if (z_.ui.protokoll[i].text == frmParinput::UngueltigText)
      throw Eingabefehler(kind + ": the value dialog refused the input");
}

void Steuerung::ZusatzBloecke(std::ostream& fehler) {
  const Aufruf& a = z_.aufruf;
  frmQCalcOut* seite = seite_.get();
  if (seite == nullptr || geschlossen_) return;
  if (a.AbschnitteGegeben && a.Abschnitte > 1) {
    if (!seite->fraCalcErweitertVisible || !seite->ResPlusEnabled) {
      fehler << "quor-cli: note: --sections is not offered for kind " << a.Art << "; ignored\n";
    } else {
      if (a.Abschnitte == 2 || a.Abschnitte == 4) seite->ResPlus_Click(0, true);
      if (a.Abschnitte >= 3) seite->ResPlus_Click(1, true);
    }
  }
  if (a.Funktionen && !seite->Kontext.MitFunktionen) {
    if (!seite->fraCalcErweitertVisible || !seite->chkUHSEnabled)
      fehler << "quor-cli: note: --functions is not offered for kind " << a.Art << "; ignored\n";
    else
      seite->chkUHS_Click(true);
  }
}

void BezugspunktJson(JsonSchreiber& j, const ProjectState& s, const BezugspunktInfo& b) {
  const ReferenzGruppe& r = s.Referenz;
  j.BeginObjekt();
  j.Feld("BezugT", r.BezugT);
  j.Feld("BezugP", r.BezugP);
  j.Feld("BezugRhoL", r.BezugRhoL);
  j.Feld("BezugRhoV", r.BezugRhoV);
  j.Feld("BezugGueltig", r.BezugGueltig);
  j.Feld("proposed", b.vorgeschlagen);
  j.Feld("report", b.bericht);
  j.EndeObjekt();
}

std::string BezugspunktText(const ProjectState& s, const BezugspunktInfo& b) {
  const ReferenzGruppe& r = s.Referenz;
  std::string text = std::string("Bezugspunkt (PARTIAL)") + (b.vorgeschlagen ? ", Vorschlag" : "") +
                     (r.BezugGueltig ? "" : ", nicht gültig") + ":\n";
  return text + MitLF(b.bericht.empty() ? quor::BezugspunktText(s) : b.bericht) + "\n";
}

} // namespace quor::cli
