// Diagram files: a full page survives saving and loading; a file made with other settings is
// loaded with the list of differences; a damaged file leaves the page as it was; the file commands'
// questions, hints and limits.
#include "core/datei_io.h"
#include "diagrams/diagramm3d_art.h"
#include "diagrams/diagramm_datei.h"
#include "diagrams/diagramm_datei_befehle.h"
#include "diagrams/graph2d_testhilfe.h"
#include "diagrams/markierungen.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quor {
namespace {

using test::Seite;

void GleicheReihen(const std::vector<Reihe2D>& a, const std::vector<Reihe2D>& b) {
  ASSERT_EQ(a.size(), b.size());
  for (std::size_t i = 0; i < a.size(); ++i) {
    EXPECT_EQ(a[i].Name, b[i].Name);
    EXPECT_EQ(a[i].X, b[i].X) << a[i].Name;
    EXPECT_EQ(a[i].Y, b[i].Y) << a[i].Name;
    EXPECT_EQ(a[i].Farbe, b[i].Farbe);
    EXPECT_EQ(a[i].Linie, b[i].Linie);
    EXPECT_EQ(a[i].Breite, b[i].Breite);
    EXPECT_EQ(a[i].Symbol, b[i].Symbol);
  }
}

// Everything the chart is given.
void GleichesBild(const Diagramm2D& a, const Diagramm2D& b) {
  GleicheReihen(a.Reihen, b.Reihen);
  ASSERT_EQ(a.Texte.size(), b.Texte.size());
  for (std::size_t i = 0; i < a.Texte.size(); ++i) {
    EXPECT_EQ(a.Texte[i].Text, b.Texte[i].Text);
    EXPECT_EQ(a.Texte[i].X, b.Texte[i].X);
    EXPECT_EQ(a.Texte[i].Y, b.Texte[i].Y);
  }
  ASSERT_EQ(a.Marken.size(), b.Marken.size());
  for (std::size_t i = 0; i < a.Marken.size(); ++i) {
    EXPECT_EQ(a.Marken[i].Text, b.Marken[i].Text);
    EXPECT_EQ(a.Marken[i].X, b.Marken[i].X);
    EXPECT_EQ(a.Marken[i].Symbol, b.Marken[i].Symbol);
  }
  for (const auto& [x, y] : {std::pair{a.AchseX, b.AchseX}, std::pair{a.AchseY, b.AchseY}}) {
    EXPECT_EQ(x.Min, y.Min);
    EXPECT_EQ(x.Max, y.Max);
    EXPECT_EQ(x.Titel, y.Titel);
    EXPECT_EQ(x.Format, y.Format);
    EXPECT_EQ(x.Gitter, y.Gitter);
  }
  EXPECT_EQ(a.Kopf, b.Kopf);
  EXPECT_EQ(a.LegendeSichtbar, b.LegendeSichtbar);
  EXPECT_EQ(a.Seitenfarbe, b.Seitenfarbe);
}

// A p-v page of methane with three isotherms (one restyled, one with its parameter written at its end),
// the coexistence curve, a p mark and the critical point, two point sets, a zoom, a format, swapped
// axes and a black sheet.
struct VollerSeite : Seite {
  Markierungen m{s, ui, g};
  test::TempOrdner ordner;

  VollerSeite() : Seite(code::pv) {
    for (const float T : {150.f, 190.f, 250.f}) EXPECT_EQ(Isotherme(T), ZeichenErgebnis::Gezeichnet);
    g.Gestalten(1, {10, 200, 30}, LinienArt::StrichPunkt, 2.5, PunktSymbol::Raute);
    g.ParameterBeschriften(true);
    EXPECT_TRUE(m.mnuMarkKoex());
    EXPECT_TRUE(m.mnuMarkP(1));
    EXPECT_TRUE(m.mnuMarkCritPointEx());
    EXPECT_TRUE(g.cmdExternPoints({0.1, 0.2}, {3000, 4000}, PunktQuelle::ExpDaten, "Messung"));
    EXPECT_TRUE(g.cmdExternPoints({0.3}, {2000}, PunktQuelle::XYEditor, "Handwerte"));
    EXPECT_TRUE(g.cmdZoom(0.05, 0.5, 500, 6000));
    g.AchsenStil(1, "0.0E+00", true);
    ui.antworten = {ui::Antwort::Ja};
    EXPECT_TRUE(g.cmdChangeXY());
    g.SeitenfarbeSetzen({0, 0, 0});
    ui.protokoll.clear();
  }

  std::string Speichere(const std::string& name) {
    const std::string pfad = ordner.Datei(name);
    ui.antworten = {ui::Antwort::Ja};
    ui.dateien = {pfad};
    EXPECT_TRUE(mnuSaveOC2(s, ui, g));
    return pfad;
  }
};

TEST(DiagrammDatei, AFullPageSavedAndLoadedGivesTheSamePicture) {
  VollerSeite quelle;
  const std::string pfad = quelle.Speichere("voll.oc2");
  // Saving the swapped diagram asks first, under its own title.
  EXPECT_EQ(quelle.ui.protokoll.front().titel, "Warnung");
  EXPECT_EQ(quelle.ui.dateiDialoge.back().titel, "Speichern dieser 2D-Diagrammgestaltung");
  EXPECT_EQ(quelle.ui.dateiDialoge.back().filter, "Diagramm-File (*.oc2)|*.oc2");

  Seite ziel(code::Tv);
  ziel.ui.dateien = {pfad};
  ASSERT_TRUE(mnuLoadOC2(ziel.s, ziel.ui, ziel.g));
  GleichesBild(quelle.g.Bild(), ziel.g.Bild());
  const Graph2DZustand a = quelle.g.Zustand(), b = ziel.g.Zustand();
  EXPECT_TRUE(b.Gekippt);
  EXPECT_EQ(a.Bereich, b.Bereich);
  EXPECT_EQ(a.Einstellung, b.Einstellung);
  EXPECT_EQ(a.FarbVorwahl, b.FarbVorwahl);
  ASSERT_EQ(a.Kurven.size(), b.Kurven.size());
  for (std::size_t i = 0; i < a.Kurven.size(); ++i) {
    const Graph2DKurve &k = a.Kurven[i].second, &l = b.Kurven[i].second;
    EXPECT_EQ(a.Kurven[i].first, b.Kurven[i].first);
    EXPECT_EQ(k.Auftrag.Code, l.Auftrag.Code);
    EXPECT_EQ(k.T, l.T);
    EXPECT_EQ(k.Konnode, l.Konnode);
    ASSERT_EQ(k.Punkte.size(), l.Punkte.size());
    for (std::size_t j = 0; j < k.Punkte.size(); ++j) EXPECT_EQ(k.Punkte[j].Z, l.Punkte[j].Z);
  }
  EXPECT_EQ(a.PunktSaetze[0].Quelle, PunktQuelle::ExpDaten);
  EXPECT_EQ(b.PunktSaetze[0].Quelle, PunktQuelle::ExpDaten);
  // Same substance and models: only the one-time hint.
  ASSERT_EQ(ziel.ui.Meldungen().size(), 1u);
  EXPECT_EQ(ziel.ui.Meldungen()[0].titel, "einmaliger Hinweis");
  // The page works on: swapping back restores the unswapped axes.
  ziel.g.cmdChangeXY();
  EXPECT_EQ(ziel.g.Bild().AchseX.Titel, quelle.g.Auftrag().XText);
}

TEST(DiagrammDatei, LoadingWithAnotherSubstanceNamesTheDifferencesAndTheHintComesOnce) {
  VollerSeite quelle;
  const std::string pfad = quelle.Speichere("methan.oc2");
  ProjectState ethanol = test::StoffMitModell(test::CasEthanol, 6);
  ethanol.Einheiten.TFaktor = 1.8f; // another temperature unit
  ui::SkriptOberflaeche ui;
  frmQGraph2D g(ethanol, ui);
  ui.dateien = {pfad, pfad};
  ASSERT_TRUE(mnuLoadOC2(ethanol, ui, g));
  ASSERT_TRUE(mnuLoadOC2(ethanol, ui, g));
  const auto m = ui.Meldungen();
  ASSERT_EQ(m.size(), 3u);
  EXPECT_EQ(m[0].text, "Wenn Sie das OC2-Diagramm weiter bearbeiten möchen,\r\nbeachten Sie bitte:\r\n"
                       "1) Laden Sie das OC2-Diagrammfile nur bei passender Einstellung\r\n   des Diagramm-Typs.\r\n"
                       "2) Es müssen der für dieses OC2-File gültige Stoff und die\r\n"
                       "   gleichen Modelle (inkl. gleicher Normierung der thermo-\r\n"
                       "   dynamischen Funktionen) geladen sein.");
  for (int i : {1, 2}) {
    EXPECT_EQ(m[static_cast<std::size_t>(i)].titel, "Hinweis");
    EXPECT_NE(m[static_cast<std::size_t>(i)].text.find("Stoff: Methan (74-82-8), geladen ist Ethanol (64-17-5)"),
              std::string::npos)
        << m[static_cast<std::size_t>(i)].text;
    EXPECT_NE(m[static_cast<std::size_t>(i)].text.find("Einheiten:"), std::string::npos);
    EXPECT_EQ(m[static_cast<std::size_t>(i)].text.find("Zustandsgleichung"), std::string::npos);
  }
  EXPECT_EQ(g.KurvenAnzahl(), quelle.g.KurvenAnzahl());
}

TEST(DiagrammDatei, DamagedFilesGiveAMessageAndLeaveThePageAsItWas) {
  VollerSeite quelle;
  const std::string gut = test::LeseDatei(quelle.Speichere("gut.oc2"));
  const auto ersetzt = [&gut](const std::string& alt, const std::string& neu) {
    std::string t = gut;
    const std::size_t i = t.find(alt);
    EXPECT_NE(i, std::string::npos) << alt;
    return i == std::string::npos ? t : t.replace(i, alt.size(), neu);
  };
  const std::vector<std::pair<std::string, std::string>> faelle = {
      {gut.substr(0, gut.size() / 2), "Text endet zu früh"},
      {"", "Text endet zu früh"},
      {"\xff\xfe\x00\x01 binary", "Wert erwartet"},
      {ersetzt("\"version\": 1", "\"version\": 2"), "Version 2 ist neuer als dieses Programm (1)"},
      {ersetzt("\"art\": \"2D\"", "\"art\": \"3D\""), "keine 2D-Diagrammdatei"},
      {ersetzt("\"platz\": 1,", "\"platz\": 30,"), "Feld kurven[0].platz: keine ganze Zahl von 1 bis 24"},
      {ersetzt("\"platz\": 2,", "\"platz\": 1,"), "Feld kurven[1]: Platz doppelt belegt"},
      {ersetzt("\"farbe\": \"#", "\"farbe\": \"rot"), "keine Farbe #RRGGBB"},
      {ersetzt("\"gekippt\": true", "\"gekippt\": 1"), "Feld gekippt: falscher Typ"},
      {ersetzt("\"x\": [", "\"x\": [1e999, "), "Zahl zu groß"},
      {std::string(100000, '[') + std::string(100000, ']'), "zu tief verschachtelt"},
  };
  Seite ziel(code::pv);
  ziel.Isotherme(170);
  const std::string vorher = SchreibeOC2({HerkunftVon(ziel.s), ziel.g.Zustand()});
  const int stand = ziel.g.Stand();
  for (const auto& [text, grund] : faelle) {
    const std::string pfad = quelle.ordner.Schreibe("kaputt.oc2", text);
    ziel.ui.protokoll.clear();
    ziel.ui.dateien = {pfad};
    EXPECT_FALSE(mnuLoadOC2(ziel.s, ziel.ui, ziel.g)) << grund;
    ASSERT_FALSE(ziel.ui.Meldungen().empty());
    const ui::Aufzeichnung m = ziel.ui.Meldungen().back();
    EXPECT_EQ(m.titel, "Laden einer abgespeicherten Diagrammvorlage");
    EXPECT_NE(m.text.find(grund), std::string::npos) << m.text;
    EXPECT_NE(m.text.find("Das Diagramm bleibt, wie es war."), std::string::npos);
  }
  EXPECT_EQ(ziel.g.Stand(), stand);
  EXPECT_EQ(SchreibeOC2({HerkunftVon(ziel.s), ziel.g.Zustand()}), vorher);
}

TEST(DiagrammDatei, SavingSwappedAxesCanBeDeclinedAndAFailedWriteSaysSo) {
  VollerSeite seite;
  seite.ui.antworten = {ui::Antwort::Nein};
  EXPECT_FALSE(mnuSaveOC2(seite.s, seite.ui, seite.g));
  EXPECT_TRUE(seite.ui.dateiDialoge.empty());
  seite.ui.antworten = {ui::Antwort::Ja};
  seite.ui.dateien = {seite.ordner.Datei("kein/ordner/x.oc2")};
  EXPECT_FALSE(mnuSaveOC2(seite.s, seite.ui, seite.g));
  EXPECT_EQ(seite.ui.Meldungen().back().titel, "Fehler beim Speichern");
}

TEST(DiagrammDatei, ASurfaceWithItsDressAndViewSurvivesTheFile) {
  ProjectState s = test::StoffMitModell(test::CasMethan, 6);
  ui::SkriptOberflaeche ui;
  frmGraph3D g(s, ui);
  g.Aufloesung(12, 9);
  ASSERT_TRUE(g.Neu(art3d::H));
  g.Anzeige.Netz = true;
  g.Anzeige.Zonen = false;
  g.Isolinien(2, 3, 4, true, false);
  g.KritischerPunkt(true);
  // A cell without value travels as such.
  Graph3DZustand z = g.Zustand({-40, 15, 130});
  z.Gitter.Z[3][4] = std::nan("");
  z.Gitter.Gueltig[3][4] = false;
  g.ZustandSetzen(z);

  test::TempOrdner ordner;
  const std::string pfad = ordner.Datei("h.oc3");
  ui.dateien = {pfad};
  ASSERT_TRUE(mnuSaveOC3(s, ui, g, {-40, 15, 130}));
  EXPECT_EQ(ui.dateiDialoge.back().titel, "Speichern dieser Diagrammgestaltung");
  frmGraph3D neu(s, ui);
  ui.dateien = {pfad};
  ASSERT_TRUE(mnuLoadOC3(s, ui, neu));
  EXPECT_EQ(ui.dateiDialoge.back().filter, "Diagramm-File (*.oc3)|*.oc3");
  const Flaeche3D a = g.Bild(), b = neu.Bild();
  EXPECT_EQ(a.Titel, b.Titel);
  EXPECT_EQ(a.X, b.X);
  EXPECT_EQ(a.Y, b.Y);
  EXPECT_EQ(a.Z, b.Z);
  EXPECT_EQ(a.Gueltig, b.Gueltig);
  EXPECT_FALSE(b.Gueltig[3 * b.X.size() + 4]);
  EXPECT_EQ(a.AchseZ.Min, b.AchseZ.Min);
  EXPECT_EQ(b.Anzeige.Netz, true);
  EXPECT_EQ(b.Anzeige.Zonen, false);
  EXPECT_EQ(a.Linien.size(), b.Linien.size());
  ASSERT_EQ(b.Punkte.size(), 1u);
  EXPECT_EQ(b.Punkte[0].Text, "CrP");
  EXPECT_EQ(b.Ansicht.Horizontal, -40);
  EXPECT_EQ(b.Ansicht.Zoom, 130);
  EXPECT_TRUE(ui.Meldungen().empty());
  // The saved grid, not a new computation: a range input computes anew from the saved limits.
  EXPECT_EQ(neu.Gitter().X.size(), 13u);

  // A grid whose rows disagree with its axis is refused.
  std::string text = test::LeseDatei(pfad);
  const std::size_t zeile = text.find("\"z\": [", text.find("\"gitter\"")) + 6;
  text.insert(text.find('[', zeile) + 1, "1, ");
  std::string fehler;
  EXPECT_FALSE(LeseOC3(text, fehler));
  EXPECT_EQ(fehler, "Feld gitter.z[0]: ein Wert je x-Wert erwartet");
  EXPECT_FALSE(LeseOC2(test::LeseDatei(pfad), fehler));
  EXPECT_EQ(fehler, "keine 2D-Diagrammdatei");
}

TEST(DiagrammDatei, PointSetsComeFromAndGoToXYFilesUpToTwelve) {
  Seite seite(code::pv);
  test::TempOrdner ordner;
  const std::string pfad = ordner.Schreibe("punkte.XY", "Messreihe 1\r\n0,1;5000\r\n0.2;4000;99\r\n");
  for (int i = 0; i < MaxPunktSaetze; ++i) {
    seite.ui.dateien = {pfad};
    ASSERT_TRUE(mnuAddPunkte(seite.s, seite.ui, seite.g));
  }
  EXPECT_EQ(seite.ui.dateiDialoge[0].titel, "(Kurven)punkte vom File laden");
  EXPECT_EQ(seite.ui.dateiDialoge[0].filter, "x-y-Daten (*.XY)|*.XY|(*.LRG)|*LRG");
  const Graph2DPunktSatz& ps = seite.g.PunktSaetze()[0];
  EXPECT_EQ(ps.Legende, "Messreihe 1   vom X-Y-Editor");
  EXPECT_EQ(ps.X, (std::vector<double>{0.1f, 0.2f}));
  EXPECT_EQ(ps.Y, (std::vector<double>{5000, 4000}));

  seite.ui.dateien = {pfad};
  EXPECT_FALSE(mnuAddPunkte(seite.s, seite.ui, seite.g));
  EXPECT_EQ(seite.ui.Meldungen().back().text,
            "Es dürfen max. 12 Punktsätze geladen werden.\r\nLöschen Sie evtl. die vorhandenen Messpunkte.");
  EXPECT_EQ(seite.ui.Meldungen().back().titel, "Ausführung nicht möglich");
  EXPECT_EQ(seite.ui.dateien.size(), 1u); // refused before the file dialog

  seite.ui.dateien = {ordner.Datei("zurueck.XY")};
  ASSERT_TRUE(PunkteSpeichern(seite.s, seite.ui, seite.g, 0));
  EXPECT_EQ(seite.ui.dateiDialoge.back().titel, "(Kurven)punkte speichern unter ...");
  EXPECT_EQ(test::LeseDatei(ordner.Datei("zurueck.XY")),
            "Messreihe 1   vom X-Y-Editor\r\n.1000000E+00;.5000000E+04\r\n.2000000E+00;.4000000E+04\r\n");
}

TEST(DiagrammDatei, PicturesGetAFileOfTheirKindAndABlackSheetIsAskedAbout) {
  ProjectState s;
  ui::SkriptOberflaeche ui;
  ui.dateien = {"bild", "bild.PDF", "bild.png"};
  EXPECT_EQ(BildDateiWaehlen(s, ui, false)->Pfad, "bild.png");
  const auto pdf = BildDateiWaehlen(s, ui, true);
  EXPECT_EQ(pdf->Format, BildFormat::PDF);
  EXPECT_EQ(pdf->Pfad, "bild.PDF");
  // A bitmap name given to the vector choice keeps its name and gets the vector ending.
  EXPECT_EQ(BildDateiWaehlen(s, ui, true)->Pfad, "bild.png.svg");
  EXPECT_NE(ui.dateiDialoge[0].titel.find("Bitmap-Grafik"), std::string::npos);
  EXPECT_NE(ui.dateiDialoge[1].titel.find("WMF"), std::string::npos);

  EXPECT_TRUE(DruckenBestaetigt(ui, {255, 255, 255}));
  EXPECT_TRUE(ui.protokoll.empty() || ui.protokoll.back().art != "Frage");
  ui.antworten = {ui::Antwort::Nein, ui::Antwort::Ja};
  EXPECT_FALSE(DruckenBestaetigt(ui, {0, 0, 0}));
  EXPECT_TRUE(DruckenBestaetigt(ui, {0, 0, 0}));
  EXPECT_EQ(ui.protokoll.back().text, "Sie haben ein schwarzes Zeichenblatt gewählt.\r\nWollen Sie das wirklich so drucken?");
  EXPECT_EQ(ui.protokoll.back().titel, "WARNUNG");
}

} // namespace
} // namespace quor
