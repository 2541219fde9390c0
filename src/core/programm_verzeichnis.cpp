#include "core/programm_verzeichnis.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace quor {

namespace fs = std::filesystem;

const std::vector<std::string>& StandardDateien() {
  static const std::vector<std::string> dateien = {"QUOR.Q07", "SYNOM7.TXT", "help"};
  return dateien;
}

const std::vector<std::string>& Begleitprogramme() {
  static const std::vector<std::string> programme = {"cubpar", "Merlon_1", "Tavik1W", "Tavik1W_E"};
  return programme;
}

std::string ExeVerzeichnis() {
  std::error_code fehler;
  const fs::path exe = fs::read_symlink("/proc/self/exe", fehler);
  return fehler ? fs::current_path(fehler).u8string() : exe.parent_path().u8string();
}

std::string BenutzerVerzeichnis() {
  const char* xdg = std::getenv("XDG_DATA_HOME");
  if (xdg != nullptr && *xdg == '/') return (fs::u8path(xdg) / "QUOR").u8string();
  const char* home = std::getenv("HOME");
  const fs::path basis = home != nullptr && *home != '\0' ? fs::u8path(home) : fs::temp_directory_path();
  return (basis / ".local" / "share" / "QUOR").u8string();
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
  return ProgrammVerzeichnisEinrichten(exeVerzeichnis, benutzerVerzeichnis, VerzeichnisBeschreibbar(exeVerzeichnis));
}

std::string ProgrammVerzeichnisEinrichten(const std::string& exeVerzeichnis,
                                          const std::string& benutzerVerzeichnis, bool exeBeschreibbar) {
  if (exeBeschreibbar || benutzerVerzeichnis.empty()) return exeVerzeichnis;
  std::error_code fehler;
  fs::create_directories(benutzerVerzeichnis, fehler);
  if (!VerzeichnisBeschreibbar(benutzerVerzeichnis)) return exeVerzeichnis;
  for (const auto& name : StandardDateien()) {
    const fs::path quelle = fs::path(exeVerzeichnis) / name;
    const fs::path ziel = fs::path(benutzerVerzeichnis) / name;
    if (!fs::exists(quelle, fehler) || fs::exists(ziel, fehler)) continue;
    fs::copy(quelle, ziel, fs::copy_options::recursive, fehler);
  }
  // The companions stay where they are installed; a link from the user's folder finds them, and a
  // link left from a former installation is replaced.
  for (const auto& name : Begleitprogramme()) {
    const fs::path quelle = fs::path(exeVerzeichnis) / name;
    const fs::path ziel = fs::path(benutzerVerzeichnis) / name;
    if (!fs::exists(quelle, fehler) || fs::exists(ziel, fehler)) continue;
    if (fs::is_symlink(fs::symlink_status(ziel, fehler))) fs::remove(ziel, fehler);
    fs::create_symlink(quelle, ziel, fehler);
    if (fehler) fs::copy(quelle, ziel, fehler);
  }
  return benutzerVerzeichnis;
}

std::string InstallationsBericht(const std::string& verzeichnis, bool& vollstaendig) {
  std::error_code fehler;
  vollstaendig = true;
  std::string text = "Programmverzeichnis: " + verzeichnis + "\n";
  auto zeile = [&](const std::string& name, bool da, const std::string& angabe) {
    vollstaendig = vollstaendig && da;
    text += "  " + name + ": " + (da ? angabe : "fehlt") + "\n";
  };
  for (const auto& name : StandardDateien()) {
    const fs::path pfad = fs::path(verzeichnis) / name;
    if (fs::is_directory(pfad, fehler)) {
      int seiten = 0;
      for (const auto& eintrag : fs::directory_iterator(pfad, fehler))
        seiten += eintrag.path().extension() == ".html";
      zeile(name, seiten > 0, std::to_string(seiten) + (seiten == 1 ? " Seite" : " Seiten"));
    } else {
      zeile(name, fs::is_regular_file(pfad, fehler), "vorhanden");
    }
  }
  for (const auto& name : Begleitprogramme())
    zeile(name, fs::is_regular_file(fs::path(verzeichnis) / name, fehler), "vorhanden");
  return text;
}

} // namespace quor
