// What the Varnik/Ji tests share: a starter that runs the parameter program for real behind the
// scripted user interface, and methane with every vapour-pressure block filled.
#pragma once

#include "core/project_state.h"
#include "dienste/kind_prozess.h"
#include "dienste/skript_oberflaeche.h"
#include "engine/korrelationen.h"

#include <cstdlib>
#include <filesystem>
#include <string>

namespace quor::test {

// The parameter program really runs, through the program's own child-process launcher.
inline ui::ProzessStatus StarteEcht(const ui::ProzessAuftrag& auftrag) {
  return ui::StarteKindProzess(auftrag);
}

// Makes `verzeichnis` a program directory with the cubpar the build put into the program directory.
inline void StelleCubparBereit(const std::string& verzeichnis) {
  std::error_code ec;
  std::filesystem::create_symlink(std::string(QUOR_PROGRAMM_VERZEICHNIS) + "/cubpar", verzeichnis + "/cubpar",
                                  ec);
}

// A user interface whose child processes really run.
inline ui::SkriptOberflaeche EchteProzesse() {
  ui::SkriptOberflaeche ui;
  ui.prozessAusfuehren = StarteEcht;
  return ui;
}

// A state with methane, the vapour-pressure equation `tag`, the Varnik/Ji model `EOSIndex` and the
// program directory `verzeichnis`, before the set-up. Methane has the blocks of the default database;
// the correlated sets (August, Frost/Kalkwarf with the van der Waals and the Redlich/Kwong term,
// Thompson's Antoine) are computed from Tc = 190.56 K, pc = 4599 kPa, Tb = 111.66 K by the
// correlations' own formulas.
inline ProjectState MethanFuerJi(int16_t EOSIndex, const std::string& tag, const std::string& verzeichnis) {
  ProjectState s;
  InitProjectState(s);
  StoffGruppe& st = s.Stoff;
  st.StoffName = "Methan";
  st.CASRN = "74-82-8";
  st.MolMasse = 16.0425f;
  st.TKrit = 190.56;
  st.pKrit = 4599;
  st.rhoKritExp = 162.70244;
  st.vKritExp = st.MolMasse / st.rhoKritExp;
  st.omega = 0.011;
  st.TSiede = 111.66f;
  st.TTripel = 90.694f;
  st.RhoL = {0, 30.384418f, 0.23603f, 0.21974f, 0, 0, 0};
  st.RhoLTcr = 191.05f;
  st.RhoLGrenzen = {91, 190};
  st.FrostKalkwarf = {14.366759f, -580.78546f, 273.15f, -3.580049f, 0, 0, 0, 1.3927737e-05f, 2};
  st.FrostKalkwarfGrenzen = {84, 190};
  st.AntoineNd = {5.739851f, 389.58615f, 265.86945f};
  st.AntoineNdGrenzen = {91, 111};
  st.AntoineHd = {6.0707946f, 470.87936f, 277.44485f};
  st.AntoineHdGrenzen = {112, 181};
  st.Wagner = {-6.02242f, 1.26652f, -0.5707f, 2.5f, -1.366f, 5, 0, 0, 190.551f, 4599.2f};
  st.WagnerGrenzen = {91, 190};
  double A = 0, B = 0;
  AugustParameter(st.TKrit, st.pKrit, st.TSiede, A, B);
  st.AugustA = static_cast<float>(A);
  st.AugustB = static_cast<float>(B);
  st.KFW = {12.693039f, -571.2733f, 0, -2.7261584f, 1.4466658f, 2, 0, 0, 0};
  st.KFR = {12.714855f, -572.1787f, 0, -2.7347106f, 20.235577f, 2.5f, 0, 0, 0};
  st.THO = {5.9400643f, 426.65876f, 269.9346f};
  s.Modell.EOSIndex = EOSIndex;
  s.Modell.VirialFlag = false;
  s.Modell.DampfdruckTag = tag;
  for (int16_t i = 1; i <= 8; ++i)
    if (DampfdruckTagVon(i) == tag) s.Modell.DampfdruckIndex = i;
  s.Datenbank.ProgrammVerzeichnis = verzeichnis;
  return s;
}

} // namespace quor::test
