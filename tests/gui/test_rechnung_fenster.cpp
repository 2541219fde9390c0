// The further windows of the calculations: the vessel's page by GLOBAL and PARTIAL from the toolbar,
// a page over the batch data with its paging and its report file, the reference-state dialog, and
// the isotherm pictures of the diagnostics.
#include "gui/calc/isotherm_bilder.h"
#include "programm_hilfe.h"

#include <QFile>
#include <QHBoxLayout>
#include <QMdiArea>
#include <QTemporaryDir>

namespace quor::ui {
namespace {

using test::RechnungsRahmen;
using test::ZeigtLogik;

TEST(RechnungFenster, TheVesselFromTheToolbarByEitherConcept) {
  RechnungsRahmen a;
  a.fenster->Knopf(15)->trigger(); // the project's concept is GLOBAL
  ASSERT_TRUE(a.Seite() && a.R().Parinput());
  ZeigtLogik(a.R().Parinput());
  a.Eingeben({"1", "100", "", "150"});
  EXPECT_TRUE(a.ui.Meldungen().empty());
  ZeigtLogik(a.Seite());

  // PARTIAL: the reference point first, then the value dialog; the page comes with the first values
  // and in front of the others.
  ASSERT_TRUE(a.Menue("mnuCalc", 16));
  ASSERT_NE(a.R().CalcIn(), nullptr);
  a.R().CalcIn()->OK()->click();
  QApplication::processEvents();
  EXPECT_EQ(a.Seite(), nullptr);
  ASSERT_NE(a.R().Parinput(), nullptr);
  a.Eingeben({"1", "100", "", "150"});
  ASSERT_NE(a.Seite(), nullptr);
  EXPECT_EQ(a.fenster->Arbeitsflaeche()->activeSubWindow(), a.R().SeitenFenster());

  // Above the critical temperature PARTIAL refuses: the page closes and the value dialog stays.
  a.Eingeben({"1", "100", "", "250"});
  EXPECT_EQ(a.ui.Meldungen().size(), 1u);
  EXPECT_EQ(a.Seite(), nullptr);
  EXPECT_NE(a.R().Parinput(), nullptr);
}

TEST(RechnungFenster, BatchPageWalksThePointsAndWritesTheReport) {
  RechnungsRahmen a;
  QTemporaryDir ordner;
  MessdatenGruppe& m = a.s.Mess;
  m.ExpAnzahl = 3;
  for (int i = 1; i <= 3; ++i) {
    ExpZeile(m, i).T = 130 + 10 * i;
    ExpZeile(m, i).p = 500;
  }
  a.s.Rechnung.StapelModus = true;
  ASSERT_TRUE(a.Menue("mnuCalc", 2));
  EXPECT_EQ(a.R().Parinput(), nullptr);
  ErgebnisFenster* seite = a.Seite();
  ASSERT_NE(seite, nullptr);
  ZeigtLogik(seite);
  seite->Knopf("cmdVor")->click();
  EXPECT_EQ(seite->Logik().AktuellerPunkt, 2);
  ZeigtLogik(seite);

  // The report into a .LST file, chosen on the page and written on closing.
  seite->Ausgabe(2)->click();
  const QString datei = ordner.filePath("bericht.LST");
  a.ui.dateien.push_back(datei.toStdString());
  seite->Knopf("cmdCalc_OK")->click();
  QApplication::processEvents();
  EXPECT_EQ(a.Seite(), nullptr);
  EXPECT_GT(QFile(datei).size(), 0);
}

TEST(RechnungFenster, ReferenceStateFromTheToolbar) {
  RechnungsRahmen a;
  a.fenster->Knopf(11)->trigger();
  auto* referenz = a.fenster->findChild<ReferenzFenster*>("frmReferenz");
  ASSERT_TRUE(referenz && referenz->isVisible());
  ZeigtLogik(referenz);
  // Methane's formation data allow the conventional normalisation: the dialog shows what it fixes.
  ASSERT_TRUE(referenz->Option(1)->isEnabled());
  referenz->Option(1)->click();
  ZeigtLogik(referenz);
  EXPECT_TRUE(test::Bild(referenz, "referenz.png"));
  referenz->Feld(4)->setText("280,5"); // the environment's temperature, with a decimal comma
  referenz->OK();
  EXPECT_FALSE(referenz->isVisible());
  EXPECT_EQ(a.s.Referenz.RefArt, 10);
  EXPECT_EQ(a.s.Referenz.TUmgebung, 280.5);
}

// Each picture cuts its isotherm as many times as its case names, smallest volume first, and draws.
TEST(RechnungFenster, IsothermPicturesOfTheThreeCases) {
  test::App();
  using Bild = frmCEOSDiagnose::Bild;
  QWidget reihe;
  auto* layout = new QHBoxLayout(&reihe);
  const std::pair<Bild, std::size_t> faelle[] = {{Bild::DreiWurzelnUnterkritisch, 3},
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
  EXPECT_NE(gross.pixel(gross.width() / 6, gross.height() / 2), gross.pixel(2, 2)); // something drawn
  EXPECT_TRUE(test::Bild(&reihe, "isothermen.png"));
}

} // namespace
} // namespace quor::ui
