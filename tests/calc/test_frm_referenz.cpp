// The reference-state dialog: what it shows on opening by model and energy unit, the proposal of the
// reference pressure, its options, and what OK stores.
#include "calc/frm_referenz.h"
#include "calc_testhilfe.h"
#include "core/zahlformat.h"
#include "dienste/skript_oberflaeche.h"
#include "engine/referenz.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quor {
namespace {

using namespace quor::test;

struct Dialog {
  ProjectState s;
  ui::SkriptOberflaeche ui;
  frmReferenz frm{s, ui};
  explicit Dialog(ProjectState zustand) : s(std::move(zustand)) {}
};

// The reference pressure, when none is set, is the EOS's saturation pressure at TRef; above TKrit,
// and for models without a liquid, normal pressure. The hint on that proposal shows for cubic
// models below TKrit only. Nothing of it is a message.
TEST(frmReferenz, ProposesTheReferencePressureFromTheEquation) {
  Dialog wasser(StoffMitModell(CasWasser, 6));
  wasser.frm.Form_Load();
  ProjectState d = wasser.s;
  EXPECT_EQ(wasser.s.Referenz.pRef, static_cast<float>(DruckLV(d, 298.15f)));
  EXPECT_TRUE(wasser.frm.HinweisPoVisible);

  Dialog methan(StoffMitModell(CasMethan, 6)); // TRef above TKrit
  methan.frm.Form_Load();
  EXPECT_EQ(methan.s.Referenz.pRef, 101.325f);
  EXPECT_FALSE(methan.frm.HinweisPoVisible);

  Dialog virial(StoffMitModell(CasWasser, 14));
  virial.frm.Form_Load();
  EXPECT_EQ(virial.s.Referenz.pRef, 101.325f);
  EXPECT_FALSE(virial.frm.HinweisPoVisible);
  EXPECT_TRUE(wasser.ui.protokoll.empty() && virial.ui.protokoll.empty());

  Dialog gesetzt(StoffMitModell(CasWasser, 6));
  gesetzt.s.Referenz.pRef = 50;
  gesetzt.frm.Form_Load();
  EXPECT_EQ(gesetzt.s.Referenz.pRef, 50.0f);
}

// The conventional normalisation needs h and g of formation, the formation reference h and s; the
// kind in the state is the selected option. Option 1 sets To and po at once; the four reference
// fields are editable only under option 0.
TEST(frmReferenz, OptionsFollowTheFormationDataAndLockTheFields) {
  Dialog d(StoffMitModell(CasWasser, 6));
  d.s.Stoff.hBildung = -241820;
  d.s.Stoff.gBildung = -228590;
  d.s.Stoff.sBildung = 0;
  d.s.Referenz.RefArt = RefKonventionell;
  d.frm.Form_Load();
  EXPECT_EQ(d.frm.opt_HNull_Enabled, (std::array<bool, 3>{true, true, false}));
  EXPECT_EQ(d.frm.opt_HNull, 1);
  EXPECT_EQ(d.frm.T_Enabled, (std::array<bool, 6>{false, false, false, false, true, true}));

  d.s.Stoff.gBildung = 0;
  d.s.Stoff.sBildung = 188.8f;
  d.s.Referenz.RefArt = RefBildung;
  d.s.Referenz.TRef = 350;
  d.frm.Form_Load();
  EXPECT_EQ(d.frm.opt_HNull_Enabled, (std::array<bool, 3>{true, false, true}));
  EXPECT_EQ(d.frm.opt_HNull, 2);
  EXPECT_EQ(d.s.Referenz.TRef, 350.0f); // the formation kind overrides at evaluation only
  d.frm.opt_HNull_Click(1);
  EXPECT_EQ(std::tie(d.s.Referenz.TRef, d.s.Referenz.pRef), std::tuple(298.15f, 101.325f));
  d.frm.opt_HNull_Click(0);
  EXPECT_EQ(d.frm.T_Enabled, (std::array<bool, 6>{true, true, true, true, true, true}));
}

// OK reads the fields with either decimal mark, divides h and s by the energy factor, stores a
// T(u) of 0 as 1e-6 and takes the kind from the option; ESC stores nothing.
TEST(frmReferenz, OkStoresTheFields) {
  Dialog d(StoffMitModell(CasWasser, 6));
  d.s.Einheiten.EnergieMode = 1; // per R
  d.frm.Form_Load();
  d.frm.T = {"1,5", "0.25", "310,5", "200", "0", "99,9"};
  EXPECT_TRUE(d.frm.OK_Click());
  const ReferenzGruppe& r = d.s.Referenz;
  EXPECT_REL(r.hRef, 1.5 * RGas, 1e-12);
  EXPECT_REL(r.sRef, 0.25 * RGas, 1e-12);
  EXPECT_EQ(std::tie(r.TRef, r.pRef, r.TUmgebung, r.pUmgebung, r.RefArt),
            std::tuple(310.5f, 200.0f, 1e-6, 99.9, RefBenutzer));

  Dialog e(StoffMitModell(CasWasser, 6));
  e.s.Stoff.hBildung = -241820;
  e.s.Stoff.gBildung = -228590;
  e.frm.Form_Load();
  e.frm.opt_HNull_Click(1);
  e.frm.T[4] = "kein Wert"; // a field that is no number keeps its value
  e.frm.OK_Click();
  EXPECT_EQ(e.s.Referenz.RefArt, RefKonventionell);
  EXPECT_EQ(e.s.Referenz.TUmgebung, 298.15);

  Dialog f(StoffMitModell(CasWasser, 6));
  f.frm.Form_Load();
  f.frm.T[5] = "1";
  f.frm.ESC_Click();
  EXPECT_EQ(f.s.Referenz.pUmgebung, 101.325);
}

} // namespace
} // namespace quor
