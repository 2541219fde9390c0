// The unit converter's tables and arithmetic: temperature, pressure, molar and specific volume and
// density, energy and enthalpy, entropy and heat capacity. A value given in one unit is converted
// into every unit of its quantity; conversions between molar and mass-based units need the molar
// mass. No toolkit here: the window only shows what these functions give.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quor::tavik {

enum class Groesse { Temperatur, Druck, VolumenDichte, Energie, Entropie };

// What a unit measures within its quantity; the base of each is the first unit of that kind.
enum class Bezug {
  Absolut,         // temperature and pressure: one scale
  Molar,           // per kmol (volume, energy, entropy)
  Spezifisch,      // per kg
  Massendichte,    // kg/m^3: the reciprocal of the specific volume
  Molendichte      // kmol/m^3: the reciprocal of the molar volume
};

struct Einheit {
  const char* name;   // as shown, in both languages
  Bezug bezug;
  double faktor;      // value * faktor = value in the kind's base unit (kelvin: see Temperatur)
  double nullpunkt;   // temperature scales: K = (value + nullpunkt) * faktor
};

// The quantities in their order, with their German and English names.
const std::vector<Groesse>& Groessen();
std::string GroessenName(Groesse g, bool englisch);
const std::vector<Einheit>& Einheiten(Groesse g);
// Whether any conversion of the quantity needs the molar mass.
bool MitMolmasse(Groesse g);

// Why a value cannot be given in a unit.
enum class Fehler { Keiner, UnterNull, NichtPositiv, OhneMolmasse };

struct Wert {
  double zahl = 0;
  Fehler fehler = Fehler::Keiner;
};

// `wert` in unit `von` expressed in unit `nach` of quantity g; `molmasse` in kg/kmol (0: unknown).
// The result is always finite: a temperature below absolute zero, a density or volume not above
// zero, or a change between molar and mass-based units without a molar mass gives its error.
Wert Umrechnen(Groesse g, std::size_t von, std::size_t nach, double wert, double molmasse);

// The texts of the errors.
std::string FehlerText(Fehler f, bool englisch);

} // namespace quor::tavik
