#include "cli/ausgabe.h"

#include "calc/protokoll.h"
#include "calc/rechnung_starten.h"
#include "cli/sitzung.h"

#include <map>
#include <ostream>

namespace quor::cli {

std::vector<Meldung> Meldungen(const ui::SkriptOberflaeche& ui, std::size_t ab, std::size_t bis) {
  std::vector<Meldung> liste;
  for (std::size_t i = ab; i < bis && i < ui.protokoll.size(); ++i) {
    const ui::Aufzeichnung& a = ui.protokoll[i];
    if (a.art != "Meldung" && a.art != "Frage") continue;
    // The question whether T and p lie on the saturation line is answered by --equilibrium.
    if (a.art == "Frage" && a.text == TpFrageText) continue;
    bool schonDa = false;
    for (const Meldung& m : liste)
      schonDa = schonDa || (m.titel == a.titel && m.text == a.text);
    if (!schonDa) liste.push_back({a.titel, a.text});
  }
  return liste;
}

std::string MitLF(std::string text) {
  for (std::size_t i = text.find("\r\n"); i != std::string::npos; i = text.find("\r\n", i))
    text.erase(i, 1);
  for (char& c : text)
    if (c == '\r') c = '\n';
  return text;
}

void MeldungenSchreiben(std::ostream& aus, const std::vector<Meldung>& meldungen) {
  for (const Meldung& m : meldungen) {
    std::string text = MitLF(m.text);
    for (std::size_t i = text.find('\n'); i != std::string::npos; i = text.find('\n', i + 3))
      text.insert(i + 1, "  ");
    aus << (m.titel.empty() ? std::string("Meldung") : ZeilenText(m.titel)) << ": " << text << "\n";
  }
}

void MeldungenJson(JsonSchreiber& j, const std::vector<Meldung>& meldungen) {
  j.BeginListe();
  for (const Meldung& m : meldungen) {
    j.BeginObjekt();
    j.Feld("title", m.titel);
    j.Feld("text", m.text);
    j.EndeObjekt();
  }
  j.EndeListe();
}

std::string SeitenText(const std::string& titel, const ErgebnisSeite& seite) {
  std::string aus = titel + "\n";
  auto zeile = [&aus](const SeitenFeld& f) {
    if (f.sichtbar && !f.text.empty()) aus += MitLF(f.text) + "\n";
  };
  zeile(seite.par1);
  zeile(seite.par2);
  zeile(seite.co1);
  zeile(seite.txtco2);
  if (seite.lblGleich.sichtbar && !seite.lblGleich.text.empty()) {
    aus += seite.lblGleich.text;
    if (seite.lblIdentisch.sichtbar && !seite.lblIdentisch.text.empty()) aus += " " + seite.lblIdentisch.text;
    aus += "\n";
  }
  std::string phasen;
  for (const SeitenFeld* f : {&seite.lblLphase, &seite.lblVphase})
    if (f->sichtbar && !f->text.empty()) phasen += (phasen.empty() ? "" : "   ") + f->text;
  if (!phasen.empty()) aus += phasen + "\n";
  if (!seite.Liste.text.empty()) {
    std::string liste = MitLF(seite.Liste.text);
    if (liste.back() != '\n') liste += '\n';
    aus += "\n" + liste;
  }
  return aus;
}

void StoffJson(JsonSchreiber& j, const ProjectState& s) {
  j.BeginObjekt();
  j.Feld("StoffName", s.Stoff.StoffName);
  j.Feld("Formel", s.Stoff.Formel);
  j.Feld("CASRN", s.Stoff.CASRN);
  j.Feld("MDBNr", s.Stoff.MDBNr);
  j.Feld("StoffIndex", s.Datenbank.StoffIndex);
  j.EndeObjekt();
}

void ModelleJson(JsonSchreiber& j, const ProjectState& s) {
  const ModelSelection& m = s.Modell;
  const Tabellen& t = s.Tab;
  auto text = [](const auto& tabelle, int i) {
    return i >= 0 && static_cast<std::size_t>(i) < tabelle.size() ? ZeilenText(tabelle[i]) : std::string();
  };
  j.BeginObjekt();
  j.Feld("EOSIndex", m.EOSIndex);
  j.Feld("EOS", text(t.EOSNamen, m.EOSIndex));
  j.Feld("VirialFlag", m.VirialFlag);
  j.Feld("DampfdruckIndex", m.DampfdruckIndex);
  j.Feld("DampfdruckTag", m.DampfdruckTag);
  j.Feld("Dampfdruck", text(t.DampfdruckNamen, m.DampfdruckIndex));
  j.Feld("HLVIndex", m.HLVIndex);
  j.Feld("HLV", text(t.HLVNamen, m.HLVIndex));
  j.Feld("CpIndex", m.CpIndex);
  j.Feld("Cp", text(t.CpNamen, m.CpIndex));
  j.Feld("WatsonExp", m.WatsonExp);
  j.Feld("KonzeptGlobal", m.KonzeptGlobal);
  j.Feld("RechnungGlobal", m.RechnungGlobal);
  j.Feld("BensonDichte", m.BensonDichte);
  j.EndeObjekt();
}

void SeiteJson(JsonSchreiber& j, const ErgebnisSeite& seite) {
  const std::pair<const char*, const SeitenFeld*> felder[] = {{"par1", &seite.par1},
                                                              {"par2", &seite.par2},
                                                              {"co1", &seite.co1},
                                                              {"txtco2", &seite.txtco2},
                                                              {"Liste", &seite.Liste},
                                                              {"lblGleich", &seite.lblGleich},
                                                              {"lblIdentisch", &seite.lblIdentisch},
                                                              {"lblLphase", &seite.lblLphase},
                                                              {"lblVphase", &seite.lblVphase}};
  j.BeginObjekt();
  for (const auto& [name, f] : felder) {
    j.Schluessel(name);
    j.BeginObjekt();
    j.Feld("text", f->text);
    j.Feld("red", f->farbe == TextFarbe::Rot);
    j.Feld("visible", f->sichtbar);
    if (!f->tooltip.empty()) j.Feld("tooltip", f->tooltip);
    j.EndeObjekt();
  }
  j.EndeObjekt();
}

const std::vector<std::string>& ErgebnisNamen() {
  static const std::vector<std::string> namen = [] {
    const auto& spalten = ProtokollSpalten();
    std::map<std::string, int> anzahl;
    for (const std::string& n : spalten)
      ++anzahl[n];
    std::vector<std::string> v;
    for (std::size_t i = 0; i < spalten.size(); ++i)
      v.push_back(anzahl[spalten[i]] > 1 ? spalten[i] + "_" + std::to_string(i) : spalten[i]);
    return v;
  }();
  return namen;
}

void ErgebnisJson(JsonSchreiber& j, const ErgebnisVektor& e) {
  const auto& namen = ErgebnisNamen();
  j.BeginObjekt();
  for (std::size_t i = 0; i < e.size() && i < namen.size(); ++i)
    j.Feld(namen[i], e[i]);
  j.EndeObjekt();
}

void ErgebnisVektorJson(JsonSchreiber& j, const ErgebnisVektor& e) {
  j.BeginListe(true);
  for (const double x : e)
    j.Zahl(x);
  j.EndeListe();
}

namespace {

template <std::size_t Z, std::size_t S>
void Tabelle(JsonSchreiber& j, const char* name, const std::array<std::array<float, S>, Z>& t) {
  j.Schluessel(name);
  j.BeginListe();
  for (const auto& zeile : t) {
    j.BeginListe(true);
    for (const float x : zeile)
      j.Zahl(x);
    j.EndeListe();
  }
  j.EndeListe();
}

} // namespace

void StapelErgebnisJson(JsonSchreiber& j, const StapelErgebnis& z) {
  j.BeginObjekt();
  j.Feld("Phase", z.Phase);
  j.Feld("TCalc", z.TCalc);
  j.Feld("pCalc", z.pCalc);
  j.Feld("rhoVCalc", z.rhoVCalc);
  j.Feld("rhoLCalc", z.rhoLCalc);
  j.Feld("dhCalc", z.dhCalc);
  Tabelle(j, "Abl1", z.Abl1);
  Tabelle(j, "Abl2", z.Abl2);
  Tabelle(j, "Fuga", z.Fuga);
  Tabelle(j, "Mech", z.Mech);
  j.Feld("TFu", z.TFu);
  j.Feld("pFu", z.pFu);
  j.Feld("vFu", z.vFu);
  j.Feld("hFu", z.hFu);
  j.Feld("sFu", z.sFu);
  j.Feld("gFu", z.gFu);
  j.Feld("eHFu", z.eHFu);
  j.Feld("eUFu", z.eUFu);
  j.EndeObjekt();
}

bool SeiteZeigtFehler(const ErgebnisSeite& seite) {
  for (const SeitenFeld* f : {&seite.par1, &seite.par2, &seite.co1, &seite.txtco2, &seite.Liste})
    if (f->farbe == TextFarbe::Rot) return true;
  return false;
}

} // namespace quor::cli
