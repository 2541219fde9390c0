// The frame's own tests of the diagram entries, the text of the virial entry, and the help and
// program notes.
#include "core/rahmen.h"

#include "dienste/oberflaeche.h"

namespace quor {

const char* const HilfeHinweisText =
    "Die umfangreiche HTML-Hilfe ist ein wichtiger Teil von QUOR.\r\n"
    "Sie erreichen sie über das Menü \"Info/Hilfe...\":\r\n"
    "- \"Erste Schritte\" führt vom Öffnen der Datenbank bis zum ersten Ergebnis,\r\n"
    "- die \"Rechenübung\" rechnet ein Beispiel vollständig durch,\r\n"
    "- die \"Tipps\" erklären Modelle, Konzepte und die Daten-Ampel.\r\n"
    "Die Seiten liegen im Unterverzeichnis \"help\" des QUOR-Verzeichnisses.";

const char* const ProgrammInfoText =
    "QUOR-6\r\n"
    "thermodynamische Zustands- und Prozessberechnungen an Reinstoffsystemen\r\n"
    "\r\n"
    "Version 6.0";

namespace {

constexpr const char* NichtMoeglich = "Ausführung nicht möglich";

// The entry of the vapour-pressure slope among the projections.
constexpr int AnstiegEintrag = 9;

// A database function of the heat capacities that the substance lacks; empty when it has it.
std::string FehlendeFunktion(const StoffGruppe& st, int index) {
  switch (index) {
  case 3:
    return st.CpPolyOK ? "" : "für diesen Stoff ist keine Polynom-Funktion cpIdG)= Fu(T) verfügbar.";
  case 4:
    return st.CpSinhOK ? "" : "für diesen Stoff ist keine sinh/cosh-Funktion cpIdG)= Fu(T) verfügbar.";
  case 5:
    return st.CpLOK ? "" : "für diesen Stoff ist keine Funktion cp(L)= Fu(T) verfügbar.";
  case 6:
    return st.CpSOK ? "" : "für diesen Stoff ist keine Funktion cp(S)= Fu(T) verfügbar.";
  default:
    return "";
  }
}

} // namespace

bool IstKubischesModell(const ProjectState& s) {
  const int16_t eos = s.Modell.EOSIndex;
  return !s.Modell.VirialFlag && eos >= 2 && eos <= 8;
}

bool RahmenLogik::GrafErlaubt(const std::string& name, int index) {
  if (name == "mnuGraf_sub_proj") {
    if (!IstKubischesModell(s_)) {
      ui_.Meldung("Phasengleichgewichts-Berechnungen sind nur mit einer kubischen Zustandsgleichung möglich",
                  NichtMoeglich, ui::Symbol::Ausruf);
      return false;
    }
    if (index == AnstiegEintrag && s_.Modell.KonzeptGlobal) {
      ui_.Meldung("nur für Dampfdruckgleichungen entspr. \"Modelle\" möglich (PARTIAL-Konzept),\r\n"
                  "nicht für die Dampfdruckberechnung mittels CEOS (GLOBAL-Konzept)\r\n"
                  "Ändern Sie unter \"Modelle\" auf PARTIAL-Konzept",
                  NichtMoeglich, ui::Symbol::Ausruf);
      return false;
    }
  }
  if (name == "mnuGraf_sub_FuT" && s_.Modell.CpIndex < 1) {
    ui_.Meldung("es stehen keine cp(idG)-Modellparameter zur Verfügung", NichtMoeglich, ui::Symbol::Ausruf);
    return false;
  }
  if (name == "mnuGraf_sub_database") {
    const std::string fehlt = FehlendeFunktion(s_.Stoff, index);
    if (!fehlt.empty()) {
      ui_.Meldung(fehlt, NichtMoeglich, ui::Symbol::Ausruf);
      return false;
    }
  }
  return true;
}

bool RahmenLogik::Reales3D(int art) {
  if ((art != 1 && art != 3) || !IstKubischesModell(s_)) return true;
  return ui_.Frage("Reales Verhalten zeichnen?\r\n(Nein = Zeichnen von S-Kurven im unterkritischen Bereich)",
                   "nur für kubische EOS", ui::Knoepfe::JaNein, ui::Antwort::Ja) == ui::Antwort::Ja;
}

std::string RahmenLogik::VirialEintragText() const {
  if (s_.Modell.EOSIndex < 0) return "T => 2. Virialkoeffizienten B";
  if (IstKubischesModell(s_)) return "T => Virialkoeffizienten B, Parameter der CEOS";
  return "T => Virialkoeffizienten B";
}

void RahmenLogik::mnuHilfeHinweis_Click() {
  ui_.Meldung(HilfeHinweisText, "Hinweis zur HTML-Hilfe", ui::Symbol::Information);
}

void RahmenLogik::mnuHilfe_About_Click() {
  ui_.Meldung(ProgrammInfoText, "Über das Programm", ui::Symbol::Information);
}

} // namespace quor
