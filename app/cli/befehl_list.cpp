// list: the substances of the open database.
#include "cli/ausgabe.h"
#include "cli/befehle.h"
#include "cli/fehler.h"
#include "core/festtext.h"
#include "substance/stoff_wahl_suche.h"

#include <ostream>

namespace quor::cli {

int BefehlList(Sitzung& z, std::ostream& aus, std::ostream& fehler) {
  z.DatenbankOeffnen();
  const DatenbankGruppe& db = z.s.Datenbank;
  const auto meldungen = Meldungen(z.ui, z.Gedruckt, z.ui.protokoll.size());
  z.Gedruckt = z.ui.protokoll.size();
  if (z.aufruf.Json) {
    JsonSchreiber j;
    j.BeginListe();
    for (int k = 1; k <= db.StoffAnzahl; ++k) {
      j.BeginObjekt();
      j.Feld("index", k);
      j.Feld("MDBNr", db.MDBNummern[k]);
      j.Feld("Formel", Trim(db.FormelListe[k]));
      j.Feld("Name", NameOhneZusatz(db.NamenListe[k]));
      j.Feld("CAS", Trim(db.CASListe[k]));
      j.EndeObjekt();
    }
    j.EndeListe();
    aus << j.Ergebnis();
    MeldungenSchreiben(fehler, meldungen);
    return ExitOK;
  }
  MeldungenSchreiben(fehler, meldungen);
  aus << FestText("lfd. #", 7) << FestText("Nr.", 6) << FestText("Formel", 14) << FestText("CAS-Nr.", 13)
      << "Stoffname\n";
  for (int k = 1; k <= db.StoffAnzahl; ++k) {
    aus << FestText(std::to_string(k), 7) << FestText("#" + std::to_string(db.MDBNummern[k]), 6)
        << FestText(Trim(db.FormelListe[k]), 14) << FestText(Trim(db.CASListe[k]), 13)
        << NameOhneZusatz(db.NamenListe[k]) << "\n";
  }
  return ExitOK;
}

} // namespace quor::cli
