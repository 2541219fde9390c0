#include "ji_anpassung.h"

#include "engine/eos_auswertung.h"
#include "engine/eos_parameter.h"
#include "engine/korrelationen.h"
#include "engine/kubisch.h"
#include "engine/saettigung.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace cubpar {

using namespace quor;

namespace {

// Range of JiZc in which the critical conditions have a real solution with u > 0, so that c and d
// stay real; and a range of JiB2 that keeps b, c, d positive far below TrMin.
constexpr double ZcMin = 0.22, ZcMax = 0.37;
constexpr double B2Min = -2.0, B2Max = 2.0;

// Scales of the relative deviations: a cubic equation follows the liquid density far less
// closely than the vapour pressure, so a density deviation counts a fifth of a pressure deviation.
constexpr double DruckSkala = 0.01, DichteSkala = 0.05;

// Rounds of reweighting towards the smallest largest deviation.
constexpr int LawsonRunden = 40;

constexpr int MaxIterationen = 200;
constexpr int MaxNewton = 100;
constexpr double LambdaStart = 1e-3, LambdaMax = 1e12;

// The parameters the fit varies, in this order: JiZc (when densities are there), JiM, JiN, JiP,
// JiB2 (model II).
struct Auswahl {
  bool zc = true;
  bool b2 = false;
};

std::vector<double> Vektor(const JiSatz& j, const Auswahl& a) {
  std::vector<double> x;
  if (a.zc) x.push_back(j.Zc);
  x.insert(x.end(), {j.M, j.N, j.P});
  if (a.b2) x.push_back(j.B2);
  return x;
}

JiSatz Satz(const std::vector<double>& x, const Auswahl& a, JiSatz j) {
  std::size_t i = 0;
  if (a.zc) j.Zc = std::clamp(x[i++], ZcMin, ZcMax);
  j.M = x[i++];
  j.N = x[i++];
  j.P = x[i++];
  if (a.b2) j.B2 = std::clamp(x[i++], B2Min, B2Max);
  return j;
}

// A root of the cubic in v at T, p refined by three Newton steps (aT..dT set for T).
double VerfeinereWurzel(const ProjectState& s, double T, double p, double v) {
  const EOSGruppe& e = s.EOS;
  const double a = e.aT, b = e.bT, c = e.cT, d = e.dT;
  const double t = RGas * T / p + b;
  const double A2 = d + c - t, A1 = d * c + a / p - (d + c) * t, A0 = -a * b / p - d * c * t;
  for (int i = 0; i < 3; ++i) {
    const double df = (3 * v + 2 * A2) * v + A1;
    if (!(std::fabs(df) > 0)) break;
    v -= (((v + A2) * v + A1) * v + A0) / df;
  }
  return v;
}

// Integral of p(T,v) over v from vL to vV.
double DruckIntegral(const ProjectState& s, double T, double vL, double vV) {
  const EOSGruppe& e = s.EOS;
  const double a = e.aT, b = e.bT, c = e.cT, d = e.dT;
  double K;
  if (std::fabs(c - d) <= 1e-14 * std::fabs(b))
    K = 1 / (vL + c) - 1 / (vV + c);
  else
    K = std::log(((vV + c) * (vL + d)) / ((vL + c) * (vV + d))) / (d - c);
  return RGas * T * std::log((vV - b) / (vL - b)) - a * K;
}

// The scaled deviations of all points; false when a saturation state can't be found.
bool Residuen(ProjectState& s, const Saettigungsdaten& d, std::vector<double>& r) {
  r.clear();
  for (const Stuetzpunkt& pkt : d.punkte) {
    double p = 0, vL = 0;
    if (!JiSaettigung(s, pkt.T, p, vL)) return false;
    if (pkt.art == Groesse::Dampfdruck)
      r.push_back((p / pkt.wert - 1) / DruckSkala);
    else
      r.push_back((s.Stoff.MolMasse / vL / pkt.wert - 1) / DichteSkala);
  }
  return true;
}

double Betragsmaximum(const std::vector<double>& r) {
  double m = 0;
  for (double x : r)
    m = std::max(m, std::fabs(x));
  return m;
}

double Quadratsumme(const std::vector<double>& r) {
  double q = 0;
  for (double x : r)
    q += x * x;
  return q;
}

// Solves the small symmetric system A x = g by Gaussian elimination with pivoting; false when singular.
bool Loese(std::vector<std::vector<double>> A, std::vector<double> g, std::vector<double>& x) {
  const std::size_t n = g.size();
  for (std::size_t k = 0; k < n; ++k) {
    std::size_t piv = k;
    for (std::size_t i = k + 1; i < n; ++i)
      if (std::fabs(A[i][k]) > std::fabs(A[piv][k])) piv = i;
    if (!(std::fabs(A[piv][k]) > 1e-300)) return false;
    std::swap(A[k], A[piv]);
    std::swap(g[k], g[piv]);
    for (std::size_t i = k + 1; i < n; ++i) {
      const double f = A[i][k] / A[k][k];
      for (std::size_t j = k; j < n; ++j)
        A[i][j] -= f * A[k][j];
      g[i] -= f * g[k];
    }
  }
  x.assign(n, 0);
  for (std::size_t k = n; k-- > 0;) {
    double summe = g[k];
    for (std::size_t j = k + 1; j < n; ++j)
      summe -= A[k][j] * x[j];
    x[k] = summe / A[k][k];
  }
  return std::all_of(x.begin(), x.end(), [](double w) { return std::isfinite(w); });
}

using ResiduenFunktion = std::function<bool(const std::vector<double>&, std::vector<double>&)>;

// Jacobian by forward differences, backward where the forward point has no solution.
bool Jacobi(const ResiduenFunktion& f, const std::vector<double>& x, const std::vector<double>& r,
            std::vector<std::vector<double>>& J) {
  J.assign(r.size(), std::vector<double>(x.size(), 0));
  std::vector<double> rh;
  for (std::size_t j = 0; j < x.size(); ++j) {
    double h = 1e-7 * std::max(1.0, std::fabs(x[j]));
    std::vector<double> xh = x;
    xh[j] += h;
    if (!f(xh, rh)) {
      h = -h;
      xh[j] = x[j] + h;
      if (!f(xh, rh)) return false;
    }
    for (std::size_t i = 0; i < r.size(); ++i)
      J[i][j] = (rh[i] - r[i]) / h;
  }
  return true;
}

// Levenberg-Marquardt on the sum of squares of f; x holds the start and receives the optimum.
bool Marquardt(const ResiduenFunktion& f, std::vector<double>& x) {
  std::vector<double> r, rNeu, dx;
  if (!f(x, r)) return false;
  double q = Quadratsumme(r), lambda = LambdaStart;
  std::vector<std::vector<double>> J;
  for (int it = 0; it < MaxIterationen; ++it) {
    if (!Jacobi(f, x, r, J)) return true; // the best point so far stands
    const std::size_t n = x.size();
    std::vector<std::vector<double>> A(n, std::vector<double>(n, 0));
    std::vector<double> g(n, 0);
    for (std::size_t i = 0; i < r.size(); ++i)
      for (std::size_t j = 0; j < n; ++j) {
        g[j] -= J[i][j] * r[i];
        for (std::size_t k = 0; k < n; ++k)
          A[j][k] += J[i][j] * J[i][k];
      }
    bool besser = false;
    while (!besser && lambda < LambdaMax) {
      std::vector<std::vector<double>> AL = A;
      for (std::size_t j = 0; j < n; ++j)
        AL[j][j] += lambda * (A[j][j] + 1e-12);
      std::vector<double> xNeu = x;
      if (Loese(AL, g, dx)) {
        for (std::size_t j = 0; j < n; ++j)
          xNeu[j] += dx[j];
        if (f(xNeu, rNeu) && Quadratsumme(rNeu) < q) {
          const double qNeu = Quadratsumme(rNeu);
          const bool klein = q - qNeu <= 1e-12 * q;
          x = xNeu;
          r = rNeu;
          q = qNeu;
          lambda = std::max(lambda / 3, 1e-12);
          besser = true;
          if (klein) return true;
          break;
        }
      }
      lambda *= 4;
    }
    if (!besser) return true; // no step lowers the sum any more
  }
  return true;
}

// Weighted least squares, reweighted after Lawson: each round multiplies a point's weight by its
// deviation, which moves the fit towards the smallest largest deviation. The best round stands.
bool Anpassen(ProjectState& s, const Saettigungsdaten& d, const Auswahl& a, JiSatz& satz) {
  const JiSatz basis = satz;
  std::vector<double> gewicht(d.punkte.size(), 1.0);
  const ResiduenFunktion gewichtet = [&](const std::vector<double>& x, std::vector<double>& r) {
    if (!SetzeJiSatz(s, Satz(x, a, basis)) || !Residuen(s, d, r)) return false;
    for (std::size_t i = 0; i < r.size(); ++i)
      r[i] *= std::sqrt(gewicht[i]);
    return true;
  };
  std::vector<double> x = Vektor(satz, a), r;
  std::vector<double> besteX;
  double bestesMaximum = std::numeric_limits<double>::infinity();
  for (int runde = 0; runde < LawsonRunden; ++runde) {
    if (!Marquardt(gewichtet, x)) break;
    if (!SetzeJiSatz(s, Satz(x, a, basis)) || !Residuen(s, d, r)) break;
    const double maximum = Betragsmaximum(r);
    if (maximum < bestesMaximum) {
      bestesMaximum = maximum;
      besteX = x;
    }
    double summe = 0;
    for (std::size_t i = 0; i < r.size(); ++i)
      summe += gewicht[i] *= std::fabs(r[i]) + 1e-6 * maximum;
    for (double& w : gewicht)
      w *= gewicht.size() / summe;
  }
  if (besteX.empty()) return false;
  satz = Satz(besteX, a, basis);
  return SetzeJiSatz(s, satz);
}

} // namespace

bool SetzeJiSatz(ProjectState& s, const JiSatz& j) {
  auto& J = s.EOS.JiParameter;
  J[JiZc] = j.Zc;
  J[JiM] = j.M;
  J[JiN] = j.N;
  J[JiP] = j.P;
  J[JiB2] = s.Modell.EOSIndex == 8 ? j.B2 : 0.0;
  int16_t err = 0;
  JiKritischeKonstanten(s, err);
  if (err != 0 || !(s.EOS.vKritEOS > 1e-6)) return false;
  s.EOS.rhoKritEOS = s.Stoff.MolMasse / s.EOS.vKritEOS;
  return true;
}

bool JiSaettigung(ProjectState& s, double T, double& p, double& vL) {
  double imbalance = 0, A = 0, B = 0;
  int16_t err = 0;
  double pk = pLVbeiT(s, T, imbalance, A, B, err); // leaves aT..dT at T
  if (err != 0) {
    // At very low pressures the search on the normalised imbalance can run out of steps; its last
    // iterate, or else the substance's equation, starts the refinement below.
    if (!(pk > 0)) {
      int16_t fehler = 0;
      pk = pLV(s, T, s.Modell.DampfdruckIndex, false, fehler);
    }
    EOSbeiT(s, T);
  }
  if (!(pk > 0)) return false;
  // Newton on the equal-area condition: g(V) - g(L) = p*(vV - vL) - integral of p(T,v) is concave
  // and rising in p with the slope vV - vL, so the step ends at integral/(vV - vL) and, after the
  // first step, climbs to the root from below. Outside the loop of the isotherm p moves towards it.
  double pGut = 0, vGut = 0;
  for (int k = 0; k < MaxNewton; ++k) {
    int16_t n = 0, fehler = 0;
    KubischeWurzeln(s, T, pk, n, fehler);
    if (fehler != 0) return false;
    if (n != 3 || !(s.EOS.VRoots[0] > s.EOS.bT)) {
      if (pGut > 0) break;                                // the last good iterate stands
      pk *= s.EOS.VRoots[0] > s.EOS.vKritEOS ? 1.5 : 0.5; // vapour only: p too low; liquid only: too high
      continue;
    }
    const double r0 = VerfeinereWurzel(s, T, pk, s.EOS.VRoots[0]);
    const double r2 = VerfeinereWurzel(s, T, pk, s.EOS.VRoots[2]);
    if (!(r0 > s.EOS.bT && r2 > r0)) break;
    pGut = pk;
    vGut = r0;
    double pNeu = DruckIntegral(s, T, r0, r2) / (r2 - r0);
    if (!std::isfinite(pNeu)) break;
    if (!(pNeu > 0)) pNeu = 0.1 * pk; // far above the root
    const bool fertig = std::fabs(pNeu - pk) <= 1e-13 * pk;
    pk = pNeu;
    if (fertig) break;
  }
  if (!(pGut > 0 && vGut > 0)) return false;
  p = pGut;
  vL = vGut;
  return true;
}

bool JiAbweichungen(ProjectState& s, const Saettigungsdaten& d, JiGuete& g) {
  g = JiGuete{};
  double summe = 0;
  for (const Stuetzpunkt& pkt : d.punkte) {
    double p = 0, vL = 0;
    if (!JiSaettigung(s, pkt.T, p, vL)) return false;
    const bool druck = pkt.art == Groesse::Dampfdruck;
    const double abw = (druck ? p : s.Stoff.MolMasse / vL) / pkt.wert - 1;
    double& maximum = druck ? g.maxDruck : g.maxDichte;
    maximum = std::max(maximum, std::fabs(abw));
    summe += abw * abw;
    ++g.punkte;
  }
  g.rms = g.punkte > 0 ? std::sqrt(summe / g.punkte) : 0;
  return true;
}

JiSatz JiStartSatz(double omega) {
  JiSatz j;
  // Critical compressibility of a three-parameter cubic after Patel and Teja.
  j.Zc = std::clamp(0.329032 - 0.076799 * omega + 0.0211947 * omega * omega, ZcMin, ZcMax);
  // alpha = sqrt(a/a(cr)): Peng/Robinson's slope over 1 - Tr^0.5, carried to 1 - Tr^0.75.
  j.M = 2.0 / 3.0 * ((-0.26992 * omega + 1.54226) * omega + 0.37464);
  return j;
}

bool PasseJiAn(ProjectState& s, const Saettigungsdaten& d, JiSatz& satz, JiGuete& guete) {
  if (d.druckPunkte == 0) return false;
  const int16_t modell = s.Modell.EOSIndex;
  Auswahl a;
  a.zc = d.dichtePunkte > 0;
  satz = JiStartSatz(s.Stoff.omega);
  s.Modell.EOSIndex = 7;
  bool ok = Anpassen(s, d, a, satz);
  s.Modell.EOSIndex = modell;
  if (ok && modell == 8) {
    // Model I is model II with JiB2 = 0, so model II keeps it unless it does better.
    const JiSatz satzI = satz;
    std::vector<double> r;
    const double maximumI = SetzeJiSatz(s, satzI) && Residuen(s, d, r) ? Betragsmaximum(r) : 0;
    a.b2 = true;
    if (!Anpassen(s, d, a, satz) || !Residuen(s, d, r) || !(Betragsmaximum(r) <= maximumI)) satz = satzI;
  }
  return ok && SetzeJiSatz(s, satz) && JiAbweichungen(s, d, guete);
}

} // namespace cubpar
