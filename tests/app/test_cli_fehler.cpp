// quor-cli end to end: usage and input errors end with code 2 and a message, a failed calculation
// with code 1, and no input makes the program crash.
#include "cli_testhilfe.h"

namespace quor::test {
namespace {

TEST(CliFehler, EingabefehlerEndenMitCode2UndEinerMeldung) {
  const std::vector<std::pair<std::vector<std::string>, std::string>> faelle = {
      {{"--substance", "Xyzzy", "info"}, "Fehler bei Stoffwahl: Unter dieser Bezeichnung nichts gefunden."},
      {{"--substance", "#99999", "info"}, "no substance with the system number #99999"},
      {{"--substance", "Wasser", "calc", "3", "--T", "abc", "--p", "100"},
       "keine gültige Eingabe (--T \"abc\")"},
      {{"--substance", "Wasser", "calc", "3", "--T", "-5", "--p", "100"},
       "keine gültige Eingabe (--T \"-5\")"},
      {{"--substance", "Wasser", "--h-ref", "1x", "info"}, "keine gültige Eingabe (--h-ref \"1x\")"},
      {{"--db", "nicht_da.Q07", "list"}, "nicht gefunden"},
      {{"--substance", "Wasser", "batch", "3", "--data", "nicht_da.BAQ"},
       "Message from Sub LadeBatchFile: Datei nicht gefunden:"},
      {{"--substance", "Wasser", "batch", "3", "--data", Testdatei("kaputt.BAQ")}, "Typen unverträglich"},
      {{"--substance", "Wasser", "--eos", "14", "calc", "2", "--T", "300", "--rho", "900"},
       "nur möglich mit einer kubischen EOS"},
      {{"--substance", "Wasser", "--eos", "14", "--concept", "global", "info"},
       "GLOBAL-Berechnung ist nur mit einer kubischen EOS möglich (=> Fenster \"Modelle\")."},
      {{"--substance", "Wasser", "--reference", "10", "--h-ref", "5", "info"},
       "--h-ref can only be given with --reference 1"},
      {{"--substance", "Wasser", "calc", "3", "--T", "300"}, "calc 3 needs --T --p"},
      {{"--substance", "Wasser", "calc", "3", "--T", "300", "--p", "1", "--m", "2"},
       "calc 3 does not use --m"},
      {{"--substance", "Wasser", "calc", "12", "--T", "300"}, "kind 12 is not available for calc"},
      {{"--substance", "Wasser", "batch", "9", "--data", "x.BAQ"}, "kind 9 is not available for batch"},
      {{"--substance", "Wasser", "info", "--T", "300"}, "option --T is not used by command info"},
      {{"--substance", "Wasser", "--bogus", "info"}, "unknown option --bogus"},
      {{"frobnicate"}, "unknown command 'frobnicate'"},
      {{}, "no command given"},
      {{"info"}, "command info needs --substance"},
  };
  for (const auto& [argumente, meldung] : faelle) {
    const Ergebnis e = Starte(argumente);
    EXPECT_EQ(e.code, 2) << meldung;
    EXPECT_NE(e.fehler.find(meldung), std::string::npos) << "expected \"" << meldung << "\" in:\n"
                                                         << e.fehler;
    EXPECT_TRUE(e.aus.empty()) << meldung;
  }
}

TEST(CliFehler, GescheiterteRechnungEndetMitCode1) {
  // Above the critical temperature there is no vapour pressure.
  const Json r = StarteJson({"--substance", "Wasser", "calc", "4", "--T", "700"}, 1);
  EXPECT_FALSE(r["ok"].B());
  EXPECT_TRUE(r["page"]["par1"]["red"].B());
  EXPECT_NE(r["page"]["par1"]["text"].T().find("> T(cr) !!!"), std::string::npos);
  EXPECT_EQ(r["StapelErgebnis"]["Phase"].T(), "   ");

  // The PARTIAL vessel above the critical temperature closes its page at once.
  const Ergebnis kessel =
      Starte({"--substance", "Wasser", "calc", "10", "--T", "700", "--m", "1", "--V", "1"});
  EXPECT_EQ(kessel.code, 1);
  EXPECT_NE(kessel.fehler.find("PARTIAL-Berechnung nur für Phasengleichgewicht"), std::string::npos)
      << kessel.fehler;
  EXPECT_NE(kessel.fehler.find("the calculation failed (the page closed at once)"), std::string::npos);
}

TEST(CliFehler, KeinAbsturzBeiSeltsamerEingabe) {
  const std::vector<std::vector<std::string>> faelle = {
      {"--substance", "", "info"},
      {"--substance", "#", "info"},
      {"--substance", "#12345678901234567890", "info"},
      {"--substance", "\xff\xfe", "info"},
      {"--substance", "Wasser", "calc", "3", "--T=", "--p", "1"},
      {"--substance", "Wasser", "calc", "3", "--T", "1e308", "--p", "1e308"},
      {"--substance", "Wasser", "calc", "3", "--T", "1e-300", "--p", "1e-300"},
      {"--substance", "Wasser", "calc", "1", "--T", "300", "--rho", "1e30"},
      {"--substance", "Wasser", "calc", "13", "--p", "1", "--rho", "1e-30"},
      {"--substance", "Wasser", "calc", "9", "--T", "300", "--m", "1e20", "--V", "1e-20"},
      {"--substance", "Wasser", "calc", "3", "--T", "647.14", "--p", "22064", "--sections", "4",
       "--functions"},
      {"--substance", "Wasser", "--concept", "partial", "calc", "4", "--T", "373", "--ref-point",
       "1e30,1e30,1e30,1e30"},
      {"--substance", "Wasser", "calc", "4", "--T", "373", "--ref-point", "1,2,3"},
      {"--substance", "Wasser", "--eos", "0", "calc", "8", "--T", "300", "--p", "100", "--sections", "4"},
      {"--substance", "Wasser", "--volume-mode", "2", "--energy-mode", "2", "calc", "8", "--T", "300", "--p",
       "1"},
      {"--substance", "Wasser", "calc", "24", "--T", "1"},
      {"--db", "/", "list"},
      {"--db", Testdatei("wasser.BAQ"), "list"},
      {"--json", "--json", "list"},
  };
  for (const auto& argumente : faelle) {
    const Ergebnis e = Starte(argumente);
    std::string zeile;
    for (const std::string& a : argumente)
      zeile += a + " ";
    EXPECT_GE(e.code, 0) << zeile;
    EXPECT_LE(e.code, 2) << zeile << "\n" << e.fehler;
  }
}

TEST(CliHilfe, NenntBefehleUndOptionen) {
  const Ergebnis e = Starte({"--help"});
  EXPECT_EQ(e.code, 0);
  for (const char* text :
       {"list", "info", "calc KIND", "batch KIND", "--ref-point", "--equilibrium", "Exit codes"})
    EXPECT_NE(e.aus.find(text), std::string::npos) << text;
}

} // namespace
} // namespace quor::test
