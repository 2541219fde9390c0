// The polytrope exchange with the calculator Merlon_1: the request file line by line, the code
// table, the wait for the end marker and the reading of the result, first behind a scripted
// calculator, then with the real one: its ideal-gas polytrope against the closed form and the
// program's own ideal-gas line, its polytrope of the equation of state point by point against the
// engine.
#include "calc/calc_testhilfe.h"
#include "core/zahlformat.h"
#include "dienste/kind_prozess.h"
#include "engine/kalorik.h"
#include "process/polytrope_austausch.h"
#include "process/polytrope_uebergabe.h"
#include "process/prozess_linie.h"
#include "support/relativ.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <regex>

namespace quor::test {
namespace {

using namespace prozess;
namespace fs = std::filesystem;

std::vector<std::string> ZeilenVon(const std::string& text) {
  std::vector<std::string> z;
  std::size_t a = 0;
  for (std::size_t e; (e = text.find("\r\n", a)) != std::string::npos; a = e + 2)
    z.push_back(text.substr(a, e - a));
  return z;
}

ProjectState Methan(const std::string& verzeichnis) {
  ProjectState s = StoffMitModell(CasMethan, 6);
  s.Datenbank.ProgrammVerzeichnis = verzeichnis;
  return s;
}

PolytropenAnfrage Anfrage(int16_t modus, int16_t bereich, double T1, double p1, double ende, double n) {
  PolytropenAnfrage a;
  a.T1 = T1, a.p1 = p1, a.ProzessBereich = bereich, a.Ende = ende;
  a.PolytropenExponent = n, a.Kappa = 1.31, a.PolytropenModus = modus;
  a.diagrammCode = 5; // p - T: X = T, Y = p
  a.punktAnzahl = 11;
  return a;
}

// The vapour volume of the engine at (T, p).
double Volumen(ProjectState s, double T, double p) {
  const Zustand z = Loese(s, T, p);
  return z.istL ? z.vL : z.vV;
}

// 22 equal lines of a result head.
std::string Kopf(const std::string& wert) {
  std::string k;
  for (std::size_t i = 0; i < PexKopfWerte; ++i)
    k += wert + "\r\n";
  return k;
}

TEST(PolytropeAustausch, RequestHeadStandsLineByLine) {
  ProjectState s = Methan("");
  const std::vector<std::string> z = ZeilenVon(ToPexBytes(s, Anfrage(1, BereichP, 300, 1000, 5000, 1.3)));
  ASSERT_GT(z.size(), 15u + 2 * PexPhasenWerte);
  const std::vector<std::string> kopf = {"0", "\"" + s.Stoff.Formel + "\"", "1", "0", "1", "0", "2", "6",
                                         "11"};
  for (std::size_t i = 0; i < kopf.size(); ++i)
    EXPECT_EQ(z[i], kopf[i]) << "item " << i + 1;
  EXPECT_EQ(z[10], "3.0000000E+02");
  EXPECT_EQ(z[11], "1.0000000E+03");
  const std::regex exponent(R"(-?\d\.\d{7}E[+-]\d\d)");
  for (std::size_t i = 9; i < 15 + 2 * PexPhasenWerte; ++i)
    EXPECT_TRUE(std::regex_match(z[i], exponent)) << i << ": " << z[i];
  EXPECT_EQ(z[9], FormatVB(s.Stoff.MolMasse, "0.0000000E+00"));
  EXPECT_EQ(z[12], FormatVB(Volumen(s, 300, 1000), "0.0000000E+00"));
  EXPECT_EQ(z[13], "0.0000000E+00");
  EXPECT_EQ(z[14], "0.0000000E+00");
  // Supercritical methane counts as liquid: its block comes first, the vapour's stays empty.
  EXPECT_EQ(z[15], z[12]);
  EXPECT_EQ(z[15 + PexPhasenWerte], "0.0000000E+00");
  // The tail begins with n.
  EXPECT_EQ(z[15 + 2 * PexPhasenWerte], "1.3");
}

TEST(PolytropeAustausch, SpecificValuesAndIdealGasChangeTheirItems) {
  ProjectState s = Methan("");
  s.Einheiten.EnergieMode = 3;
  const std::vector<std::string> z = ZeilenVon(ToPexBytes(s, Anfrage(2, BereichP, 300, 1000, 5000, 1.3)));
  EXPECT_EQ(z[3], "1");
  EXPECT_EQ(z[4], "2");
  EXPECT_EQ(z[15], "1.3") << "without the phase blocks the tail follows the zero pair";
}

TEST(PolytropeAustausch, CodeTableMapsDiagramCodesAndLeavesOthersAtZero) {
  const std::pair<int16_t, int16_t> faelle[] = {
      {1, 1},   {6, 1},   {26, 2},   {106, 3},  {150, 31}, {5, 6}, {9, 6}, {90, 12}, {14, 10}, {181, 24},
      {21, 53}, {22, 53}, {109, 52}, {160, 44}, {185, 25}, {0, 0}, {8, 0}, {201, 0}, {300, 0}, {-1, 0}};
  for (const auto& [code, wert] : faelle)
    EXPECT_EQ(AustauschCode(code), wert) << code;
}

// The request as the calculator reads it back computes exactly what the program computes.
TEST(PolytropeAustausch, CalculatorReadsBackTheModelBitForBit) {
  ProjectState s = Methan("");
  s.Stoff.TKrit = 190.564123456789; // an edited value the database would round
  s.Referenz.hRef = 1234.5678901234;
  PolytropenAnfrage anfrage = Anfrage(1, BereichT, 250, 800, 400, 1.25);
  ProjectState r;
  InitProjectState(r);
  PexAuftrag a;
  std::string grund;
  ASSERT_TRUE(PexAuftragLesen(ToPexBytes(s, anfrage), a, r, grund)) << grund;
  EXPECT_EQ(a.Formel, s.Stoff.Formel);
  EXPECT_EQ(a.Code, 6);
  EXPECT_EQ(a.Punkte, 11);
  EXPECT_EQ(a.n, 1.25);
  EXPECT_EQ(a.kappa, 1.31);
  EXPECT_EQ(a.Bereich, BereichT);
  EXPECT_EQ(a.Ende, 400);
  EXPECT_EQ(a.Trenner, s.Optionen.XYTrenner);
  EXPECT_EQ(r.Stoff.TKrit, s.Stoff.TKrit);
  EXPECT_EQ(r.Stoff.CpPoly, s.Stoff.CpPoly);
  EXPECT_EQ(r.EOS.a0, s.EOS.a0);
  EXPECT_EQ(r.Referenz.hRef, s.Referenz.hRef);
  EXPECT_EQ(Volumen(r, 250, 800), Volumen(s, 250, 800));
  KalorischeWerte ws, wr;
  int16_t err = 0;
  ThermoFunktionen(s, 250, 800, Volumen(s, 250, 800), PhaseV, ws, err);
  ThermoFunktionen(r, 250, 800, Volumen(r, 250, 800), PhaseV, wr, err);
  EXPECT_EQ(wr.h, ws.h);
  EXPECT_EQ(wr.s, ws.s);
  // A file cut off anywhere in its tail is refused.
  const std::string ganz = ToPexBytes(s, anfrage);
  EXPECT_FALSE(PexAuftragLesen(ganz.substr(0, ganz.size() - 10), a, r, grund));
}

// A program directory with a stand-in for the calculator.
struct Verzeichnis {
  TempOrdner ordner{"quor_pex_"};
  ui::SkriptOberflaeche ui;
  ProjectState s = Methan(ordner.Pfad());
  PolytropenErgebnis r;
  int16_t err = -1;
  Verzeichnis() { ordner.Schreibe(PexProgramm, ""); }
  bool Da(const char* name) const { return fs::exists(ordner.Datei(name)); }
  void Rechne(const PolytropenAnfrage& a, int wartenMs = 50000) {
    PolytropeRechnen(s, ui, a, r, err, wartenMs);
  }
};

TEST(PolytropeAustausch, StaleFilesAreDeletedBeforeTheStartAndTheResultIsRead) {
  Verzeichnis v;
  v.ordner.Schreibe(PexEndeDatei, "");
  v.ordner.Schreibe(PexErgebnisDatei, "alt");
  v.ui.prozessAusfuehren = [&v](const ui::ProzessAuftrag& auftrag) {
    EXPECT_EQ(auftrag.arbeitsVerzeichnis, v.ordner.Pfad());
    EXPECT_TRUE(v.Da(PexEingabeDatei));
    EXPECT_FALSE(v.Da(PexEndeDatei)) << "a stale end marker would end the wait at once";
    EXPECT_FALSE(v.Da(PexErgebnisDatei));
    std::string kopf;
    for (std::size_t i = 0; i < PexKopfWerte; ++i)
      kopf += std::to_string(i + 1) + (i == 3 ? ",5" : "") + "\r\n";
    v.ordner.Schreibe(PexErgebnisDatei, "0\r\n6\r\n3\r\n" + kopf +
                                            "300;1000\r\n310,5;1E37\r\n320;2.5E38\r\n" +
                                            "Zeile 1\r\nZeile 2\r\n");
    v.ordner.Schreibe(PexEndeDatei, "");
    return ui::ProzessStatus{ui::ProzessErgebnis::Beendet, 0};
  };
  v.Rechne(Anfrage(1, BereichP, 300, 1000, 5000, 1.3), 1234);
  ASSERT_EQ(v.err, 0);
  ASSERT_EQ(v.ui.prozesse.size(), 1u);
  EXPECT_EQ(v.ui.prozesse[0].wartenMs, 1234);
  EXPECT_EQ(v.r.code, 6);
  EXPECT_EQ(v.r.kopf[0], 1);
  EXPECT_EQ(v.r.kopf[3], 4.5) << "the decimal comma is read as a point";
  EXPECT_EQ(v.r.X, (std::vector<double>{300, 310.5, 320}));
  EXPECT_EQ(v.r.Y, (std::vector<double>{1000, 1e37, 1e37})) << "values at or above 1E37 are kept as 1E37";
  EXPECT_TRUE(v.r.hatFixParameter);
  EXPECT_EQ(v.r.fixParameter, 300);
  EXPECT_EQ(v.r.bericht, "Zeile 1\r\nZeile 2");
  EXPECT_TRUE(v.ui.Meldungen().empty());
}

TEST(PolytropeAustausch, ReducedDisplayBringsTheFirstColumnToReducedUnits) {
  Verzeichnis v;
  v.s.Einheiten.VolumenMode = 2;
  SetzeEinheiten(v.s, v.ui);
  v.ui.prozessAusfuehren = [&v](const ui::ProzessAuftrag&) {
    v.ordner.Schreibe(PexErgebnisDatei, "0\r\n6\r\n1\r\n" + Kopf("0") + "300;1000\r\n");
    v.ordner.Schreibe(PexEndeDatei, "");
    return ui::ProzessStatus{ui::ProzessErgebnis::Beendet, 0};
  };
  v.Rechne(Anfrage(1, BereichP, 300, 1000, 5000, 1.3));
  ASSERT_EQ(v.err, 0);
  ASSERT_EQ(v.r.X.size(), 1u);
  EXPECT_REL(v.r.X[0], 300 / v.s.Stoff.TKrit, 1e-6);
  EXPECT_EQ(v.r.Y[0], 1000) << "the second column comes in display units";
  EXPECT_EQ(v.r.fixParameter, v.r.X[0]);
}

TEST(PolytropeAustausch, MissingCalculatorIsReportedWithError10) {
  TempOrdner leer;
  ui::SkriptOberflaeche ui;
  ProjectState s = Methan(leer.Pfad());
  PolytropenErgebnis r;
  int16_t err = 0;
  PolytropeRechnen(s, ui, Anfrage(1, BereichP, 300, 1000, 5000, 1.3), r, err);
  EXPECT_EQ(err, PexOhneRechner);
  ASSERT_EQ(ui.Meldungen().size(), 1u);
  EXPECT_EQ(ui.Meldungen()[0].text, "File Merlon_1.EXE im QUOR-Verzeichnis nicht gefunden");
  EXPECT_EQ(ui.Meldungen()[0].titel, "Ausführung nicht möglich");
  EXPECT_TRUE(ui.prozesse.empty());
  EXPECT_FALSE(fs::exists(leer.Datei(PexEingabeDatei)));
}

TEST(PolytropeAustausch, CalculatorThatNeverFinishesEndsWithError100) {
  Verzeichnis v;
  v.ordner.Schreibe(PexEndeDatei, "");
  v.ordner.Schreibe(PexProgramm, "#!/bin/sh\nsleep 30\n");
  fs::permissions(v.ordner.Datei(PexProgramm), fs::perms::owner_all);
  v.ui.prozessAusfuehren = ui::StarteKindProzess;
  v.Rechne(Anfrage(1, BereichP, 300, 1000, 5000, 1.3), 200);
  EXPECT_EQ(v.err, PexZeitAbgelaufen);
  EXPECT_TRUE(v.r.X.empty());
  EXPECT_TRUE(v.ui.Meldungen().empty()) << "the caller words the failure";
}

TEST(PolytropeAustausch, BrokenResultFileGivesTheReadersMessage) {
  const std::string kopf = Kopf("1");
  const std::string faelle[] = {"",
                                "0\r\n6\r\n3\r\n1\r\n2\r\n",
                                "0\r\nsechs\r\n",
                                "0\r\n6\r\n99999999\r\n" + kopf,
                                "0\r\n6\r\n-2\r\n" + kopf,
                                "0\r\n6\r\n2\r\n" + kopf + "300;1000\r\n",
                                "0\r\n6\r\n1\r\n" + kopf + "300 1000\r\n",
                                "0\r\n6\r\n1\r\n" + kopf + "drei;1000\r\n",
                                "0\r\n6\r\n1\r\n" + kopf.substr(3) + "x\r\n"};
  ProjectState s;
  InitProjectState(s);
  for (const std::string& f : faelle) {
    SCOPED_TRACE(f.substr(0, 30));
    ui::SkriptOberflaeche ui;
    PolytropenErgebnis r;
    int16_t err = 0;
    read_from_PEX(s, ui, f, r, err);
    EXPECT_NE(err, 0);
    EXPECT_TRUE(r.X.empty());
    ASSERT_EQ(ui.Meldungen().size(), 1u);
    EXPECT_EQ(ui.Meldungen()[0].titel, "Call from read_from_PEX:");
  }
}

TEST(PolytropeAustausch, CalculatorErrorFlagEndsTheReadWithItsReason) {
  ProjectState s;
  InitProjectState(s);
  ui::SkriptOberflaeche ui;
  PolytropenErgebnis r;
  int16_t err = 0;
  read_from_PEX(s, ui, "1\r\nGrund\r\n", r, err);
  EXPECT_EQ(err, PexRechnerFehler);
  EXPECT_EQ(r.bericht, "Grund");
  EXPECT_TRUE(ui.Meldungen().empty());
}

} // namespace
} // namespace quor::test
