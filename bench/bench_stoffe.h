// The test substances of the benchmarks: methane and propane with Peng/Robinson and the polynomial
// ideal-gas cp (textbook constants).
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

inline ProjectState PengRobinsonPropan() {
  ProjectState s;
  InitProjectState(s);
  s.Stoff.StoffName = "Propan";
  s.Stoff.MolMasse = 44.097f;
  s.Stoff.TSiede = 231.1f;
  s.Stoff.TKrit = 369.83;
  s.Stoff.pKrit = 4248;
  s.Stoff.omega = 0.152;
  s.Stoff.CpPoly = {31.98f, 0.04266f, 4.998e-4f, -6.562e-7f, 2.56e-10f};
  s.Modell.CpIndex = 1;
  s.Modell.EOSIndex = 6;
  s.Modell.VirialFlag = false;
  s.Modell.RechnungGlobal = true;
  ui::SkriptOberflaeche ui;
  int16_t err = 0;
  EOSParameterSetup(s, ui, 6, err);
  return s;
}

} // namespace quor::bench
