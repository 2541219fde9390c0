#include "fitting/akima_spline.h"

#include "core/zahlformat.h"

#include <cmath>
#include <utility>

namespace quor {

const char* const SplineListeTitel = "  AKIMA-Spline-Parameter";

namespace {

// The working arrays count from 1 and hold the data at 3..n+2, two added points at each end.
using Feld = std::vector<double>;

// The added abscissae continue the spacing of the outer intervals mirrored; the added ordinates
// continue the slopes linearly. Fills the slopes m(1..n+3).
void Erweitern(int n, Feld& x, Feld& y, Feld& m) {
  x[2] = x[3] + x[4] - x[5];
  x[1] = x[2] + x[3] - x[4];
  x[n + 3] = x[n + 2] + x[n + 1] - x[n];
  x[n + 4] = x[n + 3] + x[n + 2] - x[n + 1];
  for (int i = 3; i <= n + 1; ++i)
    m[i] = (y[i + 1] - y[i]) / (x[i + 1] - x[i]);
  m[2] = 2 * m[3] - m[4];
  y[2] = y[3] - m[2] * (x[3] - x[2]);
  m[1] = 2 * m[2] - m[3];
  y[1] = y[2] - m[1] * (x[2] - x[1]);
  m[n + 2] = 2 * m[n + 1] - m[n];
  y[n + 3] = y[n + 2] + m[n + 2] * (x[n + 3] - x[n + 2]);
  m[n + 3] = 2 * m[n + 2] - m[n + 1];
  y[n + 4] = y[n + 3] + m[n + 3] * (x[n + 4] - x[n + 3]);
}

// Weighted mean over a symmetric window of up to three neighbours on each side, with the weight
// 1 - (distance / mean spacing / 3)^Sm. The distance scale keeps its 3 where the window is
// narrower at the ends. Only the data points take the smoothed values; the means are formed from
// the unsmoothed ordinates throughout.
void Glaetten(double Sm, int n, const Feld& x, Feld& y) {
  const int N = n + 4;
  const double dm = (x[N] - x[1]) / (N - 1);
  Feld glatt(N + 1, 0.0);
  for (int i = 1; i <= N; ++i) {
    int k = 3;
    while (k > 0 && (i + k > N || i - k < 1))
      --k;
    double summeW = 0, summeWY = 0;
    for (int j = i - k; j <= i + k; ++j) {
      double w = 1;
      if (j != i) {
        w = 1 - std::pow(std::fabs(x[j] - x[i]) / dm / 3, Sm);
        if (w < 0) w = 0;
      }
      summeW += w;
      summeWY += w * y[j];
    }
    glatt[i] = summeWY / summeW;
  }
  for (int i = 3; i <= n + 2; ++i)
    y[i] = glatt[i];
}

// Akima's slope at point i from the four neighbouring interval slopes.
double Steigung(const Feld& m, int i) {
  const double m1 = m[i - 2], m2 = m[i - 1], m3 = m[i], m4 = m[i + 1];
  if (m1 == m2 && m3 == m4) return (m2 + m3) / 2;
  const double w1 = std::fabs(m4 - m3), w2 = std::fabs(m2 - m1);
  return (w1 * m2 + w2 * m3) / (w1 + w2);
}

bool AlleEndlich(const AkimaSpline& sp) {
  for (const Feld* f : {&sp.SplineY, &sp.SplineB, &sp.SplineC, &sp.SplineD})
    for (double v : *f)
      if (!std::isfinite(v)) return false;
  return true;
}

// A text left-aligned in a field of the given width, cut to it.
std::string Spalte(std::string text, std::size_t breite) {
  text.resize(breite, ' ');
  return text;
}

} // namespace

bool SplinePruefen(std::vector<double>& x, std::vector<double>& y, int n) {
  for (int durchgang = 0; durchgang < n - 1; ++durchgang)
    for (int i = 0; i < n - 1 - durchgang; ++i)
      if (x[i] > x[i + 1]) {
        std::swap(x[i], x[i + 1]);
        std::swap(y[i], y[i + 1]);
      }
  for (int i = 0; i < n - 1; ++i)
    if (std::fabs(x[i + 1] - x[i]) < 1e-30) return false;
  return true;
}

bool SplineBerechnen(double Sm, int n, const std::vector<double>& x, const std::vector<double>& y,
                     AkimaSpline& sp) {
  sp = AkimaSpline{};
  sp.SplineGlaettung = Sm;
  if (n < 3 || n > SplineMaxPunkte || static_cast<int>(x.size()) < n || static_cast<int>(y.size()) < n)
    return false;
  Feld wx(n + 5, 0.0), wy(n + 5, 0.0), m(n + 5, 0.0);
  for (int i = 0; i < n; ++i) {
    wx[i + 3] = x[i];
    wy[i + 3] = y[i];
  }
  Erweitern(n, wx, wy, m);
  if (Sm != 0) {
    Glaetten(Sm, n, wx, wy);
    Erweitern(n, wx, wy, m);
  }
  Feld t(n + 5, 0.0);
  for (int i = 3; i <= n + 2; ++i)
    t[i] = Steigung(m, i);

  sp.SplineN = n;
  sp.SplineX.assign(wx.begin() + 3, wx.begin() + n + 3);
  sp.SplineY.assign(wy.begin() + 3, wy.begin() + n + 3);
  sp.SplineB.assign(t.begin() + 3, t.begin() + n + 3);
  sp.SplineC.resize(n - 1);
  sp.SplineD.resize(n - 1);
  for (int i = 3; i <= n + 1; ++i) {
    const double h = wx[i + 1] - wx[i];
    sp.SplineC[i - 3] = (3 * m[i] - 2 * t[i] - t[i + 1]) / h;
    sp.SplineD[i - 3] = (t[i] + t[i + 1] - 2 * m[i]) / (h * h);
  }
  if (!AlleEndlich(sp)) {
    sp = AkimaSpline{};
    return false;
  }
  return true;
}

namespace {

double Auswerten(int art, int& k, double x, const AkimaSpline& sp) {
  const int n = sp.SplineN;
  const auto& X = sp.SplineX;
  if (x >= X[n - 1]) return (x - X[n - 1]) * sp.SplineB[n - 1] + sp.SplineY[n - 1];
  if (x < X[0]) return (x - X[0]) * sp.SplineB[0] + sp.SplineY[0];
  if (k < 0 || k > n - 2) k = 0;
  while (x < X[k])
    --k;
  while (x >= X[k + 1])
    ++k;
  const double d = x - X[k];
  if (art == 1) return (3 * sp.SplineD[k] * d + 2 * sp.SplineC[k]) * d + sp.SplineB[k];
  return ((sp.SplineD[k] * d + sp.SplineC[k]) * d + sp.SplineB[k]) * d + sp.SplineY[k];
}

} // namespace

// A value beyond the number range, far out on the straight continuation, gives 0.
double SplineWert(int art, int& k, double x, const AkimaSpline& sp) {
  if (sp.SplineN < 2 || !std::isfinite(x)) return 0;
  const double y = Auswerten(art, k, x, sp);
  return std::isfinite(y) ? y : 0;
}

// The piece's number and its coefficients, left-aligned and cut to 3 and 7 characters.
std::string SplineListe(const AkimaSpline& sp) {
  const char* const crlf = "\r\n";
  const std::string regel = "------------------------------------------------";
  std::string t = "Kubischer Spline";
  t += crlf;
  t += "für jedes Funktionsstück zwischen den Stützpunkten gilt";
  t += crlf;
  t += "y(No) = A + B x + C x^2 + D x^3";
  t += crlf;
  t += "(No = Nummer des Funktionsstücks zwischen den Punkten)";
  t += crlf + regel + crlf;
  t += "No.      Par.A      Par.B      Par.C      Par. D ";
  t += crlf + regel + crlf;
  for (int k = 0; k + 1 < sp.SplineN; ++k) {
    t += Spalte(std::to_string(k + 1), 3) + "    " + Spalte(DoubleText(sp.SplineY[k]), 7);
    for (double v : {sp.SplineB[k], sp.SplineC[k], sp.SplineD[k]})
      t += "     " + Spalte(DoubleText(v), 7);
    t += crlf;
  }
  t += regel;
  return t;
}

} // namespace quor
