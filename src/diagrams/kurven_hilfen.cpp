#include "diagrams/kurven_hilfen.h"

#include "engine/eos_auswertung.h"
#include "engine/kubisch.h"
#include "engine/saettigung.h"
#include "engine/zustand.h"

#include <string>

namespace quor::kurven {

namespace {

// A saturation with both volumes: a search that stops at p(cr) just below T(cr) leaves the roots of
// its last single-root state, which are no saturated pair.
bool SaettigungGueltig(const Koexistenz& k) {
  return std::isfinite(k.p) && std::isfinite(k.vL) && std::isfinite(k.vV) && k.p > 1e-6 && k.vL > 0 &&
         k.vV >= k.vL;
}

void SattVolumen(const ProjectState& s, Koexistenz& k) {
  k.vL = s.EOS.VRoots[0];
  k.vV = s.EOS.VRoots[2];
}

} // namespace

bool KoexistenzBeiT(ProjectState& s, double T, Koexistenz& k) {
  double imbalance = 0, A = 0, B = 0;
  int16_t err = 0;
  k.T = T;
  EOSbeiT(s, T); // at T(cr) the solver returns before it evaluates the EOS, and bT must be that of T
  k.p = pLVbeiT(s, T, imbalance, A, B, err);
  if (err != 0) return false;
  SattVolumen(s, k);
  return SaettigungGueltig(k);
}

bool KoexistenzBeiP(ProjectState& s, double p, double& TStart, Koexistenz& k) {
  double imbalance = 0, A = 0, B = 0;
  int16_t err = 0;
  double start = TStart;
  k.p = p;
  k.T = TLVbeiP(s, p, imbalance, A, B, start, err);
  if (err != 0 || !(k.T > 1e-6) || !std::isfinite(k.T)) return false;
  SattVolumen(s, k);
  TStart = k.T;
  return SaettigungGueltig(k);
}

bool Wurzeln(ProjectState& s, double T, double p, int16_t& nRoots) {
  int16_t err = 0;
  EOSbeiT(s, T);
  KubischeWurzeln(s, T, p, nRoots, err);
  return err == 0 && (nRoots == 1 || nRoots == 3);
}

bool StabilesVolumen(ProjectState& s, double T, double p, double& v) {
  bool istL = false, istV = false;
  double rhoV = 0, rhoL = 0, vV = 0, vL = 0, imbalance = 0, A = 0, B = 0;
  int16_t nRoots = 0, err = 0;
  std::string meldung;
  VzuTP(s, T, p, s.EOS.Gebiet, istL, istV, rhoV, rhoL, vV, vL, nRoots, imbalance, A, B, meldung, err);
  if (err != 0 || !(istL || istV)) return false;
  v = istV ? vV : vL;
  return std::isfinite(v) && v > 0;
}

} // namespace quor::kurven
