// The model window as the user changes it: EOS family and concept, hand-input virial coefficients,
// the omega warning and the vapour-pressure choice.
#include "modell_wahl_hilfe.h"
#include "substance/b_par_input.h"

#include <tuple>

namespace quor {
namespace {

using namespace quor::test;

TEST(frmQModell, VirialChoiceForcesPartialAndCubicChoiceRestoresGlobal) {
  ModellDialog d(VollerStoff());
  d.s.Einheiten.VolumenMode = 2; // reduced units need the EOS's critical volume
  d.frm.Form_Load();
  d.frm.HLVListe_Click(d.frm.HLV.Position(7));
  ASSERT_EQ(d.s.Modell.HLVIndex, 7);

  EXPECT_TRUE(d.EOSWahl(14).Graph2DAktualisieren);
  const ModelSelection& m = d.s.Modell;
  EXPECT_FALSE(m.KonzeptGlobal);
  EXPECT_FALSE(d.frm.optKonzeptEnabled);
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
  EXPECT_TRUE(m.KonzeptGlobal);
  EXPECT_TRUE(d.frm.optKonzeptEnabled);
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
  const ModellAktionen a = d.EOSWahl(10);
  EXPECT_TRUE(a.BParInputOeffnen && a.Getestet);
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
  ASSERT_TRUE(d.ui.protokoll.empty());
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
  const ModellAktionen a = d.frm.DampfdruckListe_Click(d.frm.Dampfdruck.Position(6));
  EXPECT_TRUE(a.BankEditAktualisieren && a.Getestet);
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
