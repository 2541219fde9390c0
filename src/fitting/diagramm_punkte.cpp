#include "fitting/diagramm_punkte.h"

#include <algorithm>

namespace quor {

void DiagrammBereich(const std::vector<double>& werte, float& min, float& max) {
  if (werte.empty()) {
    min = -1;
    max = 1;
    return;
  }
  const auto [kleinster, groesster] = std::minmax_element(werte.begin(), werte.end());
  const double spanne = *groesster - *kleinster;
  if (spanne > 0) {
    min = static_cast<float>(*kleinster - 0.05 * spanne);
    max = static_cast<float>(*groesster + 0.05 * spanne);
  } else if (*kleinster == 0) {
    min = -1;
    max = 1;
  } else {
    min = static_cast<float>(std::min(*kleinster * 0.95, *kleinster * 1.05));
    max = static_cast<float>(std::max(*kleinster * 0.95, *kleinster * 1.05));
  }
}

} // namespace quor
