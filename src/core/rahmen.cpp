#include "core/rahmen.h"

#include "core/datei_io.h"
#include "core/daten_diagnose.h"
#include "core/festtext.h"
#include "core/projekt_datei.h"
#include "core/projekt_status.h"
#include "dienste/oberflaeche.h"

#include <filesystem>

namespace quor {

const char* const LetzteSitzungDatei = "QuorLastSession.QC6";
const char* const ArbeitsverzeichnisTitel = "aktuelles Arbeitsverzeichnis von QUOR";
const char* const SpeicherHinweis = "Tipp:\r\n"
                                    "Überprüfen Sie vor dem Abspeichern des Projekts\r\n"
                                    "die Einstellungen unter \"Modelle\" und \"Optionen\".";
const char* const SpeicherHinweisTitel = "einmaliger allgemeiner Hinweis";

namespace {

constexpr const char* NichtMoeglich = "Ausführung nicht möglich";

std::string ImVerzeichnis(const std::string& verzeichnis, const std::string& name) {
  if (verzeichnis.empty()) return name;
  return verzeichnis.back() == '/' ? verzeichnis + name : verzeichnis + "/" + name;
}

// A file that exists and holds nothing.
bool LeereDatei(const std::string& pfad) {
  std::error_code fehler;
  return std::filesystem::is_regular_file(pfad, fehler) && std::filesystem::file_size(pfad, fehler) == 0 &&
         !fehler;
}

} // namespace

std::string KommandozeileBereinigen(std::string zeile) {
  for (std::size_t p = zeile.find('"'); p != std::string::npos; p = zeile.find('"'))
    zeile.erase(p, 1);
  return Trim(zeile);
}

RahmenLogik::RahmenLogik(ProjectState& s, ui::Oberflaeche& ui, RahmenDienste dienste)
    : s_(s), ui_(ui), d_(std::move(dienste)) {
  BefehleRegistrieren();
}

void RahmenLogik::Start(const std::string& kommandozeile) {
  ProjektGruppe& p = s_.Projekt;
  for (std::size_t i = 1; i < p.StatusLeiste.size(); ++i)
    p.StatusLeiste[i].clear();
  // The decimal mark, the name tables and the defaults of the project state.
  InitProjectState(s_, d_.EOSSetup);
  std::string& verzeichnis = s_.Datenbank.ProgrammVerzeichnis;
  if (verzeichnis.empty()) {
    std::error_code fehler;
    verzeichnis = std::filesystem::current_path(fehler).u8string();
  }
  HilfeVerzeichnis = ImVerzeichnis(verzeichnis, "help");
  s_.Mess.FitSpalte = 1;
  p.ProjektDatei.clear();

  ProjektFilter = "QUOR-Projektdatei (*.QC6)|*.QC6";
  BatchFilter = "exper. Daten (*.BAQ)|*.BAQ";
  p.TempDatei = ImVerzeichnis(verzeichnis, "QuorTemp.tmp");

  KommandoProjekt = KommandozeileBereinigen(kommandozeile);
  if (!KommandoProjekt.empty()) {
    p.ProjektGeladenUeberKommando = true;
    ProjektOeffnen(KommandoProjekt, ProjektWeg::Kommandozeile);
  }
  Gestartet = true;
}

bool RahmenLogik::Beenden() {
  if (beendet_) return false;
  beendet_ = true;
  if (d_.ProtokollSchliessen) d_.ProtokollSchliessen();
  const std::string& temp = s_.Projekt.TempDatei;
  if (!temp.empty() && LeereDatei(temp)) {
    std::error_code fehler;
    std::filesystem::remove(temp, fehler);
  }
  const DatenbankGruppe& db = s_.Datenbank;
  const std::string& bank = db.DatenbankTyp == 6 ? db.PfadQ06 : db.PfadQ07;
  LetzteSitzungFaellig = !bank.empty();
  if (LetzteSitzungFaellig && d_.ProjektSchreiben) d_.ProjektSchreiben(s_, LetzteSitzungDatei);
  return true;
}

void DatenbankImStatus(ProjectState& s) {
  const DatenbankGruppe& db = s.Datenbank;
  const std::string& pfad = db.DatenbankTyp == 6 ? db.PfadQ06 : db.PfadQ07;
  s.Projekt.StatusLeiste[1] = pfad.empty() ? std::string() : "Datenbank: " + DateiTeil(pfad);
}

void RahmenLogik::mnuData_OpenBank_Click(int index) {
  if (index != 0 && index != 2) return; // index 1 is the separator
  const int typ = 7 - index / 2;
  if (!d_.DatenbankWaehlen || !d_.DatenbankWaehlen(s_, typ)) return;
  // A new database: nothing of the former substance is offered or shown any more.
  if (d_.StoffFensterSchliessen) d_.StoffFensterSchliessen();
  DatenbankImStatus(s_);
  ProjektGruppe& p = s_.Projekt;
  p.LetzteSitzung = false;
  MenueFreigaben& f = p.Freigaben;
  f.Stoff = f.KritischerPunkt = f.Modell = f.Diagramme = f.Saettigung = false;
  for (std::size_t i = 2; i < p.StatusLeiste.size(); ++i)
    p.StatusLeiste[i].clear();
  p.Ampel = DatenLage{};
  s_.Datenbank.StoffIndex = 0;
  Befehle.Ausloesen("mnuStoffwahl");
}

void RahmenLogik::mnuProjectStatus_Click() {
  const std::string text = ProjektStatusText(s_);
  if (d_.TextFensterZeigen)
    d_.TextFensterZeigen(ProjektStatusTitel, text);
  else
    ui_.Meldung(text, ProjektStatusTitel, ui::Symbol::Information);
}

void RahmenLogik::mnuData_SaveProject_Click() {
  bool& einmal = s_.Projekt.EinmalHinweis;
  if (!einmal) {
    ui_.Meldung(SpeicherHinweis, SpeicherHinweisTitel, ui::Symbol::Information);
    einmal = true;
  }
  if (d_.ProjektSpeichernUnter) d_.ProjektSpeichernUnter(s_);
}

bool RahmenLogik::mnuData_BatchInput_Click() {
  if (!s_.Projekt.Freigaben.Stoff) {
    ui_.Meldung("Erst Stoff wählen oder Projekt laden;\r\n"
                "erst danach können Sie exper. Daten sichten oder laden.",
                "freundlicher Hinweis", ui::Symbol::Information);
    return false;
  }
  if (s_.Mess.ExpAnzahl > 0 &&
      ui_.Frage("Es wird Daten-Neueingabe erwartet;\r\n"
                "der vorhandene Datensatz wird gelöscht.\r\n"
                "Möchten Sie das?",
                "Warnung", ui::Knoepfe::JaNein, ui::Antwort::Nein) != ui::Antwort::Ja)
    return false;
  if (d_.BatchEingabeOeffnen) d_.BatchEingabeOeffnen();
  return true;
}

void RahmenLogik::mnuShowApp_path_Click() {
  ui_.Meldung(s_.Datenbank.ProgrammVerzeichnis, ArbeitsverzeichnisTitel, ui::Symbol::Information);
}

void RahmenLogik::mnuData_ParameterEOS_Click() {
  if (d_.ParameterEOSText)
    ui_.Meldung(d_.ParameterEOSText(s_), d_.ParameterEOSTitel, ui::Symbol::Information);
}

void RahmenLogik::mnuTavik1W_Click() {
  const std::string name = s_.Datenbank.EnglischeOberflaeche ? "Tavik1W_E" : "Tavik1W";
  const std::string& verzeichnis = s_.Datenbank.ProgrammVerzeichnis;
  const std::string programm = ImVerzeichnis(verzeichnis, name);
  if (!DateiExistiert(programm)) {
    ui_.Meldung("Datei " + name + ".EXE nicht im QUOR-Verzeichnis gefunden", NichtMoeglich,
                ui::Symbol::Ausruf);
    return;
  }
  ui::ProzessAuftrag auftrag;
  auftrag.programm = programm;
  auftrag.arbeitsVerzeichnis = verzeichnis;
  auftrag.versteckt = false;
  auftrag.wartenMs = -1; // the converter runs beside the program
  if (ui_.StarteProzess(auftrag).ergebnis == ui::ProzessErgebnis::NichtGestartet)
    ui_.Meldung("Datei " + name + ".EXE konnte nicht gestartet werden", NichtMoeglich, ui::Symbol::Ausruf);
}

void RahmenLogik::txtAmpel_Click() {
  if (s_.Projekt.Ampel.DatenAmpel == 0) return; // nothing judged yet
  cmdDatenDiagnose(s_, ui_);
}

} // namespace quor
