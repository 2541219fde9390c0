// The test substances of the benchmarks: methane and propane with Peng/Robinson and the polynomial
// ideal-gas cp (textbook constants).
#pragma once

#include "core/project_state.h"
#include "dienste/skript_oberflaeche.h"
#include "engine/eos_parameter.h"

#include <array>

namespace quor::bench {

// Peng/Robinson with the polynomial ideal-gas cp for a substance of these constants.
inline ProjectState PengRobinson(const char* name, float M, float Tb, double Tc, double pc, double omega,
                                 const std::array<float, 5>& cp) {
  ProjectState s;
  InitProjectState(s);
  s.Stoff.StoffName = name;
  s.Stoff.MolMasse = M;
  s.Stoff.TSiede = Tb;
  s.Stoff.TKrit = Tc;
  s.Stoff.pKrit = pc;
  s.Stoff.omega = omega;
  s.Stoff.CpPoly = cp;
  s.Modell.CpIndex = 1;
  s.Modell.EOSIndex = 6;
  s.Modell.VirialFlag = false;
  s.Modell.RechnungGlobal = true;
  ui::SkriptOberflaeche ui;
  int16_t err = 0;
  EOSParameterSetup(s, ui, 6, err);
  return s;
}

inline ProjectState PengRobinsonMethan() {
  return PengRobinson("Methan", 16.043f, 111.66f, 190.564, 4599.2, 0.0114,
                      {37.980f, -0.074622f, 3.0190e-4f, -2.8327e-7f, 9.0711e-11f});
}

inline ProjectState PengRobinsonPropan() {
  return PengRobinson("Propan", 44.097f, 231.1f, 369.83, 4248, 0.152,
                      {31.98f, 0.04266f, 4.998e-4f, -6.562e-7f, 2.56e-10f});
}

} // namespace quor::bench
