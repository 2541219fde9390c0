// The program's working directory: the folder of the executable when it is writable (a build
// tree), otherwise a per-user folder that receives the default data files on first start.
#pragma once

#include <string>
#include <vector>

namespace quor {

// Files the program needs beside itself: the default database, the synonym list, the help pages.
const std::vector<std::string>& StandardDateien();

// The companion programs the program starts from its directory, under their names on this platform.
const std::vector<std::string>& Begleitprogramme();

bool VerzeichnisBeschreibbar(const std::string& verzeichnis);

// The folder of the running executable (links resolved).
std::string ExeVerzeichnis();
// The per-user folder that takes the program's files when the executable's folder is read-only:
// $XDG_DATA_HOME/QUOR, else ~/.local/share/QUOR.
std::string BenutzerVerzeichnis();

// Chooses the program directory. When the executable's folder isn't writable, `benutzerVerzeichnis`
// is created, every file of `StandardDateien()` (or folder of them) that it lacks is copied from
// the executable's folder, and each companion program gets a link to the installed one there (a copy
// where links fail). Returns the chosen directory; never throws.
std::string ProgrammVerzeichnisEinrichten(const std::string& exeVerzeichnis,
                                          const std::string& benutzerVerzeichnis);
// The same with the executable's folder judged by the caller.
std::string ProgrammVerzeichnisEinrichten(const std::string& exeVerzeichnis,
                                          const std::string& benutzerVerzeichnis, bool exeBeschreibbar);

// What a program directory holds of the program's files, one line each ("QUOR.Q07: vorhanden",
// "help: 12 Seiten", "Merlon_1: fehlt"), after the line with the directory. `vollstaendig` tells
// whether nothing is missing.
std::string InstallationsBericht(const std::string& verzeichnis, bool& vollstaendig);

} // namespace quor
