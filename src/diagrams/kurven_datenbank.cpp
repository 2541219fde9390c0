#include "diagrams/kurven_intern.h"

namespace quor::kurven {

void Datenbankfunktion(Lauf&) {}

} // namespace quor::kurven
