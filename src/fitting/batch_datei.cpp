#include "fitting/batch_datei.h"

#include "calc/protokoll.h"
#include "core/datei_io.h"
#include "core/festtext.h"
#include "core/listen_datei.h"
#include "core/projekt_datei.h"
#include "core/text_kodierung.h"
#include "substance/stoff_wahl_suche.h"

#include <cmath>
#include <limits>

namespace quor {

namespace {

const char* const FehlerTitel = "Message from Sub LadeBatchFile";

// Error texts of the reader, by cause.
const char* const NichtGefunden = "Datei nicht gefunden";
const char* const HinterEnde = "Einlesen hinter Dateiende";
const char* const Unvertraeglich = "Typen unverträglich";
const char* const DurchNull = "Division durch Null";
const char* const AusserhalbBereich = "Index außerhalb des gültigen Bereichs";
const char* const Ueberlauf = "Überlauf";

// Widths of the name and CAS fields of a substance record.
constexpr std::size_t NamenBreiteSatz = 107;
constexpr std::size_t CASBreite = 12;
// Lines of a file shown in the preview.
constexpr int VorschauZeilen = 40;

bool Melde(ProjectState& s, ui::Oberflaeche& ui, const std::string& grund, const std::string& pfad) {
  ui.Meldung(grund + ":\r\n" + pfad + " (exper. data)", FehlerTitel, ui::Symbol::Kritisch);
  s.Mess.ExpDaten.assign(1, ExpDatenSatz{});
  s.Mess.ExpAnzahl = 0;
  return false;
}

// To the nearest integer, halves to the even neighbour.
long RundeHalbGerade(double x) {
  const double unten = std::floor(x);
  const double abstand = x - unten;
  if (abstand > 0.5 || (abstand == 0.5 && std::fmod(unten, 2.0) != 0)) return static_cast<long>(unten) + 1;
  return static_cast<long>(unten);
}

// First pass: behind three lines the row count, then every value to the end; their ratio is the
// length of a row. An error text, or nullptr with `spalten` set.
const char* ZeilenLaenge(const std::string& bytes, long& spalten) {
  ListenLeser leser(bytes);
  std::string zeile;
  for (int i = 0; i < 3; ++i)
    if (!leser.LeseZeile(zeile)) return HinterEnde;
  if (leser.AmEnde()) return HinterEnde;
  int16_t n = 0;
  if (!leser.LeseInt16(n)) return Unvertraeglich;
  long werte = 0;
  for (double x = 0; !leser.AmEnde(); ++werte)
    if (!leser.LeseDouble(x)) return Unvertraeglich;
  if (n == 0) return DurchNull;
  spalten = RundeHalbGerade(static_cast<double>(werte) / n);
  return nullptr;
}

// Line 3: the substance's name, and behind a ";" its CAS number.
void StoffZeile(MessdatenGruppe& m, const std::string& zeile) {
  const std::size_t trenner = zeile.find(';');
  m.BatchStoff = Trim(zeile.substr(0, trenner));
  if (trenner != std::string::npos) m.BatchCAS = Trim(zeile.substr(trenner + 1));
}

// The warning questions for a substance that the database lacks or that isn't the current one;
// true when the load goes on.
bool StoffFragen(const ProjectState& s, ui::Oberflaeche& ui) {
  const int16_t position = IndexInDenListen(s, s.Mess.BatchStoff);
  if (position == 0) {
    if (ui.Frage("Stoff nicht in aktueller Datenbank gefunden\r\n\r\n     Daten trotzdem laden?", "WARNUNG",
                 ui::Knoepfe::JaNein, ui::Antwort::Ja) != ui::Antwort::Ja)
      return false;
    if (s.Datenbank.StoffIndex >= 1) return true;
    ui.Meldung("Laden Sie vorher einen Stoff!", "WARNUNG", ui::Symbol::Ausruf);
    return false;
  }
  if (position == s.Datenbank.StoffIndex) return true;
  return ui.Frage("Sie versuchen einen Datensatz für einen\r\nfremden Stoff zu laden!\r\n\r\n"
                  "T-p-rho-Daten trotzdem laden?",
                  "WARNUNG", ui::Knoepfe::JaNein, ui::Antwort::Ja) == ui::Antwort::Ja;
}

// The rows of the file: five values each, six when the row length says so. An error text or nullptr.
const char* LeseZeilen(ListenLeser& leser, int16_t n, long spalten, std::vector<ExpDatenSatz>& zeilen) {
  for (int i = 1; i <= n; ++i) {
    ExpDatenSatz z;
    if (!leser.LeseDouble(z.T) || !leser.LeseDouble(z.p) || !leser.LeseFloat(z.RhoV) ||
        !leser.LeseFloat(z.RhoL) || !leser.LeseFloat(z.HLV) || (spalten > 5 && !leser.LeseFloat(z.Cp)))
      return leser.AmEnde() ? HinterEnde : Unvertraeglich;
    zeilen.push_back(z);
  }
  return nullptr;
}

} // namespace

bool LadeBatchDatei(ProjectState& s, ui::Oberflaeche& ui, const std::string& pfad, bool anfuegen) {
  s.Mess.BatchCAS.clear();
  if (pfad.empty()) return false;
  std::string bytes;
  if (!LeseDateiBytes(pfad, bytes)) return Melde(s, ui, NichtGefunden, pfad);
  return LadeBatchDateiAusBytes(s, ui, pfad, bytes, anfuegen);
}

bool LadeBatchDateiAusBytes(ProjectState& s, ui::Oberflaeche& ui, const std::string& pfad,
                            const std::string& bytes, bool anfuegen) {
  MessdatenGruppe& m = s.Mess;
  m.BatchCAS.clear();
  long spalten = 0;
  if (const char* fehler = ZeilenLaenge(bytes, spalten)) return Melde(s, ui, fehler, pfad);

  // Second pass: head lines, the questions, then the rows.
  ListenLeser leser(bytes);
  std::string zeile;
  leser.LeseZeile(m.BatchDatum);
  leser.LeseZeile(m.BatchKommentar);
  leser.LeseZeile(zeile);
  StoffZeile(m, zeile);
  if (!StoffFragen(s, ui)) return false;
  int16_t n = 0;
  leser.LeseInt16(n);
  if (n < 0) return Melde(s, ui, AusserhalbBereich, pfad);
  const int alt = anfuegen ? m.ExpAnzahl : 0;
  if (alt + n > std::numeric_limits<int16_t>::max()) return Melde(s, ui, Ueberlauf, pfad);

  std::vector<ExpDatenSatz> zeilen(m.ExpDaten.begin(), m.ExpDaten.begin() + 1);
  if (anfuegen) zeilen.assign(m.ExpDaten.begin(), m.ExpDaten.begin() + alt + 1);
  if (const char* fehler = LeseZeilen(leser, n, spalten, zeilen)) return Melde(s, ui, fehler, pfad);
  m.ExpDaten = std::move(zeilen);
  m.ExpAnzahl = static_cast<int16_t>(alt + n);
  m.BatchDateiPfad = pfad;
  m.BatchDateiTitel = DateiTeil(pfad);
  m.BatchGeaendert = false;
  return true;
}

std::string BatchText(const ProjectState& s, const std::string& datum) {
  const MessdatenGruppe& m = s.Mess;
  ListenSchreiber w;
  w.Roh(datum);
  w.ZeileEnde();
  w.Roh(m.BatchKommentar);
  w.ZeileEnde();
  w.Roh(FestText(s.Stoff.StoffName, NamenBreiteSatz) + ";" + FestText(s.Stoff.CASRN, CASBreite));
  w.ZeileEnde();
  long aktiv = 0;
  for (int i = 1; i <= m.ExpAnzahl; ++i)
    aktiv += m.ExpDaten[static_cast<std::size_t>(i)].Inaktiv ? 0 : 1;
  w.Ganz(aktiv);
  w.ZeileEnde();
  for (int i = 1; i <= m.ExpAnzahl; ++i) {
    const ExpDatenSatz& z = m.ExpDaten[static_cast<std::size_t>(i)];
    if (z.Inaktiv) continue;
    for (double x : {z.T, z.p}) {
      w.Zahl(x);
      w.ZeileEnde();
    }
    // The file's order: rho(V) before rho(L).
    for (float x : {z.RhoV, z.RhoL, z.HLV, z.Cp}) {
      w.Zahl(x);
      w.ZeileEnde();
    }
  }
  return w.Utf8();
}

bool SchreibeBatchDatei(const ProjectState& s, const std::string& pfad) {
  return SchreibeDateiBytes(pfad, Utf8ZuWin1252(BatchText(s, SystemDatum())));
}

bool UeberschreibenErlaubt(ui::Oberflaeche& ui, const std::string& pfad) {
  return !DateiExistiert(pfad) ||
         ui.Frage("Eine solche Datei ist bereits vorhanden.\r\nÜberschreiben?", "WARNUNG",
                  ui::Knoepfe::JaNein, ui::Antwort::Nein) == ui::Antwort::Ja;
}

bool BatchSpeichernUnter(ProjectState& s, ui::Oberflaeche& ui) {
  MessdatenGruppe& m = s.Mess;
  ui::DateiDialog d;
  d.titel = "experimentelle Daten speichern als Textdatei *.BAQ";
  d.filter = "systemeigene BAQ-Datei (*.BAQ)|*.BAQ";
  d.standardEndung = ".BAQ";
  d.startVerzeichnis =
      m.BatchDateiPfad.empty() ? s.Datenbank.ProgrammVerzeichnis : VerzeichnisTeil(m.BatchDateiPfad);
  d.dateiName = m.BatchDateiTitel;
  const auto pfad = ui.DateiSpeichern(d);
  if (!pfad || pfad->empty() || !UeberschreibenErlaubt(ui, *pfad)) return false;
  if (!SchreibeBatchDatei(s, *pfad)) {
    ui.Meldung("Die Datei " + *pfad +
                   "\r\nkann nicht geschrieben werden.\r\nDie Daten sind nicht gespeichert.",
               "Fehler beim Speichern", ui::Symbol::Kritisch);
    return false;
  }
  m.BatchDateiPfad = *pfad;
  m.BatchDateiTitel = DateiTeil(*pfad);
  m.BatchGeaendert = false;
  return true;
}

bool BatchVorschau(const std::string& pfad, std::string& text) {
  text.clear();
  std::string bytes;
  if (!LeseDateiBytes(pfad, bytes)) return true;
  ListenLeser leser(bytes);
  std::string zeile;
  for (int i = 0; i < VorschauZeilen && leser.LeseZeile(zeile); ++i)
    text += (i > 0 ? "\r\n" : "") + zeile;
  return true;
}

} // namespace quor
