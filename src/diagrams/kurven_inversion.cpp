#include "diagrams/kurven_intern.h"

namespace quor::kurven {

void InversionPT(Lauf&) {}
void InversionPv(Lauf&) {}

} // namespace quor::kurven
