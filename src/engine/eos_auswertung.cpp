#include "engine/eos_auswertung.h"

#include "engine/eos_zeilen.h"
#include "engine/numerik.h"

#include <cmath>

namespace quor {

namespace {

// Constant of the Varnik/Ji alpha function, and the sums of it that occur in its derivatives.
constexpr double JiK = 0.76528558;
constexpr double JiK1 = 1.76528558; // 1 + JiK
constexpr double JiK2 = 2.53057116; // 1 + 2*JiK
constexpr double JiK5 = 5.53057116; // 4 + 2*JiK

// T^e with the exponents of the predefined models taken without a call of pow.
inline double Potenz(double T, double e) {
  if (e == 0) return 1;
  if (e == -1) return 1 / T;
  if (e == -0.5) return 1 / std::sqrt(T);
  return std::pow(T, e);
}

// The b, c, d factors of the Varnik/Ji denominator (v+c)*(v+d) = v^2 + u*b*v - u*b^2, per unit of b.
struct JiNenner {
  double Bc; // critical b = JiOmegaB * R*Tc/pc
  double cFaktor, dFaktor;
};

JiNenner JiNennerVon(const ProjectState& s) {
  const auto& J = s.EOS.JiParameter;
  const double u = J[JiU];
  const double S2 = std::sqrt(u * u + 4 * u);
  return {J[JiOmegaB] * RGas * s.Stoff.TKrit / s.Stoff.pKrit, 0.5 * (u - S2), 0.5 * (u + S2)};
}

void PotenzAbleitungen(double wert, double exponent, double T, double& d1, double& d2) {
  d1 = exponent * wert / T;
  d2 = (exponent - 1) * d1 / T;
}

void JiAbleitungen(const ProjectState& s, double T, EOSAbleitungen& r) {
  const auto& J = s.EOS.JiParameter;
  const double Tc = s.Stoff.TKrit;
  const double Tr = T / Tc;
  const double x = std::pow(Tr, 0.75);
  const double y = 1 - x;
  double alpha, E, K;
  if (T <= Tc) {
    alpha = (J[JiP] * y + J[JiN]) * y * (JiK - x) + J[JiM] * y + 1;
    E = J[JiM] + (JiK1 - 2 * x) * J[JiN] + (JiK2 - 3 * x) * J[JiP] * y; // -d(alpha)/dx
    K = (JiK5 - 6 * x) * J[JiP] + 2 * J[JiN];                           // -dE/dx
  } else {
    alpha = J[JiM] * y + 1;
    E = J[JiM];
    K = 0;
  }
  r.da = -1.5 * J[JiA] * alpha * E * std::pow(Tr, -0.25) / Tc;
  r.d2a = J[JiA] / (Tc * Tc) *
          (1.125 * (E * E + alpha * K) / std::sqrt(Tr) + 0.375 * alpha * E * std::pow(Tr, -1.25));
  if (s.Modell.EOSIndex == eos::VarnikJi2) {
    const JiNenner n = JiNennerVon(s);
    const double f1 = 2 * J[JiB2] * (1 - Tr) / Tc;
    const double f2 = -2 * J[JiB2] / (Tc * Tc);
    r.db = n.Bc * f1;
    r.d2b = n.Bc * f2;
    r.dc = n.cFaktor * n.Bc * f1;
    r.d2c = n.cFaktor * n.Bc * f2;
    r.dd = n.dFaktor * n.Bc * f1;
    r.d2d = n.dFaktor * n.Bc * f2;
  }
}

} // namespace

void JiEOSbeiT(ProjectState& s, double T) {
  if (T < 1e-6) return;
  EOSGruppe& e = s.EOS;
  const auto& J = e.JiParameter;
  const double Tr = T / s.Stoff.TKrit;
  const double x = std::pow(Tr, 0.75);
  const double y = 1 - x;
  const double alpha =
      T <= s.Stoff.TKrit ? (J[JiP] * y + J[JiN]) * y * (JiK - x) + (J[JiM] * y + 1) : J[JiM] * y + 1;
  e.aT = J[JiA] * alpha * alpha;
  const JiNenner n = JiNennerVon(s);
  // Model II scales the co-volume terms; above Tc the factor keeps its (1 - Tr)^2 form.
  const double f = s.Modell.EOSIndex == eos::VarnikJi2 ? 1 - J[JiB2] * (1 - Tr) * (1 - Tr) : 1.0;
  e.bT = n.Bc * f;
  e.cT = n.cFaktor * n.Bc * f;
  e.dT = n.dFaktor * n.Bc * f;
}

void EOSbeiT(ProjectState& s, double T) {
  if (T < 1e-6) return;
  if (eos::IstVarnikJi(s.Modell.EOSIndex)) {
    JiEOSbeiT(s, T);
    return;
  }
  EOSGruppe& e = s.EOS;
  if (e.aForm == 2) {
    // Soave form; aExp holds the slope m.
    const double alpha = 1 + e.aExp * (1 - std::sqrt(T / s.Stoff.TKrit));
    e.aT = e.a0 * alpha * alpha;
  } else {
    e.aT = e.a0 * Potenz(T, e.aExp);
  }
  e.bT = e.b0 * Potenz(T, e.bExp);
  e.cT = e.c0 * Potenz(T, e.cExp);
  e.dT = e.d0 * Potenz(T, e.dExp);
}

void EOSAbleitungenT(const ProjectState& s, double T, EOSAbleitungen& r, int16_t& err) {
  r = EOSAbleitungen{};
  err = 0;
  if (T < 1e-6) {
    err = -1;
    return;
  }
  const EOSGruppe& e = s.EOS;
  if (eos::IstVarnikJi(s.Modell.EOSIndex)) {
    JiAbleitungen(s, T, r);
  } else {
    if (e.aForm == 2) {
      const double alpha = 1 + e.aExp * (1 - std::sqrt(T / s.Stoff.TKrit));
      const double alpha1 = -0.5 * e.aExp * std::sqrt(1 / (s.Stoff.TKrit * T));
      const double alpha2 = -0.5 * alpha1 / T;
      r.da = 2 * e.a0 * alpha * alpha1;
      r.d2a = 2 * e.a0 * (alpha * alpha2 + alpha1 * alpha1);
    } else {
      PotenzAbleitungen(e.aT, e.aExp, T, r.da, r.d2a);
    }
    PotenzAbleitungen(e.bT, e.bExp, T, r.db, r.d2b);
    PotenzAbleitungen(e.cT, e.cExp, T, r.dc, r.d2c);
    PotenzAbleitungen(e.dT, e.dExp, T, r.dd, r.d2d);
  }
  const double a = e.aT;
  r.A1 = (T * r.da - a) / (RGas * T * T);
  r.A2 = (T * T * r.d2a - 2 * (T * r.da - a)) / (RGas * T * T * T);
  if (!AlleEndlich(r.da, r.d2a, r.db, r.d2b, r.dc, r.d2c, r.dd, r.d2d, r.A1, r.A2)) {
    r = EOSAbleitungen{};
    err = -1;
  }
}

} // namespace quor
