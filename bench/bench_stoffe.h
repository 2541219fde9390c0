// The test substance of the benchmarks: methane with Peng/Robinson and the polynomial ideal-gas cp.
#pragma once

#include "core/project_state.h"
#include "dienste/skript_oberflaeche.h"
#include "engine/eos_parameter.h"

namespace quor::bench {

inline ProjectState PengRobinsonMethan() {
  ProjectState s;
  InitProjectState(s);
  s.Stoff.StoffName = "Methan";
  s.Stoff.MolMasse = 16.043f;
  s.Stoff.TSiede = 111.66f;
  s.Stoff.TKrit = 190.564;
  s.Stoff.pKrit = 4599.2;
  s.Stoff.omega = 0.0114;
  s.Stoff.CpPoly = {37.980f, -0.074622f, 3.0190e-4f, -2.8327e-7f, 9.0711e-11f};
  s.Modell.CpIndex = 1;
  s.Modell.EOSIndex = 6;
  s.Modell.VirialFlag = false;
  ui::SkriptOberflaeche ui;
  int16_t err = 0;
  EOSParameterSetup(s, ui, 6, err);
  return s;
}

} // namespace quor::bench
