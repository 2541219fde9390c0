// The model window: which models it offers for a substance and in what order, the defaults and
// corrections of the selection, the Watson exponents, and the changes the user makes (EOS family and
// concept, hand-input virial coefficients, the omega warning, the vapour-pressure choice).
#include "core/project_state.h"
#include "dienste/skript_oberflaeche.h"
#include "substance/b_par_input.h"
#include "substance/modell_wahl.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace quor {
namespace {

// Critical point, omega, boiling point (Tbr = 0.7), every vapour-pressure block, delta(LV)h and
// rho(L) blocks, a Watson point and both ideal-gas cp equations.
inline ProjectState VollerStoff() {
  ProjectState s;
  InitProjectState(s);
  StoffGruppe& st = s.Stoff;
  st.StoffName = "Teststoff";
  st.MolMasse = 50;
  st.TKrit = 500;
  st.pKrit = 4000;
  st.omega = 0.3;
  st.TSiede = 350;
  st.FrostKalkwarfGrenzen = {200, 490};
  st.WagnerGrenzen = {250, 499};
  st.AntoineNd[0] = 6;
  st.AntoineHd[0] = 6.5f;
  st.HLVGrenzen = {200, 490};
  st.WatsonH = 30000;
  st.WatsonT = 350;
  st.RhoLGrenzen = {200, 480};
  st.CpPolyOK = true;
  st.CpSinhOK = true;
  return s;
}

struct ModellDialog {
  ProjectState s;
  ui::SkriptOberflaeche ui;
  frmQModell frm{s, ui};
  explicit ModellDialog(ProjectState zustand) : s(std::move(zustand)) {}
  ModellAktionen EOSWahl(int16_t eos) { return frm.EOSListe_Click(frm.EOS.Position(eos)); }
};

using Indizes = std::vector<int16_t>;

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

TEST(frmQModell, LeavesOutWhatNeedsTheAcentricFactorOrTheCriticalPoint) {
  ProjectState s = VollerStoff();
  s.Stoff.omega = 0;
  ModellDialog d(std::move(s));
  d.frm.Form_Load();
  EXPECT_EQ(d.frm.EOS.Index, (Indizes{0, 2, 3, 4, 10, 11, 12, 13}));
  EXPECT_EQ(d.s.Modell.EOSIndex, 4); // the default without omega
  EXPECT_EQ(d.frm.HLV.Index, (Indizes{1, 2, 4, 5, 6}));
  EXPECT_TRUE(d.ui.protokoll.empty()); // nothing offered needs omega, so no warning
  // Back from a virial model the cubic route of delta(LV)h is offered: van der Waals gives it.
  d.EOSWahl(11);
  d.EOSWahl(2);
  EXPECT_EQ(d.frm.HLV.Index, (Indizes{1, 2, 4, 5, 6, 7}));

  // Without critical data only the ideal gas is left.
  ProjectState leer;
  InitProjectState(leer);
  leer.Modell.CpIndex = 2;
  ModellDialog o(std::move(leer));
  o.frm.Form_Load();
  for (const Indizes& liste : {o.frm.Dampfdruck.Index, o.frm.EOS.Index, o.frm.HLV.Index, o.frm.Cp.Index})
    EXPECT_EQ(liste, (Indizes{0}));
  EXPECT_EQ(o.frm.lblRhoL, "Parameter nicht verfügbar");
  const ModelSelection& m = o.s.Modell;
  EXPECT_EQ(std::tie(m.DampfdruckTag, m.CpIndex, m.VirialFlag, m.KonzeptGlobal),
            std::make_tuple("000", 0, true, false));
  EXPECT_FALSE(o.frm.optKonzeptEnabled);
  EXPECT_EQ(o.s.Projekt.StatusLeiste[3], "Idealgas-EOS");
  EXPECT_EQ(o.s.Projekt.StatusLeiste[4], "Dampfdruck-Gleichung: keine");
  EXPECT_FALSE(o.s.Projekt.Freigaben.KritischerPunkt || o.s.Projekt.Freigaben.Saettigung);
  EXPECT_TRUE(o.ui.protokoll.empty());
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
  const std::vector<std::pair<float, std::string>> faelle{{57, "0.30"}, {71, "0.41"}, {64, "0.3576"}};
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

TEST(frmQModell, VirialChoiceForcesPartialAndCubicChoiceRestoresGlobal) {
  ModellDialog d(VollerStoff());
  d.s.Einheiten.VolumenMode = 2; // reduced units need the EOS's critical volume
  d.frm.Form_Load();
  d.frm.HLVListe_Click(d.frm.HLV.Position(7));
  ASSERT_EQ(d.s.Modell.HLVIndex, 7);

  EXPECT_TRUE(d.EOSWahl(14).Graph2DAktualisieren);
  const ModelSelection& m = d.s.Modell;
  EXPECT_FALSE(m.KonzeptGlobal || d.frm.optKonzeptEnabled);
  EXPECT_EQ(d.frm.HLV.Index, (Indizes{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(m.HLVIndex, 1); // the removed entry was selected: the first one is
  EXPECT_EQ(d.s.Projekt.StatusLeiste[3], "VIRIAL-EOS Soave / Redlich / Kwong");
  EXPECT_FALSE(d.s.Projekt.Freigaben.Saettigung);
  EXPECT_EQ(d.s.Einheiten.VolumenMode, 0);
  ASSERT_EQ(d.ui.Meldungen().size(), 1u);
  EXPECT_EQ(d.ui.Letzte().text,
            "Die gewählte EOS stellt kein V(cr) (kritisches mol. Volumen) zur Verfügung.\r\n"
            "Die gewünschte Option \"reduzierte Größen für T, p, v\" ist damit nicht möglich.");

  EXPECT_FALSE(d.frm.optKonzept_Click(0).Getestet); // locked
  EXPECT_FALSE(m.KonzeptGlobal);

  d.EOSWahl(5);
  EXPECT_TRUE(m.KonzeptGlobal && d.frm.optKonzeptEnabled);
  EXPECT_EQ(d.frm.HLV.Index, (Indizes{1, 2, 3, 4, 5, 6, 7})); // back at the end
  EXPECT_EQ(d.s.Projekt.StatusLeiste[3], "CEOS Soave / Redlich / Kwong (GLOBAL-Konzept)");

  d.frm.optKonzept_Click(1);
  EXPECT_EQ(d.s.Projekt.StatusLeiste[3], "CEOS Soave / Redlich / Kwong");
  EXPECT_EQ(d.s.Projekt.StatusLeiste[4], "Dampfdruck-Gleichung: Frost/Kalkwarf (MDB-Gl) (PARTIAL-Konzept)");
  d.EOSWahl(6); // from cubic to cubic the user's concept stays
  EXPECT_FALSE(m.KonzeptGlobal);

  d.EOSWahl(0); // the ideal gas counts as virial
  EXPECT_EQ(d.frm.HLV.Position(7), -1);
}

TEST(frmQModell, HandInputVirialModelAsksForItsCoefficients) {
  ModellDialog d(VollerStoff());
  d.frm.Form_Load();
  d.s.EOS.b0 = 0.02;
  d.s.EOS.bExp = 0;
  d.s.EOS.BExpHand = 0;
  EXPECT_TRUE(d.EOSWahl(10).BParInputOeffnen);
  EXPECT_EQ(d.s.EOS.a0, 0.0); // nothing of Peng/Robinson stays beside the hand coefficients
  EXPECT_EQ(d.s.Projekt.StatusLeiste[3], "VIRIAL-EOS Hand-Eingabe");

  frmBParInput par(d.s);
  par.Form_Load();
  EXPECT_EQ(par.par, (std::array<std::string, 3>{"0.02", "0", "0"}));
  par.par = {"0,05", "20", "1.5"};
  par.cancel();
  EXPECT_EQ(d.s.EOS.b0, 0.02); // cancel keeps the coefficients

  par.Form_Load();
  par.par = {"0,05", "20", "x"};
  par.cmdParameter_OK();
  EXPECT_TRUE(par.Geschlossen);
  // "x" is not a number: that exponent stays.
  EXPECT_EQ(std::tie(d.s.EOS.b0, d.s.EOS.bExp, d.s.EOS.BExpHand), std::make_tuple(0.05, 20.0, 0.0));

  EXPECT_TRUE(d.frm.cmdOKModell()); // no set-up for the hand input: the coefficients stay
  EXPECT_EQ(d.s.EOS.b0, 0.05);
}

TEST(frmQModell, WarnsWhenAModelNeedsTheMissingAcentricFactor) {
  ProjectState s = VollerStoff();
  s.Stoff.omega = 0;
  ModellDialog d(std::move(s));
  d.frm.Form_Load();
  const std::string warnung = "Kein azentrischer Faktor OMEGA verfügbar.\r\n"
                              "Es wird mit OMEGA = 0 gerechnet.\r\n"
                              "(Eingabemöglichkeit im Stoffdaten-Editor)";
  // A project may bring a model that the list no longer offers; the test goes on with omega = 0.
  for (int16_t eos : {5, 6, 14, 15, 16}) {
    d.s.Modell.EOSIndex = eos;
    d.s.Modell.VirialFlag = eos >= 10;
    d.ui.protokoll.clear();
    EXPECT_TRUE(d.frm.cmdOKModell()) << eos;
    ASSERT_EQ(d.ui.Meldungen().size(), 1u) << eos;
    EXPECT_EQ(std::tie(d.ui.Meldungen()[0].text, d.ui.Meldungen()[0].titel), std::tie(warnung, "WARNUNG"));
  }
  EXPECT_EQ(d.s.EOS.vKritEOS, 0.0); // the virial Pitzer/Curl model was set up last
  d.s.Modell.EOSIndex = 6;
  d.s.Modell.VirialFlag = false;
  d.frm.cmdOKModell();
  EXPECT_GT(d.s.EOS.vKritEOS, 0.0); // Peng/Robinson with omega = 0 is set up all the same

  d.s.Modell.EOSIndex = 4;
  for (int16_t hlv : {3, 2}) { // the third delta(LV)h method needs omega, the second does not
    d.s.Modell.HLVIndex = hlv;
    d.ui.protokoll.clear();
    d.frm.cmdOKModell();
    EXPECT_EQ(d.ui.Meldungen().size(), hlv == 3 ? 1u : 0u);
  }
}

TEST(frmQModell, VapourPressureChoiceSetsTheTagAndCorrelatesItsParameters) {
  ModellDialog d(VollerStoff());
  d.frm.Form_Load();
  EXPECT_TRUE(d.frm.DampfdruckListe_Click(d.frm.Dampfdruck.Position(6)).BankEditAktualisieren);
  EXPECT_EQ(d.s.Modell.DampfdruckTag, "KFW");
  EXPECT_NE(d.s.Stoff.KFW[1], 0.0f); // computed from Tc, pc and Tb
  EXPECT_EQ(d.s.Projekt.StatusLeiste[4], "Dampfdruck-Gleichung: Fro/Kalk (v.d.Waals korreliert)");

  d.frm.DampfdruckListe_Click(d.frm.Dampfdruck.Position(2));
  EXPECT_EQ(d.s.Modell.DampfdruckTag, "AHP");
  EXPECT_TRUE(d.frm.CpListe_Click(0).BankEditAktualisieren);
  EXPECT_EQ(d.s.Modell.CpIndex, 1);
  EXPECT_FALSE(d.frm.CpListe_Click(5).Getestet); // no such entry: nothing happens
  EXPECT_EQ(d.s.Modell.CpIndex, 1);
}

} // namespace
} // namespace quor
