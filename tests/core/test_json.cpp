// The JSON reader and writer of the program's own files: what the writer gives reads back to the same
// values, and the reader's rules for escapes, numbers, nesting and trailing text.
#include "core/json_leser.h"
#include "core/json_schreiber.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <string>

namespace quor {
namespace {

TEST(Json, WrittenNumbersAndTextsReadBackExactly) {
  const std::vector<double> zahlen{0.1, -0.0, 1e-300, 123456789.123456789, DBL_MAX, 5e-324, 100, 1e17};
  JsonSchreiber j;
  j.BeginObjekt();
  j.Schluessel("z");
  j.BeginListe(true);
  for (const double x : zahlen) j.Zahl(x);
  j.Zahl(0.1f);
  j.EndeListe();
  j.Feld("t", std::string("Ä \"zitiert\"\\ \t\x01 €"));
  j.EndeObjekt();
  const JsonErgebnis e = LeseJson(j.Ergebnis());
  ASSERT_TRUE(e.wert) << e.fehler;
  const JsonWert& z = *e.wert->Feld("z");
  ASSERT_EQ(z.liste.size(), zahlen.size() + 1);
  for (std::size_t i = 0; i < zahlen.size(); ++i) EXPECT_EQ(z.liste[i].zahl, zahlen[i]) << i;
  EXPECT_EQ(static_cast<float>(z.liste.back().zahl), 0.1f);
  EXPECT_EQ(e.wert->Feld("t")->text, "Ä \"zitiert\"\\ \t\x01 €");
  // Ordinary sizes stand without exponent, very large ones with it.
  EXPECT_NE(j.Ergebnis().find("100, 1e+17"), std::string::npos) << j.Ergebnis();
}

TEST(Json, EscapesBecomeUtf8AndBrokenPairsAReplacementCharacter) {
  const auto text = [](const char* json) {
    const JsonErgebnis e = LeseJson(json);
    return e.wert ? e.wert->text : "FEHLER " + e.fehler;
  };
  EXPECT_EQ(text(R"("\u00e4\ud83d\ude00\/\n")"), "ä\xF0\x9F\x98\x80/\n");
  EXPECT_EQ(text(R"("\ud800x")"), "\xEF\xBF\xBDx");
  EXPECT_EQ(text(R"("\udc00")"), "\xEF\xBF\xBD");
  EXPECT_EQ(text("\xEF\xBB\xBF\"bom\""), "bom");
  EXPECT_EQ(text(R"("\q")"), "FEHLER falsches Escape-Zeichen (Byte 3)");
  EXPECT_EQ(text("\"a\nb\""), "FEHLER Steuerzeichen im Text (Byte 3)");
  EXPECT_EQ(text(R"("\u12")"), "FEHLER Text endet zu früh (Byte 4)");
}

TEST(Json, NumbersNestingAndTrailingTextAreChecked) {
  const auto fehler = [](const std::string& json) { return LeseJson(json).fehler; };
  EXPECT_EQ(LeseJson("1e-400").wert->zahl, 0);
  EXPECT_EQ(fehler("1e400"), "Zahl zu groß (Byte 1)");
  EXPECT_EQ(fehler("-"), "Wert erwartet (Byte 2)");
  EXPECT_EQ(fehler("01"), "Text nach dem Ende (Byte 2)");
  EXPECT_EQ(fehler("1."), "Ziffer erwartet (Byte 3)");
  EXPECT_EQ(fehler("[1 2]"), "',' oder ']' erwartet (Byte 4)");
  EXPECT_EQ(fehler("{\"a\" 1}"), "':' erwartet (Byte 6)");
  EXPECT_EQ(fehler("{\"a\": 1,}"), "Schlüssel erwartet (Byte 9)");
  EXPECT_EQ(fehler("[true, nul]"), "unbekanntes Wort (Byte 8)");
  EXPECT_EQ(fehler("{} x"), "Text nach dem Ende (Byte 4)");
  EXPECT_TRUE(fehler(std::string(JsonMaxTiefe + 1, '[') + std::string(JsonMaxTiefe + 1, ']')).empty());
  EXPECT_EQ(fehler(std::string(JsonMaxTiefe + 2, '[') + std::string(JsonMaxTiefe + 2, ']')),
            "zu tief verschachtelt (Byte 66)");
  const JsonErgebnis o = LeseJson(R"({"a": 1, "a": 2, "b": null})");
  EXPECT_EQ(o.wert->Feld("a")->zahl, 1); // the first of a doubled key
  EXPECT_EQ(o.wert->Feld("b")->art, JsonWert::Art::Null);
  EXPECT_EQ(o.wert->Feld("c"), nullptr);
}

} // namespace
} // namespace quor
