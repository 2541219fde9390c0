#include "engine/hlv_zustand.h"

#include "engine/kalorik_intern.h"
#include "engine/numerik.h"
#include "engine/saettigung.h"
#include "engine/zustand.h"

#include <cmath>
#include <string>

namespace quor {

namespace {

double Fehlschlag(int16_t& failed) {
  failed = -1;
  return 0;
}

struct ZweiPhasen {
  bool istL = false, istV = false;
  double rhoV = 0, rhoL = 0, vV = 0, vL = 0;
  int16_t nRoots = 0;
};

bool LoeseTP(ProjectState& s, double T, double p, ZweiPhasen& z) {
  double imbalance = 0, A = 0, B = 0;
  int16_t region = s.EOS.Gebiet, err = 0;
  std::string meldung;
  VzuTP(s, T, p, region, z.istL, z.istV, z.rhoV, z.rhoL, z.vV, z.vL, z.nRoots, imbalance, A, B, meldung, err);
  return err == 0;
}

// The critical density of the straight diameter: the measured one, else the EOS's own.
double KritischeDichte(const ProjectState& s) {
  return s.Stoff.rhoKritExp > 1e-6 ? s.Stoff.rhoKritExp : s.EOS.rhoKritEOS;
}

// p at T from the EOS's saturation, with its note; false on failure.
bool DruckVonEOS(ProjectState& s, double T, double& p, HLVErgebnis& erg) {
  double imbalance = 0, A = 0, B = 0;
  int16_t e = -1;
  p = T > 1e-6 ? pLVbeiT(s, T, imbalance, A, B, e) : 0;
  if (e == 0 && p > 1e-6) {
    erg.notizen.push_back("p = p(LV) von kubischer EOS");
    return true;
  }
  p = 0;
  erg.notizen.push_back("p(LV) von EOS: Fehler " + std::to_string(e));
  return false;
}

// T at p from the EOS's saturation, with its note; false on failure or above TKrit.
bool TemperaturVonEOS(ProjectState& s, double p, double& T, HLVErgebnis& erg) {
  double imbalance = 0, A = 0, B = 0, ohneStart = 0;
  int16_t e = 0;
  T = TLVbeiP(s, p, imbalance, A, B, ohneStart, e);
  if (e != 0 || !(T > 1e-6)) {
    T = 0;
    erg.notizen.push_back("T(LV) von EOS: Fehler " + std::to_string(e));
    return false;
  }
  erg.notizen.push_back("T = T(LV) von kubischer EOS");
  if (T > s.Stoff.TKrit) {
    erg.notizen.push_back("T > T(cr)!");
    return false;
  }
  return true;
}

} // namespace

double HLVAusDichten(ProjectState& s, int methode, double T, double p, int index, bool warn, HLVErgebnis& erg,
                     int16_t& failed, ui::Oberflaeche* ui) {
  failed = 0;
  ZweiPhasen z;
  LoeseTP(s, T, p, z);
  const double rhoV = z.rhoV;
  if (!(std::fabs(rhoV) > 1e-6)) return Fehlschlag(failed);
  int16_t f = 0;
  double rhoL = 0;
  if (methode == HLVAusRhoL) {
    rhoL = RhoL(s, T, warn, f, ui);
  } else {
    const ReferenzGruppe& r = s.Referenz;
    rhoL = BensonRhoL(T, s.Stoff.TKrit, KritischeDichte(s), rhoV, r.BezugT, r.BezugP, r.BezugRhoV,
                      r.BezugRhoL, f);
  }
  if (f != 0 || !(rhoL > 1e-6)) return Fehlschlag(failed);
  const double M = s.Stoff.MolMasse, RT = RGas * T;
  erg.zV = M * p / (RT * rhoV);
  erg.zL = M * p / (RT * rhoL);
  const double steigung = DLnpDInvT(s, T, index, f);
  const double h = -RGas * steigung * (erg.zV - erg.zL);
  if (f != 0 || !std::isfinite(h)) return Fehlschlag(failed);
  return h;
}

double HLVAusEOS(ProjectState& s, double& T, double& p, HLVErgebnis& erg, int16_t& failed) {
  failed = 0;
  if (!(p > 1e-6) && !DruckVonEOS(s, T, p, erg)) return Fehlschlag(failed);
  if (!(T > 1e-6) && !TemperaturVonEOS(s, p, T, erg)) return Fehlschlag(failed);
  ZweiPhasen z;
  const bool zweiWurzeln = LoeseTP(s, T, p, z) && (z.nRoots == 3 || (z.istL && z.istV));
  if (!zweiWurzeln || !(z.vL > 0) || !(z.vV > 0)) return Fehlschlag(failed);
  KalorikTabellen tab;
  int16_t e = 0;
  if (!kalorik::PhiSpalten(s, PhaseL, T, p, z.vL, tab.Abl1, tab.Abl2, tab.ResFunk, e) ||
      !kalorik::PhiSpalten(s, PhaseV, T, p, z.vV, tab.Abl1, tab.Abl2, tab.ResFunk, e))
    return Fehlschlag(failed);
  const double RT = RGas * T;
  erg.zV = p * z.vV / RT;
  erg.zL = p * z.vL / RT;
  const double h = RGas * (tab.ResFunk[PhaseV][4] - tab.ResFunk[PhaseL][4]);
  return std::isfinite(h) ? h : Fehlschlag(failed);
}

} // namespace quor
