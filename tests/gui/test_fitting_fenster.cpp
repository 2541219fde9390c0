// The fitting dialog in the frame: a vapour-pressure column sent from the measured-data editor, the
// run, the evaluation, the diagrams on the 2D page, the transfer into the substance, the menu's entry
// and the closing with the substance; the points of the X-Y editor on the general tab with the
// spline's list in a text window.
#include "diagrams/graph2d.h"
#include "fitting/fit_modell.h"
#include "gui/diagrams/graph2d_steuerung.h"
#include "gui/fitting/daten_editor_steuerung.h"
#include "gui/substance/text_fenster.h"
#include "programm_hilfe.h"
#include "support/relativ.h"

#include <QFile>
#include <QMdiArea>
#include <QTabWidget>
#include <QTemporaryDir>

#include <cmath>

namespace quor::ui {
namespace {

namespace fm = fitmodell;

// Every control of the dialog carries the field of the logic it stands for.
void ZeigtLogik(FittingFenster* w) {
  const frmQFitting& l = w->Logik();
  test::Texte({{w->windowTitle(), l.Caption},
               {w->Label("lblFittingEq")->text(), l.lblFittingEq},
               {w->Rahmen("fraFQS")->title(), l.fraFQSCaption},
               {w->Label("lblFQS1")->text(), l.lblFQS1},
               {w->Label("lblFQS2")->text(), l.lblFQS2},
               {w->Label("lblsr2")->text(), l.lblsr2},
               {w->Label("lblApply")->text(), l.lblApply},
               {w->Label("lblEingabetest")->text(), l.lblEingabetest},
               {w->Feld("txtSplineWicht")->text(), l.txtSplineWicht},
               {w->Feld("txtCalcX")->text(), l.txtCalcX},
               {w->Feld("txtCalcY")->text(), l.txtCalcY},
               {w->Knopf("cmdGraphFunction")->text(), l.cmdGraphFunctionCaption}});
  EXPECT_EQ(w->Tabs()->currentIndex(), l.SSTab1);
  for (int i = 0; i < FitMaxPar; ++i) {
    const auto k = static_cast<std::size_t>(i);
    test::Texte({{w->Label("lblStart", i)->text(), l.lblStart[k]},
                 {w->Feld("txtStart", i)->text(), l.txtStart[k]},
                 {w->Feld("txtPar", i)->text(), l.txtPar[k]},
                 {w->Feld("txtStDev", i)->text(), l.txtStDev[k]}});
    test::Sichtbar({{w->Feld("txtStart", i), l.txtStartVisible[k]},
                    {w->Kasten("chkFix", i), l.chkFixVisible[k]},
                    {w->Feld("txtPar", i), l.txtParVisible[k]},
                    {w->Feld("txtStDev", i), l.txtStDevVisible[k]}});
    test::An({{w->Kasten("chkFix", i), l.chkFix[k]}});
    test::Frei({{w->Knopf("cmdleft", i), l.cmdleftEnabled}});
  }
  for (const FitModellEintrag& e : FitModellKatalog()) {
    if (!e.Sichtbar) continue;
    test::An({{w->Option("optFit", e.Code), e.Code == l.Fit.FitModell}});
    if (HatLg(e.Code)) test::An({{w->Kasten("chkLg", e.Code), l.chkLg[static_cast<std::size_t>(e.Code)]}});
  }
  test::An({{w->Option("optLogFit", l.optLogFit), true},
            {w->Option("optcpPhase", l.optcpPhase), true},
            {w->Option("optCalc", l.optCalc), true}});
  test::Sichtbar({{w->Rahmen("fraFQS"), l.fraFQSVisible},
                  {w->Rahmen("fraCalc"), l.fraCalcVisible},
                  {w->Rahmen("fraSpline"), l.fraSplineVisible},
                  {w->Rahmen("fracpPhase"), l.optcpPhaseVisible},
                  {w->Label("lblStDevKopf"), l.StDevKopfVisible}});
  test::Frei({{w->Knopf("cmdStart"), l.cmdStartEnabled},
              {w->Knopf("cmdLeftAll"), l.cmdLeftAllEnabled},
              {w->Knopf("cmdCalc"), l.cmdCalcEnabled},
              {w->Knopf("cmdGraphFunction"), l.cmdGraphFunctionEnabled},
              {w->Knopf("cmdGraphResid"), l.cmdGraphResidEnabled},
              {w->Knopf("cmdGraphLnp"), l.cmdGraphLnpEnabled},
              {w->Knopf("cmdApply"), l.cmdApplyEnabled},
              {w->Knopf("cmdSplineParAnzeigen"), l.cmdSplineParAnzeigenEnabled}});
}

// Saturation pressures of methane, kPa, at 100 to 180 K in steps of 10 K (rounded from the IUPAC
// tables of its vapour pressure).
const double MethanT[] = {100, 110, 120, 130, 140, 150, 160, 170, 180};
const double MethanP[] = {34.38, 88.13, 191.6, 367.5, 641.4, 1041.4, 1592.1, 2329, 3285};

QString MethanBAQ() {
  QString text =
      QString("12.05.2024\r\nDampfdruck\r\n%1;%2\r\n9\r\n").arg("Methan", -107).arg("74-82-8", -12);
  for (int i = 0; i < 9; ++i)
    text += QString("%1\r\n%2\r\n0\r\n0\r\n0\r\n0\r\n").arg(MethanT[i]).arg(MethanP[i]);
  return text;
}

// The frame at its first size on a screen of 1280 x 800.
struct Fitting : test::Programm {
  QTemporaryDir ordner;

  Fitting() { fenster->resize(1180, 740); }

  DatenEditorSteuerung& E() { return *fenster->Editoren(); }
  Graph2DFenster* Seite() { return fenster->Graf2D()->Seite(); }

  // Methane's vapour pressures loaded into the measured-data editor and sent to the fitting dialog.
  FittingFenster* DampfdruckSenden() {
    StoffWaehlen("Methan");
    const QString pfad = ordner.filePath("methan.BAQ");
    QFile datei(pfad);
    EXPECT_TRUE(datei.open(QIODevice::WriteOnly));
    datei.write(MethanBAQ().toLatin1());
    datei.close();
    fenster->Befehl("mnuData_BatchEdit")->trigger();
    TpRhoEditorFenster* w = E().MessdatenEditor();
    w->Logik().DateiWaehlen = [pfad](const std::string&, const std::string&) { return pfad.toStdString(); };
    w->Knopf("cmdBatchLoad")->click();
    EXPECT_EQ(s.Mess.ExpAnzahl, 9);
    w->Option("optFitFunction", tprho::p)->click();
    w->Knopf("cmdFitting")->click();
    QApplication::processEvents();
    return E().Fitting();
  }
};

// The window stands inside the work area at a size where nothing is squeezed.
void PasstInDieFlaeche(QMdiArea* flaeche, QMdiSubWindow* w) {
  const QRect innen = flaeche->viewport()->rect();
  EXPECT_TRUE(innen.contains(w->geometry())) << w->geometry().width() << " x " << w->geometry().height();
  const QSize mindest = w->widget()->minimumSizeHint(), ist = w->widget()->size();
  EXPECT_TRUE(mindest.width() <= ist.width() && mindest.height() <= ist.height())
      << mindest.width() << " x " << mindest.height();
}

TEST(FittingFenster, AVapourPressureColumnIsFittedDrawnAndTakenIntoTheSubstance) {
  Fitting p;
  FittingFenster* f = p.DampfdruckSenden();
  ASSERT_NE(f, nullptr);
  PasstInDieFlaeche(p.fenster->Arbeitsflaeche(), p.E().FittingRahmen());
  EXPECT_EQ(f->windowTitle(), " Fitting y = f(T) (9 (aktive) Datensätze geladen aus T-p-Rho-Editor)");
  EXPECT_EQ(f->Tabs()->currentIndex(), 1);
  EXPECT_TRUE(f->Option("optFit", fm::August)->isChecked());
  EXPECT_TRUE(f->Option("optLogFit", 1)->isChecked());
  EXPECT_EQ(f->Knopf("cmdGraphFunction")->text(), "p = f(T)");
  EXPECT_FALSE(f->Rahmen("fraFQS")->isVisibleTo(f));
  ZeigtLogik(f);
  // The lg box rewrites the formula of its model.
  f->Kasten("chkLg", fm::August)->click();
  EXPECT_EQ(f->Label("lblFittingEq")->text(), "lg(p/kPa) = A - B / (T/K) + D lg(T/K)");
  f->Kasten("chkLg", fm::August)->click();

  f->Knopf("cmdStart")->click();
  EXPECT_TRUE(f->Rahmen("fraFQS")->isVisibleTo(f));
  EXPECT_EQ(f->Rahmen("fraFQS")->title(), "Qualität des Fitting (N = 9, NPar = 3)");
  EXPECT_FALSE(f->Feld("txtPar", 0)->text().isEmpty());
  EXPECT_FALSE(f->Feld("txtStDev", 0)->text().isEmpty());
  ZeigtLogik(f);

  // The fitted function at 140 K gives the measured pressure back (the August form follows methane's
  // curve within one per cent here).
  f->Option("optCalc", 0)->click();
  f->Feld("txtCalcX")->setText("");
  test::Tippen(f->Feld("txtCalcX"), "140");
  f->Knopf("cmdCalc")->click();
  EXPECT_REL(f->Feld("txtCalcY")->text().toDouble(), 641.4, 0.01);
  QApplication::processEvents();
  EXPECT_TRUE(test::Bild(f, "fitting.png"));
  EXPECT_TRUE(test::Bild(p.fenster.get(), "fitting_rahmen.png"));

  // The residuals of ln p open a page of their own with the zero line; ln p over 1/T another one.
  f->Knopf("cmdGraphResid")->click();
  ASSERT_NE(p.Seite(), nullptr);
  const frmQGraph2D* g = &p.Seite()->Logik();
  ASSERT_EQ(g->PunktSaetze().size(), 1u);
  EXPECT_EQ(g->PunktSaetze()[0].X.size(), 9u);
  EXPECT_EQ(g->Auftrag().YText, "ln y(calc) - ln y(exp)");
  ASSERT_TRUE(g->KurveBelegt()[0]);
  EXPECT_EQ(g->Kurve(0).Legende, "Null-Linie");
  EXPECT_TRUE(test::Bild(p.fenster.get(), "fitting_residuen.png"));
  p.fenster->Graf2D()->SeiteSchliessen();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  f->Knopf("cmdGraphLnp")->click();
  ASSERT_NE(p.Seite(), nullptr);
  g = &p.Seite()->Logik();
  ASSERT_EQ(g->PunktSaetze().size(), 1u);
  EXPECT_REL(g->PunktSaetze()[0].X[0], 1.0 / 100, 1e-6);
  EXPECT_REL(g->PunktSaetze()[0].Y[8], std::log(3285.0), 1e-6);
  ASSERT_TRUE(g->KurveBelegt()[0]);
  EXPECT_GT(g->Kurve(0).Punkte.size(), 100u);

  // August has no parameter set of its own; Antoine fitted in ln form goes in divided by ln 10.
  f->Knopf("cmdApply")->click();
  EXPECT_EQ(p.ui.Letzte().titel, "Ausführung nicht möglich");
  f->Tabs()->setCurrentIndex(1);
  f->Option("optFit", fm::Antoine)->click();
  EXPECT_FALSE(f->Rahmen("fraFQS")->isVisibleTo(f)); // a new model clears the results
  f->Knopf("cmdStart")->click();
  const std::array<float, 3> vorher = p.s.Stoff.AntoineNd;
  ASSERT_TRUE(f->Knopf("cmdApply")->isEnabled());
  f->Knopf("cmdApply")->click();
  EXPECT_EQ(p.ui.Letzte().titel, "Parameterübernahme OK");
  EXPECT_NE(p.s.Stoff.AntoineNd, vorher);
  EXPECT_REL(p.s.Stoff.AntoineNd[0], f->Logik().Fit.FitPar[0] / std::log(10.0), 1e-6);
  EXPECT_EQ(p.s.Stoff.AntoineNdGrenzen.TLo, 100);
  EXPECT_EQ(p.s.Stoff.AntoineNdGrenzen.THi, 180);
  ZeigtLogik(f);

  // The menu brings the open dialog forward as it is; another substance closes it.
  p.fenster->Befehl("mnuFitting")->trigger();
  EXPECT_EQ(p.E().Fitting(), f);
  EXPECT_TRUE(f->Rahmen("fraFQS")->isVisibleTo(f));
  p.ui.antworten = {Antwort::Nein}; // the measured data are kept
  p.fenster->StoffWahlZeigen();
  QListWidget* liste = p.fenster->StoffWahl()->Liste();
  liste->setCurrentRow(1); // Ethan
  test::Taste(liste, Qt::Key_Return);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(p.E().Fitting(), nullptr);
}

TEST(FittingFenster, ThePointsOfTheXYEditorGoToTheGeneralTabAndTheSplineListsItsPieces) {
  Fitting p;
  p.fenster->Befehl("mnuData_EditXY")->trigger();
  XYEditorFenster* xy = p.E().XYEditor();
  // y = 1 + 2 x + 3 x^2 at x = 0 ... 7
  QString zeilen;
  for (int x = 0; x < 8; ++x)
    zeilen += QString("%1\t%2\r\n").arg(x).arg(1 + 2 * x + 3 * x * x);
  p.ui.zwischenablage = zeilen.toStdString();
  xy->Knopf("cmdClipEinfuegen")->click();
  xy->Knopf("cmdFitting")->click();
  FittingFenster* f = p.E().Fitting();
  ASSERT_NE(f, nullptr);
  EXPECT_EQ(f->windowTitle(), " Fitting y = f(T) (8 (aktive) Datensätze geladen aus XY-Editor)");
  EXPECT_EQ(f->Tabs()->currentIndex(), 0);
  EXPECT_TRUE(f->Option("optFit", fm::Polynom)->isChecked());

  // The polynomial gives the coefficients back; the linear models show no standard deviations.
  f->Knopf("cmdStart")->click();
  EXPECT_REL(f->Feld("txtPar", 2)->text().toDouble(), 3, 1e-4);
  EXPECT_FALSE(f->Label("lblStDevKopf")->isVisibleTo(f));
  ZeigtLogik(f);

  // A result back into its start field; a fixed term of the polynomial leaves its field.
  f->Knopf("cmdleft", 1)->click();
  EXPECT_EQ(f->Feld("txtStart", 1)->text(), f->Feld("txtPar", 1)->text());
  f->Kasten("chkFix", 5)->click();
  EXPECT_FALSE(f->Feld("txtStart", 5)->isVisibleTo(f));
  EXPECT_FALSE(f->Rahmen("fraFQS")->isVisibleTo(f));
  // Another tab is the logic's tab; the model stays until one is chosen there.
  f->Tabs()->setCurrentIndex(fittab::Cp);
  EXPECT_EQ(f->Logik().SSTab1, fittab::Cp);
  ZeigtLogik(f);

  // The spline: its frame instead of the start fields, its pieces in the frame's text window.
  f->Option("optFit", fm::AkimaSpline)->click();
  EXPECT_TRUE(f->Rahmen("fraSpline")->isVisibleTo(f));
  EXPECT_FALSE(f->Feld("txtStart", 0)->isVisibleTo(f));
  f->Knopf("cmdStart")->click();
  ASSERT_TRUE(f->Knopf("cmdSplineParAnzeigen")->isEnabled());
  EXPECT_FALSE(f->Knopf("cmdApply")->isEnabled());
  f->Knopf("cmdSplineParAnzeigen")->click();
  const QList<TextFenster*> texte = p.fenster->findChildren<TextFenster*>();
  ASSERT_EQ(texte.size(), 1);
  EXPECT_EQ(texte[0]->windowTitle(), "  AKIMA-Spline-Parameter");
  EXPECT_TRUE(texte[0]->Text().contains("Kubischer Spline"));
  ZeigtLogik(f);
}

} // namespace
} // namespace quor::ui
