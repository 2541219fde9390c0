// Project files (.QC6) and the last session: which database and substance were in use and every
// model and option choice, as text read value after value. The head (date, comment, database,
// batch file, number of measured points, CAS number) is six lines; the settings follow as values.
#pragma once

#include "core/listen_datei.h"
#include "core/project_state.h"

#include <string>

namespace quor {

namespace ui {
class Oberflaeche;
}

extern const char* const ProjektEndung;       // ".QC6"
extern const char* const ProjektDateiFilter;  // "QUOR-Projektdatei (*.QC6)|*.QC6"
extern const char* const KommentarTitel;      // " Datei-Kommentar (optional) "
extern const char* const KommentarHinweis;    // "<Abbrechen> = kein Kommentar"
extern const char* const SpeichernUnterTitel; // "aktuelles Projekt speichern unter ..."
extern const char* const KeinKommentar;       // "<>", the comment line of a project without one

// The six head lines of a project file, as written.
struct ProjektKopf {
  std::string Datum;
  std::string Kommentar; // "<>" for none
  std::string Datenbank;
  std::string BatchDatei; // name without directory, may be empty
  int16_t ExpAnzahl = 0;
  std::string CAS; // 12 characters
};

// Why a read of a project file broke off, as the run-time message words it.
struct LeseFehler {
  std::string Grund;
  std::size_t Zeile = 0;
};

// Head lines 1 to 3, then 4 to 6; false with the reason at the first one missing or unreadable.
bool LeseKopfAnfang(ListenLeser& leser, ProjektKopf& kopf, LeseFehler& fehler);
bool LeseKopfRest(ListenLeser& leser, ProjektKopf& kopf, LeseFehler& fehler);

// Items 7 to 32 straight into the project state, each as soon as it is read: a file that breaks off
// leaves those before the break in place. A value outside its table counts as the table's first row.
bool LeseEinstellungen(ListenLeser& leser, ProjectState& s, LeseFehler& fehler);

// The database kind of a path: the number value of its last character; 0 for a letter or nothing.
int DatenbankArtVonPfad(const std::string& pfad);

// True when the last 19 characters of the path in capitals name the last-session file.
bool IstLetzteSitzung(const std::string& pfad);

// A name without a directory is taken in `verzeichnis`; a path with one stays as it is.
std::string PfadIn(const std::string& verzeichnis, const std::string& pfad);
std::string DateiTeil(const std::string& pfad);       // the name behind the last separator
std::string VerzeichnisTeil(const std::string& pfad); // everything before it, "" for a bare name

// Today's date and time as the first line of a project file ("dd.mm.yyyy hh:mm:ss").
std::string ProjektDatumJetzt();

// The whole text of a project file (UTF-8, lines ended by CR LF) for the state as it stands.
std::string ProjektText(const ProjectState& s, const std::string& datum);

// Writes the project. The last-session file goes to the program's directory without a question;
// any other file asks for the comment first and is taken in the project directory when the path
// has none. False (after the message) when the file cannot be written.
bool ProjektSchreiben(ProjectState& s, const std::string& pfad, ui::Oberflaeche& ui);

// The save dialog, then ProjektSchreiben; the chosen file becomes the project's directory and
// name. False when cancelled or not written.
bool ProjektSpeichernUnter(ProjectState& s, ui::Oberflaeche& ui);

// The message of a run-time error of a routine: "Meldung von Sub <routine>:" and the reason.
void MeldeLaufzeitfehler(ui::Oberflaeche& ui, const std::string& routine, const std::string& grund);

} // namespace quor
