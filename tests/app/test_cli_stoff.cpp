// quor-cli end to end: the substance list, the substance choice by its four ways, the constants
// that info reports, and the model window's defaults and refusals.
#include "cli_testhilfe.h"

namespace quor::test {
namespace {

// Substances of the default database: the data rows of its CSV source.
int AnzahlImQuelltext() {
  std::ifstream ein(std::string(QUOR_TESTDATEN) + "/../../data/substances.csv");
  int zeilen = 0;
  for (std::string z; std::getline(ein, z);)
    if (!z.empty()) ++zeilen;
  return zeilen - 1;
}

TEST(CliListe, ZeigtJedenStoffDerDatenbank) {
  const int anzahl = AnzahlImQuelltext();
  ASSERT_GT(anzahl, 100);

  const Ergebnis text = Starte({"list"});
  ASSERT_EQ(text.code, 0) << text.fehler;
  const auto zeilen = std::count(text.aus.begin(), text.aus.end(), '\n');
  EXPECT_EQ(zeilen, anzahl + 1) << "one heading line and one line per substance";
  EXPECT_NE(text.aus.find("H2O           7732-18-5    Wasser\n"), std::string::npos);

  const Json liste = StarteJson({"list"});
  ASSERT_EQ(liste.liste.size(), static_cast<std::size_t>(anzahl));
  EXPECT_EQ(liste[0]["Name"].T(), "Methan");
  EXPECT_EQ(liste[0]["CAS"].T(), "74-82-8");
  EXPECT_EQ(liste[0]["index"].Z(), 1);
  bool wasser = false;
  for (const Json& s : liste.liste) {
    if (s["CAS"].T() != "7732-18-5") continue;
    wasser = true;
    EXPECT_EQ(s["Formel"].T(), "H2O");
    EXPECT_EQ(s["MDBNr"].Z(), 1921);
  }
  EXPECT_TRUE(wasser);
}

TEST(CliStoffwahl, NameSynonymCasUndSystemnummerFindenDenselbenStoff) {
  // German list name, English and German synonyms of SYNOM7.TXT, CAS number, system number.
  for (const char* text : {"Wasser", "  wasser  ", "water", "Wasserdampf", "7732-18-5", "#1921"}) {
    const Json info = StarteJson({"--substance", text, "info"});
    EXPECT_EQ(info["StoffName"].T(), "Wasser") << text;
    EXPECT_EQ(info["CASRN"].T(), "7732-18-5") << text;
  }
}

// Peng and Robinson's constants (Ind. Eng. Chem. Fundam. 15 (1976) 59): a = 0.45724 R^2 Tc^2/pc,
// b = 0.07780 R Tc/pc, m = 0.37464 + 1.54226 w - 0.26992 w^2, Zc = 0.3074; the denominator
// v^2 + 2bv - b^2 = (v + c)(v + d) with c, d = b (1 -+ sqrt 2).
TEST(CliInfo, WasserMitDenKonstantenVonPengUndRobinson) {
  const Json info = StarteJson({"--substance", "Wasser", "info"});
  const double Tc = info["TKrit"].Z(), pc = info["pKrit"].Z(), w = info["omega"].Z();
  EXPECT_EQ(Tc, 647.14);
  EXPECT_EQ(pc, 22064);
  EXPECT_NEAR(w, 0.344, 1e-7);
  EXPECT_EQ(info["MolMasse"].Z(), 18.0153);
  EXPECT_EQ(info["TSiede"].Z(), 373.15);

  EXPECT_EQ(info["EOSIndex"].Z(), 6) << "with an acentric factor the model window proposes Peng/Robinson";
  EXPECT_EQ(info["EOSName"].T(), "CEOS Peng / Robinson");
  EXPECT_FALSE(info["VirialFlag"].B());
  EXPECT_TRUE(info["KonzeptGlobal"].B());
  EXPECT_EQ(info["CpIndex"].Z(), 2) << "sinh/cosh preferred when both cp equations exist";

  EXPECT_EQ(info["aForm"].Z(), 2);
  EXPECT_TRUE(NaheRel(info["a0"].Z(), 0.45724 * R * R * Tc * Tc / pc, 1e-4));
  EXPECT_TRUE(NaheRel(info["b0"].Z(), 0.07780 * R * Tc / pc, 1e-4));
  EXPECT_TRUE(NaheRel(info["aExp"].Z(), 0.37464 + 1.54226 * w - 0.26992 * w * w, 1e-4));
  const double b = info["b0"].Z();
  EXPECT_TRUE(NaheRel(info["c0"].Z(), b * (1 - std::sqrt(2.0)), 1e-9));
  EXPECT_TRUE(NaheRel(info["d0"].Z(), b * (1 + std::sqrt(2.0)), 1e-9));
  EXPECT_TRUE(NaheRel(info["vKritEOS"].Z(), 0.3074 * R * Tc / pc, 1e-3));
  EXPECT_TRUE(NaheRel(info["rhoKritEOS"].Z(), 18.0153 / info["vKritEOS"].Z(), 1e-6));
  EXPECT_EQ(info["JiParameter"].liste.size(), 9u);

  EXPECT_EQ(info["DatenAmpel"].Z(), 1);
  EXPECT_NE(info["DatenAmpelText"].T().find("KEINERLEI EINSCHRÄNKUNGEN"), std::string::npos);
  EXPECT_NE(info["ParameterEOSText"].T().find("Parameter CEOS Peng / Robinson"), std::string::npos);
  EXPECT_TRUE(info["messages"].liste.empty());
}

// A database of two substances built from a CSV source in the test's folder: methane, and methane
// again without its acentric factor.
struct KleineDatenbank {
  Arbeitsordner ordner;
  std::string q07 = ordner / "mini.Q07", q06 = ordner / "mini.Q06";
  KleineDatenbank() {
    const Ergebnis e = StarteProgramm(std::string(QUOR_PROGRAMM_VERZEICHNIS) + "/stoffdaten-bauen",
                                      {"--csv", Testdatei("mini.csv"), "--q07", q07, "--q06", q06});
    EXPECT_EQ(e.code, 0) << e.fehler;
  }
};

TEST(CliModelle, OhneAzentrischenFaktorNurDieModelleDieOhneIhnAuskommen) {
  KleineDatenbank db;
  const Json liste = StarteJson({"--db", db.q06, "list"});
  ASSERT_EQ(liste.liste.size(), 2u) << "the older database kind is read as well";
  EXPECT_EQ(liste[1]["Name"].T(), "Testgas ohne Omega");

  const Json info = StarteJson({"--db", db.q07, "--substance", "#9001", "info"});
  EXPECT_EQ(info["omega"].Z(), 0);
  EXPECT_EQ(info["EOSIndex"].Z(), 4) << "without omega the model window proposes Redlich/Kwong";
  EXPECT_TRUE(NaheRel(info["vKritEOS"].Z(), R * info["TKrit"].Z() / (3 * info["pKrit"].Z()), 1e-9))
      << "Redlich/Kwong: Zc = 1/3";

  const Ergebnis pr = Starte({"--db", db.q07, "--substance", "#9001", "--eos", "6", "info"});
  EXPECT_EQ(pr.code, 2);
  EXPECT_TRUE(pr.aus.empty());
  EXPECT_NE(pr.fehler.find("--eos 6 (CEOS Peng / Robinson) is not offered for Testgas ohne Omega"),
            std::string::npos)
      << pr.fehler;
  EXPECT_NE(pr.fehler.find("4 CEOS Redlich / Kwong"), std::string::npos) << "the offered rows are named";
  for (const char* hlv : {"3", "7"}) {
    const Ergebnis e = Starte({"--db", db.q07, "--substance", "#9001", "--hlv", hlv, "info"});
    EXPECT_EQ(e.code, 2) << "delta(LV)h method " << hlv << " needs omega";
  }
  EXPECT_EQ(Starte({"--db", db.q07, "--substance", "#9001", "--eos", "13", "info"}).code, 0);
}

TEST(CliModelle, VirialModellErzwingtPartialUndKubischesWiederGlobal) {
  const Json virial = StarteJson({"--substance", "Wasser", "--eos", "14", "info"});
  EXPECT_TRUE(virial["VirialFlag"].B());
  EXPECT_FALSE(virial["KonzeptGlobal"].B());
  EXPECT_FALSE(virial["RechnungGlobal"].B());
  EXPECT_EQ(virial["vKritEOS"].Z(), 0) << "a virial model has no critical volume";

  const Ergebnis ohneHlv7 = Starte({"--substance", "Wasser", "--eos", "14", "--hlv", "7", "info"});
  EXPECT_EQ(ohneHlv7.code, 2);
  EXPECT_NE(ohneHlv7.fehler.find("--hlv 7 (aus kub.-EOS (GLOBAL-Berechnung)) is not offered"),
            std::string::npos);

  const Json partial = StarteJson({"--substance", "Wasser", "--concept", "partial", "info"});
  EXPECT_FALSE(partial["KonzeptGlobal"].B());
  EXPECT_EQ(partial["EOSIndex"].Z(), 6);
  const Json global = StarteJson({"--substance", "Wasser", "--eos", "5", "info"});
  EXPECT_TRUE(global["KonzeptGlobal"].B());
  EXPECT_EQ(global["HLVIndex"].Z(), 1);
}

TEST(CliModelle, WatsonExponentNurZurWatsonKorrelation) {
  const Json info = StarteJson({"--substance", "Wasser", "--hlv", "4", "--watson", "0,4", "info"});
  EXPECT_EQ(info["HLVIndex"].Z(), 4);
  EXPECT_NEAR(info["WatsonExp"].Z(), 0.4, 1e-7) << "the decimal comma is read";
  const Ergebnis ohne = Starte({"--substance", "Wasser", "--watson", "0.4", "info"});
  EXPECT_EQ(ohne.code, 2);
  EXPECT_NE(ohne.fehler.find("--hlv 4"), std::string::npos);
}

} // namespace
} // namespace quor::test
