// The text files of the program: read value after value like Basic's Input #, written like Write #.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quor {

// Reads values from the raw bytes of a file (Windows-1252 or UTF-8, line ends CR LF, LF or CR).
// A value is a quoted string or an unquoted field; fields end at a comma or a line end, numbers
// also at a blank. Blanks before a value and empty lines between values are skipped, and a comma
// at the end of a line does not make an empty field. Every read returns false at the end of the
// text and never throws. A failed read still moves past the field it looked at.
class ListenLeser {
public:
  explicit ListenLeser(std::string_view dateiBytes);

  bool LeseText(std::string& s); // "..." (commas kept; unterminated: up to the end) or a trimmed field
  bool LeseDouble(double& x);    // an empty field reads as 0; false for a non-number
  bool LeseFloat(float& x);      // as LeseDouble; false outside the range of float
  bool LeseInt16(int16_t& x);    // rounded half to even; false outside the range of int16
  // A number (non-zero is true; with `nurMinusEins` only -1 is) or #TRUE# / #FALSE#.
  bool LeseBool(bool& b, bool nurMinusEins = false);
  bool LeseZeile(std::string& s); // the rest of the current line as it stands, without the line end
  bool AmEnde() const;            // nothing but blanks and line ends remain
  std::size_t Zeile() const;      // 1-based line of the value read last (of the read position before)

private:
  bool IstZeilenende(std::size_t i) const;
  void UeberspringeLeer();
  void UeberspringeZeilenende();
  void NimmKomma();
  void BeendeFeld();
  bool BeginneFeld();
  bool LeseFeld(std::string& feld, bool zahl);
  bool LeseZahlFeld(std::string& text);

  std::string text_;
  std::size_t pos_ = 0;
  std::size_t feldAnfang_ = 0;
  mutable std::size_t gezaehltBis_ = 0; // line count cache: lines before this position
  mutable std::size_t gezaehlteZeile_ = 1;
};

// Writes values like Basic's Write #: strings quoted, values of a line separated by ',', booleans as
// -1 / 0, numbers in their shortest exact form with '.' as decimal mark, lines ended by CR LF.
class ListenSchreiber {
public:
  void Text(std::string_view s); // "..."; a '"' inside becomes '
  void Zahl(double x);           // shortest text that reads back to the same double; non-finite as 0
  void Zahl(float x);            // shortest text that reads back to the same float
  void Ganz(long x);
  void Bool(bool b);            // -1 / 0
  void Roh(std::string_view s); // raw text, no quotes and no separator before or after it
  void ZeileEnde();             // CR LF
  std::string Utf8() const;     // content so far
  std::string Bytes() const;    // content in Windows-1252, for the file

private:
  void Trenner();
  void Zahltext(const char* anfang, const char* ende);

  std::string text_;
  bool wertDavor_ = false; // a value stands directly before the write position on this line
};

} // namespace quor
