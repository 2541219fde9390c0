// Locale-independent reading of numbers typed by users or read from files.
#pragma once

#include <string>
#include <string_view>

namespace quor {

struct ZahlErgebnis {
  bool ok = false;
  double wert = 0;
  std::string rest; // the part that could not be read ("" when ok)
};

// The whole text (blanks and tabs around it ignored) must be one number: optional sign, digits with at
// most one decimal mark ('.' or ','), optional exponent E/e/D/d with optional sign and digits.
// Overflow is refused; a value too small for a double becomes zero. The result is always finite.
ZahlErgebnis LeseZahl(std::string_view text);

// As LeseZahl, rounded once, straight to float; false for a non-number or a value beyond the float
// range. wert is left unchanged on failure.
bool LeseZahlFloat(std::string_view text, float& wert);

// Basic's Val(): skips leading blanks, reads the longest leading number and ignores the rest.
// Returns 0 when no number starts the text or the number overflows.
double ValVB(std::string_view text);

} // namespace quor
