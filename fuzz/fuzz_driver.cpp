// Replays fuzz inputs without libFuzzer: runs the target once over every file named on the command line.
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int main(int argc, char** argv) {
  int fehler = 0;
  for (int i = 1; i < argc; ++i) {
    std::ifstream ein(argv[i], std::ios::binary);
    if (!ein) {
      std::cerr << "cannot read " << argv[i] << "\n";
      fehler = 1;
      continue;
    }
    std::string bytes((std::istreambuf_iterator<char>(ein)), std::istreambuf_iterator<char>());
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
  }
  std::cout << "replayed " << (argc - 1) << " inputs\n";
  return fehler;
}
