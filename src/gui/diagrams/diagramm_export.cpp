#include "gui/diagrams/diagramm_export.h"

#include "gui/diagrams/diagramm2d_flaeche.h"

#include <QBuffer>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QSaveFile>
#include <QScreen>
#include <QSvgGenerator>
#include <qcustomplot.h>

namespace quor::ui {

namespace {

constexpr double PunkteJeZoll = 72.0;
// The size of a chart that was never laid out on the screen.
const QSize ErsatzGroesse(960, 720);

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

QSize Groesse(const Diagramm2DFlaeche& d, QSize groesse) {
  if (groesse.isEmpty()) groesse = d.Plot()->size();
  return groesse.isEmpty() ? ErsatzGroesse : groesse;
}

// The dots per inch by which the chart measures its texts: the screen's. Texts drawn into SVG and
// PDF at that resolution take the room the chart's layout gave them.
int Aufloesung(const Diagramm2DFlaeche& d) {
  const int dpi = d.Plot()->logicalDpiX();
  return dpi > 0 ? dpi : 96;
}

int BildschirmDpi() {
  const QScreen* schirm = QGuiApplication::primaryScreen();
  const int dpi = schirm ? qRound(schirm->logicalDotsPerInch()) : 0;
  return dpi > 0 ? dpi : 96;
}

// The chart drawn through `maler` at `groesse`; the painter marks the device as a vector one, so
// curves stay whole polylines. Drawing at another size lays the chart out anew for the moment; the
// next redraw brings back the layout of the screen.
void ZeichneVektoren(QCustomPlot* plot, QCPPainter& maler, QSize groesse) {
  maler.setMode(QCPPainter::pmVectorized);
  plot->toPainter(&maler, groesse.width(), groesse.height());
  maler.end();
  plot->replot(QCustomPlot::rpQueuedReplot);
}

QByteArray ImageBytes(const QImage& bild, const char* format) {
  QByteArray daten;
  QBuffer puffer(&daten);
  puffer.open(QIODevice::WriteOnly);
  if (!bild.save(&puffer, format)) return {};
  return daten;
}

// An SVG document that states its size in pixels (the generator writes millimetres, which viewers
// turn into pixels at differing resolutions).
QByteArray MitPixelGroesse(QByteArray svg, QSize groesse) {
  const int anfang = svg.indexOf("<svg width=\"");
  const int ende = anfang < 0 ? -1 : svg.indexOf('\n', anfang);
  if (ende < 0) return svg;
  return svg.replace(
      anfang, ende - anfang,
      QString("<svg width=\"%1\" height=\"%2\"").arg(groesse.width()).arg(groesse.height()).toUtf8());
}

// A one-page PDF of `groesse` pixels at `dpi`, drawn by `zeichne` in pixel coordinates.
QByteArray PdfSeite(QSize groesse, int dpi, const std::function<void(QPdfWriter&)>& zeichne) {
  QByteArray daten;
  QBuffer puffer(&daten);
  puffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter pdf(&puffer);
    pdf.setCreator("QUOR-6");
    pdf.setResolution(dpi);
    const QSizeF punkte(groesse.width() * PunkteJeZoll / dpi, groesse.height() * PunkteJeZoll / dpi);
    pdf.setPageLayout(QPageLayout(QPageSize(punkte, QPageSize::Point, QString(), QPageSize::ExactMatch),
                                  QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
    zeichne(pdf);
  }
  return daten;
}

// Why the file at `pfad` could not be written, in the user's words.
std::string Grund(const QString& pfad, const QString& fehler) {
  const QFileInfo datei(pfad);
  const QFileInfo ordner(datei.absolutePath());
  QString warum;
  if (!ordner.isDir())
    warum = "Das Verzeichnis " + QDir::toNativeSeparators(ordner.absoluteFilePath()) + " existiert nicht.";
  else if (datei.isDir())
    warum = "Unter diesem Namen steht ein Verzeichnis.";
  else if (datei.exists() && !datei.isWritable())
    warum = "Die Datei ist schreibgeschützt.";
  else if (!ordner.isWritable())
    warum = "Das Verzeichnis ist schreibgeschützt.";
  else
    warum = fehler;
  return ("Das Bildfile " + QDir::toNativeSeparators(pfad) + " kann nicht geschrieben werden.\r\n" + warum)
      .toStdString();
}

bool Schreiben(const std::string& pfad, const QByteArray& daten, std::string& grund) {
  const QString name = Q(pfad);
  if (daten.isEmpty()) {
    grund = Grund(name, "Das Bild ließ sich nicht erzeugen.");
    return false;
  }
  QSaveFile datei(name);
  if (!datei.open(QIODevice::WriteOnly) || datei.write(daten) != daten.size() || !datei.commit()) {
    grund = Grund(name, datei.errorString());
    return false;
  }
  grund.clear();
  return true;
}

// One printed page: the title, the picture's place in its proportions, the note.
template <class Maler>
bool Seite(QPrinter& drucker, const QString& titel, const QString& hinweis, QSizeF bildGroesse,
           const std::function<void(Maler&, const QRectF&)>& zeichne) {
  Maler maler;
  if (!maler.begin(&drucker)) return false;
  const QRect seite = maler.viewport();
  QFont schrift("Helvetica", 14, QFont::Bold);
  maler.setFont(schrift);
  const int zeile = maler.fontMetrics().height();
  int oben = seite.top(), unten = seite.bottom() + 1;
  if (!titel.isEmpty()) {
    maler.drawText(QRect(seite.left(), oben, seite.width(), zeile), Qt::AlignCenter, titel);
    oben += 2 * zeile;
  }
  if (!hinweis.isEmpty()) unten -= 2 * zeile;
  const QRectF platz(seite.left(), oben, seite.width(), unten - oben);
  if (bildGroesse.isEmpty()) bildGroesse = platz.size();
  const QSizeF passend = bildGroesse.scaled(platz.size(), Qt::KeepAspectRatio);
  const QRectF ziel(platz.left() + (platz.width() - passend.width()) / 2, platz.top(), passend.width(),
                    passend.height());
  zeichne(maler, ziel);
  if (!hinweis.isEmpty()) {
    schrift.setPointSize(11);
    maler.setFont(schrift);
    maler.drawText(QRectF(seite.left(), ziel.bottom() + zeile / 2.0, seite.width(), 2 * zeile),
                   Qt::AlignCenter, hinweis);
  }
  return maler.end();
}

} // namespace

QImage Bild2D(const Diagramm2DFlaeche& d, QSize groesse) {
  groesse = Groesse(d, groesse);
  QCustomPlot* plot = d.Plot();
  QImage bild = plot->toPixmap(groesse.width(), groesse.height()).toImage();
  plot->replot(QCustomPlot::rpQueuedReplot);
  return bild;
}

QByteArray Svg2D(const Diagramm2DFlaeche& d, QSize groesse) {
  groesse = Groesse(d, groesse);
  QByteArray daten;
  QBuffer puffer(&daten);
  puffer.open(QIODevice::WriteOnly);
  QSvgGenerator svg;
  svg.setOutputDevice(&puffer);
  svg.setSize(groesse);
  svg.setViewBox(QRect(QPoint(0, 0), groesse));
  svg.setResolution(Aufloesung(d));
  svg.setTitle("QUOR-6");
  QCPPainter maler;
  if (!maler.begin(&svg)) return {};
  ZeichneVektoren(d.Plot(), maler, groesse);
  return MitPixelGroesse(daten, groesse);
}

QByteArray Pdf2D(const Diagramm2DFlaeche& d, QSize groesse) {
  groesse = Groesse(d, groesse);
  bool ok = false;
  const QByteArray daten = PdfSeite(groesse, Aufloesung(d), [&](QPdfWriter& pdf) {
    QCPPainter maler;
    if (!maler.begin(&pdf)) return;
    ZeichneVektoren(d.Plot(), maler, groesse);
    ok = true;
  });
  return ok ? daten : QByteArray();
}

bool Bildfile2D(const Diagramm2DFlaeche& d, const std::string& pfad, BildFormat f, QSize groesse,
                std::string& grund) {
  switch (f) {
  case BildFormat::PNG:
    return Schreiben(pfad, ImageBytes(Bild2D(d, groesse), "PNG"), grund);
  case BildFormat::BMP:
    return Schreiben(pfad, ImageBytes(Bild2D(d, groesse).convertToFormat(QImage::Format_RGB32), "BMP"),
                     grund);
  case BildFormat::SVG:
    return Schreiben(pfad, Svg2D(d, groesse), grund);
  case BildFormat::PDF:
    return Schreiben(pfad, Pdf2D(d, groesse), grund);
  }
  return false;
}

bool Bildfile3D(const QImage& bild, const std::string& pfad, BildFormat f, std::string& grund) {
  if (bild.isNull()) {
    grund = "Das 3D-Diagramm kann hier nicht gezeichnet werden (keine OpenGL-Anzeige).";
    return false;
  }
  QByteArray daten;
  switch (f) {
  case BildFormat::PNG:
    daten = ImageBytes(bild, "PNG");
    break;
  case BildFormat::BMP:
    daten = ImageBytes(bild.convertToFormat(QImage::Format_RGB32), "BMP");
    break;
  case BildFormat::SVG: {
    QBuffer puffer(&daten);
    puffer.open(QIODevice::WriteOnly);
    QSvgGenerator svg;
    svg.setOutputDevice(&puffer);
    svg.setSize(bild.size());
    svg.setViewBox(QRect(QPoint(0, 0), bild.size()));
    svg.setTitle("QUOR-6");
    QPainter maler;
    if (maler.begin(&svg)) {
      maler.drawImage(QPoint(0, 0), bild);
      maler.end();
    }
    daten = MitPixelGroesse(daten, bild.size());
    break;
  }
  case BildFormat::PDF:
    daten = PdfSeite(bild.size(), BildschirmDpi(), [&](QPdfWriter& pdf) {
      QPainter maler;
      if (maler.begin(&pdf)) maler.drawImage(QPoint(0, 0), bild);
    });
    break;
  }
  return Schreiben(pfad, daten, grund);
}

std::unique_ptr<QMimeData> Zwischenablage2D(const Diagramm2DFlaeche& d, bool vektor, QSize groesse) {
  auto daten = std::make_unique<QMimeData>();
  daten->setImageData(Bild2D(d, groesse));
  if (vektor) daten->setData("image/svg+xml", Svg2D(d, groesse));
  return daten;
}

std::unique_ptr<QMimeData> Zwischenablage3D(const QImage& bild) {
  if (bild.isNull()) return nullptr;
  auto daten = std::make_unique<QMimeData>();
  daten->setImageData(bild);
  return daten;
}

bool InZwischenablage(std::unique_ptr<QMimeData> daten) {
  if (!daten) return false;
  QGuiApplication::clipboard()->setMimeData(daten.release()); // the clipboard takes it over
  return true;
}

std::unique_ptr<QPrinter> DiagrammDrucker(QWidget* eltern, const QString& dokument, const QString& pdfDatei) {
  auto drucker = std::make_unique<QPrinter>(QPrinter::HighResolution);
  drucker->setDocName(dokument);
  drucker->setPageOrientation(QPageLayout::Landscape);
  drucker->setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
  if (!pdfDatei.isEmpty()) {
    drucker->setOutputFormat(QPrinter::PdfFormat);
    drucker->setOutputFileName(pdfDatei);
    return drucker;
  }
  QPrintDialog dialog(drucker.get(), eltern);
  dialog.setWindowTitle("Drucken");
  if (dialog.exec() != QDialog::Accepted) return nullptr;
  return drucker;
}

bool DruckeBildSeite(QPrinter& drucker, const QString& titel, const QString& hinweis, QSizeF bildGroesse,
                     const std::function<void(QPainter&, const QRectF&)>& zeichne) {
  return Seite<QPainter>(drucker, titel, hinweis, bildGroesse, zeichne);
}

bool Drucke2D(QPrinter& drucker, const Diagramm2DFlaeche& d) {
  const QSize groesse = Groesse(d, {});
  // The chart is laid out in pixels whose texts the screen measured. On a device of the screen's
  // resolution the fonts take the same room, and the window maps the chart's pixels onto the page;
  // at the printer's own resolution they would outgrow the layout.
  drucker.setResolution(Aufloesung(d));
  return Seite<QCPPainter>(drucker, {}, {}, groesse, [&](QCPPainter& maler, const QRectF& ziel) {
    maler.save();
    maler.setViewport(ziel.toRect());
    maler.setWindow(QRect(QPoint(0, 0), groesse));
    maler.setMode(QCPPainter::pmVectorized);
    d.Plot()->toPainter(&maler, groesse.width(), groesse.height());
    maler.restore();
    d.Plot()->replot(QCustomPlot::rpQueuedReplot);
  });
}

} // namespace quor::ui
