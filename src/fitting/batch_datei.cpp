#include "fitting/batch_datei.h"

#include "core/datei_io.h"
#include "core/festtext.h"
#include "core/listen_datei.h"
#include "substance/stoff_wahl_suche.h"
#include "substance/synonyme.h"

#include <cmath>
#include <filesystem>

namespace quor {

namespace {

const char* const FehlerTitel = "Message from Sub LadeBatchFile";

// Error texts of the reader, by cause.
const char* const NichtGefunden = "Datei nicht gefunden";
const char* const HinterEnde = "Einlesen hinter Dateiende";
const char* const Unvertraeglich = "Typen unverträglich";
const char* const DurchNull = "Division durch Null";
const char* const AusserhalbBereich = "Index außerhalb des gültigen Bereichs";

bool Melde(ProjectState& s, ui::Oberflaeche& ui, const std::string& grund, const std::string& pfad) {
  ui.Meldung(grund + ":\r\n" + pfad + " (exper. data)", FehlerTitel, ui::Symbol::Kritisch);
  s.Mess.ExpDaten.assign(1, ExpDatenSatz{});
  s.Mess.ExpAnzahl = 0;
  return false;
}

// Position of the file's substance in the database by list name or CAS number; 0 if none.
int16_t StoffPosition(const ProjectState& s, const std::string& name, const std::string& cas) {
  const DatenbankGruppe& db = s.Datenbank;
  const std::string gesucht = GrossSchreibung(name);
  for (int k = 1; k <= db.StoffAnzahl; ++k) {
    if (!name.empty() && GrossSchreibung(NameOhneZusatz(db.NamenListe[k])) == gesucht)
      return static_cast<int16_t>(k);
    if (!cas.empty() && Trim(db.CASListe[k]) == cas) return static_cast<int16_t>(k);
  }
  return 0;
}

// The warning questions of a file for another substance; the command line answers yes, since the
// user named both the file and the substance.
bool StoffFragen(ProjectState& s, ui::Oberflaeche& ui) {
  const MessdatenGruppe& m = s.Mess;
  const int16_t position = StoffPosition(s, m.BatchStoff, m.BatchCAS);
  std::string frage;
  if (position == 0)
    frage = "Stoff nicht in aktueller Datenbank gefunden\r\n\r\n     Daten trotzdem laden?";
  else if (position != s.Datenbank.StoffIndex)
    frage = "Sie versuchen einen Datensatz für einen\r\nfremden Stoff zu laden!\r\n\r\nT-p-rho-Daten "
            "trotzdem laden?";
  if (frage.empty()) return true;
  return ui.Frage(frage, "WARNUNG", ui::Knoepfe::JaNein, ui::Antwort::Ja) == ui::Antwort::Ja;
}

} // namespace

bool LadeBatchDatei(ProjectState& s, ui::Oberflaeche& ui, const std::string& pfad) {
  std::string bytes;
  if (pfad.empty() || !LeseDateiBytes(pfad, bytes)) return Melde(s, ui, NichtGefunden, pfad);

  // First pass: the values behind the row count give the length of a row.
  ListenLeser zaehler(bytes);
  std::string zeile;
  int16_t n = 0;
  for (int i = 0; i < 3; ++i)
    if (!zaehler.LeseZeile(zeile)) return Melde(s, ui, HinterEnde, pfad);
  if (zaehler.AmEnde()) return Melde(s, ui, HinterEnde, pfad);
  if (!zaehler.LeseInt16(n)) return Melde(s, ui, Unvertraeglich, pfad);
  long werte = 0;
  while (!zaehler.AmEnde()) {
    double x = 0;
    if (!zaehler.LeseDouble(x)) return Melde(s, ui, Unvertraeglich, pfad);
    ++werte;
  }
  if (n == 0) return Melde(s, ui, DurchNull, pfad);
  if (n < 0) return Melde(s, ui, AusserhalbBereich, pfad);
  const long spalten = std::lround(static_cast<double>(werte) / n);

  // Second pass: head lines, then the rows.
  MessdatenGruppe& m = s.Mess;
  ListenLeser leser(bytes);
  leser.LeseZeile(m.BatchDatum);
  leser.LeseZeile(m.BatchKommentar);
  leser.LeseZeile(zeile);
  const std::size_t trenner = zeile.find(';');
  m.BatchStoff = Trim(zeile.substr(0, trenner));
  m.BatchCAS = trenner == std::string::npos ? std::string() : Trim(zeile.substr(trenner + 1));
  if (!StoffFragen(s, ui)) return false;
  leser.LeseInt16(n);

  std::vector<ExpDatenSatz> zeilen(1);
  for (int i = 1; i <= n; ++i) {
    ExpDatenSatz z;
    double T = 0, p = 0;
    float rhoV = 0, rhoL = 0, hlv = 0;
    if (!leser.LeseDouble(T) || !leser.LeseDouble(p) || !leser.LeseFloat(rhoV) || !leser.LeseFloat(rhoL) ||
        !leser.LeseFloat(hlv) || (spalten > 5 && !leser.LeseFloat(z.Cp)))
      return Melde(s, ui, leser.AmEnde() ? HinterEnde : Unvertraeglich, pfad);
    z.T = T;
    z.p = p;
    z.RhoV = rhoV;
    z.RhoL = rhoL;
    z.HLV = hlv;
    zeilen.push_back(z);
  }
  m.ExpDaten = std::move(zeilen);
  m.ExpAnzahl = n;
  m.BatchDateiPfad = pfad;
  m.BatchDateiTitel = std::filesystem::u8path(pfad).filename().u8string();
  m.BatchGeaendert = false;
  return true;
}

} // namespace quor
