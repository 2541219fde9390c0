// Option fields of the project that belong to the diagram and process-line dialogs:
// set in the options dialog or kept in the project file before their own dialogs use them.
#pragma once

#include <cstdint>

namespace quor {

struct OptionenZusatz {
  // Diagram mode: true adds new curves to an open diagram whose axis units fit; false clears the
  // diagram before a new one is drawn (the standard).
  bool KurvenMischen = false;
  // Start values and option of the process-line dialog, kept in the project file.
  double ProzessStart1 = 0;
  double ProzessStart2 = 0;
  int16_t ProzessOption = 0;
};

} // namespace quor
