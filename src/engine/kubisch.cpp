#include "engine/kubisch.h"

#include "engine/numerik.h"

#include <cmath>
#include <utility>

namespace quor {

namespace {

constexpr int NewtonSchritte = 200;
constexpr double NewtonToleranz = 5e-7;

// Newton on v^3 + A2*v^2 + A1*v + A0 from x; true with the root in x when the relative step
// falls to the tolerance.
bool NewtonKubisch(double& x, double A2, double A1, double A0) {
  for (int i = 0; i < NewtonSchritte; ++i) {
    const double ableitung = (3 * x + 2 * A2) * x + A1;
    if (std::fabs(ableitung) < 1e-80) return false;
    const double f = ((x + A2) * x + A1) * x + A0;
    const double dx = -f / ableitung;
    x += dx;
    if (std::fabs(dx / x) <= NewtonToleranz) return std::isfinite(x);
    if (!std::isfinite(x)) return false;
  }
  return false;
}

void Tausche(double& u, double& v) {
  if (u > v) std::swap(u, v);
}

} // namespace

void KubischeWurzeln(ProjectState& s, double T, double p, int16_t& nRoots, int16_t& err) {
  EOSGruppe& e = s.EOS;
  auto& r = e.VRoots;
  err = 0;
  nRoots = 0;
  r[0] = r[2] = 0;
  const double a = e.aT, b = e.bT, c = e.cT, d = e.dT;
  const double RT = RGas * T;
  const double t = RT / p + b;
  const double A2 = d + c - t;
  const double A1 = d * c + a / p - (d + c) * t;
  const double A0 = -a * b / p - d * c * t;

  double x = RT / p;
  if (!NewtonKubisch(x, A2, A1, A0)) {
    x = 2 * b;
    if (!NewtonKubisch(x, A2, A1, A0)) {
      err = -1;
      return;
    }
  }
  r[0] = x;
  // Deflate to y^2 + B1*y + B0.
  const double B1 = x + A2;
  const double B0 = B1 * x + A1;
  const double h = -B1 / 2;
  const double D = h * h - B0;
  if (!(D >= 0)) { // also a NaN discriminant: the Newton root stands alone
    nRoots = 1;
    return;
  }
  nRoots = 3;
  const double w = std::sqrt(D);
  r[1] = h - w;
  r[2] = h + w;
  Tausche(r[0], r[1]);
  Tausche(r[1], r[2]);
  Tausche(r[0], r[1]);
  if (r[0] < b && r[1] < b) {
    nRoots = 1;
    r[0] = r[2];
  }
}

double GleichgewichtsFlaeche(const ProjectState& s, double T, double p, double& A, double& B, int16_t& err) {
  const EOSGruppe& e = s.EOS;
  const double a = e.aT, b = e.bT, c = e.cT, d = e.dT;
  const double r0 = e.VRoots[0], r1 = e.VRoots[1], r2 = e.VRoots[2];
  const double RT = RGas * T;
  // Closed-form integral of (p(T,v) - p) over v from vu to vo.
  auto integral = [&](double vu, double vo) {
    const double K = c == d ? a * (1 / (vo + c) - 1 / (vu + c))
                            : a / (c - d) * std::log(((vo + c) * (vu + d)) / ((vu + c) * (vo + d)));
    return RT * std::log((vo - b) / (vu - b)) + K - (vo - vu) * p;
  };
  err = 0;
  A = integral(r1, r2);
  B = integral(r0, r1);
  const double nenner = A - B;
  const double imbalance = nenner == 0 ? 0.0 : (A + B) / nenner;
  if (!AlleEndlich(A, B, imbalance)) {
    err = -1;
    A = B = 0;
    return 0;
  }
  return imbalance;
}

} // namespace quor
