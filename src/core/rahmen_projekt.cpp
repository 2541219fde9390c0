// The frame's project commands: a project from the command line, from the open dialog or the last
// session, with what follows every load (its batch file, the menus, the model window), and the
// options dialog.
#include "core/projekt_datei.h"
#include "core/rahmen.h"
#include "dienste/oberflaeche.h"

namespace quor {

namespace {

constexpr const char* ProjektLadenTitel = "Projekt laden (*.QC6)";
constexpr const char* ProjektMuster = "*.QC6";

bool IstBatchDatei(const std::string& name) {
  if (name.size() < 3) return false;
  std::string ende = name.substr(name.size() - 3);
  for (char& c : ende)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return ende == "BAQ";
}

void MessdatenLeeren(MessdatenGruppe& m) {
  m.ExpDaten.assign(1, ExpDatenSatz{});
  m.ExpAnzahl = 0;
  m.BatchDateiPfad.clear();
  m.BatchDateiTitel.clear();
  m.BatchKommentar.clear();
  m.BatchGeaendert = false;
}

} // namespace

void RahmenLogik::mnuData_LoadProject_Click() {
  if (!d_.ProjektDialog) return;
  const std::string pfad = d_.ProjektDialog(s_, ProjektLadenTitel, ProjektMuster);
  if (!pfad.empty()) ProjektOeffnen(pfad, ProjektWeg::Menue);
}

void RahmenLogik::mnuData_LoadLastSession_Click() {
  s_.Mess.FitSpalte = 1;
  ProjektOeffnen(LetzteSitzungDatei, ProjektWeg::LetzteSitzung);
}

bool RahmenLogik::ProjektOeffnen(const std::string& pfad, ProjektWeg weg) {
  std::string batch;
  if (!d_.ProjektLaden || !d_.ProjektLaden(s_, pfad, batch)) return false;
  const std::string voll = PfadIn(s_.Datenbank.ProgrammVerzeichnis, pfad);
  if (d_.StoffFensterSchliessen) d_.StoffFensterSchliessen();
  DatenbankImStatus(s_);
  if (weg == ProjektWeg::LetzteSitzung) {
    if (d_.DialogeSchliessen) d_.DialogeSchliessen();
  } else {
    ProjektGruppe& p = s_.Projekt;
    const std::string verzeichnis = VerzeichnisTeil(voll);
    if (!verzeichnis.empty()) p.ProjektVerzeichnis = verzeichnis;
    p.ProjektDatei = DateiTeil(voll);
  }
  BatchNachLaden(batch, VerzeichnisTeil(voll), weg == ProjektWeg::Menue);
  if (d_.ModellFensterZeigen) d_.ModellFensterZeigen();
  // The preset of the next isochore from the critical volume of the models just tested.
  EinheitenGruppe& e = s_.Einheiten;
  if (e.vVorgabe == 0 && s_.EOS.vKritEOS > 0) e.vVorgabe = static_cast<float>(s_.EOS.vKritEOS);
  return true;
}

// The measured data after a load: the named file of the right type is loaded; a refused or
// unreadable one leaves no data, as its count described that file. Without a named file the menu's
// load asks whether the points held stay.
void RahmenLogik::BatchNachLaden(const std::string& batch, const std::string& verzeichnis, bool fragen) {
  MessdatenGruppe& m = s_.Mess;
  if (!batch.empty()) {
    const bool typOK = IstBatchDatei(batch);
    if (!typOK)
      ui_.Meldung("Datenfile ist nicht vom Typ *.BAQ und kann nicht geladen werden",
                  "Ausführung nicht möglich", ui::Symbol::Ausruf);
    if (!typOK || !d_.BatchDateiLaden || !d_.BatchDateiLaden(s_, PfadIn(verzeichnis, batch)))
      MessdatenLeeren(m);
  } else if (fragen && m.ExpAnzahl > 0 &&
             ui_.Frage("Die bereits geladenen exper. Daten beibehalten?", "exper. Daten", ui::Knoepfe::JaNein,
                       ui::Antwort::Ja) == ui::Antwort::Nein) {
    MessdatenLeeren(m);
  }
  s_.Projekt.Freigaben.ExpDaten = m.ExpAnzahl >= 1;
}

} // namespace quor
