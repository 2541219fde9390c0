// quor-cli end to end, one run per command: the substance list against the database's source, the
// constants of info against Peng and Robinson's closed forms, and the volumes of calc and batch
// against the equation of state written out in the test; and the measured-data reader's older form
// and another substance's data.
#include "cli_testhilfe.h"

namespace quor::test {
namespace {

// Substances of the default database: the data rows of its CSV source.
int AnzahlImQuelltext() {
  std::ifstream ein(std::string(QUOR_TESTDATEN) + "/../../data/substances.csv");
  int zeilen = 0;
  for (std::string z; std::getline(ein, z);)
    zeilen += !z.empty();
  return zeilen - 1;
}

TEST(CliBefehle, ListZeigtJedenStoffDerDatenbank) {
  const int anzahl = AnzahlImQuelltext();
  ASSERT_GT(anzahl, 100);
  const Ergebnis text = Starte({"list"});
  ASSERT_EQ(text.code, 0) << text.fehler;
  EXPECT_EQ(std::count(text.aus.begin(), text.aus.end(), '\n'), anzahl + 1) << "a heading and a line each";
  EXPECT_NE(text.aus.find("H2O           7732-18-5    Wasser\n"), std::string::npos);

  const Json liste = StarteJson({"list"});
  ASSERT_EQ(liste.liste.size(), static_cast<std::size_t>(anzahl));
  EXPECT_EQ(liste[0]["Name"].T(), "Methan");
  EXPECT_EQ(liste[0]["CAS"].T(), "74-82-8");
}

// Peng and Robinson's constants (Ind. Eng. Chem. Fundam. 15 (1976) 59): a = 0.45724 R^2 Tc^2/pc,
// b = 0.07780 R Tc/pc, m = 0.37464 + 1.54226 w - 0.26992 w^2, Zc = 0.3074; the denominator
// v^2 + 2bv - b^2 = (v + c)(v + d) with c, d = b (1 -+ sqrt 2).
TEST(CliBefehle, InfoNenntDieKonstantenVonPengUndRobinson) {
  const Json info = StarteJson({"--substance", "#1921", "info"}); // water by its system number
  EXPECT_EQ(info["StoffName"].T(), "Wasser");
  const double Tc = info["TKrit"].Z(), pc = info["pKrit"].Z(), w = info["omega"].Z();
  EXPECT_EQ(Tc, 647.14); // the critical data of the database's source
  EXPECT_EQ(pc, 22064);
  EXPECT_EQ(info["EOSName"].T(), "CEOS Peng / Robinson");
  EXPECT_EQ(info["aForm"].Z(), 2);
  EXPECT_REL(info["a0"].Z(), 0.45724 * R * R * Tc * Tc / pc, 1e-4);
  EXPECT_REL(info["b0"].Z(), 0.07780 * R * Tc / pc, 1e-4);
  EXPECT_REL(info["aExp"].Z(), 0.37464 + 1.54226 * w - 0.26992 * w * w, 1e-4);
  const double b = info["b0"].Z();
  EXPECT_REL(info["c0"].Z(), b * (1 - std::sqrt(2.0)), 1e-9);
  EXPECT_REL(info["d0"].Z(), b * (1 + std::sqrt(2.0)), 1e-9);
  EXPECT_REL(info["vKritEOS"].Z(), 0.3074 * R * Tc / pc, 1e-3);
  EXPECT_TRUE(info["messages"].liste.empty());
}

TEST(CliBefehle, CalcFindetFluessigkeitUndDampfAlsWurzelnDerGleichung) {
  const Json info = StarteJson({"--substance", "Wasser", "info"});
  // 300 K lies far below the critical point and 100 kPa above the EOS's vapour pressure: a liquid.
  const Json fl = StarteJson({"--substance", "Wasser", "calc", "3", "--T", "300", "--p", "100"});
  EXPECT_TRUE(fl["HatL"].B());
  EXPECT_FALSE(fl["HatV"].B());
  EXPECT_TRUE(IstWurzel(info, 300, 100, fl["Ergebnis"]["v(L)"].Z()));
  const Json dampf = StarteJson({"--substance", "Wasser", "calc", "3", "--T", "500", "--p", "100"});
  EXPECT_TRUE(dampf["HatV"].B());
  EXPECT_FALSE(dampf["HatL"].B());
  const double vV = dampf["Ergebnis"]["v(V)"].Z();
  EXPECT_TRUE(IstWurzel(info, 500, 100, vV));
  EXPECT_REL(100 * vV / (R * 500), 1, 0.02) << "a dilute vapour is nearly ideal";

  // The text form shows the page as the window does, with the line ends of the terminal.
  const Ergebnis text = Starte({"--substance", "Wasser", "calc", "3", "--T", "300", "--p", "100"});
  EXPECT_EQ(text.code, 0);
  EXPECT_EQ(text.aus.rfind("Ergebnis der Berechnung  T, p => rho\nT = 300.000 K\np = 100.000 kPa\n", 0), 0u)
      << text.aus;
  EXPECT_EQ(text.aus.find('\r'), std::string::npos);
}

// wasser.BAQ: five rows of saturated water, the third one deleted (T = 0). At each live point's
// pressure both volumes of the equilibrium are roots of the equation. At 300 K (reduced temperature
// 0.46) the liquid volume misses the root by 3.4e-5 of itself, so there it is held to 1e-4.
TEST(CliBefehle, BatchRechnetJedenLebendenPunktUndSchreibtListeUndProtokoll) {
  const Json info = StarteJson({"--substance", "Wasser", "info"});
  TempOrdner ordner;
  const Ergebnis e = Starte({"--json", "--substance", "Wasser", "batch", "4", "--data",
                             Testdatei("wasser.BAQ"), "--lst", "aus", "--csv", "protokoll.csv"},
                            ordner.Pfad());
  ASSERT_EQ(e.code, 0) << e.fehler;
  const Json r = LeseJson(e.aus);
  ASSERT_EQ(r.liste.size(), 4u);
  const double T[] = {300, 350, 373.15, 450};
  const int punkt[] = {1, 2, 4, 5};
  for (std::size_t i = 0; i < 4; ++i) {
    const Json& ergebnis = r[i]["Ergebnis"];
    EXPECT_EQ(r[i]["Punkt"].Z(), punkt[i]);
    EXPECT_EQ(ergebnis["T"].Z(), T[i]);
    EXPECT_TRUE(IstWurzel(info, T[i], ergebnis["p"].Z(), ergebnis["v(L)"].Z(), T[i] < 320 ? 1e-4 : 1e-6))
        << T[i];
    EXPECT_TRUE(IstWurzel(info, T[i], ergebnis["p"].Z(), ergebnis["v(V)"].Z())) << T[i];
  }
  // A list name without a dot gets ".LST"; both files land in the working folder, in CR LF lines.
  for (const char* datei : {"aus.LST", "protokoll.csv"}) {
    const std::string text = LeseDatei(ordner.Datei(datei));
    ASSERT_GT(text.size(), 2u) << datei;
    EXPECT_EQ(text.substr(text.size() - 2), "\r\n") << datei;
  }
}

// Kind 3 over a measured-data file: the list holds each point's relative deviation of the liquid
// density and, under the rule, their mean of absolute values (rounded to two places).
TEST(CliBefehle, BatchListeTraegtAbweichungenUndIhrenMittelwert) {
  TempOrdner ordner;
  const Ergebnis e = Starte({"--substance", "Wasser", "batch", "3", "--data", Testdatei("wasser.BAQ"), "--lst", "aus"},
                            ordner.Pfad());
  ASSERT_EQ(e.code, 0) << e.fehler;
  const std::string text = LeseDatei(ordner.Datei("aus.LST"));
  std::vector<double> abweichungen;
  for (std::size_t i = text.find("(-"); i != std::string::npos; i = text.find("(-", i + 1))
    abweichungen.push_back(std::stod(text.substr(i + 2)));
  ASSERT_EQ(abweichungen.size(), 4u) << text;
  double summe = 0;
  for (const double d : abweichungen) summe += d;
  const std::size_t mittel = text.find("arithmet. mean of ABS(%-deviations):");
  ASSERT_NE(mittel, std::string::npos);
  const std::size_t prozent = text.find('%', mittel + 40);
  const std::size_t anfang = text.find_last_of(" \n", prozent);
  EXPECT_NEAR(std::stod(text.substr(anfang + 1)), summe / 4, 0.006) << text.substr(mittel);
}

// Data of another substance are taken after the warning, answered yes without a terminal.
TEST(CliBefehle, BatchNimmtDatenEinesFremdenStoffsNachDerWarnung) {
  const Ergebnis e = Starte({"--substance", "Methan", "batch", "3", "--data", Testdatei("wasser.BAQ")});
  EXPECT_EQ(e.code, 0) << e.fehler;
  EXPECT_NE(e.fehler.find("WARNUNG: Sie versuchen einen Datensatz für einen"), std::string::npos) << e.fehler;
  EXPECT_NE(e.aus.find("\n    5  V+L   T = 450 K"), std::string::npos) << e.aus;
}

// curve: the catalogue's texts and ranges, and every point of a subcritical isotherm on the
// equation's own pressure (the liquid and vapour sides with the two saturation points between).
TEST(CliBefehle, CurveGibtDieIsothermeAlsPunkteDerGleichung) {
  const Json info = StarteJson({"--substance", "Propan", "info"});
  const Json k = StarteJson({"--substance", "Propan", "curve", "1", "--T", "300", "--points", "200", "--x", "0.06;4"});
  EXPECT_EQ(k["title"].T(), "p - V (isothermer Schnitt)");
  EXPECT_EQ(k["x_text"].T(), "v / (m^3/kmol)");
  EXPECT_EQ(k["head_z"].Z(), -1);
  EXPECT_TRUE(k["in_range"].B());
  const auto& punkte = k["points"].liste;
  ASSERT_GT(punkte.size(), 100u);
  for (const Json& punkt : punkte) {
    EXPECT_TRUE(IstWurzel(info, 300, punkt[1].Z(), punkt[0].Z(), 2e-6)) << punkt[0].Z();
    EXPECT_EQ(punkt[2].Z(), 300);
  }
  const Ergebnis text = Starte({"--substance", "Propan", "curve", "9"});
  EXPECT_EQ(text.code, 0);
  EXPECT_EQ(text.aus.rfind("Dampfdruck p(LV):  p(LV) vs. T\nx: T / K\ny: p / kPa\n", 0), 0u) << text.aus;
}

// surface: the grid of p(v, T) as JSON, z[j] over y[j]. The S-curves give the equation's own pressure
// in every cell; with --real a subcritical row is flat between the saturated volumes. The column at
// v = 0 has no pressure.
TEST(CliBefehle, SurfaceGibtDasGitterDerGleichung) {
  const Json info = StarteJson({"--substance", "Propan", "info"});
  std::vector<std::string> auftrag = {"--substance", "Propan", "surface", "1"};
  for (const char* option : {"--x", "0,1.2", "--y", "300,310", "--nx", "12", "--ny", "1", "--z", "0,5000"})
    auftrag.push_back(option);
  const Json s = StarteJson(auftrag);
  EXPECT_EQ(s["title"].T(), "Druck p(v, T)");
  EXPECT_EQ(s["z_text"].T(), "p / kPa");
  const auto &x = s["x"].liste, &y = s["y"].liste, &z = s["z"].liste;
  ASSERT_EQ(x.size(), 13u);
  ASSERT_EQ(y.size(), 2u);
  ASSERT_EQ(z.size(), 2u);
  EXPECT_EQ(z[0][0].typ, Json::Typ::Null);
  for (std::size_t i = 1; i < x.size(); ++i) {
    const double p = z[0][i].Z();
    if (p > 0 && p < 5000) {
      EXPECT_TRUE(IstWurzel(info, y[0].Z(), p, x[i].Z(), 2e-6)) << x[i].Z();
    }
  }

  auftrag.push_back("--real");
  const Json r = StarteJson(auftrag);
  // At 300 K propane's saturated volumes lie near 0.09 and 2 m^3/kmol: 0.3 to 1.2 sit on the plane.
  const double pLV = r["z"][0][3].Z();
  EXPECT_GT(pLV, 500);
  for (std::size_t i = 3; i < x.size(); ++i)
    EXPECT_EQ(r["z"][0][i].Z(), pLV) << x[i].Z();
  EXPECT_NE(s["z"][0][6].Z(), pLV);
}

} // namespace
} // namespace quor::test
