#include "diagrams/markierungen.h"

#include "core/zahl_lesen.h"
#include "core/zahlformat.h"
#include "diagrams/diagramm_codes.h"
#include "engine/eos_auswertung.h"
#include "engine/eos_zeilen.h"
#include "engine/korrelationen.h"
#include "engine/saettigung.h"

#include <cmath>
#include <limits>

namespace quor {

namespace {

const char* const TitelNichtMoeglich = "Ausführung nicht möglich";
const char* const PasstNicht = "Diese Markierung passt nicht zu den Achsen des Diagramms.";
const char* const NichtVerfuegbar = "Dieser Wert ist nicht verfügbar.";
const double NaN = std::numeric_limits<double>::quiet_NaN();

const RGBFarbe MarkenFarbe{96, 96, 96};

// An axis quantity as the curve engine's families share it (the inversion curves keep their own
// ranges only).
Groesse Schlicht(Groesse g) {
  if (g == Groesse::TInversion) return Groesse::T;
  if (g == Groesse::pInversion) return Groesse::p;
  if (g == Groesse::PVInversion) return Groesse::PV;
  return g;
}

// The first code of family `klasse` whose axes carry the same quantities as those of `code`.
int16_t ZwillingIn(int16_t code, int16_t klasse) {
  const KatalogZeile* z = KatalogZeileVon(code);
  if (!z) return 0;
  for (int c = 1; c < code::ErsteDatenbankfunktion; ++c) {
    const KatalogZeile* k = KatalogZeileVon(c);
    if (k && k->Klasse == klasse && Schlicht(k->X) == Schlicht(z->X) && Schlicht(k->Y) == Schlicht(z->Y))
      return static_cast<int16_t>(c);
  }
  return 0;
}

// The displayed value on an axis of quantity `achse` of the state (T, p, v): nothing when the axis
// shows none of them, NaN when a value the axis needs is missing.
std::optional<double> AufAchse(const ProjectState& s, Groesse achse, double T, double p, double v) {
  const EinheitenGruppe& e = s.Einheiten;
  auto da = [](double x) { return x > 1e-6 ? x : NaN; };
  switch (achse) {
  case Groesse::T:
    return da(T) * e.TFaktor;
  case Groesse::p:
    return da(p) * e.pFaktor;
  case Groesse::v:
    return da(v) * e.VolumenFaktor;
  case Groesse::Rho:
    return s.Stoff.MolMasse / da(v);
  case Groesse::PV:
    return da(p) * da(v) * e.pFaktor * e.VolumenFaktor;
  default:
    return std::nullopt;
  }
}

// The displayed value of a line mark of quantity `g` on an axis of quantity `achse`.
std::optional<double> MarkeAufAchse(const ProjectState& s, Groesse g, Groesse achse, double wert) {
  if (g == achse || (g == Groesse::v && achse == Groesse::Rho)) {
    const bool T = g == Groesse::T, p = g == Groesse::p;
    return AufAchse(s, achse, T ? wert : 0, p ? wert : 0, !T && !p ? wert : 0);
  }
  return std::nullopt;
}

} // namespace

int16_t KoexistenzZwilling(int16_t code) {
  return ZwillingIn(code, klasse::Koexistenz);
}

int16_t InversionsZwilling(int16_t code) {
  return ZwillingIn(code, klasse::Inversion);
}

Markierungen::Markierungen(ProjectState& s, ui::Oberflaeche& ui, frmQGraph2D& diagramm)
    : s_(s), ui_(ui), d_(diagramm) {}

bool Markierungen::Refuse(const std::string& text) {
  ui_.Meldung(text, TitelNichtMoeglich, ui::Symbol::Ausruf);
  return false;
}

bool Markierungen::Kubisch() const {
  return eos::IstKubisch(s_.Modell.EOSIndex);
}

// A curve of another code on the axes on show, with the parameters of the page's input.
bool Markierungen::Zeichne(int16_t code, int16_t klasse) {
  if (code == 0) return Refuse(PasstNicht);
  DiagrammAuftrag a = d_.RechenAuftrag();
  a.Code = code;
  a.Klasse = klasse;
  a.Titel = TitelVon(code, s_.Einheiten);
  const EinheitenGruppe& e = s_.Einheiten;
  return d_.cmdDraw(a, e.TVorgabe, e.pVorgabe, e.vVorgabe) == ZeichenErgebnis::Gezeichnet;
}

// ----- curves -----

bool Markierungen::mnuMarkKoex() {
  s_.Diagramm.Isohygre = 0;
  return Zeichne(KoexistenzZwilling(d_.Auftrag().Code), klasse::Koexistenz);
}

bool Markierungen::mnuMarkIsohygre() {
  if (!Kubisch()) return Refuse("Isohygren nur für kubische EOS möglich.");
  const int16_t code = KoexistenzZwilling(d_.Auftrag().Code);
  if (code == 0) return Refuse(PasstNicht);
  const std::optional<std::string> text = ui_.Eingabe("Dampfanteil x (0 ... 1) =", "Isohygre", "0.5");
  if (!text) return false;
  const ZahlErgebnis x = LeseZahl(*text);
  if (!x.ok || x.wert < 0 || x.wert > 1) {
    ui_.Meldung("Der Dampfanteil x muss zwischen 0 und 1 liegen.", "Hinweis", ui::Symbol::Ausruf);
    return false;
  }
  const double vorher = s_.Diagramm.Isohygre;
  s_.Diagramm.Isohygre = x.wert;
  const bool gezeichnet = Zeichne(code, klasse::Koexistenz);
  s_.Diagramm.Isohygre = vorher;
  return gezeichnet;
}

bool Markierungen::mnuMarkInversion() {
  if (!Kubisch()) return Refuse("Inversionskurve nur mit kubischer EOS möglich.");
  return Zeichne(InversionsZwilling(d_.Auftrag().Code), klasse::Inversion);
}

// The curve on show once more, through the two-phase region along its S-loop; its temperature is
// brought to two decimals first.
bool Markierungen::mnuMarkSKurve() {
  if (!Kubisch()) return Refuse("S-Kurve nur für kubische EOS möglich.");
  EinheitenGruppe& e = s_.Einheiten;
  e.TVorgabe = static_cast<float>(std::floor(static_cast<double>(e.TVorgabe) * 100 + 0.5) / 100);
  const DiagrammAuftrag& a = d_.Auftrag();
  s_.Optionen.SKurveOhneKonnode = a.Klasse == klasse::Isotherme || a.Klasse == klasse::Isobare;
  return Zeichne(a.Code, a.Klasse);
}

bool Markierungen::mnuMarkKonnode() {
  if (!Kubisch()) return Refuse("Konnode V-L nur für kubische EOS möglich");
  const DiagrammAuftrag& a = d_.Auftrag();
  const EinheitenGruppe& e = s_.Einheiten;
  const bool isochor = a.Klasse == klasse::Isochore;
  // The page's T and p are single values: they are compared in single precision.
  if ((a.Klasse == klasse::Isotherme || isochor) && e.TVorgabe >= static_cast<float>(s_.Stoff.TKrit))
    return Refuse("nur im Zweiphasengebiet V-L möglich (T < T(cr))");
  if (a.Klasse == klasse::Isobare && e.pVorgabe >= static_cast<float>(s_.Stoff.pKrit))
    return Refuse("nur im Zweiphasengebiet V-L möglich (p < p(cr))");
  // The critical isochor as the curve engine knows it: within a thousandth of the critical volume.
  const double vc = s_.EOS.vKritEOS;
  if (isochor && std::fabs(e.vVorgabe - vc) <= vc / 1000)
    return Refuse("nur im Zweiphasengebiet V-L möglich (v <> v(cr))");
  s_.Diagramm.KonnodeModus = true;
  const bool gezeichnet = Zeichne(a.Code, a.Klasse);
  s_.Diagramm.KonnodeModus = false;
  return gezeichnet;
}

bool Markierungen::mnuMarkHalbierende() {
  const KatalogZeile* z = KatalogZeileVon(d_.Auftrag().Code);
  const bool passt = z && Schlicht(z->X) == Groesse::T && z->Y == Groesse::Rho;
  return Zeichne(passt ? code::Durchmesser : int16_t{0}, klasse::Koexistenz);
}

// ----- lines at a value -----

// A line across the axes at `wert` (engine units): vertical on an X axis of its quantity,
// horizontal on a Y axis, its label a sixth of the range from the lower end of the other axis.
bool Markierungen::Linie(const std::string& art, Groesse g, double wert, const std::string& label) {
  const std::optional<double> x = MarkeAufAchse(s_, g, d_.AchseX(), wert);
  const std::optional<double> y = x ? std::nullopt : MarkeAufAchse(s_, g, d_.AchseY(), wert);
  if (!x && !y) return Refuse(PasstNicht);
  const double w = x ? *x : *y;
  if (!std::isfinite(w)) return Refuse(NichtVerfuegbar);
  const std::array<double, 4> b = d_.Bereich();
  Graph2DMarke m;
  m.Art = art;
  m.Linie.Farbe = MarkenFarbe;
  m.Linie.Linie = LinienArt::Strich;
  Beschriftung2D text{label, 0, 0, MarkenFarbe};
  if (x) {
    m.Linie.X = {w, w};
    m.Linie.Y = {b[2], b[3]};
    text.X = w, text.Y = b[2] + (b[3] - b[2]) / 6;
  } else {
    m.Linie.X = {b[0], b[1]};
    m.Linie.Y = {w, w};
    text.X = b[0] + (b[1] - b[0]) / 6, text.Y = w;
  }
  m.Text = text;
  d_.MarkeSetzen(m);
  return true;
}

// A value of the user in engine units; nothing when cancelled or not a positive number.
std::optional<double> Markierungen::Nutzerwert(const std::string& prompt, const std::string& titel) {
  const std::optional<std::string> text = ui_.Eingabe(prompt, titel, "");
  if (!text) return std::nullopt;
  const ZahlErgebnis z = LeseZahl(*text);
  if (!z.ok || !(z.wert > 0)) {
    ui_.Meldung("Ungültige Eingabe: \"" + *text + "\"\r\nBitte geben Sie eine positive Zahl ein.", "Hinweis",
                ui::Symbol::Ausruf);
    return std::nullopt;
  }
  return z.wert;
}

// Saturation by the concept of the model: the EOS under GLOBAL, the vapour-pressure equation
// otherwise; NaN without an equilibrium.
double Markierungen::SaettigungsTemperatur(double p) {
  if (!(p > 0) || (s_.Stoff.pKrit > 0 && p > s_.Stoff.pKrit)) return NaN;
  int16_t fehler = 0;
  double T = 0;
  if (s_.Modell.KonzeptGlobal && Kubisch()) {
    double imbalance = 0, A = 0, B = 0, start = 0;
    T = TLVbeiP(s_, p, imbalance, A, B, start, fehler);
  } else {
    T = TLV(s_, p, s_.Modell.DampfdruckIndex, false, fehler);
  }
  return fehler == 0 && T > 0 ? T : NaN;
}

double Markierungen::SaettigungsDruck(double T) {
  if (!(T > 0) || (s_.Stoff.TKrit > 0 && T > s_.Stoff.TKrit)) return NaN;
  int16_t fehler = 0;
  double p = 0;
  if (s_.Modell.KonzeptGlobal && Kubisch()) {
    double imbalance = 0, A = 0, B = 0;
    p = pLVbeiT(s_, T, imbalance, A, B, fehler);
  } else {
    p = pLV(s_, T, s_.Modell.DampfdruckIndex, false, fehler);
  }
  return fehler == 0 && p > 0 ? p : NaN;
}

bool Markierungen::mnuMarkT(int eintrag) {
  const StoffGruppe& st = s_.Stoff;
  switch (eintrag) {
  case 0: {
    const std::optional<double> T = Nutzerwert("T / K =", "Markierung T");
    return T && Linie("T " + DoubleText(*T), Groesse::T, *T, "T");
  }
  case 1:
    return Linie("T(cr)", Groesse::T, st.TKrit, "T(cr)");
  case 2:
    return Linie("T(Trip.P.)", Groesse::T, st.TTripel, "T(Trip.P.)");
  case 3:
    return Linie("T(LV) bei p", Groesse::T, SaettigungsTemperatur(s_.Einheiten.pVorgabe),
                 "                      T(LV) bei p");
  case 4:
    return Linie("T(LV) bei Normaldruck", Groesse::T, SaettigungsTemperatur(pNormal),
                 "                      T(LV) bei Normaldruck");
  default:
    return false;
  }
}

bool Markierungen::mnuMarkP(int eintrag) {
  const StoffGruppe& st = s_.Stoff;
  switch (eintrag) {
  case 0: {
    const std::optional<double> p = Nutzerwert("p / kPa =", "Markierung p");
    return p && Linie("p " + DoubleText(*p), Groesse::p, *p, "p");
  }
  case 1:
    return Linie("p(cr)", Groesse::p, st.pKrit, "p(cr)");
  case 2:
    return Linie("p(LV) bei T", Groesse::p, SaettigungsDruck(s_.Einheiten.TVorgabe), "p(LV) bei T ");
  case 3:
    return Linie("p(SLV)", Groesse::p, st.pTripel, "p(SLV)");
  default:
    return false;
  }
}

bool Markierungen::mnuMarkV(int eintrag) {
  switch (eintrag) {
  case 0: {
    const std::optional<double> v = Nutzerwert("v / (m^3/kmol) =", "Markierung v");
    return v && Linie("v " + DoubleText(*v), Groesse::v, *v, "v");
  }
  case 1: {
    const double vc = s_.EOS.vKritEOS > 1e-6 ? s_.EOS.vKritEOS : s_.Stoff.vKritExp;
    return Linie("v(crit)", Groesse::v, vc, "v(crit)");
  }
  default:
    return false;
  }
}

// The covolume b of the EOS at the temperature of the page's input.
bool Markierungen::mnuMarkB() {
  if (!Kubisch()) return Refuse("Kovolumen b nur für kubische EOS möglich.");
  const double T = s_.Einheiten.TVorgabe > 0 ? s_.Einheiten.TVorgabe : s_.Stoff.TKrit;
  if (!(T > 0)) return Refuse(NichtVerfuegbar);
  EOSbeiT(s_, T);
  return Linie("v = b", Groesse::v, s_.EOS.bT, "v = b");
}

// ----- critical points -----

bool Markierungen::Punkt(const std::string& art, const std::string& text, double T, double p, double v) {
  const std::optional<double> x = AufAchse(s_, d_.AchseX(), T, p, v);
  const std::optional<double> y = AufAchse(s_, d_.AchseY(), T, p, v);
  if (!x || !y) return Refuse(PasstNicht);
  if (!std::isfinite(*x) || !std::isfinite(*y)) return Refuse(NichtVerfuegbar);
  Graph2DMarke m;
  m.Art = art;
  Marke2D punkt;
  punkt.Text = text;
  punkt.X = *x, punkt.Y = *y;
  m.Punkt = punkt;
  d_.MarkeSetzen(m);
  return true;
}

bool Markierungen::mnuMarkCritPointEx() {
  const StoffGruppe& st = s_.Stoff;
  return Punkt("KritEx", "krit. Punkt (exp.)", st.TKrit, st.pKrit, st.vKritExp);
}

bool Markierungen::mnuMarkCritPointCalc() {
  const StoffGruppe& st = s_.Stoff;
  return Punkt("KritCalc", "krit. Punkt (EOS)", st.TKrit, st.pKrit, s_.EOS.vKritEOS);
}

void Markierungen::mnuDelCritPointEx() {
  d_.MarkeLoeschen("KritEx");
}

void Markierungen::mnuDelCritPointCalc() {
  d_.MarkeLoeschen("KritCalc");
}

void Markierungen::mnuDelMarkTP() {
  d_.MarkenLoeschen();
}

void Markierungen::mnuDelMarkLabels() {
  d_.MarkenTexteLoeschen();
}

} // namespace quor
