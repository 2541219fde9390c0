// Set-up of the cubic models: critical point, textbook constants, failures, the parameter report.
#include "core/zahlformat.h"
#include "engine/eos_auswertung.h"
#include "engine/kubisch.h"
#include "stoffe.h"
#include "support/relativ.h"

#include <gtest/gtest.h>
#include <tuple>

namespace quor {
namespace {

using namespace quor::test;

// At TKrit and pKrit the cubic has a triple root at vKritEOS, attainable only to the cube root of
// the rounding (about 5e-6).
TEST(EOSParameter, CriticalPointAndTextbookConstants) {
  for (const StoffDaten& stoff : {Methan, Wasser, Eikosan}) {
    for (int16_t index : KubischeZeilen) {
      ProjectState s = ZustandMit(stoff, index);
      EOSbeiT(s, stoff.TKrit);
      int16_t nRoots = 0, err = 0;
      KubischeWurzeln(s, stoff.TKrit, stoff.pKrit, nRoots, err);
      ASSERT_EQ(err, 0);
      SCOPED_TRACE(std::string(stoff.name) + " " + std::to_string(index));
      EXPECT_REL(s.EOS.VRoots[0], s.EOS.vKritEOS, 5e-5);
      EXPECT_REL(s.EOS.VRoots[nRoots == 3 ? 2 : 0], s.EOS.vKritEOS, 5e-5);
    }
  }
  // Peng and Robinson (1976): Omega_a = 0.45724, Omega_b = 0.07780, to more digits 0.457235529 and
  // 0.0777960739 (the exact root of their critical conditions); (v+c)*(v+d) = v^2 + 2*b*v - b^2; the
  // slope at omega = 0 is 0.37464.
  const double Tc = OhneOmega.TKrit, pc = OhneOmega.pKrit;
  ProjectState pr = ZustandMit(OhneOmega, 6);
  EXPECT_REL(pr.EOS.a0 * pc / (RGas * RGas * Tc * Tc), 0.457235529, 1e-8);
  EXPECT_REL(pr.EOS.b0 * pc / (RGas * Tc), 0.0777960739, 1e-8);
  EXPECT_REL(pr.EOS.c0 + pr.EOS.d0, 2 * pr.EOS.b0, 1e-14);
  EXPECT_REL(pr.EOS.c0 * pr.EOS.d0, -pr.EOS.b0 * pr.EOS.b0, 1e-14);
  EXPECT_EQ(pr.EOS.aExp, 0.37464);
  EXPECT_EQ(ZustandMit(OhneOmega, 4).EOS.aExp, -0.5); // Redlich/Kwong: a ~ T^-0.5
  EXPECT_EQ(ZustandMit(OhneOmega, 5).EOS.aExp, 0.48); // Soave's slope at omega = 0
  // The virial rows keep the constants of their cubic branch but have no critical volume.
  const EOSGruppe virial = ZustandMit(OhneOmega, 15).EOS;
  EXPECT_EQ(std::tie(virial.a0, virial.vKritEOS), std::make_tuple(pr.EOS.a0, 0.0));
}

// The set-up wipes hand input; without pKrit it returns at once, err and constants untouched; an
// overflowing set-up ends in the flag and its message, nothing of it kept.
TEST(EOSParameter, SetUpWipesHandInputSkipsMissingDataAndFlagsFailure) {
  ProjectState s = ZustandMit(Methan, 10);
  s.EOS.b0 = 0.05;
  s.EOS.BExpHand = 1.5;
  ui::SkriptOberflaeche ui;
  int16_t err = 5;
  EOSParameterSetup(s, ui, 10, err);
  EXPECT_EQ(std::tie(err, s.EOS.b0, s.EOS.BExpHand), std::make_tuple(int16_t{0}, 0.0, 0.0));

  s = ZustandMit(Methan, 6);
  const double a0 = s.EOS.a0;
  s.Stoff.pKrit = 0;
  err = 7;
  EOSParameterSetup(s, ui, 2, err);
  EXPECT_EQ(std::tie(err, s.EOS.a0), std::make_tuple(int16_t{7}, a0));
  EXPECT_TRUE(ui.Meldungen().empty());

  s.Stoff.TKrit = 1e200; // a0 overflows
  s.Stoff.pKrit = 1e-100;
  err = 0;
  EOSParameterSetup(s, ui, 2, err);
  EXPECT_GT(err, 0);
  EXPECT_EQ(std::tie(s.EOS.a0, s.EOS.vKritEOS), std::make_tuple(0.0, 0.0));
  ASSERT_EQ(ui.Meldungen().size(), 1u);
  EXPECT_EQ(std::make_tuple(ui.Letzte().text, ui.Letzte().titel),
            std::make_tuple("Fehler bei der EOS-Parameterberechnung", "Ausführung nicht möglich"));
}

// The denominator (v+c)*(v+d) = v^2 + u*b*v - u*b^2 with u = JiU; at T = TKrit alpha = 1 exactly
// and both models agree; away from it only model II moves b, c, d.
TEST(VarnikJi, DenominatorAndTheTwoModels) {
  ProjectState eins = ZustandMit(Methan, 7), zwei = ZustandMit(Methan, 8);
  EOSbeiT(eins, 150);
  const double u = eins.EOS.JiParameter[JiU], b = eins.EOS.bT;
  EXPECT_REL(eins.EOS.cT + eins.EOS.dT, u * b, 1e-14);
  EXPECT_REL(eins.EOS.cT * eins.EOS.dT, -u * b * b, 1e-14);
  EOSbeiT(zwei, 150);
  EXPECT_LT(zwei.EOS.bT, b);
  EOSbeiT(eins, Methan.TKrit);
  EOSbeiT(zwei, Methan.TKrit);
  EXPECT_EQ(std::tie(eins.EOS.aT, zwei.EOS.aT, eins.EOS.bT, eins.EOS.dT),
            std::tie(eins.EOS.JiParameter[JiA], zwei.EOS.JiParameter[JiA], zwei.EOS.bT, zwei.EOS.dT));
  // Below z = 1/6 the closed form has no real root: flagged, nothing changed.
  int16_t err = 0;
  eins.EOS.JiParameter[JiZc] = 0.1;
  JiKritischeKonstanten(eins, err);
  EXPECT_EQ(err, -1);
  EXPECT_EQ(eins.EOS.JiParameter[JiU], u);
}

TEST(ParameterEOSText, LinesOfEachKindOfModel) {
  ProjectState s = ZustandMit(Methan, 6);
  // The name keeps the blanks that pad it to the table's width; a1 is the slope m at
  // omega = 0.0114: 0.37464 + 1.54226*0.0114 - 0.26992*0.0114^2 = 0.3921867.
  const std::string kopf = "Parameter " + s.Tab.EOSNamen[6] +
                           "\r\nfür Methan\r\na0 = " + SingleText(static_cast<float>(s.EOS.a0)) +
                           "\r\na1 = 0.3921867\r\nb = b0 = ";
  const std::string text = ParameterEOSText(s);
  EXPECT_EQ(text.substr(0, kopf.size()), kopf);
  // Varnik/Ji: a..d at 298.15 K.
  s = ZustandMit(Methan, 8);
  EXPECT_NE(ParameterEOSText(s).find("\r\nfür T/K = 298.15\r\n  (alle Parameter sind T-abhängig)\r\na = "),
            std::string::npos);
  s.Modell.EOSIndex = 7;
  EXPECT_NE(ParameterEOSText(s).find("  (die Parameter b, c und d sind T-unabhängig)"), std::string::npos);
  s = ZustandMit(Methan, 0);
  EXPECT_EQ(ParameterEOSText(s), "Idealgasgleichung eingestellt");
}

} // namespace
} // namespace quor
