// The one way this program starts a child process, for the program, the command line, the tests and
// the benchmarks alike: the child runs in its working directory with no terminal of its own, its
// output discarded or written to the named files; the caller waits at most the order's time, and a
// child that runs over it is killed and reaped. A child not awaited is detached, so that it never
// lingers as a zombie.
#pragma once

#include "dienste/oberflaeche.h"

namespace quor::ui {

ProzessStatus StarteKindProzess(const ProzessAuftrag& auftrag);

} // namespace quor::ui
