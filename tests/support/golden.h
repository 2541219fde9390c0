// Comparison of a produced text with a stored one below tests/data (golden file); QUOR_GOLDEN_NEU=1
// writes the file from the running code instead (only after each text was checked by hand).
#pragma once

#include "support/temp_ordner.h"

#include <cstdlib>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

namespace quor::test {

// `relativ` is the path below tests/data, e.g. "core/status_neu.txt".
inline void PruefeGolden(const std::string& relativ, const std::string& ist) {
  const std::string pfad = std::string(QUOR_TESTDATEN) + "/" + relativ;
  const char* neu = std::getenv("QUOR_GOLDEN_NEU");
  if (neu != nullptr && std::string(neu) == "1") {
    std::ofstream(pfad, std::ios::binary) << ist;
    return;
  }
  std::ifstream datei(pfad, std::ios::binary);
  ASSERT_TRUE(datei.good()) << "missing " << relativ << " (QUOR_GOLDEN_NEU=1 writes it)";
  EXPECT_EQ(ist, LeseDatei(pfad)) << "differs from the golden file " << relativ;
}

} // namespace quor::test
