#include "gui/frame/rahmen_dienste.h"

#include "engine/eos_parameter.h"
#include "fitting/batch_datei.h"
#include "gui/frame/projekt_dialog_dienste.h"
#include "substance/datenbank.h"

namespace quor::ui {

bool DatenbankWaehlenUndOeffnen(ProjectState& s, int typ, Oberflaeche& ui) {
  // A successful opening stores the chosen path under its kind; with the path cleared beforehand
  // that tells success from a cancelled dialog or a failed file, which leave the path alone.
  std::string& pfad = typ == 6 ? s.Datenbank.PfadQ06 : s.Datenbank.PfadQ07;
  const std::string vorher = pfad;
  pfad.clear();
  bool cancelled = false;
  WaehleDatenbank(s, typ, cancelled, ui);
  const bool geoeffnet = !cancelled && !pfad.empty();
  if (!geoeffnet) pfad = vorher;
  return geoeffnet;
}

RahmenDienste StandardDienste(Oberflaeche& ui) {
  RahmenDienste d;
  d.EOSSetup = [&ui](ProjectState& s) {
    int16_t fehler = 0;
    EOSParameterSetup(s, ui, s.Modell.EOSIndex, fehler);
  };
  d.DatenbankWaehlen = [&ui](ProjectState& s, int typ) { return DatenbankWaehlenUndOeffnen(s, typ, ui); };
  d.ParameterEOSText = [](ProjectState& s) { return ParameterEOSText(s); };
  d.ParameterEOSTitel = ParameterEOSTitel;
  d.BatchDateiLaden = [&ui](ProjectState& s, const std::string& pfad) { return LadeBatchDatei(s, ui, pfad); };
  ProjektDiensteOhneFenster(d, ui);
  return d;
}

} // namespace quor::ui
