#include "core/messdaten_gruppe.h"

namespace quor {

ExpDatenSatz& ExpZeile(MessdatenGruppe& m, int punkt) {
  if (punkt < 0) punkt = 0;
  if (static_cast<std::size_t>(punkt) >= m.ExpDaten.size())
    m.ExpDaten.resize(static_cast<std::size_t>(punkt) + 1);
  return m.ExpDaten[static_cast<std::size_t>(punkt)];
}

} // namespace quor
