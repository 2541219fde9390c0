// The reference-state dialog: what it shows on opening by model and energy unit, the proposal of the
// reference pressure and its options.
#include "calc/frm_referenz.h"
#include "calc_testhilfe.h"
#include "dienste/skript_oberflaeche.h"
#include "engine/referenz.h"

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

} // namespace
} // namespace quor
