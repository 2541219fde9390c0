// The polytrope with the real calculator Merlon_1: the ideal gas against the closed form, the first
// law and the program's own ideal-gas line; the equation of state point by point against the
// engine, and its approach to the ideal gas at low pressure; a broken request still ends the wait.
#include "calc/calc_testhilfe.h"
#include "dienste/kind_prozess.h"
#include "engine/kalorik.h"
#include "process/polytrope_austausch.h"
#include "process/prozess_linie.h"
#include "support/relativ.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

namespace quor::test {
namespace {

using namespace prozess;
namespace fs = std::filesystem;

// A program directory with the calculator of the build, and methane with Peng/Robinson.
struct MitRechner {
  TempOrdner ordner{"quor_merlon_"};
  ui::SkriptOberflaeche ui;
  ProjectState s = StoffMitModell(CasMethan, 6);
  MitRechner() {
    fs::create_symlink(std::string(QUOR_PROGRAMM_VERZEICHNIS) + "/" + PexProgramm, ordner.Datei(PexProgramm));
    s.Datenbank.ProgrammVerzeichnis = ordner.Pfad();
    ui.prozessAusfuehren = ui::StarteKindProzess;
  }
  PolytropenErgebnis Rechne(const PolytropenAnfrage& a) {
    PolytropenErgebnis r;
    int16_t err = -1;
    PolytropeRechnen(s, ui, a, r, err);
    EXPECT_EQ(err, 0) << r.bericht;
    EXPECT_TRUE(ui.Meldungen().empty());
    return r;
  }
};

PolytropenAnfrage Anfrage(int16_t modus, int16_t bereich, double T1, double p1, double ende, double n,
                          int16_t code = 1) {
  PolytropenAnfrage a;
  a.T1 = T1, a.p1 = p1, a.ProzessBereich = bereich, a.Ende = ende;
  a.PolytropenExponent = n, a.Kappa = 1.31, a.PolytropenModus = modus;
  a.diagrammCode = code;
  a.punktAnzahl = 21;
  return a;
}

// Ideal gas, p range, p - v diagram (X = v, Y = p): p v^n keeps its start value, the end follows
// T2/T1 = (p2/p1)^((n-1)/n), and head and points agree with the program's own ideal-gas line.
TEST(PolytropeMerlon, IdealGasKeepsPvNAndAgreesWithTheProgramsLine) {
  MitRechner m;
  const double n = 1.2;
  const PolytropenErgebnis r = m.Rechne(Anfrage(PolytropeIdealgas, BereichP, 300, 100, 1000, n));
  ASSERT_EQ(r.X.size(), 21u);
  EXPECT_EQ(r.code, 1);
  for (std::size_t i = 0; i < r.X.size(); ++i)
    EXPECT_REL(r.Y[i] * std::pow(r.X[i], n), 100 * std::pow(RGas * 300 / 100, n), 1e-12) << i;
  const auto& k = r.kopf;
  EXPECT_REL(k[KopfT2] / k[KopfT1], std::pow(10.0, (n - 1) / n), 1e-6); // the head is single precision
  EXPECT_EQ(k[KopfP2], 1000);

  ProzessVorgabe v;
  v.ProzessArt = Polytrope, v.ProzessBereich = BereichP, v.T1 = 300, v.P1 = 100, v.Ende = 1000;
  v.PolytropenExponent = n, v.Kappa = 1.31, v.PolytropenModus = PolytropeIdealgas, v.Schritte = 20;
  ProzessLinie l;
  IdealgasPolytrope(m.s, v, l);
  ASSERT_EQ(l.punkte.size(), r.X.size());
  for (std::size_t i = 0; i < r.X.size(); ++i) {
    EXPECT_REL(r.X[i], l.punkte[i].v, 1e-12);
    EXPECT_REL(r.Y[i], l.punkte[i].p, 1e-12);
  }
  EXPECT_REL(k[KopfH2] - k[KopfH1], l.punkte.back().h - l.punkte.front().h, 1e-6);
  EXPECT_REL(k[KopfS2], l.punkte.back().s, 1e-6);
}

// With n = kappa the ideal-gas polytrope is the isentrope: no heat, no change of entropy, and the
// work is the change of internal energy; with n = 1 in p it is the isotherm, heat = -work.
TEST(PolytropeMerlon, IdealGasObeysTheFirstLaw) {
  MitRechner m;
  const auto& k1 = m.Rechne(Anfrage(PolytropeIdealgas, BereichT, 300, 100, 450, 1.31)).kopf;
  const double cv = RGas / 0.31;
  EXPECT_REL(k1[KopfDeltaU], cv * 150, 1e-6);
  EXPECT_REL(k1[KopfArbeit], k1[KopfDeltaU], 1e-6);
  EXPECT_NEAR(k1[KopfWaerme], 0, 1e-3);
  EXPECT_NEAR(k1[KopfDeltaS], 0, 1e-5);
  EXPECT_REL(k1[KopfTechArbeit], k1[KopfDeltaH], 1e-6);

  const auto& k2 = m.Rechne(Anfrage(PolytropeIdealgas, BereichP, 300, 100, 500, 1)).kopf;
  EXPECT_EQ(k2[KopfT2], 300);
  EXPECT_REL(k2[KopfArbeit], RGas * 300 * std::log(5.0), 1e-6);
  EXPECT_REL(k2[KopfWaerme], -k2[KopfArbeit], 1e-6);
  EXPECT_REL(k2[KopfDeltaS], -RGas * std::log(5.0), 1e-6);
}

// The equation of state: in p (p - T diagram) and in T (p - v diagram) every point satisfies both
// p v^n = p1 v1^n and p = p(T, v) of the engine; the end state's h and s are the engine's there.
TEST(PolytropeMerlon, EveryPointOfTheEOSLineLiesOnTheEOS) {
  MitRechner m;
  const double n = 1.25;
  const PolytropenErgebnis r = m.Rechne(Anfrage(PolytropeAktuelleEOS, BereichP, 250, 2000, 8000, n, 5));
  ASSERT_EQ(r.X.size(), 21u);
  EXPECT_EQ(r.code, 6);
  EXPECT_TRUE(r.hatFixParameter);
  EXPECT_EQ(r.fixParameter, 250);
  // The head holds single values: v1 comes from the engine.
  const double v1 = Loese(m.s, 250, 2000).vV, C = 2000 * std::pow(v1, n);
  EXPECT_REL(r.kopf[KopfV1], v1, 1e-6);
  for (std::size_t i = 0; i < r.X.size(); ++i) {
    const double T = r.X[i], p = r.Y[i], v = std::pow(C / p, 1 / n);
    int16_t err = 0;
    EXPECT_REL(PzuTV(m.s, T, v, err), p, 1e-9) << i;
  }
  const auto& k = r.kopf;
  KalorischeWerte w;
  int16_t err = 0;
  ThermoFunktionen(m.s, r.X.back(), 8000, std::pow(C / 8000, 1 / n), PhaseV, w, err);
  EXPECT_REL(k[KopfH2], w.h, 1e-6);
  EXPECT_REL(k[KopfS2], w.s, 1e-6);
  // A real gas: the end temperature differs from the ideal gas's by more than the tolerance above.
  EXPECT_GT(std::fabs(k[KopfT2] / (250 * std::pow(4.0, (n - 1) / n)) - 1), 1e-3);

  const PolytropenErgebnis t = m.Rechne(Anfrage(PolytropeAktuelleEOS, BereichT, 250, 2000, 350, n, 1));
  ASSERT_EQ(t.X.size(), 21u);
  for (std::size_t i = 0; i < t.X.size(); ++i) {
    const double v = t.X[i], p = t.Y[i], T = 250 + i * 5.0;
    int16_t e = 0;
    EXPECT_REL(p * std::pow(v, n), C, 1e-9) << i;
    EXPECT_REL(PzuTV(m.s, T, v, e), p, 1e-9) << i;
  }
}

// At low pressure the EOS's polytrope approaches the ideal gas's; n = 1 is accepted with a p range.
TEST(PolytropeMerlon, EOSApproachesTheIdealGasAtLowPressure) {
  MitRechner m;
  for (double n : {1.0, 1.3}) {
    const auto k = m.Rechne(Anfrage(PolytropeAktuelleEOS, BereichP, 300, 1, 5, n)).kopf;
    EXPECT_REL(k[KopfT2], 300 * std::pow(5.0, (n - 1) / n), 1e-4) << n;
    EXPECT_REL(k[KopfV1], RGas * 300 / 1, 1e-4);
    EXPECT_REL(k[KopfP2] * k[KopfV2], std::pow(5.0, (n - 1) / n) * RGas * 300, 1e-4);
  }
}

// A refused request and a broken request file end with the calculator's flag and its end marker.
TEST(PolytropeMerlon, BadRequestsEndWithTheErrorFlagAndTheMarker) {
  MitRechner m;
  PolytropenErgebnis r;
  int16_t err = 0;
  PolytropeRechnen(m.s, m.ui, Anfrage(PolytropeAktuelleEOS, BereichT, 300, 100, 400, 1), r, err);
  EXPECT_EQ(err, PexRechnerFehler);
  EXPECT_NE(r.bericht.find("n = 1"), std::string::npos) << r.bericht;

  m.ordner.Schreibe(PexEingabeDatei, "0\r\n\"CH4\"\r\n1\r\nkaputt\r\n");
  ui::ProzessAuftrag auftrag;
  auftrag.programm = m.ordner.Datei(PexProgramm);
  auftrag.arbeitsVerzeichnis = m.ordner.Pfad();
  auftrag.wartenMs = 20000;
  EXPECT_EQ(ui::StarteKindProzess(auftrag).ergebnis, ui::ProzessErgebnis::Beendet);
  EXPECT_TRUE(fs::exists(m.ordner.Datei(PexEndeDatei)));
  EXPECT_EQ(LeseDatei(m.ordner.Datei(PexErgebnisDatei)).substr(0, 3), "1\r\n");
}

} // namespace
} // namespace quor::test
