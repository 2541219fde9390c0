#include "engine/ableitungen.h"

#include "engine/numerik.h"
#include "engine/virial.h"
#include "engine/zustand.h"

#include <cmath>

namespace quor {

namespace {

// Abl1 columns 1 to 6 and Abl2 columns 1, 4, 5 of one phase.
struct Zeile {
  std::array<double, 7> erste{};
  std::array<double, 6> zweite{};
};

template <std::size_t N> bool Endlich(const std::array<double, N>& werte) {
  for (double w : werte)
    if (!std::isfinite(w)) return false;
  return true;
}

// v = R*T/p + B: p = R*T/(v - B).
Zeile VirialZeile(double T, double p, double v, double B, double dB, double ddB) {
  Zeile z;
  const double RT = RGas * T;
  const double u = v - B;
  z.erste[1] = -p * p / RT;
  z.erste[2] = RGas * (T * dB + v - B) / (u * u);
  z.erste[3] = 1 / z.erste[1];
  z.erste[4] = RGas / p + dB;
  z.erste[5] = p / (p * dB + RGas);
  z.erste[6] = 1 / z.erste[2];
  z.zweite[1] = 2 * RT / (u * u * u);
  z.zweite[4] = ddB;
  const double nenner = p * dB + RGas;
  z.zweite[5] = p * p * ddB / (nenner * nenner);
  return z;
}

// The generalised cubic p = R*T/u - a/N with u = v - b, N = P*Q, P = v + c, Q = v + d. Partial
// derivatives in T (at v) and v (at T), then the totals along the isobar, where v follows T with
// VT = (dV/dT)_p:
//   E1 = d(dp/dT at v)/dT = p_TT + p_Tv*VT,   E2 = d(dp/dV at T)/dT = p_Tv + p_vv*VT.
Zeile KubischeZeile(const EOSGruppe& e, double T, double v, const EOSAbleitungen& k) {
  Zeile z;
  const double a = e.aT, b = e.bT, c = e.cT, d = e.dT;
  const double RT = RGas * T;
  const double u = v - b, u2 = u * u, u3 = u2 * u;
  const double P = v + c, Q = v + d, N = P * Q, N2 = N * N, N3 = N2 * N;
  const double S = P + Q;               // dN/dv
  const double M = Q * k.dc + P * k.dd; // dN/dT at v
  const double pv = a * S / N2 - RT / u2;
  const double pT = RGas * (T * k.db + u) / u2 - k.da / N + a * M / N2;
  const double pvv = 2 * (RT / u3 - a * (3 * v * (v + c + d) + (c + d) * (c + d) - c * d) / N3);
  const double pTv =
      -RGas / u2 - 2 * RT * k.db / u3 + k.da * S / N2 + a * (k.dc + k.dd) / N2 - 2 * a * S * M / N3;
  const double dM = 2 * k.dc * k.dd + Q * k.d2c + P * k.d2d; // dM/dT at v
  const double pTT = 2 * RGas * k.db / u2 + RT * k.d2b / u2 + 2 * RT * k.db * k.db / u3 - k.d2a / N +
                     2 * k.da * M / N2 + a * dM / N2 - 2 * a * M * M / N3;
  const double VT = -pT / pv;
  const double E1 = pTT + pTv * VT;
  const double E2 = pTv + pvv * VT;
  z.erste[1] = pv;
  z.erste[2] = pT;
  z.erste[3] = 1 / pv;
  z.erste[4] = VT;
  z.erste[5] = 1 / VT;
  z.erste[6] = 1 / pT;
  z.zweite[1] = pvv;
  z.zweite[4] = -(E1 + E2 * VT) / pv;
  z.zweite[5] = -(E1 / VT + E2) / pT / VT;
  return z;
}

// (d2p/dV2)_T at v; EOSbeiT(T) must have run (for the virial models B = BVirial).
double D2pDV2(const ProjectState& s, double T, double v) {
  const EOSGruppe& e = s.EOS;
  const double RT = RGas * T;
  if (s.Modell.VirialFlag) {
    const double u = v - e.BVirial;
    return 2 * RT / (u * u * u);
  }
  const double a = e.aT, c = e.cT, d = e.dT, u = v - e.bT;
  const double N = (v + c) * (v + d);
  return 2 * (RT / (u * u * u) - a * (3 * v * (v + c + d) + (c + d) * (c + d) - c * d) / (N * N * N));
}

// Step of the walk along the isotherm, the step count without a crossing after which it gives up,
// and the step size at which a zero counts as found.
constexpr double WendeSchritt = 0.0002;
constexpr int WendeSchritteMax = 12000;
constexpr double WendeGenauigkeit = 1e-12;
// Only a guard against a sign that flips without settling; the refinement needs a few hundred.
constexpr int WendeSchritteHart = 100000;

// Walks from vStart in steps of WendeSchritt; at each change of sign of d2p/dV2 the step turns and
// shrinks tenfold, until it is below WendeGenauigkeit.
bool WendepunktAb(const ProjectState& s, double T, double vStart, double& v, double& d2) {
  double schritt = WendeSchritt, vorher = 0;
  bool hatVorher = false, gekreuzt = false;
  v = vStart;
  for (int n = 1; n <= WendeSchritteHart; ++n) {
    v += schritt;
    d2 = D2pDV2(s, T, v);
    if (!std::isfinite(d2)) return false;
    if (d2 == 0) return true;
    if (hatVorher && vorher / d2 < 0) {
      schritt *= -0.1;
      gekreuzt = true;
      if (std::fabs(schritt) < WendeGenauigkeit) return true;
    }
    vorher = d2;
    hatVorher = true;
    if (!gekreuzt && n >= WendeSchritteMax) return false;
  }
  return false;
}

} // namespace

void AbleitungenPTV(ProjectState& s, int row, double T, double p, double v, Abl1Tabelle& Abl1,
                    Abl2Tabelle& Abl2, double& dB, double& ddB, const EOSAbleitungen& abl, int16_t& err) {
  err = 0;
  const EOSGruppe& e = s.EOS;
  Zeile z;
  if (s.Modell.VirialFlag) {
    const double B = e.BVirial;
    if (std::fabs(v - B) < 1e-11) {
      err = -1;
      return;
    }
    double dBT = 0, ddBT = 0;
    VirialAbleitungenT(s, s.Modell.EOSIndex, T, dBT, ddBT, err);
    if (err != 0) return;
    dB = dBT;
    ddB = ddBT;
    z = VirialZeile(T, p, v, B, dB, ddB);
  } else {
    if (std::fabs(v - e.bT) < 1e-11) {
      err = -1;
      return;
    }
    z = KubischeZeile(e, T, v, abl);
  }
  if (!Endlich(z.erste) || !Endlich(z.zweite)) {
    err = -1;
    return;
  }
  for (int k = 1; k <= 6; ++k)
    Abl1[row][k] = z.erste[k];
  for (int k : {1, 4, 5})
    Abl2[row][k] = z.zweite[k];
}

void MechKoeffizienten(int row, double p, double v, const Abl1Tabelle& Abl1, MechTabelle& Mech,
                       int16_t& err) {
  err = 0;
  const double alpha = Abl1[row][4] / v;
  const double chi = -Abl1[row][3] / v;
  const double beta = Abl1[row][2] / p;
  if (!AlleEndlich(alpha, chi, beta)) {
    err = -1;
    return;
  }
  Mech[row][1] = alpha;
  Mech[row][2] = chi;
  Mech[row][3] = beta;
}

void WendepunkteSuchen(ProjectState& s, double T, Wendepunkte& wp, int16_t& err) {
  err = 0;
  wp = Wendepunkte{};
  EOSbeiT(s, T);
  if (s.Modell.VirialFlag) s.EOS.BVirial = BvonT(s, s.Modell.EOSIndex, T);
  const double b = s.Modell.VirialFlag ? s.EOS.BVirial : s.EOS.bT;
  double v = 0, d2 = 0;
  if (!WendepunktAb(s, T, b, v, d2)) {
    err = -1;
    return;
  }
  int16_t pErr = 0;
  wp.v[0] = v;
  wp.d2p[0] = d2;
  wp.p[0] = PzuTV(s, T, v, pErr);
  // The second one from just behind the first; its absence is no error.
  if (WendepunktAb(s, T, v + 1e-6 - WendeSchritt, v, d2)) {
    wp.v[1] = v;
    wp.d2p[1] = d2;
    wp.p[1] = PzuTV(s, T, v, pErr);
  }
}

} // namespace quor
