// The parameter program cubpar as the set-up runs it: its result reaches JiParameter unchanged, it
// fails without writing when it has nothing to fit, and a whole calculation works afterwards.
#include "core/datei_io.h"
#include "engine/eos_auswertung.h"
#include "engine/eos_parameter.h"
#include "engine/korrelationen.h"
#include "engine/saettigung.h"
#include "engine/varnik_ji.h"
#include "engine/zustand.h"
#include "support/cubpar_lauf.h"
#include "support/relativ.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <sstream>

namespace quor {
namespace {

using namespace quor::test;

// The numbers of a parameter file, read here with the C library, independently of the program.
std::vector<double> Zahlen(const std::string& datei) {
  std::string bytes;
  LeseDateiBytes(datei, bytes);
  for (char& c : bytes)
    if (c == ',') c = ' ';
  std::istringstream ein(bytes);
  std::vector<double> z;
  std::string wort;
  while (ein >> wort)
    z.push_back(std::strtod(wort.c_str(), nullptr));
  return z;
}

// Methane set up for model `modell` with the parameter program really run.
ProjectState Eingerichtet(int16_t modell, const std::string& tag, const TempOrdner& dir, int16_t& err,
                          ui::SkriptOberflaeche& ui) {
  StelleCubparBereit(dir.Pfad());
  ProjectState s = MethanFuerJi(modell, tag, dir.Pfad());
  err = 0;
  EOSParameterSetup(s, ui, modell, err);
  return s;
}

TEST(Cubpar, ItsParameterFileIsReadBackIntoJiParameter) {
  for (int16_t modell : {7, 8}) {
    TempOrdner dir;
    ui::SkriptOberflaeche ui = EchteProzesse();
    int16_t err = 0;
    ProjectState s = Eingerichtet(modell, "FRO", dir, err, ui);
    ASSERT_EQ(err, 0) << modell;
    EXPECT_TRUE(ui.Meldungen().empty());
    const std::vector<double> z = Zahlen(dir.Datei(JiParameterDateiName(modell)));
    ASSERT_EQ(z.size(), modell == 8 ? 7u : 6u);
    EXPECT_EQ(z[0], 50); // 25 vapour pressures and 25 liquid densities of methane
    const auto& J = s.EOS.JiParameter;
    EXPECT_EQ(J[JiM], z[2]);
    EXPECT_EQ(J[JiN], z[3]);
    EXPECT_EQ(J[JiP], z[4]);
    EXPECT_EQ(J[JiZc], z[5]);
    EXPECT_EQ(J[JiB2], modell == 8 ? z[6] : 0.0);
    // The set-up turned JiZc into the critical volume.
    EXPECT_REL(s.EOS.vKritEOS, J[JiZc] * RGas * 190.56 / 4599, 1e-14);
    EXPECT_REL(s.EOS.rhoKritEOS, s.Stoff.MolMasse / s.EOS.vKritEOS, 1e-14);
  }
}

// With no vapour-pressure data at all (no tag and an empty Antoine block) the program has nothing
// to fit and writes nothing; an input it cannot read ends it the same way.
TEST(Cubpar, WritesNothingWhenItHasNothingToFit) {
  TempOrdner dir;
  StelleCubparBereit(dir.Pfad());
  ProjectState s = MethanFuerJi(7, "000", dir.Pfad());
  s.Stoff.AntoineNd = {0, 0, 0};
  s.Stoff.AntoineNdGrenzen = {0, 0};
  ui::SkriptOberflaeche ui = EchteProzesse();
  int16_t err = 0;
  EOSParameterSetup(s, ui, 7, err);
  EXPECT_GT(err, 0);
  const auto m = ui.Meldungen();
  ASSERT_EQ(m.size(), 2u);
  EXPECT_EQ(m[0].text, "Kein Parameterfile erzeugt.");

  for (const char* eingabe :
       {"10\r\n\"74-82-8     \"\r\n0,2\r\n", "Unsinn", "12\r\n\"x\"\r\n0,0\r\n1,1,1,1,1,1\r\n"}) {
    ASSERT_TRUE(SchreibeDateiBytes(dir.Datei("jipar.tmp"), eingabe));
    ui::ProzessAuftrag a;
    a.programm = dir.Datei("cubpar");
    a.arbeitsVerzeichnis = dir.Pfad();
    const ui::ProzessStatus st = StarteEcht(a);
    EXPECT_EQ(st.ergebnis, ui::ProzessErgebnis::Beendet);
    EXPECT_EQ(st.exitCode, 2) << eingabe;
    EXPECT_FALSE(DateiExistiert(dir.Datei("PARAM_JI.DAT"))) << eingabe;
  }
}

// A calculation with the fitted models from end to end: single-phase states on both sides of the
// saturation line and T -> p(LV) -> T. (Equal fugacities and Clapeyron's equation hold for these
// rows with any parameter set; the saturation and caloric tests check them.)
TEST(VarnikJi, FullCalculationAfterTheSetUp) {
  for (int16_t modell : {7, 8}) {
    TempOrdner dir;
    ui::SkriptOberflaeche ui = EchteProzesse();
    int16_t err = 0;
    ProjectState s = Eingerichtet(modell, "FRO", dir, err, ui);
    ASSERT_EQ(err, 0) << modell;
    const double T = 140;
    double imbalance = 0, A = 0, B = 0;
    const double p = pLVbeiT(s, T, imbalance, A, B, err);
    ASSERT_EQ(err, 0);

    bool istL = false, istV = false;
    double rhoV = 0, rhoL = 0, v1 = 0, v2 = 0;
    int16_t n = 0;
    std::string meldung;
    VzuTP(s, T, 2 * p, s.EOS.Gebiet, istL, istV, rhoV, rhoL, v1, v2, n, imbalance, A, B, meldung, err);
    EXPECT_TRUE(istL && !istV) << modell;
    istL = istV = false;
    VzuTP(s, T, 0.5 * p, s.EOS.Gebiet, istL, istV, rhoV, rhoL, v1, v2, n, imbalance, A, B, meldung, err);
    EXPECT_TRUE(istV && !istL) << modell;

    double TStart = 0;
    EXPECT_REL(TLVbeiP(s, p, imbalance, A, B, TStart, err), T, 1e-4);
    EXPECT_EQ(err, 0);
  }
}

} // namespace
} // namespace quor
