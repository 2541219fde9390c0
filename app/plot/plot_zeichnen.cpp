#include "plot/plot_zeichnen.h"

#include "cli/ausgabe.h"
#include "cli/fehler.h"
#include "diagrams/diagramm_codes.h"
#include "diagrams/diagramm_datei_befehle.h"
#include "diagrams/graph2d.h"
#include "diagrams/graph3d.h"
#include "diagrams/katalog.h"
#include "diagrams/markierungen.h"

#include <array>
#include <sstream>

namespace quor::plot {

using cli::CliFehler;
using cli::Eingabefehler;

namespace {

// The option that gives the curve parameter of a family; null for the families without one.
const char* ParameterOption(int16_t klasse) {
  switch (klasse) {
  case klasse::Isotherme:
    return "--T";
  case klasse::Isobare:
    return "--p";
  case klasse::Isochore:
    return "--v";
  default:
    return nullptr;
  }
}

const std::vector<std::string>& Werte(const PlotAufruf& a, const std::string& option) {
  return option == "--T" ? a.T : option == "--p" ? a.p : a.v;
}

// The request of the code as a menu entry gets it from the catalogue, with the axis ranges of the
// command line in place of the standard ones.
DiagrammAuftrag Auftrag(cli::Sitzung& z, const PlotAufruf& a, std::ostream& fehler) {
  DiagrammAuftrag r;
  r.Code = static_cast<int16_t>(a.Code);
  if (Graf2D_Zentrale(z.s, z.ui, r, false).Folge == Graf2DFolge::Nichts) {
    MeldungenAusgeben(z, fehler);
    throw CliFehler(cli::ExitRechnung,
                    "das Diagramm " + std::to_string(a.Code) +
                        " lässt sich für diesen Stoff nicht öffnen (keine kritische Temperatur)");
  }
  if (a.XBereich) {
    r.Xmin = static_cast<float>((*a.XBereich)[0]);
    r.Xmax = static_cast<float>((*a.XBereich)[1]);
  }
  if (a.YBereich) {
    r.Ymin = static_cast<float>((*a.YBereich)[0]);
    r.Ymax = static_cast<float>((*a.YBereich)[1]);
  }
  return r;
}

// The curve parameters must be those of the code's family.
void ParameterPruefen(const PlotAufruf& a, const DiagrammAuftrag& r) {
  const char* noetig = ParameterOption(r.Klasse);
  const std::string code = "Code " + std::to_string(a.Code) + " (" + r.Titel + ")";
  for (const char* option : {"--T", "--p", "--v"}) {
    if (Werte(a, option).empty() || (noetig && std::string(option) == noetig)) continue;
    throw Eingabefehler(code + " nimmt kein " + option +
                        (noetig ? std::string("; sein Kurvenparameter ist ") + noetig : std::string()));
  }
  if (noetig && Werte(a, noetig).empty() && !a.Koexistenz && a.Punkte.empty())
    throw Eingabefehler(code + " braucht mindestens ein " + noetig + " (oder --coexistence, --points)");
}

std::string Text(double x) {
  std::ostringstream t;
  t.precision(17);
  t << x;
  return t.str();
}

} // namespace

void MeldungenAusgeben(cli::Sitzung& z, std::ostream& fehler) {
  std::vector<cli::Meldung> neu;
  for (std::size_t i = z.Gedruckt; i < z.ui.protokoll.size(); ++i) {
    const ui::Aufzeichnung& m = z.ui.protokoll[i];
    if (m.art != "Meldung") continue;
    bool schonDa = false;
    for (const cli::Meldung& n : neu)
      schonDa = schonDa || (n.titel == m.titel && n.text == m.text);
    if (!schonDa) neu.push_back({m.titel, m.text});
  }
  z.Gedruckt = z.ui.protokoll.size();
  cli::MeldungenSchreiben(fehler, neu);
}

Diagramm2D Zeichne2D(cli::Sitzung& z, const PlotAufruf& a, std::ostream& fehler) {
  ProjectState& s = z.s;
  const DiagrammAuftrag r = Auftrag(z, a, fehler);
  ParameterPruefen(a, r);
  frmQGraph2D seite(s, z.ui);
  seite.Neu(r);

  const char* option = ParameterOption(r.Klasse);
  if (option) {
    for (const std::string& wert : Werte(a, option))
      if (seite.ParameterEingabe(wert)) seite.cmdDraw();
  } else {
    seite.cmdDraw();
  }
  if (a.Koexistenz) {
    Markierungen marken(s, z.ui, seite);
    marken.mnuMarkKoex();
  }
  if (!a.Punkte.empty()) {
    z.ui.dateien.push_back(cli::AbsoluterPfad(a.Punkte));
    if (!mnuAddPunkte(s, z.ui, seite)) {
      MeldungenAusgeben(z, fehler);
      throw Eingabefehler("--points " + a.Punkte + ": keine Punkte geladen");
    }
  }
  MeldungenAusgeben(z, fehler);
  if (seite.KurvenAnzahl() == 0 && seite.PunktSaetze().empty())
    throw CliFehler(cli::ExitRechnung, "das Diagramm bleibt leer: keine Kurve gezeichnet");
  return seite.Bild();
}

Flaeche3D Zeichne3D(cli::Sitzung& z, const PlotAufruf& a, std::ostream& fehler) {
  frmGraph3D seite(z.s, z.ui);
  bool ok = seite.Neu(static_cast<int16_t>(a.Art));
  if (ok && (a.XBereich || a.YBereich)) {
    const Bereich3D& b = seite.Bereich();
    const std::array<double, 2> x = a.XBereich.value_or(std::array<double, 2>{b.xMin, b.xMax});
    const std::array<double, 2> y = a.YBereich.value_or(std::array<double, 2>{b.yMin, b.yMax});
    ok = seite.cmdCoord3({Text(x[0]), Text(x[1]), Text(y[0]), Text(y[1]), Text(b.zMin), Text(b.zMax)});
  }
  MeldungenAusgeben(z, fehler);
  if (!ok) throw CliFehler(cli::ExitRechnung, "die Fläche bleibt leer: kein Punkt berechnet");
  return seite.Bild();
}

} // namespace quor::plot
