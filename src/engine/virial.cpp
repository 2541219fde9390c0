#include "engine/virial.h"

#include "engine/eos_auswertung.h"
#include "engine/eos_zeilen.h"
#include "engine/numerik.h"

#include <cmath>

namespace quor {

namespace {

// Rows whose derivatives follow from the cubic quantities a, b (the ideal gas and the hand input
// with their a0 = 0 among them).
bool HatKubischeAbleitung(int16_t index) {
  return index == eos::Idealgas || index == eos::VirialHand || eos::BAusKubischerForm(index);
}

double PitzerCurl(const ProjectState& s, double T) {
  const double Tr = T / s.Stoff.TKrit;
  const double Tr2 = Tr * Tr, Tr3 = Tr2 * Tr, Tr8 = Tr3 * Tr3 * Tr2;
  const double f0 = 0.1445 - 0.33 / Tr - 0.1385 / Tr2 - 0.0121 / Tr3;
  const double f1 = 0.073 + 0.46 / Tr - 0.5 / Tr2 - 0.097 / Tr3 - 0.0073 / Tr8;
  return (f0 + s.Stoff.omega * f1) * RGas * s.Stoff.TKrit / s.Stoff.pKrit;
}

void PitzerCurlAbleitungen(const ProjectState& s, double T, double& dB, double& d2B) {
  const double Tr = T / s.Stoff.TKrit;
  const double Tr2 = Tr * Tr, Tr3 = Tr2 * Tr, Tr8 = Tr3 * Tr3 * Tr2;
  const double pc = s.Stoff.pKrit, omega = s.Stoff.omega;
  const double g0 = 0.277 / Tr2 + 0.33 / Tr + 0.0363 / Tr3;
  const double g1 = 0.291 / Tr3 + 1 / Tr2 - 0.46 / Tr + 0.0584 / Tr8;
  const double k0 = 0.831 / Tr2 + 0.66 / Tr + 0.1452 / Tr3;
  const double k1 = 1.164 / Tr3 + 3 / Tr2 - 0.92 / Tr + 0.5256 / Tr8;
  dB = (g0 + omega * g1) * (RGas / Tr) / pc;
  d2B = -(RGas / (Tr * pc * T)) * (k0 + omega * k1);
}

} // namespace

double BvonT(ProjectState& s, int16_t EOSIndex, double T) {
  if (T < 1e-6) return 0;
  EOSGruppe& e = s.EOS;
  if (e.aForm == 2) {
    const double alpha = 1 + e.aExp * (1 - std::sqrt(T / s.Stoff.TKrit));
    e.aT = e.a0 * alpha * alpha;
  } else {
    e.aT = e.a0 * std::pow(T, e.aExp);
  }
  e.bT = e.b0 * std::pow(T, e.bExp);
  double B = 0;
  if (eos::BAusKubischerForm(EOSIndex)) {
    EOSbeiT(s, T);
    B = e.bT - e.aT / (RGas * T);
  } else if (EOSIndex == eos::VirialHand) {
    B = e.b0 - e.bExp / std::pow(T, e.BExpHand);
  } else if (EOSIndex == eos::VirialPitzerCurl) {
    B = PitzerCurl(s, T);
  }
  return std::isfinite(B) ? B : 0.0;
}

void VirialAbleitungenT(ProjectState& s, int16_t EOSIndex, double T, double& dB, double& d2B, int16_t& err) {
  dB = d2B = 0;
  err = 0;
  if (T < 1e-6) return;
  if (EOSIndex == eos::VirialPitzerCurl) {
    PitzerCurlAbleitungen(s, T, dB, d2B);
  } else if (HatKubischeAbleitung(EOSIndex)) {
    BvonT(s, EOSIndex, T);
    EOSAbleitungen abl;
    EOSAbleitungenT(s, T, abl, err);
    if (err != 0) return;
    const double a = s.EOS.aT;
    const double RT = RGas * T;
    dB = (a / T - abl.da) / RT + abl.db;
    d2B = abl.d2b - (2 * (a / T - abl.da) + T * abl.d2a) / RT / T;
  }
  if (!AlleEndlich(dB, d2B)) {
    dB = d2B = 0;
    err = -1;
  }
}

} // namespace quor
