// The .oc2 file of a 2D page: writer and checked reader.
#include "diagrams/diagramm_datei_intern.h"

#include <array>
#include <cmath>
#include <set>

namespace quor {

namespace {

using datei::Leser;
using datei::Pfad;

constexpr std::array<const char*, 5> LinienNamen{"durchgezogen", "strich", "punkt", "strichpunkt", "keine"};
constexpr std::array<const char*, 8> SymbolNamen{"keines", "kreis",  "quadrat", "dreieck",
                                                 "kreuz",  "plus",   "raute",   "stern"};
constexpr std::array<const char*, 3> QuellenNamen{"xy_editor", "exp_daten", "fitting"};

template <std::size_t N, typename E> const char* Name(const std::array<const char*, N>& namen, E e) {
  const auto i = static_cast<std::size_t>(e);
  return i < N ? namen[i] : namen[0];
}

template <std::size_t N, typename E>
void Aufzaehlung(Leser& l, const JsonWert& o, const char* name, const std::array<const char*, N>& namen, E& e,
                 const std::string& wo) {
  std::string t;
  l.Text(o, name, t, wo);
  if (t.empty() || !l.Ok()) return;
  for (std::size_t i = 0; i < N; ++i)
    if (t == namen[i]) {
      e = static_cast<E>(i);
      return;
    }
  l.Falsch(Pfad(wo, name), "unbekannter Wert \"" + t + "\"");
}

// ----- writer -----

void SchreibeAuftrag(JsonSchreiber& j, const DiagrammAuftrag& a) {
  j.BeginObjekt();
  j.Feld("code", a.Code);
  j.Feld("klasse", a.Klasse);
  j.Feld("achsentag", a.Achsentag);
  j.Feld("achsentag_alt", a.AchsentagAlt);
  j.Feld("x_text", a.XText);
  j.Feld("y_text", a.YText);
  j.Feld("titel", a.Titel);
  j.Schluessel("x");
  j.BeginListe(true);
  j.Zahl(a.Xmin);
  j.Zahl(a.Xmax);
  j.EndeListe();
  j.Schluessel("y");
  j.BeginListe(true);
  j.Zahl(a.Ymin);
  j.Zahl(a.Ymax);
  j.EndeListe();
  j.EndeObjekt();
}

void SchreibeZahlen(JsonSchreiber& j, const char* name, const std::vector<double>& z) {
  j.Schluessel(name);
  j.BeginListe(true);
  for (const double x : z) j.Zahl(x);
  j.EndeListe();
}

void SchreibeText(JsonSchreiber& j, const Beschriftung2D& b) {
  j.BeginObjekt();
  j.Feld("text", b.Text);
  j.Feld("x", b.X);
  j.Feld("y", b.Y);
  j.Feld("farbe", datei::FarbText(b.Farbe));
  j.EndeObjekt();
}

void SchreibeReihe(JsonSchreiber& j, const Reihe2D& r) {
  j.BeginObjekt();
  j.Feld("name", r.Name);
  SchreibeZahlen(j, "x", r.X);
  SchreibeZahlen(j, "y", r.Y);
  j.Feld("farbe", datei::FarbText(r.Farbe));
  j.Feld("linie", Name(LinienNamen, r.Linie));
  j.Feld("breite", r.Breite);
  j.Feld("symbol", Name(SymbolNamen, r.Symbol));
  j.Feld("symbol_groesse", r.SymbolGroesse);
  j.Feld("sichtbar", r.Sichtbar);
  j.EndeObjekt();
}

void SchreibeMarke(JsonSchreiber& j, const Marke2D& m) {
  j.BeginObjekt();
  j.Feld("text", m.Text);
  j.Feld("x", m.X);
  j.Feld("y", m.Y);
  j.Feld("symbol", Name(SymbolNamen, m.Symbol));
  j.Feld("symbol_groesse", m.SymbolGroesse);
  j.Feld("farbe", datei::FarbText(m.Farbe));
  j.EndeObjekt();
}

void SchreibeKurve(JsonSchreiber& j, int platz, const Graph2DKurve& k) {
  j.BeginObjekt();
  j.Feld("platz", platz + 1);
  j.Feld("legende", k.Legende);
  j.Feld("farbe", datei::FarbText(k.Farbe));
  j.Feld("linie", Name(LinienNamen, k.Linie));
  j.Feld("breite", k.Breite);
  j.Feld("symbol", Name(SymbolNamen, k.Symbol));
  j.Feld("parameter_beschriften", k.ParameterBeschriften);
  j.Feld("konnode", k.Konnode);
  j.Feld("T", k.T);
  j.Feld("p", k.p);
  j.Feld("v", k.v);
  j.Schluessel("auftrag");
  SchreibeAuftrag(j, k.Auftrag);
  j.Schluessel("punkte");
  j.BeginListe();
  for (const Kurvenpunkt& p : k.Punkte) {
    j.BeginListe(true);
    j.Zahl(p.X);
    j.Zahl(p.Y);
    j.Zahl(p.Z);
    j.EndeListe();
  }
  j.EndeListe();
  j.EndeObjekt();
}

void SchreibeAchse(JsonSchreiber& j, const char* name, double min, double max, const std::string& titel,
                   const std::string& format, bool gitter) {
  j.Schluessel(name);
  j.BeginObjekt();
  j.Schluessel("bereich");
  j.BeginListe(true);
  j.Zahl(min);
  j.Zahl(max);
  j.EndeListe();
  j.Feld("titel", titel);
  j.Feld("format", format);
  j.Feld("gitter", gitter);
  j.EndeObjekt();
}

// ----- reader -----

void LeseAuftrag(Leser& l, const JsonWert& o, DiagrammAuftrag& a, const std::string& wo) {
  l.Ganz(o, "code", a.Code, -32768, 32767, wo, true);
  l.Ganz(o, "klasse", a.Klasse, -32768, 32767, wo);
  l.Text(o, "achsentag", a.Achsentag, wo);
  l.Text(o, "achsentag_alt", a.AchsentagAlt, wo);
  l.Text(o, "x_text", a.XText, wo);
  l.Text(o, "y_text", a.YText, wo);
  l.Text(o, "titel", a.Titel, wo);
  for (const char* achse : {"x", "y"}) {
    const JsonWert* w = l.Liste(o, achse, wo);
    if (!w) continue;
    std::vector<float> z;
    l.Zahlen(*w, z, Pfad(wo, achse));
    if (!l.Ok()) return;
    if (z.size() != 2) return l.Falsch(Pfad(wo, achse), "kein Paar [min, max]");
    (achse[0] == 'x' ? a.Xmin : a.Ymin) = z[0];
    (achse[0] == 'x' ? a.Xmax : a.Ymax) = z[1];
  }
}

void LeseText(Leser& l, const JsonWert& o, Beschriftung2D& b, const std::string& wo) {
  l.Text(o, "text", b.Text, wo);
  l.Zahl(o, "x", b.X, wo, true);
  l.Zahl(o, "y", b.Y, wo, true);
  l.Farbe(o, "farbe", b.Farbe, wo);
}

void LeseMarke(Leser& l, const JsonWert& o, Marke2D& m, const std::string& wo) {
  l.Text(o, "text", m.Text, wo);
  l.Zahl(o, "x", m.X, wo, true);
  l.Zahl(o, "y", m.Y, wo, true);
  Aufzaehlung(l, o, "symbol", SymbolNamen, m.Symbol, wo);
  l.Zahl(o, "symbol_groesse", m.SymbolGroesse, wo);
  l.Farbe(o, "farbe", m.Farbe, wo);
}

void LeseReihe(Leser& l, const JsonWert& o, Reihe2D& r, const std::string& wo) {
  l.Text(o, "name", r.Name, wo);
  const JsonWert* x = l.Liste(o, "x", wo, true);
  const JsonWert* y = l.Liste(o, "y", wo, true);
  if (x) l.Zahlen(*x, r.X, Pfad(wo, "x"));
  if (y) l.Zahlen(*y, r.Y, Pfad(wo, "y"));
  if (l.Ok() && r.X.size() != r.Y.size()) l.Falsch(wo, "x und y sind verschieden lang");
  l.Farbe(o, "farbe", r.Farbe, wo);
  Aufzaehlung(l, o, "linie", LinienNamen, r.Linie, wo);
  l.Zahl(o, "breite", r.Breite, wo);
  Aufzaehlung(l, o, "symbol", SymbolNamen, r.Symbol, wo);
  l.Zahl(o, "symbol_groesse", r.SymbolGroesse, wo);
  l.Bool(o, "sichtbar", r.Sichtbar, wo);
}

void LeseKurve(Leser& l, const JsonWert& o, int& platz, Graph2DKurve& k, const std::string& wo) {
  l.Ganz(o, "platz", platz, 1, MaxKurven, wo, true);
  --platz;
  l.Text(o, "legende", k.Legende, wo);
  l.Farbe(o, "farbe", k.Farbe, wo);
  Aufzaehlung(l, o, "linie", LinienNamen, k.Linie, wo);
  l.Zahl(o, "breite", k.Breite, wo);
  Aufzaehlung(l, o, "symbol", SymbolNamen, k.Symbol, wo);
  l.Bool(o, "parameter_beschriften", k.ParameterBeschriften, wo);
  l.Bool(o, "konnode", k.Konnode, wo);
  l.Zahl(o, "T", k.T, wo);
  l.Zahl(o, "p", k.p, wo);
  l.Zahl(o, "v", k.v, wo);
  if (const JsonWert* a = l.Objekt(o, "auftrag", wo)) LeseAuftrag(l, *a, k.Auftrag, Pfad(wo, "auftrag"));
  const JsonWert* punkte = l.Liste(o, "punkte", wo, true);
  if (!punkte || !l.Ok()) return;
  k.Punkte.reserve(punkte->liste.size());
  for (std::size_t i = 0; i < punkte->liste.size() && l.Ok(); ++i) {
    const std::string p = Pfad(Pfad(wo, "punkte"), i);
    if (!punkte->liste[i].IstListe()) return l.Falsch(p, "kein Punkt [x, y, z]");
    std::vector<float> z;
    l.Zahlen(punkte->liste[i], z, p);
    if (l.Ok() && z.size() != 3) return l.Falsch(p, "kein Punkt [x, y, z]");
    if (l.Ok()) k.Punkte.push_back({z[0], z[1], z[2]});
  }
  // Element 0 is the head, whose X counts the points after it.
  if (l.Ok() && (k.Punkte.empty() || k.Punkte[0].X != static_cast<float>(k.Punkte.size() - 1)))
    l.Falsch(Pfad(wo, "punkte"), "der Kopf zählt die Punkte nicht");
}

void LesePunktSatz(Leser& l, const JsonWert& o, Graph2DPunktSatz& ps, const std::string& wo) {
  l.Text(o, "legende", ps.Legende, wo);
  Aufzaehlung(l, o, "quelle", QuellenNamen, ps.Quelle, wo);
  l.Farbe(o, "farbe", ps.Farbe, wo);
  Aufzaehlung(l, o, "symbol", SymbolNamen, ps.Symbol, wo);
  const JsonWert* x = l.Liste(o, "x", wo, true);
  const JsonWert* y = l.Liste(o, "y", wo, true);
  if (x) l.Zahlen(*x, ps.X, Pfad(wo, "x"));
  if (y) l.Zahlen(*y, ps.Y, Pfad(wo, "y"));
  if (l.Ok() && ps.X.size() != ps.Y.size()) l.Falsch(wo, "x und y sind verschieden lang");
}

void LeseMarkeDesMenues(Leser& l, const JsonWert& o, Graph2DMarke& m, const std::string& wo) {
  l.Text(o, "art", m.Art, wo, true);
  if (const JsonWert* r = l.Objekt(o, "linie", wo)) LeseReihe(l, *r, m.Linie, Pfad(wo, "linie"));
  if (const JsonWert* t = l.Objekt(o, "text", wo)) LeseText(l, *t, m.Text.emplace(), Pfad(wo, "text"));
  if (const JsonWert* p = l.Objekt(o, "punkt", wo)) LeseMarke(l, *p, m.Punkt.emplace(), Pfad(wo, "punkt"));
}

// Each element of the list `name` of `o` read by `lesen` into a new element of `ziel`.
template <typename T, typename F>
void JedesElement(Leser& l, const JsonWert& o, const char* name, std::vector<T>& ziel, F lesen) {
  const JsonWert* liste = l.Liste(o, name, "");
  if (!liste) return;
  for (std::size_t i = 0; i < liste->liste.size() && l.Ok(); ++i) {
    const std::string wo = Pfad(name, i);
    if (!liste->liste[i].IstObjekt()) return l.Falsch(wo, "falscher Typ");
    ziel.emplace_back();
    lesen(liste->liste[i], ziel.back(), wo);
  }
}

void LeseAchse(Leser& l, const JsonWert& o, const char* name, double& min, double& max, std::string& format,
               bool& gitter) {
  const JsonWert* a = l.Objekt(o, name, "", true);
  if (!a) return;
  const std::string wo = Pfad("achsen", name);
  l.Bereich(*a, "bereich", min, max, wo);
  l.Text(*a, "format", format, wo);
  l.Bool(*a, "gitter", gitter, wo);
}

} // namespace

std::string SchreibeOC2(const Diagramm2DDatei& d) {
  const Graph2DZustand& z = d.Zustand;
  JsonSchreiber j;
  j.BeginObjekt();
  datei::SchreibeKopf(j, "2D", d.Herkunft);
  j.Schluessel("auftrag");
  SchreibeAuftrag(j, z.Auftrag);
  // The axes as shown: titles exchanged when the diagram is swapped.
  j.Schluessel("achsen");
  j.BeginObjekt();
  SchreibeAchse(j, "x", z.Bereich[0], z.Bereich[1], z.Gekippt ? z.Auftrag.YText : z.Auftrag.XText, z.Format[0],
                z.Gitter[0]);
  SchreibeAchse(j, "y", z.Bereich[2], z.Bereich[3], z.Gekippt ? z.Auftrag.XText : z.Auftrag.YText, z.Format[1],
                z.Gitter[1]);
  j.EndeObjekt();
  j.Schluessel("einstellung");
  j.BeginListe(true);
  for (const double x : z.Einstellung) j.Zahl(x);
  j.EndeListe();
  j.Feld("gekippt", z.Gekippt);
  j.Feld("legende", z.Legende);
  j.Feld("seitenfarbe", datei::FarbText(z.Seitenfarbe));
  j.Feld("farb_vorwahl", datei::FarbText(z.FarbVorwahl));
  j.Schluessel("kurven");
  j.BeginListe();
  for (const auto& [platz, kurve] : z.Kurven) SchreibeKurve(j, platz, kurve);
  j.EndeListe();
  j.Schluessel("punktsaetze");
  j.BeginListe();
  for (const Graph2DPunktSatz& ps : z.PunktSaetze) {
    j.BeginObjekt();
    j.Feld("legende", ps.Legende);
    j.Feld("quelle", Name(QuellenNamen, ps.Quelle));
    j.Feld("farbe", datei::FarbText(ps.Farbe));
    j.Feld("symbol", Name(SymbolNamen, ps.Symbol));
    SchreibeZahlen(j, "x", ps.X);
    SchreibeZahlen(j, "y", ps.Y);
    j.EndeObjekt();
  }
  j.EndeListe();
  j.Schluessel("marken");
  j.BeginListe();
  for (const Graph2DMarke& m : z.Marken) {
    j.BeginObjekt();
    j.Feld("art", m.Art);
    if (!m.Linie.X.empty()) {
      j.Schluessel("linie");
      SchreibeReihe(j, m.Linie);
    }
    if (m.Text) {
      j.Schluessel("text");
      SchreibeText(j, *m.Text);
    }
    if (m.Punkt) {
      j.Schluessel("punkt");
      SchreibeMarke(j, *m.Punkt);
    }
    j.EndeObjekt();
  }
  j.EndeListe();
  j.Schluessel("texte");
  j.BeginListe();
  for (const Beschriftung2D& b : z.Texte) SchreibeText(j, b);
  j.EndeListe();
  j.EndeObjekt();
  return j.Ergebnis();
}

std::optional<Diagramm2DDatei> LeseOC2(std::string_view text, std::string& fehler) {
  JsonErgebnis gelesen;
  const JsonWert* w = datei::Wurzel(text, gelesen, fehler);
  if (!w) return std::nullopt;
  Leser l;
  Diagramm2DDatei d;
  Graph2DZustand& z = d.Zustand;
  l.Kopf(*w, "2D", d.Herkunft);
  if (const JsonWert* a = l.Objekt(*w, "auftrag", "", true)) LeseAuftrag(l, *a, z.Auftrag, "auftrag");
  if (const JsonWert* achsen = l.Objekt(*w, "achsen", "", true)) {
    LeseAchse(l, *achsen, "x", z.Bereich[0], z.Bereich[1], z.Format[0], z.Gitter[0]);
    LeseAchse(l, *achsen, "y", z.Bereich[2], z.Bereich[3], z.Format[1], z.Gitter[1]);
  }
  z.Einstellung = z.Bereich;
  if (const JsonWert* e = l.Liste(*w, "einstellung", "")) {
    std::vector<double> v;
    l.Zahlen(*e, v, "einstellung");
    if (l.Ok() && (v.size() != 4 || !(v[0] < v[1]) || !(v[2] < v[3])))
      l.Falsch("einstellung", "keine Bereiche [xmin, xmax, ymin, ymax]");
    if (l.Ok()) std::copy(v.begin(), v.end(), z.Einstellung.begin());
  }
  l.Bool(*w, "gekippt", z.Gekippt, "");
  l.Bool(*w, "legende", z.Legende, "");
  l.Farbe(*w, "seitenfarbe", z.Seitenfarbe, "");
  l.Farbe(*w, "farb_vorwahl", z.FarbVorwahl, "");
  std::vector<Graph2DKurve> kurven;
  std::vector<int> plaetze;
  JedesElement(l, *w, "kurven", kurven, [&](const JsonWert& o, Graph2DKurve& k, const std::string& wo) {
    plaetze.push_back(0);
    LeseKurve(l, o, plaetze.back(), k, wo);
  });
  std::set<int> belegt;
  for (std::size_t i = 0; i < kurven.size() && l.Ok(); ++i) {
    if (!belegt.insert(plaetze[i]).second) l.Falsch(Pfad("kurven", i), "Platz doppelt belegt");
    z.Kurven.emplace_back(plaetze[i], std::move(kurven[i]));
  }
  JedesElement(l, *w, "punktsaetze", z.PunktSaetze,
               [&l](const JsonWert& o, Graph2DPunktSatz& ps, const std::string& wo) { LesePunktSatz(l, o, ps, wo); });
  if (l.Ok() && z.PunktSaetze.size() > static_cast<std::size_t>(MaxPunktSaetze))
    l.Falsch("punktsaetze", "mehr als " + std::to_string(MaxPunktSaetze) + " Punktsätze");
  JedesElement(l, *w, "marken", z.Marken,
               [&l](const JsonWert& o, Graph2DMarke& m, const std::string& wo) { LeseMarkeDesMenues(l, o, m, wo); });
  JedesElement(l, *w, "texte", z.Texte,
               [&l](const JsonWert& o, Beschriftung2D& b, const std::string& wo) { LeseText(l, o, b, wo); });
  if (!l.Ok()) {
    fehler = l.Fehler();
    return std::nullopt;
  }
  return d;
}

} // namespace quor
