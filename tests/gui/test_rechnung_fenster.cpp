// The further windows of the calculations: the vessel's pages by GLOBAL and PARTIAL, a page over the
// batch data with its paging and its report file, the reference-state dialog from the toolbar, and
// the isotherm pictures of the diagnostics.
#include "rechnung_hilfe.h"
#include "gui/calc/isotherm_bilder.h"
#include "gui/calc/referenz_fenster.h"

#include <QCheckBox>
#include <QFile>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QMdiArea>
#include <QRadioButton>
#include <QTemporaryDir>

namespace quor::ui {
namespace {

using test::RechnungsRahmen;

TEST(RechnungFenster, TheVesselShowsItsPageByEitherConcept) {
  RechnungsRahmen a;
  a.fenster->Knopf(15)->trigger(); // the project's concept is GLOBAL
  ErgebnisFenster* seite = a.Seite();
  ASSERT_NE(seite, nullptr);
  EXPECT_EQ(seite->windowTitle(), "Ergebnis der Berechnung Phasenzustand und Druck in einem Behälter "
                                  "(GLOBAL-Berechnung)");
  ParinputFenster* eingabe = a.R().Parinput();
  ASSERT_NE(eingabe, nullptr);
  EXPECT_EQ(eingabe->windowTitle(), "Behälter-Berechnung (GLOBAL)");
  EXPECT_FALSE(eingabe->Feld(2)->isEnabled()); // the amount, while the mass is chosen
  a.Eingeben({"1", "100", "", "150"});
  EXPECT_TRUE(a.ui.Meldungen().empty());
  // 100 kg in 1 m^3 at 150 K: liquid and vapour at the saturation pressure of the EOS.
  EXPECT_TRUE(seite->Txtco2()->text().startsWith(" Druck p(LV)/kPa = "))
      << seite->Txtco2()->text().toStdString();
  EXPECT_FALSE(seite->Rahmen("fraProtokoll")->isVisible());

  // PARTIAL: the reference point first, then the value dialog; the page comes with the first values.
  ASSERT_TRUE(a.Menue("mnuCalc", 16));
  CalcInFenster* calcIn = a.R().CalcIn();
  ASSERT_NE(calcIn, nullptr);
  EXPECT_TRUE(calcIn->Situation()->text().startsWith("Die Berechnung der Dichte (bzw. des Molvolumens)"));
  calcIn->OK()->click();
  QApplication::processEvents();
  EXPECT_EQ(a.Seite(), nullptr);
  ASSERT_NE(a.R().Parinput(), nullptr);
  EXPECT_EQ(a.R().Parinput()->windowTitle(), "Behälter-Berechnung (PARTIAL)");
  a.Eingeben({"1", "100", "", "150"});
  ASSERT_NE(a.Seite(), nullptr);
  EXPECT_TRUE(a.Seite()->windowTitle().endsWith("(PARTIAL-Berechnung, rho(L)  nach BENSON)"));
  EXPECT_TRUE(a.Seite()->Txtco2()->text().startsWith(" Druck p(LV)/kPa = "));
  EXPECT_EQ(a.fenster->Arbeitsflaeche()->activeSubWindow(), a.R().SeitenFenster());

  // Above the critical temperature PARTIAL refuses, the page closes and the value dialog stays.
  a.Eingeben({"1", "100", "", "250"});
  ASSERT_EQ(a.ui.Meldungen().size(), 1u);
  EXPECT_EQ(a.ui.Letzte().titel, "Ausführung nicht möglich");
  EXPECT_EQ(a.Seite(), nullptr);
  EXPECT_NE(a.R().Parinput(), nullptr);
}

TEST(RechnungFenster, BatchPageWalksThePointsAndWritesTheReport) {
  RechnungsRahmen a;
  QTemporaryDir ordner;
  MessdatenGruppe& m = a.s.Mess;
  m.ExpAnzahl = 3;
  for (int i = 1; i <= 3; ++i) {
    ExpDatenSatz& z = ExpZeile(m, i);
    z.T = 130 + 10 * i;
    z.p = 500;
  }
  a.s.Rechnung.StapelModus = true;
  ASSERT_TRUE(a.Menue("mnuCalc", 2));
  EXPECT_TRUE(a.ui.protokoll.empty()); // no question over a batch
  EXPECT_EQ(a.R().Parinput(), nullptr);
  ErgebnisFenster* seite = a.Seite();
  ASSERT_NE(seite, nullptr);
  EXPECT_EQ(seite->Rahmen("fraBatchVorgabe")->title(), " Vorgabewert(e) aus Datenpunkt #1");
  EXPECT_EQ(seite->Par(1)->text(), "T = 140.000 K");
  EXPECT_EQ(seite->Knopf("cmdCalc_OK")->text(), "Beenden (+Ausgabe)");
  seite->Knopf("cmdVor")->click();
  EXPECT_EQ(seite->Rahmen("fraBatchVorgabe")->title(), "Vorgabewerte aus Datenpunkt 2");
  EXPECT_EQ(seite->Par(1)->text(), "T = 150.000 K");

  // The report into a .LST file.
  EXPECT_FALSE(seite->FuncPrint()->isEnabled());
  seite->Ausgabe(2)->click();
  const QString datei = ordner.filePath("bericht.LST");
  a.ui.dateien.push_back(datei.toStdString());
  seite->Knopf("cmdCalc_OK")->click();
  QApplication::processEvents();
  EXPECT_EQ(a.Seite(), nullptr);
  QFile lst(datei);
  ASSERT_TRUE(lst.open(QIODevice::ReadOnly)) << lst.fileName().toStdString();
  const QByteArray text = lst.readAll();
  EXPECT_TRUE(text.contains("QUOR Results of Calculation"));
  EXPECT_TRUE(text.contains("Number of Data Sets  : 3"));
  ASSERT_FALSE(a.ui.dateiDialoge.empty());
  EXPECT_EQ(a.ui.dateiDialoge.back().titel, "QUOR-Ergebnisliste speichern unter ...");

  // The same batch to the printer.
  ASSERT_TRUE(a.Menue("mnuCalc", 2));
  a.Seite()->Ausgabe(1)->click();
  a.Seite()->Knopf("cmdCalc_OK")->click();
  const std::vector<std::string>& gedruckt = a.ui.drucker.texte;
  EXPECT_NE(std::find(gedruckt.begin(), gedruckt.end(), "QUOR: Results of Calculation"), gedruckt.end());
}

TEST(RechnungFenster, ReferenceStateFromTheToolbar) {
  RechnungsRahmen a;
  ASSERT_TRUE(a.fenster->Knopf(11)->isEnabled());
  a.fenster->Knopf(11)->trigger();
  auto* referenz = a.fenster->findChild<ReferenzFenster*>("frmReferenz");
  ASSERT_NE(referenz, nullptr);
  EXPECT_TRUE(referenz->isVisible());
  EXPECT_EQ(referenz->windowTitle(), "  Vorbereitung Funktionsberechnung Z");
  EXPECT_TRUE(referenz->Option(0)->isChecked());
  EXPECT_TRUE(referenz->Feld(0)->isEnabled());
  // Methane's formation data allow the conventional normalisation, which fixes To and po.
  ASSERT_TRUE(referenz->Option(1)->isEnabled());
  referenz->Option(1)->click();
  EXPECT_FALSE(referenz->Feld(2)->isEnabled());
  EXPECT_EQ(referenz->Feld(2)->text(), "298.15");
  referenz->Feld(4)->setText("0");
  referenz->OK();
  EXPECT_EQ(a.s.Referenz.RefArt, 10);
  EXPECT_EQ(a.s.Referenz.TUmgebung, 1e-6);
  EXPECT_TRUE(test::Bild(referenz, "referenz.png"));
}

// Each picture cuts its isotherm as many times as its case names, and is drawn at any size.
TEST(RechnungFenster, IsothermPicturesOfTheThreeCases) {
  test::App();
  using Bild = frmCEOSDiagnose::Bild;
  QWidget reihe;
  auto* layout = new QHBoxLayout(&reihe);
  const std::vector<std::pair<Bild, std::size_t>> faelle{{Bild::DreiWurzelnUnterkritisch, 3},
                                                         {Bild::EineWurzelUnterkritisch, 1},
                                                         {Bild::EineWurzelUeberkritisch, 1}};
  for (const auto& [fall, anzahl] : faelle) {
    auto* bild = new IsothermBild(&reihe);
    bild->SetzeFall(fall);
    layout->addWidget(bild);
    const std::vector<double> wurzeln = bild->Wurzeln();
    EXPECT_EQ(wurzeln.size(), anzahl);
    EXPECT_TRUE(std::is_sorted(wurzeln.begin(), wurzeln.end()));
  }
  reihe.resize(1000, 300);
  reihe.show();
  QApplication::processEvents();
  const QImage gross = reihe.grab().toImage();
  reihe.resize(800, 240);
  QApplication::processEvents();
  EXPECT_EQ(reihe.grab().size(), QSize(800, 240));
  EXPECT_NE(gross.pixel(gross.width() / 6, gross.height() / 2), gross.pixel(2, 2)); // something drawn
  EXPECT_TRUE(test::Bild(&reihe, "isothermen.png"));
}

} // namespace
} // namespace quor::ui
