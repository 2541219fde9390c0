// Number texts: Basic-style format patterns and the default text of single and double values.
// Expected strings follow Basic's Format$ and Str$ behaviour; where a case hinges on one quirk the
// comment at the row names it.
#include "core/zahlformat.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

namespace quor {
namespace {

struct Fall {
  double wert;
  const char* muster;
  const char* erwartet;
};

template <std::size_t N> void PruefeTabelle(const Fall (&faelle)[N]) {
  for (const Fall& f : faelle)
    EXPECT_EQ(FormatVB(f.wert, f.muster), f.erwartet) << "Format(" << f.wert << ", \"" << f.muster << "\")";
}

// One row per rule of the patterns; the comment names the rule or quirk the row hinges on.
TEST(FormatVB, PatternRules) {
  const Fall faelle[] = {
      {0.5, "###0.000 K", "0.500 K"},              // the '0' before the point forces the leading zero
      {12345.6789, "###0.000 K", "12345.679 K"},   // surplus integer digits are all shown
      {101.325, "######0.000 kPa", "101.325 kPa"}, // '#' never pads with blanks
      {0.25, "#####.00 kPa", ".25 kPa"},           // no '0' before the point: no leading zero
      {190.565, "####0.00 K", "190.57 K"},         // decimal form 190.565, although the binary is below
      {273.1, "###0.0# K", "273.1 K"},             // trailing optional zero dropped
      {273.0, "###0.0# K", "273.0 K"},             // the '0' place stays
      {3.0, "####.##", "3."},                      // Basic keeps the point when no decimal digit remains
      {99.995, "##0.0#", "100.0"},                 // carry, then the optional zero is dropped
      {0.0, "#", ""},                              // Basic writes nothing for zero with '#' only
      {5.0, "0#", "05"},                           // padding starts at the leftmost '0'
      {2.675, "0.00", "2.68"},                     // binary 2.67499999..., decimal form 2.675
      {0.125, "0.00", "0.13"},                     // exact half away from zero, printf would round to even
      {-2.5, "0", "-3"},                           // one section: automatic minus in front
      {-0.0004, "###0.000 kPa", "-0.000 kPa"},     // a negative value rounding to zero keeps its sign
      {-0.0, "0.00", "0.00"},                      // negative zero is zero
      {1.5, "\"T = \"0.0", "T = 1.5"},
      {1.5, "0.0\\#", "1.5#"},
      {0.256, "0.0%", "25.6%"},
      {1234567.891, "#,##0.00", "1,234,567.89"},
      {1234567.0, "0,", "1235"},  // a comma closing the integer digits scales by 1000
      {1234.0, "00-00", "12-34"}, // digits are right-aligned on the placeholders
      {12.5, ".00", "12.50"},     // integer digits appear even without integer placeholders
      {3.0, "", "3"},             // empty pattern: the default text
  };
  PruefeTabelle(faelle);
}

TEST(FormatVB, ExponentPatternsAndSections) {
  const Fall faelle[] = {
      {0.000123445, "0.0000E+00", "1.2345E-04"}, // half on the decimal form rounds up
      {9.99996, "0.0000E+00", "1.0000E+01"},     // the mantissa carry moves the exponent
      {1234.5, ".0000000E+00", ".1234500E+04"},  // no placeholder before the point: [0.1, 1)
      {1234.5, "0.00E-00", "1.23E03"},           // "E-" writes only a minus
      {1234.5, "0.00e+00", "1.23e+03"},
      {1234.5, "00.00E+00", "12.35E+02"},                     // two integer digits in the mantissa
      {1.5e7, "0.0E+000 K", "1.5E+007 K"},                    // text after the exponent stays text
      {-1234.5678, " 0.0000E+00;-0.0000E+00", "-1.2346E+03"}, // the section's own '-', no automatic one
      {0.0, " 0.0000E+00;-0.0000E+00", " 0.0000E+00"},        // no zero section: the first one
      {0.0, "0.00;(0.00);\"null\"", "null"},
      {-5.0, "0.00;;\"null\"", "-5.00"}, // empty negative section: the first one
      {-5.0, "0.0\";\"", "-5.0;"},       // a quoted ';' separates nothing
  };
  PruefeTabelle(faelle);
}

TEST(FormatVB, ExtremeMagnitudes) {
  const Fall faelle[] = {
      {1.234567890123456789e20, "0", "123456789012346000000"}, // 15 digits, then zeros
      {1e-300, ".00000000E+00", ".10000000E-299"},
      {5e-324, "0.0E+00", "4.9E-324"},
  };
  PruefeTabelle(faelle);
  EXPECT_EQ(FormatVB(1e300, "0.000"), "1" + std::string(300, '0') + ".000");
}

TEST(FormatVB, NonFiniteInputGivesAWordInsteadOfDigits) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double inf = std::numeric_limits<double>::infinity();
  for (const char* muster : {"###0.000 K", "0.0000E+00", " 0.0000E+00;-0.0000E+00", "#"}) {
    EXPECT_EQ(FormatVB(nan, muster), "NaN") << muster;
    EXPECT_EQ(FormatVB(inf, muster), "Inf") << muster;
    EXPECT_EQ(FormatVB(-inf, muster), "-Inf") << muster;
  }
  EXPECT_EQ(FormatVB(1e308, "0%"), "Inf"); // scaling overflows
}

TEST(SingleText, SevenSignificantDigitsAndExponentWhereNeeded) {
  EXPECT_EQ(SingleText(1e-37f), "1E-37"); // the editor's marker for a present zero
  EXPECT_EQ(SingleText(12345678.0f), "1.234568E+07");
  EXPECT_EQ(SingleText(1234567.0f), "1234567"); // seven digits still fixed
  EXPECT_EQ(SingleText(0.0001f), "0.0001");     // exponent -4 still fixed
  EXPECT_EQ(SingleText(0.00001f), "1E-05");
  EXPECT_EQ(SingleText(101.325f), "101.325"); // float 101.32499695 rounds back to 7 digits
  EXPECT_EQ(SingleText(-std::numeric_limits<float>::infinity()), "-Inf");
}

TEST(SingleText, ReadsBackWithinSinglePrecision) {
  for (float x = 1.3e-38f; std::isfinite(x); x *= -7.7f) {
    const std::string text = SingleText(x);
    EXPECT_NEAR(std::strtod(text.c_str(), nullptr) / x, 1.0, 6e-7) << text;
    EXPECT_EQ(text.find(' '), std::string::npos) << text;
  }
}

TEST(DoubleText, FifteenSignificantDigits) {
  EXPECT_EQ(DoubleText(0.1 + 0.2), "0.3");
  EXPECT_EQ(DoubleText(1e15), "1E+15");
  EXPECT_EQ(DoubleText(-0.0), "0");
}

} // namespace
} // namespace quor
