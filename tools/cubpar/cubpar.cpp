// cubpar: reads "jipar.tmp" from the working directory, fits the Varnik/Ji parameter set of the
// model asked for and writes "PARAM_JI.DAT" (model I) or "PARA_JI2.DAT" (model II) beside it.
// Exit code 0 on success, 1 when no set can be fitted, 2 when the input cannot be read; in both
// failure cases no parameter file is written.
#include "core/datei_io.h"
#include "core/listen_datei.h"
#include "core/project_state.h"
#include "engine/varnik_ji.h"
#include "ji_anpassung.h"
#include "jipar_eingabe.h"
#include "saettigungsdaten.h"

#include <cstdio>
#include <string>

namespace {

constexpr int PunkteJeGroesse = 25;

std::string ParameterText(const cubpar::JiSatz& j, const cubpar::JiGuete& g, bool modellII) {
  quor::ListenSchreiber w;
  w.Ganz(g.punkte);
  w.ZeileEnde();
  const double werte[] = {g.rms, j.M, j.N, j.P, j.Zc, j.B2};
  for (int i = 0; i < (modellII ? 6 : 5); ++i) {
    w.Zahl(werte[i]);
    w.ZeileEnde();
  }
  return w.Bytes();
}

int Fehler(const std::string& text, int code) {
  std::fprintf(stderr, "cubpar: %s\n", text.c_str());
  return code;
}

} // namespace

int main() {
  std::string bytes, fehler;
  cubpar::JiParEingabe e;
  if (!quor::LeseDateiBytes(quor::JiEingabeDatei, bytes)) return Fehler("jipar.tmp nicht lesbar", 2);
  if (!cubpar::LeseJiParEingabe(bytes, e, fehler)) return Fehler(fehler, 2);
  quor::ProjectState s;
  quor::InitProjectState(s);
  if (!cubpar::StoffAusEingabe(e, s, fehler)) return Fehler(fehler, 2);
  const cubpar::Saettigungsdaten d = cubpar::ErzeugeDaten(s, e, PunkteJeGroesse);
  if (d.druckPunkte == 0) return Fehler("keine Dampfdruckdaten im Bereich", 1);
  cubpar::JiSatz satz;
  cubpar::JiGuete guete;
  if (!cubpar::PasseJiAn(s, d, satz, guete)) return Fehler("keine Anpassung gefunden", 1);
  const bool modellII = s.Modell.EOSIndex == 8;
  const std::string datei = quor::JiParameterDateiName(s.Modell.EOSIndex);
  if (!quor::SchreibeDateiBytes(datei, ParameterText(satz, guete, modellII)))
    return Fehler(datei + " nicht schreibbar", 1);
  std::printf("cubpar: Modell %s, %d Dampfdrücke %.1f ... %.1f K, %d Dichten\n", modellII ? "II" : "I",
              d.druckPunkte, d.TVon, d.TBis, d.dichtePunkte);
  std::printf("  Zc = %.6f  M = %.6f  N = %.6f  P = %.6f  B2 = %.6f\n", satz.Zc, satz.M, satz.N, satz.P,
              satz.B2);
  std::printf("  max. Abweichung p(LV): %.3f %%, rho(L): %.3f %%\n", 100 * guete.maxDruck,
              100 * guete.maxDichte);
  return 0;
}
