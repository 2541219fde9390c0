#include "core/projekt_status.h"

#include "core/festtext.h"
#include "core/zahlformat.h"

#include <algorithm>
#include <cctype>
#include <vector>

namespace quor {

const char* const ProjektStatusTitel = " Info Projekt-Status ";

namespace {

using Zeilen = std::vector<std::string>;

std::string GrossAscii(std::string t) {
  std::transform(t.begin(), t.end(), t.begin(), [](unsigned char c) { return std::toupper(c); });
  return t;
}

bool StoffGeladen(const ProjectState& s) {
  return s.Datenbank.StoffIndex > 0 || !s.Stoff.StoffName.empty();
}

void Projekt(const ProjectState& s, Zeilen& z) {
  const ProjektGruppe& p = s.Projekt;
  z.push_back("Projekt");
  const bool datei = p.LetzteSitzung || !p.ProjektDatei.empty();
  if (p.LetzteSitzung)
    z.push_back("    letzte Sitzung");
  else if (datei)
    z.push_back("    " + p.ProjektDatei);
  else
    z.push_back("    neu (noch unbenannt)");
  if (!StoffGeladen(s)) z.push_back("    (noch nicht vollständig definiert)");
  if (datei) z.push_back("    Dateidatum " + p.ProjektDatum);
  z.push_back("    Projektkommentar: " + (p.DateiKommentar.empty() ? std::string("<>") : p.DateiKommentar));
}

void Datenbank(const ProjectState& s, Zeilen& z) {
  const DatenbankGruppe& db = s.Datenbank;
  z.push_back("Stoffdatenbank");
  if (!db.DatenbankGeladen) {
    z.push_back("    (noch keine)");
    return;
  }
  const std::string& pfad = db.DatenbankTyp == 6 ? db.PfadQ06 : db.PfadQ07;
  z.push_back("    " + pfad + " mit " + std::to_string(db.StoffAnzahl) + " Stoff(en)");
}

void Stoff(const ProjectState& s, Zeilen& z) {
  z.push_back("Stoff");
  if (!StoffGeladen(s)) {
    z.push_back("    noch kein Stoff");
    return;
  }
  z.push_back("    " + s.Stoff.Formel + "   " + s.Stoff.StoffName + "   CAS-RN: " + s.Stoff.CASRN);
}

void Messdaten(const ProjectState& s, Zeilen& z) {
  const MessdatenGruppe& m = s.Mess;
  z.push_back("experimentelle T-p-rho-HLV-cp-Daten");
  if (m.ExpAnzahl < 1) {
    z.push_back("    keine");
    return;
  }
  const std::string n = std::to_string(m.ExpAnzahl);
  if (m.BatchDateiPfad.empty()) {
    z.push_back("    " + n + (m.ExpAnzahl == 1 ? " exper. Punkt" : " exper. Punkte") + " verfügbar,");
    z.push_back("    noch nicht gespeichert.");
    return;
  }
  const std::string& name = m.BatchDateiTitel.empty() ? m.BatchDateiPfad : m.BatchDateiTitel;
  z.push_back("    File " + name + " vom " + m.BatchDatum);
  z.push_back("    mit " + n + " experimentellen Punkten");
  z.push_back("    Stoff: " + m.BatchStoff);
  z.push_back("    Dateikommentar:" + (m.BatchKommentar.empty() ? std::string("<>") : m.BatchKommentar));
  if (DatenfileStoffFremd(s)) {
    z.push_back("WARNUNG:");
    z.push_back("Der Stoff dieses Datenfiles stimmt nicht mit dem Stoff des Projekts überein.");
  }
}

void Vorgaben(const ProjectState& s, Zeilen& z) {
  const EinheitenGruppe& e = s.Einheiten;
  z.push_back("Vorgabe-Parameter für isotherme, isobare, isochore Diagramme");
  z.push_back("    T/K = " + SingleText(e.TVorgabe) + ", p/kPa = " + SingleText(e.pVorgabe) +
              ", v/(m^3/kmol) = " + SingleText(e.vVorgabe));
  const int16_t eos = s.Modell.EOSIndex;
  if (eos >= 0 && eos < static_cast<int16_t>(s.Tab.EOSNamen.size()) && e.vVorgabe > 0)
    z.push_back("    (Der v-Parameter v(crit.) wurde mit der " + Trim(s.Tab.EOSNamen[eos]) + " berechnet.)");
}

} // namespace

bool DatenfileStoffFremd(const ProjectState& s) {
  const MessdatenGruppe& m = s.Mess;
  const std::string casDatei = Trim(m.BatchCAS);
  const std::string casStoff = Trim(s.Stoff.CASRN);
  if (!casDatei.empty() && !casStoff.empty()) return casDatei != casStoff;
  const std::string name = Trim(m.BatchStoff);
  if (name.empty()) return false;
  return GrossAscii(name) != GrossAscii(Trim(s.Stoff.StoffName));
}

std::string ProjektStatusText(const ProjectState& s) {
  std::vector<Zeilen> abschnitte(6);
  Projekt(s, abschnitte[0]);
  Datenbank(s, abschnitte[1]);
  Stoff(s, abschnitte[2]);
  Messdaten(s, abschnitte[3]);
  Vorgaben(s, abschnitte[4]);
  abschnitte[5].push_back("(weitere geladene Projekt-Parameter s. unter \"Modelle\" und \"Optionen\")");
  std::string text;
  for (const Zeilen& a : abschnitte) {
    if (!text.empty()) text += "\r\n";
    for (const std::string& zeile : a)
      text += zeile + "\r\n";
  }
  return text;
}

} // namespace quor
