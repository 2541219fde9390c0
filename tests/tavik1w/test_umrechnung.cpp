// The unit converter's arithmetic: known equivalences of each quantity, round trips through every
// unit, the molar mass between molar and mass-based units, and the values that have no answer.
#include "umrechnung.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace quor::tavik {
namespace {

std::size_t Index(Groesse g, const std::string& name) {
  // The unit of that name, or the one whose name begins with it and an explanation in brackets.
  const std::vector<Einheit>& e = Einheiten(g);
  for (std::size_t i = 0; i < e.size(); ++i)
    if (std::string(e[i].name) == name || std::string(e[i].name).rfind(name + " (", 0) == 0) return i;
  ADD_FAILURE() << name;
  return 0;
}

double In(Groesse g, double x, const std::string& von, const std::string& nach, double M = 0) {
  const Wert w = Umrechnen(g, Index(g, von), Index(g, nach), x, M);
  EXPECT_EQ(w.fehler, Fehler::Keiner) << von << " -> " << nach;
  return w.zahl;
}

TEST(Umrechnung, KnownEquivalencesOfEachQuantity) {
  using G = Groesse;
  EXPECT_NEAR(In(G::Temperatur, 100, "°C", "°F"), 212, 1e-12);
  EXPECT_NEAR(In(G::Temperatur, -40, "°C", "°F"), -40, 1e-12);
  EXPECT_NEAR(In(G::Temperatur, 0, "°C", "K"), 273.15, 1e-12);
  EXPECT_NEAR(In(G::Temperatur, 491.67, "°R", "°C"), 0, 1e-12);
  EXPECT_NEAR(In(G::Druck, 1, "atm", "Torr"), 760, 1e-10);
  EXPECT_NEAR(In(G::Druck, 1, "bar", "psi"), 14.503773773, 1e-8);
  EXPECT_NEAR(In(G::Druck, 2.5, "MPa", "kPa"), 2500, 1e-10);
  EXPECT_NEAR(In(G::Energie, 1, "BTU/lb", "kJ/kg"), 2.326, 1e-12);
  EXPECT_NEAR(In(G::Energie, 1, "kcal/kmol", "kJ/kmol"), 4.1868, 1e-12);
  EXPECT_NEAR(In(G::Entropie, 1, "BTU/(lb °R)", "kJ/(kg K)"), 4.1868, 1e-12);
  EXPECT_NEAR(In(G::Entropie, 8.31451, "kJ/(kmol K)", "s/R, cp/R"), 1, 1e-12);
  // Water at 4 °C: 1 g/cm3 is 1000 kg/m3, 62.43 lb/ft3 and 1 cm3/g; with M = 18.015 it is 55.51 mol/l.
  EXPECT_NEAR(In(G::VolumenDichte, 1, "g/cm³", "kg/m³"), 1000, 1e-9);
  EXPECT_NEAR(In(G::VolumenDichte, 1, "g/cm³", "lb/ft³"), 62.427960576, 1e-8);
  EXPECT_NEAR(In(G::VolumenDichte, 1, "g/cm³", "cm³/g"), 1, 1e-12);
  EXPECT_NEAR(In(G::VolumenDichte, 1, "g/cm³", "kmol/m³", 18.015), 55.50929781, 1e-7);
  EXPECT_NEAR(In(G::VolumenDichte, 22.414, "m³/kmol", "kmol/m³"), 1 / 22.414, 1e-15);
  EXPECT_NEAR(In(G::Energie, 40650, "kJ/kmol", "kJ/kg", 18.015), 2256.453, 1e-3);
}

TEST(Umrechnung, EveryUnitComesBackToItsValue) {
  for (Groesse g : Groessen()) {
    const std::vector<Einheit>& e = Einheiten(g);
    for (std::size_t a = 0; a < e.size(); ++a)
      for (std::size_t b = 0; b < e.size(); ++b) {
        const Wert hin = Umrechnen(g, a, b, 3.75, 44.097);
        ASSERT_EQ(hin.fehler, Fehler::Keiner) << e[a].name << " -> " << e[b].name;
        const Wert zurueck = Umrechnen(g, b, a, hin.zahl, 44.097);
        EXPECT_NEAR(zurueck.zahl, 3.75, 1e-12) << e[a].name << " -> " << e[b].name;
      }
  }
}

TEST(Umrechnung, ValuesWithoutAnAnswerSayWhy) {
  using G = Groesse;
  const auto fehler = [](G g, double x, const std::string& von, const std::string& nach, double M) {
    return Umrechnen(g, Index(g, von), Index(g, nach), x, M).fehler;
  };
  EXPECT_EQ(fehler(G::Temperatur, -300, "°C", "K", 0), Fehler::UnterNull);
  EXPECT_EQ(fehler(G::Temperatur, -1, "K", "K", 0), Fehler::UnterNull);
  EXPECT_EQ(fehler(G::VolumenDichte, 0, "kg/m³", "m³/kg", 0), Fehler::NichtPositiv);
  EXPECT_EQ(fehler(G::VolumenDichte, 1, "kg/m³", "m³/kmol", 0), Fehler::OhneMolmasse);
  EXPECT_EQ(fehler(G::Energie, 1, "kJ/kg", "kJ/kmol", -2), Fehler::OhneMolmasse);
  // Within per-kg or per-kmol units no molar mass is needed, densities included.
  EXPECT_EQ(fehler(G::VolumenDichte, 2, "kg/m³", "m³/kg", 0), Fehler::Keiner);
  EXPECT_EQ(fehler(G::VolumenDichte, 2, "kmol/m³", "cm³/mol", 0), Fehler::Keiner);
  EXPECT_EQ(fehler(G::Druck, -5, "bar", "kPa", 0), Fehler::Keiner); // a pressure difference may be negative
  EXPECT_EQ(FehlerText(Fehler::OhneMolmasse, false), "Molmasse erforderlich");
  EXPECT_FALSE(std::isnan(Umrechnen(G::Druck, 0, 1, NAN, 0).zahl));
}

} // namespace
} // namespace quor::tavik
