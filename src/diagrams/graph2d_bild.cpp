// What the 2D diagram page shows: the picture for the chart adapter, the status line under the
// mouse, the curve under the mouse and a curve's points as text.
#include "diagrams/graph2d.h"

#include "core/festtext.h"
#include "core/zahlformat.h"
#include "diagrams/diagramm_codes.h"

#include <cmath>
#include <optional>

namespace quor {

namespace {

bool Drin(double x, double y, const std::array<double, 4>& b) {
  return x >= b[0] && x <= b[1] && y >= b[2] && y <= b[3];
}

// The unit of an axis text: what follows " / ", without its enclosing brackets; empty when the
// text names none ("V(red)").
std::string EinheitVon(const std::string& achsenText) {
  const std::string t = Trim(achsenText);
  const std::size_t i = t.find(" / ");
  if (i == std::string::npos) return "";
  std::string e = Trim(t.substr(i + 3));
  if (e.size() >= 2 && e.front() == '(' && e.back() == ')') e = e.substr(1, e.size() - 2);
  return e;
}

std::string MitEinheit(double wert, const std::string& einheit) {
  return SingleText(static_cast<float>(wert)) + (einheit.empty() ? "" : " " + einheit);
}

// T, p, v of a point in engine units, as far as the curve's parameter and the axes give them.
struct Punktzustand {
  std::optional<double> T, p, v;
};

void AusAchse(Punktzustand& z, Groesse g, double wert, const ProjectState& s) {
  const EinheitenGruppe& e = s.Einheiten;
  switch (g) {
  case Groesse::T:
    if (e.TFaktor > 0) z.T = wert / e.TFaktor;
    break;
  case Groesse::p:
    if (e.pFaktor > 0) z.p = wert / e.pFaktor;
    break;
  case Groesse::v:
    if (e.VolumenFaktor > 0) z.v = wert / e.VolumenFaktor;
    break;
  case Groesse::Rho:
    if (wert > 0 && s.Stoff.MolMasse > 0) z.v = s.Stoff.MolMasse / wert;
    break;
  default:
    break;
  }
}

// What a curve's point tells of its state: the curve's parameter and the two axes.
Punktzustand ZustandAmPunkt(const Graph2DKurve& k, const Kurvenpunkt& q, Groesse x, Groesse y,
                            const ProjectState& s) {
  Punktzustand z;
  switch (k.Auftrag.Klasse) {
  case klasse::Isotherme:
    z.T = q.Z;
    break;
  case klasse::Isobare:
    z.p = q.Z;
    break;
  case klasse::Isochore:
    z.v = q.Z;
    break;
  default:
    break;
  }
  AusAchse(z, x, q.X, s);
  AusAchse(z, y, q.Y, s);
  return z;
}

} // namespace

Diagramm2D frmQGraph2D::Bild() const {
  Diagramm2D d;
  const std::array<double, 4> b = Bereich();
  for (std::size_t i = 0; i < kurven_.size(); ++i) {
    if (!belegt_[i]) continue;
    const Graph2DKurve& k = kurven_[i];
    Reihe2D r;
    r.Name = k.Legende;
    r.Farbe = k.Farbe;
    r.Linie = k.Linie;
    r.Breite = k.Breite;
    r.Symbol = k.Symbol;
    const Kurvenpunkt* letzter = nullptr;
    for (std::size_t j = 1; j < k.Punkte.size(); ++j) {
      const Kurvenpunkt& q = k.Punkte[j];
      if (!std::isfinite(q.X) || !std::isfinite(q.Y)) continue;
      r.X.push_back(q.X);
      r.Y.push_back(q.Y);
      if (Drin(q.X, q.Y, b)) letzter = &q;
    }
    d.Reihen.push_back(std::move(r));
    const std::string parameter = ParameterAngabe(k.Auftrag.Klasse, k.T, k.p, k.v);
    if (k.ParameterBeschriften && letzter && !parameter.empty())
      d.Texte.push_back({parameter, letzter->X, letzter->Y, k.Farbe});
  }
  for (const Graph2DPunktSatz& ps : punktSaetze_) {
    Reihe2D r;
    r.Name = ps.Legende;
    r.X = ps.X;
    r.Y = ps.Y;
    r.Farbe = ps.Farbe;
    r.Linie = LinienArt::Keine;
    r.Symbol = ps.Symbol;
    d.Reihen.push_back(std::move(r));
  }
  for (const Graph2DMarke& m : marken_) {
    if (!m.Linie.X.empty()) d.Reihen.push_back(m.Linie);
    if (m.Text) d.Texte.push_back(*m.Text);
    if (m.Punkt) d.Marken.push_back(*m.Punkt);
  }
  d.Texte.insert(d.Texte.end(), texte_.begin(), texte_.end());
  d.AchseX.Min = xmin_, d.AchseX.Max = xmax_;
  d.AchseY.Min = ymin_, d.AchseY.Max = ymax_;
  d.AchseX.Titel = gekippt_ ? auftrag_.YText : auftrag_.XText;
  d.AchseY.Titel = gekippt_ ? auftrag_.XText : auftrag_.YText;
  d.AchseX.Format = format_[0], d.AchseY.Format = format_[1];
  d.AchseX.Gitter = gitter_[0], d.AchseY.Gitter = gitter_[1];
  d.Kopf = auftrag_.Titel;
  d.LegendeSichtbar = legende_;
  d.Seitenfarbe = seitenfarbe_;
  return d;
}

// The point nearest to (x, y) among the curves, measured in units of the tolerances; none beyond
// them.
bool frmQGraph2D::NaechsterPunkt(double x, double y, double tx, double ty, int& slot,
                                 std::size_t& index) const {
  if (!(tx > 0) || !(ty > 0) || !std::isfinite(x) || !std::isfinite(y)) return false;
  double best = 2; // squared distance; within the tolerance box only
  slot = -1;
  for (std::size_t i = 0; i < kurven_.size(); ++i) {
    if (!belegt_[i]) continue;
    const Kurvenpunkte& k = kurven_[i].Punkte;
    for (std::size_t j = 1; j < k.size(); ++j) {
      const double dx = (k[j].X - x) / tx, dy = (k[j].Y - y) / ty;
      if (std::fabs(dx) > 1 || std::fabs(dy) > 1) continue;
      const double d = dx * dx + dy * dy;
      if (d < best) best = d, slot = static_cast<int>(i), index = j;
    }
  }
  return slot >= 0;
}

int frmQGraph2D::KurveBei(double x, double y, double toleranzX, double toleranzY) const {
  int slot = -1;
  std::size_t index = 0;
  return NaechsterPunkt(x, y, toleranzX, toleranzY, slot, index) ? slot : -1;
}

MausInfo frmQGraph2D::Maus(double x, double y, double toleranzX, double toleranzY) const {
  MausInfo info;
  if (!std::isfinite(x) || !std::isfinite(y)) return info;
  const std::string& xText = gekippt_ ? auftrag_.YText : auftrag_.XText;
  const std::string& yText = gekippt_ ? auftrag_.XText : auftrag_.YText;
  info.Koordinaten = "X = " + MitEinheit(x, EinheitVon(xText)) + ", Y = " + MitEinheit(y, EinheitVon(yText));

  int slot = -1;
  std::size_t index = 0;
  if (!NaechsterPunkt(x, y, toleranzX, toleranzY, slot, index)) return info;
  const Graph2DKurve& k = kurven_[static_cast<std::size_t>(slot)];
  const Kurvenpunkt& q = k.Punkte[index];
  const Punktzustand z = ZustandAmPunkt(k, q, AchseX(), AchseY(), s_);
  std::string text;
  auto teil = [&](const char* name, const std::optional<double>& w, const char* einheit) {
    if (!w || !std::isfinite(*w)) return;
    text += (text.empty() ? "" : ", ") + std::string(name) + " = " + MitEinheit(*w, einheit);
  };
  teil("T", z.T, "K");
  teil("p", z.p, "kPa");
  teil("v", z.v, "m^3/kmol");
  if (!text.empty() && k.Konnode) text += " (V-L)";
  info.Zustand = text;
  return info;
}

std::string frmQGraph2D::KurveAlsText(int slot) const {
  if (slot < 0 || slot >= MaxKurven || !belegt_[static_cast<std::size_t>(slot)]) return "";
  const Graph2DKurve& k = kurven_[static_cast<std::size_t>(slot)];
  const std::string& xText = gekippt_ ? auftrag_.YText : auftrag_.XText;
  const std::string& yText = gekippt_ ? auftrag_.XText : auftrag_.YText;
  std::string text = Trim(xText) + "\t" + Trim(yText) + "\r\n";
  for (std::size_t j = 1; j < k.Punkte.size(); ++j)
    text += SingleText(k.Punkte[j].X) + "\t" + SingleText(k.Punkte[j].Y) + "\r\n";
  return text;
}

std::optional<std::pair<double, double>> frmQGraph2D::TpBei(double x, double y, double toleranzX,
                                                      double toleranzY) const {
  int slot = -1;
  std::size_t index = 0;
  if (!std::isfinite(x) || !std::isfinite(y) || !NaechsterPunkt(x, y, toleranzX, toleranzY, slot, index))
    return std::nullopt;
  const Graph2DKurve& k = kurven_[static_cast<std::size_t>(slot)];
  const Punktzustand z = ZustandAmPunkt(k, k.Punkte[index], AchseX(), AchseY(), s_);
  if (!z.T || !z.p || !(*z.T > 0) || !(*z.p > 0) || !std::isfinite(*z.T) || !std::isfinite(*z.p)) return std::nullopt;
  return std::make_pair(*z.T, *z.p);
}

} // namespace quor
