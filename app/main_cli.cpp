// quor-cli: the calculations of QUOR-6 without a window.
#include <cstring>
#include <iostream>

namespace {

const char* const Hilfe = "Usage: quor-cli [global options] COMMAND [options]\n"
                          "\n"
                          "QUOR-6 thermodynamic state calculations on pure substances, without a window.\n"
                          "No commands are available in this version yet.\n"
                          "\n"
                          "Options:\n"
                          "  --help     show this text\n";

} // namespace

int main(int argc, char* argv[]) {
  if (argc < 2 || std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0) {
    std::cout << Hilfe;
    return argc < 2 ? 1 : 0;
  }
  std::cerr << "quor-cli: unknown command '" << argv[1] << "' (see quor-cli --help)\n";
  return 2;
}
