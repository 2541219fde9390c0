// Command logic of the main frame mdiQUOR: the start of the program, the commands of the menus and
// the toolbar with their preconditions and messages, and the end of the session. The view builds
// the menus and forwards every command here; what lies in outer layers (the database dialog, the
// EOS report, the windows to show) comes in as services.
#pragma once

#include "core/befehls_register.h"
#include "core/project_state.h"

#include <functional>
#include <string>

namespace quor {

namespace ui {
class Oberflaeche;
}

extern const char* const LetzteSitzungDatei; // "QuorLastSession.QC6"
extern const char* const ArbeitsverzeichnisTitel;
extern const char* const SpeicherHinweis; // the once-only hint before saving a project
extern const char* const SpeicherHinweisTitel;
extern const char* const HilfeHinweisText;
extern const char* const ProgrammInfoText;

// Help topics of the help pages.
enum HilfeThema : int {
  HilfeInhalt = 0,
  HilfeErstnutzer = 11223,
  HilfeTipps = 11124,
  HilfeRechenUebung = 45333,
  HilfeModelle = 33100,      // the model window
  HilfeBerechnungen = 41100, // calculations, the PARTIAL reference point, result pages
  HilfeNormierung = 41200,   // the reference state of h and s
  HilfeOptionen = 12100,     // the options dialog
  HilfeProjekte = 12200,     // project files and their open dialog
  HilfeDiagramme2D = 45100,  // the 2D diagram page
  HilfeEinfuegungen = 45200, // what the 2D page's insert menu puts on a diagram
  HilfeDiagramme3D = 45600,  // the 3D diagram page
  HilfeMessdaten = 46100,    // the editor of measured T, p, rho data
  HilfeXYEditor = 46200,     // the X-Y data editor
  HilfeFitting = 46300       // the fitting window
};

// What the frame's own commands ask of the outer layers and of its view. A service left empty is a
// function that isn't there yet: its command does nothing further. Commands of other subsystems
// (calculations, the reference state, options, the substance choice) are rows of the registry with
// handlers of their own.
struct RahmenDienste {
  EOSSetupFunktion EOSSetup;                                    // for the defaults of the start
  std::function<bool(ProjectState&, int typ)> DatenbankWaehlen; // file dialog and opening; true on success
  std::function<std::string(ProjectState&)> ParameterEOSText;
  std::string ParameterEOSTitel;
  std::function<void()> ModellFensterZeigen;
  std::function<void(const std::string& titel, const std::string& text)> TextFensterZeigen;
  // Loads a project; true on success, with the measured-data file it names (may be empty).
  std::function<bool(ProjectState&, const std::string& pfad, std::string& batchDatei)> ProjektLaden;
  std::function<void(ProjectState&, const std::string& pfad)> ProjektSchreiben;
  std::function<void(ProjectState&)> ProjektSpeichernUnter;
  std::function<void()> ProtokollSchliessen; // the record log of the results
  std::function<void()> BatchEingabeOeffnen; // the editor of measured data, for new input
  // The open dialog with preview (title, pattern); the chosen path, empty when cancelled.
  std::function<std::string(ProjectState&, const std::string& titel, const std::string& muster)>
      ProjektDialog;
  std::function<bool(ProjectState&, const std::string& pfad)> BatchDateiLaden; // true when loaded
  std::function<void()> DialogeSchliessen; // every open dialog but the model window
  // Another database or project is loaded: the windows that show or compute for the former
  // substance close (the model window is rebuilt by its own service).
  std::function<void()> StoffFensterSchliessen;
};

// Panel 1 of the status bar names the open database's file.
void DatenbankImStatus(ProjectState& s);

// The command line without any double quote, taken out one at a time, and without blanks at its ends.
std::string KommandozeileBereinigen(std::string zeile);

class RahmenLogik {
public:
  RahmenLogik(ProjectState& s, ui::Oberflaeche& ui, RahmenDienste dienste = {});

  // The start: status bar empty, tables and defaults, the program's directory and help, filters and
  // the temporary file's name, then the command line. Without a project on it no database is opened.
  void Start(const std::string& kommandozeile);

  // The end of the session (mnuData_Exit and the frame's closing): record log, temporary file, last
  // session when a database is open. Runs once; true when it ran now.
  bool Beenden();

  // Runs the command of a menu entry or toolbar button; false when it isn't enabled or not known.
  bool Ausfuehren(const std::string& name, int index = -1) { return Befehle.Ausfuehren(s_, name, index); }

  void mnuData_OpenBank_Click(int index);
  void mnuData_NewProject_Click() { mnuData_OpenBank_Click(0); }
  void mnuProjectStatus_Click();
  void mnuData_SaveProject_Click();
  // False when the editor must not open: no substance, or "Nein" to clearing the held points.
  bool mnuData_BatchInput_Click();
  void mnuShowApp_path_Click();
  void mnuData_ParameterEOS_Click();
  void mnuTavik1W_Click();
  // The Daten-Ampel field: the report of the substance's data.
  void txtAmpel_Click();
  void mnuHilfeHinweis_Click();
  void mnuHilfe_About_Click();
  void mnuData_LoadProject_Click();
  void mnuData_LoadLastSession_Click();

  RahmenZustand Zustand() const { return ZustandVon(s_); }
  bool Freigegeben(const std::string& name, int index = -1) const {
    return Befehle.Freigegeben(s_, name, index);
  }

  // The frame's rows are registered on construction; the other subsystems add theirs.
  BefehlsRegister Befehle;
  std::string HilfeVerzeichnis;
  std::string ProjektFilter;
  std::string BatchFilter;
  std::string KommandoProjekt; // the project file named on the command line
  bool Beendet() const { return beendet_; }
  bool Gestartet = false;
  bool LetzteSitzungFaellig = false; // the end found a database: the last session is due

private:
  void BefehleRegistrieren();
  void HandlerSetzen();
  enum class ProjektWeg { Kommandozeile, Menue, LetzteSitzung };
  // A project loaded by any way, with what follows: its batch file, the menus and the model window.
  bool ProjektOeffnen(const std::string& pfad, ProjektWeg weg);
  void BatchNachLaden(const std::string& batch, const std::string& verzeichnis, bool fragen);

  ProjectState& s_;
  ui::Oberflaeche& ui_;
  RahmenDienste d_;
  bool beendet_ = false;
};

} // namespace quor
