// The input of the parameter program: the seven lines of "jipar.tmp" that the main program writes
// from the loaded substance.
#pragma once

#include <string>
#include <vector>

namespace cubpar {

struct JiParEingabe {
  int modellCode = 0;             // 10: model I, 11: model II
  std::string cas;                // CAS number, as written (12 characters)
  int code1 = 0, code2 = 0;       // type of the vapour-pressure block of line 6
  std::vector<double> kritisch;   // MolMasse, T(cr) of the density block, TKrit, pKrit, rho(cr), omega
  std::vector<double> dichte;     // rho(L) = Fu(T): A..G, TLo, THi
  std::vector<double> dampfdruck; // the block of line 6, zeros when absent
  std::vector<double> antoine;    // low-pressure Antoine: A, B, C, TLo, THi, zeros
};

// Reads the file's bytes. Lines 1 to 5 must be there and complete; missing values of lines 6 and 7
// count as 0. False with a reason in `fehler` otherwise.
bool LeseJiParEingabe(const std::string& bytes, JiParEingabe& e, std::string& fehler);

} // namespace cubpar
