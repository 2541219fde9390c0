// quor-cli's exit codes: a usage or input error ends with 2, a calculation that fails with 1, each
// with its message on stderr and nothing on stdout; strange input never crashes the program.
#include "cli_testhilfe.h"

namespace quor::test {
namespace {

struct Fall {
  std::vector<std::string> argumente;
  int code;
  std::string meldung;
};

TEST(CliFehler, EingabefehlerEndenMitCode2UndGescheiterteRechnungenMitCode1) {
  const std::string W = "Wasser";
  const Fall faelle[] = {
      {{"--substance", "Xyzzy", "info"}, 2, "Unter dieser Bezeichnung nichts gefunden."},
      {{"--substance", W, "calc", "3", "--T", "abc", "--p", "100"}, 2, "keine gültige Eingabe (--T \"abc\")"},
      {{"--db", "nicht_da.Q07", "list"}, 2, "nicht gefunden"},
      {{"--substance", W, "batch", "3", "--data", "nicht_da.BAQ"}, 2, "Datei nicht gefunden:"},
      {{"--substance", W, "batch", "3", "--data", Testdatei("kaputt.BAQ")}, 2, "Typen unverträglich"},
      {{"--substance", W, "--eos", "14", "calc", "2", "--T", "300", "--rho", "900"}, 2, "kubischen EOS"},
      {{"--substance", W, "--eos", "14", "--hlv", "7", "info"},
       2,
       "--hlv 7 (aus kub.-EOS (GLOBAL-Berechnung)) is not offered"},
      {{"--substance", W, "calc", "3", "--T", "300"}, 2, "calc 3 needs --T --p"},
      {{"--substance", W, "calc", "3", "--T", "300", "--p", "1", "--m", "2"}, 2, "calc 3 does not use --m"},
      {{"--substance", W, "calc", "12", "--T", "300"}, 2, "kind 12 is not available for calc"},
      {{"--substance", W, "--bogus", "info"}, 2, "unknown option --bogus"},
      {{"--substance", W, "curve", "50"}, 2, "code 50 is no diagram code"},
      {{"--substance", W, "curve", "1", "--T", "300", "--x", "2,1"}, 2, "the range must rise"},
      {{"--substance", W, "curve", "1"}, 2, "code 1 needs --T"},
      {{"--substance", W, "curve", "9", "--T", "300"}, 2, "code 9 takes no --T"},
      {{"--substance", W, "curve", "1", "--T", "nan"}, 2, "keine gültige Eingabe (--T \"nan\")"},
      {{"--substance", W, "surface", "11"}, 2, "Art 11: expected a whole number from 1 to 10"},
      {{"--substance", W, "surface", "4", "--z", "1,-1"}, 2, "the range must rise"},
      {{"--substance", W, "surface", "4", "--x", "nan,1"}, 2, "keine gültige Eingabe (--x \"nan\")"},
      {{"--substance", W, "surface", "1", "--x", "0,0.001"}, 1, "the surface has no point with a value"},
      {{"frobnicate"}, 2, "unknown command 'frobnicate'"},
      {{"info"}, 2, "command info needs --substance"},
      // Above the critical temperature there is no vapour pressure, and PARTIAL has no vessel.
      {{"--substance", W, "calc", "4", "--T", "700"}, 1, "the calculation failed"},
      {{"--substance", W, "calc", "10", "--T", "700", "--m", "1", "--V", "1"}, 1, "the page closed at once"},
      // Ethane's critical temperature (305 K) lies between the first and the second point.
      {{"--substance", "Ethan", "batch", "4", "--data", Testdatei("wasser.BAQ")},
       1,
       "failed for at least one point"},
  };
  for (const Fall& f : faelle) {
    const Ergebnis e = Starte(f.argumente);
    EXPECT_EQ(e.code, f.code) << f.meldung;
    EXPECT_NE(e.fehler.find(f.meldung), std::string::npos) << "expected \"" << f.meldung << "\" in:\n"
                                                           << e.fehler;
    if (f.code == 2) {
      EXPECT_TRUE(e.aus.empty()) << f.meldung;
    }
  }

  const Ergebnis hilfe = Starte({"--help"});
  EXPECT_EQ(hilfe.code, 0);
  for (const char* text : {"list", "info", "calc KIND", "batch KIND", "Exit codes"})
    EXPECT_NE(hilfe.aus.find(text), std::string::npos) << text;

  const std::vector<std::vector<std::string>> seltsam = {
      {"--substance", "", "info"},
      {"--substance", "\xff\xfe", "info"},
      {"--substance", W, "calc", "3", "--T", "1e308", "--p", "1e308"},
      {"--substance", W, "calc", "3", "--T", "1e-300", "--p", "1e-300"},
      {"--substance", W, "calc", "1", "--T", "300", "--rho", "1e30"},
      {"--substance", W, "calc", "3", "--T", "647.14", "--p", "22064", "--sections", "4", "--functions"},
      {"--db", "/", "list"},
  };
  for (const auto& argumente : seltsam) {
    const int code = Starte(argumente).code;
    EXPECT_TRUE(code >= 0 && code <= 2)
        << argumente[argumente.size() - 2] << " " << argumente.back() << ": " << code;
  }
}

} // namespace
} // namespace quor::test
