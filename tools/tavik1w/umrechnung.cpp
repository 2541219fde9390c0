#include "umrechnung.h"

#include "core/project_state.h"

#include <cmath>

namespace quor::tavik {

namespace {

// Exact definitions: the international table calorie, the pound, the foot, the British thermal unit.
constexpr double Kalorie = 4.1868e-3;            // kJ
constexpr double Pfund = 0.45359237;             // kg
constexpr double Fuss3 = 0.028316846592;         // m^3
constexpr double BTU = 1.05505585262;            // kJ
constexpr double Psi = 6.894757293168361;        // kPa

const std::vector<Einheit> Temperaturen = {
    {"K", Bezug::Absolut, 1, 0},
    {"°C", Bezug::Absolut, 1, 273.15},
    {"°F", Bezug::Absolut, 5.0 / 9.0, 459.67},
    {"°R", Bezug::Absolut, 5.0 / 9.0, 0},
};

const std::vector<Einheit> Druecke = {
    {"kPa", Bezug::Absolut, 1, 0},       {"Pa", Bezug::Absolut, 1e-3, 0},
    {"hPa (mbar)", Bezug::Absolut, 0.1, 0}, {"bar", Bezug::Absolut, 100, 0},
    {"MPa", Bezug::Absolut, 1000, 0},    {"atm", Bezug::Absolut, 101.325, 0},
    {"Torr (mm Hg)", Bezug::Absolut, 101.325 / 760, 0}, {"at (kp/cm²)", Bezug::Absolut, 98.0665, 0},
    {"psi (lbf/in²)", Bezug::Absolut, Psi, 0},
};

const std::vector<Einheit> Volumina = {
    {"m³/kmol (= l/mol)", Bezug::Molar, 1, 0},
    {"cm³/mol", Bezug::Molar, 1e-3, 0},
    {"ft³/lbmol", Bezug::Molar, Fuss3 / Pfund, 0},
    {"m³/kg", Bezug::Spezifisch, 1, 0},
    {"cm³/g (= l/kg)", Bezug::Spezifisch, 1e-3, 0},
    {"ft³/lb", Bezug::Spezifisch, Fuss3 / Pfund, 0},
    {"kg/m³ (= g/l)", Bezug::Massendichte, 1, 0},
    {"g/cm³", Bezug::Massendichte, 1000, 0},
    {"lb/ft³", Bezug::Massendichte, Pfund / Fuss3, 0},
    {"kmol/m³ (= mol/l)", Bezug::Molendichte, 1, 0},
};

const std::vector<Einheit> Energien = {
    {"kJ/kmol (= J/mol)", Bezug::Molar, 1, 0},
    {"kJ/mol", Bezug::Molar, 1000, 0},
    {"kcal/kmol (= cal/mol)", Bezug::Molar, Kalorie * 1000, 0},
    {"BTU/lbmol", Bezug::Molar, BTU / Pfund, 0},
    {"kJ/kg (= J/g)", Bezug::Spezifisch, 1, 0},
    {"kcal/kg (= cal/g)", Bezug::Spezifisch, Kalorie * 1000, 0},
    {"kWh/kg", Bezug::Spezifisch, 3600, 0},
    {"BTU/lb", Bezug::Spezifisch, BTU / Pfund, 0},
};

const std::vector<Einheit> Entropien = {
    {"kJ/(kmol K) (= J/(mol K))", Bezug::Molar, 1, 0},
    {"kcal/(kmol K) (= cal/(mol K))", Bezug::Molar, Kalorie * 1000, 0},
    {"BTU/(lbmol °R)", Bezug::Molar, BTU / Pfund * 9.0 / 5.0, 0},
    {"s/R, cp/R", Bezug::Molar, RGas, 0},
    {"kJ/(kg K) (= J/(g K))", Bezug::Spezifisch, 1, 0},
    {"kcal/(kg K)", Bezug::Spezifisch, Kalorie * 1000, 0},
    {"BTU/(lb °R)", Bezug::Spezifisch, BTU / Pfund * 9.0 / 5.0, 0},
};

bool ProMasse(Bezug b) {
  return b == Bezug::Spezifisch || b == Bezug::Massendichte;
}

// The value in the base of its family: a volume per kmol or per kg (densities are the reciprocals).
Wert ZuBasis(const Einheit& e, double x) {
  if (e.bezug != Bezug::Massendichte && e.bezug != Bezug::Molendichte) return {x * e.faktor};
  if (!(x > 0)) return {0, Fehler::NichtPositiv};
  return {1 / (x * e.faktor)};
}

Wert AusBasis(const Einheit& e, double v) {
  if (e.bezug != Bezug::Massendichte && e.bezug != Bezug::Molendichte) return {v / e.faktor};
  if (!(v > 0)) return {0, Fehler::NichtPositiv};
  return {1 / (v * e.faktor)};
}

} // namespace

const std::vector<Groesse>& Groessen() {
  static const std::vector<Groesse> g = {Groesse::Temperatur, Groesse::Druck, Groesse::VolumenDichte,
                                         Groesse::Energie, Groesse::Entropie};
  return g;
}

std::string GroessenName(Groesse g, bool englisch) {
  switch (g) {
  case Groesse::Temperatur:
    return englisch ? "Temperature" : "Temperatur";
  case Groesse::Druck:
    return englisch ? "Pressure" : "Druck";
  case Groesse::VolumenDichte:
    return englisch ? "Volume and density" : "Volumen und Dichte";
  case Groesse::Energie:
    return englisch ? "Energy and enthalpy" : "Energie und Enthalpie";
  default:
    return englisch ? "Entropy and heat capacity" : "Entropie und Wärmekapazität";
  }
}

const std::vector<Einheit>& Einheiten(Groesse g) {
  switch (g) {
  case Groesse::Temperatur:
    return Temperaturen;
  case Groesse::Druck:
    return Druecke;
  case Groesse::VolumenDichte:
    return Volumina;
  case Groesse::Energie:
    return Energien;
  default:
    return Entropien;
  }
}

bool MitMolmasse(Groesse g) {
  return g == Groesse::VolumenDichte || g == Groesse::Energie || g == Groesse::Entropie;
}

Wert Umrechnen(Groesse g, std::size_t von, std::size_t nach, double wert, double molmasse) {
  const std::vector<Einheit>& e = Einheiten(g);
  if (von >= e.size() || nach >= e.size() || !std::isfinite(wert)) return {0, Fehler::NichtPositiv};
  const Einheit &a = e[von], &b = e[nach];
  Wert w;
  if (g == Groesse::Temperatur) {
    const double K = (wert + a.nullpunkt) * a.faktor;
    if (K < 0) return {0, Fehler::UnterNull};
    w = {K / b.faktor - b.nullpunkt};
  } else if (a.bezug == Bezug::Absolut) {
    w = {wert * a.faktor / b.faktor};
  } else {
    // Per kg and per kmol meet through the molar mass: v(molar) = M v(specific).
    Wert basis = ZuBasis(a, wert);
    if (basis.fehler != Fehler::Keiner) return basis;
    if (ProMasse(a.bezug) != ProMasse(b.bezug)) {
      if (!(molmasse > 0)) return {0, Fehler::OhneMolmasse};
      basis.zahl = ProMasse(a.bezug) ? basis.zahl * molmasse : basis.zahl / molmasse;
    }
    w = AusBasis(b, basis.zahl);
  }
  if (w.fehler == Fehler::Keiner && !std::isfinite(w.zahl)) return {0, Fehler::NichtPositiv};
  return w;
}

std::string FehlerText(Fehler f, bool englisch) {
  switch (f) {
  case Fehler::UnterNull:
    return englisch ? "below absolute zero" : "unter dem absoluten Nullpunkt";
  case Fehler::NichtPositiv:
    return englisch ? "only for values above zero" : "nur für Werte größer Null";
  case Fehler::OhneMolmasse:
    return englisch ? "needs the molar mass" : "Molmasse erforderlich";
  default:
    return "";
  }
}

} // namespace quor::tavik
