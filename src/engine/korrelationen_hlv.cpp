// Enthalpy of vaporization: the database function and the methods that choose between it, the
// Chen, Carruth/Kobayashi and Watson correlations and the routes through the vapour-pressure slope.
#include "core/festtext.h"
#include "core/zahlformat.h"
#include "engine/hlv_zustand.h"
#include "engine/korrelationen.h"
#include "engine/korrelationen_intern.h"

#include <cmath>

namespace quor {

using namespace korrelation;

namespace {

std::string GleichungsName(const ProjectState& s, int index) {
  if (index < 0 || index >= static_cast<int>(s.Tab.DampfdruckNamen.size())) return "";
  return Trim(s.Tab.DampfdruckNamen[index]);
}

// p from the vapour-pressure equation, else from the data point.
bool DruckBeschaffen(ProjectState& s, double T, double& p, int index, bool warn, HLVErgebnis& erg,
                     ui::Oberflaeche* ui, const HLVDatenpunkt& punkt) {
  int16_t f = 0;
  p = pLV(s, T, index, warn, f, ui);
  if (p > 1e-6) {
    erg.notizen.push_back("p = p(LV) von Dampfdruckgleichung:" + GleichungsName(s, index));
    return true;
  }
  p = 0;
  if (punkt.p >= 1e-6) {
    p = punkt.p;
    erg.notizen.push_back("p(LV) = p aus akt. Datenpunkt");
    return true;
  }
  erg.notizen.push_back("kein p verfügbar");
  return false;
}

// T from the inverse vapour-pressure equation, else from the data point.
bool TemperaturBeschaffen(ProjectState& s, double& T, double p, int index, bool warn, HLVErgebnis& erg,
                          ui::Oberflaeche* ui, const HLVDatenpunkt& punkt) {
  int16_t f = 0;
  T = TLV(s, p, index, warn, f, ui);
  if (T > 1e-6) {
    erg.notizen.push_back("T = T(LV) von Dampfdruckgleichung " + GleichungsName(s, index));
    return true;
  }
  T = 0;
  if (punkt.T > 1e-6) {
    T = punkt.T;
    erg.notizen.push_back("(T(LV) aus aktuellem Datenpunkt)");
    return true;
  }
  erg.notizen.push_back("kein T verfügbar");
  return false;
}

// Methods 1 to 4; false when the method gives no value.
bool KorrelationsWert(ProjectState& s, int methode, double T, double p, bool warn, HLVErgebnis& erg,
                      ui::Oberflaeche* ui, double& h) {
  const StoffGruppe& st = s.Stoff;
  const double Tc = st.TKrit, Tr = T / Tc, pr = p / st.pKrit;
  switch (methode) {
  case HLVGleichung: {
    erg.notizen.push_back("delta(LV)h = Fu(T) (Datenbank-Parameter)");
    int16_t f = 0;
    h = HLVFu(s, T, f);
    const int dev = AbweichungWennBegrenzt(T, st.HLVGrenzen);
    if (Warnen(warn, ui, dev, 5)) {
      Warne(ui, AusserhalbText("", dev, "(vgl. unter Daten/Parameter delta(LV)h = Fu(T))"),
            "Warnung zur Gleichung delta(LV)h = Fu(T)");
    }
    return f == 0;
  }
  case HLVChen:
    erg.notizen.push_back("CHEN-Korrelation");
    if (!(pr > 0)) return false;
    h = T * (33.08 * Tr - 32.74 - 29.77 * std::log(pr) / LnTen) / (1.07 - Tr);
    return true;
  case HLVCarruthKobayashi: {
    erg.notizen.push_back("CARRUTH/KOBAYASHI-Korrelation");
    const double X = 1 - Tr;
    h = RGas * Tc * (7.08 * std::pow(X, 0.354) + 10.95 * st.omega * std::pow(X, 0.456));
    return true;
  }
  case HLVWatson:
    erg.notizen.push_back("WATSON-Korrelation, n =" + SingleText(s.Modell.WatsonExp));
    h = st.WatsonH * std::pow((Tc - T) / (Tc - st.WatsonT), static_cast<double>(s.Modell.WatsonExp));
    return true;
  default:
    return false;
  }
}

} // namespace

double HLVFu(ProjectState& s, double T, int16_t& failed) {
  failed = 0;
  const StoffGruppe& st = s.Stoff;
  const double Tcr = st.HLVTcr;
  if (!(Tcr > 1e-6)) return 0;
  if (!(T <= Tcr)) return Fehlschlag(failed); // power of a negative base
  const std::array<float, 6>& k = st.HLV;
  const double Tr = T / Tcr;
  const double e = k[2] + k[3] * Tr + k[4] * Tr * Tr + k[5] * Tr * Tr * Tr;
  return Endwert(k[0] * std::pow(1 - Tr, e) * std::exp(-k[1] * Tr), failed);
}

double HLVBerechnen(ProjectState& s, int methode, double& T, double& p, int index, bool warn,
                    HLVErgebnis& erg, int16_t& failed, ui::Oberflaeche* ui, const HLVDatenpunkt& punkt) {
  failed = 0;
  erg = HLVErgebnis{};
  const double Tc = s.Stoff.TKrit;
  if (T > Tc) return Fehlschlag(failed);
  // Both phases from the cubic equation of state, and the vapour density of methods 5 and 6, need
  // the state solver.
  if (methode == HLVAusKubischerEOS) return HLVAusEOS(s, T, p, erg, failed);
  const bool brauchtDruck = methode == HLVChen || methode == HLVAusRhoL || methode == HLVAusBenson;
  if (!(p > 1e-6) && brauchtDruck && !DruckBeschaffen(s, T, p, index, warn, erg, ui, punkt))
    return Fehlschlag(failed);
  if (!(T > 1e-6)) {
    if (!TemperaturBeschaffen(s, T, p, index, warn, erg, ui, punkt)) return Fehlschlag(failed);
    if (T > Tc) {
      erg.notizen.push_back("T > T(cr)!");
      return Fehlschlag(failed);
    }
  }
  if (methode == HLVAusRhoL || methode == HLVAusBenson) {
    erg.notizen.push_back(" aktueller Dampfdruckgleichung");
    return HLVAusDichten(s, methode, T, p, index, warn, erg, failed, ui);
  }
  double h = 0;
  if (!KorrelationsWert(s, methode, T, p, warn, erg, ui, h)) return Fehlschlag(failed);
  // The correlations' values pass through a 32-bit integer: whole kJ/kmol, ties to even.
  if (!(std::fabs(h) <= 2147483647.0)) return Fehlschlag(failed);
  return std::nearbyint(h);
}

} // namespace quor
