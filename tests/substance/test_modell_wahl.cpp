// The model window on opening: which models it offers for a substance and in what order, the
// defaults and corrections of the model selection, the Watson exponents and the status bar.
#include "modell_wahl_hilfe.h"
#include "support/relativ.h"

#include <tuple>

namespace quor {
namespace {

using namespace quor::test;

TEST(frmQModell, OffersEveryModelOfAFullSubstanceInItsOrder) {
  ModellDialog d(VollerStoff());
  EXPECT_TRUE(d.frm.Form_Load().Getestet);
  EXPECT_EQ(d.frm.Caption, " Berechnungs-Modelle für Teststoff");
  EXPECT_EQ(d.frm.Dampfdruck.Index, (Indizes{3, 4, 1, 2, 5, 6, 7, 8}));
  EXPECT_EQ(d.frm.EOS.Index, (Indizes{0, 2, 3, 4, 5, 6, 7, 8, 10, 16, 11, 12, 13, 14, 15}));
  EXPECT_EQ(d.frm.HLV.Index, (Indizes{1, 2, 3, 4, 5, 6, 7}));
  EXPECT_EQ(d.frm.Cp.Index, (Indizes{1, 2}));

  // Defaults: the first vapour-pressure and delta(LV)h entries, Peng/Robinson, the sinh/cosh cp.
  const ModelSelection& m = d.s.Modell;
  EXPECT_EQ(std::tie(m.DampfdruckTag, m.EOSIndex, m.HLVIndex, m.CpIndex), std::make_tuple("FRO", 6, 1, 2));
  EXPECT_TRUE(d.frm.optKonzeptEnabled);
  EXPECT_EQ(d.frm.lblRhoL, "Parameter aus Datenbank verfügbar");
  EXPECT_EQ(d.frm.lblRhoLBereich, "Gültigkeit: T = 200 ... 480 K");

  // The test ran: EOS set up (Peng/Robinson's critical volume 0.3074 R Tc/pc), status bar, menus.
  EXPECT_REL(d.s.EOS.vKritEOS, 0.3074 * RGas * 500 / 4000, 1e-12);
  EXPECT_EQ(d.s.Projekt.StatusLeiste[3], "CEOS Peng / Robinson (GLOBAL-Konzept)");
  EXPECT_EQ(d.s.Projekt.StatusLeiste[4], "Dampfdruck-Gleichung: Frost/Kalkwarf (MDB-Gl)");
  const MenueFreigaben& f = d.s.Projekt.Freigaben;
  EXPECT_TRUE(f.Modell && f.Diagramme && f.KritischerPunkt && f.Saettigung);
  // b0 of Peng/Robinson = 0.0777961 R Tc/pc = 0.0808545 m^3/kmol
  EXPECT_EQ(d.frm.SchnittKurvenCaption(), "CEOS Peng / Robinson für Schnitt-Kurve ( (b = 0.08085 m^3/kmol))");
  EXPECT_TRUE(d.ui.protokoll.empty());
}

TEST(frmQModell, LeavesOutWhatNeedsTheAcentricFactor) {
  ProjectState s = VollerStoff();
  s.Stoff.omega = 0;
  ModellDialog d(std::move(s));
  d.frm.Form_Load();
  EXPECT_EQ(d.frm.EOS.Index, (Indizes{0, 2, 3, 4, 10, 11, 12, 13}));
  EXPECT_EQ(d.s.Modell.EOSIndex, 4); // the default without omega
  EXPECT_EQ(d.frm.HLV.Index, (Indizes{1, 2, 4, 5, 6}));
  EXPECT_TRUE(d.ui.protokoll.empty()); // nothing offered needs omega, so no warning
}

TEST(frmQModell, OffersOnlyTheIdealGasWithoutCriticalData) {
  ProjectState s;
  InitProjectState(s);
  s.Stoff.StoffName = "Unbekannt";
  s.Modell.CpIndex = 2;
  ModellDialog d(std::move(s));
  d.frm.Form_Load();
  for (const Indizes& liste : {d.frm.Dampfdruck.Index, d.frm.EOS.Index, d.frm.HLV.Index, d.frm.Cp.Index})
    EXPECT_EQ(liste, (Indizes{0}));
  EXPECT_EQ(d.frm.lblRhoL, "Parameter nicht verfügbar");
  const ModelSelection& m = d.s.Modell;
  EXPECT_EQ(std::tie(m.DampfdruckTag, m.CpIndex, m.VirialFlag, m.KonzeptGlobal),
            std::make_tuple("000", 0, true, false));
  EXPECT_FALSE(d.frm.optKonzeptEnabled);
  EXPECT_EQ(d.s.Projekt.StatusLeiste[3], "Idealgas-EOS");
  EXPECT_EQ(d.s.Projekt.StatusLeiste[4], "Dampfdruck-Gleichung: keine");
  EXPECT_FALSE(d.s.Projekt.Freigaben.KritischerPunkt || d.s.Projekt.Freigaben.Saettigung);
  EXPECT_TRUE(d.ui.protokoll.empty());
}

TEST(frmQModell, CorrectsStoredChoicesTheSubstanceCannotServe) {
  ProjectState s = VollerStoff();
  s.Stoff.CpPolyOK = false;
  s.Stoff.HLVGrenzen.TLo = 0;
  s.Stoff.WagnerGrenzen.TLo = 0;
  s.Modell.CpIndex = 1;         // the polynomial is missing: the sinh/cosh form
  s.Modell.HLVIndex = 1;        // the database function is missing
  s.Modell.DampfdruckIndex = 4; // Wagner is missing
  s.Modell.EOSIndex = 13;
  ModellDialog d(std::move(s));
  d.frm.Form_Load();
  // A stored choice that is offered (the virial model 13) stays.
  EXPECT_EQ(
      std::tie(d.s.Modell.CpIndex, d.s.Modell.HLVIndex, d.s.Modell.DampfdruckIndex, d.s.Modell.EOSIndex),
      std::make_tuple(2, 2, 3, 13));
  EXPECT_EQ(d.frm.HLV.Index, (Indizes{2, 3, 4, 5, 6})); // no cubic route under a virial model

  d.s.Stoff.CpSinhOK = false;
  d.s.Stoff.CpPolyOK = true;
  d.frm.Form_Load();
  EXPECT_EQ(d.s.Modell.CpIndex, 1);
  d.s.Stoff.CpPolyOK = false;
  d.frm.Form_Load();
  EXPECT_EQ(d.s.Modell.CpIndex, 0);
  EXPECT_TRUE(d.ui.protokoll.empty()); // all of it without a message
}

TEST(frmQModell, WatsonExponentFollowsTheReducedBoilingPoint) {
  // Tbr = TSiede/TKrit; the middle range gives 0.74 Tbr - 0.116 (0.3576 at Tbr = 0.64).
  const std::vector<std::pair<float, std::string>> faelle{
      {57, "0.30"}, {71, "0.41"}, {64, "0.3576"}, {40, "0.30"}, {90, "0.41"}};
  for (const auto& [tSiede, zweiter] : faelle) {
    ProjectState s = VollerStoff();
    s.Stoff.TKrit = 100;
    s.Stoff.TSiede = tSiede;
    ModellDialog d(std::move(s));
    d.frm.Form_Load();
    EXPECT_EQ(d.frm.WatsonListe, (std::vector<std::string>{"0.38", zweiter})) << tSiede;
  }

  ModellDialog d(VollerStoff());
  d.frm.Form_Load();
  EXPECT_EQ(d.s.Modell.WatsonExp, 0.38f);
  EXPECT_FALSE(d.frm.WatsonVisible);
  d.frm.HLVListe_Click(d.frm.HLV.Position(4));
  EXPECT_TRUE(d.frm.WatsonVisible);
  d.frm.WatsonListe_Change("0,402");
  EXPECT_EQ(d.s.Modell.WatsonExp, 0.402f);
  d.frm.WatsonListe_Change("0,4x"); // no number: the exponent stays
  d.frm.Form_Load();                // a stored exponent stands as the text
  EXPECT_EQ(d.frm.WatsonText, "0.402");
}

} // namespace
} // namespace quor
