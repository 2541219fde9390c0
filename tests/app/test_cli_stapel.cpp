// quor-cli end to end: batch calculations over a measured-data file, with the result list and the
// record written by the result page.
#include "cli_testhilfe.h"

namespace quor::test {
namespace {

// The lines of a file written with CR LF, which every line must end with.
std::vector<std::string> CrLfZeilen(const std::string& text) {
  std::vector<std::string> zeilen;
  std::size_t anfang = 0;
  for (std::size_t i = text.find("\r\n"); i != std::string::npos; i = text.find("\r\n", anfang)) {
    zeilen.push_back(text.substr(anfang, i - anfang));
    anfang = i + 2;
  }
  EXPECT_EQ(anfang, text.size()) << "the file ends with CR LF";
  return zeilen;
}

bool BeginntMit(const std::string& text, const std::string& anfang) {
  return text.rfind(anfang, 0) == 0;
}

// wasser.BAQ: five rows of saturated water, the third one deleted (T = 0).
TEST(CliStapel, ListeUndProtokollAllerLebendenPunkte) {
  Arbeitsordner ordner;
  const Ergebnis e = Starte({"--substance", "Wasser", "batch", "4", "--data", Testdatei("wasser.BAQ"),
                             "--lst", "aus", "--csv", "protokoll.csv"},
                            ordner.pfad.string());
  ASSERT_EQ(e.code, 0) << e.fehler;

  // stdout: the title, then one line per live point.
  std::vector<std::string> zeilen;
  std::istringstream aus(e.aus);
  for (std::string z; std::getline(aus, z);)
    zeilen.push_back(z);
  ASSERT_EQ(zeilen.size(), 5u) << e.aus;
  EXPECT_EQ(zeilen[0], "Ergebnis der Berechnung  T => p(LV) (GLOBAL-Berechnung)");
  EXPECT_TRUE(BeginntMit(zeilen[1], "    1  V+L   T = 300 K  p = 3.5368 kPa  p(calc) = "));
  EXPECT_TRUE(BeginntMit(zeilen[3], "    4  V+L   T = 373.15 K"));

  // The list: a name without a dot gets ".LST" and lands in the working folder.
  const std::string liste = LeseDatei(ordner / "aus.LST");
  const auto lst = CrLfZeilen(liste);
  EXPECT_NE(liste.find("   Substance            : Wasser\r\n"), std::string::npos);
  EXPECT_NE(liste.find("   Number of Data Sets  : 5\r\n"), std::string::npos);
  EXPECT_NE(liste.find("   Name of Batchfile    : wasser.BAQ\r\n"), std::string::npos);
  int punkte = 0;
  for (const std::string& z : lst) {
    for (const char* n : {"1 ", "2 ", "4 ", "5 "})
      if (BeginntMit(z, n)) ++punkte;
    EXPECT_FALSE(BeginntMit(z, "3 ")) << "the deleted point is left out";
  }
  EXPECT_EQ(punkte, 4);
  EXPECT_NE(liste.find("arithmet. mean of ABS(%-deviations):"), std::string::npos);

  // The record: head lines, the columns that hold a number, one row per point.
  const auto csv = CrLfZeilen(LeseDatei(ordner / "protokoll.csv"));
  ASSERT_EQ(csv.size(), 11u);
  EXPECT_TRUE(BeginntMit(csv[0], "QUOR-6: p-V-T Calculations of States and Processes - record from "));
  EXPECT_EQ(csv[1], "Wasser");
  EXPECT_EQ(csv[2], "CEOS Peng / Robinson");
  EXPECT_TRUE(BeginntMit(csv[6], "T;p;v(V);h(V);"));
  EXPECT_EQ(csv[6].find("rho(global)"), std::string::npos) << "columns that are 0 in every row are left out";
  EXPECT_TRUE(BeginntMit(csv[7], "300;"));
  EXPECT_TRUE(BeginntMit(csv[8], "350;"));
  EXPECT_TRUE(BeginntMit(csv[9], "373.15;"));
  EXPECT_TRUE(BeginntMit(csv[10], "450;"));
}

TEST(CliStapel, JsonHaeltDenSatzJedesLebendenPunkts) {
  const Json r = StarteJson({"--substance", "Wasser", "batch", "4", "--data", Testdatei("wasser.BAQ")});
  ASSERT_EQ(r.liste.size(), 4u);
  const double T[] = {300, 350, 373.15, 450};
  const int punkt[] = {1, 2, 4, 5};
  for (std::size_t i = 0; i < 4; ++i) {
    const Json& p = r[i];
    EXPECT_EQ(p["Punkt"].Z(), punkt[i]);
    EXPECT_TRUE(p["ok"].B());
    EXPECT_EQ(p["Vorgabe"]["T"].Z(), T[i]);
    EXPECT_EQ(p["StapelErgebnis"]["Phase"].T(), "V+L");
    EXPECT_EQ(static_cast<float>(p["Ergebnis"]["p"].Z()),
              static_cast<float>(p["StapelErgebnis"]["pCalc"].Z()));
  }
  // Along the saturation line the pressure rises with the temperature.
  for (std::size_t i = 1; i < 4; ++i)
    EXPECT_GT(r[i]["StapelErgebnis"]["pCalc"].Z(), r[i - 1]["StapelErgebnis"]["pCalc"].Z());
}

TEST(CliStapel, DateiMitFuenfWertenJeZeileHatKeinCp) {
  const Json r = StarteJson({"--substance", "Wasser", "batch", "3", "--data", Testdatei("wasser_5.BAQ")});
  ASSERT_EQ(r.liste.size(), 2u);
  EXPECT_EQ(r[0]["Vorgabe"]["Cp"].Z(), 0);
  EXPECT_EQ(static_cast<float>(r[1]["Vorgabe"]["RhoL"].Z()), 973.7f);
  EXPECT_EQ(r[1]["Vorgabe"]["HLV"].Z(), 41716);
}

TEST(CliStapel, DatenEinesFremdenStoffsNachRueckfrage) {
  const Ergebnis e = Starte({"--substance", "Methan", "batch", "3", "--data", Testdatei("wasser.BAQ")});
  EXPECT_EQ(e.code, 0) << e.fehler;
  EXPECT_NE(e.fehler.find("WARNUNG: Sie versuchen einen Datensatz für einen"), std::string::npos) << e.fehler;
  EXPECT_NE(e.aus.find("\n    5  V+L   T = 450 K"), std::string::npos)
      << "the rows are calculated for methane:\n"
      << e.aus;
}

// Ethane's critical temperature (305 K) lies between the first and the second point.
TEST(CliStapel, PunkteOhneErgebnisEndenMitCode1UndFehlenImProtokoll) {
  Arbeitsordner ordner;
  const Ergebnis e = Starte({"--json", "--substance", "Ethan", "batch", "4", "--data",
                             Testdatei("wasser.BAQ"), "--csv", "protokoll.csv"},
                            ordner.pfad.string());
  EXPECT_EQ(e.code, 1);
  EXPECT_NE(e.fehler.find("the calculation failed for at least one point"), std::string::npos);
  const Json r = LeseJson(e.aus);
  ASSERT_EQ(r.liste.size(), 4u);
  EXPECT_TRUE(r[0]["ok"].B());
  for (std::size_t i = 1; i < 4; ++i) {
    EXPECT_FALSE(r[i]["ok"].B());
    EXPECT_NE(r[i]["error"].T().find("> T(cr) !!!"), std::string::npos);
    EXPECT_EQ(r[i]["StapelErgebnis"]["Phase"].T(), "   ");
  }
  const auto csv = CrLfZeilen(LeseDatei(ordner / "protokoll.csv"));
  ASSERT_EQ(csv.size(), 8u) << "one row: the point with a result";
  EXPECT_TRUE(BeginntMit(csv[7], "300;"));
}

} // namespace
} // namespace quor::test
