#include "diagrams/graph2d.h"

#include "core/zahl_lesen.h"
#include "diagrams/diagramm_codes.h"
#include "diagrams/kurven.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <utility>

namespace quor {

namespace {

const char* const TitelNichtMoeglich = "Ausführung nicht möglich";

const char* const IsochorHinweis = "Empfehlung:\r\n"
                                   "Fügen Sie anschließend die Koexistenzkurve L-V und die\r\n"
                                   "Konnode ein, um die gezeichnete(n) Isochore(n) besser\r\n"
                                   "interpretieren zu können.\r\n"
                                   "Verwenden Sie für die Einfügungen jeweils andere Farben.\r\n"
                                   "Zoomen Sie ggf.\r\n"
                                   "Beachten Sie auch den Abschnitt \"Isochoren\" in der\r\n"
                                   "QUOR-HTML-Hilfe.";

const char* const AusserhalbText = "Kurve außerhalb des aktuellen Koordinatenbereichs\r\n"
                                   "Vergrößern Sie den Koordinatenbereich\r\n"
                                   "(Rechts-Klick auf Diagramm oder Button \"Koordinatenbereich\")";

const char* const FensterText = "Kurve befindet sich nicht im eingestellten Koordinatenfenster\r\n"
                                "Vergrößern Sie das Koordinatenfenster.";

bool BereichGueltig(double a, double b) {
  return std::isfinite(a) && std::isfinite(b) && a < b;
}

// The points of a curve with X and Y exchanged; the head stays.
void Tausche(Kurvenpunkte& k) {
  for (std::size_t i = 1; i < k.size(); ++i)
    std::swap(k[i].X, k[i].Y);
}

// An axis' quantity as the catalogue names it, the inversion curves' own ranges counted as the
// plain quantity.
Groesse Schlicht(Groesse g) {
  switch (g) {
  case Groesse::TInversion:
    return Groesse::T;
  case Groesse::pInversion:
    return Groesse::p;
  case Groesse::PVInversion:
    return Groesse::PV;
  default:
    return g;
  }
}

} // namespace

std::string PunktSaetzeVoll() {
  return "Es dürfen max. " + std::to_string(MaxPunktSaetze) +
         " Punktsätze geladen werden.\r\nLöschen Sie evtl. die vorhandenen Messpunkte.";
}

const char* QuellenText(PunktQuelle q) {
  switch (q) {
  case PunktQuelle::ExpDaten:
    return "   vom Editor für exp. Daten ";
  case PunktQuelle::Fitting:
    return "   vom Fitting";
  default:
    return "   vom X-Y-Editor";
  }
}

frmQGraph2D::frmQGraph2D(ProjectState& s, ui::Oberflaeche& ui) : s_(s), ui_(ui) {}

void frmQGraph2D::Neu(const DiagrammAuftrag& a) {
  auftrag_ = a;
  belegt_.fill(false);
  kurven_ = {};
  punktSaetze_.clear();
  marken_.clear();
  texte_.clear();
  gekippt_ = false;
  legende_ = true;
  format_ = {};
  gitter_ = {false, false};
  xmin_ = a.Xmin, xmax_ = a.Xmax, ymin_ = a.Ymin, ymax_ = a.Ymax;
  if (!BereichGueltig(xmin_, xmax_)) xmin_ = 0, xmax_ = 1;
  if (!BereichGueltig(ymin_, ymax_)) ymin_ = 0, ymax_ = 1;
  einstellung_ = {xmin_, xmax_, ymin_, ymax_};
  Geaendert();
}

// ----- the curve's parameter -----

std::string frmQGraph2D::ParameterText() const {
  const EinheitenGruppe& e = s_.Einheiten;
  const bool reduziert = e.VolumenMode == 2;
  switch (auftrag_.Klasse) {
  case klasse::Isotherme:
    return reduziert ? "T / T(cr) =" : "T / K =";
  case klasse::Isobare:
    return reduziert ? "p / p(cr) =" : "p / kPa =";
  case klasse::Isochore:
    return reduziert ? "v / v(cr) =" : e.VolumenMode == 1 ? "v / (m^3/kg) =" : "v / (m^3/kmol) =";
  default:
    return "";
  }
}

bool frmQGraph2D::ParameterEingabe(const std::string& text) {
  const int16_t k = auftrag_.Klasse;
  if (k != klasse::Isotherme && k != klasse::Isobare && k != klasse::Isochore) return false;
  const ZahlErgebnis z = LeseZahl(text);
  if (!z.ok || !(z.wert > 0)) {
    ui_.Meldung("Ungültige Eingabe: \"" + text + "\"\r\nBitte geben Sie eine positive Zahl ein.", "Hinweis",
                ui::Symbol::Ausruf);
    return false;
  }
  EinheitenGruppe& e = s_.Einheiten;
  double faktor = k == klasse::Isotherme ? e.TFaktor : k == klasse::Isobare ? e.pFaktor : e.VolumenFaktor;
  if (!(faktor > 0)) faktor = 1;
  const auto wert = static_cast<float>(z.wert / faktor);
  if (!std::isfinite(wert) || !(wert > 0)) {
    ui_.Meldung("Ungültige Eingabe: \"" + text + "\"\r\nBitte geben Sie eine positive Zahl ein.", "Hinweis",
                ui::Symbol::Ausruf);
    return false;
  }
  (k == klasse::Isotherme ? e.TVorgabe : k == klasse::Isobare ? e.pVorgabe : e.vVorgabe) = wert;
  return true;
}

// ----- drawing -----

int frmQGraph2D::FreierPlatz() const {
  for (int i = 0; i < MaxKurven; ++i)
    if (!belegt_[static_cast<std::size_t>(i)]) return i;
  return -1;
}

int frmQGraph2D::KurvenAnzahl() const {
  return static_cast<int>(std::count(belegt_.begin(), belegt_.end(), true));
}

DiagrammAuftrag frmQGraph2D::RechenAuftrag() const {
  DiagrammAuftrag a = auftrag_;
  const double x0 = gekippt_ ? ymin_ : xmin_, x1 = gekippt_ ? ymax_ : xmax_;
  const double y0 = gekippt_ ? xmin_ : ymin_, y1 = gekippt_ ? xmax_ : ymax_;
  a.Xmin = static_cast<float>(x0), a.Xmax = static_cast<float>(x1);
  a.Ymin = static_cast<float>(y0), a.Ymax = static_cast<float>(y1);
  a.AchsentagAlt = auftrag_.Achsentag;
  return a;
}

Groesse frmQGraph2D::AchseX() const {
  const KatalogZeile* z = KatalogZeileVon(auftrag_.Code);
  if (!z) return Groesse::Anzahl;
  return Schlicht(gekippt_ ? z->Y : z->X);
}

Groesse frmQGraph2D::AchseY() const {
  const KatalogZeile* z = KatalogZeileVon(auftrag_.Code);
  if (!z) return Groesse::Anzahl;
  return Schlicht(gekippt_ ? z->X : z->Y);
}

// The pre-selected colour for the curve being stored; the pre-selection then moves on to the next
// colour of the palette, so that curves drawn one after the other tell apart unless the user
// chooses again.
RGBFarbe frmQGraph2D::NaechsteFarbe() {
  static constexpr std::array<RGBFarbe, 8> Palette{{{0, 0, 255},
                                                    {200, 0, 0},
                                                    {0, 140, 0},
                                                    {230, 120, 0},
                                                    {140, 0, 170},
                                                    {0, 150, 160},
                                                    {120, 80, 30},
                                                    {0, 0, 0}}};
  const RGBFarbe farbe = farbVorwahl_;
  const auto* hier = std::find(Palette.begin(), Palette.end(), farbe);
  farbVorwahl_ = hier == Palette.end() || hier + 1 == Palette.end() ? Palette[0] : *(hier + 1);
  return farbe;
}

ZeichenErgebnis frmQGraph2D::cmdDraw() {
  const EinheitenGruppe& e = s_.Einheiten;
  return cmdDraw(auftrag_, e.TVorgabe, e.pVorgabe, e.vVorgabe);
}

ZeichenErgebnis frmQGraph2D::cmdDraw(const DiagrammAuftrag& auftrag, double T, double p, double v) {
  if (auftrag.Klasse == klasse::Isochore && IsochorHinweisFaellig) {
    ui_.Meldung(IsochorHinweis, "einmaliger Hinweis", ui::Symbol::Information);
    IsochorHinweisFaellig = false;
  }
  const int slot = FreierPlatz();
  if (slot < 0) {
    ui_.Meldung("Maximal " + std::to_string(MaxKurven) + " Kurven möglich\r\nLöschen Sie vorhandene Kurven",
                TitelNichtMoeglich, ui::Symbol::Ausruf);
    return ZeichenErgebnis::KeinPlatz;
  }
  // The curve is computed over the axes on show, in the engine's orientation.
  DiagrammAuftrag a = RechenAuftrag();
  a.Code = auftrag.Code, a.Klasse = auftrag.Klasse;
  a.Achsentag = auftrag.Achsentag, a.Titel = auftrag.Titel;
  Kurvenpunkte k;
  int16_t ergebnis = kurve::Fertig;
  bool imBereich = false;
  std::string meldung;
  double Tk = T, pk = p, vk = v;
  try {
    CalcCurve(s_, ui_, a, ergebnis, Tk, pk, vk, k, imBereich, meldung);
  } catch (const std::exception& f) {
    ui_.Meldung(std::string("Es ist ein kritischer Fehler aufgetreten:\r\n") + f.what(), "ABBRUCH",
                ui::Symbol::Kritisch);
    return ZeichenErgebnis::Fehler;
  } catch (...) {
    ui_.Meldung("Es ist ein kritischer Fehler aufgetreten:\r\nunbekannter Fehler", "ABBRUCH",
                ui::Symbol::Kritisch);
    return ZeichenErgebnis::Fehler;
  }
  const ZeichenErgebnis aus = Ausgang(ergebnis, imBereich, meldung, k);
  if (aus != ZeichenErgebnis::Gezeichnet) return aus;
  Hinweise(a, meldung, k);

  Graph2DKurve kurve;
  kurve.Auftrag = a;
  kurve.T = T, kurve.p = p, kurve.v = v;
  kurve.Konnode = s_.Diagramm.KonnodeModus;
  kurve.Legende = Legende(a, T, p, v, k);
  kurve.Farbe = NaechsteFarbe();
  if (gekippt_) Tausche(k);
  kurve.Punkte = std::move(k);
  kurven_[static_cast<std::size_t>(slot)] = std::move(kurve);
  belegt_[static_cast<std::size_t>(slot)] = true;
  Geaendert();
  return ZeichenErgebnis::Gezeichnet;
}

// The outcomes that keep no curve, each with its message.
ZeichenErgebnis frmQGraph2D::Ausgang(int16_t ergebnis, bool imBereich, const std::string& meldung,
                                     const Kurvenpunkte& k) {
  if (ergebnis == kurve::KeinKritischesVolumen) {
    ui_.Meldung("keine kritische Dichte verfügbar", TitelNichtMoeglich, ui::Symbol::Ausruf);
    return ZeichenErgebnis::Fehler;
  }
  if (ergebnis == kurve::KeineKonnode) {
    ui_.Meldung("Konnoden nur für T < T(cr), p < p(cr)\r\nund v <> v(cr) möglich.", "Hinweis",
                ui::Symbol::Information);
    return ZeichenErgebnis::Fehler;
  }
  if (ergebnis != kurve::Fertig) return ZeichenErgebnis::Fehler;
  if (Anzahl(k) == 0) {
    if (!meldung.empty()) ui_.Meldung(meldung, "Hinweis", ui::Symbol::Information);
    return ZeichenErgebnis::KeinePunkte;
  }
  if (!imBereich) {
    ui_.Meldung(AusserhalbText, "WARNUNG", ui::Symbol::Ausruf);
    return ZeichenErgebnis::Ausserhalb;
  }
  return ZeichenErgebnis::Gezeichnet;
}

// The warnings of a curve that is kept: points below the triple point, an isochor cut at the
// coexistence curve, and the engine's own note.
void frmQGraph2D::Hinweise(const DiagrammAuftrag& a, const std::string& meldung, const Kurvenpunkte& k) {
  if (!s_.Optionen.KurveTpBeschraenkt && TeilsUnterTripelpunkt(a, k))
    ui_.Meldung("Es wurde teilweise bei T < T(Trip.P.) gerechnet! (Tripelpunkt)\r\n(=> Optionen)", "WARNUNG",
                ui::Symbol::Ausruf);
  if (s_.Diagramm.KurveAbgebrochen)
    ui_.Meldung("Die Kurvenberechnung wurde abgebrochen.\r\n"
                "Möglicherweise wurde die VL-Koexistenzkurve erreicht.\r\n"
                "Kontrollieren Sie durch Einfügen der Koexistenzkurve.",
                "WARNUNG", ui::Symbol::Ausruf);
  if (!meldung.empty()) ui_.Meldung(meldung, "Hinweis", ui::Symbol::Information);
}

// A point's temperature is known from an isotherm's parameter or from an axis of T.
bool frmQGraph2D::TeilsUnterTripelpunkt(const DiagrammAuftrag& a, const Kurvenpunkte& k) const {
  const double Tt = s_.Stoff.TTripel;
  if (!(Tt > 1e-6)) return false;
  const KatalogZeile* z = KatalogZeileVon(a.Code);
  const bool tX = z && Schlicht(z->X) == Groesse::T, tY = z && Schlicht(z->Y) == Groesse::T;
  const double TF = s_.Einheiten.TFaktor > 0 ? s_.Einheiten.TFaktor : 1.0;
  for (std::size_t i = 1; i < k.size(); ++i) {
    double T = 0;
    if (a.Klasse == klasse::Isotherme)
      T = k[i].Z;
    else if (tX)
      T = k[i].X / TF;
    else if (tY)
      T = k[i].Y / TF;
    else
      return false;
    if (T > 0 && T < Tt) return true;
  }
  return false;
}

std::string frmQGraph2D::Legende(const DiagrammAuftrag& a, double T, double p, double v,
                                 const Kurvenpunkte& /*k*/) const {
  return KurvenLegende(s_, a, T, p, v, s_.Diagramm.KonnodeModus);
}

// ----- zoom and the range input -----

bool frmQGraph2D::cmdZoom(double xmin, double xmax, double ymin, double ymax) {
  if (!BereichGueltig(xmin, xmax) || !BereichGueltig(ymin, ymax)) return false;
  xmin_ = xmin, xmax_ = xmax, ymin_ = ymin, ymax_ = ymax;
  Geaendert();
  return true;
}

void frmQGraph2D::cmdZoomReset() {
  xmin_ = einstellung_[0], xmax_ = einstellung_[1], ymin_ = einstellung_[2], ymax_ = einstellung_[3];
  Geaendert();
}

bool frmQGraph2D::mnuCoord(double xmin, double xmax, double ymin, double ymax) {
  if (!cmdZoom(xmin, xmax, ymin, ymax)) return false;
  einstellung_ = {xmin, xmax, ymin, ymax};
  return true;
}

// ----- swapped axes -----

bool frmQGraph2D::cmdChangeXY() {
  // Only the way into the swapped state is advised against; the way back needs no question.
  if (!gekippt_ &&
      ui_.Frage("Es wird empfohlen, das Diagramm nicht im gekippten Zustand zu speichern.\r\nFortfahren?",
                "Hinweis", ui::Knoepfe::JaNein, ui::Antwort::Ja) != ui::Antwort::Ja)
    return false;
  for (std::size_t i = 0; i < kurven_.size(); ++i)
    if (belegt_[i]) Tausche(kurven_[i].Punkte);
  for (Graph2DPunktSatz& ps : punktSaetze_)
    std::swap(ps.X, ps.Y);
  for (Graph2DMarke& m : marken_) {
    std::swap(m.Linie.X, m.Linie.Y);
    if (m.Text) std::swap(m.Text->X, m.Text->Y);
    if (m.Punkt) std::swap(m.Punkt->X, m.Punkt->Y);
  }
  for (Beschriftung2D& b : texte_)
    std::swap(b.X, b.Y);
  std::swap(xmin_, ymin_);
  std::swap(xmax_, ymax_);
  std::swap(einstellung_[0], einstellung_[2]);
  std::swap(einstellung_[1], einstellung_[3]);
  std::swap(format_[0], format_[1]);
  std::swap(gitter_[0], gitter_[1]);
  gekippt_ = !gekippt_;
  Geaendert();
  return true;
}

// ----- deletes and the legend -----

void frmQGraph2D::mnuDelTotal() {
  belegt_.fill(false);
  kurven_ = {};
  punktSaetze_.clear();
  marken_.clear();
  texte_.clear();
  Geaendert();
}

void frmQGraph2D::mnuSubDelKurv(int slot) {
  if (slot < 0 || slot >= MaxKurven) return;
  belegt_[static_cast<std::size_t>(slot)] = false;
  kurven_[static_cast<std::size_t>(slot)] = Graph2DKurve{};
  Geaendert();
}

void frmQGraph2D::mnuSubDelPointSet(int satz) {
  if (satz < 0 || satz >= static_cast<int>(punktSaetze_.size())) return;
  punktSaetze_.erase(punktSaetze_.begin() + satz);
  Geaendert();
}

void frmQGraph2D::mnuDelLabels() {
  texte_.clear();
  for (Graph2DKurve& k : kurven_)
    k.ParameterBeschriften = false;
  Geaendert();
}

void frmQGraph2D::mnuDelLegend() {
  legende_ = false;
  Geaendert();
}

void frmQGraph2D::mnuAddLegend() {
  legende_ = true;
  Geaendert();
}

// ----- curves and points of other dialogs -----

bool frmQGraph2D::cmdExternKurve(const std::vector<double>& X, const std::vector<double>& Y,
                                 const std::string& legende) {
  const int slot = FreierPlatz();
  if (slot < 0) {
    ui_.Meldung("Maximal " + std::to_string(MaxKurven) + " Kurven möglich\r\nLöschen Sie vorhandene Kurven",
                TitelNichtMoeglich, ui::Symbol::Ausruf);
    return false;
  }
  Graph2DKurve kurve;
  kurve.Punkte.assign(1, Kurvenpunkt{});
  bool drin = false;
  for (std::size_t i = 0; i < std::min(X.size(), Y.size()); ++i) {
    const auto x = static_cast<float>(X[i]), y = static_cast<float>(Y[i]);
    if (!std::isfinite(x) || !std::isfinite(y)) continue;
    kurve.Punkte.push_back(gekippt_ ? Kurvenpunkt{y, x, 0} : Kurvenpunkt{x, y, 0});
    const Kurvenpunkt& q = kurve.Punkte.back();
    drin = drin || (q.X >= xmin_ && q.X <= xmax_ && q.Y >= ymin_ && q.Y <= ymax_);
  }
  kurve.Punkte[0].X = static_cast<float>(Anzahl(kurve.Punkte));
  kurve.Auftrag = RechenAuftrag();
  kurve.Auftrag.Klasse = 0;
  kurve.Legende = legende;
  kurve.Farbe = NaechsteFarbe();
  kurven_[static_cast<std::size_t>(slot)] = std::move(kurve);
  belegt_[static_cast<std::size_t>(slot)] = true;
  Geaendert();
  if (!drin) ui_.Meldung(FensterText, "Hinweis", ui::Symbol::Information);
  return true;
}

bool frmQGraph2D::cmdExternPoints(const std::vector<double>& X, const std::vector<double>& Y,
                                  PunktQuelle quelle, const std::string& legende) {
  if (static_cast<int>(punktSaetze_.size()) >= MaxPunktSaetze) {
    ui_.Meldung(PunktSaetzeVoll(), TitelNichtMoeglich, ui::Symbol::Ausruf);
    return false;
  }
  Graph2DPunktSatz satz;
  bool drin = false;
  for (std::size_t i = 0; i < std::min(X.size(), Y.size()); ++i) {
    if (!std::isfinite(X[i]) || !std::isfinite(Y[i])) continue;
    const double x = gekippt_ ? Y[i] : X[i], y = gekippt_ ? X[i] : Y[i];
    satz.X.push_back(x);
    satz.Y.push_back(y);
    drin = drin || (x >= xmin_ && x <= xmax_ && y >= ymin_ && y <= ymax_);
  }
  satz.Legende = legende + QuellenText(quelle);
  satz.Quelle = quelle;
  punktSaetze_.push_back(std::move(satz));
  Geaendert();
  if (!drin) ui_.Meldung(FensterText, "Hinweis", ui::Symbol::Information);
  return true;
}

// ----- look, parameter labels, marks -----

void frmQGraph2D::Gestalten(int slot, RGBFarbe farbe, LinienArt linie, double breite, PunktSymbol symbol) {
  if (slot < 0 || slot >= MaxKurven || !belegt_[static_cast<std::size_t>(slot)]) return;
  Graph2DKurve& k = kurven_[static_cast<std::size_t>(slot)];
  k.Farbe = farbe;
  k.Linie = linie;
  if (std::isfinite(breite) && breite > 0) k.Breite = breite;
  k.Symbol = symbol;
  Geaendert();
}

void frmQGraph2D::ParameterBeschriften(bool an) {
  for (std::size_t i = 0; i < kurven_.size(); ++i)
    kurven_[i].ParameterBeschriften = an && belegt_[i];
  Geaendert();
}

void frmQGraph2D::MarkeSetzen(const Graph2DMarke& m) {
  auto it =
      std::find_if(marken_.begin(), marken_.end(), [&](const Graph2DMarke& n) { return n.Art == m.Art; });
  if (it != marken_.end())
    *it = m;
  else
    marken_.push_back(m);
  Geaendert();
}

bool frmQGraph2D::MarkeLoeschen(const std::string& art) {
  auto it = std::find_if(marken_.begin(), marken_.end(), [&](const Graph2DMarke& n) { return n.Art == art; });
  if (it == marken_.end()) return false;
  marken_.erase(it);
  Geaendert();
  return true;
}

void frmQGraph2D::MarkenLoeschen() {
  marken_.erase(std::remove_if(marken_.begin(), marken_.end(),
                               [](const Graph2DMarke& m) { return !m.Linie.X.empty(); }),
                marken_.end());
  Geaendert();
}

void frmQGraph2D::MarkenTexteLoeschen() {
  for (Graph2DMarke& m : marken_)
    m.Text.reset();
  Geaendert();
}

} // namespace quor
