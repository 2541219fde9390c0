// The data editor's buttons that leave the dialog: the private database, drawing a function in
// the 2D diagram, and the Joback dialog.
#include "dienste/oberflaeche.h"
#include "engine/korrelationen.h"
#include "substance/bank_editor.h"
#include "substance/bank_editor_felder.h"
#include "substance/datenbank_schreiben.h"

namespace quor {

namespace {

// Entry of the 2D menu's vapour-pressure submenu of each row of the vapour-pressure table.
constexpr int DampfdruckEintrag[9] = {-1, 2, 3, 0, 1, 5, 6, 7, 8};

constexpr const char* DatenbankMenue = "mnuGraf_sub_database";
constexpr const char* DampfdruckMenue = "mnuGraf_sub_sub_database";

// The ideal-gas cp entry: the models' choice, else the function the substance has.
int CpEintrag(const ProjectState& s) {
  if (s.Modell.CpIndex == 2) return 4;
  if (s.Modell.CpIndex == 1) return 3;
  return !s.Stoff.CpPolyOK && s.Stoff.CpSinhOK ? 4 : 3;
}

} // namespace

std::pair<std::string, int> frmQBankEdit::ZeichenEintrag(BankZeichnen knopf) const {
  switch (knopf) {
  case BankZeichnen::pLV: {
    const int g = bank::AktuelleDampfdruckGleichung(s_);
    return {DampfdruckMenue, g >= 1 && g <= 8 ? DampfdruckEintrag[g] : -1};
  }
  case BankZeichnen::RhoL:
    return {DatenbankMenue, 0};
  case BankZeichnen::RhoS:
    return {DatenbankMenue, 1};
  case BankZeichnen::CpIdGas:
    return {DatenbankMenue, CpEintrag(s_)};
  case BankZeichnen::CpL:
    return {DatenbankMenue, 5};
  case BankZeichnen::CpS:
    return {DatenbankMenue, 6};
  case BankZeichnen::HLV:
    return {DatenbankMenue, 7};
  }
  return {DatenbankMenue, -1};
}

void frmQBankEdit::cmdDraw(BankZeichnen knopf) {
  if (DiagrammOffen2D && DiagrammOffen2D()) {
    ui_.Meldung(DiagrammOffen, "Hinweis", ui::Symbol::Information);
    return;
  }
  const auto [menue, index] = ZeichenEintrag(knopf);
  if (index < 0) {
    ui_.Meldung("Keine Dampfdruckgleichung gewählt (vgl. Fenster \"Berechnungs-Modelle\").",
                "Ausführung nicht möglich", ui::Symbol::Kritisch);
    return;
  }
  if (Zeichnen) Zeichnen(menue, index);
}

void frmQBankEdit::cmdJoback(JobackModus modus) {
  if (JobackOeffnen) JobackOeffnen(modus);
}

void frmQBankEdit::WriteDataBaseQ07() {
  cmdUebernehmen();
  const std::string art = s_.Datenbank.DatenbankTyp == 6 ? "6" : "7";
  ui::DateiDialog d;
  d.titel = "Speichern eines privaten Datenbank-Files *.Q0" + art + " für aktuellen Stoff";
  d.filter = "Datenbank (*.Q0" + art + ")|*.Q0" + art;
  d.standardEndung = ".Q0" + art;
  d.startVerzeichnis = s_.Datenbank.ProgrammVerzeichnis;
  const std::optional<std::string> pfad = ui_.DateiSpeichern(d);
  if (!pfad || pfad->empty()) return;
  if (!SchreibeEinzelstoffDatenbank(s_, *pfad))
    ui_.Meldung("Die Datei " + *pfad + "\r\nkann nicht geschrieben werden.", "Fehler bei WriteDataBaseQ07",
                ui::Symbol::Kritisch);
}

} // namespace quor
