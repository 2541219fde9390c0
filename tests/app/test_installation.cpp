// The installation: this build installed into a scratch prefix, its programs started from there with
// a fresh home folder find the database, the synonyms, the help and the companion programs, and
// calculate; the desktop entry is one the desktop accepts.
#include "cli_testhilfe.h"

#include <cstdlib>
#include <filesystem>

namespace quor::test {
namespace {

namespace fs = std::filesystem;

// HOME set for the programs started while it lives (and no display needed), given back afterwards.
class Heim {
public:
  explicit Heim(const std::string& pfad) {
    if (const char* h = std::getenv("HOME")) alt_ = h;
    if (const char* x = std::getenv("XDG_DATA_HOME")) xdg_ = x;
    fs::create_directories(pfad);
    if (const char* q = std::getenv("QT_QPA_PLATFORM")) qpa_ = q;
    setenv("HOME", pfad.c_str(), 1);
    unsetenv("XDG_DATA_HOME");
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
  }
  ~Heim() {
    setenv("HOME", alt_.c_str(), 1);
    if (qpa_.empty())
      unsetenv("QT_QPA_PLATFORM");
    else
      setenv("QT_QPA_PLATFORM", qpa_.c_str(), 1);
    if (!xdg_.empty()) setenv("XDG_DATA_HOME", xdg_.c_str(), 1);
  }

private:
  std::string alt_, xdg_, qpa_;
};

TEST(Installation, InstalledProgramsFindTheirFilesFromAFreshHome) {
  TempOrdner tmp("quor_installation_");
  const std::string prefix = tmp.Datei("prefix");
  const Ergebnis install = StarteProgramm(QUOR_CMAKE, {"--install", QUOR_BAUVERZEICHNIS, "--prefix", prefix});
  ASSERT_EQ(install.code, 0) << install.aus << install.fehler;
  const Heim heim(tmp.Datei("home"));

  const std::string verzeichnis = "Programmverzeichnis: " + prefix + "/lib/quor\n";
  for (const char* programm : {"quor-cli", "quor"}) {
    const Ergebnis e = StarteProgramm(prefix + "/bin/" + programm, {"--installation"});
    EXPECT_EQ(e.code, 0) << programm << "\n" << e.aus << e.fehler;
    EXPECT_EQ(e.aus.rfind(verzeichnis, 0), 0u) << e.aus;
    for (const char* datei : {"QUOR.Q07: vorhanden", "SYNOM7.TXT: vorhanden", "Merlon_1: vorhanden",
                              "cubpar: vorhanden", "Tavik1W: vorhanden", "Tavik1W_E: vorhanden"})
      EXPECT_NE(e.aus.find(datei), std::string::npos) << programm << ": " << datei;
    EXPECT_NE(e.aus.find("help: "), std::string::npos);
  }
  // The installed command line calculates with the installed database and its synonyms.
  const Ergebnis info = StarteProgramm(prefix + "/bin/quor-cli", {"info", "--substance", "Methan"});
  EXPECT_EQ(info.code, 0) << info.fehler;
  EXPECT_NE(info.aus.find("CASRN = 74-82-8"), std::string::npos);

  const std::string desktop = prefix + "/share/applications/quor.desktop";
  ASSERT_TRUE(fs::exists(desktop));
  EXPECT_NE(LeseDatei(desktop).find("Exec=" + prefix + "/lib/quor/quor %f"), std::string::npos);
  EXPECT_TRUE(fs::exists(prefix + "/share/icons/hicolor/scalable/apps/quor.svg"));
  const std::string pruefer = Werkzeug("desktop-file-validate");
  if (pruefer.empty()) GTEST_SKIP() << "desktop-file-utils fehlt";
  const Ergebnis gueltig = StarteProgramm(pruefer, {desktop});
  EXPECT_EQ(gueltig.code, 0) << gueltig.aus << gueltig.fehler;
}

} // namespace
} // namespace quor::test
