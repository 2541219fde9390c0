// One fixed-length record of a substance database file (.Q07: 950 bytes, .Q06: 776 bytes), held as
// its raw bytes: little-endian numbers, Windows-1252 texts padded on the right. Every byte that is
// not set explicitly keeps its value, so a record read, changed and written again loses nothing.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

constexpr int SatzLaengeQ07 = 950;
constexpr int SatzLaengeQ06 = 776;
constexpr int ZellenAnzahl = 141;

// Record length of a database kind (6 or 7; any other kind counts as 7).
int SatzLaenge(int typ);

enum class SatzFeld { Formel, Struktur, NameEnglisch, NameDeutsch, CASRN };

class DatenbankSatz {
public:
  // A record of blanks in the text fields and zeros elsewhere.
  explicit DatenbankSatz(int typ = 7);
  // A record from file bytes; missing bytes at the end count as zeros.
  DatenbankSatz(int typ, std::string_view bytes);

  int Typ() const { return typ_; }
  const std::string& Bytes() const { return bytes_; }

  float Zelle(int i) const;
  void SetzeZelle(int i, float wert);

  // The system number of a substance record, the count of substances in the header record.
  int16_t Nummer() const;
  void SetzeNummer(int16_t n);

  // The field as UTF-8, padding included; empty for a field the kind doesn't have.
  std::string Text(SatzFeld feld) const;
  // Writes the text in Windows-1252, cut to the field's width and padded with blanks.
  void SetzeText(SatzFeld feld, std::string_view utf8);
  // Width of the field in characters, 0 when the kind doesn't have it.
  int Breite(SatzFeld feld) const;

private:
  int typ_;
  std::string bytes_;
};

// The header record: the date of writing in the formula field, blank names, the count.
DatenbankSatz KopfSatz(int typ, const std::string& datum, int16_t anzahl);

// The bytes of a whole file: header record, then the substance records in order.
std::string DatenbankDatei(const DatenbankSatz& kopf, const std::vector<DatenbankSatz>& saetze);

// Today's date as the header records carry it ("dd.mm.yyyy").
std::string HeutigesDatum();

} // namespace quor
