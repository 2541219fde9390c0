// The 3D diagram page: the cells of a surface against the state calculation and the direct engine
// calls, the saturation plane, the held cp spike, the Z limits, the range input, the standard ranges,
// the dressing and the picture.
#include "calc/calc_testhilfe.h"
#include "diagrams/diagramm3d_art.h"
#include "diagrams/graph3d.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace quor {
namespace {

using namespace quor::test;

// A page on methane with Peng/Robinson and a scripted interface.
struct Seite3D {
  ProjectState s;
  ui::SkriptOberflaeche ui;
  frmGraph3D g{s, ui};
  explicit Seite3D(int16_t eos = 6) : s(StoffMitModell(CasMethan, eos)) {}
  bool Bereich(double x0, double x1, double y0, double y1, double z0, double z1) {
    auto t = [](double x) { return std::to_string(x); };
    return g.cmdCoord3({t(x0), t(x1), t(y0), t(y1), t(z0), t(z1)});
  }
};

Bereich3D Vorgabe(double x0, double x1, double y0, double y1) {
  return {x0, x1, y0, y1, -Z3DVorgabe, Z3DVorgabe};
}

// Every cell of the seven function surfaces equals the cell of the state calculation (kind 8) at its
// p and T, in the phase the calculation finds; in kJ/kg so that the energy factor shows. The grid
// holds liquid and vapour cells of methane.
TEST(Graph3D, FunctionCellsEqualTheStateCalculation) {
  ProjectState s = StoffMitModell(CasMethan, 6);
  ui::SkriptOberflaeche ui;
  s.Einheiten.EnergieMode = 3;
  s.Einheiten.EnergieFaktor = 1 / s.Stoff.MolMasse;
  const Bereich3D b = Vorgabe(1000, 5000, 120, 240);
  const std::array<std::pair<int16_t, std::array<int, 2>>, 7> arten{
      {{art3d::Cp, {ZelleCpL, ZelleCpV}},
       {art3d::U, {ZelleUL, ZelleUV}},
       {art3d::H, {ZelleHL, ZelleHV}},
       {art3d::S, {ZelleSL, ZelleSV}},
       {art3d::G, {ZelleGL, ZelleGV}},
       {art3d::ExergieU, {ZelleEUL, ZelleEUV}},
       {art3d::ExergieH, {ZelleEHL, ZelleEHV}}}};
  std::array<Gitter3D, 7> flaechen;
  for (std::size_t a = 0; a < arten.size(); ++a)
    flaechen[a] = FlaecheBerechnen(s, arten[a].first, 2, 2, b, true);
  int fluessig = 0;
  for (std::size_t j = 0; j < 3; ++j)
    for (std::size_t i = 0; i < 3; ++i) {
      Rechnung r(s);
      r.Vorgabe(flaechen[0].Y[j], flaechen[0].X[i]).Rechne(8);
      ASSERT_FALSE(r.k.ErrorFlag);
      const int phase = r.k.HatL && !r.k.HatV ? 0 : 1;
      fluessig += phase == 0;
      for (std::size_t a = 0; a < arten.size(); ++a) {
        ASSERT_TRUE(flaechen[a].Gueltig[j][i]);
        // The grid holds single precision.
        EXPECT_REL(flaechen[a].Z[j][i], r.Zelle(arten[a].second[phase]), 1e-6)
            << "Art " << arten[a].first << " at p = " << flaechen[0].X[i] << ", T = " << flaechen[0].Y[j];
      }
    }
  EXPECT_GT(fluessig, 0);
  EXPECT_LT(fluessig, 9);
}

// p(v, T) with the real behaviour: inside the two-phase region the cell is the saturation pressure
// of its T, outside it p(T, v); the S-curves give p(T, v) everywhere.
TEST(Graph3D, RealPressureSurfaceHasTheSaturationPlane) {
  ProjectState s = StoffMitModell(CasMethan, 6);
  const double T = 170, vMitte = 0.3; // between the saturated volumes of methane at 170 K
  const Bereich3D b{0.05, 0.55, 150, 170, 0, 1e5};
  const Gitter3D real = FlaecheBerechnen(s, art3d::Druck, 2, 2, b, true);
  const Gitter3D schleife = FlaecheBerechnen(s, art3d::Druck, 2, 2, b, false);
  ASSERT_DOUBLE_EQ(real.X[1], vMitte);
  ASSERT_DOUBLE_EQ(real.Y[2], T);
  const double pLV = DruckLV(s, T);
  ASSERT_LT(s.EOS.VRoots[0], vMitte);
  ASSERT_GT(s.EOS.VRoots[2], vMitte);
  EXPECT_REL(real.Z[2][1], pLV, 1e-6);
  int16_t err = 0;
  EXPECT_REL(schleife.Z[2][1], PzuTV(s, T, vMitte, err), 1e-6);
  EXPECT_GT(std::fabs(schleife.Z[2][1] - pLV), 10);
  // The liquid column lies left of the plane in both.
  EXPECT_REL(real.Z[2][0], PzuTV(s, T, 0.05, err), 1e-6);
  EXPECT_EQ(real.Z[2][0], schleife.Z[2][0]);
}

// T(v, p) inside the two-phase region is the saturation temperature at p; v(p, T) takes the phase's
// root.
TEST(Graph3D, TemperatureAndVolumeSurfaces) {
  ProjectState s = StoffMitModell(CasMethan, 6);
  const double p = DruckLV(s, 160);
  const Gitter3D t = FlaecheBerechnen(s, art3d::Temperatur, 1, 1, {0.3, 0.4, p, p + 100, 0, 1000}, true);
  EXPECT_REL(t.Z[0][0], 160, 1e-4);
  const Gitter3D v = FlaecheBerechnen(s, art3d::Volumen, 1, 1, {1000, 2000, 120, 250, 0, 100}, true);
  EXPECT_REL(v.Z[0][0], Loese(s, 120, 1000).vL, 1e-6);
  EXPECT_REL(v.Z[1][1], Loese(s, 250, 2000).vV, 1e-6);
}

// A cp surface through the critical point holds the spike at the clamp in display units, and the page
// says why.
TEST(Graph3D, CpSpikeIsHeldAtTheClamp) {
  for (const int16_t mode : {0, 3}) {
    ProjectState s = StoffMitModell(CasMethan, 6);
    s.Einheiten.EnergieMode = mode;
    s.Einheiten.EnergieFaktor = mode == 3 ? 1 / s.Stoff.MolMasse : 1;
    const double pc = s.Stoff.pKrit, Tc = s.Stoff.TKrit;
    const Gitter3D g = FlaecheBerechnen(s, art3d::Cp, 2, 2, Vorgabe(0, 2 * pc, 0.9 * Tc, 1.1 * Tc), true);
    ASSERT_TRUE(g.Gueltig[1][1]);
    EXPECT_EQ(g.Z[1][1], Cp3DGrenze) << "EnergieMode " << mode;
    EXPECT_LT(g.Z[0][0], 1000);
  }
  Seite3D seite;
  seite.g.Neu(art3d::Cp);
  EXPECT_EQ(seite.g.Hinweis(), "am kritischen Punkt cp => unendlich");
  seite.g.Neu(art3d::H);
  EXPECT_EQ(seite.g.Hinweis(), "");
}

// The preset Z pair lets Z follow the data; another pair clips each cell to it.
TEST(Graph3D, PresetZPairFollowsTheDataOtherPairsClip) {
  Seite3D seite;
  ASSERT_TRUE(seite.g.Neu(art3d::H));
  const Bereich3D& b = seite.g.Bereich();
  EXPECT_FLOAT_EQ(static_cast<float>(b.zMax), Z3DVorgabe);
  const Flaeche3D frei = seite.g.Bild();
  double lo = 1e300, hi = -1e300;
  for (const double z : frei.Z)
    lo = std::min(lo, z), hi = std::max(hi, z);
  EXPECT_GT(hi - lo, 1000); // h of methane spans thousands of kJ/kmol over the range
  EXPECT_EQ(frei.AchseZ.Min, lo);
  EXPECT_EQ(frei.AchseZ.Max, hi);

  ASSERT_TRUE(seite.Bereich(b.xMin, b.xMax, b.yMin, b.yMax, lo + (hi - lo) / 4, hi - (hi - lo) / 4));
  const double z0 = seite.g.Bereich().zMin, z1 = seite.g.Bereich().zMax;
  const Flaeche3D geschnitten = seite.g.Bild();
  int unten = 0, oben = 0;
  for (const double z : geschnitten.Z) {
    EXPECT_GE(z, static_cast<float>(z0));
    EXPECT_LE(z, static_cast<float>(z1));
    unten += z == static_cast<float>(z0);
    oben += z == static_cast<float>(z1);
  }
  EXPECT_GT(unten, 0);
  EXPECT_GT(oben, 0);
  EXPECT_EQ(geschnitten.AchseZ.Min, z0);
  EXPECT_EQ(geschnitten.AchseZ.Max, z1);
}

// The range input refuses a non-number and a lower limit not below the upper one, and keeps the
// surface.
TEST(Graph3D, RangeInputRefusals) {
  Seite3D seite;
  ASSERT_TRUE(seite.g.Neu(art3d::H));
  const int stand = seite.g.Stand();
  const Bereich3D vorher = seite.g.Bereich();
  EXPECT_FALSE(seite.Bereich(100, 100, 150, 250, -1, 1));
  EXPECT_FALSE(seite.g.cmdCoord3({"0", "abc", "150", "250", "-1", "1"}));
  EXPECT_FALSE(seite.Bereich(0, 100, 250, 150, -1, 1));
  const auto m = seite.ui.Meldungen();
  ASSERT_EQ(m.size(), 3u);
  EXPECT_EQ(m[0].titel, "EINGABE-FEHLER");
  EXPECT_EQ(m[0].text, "Untere Grenzen müssen kleiner als obere Grenzen sein!");
  EXPECT_EQ(m[1].titel, "EINGABE-FEHLER");
  EXPECT_EQ(m[1].text, "Es wurde ein unzulässiger Wert eingegeben.");
  EXPECT_EQ(m[2].text, m[0].text);
  EXPECT_EQ(seite.g.Stand(), stand);
  EXPECT_EQ(seite.g.Bereich().xMax, vorher.xMax);
}

// The standard ranges with the unit factors, the stored set rotated into each Art's axes, and the
// volume's fallback without a critical density.
TEST(Graph3D, StandardRanges) {
  ProjectState s = StoffMitModell(CasMethan, 6);
  const double pc = s.Stoff.pKrit, Tc = s.Stoff.TKrit, vc = s.Stoff.MolMasse / s.Stoff.rhoKritExp;
  const Bereich3D real = IniStandardBereich3D(s, art3d::Druck, true);
  EXPECT_REL(real.xMax, 7 * vc, 1e-6);
  EXPECT_REL(real.yMin, 0.93 * Tc, 1e-6);
  EXPECT_EQ(real.zMin, 0.001);
  EXPECT_EQ(IniStandardBereich3D(s, art3d::Druck, false).zMin, 500);
  const Bereich3D v = IniStandardBereich3D(s, art3d::Volumen, true);
  EXPECT_REL(v.xMin, 0.05 * pc, 1e-6);
  EXPECT_REL(v.yMax, 1.3 * Tc, 1e-6);
  EXPECT_REL(v.zMax, 13 * vc, 1e-6);
  const Bereich3D t = IniStandardBereich3D(s, art3d::Temperatur, true);
  EXPECT_REL(t.yMax, 1.6 * pc, 1e-6);
  EXPECT_REL(t.zMin, 0.4 * Tc, 1e-6);
  const Bereich3D h = IniStandardBereich3D(s, art3d::H, true);
  EXPECT_EQ(h.xMin, 0);
  EXPECT_REL(h.xMax, 1.8 * pc, 1e-6);
  EXPECT_REL(h.yMin, 0.75 * Tc, 1e-6);
  EXPECT_FLOAT_EQ(static_cast<float>(h.zMin), -Z3DVorgabe);

  s.Einheiten.VolumenMode = 1; // m^3/kg
  s.Einheiten.VolumenFaktor = 1 / s.Stoff.MolMasse;
  EXPECT_REL(IniStandardBereich3D(s, art3d::Volumen, true).zMax, 13 / s.Stoff.rhoKritExp, 1e-6);
  s.Stoff.rhoKritExp = 0;
  EXPECT_EQ(IniStandardBereich3D(s, art3d::Volumen, true).zMax, 3);
  EXPECT_EQ(IniStandardBereich3D(s, art3d::Druck, true).xMax, 3);

  // The input of one Art lands in the stored set, from which another Art takes its axes.
  AchsenSatz3D satz;
  InSatz(art3d::Druck, {0.1, 0.9, 150, 250, 10, 9000}, satz);
  const Bereich3D gedreht = AchsenVon(art3d::Temperatur, satz);
  EXPECT_EQ(gedreht.xMax, 0.9);  // v
  EXPECT_EQ(gedreht.yMax, 9000); // p
  EXPECT_EQ(gedreht.zMin, 150);  // T
}

// The question of the real behaviour for a cubic model; a virial model draws it without asking.
TEST(Graph3D, RealBehaviourQuestion) {
  Seite3D kubisch;
  kubisch.ui.antworten.push_back(ui::Antwort::Nein);
  kubisch.g.Neu(art3d::Druck);
  EXPECT_FALSE(kubisch.g.Reales());
  ASSERT_FALSE(kubisch.ui.protokoll.empty());
  EXPECT_EQ(kubisch.ui.protokoll[0].titel, "nur für kubische EOS");
  EXPECT_REL(kubisch.g.Bereich().yMin, 0.75 * kubisch.s.Stoff.TKrit, 1e-9); // the S-curves' range

  Seite3D virial(16);
  ASSERT_TRUE(virial.g.Neu(art3d::Druck));
  EXPECT_TRUE(virial.g.Reales());
  EXPECT_TRUE(virial.ui.protokoll.empty());
}

// Axes that hold no state give the message of an empty surface; the picture stays finite.
TEST(Graph3D, EmptySurfaceMessageAndFinitePicture) {
  Seite3D seite;
  ASSERT_TRUE(seite.g.Neu(art3d::Druck));
  ASSERT_TRUE(seite.ui.Meldungen().empty());
  // The standard volume axis starts at 0, where the EOS has no pressure.
  const Flaeche3D f = seite.g.Bild();
  ASSERT_TRUE(FlaecheStimmig(f));
  EXPECT_FALSE(f.Gueltig[ZellIndex(f, 0, 0)]);
  for (const double z : f.Z)
    EXPECT_TRUE(std::isfinite(z));

  EXPECT_FALSE(seite.Bereich(0, 0.001, 150, 250, 0, 9000)); // below the co-volume
  const auto m = seite.ui.Meldungen();
  ASSERT_EQ(m.size(), 1u);
  EXPECT_EQ(m[0].text, "Falls einmal im Koordinatenraum keine Funktionsfläche gezeichnet wird\r\n"
                       "kann das zwei Ursachen haben:\r\n"
                       "1.) Zu wenig Speicherplatz, starten Sie das Programm neu.\r\n"
                       "2.) Untaugliche Vorgaben für die Achsenbereiche");
}

// Titles and axis texts by unit mode; u per R*T carries the text of h.
TEST(Graph3D, TextsByUnitMode) {
  EinheitenGruppe e;
  const Texte3D p = TexteVon(art3d::Druck, e);
  EXPECT_EQ(p.Titel, "Druck p(v, T)");
  EXPECT_EQ(p.X + "|" + p.Y + "|" + p.Z, "v / (m^3/kmol)|T / K|p / kPa");
  e.VolumenMode = 2;
  const Texte3D t = TexteVon(art3d::Temperatur, e);
  EXPECT_EQ(t.Titel + "|" + t.X + "|" + t.Y + "|" + t.Z, "Temperatur T(v, p)|v(red)|p(red)|T(red)");
  e.EnergieMode = 2;
  EXPECT_EQ(TexteVon(art3d::U, e).Z, "h / (R T)");
  e.EnergieMode = 3;
  EXPECT_EQ(TexteVon(art3d::U, e).Z, "u / (kJ/kg) ");
  EXPECT_EQ(TexteVon(art3d::Cp, e).Titel, "Wärmekapazität Cp(p, T)");
  EXPECT_EQ(ArtVon3DMenue(2), art3d::Temperatur);
  EXPECT_EQ(ArtVon3DMenue(3), 0);
  EXPECT_EQ(ArtVon3DMenue(10), art3d::ExergieH);
}

// The critical point stands at T(cr), p(cr), v(cr) of the EOS when the axes hold it.
TEST(Graph3D, CriticalPoint) {
  Seite3D seite;
  ASSERT_TRUE(seite.g.Neu(art3d::Volumen));
  seite.g.KritischerPunkt(true);
  const Flaeche3D f = seite.g.Bild();
  ASSERT_EQ(f.Punkte.size(), 1u);
  EXPECT_EQ(f.Punkte[0].Text, "CrP");
  EXPECT_REL(f.Punkte[0].Ort.X, seite.s.Stoff.pKrit, 1e-6);
  EXPECT_REL(f.Punkte[0].Ort.Z, seite.s.EOS.vKritEOS, 1e-6);
  ASSERT_TRUE(seite.Bereich(100, 1000, 100, 150, 0, 1)); // far below it
  EXPECT_TRUE(seite.g.Bild().Punkte.empty());

  // On a cp surface the point sits on the spike as the grid draws it, between its cell's corners.
  ASSERT_TRUE(seite.g.Neu(art3d::Cp));
  seite.g.KritischerPunkt(true);
  const Flaeche3D cp = seite.g.Bild();
  ASSERT_EQ(cp.Punkte.size(), 1u);
  const Punkt3D& ort = cp.Punkte[0].Ort;
  const auto i =
      static_cast<std::size_t>(std::upper_bound(cp.X.begin(), cp.X.end(), ort.X) - cp.X.begin() - 1);
  const auto j =
      static_cast<std::size_t>(std::upper_bound(cp.Y.begin(), cp.Y.end(), ort.Y) - cp.Y.begin() - 1);
  const std::array<double, 4> ecken{cp.Z[ZellIndex(cp, j, i)], cp.Z[ZellIndex(cp, j, i + 1)],
                                    cp.Z[ZellIndex(cp, j + 1, i)], cp.Z[ZellIndex(cp, j + 1, i + 1)]};
  EXPECT_GE(ort.Z, *std::min_element(ecken.begin(), ecken.end()));
  EXPECT_LE(ort.Z, *std::max_element(ecken.begin(), ecken.end()));
  EXPECT_LE(ort.Z, cp.AchseZ.Max);
}

// Lines along rows and columns follow the grid; lines of equal height keep their level and run on
// from cell to cell.
TEST(Graph3D, IsoLines) {
  Seite3D seite;
  ASSERT_TRUE(seite.g.Neu(art3d::H));
  seite.g.Isolinien(0, 5, 4, true, false);
  Flaeche3D f = seite.g.Bild();
  int zeilen = 0, spalten = 0;
  for (const Linie3D& l : f.Linien) {
    const bool zeile = l.Punkte.front().Y == l.Punkte.back().Y;
    zeilen += zeile;
    spalten += !zeile;
    EXPECT_EQ(l.Punkte.size(), f.X.size() * zeile + f.Y.size() * !zeile); // h has no gaps
  }
  EXPECT_EQ(zeilen, 3);
  EXPECT_EQ(spalten, 4);

  seite.g.Isolinien(3, 0, 0, false, false);
  f = seite.g.Bild();
  ASSERT_FALSE(f.Linien.empty());
  const double dx = f.X[1] - f.X[0], dy = f.Y[1] - f.Y[0];
  for (const Linie3D& l : f.Linien) {
    ASSERT_GE(l.Punkte.size(), 2u);
    for (std::size_t k = 0; k < l.Punkte.size(); ++k) {
      EXPECT_EQ(l.Punkte[k].Z, l.Punkte[0].Z);
      if (k == 0) continue;
      // Consecutive points lie on edges of one cell.
      EXPECT_LE(std::fabs(l.Punkte[k].X - l.Punkte[k - 1].X), dx * 1.0001);
      EXPECT_LE(std::fabs(l.Punkte[k].Y - l.Punkte[k - 1].Y), dy * 1.0001);
    }
  }
}

} // namespace
} // namespace quor
