// curve: one curve of the curve engine, as the diagram page gets it.
#include "cli/befehle.h"
#include "cli/fehler.h"

namespace quor::cli {

int BefehlCurve(Sitzung&, std::ostream&, std::ostream&) {
  throw Eingabefehler("curve: the diagram catalogue is not built yet");
}

} // namespace quor::cli
