#include "core/datei_io.h"
#include "core/listen_datei.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <string>
#include <vector>

namespace quor {
namespace {

std::string LiesText(ListenLeser& l) {
  std::string s;
  EXPECT_TRUE(l.LeseText(s)) << "Zeile " << l.Zeile();
  return s;
}

double LiesDouble(ListenLeser& l) {
  double x = -999;
  EXPECT_TRUE(l.LeseDouble(x)) << "Zeile " << l.Zeile();
  return x;
}

bool GleicheBits(double a, double b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}

TEST(ListenSchreiber, WritesLikeBasicWrite) {
  ListenSchreiber w;
  w.Text("a,b");
  w.Zahl(0.1);
  w.Zahl(1e-37);
  w.Zahl(1e20);
  w.Ganz(-5);
  w.Bool(true);
  w.Bool(false);
  w.ZeileEnde();
  w.Text("sag \"hallo\"");
  w.Zahl(0.1f);
  w.Zahl(std::nan(""));
  w.ZeileEnde();
  EXPECT_EQ(w.Utf8(), "\"a,b\",0.1,1E-37,1E+20,-5,-1,0\r\n\"sag 'hallo'\",0.1,0\r\n");
}

TEST(ListenDatei, NumbersRoundTripExactly) {
  const std::vector<double> d = {0.1,    1e-300,   -0.0, 1.7976931348623157e308,
                                 5e-324, -123.456, 1e20, 12345678.9};
  const std::vector<float> f = {
      0.1f,   3.4028235e38f, 1e-37f,       -7.25f, 1.17549435e-38f,
      1e-45f, 16777217.0f,   7.038531e-26f}; // via double this one rounds twice and misses
  ListenSchreiber w;
  for (double x : d)
    w.Zahl(x);
  w.ZeileEnde();
  for (float x : f)
    w.Zahl(x);
  ListenLeser l(w.Bytes());
  for (double x : d)
    EXPECT_TRUE(GleicheBits(LiesDouble(l), x)) << x;
  for (float x : f) {
    float y = 0;
    EXPECT_TRUE(l.LeseFloat(y));
    EXPECT_EQ(y, x);
  }
  EXPECT_TRUE(l.AmEnde());
}

TEST(ListenDatei, StringsRoundTripWithCommasQuotesAndBlanks) {
  const std::vector<std::string> texte = {"a,b,c", "", "  vorn und hinten  ", "Müller ° ²", "x\"y", ","};
  ListenSchreiber w;
  for (const std::string& t : texte)
    w.Text(t);
  w.ZeileEnde();
  EXPECT_NE(w.Bytes().find("\"M\xFCller \xB0 \xB2\""), std::string::npos); // the file is Windows-1252
  ListenLeser l(w.Bytes());
  for (const std::string& t : texte)
    EXPECT_EQ(LiesText(l), t == "x\"y" ? "x'y" : t);
  std::string s;
  EXPECT_FALSE(l.LeseText(s));
}

TEST(ListenDatei, Int16IsRoundedHalfToEvenAndRangeChecked) {
  ListenLeser l("32767,-32768,32768,-32769,2.5,3.5,-2.5,32767.5,-32768.5,1e3,\"7,6\",abc,");
  const int16_t erwartet[] = {32767, -32768, 0, 0, 2, 4, -2, 0, -32768, 1000, 8, 0};
  const bool ok[] = {true, true, false, false, true, true, true, false, true, true, true, false};
  for (std::size_t i = 0; i < 12; ++i) {
    int16_t x = 0;
    EXPECT_EQ(l.LeseInt16(x), ok[i]) << i;
    if (ok[i]) {
      EXPECT_EQ(x, erwartet[i]) << i;
    }
  }
  int16_t x = 0;
  EXPECT_FALSE(l.LeseInt16(x));
}

TEST(ListenDatei, BooleansAndFloatRange) {
  ListenSchreiber w;
  w.Bool(true);
  w.Bool(false);
  w.Roh(",1,#TRUE#,#false#,ja,,3.4028235e38,-3.4028236e38");
  ListenLeser l(w.Utf8());
  const bool erwartet[] = {true, false, true, true, false};
  for (bool e : erwartet) {
    bool b = !e;
    EXPECT_TRUE(l.LeseBool(b));
    EXPECT_EQ(b, e);
  }
  bool b = true;
  EXPECT_FALSE(l.LeseBool(b)); // "ja"
  EXPECT_TRUE(l.LeseBool(b));  // empty field
  EXPECT_FALSE(b);
  float f = 0;
  EXPECT_TRUE(l.LeseFloat(f)); // above the largest float, but rounds to it
  EXPECT_EQ(f, 3.4028235e38f);
  EXPECT_FALSE(l.LeseFloat(f)); // beyond half an ulp: would be -inf
}

// The same values in files with the three kinds of line end; empty lines count, an unterminated
// quote reads up to the end.
TEST(ListenDatei, LineEndsCrLfLfAndCrReadAlike) {
  for (const char* ende : {"\r\n", "\n", "\r"}) {
    auto mit = [&](std::string t) {
      for (std::size_t p; (p = t.find('|')) != std::string::npos;)
        t.replace(p, 1, ende);
      return t;
    };
    ListenLeser l(mit("<>|| 3 |1.5, 2,|||\"x, y\" rest|\"ende"));
    std::string s;
    EXPECT_TRUE(l.LeseZeile(s) && s == "<>");
    EXPECT_TRUE(l.LeseZeile(s) && s.empty());
    EXPECT_EQ(LiesDouble(l), 3.0);
    EXPECT_EQ(LiesDouble(l), 1.5);
    EXPECT_EQ(LiesDouble(l), 2.0); // the comma at the line end makes no empty field
    EXPECT_EQ(LiesText(l), "x, y");
    EXPECT_EQ(l.Zeile(), 7u); // two empty lines skipped
    EXPECT_EQ(LiesText(l), "ende");
    EXPECT_TRUE(l.AmEnde());
    EXPECT_FALSE(l.LeseZeile(s));
  }
}

TEST(ListenDatei, FieldRulesOfBasicInput) {
  ListenLeser l("  ab c  ,,\"1,5\",1,5,\"q\"x y,7\r\n1.5 2.5\r\n\"\",  \r\n   \r\n9");
  EXPECT_EQ(LiesText(l), "ab c");
  EXPECT_EQ(LiesDouble(l), 0.0); // empty field between two commas
  EXPECT_EQ(LiesDouble(l), 1.5); // decimal comma inside quotes
  EXPECT_EQ(LiesDouble(l), 1.0); // unquoted: the comma ends the field
  EXPECT_EQ(LiesDouble(l), 5.0);
  EXPECT_EQ(LiesText(l), "q"); // text behind the closing quote is dropped
  EXPECT_EQ(LiesDouble(l), 7.0);
  EXPECT_EQ(LiesDouble(l), 1.5); // numbers also end at blanks
  EXPECT_EQ(LiesDouble(l), 2.5);
  EXPECT_EQ(LiesDouble(l), 0.0); // "" as a number
  EXPECT_EQ(LiesDouble(l), 9.0); // blank lines between values skipped
  EXPECT_TRUE(l.AmEnde());
}

TEST(ListenDatei, BadOrTruncatedInputFailsWithoutStopping) {
  ListenLeser l("abc,4\r\n5x");
  double x = 0;
  EXPECT_FALSE(l.LeseDouble(x)); // a failed read moves past its field
  EXPECT_EQ(LiesDouble(l), 4.0);
  EXPECT_FALSE(l.LeseDouble(x));
  EXPECT_FALSE(l.LeseDouble(x)); // past the end, again and again
  ListenLeser leer(" \r\n\t\r\n");
  std::string s;
  EXPECT_TRUE(leer.AmEnde());
  EXPECT_FALSE(leer.LeseText(s));
}

TEST(ListenDatei, SurvivesNulHugeLinesAndRandomBytes) {
  ListenLeser n(std::string("a\0b,\"c\0", 7));
  EXPECT_EQ(LiesText(n), std::string("a\0b", 3));
  EXPECT_EQ(LiesText(n), std::string("c\0", 2));
  ListenLeser gross(std::string(1000000, 'z'));
  EXPECT_EQ(LiesText(gross).size(), 1000000u);
  std::mt19937 zufall(42);
  for (int k = 0; k < 2000; ++k) {
    std::string b(zufall() % 64, '\0');
    for (char& c : b)
      c = "0,.\"\r\n -#Ee5\xFF\xC3"[zufall() % 15];
    ListenLeser l(b);
    std::size_t lesungen = 0;
    std::string s;
    while (!l.AmEnde() && lesungen <= b.size())
      (++lesungen % 2 ? l.LeseText(s) : l.LeseZeile(s));
    EXPECT_LE(lesungen, b.size()) << "no progress on input " << k; // every read moves on
  }
}

// Whole files: every byte value comes back, a second write replaces; missing directories and
// directories as files fail.
TEST(DateiBytes, WholeFileRoundTripAndFailures) {
  test::TempOrdner ordner;
  std::string alle;
  for (int i = 0; i < 256; ++i)
    alle += static_cast<char>(i);
  std::string gelesen = "alt";
  ASSERT_TRUE(SchreibeDateiBytes(ordner.Datei("a.QC6"), alle));
  ASSERT_TRUE(LeseDateiBytes(ordner.Datei("a.QC6"), gelesen));
  EXPECT_EQ(gelesen, alle);
  ASSERT_TRUE(SchreibeDateiBytes(ordner.Datei("a.QC6"), ""));
  ASSERT_TRUE(LeseDateiBytes(ordner.Datei("a.QC6"), gelesen));
  EXPECT_EQ(gelesen, "");

  EXPECT_FALSE(LeseDateiBytes(ordner.Datei("fehlt/x.BAQ"), gelesen));
  EXPECT_FALSE(SchreibeDateiBytes(ordner.Datei("fehlt/x.BAQ"), "1"));
  EXPECT_FALSE(DateiExistiert(ordner.Pfad())); // a directory is no file
  EXPECT_FALSE(LeseDateiBytes(ordner.Pfad(), gelesen));
}

} // namespace
} // namespace quor
