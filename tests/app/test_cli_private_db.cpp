// quor-cli private-db: the editor's private database of water with changed fields opens as a
// database of its own, the changed critical temperature in it and the changed entropy not; usage
// errors.
#include "cli_testhilfe.h"

namespace quor::test {
namespace {

TEST(CliPrivateDb, WaterWithChangedFieldsOpensAsADatabaseOfItsOwn) {
  TempOrdner dir;
  const std::string datei = dir.Datei("WASSER.Q07");
  const Ergebnis e =
      Starte({"private-db", "--substance", "7732-18-5", "--out", datei, "--set", "4=650,122=1.5"});
  ASSERT_EQ(e.code, 0) << e.fehler;
  EXPECT_EQ(e.aus, datei + ": Wasser (7732-18-5)\n");
  EXPECT_EQ(std::filesystem::file_size(datei), 2u * 950); // the header and the one substance

  const Json r = StarteJson({"info", "--db", datei, "--substance", "7732-18-5"});
  EXPECT_EQ(r["StoffIndex"].Z(), 1);
  EXPECT_EQ(r["TKrit"].Z(), 650);
  EXPECT_REL(r["sBildung"].Z(), 188.724, 1e-6); // the database's value: the entropy stays out
}

TEST(CliPrivateDb, UsageErrors) {
  TempOrdner dir;
  for (const std::vector<std::string>& falsch :
       {std::vector<std::string>{"private-db", "--substance", "7732-18-5"},
        {"private-db", "--substance", "7732-18-5", "--out", dir.Datei("A.Q07"), "--set", "999=1"},
        {"private-db", "--substance", "7732-18-5", "--out", dir.Datei("A.Q07"), "--set", "4"},
        {"calc", "3", "--out", dir.Datei("A.Q07")}}) {
    const Ergebnis e = Starte(falsch);
    EXPECT_EQ(e.code, 2) << falsch.back() << ": " << e.fehler;
  }
  EXPECT_FALSE(std::filesystem::exists(dir.Datei("A.Q07")));
}

} // namespace
} // namespace quor::test
