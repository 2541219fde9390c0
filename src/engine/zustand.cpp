#include "engine/zustand.h"

#include "engine/eos_auswertung.h"
#include "engine/kubisch.h"
#include "engine/numerik.h"
#include "engine/saettigung.h"
#include "engine/virial.h"

#include <cmath>

namespace quor {

const char* const MeldungNurDampf = "EOS nur für die V-Phase anwendbar!";
const char* const MeldungEineLoesung = "1 V-Lösung der EOS";
const char* const MeldungDreiLoesungen = "3 V-Lösungen der EOS";
const char* const MeldungKeineLoesung = "keine Lösung gefunden";
const char* const ZusatzUeberkritisch = "; überkritisch";
const char* const ZusatzKritisch = "; kritisch";

namespace {

// Half width of the saturation line in the normalised area imbalance.
constexpr double SaettigungsBand = 0.001;
// Distance from vKritEOS (m^3/kmol) within which a single root counts as the critical point.
constexpr double KritischerAbstand = 0.001;

int16_t RegionVon(const ProjectState& s, double T, double p, int16_t bisher) {
  const double Tc = s.Stoff.TKrit, pc = s.Stoff.pKrit;
  if (Einfach(p) == Einfach(pc) && T == Tc) return GebietSubkritisch;
  if (Einfach(pc) >= Einfach(p) && T < Tc) return GebietSubkritisch;
  if (T >= Tc && p >= pc) return GebietUeberkritisch;
  if (T <= Tc && p >= pc) return GebietKomprimiert;
  if (T >= Tc && p <= pc) return GebietUeberhitzt;
  return bisher; // only a NaN input falls through
}

void EineWurzel(const ProjectState& s, double T, double p, int16_t& Region, bool& istL, bool& istV,
                double& rhoV, double& rhoL, double& vV, double& vL, std::string& Meldung) {
  const double Tc = s.Stoff.TKrit, pc = s.Stoff.pKrit;
  const double vKrit = s.EOS.vKritEOS;
  const double r0 = s.EOS.VRoots[0];
  const double rho = s.Stoff.MolMasse / r0;
  Meldung = MeldungEineLoesung;
  if (T == Tc && p == pc) {
    istL = istV = true;
    vV = vL = r0;
    rhoV = rhoL = rho;
  } else if (T <= Tc && p <= pc) {
    if (r0 < vKrit) {
      istL = true;
      istV = false;
      vL = r0;
      if (r0 > 0) rhoL = rho;
    } else if (r0 > vKrit) {
      istV = true;
      istL = false;
      vV = r0;
      if (r0 > 0) rhoV = rho;
    }
  } else {
    istL = istV = true;
    vV = vL = r0;
    rhoV = rhoL = rho;
    Meldung += ZusatzUeberkritisch;
  }
  if (std::fabs(r0 - vKrit) < KritischerAbstand) {
    Region = GebietKritisch;
    istL = istV = true;
    Meldung += ZusatzKritisch;
  }
}

// Three roots: the stable phase from the sign of the area imbalance. Returns false when the roots
// are unusable or the areas are not finite.
bool DreiWurzeln(ProjectState& s, double T, double p, bool& istL, bool& istV, double& rhoV, double& rhoL,
                 double& vV, double& vL, double& Imbalance, double& A, double& B, std::string& Meldung) {
  const auto& r = s.EOS.VRoots;
  const double b = s.EOS.bT;
  Meldung = MeldungDreiLoesungen;
  if (!(r[0] > b && (r[2] - b) / (r[1] - b) >= 1e-6 && (r[1] - b) / (r[0] - b) >= 1e-6)) {
    Meldung = MeldungKeineLoesung;
    return false;
  }
  const double M = s.Stoff.MolMasse;
  vV = r[2];
  rhoV = M / r[2];
  vL = r[0];
  rhoL = M / r[0];
  int16_t fehler = 0;
  Imbalance = GleichgewichtsFlaeche(s, T, p, A, B, fehler);
  if (fehler != 0) return false;
  if (std::fabs(Imbalance) < SaettigungsBand) istL = istV = true;
  if (Imbalance >= SaettigungsBand || (Imbalance < SaettigungsBand && T > s.Stoff.TKrit)) {
    istV = true;
    istL = false;
  }
  if (Imbalance <= -SaettigungsBand) {
    istL = true;
    istV = false;
  }
  return true;
}

double Fehlschlag(int16_t& err) {
  err = -1;
  return 0;
}

double TzuPRhoVirial(ProjectState& s, double p, double v, int16_t& err) {
  double T = p * v / RGas;
  for (int runde = 0; runde < 1000; ++runde) {
    const double TNeu = (v - BvonT(s, s.Modell.EOSIndex, T)) * p / RGas;
    if (!(TNeu >= 0) || !std::isfinite(TNeu)) return Fehlschlag(err);
    const bool fertig = std::fabs(TNeu - T) < 0.001;
    T = TNeu;
    if (fertig) return T;
  }
  return Fehlschlag(err);
}

// Newton on the EOS solved for T at given p and v, with a forward-difference derivative.
bool TAusEOS(ProjectState& s, double p, double v, double& T) {
  const EOSGruppe& e = s.EOS;
  auto g = [&](double t) {
    EOSbeiT(s, t);
    return (e.aT / ((v + e.dT) * (v + e.cT)) + p) * (v - e.bT) / RGas - t;
  };
  for (int schritt = 0; schritt < 2000; ++schritt) {
    const double g0 = g(T);
    const double ableitung = (g(T + 1e-6) - g0) / 1e-6;
    const double dT = -g0 / ableitung;
    T += dT;
    if (!std::isfinite(T)) return false;
    if (std::fabs(dT) / T <= 1e-5) return true;
  }
  return false;
}

// Newton on pLV(T) - p near the critical point, with a forward-difference derivative.
bool SaettigungsTNewton(ProjectState& s, double p, double& T) {
  double imbalance, A, B;
  int16_t fehler;
  const double Tc = s.Stoff.TKrit;
  for (int schritt = 0; schritt < 2000; ++schritt) {
    const double p0 = pLVbeiT(s, T, imbalance, A, B, fehler);
    if (p0 == 0) {
      T -= Tc / 10;
      if (!(T > 0)) return false;
      continue;
    }
    const double p1 = pLVbeiT(s, T + 1e-6, imbalance, A, B, fehler);
    const double dT = -(p0 - p) / ((p1 - p0) / 1e-6);
    T += dT;
    if (!std::isfinite(T)) return false;
    if (std::fabs(dT) / T <= 1e-5) return true;
  }
  return false;
}

} // namespace

void VzuTP(ProjectState& s, double T, double p, int16_t& Region, bool& istL, bool& istV, double& rhoV,
           double& rhoL, double& vV, double& vL, int16_t& nRoots, double& Imbalance, double& A, double& B,
           std::string& Meldung, int16_t& err) {
  err = 0;
  Meldung.clear();
  nRoots = 0;
  if (s.Modell.VirialFlag) {
    s.EOS.BVirial = BvonT(s, s.Modell.EOSIndex, T);
    Meldung = MeldungNurDampf;
    istL = false;
    istV = true;
    const double v = RGas * T / p + s.EOS.BVirial;
    const double rho = s.Stoff.MolMasse / v;
    if (!AlleEndlich(v, rho)) {
      err = -1;
      return;
    }
    vV = v;
    rhoV = rho;
    return;
  }
  Region = RegionVon(s, T, p, Region);
  EOSbeiT(s, T);
  int16_t wurzelFehler = 0;
  KubischeWurzeln(s, T, p, nRoots, wurzelFehler);
  const auto& r = s.EOS.VRoots;
  if (wurzelFehler != 0 || !(r[0] > s.EOS.bT) || !AlleEndlich(s.Stoff.MolMasse / r[0], r[1], r[2])) {
    err = -1;
    return;
  }
  if (nRoots < 2) {
    EineWurzel(s, T, p, Region, istL, istV, rhoV, rhoL, vV, vL, Meldung);
  } else if (!DreiWurzeln(s, T, p, istL, istV, rhoV, rhoL, vV, vL, Imbalance, A, B, Meldung)) {
    err = -1;
  }
}

double PzuTV(ProjectState& s, double T, double v, int16_t& err) {
  err = 0;
  EOSGruppe& e = s.EOS;
  if (s.Modell.VirialFlag) e.bT = BvonT(s, s.Modell.EOSIndex, T);
  if (!(v > e.bT)) return Fehlschlag(err);
  double p;
  if (s.Modell.VirialFlag) {
    p = RGas * T / (v - e.bT);
  } else {
    EOSbeiT(s, T);
    p = RGas * T / (v - e.bT) - (e.aT / (v + e.cT)) / (v + e.dT);
  }
  return std::isfinite(p) ? p : Fehlschlag(err);
}

double TzuPRho(ProjectState& s, double p, double rho, bool ohnePhasenTest, int16_t& err) {
  err = 0;
  const double v = s.Stoff.MolMasse / rho;
  if (!AlleEndlich(p, v)) return Fehlschlag(err);
  if (s.Modell.VirialFlag) return TzuPRhoVirial(s, p, v, err);

  const double Tc = s.Stoff.TKrit;
  double T = Einfach(p) >= Einfach(s.Stoff.pKrit) ? Tc : s.Stoff.TSiede;
  if (!TAusEOS(s, p, v, T) || !(T > 0)) return Fehlschlag(err);
  if (T >= Tc || ohnePhasenTest) return T;

  EOSbeiT(s, T);
  int16_t nRoots = 0, fehler = 0;
  KubischeWurzeln(s, T, p, nRoots, fehler);
  if (fehler != 0 || nRoots == 1) return T;

  double imbalance, A, B;
  const double pSaett = pLVbeiT(s, T, imbalance, A, B, fehler);
  if (pSaett == 0) return Fehlschlag(err);
  // pLVbeiT leaves the saturated volumes at T in VRoots[0] and VRoots[2].
  if (v <= s.EOS.VRoots[0] || v >= s.EOS.VRoots[2]) return T;

  // Inside the two-phase region: the temperature is the saturation temperature at p.
  if (Einfach(s.Stoff.pKrit) / 1.5 > Einfach(p)) {
    double ohneStart = 0;
    T = TLVbeiP(s, p, imbalance, A, B, ohneStart, err);
  } else if (!SaettigungsTNewton(s, p, T)) {
    return Fehlschlag(err);
  }
  if (!(T >= 0) || !std::isfinite(T)) return Fehlschlag(err);
  return T;
}

} // namespace quor
