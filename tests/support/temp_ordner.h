// A fresh folder below the system's temporary directory for the files a test writes, removed with
// everything in it at the end; and a whole file read into a string.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>

namespace quor::test {

class TempOrdner {
public:
  explicit TempOrdner(const std::string& praefix = "quor_test_") {
    std::random_device zufall;
    const auto basis = std::filesystem::temp_directory_path();
    do {
      pfad_ = basis / (praefix + std::to_string(zufall()));
    } while (!std::filesystem::create_directory(pfad_));
  }
  ~TempOrdner() {
    std::error_code ec;
    std::filesystem::remove_all(pfad_, ec);
  }
  TempOrdner(const TempOrdner&) = delete;
  TempOrdner& operator=(const TempOrdner&) = delete;

  std::string Pfad() const { return pfad_.string(); }
  // The path of `name` in the folder (a relative path may name a subfolder).
  std::string Datei(const std::string& name) const { return (pfad_ / name).string(); }
  // Writes `bytes` as the file `name` and returns its path.
  std::string Schreibe(const std::string& name, const std::string& bytes) const {
    const std::string p = Datei(name);
    std::ofstream(p, std::ios::binary) << bytes;
    return p;
  }

private:
  std::filesystem::path pfad_;
};

// The bytes of a file; empty when it cannot be read.
inline std::string LeseDatei(const std::string& pfad) {
  std::ifstream datei(pfad, std::ios::binary);
  std::ostringstream inhalt;
  inhalt << datei.rdbuf();
  return inhalt.str();
}

} // namespace quor::test
