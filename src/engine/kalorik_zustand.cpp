// The caloric values of a state and of the two saturated phases at T: ideal-gas part plus residual
// part, and the exergies against the environment state.
#include "engine/eos_auswertung.h"
#include "engine/kalorik_intern.h"
#include "engine/numerik.h"
#include "engine/saettigung.h"
#include "engine/virial.h"
#include "engine/zustand.h"

#include <cmath>

namespace quor {

namespace {

using kalorik::PhiSpalten;

// h, u, s, g, a from the ideal-gas part and row `row` of ResFunk; cp, cv, w as the table holds them.
void AusTabelle(const ResFunkTabelle& ResFunk, int row, double T, double p, double v, double hIdG,
                double sIdG, double cpIdG, KalorischeWerte& w) {
  const auto& r = ResFunk[row];
  w.h = hIdG + RGas * r[4];
  w.u = w.h - p * v;
  w.s = sIdG + RGas * r[3];
  w.g = w.h - T * w.s;
  w.a = w.g - p * v;
  w.cp = r[9];
  w.cv = r[8];
  w.w = r[10];
  w.cpIdG = cpIdG;
}

// The solvers and the caloric routines use the EOS fields as work space; the state asked for is
// described again by the EOS at T, B at T and the saturated roots at T.
void ZustandBeiTWiederherstellen(ProjectState& s, double T) {
  EOSbeiT(s, T);
  if (s.Modell.VirialFlag) s.EOS.BVirial = BvonT(s, s.Modell.EOSIndex, T);
  double imbalance = 0, A = 0, B = 0;
  int16_t err = 0;
  pLVbeiT(s, T, imbalance, A, B, err);
}

struct Phasen {
  bool istL = false, istV = false;
  double vL = 0, vV = 0;
};

bool PhasenBeiTP(ProjectState& s, double T, double p, Phasen& ph) {
  double rhoV = 0, rhoL = 0, imbalance = 0, A = 0, B = 0;
  int16_t region = s.EOS.Gebiet, nRoots = 0, err = 0;
  std::string meldung;
  VzuTP(s, T, p, region, ph.istL, ph.istV, rhoV, rhoL, ph.vV, ph.vL, nRoots, imbalance, A, B, meldung, err);
  return err == 0;
}

} // namespace

void UmgebungAuswerten(ProjectState& s, Umgebung& umg, int16_t& err) {
  err = 0;
  const double Tu = s.Referenz.TUmgebung, pu = s.Referenz.pUmgebung;
  double hIdG = 0, sIdG = 0, cpIdG = 0;
  IdealgasFunktionen(s, Tu, pu, hIdG, sIdG, cpIdG, err);
  if (err != 0) return;
  Phasen ph;
  if (!PhasenBeiTP(s, Tu, pu, ph) || !(ph.istL || ph.istV)) {
    err = -1;
    return;
  }
  KalorikTabellen tab;
  for (int row : {PhaseL, PhaseV}) {
    const bool da = row == PhaseL ? ph.istL : ph.istV;
    const double v = row == PhaseL ? ph.vL : ph.vV;
    if (!da) continue;
    int16_t phiErr = 0;
    if (!PhiSpalten(s, row, Tu, pu, v, tab.Abl1, tab.Abl2, tab.ResFunk, phiErr)) {
      err = -1;
      return;
    }
    umg.h[row] = hIdG + RGas * tab.ResFunk[row][4];
    umg.s[row] = sIdG + RGas * tab.ResFunk[row][3];
    umg.u[row] = umg.h[row] - pu * v;
    umg.v[row] = v;
  }
  // Where one phase exists only, it stands for the other one.
  const int fehlt = !ph.istL ? PhaseL : (!ph.istV ? PhaseV : -1);
  if (fehlt >= 0) {
    const int da = 1 - fehlt;
    umg.h[fehlt] = umg.h[da];
    umg.s[fehlt] = umg.s[da];
    umg.u[fehlt] = umg.u[da];
    umg.v[fehlt] = umg.v[da];
  }
}

void Exergien(const ProjectState& s, const Umgebung& umg, int row, double v, KalorischeWerte& w) {
  const double Tu = s.Referenz.TUmgebung, pu = s.Referenz.pUmgebung;
  w.eh = (w.h - umg.h[row]) - (w.s - umg.s[row]) * Tu;
  w.eu = (w.u - umg.u[row]) - (w.s - umg.s[row]) * Tu + (v - umg.v[row]) * pu;
}

void ThermoFunktionen(ProjectState& s, double T, double p, double v, int row, KalorikTabellen& tab,
                      KalorischeWerte& werte, int16_t& err) {
  err = 0;
  double hIdG = 0, sIdG = 0, cpIdG = 0;
  IdealgasFunktionen(s, T, p, hIdG, sIdG, cpIdG, err);
  if (err != 0) return;
  int16_t phiErr = 0;
  const bool residual = PhiSpalten(s, row, T, p, v, tab.Abl1, tab.Abl2, tab.ResFunk, phiErr);
  if (residual) AusTabelle(tab.ResFunk, row, T, p, v, hIdG, sIdG, cpIdG, werte);
  if (phiErr != 0) err = -1;
  if (residual) {
    // The environment is one phase: the vapour where it exists, else the liquid (row 1 holds it).
    Umgebung umg;
    int16_t umgErr = 0;
    UmgebungAuswerten(s, umg, umgErr);
    if (umgErr == 0)
      Exergien(s, umg, PhaseV, v, werte);
    else
      err = -1;
  }
  ZustandBeiTWiederherstellen(s, T);
}

void ThermoFunktionen(ProjectState& s, double T, double p, double v, int row, KalorischeWerte& werte,
                      int16_t& err) {
  KalorikTabellen tab;
  ThermoFunktionen(s, T, p, v, row, tab, werte, err);
}

void SaettigungsFunktionen(ProjectState& s, double T, KalorikTabellen& tab, SaettigungsWerte& erg,
                           int16_t& err) {
  err = 0;
  EOSbeiT(s, T);
  const StoffGruppe& st = s.Stoff;
  const bool kritisch = T == st.TKrit;
  double p = st.pKrit;
  if (!kritisch) {
    double imbalance = 0, A = 0, B = 0;
    p = pLVbeiT(s, T, imbalance, A, B, err);
    if (err != 0 || !(p > 0)) {
      err = -1;
      return;
    }
  }
  Phasen ph;
  if (kritisch && s.EOS.rhoKritEOS > 0) {
    ph.vL = ph.vV = st.MolMasse / s.EOS.rhoKritEOS;
  } else if (!PhasenBeiTP(s, T, p, ph)) {
    err = -1;
    return;
  }
  // Next to the critical point the solver may keep one root only; both phases are that root there.
  if (!(ph.vL > 0)) ph.vL = ph.vV;
  if (!(ph.vV > 0)) ph.vV = ph.vL;
  if (!(ph.vL > 0)) {
    err = -1;
    return;
  }
  double hIdG = 0, sIdG = 0, cpIdG = 0;
  IdealgasFunktionen(s, T, p, hIdG, sIdG, cpIdG, err);
  if (err != 0) return;
  erg.p = p;
  erg.vL = ph.vL;
  erg.vV = ph.vV;
  Umgebung umg;
  int16_t umgErr = -1;
  bool umgFertig = false;
  for (int row : {PhaseL, PhaseV}) {
    const double v = row == PhaseL ? ph.vL : ph.vV;
    int16_t phiErr = 0;
    const bool residual = PhiSpalten(s, row, T, p, v, tab.Abl1, tab.Abl2, tab.ResFunk, phiErr);
    if (phiErr != 0) err = -1;
    if (!residual) continue;
    AusTabelle(tab.ResFunk, row, T, p, v, hIdG, sIdG, cpIdG, erg.phase[row]);
    if (!umgFertig) {
      UmgebungAuswerten(s, umg, umgErr);
      umgFertig = true;
    }
    if (umgErr == 0) Exergien(s, umg, row, v, erg.phase[row]);
  }
  if (umgErr != 0) err = -1;
  ZustandBeiTWiederherstellen(s, T);
}

void SaettigungsFunktionen(ProjectState& s, double T, SaettigungsWerte& erg, int16_t& err) {
  KalorikTabellen tab;
  SaettigungsFunktionen(s, T, tab, erg, err);
}

} // namespace quor
