#include "plot/plot_aufruf.h"

namespace quor::plot {

const char* PlotHilfeText() {
  return R"(Aufruf: quor-plot [globale Optionen] --code C [Kurven] --out DATEI [--size BxH]
        quor-plot [globale Optionen] --art A [--x A,B] [--y A,B] --out DATEI [--size BxH]

Schreibt ein Diagramm von QUOR-6 ohne Fenster in ein Bildfile (PNG, BMP, SVG oder PDF), für
Berichte und Skripte. Es zeichnet mit der Logik der Diagrammseiten: Stoffwahl und Modelle wie
quor-cli, das Diagramm des Katalogs, jede Kurve über das Parameterfeld und "Zeichnen", die
Koexistenzkurve über das Einfüge-Menü, Messpunkte wie "(Kurven)punkte vom File laden".

2D-Diagramm:
  --code C                der Diagramm-Code (wie quor-cli curve, z. B. 1 p-v, 3 T-v, 5 p-T)
  --T X, --p X, --v X     Parameter einer Kurve in den angezeigten Einheiten: T für Isothermen,
                          p für Isobaren, v für Isochoren; mehrmals angegeben, mehrere Kurven.
                          Codes ohne Parameter (Zweiphasengebiet, Datenbankfunktionen) zeichnen
                          ihre eine Kurve.
  --x A,B, --y A,B        Achsenbereiche in angezeigten Einheiten (";" trennt ebenfalls);
                          sonst die Standardbereiche des Diagramms
  --coexistence           dazu die Koexistenzkurve (Einfügen: Koexistenzkurve)
  --points DATEI.XY       dazu ein Punktsatz aus einer X-Y-Datei

3D-Fläche (braucht eine Anzeige mit OpenGL; ohne Bildschirm: xvfb-run -a quor-plot ...):
  --art A                 1 p(v, T), 2 v(p, T), 3 T(v, p), 4 cp(p, T), 5 u(p, T), 6 h(p, T),
                          7 s(p, T), 8 g(p, T), 9 Exergie von u, 10 Exergie von h;
                          p(v, T) und T(v, p) mit realem Verhalten
  --x A,B, --y A,B        Achsenbereiche der Fläche in angezeigten Einheiten

Bildfile:
  --out DATEI             .png oder .bmp (Bitmap), .svg oder .pdf (Vektor; eine 3D-Fläche
                          steht darin als Bitmap)
  --size BxH              Größe in Pixeln, je 100 bis 8000 (Vorgabe 1000x700); ein PDF hat
                          diese Größe bei der Auflösung des Bildschirms (96 dpi)

Globale Optionen (siehe quor-cli --help): --db, --substance (nötig), --eos, --vapour-pressure,
--hlv, --cp, --watson, --concept, --liquid-density, --energy-mode, --volume-mode, --reference,
--h-ref, --s-ref, --T-ref, --p-ref, --T-env, --p-env, --virial-b0, --virial-b1, --virial-b2.
  --help, -h              dieser Text

Meldungen des Programms stehen auf stderr.

Beispiel: das p-v-Diagramm von Propan mit Koexistenzkurve und drei Isothermen
  quor-plot --substance Propan --code 1 --coexistence --T 300 --T 340 --T 369 --out propan.svg

Exit-Codes: 0 Bildfile geschrieben, 1 nichts gezeichnet, 2 Fehler im Aufruf oder in der Eingabe
(auch ein --out, das sich nicht schreiben lässt).
)";
}

} // namespace quor::plot
