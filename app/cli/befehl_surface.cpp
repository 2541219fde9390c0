// surface: one surface of the 3D diagram as the page computes it: the title and axis texts in the
// displayed units, the standard ranges (or those of the command line), then the grid.
#include "cli/ausgabe.h"
#include "cli/befehle.h"
#include "cli/fehler.h"
#include "diagrams/diagramm3d_art.h"
#include "diagrams/graph3d.h"
#include "diagrams/kurven_groessen.h"
#include "engine/eos_zeilen.h"

#include <algorithm>
#include <ostream>

namespace quor::cli {

namespace {

constexpr int StandardSchritte = 60;

// Only p(v, T) and T(v, p) of a cubic EOS may draw the S-curves; --real asks for the saturation plane.
bool RealesVerhalten(const ProjectState& s, int16_t art, bool real) {
  if ((art != art3d::Druck && art != art3d::Temperatur) || !eos::KubischGewaehlt(s.Modell)) return true;
  return real;
}

Bereich3D Grenzen(const Aufruf& a, const ProjectState& s, int16_t art, bool reales) {
  Bereich3D b = IniStandardBereich3D(s, art, reales);
  if (a.XBereich) b.xMin = (*a.XBereich)[0], b.xMax = (*a.XBereich)[1];
  if (a.YBereich) b.yMin = (*a.YBereich)[0], b.yMax = (*a.YBereich)[1];
  if (a.ZBereich) b.zMin = (*a.ZBereich)[0], b.zMax = (*a.ZBereich)[1];
  return b;
}

bool HatWert(const Gitter3D& g) {
  return std::any_of(g.Gueltig.begin(), g.Gueltig.end(), [](const std::vector<bool>& zeile) {
    return std::find(zeile.begin(), zeile.end(), true) != zeile.end();
  });
}

void JsonAusgabe(std::ostream& aus, int16_t art, const Texte3D& t, const Gitter3D& g,
                 const std::vector<Meldung>& m) {
  JsonSchreiber j;
  j.BeginObjekt();
  j.Feld("art", art);
  j.Feld("title", t.Titel);
  j.Feld("x_text", t.X);
  j.Feld("y_text", t.Y);
  j.Feld("z_text", t.Z);
  for (const auto& [name, werte] : {std::pair{"x", &g.X}, {"y", &g.Y}}) {
    j.Schluessel(name);
    j.BeginListe(true);
    for (const double x : *werte)
      j.Zahl(x);
    j.EndeListe();
  }
  // z[j][i] over x[i], y[j]; the heights are single precision.
  j.Schluessel("z");
  j.BeginListe();
  for (std::size_t zeile = 0; zeile < g.Z.size(); ++zeile) {
    j.BeginListe(true);
    for (std::size_t i = 0; i < g.Z[zeile].size(); ++i)
      g.Gueltig[zeile][i] ? j.Zahl(static_cast<float>(g.Z[zeile][i])) : j.Null();
    j.EndeListe();
  }
  j.EndeListe();
  j.Schluessel("messages");
  MeldungenJson(j, m);
  j.EndeObjekt();
  aus << j.Ergebnis();
}

void TextAusgabe(std::ostream& aus, const Texte3D& t, const Gitter3D& g) {
  aus << t.Titel << "\n"
      << "x: " << t.X << "\n"
      << "y: " << t.Y << "\n"
      << "z: " << t.Z << "\n";
  for (std::size_t zeile = 0; zeile < g.Z.size(); ++zeile) {
    for (std::size_t i = 0; i < g.Z[zeile].size(); ++i) {
      aus << KurzText(g.X[i]) << " " << KurzText(g.Y[zeile]) << " ";
      aus << (g.Gueltig[zeile][i] ? KurzText(static_cast<float>(g.Z[zeile][i])) : "-") << "\n";
    }
    aus << "\n";
  }
}

} // namespace

int BefehlSurface(Sitzung& z, std::ostream& aus, std::ostream& fehler) {
  const Aufruf& a = z.aufruf;
  z.DatenbankOeffnen();
  z.StoffUndModelle();
  ProjectState& s = z.s;
  if (s.Stoff.TKrit < 1e-6 || s.Stoff.pKrit < 1e-6)
    throw CliFehler(ExitRechnung, "the substance has no critical point");
  const auto art = static_cast<int16_t>(a.Flaeche);
  SetzeEinheiten(s, z.ui);
  // The energy unit as the options window sets it: per R*T takes the preset temperature.
  s.Einheiten.EnergieFaktor = kurven::EnergieFaktorBeiT(s, s.Einheiten.TVorgabe);
  const bool reales = RealesVerhalten(s, art, a.Real);
  const Bereich3D b = Grenzen(a, s, art, reales);
  const Gitter3D g =
      FlaecheBerechnen(s, art, a.NX.value_or(StandardSchritte), a.NY.value_or(StandardSchritte), b, reales);
  const Texte3D t = TexteVon(art, s.Einheiten);

  const auto meldungen = Meldungen(z.ui, z.Gedruckt, z.ui.protokoll.size());
  z.Gedruckt = z.ui.protokoll.size();
  const bool ok = HatWert(g);
  if (a.Json) {
    JsonAusgabe(aus, art, t, g, meldungen);
  } else {
    MeldungenSchreiben(fehler, meldungen);
    TextAusgabe(aus, t, g);
  }
  if (!ok) fehler << "quor-cli: the surface has no point with a value\n";
  return ok ? ExitOK : ExitRechnung;
}

} // namespace quor::cli
