// Pictures of the diagram pages leaving the program: picture files, the clipboard and the printer.
// The 2D chart is drawn anew at the asked size, into SVG and PDF as vectors (curves as polylines,
// texts as text); the 3D chart gives a bitmap, which goes into a file or on a page as it is.
// Sizes are pixels of the screen; a PDF page of w x h pixels measures w x h at the screen's dots
// per inch (a chart of 960 x 720 pixels at 96 dpi is a page of 720 x 540 points).
#pragma once

#include "diagrams/diagramm_datei_befehle.h"

#include <QByteArray>
#include <QImage>
#include <QMimeData>
#include <QPrinter>
#include <QRectF>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>
#include <string>

class QPainter;
class QWidget;

namespace quor::ui {

class Diagramm2DFlaeche;

// The 2D chart on show, drawn at `groesse`: a bitmap, an SVG document and a one-page PDF document.
// The chart on the screen stays as it is. An empty size takes the chart's size on the screen.
QImage Bild2D(const Diagramm2DFlaeche& d, QSize groesse = {});
QByteArray Svg2D(const Diagramm2DFlaeche& d, QSize groesse = {});
QByteArray Pdf2D(const Diagramm2DFlaeche& d, QSize groesse = {});

// Writes the 2D chart into a picture file of format `f`. False, with the reason in German in
// `grund`, when the file cannot be written.
bool Bildfile2D(const Diagramm2DFlaeche& d, const std::string& pfad, BildFormat f, QSize groesse,
                std::string& grund);

// Writes a picture of the 3D chart (Diagramm3DFlaeche::Bild) into a file: PNG and BMP as it is,
// PDF as the picture on a page of its size, SVG with the picture inside. A null picture (the chart
// cannot draw here) gives false with the reason.
bool Bildfile3D(const QImage& bild, const std::string& pfad, BildFormat f, std::string& grund);

// What the clipboard takes of the 2D chart: the bitmap, and with `vektor` the SVG document under
// "image/svg+xml" beside it (programs that read no SVG take the bitmap).
std::unique_ptr<QMimeData> Zwischenablage2D(const Diagramm2DFlaeche& d, bool vektor, QSize groesse = {});
// ... and of a 3D picture: the bitmap; null for a null picture.
std::unique_ptr<QMimeData> Zwischenablage3D(const QImage& bild);
// Puts the data on the system's clipboard; false for none.
bool InZwischenablage(std::unique_ptr<QMimeData> daten);

// The printer of a diagram page: high resolution, landscape, margins of 15 mm, the document named
// `dokument`. It writes the PDF file `pdfDatei` when one is given, else the print dialog chooses
// the printer; null when the dialog was cancelled.
std::unique_ptr<QPrinter> DiagrammDrucker(QWidget* eltern, const QString& dokument,
                                          const QString& pdfDatei = {});

// One printed page of a picture: the title above (none when empty), the picture as large as the
// rest of the page allows in the proportions of `bildGroesse`, centred across, and a note below it
// (none when empty). `zeichne` draws the picture into the rectangle it gets.
bool DruckeBildSeite(QPrinter& drucker, const QString& titel, const QString& hinweis, QSizeF bildGroesse,
                     const std::function<void(QPainter&, const QRectF&)>& zeichne);

// The 2D chart on one page, as vectors with real text, in the proportions it has on the screen (its
// title is part of the chart). The printer is set to the screen's resolution for it, which only
// changes its units: the chart's texts keep the room its layout gave them.
bool Drucke2D(QPrinter& drucker, const Diagramm2DFlaeche& d);

} // namespace quor::ui
