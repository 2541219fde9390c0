// The data diagnosis ("Daten-Ampel"): the five tests, the level with its order of tests and the
// report text.
#include "core/daten_diagnose.h"

#include "support/golden.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace quor {
namespace {

// Critical point, omega, boiling point, a Frost/Kalkwarf block and a delta(LV)h block.
ProjectState VollerStoff() {
  ProjectState s;
  StoffGruppe& st = s.Stoff;
  st.TKrit = 500;
  st.pKrit = 4000;
  st.omega = 0.3;
  st.TSiede = 350;
  st.FrostKalkwarfGrenzen.TLo = 200;
  st.HLVGrenzen.TLo = 200;
  return s;
}

// Of two lacks the later test wins: omega after the vapour pressure gives level 2, not 3.
TEST(DatenDiagnose, GradesByTheOrderOfItsTests) {
  ProjectState s = VollerStoff();
  s.Stoff.omega = 0;
  s.Stoff.FrostKalkwarfGrenzen.TLo = 0;
  EXPECT_EQ(DatenDiagnose(s).DatenAmpel, 2);
  EXPECT_EQ(s.Projekt.Ampel.DatenAmpel, 2); // the result stays in the project
  // Red for level 4; the face colour while nothing is judged.
  const AmpelFarbe rot = FarbeVonAmpel(4);
  EXPECT_TRUE(rot.Rot == 255 && rot.Gruen == 0 && rot.Blau == 0 && !rot.Systemfarbe);
  EXPECT_TRUE(FarbeVonAmpel(0).Systemfarbe);
}

TEST(DatenDiagnose, KnowsEachVapourPressureSourceAndOmegaInSinglePrecision) {
  ProjectState s = VollerStoff();
  s.Stoff.FrostKalkwarfGrenzen.TLo = 0;
  for (TGrenzen* g : {&s.Stoff.AntoineNdGrenzen, &s.Stoff.AntoineHdGrenzen, &s.Stoff.WagnerGrenzen}) {
    g->TLo = 150;
    EXPECT_TRUE(DatenDiagnose(s).DampfdruckOK);
    g->TLo = 0;
  }
  EXPECT_FALSE(DatenDiagnose(s).DampfdruckOK);
  s.Stoff.AugustA = 10.5f; // the August constants alone suffice
  s.Stoff.AugustB = -3000.0f;
  EXPECT_TRUE(DatenDiagnose(s).DampfdruckOK);

  s.Stoff.omega = 1e-50; // not 0 as a double, 0 in single precision
  EXPECT_FALSE(DatenDiagnose(s).OmegaOK);
}

// The whole report for each level, from golden files core/ampel_<level>.txt.
TEST(DatenDiagnose, ReportsEveryTestAndTheLevel) {
  ProjectState leer;
  leer.Projekt.Ampel.DatenAmpel = 1; // the report judges anew
  ProjectState schwer = VollerStoff();
  schwer.Stoff.FrostKalkwarfGrenzen.TLo = 0;
  ProjectState einige = VollerStoff();
  einige.Stoff.TSiede = 0;
  for (auto [name, s] :
       {std::pair{"keine", VollerStoff()}, {"alles", leer}, {"schwer", schwer}, {"einige", einige}}) {
    SCOPED_TRACE(name);
    test::PruefeGolden(std::string("core/ampel_") + name + ".txt", DatenAmpelText(s));
  }
}

} // namespace
} // namespace quor
