#include "diagrams/kurven_intern.h"

namespace quor::kurven {

// The process lines are drawn from the states of the process page; without them a request of these
// codes gives no points.
void Prozesslinie(Lauf&) {}

} // namespace quor::kurven
