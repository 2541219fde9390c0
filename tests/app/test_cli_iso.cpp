// quor-cli iso: the pressure on the isentrope of propane found by the calculator agrees with the end
// of the process line through the same states; per kg the value is another number for the same
// state; a value the vapour cannot hold has no solution; usage errors.
#include "cli_testhilfe.h"

#include <cstdio>

namespace quor::test {
namespace {

std::string Text(double x) {
  char puffer[40];
  std::snprintf(puffer, sizeof puffer, "%.17g", x);
  return puffer;
}

TEST(CliIso, PressureOnTheIsentropeAgreesWithTheProcessLine) {
  const Json linie = StarteJson(
      {"--substance", "Propan", "--eos", "6", "process", "isentrope", "--from", "400;1000", "--to-T", "350"});
  const double s = linie["report"]["fixed_value"].Z();
  const double pEnde = linie["points"].liste.back()["p"].Z();

  const Json r = StarteJson({"--substance", "Propan", "--eos", "6", "iso", "--T", "350", "--fix", "s",
                             "--value", Text(s), "--start", "500"});
  ASSERT_TRUE(r["solved"].B());
  EXPECT_EQ(r["given"].T(), "T");
  EXPECT_EQ(r["unit"].T(), "kJ/(kmol K)");
  EXPECT_EQ(r["T"].Z(), 350);
  // Both solvers stop at |dx/x| < 1.5e-6.
  EXPECT_REL(r["p"].Z(), pEnde, 1e-5);
  EXPECT_TRUE(r["messages"].liste.empty());

  // Per kg (energy mode 3) the same entropy is s / M, and it gives the same pressure.
  const Json info = StarteJson({"--substance", "Propan", "info"});
  const double M = info["MolMasse"].Z();
  const Ergebnis proKg = Starte({"--substance", "Propan", "--eos", "6", "--energy-mode", "3", "iso", "--T",
                                 "350", "--fix", "s", "--value", Text(s / M), "--start", "500"});
  ASSERT_EQ(proKg.code, 0) << proKg.fehler;
  ASSERT_EQ(proKg.aus.rfind("p = ", 0), 0u) << proKg.aus;
  EXPECT_REL(std::stod(proKg.aus.substr(4)), pEnde, 1e-5);
}

TEST(CliIso, NoSolutionAndUsageErrors) {
  const Ergebnis nein = Starte({"--substance", "Propan", "--eos", "6", "iso", "--p", "1000", "--fix", "v",
                                "--value", "-1", "--phase", "V"});
  EXPECT_EQ(nein.code, 1);
  EXPECT_NE(nein.fehler.find("keine Lösung"), std::string::npos) << nein.fehler;
  EXPECT_TRUE(nein.aus.empty());
  for (const std::vector<std::string>& falsch :
       {std::vector<std::string>{"iso", "--T", "300", "--p", "100", "--fix", "s", "--value", "1"},
        {"iso", "--T", "300", "--fix", "x", "--value", "1"},
        {"iso", "--T", "300", "--fix", "s"},
        {"iso", "--T", "300", "--fix", "s", "--value", "1", "--phase", "S"}}) {
    std::vector<std::string> auftrag = {"--substance", "Propan"};
    auftrag.insert(auftrag.end(), falsch.begin(), falsch.end());
    EXPECT_EQ(Starte(auftrag).code, 2) << falsch[3];
  }
}

} // namespace
} // namespace quor::test
