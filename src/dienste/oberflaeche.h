// The services of the user interface that the program logic asks for: message boxes, questions,
// the input box, file dialogs, the clipboard, the printer, child processes and help. The logic of
// every dialog talks to this interface only; the toolkit implements it, tests script it.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quor::ui {

enum class Symbol { Keins, Information, Ausruf, Kritisch, Frage };
enum class Knoepfe { OK, OKAbbrechen, JaNein, JaNeinAbbrechen };
enum class Antwort { OK, Abbrechen, Ja, Nein };

// A file dialog. `filter` is written "description|pattern|description|pattern", e.g.
// "QUOR-Projektdatei (*.QC6)|*.QC6"; `standardEndung` (".QC6") is added to a name typed without one.
struct DateiDialog {
  std::string titel;
  std::string filter;
  std::string standardEndung;
  std::string startVerzeichnis;
  std::string dateiName; // proposed name (save) or preselected file (open)
};

// Text and line output to a printer; positions and widths are in points (1/72 inch) from the top
// left corner of the printable area. `DruckeText` writes at the current position and moves to the
// start of the next line, like a line printer.
class Drucker {
public:
  virtual ~Drucker() = default;
  // Lets the user choose the printer (or a PDF file); false when cancelled or none is available.
  virtual bool StartDokument(const std::string& dokumentName) = 0;
  virtual void Schrift(const std::string& name, double groesse, bool fett = false) = 0;
  virtual double TextBreite(const std::string& text) = 0;
  virtual double ZeilenHoehe() = 0;
  virtual void Position(double x, double y) = 0;
  virtual double X() const = 0;
  virtual double Y() const = 0;
  virtual void DruckeText(const std::string& text) = 0;
  virtual void Linie(double x1, double y1, double x2, double y2) = 0;
  virtual void NeueSeite() = 0;
  virtual void EndeDokument() = 0;
  // The printable area of a page, in points; 0 before the document starts.
  virtual double SeitenBreite() const = 0;
  virtual double SeitenHoehe() const = 0;
};

struct ProzessAuftrag {
  std::string programm; // full path of the executable
  std::vector<std::string> argumente;
  std::string arbeitsVerzeichnis;
  bool versteckt = true;
  int wartenMs = 100000; // below 0: started beside the program, not awaited
  // Files that take the child's standard output and error output; empty: discarded.
  std::string ausgabeDatei;
  std::string fehlerDatei;
};

enum class ProzessErgebnis { Beendet, ZeitUeberschritten, NichtGestartet };

struct ProzessStatus {
  ProzessErgebnis ergebnis = ProzessErgebnis::NichtGestartet;
  int exitCode = -1; // 128 + the signal's number for a child ended by a signal
};

class Oberflaeche {
public:
  virtual ~Oberflaeche() = default;

  // A modal message box; lines of `text` are joined by CR LF.
  virtual void Meldung(const std::string& text, const std::string& titel,
                       Symbol symbol = Symbol::Information) = 0;
  // A modal question; `vorgabe` is the button that Enter presses.
  virtual Antwort Frage(const std::string& text, const std::string& titel, Knoepfe knoepfe,
                        Antwort vorgabe) = 0;
  // The input box; no value when cancelled.
  virtual std::optional<std::string> Eingabe(const std::string& prompt, const std::string& titel,
                                             const std::string& vorgabe) = 0;
  virtual std::optional<std::string> DateiOeffnen(const DateiDialog& dialog) = 0;
  virtual std::optional<std::string> DateiSpeichern(const DateiDialog& dialog) = 0;

  virtual void ZwischenablageSetzen(const std::string& text) = 0;
  virtual std::string ZwischenablageText() = 0;

  virtual Drucker& Druck() = 0;

  // Starts a child process and waits for it at most `wartenMs`.
  virtual ProzessStatus StarteProzess(const ProzessAuftrag& auftrag) = 0;

  // Opens the help page of a topic number.
  virtual void Hilfe(int thema) = 0;
};

} // namespace quor::ui
