// quor-cli calc 9 and 10: the vessel picture's caption, pressure field and fill level follow the
// result page; the fill level agrees with the lever rule on the saturated roots of the JSON output;
// a filling beyond the co-volume shows the pressure field's error.
#include "cli_testhilfe.h"

namespace quor::test {
namespace {

TEST(CliKessel, FillLevelFollowsTheLeverRuleOnTheSaturatedRoots) {
  // 100 kg of methane in 1 m^3 at 150 K: between the saturated densities of Peng/Robinson.
  const std::vector<std::string> aufruf = {"--substance", "Methan", "--eos", "6",   "calc", "9",
                                           "--T",         "150",    "--m",   "100", "--V",  "1"};
  const Json r = StarteJson(aufruf);
  ASSERT_TRUE(r["ok"].B());
  const Json& kessel = r["vessel"];
  EXPECT_EQ(kessel["caption"].T(), "Behälter-Berechnung (GLOBAL-Methode)");
  EXPECT_EQ(kessel["BehaelterStatus"].T(), "");
  // The liquid's volume share from the roots: n(L) v(L) / V with n(L) from the lever rule.
  const double M = StarteJson({"--substance", "Methan", "info"})["MolMasse"].Z(), v = M / 100;
  const double vL = r["VRoots"][0].Z(), vV = r["VRoots"][2].Z();
  const double anteil = (vV - v) / (vV - vL) * vL / v * 100;
  EXPECT_REL(kessel["BehaelterFuellstand"].Z(), anteil, 1e-6);
  EXPECT_GT(kessel["BehaelterP"].Z(), 0);

  const Ergebnis text = Starte(aufruf);
  ASSERT_EQ(text.code, 0) << text.fehler;
  const std::string schluss = "\nBehälter-Berechnung (GLOBAL-Methode)\np: " + kessel["pressure"].T() + "\n" +
                              kessel["fillLevel"].T() + "\n";
  ASSERT_GE(text.aus.size(), schluss.size());
  EXPECT_EQ(text.aus.substr(text.aus.size() - schluss.size()), schluss) << text.aus;
  EXPECT_EQ(kessel["fillLevel"].T().rfind("Füllstand ", 0), 0u);
}

TEST(CliKessel, BeyondTheCoVolumeThePressureFieldShowsTheError) {
  const Ergebnis text =
      Starte({"--substance", "Methan", "--eos", "6", "calc", "9", "--T", "150", "--m", "2000", "--V", "1"});
  EXPECT_NE(text.code, 0);
  const std::string schluss = "\nBehälter-Berechnung (GLOBAL-Methode)\np:  Error: v < b\n";
  ASSERT_GE(text.aus.size(), schluss.size()) << text.aus;
  EXPECT_EQ(text.aus.substr(text.aus.size() - schluss.size()), schluss) << text.aus;
}

} // namespace
} // namespace quor::test
