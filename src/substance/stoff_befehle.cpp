#include "substance/stoff_befehle.h"

namespace quor {

void RegistriereStoffBefehle(BefehlsRegister& r) {
  r.Registriere(
      ZeileVon({"mnuData_EditDatenbank", -1, "Editor für Stoffdatenbank *.Q07 | *.Q06", "mnuData", -1},
               rang::DatenEditoren, BrauchtStoff));
  const MenuePosten joback[] = {
      {"mnuJOBACK", -1, "Abschätzung von Stoffdaten aus Molekül-Strukturgruppen", "mnuData", -1},
      {"mnuData_Joback_CritData", -1, "kritische Daten T(cr), p(cr), v(cr) und Normalsiedetemperatur",
       "mnuJOBACK", -1},
      {"mnuData_JOBACK_bildung", -1, "Bildungsgrößen delta(f)H, delta(f)G", "mnuJOBACK", -1},
      {"mnuData_JOBACK_cpIdG", -1, "Idealgas-Wärmekapazität cp(idG) = Fu(T)", "mnuJOBACK", -1},
  };
  // The editor shows and the estimate fills the data of the loaded substance.
  for (const MenuePosten& p : joback)
    r.Registriere(ZeileVon(p, rang::DatenParameter, BrauchtStoff));
}

} // namespace quor
