// The program directory of an installation: a writable program folder is used as it is; a read-only
// one sends the program to the user's folder, which gets the data files copied and links to the
// companion programs, keeps what the user changed there, and tells what it holds.
#include "core/programm_verzeichnis.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <unistd.h>

namespace quor {
namespace {

namespace fs = std::filesystem;

struct Installation : ::testing::Test {
  fs::path wurzel = fs::temp_directory_path() / ("quor_install_" + std::to_string(::getpid()));
  fs::path programm = wurzel / "lib" / "quor";
  fs::path benutzer = wurzel / "home" / ".local" / "share" / "QUOR";

  void SetUp() override {
    fs::create_directories(programm / "help");
    for (const char* name : {"QUOR.Q07", "SYNOM7.TXT", "help/index.html", "cubpar", "Merlon_1", "Tavik1W",
                             "Tavik1W_E"})
      std::ofstream(programm / name) << "installiert";
  }
  void TearDown() override { fs::remove_all(wurzel); }
};

std::string Inhalt(const fs::path& p) {
  std::ifstream datei(p);
  std::string text;
  std::getline(datei, text);
  return text;
}

TEST_F(Installation, AReadOnlyProgramFolderFillsTheUsersFolderOnce) {
  EXPECT_EQ(ProgrammVerzeichnisEinrichten(programm.string(), benutzer.string(), true), programm.string());
  EXPECT_FALSE(fs::exists(benutzer));

  ASSERT_EQ(ProgrammVerzeichnisEinrichten(programm.string(), benutzer.string(), false), benutzer.string());
  EXPECT_EQ(Inhalt(benutzer / "QUOR.Q07"), "installiert");
  EXPECT_EQ(Inhalt(benutzer / "help" / "index.html"), "installiert");
  EXPECT_TRUE(fs::is_symlink(benutzer / "Merlon_1"));
  EXPECT_EQ(fs::read_symlink(benutzer / "Merlon_1"), programm / "Merlon_1");

  // The user's own database stays; a link into a removed installation is replaced.
  std::ofstream(benutzer / "QUOR.Q07") << "geaendert";
  fs::remove(benutzer / "cubpar");
  fs::create_symlink(wurzel / "alt" / "cubpar", benutzer / "cubpar");
  ProgrammVerzeichnisEinrichten(programm.string(), benutzer.string(), false);
  EXPECT_EQ(Inhalt(benutzer / "QUOR.Q07"), "geaendert");
  EXPECT_EQ(fs::read_symlink(benutzer / "cubpar"), programm / "cubpar");

  bool vollstaendig = false;
  const std::string bericht = InstallationsBericht(benutzer.string(), vollstaendig);
  EXPECT_TRUE(vollstaendig) << bericht;
  EXPECT_NE(bericht.find("  help: 1 Seite\n"), std::string::npos) << bericht;
  EXPECT_NE(bericht.find("  Tavik1W_E: vorhanden\n"), std::string::npos) << bericht;
  fs::remove(programm / "Tavik1W_E");
  EXPECT_NE(InstallationsBericht(benutzer.string(), vollstaendig).find("  Tavik1W_E: fehlt\n"), std::string::npos);
  EXPECT_FALSE(vollstaendig);
}

} // namespace
} // namespace quor
