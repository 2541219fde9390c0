// quor-cli fit end to end: the straight line of NIST's Norris data set against its certified values,
// a vapour-pressure fit of a measured-data file generated from known Antoine constants with its
// values and its transfer into the substance, and the refusals with their exit codes.
#include "cli_testhilfe.h"

namespace quor::test {
namespace {

std::string Norris() {
  return std::string(QUOR_REFERENZDATEN) + "/nist-strd-norris.xy";
}

// The polynomial with C to F fixed is the straight line. The certified values belong to the exact
// data; the fit holds its points in single precision, which leaves the digits asserted here.
TEST(CliFit, NorrisStraightLineGivesTheCertifiedParameters) {
  const Json r = StarteJson({"fit", "0", "--data", Norris(), "--fix", "3,4,5,6", "--eval", "0,1000"});
  ASSERT_EQ(r["parameters"].liste.size(), 6u);
  EXPECT_REL(r["parameters"][0].Z(), -0.262323073774029, 1e-5);
  EXPECT_REL(r["parameters"][1].Z(), 1.00211681802045, 1e-7);
  EXPECT_REL(r["FQS"].Z(), 26.6173985294224, 1e-5);
  for (std::size_t i = 2; i < 6; ++i)
    EXPECT_EQ(r["parameters"][i].Z(), 0) << i;
  EXPECT_EQ(r["n_active"].Z(), 36);
  EXPECT_TRUE(r["stdev"].liste.empty()) << "the linear regression makes no standard deviations";
  EXPECT_REL(r["values"][1].Z(), r["parameters"][0].Z() + 1000 * r["parameters"][1].Z(), 1e-12);
}

// The file holds p = 10^(6.6543 - 1435.264 / (208.302 + T/K - 273.15)) kPa at 280 to 370 K.
TEST(CliFit, AntoineFitOfAMeasuredDataFileTakesItsConstantsOver) {
  const double A = 6.6543, B = 1435.264, C = 208.302;
  const auto p = [&](double T) { return std::pow(10.0, A - B / (C + T - 273.15)); };
  const Json r = StarteJson({"--substance", "Wasser", "fit", "4", "--lg", "--data",
                             Testdatei("wasser_antoine.BAQ"), "--eval", "300,373.15", "--apply"});
  const double soll[] = {A, B, C};
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_REL(r["parameters"][i].Z(), soll[i], 1e-5) << i;
    EXPECT_GT(r["stdev"][i].Z(), 0) << i;
  }
  EXPECT_REL(r["values"][0].Z(), p(300), 1e-6);
  EXPECT_REL(r["values"][1].Z(), p(373.15), 1e-6);

  std::map<std::string, double> neu;
  for (const Json& a : r["applied"].liste)
    neu[a["field"].T()] = a["new"].Z();
  EXPECT_REL(neu["AntoineNd.A"], A, 1e-5);
  EXPECT_REL(neu["AntoineNd.C"], C, 1e-5);
  EXPECT_EQ(neu["AntoineNd.TLo"], 280);
  EXPECT_EQ(neu["AntoineNd.THi"], 370);
  ASSERT_EQ(r["messages"].liste.size(), 2u);
  EXPECT_EQ(r["messages"][1]["title"].T(), "Parameterübernahme OK");

  // In natural logarithms A and B are ln 10 times as large; the file's p column fits ln p.
  const Ergebnis ln =
      Starte({"--substance", "Wasser", "fit", "4", "--data", Testdatei("wasser_antoine.BAQ")});
  ASSERT_EQ(ln.code, 0) << ln.fehler;
  const std::size_t a = ln.aus.find("  A = ");
  ASSERT_NE(a, std::string::npos) << ln.aus;
  EXPECT_REL(std::stod(ln.aus.substr(a + 6)), A * std::log(10.0), 1e-6);
  EXPECT_NE(ln.aus.find("Qualität des Fitting (N = 10, NPar = 3)"), std::string::npos);
}

TEST(CliFit, BadOptionsEndWithCode2AndARefusedFitWithCode1) {
  const std::string baq = Testdatei("wasser_antoine.BAQ");
  const struct {
    std::vector<std::string> argumente;
    int code;
    std::string meldung;
  } faelle[] = {
      {{"fit", "12", "--data", Norris()}, 2, "model 12 is a reserved code"},
      {{"fit", "4"}, 2, "fit needs --data"},
      {{"fit", "4", "--data", Norris(), "--column", "p"}, 2, "--column is only for .BAQ data"},
      {{"fit", "9", "--data", Norris(), "--lg"}, 2, "--lg: model 9 has no decimal form"},
      {{"fit", "0", "--data", Norris(), "--smoothing", "5"}, 2, "--smoothing is only for the spline"},
      {{"fit", "19", "--data", Norris(), "--smoothing", "2000"}, 2, "expected 0 to 1000"},
      {{"fit", "4", "--data", Norris(), "--start", "1,2,3,4"}, 2, "model 4 has 3 parameter fields"},
      {{"fit", "6", "--data", Norris(), "--fix", "4"}, 2, "--fix 4: model 6 has no parameter field"},
      {{"fit", "4", "--data", Norris(), "--tcr", "600"}, 2, "model 4 takes no --tcr"},
      {{"fit", "4", "--data", baq}, 2, "command fit needs --substance"},
      {{"--substance", "Wasser", "fit", "4", "--data", baq, "--column", "cp"}, 2, "no values in this column"},
      {{"fit", "8", "--data", Norris()}, 1, "Tcr muss gegeben sein"},
      {{"--substance", "Wasser", "fit", "3", "--data", baq, "--apply"}, 1, "AUGUST/DUPRÉ-RANKINE"},
  };
  for (const auto& f : faelle) {
    const Ergebnis e = Starte(f.argumente);
    EXPECT_EQ(e.code, f.code) << f.meldung;
    EXPECT_NE(e.fehler.find(f.meldung), std::string::npos) << "expected \"" << f.meldung << "\" in:\n"
                                                           << e.fehler;
  }
}

} // namespace
} // namespace quor::test
