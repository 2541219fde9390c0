// Hand-made substances for the model window: one with every datum, and variants without some.
#pragma once

#include "core/project_state.h"
#include "dienste/skript_oberflaeche.h"
#include "substance/modell_wahl.h"

#include <gtest/gtest.h>

#include <vector>

namespace quor::test {

// Critical point, omega, boiling point (Tbr = 0.7), every vapour-pressure block, delta(LV)h and
// rho(L) blocks, a Watson point and both ideal-gas cp equations.
inline ProjectState VollerStoff() {
  ProjectState s;
  InitProjectState(s);
  StoffGruppe& st = s.Stoff;
  st.StoffName = "Teststoff";
  st.MolMasse = 50;
  st.TKrit = 500;
  st.pKrit = 4000;
  st.omega = 0.3;
  st.TSiede = 350;
  st.FrostKalkwarfGrenzen = {200, 490};
  st.WagnerGrenzen = {250, 499};
  st.AntoineNd[0] = 6;
  st.AntoineHd[0] = 6.5f;
  st.HLVGrenzen = {200, 490};
  st.WatsonH = 30000;
  st.WatsonT = 350;
  st.RhoLGrenzen = {200, 480};
  st.CpPolyOK = true;
  st.CpSinhOK = true;
  return s;
}

struct ModellDialog {
  ProjectState s;
  ui::SkriptOberflaeche ui;
  frmQModell frm{s, ui};
  explicit ModellDialog(ProjectState zustand) : s(std::move(zustand)) {}
  ModellAktionen EOSWahl(int16_t eos) { return frm.EOSListe_Click(frm.EOS.Position(eos)); }
};

using Indizes = std::vector<int16_t>;

} // namespace quor::test
