// The frame's own rows of the command registry: the data menu's project commands, the substance and
// model entries, the unit converter, options, windows, help, and the toolbar's buttons; the help
// and program notes.
#include "core/rahmen.h"

#include "dienste/oberflaeche.h"

namespace quor {

const char* const HilfeHinweisText =
    "Die umfangreiche HTML-Hilfe ist ein wichtiger Teil von QUOR.\r\n"
    "Sie erreichen sie über das Menü \"Info/Hilfe...\":\r\n"
    "- \"Erste Schritte\" führt vom Öffnen der Datenbank bis zum ersten Ergebnis,\r\n"
    "- die \"Rechenübung\" rechnet ein Beispiel vollständig durch,\r\n"
    "- die \"Tipps\" erklären Modelle, Konzepte und die Daten-Ampel.\r\n"
    "Die \"Inhaltsübersicht\" führt zu allen Seiten, von den Diagrammen bis zum Fitting;\r\n"
    "das Feld \"Suchen:\" des Hilfefensters findet die Seiten zu einem Stichwort.\r\n"
    "Die Knöpfe \"Hilfe\" und \"?\" der Fenster öffnen die passende Seite.\r\n"
    "Die Seiten liegen im Unterverzeichnis \"help\" des QUOR-Verzeichnisses.";

const char* const ProgrammInfoText =
    "QUOR-6\r\n"
    "thermodynamische Zustands- und Prozessberechnungen an Reinstoffsystemen\r\n"
    "\r\n"
    "Version 6.0";

namespace {

BefehlsZeile Zeile(const char* name, int index, const char* text, const char* eltern, int rang,
                   unsigned bedarf = BrauchtNichts) {
  BefehlsZeile z;
  z.name = name;
  z.index = index;
  z.text = text;
  z.eltern = eltern;
  z.rang = rang;
  z.bedarf = bedarf;
  return z;
}

BefehlsZeile Trenner(const char* eltern, int rang) {
  return Zeile("", -1, "-", eltern, rang);
}

BefehlsZeile Knopf(int index, const char* tipp, const char* ziel, int zielIndex,
                   unsigned bedarf = BrauchtNichts) {
  BefehlsZeile z = Zeile(ToolbarName, index, tipp, ToolbarName, index, bedarf);
  z.zielName = ziel;
  z.zielIndex = zielIndex;
  return z;
}

} // namespace

void RahmenLogik::BefehleRegistrieren() {
  BefehlsRegister& r = Befehle;
  const char* const daten = "mnuData";
  r.Registriere(Zeile(daten, -1, "  &Daten...", "", rang::Daten));
  r.Registriere(Zeile("mnuData_OpenBank", 0, "Datenbank *.Q07 öffnen / neues Projekt beginnen", daten,
                      rang::DatenBank));
  r.Registriere(Zeile("mnuData_OpenBank", 1, "-", daten, rang::DatenBank));
  r.Registriere(Zeile("mnuData_OpenBank", 2, "Datenbank *.Q06 öffnen / neues Projekt beginnen", daten,
                      rang::DatenBank));
  r.Registriere(Trenner(daten, rang::DatenBank));
  r.Registriere(
      Zeile("mnuProjectStatus", -1, "geladen sind ...  (Info Projekt.Status)", daten, rang::DatenStatus));
  r.Registriere(Trenner(daten, rang::DatenStatus));
  r.Registriere(Zeile("mnuData_NewProject", -1, "neues Projekt beginnen", daten, rang::DatenProjekt));
  r.Registriere(Zeile("mnuData_LoadLastSession", -1, "letzte Sitzung laden", daten, rang::DatenProjekt));
  r.Registriere(Zeile("mnuData_LoadProject", -1, "ein Projekt laden (*.QC6)", daten, rang::DatenProjekt));
  r.Registriere(Zeile("mnuData_SaveProject", -1, "aktuelles Projekt speichern (als *.QC6)", daten,
                      rang::DatenProjekt, BrauchtStoff));
  // Each later group opens with its separator; the frame's rows come first in their rank.
  r.Registriere(Trenner(daten, rang::DatenMessdaten));
  r.Registriere(Trenner(daten, rang::DatenEditoren));
  r.Registriere(Trenner(daten, rang::DatenParameter));
  r.Registriere(Zeile("mnuData_ParameterEOS", -1, "Parameter EOS; berechnetes kritisches Volumen", daten,
                      rang::DatenParameter, BrauchtModell));
  r.Registriere(Trenner(daten, rang::DatenVerzeichnis));
  r.Registriere(Zeile("mnuShowApp_path", -1, "zeige aktuelles Arbeitsverzeichnis für QUOR", daten,
                      rang::DatenVerzeichnis));
  r.Registriere(Trenner(daten, rang::DatenEnde));
  r.Registriere(Zeile("mnuData_Exit", -1, "E&xit                                            Alt+F4", daten,
                      rang::DatenEnde));

  r.Registriere(Zeile("mnuStoffwahl", -1, "&Stoffwahl", "", rang::Stoffwahl, BrauchtDatenbank));
  r.Registriere(Zeile("mnuModel", -1, "&Modelle", "", rang::Modelle, BrauchtStoff));
  r.Registriere(Zeile("mnuTavik1W", -1, "&Einheiten umrechnen", "", rang::Einheiten));
  r.Registriere(Zeile("mnuOptions", -1, "&Optionen", "", rang::Optionen, BrauchtStoff));
  r.Registriere(Zeile("mnuWindow", -1, "Fenster...", "", rang::Fenster));
  r.Registriere(Zeile("mnuWindow_Kaskade", -1, "überlappend anordnen", "mnuWindow", 0));
  r.Registriere(Zeile("mnuWindow_Nebeneinander", -1, "nebeneinander anordnen", "mnuWindow", 0));

  const char* const hilfe = "mnuHilfe";
  r.Registriere(Zeile(hilfe, -1, "&Info/Hilfe...", "", rang::Hilfe));
  r.Registriere(Zeile("mnuHilfe_Inhalt", -1, "Hilfe: Inhaltsübersicht", hilfe, 0));
  r.Registriere(Zeile("mnuHilfe_Erstnutzer", -1, "Erste Schritte (für Erstnutzer)", hilfe, 0));
  r.Registriere(
      Zeile("mnuHilfe_RechenUebung", -1, "Rechenübung: ein Beispiel Schritt für Schritt", hilfe, 0));
  r.Registriere(Zeile("mnuHilfe_Tipps", -1, "Tipps zu Modellen und Konzepten", hilfe, 0));
  r.Registriere(Zeile("mnuHilfeHinweis", -1, "Hinweis zur HTML-Hilfe", hilfe, 0));
  r.Registriere(Trenner(hilfe, 0));
  r.Registriere(Zeile("mnuHilfe_About", -1, "Über das Programm", hilfe, 0));

  r.Registriere(Knopf(2, " neues Projekt ", "mnuData_NewProject", -1));
  r.Registriere(Knopf(4, " letzte Sitzung laden ", "mnuData_LoadLastSession", -1));
  r.Registriere(Knopf(6, " existierendes Projekt  *.QC6 laden ", "mnuData_LoadProject", -1));
  r.Registriere(
      Knopf(8, " aktuelles Projekt speichern  als *.QC6 ", "mnuData_SaveProject", -1, BrauchtStoff));
  r.Registriere(Knopf(11, " Normierung für thermodynamische Funktionen ", "frmReferenz", -1, BrauchtModell));
  r.Registriere(Knopf(15, " Behälterber., GLOBAL oder PARTIAL => \"Modelle\"    ", "mnuCalc", 15,
                      BrauchtModell | BrauchtKritischenPunkt));
  r.Registriere(Knopf(20, " exper. Daten NEU eingeben/laden ", "mnuData_BatchInput", -1));
  // The data button follows the number of measured points.
  r.Registriere(Knopf(22, " Editor für exper. Daten, Fitting ", "mnuData_BatchEdit", -1, BrauchtExpDaten));
  r.Registriere(Knopf(26, "  X-Y-Editor ", "mnuData_EditXY", -1));
  r.Registriere(Knopf(28, " Datenbank-Editor, Synonym-Liste ", "mnuData_EditDatenbank", -1));
  r.Registriere(Knopf(32, " Projekt-Info ", "mnuProjectStatus", -1));

  HandlerSetzen();
}

void RahmenLogik::HandlerSetzen() {
  BefehlsRegister& r = Befehle;
  r.Handler("mnuData_OpenBank", 0, [this](int i) { mnuData_OpenBank_Click(i); });
  r.Handler("mnuData_OpenBank", 2, [this](int i) { mnuData_OpenBank_Click(i); });
  r.Handler("mnuProjectStatus", [this](int) { mnuProjectStatus_Click(); });
  r.Handler("mnuData_NewProject", [this](int) { mnuData_NewProject_Click(); });
  r.Handler("mnuData_LoadLastSession", [this](int) { mnuData_LoadLastSession_Click(); });
  r.Handler("mnuData_LoadProject", [this](int) { mnuData_LoadProject_Click(); });
  r.Handler("mnuData_SaveProject", [this](int) { mnuData_SaveProject_Click(); });
  r.Handler("mnuData_ParameterEOS", [this](int) { mnuData_ParameterEOS_Click(); });
  r.Handler("mnuShowApp_path", [this](int) { mnuShowApp_path_Click(); });
  r.Handler("mnuData_Exit", [this](int) { Beenden(); });
  r.Handler("mnuTavik1W", [this](int) { mnuTavik1W_Click(); });
  r.Handler("mnuHilfe_Inhalt", [this](int) { ui_.Hilfe(HilfeInhalt); });
  r.Handler("mnuHilfe_Erstnutzer", [this](int) { ui_.Hilfe(HilfeErstnutzer); });
  r.Handler("mnuHilfe_RechenUebung", [this](int) { ui_.Hilfe(HilfeRechenUebung); });
  r.Handler("mnuHilfe_Tipps", [this](int) { ui_.Hilfe(HilfeTipps); });
  r.Handler("mnuHilfeHinweis", [this](int) { mnuHilfeHinweis_Click(); });
  r.Handler("mnuHilfe_About", [this](int) { mnuHilfe_About_Click(); });
  // The vessel by the project's concept.
  r.Handler(ToolbarName, 15,
            [this](int) { Befehle.Ausloesen("mnuCalc", s_.Modell.KonzeptGlobal ? 15 : 16); });
  r.Handler(ToolbarName, 20, [this](int) { mnuData_BatchInput_Click(); });
}

void RahmenLogik::mnuHilfeHinweis_Click() {
  ui_.Meldung(HilfeHinweisText, "Hinweis zur HTML-Hilfe", ui::Symbol::Information);
}

void RahmenLogik::mnuHilfe_About_Click() {
  ui_.Meldung(ProgrammInfoText, "Über das Programm", ui::Symbol::Information);
}

} // namespace quor
