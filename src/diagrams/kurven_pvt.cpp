#include "diagrams/kurven_intern.h"

namespace quor::kurven {

void IsothermePV(Lauf&) {}
void IsothermePvProdukt(Lauf&) {}
void IsobareTv(Lauf&) {}
void IsochorePT(Lauf&) {}

} // namespace quor::kurven
