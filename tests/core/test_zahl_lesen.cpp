#include "core/zahl_lesen.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace quor {
namespace {

TEST(LeseZahl, AcceptsPointOrCommaAndBasicExponents) {
  struct Fall {
    const char* text;
    double wert;
  };
  // expected values are the decimal numbers written out, converted by the compiler
  const Fall faelle[] = {
      {"1.5", 1.5},        {"1,5", 1.5},           {".5", 0.5},
      {"5.", 5.0},         {"-,5", -0.5},          {"+3", 3.0},
      {"1,5E+03", 1500.0}, {"2.5d-3", 2.5e-3},     {" \t-7 \t", -7.0},
      {"007", 7.0},        {"4.9e-324", 4.9e-324}, {"1.7976931348623157e308", 1.7976931348623157e308}};
  for (const Fall& f : faelle) {
    ZahlErgebnis z = LeseZahl(f.text);
    EXPECT_TRUE(z.ok) << f.text;
    EXPECT_EQ(z.wert, f.wert) << f.text; // conversion must be exact, not merely close
    EXPECT_EQ(z.rest, "") << f.text;
  }
  EXPECT_TRUE(std::signbit(LeseZahl("-0").wert));
}

TEST(LeseZahl, RefusesGarbageAndNamesWhatWasLeft) {
  struct Fall {
    const char* text;
    const char* rest;
  };
  const Fall faelle[] = {{"", ""},       {"   ", ""},    {"-", "-"},      {"1.2.3", ".3"}, {"1,5x", "x"},
                         {"abc", "abc"}, {"1e", "e"},    {"1e+", "e+"},   {"1 2", " 2"},   {".", "."},
                         {"inf", "inf"}, {"nan", "nan"}, {"0x10", "x10"}, {"--1", "--1"},  {"1,5,", ","}};
  for (const Fall& f : faelle) {
    ZahlErgebnis z = LeseZahl(f.text);
    EXPECT_FALSE(z.ok) << f.text;
    EXPECT_EQ(z.wert, 0.0) << f.text;
    EXPECT_EQ(z.rest, f.rest) << f.text;
  }
}

TEST(LeseZahl, OverflowIsRefusedAndUnderflowBecomesZero) {
  for (const char* t : {"1e999", "-1.8e308", "1.7976931348623159e308", "1e99999999999999999999"}) {
    ZahlErgebnis z = LeseZahl(t);
    EXPECT_FALSE(z.ok) << t;
    EXPECT_EQ(z.wert, 0.0) << t;
  }
  for (const std::string& t :
       {std::string("1e-400"), "0." + std::string(400, '0') + "1", std::string("0e99999")}) {
    ZahlErgebnis z = LeseZahl(t);
    EXPECT_TRUE(z.ok) << t;
    EXPECT_EQ(z.wert, 0.0) << t;
  }
  EXPECT_TRUE(std::signbit(LeseZahl("-1e-400").wert));
}

TEST(ValVB, ReadsTheLongestLeadingNumber) {
  struct Fall {
    const char* text;
    double wert;
  };
  const Fall faelle[] = {{"  12abc", 12.0}, {"1,5 kg", 1.5}, {"-3.5e2x", -350.0}, {"1e", 1.0},
                         {"1e+", 1.0},      {"2D3", 2000.0}, {"1.2.3", 1.2},      {"\t 7", 7.0},
                         {"abc", 0.0},      {"", 0.0},       {".", 0.0},          {"- 5", 0.0},
                         {"1e999", 0.0},    {"Q07", 0.0},    {"x.Q07", 0.0},      {"7", 7.0}};
  for (const Fall& f : faelle)
    EXPECT_EQ(ValVB(f.text), f.wert) << f.text;
}

} // namespace
} // namespace quor
