// quor-cli process: the states of a process line as JSON, checked against the equation written out
// independently (every (T, p, v) a root of Peng/Robinson for propane), the lever rule's start on
// the dew line, and the refusals of the line and of the command line.
#include "cli_testhilfe.h"

namespace quor::test {
namespace {

TEST(CliProcess, IsentropeOfTheVapourAsJson) {
  const Json info = StarteJson({"--substance", "Propan", "--eos", "6", "info"});
  const Json r = StarteJson(
      {"--substance", "Propan", "--eos", "6", "process", "isentrope", "--from", "400;1000", "--to-T", "350"});
  EXPECT_EQ(r["kind"].T(), "isentrope");
  EXPECT_EQ(r["report"]["curve_code"].Z(), 210);
  EXPECT_EQ(r["report"]["fixed_quantity"].T(), "s");
  EXPECT_FALSE(r["report"]["failed"].B());
  EXPECT_TRUE(r["messages"].liste.empty());
  const auto& punkte = r["points"].liste;
  ASSERT_EQ(punkte.size(), 51u);
  EXPECT_EQ(punkte.front()["T"].Z(), 400);
  EXPECT_EQ(punkte.front()["p"].Z(), 1000);
  EXPECT_EQ(punkte.back()["T"].Z(), 350);
  const double s = r["report"]["fixed_value"].Z();
  for (const Json& z : punkte) {
    EXPECT_TRUE(IstWurzel(info, z["T"].Z(), z["p"].Z(), z["v"].Z(), 1e-6)) << z["T"].Z();
    EXPECT_NEAR(z["s"].Z(), s, 1e-4);
    EXPECT_EQ(z["eta"].Z(), 1);
  }
  // An expansion: the pressure falls with T.
  EXPECT_LT(punkte.back()["p"].Z(), 1000);
}

TEST(CliProcess, HeterogeneousIsochoreStartsOnTheDewLine) {
  const Json r = StarteJson({"--substance", "Propan", "--eos", "6", "process", "isochore", "--hetero",
                             "--from", "300;1000", "--to-T", "250"});
  EXPECT_EQ(r["report"]["curve_code"].Z(), 211);
  const auto& punkte = r["points"].liste;
  ASSERT_EQ(punkte.size(), 51u);
  EXPECT_EQ(punkte.front()["eta"].Z(), 1);
  EXPECT_EQ(punkte.front()["v"].Z(), r["report"]["fixed_value"].Z());
  for (const Json& z : punkte)
    EXPECT_NEAR(z["v"].Z(), r["report"]["fixed_value"].Z(), 1e-9 * r["report"]["fixed_value"].Z());
  EXPECT_LT(punkte.back()["eta"].Z(), 1);
}

// The polytrope of the EOS goes through the calculator: every (T, p, v) a root of Peng/Robinson, p v^n
// constant along the line, and the report's numbers those of the head.
TEST(CliProcess, PolytropeOfTheEOSThroughTheCalculator) {
  const Json info = StarteJson({"--substance", "Propan", "--eos", "6", "info"});
  const Json r = StarteJson({"--substance", "Propan", "--eos", "6", "process", "polytrope", "--n", "1.1",
                             "--kappa", "1.13", "--from", "400;1000", "--to-p", "2500"});
  EXPECT_EQ(r["kind"].T(), "polytrope");
  EXPECT_FALSE(r["report"]["failed"].B());
  EXPECT_TRUE(r["messages"].liste.empty());
  EXPECT_NE(r["report"]["text"].T().find("aktuellen Zustandsgleichung"), std::string::npos);
  const auto& kopf = r["report"]["head"].liste;
  ASSERT_EQ(kopf.size(), 22u);
  const auto& punkte = r["points"].liste;
  ASSERT_EQ(punkte.size(), 51u);
  EXPECT_EQ(punkte.front()["T"].Z(), 400);
  EXPECT_EQ(punkte.back()["p"].Z(), 2500);
  const double pvn = 1000 * std::pow(punkte.front()["v"].Z(), 1.1);
  for (const Json& z : punkte) {
    EXPECT_TRUE(IstWurzel(info, z["T"].Z(), z["p"].Z(), z["v"].Z(), 1e-6)) << z["p"].Z();
    EXPECT_NEAR(z["p"].Z() * std::pow(z["v"].Z(), 1.1) / pvn, 1, 1e-9);
  }
  // The head: T2 and the change of enthalpy as the points have them (single precision).
  EXPECT_NEAR(kopf[3].Z() / punkte.back()["T"].Z(), 1, 1e-6);
  EXPECT_NEAR(kopf[11].Z() / (punkte.back()["h"].Z() - punkte.front()["h"].Z()), 1, 1e-5);
}

TEST(CliProcess, Refusals) {
  // n = 1 is the isotherm: refused with a T range (the dialog's message, exit 1), drawn with a p range.
  const Json nein = StarteJson({"--substance", "Propan", "process", "polytrope", "--ideal", "--n", "1",
                                "--kappa", "1.13", "--from", "300,100", "--to-T", "400"},
                               1);
  EXPECT_TRUE(nein["points"].liste.empty());
  ASSERT_EQ(nein["messages"].liste.size(), 1u);
  EXPECT_EQ(nein["messages"][0]["title"].T(), "Ausführung nicht möglich");
  EXPECT_EQ(
      nein["messages"][0]["text"].T(),
      "Bedingung Polytropen-Exp. n = 1 (=> isotherm) ist im\r\nWiderspruch zur Angabe eines T-Bereichs.");
  const Json ja = StarteJson({"--substance", "Propan", "process", "polytrope", "--ideal", "--n", "1",
                              "--kappa", "1.13", "--from", "300,100", "--to-p", "400"});
  EXPECT_EQ(ja["points"].liste.size(), 51u);
  // Usage errors of the command line: exit 2.
  for (const std::vector<std::string>& falsch :
       {std::vector<std::string>{"process", "isentrope", "--from", "300,100", "--to-T", "200", "--to-p",
                                 "50"},
        {"process", "isentrope", "--from", "300", "--to-T", "200"},
        {"process", "isobar", "--from", "300,100", "--to-T", "200", "--n", "2"},
        {"process", "adiabate", "--from", "300,100", "--to-T", "200"}}) {
    std::vector<std::string> auftrag = {"--substance", "Propan"};
    auftrag.insert(auftrag.end(), falsch.begin(), falsch.end());
    EXPECT_EQ(Starte(auftrag).code, 2) << falsch[1];
  }
}

} // namespace
} // namespace quor::test
