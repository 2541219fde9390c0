#include "engine/saettigung.h"

#include "engine/eos_auswertung.h"
#include "engine/eos_zeilen.h"
#include "engine/korrelationen.h"
#include "engine/kubisch.h"
#include "engine/numerik.h"

#include <cmath>

namespace quor {

namespace {

// Saturation pressure: secant on the imbalance over p.
constexpr int pRunden = 300;
constexpr double pDaempfung = 0.1;         // shrinking of the step at a crossing
constexpr double pErsterSchritt = 0.01;    // relative to p
constexpr double pToleranz = 1e-5;         // on the imbalance
constexpr double pKleinsterSchritt = 1e-5; // kPa
constexpr double pRelSchrittMin = 1e-10;
constexpr double pImbAenderungMin = 1e-11;

// Saturation temperature, secant search (p/pKrit >= 0.02).
constexpr double SekantenGrenze = 0.02;
constexpr int TRunden = 200;
constexpr double TToleranz = 5e-5;
constexpr double TKleinsterSchritt = 1e-9;
constexpr double TRelSchrittMin = 1e-12;
constexpr double TImbAenderungMin = 1e-7;
constexpr double TRelSchrittMax = 0.01;

// Saturation temperature, scanning search (p/pKrit < 0.02).
constexpr double AbtastToleranz = 0.0002;
constexpr double AbtastSchrittMin = 0.0005; // K
// The scan has no count limit of its own; this bound only keeps a degenerate model from looping.
constexpr long AbtastRundenMax = 1000000;

// A step that ran the variable to zero or below: it starts again at 0.01/m (m counts these
// restarts) with a tenth of the way back to the previous value as its next step.
void NeuStartNahNull(double& x, double& schritt, double vorher, int& m) {
  ++m;
  x = 0.01 / m;
  schritt = (vorher - x) * 0.1;
}

double Fehlschlag(int16_t& err) {
  err = -1;
  return 0;
}

// The critical point: both saturated "volumes" are set to 1/rhoKritEOS, the reciprocal of a mass
// density, as the result pages expect it there.
void KritischerPunkt(ProjectState& s) {
  auto& r = s.EOS.VRoots;
  if (s.EOS.rhoKritEOS > 0) r[0] = 1 / s.EOS.rhoKritEOS;
  r[2] = r[0];
}

// Start pressure: the chosen vapour-pressure equation at T (silently), else a rough estimate that
// joins 1 kPa at T = 0 to pKrit at TKrit.
double StartDruck(ProjectState& s, double T) {
  double p = 0;
  if (s.Modell.DampfdruckIndex > DampfdruckKeine) {
    int16_t fehler = 0;
    p = pLV(s, T, s.Modell.DampfdruckIndex, false, fehler);
  }
  if (!(p >= 1e-6) || !std::isfinite(p)) p = std::exp(std::log(s.Stoff.pKrit) * T / s.Stoff.TKrit);
  return p;
}

// One root: which side of the loop the state lies on. -1 for a liquid-like root (below vKritEOS),
// otherwise the root itself, so that the product of two sides is negative at a crossing.
double SeiteVon(const ProjectState& s) {
  const double r0 = s.EOS.VRoots[0];
  return r0 < s.EOS.vKritEOS ? -1.0 : r0;
}

double SekantenSuche(ProjectState& s, double p, double& Imbalance, double& A, double& B, double TStart,
                     int16_t& err) {
  const EOSGruppe& e = s.EOS;
  const double Tc = s.Stoff.TKrit;
  double T = TStart != 0 ? TStart : std::log(p) * Tc / std::log(s.Stoff.pKrit);
  double schritt = 0, TVor = 0, imbVor = 0, seiteVor = 0;
  int n1 = 0, n3 = 0, m = 0;
  for (int runde = 1; runde <= TRunden; ++runde) {
    EOSbeiT(s, T);
    int16_t nRoots = 0, fehler = 0;
    KubischeWurzeln(s, T, p, nRoots, fehler);
    if (fehler != 0 || !(e.VRoots[0] > e.bT)) return Fehlschlag(err);
    if (nRoots == 1) {
      if (++n1 > 200) break;
      const double seite = SeiteVon(s);
      if (n1 > 1 && seiteVor * seite < 0) schritt *= 0.1;
      if (n1 == 1) {
        schritt *= 0.1;
        if (std::fabs(schritt) < TKleinsterSchritt) schritt = 0.01 * T;
      }
      // A liquid-like root means the isobar is below its boiling point: warm up.
      schritt = seite < 0 ? std::fabs(schritt) : -std::fabs(schritt);
      seiteVor = seite;
    } else {
      ++n3;
      n1 = 0;
      const double imb = GleichgewichtsFlaeche(s, T, p, A, B, fehler);
      if (fehler != 0) return Fehlschlag(err);
      Imbalance = imb;
      if (n3 > 1) {
        if (std::fabs(imb) < TToleranz) return T;
        if (std::fabs(imb - imbVor) <= TImbAenderungMin) {
          schritt = imb > imbVor ? -0.01 * T : 0.01 * T;
        } else {
          schritt = -(T - TVor) * imb / (imb - imbVor);
        }
        if (std::fabs(schritt) > TRelSchrittMax * T) schritt = std::copysign(TRelSchrittMax * T, schritt);
        if (std::fabs(schritt / T) < TRelSchrittMin) return Fehlschlag(err);
      } else {
        if (std::fabs(schritt) < TKleinsterSchritt) schritt = 0.01 * T;
        if (imb > 0) schritt = -std::fabs(schritt);
        if (imb < 0) schritt = std::fabs(schritt);
      }
      TVor = T;
      imbVor = imb;
    }
    T += schritt;
    if (std::fabs(T - Tc) < 0.0001) return T;
    if (T < 1e-10) NeuStartNahNull(T, schritt, TVor, m);
    if (!std::isfinite(T)) return Fehlschlag(err);
  }
  err = -1;
  return T;
}

// Low pressures: the loop is too flat for a secant from a rough start, so T walks down from TKrit
// in fixed steps and turns back with a tenth of the step at each change of sign of the imbalance.
// The step is (pKrit - p)/100, a pressure difference used as a temperature step.
double Abtastsuche(ProjectState& s, double p, double& Imbalance, double& A, double& B, int16_t& err) {
  const EOSGruppe& e = s.EOS;
  double schritt = (s.Stoff.pKrit - p) / 100;
  double T = s.Stoff.TKrit + schritt;
  double vorher = p;
  for (long runde = 0; runde < AbtastRundenMax; ++runde) {
    T -= schritt;
    if (T <= 0) {
      T += schritt;
      schritt *= 0.1;
      if (schritt == 0) break;
      continue;
    }
    if (!std::isfinite(T)) break;
    EOSbeiT(s, T);
    int16_t nRoots = 0, fehler = 0;
    KubischeWurzeln(s, T, p, nRoots, fehler);
    if (fehler != 0 || !(e.VRoots[0] > e.bT)) return Fehlschlag(err);
    if (nRoots == 1) continue;
    const double imb = GleichgewichtsFlaeche(s, T, p, A, B, fehler);
    if (fehler != 0) return Fehlschlag(err);
    Imbalance = imb;
    const double Q = vorher / imb;
    vorher = imb;
    if (Q > 0) continue;
    schritt *= -0.1;
    if (std::fabs(imb) >= AbtastToleranz && std::fabs(schritt) >= AbtastSchrittMin) continue;
    err = T >= 1e-6 ? 0 : -1;
    return T;
  }
  return Fehlschlag(err);
}

} // namespace

double pLVbeiT(ProjectState& s, double T, double& Imbalance, double& A, double& B, int16_t& err) {
  const EOSGruppe& e = s.EOS;
  const double Tc = s.Stoff.TKrit, pc = s.Stoff.pKrit;
  if (T == Tc) {
    KritischerPunkt(s);
    return pc;
  }
  EOSbeiT(s, T);
  if (T >= Tc || s.Modell.EOSIndex == eos::Keine || s.Modell.VirialFlag) return Fehlschlag(err);
  err = 0;
  Imbalance = 0;
  double p = StartDruck(s, T);
  double schritt = 0, pVor = 0, imbVor = 0, seiteVor = 0;
  int n1 = 0, n3 = 0, m = 0;
  for (int runde = 1; runde <= pRunden; ++runde) {
    int16_t nRoots = 0, fehler = 0;
    KubischeWurzeln(s, T, p, nRoots, fehler);
    if (fehler != 0 || !(e.VRoots[0] > e.bT)) return Fehlschlag(err);
    if (nRoots == 1) {
      ++n1;
      const double seite = SeiteVon(s);
      if (n1 > 1 && seiteVor * seite < 1e-6) schritt *= pDaempfung; // crossed over the loop
      if (n1 == 1) {
        schritt *= pDaempfung;
        if (std::fabs(schritt) < pKleinsterSchritt) schritt = -pErsterSchritt * p;
      }
      // A liquid-like root means p lies above the loop: lower it.
      schritt = seite < 0 ? -std::fabs(schritt) : std::fabs(schritt);
      seiteVor = seite;
    } else {
      ++n3;
      n1 = 0;
      const double imb = GleichgewichtsFlaeche(s, T, p, A, B, fehler);
      if (fehler != 0) return Fehlschlag(err);
      Imbalance = imb;
      if (n3 == 1) {
        if (std::fabs(schritt) < pKleinsterSchritt) schritt = pErsterSchritt * p;
        if (imb < 0) schritt = -std::fabs(schritt);
        if (imb > 0) schritt = std::fabs(schritt);
      } else {
        if (std::fabs(imb) < pToleranz) return p;
        if (std::fabs(imb - imbVor) <= pImbAenderungMin) {
          schritt = imb < imbVor ? -pErsterSchritt * p : pErsterSchritt * p;
        } else {
          schritt = -(p - pVor) * imb / (imb - imbVor);
          if (std::fabs(schritt / p) < pRelSchrittMin) {
            err = -1; // the step has run dry without convergence
            return p;
          }
        }
      }
      pVor = p;
      imbVor = imb;
    }
    p += schritt;
    if (Einfach(p) == Einfach(pc)) return p;
    if (p < 1e-10) NeuStartNahNull(p, schritt, pVor, m);
    if (!std::isfinite(p)) return Fehlschlag(err);
  }
  err = -1;
  return p;
}

double TLVbeiP(ProjectState& s, double p, double& Imbalance, double& A, double& B, double& TStart,
               int16_t& err) {
  const double Tc = s.Stoff.TKrit, pc = s.Stoff.pKrit;
  if (p == pc) {
    KritischerPunkt(s);
    return Tc;
  }
  if (p > pc) return Fehlschlag(err);
  err = 0;
  if (p / pc >= SekantenGrenze) return SekantenSuche(s, p, Imbalance, A, B, TStart, err);
  return Abtastsuche(s, p, Imbalance, A, B, err);
}

} // namespace quor
