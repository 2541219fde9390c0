// Number texts as the user sees them: Basic-style format patterns ("###0.000 K", "0.0000E+00",
// "pos;neg;zero") and the default text of single and double values. The decimal mark is always '.'.
#pragma once

#include <string>
#include <string_view>

namespace quor {

// Formats value with a Basic-style (Format$) numeric pattern. The decimal mark is always '.'.
// Rounding is half away from zero on the value's 15-digit decimal form. Placeholders: '0' (always a
// digit), '#' (digit only if significant), '.', ',' (grouping, or scaling by 1000 before the point),
// '%', "E+"/"E-"/"e+"/"e-" with exponent digits; "quoted" text and \x are literal, as is any other
// character. Up to three sections: positive;negative;zero. NaN gives "NaN", infinities "Inf"/"-Inf".
std::string FormatVB(double value, std::string_view pattern);

// Default text of a single-precision value: shortest form with up to seven significant digits,
// exponent where that form needs one: 0.1 -> "0.1", 1e-37f -> "1E-37", 12345678 -> "1.234568E+07".
std::string SingleText(float x);

// The same for a double with up to 15 significant digits (Basic's default text of a double).
std::string DoubleText(double x);

} // namespace quor
