#include "calc/ceos_diagnose.h"

#include "core/zahlformat.h"
#include "engine/eos_zeilen.h"

namespace quor {

const char* const frmCEOSDiagnose::Caption = "   Kubische Zustandsgleichung";

namespace {

constexpr const char* StabilL = "(stabil, L-Phase)";
constexpr const char* StabilV = "(stabil, V-Phase)";
constexpr const char* Metastabil = "(metastabil)";
constexpr const char* Instabil = "(instabil)";

} // namespace

frmCEOSDiagnose::Bild DiagnoseBild(float T, double TKrit, int16_t anzahlWurzeln) {
  using Bild = frmCEOSDiagnose::Bild;
  if (anzahlWurzeln < 1) return Bild::Keins;
  if (T >= static_cast<float>(TKrit)) return Bild::EineWurzelUeberkritisch;
  return anzahlWurzeln >= 3 ? Bild::DreiWurzelnUnterkritisch : Bild::EineWurzelUnterkritisch;
}

std::string frmCEOSDiagnose::WurzelZeile(int nummer, double v, const std::string& notiz) const {
  const float gezeigt = static_cast<float>(v * s_.Einheiten.VolumenFaktor);
  std::string z = "v(" + std::to_string(nummer) + ") = " + SingleText(gezeigt) + s_.Einheiten.vEinheit;
  if (!notiz.empty()) z += "   " + notiz;
  return z;
}

void frmCEOSDiagnose::Form_Load() {
  Wurzeln.clear();
  pctEOS = Bild::Keins;
  if (!eos::IstKubisch(s_.Modell.EOSIndex) || z_.AnzahlWurzeln < 1 || z_.T <= 0) return;

  const std::string& name = s_.Tab.EOSNamen[static_cast<std::size_t>(s_.Modell.EOSIndex)];
  lblEOS = name.substr(0, name.find_last_not_of(' ') + 1);
  lblT = "T = " + FormatVB(z_.T, "###0.000 K");
  lblp = "p = " + FormatVB(z_.pLetzt, "####0.000 kPa");
  pctEOS = DiagnoseBild(z_.T, s_.Stoff.TKrit, z_.AnzahlWurzeln);

  // A phase that exists alone is the stable one; with both, the two are at equilibrium.
  const bool beide = z_.HatL && z_.HatV;
  const std::string notizL = z_.HatL ? StabilL : (z_.HatV ? Metastabil : "");
  const std::string notizV = z_.HatV ? StabilV : (z_.HatL ? Metastabil : "");
  if (z_.AnzahlWurzeln >= 3) {
    Wurzeln.push_back(WurzelZeile(1, z_.V[0], notizL));
    Wurzeln.push_back(WurzelZeile(2, z_.V[1], Instabil));
    Wurzeln.push_back(WurzelZeile(3, z_.V[2], notizV));
  } else {
    // The one root is the state's own; a single fluid flagged as both phases gets no phase note.
    const std::string notiz = beide ? "" : (z_.HatL ? StabilL : (z_.HatV ? StabilV : ""));
    Wurzeln.push_back(WurzelZeile(1, z_.V[0], notiz));
  }
}

} // namespace quor
