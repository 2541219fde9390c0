// The fitting dialog driven through the scripted interface: what it opens with from each editor,
// the order of the run's checks with their messages, the results frame, the start fields with the
// fix marks, chkLg after a run, the evaluation both ways, the spline's smoothing field and the
// points and curves it hands to the 2D page.
#include "fit_testhilfe.h"

#include "core/zahl_lesen.h"
#include "fitting/fit_lauf.h"
#include "support/relativ.h"

#include <cmath>
#include <gtest/gtest.h>

namespace quor {
namespace {

namespace fm = fitmodell;
using test::FitDialog;

// Water-like Antoine constants in natural logarithms (p in kPa, T in K).
const FitParameter AntoineLn{16.3872, 3885.70, 230.17};

double AntoineP(double T) {
  return std::exp(AntoineLn[0] - AntoineLn[1] / (T + AntoineLn[2] - 273.15));
}

double Zahl(const std::string& text) {
  return LeseZahl(text).wert;
}

TEST(FittingDialog, TheCaptionNamesTheSourceAndCountsTheActivePoints) {
  FitDialog t;
  t.f.Form_Load();
  EXPECT_EQ(t.f.Caption, " Fitting y = f(T) (noch keine Daten geladen)");
  EXPECT_FALSE(t.f.cmdStart());
  EXPECT_EQ(t.LetzteMeldung(), "Noch keine Daten vorhanden,\r\n"
                               "manuelle Dateneingabe oder Laden per File über Dateneditor notwendig\r\n\r\n"
                               "Die Daten können entweder aus dem T-p-rho-delta(LV)h-Editor oder\r\n"
                               "aus dem X-Y-Editor bezogen werden (von dort \"Daten zum Fitting senden\").");
  EXPECT_EQ(t.LetzterTitel(), "Ausführung nicht möglich");

  // The p column: the vapour-pressure tab with August, the sum of squares on ln p.
  t.SendeSpalte(tprho::p, AntoineP, 300, 400, 5);
  t.s.Mess.ExpDaten[2].Inaktiv = true;
  t.f.DatenLaden(FitUebergabeVon(tprho::p));
  EXPECT_EQ(t.f.Caption, " Fitting y = f(T) (4 (aktive) Datensätze geladen aus T-p-Rho-Editor)");
  EXPECT_EQ(t.f.SSTab1, fittab::Dampfdruck);
  EXPECT_EQ(t.f.Fit.FitModell, fm::August);
  EXPECT_EQ(t.f.optLogFit, 1);
  EXPECT_EQ(t.f.cmdGraphFunctionCaption, "p = f(T)");
  EXPECT_EQ(t.f.Fit.FitDaten[1].Flag, FlagInaktiv);
  EXPECT_EQ(t.f.Fit.FitDaten[4].y, static_cast<float>(AntoineP(400)));
  EXPECT_FALSE(t.f.cmdGraphFunctionEnabled || t.f.cmdGraphResidEnabled || t.f.cmdGraphLnpEnabled);

  t.f.DatenLaden({{1, 2, FlagAktiv}, {2, 3, FlagInaktiv}, {3, 5, FlagAktiv}});
  EXPECT_EQ(t.f.Caption, " Fitting y = f(T) (2 (aktive) Datensätze geladen aus XY-Editor)");
  EXPECT_EQ(t.f.Fit.FitModell, fm::August) << "the X-Y editor leaves the model as it is";
}

// Tcr and pcr are read from the fields behind the parameters before the points are counted.
TEST(FittingDialog, TheRunChecksTheConstantsBeforeThePointsAndTellsEachRefusal) {
  FitDialog t;
  t.f.DatenLaden({{300, 1, FlagAktiv}, {350, 2, FlagAktiv}, {400, 3, FlagAktiv}});
  t.f.optFit_Click(fm::Wagner);
  EXPECT_EQ(t.f.lblStart[4], "Tcr/K = ");
  EXPECT_EQ(t.f.lblStart[5], "pcr/kPa = ");
  EXPECT_FALSE(t.f.cmdStart());
  EXPECT_EQ(t.LetzteMeldung(), "Tcr muss gegeben sein");
  t.f.txtStart_Change(4, "647,1");
  EXPECT_FALSE(t.f.cmdStart());
  EXPECT_EQ(t.LetzteMeldung(), "pcr muss gegeben sein");
  t.f.txtStart_Change(5, "22064");
  EXPECT_FALSE(t.f.cmdStart());
  EXPECT_EQ(t.LetzteMeldung(), ZuWenigePunkteText);
  EXPECT_EQ(t.f.Fit.FitTcr, 647.1);

  t.f.optFit_Click(fm::FrostKalkwarfThodos);
  EXPECT_EQ(t.f.lblStart[5], "Tcr/K = ") << "behind the five fields shown";
  EXPECT_FALSE(t.f.chkFixVisible[3]) << "D is computed; its fix mark is that of E";
  EXPECT_FALSE(t.f.cmdStart());
  EXPECT_EQ(t.LetzteMeldung(), "Tcr wird für die Korrelation von Parameter D benötigt.");
}

TEST(FittingDialog, TheResultsFrameShowsParametersDeviationsAndEnablesTheButtons) {
  FitDialog t;
  t.SendeSpalte(tprho::p, AntoineP, 290, 440, 12);
  t.f.optFit_Click(fm::Antoine);
  EXPECT_EQ(t.f.txtStart[1], "3000");
  ASSERT_TRUE(t.f.cmdStart());
  EXPECT_EQ(t.f.fraFQSCaption, "Qualität des Fitting (N = 12, NPar = 3)");
  EXPECT_EQ(t.f.lblFQS1, "Fehlerquadrasumme FQS = sum[(p(i),calc - p(i),exp)^2]");
  for (int i = 0; i < 3; ++i) {
    EXPECT_REL(Zahl(t.f.txtPar[i]), AntoineLn[i], 1e-5) << i;
    EXPECT_TRUE(t.f.txtStDevVisible[i]);
  }
  EXPECT_FALSE(t.f.txtParVisible[3]);
  EXPECT_TRUE(t.f.StDevKopfVisible);
  EXPECT_TRUE(t.f.cmdGraphLnpEnabled && t.f.cmdApplyEnabled && t.f.cmdCalcEnabled && t.f.fraCalcVisible);
  // Choosing the log option rewrites the first line.
  t.f.optLogFit_Click(0);
  EXPECT_EQ(t.f.lblFQS1, "Fehlerquadratsumme FQS = sum[(p(i),calc - p(i),exp)^2]");
  t.f.optLogFit_Click(1);
  EXPECT_EQ(t.f.lblFQS1, "Fehlerquadratsumme FQS = sum[ln((p(i),calc) - ln(p(i),exp))^2]");

  // On the density tab there is no ln p diagram; a model change clears the results.
  t.f.SSTab1_Click(fittab::Dichte);
  t.f.optFit_Click(fm::PolynomDichte);
  EXPECT_FALSE(t.f.fraFQSVisible || t.f.cmdCalcEnabled);
  EXPECT_EQ(t.f.txtPar[0], "");
  t.f.optLogFit_Click(0);
  ASSERT_TRUE(t.f.cmdStart());
  EXPECT_EQ(t.f.lblFQS1, "Fehlerquadrasumme FQS = sum[(y(i),calc - y(i),exp)^2]");
  EXPECT_FALSE(t.f.cmdGraphLnpEnabled);
}

TEST(FittingDialog, AFixedLinearTermIsHiddenAndLeftOutAndReleasingItRestoresTheProposal) {
  FitDialog t;
  t.f.DatenLaden(test::Punkte([](double x) { return 1 + 2 * x + 3 * x * x; }, -2, 3, 9));
  t.f.optFit_Click(fm::Polynom);
  for (int i = 3; i < 6; ++i)
    t.f.chkFix_Click(i, true);
  EXPECT_EQ(t.f.txtStart[4], " 0.");
  EXPECT_FALSE(t.f.txtStartVisible[4]);
  ASSERT_TRUE(t.f.cmdStart());
  EXPECT_NEAR(Zahl(t.f.txtPar[2]), 3, 1e-5);
  EXPECT_EQ(t.f.txtPar[5], "0");
  EXPECT_FALSE(t.f.StDevKopfVisible) << "the linear models have no deviations";

  t.f.chkFix_Click(5, false);
  EXPECT_FALSE(t.f.fraFQSVisible) << "a fix mark clears the results";
  EXPECT_TRUE(t.f.txtStartVisible[5]);
  EXPECT_EQ(t.f.txtStart[5], "0");

  // In the other models the field stays for the fixed value; choosing a model resets the fields.
  t.f.optFit_Click(fm::Antoine);
  t.f.chkFix_Click(2, true);
  EXPECT_TRUE(t.f.txtStartVisible[2]);
  EXPECT_EQ(t.f.txtStart[2], " 0.");
  t.f.chkFix_Click(2, false);
  EXPECT_EQ(t.f.txtStart[2], "200");
  t.f.txtStart_Change(0, "12");
  t.f.optFit_Click(fm::Antoine);
  EXPECT_EQ(t.f.txtStart[0], "10");
}

// chkLg changes the formula text and what the result computes, not the start fields; cmdleft and
// cmdLeftAll are the way a result becomes a start value, and a run from there stays at it.
TEST(FittingDialog, ChkLgAfterARunChangesTheEvaluationAndResultsGoBackAsStartValues) {
  FitDialog t;
  t.SendeSpalte(tprho::p, AntoineP, 290, 440, 12);
  t.f.optFit_Click(fm::Antoine);
  ASSERT_TRUE(t.f.cmdStart());
  t.f.txtCalcX_Change("373,15");
  t.f.cmdCalc();
  EXPECT_REL(Zahl(t.f.txtCalcY), AntoineP(373.15), 1e-5);

  t.f.chkLg_Click(fm::Antoine, true);
  EXPECT_EQ(t.f.lblFittingEq, "lg(p/kPa) = A - B / (C + t/°C)");
  EXPECT_EQ(t.f.txtStart[0], "10");
  EXPECT_TRUE(t.f.fraFQSVisible);
  t.f.cmdCalc();
  const FitParameter P = t.f.Fit.FitPar;
  EXPECT_REL(Zahl(t.f.txtCalcY), std::pow(10.0, P[0] - P[1] / (373.15 + P[2] - 273.15)), 1e-6);
  t.f.chkLg_Click(fm::Antoine, false);

  t.f.cmdleft(1);
  EXPECT_EQ(t.f.txtStart[1], t.f.txtPar[1]);
  EXPECT_EQ(t.f.txtStart[0], "10");
  t.f.cmdLeftAll();
  EXPECT_EQ(t.f.txtStart, (std::array<std::string, 7>{t.f.txtPar[0], t.f.txtPar[1], t.f.txtPar[2]}));
  ASSERT_TRUE(t.f.cmdStart());
  EXPECT_REL(t.f.Fit.FitPar[1], P[1], 1e-5);

  // The other way: T from p, and "Error" where the iteration finds nothing.
  t.f.optCalc_Click(1);
  t.f.txtCalcY_Change("101.325");
  t.f.cmdCalc();
  EXPECT_NEAR(Zahl(t.f.txtCalcX), 373.15, 0.5);
  EXPECT_REL(AntoineP(Zahl(t.f.txtCalcX)), 101.325, 1e-4);
  t.f.txtCalcY_Change("-5");
  t.f.cmdCalc();
  EXPECT_EQ(t.f.txtCalcX, "Error");
}

TEST(FittingDialog, TheSmoothingFieldTakesZeroToThousandAndEachChangeDisablesTheDiagrams) {
  FitDialog t;
  t.f.DatenLaden(test::Punkte([](double x) { return x * x; }, 0, 4, 9));
  t.f.optFit_Click(fm::AkimaSpline);
  EXPECT_TRUE(t.f.fraSplineVisible);
  ASSERT_TRUE(t.f.cmdStart());
  EXPECT_FALSE(t.f.cmdApplyEnabled);
  EXPECT_TRUE(t.f.cmdGraphLnpEnabled);
  const std::optional<frmQTextEdit> liste = t.f.cmdSplineParAnzeigen();
  ASSERT_TRUE(liste);
  EXPECT_EQ(liste->Caption, "  AKIMA-Spline-Parameter");

  t.f.txtSplineWicht_Change("5");
  EXPECT_EQ(t.f.lblEingabetest, "AKIMA-SPLINE MIT GLÄTTUNG");
  EXPECT_EQ(t.f.Fit.SplineGlaettung, 5);
  EXPECT_FALSE(t.f.cmdGraphFunctionEnabled || t.f.cmdGraphResidEnabled || t.f.cmdGraphLnpEnabled);
  for (const char* falsch : {"1001", "-1", "viel"}) {
    t.f.txtSplineWicht_Change(falsch);
    EXPECT_EQ(t.f.lblEingabetest, "Eingabe außerhalb des zulässigen Bereichs") << falsch;
    EXPECT_EQ(t.f.txtSplineWicht, "0");
    EXPECT_EQ(t.f.Fit.SplineGlaettung, 0);
  }
  t.f.txtSplineWicht_Change("0");
  EXPECT_EQ(t.f.lblEingabetest, "OHNE GLÄTTUNG");
  ASSERT_TRUE(t.f.cmdStart());
  EXPECT_TRUE(t.f.cmdGraphFunctionEnabled);
}

// The function diagram holds the active points and the fitted curve over their range; the
// residuals are those of the sum of squares; ln p over 1/T holds the points transformed.
TEST(FittingDialog, TheDiagramsHoldTheActivePointsTheCurveAndTheResiduals) {
  FitDialog t;
  t.SendeSpalte(
      tprho::p, [](double T) { return AntoineP(T) * (T == 330 ? 1.01 : 1.0); }, 300, 400, 11);
  t.s.Mess.ExpDaten[11].Inaktiv = true;
  t.f.DatenLaden(FitUebergabeVon(tprho::p));
  t.f.optFit_Click(fm::Antoine);
  EXPECT_FALSE(t.f.cmdGraphFunction());
  ASSERT_TRUE(t.f.cmdStart());

  const std::optional<FitDiagramm> d = t.f.cmdGraphFunction();
  ASSERT_TRUE(d);
  ASSERT_EQ(d->Punkte.X.size(), 10u);
  EXPECT_EQ(d->Punkte.X.back(), 390);
  EXPECT_EQ(d->Punkte.Quelle, PunktQuelle::Fitting);
  EXPECT_EQ(d->Punkte.NeuesDiagramm.Titel, " Dampfdruck p(LV), y(T) = ANTOINE-Gleichung");
  EXPECT_EQ(d->Punkte.NeuesDiagramm.XText, "T / K");
  EXPECT_EQ(d->KurveX.front(), 300);
  EXPECT_EQ(d->KurveX.back(), 390);
  EXPECT_REL(d->KurveY.back(), AntoineP(390), 2e-3);
  EXPECT_LE(d->Punkte.NeuesDiagramm.Ymin, d->KurveY.front());

  const std::optional<FitDiagramm> r = t.f.cmdGraphResid();
  ASSERT_TRUE(r);
  double S = 0;
  for (double y : r->Punkte.Y)
    S += y * y;
  EXPECT_REL(S, t.f.Fit.FQS, 1e-6) << "ln residuals, as the fit measured them";
  EXPECT_EQ(r->KurveY, (std::vector<double>{0, 0}));

  const std::optional<FitDiagramm> l = t.f.cmdGraphLnp();
  ASSERT_TRUE(l);
  EXPECT_REL(l->Punkte.X[0], 1.0 / 300, 1e-12);
  EXPECT_REL(l->Punkte.Y[0], std::log(double{static_cast<float>(AntoineP(300))}), 1e-12);
  EXPECT_EQ(l->Punkte.NeuesDiagramm.YText, "ln {p}");

  t.f.DatenLaden(test::Punkte([](double x) { return x - 1; }, 1, 8, 8));
  t.f.optFit_Click(fm::Polynom);
  ASSERT_TRUE(t.f.cmdStart());
  EXPECT_FALSE(t.f.cmdGraphLnp());
  EXPECT_EQ(t.LetzteMeldung(), "T- und p-Spalte dürfen keine Null-Werte enthalten.");
}

} // namespace
} // namespace quor
