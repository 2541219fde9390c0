#include "fitting/daten_befehle.h"

namespace quor {

void RegistriereDatenBefehle(BefehlsRegister& r) {
  const MenuePosten editoren[] = {
      {"mnuData_BatchInput", -1,
       "Editor für exper. Daten T-p-rho-delta(LV)h       NEU (Eingeben | Laden *.BAQ) ", "mnuData", -1},
      {"mnuData_BatchEdit", -1, "Editor für exper. Daten T-p-rho-delta(LV)h       (Sichten | Editieren)",
       "mnuData", -1},
      {"mnuData_EditXY", -1, "Editor für X-Y-Daten (Eingeben | Laden *.XY | Editieren | Zeichnen) ",
       "mnuData", -1},
  };
  r.Registriere(ZeileVon(editoren[0], rang::DatenMessdaten));
  r.Registriere(ZeileVon(editoren[1], rang::DatenMessdaten, BrauchtStoff));
  r.Registriere(ZeileVon(editoren[2], rang::DatenMessdaten));
  r.Registriere(
      ZeileVon({"mnuData_Fitting", -1, "Fitting-Tool", "mnuData", -1}, rang::DatenEditoren, BrauchtStoff));
  r.Registriere(ZeileVon({"mnuFitting", -1, "&Fitting", "", -1}, rang::Fitting, BrauchtStoff));
}

} // namespace quor
