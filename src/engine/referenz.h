// The zero of enthalpy and entropy (the reference state), and the reference point of a PARTIAL
// calculation: one temperature with its saturation pressure and the two saturated densities, from
// which the liquid density follows on the straight diameter.
#pragma once

#include "core/project_state.h"

#include <cstdint>
#include <string>

namespace quor {

// Kinds of the reference state (RefArt).
enum RefArtCode : int16_t {
  RefBenutzer = 1,      // hRef, sRef entered by the user
  RefBildung = 2,       // formation quantities of the ideal gas at 298.15 K and normal pressure
  RefKonventionell = 10 // conventional normalisation
};

// Constants of the ideal-gas part at pressure p: h0 and s0 of the reference kind, s0 including
// -R*ln(p/pRef) when p > 0. Kinds 2 and 10 set TRef = 298.15 and pRef = 101.325 on every call; a pRef
// of 0 becomes 101.325.
void ReferenzKonstanten(ProjectState& s, double p, double& h0, double& s0);

// Liquid density from the pressure alone: (ln(pc/p)*0.18327 + 1.981)*rhoc; 0 for p <= 1e-6.
double BensonNaeherung(double p, double pKrit, double rhoKritExp);

// The liquid density at the normal boiling point that the database holds: the single density point
// of the liquid-density block (value A at temperature C) when it lies at TSiede, else 0.
double RhoLSiede(const StoffGruppe& st);

// Proposes the reference point by the data at hand: the normal boiling point with the database's
// liquid density there, from its polynomial, or from its single point and slope; else the single
// point itself with the vapour pressure there. The vapour density comes from the EOS, else the ideal
// gas (omega = 0) or the Pitzer/Curl virial equation. `Text` receives the report, lines joined by
// CR LF. err = -1 (Text empty) when no temperature or no liquid density is found.
void PartialBezugspunkt(ProjectState& s, double& T, double& p, double& rhoV, double& rhoL, std::string& Text,
                        int16_t& err);

// The proposal stored in BezugT, BezugP, BezugRhoL, BezugRhoV; nothing changes on err.
void BezugspunktVorschlag(ProjectState& s, std::string& Text, int16_t& err);

// The reference point at the normal boiling point with the Benson approximation of the liquid
// density; BezugRhoV keeps its value and the report shows it.
void BezugspunktBenson(ProjectState& s, std::string& Text);

// BezugGueltig from the product of the four reference-point values, in single precision.
void BezugGueltigSetzen(ProjectState& s);

} // namespace quor
