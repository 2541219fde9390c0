// The diagrams of a fit for the 2D page: the fitted function through the points, the residuals, and
// ln y over 1/x.
#include "fitting/fit_lauf.h"
#include "fitting/fitting_dialog.h"

#include <algorithm>
#include <cmath>

namespace quor {

namespace {

constexpr int KurvenPunkte = 200;
const char* const PunkteLegende = "Messpunkte";

const char* YAchse(int16_t spalte) {
  switch (spalte) {
  case tprho::p:
    return "p / kPa";
  case tprho::RhoV:
    return "rho(V) / (kg/m^3)";
  case tprho::RhoL:
    return "rho(L) / (kg/m^3)";
  case tprho::HLV:
    return "delta(LV)h / (kJ/kmol)";
  case tprho::Cp:
    return "cp / (kJ/(kmol K))";
  default:
    return "y";
  }
}

// The ranges of a new diagram from everything it shows.
void Bereiche(FitDiagramm& d) {
  std::vector<double> x = d.Punkte.X, y = d.Punkte.Y;
  x.insert(x.end(), d.KurveX.begin(), d.KurveX.end());
  y.insert(y.end(), d.KurveY.begin(), d.KurveY.end());
  DiagrammBereich(x, d.Punkte.NeuesDiagramm.Xmin, d.Punkte.NeuesDiagramm.Xmax);
  DiagrammBereich(y, d.Punkte.NeuesDiagramm.Ymin, d.Punkte.NeuesDiagramm.Ymax);
}

std::string KurvenName(int16_t code) {
  const FitModellEintrag* e = FitModellVon(code);
  std::string name = e != nullptr ? e->Name : "";
  const std::size_t ende = name.find_last_not_of(' ');
  return "Fitting " + name.substr(0, ende == std::string::npos ? 0 : ende + 1);
}

std::string Titel(int16_t code) {
  const FitModellEintrag* e = FitModellVon(code);
  return e != nullptr ? e->Titel : "";
}

} // namespace

std::vector<double> frmQFitting::AktiveX() const {
  std::vector<double> x;
  for (int i = 0; i < Fit.FitAnzahl; ++i)
    if (Fit.FitDaten[static_cast<std::size_t>(i)].Flag != FlagInaktiv)
      x.push_back(Fit.FitDaten[static_cast<std::size_t>(i)].x);
  return x;
}

std::vector<double> frmQFitting::AktiveY() const {
  std::vector<double> y;
  for (int i = 0; i < Fit.FitAnzahl; ++i)
    if (Fit.FitDaten[static_cast<std::size_t>(i)].Flag != FlagInaktiv)
      y.push_back(Fit.FitDaten[static_cast<std::size_t>(i)].y);
  return y;
}

std::string frmQFitting::XAchse() const {
  return Fit.FitEditorCode == QuelleTpRhoEditor ? "T / K" : "x";
}

// The points and the function over the range of the points, where it can be evaluated.
std::optional<FitDiagramm> frmQFitting::cmdGraphFunction() {
  if (!cmdGraphFunctionEnabled) return std::nullopt;
  FitDiagramm d;
  d.Punkte.X = AktiveX();
  d.Punkte.Y = AktiveY();
  if (d.Punkte.X.empty()) return std::nullopt;
  d.Punkte.Legende = PunkteLegende;
  d.Punkte.Quelle = PunktQuelle::Fitting;
  const auto [xmin, xmax] = std::minmax_element(d.Punkte.X.begin(), d.Punkte.X.end());
  for (int i = 0; i < KurvenPunkte; ++i) {
    const double x = *xmin + (*xmax - *xmin) * i / (KurvenPunkte - 1);
    int16_t fehler = 0;
    const double y = FitFunktionswert(s_, Fit, x, fehler);
    if (fehler != 0) continue;
    d.KurveX.push_back(x);
    d.KurveY.push_back(y);
  }
  d.KurvenLegende = KurvenName(Fit.FitModell);
  DiagrammAuftrag& a = d.Punkte.NeuesDiagramm;
  a.Titel = Titel(Fit.FitModell);
  a.XText = XAchse();
  a.YText = YAchse(FitSpalte);
  Bereiche(d);
  return d;
}

// Each active point's residual as the fit measures it (of ln y with the log option), and the zero
// line under them. A point where the function cannot be evaluated is left out.
std::optional<FitDiagramm> frmQFitting::cmdGraphResid() {
  if (!cmdGraphResidEnabled) return std::nullopt;
  FitDiagramm d;
  const std::vector<double> x = AktiveX(), y = AktiveY();
  for (std::size_t i = 0; i < x.size(); ++i) {
    int16_t fehler = 0;
    const double yc = FitFunktionswert(s_, Fit, x[i], fehler);
    const double r = Fit.FitLog ? std::log(yc) - std::log(y[i]) : yc - y[i];
    if (fehler != 0 || !std::isfinite(r)) continue;
    d.Punkte.X.push_back(x[i]);
    d.Punkte.Y.push_back(r);
  }
  if (d.Punkte.X.empty()) return std::nullopt;
  d.Punkte.Legende = "Residuen";
  d.Punkte.Quelle = PunktQuelle::Fitting;
  const auto [xmin, xmax] = std::minmax_element(d.Punkte.X.begin(), d.Punkte.X.end());
  d.KurveX = {*xmin, *xmax};
  d.KurveY = {0, 0};
  d.KurvenLegende = "Null-Linie";
  DiagrammAuftrag& a = d.Punkte.NeuesDiagramm;
  a.Titel = "Residuen:" + Titel(Fit.FitModell);
  a.XText = XAchse();
  a.YText = Fit.FitLog ? "ln y(calc) - ln y(exp)" : "y(calc) - y(exp)";
  Bereiche(d);
  return d;
}

// ln y over 1/x of the points and of the function; every active point needs x and y above zero.
std::optional<FitDiagramm> frmQFitting::cmdGraphLnp() {
  if (!cmdGraphLnpEnabled) return std::nullopt;
  const std::vector<double> x = AktiveX(), y = AktiveY();
  if (x.empty()) return std::nullopt;
  for (std::size_t i = 0; i < x.size(); ++i)
    if (x[i] < 1e-6 || y[i] < 1e-6) {
      ui_.Meldung("T- und p-Spalte dürfen keine Null-Werte enthalten.", "Ausführung nicht möglich",
                  ui::Symbol::Ausruf);
      return std::nullopt;
    }
  FitDiagramm d;
  for (std::size_t i = 0; i < x.size(); ++i) {
    d.Punkte.X.push_back(1 / x[i]);
    d.Punkte.Y.push_back(std::log(y[i]));
  }
  d.Punkte.Legende = "ln {p}";
  d.Punkte.Quelle = PunktQuelle::Fitting;
  const auto [xmin, xmax] = std::minmax_element(x.begin(), x.end());
  for (int i = 0; i < KurvenPunkte; ++i) {
    const double t = *xmin + (*xmax - *xmin) * i / (KurvenPunkte - 1);
    int16_t fehler = 0;
    const double p = FitFunktionswert(s_, Fit, t, fehler);
    if (fehler != 0 || !(p > 0)) continue;
    d.KurveX.push_back(1 / t);
    d.KurveY.push_back(std::log(p));
  }
  d.KurvenLegende = KurvenName(Fit.FitModell);
  DiagrammAuftrag& a = d.Punkte.NeuesDiagramm;
  a.Titel = Titel(Fit.FitModell);
  a.XText = "1/ (T/K)";
  a.YText = "ln {p}";
  Bereiche(d);
  return d;
}

} // namespace quor
