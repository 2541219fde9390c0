#include "plot/plot_programm.h"

#include "cli/ausgabe.h"
#include "cli/fehler.h"
#include "cli/sitzung.h"
#include "gui/diagrams/diagramm2d_flaeche.h"
#include "gui/diagrams/diagramm3d_flaeche.h"
#include "gui/diagrams/diagramm_export.h"
#include "plot/plot_aufruf.h"
#include "plot/plot_zeichnen.h"

#include <QApplication>

#include <cstdlib>
#include <exception>
#include <memory>
#include <ostream>

namespace quor::plot {

namespace {

bool Gesetzt(const char* name) {
  const char* wert = std::getenv(name);
  return wert != nullptr && *wert != '\0';
}

// The 2D chart draws on the offscreen platform unless the user chose one. The 3D chart needs an
// OpenGL context, which that platform doesn't give: it takes the X11 display when there is one.
void PlattformWaehlen(const PlotAufruf& a) {
  const std::string plattform = Gesetzt("QT_QPA_PLATFORM") ? std::getenv("QT_QPA_PLATFORM") : "";
  if (a.Art == 0) {
    if (plattform.empty()) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    return;
  }
  if (plattform != "" && plattform != "offscreen" && plattform != "minimal") return;
  if (Gesetzt("DISPLAY")) {
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    return;
  }
  if (plattform.empty() && Gesetzt("WAYLAND_DISPLAY")) return;
  throw cli::CliFehler(cli::ExitRechnung,
                       "die 3D-Fläche braucht eine Anzeige mit OpenGL, und es gibt keine (DISPLAY ist nicht "
                       "gesetzt); ohne Bildschirm hilft ein virtueller: xvfb-run -a quor-plot ...");
}

// The toolkit's own notes (fonts, runtime folders) are no news for a script; its faults stay.
void QtMeldung(QtMsgType typ, const QMessageLogContext&, const QString& text) {
  if (typ == QtCriticalMsg || typ == QtFatalMsg) fprintf(stderr, "quor-plot: Qt: %s\n", qPrintable(text));
}

void Schreiben(cli::Sitzung& z, const PlotAufruf& a, std::ostream& fehler) {
  const QSize groesse(a.Breite, a.Hoehe);
  std::string grund;
  bool ok = false;
  if (a.Art == 0) {
    const Diagramm2D bild = Zeichne2D(z, a, fehler);
    // Laid out at the picture's size, so the legend finds its corner there.
    ui::Diagramm2DFlaeche flaeche;
    flaeche.setAttribute(Qt::WA_DontShowOnScreen);
    flaeche.resize(groesse);
    flaeche.show();
    flaeche.Zeige(bild);
    ok = ui::Bildfile2D(flaeche, a.Ziel, a.Format, groesse, grund);
  } else {
    const Flaeche3D bild = Zeichne3D(z, a, fehler);
    ui::Diagramm3DFlaeche flaeche;
    flaeche.resize(groesse);
    if (!flaeche.KannZeichnen())
      throw cli::CliFehler(cli::ExitRechnung, "die 3D-Fläche lässt sich hier nicht zeichnen: kein OpenGL auf "
                                              "der Plattform " +
                                                  QGuiApplication::platformName().toStdString());
    flaeche.Zeige(bild);
    ok = ui::Bildfile3D(flaeche.Bild(groesse), a.Ziel, a.Format, grund);
  }
  if (!ok) throw cli::Eingabefehler(cli::MitLF(grund));
}

} // namespace

int PlotAusfuehren(const std::vector<std::string>& argumente, std::ostream& aus, std::ostream& fehler) {
  std::unique_ptr<cli::Sitzung> z;
  try {
    PlotAufruf a = LesePlotAufruf(argumente);
    if (a.Hilfe) {
      aus << PlotHilfeText();
      return cli::ExitOK;
    }
    a.Ziel = cli::AbsoluterPfad(a.Ziel);
    PlattformWaehlen(a);
    qInstallMessageHandler(QtMeldung);
    int argc = 1;
    char name[] = "quor-plot";
    char* argv[] = {name, nullptr};
    QApplication app(argc, argv);
    z = std::make_unique<cli::Sitzung>(a.Global);
    z->DatenbankOeffnen();
    z->StoffUndModelle();
    MeldungenAusgeben(*z, fehler);
    Schreiben(*z, a, fehler);
    return cli::ExitOK;
  } catch (const cli::CliFehler& e) {
    if (z) MeldungenAusgeben(*z, fehler);
    fehler << "quor-plot: " << e.what() << "\n";
    return e.Code();
  } catch (const std::exception& e) {
    if (z) MeldungenAusgeben(*z, fehler);
    fehler << "quor-plot: interner Fehler: " << e.what() << "\n";
    return cli::ExitRechnung;
  }
}

} // namespace quor::plot
