#include "diagrams/kurven_intern.h"

namespace quor {

bool Konnodenpunkte(ProjectState&, const DiagrammAuftrag&, double, double, double, double&, double&, double&,
                    double&) {
  return false;
}

} // namespace quor
