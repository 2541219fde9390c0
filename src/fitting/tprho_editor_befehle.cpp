// frmTpRhoEdit: the commands of the table (sorting, active marks, deleting, clearing, the
// clipboard) and of the files (loading with preview, appending, saving, the closing question).
#include "fitting/batch_datei.h"
#include "fitting/tprho_editor.h"

#include "core/projekt_datei.h"

#include <algorithm>

namespace quor {

namespace {

constexpr const char* NichtMoeglich = "Ausführung nicht möglich";

} // namespace

// ---- the table

bool frmTpRhoEdit::Sortieren(int spalte) {
  if (Leer()) return false;
  Grid.Sortieren(spalte);
  DatenAusTabelle();
  return true;
}

void frmTpRhoEdit::TSort() {
  Sortieren(tprho::T);
}

void frmTpRhoEdit::pSort() {
  Sortieren(tprho::p);
}

void frmTpRhoEdit::cmdAus() {
  if (Leer()) return;
  Grid.AktivUmschalten(std::max(Grid.CursorZeile, 0));
  DatenAusTabelle();
}

void frmTpRhoEdit::cmdErase() {
  if (Leer()) return;
  const int von = std::max(Grid.Auswahl.Zeile1, 0);
  const int bis = std::min(Grid.Auswahl.Zeile2, Grid.Anzahl() - 1);
  if (Grid.Auswahl.Leer() || von > bis) {
    ui_.Meldung("keine Markierung!", NichtMoeglich, ui::Symbol::Ausruf);
    return;
  }
  const std::string frage = von == bis ? "Zeile " + std::to_string(von + 1) + " wirklich entfernen?"
                                       : "Zeilen " + std::to_string(von + 1) + " bis " +
                                             std::to_string(bis + 1) + " wirklich entfernen?";
  if (ui_.Frage(frage, "WARNUNG", ui::Knoepfe::JaNein, ui::Antwort::Nein) != ui::Antwort::Ja) return;
  Grid.ZeilenLoeschen(von, bis);
  s_.Mess.BatchGeaendert = true;
  DatenAusTabelle();
  optInputMode_Click(optInputMode);
}

void frmTpRhoEdit::cmdEraseSelected() {
  if (Leer() || Grid.Auswahl.Leer()) return;
  Grid.ZellenLeeren(Grid.Auswahl);
  s_.Mess.BatchGeaendert = true;
  DatenAusTabelle();
}

void frmTpRhoEdit::cmdClipboard() {
  const std::string text = Grid.AuswahlText(Grid.Auswahl);
  if (!text.empty()) ui_.ZwischenablageSetzen(text);
}

// The text is laid into the table at the cursor cell; the table grows as far as the lines reach,
// and the rows are read back as they stand, in the table's units.
void frmTpRhoEdit::cmdClipEinfuegen() {
  const std::string text = ui_.ZwischenablageText();
  if (text.empty()) return;
  Grid.Einfuegen(text, std::max(Grid.CursorZeile, 0), Grid.CursorSpalte);
  s_.Mess.BatchGeaendert = true;
  DatenAusTabelle();
  optInputMode_Click(ZeileEditieren);
}

// ---- files

bool frmTpRhoEdit::Laden(bool anfuegen) {
  const std::string titel =
      anfuegen ? "Daten aus gewähltem File anfügen mit Vorschau" : "Datenfile laden mit Vorschau";
  std::string pfad;
  if (DateiWaehlen) {
    pfad = DateiWaehlen(titel, "*.BAQ");
  } else {
    ui::DateiDialog d;
    d.titel = titel;
    d.filter = "exper. Daten (*.BAQ)|*.BAQ";
    d.standardEndung = ".BAQ";
    const MessdatenGruppe& m = s_.Mess;
    d.startVerzeichnis =
        m.BatchDateiPfad.empty() ? s_.Datenbank.ProgrammVerzeichnis : VerzeichnisTeil(m.BatchDateiPfad);
    pfad = ui_.DateiOeffnen(d).value_or(std::string());
  }
  if (pfad.empty()) return false;
  const bool ok = LadeBatchDatei(s_, ui_, pfad, anfuegen);
  TabelleAusDaten();
  if (!ok) return false;
  CaptionSetzen();
  txtComment = s_.Mess.BatchKommentar;
  optInputMode_Click(ZeileEditieren);
  s_.Mess.BatchGeaendert = false;
  return true;
}

bool frmTpRhoEdit::cmdBatchLoad() {
  return Laden(false);
}

bool frmTpRhoEdit::cmdBatchAdd() {
  return s_.Mess.ExpAnzahl >= 1 && Laden(true);
}

bool frmTpRhoEdit::cmdBatchSave() {
  if (!BatchSpeichernUnter(s_, ui_)) return false;
  CaptionSetzen();
  return true;
}

bool frmTpRhoEdit::Form_QueryUnload() {
  if (s_.Mess.BatchGeaendert) {
    const ui::Antwort a =
        ui_.Frage("Die Daten wurden nach Änderung noch nicht gespeichert.\r\n\r\njetzt in *.BAQ speichern?",
                  "WARNUNG", ui::Knoepfe::JaNeinAbbrechen, ui::Antwort::Ja);
    if (a == ui::Antwort::Abbrechen) return false;
    if (a == ui::Antwort::Ja) cmdBatchSave();
  }
  s_.Projekt.Freigaben.ExpDaten = s_.Mess.ExpAnzahl >= 1;
  return true;
}

} // namespace quor
