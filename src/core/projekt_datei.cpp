#include "core/projekt_datei.h"

#include "core/datei_io.h"
#include "core/festtext.h"
#include "core/rahmen.h"
#include "core/text_kodierung.h"
#include "dienste/oberflaeche.h"

#include <ctime>
#include <type_traits>

namespace quor {

const char* const ProjektEndung = ".QC6";
const char* const ProjektDateiFilter = "QUOR-Projektdatei (*.QC6)|*.QC6";
const char* const KommentarTitel = " Datei-Kommentar (optional) ";
const char* const KommentarHinweis = "<Abbrechen> = kein Kommentar";
const char* const SpeichernUnterTitel = "aktuelles Projekt speichern unter ...";
const char* const KeinKommentar = "<>";

namespace {

constexpr const char* EndeGrund = "Einlesen hinter Dateiende";
constexpr const char* TypGrund = "Typen unverträglich";
constexpr std::size_t CASBreite = 12;

bool Gebrochen(ListenLeser& leser, LeseFehler& fehler, const char* grund) {
  fehler.Grund = grund;
  fehler.Zeile = leser.Zeile();
  return false;
}

// One value of the settings; the end of the file and a value of the wrong type are told apart.
template <typename T> bool Wert(ListenLeser& leser, LeseFehler& fehler, T& ziel) {
  if (leser.AmEnde()) return Gebrochen(leser, fehler, EndeGrund);
  T wert{};
  bool ok = false;
  if constexpr (std::is_same_v<T, double>)
    ok = leser.LeseDouble(wert);
  else if constexpr (std::is_same_v<T, float>)
    ok = leser.LeseFloat(wert);
  else if constexpr (std::is_same_v<T, int16_t>)
    ok = leser.LeseInt16(wert);
  else if constexpr (std::is_same_v<T, bool>)
    ok = leser.LeseBool(wert, true); // a project's booleans are true when they read -1
  else
    ok = leser.LeseText(wert);
  if (!ok) return Gebrochen(leser, fehler, TypGrund);
  ziel = wert;
  return true;
}

bool Zeile(ListenLeser& leser, LeseFehler& fehler, std::string& ziel) {
  if (!leser.LeseZeile(ziel)) return Gebrochen(leser, fehler, EndeGrund);
  return true;
}

// A table row read from the file; one outside [0, letzte] becomes `ersatz`.
bool Tabellenwert(ListenLeser& leser, LeseFehler& fehler, int16_t& ziel, int letzte, int16_t ersatz = 0) {
  int16_t wert = 0;
  if (!Wert(leser, fehler, wert)) return false;
  ziel = wert >= 0 && wert <= letzte ? wert : ersatz;
  return true;
}

bool LeseAnzeige(ListenLeser& leser, LeseFehler& fehler, ProjectState& s) {
  EinheitenGruppe& e = s.Einheiten;
  OptionenGruppe& o = s.Optionen;
  if (!Wert(leser, fehler, e.TVorgabe) || !Wert(leser, fehler, e.pVorgabe) ||
      !Wert(leser, fehler, e.vVorgabe))
    return false;
  double faktor = 1;
  if (!Wert(leser, fehler, faktor)) return false;
  e.EnergieFaktor = faktor > 0 ? faktor : 1;
  if (!Tabellenwert(leser, fehler, e.VolumenMode, 2) || !Tabellenwert(leser, fehler, e.EnergieMode, 3) ||
      !Wert(leser, fehler, o.KurveTpBeschraenkt))
    return false;
  int16_t punkte = 0;
  if (!Wert(leser, fehler, punkte)) return false;
  o.PunktDichte = punkte >= 1 ? punkte : 500;
  std::string trenner;
  if (!Wert(leser, fehler, trenner)) return false;
  o.CsvTrenner = trenner.size() == 1 ? trenner[0] : ';';
  return true;
}

bool LeseModelle(ListenLeser& leser, LeseFehler& fehler, ProjectState& s) {
  ModelSelection& m = s.Modell;
  if (!Tabellenwert(leser, fehler, m.DampfdruckIndex, 8)) return false;
  m.DampfdruckTag = m.DampfdruckIndex < 1 ? KeinKommentar : DampfdruckTagVon(m.DampfdruckIndex);
  // -1 (none) becomes 0 as well
  // The last row of the EOS table; the loader of the substance derives the model's family from it.
  if (!Tabellenwert(leser, fehler, m.EOSIndex, static_cast<int16_t>(s.Tab.EOSNamen.size() - 1))) return false;
  return Tabellenwert(leser, fehler, m.CpIndex, 2) && Tabellenwert(leser, fehler, m.HLVIndex, 7) &&
         Wert(leser, fehler, m.WatsonExp) && Wert(leser, fehler, m.KonzeptGlobal);
}

bool LeseReferenz(ListenLeser& leser, LeseFehler& fehler, ProjectState& s) {
  ReferenzGruppe& r = s.Referenz;
  int16_t art = 1;
  if (!Wert(leser, fehler, art)) return false;
  r.RefArt = art == 1 || art == 2 || art == 10 ? art : 1;
  return Wert(leser, fehler, r.hRef) && Wert(leser, fehler, r.sRef) && Wert(leser, fehler, r.TRef) &&
         Wert(leser, fehler, r.pRef);
}

bool LeseRest(ListenLeser& leser, LeseFehler& fehler, ProjectState& s) {
  OptionenZusatz& z = s.Zusatz;
  if (!Wert(leser, fehler, z.ProzessStart1) || !Wert(leser, fehler, z.ProzessStart2) ||
      !Wert(leser, fehler, z.ProzessOption) || !Tabellenwert(leser, fehler, s.Mess.FitSpalte, 5, 1) ||
      !Wert(leser, fehler, s.Optionen.ParSpeichern))
    return false;
  float reserviert = 0;
  for (int i = 0; i < 3; ++i)
    if (!Wert(leser, fehler, reserviert)) return false;
  return true;
}

std::string EineZeile(std::string text) {
  for (char& c : text)
    if (c == '\r' || c == '\n') c = ' ';
  return text;
}

std::string Grossbuchstaben(std::string text) {
  for (char& c : text)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return text;
}

bool HatVerzeichnis(const std::string& pfad) {
  return pfad.find_first_of("/\\") != std::string::npos;
}

void SchreibeKopf(ListenSchreiber& w, const ProjectState& s, const std::string& datum) {
  const DatenbankGruppe& db = s.Datenbank;
  const MessdatenGruppe& m = s.Mess;
  const std::string& kommentar = s.Projekt.DateiKommentar;
  const std::string batch = m.BatchDateiPfad.empty() ? m.BatchDateiTitel : DateiTeil(m.BatchDateiPfad);
  for (const std::string& zeile : {datum, kommentar.empty() ? std::string(KeinKommentar) : kommentar,
                                   db.DatenbankTyp == 6 ? db.PfadQ06 : db.PfadQ07, batch}) {
    w.Roh(EineZeile(zeile));
    w.ZeileEnde();
  }
  w.Ganz(m.ExpAnzahl);
  w.ZeileEnde();
  w.Roh(FestText(EineZeile(s.Stoff.CASRN), CASBreite));
  w.ZeileEnde();
}

void SchreibeEinstellungen(ListenSchreiber& w, const ProjectState& s) {
  const EinheitenGruppe& e = s.Einheiten;
  const OptionenGruppe& o = s.Optionen;
  const ModelSelection& m = s.Modell;
  const ReferenzGruppe& r = s.Referenz;
  const OptionenZusatz& z = s.Zusatz;
  for (float v : {e.TVorgabe, e.pVorgabe, e.vVorgabe})
    w.Zahl(o.ParSpeichern ? v : 0.0f);
  w.ZeileEnde();
  w.Zahl(e.EnergieFaktor);
  w.ZeileEnde();
  w.Ganz(e.VolumenMode);
  w.Ganz(e.EnergieMode);
  w.ZeileEnde();
  w.Bool(o.KurveTpBeschraenkt);
  w.Ganz(o.PunktDichte);
  w.ZeileEnde();
  w.Text(std::string(1, o.CsvTrenner));
  w.ZeileEnde();
  for (int16_t i : {m.DampfdruckIndex, m.EOSIndex, m.CpIndex, m.HLVIndex})
    w.Ganz(i);
  w.Zahl(m.WatsonExp);
  w.Bool(m.KonzeptGlobal);
  w.ZeileEnde();
  w.Ganz(r.RefArt);
  w.Zahl(r.hRef);
  w.Zahl(r.sRef);
  w.Zahl(r.TRef);
  w.Zahl(r.pRef);
  w.ZeileEnde();
  w.Zahl(z.ProzessStart1);
  w.Zahl(z.ProzessStart2);
  w.Ganz(z.ProzessOption);
  w.ZeileEnde();
  w.Ganz(s.Mess.FitSpalte);
  w.Bool(o.ParSpeichern);
  w.ZeileEnde();
  for (int i = 0; i < 3; ++i)
    w.Zahl(0.0f);
  w.ZeileEnde();
}

} // namespace

bool LeseKopfAnfang(ListenLeser& leser, ProjektKopf& kopf, LeseFehler& fehler) {
  if (!Zeile(leser, fehler, kopf.Datum) || !Zeile(leser, fehler, kopf.Kommentar) ||
      !Zeile(leser, fehler, kopf.Datenbank))
    return false;
  kopf.Datenbank = Trim(kopf.Datenbank);
  return true;
}

bool LeseKopfRest(ListenLeser& leser, ProjektKopf& kopf, LeseFehler& fehler) {
  if (!Zeile(leser, fehler, kopf.BatchDatei) || !Wert(leser, fehler, kopf.ExpAnzahl) ||
      !Zeile(leser, fehler, kopf.CAS))
    return false;
  kopf.BatchDatei = Trim(kopf.BatchDatei);
  return true;
}

bool LeseEinstellungen(ListenLeser& leser, ProjectState& s, LeseFehler& fehler) {
  return LeseAnzeige(leser, fehler, s) && LeseModelle(leser, fehler, s) && LeseReferenz(leser, fehler, s) &&
         LeseRest(leser, fehler, s);
}

int DatenbankArtVonPfad(const std::string& pfad) {
  const std::string p = Trim(pfad);
  if (p.empty()) return 0;
  const char c = p.back();
  return c >= '0' && c <= '9' ? c - '0' : 0;
}

bool IstLetzteSitzung(const std::string& pfad) {
  const std::string name = Grossbuchstaben(LetzteSitzungDatei);
  return pfad.size() >= name.size() && Grossbuchstaben(pfad.substr(pfad.size() - name.size())) == name;
}

std::string PfadIn(const std::string& verzeichnis, const std::string& pfad) {
  if (HatVerzeichnis(pfad) || verzeichnis.empty()) return pfad;
  return verzeichnis.back() == '/' ? verzeichnis + pfad : verzeichnis + "/" + pfad;
}

std::string DateiTeil(const std::string& pfad) {
  const std::size_t p = pfad.find_last_of("/\\");
  return p == std::string::npos ? pfad : pfad.substr(p + 1);
}

std::string VerzeichnisTeil(const std::string& pfad) {
  const std::size_t p = pfad.find_last_of("/\\");
  if (p == std::string::npos) return std::string();
  return p == 0 ? pfad.substr(0, 1) : pfad.substr(0, p);
}

std::string ProjektDatumJetzt() {
  const std::time_t jetzt = std::time(nullptr);
  std::tm zeit{};
  localtime_r(&jetzt, &zeit);
  char text[32];
  std::strftime(text, sizeof text, "%d.%m.%Y %H:%M:%S", &zeit);
  return text;
}

std::string ProjektText(const ProjectState& s, const std::string& datum) {
  ListenSchreiber w;
  SchreibeKopf(w, s, datum);
  SchreibeEinstellungen(w, s);
  return w.Utf8();
}

bool ProjektSchreiben(ProjectState& s, const std::string& pfad, ui::Oberflaeche& ui) {
  ProjektGruppe& p = s.Projekt;
  std::string ziel;
  if (IstLetzteSitzung(pfad)) {
    ziel = PfadIn(s.Datenbank.ProgrammVerzeichnis, LetzteSitzungDatei);
  } else {
    const auto kommentar = ui.Eingabe(KommentarHinweis, KommentarTitel, p.DateiKommentar);
    p.DateiKommentar = kommentar ? EineZeile(*kommentar) : std::string();
    ziel = PfadIn(p.ProjektVerzeichnis, pfad);
  }
  const std::string datum = ProjektDatumJetzt();
  if (!SchreibeDateiBytes(ziel, Utf8ZuWin1252(ProjektText(s, datum)))) {
    MeldeLaufzeitfehler(ui, "ProjektSchreiben", "Pfad/Datei-Zugriffsfehler\r\n" + ziel);
    return false;
  }
  p.ProjektDatum = datum;
  return true;
}

bool ProjektSpeichernUnter(ProjectState& s, ui::Oberflaeche& ui) {
  ProjektGruppe& p = s.Projekt;
  ui::DateiDialog dialog;
  dialog.titel = SpeichernUnterTitel;
  dialog.filter = ProjektDateiFilter;
  dialog.standardEndung = ProjektEndung;
  dialog.startVerzeichnis = p.ProjektVerzeichnis;
  dialog.dateiName = p.ProjektDatei;
  const auto pfad = ui.DateiSpeichern(dialog);
  if (!pfad || pfad->empty() || !ProjektSchreiben(s, *pfad, ui)) return false;
  const std::string verzeichnis = VerzeichnisTeil(*pfad);
  if (!verzeichnis.empty()) p.ProjektVerzeichnis = verzeichnis;
  p.ProjektDatei = DateiTeil(*pfad);
  return true;
}

void MeldeLaufzeitfehler(ui::Oberflaeche& ui, const std::string& routine, const std::string& grund) {
  ui.Meldung("Meldung von Sub " + routine + ":\r\n" + grund, "Fehler bei " + routine, ui::Symbol::Kritisch);
}

} // namespace quor
