#include "cli/ausgabe.h"
#include "cli/befehle.h"
#include "cli/fehler.h"

#include <exception>
#include <memory>
#include <ostream>

namespace quor::cli {

int Ausfuehren(const std::vector<std::string>& argumente, std::ostream& aus, std::ostream& fehler) {
  std::unique_ptr<Sitzung> z;
  try {
    const Aufruf a = LeseAufruf(argumente);
    if (a.Hilfe) {
      aus << HilfeText();
      return ExitOK;
    }
    z = std::make_unique<Sitzung>(a);
    const Aufruf& gespeichert = z->aufruf;
    if (gespeichert.Befehl == "list") return BefehlList(*z, aus, fehler);
    if (gespeichert.Befehl == "info") return BefehlInfo(*z, aus, fehler);
    if (gespeichert.Befehl == "calc") return BefehlCalc(*z, aus, fehler);
    if (gespeichert.Befehl == "curve") return BefehlCurve(*z, aus, fehler);
    if (gespeichert.Befehl == "surface") return BefehlSurface(*z, aus, fehler);
    if (gespeichert.Befehl == "fit") return BefehlFit(*z, aus, fehler);
    if (gespeichert.Befehl == "process") return BefehlProcess(*z, aus, fehler);
    if (gespeichert.Befehl == "iso") return BefehlIso(*z, aus, fehler);
    if (gespeichert.Befehl == "joback") return BefehlJoback(*z, aus, fehler);
    if (gespeichert.Befehl == "private-db") return BefehlPrivateDb(*z, aus, fehler);
    return BefehlBatch(*z, aus, fehler);
  } catch (const CliFehler& e) {
    if (z) MeldungenSchreiben(fehler, Meldungen(z->ui, z->Gedruckt, z->ui.protokoll.size()));
    fehler << "quor-cli: " << e.what() << "\n";
    return e.Code();
  } catch (const std::exception& e) {
    if (z) MeldungenSchreiben(fehler, Meldungen(z->ui, z->Gedruckt, z->ui.protokoll.size()));
    fehler << "quor-cli: internal error: " << e.what() << "\n";
    return ExitRechnung;
  }
}

} // namespace quor::cli
