// The residual part of a state: ln phi and its first and second total temperature derivatives at
// constant pressure, the residual functions that follow from them, and cp, cv, the Joule-Thomson
// coefficient and the speed of sound.
#include "engine/eos_auswertung.h"
#include "engine/kalorik_intern.h"
#include "engine/numerik.h"
#include "engine/virial.h"

#include <cmath>

namespace quor {

namespace {

// ln phi with its first and second derivative in T at p.
using PhiWerte = std::array<double, 3>;

// Relative to the ideal gas at the same T and p: ln phi = B*p/(R*T).
PhiWerte VirialPhi(double T, double p, double B, double dB, double ddB) {
  const double RT = RGas * T;
  return {B * p / RT, (p / RT) * (dB - B / T), (p / (RT * T)) * (T * ddB - 2 * (dB - B / T))};
}

// The isobar enters through VT = (dV/dT)_p and VTT = (d2V/dT2)_p; a/(R*T), b, c, d through their
// temperature derivatives.
struct Isobare {
  double T, v, VT, VTT;
};

// F = ln(R*T/(p*u)) + b/u with u = v - b, and its two derivatives.
PhiWerte FTeil(const EOSGruppe& e, const EOSAbleitungen& k, const Isobare& i, double p) {
  const double b = e.bT, u = i.v - b;
  const double du = i.VT - k.db, ddu = i.VTT - k.d2b;
  const double G = i.v * du - k.db * u; // F' = 1/T - G/u^2
  const double dG = i.VT * du + i.v * ddu - k.d2b * u - k.db * du;
  const double u2 = u * u;
  return {std::log(RGas * i.T / (p * u)) + b / u, 1 / i.T - G / u2,
          -1 / (i.T * i.T) - dG / u2 + 2 * G * du / (u2 * u)};
}

// The attraction term of c <> d: A0/(c - d) * L with L = ln(Q/P) - c/P + d/Q, P = v + c, Q = v + d.
PhiWerte AnziehungCUngleichD(const EOSGruppe& e, const EOSAbleitungen& k, const Isobare& i, double A0) {
  const double v = i.v, c = e.cT, d = e.dT;
  const double P = v + c, Q = v + d;
  const double L = std::log(Q / P) - c / P + d / Q;
  // L' = nQ/Q^2 - nP/P^2 with nX = v*VT + x'*(2v + x).
  const double nP = v * i.VT + k.dc * (2 * v + c), nQ = v * i.VT + k.dd * (2 * v + d);
  const double dnP = i.VT * i.VT + v * i.VTT + k.d2c * (2 * v + c) + k.dc * (2 * i.VT + k.dc);
  const double dnQ = i.VT * i.VT + v * i.VTT + k.d2d * (2 * v + d) + k.dd * (2 * i.VT + k.dd);
  const double dP = i.VT + k.dc, dQ = i.VT + k.dd;
  const double L1 = nQ / (Q * Q) - nP / (P * P);
  const double L2 = dnQ / (Q * Q) - 2 * nQ * dQ / (Q * Q * Q) - dnP / (P * P) + 2 * nP * dP / (P * P * P);
  const double cd = c - d, dcd = k.dc - k.dd, ddcd = k.d2c - k.d2d, cd2 = cd * cd;
  const double K = A0 / cd;
  const double K1 = (k.A1 * cd - A0 * dcd) / cd2;
  const double K2 = k.A2 / cd - 2 * k.A1 * dcd / cd2 - A0 * ddcd / cd2 + 2 * A0 * dcd * dcd / (cd2 * cd);
  return {K * L, K1 * L + K * L1, K2 * L + 2 * K1 * L1 + K * L2};
}

// The attraction term of c = d: -A0 * W with W = (2v + c)/(v + c)^2.
PhiWerte AnziehungCGleichD(const EOSGruppe& e, const EOSAbleitungen& k, const Isobare& i, double A0) {
  const double c = e.cT;
  const double P = i.v + c, dP = i.VT + k.dc, ddP = i.VTT + k.d2c;
  const double z = 2 * i.v + c, dz = 2 * i.VT + k.dc, ddz = 2 * i.VTT + k.d2c;
  const double P2 = P * P, P3 = P2 * P;
  const double W = z / P2;
  const double W1 = dz / P2 - 2 * z * dP / P3;
  const double W2 = ddz / P2 - 4 * dz * dP / P3 - 2 * z * ddP / P3 + 6 * z * dP * dP / (P2 * P2);
  return {-A0 * W, -k.A1 * W - A0 * W1, -k.A2 * W - 2 * k.A1 * W1 - A0 * W2};
}

PhiWerte KubischPhi(const EOSGruppe& e, const EOSAbleitungen& k, const Isobare& i, double p) {
  const double A0 = e.aT / (RGas * i.T);
  const PhiWerte F = FTeil(e, k, i, p);
  // The comparison is exact: van der Waals and Berthelot have c = d = 0.
  const PhiWerte W = e.cT != e.dT ? AnziehungCUngleichD(e, k, i, A0) : AnziehungCGleichD(e, k, i, A0);
  return {F[0] + W[0], F[1] + W[1], F[2] + W[2]};
}

// Columns 7 to 10 from cp(idG); false (err) when a value is not finite or the speed of sound has no
// real value; the columns reached keep their results.
bool KalorischeSpalten(const ProjectState& s, int row, double T, double v, double cpIdG,
                       const Abl1Tabelle& Abl1, ResFunkTabelle& ResFunk) {
  auto& r = ResFunk[row];
  const double cp = r[6] * RGas + cpIdG;
  const double jt = (T * Abl1[row][4] - v) / cp;
  const double cv = cp - T * Abl1[row][2] * Abl1[row][4];
  if (!AlleEndlich(cp, jt, cv)) return false;
  r[7] = jt;
  r[8] = cv;
  r[9] = cp;
  const double M = s.Stoff.MolMasse;
  const double arg = -(cp / cv) * Abl1[row][1] * 1000 * M;
  const double w = (v / M) * std::sqrt(arg);
  if (!(arg >= 0) || !std::isfinite(w)) return false;
  r[10] = w;
  return true;
}

} // namespace

namespace kalorik {

bool PhiSpalten(ProjectState& s, int row, double T, double p, double v, Abl1Tabelle& Abl1, Abl2Tabelle& Abl2,
                ResFunkTabelle& ResFunk, int16_t& err) {
  err = 0;
  EOSbeiT(s, T);
  const bool virial = s.Modell.VirialFlag;
  if (virial) s.EOS.BVirial = BvonT(s, s.Modell.EOSIndex, T);
  EOSAbleitungen k;
  EOSAbleitungenT(s, T, k, err);
  if (err != 0) return false;
  double dB = 0, ddB = 0;
  AbleitungenPTV(s, row, T, p, v, Abl1, Abl2, dB, ddB, k, err);
  if (err != 0) return false;
  const EOSGruppe& e = s.EOS;
  PhiWerte phi;
  if (virial) {
    phi = VirialPhi(T, p, e.BVirial, dB, ddB);
  } else {
    if (std::fabs(v - e.bT) < 1e-17) {
      err = -1;
      return false;
    }
    phi = KubischPhi(e, k, {T, v, Abl1[row][4], Abl2[row][4]}, p);
  }
  const double c3 = -phi[0] - T * phi[1];
  const double c4 = -T * T * phi[1];
  const double c5 = T * phi[0];
  const double c6 = -T * (2 * phi[1] + T * phi[2]);
  if (!AlleEndlich(phi[0], phi[1], phi[2], c3, c4, c5, c6)) {
    err = -1;
    return false;
  }
  ResFunk[row][0] = phi[0];
  ResFunk[row][1] = phi[1];
  ResFunk[row][2] = phi[2];
  ResFunk[row][3] = c3;
  ResFunk[row][4] = c4;
  ResFunk[row][5] = c5;
  ResFunk[row][6] = c6;
  // Without a cp equation there is no cp, cv, w: columns 7 to 10 stay as they are.
  int16_t cpErr = 0;
  const double cpIdG = cpIdealgas(s, T, s.Modell.CpIndex, cpErr);
  if (cpErr == 0 && cpIdG > 0 && !KalorischeSpalten(s, row, T, v, cpIdG, Abl1, ResFunk)) err = -1;
  return true;
}

} // namespace kalorik

void PhiFunktionen(ProjectState& s, int row, double T, double p, double v, Abl1Tabelle& Abl1,
                   Abl2Tabelle& Abl2, ResFunkTabelle& ResFunk, int16_t& err) {
  kalorik::PhiSpalten(s, row, T, p, v, Abl1, Abl2, ResFunk, err);
}

} // namespace quor
