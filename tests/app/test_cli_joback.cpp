// quor-cli joback: isopropanol's estimate in JSON with the values by hand from the group table, a
// measured boiling point through --tb, the =NH refusal that leaves the rest, the text output, and
// usage errors.
#include "cli_testhilfe.h"

namespace quor::test {
namespace {

TEST(CliJoback, IsopropanolInJson) {
  const Json r = StarteJson({"joback", "--groups", "0:2,2:1,19:1"});
  // Rows 0, 2 and 19 of the table: 2 x 4 + 2 + 2 atoms, as C3H8O has.
  EXPECT_EQ(r["atoms"].Z(), 12);
  EXPECT_REL(r["M"].Z(), 60.09631, 1e-12);
  // By hand from the table's rows, in K, kPa, kg/m^3, kJ/kmol and kJ/(kmol K).
  EXPECT_REL(r["Tc"].Z(), 525.64386881, 1e-9);
  EXPECT_REL(r["pc"].Z(), 5058.58857285, 1e-9);
  EXPECT_REL(r["rhoCr"].Z(), 60.09631 / 0.2165, 1e-12);
  EXPECT_REL(r["hf"].Z(), -262760, 1e-12);
  ASSERT_EQ(r["cp"].liste.size(), 4u);
  EXPECT_REL(r["cp"][1].Z(), 0.32874, 1e-12);
  // Lee/Kesler from the estimated Tb, Tc and pc, by hand; the tables give 0.665 for isopropanol,
  // whose Tc the groups put 17 K high.
  EXPECT_REL(r["omega"].Z(), 0.5711172324, 1e-8);
  EXPECT_TRUE(r["messages"].liste.empty());

  // The measured 355.4 K replaces the estimate; Tc follows in proportion.
  const Json m = StarteJson({"joback", "--groups", "0:2,2:1,19:1", "--tb", "355.4"});
  EXPECT_REL(m["Tb"].Z(), 355.4, 1e-12);
  EXPECT_REL(m["Tc"].Z(), 525.64386881 * 355.4 / 359.78, 1e-9);
}

TEST(CliJoback, NHLeavesOutOnlyTheCriticalData) {
  const Json r = StarteJson({"joback", "--groups", "0:2,35:1"});
  for (const char* name : {"Tb", "Tf", "Tc", "pc", "vc", "rhoCr", "omega"})
    EXPECT_EQ(r[name].typ, Json::Typ::Null) << name;
  EXPECT_REL(r["hf"].Z(), 1000 * (2 * -76.45 + 93.70) + 68290, 1e-12);
  ASSERT_EQ(r["messages"].liste.size(), 1u);
  EXPECT_EQ(r["messages"][0]["text"].T(),
            "Das Inkrement (=NH) steht für diese berechnung leider nicht zur Verfügung");
}

TEST(CliJoback, TextOutputAndUsageErrors) {
  const Ergebnis e = Starte({"joback", "--groups", "0:2,23:1"});
  ASSERT_EQ(e.code, 0) << e.fehler;
  EXPECT_NE(e.aus.find("M = 58.080 kg/kmol, 10 atoms\n"), std::string::npos) << e.aus;
  EXPECT_NE(e.aus.find("p(cr) = 4802.5 kPa\n"), std::string::npos) << e.aus;
  EXPECT_NE(e.aus.find("delta(f)H = -217830 kJ/kmol\n"), std::string::npos) << e.aus;
  for (const std::vector<std::string>& falsch : {std::vector<std::string>{"joback"},
                                                 {"joback", "--groups", "41:1"},
                                                 {"joback", "--groups", "0-2"},
                                                 {"joback", "--groups", "0:2", "--tb", "0"},
                                                 {"joback", "--groups", "0:2", "--T", "300"}})
    EXPECT_EQ(Starte(falsch).code, 2) << falsch.back();
}

} // namespace
} // namespace quor::test
