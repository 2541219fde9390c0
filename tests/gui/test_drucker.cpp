// The printed batch report as a PDF: the poppler tools read it back, its name plain, its lines in
// order on two pages, and a page rendered at 72 dpi (one pixel a point) shows text lines of a normal
// size.
#include "calc/bericht.h"
#include "calc/test_ergebnis_seite_daten.h"
#include "gui/basis/qt_drucker.h"
#include "gui_hilfe.h"
#include "support/temp_ordner.h"

#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <gtest/gtest.h>

#include <algorithm>

namespace quor::ui {
namespace {

QString Werkzeug(const char* name) {
  return QStandardPaths::findExecutable(name);
}

QString Lauf(const QString& programm, const QStringList& argumente) {
  QProcess p;
  p.start(programm, argumente);
  p.waitForFinished(30000);
  return QString::fromUtf8(p.readAllStandardOutput());
}

// Heights of the bands of rows that hold dark pixels, from the top: one band per printed line.
std::vector<int> TextZeilenHoehen(const QImage& seite) {
  std::vector<int> hoehen;
  int band = 0;
  for (int y = 0; y < seite.height(); ++y) {
    bool dunkel = false;
    for (int x = 0; x < seite.width() && !dunkel; ++x)
      dunkel = qGray(seite.pixel(x, y)) < 128;
    if (dunkel) {
      ++band;
    } else if (band > 0) {
      hoehen.push_back(band);
      band = 0;
    }
  }
  return hoehen;
}

TEST(Drucker, BatchReportPrintsToAReadableTwoPagePdf) {
  test::App();
  if (Werkzeug("pdftotext").isEmpty() || Werkzeug("pdftoppm").isEmpty() || Werkzeug("pdfinfo").isEmpty())
    GTEST_SKIP() << "poppler-utils fehlt";
  quor::test::TempOrdner tmp;
  ProjectState s = quor::test::StapelZustand(tmp.Pfad());
  RechenKontext k;
  k.AnzahlPunkte = 2;
  k.StapelErgebnisse.assign(6, StapelErgebnis{});
  for (int n = 1; n <= 2; ++n)
    k.StapelErgebnisse[static_cast<std::size_t>(n)] = quor::test::Ergebnis(n, "V+L", 300, 1000, 20, 500, 30000);
  const BerichtAuftrag auftrag{"14.03.2024", "Ergebnis der Berechnung  T => p(LV) (GLOBAL-Berechnung)", 4, true};

  QtDrucker drucker(nullptr);
  const std::string pdf = tmp.Datei("bericht.pdf");
  drucker.SetzePdfZiel(pdf);
  ASSERT_TRUE(DruckeBericht(drucker, s, k, auftrag));

  // The document's name, which a print dialog proposes as file name, has no ":".
  EXPECT_TRUE(Lauf(Werkzeug("pdfinfo"), {QString::fromStdString(pdf)}).contains(QRegularExpression(
      "Title: +QUOR Results of Calculation\n")));

  const QString text = Lauf(Werkzeug("pdftotext"), QStringList{"-layout", QString::fromStdString(pdf), "-"});
  EXPECT_EQ(text.count('\f'), 2) << "two pages";
  qsizetype bei = 0;
  for (const char* zeile : {"QUOR: Results of Calculation", "Substance:", "Propan", "Number of Data Sets:",
                            "No.", "Phase", "arithmetic mean of ABS(%-deviations):", "d2p/dV²"}) {
    const qsizetype gefunden = text.indexOf(QString::fromUtf8(zeile), bei);
    EXPECT_GE(gefunden, bei) << zeile << " after the lines before it";
    bei = std::max(bei, gefunden);
  }

  Lauf(Werkzeug("pdftoppm"), QStringList{"-r", "72", "-f", "1", "-l", "1", "-png", QString::fromStdString(pdf),
                              QString::fromStdString(tmp.Datei("seite"))});
  const QImage seite(QString::fromStdString(tmp.Datei("seite-1.png")));
  ASSERT_FALSE(seite.isNull());
  std::vector<int> hoehen = TextZeilenHoehen(seite);
  ASSERT_GT(hoehen.size(), 40u); // a full page of lines, not a few giant glyphs
  std::nth_element(hoehen.begin(), hoehen.begin() + static_cast<std::ptrdiff_t>(hoehen.size() / 2), hoehen.end());
  const int mitte = hoehen[hoehen.size() / 2];
  EXPECT_GE(mitte, 5) << "10-point text";
  EXPECT_LE(mitte, 12) << "10-point text";
}

} // namespace
} // namespace quor::ui
