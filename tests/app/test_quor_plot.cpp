// quor-plot end to end: the propane p-v diagram with its coexistence curve and three isotherms goes
// into PNG, SVG and PDF files of the asked size, with every curve in them; a point file joins a
// diagram; the 3D surface needs a display; bad options end with code 2 and a German message, an
// empty diagram with code 1.
#include "cli_testhilfe.h"

#include <cstdlib>
#include <filesystem>

namespace quor::test {
namespace {

Ergebnis Plot(std::vector<std::string> argumente) {
  argumente.insert(argumente.begin(), {"--substance", "Propan"});
  return StarteProgramm(QUOR_PLOT, argumente);
}

// Width and height from the header of a PNG file (the IHDR chunk follows the signature).
std::pair<int, int> PngGroesse(const std::string& bytes) {
  if (bytes.size() < 24 || bytes.compare(0, 8, "\x89PNG\r\n\x1a\n") != 0 || bytes.compare(12, 4, "IHDR") != 0)
    return {0, 0};
  const auto wort = [&](std::size_t i) {
    int n = 0;
    for (std::size_t k = i; k < i + 4; ++k)
      n = n * 256 + static_cast<unsigned char>(bytes[k]);
    return n;
  };
  return {wort(16), wort(20)};
}

std::size_t Anzahl(const std::string& text, const std::string& teil) {
  std::size_t n = 0;
  for (std::size_t i = text.find(teil); i != std::string::npos; i = text.find(teil, i + 1))
    ++n;
  return n;
}

TEST(QuorPlot, PropanePvDiagramWithCoexistenceAndThreeIsothermsInEachFormat) {
  TempOrdner tmp;
  const std::vector<std::string> kurven = {"--code", "1",   "--coexistence", "--T",    "300",    "--T",
                                           "340",    "--T", "369.5",         "--size", "800x500"};
  const auto schreibe = [&](const std::string& name) {
    std::vector<std::string> argumente = kurven;
    argumente.insert(argumente.end(), {"--out", tmp.Datei(name)});
    const Ergebnis e = Plot(argumente);
    EXPECT_EQ(e.code, 0) << e.fehler;
    EXPECT_EQ(e.aus, "");
    return LeseDatei(tmp.Datei(name));
  };

  EXPECT_EQ(PngGroesse(schreibe("propan.png")), std::make_pair(800, 500));

  const std::string svg = schreibe("propan.svg");
  EXPECT_EQ(svg.rfind("<?xml", 0), 0u);
  EXPECT_NE(svg.find("<svg width=\"800\" height=\"500\""), std::string::npos);
  // Legend texts of the curves (the isotherms' parameters as the page writes them), each curve a
  // polyline beside the axes' and the legend's short ones.
  for (const char* legende : {"T = 300.00 K.", "T = 340.00 K.", "T = 369.50 K.", "Koexistenzkurve V - L"})
    EXPECT_NE(svg.find(legende), std::string::npos) << legende;
  EXPECT_GE(Anzahl(svg, "<polyline"), 4u);

  const std::string pdf = schreibe("propan.pdf");
  EXPECT_EQ(pdf.rfind("%PDF-", 0), 0u);
  const std::string pdftoppm = Werkzeug("pdftoppm");
  if (pdftoppm.empty()) GTEST_SKIP() << "poppler-utils fehlt";
  // At 96 dots per inch the page is the picture's size again.
  const Ergebnis r = StarteProgramm(
      pdftoppm, {"-r", "96", "-png", "-singlefile", tmp.Datei("propan.pdf"), tmp.Datei("gerendert")});
  EXPECT_EQ(r.code, 0) << r.fehler;
  EXPECT_EQ(PngGroesse(LeseDatei(tmp.Datei("gerendert.png"))), std::make_pair(800, 500));
}

TEST(QuorPlot, PointFileJoinsTheDiagramAsAPointSet) {
  TempOrdner tmp;
  const std::string xy = tmp.Schreibe("mess.XY", "Messpunkte Propan\r\n0.5;2000\r\n0.8;1500\r\n1.0;1200\r\n");
  const Ergebnis e = Plot({"--code", "1", "--points", xy, "--out", tmp.Datei("punkte.svg")});
  ASSERT_EQ(e.code, 0) << e.fehler;
  EXPECT_NE(LeseDatei(tmp.Datei("punkte.svg")).find("Messpunkte Propan"), std::string::npos)
      << "the file's comment is the legend";
}

// The 3D chart needs OpenGL: on a display it draws, without one quor-plot says so.
TEST(QuorPlot, SurfaceNeedsADisplay) {
  TempOrdner tmp;
  // The software OpenGL driver leaks, and once it is unloaded its frames carry no module name that
  // a suppression could match: the leak check is off for this child alone.
  const char* vorher = std::getenv("LSAN_OPTIONS");
  const std::string alt = vorher ? vorher : "";
  setenv("LSAN_OPTIONS", (alt.empty() ? std::string("detect_leaks=0") : alt + ":detect_leaks=0").c_str(), 1);
  const Ergebnis e = Plot({"--art", "6", "--size", "400x300", "--out", tmp.Datei("h.png")});
  vorher ? setenv("LSAN_OPTIONS", alt.c_str(), 1) : unsetenv("LSAN_OPTIONS");
  if (std::getenv("DISPLAY")) {
    ASSERT_EQ(e.code, 0) << e.fehler;
    EXPECT_EQ(PngGroesse(LeseDatei(tmp.Datei("h.png"))), std::make_pair(400, 300));
  } else {
    EXPECT_EQ(e.code, 1);
    EXPECT_NE(e.fehler.find("braucht eine Anzeige mit OpenGL"), std::string::npos) << e.fehler;
    EXPECT_FALSE(std::filesystem::exists(tmp.Datei("h.png")));
  }
}

TEST(QuorPlot, BadOptionsEndWithCode2AndAnEmptyDiagramWithCode1) {
  TempOrdner tmp;
  const std::string out = tmp.Datei("bild.png");
  struct Fall {
    std::vector<std::string> argumente;
    int code;
    std::string meldung;
  };
  const Fall faelle[] = {
      {{"--code", "1", "--T", "abc", "--out", out}, 2, "keine gültige Zahl: --T \"abc\""},
      {{"--code", "1", "--T", "-5", "--out", out}, 2, "erwartet wird eine positive Zahl"},
      {{"--code", "1", "--T", "300", "--frob", "--out", out}, 2, "unbekannte Option --frob"},
      {{"--code", "1", "--T", "300"}, 2, "--out DATEI fehlt"},
      {{"--code", "1", "--T", "300", "--out", tmp.Datei("bild.gif")},
       2,
       "muss auf .png, .bmp, .svg oder .pdf enden"},
      {{"--code", "1", "--T", "300", "--out", out, "--size", "20x20"}, 2, "--size \"20x20\""},
      {{"--code", "1", "--T", "300", "--out", out, "--size", "800"}, 2, "--size \"800\""},
      {{"--code", "1", "--T", "300", "--out", out, "--x", "2,1"}, 2, "der Bereich muss steigen"},
      {{"--code", "1", "--out", out}, 2, "braucht mindestens ein --T"},
      {{"--code", "1", "--p", "300", "--out", out}, 2, "nimmt kein --p"},
      {{"--code", "50", "--out", out}, 2, "ist kein Diagramm-Code"},
      {{"--code", "1", "--art", "1", "--out", out}, 2, "entweder --code"},
      {{"--art", "1", "--T", "300", "--out", out}, 2, "--T gehört zu --code"},
      {{"--code", "1", "--T", "300", "--out", out, "--points", tmp.Datei("fehlt.XY")},
       2,
       "kann nicht gelesen"},
      {{"--code", "1", "--T", "300", "--out", tmp.Datei("fehlt/bild.png")},
       2,
       "kann nicht geschrieben werden"},
      {{"--code", "1", "--T", "300", "--out", out, "rest"}, 2, "unerwartetes Argument"},
      // An isotherm far outside the axes: nothing is drawn.
      {{"--code", "1", "--T", "300", "--x", "100,200", "--y", "1,2", "--out", out}, 1, "bleibt leer"},
  };
  for (const Fall& f : faelle) {
    const Ergebnis e = Plot(f.argumente);
    EXPECT_EQ(e.code, f.code) << f.meldung << "\n" << e.fehler;
    EXPECT_NE(e.fehler.find(f.meldung), std::string::npos) << e.fehler;
    EXPECT_NE(e.fehler.find("quor-plot: "), std::string::npos) << e.fehler;
  }
  EXPECT_FALSE(std::filesystem::exists(out)) << "no picture from a failed run";
}

} // namespace
} // namespace quor::test
