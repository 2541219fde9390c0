#include "core/programm_verzeichnis.h"

#include <filesystem>
#include <fstream>

namespace quor {

namespace fs = std::filesystem;

const std::vector<std::string>& StandardDateien() {
  static const std::vector<std::string> dateien = {"QUOR.Q07", "SYNOM7.TXT", "help"};
  return dateien;
}

bool VerzeichnisBeschreibbar(const std::string& verzeichnis) {
  std::error_code fehler;
  if (!fs::is_directory(verzeichnis, fehler)) return false;
  const fs::path probe = fs::path(verzeichnis) / ".quor_schreibprobe";
  {
    std::ofstream datei(probe);
    if (!datei) return false;
  }
  fs::remove(probe, fehler);
  return true;
}

std::string ProgrammVerzeichnisEinrichten(const std::string& exeVerzeichnis,
                                          const std::string& benutzerVerzeichnis) {
  if (VerzeichnisBeschreibbar(exeVerzeichnis) || benutzerVerzeichnis.empty()) return exeVerzeichnis;
  std::error_code fehler;
  fs::create_directories(benutzerVerzeichnis, fehler);
  if (!VerzeichnisBeschreibbar(benutzerVerzeichnis)) return exeVerzeichnis;
  for (const auto& name : StandardDateien()) {
    const fs::path quelle = fs::path(exeVerzeichnis) / name;
    const fs::path ziel = fs::path(benutzerVerzeichnis) / name;
    if (!fs::exists(quelle, fehler) || fs::exists(ziel, fehler)) continue;
    fs::copy(quelle, ziel, fs::copy_options::recursive, fehler);
  }
  return benutzerVerzeichnis;
}

} // namespace quor
