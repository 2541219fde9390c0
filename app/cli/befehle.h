// The commands of quor-cli. Each prints its result on `aus` and the program's messages on `fehler`
// (or into the JSON document), and returns the exit code; usage and input errors are thrown as
// CliFehler after the session's messages so far were left for main to print.
#pragma once

#include "cli/sitzung.h"

#include <iosfwd>

namespace quor::cli {

int BefehlList(Sitzung& z, std::ostream& aus, std::ostream& fehler);
int BefehlInfo(Sitzung& z, std::ostream& aus, std::ostream& fehler);
int BefehlCalc(Sitzung& z, std::ostream& aus, std::ostream& fehler);
int BefehlBatch(Sitzung& z, std::ostream& aus, std::ostream& fehler);
int BefehlCurve(Sitzung& z, std::ostream& aus, std::ostream& fehler);
int BefehlSurface(Sitzung& z, std::ostream& aus, std::ostream& fehler);
int BefehlFit(Sitzung& z, std::ostream& aus, std::ostream& fehler);
int BefehlProcess(Sitzung& z, std::ostream& aus, std::ostream& fehler);
int BefehlIso(Sitzung& z, std::ostream& aus, std::ostream& fehler);
int BefehlJoback(Sitzung& z, std::ostream& aus, std::ostream& fehler);
int BefehlPrivateDb(Sitzung& z, std::ostream& aus, std::ostream& fehler);

// Runs a whole command line (argv without the program name); never throws.
int Ausfuehren(const std::vector<std::string>& argumente, std::ostream& aus, std::ostream& fehler);

} // namespace quor::cli
