// Caloric functions of a state fixed by the solvers: the ideal-gas part integrated from the cp
// function and tied to the reference state, the residual part from the EOS (fugacity coefficient
// and its temperature derivatives), and from both h, u, s, g, a, cp, cv, the speed of sound, the
// Joule-Thomson coefficient and the exergies. Everything in closed form; failures end in a flag.
#pragma once

#include "core/project_state.h"
#include "engine/ableitungen.h"

#include <array>
#include <cstdint>

namespace quor {

// Columns 0 to 10 per phase: ln phi, d ln phi/dT at p, d2 ln phi/dT2 at p, (s - s_idG)/R,
// (h - h_idG)/R, (g - g_idG)/R, (cp - cp_idG)/R, (dT/dp)_h in K/kPa, cv, cp, speed of sound in m/s.
using ResFunkTabelle = std::array<std::array<double, 11>, 2>;

// The three result tables of a state, for callers that keep them.
struct KalorikTabellen {
  Abl1Tabelle Abl1{};
  Abl2Tabelle Abl2{};
  ResFunkTabelle ResFunk{};
};

// Hyperbolic functions written out from the exponential function.
double Sinh(double x);
double Cosh(double x);
double Coth(double x);
double Tanh(double x);

// Ideal-gas cp in kJ/(kmol K) at T by `kind` (CpIndex): 1 polynomial, 2 sinh/cosh, otherwise 0.
// err = -1 (result 0) for T not above 0 or a non-finite value.
double cpIdealgas(ProjectState& s, double T, int kind, int16_t& err);

// cp of the liquid and of the solid in kJ/(kmol K) from their coefficients; err = -1 (result 0) for
// T not above 0 or a non-finite value.
double cpFluessig(ProjectState& s, double T, int16_t& err);
double cpFest(ProjectState& s, double T, int16_t& err);

// Ideal-gas h, s and cp at (T, p), reference state included: the analytic integrals of cp and cp/T
// from TRef to T, the constants of ReferenzKonstanten, then hRef and sRef. Without a cp function
// (CpIndex 0) only hRef and sRef are added to what h and s hold at the call, and cp = 0. err = -1
// (h, s unchanged) for the sinh/cosh form at T <= 0.1 or a non-finite result.
void IdealgasFunktionen(ProjectState& s, double T, double p, double& h, double& entropie, double& cp,
                        int16_t& err);

// Row `row` of the tables at the state (T, p, v): evaluates the EOS and its temperature derivatives
// at T (for the virial models also BVirial), then Abl1, Abl2 and ResFunk. Columns 7 to 10 need a
// positive ideal-gas cp and keep their values otherwise. err = -1 when v lies at b, the derivatives
// cannot be formed or a value is not finite; columns not yet reached keep their values (the speed
// of sound of a mechanically unstable state among them).
void PhiFunktionen(ProjectState& s, int row, double T, double p, double v, Abl1Tabelle& Abl1,
                   Abl2Tabelle& Abl2, ResFunkTabelle& ResFunk, int16_t& err);

// The caloric values of one phase.
struct KalorischeWerte {
  double h = 0, u = 0, s = 0, g = 0, a = 0; // kJ/kmol, s in kJ/(kmol K)
  double cp = 0, cv = 0, cpIdG = 0;         // kJ/(kmol K)
  double eh = 0, eu = 0;                    // exergies of h and u, kJ/kmol
  double w = 0;                             // speed of sound, m/s
};

// One phase at (T, p, v), `row` its row in the tables; exergies against the environment (TUmgebung,
// pUmgebung). Afterwards the EOS fields describe T again (EOSbeiT and the saturation pressure at T
// run last). err = -1 when the ideal-gas part fails (nothing set) or a later step fails (the values
// reached so far are set).
void ThermoFunktionen(ProjectState& s, double T, double p, double v, int row, KalorischeWerte& werte,
                      int16_t& err);
void ThermoFunktionen(ProjectState& s, double T, double p, double v, int row, KalorikTabellen& tab,
                      KalorischeWerte& werte, int16_t& err);

// The environment of the exergies, per phase row: h, u, s and v there. Where only one phase exists
// at the environment it stands for both rows.
struct Umgebung {
  std::array<double, 2> h{}, u{}, s{}, v{};
};
void UmgebungAuswerten(ProjectState& s, Umgebung& umg, int16_t& err);

// eh and eu of `werte` (h, u, s filled) at molar volume v against row `row` of the environment.
void Exergien(const ProjectState& s, const Umgebung& umg, int row, double v, KalorischeWerte& werte);

// Both saturated phases at T from the cubic EOS: p = pKrit at TKrit, else the saturation pressure;
// volumes from the state solver (at TKrit both MolMasse/rhoKritEOS); one ideal-gas base for both.
struct SaettigungsWerte {
  double p = 0, vL = 0, vV = 0;
  std::array<KalorischeWerte, 2> phase{}; // row 0 liquid, row 1 vapour
};
void SaettigungsFunktionen(ProjectState& s, double T, SaettigungsWerte& erg, int16_t& err);
void SaettigungsFunktionen(ProjectState& s, double T, KalorikTabellen& tab, SaettigungsWerte& erg,
                           int16_t& err);

} // namespace quor
