// The functions of kind 8 and the further blocks of the common ending: fugacity and residual functions,
// mechanical coefficients, derivatives with the inflection points, the functions block, the EOS
// parameters; cells, record and scaling against direct engine calls.
#include "calc_testhilfe.h"
#include "core/festtext.h"
#include "core/zahlformat.h"
#include "engine/ableitungen.h"
#include "engine/eos_auswertung.h"
#include "engine/kalorik.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

using namespace quor::test;

constexpr const char* Format = " 0.0000E+00;-0.0000E+00";

struct Phase {
  double v = 0;
  KalorischeWerte w;
  KalorikTabellen tab;
  MechTabelle mech{};
};

// The tables of one phase at (T, p), computed directly.
Phase Direkt(ProjectState s, double T, double p, int row) {
  Phase ph;
  const Zustand z = Loese(s, T, p);
  ph.v = row == PhaseL ? z.vL : z.vV;
  int16_t err = 0;
  ThermoFunktionen(s, T, p, ph.v, row, ph.w, err);
  PhiFunktionen(s, row, T, p, ph.v, ph.tab.Abl1, ph.tab.Abl2, ph.tab.ResFunk, err);
  MechKoeffizienten(row, p, ph.v, ph.tab.Abl1, ph.mech, err);
  return ph;
}

// Kind 8 in the liquid with every block (stored page): the caloric cells, g as h - T*s, the residual
// and mechanical cells, and the record's tables.
TEST(CalcBatchFunktionen, Kind8WithAllBlocksInTheLiquid) {
  Rechnung r(StoffMitModell(CasMethan, 6));
  r.k.Abschnitte = 4;
  r.k.MitFunktionen = true;
  const Phase d = Direkt(r.s, 120, 2000, PhaseL);
  r.Vorgabe(120, 2000).Rechne(8);
  ASSERT_FALSE(r.k.ErrorFlag);
  const std::array<std::pair<int, double>, 5> zellen{{{ZelleHL, d.w.h},
                                                      {ZelleGL, d.w.h - 120 * d.w.s},
                                                      {ZelleCvL, d.w.cv},
                                                      {ZelleDeltaL, d.tab.ResFunk[PhaseL][7]},
                                                      {ZelleChiL, d.mech[PhaseL][2]}}};
  for (const auto& [zelle, wert] : zellen)
    EXPECT_REL(r.Zelle(zelle), wert, 1e-12) << "cell " << zelle;
  const StapelErgebnis& z = r.Satz();
  EXPECT_EQ(z.Abl1[PhaseL][1], static_cast<float>(d.tab.Abl1[PhaseL][1]));
  EXPECT_EQ(z.Mech[PhaseL][2], static_cast<float>(d.mech[PhaseL][3]));
  WieGespeichert(r.seite, "art8_alle_bloecke");
}

// Kind 8 above T(cr) in kJ/kg and m^3/kg: the cells divided by the molar mass, the derivatives taken
// per kg, the unit texts cut to their field of 14 characters.
TEST(CalcBatchFunktionen, Kind8InSpecificUnits) {
  Rechnung r(StoffMitModell(CasMethan, 6));
  r.s.Einheiten.VolumenMode = 1;
  r.s.Einheiten.EnergieMode = 3;
  SetzeEinheiten(r.s, r.ui);
  r.k.Abschnitte = 3;
  const Phase d = Direkt(r.s, 300, 1000, PhaseV);
  const double M = r.s.Stoff.MolMasse;
  r.Vorgabe(300, 1000).Rechne(8);
  EXPECT_REL(r.Zelle(ZelleGV), (d.w.h - 300 * d.w.s) / M, 1e-12);
  const std::string& t = r.seite.Liste.text;
  EXPECT_NE(t.find("Ableitungen nach T, p, V(spezif.)"), std::string::npos);
  EXPECT_NE(t.find(" (dp/dV) bei T : " + FormatVB(d.tab.Abl1[PhaseV][1] * M, Format)), std::string::npos);
  EXPECT_NE(t.find(FestText("Entropie", 17) + "s / (kJ/(kg K) = "), std::string::npos);
}

} // namespace
} // namespace quor
