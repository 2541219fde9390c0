// The program's working directory: the folder of the executable when it is writable (a build
// tree), otherwise a per-user folder that receives the default data files on first start.
#pragma once

#include <string>
#include <vector>

namespace quor {

// Files the program needs beside itself: the default database, the synonym list, the help pages.
const std::vector<std::string>& StandardDateien();

bool VerzeichnisBeschreibbar(const std::string& verzeichnis);

// Chooses the program directory. When the executable's folder isn't writable, `benutzerVerzeichnis`
// is created and every file of `StandardDateien()` (or folder of them) that it lacks is copied from
// the executable's folder. Returns the chosen directory; never throws.
std::string ProgrammVerzeichnisEinrichten(const std::string& exeVerzeichnis,
                                          const std::string& benutzerVerzeichnis);

} // namespace quor
