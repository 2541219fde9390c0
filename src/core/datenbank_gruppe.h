// The open substance database: its kind and paths, the substance lists built when it was opened,
// and its records, held for fetching one substance by number.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quor {

struct DatenbankGruppe {
  int16_t DatenbankTyp = 7; // 6: .Q06 records of 776 bytes, 7: .Q07 records of 950 bytes
  std::string PfadQ06;
  std::string PfadQ07;
  bool DatenbankGeladen = false; // true once a database was opened with success

  // The lists of the open database, each indexed from 1 to StoffAnzahl (element 0 stays empty).
  int16_t StoffAnzahl = 0;
  int16_t KopfAnzahl = 0; // what the header counts; more than StoffAnzahl in a file cut short
  std::vector<int16_t> MDBNummern;
  std::vector<std::string> FormelListe; // up to 12 characters
  std::vector<std::string> NamenListe;  // up to 107 characters, text behind a ';' included
  std::vector<std::string> CASListe;    // up to 12 characters

  // The whole file as read when it was opened; substance k is record k + 1.
  std::string Saetze;

  // Position in the lists of the loaded substance (0: none).
  int16_t StoffIndex = 0;

  // Names come from the English name field instead of the German one.
  bool EnglischeOberflaeche = false;

  // The program's directory, the base of every file name given without a directory.
  std::string ProgrammVerzeichnis;
};

} // namespace quor
