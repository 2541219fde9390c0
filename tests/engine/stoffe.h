// Substances with very different constants, the model set-up and the solver calls the tests share.
#pragma once

#include "core/project_state.h"
#include "dienste/skript_oberflaeche.h"
#include "engine/eos_auswertung.h"
#include "engine/eos_parameter.h"
#include "engine/kubisch.h"
#include "engine/saettigung.h"
#include "engine/zustand.h"
#include "support/temp_ordner.h"

#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>

namespace quor::test {

struct StoffDaten {
  const char* name;
  float MolMasse, TSiede; // kg/kmol, K
  double TKrit, pKrit, omega;
};

// Critical data from the usual tables (Poling/Prausnitz/O'Connell); argon with omega forced to 0.
inline const StoffDaten Methan{"Methan", 16.043f, 111.66f, 190.564, 4599.2, 0.0114};
inline const StoffDaten Wasser{"Wasser", 18.015f, 373.15f, 647.096, 22064.0, 0.3443};
inline const StoffDaten Eikosan{"n-Eikosan", 282.55f, 616.9f, 768.0, 1070.0, 0.907};
inline const StoffDaten Helium{"Helium", 4.0026f, 4.22f, 5.195, 227.5, -0.382};
inline const StoffDaten OhneOmega{"Argon (omega = 0)", 39.948f, 87.3f, 150.687, 4863.0, 0.0};
inline const std::array<StoffDaten, 5> AlleStoffe{Methan, Wasser, Eikosan, Helium, OhneOmega};

inline const std::array<int16_t, 7> KubischeZeilen{2, 3, 4, 5, 6, 7, 8};
inline const std::array<int16_t, 14> AlleZeilen{0, 2, 3, 4, 5, 6, 7, 8, 10, 11, 12, 13, 14, 15};

// The program directory of these states, where the Varnik/Ji set-up leaves its input file.
inline std::string ProgrammOrdner() {
  static const TempOrdner ordner("quor_engine_");
  return ordner.Pfad();
}

// A state set up as the model dialog does it; the Varnik/Ji rows get a hand-made parameter set.
inline ProjectState ZustandMit(const StoffDaten& d, int16_t index) {
  ProjectState s;
  InitProjectState(s);
  s.Datenbank.ProgrammVerzeichnis = ProgrammOrdner();
  s.Stoff.StoffName = d.name;
  s.Stoff.MolMasse = d.MolMasse;
  s.Stoff.TSiede = d.TSiede;
  s.Stoff.TKrit = d.TKrit;
  s.Stoff.pKrit = d.pKrit;
  s.Stoff.omega = d.omega;
  s.Modell.EOSIndex = index;
  s.Modell.VirialFlag = index == 0 || index > 9;
  ui::SkriptOberflaeche ui;
  int16_t err = 0;
  EOSParameterSetup(s, ui, index, err);
  if (index == 7 || index == 8) {
    s.EOS.JiParameter[JiZc] = 0.29;
    s.EOS.JiParameter[JiM] = 0.7;
    s.EOS.JiParameter[JiN] = 0.1;
    s.EOS.JiParameter[JiP] = 0.05;
    s.EOS.JiParameter[JiB2] = index == 8 ? 0.2 : 0.0;
    JiKritischeKonstanten(s, err);
    s.EOS.rhoKritEOS = s.Stoff.MolMasse / s.EOS.vKritEOS;
  }
  return s;
}

// p of the generalised cubic EOS with the constants of the last evaluation, written out here.
inline double DruckKubisch(const ProjectState& s, double T, double v) {
  return RGas * T / (v - s.EOS.bT) - s.EOS.aT / ((v + s.EOS.cT) * (v + s.EOS.dT));
}

// The outputs of VzuTP in one record.
struct Loesung {
  bool istL = false, istV = false;
  double rhoV = 0, rhoL = 0, vV = 0, vL = 0;
  int16_t nRoots = 0;
  double Imbalance = 0, A = 0, B = 0;
  std::string Meldung;
  int16_t err = 0;
};

// VzuTP called the way every caller does, with the state's Gebiet as the region argument.
inline Loesung Loese(ProjectState& s, double T, double p) {
  Loesung l;
  VzuTP(s, T, p, s.EOS.Gebiet, l.istL, l.istV, l.rhoV, l.rhoL, l.vV, l.vL, l.nRoots, l.Imbalance, l.A, l.B,
        l.Meldung, l.err);
  return l;
}

// The equal-area imbalance of the loop at (T, p), which must have three roots there.
inline double Flaechenbilanz(ProjectState& s, double T, double p) {
  EOSbeiT(s, T);
  int16_t n = 0, err = 0;
  KubischeWurzeln(s, T, p, n, err);
  EXPECT_EQ(n, 3) << p;
  double A = 0, B = 0;
  return GleichgewichtsFlaeche(s, T, p, A, B, err);
}

inline double Saettigungsdruck(ProjectState& s, double T, int16_t& err) {
  double imbalance, A, B;
  return pLVbeiT(s, T, imbalance, A, B, err);
}

inline double Saettigungstemperatur(ProjectState& s, double p, int16_t& err) {
  double imbalance, A, B, ohneStart = 0;
  return TLVbeiP(s, p, imbalance, A, B, ohneStart, err);
}

} // namespace quor::test
