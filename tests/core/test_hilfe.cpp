// The help pages against the program: every topic number in the sources has its page, every link
// between the pages lands on a page (and on its anchor), and the search finds and ranks the pages.
#include "core/hilfe_suche.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string>

namespace quor {
namespace {

namespace fs = std::filesystem;

const std::string Quellbaum = QUOR_QUELLBAUM;
const std::string HilfeOrdner = QUOR_HILFESEITEN;

std::string SeiteZuThema(int thema) {
  return thema == 0 ? std::string("index.html") : std::to_string(thema) + ".html";
}

// Topic numbers of the sources with the file that names them: the constants and enumerators named
// Hilfe... with a number, and help calls with a literal number.
std::map<int, std::string> ThemenDerQuellen() {
  const std::regex konstante(R"(\bHilfe[A-Z][A-Za-z]*\s*=\s*([0-9]+))");
  const std::regex aufruf(R"(\bHilfe\s*\(\s*([0-9]+)\s*\))");
  std::map<int, std::string> themen;
  for (const char* ordner : {"src", "app"}) {
    for (const auto& e : fs::recursive_directory_iterator(fs::path(Quellbaum) / ordner)) {
      const std::string endung = e.path().extension().string();
      if (!e.is_regular_file() || (endung != ".h" && endung != ".cpp")) continue;
      const std::string text = test::LeseDatei(e.path().string());
      for (const std::regex* muster : {&konstante, &aufruf})
        for (std::sregex_iterator it(text.begin(), text.end(), *muster), ende; it != ende; ++it)
          themen.emplace(std::stoi((*it)[1]), e.path().filename().string());
    }
  }
  return themen;
}

std::set<std::string> Seiten() {
  std::set<std::string> seiten;
  for (const auto& e : fs::directory_iterator(HilfeOrdner))
    if (e.path().extension() == ".html") seiten.insert(e.path().filename().string());
  return seiten;
}

std::string Seite(const std::string& name) {
  return test::LeseDatei((fs::path(HilfeOrdner) / name).string());
}

std::set<std::string> Anker(const std::string& html) {
  std::set<std::string> anker;
  const std::regex id(R"re(\b(?:id|name)\s*=\s*"([^"]+)")re");
  for (std::sregex_iterator it(html.begin(), html.end(), id), ende; it != ende; ++it)
    anker.insert((*it)[1]);
  return anker;
}

TEST(HilfeSeiten, EveryTopicNumberOfTheSourcesHasItsPage) {
  const std::map<int, std::string> themen = ThemenDerQuellen();
  // The scan itself works: the contents, the menu's pages and a dialog's constant are among them.
  for (const int bekannt : {0, 11223, 45333, 47100})
    EXPECT_EQ(themen.count(bekannt), 1u) << bekannt;
  for (const auto& [thema, datei] : themen) {
    const std::string html = Seite(SeiteZuThema(thema));
    ASSERT_FALSE(html.empty()) << "topic " << thema << " of " << datei << " has no page";
    EXPECT_FALSE(HilfeSeitenTitel(html).empty()) << SeiteZuThema(thema);
  }
}

TEST(HilfeSeiten, EveryLinkLandsOnAPageAndItsAnchorAndTheContentsListEveryPage) {
  const std::set<std::string> seiten = Seiten();
  ASSERT_GE(seiten.size(), 18u);
  std::map<std::string, std::set<std::string>> anker;
  for (const std::string& s : seiten)
    anker[s] = Anker(Seite(s));
  const std::regex verweis(R"re(href\s*=\s*"([^"]*)")re");
  std::set<std::string> vomInhalt;
  int verweise = 0;
  for (const std::string& s : seiten) {
    const std::string html = Seite(s);
    EXPECT_NE(html.find("<meta charset=\"utf-8\">"), std::string::npos) << s;
    for (std::sregex_iterator it(html.begin(), html.end(), verweis), ende; it != ende; ++it, ++verweise) {
      const std::string ziel = (*it)[1];
      if (ziel.rfind("http:", 0) == 0 || ziel.rfind("https:", 0) == 0) continue;
      const std::size_t raute = ziel.find('#');
      const std::string datei = raute == std::string::npos ? ziel : ziel.substr(0, raute);
      const std::string seite = datei.empty() ? s : datei;
      ASSERT_EQ(seiten.count(seite), 1u) << s << " -> " << ziel;
      if (raute != std::string::npos) {
        EXPECT_EQ(anker[seite].count(ziel.substr(raute + 1)), 1u) << s << " -> " << ziel;
      }
      if (s == "index.html") vomInhalt.insert(seite);
    }
  }
  EXPECT_GE(verweise, 60);
  for (const std::string& s : seiten) {
    if (s != "index.html") {
      EXPECT_EQ(vomInhalt.count(s), 1u) << s << " is missing from the contents";
    }
  }
  // The isochor advice of the diagram page sends the user to the section "Isochoren".
  bool isochoren = false;
  for (const std::string& s : seiten)
    isochoren =
        isochoren || (anker[s].count("isochoren") && Seite(s).find(">Isochoren<") != std::string::npos);
  EXPECT_TRUE(isochoren);
}

TEST(HilfeSuche, PlainTextLeavesOutTagsAndDecodesEntities) {
  const std::string html = "<html><head><title>Beh&auml;lter</title><style>p { color: red }</style></head>"
                           "<body><!-- intern --><p class=\"kessel\">Der <b>Kessel</b>&nbsp;&ndash;\n"
                           "  T&nbsp;&lt;&nbsp;T(cr) &#246;l &#x2192;</p></body></html>";
  EXPECT_EQ(HilfeSeitenText(html), "Behälter Der Kessel – T < T(cr) öl →");
  EXPECT_EQ(HilfeSeitenTitel(html), "Behälter");
  EXPECT_EQ(HilfeSeitenTitel("<p>ohne</p>"), "");
  EXPECT_EQ(HilfeKlein("ÄÖÜ Straße GLOBAL ×"), "äöü straße global ×");
}

TEST(HilfeSuche, WordsAreLowerCaseOncePerInput) {
  EXPECT_EQ(HilfeSuchWoerter("  Behälter, p(LV)  behÄlter "),
            (std::vector<std::string>{"behälter", "p", "lv"}));
  EXPECT_TRUE(HilfeSuchWoerter(" ,;- ").empty());
  EXPECT_EQ(HilfeZaehle("aaaa", "aa"), 2);
  EXPECT_EQ(HilfeZaehle("isochore und isochoren", "isochor"), 2);
}

TEST(HilfeSuche, PagesWithEveryWordComeMostOccurrencesFirst) {
  test::TempOrdner ordner;
  ordner.Schreibe("1.html", "<title>Eins</title><p>Isochore. Die Isochore im <i>Diagramm</i>.</p>");
  ordner.Schreibe("2.html", "<title>Zwei</title><p>Eine ISOCHORE, drei Isochoren, eine Isochore, "
                            "im Diagramm.</p>");
  ordner.Schreibe("3.html", "<title>Drei</title><p>Isochore ohne das zweite Wort.</p>");
  ordner.Schreibe("4.html", "<title>Vier</title><p><a href=\"isochore.html\">Diagramm</a></p>");
  ordner.Schreibe("notiz.txt", "Isochore Diagramm Isochore Isochore");
  const std::vector<HilfeTreffer> treffer = SucheInHilfe(ordner.Pfad(), "isochore diagramm");
  ASSERT_EQ(treffer.size(), 2u);
  EXPECT_EQ(treffer[0].datei, "2.html");
  EXPECT_EQ(treffer[0].titel, "Zwei");
  EXPECT_EQ(treffer[0].anzahl, 3 + 1); // "Isochoren" holds the word too
  EXPECT_EQ(treffer[1].datei, "1.html");
  EXPECT_EQ(treffer[1].anzahl, 2 + 1);
  EXPECT_TRUE(SucheInHilfe(ordner.Pfad(), "   ").empty());
  EXPECT_TRUE(SucheInHilfe(ordner.Datei("fehlt"), "isochore").empty());
}

TEST(HilfeSuche, TheProgramsPagesAnswerTheirWordsFirst) {
  const auto erste = [](const std::string& eingabe) {
    const std::vector<HilfeTreffer> t = SucheInHilfe(HilfeOrdner, eingabe);
    return t.empty() ? std::string() : t.front().datei;
  };
  EXPECT_EQ(erste("Behälter"), "47300.html");
  EXPECT_EQ(erste("BEHÄLTER Füllung"), "47300.html");
  EXPECT_EQ(erste("Joback Strukturgruppen"), "43500.html");
  EXPECT_EQ(erste("Spline Glättung"), "46300.html");
  EXPECT_TRUE(SucheInHilfe(HilfeOrdner, "Behälter xyzzy").empty());
}

} // namespace
} // namespace quor
