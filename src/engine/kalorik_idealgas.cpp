// The ideal-gas part: cp functions and their analytic integrals h = int cp dT and s = int cp/T dT
// from the reference temperature, tied to the reference state; cp of the liquid and the solid.
#include "engine/kalorik.h"
#include "engine/korrelationen.h"
#include "engine/numerik.h"
#include "engine/referenz.h"

#include <cmath>

namespace quor {

namespace {

constexpr double Ln2 = 0.69314718055994531;

// ln sinh(x) and ln cosh(x) without overflow of the exponential for large x (sinh x > 0 needs x > 0).
double LnSinh(double x) {
  return x - Ln2 + std::log1p(-std::exp(-2 * x));
}
double LnCosh(double x) {
  const double y = std::fabs(x);
  return y - Ln2 + std::log1p(std::exp(-2 * y));
}

// The three forms of the polynomial: without the constant (B + C T + D T^2 + E/T^2), with T^4
// (small E) and with E/T^2.
enum class PolynomForm { OhneKonstante, MitT4, MitInversQuadrat };

PolynomForm FormVon(const std::array<float, 5>& c) {
  if (std::fabs(c[0]) <= 1e-8) return PolynomForm::OhneKonstante;
  if (std::fabs(c[4]) < 1) return PolynomForm::MitT4;
  return PolynomForm::MitInversQuadrat;
}

double PolynomWert(const std::array<float, 5>& k, double T) {
  const double A = k[0], B = k[1], C = k[2], D = k[3], E = k[4];
  switch (FormVon(k)) {
  case PolynomForm::OhneKonstante:
    return B + C * T + D * T * T + E / (T * T);
  case PolynomForm::MitT4:
    return A + T * (B + T * (C + T * (D + T * E)));
  default:
    return A + T * (B + T * (C + T * D)) + E / (T * T);
  }
}

double SinhCoshWert(const std::array<float, 5>& k, double T) {
  const double x2 = k[2] / T, x4 = k[4] / T;
  const double f2 = x2 / Sinh(x2), f4 = x4 / Cosh(x4);
  return k[0] + k[1] * f2 * f2 + k[3] * f4 * f4;
}

// T^n - To^n.
double Dn(double T, double To, int n) {
  return std::pow(T, n) - std::pow(To, n);
}

// Integrals of cp and cp/T from To to T for the polynomial forms.
void PolynomIntegrale(const std::array<float, 5>& k, double T, double To, double& h, double& s) {
  const double A = k[0], B = k[1], C = k[2], D = k[3], E = k[4];
  const double lnT = std::log(T / To);
  switch (FormVon(k)) {
  case PolynomForm::OhneKonstante:
    h = B * Dn(T, To, 1) + C / 2 * Dn(T, To, 2) + D / 3 * Dn(T, To, 3) + E * (1 / To - 1 / T);
    s = B * lnT + C * Dn(T, To, 1) + D / 2 * Dn(T, To, 2) - E / 2 * (1 / (T * T) - 1 / (To * To));
    return;
  case PolynomForm::MitT4:
    h = A * Dn(T, To, 1) + B / 2 * Dn(T, To, 2) + C / 3 * Dn(T, To, 3) + D / 4 * Dn(T, To, 4) +
        E / 5 * Dn(T, To, 5);
    s = A * lnT + B * Dn(T, To, 1) + C / 2 * Dn(T, To, 2) + D / 3 * Dn(T, To, 3) + E / 4 * Dn(T, To, 4);
    return;
  default:
    h = A * Dn(T, To, 1) + B / 2 * Dn(T, To, 2) + C / 3 * Dn(T, To, 3) + D / 4 * Dn(T, To, 4) +
        E * (1 / To - 1 / T);
    s = A * lnT + B * Dn(T, To, 1) + C / 2 * Dn(T, To, 2) + D / 3 * Dn(T, To, 3) -
        E / 2 * (1 / (T * T) - 1 / (To * To));
    return;
  }
}

// Integrals of the sinh/cosh form; false when sinh or cosh of an argument is not positive.
bool SinhCoshIntegrale(const std::array<float, 5>& k, double T, double To, double& h, double& s) {
  const double C0 = k[0], C1 = k[1], C2 = k[2], C3 = k[3], C4 = k[4];
  const double x2 = C2 / T, x4 = C4 / T, y2 = C2 / To, y4 = C4 / To;
  if (!(x2 > 0) || !(y2 > 0)) return false; // sinh of the argument not positive
  h = C0 * (T - To) + C1 * C2 * (Coth(x2) - Coth(y2)) - C3 * C4 * (Tanh(x4) - Tanh(y4));
  s = C0 * std::log(T / To) + C1 * (x2 * Coth(x2) - LnSinh(x2)) - C3 * (x4 * Tanh(x4) - LnCosh(x4)) -
      C1 * (y2 * Coth(y2) - LnSinh(y2)) + C3 * (y4 * Tanh(y4) - LnCosh(y4));
  return true;
}

double KondensiertPruefen(double T, double cp, int16_t& err) {
  err = 0;
  if (!(T > 0) || !std::isfinite(cp)) {
    err = -1;
    return 0;
  }
  return cp;
}

} // namespace

double Sinh(double x) {
  return (std::exp(x) - std::exp(-x)) / 2;
}

double Cosh(double x) {
  return (std::exp(x) + std::exp(-x)) / 2;
}

// (e^x - e^-x)/(e^x + e^-x), written with e^-2|x| so that large arguments do not overflow.
double Tanh(double x) {
  const double e = std::exp(-2 * std::fabs(x));
  const double t = (1 - e) / (1 + e);
  return x < 0 ? -t : t;
}

double Coth(double x) {
  return 1 / Tanh(x);
}

double cpIdealgas(ProjectState& s, double T, int kind, int16_t& err) {
  err = 0;
  if (kind != CpPolynom && kind != CpSinhCosh) return 0;
  if (!(T > 0)) {
    err = -1;
    return 0;
  }
  const double cp = kind == CpPolynom ? PolynomWert(s.Stoff.CpPoly, T) : SinhCoshWert(s.Stoff.CpSinh, T);
  if (!std::isfinite(cp)) {
    err = -1;
    return 0;
  }
  return cp;
}

double cpFluessig(ProjectState& s, double T, int16_t& err) {
  return KondensiertPruefen(T, CpL(s, T), err);
}

double cpFest(ProjectState& s, double T, int16_t& err) {
  return KondensiertPruefen(T, CpS(s, T), err);
}

void IdealgasFunktionen(ProjectState& s, double T, double p, double& h, double& entropie, double& cp,
                        int16_t& err) {
  err = 0;
  double h0 = 0, s0 = 0;
  ReferenzKonstanten(s, p, h0, s0);
  const ReferenzGruppe& r = s.Referenz;
  const int kind = s.Modell.CpIndex;
  if (kind != CpPolynom && kind != CpSinhCosh) {
    cp = 0;
    h += r.hRef;
    entropie += r.sRef;
    return;
  }
  const double cpWert = cpIdealgas(s, T, kind, err);
  if (err != 0) return;
  const double To = r.TRef;
  double hInt = 0, sInt = 0;
  if (kind == CpPolynom) {
    PolynomIntegrale(s.Stoff.CpPoly, T, To, hInt, sInt);
  } else if (!(T > 0.1) || !SinhCoshIntegrale(s.Stoff.CpSinh, T, To, hInt, sInt)) {
    err = -1;
    return;
  }
  const double hNeu = hInt + h0 + r.hRef;
  const double sNeu = sInt + s0 + r.sRef;
  if (!(To > 0) || !AlleEndlich(hNeu, sNeu)) {
    err = -1;
    return;
  }
  h = hNeu;
  entropie = sNeu;
  cp = cpWert;
}

} // namespace quor
