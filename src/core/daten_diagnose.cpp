#include "core/daten_diagnose.h"

#include "dienste/oberflaeche.h"

#include <cmath>
#include <initializer_list>

namespace quor {

const char* const DatenAmpelTitel = "Stoffdatensituation (Daten-Ampel)";

namespace {

constexpr double Schwelle = 1e-6;

// Some vapour-pressure equation can be used: a database block with a lower limit, or the August
// constants from the critical and the normal boiling point.
bool DampfdruckVerfuegbar(const StoffGruppe& st) {
  const double summe = static_cast<double>(st.AntoineNdGrenzen.TLo) + st.AntoineHdGrenzen.TLo +
                       st.FrostKalkwarfGrenzen.TLo + st.WagnerGrenzen.TLo;
  const double august = std::fabs(static_cast<double>(st.AugustA) * st.AugustB);
  return !(std::fabs(summe) < Schwelle && august <= Schwelle);
}

// The order of the tests matters: a substance that lacks omega or the boiling point as well as
// every vapour-pressure equation ends at level 2.
int16_t Stufe(const DatenLage& d) {
  int16_t stufe = 1;
  if (!d.KritOK) stufe = 4;
  if (d.KritOK && !d.DampfdruckOK) stufe = 3;
  if (d.KritOK && (!d.OmegaOK || !d.SiedeOK)) stufe = 2;
  if (d.KritOK && d.DampfdruckOK && d.OmegaOK && d.SiedeOK && d.HLVOK) stufe = 1;
  return stufe;
}

void Zeilen(std::string& text, std::initializer_list<const char*> zeilen) {
  for (const char* z : zeilen) {
    text += z;
    text += "\r\n";
  }
}

void TestZeilen(std::string& t, const DatenLage& d) {
  if (d.KritOK)
    Zeilen(t, {"- Kritische Daten verfügbar"});
  else
    Zeilen(t, {"- keine kritischen Daten verfügbar;", "  keine Berechnungen möglich",
               "  Verwenden Sie - wenn möglich - die angebotenen Inkrement-Methoden",
               "  (=> Daten / Abschätzung von Stoffdaten aus Molekülstrukturgruppen)"});
  if (d.OmegaOK)
    Zeilen(t, {"- azentrischer Faktor omega verfügbar"});
  else
    Zeilen(t, {"- kein azentrischer Faktor omega verfügbar; es wird omega = 0 gesetzt.",
               "  Damit sind einige kubische Zustandsgleichungen (CEOS)", "  nur eingeschränkt anwendbar"});
  Zeilen(t, {d.DampfdruckOK ? "- Dampfdruckgleichungen p(T) verfügbar"
                            : "- Dampfdruckgleichungen p(T) nicht verfügbar"});
  if (d.SiedeOK)
    Zeilen(t, {"- Normalsiedetemperatur verfügbar"});
  else
    Zeilen(t, {"- keine Normalsiedetemperatur verfügbar;",
               "  damit sind korrelierte Dampfdruckgll. nicht berechenbar"});
  if (d.HLVOK)
    Zeilen(t, {"- Verdampfungsenthalpie-Gleichungen delta(LV)H = f(T)", "  verfügbar"});
  else
    Zeilen(t, {"- Keine Verdampfungsenthalpie-Gleichungen delta(LV)H = f(T)", "  verfügbar",
               "  keine delta(LV)H-Diagramme und -berechnungen möglich"});
}

void Schluss(std::string& t, int16_t stufe) {
  const char* const editorEvtl = "Fehlende Daten könnten evtl. im Datenbank-Editor ergänzt werden";
  const char* const icon = "(=> Klick auf Icon \"db\"";
  switch (stufe) {
  case 4:
    Zeilen(t, {"BEI DIESER DATENLAGE SIND KEINERLEI BERECHNUNGEN MÖGLICH ", editorEvtl, icon});
    break;
  case 3:
    Zeilen(t, {"BEI DIESER DATENLAGE BESTEHEN SCHWERE EINSCHRÄNKUNGEN  ",
               "Fehlende Daten könnten im Datenbank-Editor ergänzt werden", icon});
    break;
  case 2:
    Zeilen(t, {"BEI DIESER DATENLAGE BESTEHEN EINIGE Einschränkungen ", editorEvtl, icon});
    break;
  default:
    Zeilen(t, {"BEI DIESER DATENLAGE BESTEHEN KEINERLEI EINSCHRÄNKUNGEN  "});
    break;
  }
}

} // namespace

DatenLage DatenDiagnose(ProjectState& s) {
  const StoffGruppe& st = s.Stoff;
  DatenLage d;
  d.KritOK = !(st.TKrit < Schwelle || st.pKrit < Schwelle);
  d.OmegaOK = static_cast<float>(st.omega) != 0.0f;
  d.DampfdruckOK = DampfdruckVerfuegbar(st);
  d.SiedeOK = st.TSiede > Schwelle;
  d.HLVOK = !(st.HLVGrenzen.TLo < Schwelle);
  d.DatenAmpel = Stufe(d);
  d.AmpelNichtRot = d.DatenAmpel != 4;
  s.Projekt.Ampel = d;
  return d;
}

AmpelFarbe FarbeVonAmpel(int16_t DatenAmpel) {
  switch (DatenAmpel) {
  case 1:
    return {50, 255, 50, false};
  case 2:
    return {255, 255, 0, false};
  case 3:
    return {255, 200, 0, false};
  case 4:
    return {255, 0, 0, false};
  default:
    return {};
  }
}

std::string DatenAmpelText(ProjectState& s) {
  const DatenLage d = DatenDiagnose(s);
  std::string text;
  TestZeilen(text, d);
  text += "\r\n";
  Schluss(text, d.DatenAmpel);
  return text;
}

void cmdDatenDiagnose(ProjectState& s, ui::Oberflaeche& ui) {
  ui.Meldung(DatenAmpelText(s), DatenAmpelTitel, ui::Symbol::Information);
}

} // namespace quor
