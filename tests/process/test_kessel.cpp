// The vessel picture: the segment solve against its closed form, the level mirrored above half full
// and held near the limits, the pressure and fill level texts word for word, and the vessel of
// methane with Peng/Robinson calculated through the dispatcher: partly filled, empty, full,
// compressed below the co-volume (GLOBAL and PARTIAL), supercritical in GLOBAL and in PARTIAL.
#include "calc/calc_testhilfe.h"
#include "core/rechen_art.h"
#include "process/kessel.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace quor::test {
namespace {

using namespace prozess;

constexpr double Pi = 3.141592653589793;

// The share of the circle (percent) that the segment of angle a covers: (a - sin a) / (2 pi) * 100.
double AnteilVonWinkel(double a) {
  return (a - std::sin(a)) / (2 * Pi) * 100;
}

// The share below a level h of a circle of diameter D, from the segment's angle 2 acos(1 - 2h/D).
double AnteilUnterHoehe(double h, double D) {
  return AnteilVonWinkel(2 * std::acos(1 - 2 * h / D));
}

// A vessel of methane calculated by kind `art` and the picture of the state it handed on.
struct Kessel {
  Rechnung r;
  std::vector<BehaelterZustand> gezeigt;
  explicit Kessel(int16_t eos = 6) : r(StoffMitModell(CasMethan, eos)) {
    r.k.BehaelterAnzeige = [this](const BehaelterZustand& z) { gezeigt.push_back(z); };
  }
  frmKessel Rechne(int16_t art, double m, double V, float T) {
    r.s.Modell.RechnungGlobal = art == art::BehaelterGlobal;
    r.k.Behaelter = {m, V, T};
    r.Rechne(art);
    EXPECT_EQ(gezeigt.size(), 1u) << "the display is reached once per calculation";
    frmKessel k(r.s, gezeigt.empty() ? BehaelterZustand{} : gezeigt.back());
    gezeigt.clear();
    k.Form_Load();
    return k;
  }
  // The mass that fills `prozent` of 1 m^3 with the saturated liquid of the EOS at T (kg).
  double MasseFuer(double prozent, float T) {
    ProjectState s = r.s;
    DruckLV(s, T);
    const double vL = s.EOS.VRoots[0], vV = s.EOS.VRoots[2];
    return (prozent / 100 / vL + (1 - prozent / 100) / vV) * s.Stoff.MolMasse;
  }
};

TEST(Kessel, SegmentAngleSolvesItsClosedForm) {
  // From the tiny sliver (where a - sin a ~ a^3/6 is flat) over half (a = pi) to nearly full.
  for (double a : {1e-3, 0.05, 0.3, 1.0, 2.0, Pi, 4.0, 5.5, 6.2}) {
    EXPECT_REL(SegmentWinkel(AnteilVonWinkel(a)), a, 1e-9) << "a = " << a;
  }
  EXPECT_EQ(SegmentWinkel(0), 0);
  EXPECT_REL(SegmentWinkel(100), 2 * Pi, 1e-15);
  // Out of range and not a number give a limit, never NaN.
  EXPECT_EQ(SegmentWinkel(-5), 0);
  EXPECT_REL(SegmentWinkel(250), 2 * Pi, 1e-15);
  EXPECT_EQ(SegmentWinkel(std::nan("")), 0);
  // Half the circle lies below its centre: a = pi, height = radius.
  EXPECT_REL(SegmentHoehe(SegmentWinkel(50), 50), 25, 1e-12);
}

TEST(Kessel, LevelIsMirroredAboveHalfAndHeldNearTheLimits) {
  EXPECT_EQ(frmKessel::HoeheVon(0), 0);
  EXPECT_EQ(frmKessel::HoeheVon(-3), 0);
  EXPECT_EQ(frmKessel::HoeheVon(99.999), 50);
  EXPECT_REL(frmKessel::HoeheVon(50), 25, 1e-12);
  for (double f : {0.2, 10.0, 30.0, 49.0}) {
    const double unten = frmKessel::HoeheVon(f), oben = frmKessel::HoeheVon(100 - f);
    EXPECT_REL(AnteilUnterHoehe(unten, 50), f, 1e-9) << f;
    EXPECT_REL(AnteilUnterHoehe(oben, 50), 100 - f, 1e-9) << 100 - f;
    EXPECT_REL(unten + oben, 50, 1e-12) << "the level above half is the mirror image of the one below";
  }
  // Slivers thinner than 0.15 % keep the level of 0.15 %, so that they stay visible.
  EXPECT_EQ(frmKessel::HoeheVon(0.01), frmKessel::HoeheVon(0.15));
  EXPECT_EQ(frmKessel::HoeheVon(99.95), frmKessel::HoeheVon(99.85));
  EXPECT_LT(frmKessel::HoeheVon(99.85), 50);
}

TEST(Kessel, PressureAndFillLevelTexts) {
  EXPECT_EQ(frmKessel::DruckText("", 12.34567), "12.346 kPa");
  EXPECT_EQ(frmKessel::DruckText("", 5), "5.0 kPa");
  EXPECT_EQ(frmKessel::DruckText("", 0.0123), "0.012 kPa");
  EXPECT_EQ(frmKessel::DruckText("", 99.99), "99.99 kPa");
  EXPECT_EQ(frmKessel::DruckText("", 100), "100.0 kPa");
  EXPECT_EQ(frmKessel::DruckText("", 1234.567), "1234.57 kPa");
  EXPECT_EQ(frmKessel::DruckText("", 0), "Error");
  EXPECT_EQ(frmKessel::DruckText("", -4), "Error");
  EXPECT_EQ(frmKessel::DruckText("", std::nan("")), "Error");
  EXPECT_EQ(frmKessel::DruckText("ERROR1", 500), " Error: v < b");
  EXPECT_EQ(frmKessel::DruckText("ERROR2", 500), "s. Hilfe 'Behälter'");
  EXPECT_EQ(frmKessel::DruckText("ERROR3", 500), "500.0 kPa");
  EXPECT_EQ(frmKessel::FuellstandText(30), "Füllstand 30.0 % (Vol.-anteil)");
  EXPECT_EQ(frmKessel::FuellstandText(33.3333), "Füllstand 33.33 % (Vol.-anteil)");
  EXPECT_EQ(frmKessel::FuellstandText(0), "Füllstand 0.0 % (Vol.-anteil)");
  EXPECT_EQ(frmKessel::FuellstandText(100), "Füllstand 100.0 % (Vol.-anteil)");
}

// 30 % and 80 % of 1 m^3 filled with saturated liquid at 150 K: the fill level comes back from the
// state, the level is that of the segment, and the record keeps the results.
TEST(Kessel, PartlyFilledVesselShowsItsLevel) {
  Kessel v;
  const frmKessel k30 = v.Rechne(art::BehaelterGlobal, v.MasseFuer(30, 150), 1, 150);
  EXPECT_EQ(k30.Caption, "Behälter-Berechnung (GLOBAL-Methode)");
  EXPECT_EQ(k30.Fuellung, KesselFuellung::Zweiphasig);
  EXPECT_REL(k30.Fuellstand, 30, 1e-9);
  EXPECT_EQ(k30.lblFuellstand, "Füllstand 30.0 % (Vol.-anteil)");
  EXPECT_REL(AnteilUnterHoehe(k30.Hoehe, 50), 30, 1e-9);
  EXPECT_LT(k30.Hoehe, 25);
  EXPECT_EQ(k30.txtDruck, frmKessel::DruckText("", v.r.p));
  const BehaelterDaten& b = v.r.s.Rechnung.Behaelter;
  EXPECT_EQ(b.BehaelterP, static_cast<float>(v.r.p));
  EXPECT_EQ(b.BehaelterFuellstand, static_cast<float>(k30.Fuellstand));
  EXPECT_EQ(b.BehaelterHoehe, static_cast<float>(k30.Hoehe));
  EXPECT_EQ(b.BehaelterStatus, "");

  const frmKessel k80 = v.Rechne(art::BehaelterGlobal, v.MasseFuer(80, 150), 1, 150);
  EXPECT_REL(k80.Fuellstand, 80, 1e-9);
  EXPECT_GT(k80.Hoehe, 25);
  EXPECT_REL(AnteilUnterHoehe(k80.Hoehe, 50), 80, 1e-9);
  EXPECT_EQ(k80.lblFuellstand, "Füllstand 80.0 % (Vol.-anteil)");
  EXPECT_REL(k80.SpiegelY(), 75 - k80.Hoehe, 1e-15);
}

TEST(Kessel, EmptyAndFullVessel) {
  Kessel v;
  // 0.1 kg in 1 m^3 at 150 K stays far below the vapour's saturated density: no liquid.
  const frmKessel leer = v.Rechne(art::BehaelterGlobal, 0.1, 1, 150);
  EXPECT_EQ(leer.Fuellstand, 0);
  EXPECT_EQ(leer.Hoehe, 0);
  EXPECT_EQ(leer.lblFuellstand, "Füllstand 0.0 % (Vol.-anteil)");
  // 390 kg/m^3 at 150 K lies between the saturated liquid and the co-volume: liquid throughout.
  const frmKessel voll = v.Rechne(art::BehaelterGlobal, 390, 1, 150);
  EXPECT_EQ(voll.Fuellstand, 100);
  EXPECT_EQ(voll.Hoehe, 50);
  EXPECT_EQ(voll.lblFuellstand, "Füllstand 100.0 % (Vol.-anteil)");
  EXPECT_EQ(voll.FluessigFarbe, 11);
}

TEST(Kessel, CompressedBelowTheCoVolumeShowsTheError) {
  Kessel v;
  // rho = M / b would be about 600 kg/m^3 for Peng/Robinson's methane; 2000 kg/m^3 is beyond it.
  const frmKessel k = v.Rechne(art::BehaelterGlobal, 2000, 1, 150);
  EXPECT_EQ(k.txtDruck, " Error: v < b");
  EXPECT_EQ(k.Fuellung, KesselFuellung::Leer);
  EXPECT_EQ(k.lblFuellstand, "");
  EXPECT_EQ(v.r.s.Rechnung.Behaelter.BehaelterStatus, "ERROR1");
  EXPECT_EQ(v.r.s.Rechnung.Behaelter.BehaelterP, 0);
  // PARTIAL words the same failure on the page only; the picture points to the help.
  const frmKessel partial = v.Rechne(art::BehaelterPartial, 2000, 1, 150);
  EXPECT_EQ(partial.txtDruck, "s. Hilfe 'Behälter'");
  EXPECT_EQ(partial.Fuellung, KesselFuellung::Leer);
  EXPECT_EQ(v.r.s.Rechnung.Behaelter.BehaelterStatus, "ERROR2");
}

TEST(Kessel, SupercriticalVesselHasOneColourByConcept) {
  Kessel global;
  const frmKessel g = global.Rechne(art::BehaelterGlobal, 50, 1, 250);
  EXPECT_EQ(g.Fuellung, KesselFuellung::Einfarbig);
  EXPECT_EQ(g.EinfarbigFarbe, 11);
  EXPECT_EQ(g.lblFuellstand, "") << "no fill level above T(cr)";
  EXPECT_GT(g.ZeigerAnteil, 0);
  EXPECT_EQ(g.Legende[2].text, "  überkritisch");

  // A virial model reaches the display at once in PARTIAL, above T(cr) too.
  Kessel partial(16);
  const frmKessel p = partial.Rechne(art::BehaelterPartial, 5, 1, 300);
  EXPECT_EQ(p.Caption, "Behälter-Berechnung (PARTIAL-Methode)");
  EXPECT_EQ(p.Fuellung, KesselFuellung::Einfarbig);
  EXPECT_EQ(p.EinfarbigFarbe, 14);
  EXPECT_EQ(p.Legende[2].farbe, 14);
}

TEST(Kessel, LegendAndPaletteColours) {
  ProjectState s;
  EXPECT_EQ(frmKessel(s, BehaelterZustand{}).Caption, "Behälter-Berechnung (Zylinder)");
  // Basic's QBColor: 1 blue, 4 red, 11 light cyan, 14 yellow.
  EXPECT_EQ(QBFarbe(1), (RGBFarbe{0, 0, 128}));
  EXPECT_EQ(QBFarbe(4), (RGBFarbe{128, 0, 0}));
  EXPECT_EQ(QBFarbe(11), (RGBFarbe{0, 255, 255}));
  EXPECT_EQ(QBFarbe(14), (RGBFarbe{255, 255, 0}));
  BehaelterZustand z;
  z.Status = "ERROR3";
  z.HatL = true;
  frmKessel rot(s, z);
  rot.Form_Load();
  EXPECT_EQ(rot.FluessigFarbe, 4);
  EXPECT_EQ(rot.Legende[0].text, "  V-Phase");
  EXPECT_EQ(rot.Legende[0].farbe, 1);
  EXPECT_EQ(rot.Legende[1].text, "  L-Phase");
  EXPECT_EQ(rot.Legende[1].farbe, 11);
}

} // namespace
} // namespace quor::test
