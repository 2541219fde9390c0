// The diagnostics of the cubic equation: the roots of the last state with their stability notes in
// the display's volume unit, and the picture that fits the case.
#include "calc/ceos_diagnose.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quor {
namespace {

ProjectState Kubisch() {
  ProjectState s;
  InitProjectState(s);
  s.Stoff.TKrit = 369.83;
  s.Stoff.MolMasse = 44.097f;
  s.Modell.EOSIndex = 6;
  return s;
}

LetzterZustand DreiWurzeln(bool hatL, bool hatV) {
  LetzterZustand z;
  z.T = 300;
  z.pLetzt = 1000;
  z.V = {0.09, 0.3, 2.0};
  z.AnzahlWurzeln = 3;
  z.HatL = hatL;
  z.HatV = hatV;
  return z;
}

// With three roots the middle one is unstable; the outer roots are stable or metastable by the
// phase that exists, and both stable at equilibrium.
TEST(CEOSDiagnose, ThreeRootsCarryTheirStability) {
  const ProjectState s = Kubisch();
  for (const auto& [L, V, erste, dritte] : {std::tuple{false, true, "(metastabil)", "(stabil, V-Phase)"},
                                            {true, false, "(stabil, L-Phase)", "(metastabil)"},
                                            {true, true, "(stabil, L-Phase)", "(stabil, V-Phase)"}}) {
    const LetzterZustand z = DreiWurzeln(L, V);
    frmCEOSDiagnose d(s, z);
    d.Form_Load();
    EXPECT_EQ(d.pctEOS, frmCEOSDiagnose::Bild::DreiWurzelnUnterkritisch);
    EXPECT_EQ(d.Wurzeln, (std::vector<std::string>{std::string("v(1) = 0.09 m^3/kmol   ") + erste,
                                                   "v(2) = 0.3 m^3/kmol   (instabil)",
                                                   std::string("v(3) = 2 m^3/kmol   ") + dritte}));
  }
  const LetzterZustand z = DreiWurzeln(false, true);
  frmCEOSDiagnose d(s, z);
  d.Form_Load();
  EXPECT_EQ(d.lblEOS + " | " + d.lblT + " | " + d.lblp,
            "CEOS Peng / Robinson | T = 300.000 K | p = 1000.000 kPa");

  // Volumes with the display factor and unit: 2.0 m^3/kmol / 44.097 kg/kmol = 0.04535456 m^3/kg.
  ProjectState spezifisch = Kubisch();
  spezifisch.Einheiten.VolumenFaktor = 1.0 / 44.097;
  spezifisch.Einheiten.vEinheit = " m^3/kg  ";
  frmCEOSDiagnose k(spezifisch, z);
  k.Form_Load();
  EXPECT_EQ(k.Wurzeln[2], "v(3) = 0.04535456 m^3/kg     (stabil, V-Phase)");
}

} // namespace
} // namespace quor
