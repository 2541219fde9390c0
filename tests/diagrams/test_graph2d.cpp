// The 2D diagram page: its slots, the draw routine's outcomes and messages, the legend texts, zoom,
// swapped axes, the parameter input, curves and points of other dialogs, and what the page shows.
#include "core/zahlformat.h"
#include "diagrams/graph2d_testhilfe.h"
#include "diagrams/kurven.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <string>

namespace quor {
namespace {

using test::Seite;
using Texte = std::vector<std::string>;

TEST(Graph2D, TwentyFourCurvesFillTheSlotsAndTheTwentyFifthIsRefused) {
  Seite t(code::pv);
  t.g.cmdFarbVorwahl({255, 0, 0});
  for (int i = 0; i < MaxKurven; ++i)
    ASSERT_EQ(t.Isotherme(150.0f + 5.0f * i), ZeichenErgebnis::Gezeichnet) << i;
  EXPECT_TRUE(t.Meldungen().empty());
  EXPECT_EQ(t.g.KurvenAnzahl(), MaxKurven);
  EXPECT_EQ(t.g.Kurve(3).Legende, "T = 165.00 K.");
  // The chosen colour goes to the next curve; after it the pre-selection moves through the palette.
  EXPECT_EQ(t.g.Kurve(0).Farbe, (RGBFarbe{255, 0, 0}));
  EXPECT_NE(t.g.Kurve(1).Farbe, t.g.Kurve(2).Farbe);

  // The page keeps the engine's points for the axes on show.
  Kurvenpunkte direkt;
  int16_t ergebnis = 0;
  bool imBereich = false;
  std::string meldung;
  double T = 150, p = t.s.Einheiten.pVorgabe, v = t.s.Einheiten.vVorgabe;
  CalcCurve(t.s, t.ui, t.g.RechenAuftrag(), ergebnis, T, p, v, direkt, imBereich, meldung);
  ASSERT_EQ(t.g.Kurve(0).Punkte.size(), direkt.size());
  for (std::size_t i = 1; i < direkt.size(); ++i) {
    EXPECT_EQ(t.g.Kurve(0).Punkte[i].X, direkt[i].X);
    EXPECT_EQ(t.g.Kurve(0).Punkte[i].Y, direkt[i].Y);
  }

  EXPECT_EQ(t.Isotherme(300), ZeichenErgebnis::KeinPlatz);
  EXPECT_EQ(t.Meldungen(),
            Texte{"Ausführung nicht möglich|Maximal 24 Kurven möglich\r\nLöschen Sie vorhandene Kurven"});
  EXPECT_EQ(t.g.KurvenAnzahl(), MaxKurven);

  // A deleted slot is free again and the next curve takes it.
  t.g.mnuSubDelKurv(7);
  EXPECT_FALSE(t.g.KurveBelegt()[7]);
  EXPECT_EQ(t.Isotherme(300), ZeichenErgebnis::Gezeichnet);
  EXPECT_EQ(t.g.Kurve(7).Legende, "T = 300.00 K.");
  EXPECT_EQ(t.g.Bild().Reihen.size(), static_cast<std::size_t>(MaxKurven));
  t.g.mnuDelTotal();
  EXPECT_EQ(t.g.KurvenAnzahl(), 0);
}

const char* const IsochorHinweis = "einmaliger Hinweis|Empfehlung:\r\n"
                                   "Fügen Sie anschließend die Koexistenzkurve L-V und die\r\n"
                                   "Konnode ein, um die gezeichnete(n) Isochore(n) besser\r\n"
                                   "interpretieren zu können.\r\n"
                                   "Verwenden Sie für die Einfügungen jeweils andere Farben.\r\n"
                                   "Zoomen Sie ggf.\r\n"
                                   "Beachten Sie auch den Abschnitt \"Isochoren\" in der\r\n"
                                   "QUOR-HTML-Hilfe.";

// The advice comes before the first isochor of the session and never again, not even on a new
// diagram. An isochor on the vapour side is cut where it meets the dew line: it is kept, with the
// warning.
TEST(Graph2D, TheIsochorAdviceComesOnceAndACutIsochorIsKeptWithItsWarning) {
  Seite t(code::pT);
  t.s.Einheiten.vVorgabe = 0.3f; // three times the critical volume
  ASSERT_EQ(t.g.cmdDraw(), ZeichenErgebnis::Gezeichnet);
  const std::string abgebrochen = "WARNUNG|Die Kurvenberechnung wurde abgebrochen.\r\n"
                                  "Möglicherweise wurde die VL-Koexistenzkurve erreicht.\r\n"
                                  "Kontrollieren Sie durch Einfügen der Koexistenzkurve.";
  EXPECT_EQ(t.Meldungen(), (Texte{IsochorHinweis, abgebrochen}));
  EXPECT_EQ(t.g.Kurve(0).Legende, "v = 0.300000 m^3/kmol.");
  EXPECT_GT(Anzahl(t.g.Kurve(0).Punkte), 10u);

  t.ui.protokoll.clear();
  t.s.Einheiten.vVorgabe = 0.05f; // liquid side, cut as well
  t.g.cmdDraw();
  t.Oeffne(code::pT);
  t.g.cmdDraw();
  for (const std::string& m : t.Meldungen())
    EXPECT_EQ(m.rfind("einmaliger Hinweis|", 0), std::string::npos);
}

TEST(Graph2D, CurvesThatAreNotKeptLeaveTheDiagramUnchanged) {
  Seite t(code::pv);
  ASSERT_TRUE(t.g.mnuCoord(10, 20, 5000, 6000)); // the isotherm at 300 K lies far below
  const int stand = t.g.Stand();
  EXPECT_EQ(t.Isotherme(300), ZeichenErgebnis::Ausserhalb);
  EXPECT_EQ(t.Meldungen(), Texte{"WARNUNG|Kurve außerhalb des aktuellen Koordinatenbereichs\r\n"
                                 "Vergrößern Sie den Koordinatenbereich\r\n"
                                 "(Rechts-Klick auf Diagramm oder Button \"Koordinatenbereich\")"});
  EXPECT_EQ(t.g.KurvenAnzahl(), 0);
  EXPECT_EQ(t.g.Stand(), stand);
  EXPECT_TRUE(t.g.Bild().Reihen.empty());

  // A vapour-pressure curve over temperatures above T(cr) has no point at all.
  Seite d(code::Dampfdruck);
  ASSERT_TRUE(d.g.mnuCoord(200, 300, 0, 5000));
  EXPECT_EQ(d.g.cmdDraw(), ZeichenErgebnis::KeinePunkte);
  EXPECT_EQ(d.Meldungen(), Texte{"Hinweis|mit diesen Eingabedaten kein Ergebnis erhalten"});
  EXPECT_EQ(d.g.KurvenAnzahl(), 0);
}

// The engine's result codes and the points below the triple point, each under its title.
TEST(Graph2D, OutcomesOfTheEngineAreToldUnderTheirTitles) {
  // Klasse 5 has no tie line of its own: the engine answers with result 4.
  Seite t(code::KoexPv);
  t.s.Diagramm.KonnodeModus = true;
  EXPECT_EQ(t.g.cmdDraw(), ZeichenErgebnis::Fehler);
  t.s.Diagramm.KonnodeModus = false;
  EXPECT_EQ(t.Meldungen(), Texte{"Hinweis|Konnoden nur für T < T(cr), p < p(cr)\r\nund v <> v(cr) möglich."});

  // A virial model has no critical density for the dome of both densities: result 3.
  Seite v(code::KoexRhoT, 15);
  EXPECT_EQ(v.g.cmdDraw(), ZeichenErgebnis::Fehler);
  EXPECT_EQ(v.Meldungen(), Texte{"Ausführung nicht möglich|keine kritische Dichte verfügbar"});

  // Without the triple-point limit the vapour-pressure curve reaches below it, with the warning.
  Seite d(code::Dampfdruck);
  d.s.Optionen.KurveTpBeschraenkt = false;
  ASSERT_GT(d.s.Stoff.TTripel, 80);
  ASSERT_TRUE(d.g.mnuCoord(60, 150, 0, 1000));
  EXPECT_EQ(d.g.cmdDraw(), ZeichenErgebnis::Gezeichnet);
  EXPECT_EQ(d.Meldungen(),
            Texte{"WARNUNG|Es wurde teilweise bei T < T(Trip.P.) gerechnet! (Tripelpunkt)\r\n(=> Optionen)"});
  d.ui.protokoll.clear();
  ASSERT_TRUE(d.g.mnuCoord(100, 150, 0, 1000));
  d.g.cmdDraw();
  EXPECT_TRUE(d.Meldungen().empty());
}

// The number after `vor` in `text`.
double ZahlNach(const std::string& text, const std::string& vor) {
  const std::size_t i = text.find(vor);
  return i == std::string::npos ? NAN : std::strtod(text.c_str() + i + vor.size(), nullptr);
}

TEST(Graph2D, LegendsOfTheVapourPressureCurveFollowTheConcept) {
  Seite t(code::Dampfdruck);
  ASSERT_EQ(t.g.cmdDraw(), ZeichenErgebnis::Gezeichnet);
  EXPECT_EQ(
      t.g.Kurve(0).Legende,
      "p(LV) berechnet aus CEOS Peng / Robinson (entsprechend Einstellung \"Modelle\"), GLOBAL-Konzept");

  // PARTIAL with the correlated August equation names its constants: B = Tb*Tc*ln(pc/101.325)/(Tb-Tc),
  // A = ln(pc) - B/Tc from the substance's constants.
  t.s.Modell.KonzeptGlobal = t.s.Modell.RechnungGlobal = false;
  t.s.Modell.DampfdruckIndex = AugustKorreliert;
  ASSERT_EQ(t.g.cmdDraw(), ZeichenErgebnis::Gezeichnet);
  const std::string& l = t.g.Kurve(1).Legende;
  const std::string kopf =
      "p(LV) entsprechend EVP-Einstellung \"Modelle\" August (korreliert); AUGUST-Par: A = ";
  EXPECT_EQ(l.rfind(kopf, 0), 0u) << l;
  const std::string ende = " K, PARTIAL-Konzept";
  ASSERT_GT(l.size(), ende.size());
  EXPECT_EQ(l.substr(l.size() - ende.size()), ende) << l;
  const double Tb = t.s.Stoff.TSiede, Tc = t.s.Stoff.TKrit, pc = t.s.Stoff.pKrit;
  const double B = Tb * Tc * std::log(pc / 101.325) / (Tb - Tc), A = std::log(pc) - B / Tc;
  EXPECT_NEAR(ZahlNach(l, "A = "), A, 1e-4 * std::fabs(A));
  EXPECT_NEAR(ZahlNach(l, ", B = "), B, 1e-4 * std::fabs(B));

  // Any other equation is named by its row, without the blanks that pad it.
  t.s.Modell.DampfdruckIndex = WagnerDB;
  DiagrammAuftrag a = t.g.Auftrag();
  EXPECT_EQ(KurvenLegende(t.s, a, 0, 0, 0, false),
            "p(LV) entsprechend EVP-Einstellung \"Modelle\" Wagner (MDB-Gl), PARTIAL-Konzept");
}

TEST(Graph2D, LegendsOfTheCoexistenceProjectionsAndTheTieLine) {
  Seite t(code::KoexPv);
  ASSERT_EQ(t.g.cmdDraw(), ZeichenErgebnis::Gezeichnet);
  EXPECT_EQ(t.g.Kurve(0).Legende, "p-V-Projektion (Koexistenzkurve V - L); CEOS Peng / Robinson");

  DiagrammAuftrag a;
  a.Klasse = klasse::Koexistenz;
  a.Code = code::KoexTv;
  EXPECT_EQ(KurvenLegende(t.s, a, 0, 0, 0, false),
            "T-V-Projektion (Koexistenzkurve V - L); CEOS Peng / Robinson");
  a.Code = code::KoexRhoT;
  EXPECT_EQ(KurvenLegende(t.s, a, 0, 0, 0, false),
            "Dichten rho(L), rho(V) = Fu(T), Mathias-Cailletet-Kurve aus CEOS Peng / Robinson");
  a.Code = code::HLVvonT;
  EXPECT_EQ(KurvenLegende(t.s, a, 0, 0, 0, false), "delta(LV)H = Fu(T): aus kub.-EOS (GLOBAL-Berechnung)");
  a.Klasse = klasse::Inversion;
  a.Code = code::InversionPT;
  EXPECT_EQ(KurvenLegende(t.s, a, 0, 0, 0, false), " p-T-Inversionskurve Joule-Thomson-Effekt, CEOS Peng / "
                                                   "Robinson (entsprechend Einstellung \"Modelle\")");
  a.Klasse = klasse::Isobare;
  a.Code = code::Tv;
  EXPECT_EQ(KurvenLegende(t.s, a, 0, 2000, 0, true), "(V-L) p = 2000.000 kPa.");
}

TEST(Graph2D, ZoomNarrowsTheAxesAndResetReturnsToTheLastSetting) {
  Seite t(code::pv);
  const std::array<double, 4> standard = t.g.Bereich();
  EXPECT_EQ(t.g.LetzteEinstellung(), standard);
  ASSERT_TRUE(t.g.cmdZoom(0.1, 0.5, 1000, 3000));
  EXPECT_EQ(t.g.Bereich(), (std::array<double, 4>{0.1, 0.5, 1000, 3000}));
  const Diagramm2D b = t.g.Bild();
  EXPECT_EQ(b.AchseX.Min, 0.1);
  EXPECT_EQ(b.AchseY.Max, 3000);
  EXPECT_FALSE(t.g.cmdZoom(0.5, 0.1, 1000, 3000)); // reversed
  EXPECT_FALSE(t.g.cmdZoom(0.1, 0.5, 1000, NAN));
  EXPECT_EQ(t.g.Bereich()[1], 0.5);
  t.g.cmdZoomReset();
  EXPECT_EQ(t.g.Bereich(), standard);

  // The range input is the new setting that reset returns to.
  ASSERT_TRUE(t.g.mnuCoord(0.05, 1, 0, 5000));
  t.g.cmdZoom(0.1, 0.2, 100, 200);
  t.g.cmdZoomReset();
  EXPECT_EQ(t.g.Bereich(), (std::array<double, 4>{0.05, 1, 0, 5000}));
}

// Everything on the page changes sides; the way back needs no question and gives the original.
TEST(Graph2D, SwappingTheAxesTwiceGivesTheOriginal) {
  Seite t(code::pv);
  ASSERT_EQ(t.Isotherme(150), ZeichenErgebnis::Gezeichnet);
  ASSERT_TRUE(t.g.cmdExternPoints({0.2, 0.4}, {1000, 2000}, PunktQuelle::ExpDaten, "Messung"));
  const Diagramm2D vorher = t.g.Bild();

  t.ui.antworten.push_back(ui::Antwort::Nein);
  EXPECT_FALSE(t.g.cmdChangeXY());
  EXPECT_FALSE(t.g.Gekippt());
  EXPECT_EQ(t.ui.Letzte().text,
            "Es wird empfohlen, das Diagramm nicht im gekippten Zustand zu speichern.\r\nFortfahren?");

  t.ui.antworten.push_back(ui::Antwort::Ja);
  ASSERT_TRUE(t.g.cmdChangeXY());
  EXPECT_TRUE(t.g.Gekippt());
  const Diagramm2D gekippt = t.g.Bild();
  EXPECT_EQ(gekippt.AchseX.Titel, vorher.AchseY.Titel);
  EXPECT_EQ(gekippt.AchseY.Min, vorher.AchseX.Min);
  EXPECT_EQ(gekippt.Reihen[0].X, vorher.Reihen[0].Y);
  EXPECT_EQ(gekippt.Reihen[1].Y, vorher.Reihen[1].X);
  // A curve drawn now is computed on the original axes and shown swapped as well.
  ASSERT_EQ(t.Isotherme(160), ZeichenErgebnis::Gezeichnet);
  const std::size_t fragen = t.ui.protokoll.size();
  ASSERT_TRUE(t.g.cmdChangeXY());
  EXPECT_EQ(t.ui.protokoll.size(), fragen);
  EXPECT_FALSE(t.g.Gekippt());
  const Diagramm2D zurueck = t.g.Bild();
  EXPECT_EQ(zurueck.AchseX.Titel, vorher.AchseX.Titel);
  EXPECT_EQ(t.g.Bereich()[0], vorher.AchseX.Min);
  EXPECT_EQ(zurueck.Reihen[0].X, vorher.Reihen[0].X);
  EXPECT_EQ(zurueck.Reihen[0].Y, vorher.Reihen[0].Y);
  EXPECT_EQ(zurueck.Reihen[2].X, vorher.Reihen[1].X);
  // The curve drawn while swapped lies where a curve drawn unswapped does.
  Seite gerade(code::pv);
  gerade.Isotherme(160);
  EXPECT_EQ(zurueck.Reihen[1].X, gerade.g.Bild().Reihen[0].X);
}

TEST(Graph2D, TheParameterIsEnteredInDisplayedUnits) {
  Seite t(code::pv);
  EXPECT_EQ(t.g.ParameterText(), "T / K =");
  ASSERT_TRUE(t.g.ParameterEingabe(" 150,5 "));
  EXPECT_FLOAT_EQ(t.s.Einheiten.TVorgabe, 150.5f);
  EXPECT_FALSE(t.g.ParameterEingabe("150 K"));
  EXPECT_FALSE(t.g.ParameterEingabe("-3"));
  EXPECT_FLOAT_EQ(t.s.Einheiten.TVorgabe, 150.5f);
  ASSERT_EQ(t.Meldungen().size(), 2u);
  EXPECT_EQ(t.Meldungen()[0],
            "Hinweis|Ungültige Eingabe: \"150 K\"\r\nBitte geben Sie eine positive Zahl ein.");

  // Reduced: T / T(cr); specific volumes per kg.
  t.s.Einheiten.VolumenMode = 2;
  SetzeEinheiten(t.s, t.ui);
  ASSERT_TRUE(t.g.ParameterEingabe("0.9"));
  EXPECT_NEAR(t.s.Einheiten.TVorgabe, 0.9 * t.s.Stoff.TKrit, 1e-3);
  EXPECT_EQ(t.g.ParameterText(), "T / T(cr) =");
  t.s.Einheiten.VolumenMode = 1;
  SetzeEinheiten(t.s, t.ui);
  t.Oeffne(code::pT);
  EXPECT_EQ(t.g.ParameterText(), "v / (m^3/kg) =");
  ASSERT_TRUE(t.g.ParameterEingabe("0.01"));
  EXPECT_NEAR(t.s.Einheiten.vVorgabe, 0.01 * t.s.Stoff.MolMasse, 1e-6);
}

TEST(Graph2D, CurvesAndPointsOfOtherDialogsKeepTheirSource) {
  Seite t(code::pv);
  ASSERT_TRUE(t.g.cmdExternKurve({0.1, 0.2, NAN, 0.3}, {3000, 2000, 1, 1000}, "Isentrope"));
  EXPECT_EQ(Anzahl(t.g.Kurve(0).Punkte), 3u); // the NaN is left out
  EXPECT_EQ(t.g.Kurve(0).Legende, "Isentrope");
  for (int i = 0; i < MaxPunktSaetze; ++i)
    ASSERT_TRUE(t.g.cmdExternPoints({0.2}, {1000}, PunktQuelle::Fitting, "Fit"));
  EXPECT_EQ(t.g.PunktSaetze()[0].Legende, "Fit   vom Fitting");
  EXPECT_TRUE(t.Meldungen().empty());
  EXPECT_FALSE(t.g.cmdExternPoints({0.2}, {1000}, PunktQuelle::XYEditor, "zuviel"));
  EXPECT_EQ(t.g.PunktSaetze().size(), static_cast<std::size_t>(MaxPunktSaetze));
  t.g.mnuSubDelPointSet(0);
  ASSERT_TRUE(t.g.cmdExternPoints({50}, {1e6}, PunktQuelle::ExpDaten, "Daten"));
  EXPECT_EQ(t.g.PunktSaetze().back().Legende, "Daten   vom Editor für exp. Daten ");
  EXPECT_EQ(t.ui.Letzte().text, "Kurve befindet sich nicht im eingestellten Koordinatenfenster\r\n"
                                "Vergrößern Sie das Koordinatenfenster.");
  const Diagramm2D b = t.g.Bild();
  EXPECT_EQ(b.Reihen.back().Linie, LinienArt::Keine);
  EXPECT_NE(b.Reihen.back().Symbol, PunktSymbol::Keines);
  t.g.mnuDelLegend();
  EXPECT_FALSE(t.g.Bild().LegendeSichtbar);
  t.g.mnuAddLegend();
  EXPECT_TRUE(t.g.Bild().LegendeSichtbar);
}

// Under the mouse: the coordinates with the axes' units; on an isotherm its T and the point's p and v.
TEST(Graph2D, TheMouseReadsTheCurveUnderIt) {
  Seite t(code::pv);
  ASSERT_EQ(t.Isotherme(250), ZeichenErgebnis::Gezeichnet);
  const Kurvenpunkt q = t.g.Kurve(0).Punkte[40];
  const MausInfo m = t.g.Maus(q.X, q.Y, 0.01, 10);
  EXPECT_EQ(m.Koordinaten, "X = " + SingleText(q.X) + " m^3/kmol, Y = " + SingleText(q.Y) + " kPa");
  EXPECT_EQ(m.Zustand, "T = 250 K, p = " + SingleText(q.Y) + " kPa, v = " + SingleText(q.X) + " m^3/kmol");
  EXPECT_EQ(t.g.KurveBei(q.X, q.Y, 0.01, 10), 0);
  EXPECT_TRUE(t.g.Maus(q.X, q.Y + 1000, 0.01, 10).Zustand.empty());
  EXPECT_EQ(t.g.KurveBei(q.X, q.Y + 1000, 0.01, 10), -1);

  const std::string text = t.g.KurveAlsText(0);
  EXPECT_EQ(text.rfind("v / (m^3/kmol)\tp / kPa\r\n", 0), 0u);
  EXPECT_NE(text.find(SingleText(q.X) + "\t" + SingleText(q.Y) + "\r\n"), std::string::npos);

  // The parameter's label stands at the curve's last point inside the axes.
  t.g.ParameterBeschriften(true);
  const Diagramm2D b = t.g.Bild();
  ASSERT_EQ(b.Texte.size(), 1u);
  EXPECT_EQ(b.Texte[0].Text, "T = 250.00 K");
  const std::array<double, 4> r = t.g.Bereich();
  EXPECT_TRUE(b.Texte[0].X >= r[0] && b.Texte[0].X <= r[1] && b.Texte[0].Y >= r[2] && b.Texte[0].Y <= r[3]);
  t.g.mnuDelLabels();
  EXPECT_TRUE(t.g.Bild().Texte.empty());
}

} // namespace
} // namespace quor
