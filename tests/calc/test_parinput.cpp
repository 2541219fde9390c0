// The value dialog: its fields by what it is opened for, densities and volumes in the display's
// units, the refusal of what is not a positive number, and where the values go.
#include "calc/parinput.h"
#include "calc_testhilfe.h"
#include "dienste/skript_oberflaeche.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quor {
namespace {

using namespace quor::test;

struct Eingabe {
  ProjectState s = StoffMitModell(CasMethan, 6);
  ui::SkriptOberflaeche ui;
  int rechnungen = 0;
  frmParinput frm{s, ui, [this] {
                    ++rechnungen;
                    return std::string();
                  }};
  explicit Eingabe(int16_t modus) {
    s.Rechnung.ParinputModus = modus;
    frm.Form_Load();
  }
  std::vector<std::string> Labels() const {
    std::vector<std::string> l;
    for (const ParinputFeld& f : frm.Felder)
      l.push_back(f.Bz);
    return l;
  }
  bool OK(std::vector<std::string> werte) {
    for (std::size_t i = 0; i < werte.size(); ++i)
      frm.Felder[i].par = werte[i];
    return frm.cmdParameter_OK_Click();
  }
  const ExpDatenSatz& Zeile0() const { return s.Mess.ExpDaten[0]; }
};

using Texte = std::vector<std::string>;

// A direct calculation asks for what its kind needs: T, p, or a density; the reference point and the
// vessel have their own fields, the vessel a choice of mass or amount.
TEST(frmParinput, FieldsByWhatTheDialogIsFor) {
  Eingabe tp(103);
  EXPECT_EQ(tp.frm.Caption + " " + tp.frm.cmdParameter_OKCaption, "Eingabe Direktberechnung &Berechnen");
  EXPECT_EQ(tp.Labels(), (Texte{"        T/K = ", "      p/kPa = "}));
  EXPECT_TRUE(Eingabe(113).frm.fraRhoVInputVisible);

  Eingabe behaelter(33);
  EXPECT_TRUE(behaelter.frm.Felder[1].enabled && !behaelter.frm.Felder[2].enabled);
  behaelter.frm.optm_n_Click(1);
  behaelter.s.Modell.RechnungGlobal = false;
  behaelter.frm.Form_Load();
  EXPECT_FALSE(behaelter.frm.Felder[1].enabled); // the choice of amount is kept
}

// The dialog stays open: each input goes to row 0 (the old values cleared) and is calculated, and
// the next input follows at once.
TEST(frmParinput, EachInputIsCalculatedAndTheDialogStays) {
  Eingabe e(103);
  e.s.Mess.ExpDaten[0].RhoL = 400; // left from an earlier kind
  EXPECT_FALSE(e.OK({"150", "2000,5"}));
  EXPECT_EQ(std::tie(e.Zeile0().T, e.Zeile0().p, e.Zeile0().RhoL), std::tuple(150.0, 2000.5, 0.0f));
  EXPECT_FALSE(e.OK({"160", "1.5E3"}));
  EXPECT_EQ(e.rechnungen, 2);
  EXPECT_FALSE(e.frm.Geschlossen);

  // Opened again, the fields show the last input.
  e.frm.Form_Load();
  EXPECT_EQ(e.frm.Felder[0].par, "160");
  EXPECT_EQ(e.frm.Felder[1].par, "1500");
}

// What is not a positive number is refused with one message; nothing is stored or calculated.
TEST(frmParinput, RefusesWhatIsNoPositiveNumber) {
  for (const char* falsch : {"", "abc", "0", "-5", "1e400", "12 K"}) {
    Eingabe e(103);
    e.s.Mess.ExpDaten[0].T = 99;
    EXPECT_FALSE(e.OK({"150", falsch})) << falsch;
    ASSERT_EQ(e.ui.Meldungen().size(), 1u) << falsch;
    EXPECT_EQ(e.ui.Letzte().text, "keine gültige Eingabe");
    EXPECT_EQ(e.rechnungen, 0);
    EXPECT_EQ(e.Zeile0().T, 99);
  }
}

// A density goes to row 0 as given: rho(V) for kinds 1 and 13, rho(L) for kind 2. A volume in the
// display's unit (molar or specific) is taken back to the engine's before it becomes the density M/v.
TEST(frmParinput, DensityOrVolumeInTheDisplayUnit) {
  Eingabe dichte(102);
  dichte.OK({"150", "350,5"});
  EXPECT_EQ(dichte.Zeile0().RhoL, 350.5f);

  const float M = dichte.s.Stoff.MolMasse;
  Eingabe molar(101);
  molar.frm.optRhoV_Click(1);
  molar.OK({"200", "0.5"});
  EXPECT_REL(molar.Zeile0().RhoV, M / 0.5, 1e-6); // rho = M / v

  Eingabe spezifisch(113);
  spezifisch.s.Einheiten.VolumenMode = 1;
  SetzeEinheiten(spezifisch.s, spezifisch.ui);
  spezifisch.frm.Form_Load();
  spezifisch.frm.optRhoV_Click(1);
  EXPECT_EQ(spezifisch.frm.Felder[1].Bz, "  V/m^3/kg  = ");
  spezifisch.OK({"1000", "0.02"});
  EXPECT_REL(spezifisch.Zeile0().RhoV, 50.0, 1e-6); // 1 / (0.02 m^3/kg)

  // The kept density shows as a volume in the chosen unit when the dialog opens again.
  molar.frm.Form_Load();
  EXPECT_EQ(molar.frm.optRhoV, 1);
  EXPECT_EQ(molar.frm.Felder[1].par, "0.5");
}

// The reference point is stored in single precision and the dialog closes; the vessel takes a mass
// or an amount, and is calculated with the dialog kept open.
TEST(frmParinput, ReferencePointAndVessel) {
  Eingabe bezug(4);
  EXPECT_TRUE(bezug.OK({"111.66", "101.325", "422.6", "1.82"}));
  EXPECT_TRUE(bezug.frm.Geschlossen);
  EXPECT_EQ(bezug.s.Referenz.BezugRhoL, 422.6f);

  Eingabe behaelter(33);
  const double M = behaelter.s.Stoff.MolMasse;
  behaelter.frm.optm_n_Click(1);
  EXPECT_FALSE(behaelter.OK({"0.1", "", "2", "150"})); // the locked mass field is not read
  const BehaelterDaten& b = behaelter.s.Rechnung.Behaelter;
  EXPECT_EQ(std::tie(b.V, b.BehaelterT), std::tuple(0.1, 150.0f));
  EXPECT_REL(b.m, 2 * M, 1e-12);
  EXPECT_EQ(behaelter.rechnungen, 1);
  EXPECT_EQ(behaelter.Zeile0().T, 0); // the direct input row is not touched
}

// The fields take the keys of a number and the control keys only.
TEST(frmParinput, KeyFilterPassesWhatANumberNeeds) {
  for (char32_t c : std::u32string(U"0123456789.,-+eEdD\b\r\t"))
    EXPECT_TRUE(ZahlTaste(c)) << static_cast<int>(c);
  for (char32_t c : std::u32string(U"aKx /;%ä"))
    EXPECT_FALSE(ZahlTaste(c)) << static_cast<int>(c);
}

} // namespace
} // namespace quor
