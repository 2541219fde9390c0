#include "substance/projekt_laden.h"

#include "core/datei_io.h"
#include "core/daten_diagnose.h"
#include "core/festtext.h"
#include "core/listen_datei.h"
#include "core/projekt_datei.h"
#include "dienste/oberflaeche.h"
#include "engine/eos_zeilen.h"
#include "engine/korrelationen.h"
#include "substance/datenbank.h"
#include "substance/korrelierte_parameter.h"
#include "substance/stoff_laden.h"
#include "substance/stoff_wahl_suche.h"

namespace quor {

const char* const NurProjekteMeldung = "Es werden nur *.QC6-Projekte unterstützt";
const char* const AlteDatenbankenMeldung = "Datenbanken *.Q04 oder *.Q05 werden nicht mehr unterstützt";

namespace {

constexpr const char* Routine = "ProjektLaden";
constexpr const char* NichtMoeglich = "Ausführung nicht möglich";

void MeldeBruch(ui::Oberflaeche& ui, const LeseFehler& f) {
  MeldeLaufzeitfehler(ui, Routine, f.Grund + " (Zeile " + std::to_string(f.Zeile) + ")");
}

// The database the project names, when its kind is one of the database kinds. False when the load
// must stop: the database is missing and none is held.
bool DatenbankDesProjekts(ProjectState& s, int kind, const std::string& name, ui::Oberflaeche& ui) {
  if (kind <= 5) return true;
  const bool gehalten = s.Datenbank.DatenbankGeladen;
  int16_t failed = 0;
  bool leer = false;
  LadeDatenbank(s, kind, name, failed, leer);
  if (failed == 0 && !leer) {
    MeldeUnvollstaendig(s, name, ui);
    return true;
  }
  if (!gehalten) {
    ui.Meldung("Projekt-Datenbank " + name + " im QUOR-Verzeichnis nicht gefunden", NichtMoeglich,
               ui::Symbol::Kritisch);
    return false;
  }
  ui.Meldung("Datenbank " + name +
                 " im QUOR-Verzeichnis nicht gefunden bzw. leer.\r\n"
                 "Die aktuell geladene Bank wird weiter verwendet.",
             "Hinweis", ui::Symbol::Information);
  return true;
}

// The project's substance, found by CAS number in the open database and loaded with what a choice in
// the list brings: status bar and data diagnosis.
bool StoffDesProjekts(ProjectState& s, const std::string& cas, ui::Oberflaeche& ui) {
  const std::string nummer = Trim(cas);
  const int16_t index = nummer.empty() ? 0 : IndexVonCAS(s, nummer);
  if (index < 1) {
    ui.Meldung("CAS-Nr. " + nummer + " (Stoff nicht in aktueller Datenbank)", NichtMoeglich,
               ui::Symbol::Ausruf);
    return false;
  }
  s.Datenbank.StoffIndex = index;
  int16_t failed = 0;
  LadeStoff(s, index, failed); // a record without critical data is loaded all the same
  const StoffGruppe& st = s.Stoff;
  s.Projekt.StatusLeiste[2] = st.StoffName;
  DatenDiagnose(s);
  return true;
}

// What follows the settings: the correlated set of the project's vapour-pressure equation, the
// presets of the diagrams from the critical point where the project holds none, and the menus of a
// chosen substance.
void NachDenEinstellungen(ProjectState& s) {
  const StoffGruppe& st = s.Stoff;
  s.Modell.VirialFlag = eos::IstVirial(s.Modell.EOSIndex); // the vapour-only family
  if (s.Modell.DampfdruckIndex > AugustKorreliert)
    KorrelierteParameter(s, s.Modell.DampfdruckIndex, st.TKrit, st.pKrit, st.TSiede);
  EinheitenGruppe& e = s.Einheiten;
  if (e.TVorgabe == 0) e.TVorgabe = static_cast<float>(st.TKrit);
  if (e.pVorgabe == 0) e.pVorgabe = static_cast<float>(st.pKrit);
  MenueFreigaben& f = s.Projekt.Freigaben;
  f.Stoff = true;
  f.KritischerPunkt = st.TKrit > 1e-6 && st.pKrit > 1e-6;
}

bool EndetAuf(const std::string& text, const std::string& ende) {
  if (text.size() < ende.size()) return false;
  for (std::size_t i = 0; i < ende.size(); ++i) {
    char c = text[text.size() - ende.size() + i];
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    if (c != ende[i]) return false;
  }
  return true;
}

bool AlteDatenbank(const std::string& pfad) {
  const std::string p = Trim(pfad);
  return EndetAuf(p, ".Q04") || EndetAuf(p, ".Q05");
}

std::string VorschauStoff(const ProjectState& s, const std::string& cas) {
  const std::string nummer = Trim(cas);
  const int16_t index = nummer.empty() ? 0 : IndexVonCAS(s, nummer);
  if (index < 1 || index >= static_cast<int>(s.Datenbank.NamenListe.size()))
    return nummer + "  (Stoff nicht in aktueller Datenbank gefunden)";
  return nummer + "  " + NameOhneZusatz(s.Datenbank.NamenListe[index]);
}

std::string VorschauText(const ProjectState& s, const ProjektKopf& k) {
  const std::string daten =
      k.BatchDatei.empty() ? "keine" : k.BatchDatei + " (" + std::to_string(k.ExpAnzahl) + " Punkte)";
  return "gespeichert am:  " + k.Datum + "\r\n" +
         "Kommentar:       " + (k.Kommentar == KeinKommentar ? std::string() : k.Kommentar) + "\r\n" +
         "Datenbank:       " + k.Datenbank + "\r\n" + "exper. Daten:    " + daten + "\r\n" +
         "CAS-Nr.:         " + VorschauStoff(s, k.CAS);
}

} // namespace

void ProjektLaden(ProjectState& s, const std::string& pfad, std::string& batchFile, int16_t& kind,
                  int16_t& failed, ui::Oberflaeche& ui) {
  const std::string voll = PfadIn(s.Datenbank.ProgrammVerzeichnis, pfad);
  std::string bytes;
  if (!LeseDateiBytes(voll, bytes)) {
    batchFile.clear();
    kind = 0;
    failed = -1;
    MeldeLaufzeitfehler(ui, Routine, "Datei nicht gefunden\r\n" + voll);
    return;
  }
  ProjektLadenAusBytes(s, voll, bytes, batchFile, kind, failed, ui);
}

void ProjektLadenAusBytes(ProjectState& s, const std::string& pfad, const std::string& bytes,
                          std::string& batchFile, int16_t& kind, int16_t& failed, ui::Oberflaeche& ui) {
  batchFile.clear();
  kind = 0;
  failed = -1;
  ListenLeser leser(bytes);
  ProjektKopf kopf;
  LeseFehler fehler;
  if (!LeseKopfAnfang(leser, kopf, fehler)) return MeldeBruch(ui, fehler);
  ProjektGruppe& p = s.Projekt;
  p.LetzteSitzung = IstLetzteSitzung(pfad);
  p.ProjektDatum = kopf.Datum;
  p.DateiKommentar = kopf.Kommentar == KeinKommentar ? std::string() : kopf.Kommentar;
  kind = static_cast<int16_t>(DatenbankArtVonPfad(kopf.Datenbank));
  if (!DatenbankDesProjekts(s, kind, kopf.Datenbank, ui)) return;

  if (!LeseKopfRest(leser, kopf, fehler)) return MeldeBruch(ui, fehler);
  batchFile = kopf.BatchDatei;
  if (!batchFile.empty()) s.Mess.ExpAnzahl = kopf.ExpAnzahl;
  if (!StoffDesProjekts(s, kopf.CAS, ui)) return;

  if (!LeseEinstellungen(leser, s, fehler)) return MeldeBruch(ui, fehler);
  NachDenEinstellungen(s);
  failed = 0;
}

bool ProjektVorschau(const ProjectState& s, const std::string& pfad, std::string& text, ui::Oberflaeche& ui) {
  text.clear();
  if (AlteDatenbank(pfad)) {
    ui.Meldung(AlteDatenbankenMeldung, NichtMoeglich, ui::Symbol::Ausruf);
    return false;
  }
  std::string bytes;
  ProjektKopf kopf;
  LeseFehler fehler;
  bool projekt = EndetAuf(Trim(pfad), ProjektEndung) && LeseDateiBytes(pfad, bytes);
  if (projekt) {
    ListenLeser leser(bytes);
    projekt = LeseKopfAnfang(leser, kopf, fehler) && LeseKopfRest(leser, kopf, fehler);
  }
  if (!projekt) {
    ui.Meldung(NurProjekteMeldung, NichtMoeglich, ui::Symbol::Ausruf);
    return false;
  }
  if (AlteDatenbank(kopf.Datenbank)) {
    ui.Meldung(AlteDatenbankenMeldung, NichtMoeglich, ui::Symbol::Ausruf);
    return false;
  }
  text = VorschauText(s, kopf);
  return true;
}

} // namespace quor
