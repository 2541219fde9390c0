// quor-cli end to end: direct calculations of kinds 3, 4 and 8, checked against the equation of
// state written out in the test, against closed forms and against the ideal-gas limit.
#include "cli_testhilfe.h"

namespace quor::test {
namespace {

const Json& WasserInfo() {
  static const Json info = StarteJson({"--substance", "Wasser", "info"});
  return info;
}

Json Rechne(std::vector<std::string> argumente, int code = 0) {
  argumente.insert(argumente.begin(), {"--substance", "Wasser"});
  return StarteJson(argumente, code);
}

TEST(CliRechnung, Art3InFluessigkeitDampfUndUeberkritisch) {
  const Json& info = WasserInfo();
  // Liquid: 300 K lies far below the critical point and 100 kPa above the EOS's vapour pressure.
  const Json fl = Rechne({"calc", "3", "--T", "300", "--p", "100"});
  EXPECT_TRUE(fl["ok"].B());
  EXPECT_TRUE(fl["HatL"].B());
  EXPECT_FALSE(fl["HatV"].B());
  EXPECT_EQ(fl["StapelErgebnis"]["Phase"].T(), " L ");
  const double vL = fl["Ergebnis"]["v(L)"].Z();
  EXPECT_TRUE(IstWurzel(info, 300, 100, vL)) << "the liquid root solves the EOS";
  EXPECT_TRUE(fl["page"]["lblLphase"]["visible"].B());
  EXPECT_FALSE(fl["page"]["lblVphase"]["visible"].B());
  ASSERT_EQ(fl["ErgebnisVektor"].liste.size(), 42u);
  EXPECT_EQ(fl["ErgebnisVektor"][19].Z(), vL) << "the array and the named cells hold the same numbers";
  EXPECT_EQ(fl["Ergebnis"]["T"].Z(), 300);
  EXPECT_TRUE(fl["Ergebnis"].Hat(" eU(V)") && fl["Ergebnis"].Hat("x_6") && fl["Ergebnis"].Hat("x_8"))
      << "names of the record's head; the repeated one with its cell";

  const Json dampf = Rechne({"calc", "3", "--T", "500", "--p", "100"});
  EXPECT_TRUE(dampf["HatV"].B());
  EXPECT_FALSE(dampf["HatL"].B());
  EXPECT_EQ(dampf["StapelErgebnis"]["Phase"].T(), " V ");
  const double vV = dampf["Ergebnis"]["v(V)"].Z();
  EXPECT_TRUE(IstWurzel(info, 500, 100, vV));
  const double Z = 100 * vV / (R * 500);
  EXPECT_GT(Z, 0.98) << "a dilute vapour is nearly ideal";
  EXPECT_LT(Z, 1.0);

  const Json ueber = Rechne({"calc", "3", "--T", "700", "--p", "30000"});
  EXPECT_EQ(ueber["Gebiet"].Z(), 2);
  EXPECT_EQ(ueber["page"]["lblGleich"]["text"].T(),
            "überkritische Phase (L) = (V) (T > T(cr), p > p(cr))   > > > > >");
  EXPECT_TRUE(ueber["page"]["lblLphase"]["visible"].B() && ueber["page"]["lblVphase"]["visible"].B());
  EXPECT_TRUE(IstWurzel(info, 700, 30000, ueber["Ergebnis"]["v(V)"].Z()));

  // The text form shows the page as the window does.
  const Ergebnis text = Starte({"--substance", "Wasser", "calc", "3", "--T", "300", "--p", "100"});
  EXPECT_EQ(text.code, 0);
  EXPECT_EQ(text.aus.rfind("Ergebnis der Berechnung  T, p => rho\nT = 300.000 K\np = 100.000 kPa\n", 0), 0u)
      << text.aus;
  EXPECT_NE(text.aus.find("\nL-Phase\n"), std::string::npos);
  EXPECT_NE(text.aus.find("Dichte           rho/ (kg/m^3)  = "), std::string::npos);
  EXPECT_EQ(text.aus.find('\r'), std::string::npos) << "line ends of the terminal";
}

TEST(CliRechnung, Art4GlobalErfuelltDasPhasengleichgewichtDerEOS) {
  const Json& info = WasserInfo();
  const Json r = Rechne({"calc", "4", "--T", "373.15", "--sections", "2"});
  EXPECT_TRUE(r["ok"].B());
  EXPECT_TRUE(r["models"]["RechnungGlobal"].B());
  EXPECT_FALSE(r.Hat("referencePoint")) << "GLOBAL needs no reference point";
  const double p = r["Ergebnis"]["p"].Z(), vL = r["Ergebnis"]["v(L)"].Z(), vV = r["Ergebnis"]["v(V)"].Z();
  ASSERT_GT(vV, vL);
  EXPECT_TRUE(IstWurzel(info, 373.15, p, vL));
  EXPECT_TRUE(IstWurzel(info, 373.15, p, vV));
  // Equal fugacities: ln(phi) of both phases (first entry of the fugacity block).
  const Json& fuga = r["StapelErgebnis"]["Fuga"];
  EXPECT_NEAR(fuga[0][0].Z(), fuga[1][0].Z(), 1e-4);
  const double dh = r["Ergebnis"]["delta(LV)h"].Z();
  EXPECT_GT(dh, 30000);
  EXPECT_TRUE(NaheRel(r["Ergebnis"]["delta(LV)s"].Z(), dh / 373.15, 1e-9));
  EXPECT_EQ(r["StapelErgebnis"]["Phase"].T(), "V+L");
}

TEST(CliRechnung, Art4PartialMitVorgeschlagenemUndGegebenemBezugspunkt) {
  const Json& info = WasserInfo();
  const Json r = Rechne({"--concept", "partial", "calc", "4", "--T", "373.15"});
  EXPECT_TRUE(r["ok"].B());
  EXPECT_FALSE(r["models"]["RechnungGlobal"].B());
  EXPECT_NE(r["title"].T().find("(PARTIAL-Berechnung)"), std::string::npos);
  const Json& bezug = r["referencePoint"];
  EXPECT_TRUE(bezug["proposed"].B());
  EXPECT_TRUE(bezug["BezugGueltig"].B());
  EXPECT_NEAR(bezug["BezugT"].Z(), 373.15, 1e-4) << "proposed at the normal boiling point";
  EXPECT_NE(bezug["report"].T().find("(Normalsiede-T)"), std::string::npos);

  // The vapour-pressure equation at the normal boiling point gives the normal pressure.
  const double p = r["Ergebnis"]["p"].Z();
  EXPECT_TRUE(NaheRel(p, 101.325, 2e-3));
  // The vapour from the EOS at that pressure.
  EXPECT_TRUE(IstWurzel(info, 373.15, p, r["Ergebnis"]["v(V)"].Z()));
  // Benson's straight diameter passes through the reference point: at its temperature the liquid
  // density is the reference's, up to the difference of the vapour densities.
  const double rhoL = r["StapelErgebnis"]["rhoLCalc"].Z();
  EXPECT_TRUE(NaheRel(rhoL, bezug["BezugRhoL"].Z(), 1e-4));

  const Json gegeben =
      Rechne({"--concept", "partial", "calc", "4", "--T", "373.15", "--ref-point", "373.15;101.325;950;0.6"});
  EXPECT_FALSE(gegeben["referencePoint"]["proposed"].B());
  EXPECT_EQ(gegeben["referencePoint"]["BezugRhoL"].Z(), 950);
  const double rhoV = gegeben["StapelErgebnis"]["rhoVCalc"].Z();
  EXPECT_TRUE(NaheRel(gegeben["StapelErgebnis"]["rhoLCalc"].Z(), 950 + 0.6 - rhoV, 1e-5));
}

// Below the EOS's own vapour pressure (96.4 kPa at 373.15 K), where its vapour root exists.
TEST(CliRechnung, Art3AlsGleichgewichtRechnetPartial) {
  const Json r = Rechne({"calc", "3", "--T", "373.15", "--p", "95", "--equilibrium"});
  EXPECT_TRUE(r["ok"].B());
  EXPECT_FALSE(r["models"]["RechnungGlobal"].B());
  EXPECT_TRUE(r["HatL"].B() && r["HatV"].B()) << "an equilibrium has both phases";
  EXPECT_TRUE(r["referencePoint"]["BezugGueltig"].B());
  EXPECT_NE(r["page"]["Liste"]["text"].T().find("nach BENSON-Methode:"), std::string::npos);

  // delta(LV)h from the vapour pressure and Benson's liquid needs the reference point as well.
  const Json h = Rechne({"--hlv", "6", "calc", "6", "--T", "350"});
  EXPECT_TRUE(h["ok"].B());
  EXPECT_TRUE(h["referencePoint"]["BezugGueltig"].B());
  EXPECT_GT(h["Ergebnis"]["delta(LV)h"].Z(), 30000);
}

// In the dilute vapour the coefficients approach those of the ideal gas: alpha = 1/T, chi = 1/p,
// and the speed of sound sqrt(cp/cv R T / M).
TEST(CliRechnung, Art8MitAllenBloeckenIstInSichStimmig) {
  const Ergebnis lauf = Starte({"--json", "--substance", "Wasser", "calc", "8", "--T", "400", "--p", "100",
                                "--sections", "4", "--functions"});
  ASSERT_EQ(lauf.code, 0) << lauf.fehler;
  EXPECT_NE(lauf.fehler.find("--functions is not offered for kind 8"), std::string::npos)
      << "kind 8 shows the functions anyway; the tick isn't offered";
  const Json r = LeseJson(lauf.aus);
  const Json& z = r["StapelErgebnis"];
  // The first derivatives stand in columns 1 to 6: dp/dV, dp/dT, dV/dp, dV/dT, dT/dV, dT/dp.
  const Json& abl = z["Abl1"][1];
  EXPECT_NEAR(abl[1].Z() * abl[3].Z(), 1, 1e-5) << "(dp/dV)_T (dV/dp)_T = 1";
  EXPECT_NEAR(abl[4].Z() * abl[5].Z(), 1, 1e-5) << "(dV/dT)_p (dT/dV)_p = 1";
  EXPECT_NEAR(abl[2].Z() * abl[5].Z() * abl[3].Z(), -1, 1e-4) << "(dp/dT)_v (dT/dV)_p (dV/dp)_T = -1";
  for (const Json& x : z["Abl1"][0].liste)
    EXPECT_EQ(x.Z(), 0) << "no liquid at 400 K and 100 kPa";

  const Json& e = r["Ergebnis"];
  EXPECT_TRUE(NaheRel(e["alpha(V)"].Z(), 1.0 / 400, 0.03));
  EXPECT_TRUE(NaheRel(e["chi(V)"].Z(), 1.0 / 100, 0.03));
  const double kappa = e["cp(V)"].Z() / e["cV(V)"].Z();
  EXPECT_TRUE(NaheRel(e["sound speed(V)"].Z(), std::sqrt(kappa * R * 1000 * 400 / 18.0153), 0.02));
  EXPECT_EQ(static_cast<float>(e["h(V)"].Z()), static_cast<float>(z["hFu"].Z()))
      << "the record holds the vapour's h";
  EXPECT_EQ(static_cast<float>(e["alpha(V)"].Z()), static_cast<float>(z["Mech"][1][0].Z()));
  EXPECT_NE(r["page"]["Liste"]["text"].T().find("mechanische Koeffizienten"), std::string::npos);
  EXPECT_NE(r["page"]["Liste"]["text"].T().find("Ableitungen nach T, p, V"), std::string::npos);
}

// B = b0 - b1/T^b2 by hand; the vapour volume of a virial equation is v = R T/p + B.
TEST(CliRechnung, VirialHandEingabeBestimmtDasVolumen) {
  const std::vector<std::string> modell{"--eos",       "10", "--virial-b0", "0.05",
                                        "--virial-b1", "30", "--virial-b2", "1"};
  std::vector<std::string> a = modell;
  a.push_back("info");
  const Json info = Rechne(a);
  EXPECT_EQ(info["b0"].Z(), 0.05);
  EXPECT_EQ(info["bExp"].Z(), 30);
  EXPECT_EQ(info["BExpHand"].Z(), 1);

  a = modell;
  a.insert(a.end(), {"calc", "3", "--T", "500", "--p", "100"});
  const Json r = Rechne(a);
  const double B = 0.05 - 30.0 / 500;
  EXPECT_TRUE(NaheRel(r["Ergebnis"]["v(V)"].Z(), R * 500 / 100 + B, 1e-9));
  EXPECT_NE(r["page"]["txtco2"]["text"].T().find("Virialkoeff. B"), std::string::npos);
}

TEST(CliRechnung, EinheitenUndBezugszustandVerschiebenDieZahlen) {
  const std::vector<std::string> punkt{"calc", "3", "--T", "500", "--p", "100", "--functions"};
  auto mit = [&](std::vector<std::string> optionen) {
    optionen.insert(optionen.end(), punkt.begin(), punkt.end());
    return Rechne(optionen)["Ergebnis"];
  };
  const Json molar = mit({});
  const double M = 18.0153;
  EXPECT_TRUE(NaheRel(mit({"--volume-mode", "1"})["v(V)"].Z(), molar["v(V)"].Z() / M, 1e-6));
  EXPECT_TRUE(NaheRel(mit({"--energy-mode", "3"})["h(V)"].Z(), molar["h(V)"].Z() / M, 1e-6));
  // The reference window proposes the EOS's vapour pressure at To when po is 0; 101.325 kPa is
  // the reference pressure of the default.
  const Json verschoben = mit({"--reference", "1", "--h-ref", "1000", "--s-ref", "10", "--p-ref", "101.325"});
  EXPECT_NEAR(verschoben["h(V)"].Z() - molar["h(V)"].Z(), 1000, 1e-6);
  EXPECT_NEAR(verschoben["s(V)"].Z() - molar["s(V)"].Z(), 10, 1e-9);

  // Reduced units need the critical volume, which a virial model doesn't give.
  const Json reduziert =
      Rechne({"--eos", "14", "--volume-mode", "2", "calc", "3", "--T", "500", "--p", "100"});
  ASSERT_FALSE(reduziert["messages"].liste.empty());
  EXPECT_EQ(reduziert["messages"][0]["title"].T(), "Ausführung nicht möglich");
  EXPECT_NE(reduziert["messages"][0]["text"].T().find("kein V(cr)"), std::string::npos);
}

} // namespace
} // namespace quor::test
