// Small helpers shared by the correlation files: validity deviation, warnings, failure at the edge.
#pragma once

#include "core/substance_record.h"
#include "dienste/oberflaeche.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace quor::korrelation {

// Iterations end by their tolerance; this bound only stops a Newton walk that never settles.
constexpr int MaxSchritte = 1000;

inline double Fehlschlag(int16_t& failed) {
  failed = -1;
  return 0;
}

// The result, or 0 with the flag when it is not finite.
inline double Endwert(double x, int16_t& failed) {
  if (!std::isfinite(x)) return Fehlschlag(failed);
  return x;
}

// The result in single precision, or 0 with the flag when it is not finite there.
inline float EndwertFloat(double x, int16_t& failed) {
  if (!std::isfinite(x) || std::fabs(x) > 3.4028234663852886e38)
    return static_cast<float>(Fehlschlag(failed));
  return static_cast<float>(x);
}

// Whole kelvins rounded half to even, bounded so that any finite input converts safely.
inline int GanzeKelvin(double dT) {
  if (!std::isfinite(dT)) return 0;
  dT = std::fmax(-1e9, std::fmin(1e9, dT));
  return static_cast<int>(std::nearbyint(dT));
}

// Distance of T from the range [TLo, THi], rounded; the upper test wins when both apply.
inline int Abweichung(double T, double TLo, double THi) {
  int dev = 0;
  if (T < TLo) dev = GanzeKelvin(T - TLo);
  if (T > THi) dev = GanzeKelvin(T - THi);
  return dev;
}

// As above, only when both limits are given.
inline int AbweichungWennBegrenzt(double T, const TGrenzen& g) {
  if (g.TLo > 1e-6 && g.THi > 1e-6) return Abweichung(T, g.TLo, g.THi);
  return 0;
}

// True when a warning is to be shown; the text is built only then, so that curves allocate nothing.
inline bool Warnen(bool warn, const ui::Oberflaeche* ui, int dev, int grenze) {
  return warn && ui != nullptr && std::abs(dev) > grenze;
}

inline void Warne(ui::Oberflaeche* ui, const std::string& text, const std::string& titel) {
  ui->Meldung(text, titel, ui::Symbol::Ausruf);
}

// Text of the outside-range warnings; `vorsatz` is the text in front of "Temperatur".
inline std::string AusserhalbText(const char* vorsatz, int dev, const std::string& zweiteZeile) {
  return std::string(vorsatz) + "Temperatur " + std::to_string(dev) +
         " K außerhalb Parameter-Gültigkeitsbereich\r\n" + zweiteZeile;
}

} // namespace quor::korrelation
