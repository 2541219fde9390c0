// The inversion curve of the Joule-Thomson effect: the states where delta = (dT/dp) at h vanishes,
// that is T (dv/dT) at p = v. Inside the curve a throttled gas cools, outside it warms.
#include "diagrams/kurven_groessen.h"
#include "diagrams/kurven_intern.h"
#include "engine/eos_auswertung.h"
#include "engine/saettigung.h"
#include "engine/virial.h"

#include <cmath>
#include <functional>
#include <vector>

namespace quor::kurven {

namespace {

// A residual that is this small at the end of the root search is a zero; a change of sign across
// the jump from liquid to vapour leaves a residual of the order of 1.
constexpr double ResiduumNull = 1e-6;
// Relative width of the bracket at which the root search stops.
constexpr double Genauigkeit = 1e-11;
// Points of the scans that look for a change of sign.
constexpr int RasterDruck = 40;
constexpr int RasterTemperatur = 80;
// The highest inversion pressure looked for, relative to pKrit.
constexpr double HoechsterRelativerDruck = 30;

// The inversion residual of the stable phase at (T, p) with its volume.
struct Residuum {
  double r = 0; // (T (dv/dT)_p - v)/v: positive inside the inversion curve
  double v = 0;
};

bool InversionsResiduum(ProjectState& s, double T, double p, Residuum& res) {
  if (!(T > 0) || !(p > 0) || !StabilesVolumen(s, T, p, res.v)) return false;
  const int row = ZeileVon(s, res.v);
  EOSbeiT(s, T);
  if (s.Modell.VirialFlag) s.EOS.BVirial = BvonT(s, s.Modell.EOSIndex, T);
  EOSAbleitungen abl;
  int16_t err = 0;
  EOSAbleitungenT(s, T, abl, err);
  if (err != 0) return false;
  Abl1Tabelle abl1{};
  Abl2Tabelle abl2{};
  double dB = 0, ddB = 0;
  AbleitungenPTV(s, row, T, p, res.v, abl1, abl2, dB, ddB, abl, err);
  res.r = (T * abl1[row][4] - res.v) / res.v;
  return err == 0 && std::isfinite(res.r);
}

// The residual as a function of one variable, with a success flag.
using Funktion = std::function<bool(double, double&)>;

// The residual over T at p.
Funktion UeberT(ProjectState& s, double p) {
  return [&s, p](double T, double& r) {
    Residuum res;
    if (!InversionsResiduum(s, T, p, res)) return false;
    r = res.r;
    return true;
  };
}

// The residual over ln p at T.
Funktion UeberLnP(ProjectState& s, double T) {
  return [&s, T](double lnp, double& r) {
    Residuum res;
    if (!InversionsResiduum(s, T, std::exp(lnp), res)) return false;
    r = res.r;
    return true;
  };
}

// The zero of f between a and b, whose values fa and fb differ in sign: the regula falsi with the
// Illinois modification. False when a value fails or the end is no zero (a jump of f).
bool Nullstelle(const Funktion& f, double a, double fa, double b, double fb, double& x) {
  int seite = 0;
  for (int runde = 0; runde < 200; ++runde) {
    x = (a * fb - b * fa) / (fb - fa);
    double fx = 0;
    if (!f(x, fx)) return false;
    if (fx == 0 || std::fabs(b - a) <= Genauigkeit * std::fabs(x)) return std::fabs(fx) < ResiduumNull;
    if ((fx > 0) == (fb > 0)) {
      b = x;
      fb = fx;
      if (seite == -1) fa /= 2;
      seite = -1;
    } else {
      a = x;
      fa = fx;
      if (seite == 1) fb /= 2;
      seite = 1;
    }
  }
  return false;
}

struct Rasterpunkt {
  double x = 0, f = 0;
  bool da = false;
};

std::vector<Rasterpunkt> Raster(const Funktion& f, const std::vector<double>& xs) {
  std::vector<Rasterpunkt> r;
  for (double x : xs) {
    Rasterpunkt p{x};
    p.da = f(x, p.f);
    r.push_back(p);
  }
  return r;
}

// The zero where f turns from `vorher` to the other sign, the first or the last such change on the
// raster.
bool Vorzeichenwechsel(const Funktion& f, const std::vector<Rasterpunkt>& r, bool vorherPositiv, bool letzter,
                       double& x) {
  bool gefunden = false;
  for (std::size_t i = 1; i < r.size(); ++i) {
    const Rasterpunkt &a = r[i - 1], &b = r[i];
    if (!a.da || !b.da || (a.f > 0) != vorherPositiv || (b.f > 0) == vorherPositiv) continue;
    double wurzel = 0;
    if (!Nullstelle(f, a.x, a.f, b.x, b.f, wurzel)) continue;
    x = wurzel;
    gefunden = true;
    if (!letzter) return true;
  }
  return gefunden;
}

// The inversion pressure at T, searched in ln p between pUnten and pOben; `vorher` (0: none) is the
// root of the neighbouring T, whose close bracket is tried first.
bool InversionsDruck(ProjectState& s, double T, double pUnten, double pOben, double vorher, double& p) {
  const Funktion f = UeberLnP(s, T);
  const double a = std::log(pUnten), b = std::log(pOben);
  double lnp = 0;
  bool ok = false;
  if (vorher > 0) {
    const double c = std::log(vorher);
    ok = Vorzeichenwechsel(f, Raster(f, {std::max(a, c - 0.25), std::min(b, c + 0.25)}), true, true, lnp);
  }
  if (!ok) {
    std::vector<double> xs;
    for (int i = 0; i <= RasterDruck; ++i)
      xs.push_back(a + (b - a) * i / RasterDruck);
    ok = Vorzeichenwechsel(f, Raster(f, xs), true, true, lnp);
  }
  if (ok) p = std::exp(lnp);
  return ok;
}

double SaettigungsDruck(ProjectState& s, double T) {
  double imbalance = 0, A = 0, B = 0;
  int16_t err = 0;
  const double p = pLVbeiT(s, T, imbalance, A, B, err);
  return err == 0 ? p : 0;
}

// The upper inversion temperature at p: from 5 TKrit (400 K for a TKrit below 200 K) in steps of
// 50 K to the first change of sign, then the root between.
bool ObereInversionsTemperatur(ProjectState& s, double p, double& T) {
  const Funktion f = UeberT(s, p);
  double t = s.Stoff.TKrit < 200 ? 400 : 5 * s.Stoff.TKrit, r = 0;
  if (!f(t, r)) return false;
  const double schritt = r > 0 ? 50 : -50; // outward while inside, inward while outside
  for (int i = 0; i < 50; ++i) {
    double rNeu = 0;
    const double tNeu = t + schritt;
    if (!(tNeu > 0) || !f(tNeu, rNeu)) return false;
    if ((rNeu > 0) != (r > 0)) return Nullstelle(f, t, r, tNeu, rNeu, T);
    t = tNeu;
    r = rNeu;
  }
  return false;
}

// The lower and the upper inversion temperature at p on a raster up to 1.3 times the upper one at
// the lowest pressure.
struct InversionsTemperaturen {
  double p = 0;
  bool untenDa = false, obenDa = false;
  double TUnten = 0, TOben = 0;
};

InversionsTemperaturen TemperaturenBeiP(ProjectState& s, double p, const std::vector<double>& raster) {
  InversionsTemperaturen it;
  it.p = p;
  const Funktion f = UeberT(s, p);
  const auto r = Raster(f, raster);
  it.untenDa = Vorzeichenwechsel(f, r, false, false, it.TUnten);
  it.obenDa = Vorzeichenwechsel(f, r, true, true, it.TOben);
  if (it.untenDa && it.obenDa && it.TOben <= it.TUnten) it.untenDa = false;
  return it;
}

void PvPunkt(Lauf& l, double T, double p) {
  Residuum res;
  if (InversionsResiduum(l.s, T, p, res)) l.Punkt(p * l.PF(), p * res.v * l.VF(), 0);
}

} // namespace

// The inversion pressure over T, T falling in steps of dx/3. Below TKrit the inversion pressure is
// looked for in the liquid, above the saturation pressure; where there is none the curve ends.
void InversionPT(Lauf& l) {
  ProjectState& s = l.s;
  const double Tc = s.Stoff.TKrit, pc = s.Stoff.pKrit;
  double vorher = 0;
  Schritte(l.a.Xmax, l.a.Xmin, -l.dx / 3, 0.9, [&](double x) {
    const double T = x / l.TF();
    double pUnten = 1e-3 * pc;
    if (T < Tc && !l.Virial()) {
      const double pS = SaettigungsDruck(s, T);
      if (!(pS > 0)) return true;
      pUnten = pS * (1 + 1e-9);
    }
    double p = 0;
    if (InversionsDruck(s, T, pUnten, HoechsterRelativerDruck * pc, vorher, p)) {
      l.Punkt(x, p * l.PF(), 0);
      vorher = p;
      return true;
    }
    vorher = 0;
    return !(T < Tc);
  });
  l.Kopf(kopf::ZweiZweige);
}

// The inversion curve in p*v over p: at each p the lower and the upper inversion temperature; the
// lower branch with p rising, then the upper one back.
void InversionPv(Lauf& l) {
  ProjectState& s = l.s;
  std::vector<double> druecke;
  Schritte(l.a.Xmin, l.a.Xmax, 2 * l.dx, 0.9, [&](double x) {
    druecke.push_back(x);
    return true;
  });
  if (druecke.empty()) return;
  const double pStart = std::max(druecke.front() / l.PF(), 0.01);
  double TStart = 0;
  if (!ObereInversionsTemperatur(s, pStart, TStart)) return;
  const auto raster = Geometrisch(std::max(10.0, 0.3 * s.Stoff.TKrit), 1.3 * TStart, RasterTemperatur);
  std::vector<InversionsTemperaturen> zweige;
  for (double x : druecke)
    zweige.push_back(TemperaturenBeiP(s, std::max(x / l.PF(), 0.01), raster));
  for (const auto& it : zweige)
    if (it.untenDa) PvPunkt(l, it.TUnten, it.p);
  for (auto it = zweige.rbegin(); it != zweige.rend(); ++it)
    if (it->obenDa) PvPunkt(l, it->TOben, it->p);
  l.Kopf(kopf::MitParameter);
}

} // namespace quor::kurven
