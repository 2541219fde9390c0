// quor-plot: a diagram of QUOR-6 into a picture file, without a window (see quor-plot --help).
#include "plot/plot_programm.h"

#include <iostream>
#include <string>
#include <vector>

int main(int argc, char* argv[]) {
  std::vector<std::string> argumente(argv + 1, argv + argc);
  const int code = quor::plot::PlotAusfuehren(argumente, std::cout, std::cerr);
  std::cout.flush();
  return code;
}
