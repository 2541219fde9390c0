// The parameter program cubpar as the set-up runs it: its result reaches JiParameter unchanged, it
// fails without writing when it has nothing to fit, and a whole calculation works afterwards.
#include "core/datei_io.h"
#include "engine/eos_auswertung.h"
#include "engine/eos_parameter.h"
#include "engine/korrelationen.h"
#include "engine/saettigung.h"
#include "engine/varnik_ji.h"
#include "engine/zustand.h"
#include "stoffe.h"
#include "support/cubpar_lauf.h"
#include "support/relativ.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <sstream>
#include <tuple>

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

// The fitted parameters reach JiParameter unchanged, and a calculation with them works from end to
// end: single-phase states on both sides of the saturation line and T -> p(LV) -> T.
TEST(Cubpar, ItsParameterFileIsReadBackAndTheModelCalculates) {
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
    EXPECT_EQ(std::tie(J[JiM], J[JiN], J[JiP], J[JiZc]), std::tie(z[2], z[3], z[4], z[5]));
    EXPECT_EQ(J[JiB2], modell == 8 ? z[6] : 0.0);
    // The set-up turned JiZc into the critical volume.
    EXPECT_REL(s.EOS.vKritEOS, J[JiZc] * RGas * 190.56 / 4599, 1e-14);

    const double T = 140;
    const double p = Saettigungsdruck(s, T, err);
    ASSERT_EQ(err, 0);
    const Loesung fluessig = Loese(s, T, 2 * p), dampf = Loese(s, T, 0.5 * p);
    EXPECT_TRUE(fluessig.istL && !fluessig.istV) << modell;
    EXPECT_TRUE(dampf.istV && !dampf.istL) << modell;
    EXPECT_REL(Saettigungstemperatur(s, p, err), T, 1e-4);
    EXPECT_EQ(err, 0);
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

} // namespace
} // namespace quor
