// Merlon_1: the calculator of the polytropic process. It reads TO_PEX.DAT from its working
// directory, writes FROM_PEX.DAT and, last of all, the empty end marker WRITEEND.END, which the
// program waits for. Every fault ends as an error flag in FROM_PEX.DAT; the marker is always written.
#include "core/datei_io.h"
#include "polytrope_rechner.h"

int main() {
  using namespace quor;
  std::string eingabe;
  const std::string ausgabe =
      LeseDateiBytes(prozess::PexEingabeDatei, eingabe)
          ? merlon::MerlonLauf(eingabe)
          : merlon::FehlerBytes(std::string(prozess::PexEingabeDatei) + " nicht lesbar");
  const bool ok = SchreibeDateiBytes(prozess::PexErgebnisDatei, ausgabe);
  SchreibeDateiBytes(prozess::PexEndeDatei, "");
  return ok ? 0 : 1;
}
