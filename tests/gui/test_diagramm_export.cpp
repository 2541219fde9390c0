// Pictures of the diagram pages leaving the program: the 2D chart as bitmap files of the asked size,
// as SVG whose curves are vector polylines of every point, as PDF that poppler renders at the
// chart's size; the 3D picture in its files; the clipboard's data; the printed page that the chart
// fills with texts of the size they have on the screen; and the reason when a file can't be written.
#include "gui/diagrams/diagramm2d_flaeche.h"
#include "gui/diagrams/diagramm_export.h"
#include "gui_hilfe.h"
#include "support/relativ.h"
#include "support/temp_ordner.h"

#include <QClipboard>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QMimeData>
#include <QPainter>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QStandardPaths>
#include <QXmlStreamReader>
#include <gtest/gtest.h>
#include <qcustomplot.h>

#include <algorithm>
#include <map>
#include <tuple>

namespace quor::ui {
namespace {

const RGBFarbe Rot{220, 0, 0}, Blau{0, 0, 220};
constexpr int Punkte = 101;

// A parabola in red and a falling line in blue, every point inside the axes, with a header.
Diagramm2D Testbild() {
  Diagramm2D d;
  d.AchseX = {0, 1, "v / (m^3/kmol)", "", false, false};
  d.AchseY = {0, 1, "p / kPa", "", false, false};
  d.Kopf = "Testdiagramm";
  Reihe2D parabel, gerade;
  parabel.Name = "Parabel";
  parabel.Farbe = Rot;
  parabel.Breite = 2;
  gerade.Name = "Gerade";
  gerade.Farbe = Blau;
  for (int i = 0; i < Punkte; ++i) {
    const double x = 0.02 + 0.96 * i / (Punkte - 1);
    parabel.X.push_back(x);
    parabel.Y.push_back(x * x);
    gerade.X.push_back(x);
    gerade.Y.push_back(1 - x);
  }
  d.Reihen = {parabel, gerade};
  return d;
}

struct Chart {
  QApplication& app = test::App();
  Diagramm2DFlaeche w;
  Chart() {
    w.setAttribute(Qt::WA_DontShowOnScreen);
    w.resize(640, 480);
    w.show();
    w.Zeige(Testbild());
  }
  int Dpi() const { return w.Plot()->logicalDpiX(); }
};

QString Werkzeug(const char* name) {
  return QStandardPaths::findExecutable(name);
}

bool Poppler() {
  return !Werkzeug("pdftoppm").isEmpty() && !Werkzeug("pdfinfo").isEmpty() &&
         !Werkzeug("pdftotext").isEmpty();
}

QString Lauf(const char* programm, const QStringList& argumente) {
  QProcess p;
  p.start(Werkzeug(programm), argumente);
  p.waitForFinished(30000);
  return QString::fromUtf8(p.readAllStandardOutput());
}

// The page size of a PDF in points.
QSizeF Seitengroesse(const QString& pdf) {
  const auto m = QRegularExpression("Page size: +([0-9.]+) x ([0-9.]+) pts").match(Lauf("pdfinfo", {pdf}));
  return m.hasMatch() ? QSizeF(m.captured(1).toDouble(), m.captured(2).toDouble()) : QSizeF();
}

// The first page rendered at `dpi` into a picture.
QImage Gerendert(const QString& pdf, int dpi, const QString& ordner) {
  const QString wurzel = ordner + "/seite";
  Lauf("pdftoppm", {"-r", QString::number(dpi), "-f", "1", "-singlefile", "-png", pdf, wurzel});
  return QImage(wurzel + ".png");
}

// The box of a word on the first page, in points from the top left, as pdftotext places it.
QRectF Wortbox(const QString& pdf, const QString& wort) {
  const QString html = Lauf("pdftotext", {"-bbox", "-l", "1", pdf, "-"});
  const QRegularExpression muster(
      "<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\">" + wort +
      "</word>");
  const auto m = muster.match(html);
  if (!m.hasMatch()) return {};
  return QRectF(QPointF(m.captured(1).toDouble(), m.captured(2).toDouble()),
                QPointF(m.captured(3).toDouble(), m.captured(4).toDouble()));
}

int PixelIn(const QImage& bild, const QColor& farbe) {
  int n = 0;
  for (int y = 0; y < bild.height(); ++y)
    for (int x = 0; x < bild.width(); ++x) {
      const QColor c = bild.pixelColor(x, y);
      n += std::abs(c.red() - farbe.red()) < 60 && std::abs(c.green() - farbe.green()) < 60 &&
           std::abs(c.blue() - farbe.blue()) < 60;
    }
  return n;
}

QColor Q(RGBFarbe f) {
  return QColor(f.R, f.G, f.B);
}

TEST(DiagrammExport, BitmapFilesAreImagesOfTheAskedSizeWithTheCurves) {
  Chart c;
  quor::test::TempOrdner tmp;
  for (const auto& [name, format, kennung] :
       {std::tuple{"bild.png", BildFormat::PNG, "png"}, std::tuple{"bild.bmp", BildFormat::BMP, "bmp"}}) {
    std::string grund = "alt";
    const std::string pfad = tmp.Datei(name);
    ASSERT_TRUE(Bildfile2D(c.w, pfad, format, QSize(500, 300), grund)) << grund;
    EXPECT_TRUE(grund.empty());
    QImageReader leser(QString::fromStdString(pfad));
    EXPECT_EQ(leser.format(), QByteArray(kennung)) << "the file's content, not only its name";
    const QImage bild = leser.read();
    ASSERT_EQ(bild.size(), QSize(500, 300)) << name;
    EXPECT_GT(PixelIn(bild, Q(Rot)), 100) << "the parabola is drawn";
    EXPECT_GT(PixelIn(bild, Q(Blau)), 100) << "the line is drawn";
  }
  EXPECT_EQ(c.w.Plot()->size(), QSize(640, 480)) << "the chart on the screen keeps its size";
}

// The SVG is well-formed XML whose curves are polylines in their colours with every point, and
// whose texts are text.
TEST(DiagrammExport, SvgHoldsEachCurveAsOneVectorPolyline) {
  Chart c;
  quor::test::TempOrdner tmp;
  const std::string pfad = tmp.Datei("bild.svg");
  std::string grund;
  ASSERT_TRUE(Bildfile2D(c.w, pfad, BildFormat::SVG, QSize(800, 600), grund)) << grund;
  QFile datei(QString::fromStdString(pfad));
  ASSERT_TRUE(datei.open(QIODevice::ReadOnly));
  QXmlStreamReader xml(&datei);
  std::vector<QString> strich{"black"};       // the stroke of each open group, innermost last
  std::map<QString, std::vector<int>> linien; // stroke colour -> points of each polyline
  QString texte, viewBox;
  while (!xml.atEnd()) {
    xml.readNext();
    if (xml.isStartElement()) {
      const auto a = xml.attributes();
      if (xml.name() == u"svg")
        viewBox = a.value("width").toString() + "x" + a.value("height").toString() + " " +
                  a.value("viewBox").toString();
      if (xml.name() == u"g")
        strich.push_back(a.hasAttribute("stroke") ? a.value("stroke").toString() : strich.back());
      if (xml.name() == u"polyline")
        linien[strich.back()].push_back(
            static_cast<int>(a.value("points").toString().split(' ', Qt::SkipEmptyParts).size()));
      if (xml.name() == u"text") texte += xml.readElementText(QXmlStreamReader::IncludeChildElements) + "|";
    } else if (xml.isEndElement() && xml.name() == u"g") {
      strich.pop_back();
    }
  }
  ASSERT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  EXPECT_EQ(viewBox, "800x600 0 0 800 600") << "the size in pixels, one unit a pixel";
  for (const RGBFarbe f : {Rot, Blau}) {
    const auto& l = linien[Q(f).name()];
    ASSERT_FALSE(l.empty()) << Q(f).name().toStdString();
    EXPECT_EQ(*std::max_element(l.begin(), l.end()), Punkte) << "one polyline through every point";
  }
  for (const char* t : {"Testdiagramm", "p / kPa", "Parabel", "Gerade"})
    EXPECT_TRUE(texte.contains(t)) << t << " is text in " << texte.toStdString();
}

// A page of the chart's size at the screen's resolution: poppler renders it back to the picture's
// size in pixels, with the curves and the header.
TEST(DiagrammExport, PdfIsOnePageThatPopplerRendersAtTheChartsSize) {
  if (!Poppler()) GTEST_SKIP() << "poppler-utils fehlt";
  Chart c;
  quor::test::TempOrdner tmp;
  const QString pdf = QString::fromStdString(tmp.Datei("bild.pdf"));
  std::string grund;
  ASSERT_TRUE(Bildfile2D(c.w, pdf.toStdString(), BildFormat::PDF, QSize(600, 400), grund)) << grund;
  const QSizeF seite = Seitengroesse(pdf);
  EXPECT_REL(seite.width(), 600.0 * 72 / c.Dpi(), 0.01);
  EXPECT_REL(seite.height(), 400.0 * 72 / c.Dpi(), 0.01);
  const QImage bild = Gerendert(pdf, c.Dpi(), QString::fromStdString(tmp.Pfad()));
  ASSERT_EQ(bild.size(), QSize(600, 400));
  EXPECT_GT(PixelIn(bild, Q(Rot)), 100);
  EXPECT_GT(PixelIn(bild, Q(Blau)), 100);
  EXPECT_FALSE(Wortbox(pdf, "Testdiagramm").isEmpty()) << "the header is text";
}

TEST(DiagrammExport, AFileThatCannotBeWrittenGivesFalseAndTheReason) {
  Chart c;
  quor::test::TempOrdner tmp;
  std::string grund;
  for (const BildFormat f : {BildFormat::PNG, BildFormat::SVG, BildFormat::PDF}) {
    EXPECT_FALSE(Bildfile2D(c.w, tmp.Datei("fehlt/bild.png"), f, QSize(300, 200), grund));
    EXPECT_NE(grund.find("kann nicht geschrieben werden"), std::string::npos) << grund;
    EXPECT_NE(grund.find("existiert nicht"), std::string::npos) << grund;
  }
  EXPECT_FALSE(Bildfile2D(c.w, tmp.Pfad(), BildFormat::PNG, QSize(300, 200), grund));
  EXPECT_NE(grund.find("Verzeichnis"), std::string::npos) << grund;
  EXPECT_FALSE(Bildfile3D(QImage(), tmp.Datei("flaeche.png"), BildFormat::PNG, grund))
      << "no picture to write";
  EXPECT_NE(grund.find("3D-Diagramm"), std::string::npos) << grund;
  EXPECT_FALSE(QFile::exists(QString::fromStdString(tmp.Datei("flaeche.png"))));
}

// The 3D chart's picture goes into the files as it is.
TEST(DiagrammExport, ThreeDimensionalPictureGoesIntoTheFilesUnchanged) {
  test::App();
  quor::test::TempOrdner tmp;
  QImage bild(320, 200, QImage::Format_RGB32);
  bild.fill(QColor(20, 160, 40));
  std::string grund;
  for (const auto& [name, format] :
       {std::pair{"f.png", BildFormat::PNG}, {"f.bmp", BildFormat::BMP}, {"f.svg", BildFormat::SVG}}) {
    ASSERT_TRUE(Bildfile3D(bild, tmp.Datei(name), format, grund)) << grund;
    QImageReader leser(QString::fromStdString(tmp.Datei(name)));
    const QImage gelesen = leser.read();
    ASSERT_EQ(gelesen.size(), bild.size()) << name;
    EXPECT_EQ(gelesen.pixelColor(160, 100), QColor(20, 160, 40)) << name;
  }
  if (!Poppler()) return;
  const QString pdf = QString::fromStdString(tmp.Datei("f.pdf"));
  ASSERT_TRUE(Bildfile3D(bild, pdf.toStdString(), BildFormat::PDF, grund)) << grund;
  const int dpi = qRound(QGuiApplication::primaryScreen()->logicalDotsPerInch());
  EXPECT_REL(Seitengroesse(pdf).width(), 320.0 * 72 / dpi, 0.01);
  const QImage seite = Gerendert(pdf, dpi, QString::fromStdString(tmp.Pfad()));
  ASSERT_EQ(seite.size(), bild.size());
  EXPECT_EQ(PixelIn(seite, QColor(20, 160, 40)), 320 * 200) << "the picture fills its page";
}

TEST(DiagrammExport, ClipboardTakesTheBitmapAndWithTheVectorCopyTheSvgBesideIt) {
  Chart c;
  const auto bitmap = Zwischenablage2D(c.w, false);
  ASSERT_TRUE(bitmap);
  EXPECT_TRUE(bitmap->hasImage());
  EXPECT_FALSE(bitmap->hasFormat("image/svg+xml"));
  EXPECT_EQ(qvariant_cast<QImage>(bitmap->imageData()).size(), QSize(640, 480)) << "the size on the screen";

  auto vektor = Zwischenablage2D(c.w, true, QSize(400, 300));
  ASSERT_TRUE(vektor);
  EXPECT_TRUE(vektor->hasImage()) << "for programs that read no SVG";
  EXPECT_EQ(qvariant_cast<QImage>(vektor->imageData()).size(), QSize(400, 300));
  const QByteArray svg = vektor->data("image/svg+xml");
  EXPECT_TRUE(svg.startsWith("<?xml") && svg.contains("<svg") && svg.contains("<polyline"))
      << svg.left(200).data();

  EXPECT_FALSE(Zwischenablage3D(QImage()));
  ASSERT_TRUE(InZwischenablage(std::move(vektor)));
  EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasFormat("image/svg+xml"));
  EXPECT_FALSE(InZwischenablage(nullptr));
}

// The chart fills the printable area in its proportions; its texts keep their size relative to
// the chart (drawn straight onto a printer of high resolution, fonts would take its dots per inch).
TEST(DiagrammExport, PrintedChartFillsThePageWithTextsInProportion) {
  if (!Poppler()) GTEST_SKIP() << "poppler-utils fehlt";
  Chart c;
  quor::test::TempOrdner tmp;
  const QString gedruckt = QString::fromStdString(tmp.Datei("druck.pdf"));
  const QString datei = QString::fromStdString(tmp.Datei("datei.pdf"));
  {
    const auto drucker = DiagrammDrucker(nullptr, "Testdiagramm", gedruckt);
    ASSERT_TRUE(drucker);
    ASSERT_TRUE(Drucke2D(*drucker, c.w));
  }
  std::string grund;
  ASSERT_TRUE(Bildfile2D(c.w, datei.toStdString(), BildFormat::PDF, QSize(640, 480), grund)) << grund;

  const QSizeF seite = Seitengroesse(gedruckt);
  ASSERT_GT(seite.width(), seite.height()) << "landscape";
  const double rand = 15 / 25.4 * 72; // 15 mm in points
  // 640 x 480 is wider than the printable area is high: its height decides.
  const double massstab = (seite.height() - 2 * rand) / 480;
  const QRectF kopf = Wortbox(gedruckt, "Testdiagramm"), kopfDatei = Wortbox(datei, "Testdiagramm");
  ASSERT_FALSE(kopf.isEmpty());
  ASSERT_FALSE(kopfDatei.isEmpty());
  EXPECT_REL(kopf.center().x(), seite.width() / 2, 0.02) << "centred across";
  EXPECT_NEAR(kopf.top(), rand + kopfDatei.top() * massstab / (72.0 / c.Dpi()), 3)
      << "the chart's top at the margin";
  // The same header in the file at 72/dpi points per pixel and on the page at `massstab`.
  EXPECT_REL(kopf.height() / kopfDatei.height(), massstab / (72.0 / c.Dpi()), 0.08);
  const QRectF achse = Wortbox(gedruckt, "kPa");
  ASSERT_FALSE(achse.isEmpty());
  EXPECT_GT(achse.left(), (seite.width() - 640 * massstab) / 2 - 1) << "the chart's left edge on the page";
}

// The page of a picture with title and note (the 3D page's print): the title on top, the picture in
// its proportions below it, the note under the picture.
TEST(DiagrammExport, PicturePageStacksTitlePictureAndNote) {
  if (!Poppler()) GTEST_SKIP() << "poppler-utils fehlt";
  test::App();
  quor::test::TempOrdner tmp;
  const QString pdf = QString::fromStdString(tmp.Datei("seite.pdf"));
  QImage bild(400, 300, QImage::Format_RGB32);
  bild.fill(QColor(20, 160, 40));
  {
    const auto drucker = DiagrammDrucker(nullptr, "Flaeche", pdf);
    ASSERT_TRUE(
        DruckeBildSeite(*drucker, "Druckfläche", "Hinweiszeile", bild.size(),
                        [&bild](QPainter& maler, const QRectF& ziel) { maler.drawImage(ziel, bild); }));
  }
  const QImage seite = Gerendert(pdf, 36, QString::fromStdString(tmp.Pfad()));
  ASSERT_FALSE(seite.isNull());
  QRect gruen;
  for (int y = 0; y < seite.height(); ++y)
    for (int x = 0; x < seite.width(); ++x)
      if (PixelIn(seite.copy(x, y, 1, 1), QColor(20, 160, 40)) == 1) gruen |= QRect(x, y, 1, 1);
  ASSERT_FALSE(gruen.isEmpty());
  EXPECT_REL(double(gruen.width()) / gruen.height(), 4.0 / 3, 0.03);
  EXPECT_NEAR(gruen.center().x(), seite.width() / 2.0, 2);
  const double punkt = 72.0 / 36; // points per pixel of the rendering
  const QRectF titel = Wortbox(pdf, "Druckfläche"), hinweis = Wortbox(pdf, "Hinweiszeile");
  ASSERT_FALSE(titel.isEmpty());
  ASSERT_FALSE(hinweis.isEmpty());
  EXPECT_LT(titel.bottom(), gruen.top() * punkt);
  EXPECT_GT(hinweis.top(), gruen.bottom() * punkt);
}

} // namespace
} // namespace quor::ui
