// Enthalpy of vaporization from the database function and the correlations; missing T or p.
#include "dienste/skript_oberflaeche.h"
#include "engine/korrelationen.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

// Water: critical point and acentric factor, the DIPPR 106 set of Perry's handbook
// (5.2053e7 J/kmol, 0.3199, -0.212, 0.25795, Tc 647.13 K), the Watson point at the normal boiling
// point (NIST: 40657 kJ/kmol at 373.12 K) and an Antoine set for the missing T or p.
ProjectState Wasser() {
  ProjectState s;
  InitProjectState(s);
  StoffGruppe& st = s.Stoff;
  st.TKrit = 647.096;
  st.pKrit = 22064;
  st.omega = 0.3443;
  st.TSiede = 373.15f;
  st.HLV = {52053, 0, 0.3199f, -0.212f, 0.25795f, 0};
  st.HLVTcr = 647.13f;
  st.HLVGrenzen = {274, 647};
  st.WatsonH = 40657;
  st.WatsonT = 373.15f;
  s.Modell.WatsonExp = 0.38f;
  st.AntoineNd = {7.196213f, 1730.63f, 233.426f}; // C without 273.15: T in degC
  st.AntoineNdGrenzen = {274, 647};
  return s;
}

double Hlv(ProjectState& s, int methode, double T, double p, int16_t& failed, HLVErgebnis& erg, int index = 0,
           ui::Oberflaeche* ui = nullptr, HLVDatenpunkt punkt = {}) {
  return HLVBerechnen(s, methode, T, p, index, ui != nullptr, erg, failed, ui, punkt);
}

TEST(Verdampfungsenthalpie, CorrelationsComeOutInWholeKilojoules) {
  ProjectState s = Wasser();
  int16_t failed = -1;
  HLVErgebnis erg;
  // Hand-computed for water at 373.15 K and 101.325 kPa (Tr = 0.576655, pr = 0.00459232):
  // Chen 373.15*(33.08 Tr - 32.74 - 29.77 log10 pr)/(1.07 - Tr) = 42308.75,
  // Carruth/Kobayashi R Tc (7.08 X^0.354 + 10.95 omega X^0.456) = 41805.49,
  // Watson at 300 K: 40657*(347.096/273.946)^0.38 = 44482.94; the function itself 40799.21.
  EXPECT_EQ(Hlv(s, 1, 373.15, 0, failed, erg), 40799.0);
  EXPECT_EQ(erg.notizen, std::vector<std::string>{"delta(LV)h = Fu(T) (Datenbank-Parameter)"});
  EXPECT_EQ(Hlv(s, 2, 373.15, 101.325, failed, erg), 42309.0);
  EXPECT_EQ(erg.notizen, std::vector<std::string>{"CHEN-Korrelation"});
  EXPECT_EQ(Hlv(s, 3, 373.15, 0, failed, erg), 41805.0);
  EXPECT_EQ(erg.notizen, std::vector<std::string>{"CARRUTH/KOBAYASHI-Korrelation"});
  EXPECT_EQ(Hlv(s, 4, 300, 0, failed, erg), 44483.0);
  EXPECT_EQ(erg.notizen, std::vector<std::string>{"WATSON-Korrelation, n =0.38"});
  EXPECT_EQ(failed, 0);
  // Halves go to the even neighbour: 100.5 -> 100, 101.5 -> 102 (exponent and alpha 0).
  s.Stoff.HLV = {100.5f, 0, 0, 0, 0, 0};
  EXPECT_EQ(Hlv(s, 1, 373.15, 0, failed, erg), 100.0);
  s.Stoff.HLV[0] = 101.5f;
  EXPECT_EQ(Hlv(s, 1, 373.15, 0, failed, erg), 102.0);
}

TEST(Verdampfungsenthalpie, DatabaseFunctionWarnsBeyondFiveKelvinAndEndsAtItsCriticalPoint) {
  ProjectState s = Wasser();
  s.Stoff.HLVGrenzen = {274, 367};
  ui::SkriptOberflaeche ui;
  int16_t failed = 0;
  HLVErgebnis erg;
  Hlv(s, 1, 372, 0, failed, erg, 0, &ui); // 5 K
  EXPECT_TRUE(ui.Meldungen().empty());
  Hlv(s, 1, 373.15, 0, failed, erg, 0, &ui);
  ASSERT_EQ(ui.Meldungen().size(), 1u);
  EXPECT_EQ(ui.Letzte().text, "Temperatur 6 K außerhalb Parameter-Gültigkeitsbereich\r\n"
                              "(vgl. unter Daten/Parameter delta(LV)h = Fu(T))");
  EXPECT_EQ(ui.Letzte().titel, "Warnung zur Gleichung delta(LV)h = Fu(T)");
  EXPECT_EQ(failed, 0);
  // The function vanishes at its T(cr); beyond it the power has a negative base.
  EXPECT_EQ(HLVFu(s, s.Stoff.HLVTcr, failed), 0.0);
  EXPECT_EQ(failed, 0);
  EXPECT_EQ(HLVFu(s, 650, failed), 0.0);
  EXPECT_EQ(failed, -1);
}

TEST(Verdampfungsenthalpie, MissingPressureOrTemperatureAndTheFailures) {
  ProjectState s = Wasser();
  int16_t failed = -1;
  HLVErgebnis erg;
  double T = 373.15, p = 0;
  const double h = HLVBerechnen(s, 2, T, p, 1, false, erg, failed);
  EXPECT_EQ(failed, 0);
  EXPECT_REL(p, 101.3365, 1e-5); // the Antoine set at 373.15 K, written back
  EXPECT_REL(h, 42309, 1e-4);
  EXPECT_EQ(erg.notizen.front(), "p = p(LV) von Dampfdruckgleichung:Antoine (T < Normalsiede-T)(MDB-Gl)");

  EXPECT_EQ(Hlv(s, 2, 373.15, 0, failed, erg, 0, nullptr, {0, 101.325}), 42309.0);
  EXPECT_EQ(erg.notizen.front(), "p(LV) = p aus akt. Datenpunkt");
  EXPECT_EQ(Hlv(s, 2, 373.15, 0, failed, erg), 0.0);
  EXPECT_EQ(failed, -1);
  EXPECT_EQ(erg.notizen, std::vector<std::string>{"kein p verfügbar"});

  T = 0;
  p = 101.325;
  EXPECT_REL(HLVBerechnen(s, 3, T, p, 1, false, erg, failed), 41805, 1e-4);
  EXPECT_REL(T, 373.15, 2e-4);
  EXPECT_EQ(erg.notizen.front(), "T = T(LV) von Dampfdruckgleichung Antoine (T < Normalsiede-T)(MDB-Gl)");

  EXPECT_EQ(Hlv(s, 3, 0, 101.325, failed, erg, 0, nullptr, {373.15, 0}), 41805.0);
  EXPECT_EQ(erg.notizen.front(), "(T(LV) aus aktuellem Datenpunkt)");
  EXPECT_EQ(Hlv(s, 3, 0, 101.325, failed, erg), 0.0);
  EXPECT_EQ(erg.notizen, std::vector<std::string>{"kein T verfügbar"});
  // A saturation temperature above the critical one is refused.
  EXPECT_EQ(Hlv(s, 3, 0, 1e6, failed, erg, 1), 0.0);
  EXPECT_EQ(failed, -1);
  EXPECT_EQ(erg.notizen.back(), "T > T(cr)!");

  // Failures without a value: above TKrit at once, methods without a correlation, Chen without pKrit.
  EXPECT_EQ(Hlv(s, 3, 650, 101.325, failed, erg), 0.0);
  EXPECT_EQ(failed, -1);
  EXPECT_TRUE(erg.notizen.empty());
  for (int methode : {0, 5, 6, 7, 8}) {
    failed = 0;
    EXPECT_EQ(Hlv(s, methode, 373.15, 101.325, failed, erg, 1), 0.0);
    EXPECT_EQ(failed, -1) << methode;
  }
  s.Stoff.pKrit = 0;
  EXPECT_EQ(Hlv(s, 2, 373.15, 101.325, failed, erg), 0.0);
  EXPECT_EQ(failed, -1);
}

} // namespace
} // namespace quor
