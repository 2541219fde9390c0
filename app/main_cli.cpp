// quor-cli: the calculations of QUOR-6 without a window (see quor-cli --help).
#include "cli/befehle.h"

#include <iostream>
#include <string>
#include <vector>

int main(int argc, char* argv[]) {
  std::vector<std::string> argumente(argv + 1, argv + argc);
  const int code = quor::cli::Ausfuehren(argumente, std::cout, std::cerr);
  std::cout.flush();
  return code;
}
