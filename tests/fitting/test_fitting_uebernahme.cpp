// cmdApply: each model's result lands in its parameter set so that the database correlation that
// reads the set gives the fitted function back; vapour pressures are converted to decimal
// logarithms with their message; the heat capacity goes to the phase chosen; the range of validity
// is the first and the last row; August and the polynomial write nothing.
#include "fit_testhilfe.h"

#include "core/zahl_lesen.h"
#include "engine/korrelationen.h"
#include "fitting/fit_lauf.h"
#include "support/relativ.h"

#include <cmath>
#include <gtest/gtest.h>

namespace quor {
namespace {

namespace fm = fitmodell;
using test::FitDialog;

constexpr double Tcr = 647.1, pcr = 22064; // water-like
constexpr double TcrPropan = 369.8;        // propane-like

// The database correlations that read the sets.
using Korrelation = double (*)(ProjectState&, double);
template <int Gleichung> double Dampfdruck(ProjectState& s, double T) {
  int16_t f = 0;
  return pLV(s, T, Gleichung, false, f);
}
template <int Gleichung> double CpIdealgas(ProjectState& s, double T) {
  return CpIdG(s, T, Gleichung);
}
double Dichte(ProjectState& s, double T) {
  int16_t f = 0;
  return RhoL(s, T, false, f);
}
double Verdampfung(ProjectState& s, double T) {
  int16_t f = 0;
  return HLVFu(s, T, f);
}
constexpr Korrelation AntoineLo = Dampfdruck<AntoineNiederdruck>, FrostKalkwarf = Dampfdruck<FrostKalkwarfDB>,
                      Wagner = Dampfdruck<WagnerDB>, CpSinh = CpIdealgas<CpSinhCosh>,
                      CpPoly = CpIdealgas<CpPolynom>;

// A model, the column it is fitted to, a generating parameter set with its range, the phase of a
// heat capacity, a parameter fixed at its generating value (-1: none) and the correlation that
// reads the written set.
struct Fall {
  const char* Name;
  int16_t Modell;
  bool Lg;
  int16_t Spalte;
  double Tkrit;
  FitParameter Wahr;
  double Von, Bis;
  int Phase, Fest;
  Korrelation Funktion;
  double Toleranz;
};

// Generating sets as in the engine's tests. The Frost-Kalkwarf correlation iterates to 1e-4.
// clang-format off
const Fall Faelle[] = {
  {"AntoineLg", fm::Antoine, true, tprho::p, Tcr, {7.1168, 1687.5, 230.17}, 290, 440, 0, -1, AntoineLo, 1e-5},
  {"AntoineLn", fm::Antoine, false, tprho::p, Tcr, {16.3872, 3885.70, 230.17}, 290, 440, 0, -1, AntoineLo, 1e-5},
  {"FrostKalkwarf", fm::FrostKalkwarf, false, tprho::p, Tcr, {54.6, -6500, 260, -5.5, 4}, 290, 440, 0, -1,
   FrostKalkwarf, 3e-4},
  {"FrostKalkwarfThodos", fm::FrostKalkwarfThodos, false, tprho::p, Tcr, {53.3, -6500, 260, 4}, 290, 440, 0, -1,
   FrostKalkwarf, 3e-4},
  {"DipprDampfdruck", fm::DipprDampfdruck, false, tprho::p, Tcr, {66.741, -7258.2, -7.3037, 4.1653e-6, 2}, 280,
   600, 0, 4, FrostKalkwarf, 1e-5},
  {"Wagner", fm::Wagner, false, tprho::p, Tcr, {-7.77, 1.456, -2.77, -1.233}, 280, 640, 0, -1, Wagner, 1e-5},
  {"Rackett", fm::Rackett, false, tprho::RhoL, TcrPropan, {60.7, 0.2745, 0.2936}, 90, 360, 0, -1, Dichte, 1e-5},
  {"Leuna", fm::Leuna, false, tprho::RhoL, TcrPropan, {300, -1, 0.002, -3e-6, 200}, 90, 360, 0, -1, Dichte, 1e-5},
  {"PolynomDichte", fm::PolynomDichte, false, tprho::RhoL, 0, {800, -1.2, 0.002, -3e-6}, 90, 360, 0, -1, Dichte,
   1e-5},
  {"Majer", fm::Majer, false, tprho::HLV, TcrPropan, {40000, 0.3, 0.4}, 90, 360, 0, -1, Verdampfung, 1e-5},
  {"DipprHLV", fm::DipprHLV, false, tprho::HLV, TcrPropan, {29000, 0.38, 0.1, -0.05, 0.02}, 90, 360, 0, -1,
   Verdampfung, 1e-5},
  {"PolynomCpIdealgas", fm::PolynomCp, false, tprho::Cp, 0, {25, 0.2, -1e-4, 2e-8, 0}, 200, 1000, 0, 4, CpPoly,
   1e-5},
  {"ShomateFluessig", fm::Shomate, false, tprho::Cp, 0, {28, 0.18, -8e-5, 1.5e-8, -2e5}, 200, 1000, 1, -1, CpL,
   1e-5},
  {"DipprCpIdealgas", fm::DipprCp, false, tprho::Cp, 0, {51.92, 192.45, 1626.5, 116.8, 723.6}, 200, 1000, 0, -1,
   CpSinh, 1e-5},
};
// clang-format on

// The dialog after a run on rows generated from the case's model.
void Gefittet(FitDialog& t, const Fall& f) {
  t.s.Stoff.TKrit = f.Tkrit;
  t.s.Stoff.pKrit = pcr;
  const FitParameter P = f.Wahr;
  t.SendeSpalte(
      f.Spalte, [&](double T) { return FitDialog::Modell(f.Modell, f.Lg, P, T, f.Tkrit, pcr); }, f.Von, f.Bis,
      30);
  t.f.chkLg_Click(f.Modell, f.Lg);
  t.f.optFit_Click(f.Modell);
  t.f.optcpPhase_Click(f.Phase);
  if (f.Fest >= 0) {
    t.f.chkFix_Click(f.Fest, true);
    t.f.txtStart_Change(f.Fest, std::to_string(P[f.Fest]));
  }
  ASSERT_TRUE(t.f.cmdStart());
}

class Uebernahme : public testing::TestWithParam<Fall> {};

TEST_P(Uebernahme, TheDatabaseCorrelationGivesTheFittedFunctionBack) {
  const Fall& f = GetParam();
  FitDialog t;
  Gefittet(t, f);
  ASSERT_TRUE(t.f.cmdApplyEnabled);
  ASSERT_TRUE(t.f.cmdApply());
  EXPECT_EQ(t.LetzterTitel(), "Parameterübernahme OK");
  for (const double T : {f.Von + 10, (f.Von + f.Bis) / 2, f.Bis - 10}) {
    int16_t fehler = 0;
    const double soll = FitFunktionswert(t.s, t.f.Fit, T, fehler);
    ASSERT_EQ(fehler, 0);
    EXPECT_REL(f.Funktion(t.s, T), soll, f.Toleranz) << T;
  }
}

INSTANTIATE_TEST_SUITE_P(Modelle, Uebernahme, testing::ValuesIn(Faelle),
                         [](const testing::TestParamInfo<Fall>& i) { return std::string(i.param.Name); });

TEST(FittingUebernahme, AntoineInLgFormTakesAAndBOverAsTheyAreAndInLnFormDividedWithTheNote) {
  FitDialog lg;
  Gefittet(lg, Faelle[0]);
  lg.f.cmdApply();
  const FitParameter P = lg.f.Fit.FitPar;
  EXPECT_EQ(lg.s.Stoff.AntoineNd, (std::array<float, 3>{float(P[0]), float(P[1]), float(P[2])}));
  EXPECT_EQ(lg.s.Stoff.AntoineNdGrenzen.TLo, 290); // the rows' range
  EXPECT_EQ(lg.s.Stoff.AntoineNdGrenzen.THi, 440);
  ASSERT_EQ(lg.ui.Meldungen().size(), 2u);
  EXPECT_EQ(lg.ui.Meldungen()[0].text,
            "Diese Parameter werdenin die\r\nANTOINE (Lo-p)-Gleichung von QUOR eingefügt.");
  EXPECT_EQ(
      lg.ui.Meldungen()[1].text,
      "Diese Parameter sind nun in der jeweiligen Datenbankfunktion von QUOR aktiv\r\n"
      "und können unter \"Daten/Stoffdaten-Editor\" eingesehen werden.\r\n\r\n"
      "Einzelwertberechnungen y = f(T) können unter\r\nBerechnung/Datenbankfunktionen durchgeführt werden.");

  FitDialog ln;
  Gefittet(ln, Faelle[1]);
  ln.f.cmdApply();
  const FitParameter Q = ln.f.Fit.FitPar;
  const double k = std::log(10.0);
  EXPECT_EQ(ln.s.Stoff.AntoineNd, (std::array<float, 3>{float(Q[0] / k), float(Q[1] / k), float(Q[2])}));
  EXPECT_EQ(ln.ui.Meldungen()[0].text, "Diese Parameter werden (nach Umrechnung auf lg) in die\r\n"
                                       "ANTOINE (Lo-p)-Gleichung von QUOR eingefügt.");
}

// The result field shows D = 1.8 B / Tcr + 2.67 in either form, without a deviation of its own; the
// set takes ln 10 into the denominator for the ln form, beside C with its 273.15 and nothing in F to I.
TEST(FittingUebernahme, TheThodosFormTakesDOverWithLn10InTheDenominator) {
  FitDialog t;
  Gefittet(t, Faelle[3]);
  const FitParameter P = t.f.Fit.FitPar;
  EXPECT_REL(LeseZahl(t.f.txtPar[3]).wert, 1.8 * P[1] / Tcr + 2.67, 1e-6);
  EXPECT_EQ(t.f.txtStDev[3], "");
  EXPECT_REL(LeseZahl(t.f.txtPar[4]).wert, P[3], 1e-6) << "E behind the computed D";
  t.f.cmdApply();
  const double k = std::log(10.0);
  EXPECT_EQ(t.s.Stoff.FrostKalkwarf,
            (std::array<float, 9>{float(P[0] / k), float(P[1] / k), float(P[2]),
                                  float(1.8 * P[1] / (k * Tcr) + 2.67), float(P[3] / k), 0, 0, 0, 0}));
  EXPECT_EQ(t.ui.Meldungen()[0].text, "Diese Parameter werden (nach Umrechnung auf lg) in die\r\n"
                                      "FROST-KALKWARF-MILLER-Gleichung von QUOR eingefügt.");
}

TEST(FittingUebernahme, HeatCapacityOfTheSolidLeavesTheIdealGasSetsAsTheyWere) {
  FitDialog t;
  const std::array<float, 5> poly{29, 0.01f, 2e-5f, -1e-8f, 0}, sinh{33, 25, 1700, 9, 800};
  t.s.Stoff.CpPoly = poly;
  t.s.Stoff.CpSinh = sinh;
  Fall fest = Faelle[11];
  fest.Phase = 2;
  Gefittet(t, fest);
  t.f.cmdApply();
  EXPECT_EQ(t.s.Stoff.CpPoly, poly);
  EXPECT_EQ(t.s.Stoff.CpSinh, sinh);
  EXPECT_REL(t.s.Stoff.CpS[1], 0.2, 1e-4);

  // The DIPPR form goes to the phase's polynomial set too when the phase is not the ideal gas.
  FitDialog f;
  Fall fluessig = Faelle[13];
  fluessig.Phase = 1;
  f.s.Stoff.CpSinh = sinh;
  Gefittet(f, fluessig);
  f.f.cmdApply();
  EXPECT_EQ(f.s.Stoff.CpSinh, sinh);
  EXPECT_REL(f.s.Stoff.CpL[2], 1626.5, 1e-4);
}

// The range comes from the first and last measured rows as they stand (an inactive one too),
// rounded half to even; from the X-Y editor from the first and last point as they stand.
TEST(FittingUebernahme, TheRangeIsTheFirstAndLastRowRoundedHalfToEven) {
  FitDialog t;
  Gefittet(t, Faelle[9]);
  t.s.Mess.ExpDaten[1].T = 90.5;
  t.s.Mess.ExpDaten[1].Inaktiv = true;
  t.s.Mess.ExpDaten[30].T = 359.5;
  t.f.cmdApply();
  EXPECT_EQ(t.s.Stoff.HLVGrenzen.TLo, 0) << "the enthalpy set takes no range";

  t.f.optFit_Click(fm::PolynomDichte);
  ASSERT_TRUE(t.f.cmdStart());
  t.f.cmdApply();
  EXPECT_EQ(t.s.Stoff.RhoLGrenzen.TLo, 90);
  EXPECT_EQ(t.s.Stoff.RhoLGrenzen.THi, 360);

  t.f.DatenLaden({{310.5f, 900, FlagAktiv},
                  {280, 950, FlagAktiv},
                  {300, 920, FlagAktiv},
                  {290, 935, FlagAktiv},
                  {305, 910, FlagAktiv},
                  {270.5f, 960, FlagAktiv}});
  t.f.optFit_Click(fm::PolynomDichte);
  ASSERT_TRUE(t.f.cmdStart());
  t.f.cmdApply();
  EXPECT_EQ(t.s.Stoff.RhoLGrenzen.TLo, 310);
  EXPECT_EQ(t.s.Stoff.RhoLGrenzen.THi, 270);
}

TEST(FittingUebernahme, AugustIsRefusedAndThePolynomialAndTheSplineWriteNothing) {
  FitDialog t;
  t.SendeSpalte(
      tprho::p, [](double T) { return std::exp(25 - 5000 / T - 1.5 * std::log(T)); }, 250, 400, 10);
  ASSERT_EQ(t.f.Fit.FitModell, fm::August);
  ASSERT_TRUE(t.f.cmdStart());
  const StoffGruppe vorher = t.s.Stoff;
  EXPECT_FALSE(t.f.cmdApply());
  EXPECT_EQ(t.LetzteMeldung(),
            "AUGUST/DUPRÉ-RANKINE sind keine von QUOR verwendeten Gleichungen.\r\n"
            "Wenn Sie AUGUST verwenden wollen, wählen Sie ANTOINE mit C-fixiert = 273.15.");
  EXPECT_EQ(t.LetzterTitel(), "Ausführung nicht möglich");

  for (const int16_t modell : {fm::Polynom, fm::Kombi, fm::AkimaSpline}) {
    t.f.optFit_Click(modell);
    ASSERT_TRUE(t.f.cmdStart());
    const std::size_t meldungen = t.ui.Meldungen().size();
    EXPECT_FALSE(t.f.cmdApply()) << modell;
    EXPECT_EQ(t.ui.Meldungen().size(), meldungen);
  }
  EXPECT_EQ(t.s.Stoff.AntoineNd, vorher.AntoineNd);
  EXPECT_EQ(t.s.Stoff.FrostKalkwarf, vorher.FrostKalkwarf);
}

} // namespace
} // namespace quor
