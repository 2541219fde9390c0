// quor-cli: the calculations of QUOR-6 without a window (see quor-cli --help).
#include "cli/befehle.h"
#include "core/programm_verzeichnis.h"

#include <iostream>
#include <string>
#include <vector>

int main(int argc, char* argv[]) {
  std::vector<std::string> argumente(argv + 1, argv + argc);
  // What the installation holds, as the program finds it: exit code 1 when a file is missing.
  if (argumente.size() == 1 && argumente[0] == "--installation") {
    bool vollstaendig = false;
    std::cout << quor::InstallationsBericht(
        quor::ProgrammVerzeichnisEinrichten(quor::ExeVerzeichnis(), quor::BenutzerVerzeichnis()), vollstaendig);
    return vollstaendig ? 0 : 1;
  }
  const int code = quor::cli::Ausfuehren(argumente, std::cout, std::cerr);
  std::cout.flush();
  return code;
}
