// Mechanical derivatives of the thermal equation of state at a state (T, p, v): the first and second
// derivatives of p, v and T against each other, the expansion, compressibility and pressure
// coefficients, and the inflection points of an isotherm in the p-v plane. All in closed form.
#pragma once

#include "core/project_state.h"
#include "engine/eos_auswertung.h"

#include <array>
#include <cstdint>

namespace quor {

// Result tables with one row per phase: row 0 liquid, row 1 vapour. The caller owns them.
// Abl1, columns 1 to 6: (dp/dV)_T, (dp/dT)_v, (dV/dp)_T, (dV/dT)_p, (dT/dV)_p, (dT/dp)_v.
using Abl1Tabelle = std::array<std::array<double, 7>, 2>;
// Abl2, columns 1, 4, 5: (d2p/dV2)_T, (d2V/dT2)_p, (d2T/dV2)_p; columns 0, 2, 3 stay empty.
using Abl2Tabelle = std::array<std::array<double, 6>, 2>;
// Mech, columns 1 to 3: expansion coefficient alpha (1/K), compressibility chi (1/kPa), pressure
// coefficient beta (1/K).
using MechTabelle = std::array<std::array<double, 4>, 2>;

constexpr int PhaseL = 0;
constexpr int PhaseV = 1;

// Fills row `row` of Abl1 and Abl2 at (T, p, v). EOSbeiT(T) must have run and `abl` must hold the
// temperature derivatives of a, b, c, d at T (EOSAbleitungenT). For the virial models (VirialFlag)
// the state is v = R*T/p + B with B = BVirial, and dB, ddB receive dB/dT and d2B/dT2. Nothing is
// written and err = -1 when v lies within 1e-11 of b (or of B), when the derivatives of B cannot be
// formed, or when a result is not finite (at the critical point (dp/dV)_T vanishes).
void AbleitungenPTV(ProjectState& s, int row, double T, double p, double v, Abl1Tabelle& Abl1,
                    Abl2Tabelle& Abl2, double& dB, double& ddB, const EOSAbleitungen& abl, int16_t& err);

// alpha = (dV/dT)_p / v, chi = -(dV/dp)_T / v, beta = (dp/dT)_v / p from row `row` of Abl1. err = -1
// (Mech unchanged) for v or p of 0 or a non-finite result.
void MechKoeffizienten(int row, double p, double v, const Abl1Tabelle& Abl1, MechTabelle& Mech, int16_t& err);

// The two inflection points of the p-v isotherm at T, found by a walk from v = b upward in steps of
// 0.0002 m^3/kmol that turns and shrinks tenfold at each change of sign of d2p/dV2: volumes,
// pressures and the second derivative left there (near 0). A point that is not found has v = p = 0;
// err = -1 when the first one is not found within 12000 steps (the second one's absence is no
// error). Evaluates the EOS at T.
struct Wendepunkte {
  std::array<double, 2> v{};
  std::array<double, 2> p{};
  std::array<double, 2> d2p{};
};
void WendepunkteSuchen(ProjectState& s, double T, Wendepunkte& wp, int16_t& err);

} // namespace quor
