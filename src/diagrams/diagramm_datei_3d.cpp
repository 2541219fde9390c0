// The .oc3 file of a 3D page: writer and checked reader.
#include "diagrams/diagramm3d_art.h"
#include "diagrams/diagramm_datei_intern.h"

#include <cmath>

namespace quor {

namespace {

using datei::Leser;
using datei::Pfad;

// Limits a file may ask of the grid and the iso-lines: the page's own.
constexpr int GroessteAufloesung = 400;
constexpr int GroessteIsoAnzahl = 1000;

void Paar(JsonSchreiber& j, const char* name, double a, double b) {
  j.Schluessel(name);
  j.BeginListe(true);
  j.Zahl(a);
  j.Zahl(b);
  j.EndeListe();
}

void Zahlen(JsonSchreiber& j, const char* name, const std::vector<double>& z) {
  j.Schluessel(name);
  j.BeginListe(true);
  for (const double x : z) j.Zahl(x); // a cell without value is written as null
  j.EndeListe();
}

void SchreibeGitter(JsonSchreiber& j, const Gitter3D& g) {
  j.BeginObjekt();
  Zahlen(j, "x", g.X);
  Zahlen(j, "y", g.Y);
  j.Schluessel("z");
  j.BeginListe();
  for (std::size_t r = 0; r < g.Z.size(); ++r) {
    std::vector<double> zeile = g.Z[r];
    for (std::size_t i = 0; i < zeile.size(); ++i)
      if (r >= g.Gueltig.size() || i >= g.Gueltig[r].size() || !g.Gueltig[r][i]) zeile[i] = std::nan("");
    j.BeginListe(true);
    for (const double x : zeile) j.Zahl(x);
    j.EndeListe();
  }
  j.EndeListe();
  j.EndeObjekt();
}

void LeseGitter(Leser& l, const JsonWert& o, Gitter3D& g) {
  const std::string wo = "gitter";
  const JsonWert* x = l.Liste(o, "x", wo, true);
  const JsonWert* y = l.Liste(o, "y", wo, true);
  const JsonWert* z = l.Liste(o, "z", wo, true);
  if (!x || !y || !z || !l.Ok()) return;
  l.Zahlen(*x, g.X, Pfad(wo, "x"));
  l.Zahlen(*y, g.Y, Pfad(wo, "y"));
  if (!l.Ok()) return;
  if (g.X.size() < 2 || g.Y.size() < 2 || g.X.size() > GroessteAufloesung + 1 ||
      g.Y.size() > GroessteAufloesung + 1)
    return l.Falsch(wo, "das Gitter braucht 2 bis " + std::to_string(GroessteAufloesung + 1) + " Punkte je Achse");
  if (z->liste.size() != g.Y.size()) return l.Falsch(Pfad(wo, "z"), "eine Zeile je y-Wert erwartet");
  for (std::size_t r = 0; r < z->liste.size() && l.Ok(); ++r) {
    const std::string zeileWo = Pfad(Pfad(wo, "z"), r);
    if (!z->liste[r].IstListe()) return l.Falsch(zeileWo, "falscher Typ");
    std::vector<double> zeile;
    l.Zahlen(z->liste[r], zeile, zeileWo, true);
    if (l.Ok() && zeile.size() != g.X.size()) return l.Falsch(zeileWo, "ein Wert je x-Wert erwartet");
    std::vector<bool> gueltig(zeile.size());
    for (std::size_t i = 0; i < zeile.size(); ++i) gueltig[i] = std::isfinite(zeile[i]);
    g.Z.push_back(std::move(zeile));
    g.Gueltig.push_back(std::move(gueltig));
  }
}

void LeseAnzeige(Leser& l, const JsonWert& o, Anzeige3D& a) {
  const std::string wo = "anzeige";
  l.Bool(o, "massiv", a.Massiv, wo);
  l.Bool(o, "transparent", a.Transparent, wo);
  l.Bool(o, "schattiert", a.Schattiert, wo);
  l.Bool(o, "netz", a.Netz, wo);
  l.Bool(o, "gitterebenen", a.Gitterebenen, wo);
  l.Bool(o, "zonen", a.Zonen, wo);
  l.Bool(o, "hoehenlinien", a.Hoehenlinien, wo);
}

void LeseAnsicht(Leser& l, const JsonWert& o, Ansicht3D& a) {
  const std::string wo = "ansicht";
  l.Zahl(o, "horizontal", a.Horizontal, wo);
  l.Zahl(o, "vertikal", a.Vertikal, wo);
  l.Zahl(o, "zoom", a.Zoom, wo);
  if (l.Ok() && !(a.Horizontal >= -180 && a.Horizontal <= 180 && a.Vertikal >= -90 && a.Vertikal <= 90 &&
                  a.Zoom > 0 && a.Zoom <= 10000))
    l.Falsch(wo, "Drehung oder Zoom außerhalb ihrer Grenzen");
}

} // namespace

std::string SchreibeOC3(const Diagramm3DDatei& d) {
  const Graph3DZustand& z = d.Zustand;
  JsonSchreiber j;
  j.BeginObjekt();
  datei::SchreibeKopf(j, "3D", d.Herkunft);
  j.Feld("flaeche", z.Art);
  j.Feld("reales_verhalten", z.Reales);
  j.Schluessel("achsen");
  j.BeginObjekt();
  Paar(j, "x", z.Bereich.xMin, z.Bereich.xMax);
  Paar(j, "y", z.Bereich.yMin, z.Bereich.yMax);
  Paar(j, "z", z.Bereich.zMin, z.Bereich.zMax);
  j.EndeObjekt();
  j.Schluessel("grenzen");
  j.BeginObjekt();
  Paar(j, "p", z.Satz.pMin, z.Satz.pMax);
  Paar(j, "T", z.Satz.TMin, z.Satz.TMax);
  Paar(j, "v", z.Satz.vMin, z.Satz.vMax);
  Paar(j, "funktion", z.Satz.fMin, z.Satz.fMax);
  j.EndeObjekt();
  j.Schluessel("aufloesung");
  j.BeginListe(true);
  j.Ganz(z.NX);
  j.Ganz(z.NY);
  j.EndeListe();
  j.Schluessel("anzeige");
  j.BeginObjekt();
  j.Feld("massiv", z.Anzeige.Massiv);
  j.Feld("transparent", z.Anzeige.Transparent);
  j.Feld("schattiert", z.Anzeige.Schattiert);
  j.Feld("netz", z.Anzeige.Netz);
  j.Feld("gitterebenen", z.Anzeige.Gitterebenen);
  j.Feld("zonen", z.Anzeige.Zonen);
  j.Feld("hoehenlinien", z.Anzeige.Hoehenlinien);
  j.EndeObjekt();
  j.Feld("kritischer_punkt", z.KritischerPunkt);
  j.Schluessel("isolinien");
  j.BeginObjekt();
  j.Feld("z", z.IsoAnzahl[0]);
  j.Feld("zeilen", z.IsoAnzahl[1]);
  j.Feld("spalten", z.IsoAnzahl[2]);
  j.Feld("zeilen_halbe", z.HalbeT);
  j.Feld("spalten_halbe", z.HalbeV);
  j.EndeObjekt();
  j.Schluessel("ansicht");
  j.BeginObjekt();
  j.Feld("horizontal", z.Ansicht.Horizontal);
  j.Feld("vertikal", z.Ansicht.Vertikal);
  j.Feld("zoom", z.Ansicht.Zoom);
  j.EndeObjekt();
  j.Schluessel("gitter");
  SchreibeGitter(j, z.Gitter);
  j.EndeObjekt();
  return j.Ergebnis();
}

std::optional<Diagramm3DDatei> LeseOC3(std::string_view text, std::string& fehler) {
  JsonErgebnis gelesen;
  const JsonWert* w = datei::Wurzel(text, gelesen, fehler);
  if (!w) return std::nullopt;
  Leser l;
  Diagramm3DDatei d;
  Graph3DZustand& z = d.Zustand;
  l.Kopf(*w, "3D", d.Herkunft);
  l.Ganz(*w, "flaeche", z.Art, art3d::Druck, art3d::ExergieH, "", true);
  l.Bool(*w, "reales_verhalten", z.Reales, "");
  if (const JsonWert* a = l.Objekt(*w, "achsen", "", true)) {
    l.Bereich(*a, "x", z.Bereich.xMin, z.Bereich.xMax, "achsen");
    l.Bereich(*a, "y", z.Bereich.yMin, z.Bereich.yMax, "achsen");
    l.Bereich(*a, "z", z.Bereich.zMin, z.Bereich.zMax, "achsen");
  }
  if (const JsonWert* g = l.Objekt(*w, "grenzen", "", true)) {
    l.Bereich(*g, "p", z.Satz.pMin, z.Satz.pMax, "grenzen");
    l.Bereich(*g, "T", z.Satz.TMin, z.Satz.TMax, "grenzen");
    l.Bereich(*g, "v", z.Satz.vMin, z.Satz.vMax, "grenzen");
    l.Bereich(*g, "funktion", z.Satz.fMin, z.Satz.fMax, "grenzen");
  }
  if (const JsonWert* a = l.Liste(*w, "aufloesung", "")) {
    std::vector<double> n;
    l.Zahlen(*a, n, "aufloesung");
    if (l.Ok() && (n.size() != 2 || n[0] != std::floor(n[0]) || n[1] != std::floor(n[1]) || n[0] < 1 ||
                   n[1] < 1 || n[0] > GroessteAufloesung || n[1] > GroessteAufloesung))
      l.Falsch("aufloesung", "keine zwei ganzen Zahlen von 1 bis " + std::to_string(GroessteAufloesung));
    if (l.Ok()) z.NX = static_cast<int>(n[0]), z.NY = static_cast<int>(n[1]);
  }
  if (const JsonWert* a = l.Objekt(*w, "anzeige", "")) LeseAnzeige(l, *a, z.Anzeige);
  l.Bool(*w, "kritischer_punkt", z.KritischerPunkt, "");
  if (const JsonWert* i = l.Objekt(*w, "isolinien", "")) {
    l.Ganz(*i, "z", z.IsoAnzahl[0], 0, GroessteIsoAnzahl, "isolinien");
    l.Ganz(*i, "zeilen", z.IsoAnzahl[1], 0, GroessteIsoAnzahl, "isolinien");
    l.Ganz(*i, "spalten", z.IsoAnzahl[2], 0, GroessteIsoAnzahl, "isolinien");
    l.Bool(*i, "zeilen_halbe", z.HalbeT, "isolinien");
    l.Bool(*i, "spalten_halbe", z.HalbeV, "isolinien");
  }
  if (const JsonWert* a = l.Objekt(*w, "ansicht", "")) LeseAnsicht(l, *a, z.Ansicht);
  if (const JsonWert* g = l.Objekt(*w, "gitter", "", true)) LeseGitter(l, *g, z.Gitter);
  if (!l.Ok()) {
    fehler = l.Fehler();
    return std::nullopt;
  }
  return d;
}

} // namespace quor
